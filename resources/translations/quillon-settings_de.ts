<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Checks</name>
    <message>
        <source>The disk image &quot;%1&quot; is missing.</source>
        <translation>Das Disk-Image „%1“ fehlt.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are missing: %3.</source>
        <translation>%1 von %2 Disk-Images fehlen: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; is a folder.</source>
        <translation>Das Disk-Image „%1“ ist ein Ordner.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are folders: %3.</source>
        <translation>%1 von %2 Disk-Images sind Ordner: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; is empty.</source>
        <translation>Das Disk-Image „%1“ ist leer.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are empty: %3.</source>
        <translation>%1 von %2 Disk-Images sind leer: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; cannot be written to.</source>
        <translation>In das Disk-Image „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images cannot be written to: %3.</source>
        <translation>In %1 von %2 Disk-Images kann nicht geschrieben werden: %3.</translation>
    </message>
    <message>
        <source>There is no disk image in the list.</source>
        <translation>In der Liste steht kein Disk-Image.</translation>
    </message>
    <message>
        <source>%1 disk images are one and the same file, which two writers would damage: %2.</source>
        <translation>%1 Disk-Images sind ein und dieselbe Datei, die durch zweifaches Schreiben beschädigt würde: %2.</translation>
    </message>
    <message>
        <source>Start is disabled: choose where Quillon is in Edit &gt; Preferences.</source>
        <translation>„Starten“ ist deaktiviert: Wählen Sie unter „Bearbeiten &gt; Programmeinstellungen“, wo sich Quillon befindet.</translation>
    </message>
    <message>
        <source>Quillon is set to be nowhere: choose where it is in Edit &gt; Preferences.</source>
        <translation>Für Quillon ist kein Ort festgelegt: Wählen Sie unter „Bearbeiten &gt; Programmeinstellungen“, wo es sich befindet.</translation>
    </message>
    <message>
        <source>Quillon is not at &quot;%1&quot;: nothing is there.</source>
        <translation>Quillon ist nicht unter „%1“: Dort ist nichts.</translation>
    </message>
    <message>
        <source>Quillon is not at &quot;%1&quot;: what is there holds no program.</source>
        <translation>Quillon ist nicht unter „%1“: Was dort ist, enthält kein Programm.</translation>
    </message>
    <message>
        <source>No ROM file is chosen.</source>
        <translation>Es ist keine ROM-Datei gewählt.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is missing.</source>
        <translation>Die ROM-Datei „%1“ fehlt.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is a folder.</source>
        <translation>Die ROM-Datei „%1“ ist ein Ordner.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is %2 bytes large and most likely no ROM: those are 64, 128, 256 or 512 KB, 1, 2 or 4 MB large.</source>
        <translation>Die ROM-Datei „%1“ ist %2 Byte groß und sehr wahrscheinlich kein ROM: Solche sind 64, 128, 256 oder 512 KB, 1, 2 oder 4 MB groß.</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is missing.</source>
        <translation>Der gemeinsame Ordner „%1“ fehlt.</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is no folder.</source>
        <translation>Der gemeinsame Ordner „%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>Raw key codes are on, and their file &quot;%1&quot; is missing.</source>
        <translation>Rohe Tastencodes sind eingeschaltet, und ihre Datei „%1“ fehlt.</translation>
    </message>
    <message>
        <source>Raw key codes are on, and no file is chosen for them.</source>
        <translation>Rohe Tastencodes sind eingeschaltet, und es ist keine Datei dafür gewählt.</translation>
    </message>
    <message>
        <source>The preferences file could not be read: %1. What you see are the defaults, and saving puts them in the place of what is in the file.</source>
        <translation>Die Einstellungsdatei konnte nicht gelesen werden: %1. Zu sehen sind die Standardwerte. Speichern setzt sie an die Stelle dessen, was in der Datei steht.</translation>
    </message>
    <message>
        <source>The place of the preferences file names no file: no save can succeed.</source>
        <translation>Der Ort der Einstellungsdatei bezeichnet keine Datei: Speichern kann nicht gelingen.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; could not be saved: %2.</source>
        <translation>Die Einstellungsdatei „%1“ konnte nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; cannot be written: a save will fail.</source>
        <translation>Die Einstellungsdatei „%1“ kann nicht geschrieben werden: Speichern wird scheitern.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; has been removed by another program. A save makes it anew.</source>
        <translation>Die Einstellungsdatei „%1“ wurde von einem anderen Programm entfernt. Speichern legt sie neu an.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; has been changed by another program. A save undoes that.</source>
        <translation>Die Einstellungsdatei „%1“ wurde von einem anderen Programm geändert. Speichern macht das rückgängig.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that this program knows. It shows &quot;%2&quot;, and a save keeps the line as it is.</source>
        <translation>„%1“ ist diesem Programm unbekannt. Es zeigt „%2“, und Speichern lässt die Zeile, wie sie ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the file is nothing that this program knows. It shows &quot;%2&quot;, and a save writes &quot;%3&quot;.</source>
        <translation>„%1“ in der Datei ist diesem Programm unbekannt. Es zeigt „%2“, und Speichern schreibt „%3“.</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; comes from a line that does not begin with &quot;%2&quot;: &quot;%3&quot;.</source>
        <translation>Der Wert „%1“ stammt aus einer Zeile, die nicht mit „%2“ beginnt: „%3“.</translation>
    </message>
    <message>
        <source>After a save the value of &quot;%1&quot; would be read from another line: &quot;%2&quot;.</source>
        <translation>Nach dem Speichern würde der Wert von „%1“ aus einer anderen Zeile gelesen: „%2“.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; cannot be reached.</source>
        <translation>Das Disk-Image „%1“ ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images cannot be reached: %3.</source>
        <translation>%1 von %2 Disk-Images sind nicht erreichbar: %3.</translation>
    </message>
    <message>
        <source>There is no permission to read the disk image &quot;%1&quot;.</source>
        <translation>Es fehlt die Berechtigung, das Disk-Image „%1“ zu lesen.</translation>
    </message>
    <message>
        <source>There is no permission to read %1 of %2 disk images: %3.</source>
        <translation>Es fehlt die Berechtigung, %1 von %2 Disk-Images zu lesen: %3.</translation>
    </message>
    <message>
        <source>Quillon cannot be reached at &quot;%1&quot;: %2.</source>
        <translation>Quillon ist unter „%1“ nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; cannot be reached: %2.</source>
        <translation>Die ROM-Datei „%1“ ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>There is no permission to read the ROM file &quot;%1&quot;.</source>
        <translation>Es fehlt die Berechtigung, die ROM-Datei „%1“ zu lesen.</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; cannot be reached: %2.</source>
        <translation>Der gemeinsame Ordner „%1“ ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is a device and no file.</source>
        <translation>Die ROM-Datei „%1“ ist ein Gerät und keine Datei.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; exists and has not been read. A save replaces what is in it.</source>
        <translation>Die Einstellungsdatei „%1“ gibt es, sie wurde aber nicht gelesen. Speichern ersetzt, was darin steht.</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Disk image</source>
        <translation>Disk-Image</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>A folder of this computer that appears as a disk inside the emulated Macintosh.</source>
        <translation>Ein Ordner dieses Computers, der im emulierten Macintosh als Laufwerk erscheint.</translation>
    </message>
    <message>
        <source>as a path</source>
        <translation>als Pfad</translation>
    </message>
    <message>
        <source>Whether the Macintosh screen is shown in a window or fills the screen, and how large it is. &quot;Maximum&quot; takes all the room there is.</source>
        <translation>Ob der Macintosh-Bildschirm in einem Fenster oder im Vollbild erscheint und wie groß er ist. „Maximum“ nutzt den ganzen Platz.</translation>
    </message>
    <message>
        <source>as type/width/height, in pixels, 0 for the maximum</source>
        <translation>als Typ/Breite/Höhe in Pixeln, 0 für das Maximum</translation>
    </message>
    <message>
        <source>The device or program that the modem port is connected to. Leave it empty for none.</source>
        <translation>Das Gerät oder Programm, mit dem der Modemanschluss verbunden ist. Leer bedeutet: mit keinem.</translation>
    </message>
    <message>
        <source>The device or program that the printer port is connected to. Leave it empty for none.</source>
        <translation>Das Gerät oder Programm, mit dem der Druckeranschluss verbunden ist. Leer bedeutet: mit keinem.</translation>
    </message>
    <message>
        <source>How the Macintosh reaches the network: &quot;slirp&quot; needs no set-up, or the name of a network device.</source>
        <translation>Wie der Macintosh ins Netzwerk kommt: über „slirp“, das keine Einrichtung braucht, oder über das hier genannte Netzwerkgerät.</translation>
    </message>
    <message>
        <source>Sends network packets to other emulators on the local network through UDP.</source>
        <translation>Sendet Netzwerkpakete über UDP an andere Emulatoren im lokalen Netzwerk.</translation>
    </message>
    <message>
        <source>as true or false</source>
        <translation>als true oder false</translation>
    </message>
    <message>
        <source>The UDP port of the tunnel. All emulators that are to meet need the same.</source>
        <translation>Der UDP-Port des Tunnels. Alle Emulatoren, die sich treffen sollen, brauchen denselben.</translation>
    </message>
    <message>
        <source>as a number from 1 to 65535</source>
        <translation>als Zahl von 1 bis 65535</translation>
    </message>
    <message>
        <source>The file with the ROM of a Macintosh. The emulator cannot start without it.</source>
        <translation>Die Datei mit dem ROM eines Macintosh. Ohne sie kann der Emulator nicht starten.</translation>
    </message>
    <message>
        <source>The drive that the Macintosh tries to start from.</source>
        <translation>Das Laufwerk, von dem der Macintosh zu starten versucht.</translation>
    </message>
    <message>
        <source>as 0 for any drive, or 1</source>
        <translation>als 0 für ein beliebiges Laufwerk oder 1</translation>
    </message>
    <message>
        <source>The memory of the Macintosh in megabytes. Old systems may not start with very much of it.</source>
        <translation>Der Arbeitsspeicher des Macintosh in Megabyte. Alte Systeme starten mit sehr viel Speicher unter Umständen nicht.</translation>
    </message>
    <message>
        <source>in bytes</source>
        <translation>in Byte</translation>
    </message>
    <message>
        <source>How often the Macintosh screen is drawn. Lower rates leave more time for the processor.</source>
        <translation>Wie oft der Macintosh-Bildschirm gezeichnet wird. Niedrigere Raten lassen dem Prozessor mehr Zeit.</translation>
    </message>
    <message>
        <source>as frames per drawing, 0 for dynamic</source>
        <translation>als Zahl der Bilder je Zeichenvorgang, 0 für dynamisch</translation>
    </message>
    <message>
        <source>The model that the Macintosh says it is. Mac OS 8 needs the Quadra.</source>
        <translation>Das Modell, als das sich der Macintosh ausgibt. Mac OS 8 benötigt den Quadra.</translation>
    </message>
    <message>
        <source>as a model number</source>
        <translation>als Modellnummer</translation>
    </message>
    <message>
        <source>The processor of the Macintosh, with or without floating-point unit.</source>
        <translation>Der Prozessor des Macintosh, mit oder ohne Gleitkommaeinheit.</translation>
    </message>
    <message>
        <source>as the x of 680x0, together with &quot;fpu&quot; as true or false</source>
        <translation>als x von 680x0, zusammen mit „fpu“ als true oder false</translation>
    </message>
    <message>
        <source>Whether the processor has a floating-point unit.</source>
        <translation>Ob der Prozessor eine Gleitkommaeinheit hat.</translation>
    </message>
    <message>
        <source>Takes the CD-ROM drive out of the Macintosh.</source>
        <translation>Entfernt das CD-ROM-Laufwerk aus dem Macintosh.</translation>
    </message>
    <message>
        <source>Keeps the Macintosh silent.</source>
        <translation>Schaltet den Macintosh stumm.</translation>
    </message>
    <message>
        <source>Translates the Macintosh&apos;s programs for this computer&apos;s processor as they run. Much faster; needs a 68020 or later.</source>
        <translation>Übersetzt die Programme des Macintosh während der Ausführung für den Prozessor dieses Computers. Viel schneller; erfordert mindestens einen 68020.</translation>
    </message>
    <message>
        <source>Translates floating-point instructions, too. Faster, a little less exact.</source>
        <translation>Übersetzt auch Gleitkommabefehle. Schneller, aber etwas ungenauer.</translation>
    </message>
    <message>
        <source>The memory for translated programs.</source>
        <translation>Der Speicher für übersetzte Programme.</translation>
    </message>
    <message>
        <source>in KB</source>
        <translation>in KB</translation>
    </message>
    <message>
        <source>Throws translated programs away only when they are really no longer valid. Faster.</source>
        <translation>Verwirft übersetzte Programme erst, wenn sie wirklich nicht mehr gültig sind. Das ist schneller.</translation>
    </message>
    <message>
        <source>Translates across jumps that always lead to the same place. Faster.</source>
        <translation>Übersetzt über Sprünge hinweg, die immer zum selben Ziel führen. Das ist schneller.</translation>
    </message>
    <message>
        <source>Tells keys apart by their place on the keyboard, through a table in a file, and not by their letter.</source>
        <translation>Unterscheidet Tasten anhand einer Tabelle in einer Datei nach ihrer Lage auf der Tastatur statt nach ihrem Buchstaben.</translation>
    </message>
    <message>
        <source>The file with the table of key codes. Used only with raw key codes.</source>
        <translation>Die Datei mit der Tabelle der Tastencodes. Sie wird nur mit rohen Tastencodes verwendet.</translation>
    </message>
    <message>
        <source>Which keys a turn of the mouse wheel presses inside the Macintosh.</source>
        <translation>Welche Tasten beim Drehen des Mausrads im Macintosh gedrückt werden.</translation>
    </message>
    <message>
        <source>as 0 for pages, 1 for the cursor</source>
        <translation>als 0 für Bild auf/ab, 1 für Pfeil auf/ab</translation>
    </message>
    <message>
        <source>How many lines one step of the mouse wheel scrolls.</source>
        <translation>Um wie viele Zeilen ein Schritt des Mausrads scrollt.</translation>
    </message>
    <message>
        <source>as a number</source>
        <translation>als Zahl</translation>
    </message>
    <message>
        <source>The device that sound goes to. Leave it empty for the usual one.</source>
        <translation>Das Gerät, auf dem der Ton ausgegeben wird. Leer bedeutet: das Standardgerät.</translation>
    </message>
    <message>
        <source>The device that sets the loudness. Leave it empty for the usual one.</source>
        <translation>Das Gerät, das die Lautstärke regelt. Leer bedeutet: das Standardgerät.</translation>
    </message>
    <message>
        <source>Lets the Macintosh go on when a program reaches for memory that is not there.</source>
        <translation>Lässt den Macintosh weiterlaufen, wenn ein Programm auf nicht vorhandenen Speicher zugreift.</translation>
    </message>
    <message>
        <source>Rests while the Macintosh has nothing to do and saves this computer&apos;s energy.</source>
        <translation>Pausiert, solange der Macintosh nichts zu tun hat, und spart so Energie auf diesem Computer.</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>es ist kein UTF-8-Text</translation>
    </message>
</context>
<context>
    <name>Items</name>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Page up / page down</source>
        <translation>Bild auf / Bild ab</translation>
    </message>
    <message>
        <source>Cursor up / down</source>
        <translation>Pfeil auf / Pfeil ab</translation>
    </message>
    <message>
        <source>Any drive</source>
        <translation>Beliebiges Laufwerk</translation>
    </message>
    <message>
        <source>Drive 1</source>
        <translation>Laufwerk 1</translation>
    </message>
    <message>
        <source>68020 with FPU</source>
        <translation>68020 mit FPU</translation>
    </message>
    <message>
        <source>68030 with FPU</source>
        <translation>68030 mit FPU</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>SCSI</source>
        <translation>SCSI</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Sound &amp; Input</source>
        <translation>Ton &amp; Eingabe</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>JIT</source>
        <translation>JIT</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>7.5 Hz</source>
        <translation>7,5 Hz</translation>
    </message>
    <message>
        <source> (from the file)</source>
        <translation> (aus der Datei)</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>Kinds</name>
    <message>
        <source>Disk Image</source>
        <translation>Disk-Image</translation>
    </message>
    <message>
        <source>Not Found!</source>
        <translation>Nicht gefunden!</translation>
    </message>
    <message>
        <source>No Path!</source>
        <translation>Kein Pfad!</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Choose a Folder for New Images</source>
        <translation>Ordner für neue Disk-Images wählen</translation>
    </message>
    <message>
        <source>Choose the Key Code File</source>
        <translation>Tastencode-Datei wählen</translation>
    </message>
    <message>
        <source>Choose the ROM File</source>
        <translation>ROM-Datei wählen</translation>
    </message>
    <message>
        <source>Choose Unix Root Folder</source>
        <translation>Gemeinsamen Ordner wählen</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Disk-Images wählen</translation>
    </message>
    <message>
        <source>Create a new blank volume</source>
        <translation>Neues leeres Disk-Image</translation>
    </message>
    <message>
        <source>Create a new blank unformatted disk image</source>
        <translation>Ein neues leeres, unformatiertes Disk-Image anlegen</translation>
    </message>
    <message>
        <source>Choose Quillon</source>
        <translation>Quillon wählen</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>exchange files, host folder, share</source>
        <translation>Dateien austauschen, Freigabe, Wirtsordner</translation>
    </message>
    <message>
        <source>resolution, fullscreen, window size, monitor, pixels</source>
        <translation>Auflösung, Vollbild, Fenstergröße, Monitor, Pixel</translation>
    </message>
    <message>
        <source>serial port, terminal</source>
        <translation>serielle Schnittstelle, Terminal</translation>
    </message>
    <message>
        <source>serial port, printing</source>
        <translation>serielle Schnittstelle, drucken</translation>
    </message>
    <message>
        <source>internet, Ethernet, web, TCP/IP</source>
        <translation>Internet, Ethernet, Web, TCP/IP</translation>
    </message>
    <message>
        <source>internet, AppleTalk, local network</source>
        <translation>Internet, AppleTalk, lokales Netzwerk</translation>
    </message>
    <message>
        <source>firmware, BIOS</source>
        <translation>Firmware, BIOS</translation>
    </message>
    <message>
        <source>startup disk, boot order, boot disk</source>
        <translation>Startvolume, Bootreihenfolge, Startdiskette</translation>
    </message>
    <message>
        <source>memory, megabytes</source>
        <translation>RAM, Speicher, Megabyte</translation>
    </message>
    <message>
        <source>frames per second, FPS, speed, frame skip</source>
        <translation>Bilder pro Sekunde, FPS, Geschwindigkeit, Bildrate</translation>
    </message>
    <message>
        <source>computer, machine type, Gestalt</source>
        <translation>Computer, Rechnertyp, Gestalt</translation>
    </message>
    <message>
        <source>CPU, FPU, coprocessor, Motorola</source>
        <translation>CPU, FPU, Koprozessor, Motorola</translation>
    </message>
    <message>
        <source>optical drive, CD, disc</source>
        <translation>optisches Laufwerk, CD, Disc</translation>
    </message>
    <message>
        <source>audio, mute, volume, speaker</source>
        <translation>Audio, stumm, Lautstärke, Lautsprecher</translation>
    </message>
    <message>
        <source>speed, fast, dynamic translation, recompiler</source>
        <translation>Geschwindigkeit, schnell, dynamische Übersetzung, Recompiler</translation>
    </message>
    <message>
        <source>floating point, speed</source>
        <translation>Gleitkomma, Geschwindigkeit</translation>
    </message>
    <message>
        <source>memory, speed</source>
        <translation>Speicher, Geschwindigkeit</translation>
    </message>
    <message>
        <source>keyboard layout, keymap</source>
        <translation>Tastaturbelegung, Tastaturlayout</translation>
    </message>
    <message>
        <source>scroll wheel, scrolling</source>
        <translation>Scrollrad, scrollen</translation>
    </message>
    <message>
        <source>scroll wheel, scrolling speed</source>
        <translation>Scrollrad, Scrollgeschwindigkeit</translation>
    </message>
    <message>
        <source>audio device, sound card</source>
        <translation>Audiogerät, Soundkarte</translation>
    </message>
    <message>
        <source>audio device, sound card, loudness</source>
        <translation>Audiogerät, Soundkarte, Lautstärke</translation>
    </message>
    <message>
        <source>crash, memory errors</source>
        <translation>Absturz, Speicherfehler</translation>
    </message>
    <message>
        <source>battery, power, fan, processor load</source>
        <translation>Akku, Strom, Lüfter, Prozessorlast</translation>
    </message>
    <message>
        <source>hard disk, hard drive, floppy, diskette, volume</source>
        <translation>Festplatte, Laufwerk, Diskette, Abbild, Volume, Datenträger</translation>
    </message>
</context>
<context>
    <name>SearchPlaces</name>
    <message>
        <source>%1 (turn on &quot;%2&quot; first)</source>
        <translation>%1 (zuerst „%2“ einschalten)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is disabled. Turn on &quot;%2&quot; first.</source>
        <translation>„%1“ ist gesperrt. Schalten Sie zuerst „%2“ ein.</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>Disk-Images</translation>
    </message>
    <message>
        <source>SCSI ID 0</source>
        <translation>SCSI-ID 0</translation>
    </message>
    <message>
        <source>Where Quillon is</source>
        <translation>Wo sich Quillon befindet</translation>
    </message>
    <message>
        <source>location, path, emulator, Quillon.app</source>
        <translation>Ort, Pfad, Emulator, Quillon.app</translation>
    </message>
    <message>
        <source>Quit after Start</source>
        <translation>Nach dem Starten beenden</translation>
    </message>
    <message>
        <source>exit, close, end</source>
        <translation>schließen, Ende, verlassen</translation>
    </message>
    <message>
        <source>Show the SCSI tab</source>
        <translation>SCSI-Reiter anzeigen</translation>
    </message>
    <message>
        <source>bus, devices</source>
        <translation>Bus, Geräte</translation>
    </message>
    <message>
        <source>Preferences window</source>
        <translation>Programmeinstellungen</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Screen &amp;mode</source>
        <translation>Bildschirm&amp;modus</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>B&amp;reite</translation>
    </message>
    <message>
        <source>Hei&amp;ght</source>
        <translation>Höh&amp;e</translation>
    </message>
    <message>
        <source>Shared fol&amp;der</source>
        <translation>&amp;Gemeinsamer Ordner</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>&amp;Modem port</source>
        <translation>&amp;Modemanschluss</translation>
    </message>
    <message>
        <source>P&amp;rinter port</source>
        <translation>D&amp;ruckeranschluss</translation>
    </message>
    <message>
        <source>Network &amp;device</source>
        <translation>Netzwerk&amp;gerät</translation>
    </message>
    <message>
        <source>Tunnel the net&amp;work over UDP</source>
        <translation>Net&amp;zwerk über UDP tunneln</translation>
    </message>
    <message>
        <source>&amp;UDP port</source>
        <translation>&amp;UDP-Port</translation>
    </message>
    <message>
        <source>&amp;ROM file</source>
        <translation>&amp;ROM-Datei</translation>
    </message>
    <message>
        <source>&amp;Boot drive</source>
        <translation>St&amp;artlaufwerk</translation>
    </message>
    <message>
        <source>Boot driver</source>
        <translation>Starttreiber</translation>
    </message>
    <message>
        <source>RA&amp;M size (MB)</source>
        <translation>Arbeitsspeicher (&amp;MB)</translation>
    </message>
    <message>
        <source>Refresh r&amp;ate</source>
        <translation>Bild&amp;wiederholrate</translation>
    </message>
    <message>
        <source>M&amp;odel</source>
        <translation>M&amp;odell</translation>
    </message>
    <message>
        <source>Processor (CP&amp;U)</source>
        <translation>&amp;Prozessor (CPU)</translation>
    </message>
    <message>
        <source>Floating-point unit (FPU)</source>
        <translation>Gleitkommaeinheit (FPU)</translation>
    </message>
    <message>
        <source>&amp;Disable the CD-ROM drive</source>
        <translation>&amp;CD-ROM-Laufwerk deaktivieren</translation>
    </message>
    <message>
        <source>&amp;Disable sound</source>
        <translation>Ton &amp;ausschalten</translation>
    </message>
    <message>
        <source>Leave the clipboard unconverted</source>
        <translation>Zwischenablage nicht umwandeln</translation>
    </message>
    <message>
        <source>No windows of its own</source>
        <translation>Keine eigenen Fenster</translation>
    </message>
    <message>
        <source>Enable the &amp;JIT compiler</source>
        <translation>&amp;JIT-Compiler aktivieren</translation>
    </message>
    <message>
        <source>Compile floating-point instr&amp;uctions</source>
        <translation>&amp;Gleitkommabefehle kompilieren</translation>
    </message>
    <message>
        <source>Debug the JIT compiler</source>
        <translation>Fehlersuche im JIT-Compiler</translation>
    </message>
    <message>
        <source>Cache si&amp;ze (KB)</source>
        <translation>&amp;Cache-Größe (KB)</translation>
    </message>
    <message>
        <source>Flush the cache lazil&amp;y</source>
        <translation>Cache ver&amp;zögert leeren</translation>
    </message>
    <message>
        <source>Inline &amp;blocks</source>
        <translation>Blöck&amp;e einbetten (Inlining)</translation>
    </message>
    <message>
        <source>Keyboard type</source>
        <translation>Tastaturtyp</translation>
    </message>
    <message>
        <source>Use raw &amp;key codes</source>
        <translation>&amp;Rohe Tastencodes verwenden</translation>
    </message>
    <message>
        <source>Ke&amp;y code file</source>
        <translation>Tasten&amp;code-Datei</translation>
    </message>
    <message>
        <source>Mouse &amp;wheel</source>
        <translation>&amp;Mausrad</translation>
    </message>
    <message>
        <source>L&amp;ines to scroll</source>
        <translation>&amp;Zeilen pro Schritt</translation>
    </message>
    <message>
        <source>&amp;Output device</source>
        <translation>Aus&amp;gabegerät</translation>
    </message>
    <message>
        <source>&amp;Mixer device</source>
        <translation>Mi&amp;xer-Gerät</translation>
    </message>
    <message>
        <source>Ignore &amp;memory faults</source>
        <translation>Speicherfehler igno&amp;rieren</translation>
    </message>
    <message>
        <source>Rest while the Macintosh is &amp;idle</source>
        <translation>&amp;Pausieren, wenn der Macintosh untätig ist</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message>
        <source>Zero KB</source>
        <translation>Null KB</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>TB</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Disk images</source>
        <translation>Disk-Images</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>&amp;Auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>Chooses the shared folder.</source>
        <translation>Wählt den gemeinsamen Ordner aus.</translation>
    </message>
    <message>
        <source>SCSI &amp;ID 0</source>
        <translation>S&amp;CSI-ID 0</translation>
    </message>
    <message>
        <source>A mark for yourself while the window is open. It is not saved.</source>
        <translation>Eine Markierung für Sie selbst, solange das Fenster geöffnet ist. Sie wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>D&amp;urchsuchen&#xa0;…</translation>
    </message>
    <message>
        <source>Chooses the ROM file.</source>
        <translation>Wählt die ROM-Datei aus.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>D&amp;urchsuchen&#xa0;…</translation>
    </message>
    <message>
        <source>Chooses the key code file.</source>
        <translation>Wählt die Tastencode-Datei aus.</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Maus</translation>
    </message>
    <message>
        <source>Just-in-time compiler</source>
        <translation>Just-in-time-Compiler</translation>
    </message>
    <message>
        <source>Processor emulation</source>
        <translation>Prozessoremulation</translation>
    </message>
    <message>
        <source>Reset to Default (empty)</source>
        <translation>Auf Standard zurücksetzen (leer)</translation>
    </message>
    <message>
        <source>Reset to Default (%1)</source>
        <translation>Auf Standard zurücksetzen (%1)</translation>
    </message>
    <message>
        <source>If unsure, leave it empty.</source>
        <translation>Im Zweifel leer lassen.</translation>
    </message>
    <message>
        <source>If unsure, leave it at &quot;%1&quot;.</source>
        <translation>Im Zweifel bei „%1“ belassen.</translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;.</source>
        <translation>Steht in der Datei unter „%1“.</translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;, %2.</source>
        <translation>Steht in der Datei unter „%1“, %2.</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Aktivität</translation>
    </message>
    <message>
        <source>%1, %2 × %3</source>
        <translation>%1, %2 × %3</translation>
    </message>
    <message>
        <source>Until you choose one it says &quot;%1&quot;.</source>
        <translation>Bis Sie etwas auswählen, steht dort „%1“.</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>Geändert.</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>Nicht der Standardwert.</translation>
    </message>
    <message>
        <source>Problem: %1</source>
        <translation>Problem: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Warnung: %1</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Hinweis: %1</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation>Serielle Anschlüsse</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>desktop::AgreementSheet</name>
    <message>
        <source>Beta Agreement</source>
        <translation>Beta-Vereinbarung</translation>
    </message>
    <message>
        <source>&lt;p&gt;This program is a beta version. It changes three things on this computer:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Quillon&apos;s preferences file, when you press Save, Start or Copy, and once when there is none yet;&lt;/li&gt;&lt;li&gt;its own settings, when you press Done in its preferences;&lt;/li&gt;&lt;li&gt;the disk images that you ask it to make.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Keep a copy of what you cannot do without. Disagree ends the program at once, without saving.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Dieses Programm ist eine Betaversion. Es verändert drei Dinge auf diesem Computer:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;die Einstellungsdatei von Quillon, wenn Sie auf „Speichern“, „Starten“ oder „Kopieren“ klicken, und einmal, wenn es noch keine gibt;&lt;/li&gt;&lt;li&gt;seine eigenen Einstellungen, wenn Sie in den Programmeinstellungen auf „Fertig“ klicken;&lt;/li&gt;&lt;li&gt;die Disk-Images, die Sie anlegen lassen.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Bewahren Sie eine Kopie von allem auf, worauf Sie nicht verzichten können. „Ablehnen“ beendet das Programm sofort, ohne zu speichern.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Disagree</source>
        <translation>&amp;Ablehnen</translation>
    </message>
    <message>
        <source>Ends the program at once, without saving.</source>
        <translation>Beendet das Programm sofort, ohne zu speichern.</translation>
    </message>
    <message>
        <source>&amp;Agree</source>
        <translation>&amp;Zustimmen</translation>
    </message>
    <message>
        <source>Closes this sheet.</source>
        <translation>Schließt dieses Fenster.</translation>
    </message>
</context>
<context>
    <name>desktop::ChangesList</name>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>in another order</source>
        <translation>in anderer Reihenfolge</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Put &amp;All Back</source>
        <translation>&amp;Alle zurücknehmen</translation>
    </message>
    <message>
        <source>Takes back everything that is not saved.</source>
        <translation>Nimmt alles zurück, was nicht gespeichert ist.</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>Disk-Images</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Put back %1</source>
        <translation>%1 zurücknehmen</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksLine</name>
    <message>
        <source>Checking the files…</source>
        <translation>Dateien werden geprüft&#xa0;…</translation>
    </message>
    <message>
        <source>What keeps Quillon from starting, and what else deserves a look. Press it to see all of it.</source>
        <translation>Was Quillon am Starten hindert und was sonst einen Blick verdient. Ein Klick zeigt alles.</translation>
    </message>
    <message>
        <source>Ready to start.</source>
        <translation>Bereit zum Starten.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Und %1 weitere.</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksList</name>
    <message>
        <source>What to Look At Before Starting</source>
        <translation>Vor dem Starten zu beachten</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksView</name>
    <message>
        <source>%1, with something to look at</source>
        <translation>%1, hier ist etwas zu beachten</translation>
    </message>
</context>
<context>
    <name>desktop::CreateSheet</name>
    <message>
        <source>New Blank Image</source>
        <translation>Neues leeres Disk-Image</translation>
    </message>
    <message>
        <source>The size in megabytes. 100 if this is no whole number.</source>
        <translation>Die Größe in Megabyte. Ist dies keine ganze Zahl, gilt 100.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Size in megabytes</source>
        <translation>Größe in Megabyte</translation>
    </message>
    <message>
        <source>&amp;Size (MB):</source>
        <translation>&amp;Größe (MB):</translation>
    </message>
    <message>
        <source>Makes the image, and then closes this sheet.</source>
        <translation>Legt das Disk-Image an und schließt danach dieses Fenster.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Animate</source>
        <translation>&amp;Animieren</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>&amp;Wählen&#xa0;…</translation>
    </message>
    <message>
        <source>Chooses the folder for this and later images, until you quit.</source>
        <translation>Wählt den Ordner für dieses und weitere Disk-Images, bis das Programm beendet wird.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Please choose another one.</source>
        <translation>In diesen Ordner können Sie nicht schreiben. Bitte wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Images go here because you cannot write to the folder of this program, &quot;%1&quot;.</source>
        <translation>Disk-Images kommen hierher, weil Sie in den Ordner dieses Programms, „%1“, nicht schreiben können.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Freier Platz: %1</translation>
    </message>
    <message>
        <source>Only moves the indicator; making an image does not.</source>
        <translation>Bewegt nur die Anzeige; das Anlegen eines Disk-Images tut das nicht.</translation>
    </message>
    <message>
        <source>The name of the disk image, without &quot;.dsk&quot;.</source>
        <translation>Der Name des Disk-Images, ohne „.dsk“.</translation>
    </message>
    <message>
        <source>Add to the L&amp;ist…</source>
        <translation>Zur &amp;Liste hinzufügen&#xa0;…</translation>
    </message>
    <message>
        <source>Closes this sheet and opens Add… at the new disk image.</source>
        <translation>Schließt dieses Fenster und öffnet „Hinzufügen&#xa0;…“ beim neuen Disk-Image.</translation>
    </message>
    <message>
        <source>The folder that the disk image goes to.</source>
        <translation>Der Ordner, in den das Disk-Image kommt.</translation>
    </message>
</context>
<context>
    <name>desktop::DiagnosticsWindow</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>For finding faults in this program. None of it is saved.</source>
        <translation>Zur Fehlersuche in diesem Programm. Nichts davon wird gespeichert.</translation>
    </message>
    <message>
        <source>Read the local l&amp;ist</source>
        <translation>Lokale Liste l&amp;esen</translation>
    </message>
    <message>
        <source>The table of disk images shows the second of two equal lists. You see no difference.</source>
        <translation>Die Tabelle der Disk-Images zeigt die zweite von zwei gleichen Listen. Ein Unterschied ist nicht zu sehen.</translation>
    </message>
    <message>
        <source>Tr&amp;y the save panel…</source>
        <translation>S&amp;peicherdialog testen&#xa0;…</translation>
    </message>
    <message>
        <source>Shows a panel and writes the chosen place to standard output. Nothing is made.</source>
        <translation>Zeigt einen Dialog und schreibt den gewählten Ort auf die Standardausgabe. Es wird nichts angelegt.</translation>
    </message>
</context>
<context>
    <name>desktop::EmptyHint</name>
    <message>
        <source>No disk images yet.</source>
        <translation>Noch keine Disk-Images.</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen&#xa0;…</translation>
    </message>
    <message>
        <source>Adds disk images to the list (the key Insert does so, too).</source>
        <translation>Fügt der Liste Disk-Images hinzu (wie die Einfügetaste).</translation>
    </message>
    <message>
        <source>New Blank Image…</source>
        <translation>Neues leeres Disk-Image&#xa0;…</translation>
    </message>
    <message>
        <source>Makes an empty disk image.</source>
        <translation>Legt ein leeres Disk-Image an.</translation>
    </message>
</context>
<context>
    <name>desktop::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>Einstellung suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Einstellung suchen</translation>
    </message>
    <message>
        <source>Type words of a setting, of a choice that it offers, or of a disk image.</source>
        <translation>Geben Sie Wörter einer Einstellung, einer ihrer Auswahlmöglichkeiten oder eines Disk-Images ein.</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Fundstellen</translation>
    </message>
</context>
<context>
    <name>desktop::HelpPane</name>
    <message>
        <source>Move to a setting to read here what it does.</source>
        <translation>Gehen Sie zu einer Einstellung, um hier zu lesen, was sie bewirkt.</translation>
    </message>
    <message>
        <source>In the file: %1</source>
        <translation>In der Datei: %1</translation>
    </message>
</context>
<context>
    <name>desktop::Menus</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Vorgaben</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>S&amp;tarten</translation>
    </message>
    <message>
        <source>&amp;New Blank Image…</source>
        <translation>Neues &amp;leeres Disk-Image&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Bee&amp;nden</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Programmeinstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Beta Agreement…</source>
        <translation>&amp;Beta-Vereinbarung&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;About Quillon Settings</source>
        <translation>Über &amp;Quillon-Einstellungen</translation>
    </message>
    <message>
        <source>Pre&amp;view…</source>
        <translation>&amp;Vorschau&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Reset This Page</source>
        <translation>Diese Seite &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Diagnostics…</source>
        <translation>&amp;Diagnose&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Find a Setting…</source>
        <translation>Einstellung &amp;suchen&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Add Disk Image…</source>
        <translation>Disk-Image &amp;hinzufügen&#xa0;…</translation>
    </message>
    <message>
        <source>A mark for yourself while the window is open. It changes no setting and is not saved.</source>
        <translation>Eine Markierung für Sie selbst, solange das Fenster geöffnet ist. Sie ändert keine Einstellung und wird nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>desktop::PreferencesWindow</name>
    <message>
        <source>Quillon Settings Preferences</source>
        <translation>Programmeinstellungen</translation>
    </message>
    <message>
        <source>Where Quillon is</source>
        <translation>Wo sich Quillon befindet</translation>
    </message>
    <message>
        <source>Start is disabled until a place is chosen.</source>
        <translation>„Starten“ ist deaktiviert, bis ein Ort gewählt ist.</translation>
    </message>
    <message>
        <source>&amp;Beside this program</source>
        <translation>N&amp;eben diesem Programm</translation>
    </message>
    <message>
        <source>Quillon.app in the folder of this program.</source>
        <translation>Quillon.app im Ordner dieses Programms.</translation>
    </message>
    <message>
        <source>&amp;Somewhere else</source>
        <translation>&amp;Woanders</translation>
    </message>
    <message>
        <source>The place named below. &quot;Quillon&quot; must be part of the name.</source>
        <translation>Der unten angegebene Ort. „Quillon“ muss im Namen vorkommen.</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testen</translation>
    </message>
    <message>
        <source>Starts what the location names, unchecked.</source>
        <translation>Startet ungeprüft, was als Ort angegeben ist.</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>Applies and stores the choices.</source>
        <translation>Übernimmt und speichert die Auswahl.</translation>
    </message>
    <message>
        <source>Show the SCS&amp;I tab</source>
        <translation>SCS&amp;I-Reiter anzeigen</translation>
    </message>
    <message>
        <source>Whether the settings window has a tab for SCSI. It shows up with Done.</source>
        <translation>Ob das Hauptfenster einen Reiter für SCSI hat. Er erscheint mit „Fertig“.</translation>
    </message>
    <message>
        <source>&amp;Quit after Start</source>
        <translation>Nach dem &amp;Starten beenden</translation>
    </message>
    <message>
        <source>Whether Start also ends this program.</source>
        <translation>Ob „Starten“ auch dieses Programm beendet.</translation>
    </message>
    <message>
        <source>The application that Start launches. &quot;Quillon&quot; must be part of the name.</source>
        <translation>Die Anwendung, die „Starten“ aufruft. „Quillon“ muss im Namen vorkommen.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ort:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>Chooses the application.</source>
        <translation>Wählt die Anwendung aus.</translation>
    </message>
    <message>
        <source>&amp;Not set up</source>
        <translation>&amp;Nicht eingerichtet</translation>
    </message>
    <message>
        <source>A path with &quot;Quillon&quot; in it, such as /opt/Quillon.app</source>
        <translation>Ein Pfad, der „Quillon“ enthält, etwa /opt/Quillon.app</translation>
    </message>
</context>
<context>
    <name>desktop::PreviewWindow</name>
    <message>
        <source>Preview of the Preferences File</source>
        <translation>Vorschau der Einstellungsdatei</translation>
    </message>
    <message>
        <source>The typed place names no file.</source>
        <translation>Der eingegebene Ort bezeichnet keine Datei.</translation>
    </message>
    <message>
        <source>There is no file yet.</source>
        <translation>Es gibt noch keine Datei.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Die Datei kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>In the &amp;file now:</source>
        <translation>&amp;Jetzt in der Datei:</translation>
    </message>
    <message>
        <source>After a &amp;save:</source>
        <translation>Nach dem &amp;Speichern:</translation>
    </message>
    <message>
        <source>- will be dropped   * will be changed   + will be added</source>
        <translation>- entfällt   * wird geändert   + kommt hinzu</translation>
    </message>
    <message>
        <source>The file is not UTF-8 text.</source>
        <translation>Die Datei ist kein UTF-8-Text.</translation>
    </message>
</context>
<context>
    <name>desktop::SearchHits</name>
    <message>
        <source>%1 — %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>%1 — %2: %3</source>
        <translation>%1 – %2: %3</translation>
    </message>
    <message>
        <source>Nothing found for &quot;%1&quot;.</source>
        <translation>Zu „%1“ wurde nichts gefunden.</translation>
    </message>
</context>
<context>
    <name>desktop::SettingsWindow</name>
    <message>
        <source>Quillon Settings</source>
        <translation>Quillon-Einstellungen</translation>
    </message>
    <message>
        <source>The preferences file that Save and Start write. Type another place to save to before the first save.</source>
        <translation>Die Einstellungsdatei, die „Speichern“ und „Starten“ schreiben. Einen anderen Speicherort geben Sie vor dem ersten Speichern ein.</translation>
    </message>
    <message>
        <source>Preferences fi&amp;le:</source>
        <translation>Einste&amp;llungsdatei:</translation>
    </message>
    <message>
        <source>Preferences file</source>
        <translation>Einstellungsdatei</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the preferences file of your home folder to the place named here, if there is none yet.</source>
        <translation>Kopiert die Einstellungsdatei aus Ihrem persönlichen Ordner an den hier angegebenen Ort, falls dort noch keine ist.</translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation>Programme&amp;instellungen&#xa0;…</translation>
    </message>
    <message>
        <source>Where Quillon is, and how this program behaves.</source>
        <translation>Wo sich Quillon befindet und wie sich dieses Programm verhält.</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>S&amp;tarten</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Writes the preferences file.</source>
        <translation>Schreibt die Einstellungsdatei.</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Bee&amp;nden</translation>
    </message>
    <message>
        <source>Ends the program without saving.</source>
        <translation>Beendet das Programm, ohne zu speichern.</translation>
    </message>
    <message>
        <source>Writes the preferences file and starts Quillon.</source>
        <translation>Schreibt die Einstellungsdatei und startet Quillon.</translation>
    </message>
    <message>
        <source>Start is disabled: choose where Quillon is in Edit &gt; Preferences.</source>
        <translation>„Starten“ ist deaktiviert: Wählen Sie unter „Bearbeiten &gt; Programmeinstellungen“, wo sich Quillon befindet.</translation>
    </message>
    <message>
        <source>About Quillon Settings</source>
        <translation>Über Quillon-Einstellungen</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Quillon Settings %1&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Sets up Quillon, an emulator of 68k Macintosh computers, and starts it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Quillon-Einstellungen %1&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Richtet Quillon ein, einen Emulator für 68k-Macintosh-Computer, und startet ihn.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>desktop::UnsavedBar</name>
    <message>
        <source>Lists what is not saved, to look at it or to take it back.</source>
        <translation>Zeigt, was nicht gespeichert ist, zum Ansehen oder Zurücknehmen.</translation>
    </message>
    <message>
        <source>1 unsaved change</source>
        <translation>1 nicht gespeicherte Änderung</translation>
    </message>
    <message>
        <source>%1 unsaved changes</source>
        <translation>%1 nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Gespeichert um %1</translation>
    </message>
    <message>
        <source>Quillon was started %1</source>
        <translation>Quillon wurde um %1 gestartet</translation>
    </message>
    <message>
        <source>Quillon was not started: it could not be executed</source>
        <translation>Quillon wurde nicht gestartet: Es konnte nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>The file was not saved</source>
        <translation>Die Datei wurde nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>desktop::VolumeMenu</name>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Im Or&amp;dner anzeigen</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>Pfad &amp;kopieren</translation>
    </message>
</context>
<context>
    <name>desktop::VolumeModel</name>
    <message>
        <source>This file is missing.</source>
        <translation>Diese Datei fehlt.</translation>
    </message>
    <message>
        <source>This file cannot be reached: %1</source>
        <translation>Diese Datei ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>1 disk image</source>
        <translation>1 Disk-Image</translation>
    </message>
    <message numerus="yes">
        <source>%n disk images</source>
        <translation>
            <numerusform>%n Disk-Image</numerusform>
            <numerusform>%n Disk-Images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>%n fehlt</numerusform>
            <numerusform>%n fehlen</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of &quot;12 disk images, 1.3 GB, 2 missing&quot;</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n not reachable</source>
        <translation>
            <numerusform>%n nicht erreichbar</numerusform>
            <numerusform>%n nicht erreichbar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>desktop::VolumeView</name>
    <message numerus="yes">
        <source>%n disk images</source>
        <translation>
            <numerusform>%n Disk-Image</numerusform>
            <numerusform>%n Disk-Images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>desktop::VolumesList</name>
    <message>
        <source>Disk images</source>
        <translation>Disk-Images</translation>
    </message>
    <message>
        <source>The disk images of the Macintosh, in their order.</source>
        <translation>Die Disk-Images des Macintosh in ihrer Reihenfolge.</translation>
    </message>
    <message>
        <source>Disk i&amp;mages:</source>
        <translation>Disk-I&amp;mages:</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>Hin&amp;zufügen&#xa0;…</translation>
    </message>
    <message>
        <source>Adds disk images to the list.</source>
        <translation>Fügt der Liste Disk-Images hinzu.</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>Takes the selected disk image off the list. The file stays.</source>
        <translation>Nimmt die ausgewählten Disk-Images aus der Liste. Die Dateien bleiben erhalten.</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Moves the selected disk images one place up (%1).</source>
        <translation>Schiebt die ausgewählten Disk-Images einen Platz nach oben (%1).</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach unt&amp;en</translation>
    </message>
    <message>
        <source>Moves the selected disk images one place down (%1).</source>
        <translation>Schiebt die ausgewählten Disk-Images einen Platz nach unten (%1).</translation>
    </message>
    <message>
        <source>New &amp;Blank Image…</source>
        <translation>Ne&amp;ues leeres Disk-Image&#xa0;…</translation>
    </message>
    <message>
        <source>Makes an empty disk image. It is not added to the list.</source>
        <translation>Legt ein leeres Disk-Image an. Es wird nicht in die Liste aufgenommen.</translation>
    </message>
</context>
</TS>
