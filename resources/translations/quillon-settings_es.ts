<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>Checks</name>
    <message>
        <source>The disk image &quot;%1&quot; is missing.</source>
        <translation>Falta la imagen de disco «%1».</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are missing: %3.</source>
        <translation>Faltan %1 de %2 imágenes de disco: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; cannot be reached.</source>
        <translation>No se puede acceder a la imagen de disco «%1».</translation>
    </message>
    <message>
        <source>%1 of %2 disk images cannot be reached: %3.</source>
        <translation>No se puede acceder a %1 de %2 imágenes de disco: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; is a folder.</source>
        <translation>La imagen de disco «%1» es una carpeta.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are folders: %3.</source>
        <translation>%1 de %2 imágenes de disco son carpetas: %3.</translation>
    </message>
    <message>
        <source>There is no permission to read the disk image &quot;%1&quot;.</source>
        <translation>No hay permiso para leer la imagen de disco «%1».</translation>
    </message>
    <message>
        <source>There is no permission to read %1 of %2 disk images: %3.</source>
        <translation>No hay permiso para leer %1 de %2 imágenes de disco: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; is empty.</source>
        <translation>La imagen de disco «%1» está vacía.</translation>
    </message>
    <message>
        <source>%1 of %2 disk images are empty: %3.</source>
        <translation>%1 de %2 imágenes de disco están vacías: %3.</translation>
    </message>
    <message>
        <source>The disk image &quot;%1&quot; cannot be written to.</source>
        <translation>No se puede escribir en la imagen de disco «%1».</translation>
    </message>
    <message>
        <source>%1 of %2 disk images cannot be written to: %3.</source>
        <translation>No se puede escribir en %1 de %2 imágenes de disco: %3.</translation>
    </message>
    <message>
        <source>There is no disk image in the list.</source>
        <translation>No hay ninguna imagen de disco en la lista.</translation>
    </message>
    <message>
        <source>%1 disk images are one and the same file, which two writers would damage: %2.</source>
        <translation>%1 imágenes de disco son un mismo archivo, que se dañaría al escribirse por duplicado: %2.</translation>
    </message>
    <message>
        <source>Start is disabled: choose where Quillon is in Edit &gt; Preferences.</source>
        <translation>«Iniciar» está desactivado: indique dónde está Quillon en «Editar &gt; Preferencias».</translation>
    </message>
    <message>
        <source>Quillon is set to be nowhere: choose where it is in Edit &gt; Preferences.</source>
        <translation>No se ha indicado ningún lugar para Quillon: elija dónde está en «Editar &gt; Preferencias».</translation>
    </message>
    <message>
        <source>Quillon cannot be reached at &quot;%1&quot;: %2.</source>
        <translation>No se puede acceder a Quillon en «%1»: %2.</translation>
    </message>
    <message>
        <source>Quillon is not at &quot;%1&quot;: nothing is there.</source>
        <translation>Quillon no está en «%1»: ahí no hay nada.</translation>
    </message>
    <message>
        <source>Quillon is not at &quot;%1&quot;: what is there holds no program.</source>
        <translation>Quillon no está en «%1»: lo que hay ahí no contiene ningún programa.</translation>
    </message>
    <message>
        <source>No ROM file is chosen.</source>
        <translation>No se ha elegido ningún archivo ROM.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is missing.</source>
        <translation>Falta el archivo ROM «%1».</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; cannot be reached: %2.</source>
        <translation>No se puede acceder al archivo ROM «%1»: %2.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is a folder.</source>
        <translation>El archivo ROM «%1» es una carpeta.</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is a device and no file.</source>
        <translation>El archivo ROM «%1» es un dispositivo y no un archivo.</translation>
    </message>
    <message>
        <source>There is no permission to read the ROM file &quot;%1&quot;.</source>
        <translation>No hay permiso para leer el archivo ROM «%1».</translation>
    </message>
    <message>
        <source>The ROM file &quot;%1&quot; is %2 bytes large and most likely no ROM: those are 64, 128, 256 or 512 KB, 1, 2 or 4 MB large.</source>
        <translation>El archivo ROM «%1» ocupa %2 bytes y muy probablemente no es una ROM: estas ocupan 64, 128, 256 o 512 KB, 1, 2 o 4 MB.</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; cannot be reached: %2.</source>
        <translation>No se puede acceder a la carpeta compartida «%1»: %2.</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is missing.</source>
        <translation>Falta la carpeta compartida «%1».</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is no folder.</source>
        <translation>La carpeta compartida «%1» no es una carpeta.</translation>
    </message>
    <message>
        <source>Raw key codes are on, and their file &quot;%1&quot; is missing.</source>
        <translation>Los códigos de tecla sin procesar están activados, pero falta su archivo «%1».</translation>
    </message>
    <message>
        <source>Raw key codes are on, and no file is chosen for them.</source>
        <translation>Los códigos de tecla sin procesar están activados, pero no se ha elegido ningún archivo para ellos.</translation>
    </message>
    <message>
        <source>The preferences file could not be read: %1. What you see are the defaults, and saving puts them in the place of what is in the file.</source>
        <translation>No se pudo leer el archivo de preferencias: %1. Se muestran los valores predeterminados; si guarda, sustituirán el contenido del archivo.</translation>
    </message>
    <message>
        <source>The place of the preferences file names no file: no save can succeed.</source>
        <translation>La ubicación del archivo de preferencias no designa ningún archivo: no se podrá guardar.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; could not be saved: %2.</source>
        <translation>No se pudo guardar el archivo de preferencias «%1»: %2.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; cannot be written: a save will fail.</source>
        <translation>No se puede escribir el archivo de preferencias «%1»: no se podrá guardar.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; exists and has not been read. A save replaces what is in it.</source>
        <translation>El archivo de preferencias «%1» existe y no se ha leído. Al guardar se sustituye su contenido.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; has been removed by another program. A save makes it anew.</source>
        <translation>Otro programa ha eliminado el archivo de preferencias «%1». Al guardar se crea de nuevo.</translation>
    </message>
    <message>
        <source>The preferences file &quot;%1&quot; has been changed by another program. A save undoes that.</source>
        <translation>Otro programa ha modificado el archivo de preferencias «%1». Al guardar se deshacen esos cambios.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing that this program knows. It shows &quot;%2&quot;, and a save keeps the line as it is.</source>
        <translation>Este programa no conoce «%1». Muestra «%2» y, al guardar, deja la línea como está.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the file is nothing that this program knows. It shows &quot;%2&quot;, and a save writes &quot;%3&quot;.</source>
        <translation>Este programa no conoce el valor «%1» del archivo. Muestra «%2» y, al guardar, escribe «%3».</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; comes from a line that does not begin with &quot;%2&quot;: &quot;%3&quot;.</source>
        <translation>El valor «%1» procede de una línea que no empieza por «%2»: «%3».</translation>
    </message>
    <message>
        <source>After a save the value of &quot;%1&quot; would be read from another line: &quot;%2&quot;.</source>
        <translation>Después de guardar, el valor de «%1» se leería de otra línea: «%2».</translation>
    </message>
</context>
<context>
    <name>Columns</name>
    <message>
        <source>Disk image</source>
        <translation>Imagen de disco</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>A folder of this computer that appears as a disk inside the emulated Macintosh.</source>
        <translation>Una carpeta de este equipo que aparece como un disco en el Macintosh emulado.</translation>
    </message>
    <message>
        <source>as a path</source>
        <translation>como ruta</translation>
    </message>
    <message>
        <source>Whether the Macintosh screen is shown in a window or fills the screen, and how large it is. &quot;Maximum&quot; takes all the room there is.</source>
        <translation>Si la pantalla del Macintosh se muestra en una ventana o a pantalla completa, y qué tamaño tiene. «Maximum» ocupa todo el espacio disponible.</translation>
    </message>
    <message>
        <source>as type/width/height, in pixels, 0 for the maximum</source>
        <translation>como tipo/anchura/altura, en píxeles, 0 para el máximo</translation>
    </message>
    <message>
        <source>The device or program that the modem port is connected to. Leave it empty for none.</source>
        <translation>El dispositivo o programa al que está conectado el puerto de módem. Déjelo vacío si no hay ninguno.</translation>
    </message>
    <message>
        <source>The device or program that the printer port is connected to. Leave it empty for none.</source>
        <translation>El dispositivo o programa al que está conectado el puerto de impresora. Déjelo vacío si no hay ninguno.</translation>
    </message>
    <message>
        <source>How the Macintosh reaches the network: &quot;slirp&quot; needs no set-up, or the name of a network device.</source>
        <translation>Cómo accede el Macintosh a la red: con «slirp», que no necesita configuración, o con el dispositivo de red indicado aquí.</translation>
    </message>
    <message>
        <source>Sends network packets to other emulators on the local network through UDP.</source>
        <translation>Envía paquetes de red por UDP a otros emuladores de la red local.</translation>
    </message>
    <message>
        <source>as true or false</source>
        <translation>como true o false</translation>
    </message>
    <message>
        <source>The UDP port of the tunnel. All emulators that are to meet need the same.</source>
        <translation>El puerto UDP del túnel. Todos los emuladores que deban encontrarse necesitan el mismo.</translation>
    </message>
    <message>
        <source>as a number from 1 to 65535</source>
        <translation>como número del 1 al 65535</translation>
    </message>
    <message>
        <source>The file with the ROM of a Macintosh. The emulator cannot start without it.</source>
        <translation>El archivo con la ROM de un Macintosh. El emulador no puede iniciarse sin él.</translation>
    </message>
    <message>
        <source>The drive that the Macintosh tries to start from.</source>
        <translation>La unidad desde la que el Macintosh intenta arrancar.</translation>
    </message>
    <message>
        <source>as 0 for any drive, or 1</source>
        <translation>0 para cualquier unidad, o 1</translation>
    </message>
    <message>
        <source>The memory of the Macintosh in megabytes. Old systems may not start with very much of it.</source>
        <translation>La memoria del Macintosh en megabytes. Es posible que los sistemas antiguos no arranquen con mucha memoria.</translation>
    </message>
    <message>
        <source>in bytes</source>
        <translation>en bytes</translation>
    </message>
    <message>
        <source>How often the Macintosh screen is drawn. Lower rates leave more time for the processor.</source>
        <translation>Con qué frecuencia se dibuja la pantalla del Macintosh. Las frecuencias bajas dejan más tiempo al procesador.</translation>
    </message>
    <message>
        <source>as frames per drawing, 0 for dynamic</source>
        <translation>como fotogramas por dibujo, 0 para dinámica</translation>
    </message>
    <message>
        <source>The model that the Macintosh says it is. Mac OS 8 needs the Quadra.</source>
        <translation>El modelo que el Macintosh dice ser. Mac OS 8 necesita el Quadra.</translation>
    </message>
    <message>
        <source>as a model number</source>
        <translation>como número de modelo</translation>
    </message>
    <message>
        <source>The processor of the Macintosh, with or without floating-point unit.</source>
        <translation>El procesador del Macintosh, con o sin unidad de coma flotante.</translation>
    </message>
    <message>
        <source>as the x of 680x0, together with &quot;fpu&quot; as true or false</source>
        <translation>como la x de 680x0, junto con «fpu» como true o false</translation>
    </message>
    <message>
        <source>Whether the processor has a floating-point unit.</source>
        <translation>Si el procesador tiene unidad de coma flotante.</translation>
    </message>
    <message>
        <source>Takes the CD-ROM drive out of the Macintosh.</source>
        <translation>Quita la unidad de CD-ROM del Macintosh.</translation>
    </message>
    <message>
        <source>Keeps the Macintosh silent.</source>
        <translation>Deja el Macintosh en silencio.</translation>
    </message>
    <message>
        <source>Translates the Macintosh&apos;s programs for this computer&apos;s processor as they run. Much faster; needs a 68020 or later.</source>
        <translation>Traduce los programas del Macintosh para el procesador de este equipo mientras se ejecutan. Mucho más rápido; necesita un 68020 o posterior.</translation>
    </message>
    <message>
        <source>Translates floating-point instructions, too. Faster, a little less exact.</source>
        <translation>Traduce también las instrucciones de coma flotante. Más rápido, un poco menos exacto.</translation>
    </message>
    <message>
        <source>The memory for translated programs.</source>
        <translation>La memoria para los programas traducidos.</translation>
    </message>
    <message>
        <source>in KB</source>
        <translation>en KB</translation>
    </message>
    <message>
        <source>Throws translated programs away only when they are really no longer valid. Faster.</source>
        <translation>Descarta los programas traducidos solo cuando de verdad ya no son válidos. Más rápido.</translation>
    </message>
    <message>
        <source>Translates across jumps that always lead to the same place. Faster.</source>
        <translation>Traduce a través de los saltos que llevan siempre al mismo sitio. Más rápido.</translation>
    </message>
    <message>
        <source>Tells keys apart by their place on the keyboard, through a table in a file, and not by their letter.</source>
        <translation>Distingue las teclas por su lugar en el teclado, mediante una tabla en un archivo, y no por su letra.</translation>
    </message>
    <message>
        <source>The file with the table of key codes. Used only with raw key codes.</source>
        <translation>El archivo con la tabla de códigos de tecla. Solo se usa con los códigos de tecla sin procesar.</translation>
    </message>
    <message>
        <source>Which keys a turn of the mouse wheel presses inside the Macintosh.</source>
        <translation>Qué teclas pulsa en el Macintosh un giro de la rueda del ratón.</translation>
    </message>
    <message>
        <source>as 0 for pages, 1 for the cursor</source>
        <translation>0 para las páginas, 1 para el cursor</translation>
    </message>
    <message>
        <source>How many lines one step of the mouse wheel scrolls.</source>
        <translation>Cuántas líneas se desplaza un paso de la rueda del ratón.</translation>
    </message>
    <message>
        <source>as a number</source>
        <translation>como número</translation>
    </message>
    <message>
        <source>The device that sound goes to. Leave it empty for the usual one.</source>
        <translation>El dispositivo por el que sale el sonido. Déjelo vacío para el habitual.</translation>
    </message>
    <message>
        <source>The device that sets the loudness. Leave it empty for the usual one.</source>
        <translation>El dispositivo que regula el volumen. Déjelo vacío para el habitual.</translation>
    </message>
    <message>
        <source>Lets the Macintosh go on when a program reaches for memory that is not there.</source>
        <translation>Permite que el Macintosh continúe cuando un programa accede a memoria que no existe.</translation>
    </message>
    <message>
        <source>Rests while the Macintosh has nothing to do and saves this computer&apos;s energy.</source>
        <translation>Descansa mientras el Macintosh no tiene nada que hacer y ahorra energía en este equipo.</translation>
    </message>
    <message>
        <source>it is not UTF-8 text</source>
        <translation>no es texto UTF-8</translation>
    </message>
</context>
<context>
    <name>Items</name>
    <message>
        <source>Dynamic</source>
        <translation>Dinámica</translation>
    </message>
    <message>
        <source>7.5 Hz</source>
        <translation>7,5 Hz</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Page up / page down</source>
        <translation>Re Pág / Av Pág</translation>
    </message>
    <message>
        <source>Cursor up / down</source>
        <translation>Cursor arriba / abajo</translation>
    </message>
    <message>
        <source>Any drive</source>
        <translation>Cualquier unidad</translation>
    </message>
    <message>
        <source>Drive 1</source>
        <translation>Unidad 1</translation>
    </message>
    <message>
        <source>68020 with FPU</source>
        <translation>68020 con FPU</translation>
    </message>
    <message>
        <source>68030 with FPU</source>
        <translation>68030 con FPU</translation>
    </message>
    <message>
        <source> (from the file)</source>
        <translation> (del archivo)</translation>
    </message>
    <message>
        <source>Volumes</source>
        <translation>Volúmenes</translation>
    </message>
    <message>
        <source>SCSI</source>
        <translation>SCSI</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Máquina</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Sound &amp; Input</source>
        <translation>Sonido y entrada</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>JIT</source>
        <translation>JIT</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
</context>
<context>
    <name>Kinds</name>
    <message>
        <source>Disk Image</source>
        <translation>Imagen de disco</translation>
    </message>
    <message>
        <source>Not Found!</source>
        <translation>¡No se encuentra!</translation>
    </message>
    <message>
        <source>No Path!</source>
        <translation>¡Sin ruta!</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>Choose the Key Code File</source>
        <translation>Elegir el archivo de códigos de tecla</translation>
    </message>
    <message>
        <source>Choose the ROM File</source>
        <translation>Elegir el archivo ROM</translation>
    </message>
    <message>
        <source>Choose a Folder for New Images</source>
        <translation>Elegir una carpeta para las nuevas imágenes de disco</translation>
    </message>
    <message>
        <source>Choose Unix Root Folder</source>
        <translation>Elegir la carpeta compartida</translation>
    </message>
    <message>
        <source>Select a volume</source>
        <translation>Elegir imágenes de disco</translation>
    </message>
    <message>
        <source>Create a new blank volume</source>
        <translation>Nueva imagen de disco en blanco</translation>
    </message>
    <message>
        <source>Create a new blank unformatted disk image</source>
        <translation>Crear una imagen de disco nueva, vacía y sin formato</translation>
    </message>
    <message>
        <source>Choose Quillon</source>
        <translation>Elegir Quillon</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>exchange files, host folder, share</source>
        <translation>intercambiar archivos, carpeta del anfitrión, compartir</translation>
    </message>
    <message>
        <source>resolution, fullscreen, window size, monitor, pixels</source>
        <translation>resolución, pantalla completa, tamaño de la ventana, monitor, píxeles</translation>
    </message>
    <message>
        <source>serial port, terminal</source>
        <translation>puerto serie, terminal</translation>
    </message>
    <message>
        <source>serial port, printing</source>
        <translation>puerto serie, imprimir</translation>
    </message>
    <message>
        <source>internet, Ethernet, web, TCP/IP</source>
        <translation>internet, Ethernet, web, TCP/IP</translation>
    </message>
    <message>
        <source>internet, AppleTalk, local network</source>
        <translation>internet, AppleTalk, red local</translation>
    </message>
    <message>
        <source>firmware, BIOS</source>
        <translation>firmware, BIOS</translation>
    </message>
    <message>
        <source>startup disk, boot order, boot disk</source>
        <translation>disco de arranque, orden de arranque</translation>
    </message>
    <message>
        <source>memory, megabytes</source>
        <translation>memoria, megabytes</translation>
    </message>
    <message>
        <source>frames per second, FPS, speed, frame skip</source>
        <translation>fotogramas por segundo, FPS, velocidad, salto de fotogramas</translation>
    </message>
    <message>
        <source>computer, machine type, Gestalt</source>
        <translation>ordenador, equipo, tipo de máquina, Gestalt</translation>
    </message>
    <message>
        <source>CPU, FPU, coprocessor, Motorola</source>
        <translation>CPU, FPU, coprocesador, Motorola</translation>
    </message>
    <message>
        <source>optical drive, CD, disc</source>
        <translation>unidad óptica, CD, disco</translation>
    </message>
    <message>
        <source>audio, mute, volume, speaker</source>
        <translation>audio, silencio, volumen, altavoz</translation>
    </message>
    <message>
        <source>speed, fast, dynamic translation, recompiler</source>
        <translation>velocidad, rápido, traducción dinámica, recompilador</translation>
    </message>
    <message>
        <source>floating point, speed</source>
        <translation>coma flotante, velocidad</translation>
    </message>
    <message>
        <source>memory, speed</source>
        <translation>memoria, velocidad</translation>
    </message>
    <message>
        <source>keyboard layout, keymap</source>
        <translation>distribución del teclado, teclado</translation>
    </message>
    <message>
        <source>scroll wheel, scrolling</source>
        <translation>rueda, desplazamiento</translation>
    </message>
    <message>
        <source>scroll wheel, scrolling speed</source>
        <translation>rueda, velocidad de desplazamiento</translation>
    </message>
    <message>
        <source>audio device, sound card</source>
        <translation>dispositivo de audio, tarjeta de sonido</translation>
    </message>
    <message>
        <source>audio device, sound card, loudness</source>
        <translation>dispositivo de audio, tarjeta de sonido, volumen</translation>
    </message>
    <message>
        <source>crash, memory errors</source>
        <translation>fallo, errores de memoria</translation>
    </message>
    <message>
        <source>battery, power, fan, processor load</source>
        <translation>batería, energía, ventilador, carga del procesador</translation>
    </message>
    <message>
        <source>hard disk, hard drive, floppy, diskette, volume</source>
        <translation>disco duro, unidad, disquete, volumen</translation>
    </message>
</context>
<context>
    <name>SearchPlaces</name>
    <message>
        <source>%1 (turn on &quot;%2&quot; first)</source>
        <translation>%1 (active antes «%2»)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is disabled. Turn on &quot;%2&quot; first.</source>
        <translation>«%1» está desactivado. Active antes «%2».</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>Imágenes de disco</translation>
    </message>
    <message>
        <source>SCSI ID 0</source>
        <translation>ID SCSI 0</translation>
    </message>
    <message>
        <source>Where Quillon is</source>
        <translation>Dónde está Quillon</translation>
    </message>
    <message>
        <source>location, path, emulator, Quillon.app</source>
        <translation>ubicación, ruta, emulador, Quillon.app</translation>
    </message>
    <message>
        <source>Quit after Start</source>
        <translation>Salir tras iniciar</translation>
    </message>
    <message>
        <source>exit, close, end</source>
        <translation>salir, cerrar, fin</translation>
    </message>
    <message>
        <source>Show the SCSI tab</source>
        <translation>Mostrar la pestaña SCSI</translation>
    </message>
    <message>
        <source>bus, devices</source>
        <translation>bus, dispositivos</translation>
    </message>
    <message>
        <source>Preferences window</source>
        <translation>Ventana de preferencias</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Screen &amp;mode</source>
        <translation>Modo de pan&amp;talla</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>Anc&amp;hura</translation>
    </message>
    <message>
        <source>Hei&amp;ght</source>
        <translation>A&amp;ltura</translation>
    </message>
    <message>
        <source>Shared fol&amp;der</source>
        <translation>Carpe&amp;ta compartida</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>&amp;Modem port</source>
        <translation>Puerto de &amp;módem</translation>
    </message>
    <message>
        <source>P&amp;rinter port</source>
        <translation>Pue&amp;rto de impresora</translation>
    </message>
    <message>
        <source>Network &amp;device</source>
        <translation>&amp;Dispositivo de red</translation>
    </message>
    <message>
        <source>Tunnel the net&amp;work over UDP</source>
        <translation>&amp;Tunelizar la red por UDP</translation>
    </message>
    <message>
        <source>&amp;UDP port</source>
        <translation>Puerto &amp;UDP</translation>
    </message>
    <message>
        <source>&amp;ROM file</source>
        <translation>Archivo &amp;ROM</translation>
    </message>
    <message>
        <source>&amp;Boot drive</source>
        <translation>&amp;Unidad de arranque</translation>
    </message>
    <message>
        <source>Boot driver</source>
        <translation>Controlador de arranque</translation>
    </message>
    <message>
        <source>RA&amp;M size (MB)</source>
        <translation>&amp;Tamaño de la RAM (MB)</translation>
    </message>
    <message>
        <source>Refresh r&amp;ate</source>
        <translation>Frec&amp;uencia de actualización</translation>
    </message>
    <message>
        <source>M&amp;odel</source>
        <translation>M&amp;odelo</translation>
    </message>
    <message>
        <source>Processor (CP&amp;U)</source>
        <translation>Procesa&amp;dor (CPU)</translation>
    </message>
    <message>
        <source>Floating-point unit (FPU)</source>
        <translation>Unidad de coma flotante (FPU)</translation>
    </message>
    <message>
        <source>&amp;Disable the CD-ROM drive</source>
        <translation>Desactivar la unidad de CD-RO&amp;M</translation>
    </message>
    <message>
        <source>&amp;Disable sound</source>
        <translation>&amp;Desactivar el sonido</translation>
    </message>
    <message>
        <source>Leave the clipboard unconverted</source>
        <translation>No convertir el portapapeles</translation>
    </message>
    <message>
        <source>No windows of its own</source>
        <translation>Sin ventanas propias</translation>
    </message>
    <message>
        <source>Enable the &amp;JIT compiler</source>
        <translation>Activar el compilador &amp;JIT</translation>
    </message>
    <message>
        <source>Compile floating-point instr&amp;uctions</source>
        <translation>Compi&amp;lar instrucciones de coma flotante</translation>
    </message>
    <message>
        <source>Debug the JIT compiler</source>
        <translation>Depurar el compilador JIT</translation>
    </message>
    <message>
        <source>Cache si&amp;ze (KB)</source>
        <translation>&amp;Tamaño de la caché (KB)</translation>
    </message>
    <message>
        <source>Flush the cache lazil&amp;y</source>
        <translation>Vacia&amp;r la caché con retraso</translation>
    </message>
    <message>
        <source>Inline &amp;blocks</source>
        <translation>Integrar &amp;bloques</translation>
    </message>
    <message>
        <source>Keyboard type</source>
        <translation>Tipo de teclado</translation>
    </message>
    <message>
        <source>Use raw &amp;key codes</source>
        <translation>&amp;Usar códigos de tecla sin procesar</translation>
    </message>
    <message>
        <source>Ke&amp;y code file</source>
        <translation>Archivo de códigos de &amp;tecla</translation>
    </message>
    <message>
        <source>Mouse &amp;wheel</source>
        <translation>&amp;Rueda del ratón</translation>
    </message>
    <message>
        <source>L&amp;ines to scroll</source>
        <translation>Líneas por despla&amp;zar</translation>
    </message>
    <message>
        <source>&amp;Output device</source>
        <translation>Dispositivo de sa&amp;lida</translation>
    </message>
    <message>
        <source>&amp;Mixer device</source>
        <translation>Dispositivo &amp;mezclador</translation>
    </message>
    <message>
        <source>Ignore &amp;memory faults</source>
        <translation>Ign&amp;orar los fallos de memoria</translation>
    </message>
    <message>
        <source>Rest while the Macintosh is &amp;idle</source>
        <translation>&amp;Descansar cuando el Macintosh esté inactivo</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message>
        <source>Zero KB</source>
        <translation>Cero KB</translation>
    </message>
    <message>
        <source>byte</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>bytes</translation>
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
        <source>Problem: %1</source>
        <translation>Problema: %1</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Advertencia: %1</translation>
    </message>
    <message>
        <source>Note: %1</source>
        <translation>Nota: %1</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Actividad</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>Imágenes de disco</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>Elegi&amp;r…</translation>
    </message>
    <message>
        <source>Chooses the shared folder.</source>
        <translation>Elige la carpeta compartida.</translation>
    </message>
    <message>
        <source>SCSI &amp;ID 0</source>
        <translation>I&amp;D SCSI 0</translation>
    </message>
    <message>
        <source>A mark for yourself while the window is open. It is not saved.</source>
        <translation>Una marca para usted mientras la ventana está abierta. No se guarda.</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>E&amp;xaminar…</translation>
    </message>
    <message>
        <source>Chooses the ROM file.</source>
        <translation>Elige el archivo ROM.</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>E&amp;xaminar…</translation>
    </message>
    <message>
        <source>Chooses the key code file.</source>
        <translation>Elige el archivo de códigos de tecla.</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Ratón</translation>
    </message>
    <message>
        <source>Just-in-time compiler</source>
        <translation>Compilador en tiempo de ejecución</translation>
    </message>
    <message>
        <source>Processor emulation</source>
        <translation>Emulación del procesador</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>%1, %2 × %3</source>
        <translation>%1, %2 × %3</translation>
    </message>
    <message>
        <source>Reset to Default (empty)</source>
        <translation>Restablecer el valor predeterminado (vacío)</translation>
    </message>
    <message>
        <source>Reset to Default (%1)</source>
        <translation>Restablecer el valor predeterminado (%1)</translation>
    </message>
    <message>
        <source>If unsure, leave it empty.</source>
        <translation>En caso de duda, déjelo vacío.</translation>
    </message>
    <message>
        <source>Until you choose one it says &quot;%1&quot;.</source>
        <translation>Hasta que elija algo, se muestra «%1».</translation>
    </message>
    <message>
        <source>If unsure, leave it at &quot;%1&quot;.</source>
        <translation>En caso de duda, déjelo en «%1».</translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;.</source>
        <translation>En el archivo: «%1».</translation>
    </message>
    <message>
        <source>Writes &quot;%1&quot;, %2.</source>
        <translation>En el archivo: «%1», %2.</translation>
    </message>
    <message>
        <source>Changed.</source>
        <translation>Modificado.</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>Distinto del valor predeterminado.</translation>
    </message>
    <message>
        <source>Starting</source>
        <translation>Arranque</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dibujo</translation>
    </message>
    <message>
        <source>Serial ports</source>
        <translation>Puertos serie</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
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
        <translation>Acuerdo beta</translation>
    </message>
    <message>
        <source>&lt;p&gt;This program is a beta version. It changes three things on this computer:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Quillon&apos;s preferences file, when you press Save, Start or Copy, and once when there is none yet;&lt;/li&gt;&lt;li&gt;its own settings, when you press Done in its preferences;&lt;/li&gt;&lt;li&gt;the disk images that you ask it to make.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Keep a copy of what you cannot do without. Disagree ends the program at once, without saving.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Este programa es una versión beta. Modifica tres cosas en este equipo:&lt;/p&gt;&lt;ul&gt;&lt;li&gt;el archivo de preferencias de Quillon, cuando pulsa «Guardar», «Iniciar» o «Copiar», y una vez cuando todavía no existe;&lt;/li&gt;&lt;li&gt;sus propios ajustes, cuando pulsa «Hecho» en sus preferencias;&lt;/li&gt;&lt;li&gt;las imágenes de disco que le pida crear.&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Conserve una copia de aquello de lo que no pueda prescindir. «Rechazar» cierra el programa de inmediato, sin guardar.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Disagree</source>
        <translation>&amp;Rechazar</translation>
    </message>
    <message>
        <source>Ends the program at once, without saving.</source>
        <translation>Cierra el programa de inmediato, sin guardar.</translation>
    </message>
    <message>
        <source>&amp;Agree</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>Closes this sheet.</source>
        <translation>Cierra esta ventana.</translation>
    </message>
</context>
<context>
    <name>desktop::ChangesList</name>
    <message>
        <source>(empty)</source>
        <translation>(vacío)</translation>
    </message>
    <message>
        <source>%1 added</source>
        <translation>añadidas: %1</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>quitadas: %1</translation>
    </message>
    <message>
        <source>in another order</source>
        <translation>en otro orden</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>Put &amp;All Back</source>
        <translation>Restaurar &amp;todo</translation>
    </message>
    <message>
        <source>Takes back everything that is not saved.</source>
        <translation>Deshace todo lo que no se ha guardado.</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>Disk images</source>
        <translation>Imágenes de disco</translation>
    </message>
    <message>
        <source>Put Back</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Put back %1</source>
        <translation>Restaurar %1</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksLine</name>
    <message>
        <source>Checking the files…</source>
        <translation>Comprobando los archivos…</translation>
    </message>
    <message>
        <source>What keeps Quillon from starting, and what else deserves a look. Press it to see all of it.</source>
        <translation>Qué impide que Quillon se inicie y qué más conviene revisar. Pulse para verlo todo.</translation>
    </message>
    <message>
        <source>Ready to start.</source>
        <translation>Todo listo para iniciar.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Y %1 más.</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksList</name>
    <message>
        <source>What to Look At Before Starting</source>
        <translation>Qué revisar antes de iniciar</translation>
    </message>
</context>
<context>
    <name>desktop::ChecksView</name>
    <message>
        <source>%1, with something to look at</source>
        <translation>%1, con algo que revisar</translation>
    </message>
</context>
<context>
    <name>desktop::CreateSheet</name>
    <message>
        <source>New Blank Image</source>
        <translation>Nueva imagen de disco en blanco</translation>
    </message>
    <message>
        <source>The size in megabytes. 100 if this is no whole number.</source>
        <translation>El tamaño en megabytes. 100 si no es un número entero.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Size in megabytes</source>
        <translation>Tamaño en megabytes</translation>
    </message>
    <message>
        <source>&amp;Size (MB):</source>
        <translation>&amp;Tamaño (MB):</translation>
    </message>
    <message>
        <source>Makes the image, and then closes this sheet.</source>
        <translation>Crea la imagen de disco y después cierra esta ventana.</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>Chooses the folder for this and later images, until you quit.</source>
        <translation>Elige la carpeta para esta imagen de disco y las siguientes, hasta que salga del programa.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>Car&amp;peta:</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Please choose another one.</source>
        <translation>No puede escribir en esta carpeta. Elija otra.</translation>
    </message>
    <message>
        <source>Images go here because you cannot write to the folder of this program, &quot;%1&quot;.</source>
        <translation>Las imágenes de disco se crean aquí porque no puede escribir en la carpeta de este programa, «%1».</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Espacio libre: %1</translation>
    </message>
    <message>
        <source>Only moves the indicator; making an image does not.</source>
        <translation>Solo mueve el indicador; crear una imagen de disco no lo hace.</translation>
    </message>
    <message>
        <source>&amp;Animate</source>
        <translation>&amp;Animar</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>The name of the disk image, without &quot;.dsk&quot;.</source>
        <translation>El nombre de la imagen de disco, sin «.dsk».</translation>
    </message>
    <message>
        <source>Add to the L&amp;ist…</source>
        <translation>Añadir a la &amp;lista…</translation>
    </message>
    <message>
        <source>Closes this sheet and opens Add… at the new disk image.</source>
        <translation>Cierra esta ventana y abre «Añadir…» en la nueva imagen de disco.</translation>
    </message>
    <message>
        <source>The folder that the disk image goes to.</source>
        <translation>La carpeta en la que se crea la imagen de disco.</translation>
    </message>
</context>
<context>
    <name>desktop::DiagnosticsWindow</name>
    <message>
        <source>Diagnostics</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>For finding faults in this program. None of it is saved.</source>
        <translation>Para buscar fallos de este programa. Nada de esto se guarda.</translation>
    </message>
    <message>
        <source>Read the local l&amp;ist</source>
        <translation>&amp;Leer la lista local</translation>
    </message>
    <message>
        <source>The table of disk images shows the second of two equal lists. You see no difference.</source>
        <translation>La tabla de imágenes de disco muestra la segunda de dos listas iguales. No se ve ninguna diferencia.</translation>
    </message>
    <message>
        <source>Tr&amp;y the save panel…</source>
        <translation>&amp;Probar el diálogo de guardado…</translation>
    </message>
    <message>
        <source>Shows a panel and writes the chosen place to standard output. Nothing is made.</source>
        <translation>Muestra un diálogo y escribe el lugar elegido en la salida estándar. No se crea nada.</translation>
    </message>
</context>
<context>
    <name>desktop::EmptyHint</name>
    <message>
        <source>No disk images yet.</source>
        <translation>Todavía no hay imágenes de disco.</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Añadir…</translation>
    </message>
    <message>
        <source>Adds disk images to the list (the key Insert does so, too).</source>
        <translation>Añade imágenes de disco a la lista (también con la tecla Insertar).</translation>
    </message>
    <message>
        <source>New Blank Image…</source>
        <translation>Nueva imagen de disco en blanco…</translation>
    </message>
    <message>
        <source>Makes an empty disk image.</source>
        <translation>Crea una imagen de disco vacía.</translation>
    </message>
</context>
<context>
    <name>desktop::FindField</name>
    <message>
        <source>Find a setting (Ctrl+F)</source>
        <translation>Buscar un ajuste (Ctrl+F)</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message>
        <source>Type words of a setting, of a choice that it offers, or of a disk image.</source>
        <translation>Escriba palabras de un ajuste, de una de sus opciones o de una imagen de disco.</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Resultados</translation>
    </message>
</context>
<context>
    <name>desktop::HelpPane</name>
    <message>
        <source>Move to a setting to read here what it does.</source>
        <translation>Vaya a un ajuste para leer aquí lo que hace.</translation>
    </message>
    <message>
        <source>In the file: %1</source>
        <translation>En el archivo: %1</translation>
    </message>
</context>
<context>
    <name>desktop::Menus</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Reset This Page</source>
        <translation>&amp;Restablecer esta página</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Diagnostics…</source>
        <translation>&amp;Diagnóstico…</translation>
    </message>
    <message>
        <source>&amp;Beta Agreement…</source>
        <translation>Acuerdo &amp;beta…</translation>
    </message>
    <message>
        <source>&amp;About Quillon Settings</source>
        <translation>&amp;Acerca de Ajustes de Quillon</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Pre&amp;view…</source>
        <translation>&amp;Vista previa…</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>&amp;New Blank Image…</source>
        <translation>&amp;Nueva imagen de disco en blanco…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Preajustes</translation>
    </message>
    <message>
        <source>&amp;Find a Setting…</source>
        <translation>&amp;Buscar un ajuste…</translation>
    </message>
    <message>
        <source>&amp;Add Disk Image…</source>
        <translation>Aña&amp;dir imagen de disco…</translation>
    </message>
    <message>
        <source>A mark for yourself while the window is open. It changes no setting and is not saved.</source>
        <translation>Una marca para usted mientras la ventana está abierta. No cambia ningún ajuste y no se guarda.</translation>
    </message>
</context>
<context>
    <name>desktop::PreferencesWindow</name>
    <message>
        <source>Quillon Settings Preferences</source>
        <translation>Preferencias del programa</translation>
    </message>
    <message>
        <source>Where Quillon is</source>
        <translation>Dónde está Quillon</translation>
    </message>
    <message>
        <source>Start is disabled until a place is chosen.</source>
        <translation>«Iniciar» está desactivado hasta que se elija un lugar.</translation>
    </message>
    <message>
        <source>&amp;Beside this program</source>
        <translation>&amp;Junto a este programa</translation>
    </message>
    <message>
        <source>Quillon.app in the folder of this program.</source>
        <translation>Quillon.app en la carpeta de este programa.</translation>
    </message>
    <message>
        <source>&amp;Somewhere else</source>
        <translation>En &amp;otro lugar</translation>
    </message>
    <message>
        <source>The place named below. &quot;Quillon&quot; must be part of the name.</source>
        <translation>El lugar indicado abajo. «Quillon» debe formar parte del nombre.</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Probar</translation>
    </message>
    <message>
        <source>Starts what the location names, unchecked.</source>
        <translation>Inicia lo que indica la ubicación, sin comprobarlo.</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Hecho</translation>
    </message>
    <message>
        <source>Applies and stores the choices.</source>
        <translation>Aplica y guarda las opciones elegidas.</translation>
    </message>
    <message>
        <source>Show the SCS&amp;I tab</source>
        <translation>Mostrar la pestaña SCS&amp;I</translation>
    </message>
    <message>
        <source>Whether the settings window has a tab for SCSI. It shows up with Done.</source>
        <translation>Si la ventana principal tiene una pestaña para SCSI. Aparece con «Hecho».</translation>
    </message>
    <message>
        <source>&amp;Quit after Start</source>
        <translation>Salir &amp;tras iniciar</translation>
    </message>
    <message>
        <source>Whether Start also ends this program.</source>
        <translation>Si «Iniciar» también cierra este programa.</translation>
    </message>
    <message>
        <source>The application that Start launches. &quot;Quillon&quot; must be part of the name.</source>
        <translation>La aplicación que abre «Iniciar». «Quillon» debe formar parte del nombre.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ubicación:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>Chooses the application.</source>
        <translation>Elige la aplicación.</translation>
    </message>
    <message>
        <source>&amp;Not set up</source>
        <translation>&amp;Sin configurar</translation>
    </message>
    <message>
        <source>A path with &quot;Quillon&quot; in it, such as /opt/Quillon.app</source>
        <translation>Una ruta que contenga «Quillon», como /opt/Quillon.app</translation>
    </message>
</context>
<context>
    <name>desktop::PreviewWindow</name>
    <message>
        <source>Preview of the Preferences File</source>
        <translation>Vista previa del archivo de preferencias</translation>
    </message>
    <message>
        <source>The typed place names no file.</source>
        <translation>El lugar escrito no designa ningún archivo.</translation>
    </message>
    <message>
        <source>There is no file yet.</source>
        <translation>Todavía no hay ningún archivo.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
    <message>
        <source>In the &amp;file now:</source>
        <translation>Ahora en el &amp;archivo:</translation>
    </message>
    <message>
        <source>After a &amp;save:</source>
        <translation>&amp;Tras guardar:</translation>
    </message>
    <message>
        <source>- will be dropped   * will be changed   + will be added</source>
        <translation>- se eliminará   * se cambiará   + se añadirá</translation>
    </message>
    <message>
        <source>The file is not UTF-8 text.</source>
        <translation>El archivo no es texto UTF-8.</translation>
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
        <translation>%1 — %2: %3</translation>
    </message>
    <message>
        <source>Nothing found for &quot;%1&quot;.</source>
        <translation>No se encontró nada para «%1».</translation>
    </message>
</context>
<context>
    <name>desktop::SettingsWindow</name>
    <message>
        <source>Quillon Settings</source>
        <translation>Ajustes de Quillon</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>The preferences file that Save and Start write. Type another place to save to before the first save.</source>
        <translation>El archivo de preferencias que escriben «Guardar» e «Iniciar». Para guardar en otro lugar, escríbalo antes de guardar por primera vez.</translation>
    </message>
    <message>
        <source>Preferences fi&amp;le:</source>
        <translation>Archi&amp;vo de preferencias:</translation>
    </message>
    <message>
        <source>Preferences file</source>
        <translation>Archivo de preferencias</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copies the preferences file of your home folder to the place named here, if there is none yet.</source>
        <translation>Copia el archivo de preferencias de su carpeta personal al lugar indicado aquí, si todavía no hay ninguno.</translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation>Prefere&amp;ncias…</translation>
    </message>
    <message>
        <source>Where Quillon is, and how this program behaves.</source>
        <translation>Dónde está Quillon y cómo se comporta este programa.</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>&amp;Iniciar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Writes the preferences file.</source>
        <translation>Escribe el archivo de preferencias.</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Ends the program without saving.</source>
        <translation>Sale del programa sin guardar.</translation>
    </message>
    <message>
        <source>Writes the preferences file and starts Quillon.</source>
        <translation>Escribe el archivo de preferencias e inicia Quillon.</translation>
    </message>
    <message>
        <source>Start is disabled: choose where Quillon is in Edit &gt; Preferences.</source>
        <translation>«Iniciar» está desactivado: indique dónde está Quillon en «Editar &gt; Preferencias».</translation>
    </message>
    <message>
        <source>About Quillon Settings</source>
        <translation>Acerca de Ajustes de Quillon</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Quillon Settings %1&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Sets up Quillon, an emulator of 68k Macintosh computers, and starts it.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ajustes de Quillon %1&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Configura Quillon, un emulador de ordenadores Macintosh 68k, y lo inicia.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>desktop::UnsavedBar</name>
    <message>
        <source>Lists what is not saved, to look at it or to take it back.</source>
        <translation>Muestra lo que no se ha guardado, para verlo o deshacerlo.</translation>
    </message>
    <message>
        <source>1 unsaved change</source>
        <translation>1 cambio sin guardar</translation>
    </message>
    <message>
        <source>%1 unsaved changes</source>
        <translation>%1 cambios sin guardar</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Guardado a las %1</translation>
    </message>
    <message>
        <source>Quillon was started %1</source>
        <translation>Quillon se inició a las %1</translation>
    </message>
    <message>
        <source>Quillon was not started: it could not be executed</source>
        <translation>Quillon no se inició: no se pudo ejecutar</translation>
    </message>
    <message>
        <source>The file was not saved</source>
        <translation>El archivo no se guardó</translation>
    </message>
</context>
<context>
    <name>desktop::VolumeMenu</name>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Show in &amp;Folder</source>
        <translation>&amp;Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;Copiar la ruta</translation>
    </message>
</context>
<context>
    <name>desktop::VolumeModel</name>
    <message>
        <source>This file is missing.</source>
        <translation>Falta este archivo.</translation>
    </message>
    <message>
        <source>This file cannot be reached: %1</source>
        <translation>No se puede acceder a este archivo: %1</translation>
    </message>
    <message>
        <source>1 disk image</source>
        <translation>1 imagen de disco</translation>
    </message>
    <message numerus="yes">
        <source>%n disk images</source>
        <translation>
            <numerusform>%n imagen de disco</numerusform>
            <numerusform>%n imágenes de disco</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n missing</source>
        <translation>
            <numerusform>falta %n</numerusform>
            <numerusform>faltan %n</numerusform>
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
            <numerusform>%n inaccesible</numerusform>
            <numerusform>%n inaccesibles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>desktop::VolumeView</name>
    <message numerus="yes">
        <source>%n disk images</source>
        <translation>
            <numerusform>%n imagen de disco</numerusform>
            <numerusform>%n imágenes de disco</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>desktop::VolumesList</name>
    <message>
        <source>Disk images</source>
        <translation>Imágenes de disco</translation>
    </message>
    <message>
        <source>The disk images of the Macintosh, in their order.</source>
        <translation>Las imágenes de disco del Macintosh, en su orden.</translation>
    </message>
    <message>
        <source>Disk i&amp;mages:</source>
        <translation>I&amp;mágenes de disco:</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>Aña&amp;dir…</translation>
    </message>
    <message>
        <source>Adds disk images to the list.</source>
        <translation>Añade imágenes de disco a la lista.</translation>
    </message>
    <message>
        <source>Remo&amp;ve</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Takes the selected disk image off the list. The file stays.</source>
        <translation>Quita de la lista las imágenes de disco seleccionadas. Los archivos se conservan.</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>Moves the selected disk images one place up (%1).</source>
        <translation>Sube un puesto las imágenes de disco seleccionadas (%1).</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Moves the selected disk images one place down (%1).</source>
        <translation>Baja un puesto las imágenes de disco seleccionadas (%1).</translation>
    </message>
    <message>
        <source>New &amp;Blank Image…</source>
        <translation>Nueva imagen de disco en b&amp;lanco…</translation>
    </message>
    <message>
        <source>Makes an empty disk image. It is not added to the list.</source>
        <translation>Crea una imagen de disco vacía. No se añade a la lista.</translation>
    </message>
</context>
</TS>
