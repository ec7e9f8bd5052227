<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>La foto no tiene extensión, así que el resultado será un TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>El formato «%1» no se puede escribir, así que el resultado será un TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation>Su resultado «%1» es el mismo archivo que la foto «%2». Mueva uno de los dos a otro lugar.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs.</source>
        <translation>Su resultado «%1» sería también el de «%2». Cambie el nombre de una de las dos fotos.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>En el lugar del resultado, «%1», hay una carpeta. Mueva la carpeta a otro lugar.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Su resultado «%1» ya existe. Indique --overwrite para reemplazarlo.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation>No se puede escribir el resultado: la carpeta «%1» es de solo lectura. Copie la foto en otra carpeta.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>El nombre del resultado sería demasiado largo. Dé a la foto un nombre más corto.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>El resultado se ha guardado, pero no se han podido copiar en él los datos XMP de la foto: %1.</translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation>El complemento ha fallado en %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay suficiente memoria.</translation>
    </message>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Detenido; no se ha escrito ningún resultado.</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Cierre otros programas o procese las fotos de una en una (--jobs 1).</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>Libere espacio en la carpeta «%1» y compruebe que tiene permiso para escribir en ella.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>El complemento ha escrito «%1» en lugar de «%2»</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>La foto se modificó, se movió o se borró mientras se quitaba la bruma. Vuelva a ponerla en su sitio y empiece de nuevo.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>La foto necesita unos %1 de memoria y hay %2 libres. Cierre otros programas o reduzca la foto.</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength requiere un número entero de 0 a 100 o auto, no «%1».</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs espera un número entero de 1 a %1, no «%2».</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>--language conoce %1, pero no «%2».</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>--settings espera el nombre de un archivo, en UTF-8.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with the wizard, which asks in its window.</source>
        <translation>--%1 no sirve para el asistente, que pregunta en su ventana.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Indique las fotos de las que se debe quitar la bruma.</translation>
    </message>
    <message>
        <source>veilaway takes the haze out of photographs.

Usage:
  veilaway [run] PHOTO... [options]
  veilaway [run] --settings FILE [options]
  veilaway wizard [PHOTO...] [options]
  veilaway --set-default N|auto|none
  veilaway --help | --version

Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.

The wizard opens a window: choose photographs, set the strength of each with a live preview, remove the haze, and compare. It takes --settings (which then holds the strengths), --language, --jobs, --share-services and --plugin.

Options:
  --strength N      How much haze to remove, in per cent: 0 leaves the picture as it is, 100 removes all of it, and auto chooses a strength for each photograph, from 50 for a dark one to 80 for a bright one. Without this option, the strength in the settings file is used, otherwise your stored default, otherwise 70.
  --set-default N   Store this default, a number or auto, or remove the stored one with none. Nothing else is done.
  --settings FILE   Keep the strength of each photograph in this XML file. If the file exists, its strengths are used, unless --strength is given too; afterwards it holds the strengths that were used. Without a PHOTO, all photographs in the file are done.
  --language LANG   Language of messages and of the tag: de, en, es, fr, it, ja, pl, ru, zh_CN or zh_TW. Without this option, the language of the system.
  --jobs N          Number of photographs to work on at the same time. Without this option, as many as keep all cores busy and fit into memory.
  --overwrite       Replace results that already exist.
  --quiet           Report failures only.
  --json            Write one line with a JSON object for each photograph: photo, result, status (done, unchanged, failed, stopped), strength, automatic, seconds, message, unchanged (the reason, or null).
  --share-services  Lend the plug-in the program&apos;s own services (log, memory pool, processor count) instead of letting it start its own.
  --plugin FILE     Load this plug-in file instead of Nimbra.so beside the program or in ../lib/nimbra.
  -h, --help        Show this text.
  --version         Show the versions of the program and the plug-in.
  --                Everything that follows is a photograph, even if it begins with a dash.

Formats:
  Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.
  Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others). The result is a 16-bit TIFF. Photographs with any other suffix, or none, become a TIFF too.
  XMP sidecar files are not read and stay where they are.

Exit status:
  0  All photographs are done, or came back unchanged (a message says why).
  1  Some are not: standard error says which, why, and what helps. Or standard output could not be written.
  2  The command line or the settings file is wrong; nothing was begun.
Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.

Examples:
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</source>
        <translation>veilaway quita la bruma de las fotos.

Uso:
  veilaway [run] FOTO... [opciones]
  veilaway [run] --settings ARCHIVO [opciones]
  veilaway wizard [FOTO...] [opciones]
  veilaway --set-default N|auto|none
  veilaway --help | --version

Cada resultado se guarda junto a su foto, con el nombre de esta y un sufijo: de hills.jpg se obtiene hills_sinbruma.jpg. La foto original no se modifica nunca. El sufijo depende del idioma: con --language en, por ejemplo, es _dehazed.

El asistente abre una ventana: elija las fotos, ajuste la potencia de cada una con una vista previa en directo, quite la bruma y compare. Admite --settings (el archivo contiene después las potencias), --language, --jobs, --share-services y --plugin.

Opciones:
  --strength N        Cuánta bruma se quita, en tanto por ciento: 0 deja la imagen como está, 100 la quita toda y auto se adapta a cada foto: desde 50 para una oscura hasta 80 para una clara. Sin esta opción se usa la potencia del archivo de ajustes; si no la hay, su valor predeterminado guardado y, en su defecto, 70.
  --set-default N     Guardar este valor predeterminado, un número o auto, o retirarlo con none. No hace nada más.
  --settings ARCHIVO  Conservar la potencia de cada foto en este archivo XML. Si el archivo existe, se usan sus potencias, salvo que se indique también --strength; al final contiene las potencias usadas. Sin FOTO, se procesan todas las fotos del archivo.
  --language LANG     Idioma de los mensajes y del sufijo: de, en, es, fr, it, ja, pl, ru, zh_CN o zh_TW. Sin esta opción, el del sistema.
  --jobs N            Número de fotos que se procesan a la vez. Sin esta opción, tantas como ocupen todos los núcleos y quepan en la memoria.
  --overwrite         Reemplazar los resultados que ya existan.
  --quiet             Informar solo de lo que ha fallado.
  --json              Escribir por cada foto una línea con un objeto JSON: photo, result, status (done, unchanged, failed, stopped), strength, automatic, seconds, message, unchanged (el motivo, o null).
  --share-services    Prestar al complemento los servicios del programa (registro, reserva de memoria, número de procesadores) en vez de dejar que los cree.
  --plugin ARCHIVO    Cargar este archivo de complemento en lugar de Nimbra.so, junto al programa o en ../lib/nimbra.
  -h, --help          Mostrar este texto.
  --version           Mostrar las versiones del programa y del complemento.
  --                  Lo que sigue son fotos, aunque empiecen por un guion.

Formatos:
  Lectura y escritura: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) y PSD. Un resultado tiene el formato de su foto, su profundidad (8 o 16 bits o coma flotante), su perfil de color y sus datos EXIF, IPTC y XMP. La orientación EXIF se conserva, de modo que el resultado se muestra igual que su foto.
  Solo lectura: RAW de cámara (dng, cr2, nef, arw, raf, orf, rw2 y otros). El resultado es un TIFF de 16 bits. Las fotos con otra extensión, o sin ella, se convierten también en TIFF. Los archivos XMP adjuntos se quedan como están y no se leen.

Códigos de salida:
  0  Se han procesado todas las fotos, o han quedado como estaban (y dice por qué).
  1  Algunas no: la salida de error estándar dice cuáles, por qué y qué hacer. O no se ha podido escribir en la salida estándar.
  2  La línea de comandos o el archivo de ajustes no son correctos; no se ha empezado nada.
Ctrl-C lo termina con la señal (130 en un shell), sin dejar resultados a medias.

Ejemplos:
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Consulte veilaway --help.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default requiere un número entero de 0 a 100, auto o none, no «%1».</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default guarda el valor predeterminado y no hace nada más: omita las fotos y las opciones para ellas.</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>El valor predeterminado no se puede guardar en «%1». Libere espacio o concédase permiso para escribir ahí.</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start the wizard in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>No se puede mostrar la ventana: %1. Inicie el asistente en una sesión gráfica, o desde otro equipo con ssh -X. Sin ventana, veilaway FOTO... hace el trabajo.</translation>
    </message>
</context>
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_sinbruma</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>No se puede abrir el archivo. Compruebe que existe y que tiene permiso para leerlo.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>El archivo está incompleto o dañado. Vuelva a copiarlo desde la cámara o desde una copia de seguridad.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>No hay suficiente memoria para esta foto. Cierre otros programas o procese las fotos de una en una (--jobs 1).</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>No es una imagen de un formato conocido, o su formato no es el que indica la extensión. Se pueden leer JPEG, PNG, TIFF, HDR, EXR, PSD y RAW de cámara; dé al archivo la extensión que le corresponde o conviértalo.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>Es un vídeo. La bruma solo se puede quitar de fotografías; guarde una imagen del vídeo como JPEG, PNG o TIFF.</translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Este tipo de píxeles no se puede leer. Guarde la foto como RGB de 8 o 16 bits e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Un nombre vacío no designa ninguna foto.</translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>El enlace no lleva a ninguna parte. Indique la propia foto.</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>Este archivo no existe. Compruebe el nombre y la carpeta.</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>Esto es una carpeta. Indique las fotos que contiene, por ejemplo «%1».</translation>
    </message>
    <message>
        <source>This is not a regular file. Copy the photograph into one.</source>
        <translation>Esto no es un archivo normal. Copie la foto en un archivo normal.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>No se puede leer el archivo. Asígnese permiso para leerlo.</translation>
    </message>
    <message>
        <source>The file is empty. Copy it again from the camera or a backup.</source>
        <translation>El archivo está vacío. Vuelva a copiarlo desde la cámara o desde una copia de seguridad.</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>No hay suficiente memoria para este archivo RAW. Cierre otros programas o procese las fotos de una en una (--jobs 1).</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>No se puede revelar el archivo RAW: %1. Vuelva a copiarlo o conviértalo a DNG o TIFF.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Su nombre o el de una carpeta contiene caracteres que no son UTF-8. Cámbiele el nombre.</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1: es el resultado de otra foto de la lista.</numerusform>
            <numerusform>%n resultados de otras fotos de la lista, por ejemplo «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Choose the photographs to remove haze from, or drop them here. They are never changed: each result is saved beside its photograph.</source>
        <translation>Elija las fotos de las que se debe quitar la bruma o arrástrelas aquí. Las fotos no se modifican: cada resultado se guarda junto a su foto.</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>&amp;Añadir fotos...</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>A&amp;brir una sesión...</translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation>Un archivo de ajustes con fotos y la potencia de cada una</translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation>%1: en esta carpeta no hay fotos.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>Leyendo %n foto...</numerusform>
            <numerusform>Leyendo %n fotos...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... y %n más</numerusform>
            <numerusform>... y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Omitidas:</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>Añadir fotos</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Fotos (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Abrir una sesión</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Archivos de ajustes (*.xml)</translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>La foto es demasiado grande: solo se puede quitar la bruma de fotos cuyo ancho o alto no supere los %1 píxeles. Redúzcala o divídala en partes.</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>No se encuentra el complemento «%1». Compílelo o instálelo, o indique dónde está con --plugin ARCHIVO.</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>» o «</translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>es un complemento de otro tipo</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>No se puede usar el complemento «%1»: %2. Vuelva a instalarlo o indique otro con --plugin ARCHIVO.</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n foto procesada.</numerusform>
            <numerusform>%n fotos procesadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation>Fotos procesadas: %1 de %2; no procesadas: %3.</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>leyendo</translation>
    </message>
    <message>
        <source>removing haze</source>
        <translation>quitando la bruma</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>guardando</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>Sin cambios: %n.</numerusform>
            <numerusform>Sin cambios: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>No se puede escribir en la salida estándar: %1. Libere espacio ahí o envíela a otro lugar.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>No se ha empezado %n foto.</numerusform>
            <numerusform>No se han empezado %n fotos.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %, %2 s</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;folder</source>
        <translation>Abrir la &amp;carpeta</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>&amp;Guardar la sesión...</translation>
    </message>
    <message>
        <source>Save the photographs and the strength of each in a settings file</source>
        <translation>Conservar las fotos y la potencia de cada una en un archivo de ajustes</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Se han procesado todas las fotos.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Fotos procesadas: %1 de %2.</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>&amp;Volver a empezar</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Elegir otras fotos</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>No se ha indicado --strength: se usa su valor predeterminado guardado, %1.</translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>No se ha indicado --strength ni hay un valor predeterminado guardado: se usa %1.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>El archivo de ajustes «%1» no contiene ninguna foto. Indique alguna.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>El archivo de ajustes «%1» no existe. Indique fotos para crearlo.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>El archivo de ajustes «%1» no se puede escribir ahí. Indique uno en otra carpeta.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>El archivo de ajustes «%1» tiene el nombre de un resultado. Dele otro nombre.</translation>
    </message>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Deteniendo; se termina el archivo que se está guardando. Pulse Ctrl-C otra vez para salir de inmediato.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>Se omite «%1», que es el resultado de otra de las fotos.</numerusform>
            <numerusform>Se omiten %n archivos que son resultados de las demás fotos, por ejemplo «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>No se ha indicado --strength: se usa su valor predeterminado guardado, la potencia automática.</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Removing haze</source>
        <translation>Quitando la bruma</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Cada resultado se guarda junto a su foto.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Conservar</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>Ya existe %n resultado de un proceso anterior.</numerusform>
            <numerusform>Ya existen %n resultados de un proceso anterior.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v de %m</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Leyendo</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Guardando</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Deteniendo. Antes se termina de guardar el resultado en curso.</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Su resultado ya existía y se ha conservado.</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Sin cambios</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservado</translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>Ya no hay ningún valor predeterminado guardado; sin --strength es %1 por ciento.</translation>
    </message>
    <message>
        <source>From now on, each photograph gets its automatic strength.</source>
        <translation>A partir de ahora, cada foto recibe su potencia automática.</translation>
    </message>
    <message>
        <source>From now on, the default strength is %1 per cent.</source>
        <translation>A partir de ahora, la potencia predeterminada es %1 por ciento.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation>No se puede usar el archivo de ajustes «%1»: %2. Repárelo o indique otro.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>línea %1, columna %2: %3</translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation>su elemento raíz no es &lt;%1&gt;</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %1</translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation>%1: una foto sin ruta</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1: «%2» aparece dos veces</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1: la foto necesita &lt;%2 %3=&quot;...&quot;/&gt; con un número entero de 0 a 100</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>No se puede escribir el archivo de ajustes «%1»: %2. Libere espacio o asígnese permiso para escribir ahí.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>El archivo de ajustes «%1» no puede incluir la foto «%2»: su nombre contiene caracteres de control. Cámbiele el nombre.</translation>
    </message>
</context>
<context>
    <name>TransposedRun</name>
    <message>
        <source>A temporary folder with a link to the photograph can&apos;t be created, neither beside it nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>No se puede crear una carpeta temporal con un enlace a la foto, ni junto a ella ni en «%1». Libere espacio allí y compruebe que tiene permiso para escribir.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>El complemento ha escrito «%1» en lugar de «%2»</translation>
    </message>
</context>
<context>
    <name>WizardWindow</name>
    <message>
        <source>veilaway</source>
        <translation>veilaway</translation>
    </message>
    <message>
        <source>&amp;Remove haze</source>
        <translation>&amp;Quitar la bruma</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Guardar la sesión</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Archivos de ajustes (*.xml)</translation>
    </message>
</context>
<context>
    <name>whyUnchanged</name>
    <message>
        <source>It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, or no pixel has a usable colour. Crop it, or repair its colours in an image editor.</source>
        <translation>La foto ha quedado como estaba, pues no se pudo medir bruma alguna: un lado es más de 100 000 veces más largo que el otro, o ningún píxel tiene un color utilizable. Recorte la foto o corrija sus colores en un editor de imágenes.</translation>
    </message>
    <message>
        <source>It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or memory ran short. Repair those pixels in an image editor, or close other programs and try again.</source>
        <translation>La foto ha quedado como estaba, pues no se pudo calcular la bruma: algunos píxeles tienen valores infinitos o indefinidos, o faltó memoria. Corrija esos píxeles en un editor de imágenes, o cierre otros programas y repita la operación.</translation>
    </message>
</context>
</TS>
