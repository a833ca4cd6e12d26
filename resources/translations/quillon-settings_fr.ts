<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Checks</name>
    <message>
        <source>The disk image &quot;%1&quot; is missing.</source>
        <translation>L’image disque «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are missing: %3.</source>
        <translation>%1 images disque sur %2 sont introuvables&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; cannot be reached.</source>
        <translation>L’image disque «&#xa0;%1&#xa0;» est inaccessible.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images cannot be reached: %3.</source>
        <translation>%1 images disque sur %2 sont inaccessibles&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; is a folder.</source>
        <translation>L’image disque «&#xa0;%1&#xa0;» est un dossier.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are folders: %3.</source>
        <translation>%1 images disque sur %2 sont des dossiers&#xa0;: %3.</translation>
    </message>
    <message>
        <source>There is no permission to read the disk image &quot;%1&quot;.</source>
        <translation>Vous n’avez pas le droit de lire l’image disque «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is no permission to read %1 of %2 disk images: %3.</source>
        <translation>Vous n’avez pas le droit de lire %1 images disque sur %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; is empty.</source>
        <translation>L’image disque «&#xa0;%1&#xa0;» est vide.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are empty: %3.</source>
        <translation>%1 images disque sur %2 sont vides&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; cannot be written to.</source>
        <translation>Il est impossible d’écrire dans l’image disque «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>%1 of %2 disk images cannot be written to: %3.</source>
        <translation>Il est impossible d’écrire dans %1 images disque sur %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>There is no disk image in the list.</source>
        <translation>La liste ne contient aucune image disque.</translation>
    </message>
    <message>
        <source>%1 disk images are one and the same file, which two writers would damage: %2.</source>
        <translation>%1 images disque sont un seul et même fichier, qu’une double écriture endommagerait&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Start is disabled: choose where Quillon is in Edit &gt; Preferences.</source>
        <translation>«&#xa0;Démarrer&#xa0;» est désactivé&#xa0;: indiquez l’emplacement de Quillon dans «&#xa0;Édition &gt; Préférences&#xa0;».</translation>
    </message>
    <message>
        <source>Quillon is set to be nowhere: choose where it is in Edit &gt; Preferences.</source>
        <translation>Aucun emplacement n’est défini pour Quillon&#xa0;: indiquez-le dans «&#xa0;Édition &gt; Préférences&#xa0;».</translation>
    </message>
    <message>
        <source>Quillon cannot be reached at &quot;%1&quot;: %2.</source>
        <translation>Quillon est inaccessible à l’emplacement «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Quillon is not at &quot;%1&quot;: nothing is there.</source>
        <translation>Quillon ne se trouve pas à l’emplacement «&#xa0;%1&#xa0;»&#xa0;: il n’y a rien à cet endroit.</translation>
    </message>
    <message>
        <source>Quillon is not at &quot;%1&quot;: what is there holds no program.</source>
        <translation>Quillon ne se trouve pas à l’emplacement «&#xa0;%1&#xa0;»&#xa0;: ce qui s’y trouve ne contient aucun programme.</translation>
    </message>
    <message>
        <source>No ROM file is chosen.</source>
        <translation>Aucun fichier ROM n’est choisi.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is missing.</source>
        <translation>Le fichier ROM «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; cannot be reached: %2.</source>
        <translation>Le fichier ROM «&#xa0;%1&#xa0;» est inaccessible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is a folder.</source>
        <translation>Le fichier ROM «&#xa0;%1&#xa0;» est un dossier.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is a device and no file.</source>
        <translation>Le fichier ROM «&#xa0;%1&#xa0;» est un périphérique et non un fichier.</translation>
    </message>
    <message>
        <source>There is no permission to read the ROM file &quot;%1&quot;.</source>
        <translation>Vous n’avez pas le droit de lire le fichier ROM «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is %2 bytes large and most likely no ROM: those are 64, 128, 256 or 512 KB, 1, 2 or 4 MB large.</source>
        <translation>Le fichier ROM «&#xa0;%1&#xa0;» fait %2 octets et n’est très probablement pas une ROM&#xa0;: celles-ci font 64, 128, 256 ou 512 ko, 1, 2 ou 4 Mo.</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; cannot be reached: %2.</source>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» est inaccessible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is missing.</source>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is no folder.</source>
        <translation>Le dossier partagé «&#xa0;%1&#xa0;» n’est pas un dossier.</translation>
    </message>
    <message>
        <source>Raw key codes are on, and their file &quot;%1&quot; is missing.</source>
        <translation>Les codes de touche bruts sont activés, mais leur fichier «&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>Raw key codes are on, and no file is chosen for them.</source>
        <translation>Les codes de touche bruts sont activés, mais aucun fichier n’est choisi pour eux.</translation>
    </message>
    <message>
        <source>The preferences file could not be read: %1. What you see are the defaults, and saving puts them in the place of what is in the file.</source>
        <translation>Le fichier de préférences n’a pas pu être lu&#xa0;: %1. Vous voyez les valeurs par défaut&#xa0;; si vous enregistrez, elles remplaceront le contenu du fichier.</translation>
    </message>
    <message>
        <source>The place of the preferences file names no file: no save can succeed.</source>
        <translation>L’emplacement du fichier de préférences ne désigne aucun fichier&#xa0;: l’enregistrement ne peut pas réussir.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; could not be saved: %2.</source>
        <translation>Le fichier de préférences «&#xa0;%1&#xa0;» n’a pas pu être enregistré&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; cannot be written: a save will fail.</source>
        <translation>Il est impossible d’écrire le fichier de préférences «&#xa0;%1&#xa0;»&#xa0;: l’enregistrement échouera.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; exists and has not been read. A save replaces what is in it.</source>
        <translation>Le fichier de préférences «&#xa0;%1&#xa0;» existe et n’a pas été lu. Un enregistrement remplace son contenu.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; has been removed by another program. A save makes it anew.</source>
        <translation>Le fichier de préférences «&#xa0;%1&#xa0;» a été supprimé par un autre programme. Un enregistrement le recrée.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; has been changed by another program. A save undoes that.</source>
        <translation>Le fichier de préférences «&#xa0;%1&#xa0;» a été modifié par un autre programme. Un enregistrement annule cette modification.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that this program knows. It shows &quot;%2&quot;, and a save keeps the line as it is.</source>
        <translation>«&#xa0;%1&#xa0;» est inconnu de ce programme. Il affiche «&#xa0;%2&#xa0;», et un enregistrement conserve la ligne telle quelle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the file is nothing that this program knows. It shows &quot;%2&quot;, and a save writes &quot;%3&quot;.</source>
        <translation>«&#xa0;%1&#xa0;» dans le fichier est inconnu de ce programme. Il affiche «&#xa0;%2&#xa0;», et un enregistrement écrit «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; comes from a line that does not begin with &quot;%2&quot;: &quot;%3&quot;.</source>
        <translation>La valeur «&#xa0;%1&#xa0;» provient d’une ligne qui ne commence pas par «&#xa0;%2&#xa0;»&#xa0;: «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>After a save the value of &quot;%1&quot; would be read from another line: &quot;%2&quot;.</source>
        <translation>Après un enregistrement, la valeur de «&#xa0;%1&#xa0;» serait lue dans une autre ligne&#xa0;: «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Disk image</source>
        <translation>Image disque</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>A folder of this computer that appears as a disk inside the emulated Macintosh.</source>
        <translation>Un dossier de cet ordinateur qui apparaît comme un disque dans le Macintosh émulé.</translation>
    </message>
    <message>
        <source>as a path</source>
        <translation>sous forme de chemin</translation>
    </message>
    <message>
        <source>Whether the Macintosh screen is shown in a window or fills the screen, and how large it is. &quot;Maximum&quot; takes all the room there is.</source>
        <translation>Indique si l’écran du Macintosh s’affiche dans une fenêtre ou en plein écran, et quelle est sa taille. «&#xa0;Maximum&#xa0;» occupe toute la place disponible.</translation>
    </message>
    <message>
        <source>as type/width/height, in pixels, 0 for the maximum</source>
        <translation>sous la forme type/largeur/hauteur, en pixels, 0 pour le maximum</translation>
    </message>
    <message>
        <source>The device or program that the modem port is connected to. Leave it empty for none.</source>
        <translation>Le périphérique ou le programme auquel le port modem est relié. Laissez vide pour aucun.</translation>
    </message>
    <message>
        <source>The device or program that the printer port is connected to. Leave it empty for none.</source>
        <translation>Le périphérique ou le programme auquel le port imprimante est relié. Laissez vide pour aucun.</translation>
    </message>
    <message>
        <source>How the Macintosh reaches the network: &quot;slirp&quot; needs no set-up, or the name of a network device.</source>
        <translation>Comment le Macintosh accède au réseau&#xa0;: par «&#xa0;slirp&#xa0;», qui ne demande aucune configuration, ou par le périphérique réseau nommé ici.</translation>
    </message>
    <message>
        <source>Sends network packets to other emulators on the local network through UDP.</source>
        <translation>Envoie par UDP des paquets réseau aux autres émulateurs du réseau local.</translation>
    </message>
    <message>
        <source>as true or false</source>
        <translation>sous la forme true ou false</translation>
    </message>
    <message>
        <source>The UDP port of the tunnel. All emulators that are to meet need the same.</source>
        <translation>Le port UDP du tunnel. Tous les émulateurs qui doivent se rejoindre ont besoin du même.</translation>
    </message>
    <message>
        <source>as a number from 1 to 65535</source>
        <translation>sous forme de nombre de 1 à 65535</translation>
    </message>
    <message>
        <source>The file with the ROM of a Macintosh. The emulator cannot start without it.</source>
        <translation>Le fichier contenant la ROM d’un Macintosh. L’émulateur ne peut pas démarrer sans lui.</translation>
    </message>
    <message>
        <source>The drive that the Macintosh tries to start from.</source>
        <translation>Le lecteur à partir duquel le Macintosh essaie de démarrer.</translation>
    </message>
    <message>
        <source>as 0 for any drive, or 1</source>
        <translation>0 pour n’importe quel lecteur, ou 1</translation>
    </message>
    <message>
        <source>The memory of the Macintosh in megabytes. Old systems may not start with very much of it.</source>
        <translation>La mémoire du Macintosh en mégaoctets. Les anciens systèmes risquent de ne pas démarrer avec une très grande mémoire.</translation>
    </message>
    <message>
        <source>in bytes</source>
        <translation>en octets</translation>
    </message>
    <message>
        <source>How often the Macintosh screen is drawn. Lower rates leave more time for the processor.</source>
        <translation>La fréquence à laquelle l’écran du Macintosh est dessiné. Une fréquence plus basse laisse plus de temps au processeur.</translation>
    </message>
    <message>
        <source>as frames per drawing, 0 for dynamic</source>
        <translation>en nombre d’images par affichage, 0 pour dynamique</translation>
    </message>
    <message>
        <source>The model that the Macintosh says it is. Mac OS 8 needs the Quadra.</source>
        <translation>Le modèle que le Macintosh prétend être. Mac OS 8 exige le Quadra.</translation>
    </message>
    <message>
        <source>as a model number</source>
        <translation>sous forme de numéro de modèle</translation>
    </message>
    <message>
        <source>The processor of the Macintosh, with or without floating-point unit.</source>
        <translation>Le processeur du Macintosh, avec ou sans unité de calcul en virgule flottante.</translation>
    </message>
    <message>
        <source>as the x of 680x0, together with &quot;fpu&quot; as true or false</source>
        <translation>le x de 680x0, avec «&#xa0;fpu&#xa0;» à true ou false</translation>
    </message>
    <message>
        <source>Whether the processor has a floating-point unit.</source>
        <translation>Indique si le processeur a une unité de calcul en virgule flottante.</translation>
    </message>
    <message>
        <source>Takes the CD-ROM drive out of the Macintosh.</source>
        <translation>Retire le lecteur de CD-ROM du Macintosh.</translation>
    </message>
    <message>
        <source>Keeps the Macintosh silent.</source>
        <translation>Rend le Macintosh silencieux.</translation>
    </message>
    <message>
        <source>Translates the Macintosh&apos;s programs for this computer&apos;s processor as they run. Much faster; needs a 68020 or later.</source>
        <translation>Traduit les programmes du Macintosh pour le processeur de cet ordinateur pendant leur exécution. Beaucoup plus rapide&#xa0;; exige au moins un 68020.</translation>
    </message>
    <message>
        <source>Translates floating-point instructions, too. Faster, a little less exact.</source>
        <translation>Traduit aussi les instructions à virgule flottante. Plus rapide, un peu moins exact.</translation>
    </message>
    <message>
        <source>The memory for translated programs.</source>
        <translation>La mémoire réservée aux programmes traduits.</translation>
    </message>
    <message>
        <source>in KB</source>
        <translation>en ko</translation>
    </message>
    <message>
        <source>Throws translated programs away only when they are really no longer valid. Faster.</source>
        <translation>N’efface les programmes traduits que lorsqu’ils ne sont vraiment plus valables. Plus rapide.</translation>
    </message>
    <message>
        <source>Translates across jumps that always lead to the same place. Faster.</source>
        <translation>Traduit au-delà des sauts qui mènent toujours au même endroit. Plus rapide.</translation>
    </message>
    <message>
        <source>Tells keys apart by their place on the keyboard, through a table in a file, and not by their letter.</source>
        <translation>Distingue les touches par leur place sur le clavier, à l’aide d’une table dans un fichier, et non par leur lettre.</translation>
    </message>
    <message>
        <source>The file with the table of key codes. Used only with raw key codes.</source>
        <translation>Le fichier contenant la table des codes de touche. Il ne sert qu’avec les codes de touche bruts.</translation>
    </message>
    <message>
        <source>Which keys a turn of the mouse wheel presses inside the Macintosh.</source>
        <translation>Les touches qu’un tour de molette de la souris actionne dans le Macintosh.</translation>
    </message>
    <message>
        <source>as 0 for pages, 1 for the cursor</source>
        <translation>0 pour les pages, 1 pour le curseur</translation>
    </message>
    <message>
        <source>How many lines one step of the mouse wheel scrolls.</source>
        <translation>Le nombre de lignes que fait défiler un cran de la molette.</translation>
    </message>
    <message>
        <source>as a number</source>
        <translation>sous forme de nombre</translation>
    </message>
    <message>
        <source>The device that sound goes to. Leave it empty for the usual one.</source>
        <translation>Le périphérique sur lequel le son est émis. Laissez vide pour le périphérique habituel.</translation>
    </message>
    <message>
        <source>The device that sets the loudness. Leave it empty for the usual one.</source>
        <translation>Le périphérique qui règle le volume sonore. Laissez vide pour le périphérique habituel.</translation>
    </message>
    <message>
        <source>Lets the Macintosh go on when a program reaches for memory that is not there.</source>
        <translation>Laisse le Macintosh continuer quand un programme accède à une mémoire inexistante.</translation>
    </message>
    <message>
        <source>Rests while the Macintosh has nothing to do and saves this computer&apos;s energy.</source>
        <translation>Se met en veille tant que le Macintosh n’a rien à faire et économise l’énergie de cet ordinateur.</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>ce n’est pas du texte UTF-8</translation>
    </message>
</context>
<context>
    <name>Items</name>
    <message>
        <source>Dynamic</source>
        <translation>Dynamique</translation>
    </message>
    <message>
        <source>7.5 Hz</source>
        <translation>7,5 Hz</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Page up / page down</source>
        <translation>Page précédente / suivante</translation>
    </message>
    <message>
        <source>Cursor up / down</source>
        <translation>Curseur haut / bas</translation>
    </message>
    <message>
        <source>Any drive</source>
        <translation>N’importe quel lecteur</translation>
    </message>
    <message>
        <source>Drive 1</source>
        <translation>Lecteur 1</translation>
    </message>
    <message>
        <source>68020 with FPU</source>
        <translation>68020 avec FPU</translation>
    </message>
    <message>
        <source>68030 with FPU</source>
        <translation>68030 avec FPU</translation>
    </message>
    <message>
        <source> (from the file)</source>
        <translation> (du fichier)</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>Volumes</translation>
    </message>
    <message>
        <source>SCSI</source>
        <translation>SCSI</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Sound &amp; Input</source>
        <translation>Son et entrées</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>JIT</source>
        <translation>JIT</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>Kinds</name>
    <message>
        <source>Disk Image</source>
        <translation>Image disque</translation>
    </message>
    <message>
        <source>Not Found!</source>
        <translation>Introuvable&#xa0;!</translation>
    </message>
    <message>
        <source>No Path!</source>
        <translation>Pas de chemin&#xa0;!</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Choose the Key Code File</source>
        <translation>Choisir le fichier des codes de touche</translation>
    </message>
    <message>
        <source>Choose the ROM File</source>
        <translation>Choisir le fichier ROM</translation>
    </message>
    <message>
        <source>Choose a Folder for New Images</source>
        <translation>Choisir un dossier pour les nouvelles images disque</translation>
    </message>
    <message>
        <source>Choose Unix Root Folder</source>
        <translation>Choisir le dossier partagé</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Choisir des images disque</translation>
    </message>
    <message>
        <source>Create a new blank volume</source>
        <translation>Nouvelle image disque vierge</translation>
    </message>
    <message>
        <source>Create a new blank unformatted disk image</source>
        <translation>Créer une image disque vierge non formatée</translation>
    </message>
    <message>
        <source>Choose Quillon</source>
        <translation>Choisir Quillon</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>exchange files, host folder, share</source>
        <translation>échange de fichiers, dossier hôte, partage</translation>
    </message>
    <message>
        <source>resolution, fullscreen, window size, monitor, pixels</source>
        <translation>résolution, plein écran, taille de la fenêtre, moniteur, pixels</translation>
    </message>
    <message>
        <source>serial port, terminal</source>
        <translation>port série, terminal</translation>
    </message>
    <message>
        <source>serial port, printing</source>
        <translation>port série, impression, imprimer</translation>
    </message>
    <message>
        <source>internet, Ethernet, web, TCP/IP</source>
        <translation>internet, Ethernet, web, TCP/IP</translation>
    </message>
    <message>
        <source>internet, AppleTalk, local network</source>
        <translation>internet, AppleTalk, réseau local</translation>
    </message>
    <message>
        <source>firmware, BIOS</source>
        <translation>micrologiciel, firmware, BIOS</translation>
    </message>
    <message>
        <source>startup disk, boot order, boot disk</source>
        <translation>disque de démarrage, ordre de démarrage, amorçage</translation>
    </message>
    <message>
        <source>memory, megabytes</source>
        <translation>mémoire, mégaoctets</translation>
    </message>
    <message>
        <source>frames per second, FPS, speed, frame skip</source>
        <translation>images par seconde, FPS, vitesse, saut d’images</translation>
    </message>
    <message>
        <source>computer, machine type, Gestalt</source>
        <translation>ordinateur, type de machine, Gestalt</translation>
    </message>
    <message>
        <source>CPU, FPU, coprocessor, Motorola</source>
        <translation>CPU, FPU, coprocesseur, Motorola</translation>
    </message>
    <message>
        <source>optical drive, CD, disc</source>
        <translation>lecteur optique, CD, disque</translation>
    </message>
    <message>
        <source>audio, mute, volume, speaker</source>
        <translation>audio, muet, volume, haut-parleur</translation>
    </message>
    <message>
        <source>speed, fast, dynamic translation, recompiler</source>
        <translation>vitesse, rapide, traduction dynamique, recompilateur</translation>
    </message>
    <message>
        <source>floating point, speed</source>
        <translation>virgule flottante, vitesse</translation>
    </message>
    <message>
        <source>memory, speed</source>
        <translation>mémoire, vitesse</translation>
    </message>
    <message>
        <source>keyboard layout, keymap</source>
        <translation>disposition du clavier, clavier</translation>
    </message>
    <message>
        <source>scroll wheel, scrolling</source>
        <translation>molette, défilement</translation>
    </message>
    <message>
        <source>scroll wheel, scrolling speed</source>
        <translation>molette, vitesse de défilement</translation>
    </message>
    <message>
        <source>audio device, sound card</source>
        <translation>périphérique audio, carte son</translation>
    </message>
    <message>
        <source>audio device, sound card, loudness</source>
        <translation>périphérique audio, carte son, volume</translation>
    </message>
    <message>
        <source>crash, memory errors</source>
        <translation>plantage, erreurs de mémoire</translation>
    </message>
    <message>
        <source>battery, power, fan, processor load</source>
        <translation>batterie, énergie, ventilateur, charge du processeur</translation>
    </message>
    <message>
        <source>hard disk, hard drive, floppy, diskette, volume</source>
        <translation>disque dur, lecteur, disquette, volume</translation>
    </message>
</context>
<context>
    <name>SearchPlaces</name>
    <message>
        <source>%1 (turn on &quot;%2&quot; first)</source>
        <translation>%1 (activez d’abord «&#xa0;%2&#xa0;»)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is disabled. Turn on &quot;%2&quot; first.</source>
        <translation>«&#xa0;%1&#xa0;» est désactivé. Activez d’abord «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>Images disque</translation>
    </message>
    <message>
        <source>SCSI ID 0</source>
        <translation>ID SCSI 0</translation>
    </message>
    <message>
        <source>Where Quillon is</source>
        <translation>Emplacement de Quillon</translation>
    </message>
    <message>
        <source>location, path, emulator, Quillon.app</source>
        <translation>emplacement, chemin, émulateur, Quillon.app</translation>
    </message>
    <message>
        <source>Quit after Start</source>
        <translation>Quitter après le démarrage</translation>
    </message>
    <message>
        <source>exit, close, end</source>
        <translation>quitter, fermer, fin</translation>
    </message>
    <message>
        <source>Show the SCSI tab</source>
        <translation>Afficher l’onglet SCSI</translation>
    </message>
    <message>
        <source>bus, devices</source>
        <translation>bus, périphériques</translation>
    </message>
    <message>
        <source>Preferences window</source>
        <translation>Fenêtre des préférences</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Screen &amp;mode</source>
        <translation>M&amp;ode d’écran</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>Hei&amp;ght</source>
        <translation>&amp;Hauteur</translation>
    </message>
    <message>
        <source>Shared fol&amp;der</source>
        <translation>D&amp;ossier partagé</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>&amp;Modem port</source>
        <translation>P&amp;ort modem</translation>
    </message>
    <message>
        <source>P&amp;rinter port</source>
        <translation>Port &amp;imprimante</translation>
    </message>
    <message>
        <source>Network &amp;device</source>
        <translation>Périphérique &amp;réseau</translation>
    </message>
    <message>
        <source>Tunnel the net&amp;work over UDP</source>
        <translation>&amp;Tunneliser le réseau via UDP</translation>
    </message>
    <message>
        <source>&amp;UDP port</source>
        <translation>Port &amp;UDP</translation>
    </message>
    <message>
        <source>&amp;ROM file</source>
        <translation>Fichier &amp;ROM</translation>
    </message>
    <message>
        <source>&amp;Boot drive</source>
        <translation>Lecteur de démarra&amp;ge</translation>
    </message>
    <message>
        <source>Boot driver</source>
        <translation>Pilote de démarrage</translation>
    </message>
    <message>
        <source>RA&amp;M size (MB)</source>
        <translation>&amp;Taille de la RAM (Mo)</translation>
    </message>
    <message>
        <source>Refresh r&amp;ate</source>
        <translation>Fréquence de rafraîchissemen&amp;t</translation>
    </message>
    <message>
        <source>M&amp;odel</source>
        <translation>Modè&amp;le</translation>
    </message>
    <message>
        <source>Processor (CP&amp;U)</source>
        <translation>Processe&amp;ur (CPU)</translation>
    </message>
    <message>
        <source>Floating-point unit (FPU)</source>
        <translation>Unité de calcul en virgule flottante (FPU)</translation>
    </message>
    <message>
        <source>&amp;Disable the CD-ROM drive</source>
        <translation>Désacti&amp;ver le lecteur de CD-ROM</translation>
    </message>
    <message>
        <source>&amp;Disable sound</source>
        <translation>Désacti&amp;ver le son</translation>
    </message>
    <message>
        <source>Leave the clipboard unconverted</source>
        <translation>Ne pas convertir le presse-papiers</translation>
    </message>
    <message>
        <source>No windows of its own</source>
        <translation>Pas de fenêtres propres</translation>
    </message>
    <message>
        <source>Enable the &amp;JIT compiler</source>
        <translation>Activer le compilateur &amp;JIT</translation>
    </message>
    <message>
        <source>Compile floating-point instr&amp;uctions</source>
        <translation>Compiler les instructions à &amp;virgule flottante</translation>
    </message>
    <message>
        <source>Debug the JIT compiler</source>
        <translation>Déboguer le compilateur JIT</translation>
    </message>
    <message>
        <source>Cache si&amp;ze (KB)</source>
        <translation>&amp;Taille du cache (ko)</translation>
    </message>
    <message>
        <source>Flush the cache lazil&amp;y</source>
        <translation>V&amp;ider le cache tardivement</translation>
    </message>
    <message>
        <source>Inline &amp;blocks</source>
        <translation>Intégrer les b&amp;locs</translation>
    </message>
    <message>
        <source>Keyboard type</source>
        <translation>Type de clavier</translation>
    </message>
    <message>
        <source>Use raw &amp;key codes</source>
        <translation>&amp;Utiliser les codes de touche bruts</translation>
    </message>
    <message>
        <source>Ke&amp;y code file</source>
        <translation>Fichier des codes de &amp;touche</translation>
    </message>
    <message>
        <source>Mouse &amp;wheel</source>
        <translation>Mo&amp;lette de la souris</translation>
    </message>
    <message>
        <source>L&amp;ines to scroll</source>
        <translation>Li&amp;gnes à faire défiler</translation>
    </message>
    <message>
        <source>&amp;Output device</source>
        <translation>Périphérique de s&amp;ortie</translation>
    </message>
    <message>
        <source>&amp;Mixer device</source>
        <translation>Périphérique de mi&amp;xage</translation>
    </message>
    <message>
        <source>Ignore &amp;memory faults</source>
        <translation>I&amp;gnorer les erreurs de mémoire</translation>
    </message>
    <message>
        <source>Rest while the Macintosh is &amp;idle</source>
        <translation>Rep&amp;os quand le Macintosh est inactif</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message>
        <source>Zero KB</source>
        <translation>Zéro ko</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>octet</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>To</translation>
    </message>
</context>
<context>
    <name>desktop</name>
    <message>
        <source>Problem: %1</source>
        <translation>Problème&#xa0;: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Avertissement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Remarque&#xa0;: %1</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Activité</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>Images disque</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Chooses the shared folder.</source>
        <translation>Choisit le dossier partagé.</translation>
    </message>
    <message>
        <source>SCSI &amp;ID 0</source>
        <translation>&amp;ID SCSI 0</translation>
    </message>
    <message>
        <source>A mark for yourself while the window is open. It is not saved.</source>
        <translation>Un repère pour vous-même tant que la fenêtre est ouverte. Il n’est pas enregistré.</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>Parc&amp;ourir…</translation>
    </message>
    <message>
        <source>Chooses the ROM file.</source>
        <translation>Choisit le fichier ROM.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>Pa&amp;rcourir…</translation>
    </message>
    <message>
        <source>Chooses the key code file.</source>
        <translation>Choisit le fichier des codes de touche.</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Souris</translation>
    </message>
    <message>
        <source>Just-in-time compiler</source>
        <translation>Compilateur à la volée</translation>
    </message>
    <message>
        <source>Processor emulation</source>
        <translation>Émulation du processeur</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>%1, %2 × %3</source>
        <translation>%1, %2 × %3</translation>
    </message>
    <message>
        <source>Reset to Default (empty)</source>
        <translation>Rétablir la valeur par défaut (vide)</translation>
    </message>
    <message>
        <source>Reset to Default (%1)</source>
        <translation>Rétablir la valeur par défaut (%1)</translation>
    </message>
    <message>
        <source>If unsure, leave it empty.</source>
        <translation>Dans le doute, laissez vide.</translation>
    </message>
    <message>
        <source>Until you choose one it says &quot;%1&quot;.</source>
        <translation>Tant que vous ne choisissez rien, «&#xa0;%1&#xa0;» est affiché.</translation>
    </message>
    <message>
        <source>If unsure, leave it at &quot;%1&quot;.</source>
        <translation>Dans le doute, laissez «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;.</source>
        <translation>Dans le fichier&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;, %2.</source>
        <translation>Dans le fichier&#xa0;: «&#xa0;%1&#xa0;», %2.</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>Modifié.</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>Différent de la valeur par défaut.</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation>Ports série</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>desktop::AgreementSheet</name>
    <message>
        <source>Beta Agreement</source>
        <translation>Accord bêta</translation>
    </message>
    <message>
        <source>&lt;p&gt;This program is a beta version. It changes three things on this computer:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Quillon&apos;s preferences file, when you press Save, Start or Copy, and once when there is none yet;&lt;/li&gt;&lt;li&gt;its own settings, when you press Done in its preferences;&lt;/li&gt;&lt;li&gt;the disk images that you ask it to make.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Keep a copy of what you cannot do without. Disagree ends the program at once, without saving.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Ce programme est une version bêta. Il modifie trois choses sur cet ordinateur&#xa0;:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;le fichier de préférences de Quillon, quand vous cliquez sur «&#xa0;Enregistrer&#xa0;», «&#xa0;Démarrer&#xa0;» ou «&#xa0;Copier&#xa0;», et une fois quand il n’y en a pas encore&#xa0;;&lt;/li&gt;&lt;li&gt;ses propres réglages, quand vous cliquez sur «&#xa0;Terminé&#xa0;» dans ses préférences&#xa0;;&lt;/li&gt;&lt;li&gt;les images disque que vous lui demandez de créer.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Gardez une copie de ce dont vous ne pouvez vous passer. «&#xa0;Refuser&#xa0;» quitte le programme immédiatement, sans enregistrer.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Disagree</source>
        <translation>&amp;Refuser</translation>
    </message>
    <message>
        <source>Ends the program at once, without saving.</source>
        <translation>Quitte le programme immédiatement, sans enregistrer.</translation>
    </message>
    <message>
        <source>&amp;Agree</source>
        <translation>&amp;Accepter</translation>
    </message>
    <message>
        <source>Closes this sheet.</source>
        <translation>Ferme cette fenêtre.</translation>
    </message>
</context>
<context>
    <name>desktop::ChangesList</name>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>ajoutées&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>retirées&#xa0;: %1</translation>
    </message>
    <message>
        <source>in another order</source>
        <translation>dans un autre ordre</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Put &amp;All Back</source>
        <translation>&amp;Tout rétablir</translation>
    </message>
    <message>
        <source>Takes back everything that is not saved.</source>
        <translation>Annule tout ce qui n’est pas enregistré.</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>Images disque</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Put back %1</source>
        <translation>Rétablir %1</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksLine</name>
    <message>
        <source>Checking the files…</source>
        <translation>Vérification des fichiers…</translation>
    </message>
    <message>
        <source>What keeps Quillon from starting, and what else deserves a look. Press it to see all of it.</source>
        <translation>Ce qui empêche Quillon de démarrer, et ce qui mérite aussi votre attention. Cliquez pour tout voir.</translation>
    </message>
    <message>
        <source>Ready to start.</source>
        <translation>Prêt à démarrer.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Et %1 de plus.</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksList</name>
    <message>
        <source>What to Look At Before Starting</source>
        <translation>À vérifier avant de démarrer</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksView</name>
    <message>
        <source>%1, with something to look at</source>
        <translation>%1, avec quelque chose à vérifier</translation>
    </message>
</context>
<context>
    <name>desktop::CreateSheet</name>
    <message>
        <source>New Blank Image</source>
        <translation>Nouvelle image disque vierge</translation>
    </message>
    <message>
        <source>The size in megabytes. 100 if this is no whole number.</source>
        <translation>La taille en mégaoctets. 100 si ce n’est pas un nombre entier.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Size in megabytes</source>
        <translation>Taille en mégaoctets</translation>
    </message>
    <message>
        <source>&amp;Size (MB):</source>
        <translation>&amp;Taille (Mo)&#xa0;:</translation>
    </message>
    <message>
        <source>Makes the image, and then closes this sheet.</source>
        <translation>Crée l’image disque, puis ferme cette fenêtre.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Chooses the folder for this and later images, until you quit.</source>
        <translation>Choisit le dossier pour cette image disque et les suivantes, jusqu’à ce que vous quittiez.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Please choose another one.</source>
        <translation>Vous ne pouvez pas écrire dans ce dossier. Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>Images go here because you cannot write to the folder of this program, &quot;%1&quot;.</source>
        <translation>Les images disque sont placées ici parce que vous ne pouvez pas écrire dans le dossier de ce programme, «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Espace libre&#xa0;: %1</translation>
    </message>
    <message>
        <source>Only moves the indicator; making an image does not.</source>
        <translation>Anime seulement l’indicateur&#xa0;; la création d’une image disque ne le fait pas.</translation>
    </message>
    <message>
        <source>&amp;Animate</source>
        <translation>&amp;Animer</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>A&amp;rrêter</translation>
    </message>
    <message>
        <source>The name of the disk image, without &quot;.dsk&quot;.</source>
        <translation>Le nom de l’image disque, sans «&#xa0;.dsk&#xa0;».</translation>
    </message>
    <message>
        <source>Add to the L&amp;ist…</source>
        <translation>Aj&amp;outer à la liste…</translation>
    </message>
    <message>
        <source>Closes this sheet and opens Add… at the new disk image.</source>
        <translation>Ferme cette fenêtre et ouvre «&#xa0;Ajouter…&#xa0;» sur la nouvelle image disque.</translation>
    </message>
    <message>
        <source>The folder that the disk image goes to.</source>
        <translation>Le dossier dans lequel l’image disque est placée.</translation>
    </message>
</context>
<context>
    <name>desktop::DiagnosticsWindow</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnostic</translation>
    </message>
    <message>
        <source>For finding faults in this program. None of it is saved.</source>
        <translation>Pour chercher les défauts de ce programme. Rien n’en est enregistré.</translation>
    </message>
    <message>
        <source>Read the local l&amp;ist</source>
        <translation>&amp;Lire la liste locale</translation>
    </message>
    <message>
        <source>The table of disk images shows the second of two equal lists. You see no difference.</source>
        <translation>Le tableau des images disque affiche la seconde de deux listes égales. Vous ne voyez aucune différence.</translation>
    </message>
    <message>
        <source>Tr&amp;y the save panel…</source>
        <translation>&amp;Essayer la fenêtre d’enregistrement…</translation>
    </message>
    <message>
        <source>Shows a panel and writes the chosen place to standard output. Nothing is made.</source>
        <translation>Affiche une fenêtre et écrit l’emplacement choisi sur la sortie standard. Rien n’est créé.</translation>
    </message>
</context>
<context>
    <name>desktop::EmptyHint</name>
    <message>
        <source>No disk images yet.</source>
        <translation>Aucune image disque pour l’instant.</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Ajouter…</translation>
    </message>
    <message>
        <source>Adds disk images to the list (the key Insert does so, too).</source>
        <translation>Ajoute des images disque à la liste (comme la touche Inser).</translation>
    </message>
    <message>
        <source>New Blank Image…</source>
        <translation>Nouvelle image disque vierge…</translation>
    </message>
    <message>
        <source>Makes an empty disk image.</source>
        <translation>Crée une image disque vide.</translation>
    </message>
</context>
<context>
    <name>desktop::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>Rechercher un réglage (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Rechercher un réglage</translation>
    </message>
    <message>
        <source>Type words of a setting, of a choice that it offers, or of a disk image.</source>
        <translation>Saisissez des mots d’un réglage, d’un de ses choix ou d’une image disque.</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Résultats</translation>
    </message>
</context>
<context>
    <name>desktop::HelpPane</name>
    <message>
        <source>Move to a setting to read here what it does.</source>
        <translation>Allez sur un réglage pour lire ici ce qu’il fait.</translation>
    </message>
    <message>
        <source>In the file: %1</source>
        <translation>Dans le fichier&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>desktop::Menus</name>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Reset This Page</source>
        <translation>&amp;Réinitialiser cette page</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Diagnostics…</source>
        <translation>&amp;Diagnostic…</translation>
    </message>
    <message>
        <source>&amp;Beta Agreement…</source>
        <translation>Accord &amp;bêta…</translation>
    </message>
    <message>
        <source>&amp;About Quillon Settings</source>
        <translation>À &amp;propos de Réglages de Quillon</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Pre&amp;view…</source>
        <translation>&amp;Aperçu…</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>Dé&amp;marrer</translation>
    </message>
    <message>
        <source>&amp;New Blank Image…</source>
        <translation>Nouvelle image disque &amp;vierge…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Préréglages</translation>
    </message>
    <message>
        <source>&amp;Find a Setting…</source>
        <translation>R&amp;echercher un réglage…</translation>
    </message>
    <message>
        <source>&amp;Add Disk Image…</source>
        <translation>A&amp;jouter une image disque…</translation>
    </message>
    <message>
        <source>A mark for yourself while the window is open. It changes no setting and is not saved.</source>
        <translation>Un repère pour vous-même tant que la fenêtre est ouverte. Il ne change aucun réglage et n’est pas enregistré.</translation>
    </message>
</context>
<context>
    <name>desktop::PreferencesWindow</name>
    <message>
        <source>Quillon Settings Preferences</source>
        <translation>Préférences du programme</translation>
    </message>
    <message>
        <source>Where Quillon is</source>
        <translation>Emplacement de Quillon</translation>
    </message>
    <message>
        <source>Start is disabled until a place is chosen.</source>
        <translation>«&#xa0;Démarrer&#xa0;» est désactivé tant qu’aucun emplacement n’est choisi.</translation>
    </message>
    <message>
        <source>&amp;Beside this program</source>
        <translation>À &amp;côté de ce programme</translation>
    </message>
    <message>
        <source>Quillon.app in the folder of this program.</source>
        <translation>Quillon.app dans le dossier de ce programme.</translation>
    </message>
    <message>
        <source>&amp;Somewhere else</source>
        <translation>&amp;Ailleurs</translation>
    </message>
    <message>
        <source>The place named below. &quot;Quillon&quot; must be part of the name.</source>
        <translation>L’emplacement indiqué ci-dessous. «&#xa0;Quillon&#xa0;» doit faire partie du nom.</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Tester</translation>
    </message>
    <message>
        <source>Starts what the location names, unchecked.</source>
        <translation>Démarre ce que l’emplacement désigne, sans vérification.</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>Ter&amp;miné</translation>
    </message>
    <message>
        <source>Applies and stores the choices.</source>
        <translation>Applique et enregistre les choix.</translation>
    </message>
    <message>
        <source>Show the SCS&amp;I tab</source>
        <translation>Afficher l’onglet SCS&amp;I</translation>
    </message>
    <message>
        <source>Whether the settings window has a tab for SCSI. It shows up with Done.</source>
        <translation>Indique si la fenêtre principale a un onglet pour SCSI. Il apparaît avec «&#xa0;Terminé&#xa0;».</translation>
    </message>
    <message>
        <source>&amp;Quit after Start</source>
        <translation>&amp;Quitter après le démarrage</translation>
    </message>
    <message>
        <source>Whether Start also ends this program.</source>
        <translation>Indique si «&#xa0;Démarrer&#xa0;» quitte aussi ce programme.</translation>
    </message>
    <message>
        <source>The application that Start launches. &quot;Quillon&quot; must be part of the name.</source>
        <translation>L’application que «&#xa0;Démarrer&#xa0;» lance. «&#xa0;Quillon&#xa0;» doit faire partie du nom.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Chooses the application.</source>
        <translation>Choisit l’application.</translation>
    </message>
    <message>
        <source>&amp;Not set up</source>
        <translation>&amp;Non configuré</translation>
    </message>
    <message>
        <source>A path with &quot;Quillon&quot; in it, such as /opt/Quillon.app</source>
        <translation>Un chemin contenant «&#xa0;Quillon&#xa0;», par exemple /opt/Quillon.app</translation>
    </message>
</context>
<context>
    <name>desktop::PreviewWindow</name>
    <message>
        <source>Preview of the Preferences File</source>
        <translation>Aperçu du fichier de préférences</translation>
    </message>
    <message>
        <source>The typed place names no file.</source>
        <translation>L’emplacement saisi ne désigne aucun fichier.</translation>
    </message>
    <message>
        <source>There is no file yet.</source>
        <translation>Il n’y a pas encore de fichier.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Le fichier ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>In the &amp;file now:</source>
        <translation>Dans le &amp;fichier actuellement&#xa0;:</translation>
    </message>
    <message>
        <source>After a &amp;save:</source>
        <translation>Après l’&amp;enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>- will be dropped   * will be changed   + will be added</source>
        <translation>- sera supprimé   * sera modifié   + sera ajouté</translation>
    </message>
    <message>
        <source>The file is not UTF-8 text.</source>
        <translation>Le fichier n’est pas du texte UTF-8.</translation>
    </message>
</context>
<context>
    <name>desktop::SearchHits</name>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%1 — %2: %3</source>
        <translation>%1 — %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Nothing found for &quot;%1&quot;.</source>
        <translation>Rien trouvé pour «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>desktop::SettingsWindow</name>
    <message>
        <source>Quillon Settings</source>
        <translation>Réglages de Quillon</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>The preferences file that Save and Start write. Type another place to save to before the first save.</source>
        <translation>Le fichier de préférences qu’écrivent «&#xa0;Enregistrer&#xa0;» et «&#xa0;Démarrer&#xa0;». Pour enregistrer ailleurs, saisissez un autre emplacement avant le premier enregistrement.</translation>
    </message>
    <message>
        <source>Preferences fi&amp;le:</source>
        <translation>Fichier de préfére&amp;nces&#xa0;:</translation>
    </message>
    <message>
        <source>Preferences file</source>
        <translation>Fichier de préférences</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copies the preferences file of your home folder to the place named here, if there is none yet.</source>
        <translation>Copie le fichier de préférences de votre dossier personnel à l’emplacement indiqué ici, s’il n’y en a pas encore.</translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation>Préférence&amp;s…</translation>
    </message>
    <message>
        <source>Where Quillon is, and how this program behaves.</source>
        <translation>L’emplacement de Quillon et le comportement de ce programme.</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>Dé&amp;marrer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Writes the preferences file.</source>
        <translation>Écrit le fichier de préférences.</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Ends the program without saving.</source>
        <translation>Quitte le programme sans enregistrer.</translation>
    </message>
    <message>
        <source>Writes the preferences file and starts Quillon.</source>
        <translation>Écrit le fichier de préférences et démarre Quillon.</translation>
    </message>
    <message>
        <source>Start is disabled: choose where Quillon is in Edit &gt; Preferences.</source>
        <translation>«&#xa0;Démarrer&#xa0;» est désactivé&#xa0;: indiquez l’emplacement de Quillon dans «&#xa0;Édition &gt; Préférences&#xa0;».</translation>
    </message>
    <message>
        <source>About Quillon Settings</source>
        <translation>À propos de Réglages de Quillon</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Quillon Settings %1&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Sets up Quillon, an emulator of 68k Macintosh computers, and starts it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Réglages de Quillon %1&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Configure Quillon, un émulateur d’ordinateurs Macintosh 68k, et le démarre.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>desktop::UnsavedBar</name>
    <message>
        <source>Lists what is not saved, to look at it or to take it back.</source>
        <translation>Montre ce qui n’est pas enregistré, pour l’examiner ou l’annuler.</translation>
    </message>
    <message>
        <source>1 unsaved change</source>
        <translation>1 modification non enregistrée</translation>
    </message>
    <message>
        <source>%1 unsaved changes</source>
        <translation>%1 modifications non enregistrées</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Enregistré à %1</translation>
    </message>
    <message>
        <source>Quillon was started %1</source>
        <translation>Quillon a été démarré à %1</translation>
    </message>
    <message>
        <source>Quillon was not started: it could not be executed</source>
        <translation>Quillon n’a pas été démarré&#xa0;: il n’a pas pu être exécuté</translation>
    </message>
    <message>
        <source>The file was not saved</source>
        <translation>Le fichier n’a pas été enregistré</translation>
    </message>
</context>
<context>
    <name>desktop::VolumeMenu</name>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>Afficher dans le d&amp;ossier</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;Copier le chemin</translation>
    </message>
</context>
<context>
    <name>desktop::VolumeModel</name>
    <message>
        <source>This file is missing.</source>
        <translation>Ce fichier est introuvable.</translation>
    </message>
    <message>
        <source>This file cannot be reached: %1</source>
        <translation>Ce fichier est inaccessible&#xa0;: %1</translation>
    </message>
    <message>
        <source>1 disk image</source>
        <translation>1 image disque</translation>
    </message>
    <message numerus="yes">
        <source>%n disk images</source>
        <translation>
            <numerusform>%n image disque</numerusform>
            <numerusform>%n images disque</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>%n introuvable</numerusform>
            <numerusform>%n introuvables</numerusform>
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
            <numerusform>%n inaccessible</numerusform>
            <numerusform>%n inaccessibles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>desktop::VolumeView</name>
    <message numerus="yes">
        <source>%n disk images</source>
        <translation>
            <numerusform>%n image disque</numerusform>
            <numerusform>%n images disque</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>desktop::VolumesList</name>
    <message>
        <source>Disk images</source>
        <translation>Images disque</translation>
    </message>
    <message>
        <source>The disk images of the Macintosh, in their order.</source>
        <translation>Les images disque du Macintosh, dans leur ordre.</translation>
    </message>
    <message>
        <source>Disk i&amp;mages:</source>
        <translation>Ima&amp;ges disque&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>A&amp;jouter…</translation>
    </message>
    <message>
        <source>Adds disk images to the list.</source>
        <translation>Ajoute des images disque à la liste.</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>Ret&amp;irer</translation>
    </message>
    <message>
        <source>Takes the selected disk image off the list. The file stays.</source>
        <translation>Retire de la liste les images disque sélectionnées. Les fichiers sont conservés.</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Mon&amp;ter</translation>
    </message>
    <message>
        <source>Moves the selected disk images one place up (%1).</source>
        <translation>Déplace les images disque sélectionnées d’un rang vers le haut (%1).</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Descend&amp;re</translation>
    </message>
    <message>
        <source>Moves the selected disk images one place down (%1).</source>
        <translation>Déplace les images disque sélectionnées d’un rang vers le bas (%1).</translation>
    </message>
    <message>
        <source>New &amp;Blank Image…</source>
        <translation>Nouvelle image disque &amp;vierge…</translation>
    </message>
    <message>
        <source>Makes an empty disk image. It is not added to the list.</source>
        <translation>Crée une image disque vide. Elle n’est pas ajoutée à la liste.</translation>
    </message>
</context>
</TS>
