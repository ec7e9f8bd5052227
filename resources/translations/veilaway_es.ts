<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Su resultado «%1» ya existe. Indique --overwrite para reemplazarlo.</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>No se puede leer la carpeta. Dese permiso para leerla.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder or those inside it.</source>
        <translation>No hay fotos en esta carpeta ni en las que contiene.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder. Add --recursive for those in the folders inside it.</source>
        <translation>No hay fotos en esta carpeta. Añada --recursive para las de sus subcarpetas.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; already exists.</source>
        <translation>Omitida: su resultado «%1» ya existe.</translation>
    </message>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>La foto no tiene extensión, así que el resultado será un TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>El formato «%1» no se puede escribir, así que el resultado será un TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder for the results.</source>
        <translation>Su resultado «%1» es el mismo archivo que la foto «%2». Mueva uno de los dos o elija otra carpeta para los resultados.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder with --output.</source>
        <translation>Su resultado «%1» es el mismo archivo que la foto «%2». Mueva uno de los dos o elija otra carpeta con --output.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs, or give their results different folders.</source>
        <translation>Su resultado «%1» sería también el de «%2». Cambie el nombre de una de las dos fotos o dé a sus resultados carpetas distintas.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>En el lugar del resultado, «%1», hay una carpeta. Mueva la carpeta a otro lugar.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; is newer than the photograph.</source>
        <translation>Omitida: su resultado «%1» es más reciente que la foto.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder for the results.</source>
        <translation>Su resultado «%1» está protegido contra escritura o no es un archivo normal. Muévalo o elija otra carpeta para los resultados.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder with --output.</source>
        <translation>Su resultado «%1» está protegido contra escritura o no es un archivo normal. Muévalo o elija otra carpeta con --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one for the results.</source>
        <translation>No se puede escribir su resultado: «%1» no es una carpeta. Elija otra para los resultados.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one with --output.</source>
        <translation>No se puede escribir su resultado: «%1» no es una carpeta. Elija otra con --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one for the results.</source>
        <translation>No se puede escribir su resultado: la carpeta «%1» es de solo lectura. Elija otra para los resultados.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one with --output.</source>
        <translation>No se puede escribir su resultado: la carpeta «%1» es de solo lectura. Elija otra con --output.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>El nombre del resultado sería demasiado largo. Dé a la foto un nombre más corto.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Detenido; no se ha escrito ningún resultado.</translation>
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
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>La foto se modificó, se movió o se borró mientras se quitaba la bruma. Vuelva a ponerla en su sitio y empiece de nuevo.</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>Cierre otros programas e inténtelo de nuevo.</translation>
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
        <source>The file also holds a gain map or further pictures, which don&apos;t fit the result and are left out.</source>
        <translation>El archivo contiene además un mapa de ganancia u otras imágenes, que no corresponden al resultado y se omiten.</translation>
    </message>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>El resultado se ha guardado, pero no se han podido copiar en él los datos XMP de la foto: %1.</translation>
    </message>
    <message>
        <source>The result was written, but could not be given the photograph&apos;s time of modification: %1.</source>
        <translation>Se ha escrito el resultado, pero no se le pudo dar la fecha de modificación de la foto: %1.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>La foto necesita unos %1 de memoria y hay %2 libres. Cierre otros programas o reduzca la foto.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Did you mean --%1?</source>
        <translation>¿Quiso decir --%1?</translation>
    </message>
    <message>
        <source>Write &quot;./%1&quot; for the photograph of this name.</source>
        <translation>Escriba «./%1» para la foto de este nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be followed by one of %2, not &quot;%3&quot;.</source>
        <translation>Tras «%1» debe ir uno de %2, no «%3».</translation>
    </message>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength requiere un número entero de 0 a 100 o auto, no «%1».</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs espera un número entero de 1 a %1, no «%2».</translation>
    </message>
    <message>
        <source>--quality must be a whole number from 1 to 100, not &quot;%1&quot;.</source>
        <translation>--quality requiere un número entero de 1 a 100, no «%1».</translation>
    </message>
    <message>
        <source>--compression must be none, deflate or lzw, not &quot;%1&quot;.</source>
        <translation>--compression requiere none, deflate o lzw, no «%1».</translation>
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
        <source>--output must be the name of a folder or file, in UTF-8.</source>
        <translation>--output requiere el nombre de una carpeta o de un archivo, en UTF-8.</translation>
    </message>
    <message>
        <source>--tag is a part of a name: it must not contain a slash, and must be in UTF-8.</source>
        <translation>--tag es parte de un nombre: no puede contener una barra y debe estar en UTF-8.</translation>
    </message>
    <message>
        <source>Of --skip-existing, --newer and --overwrite, only one can be used at a time.</source>
        <translation>De --skip-existing, --newer y --overwrite solo se puede usar una a la vez.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default requiere un número entero de 0 a 100, auto o none, no «%1».</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default guarda el valor predeterminado y no hace nada más: omita las fotos y las opciones para ellas.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with %2, which asks for it on the screen.</source>
        <translation>--%1 no se puede usar con %2, que lo pregunta en la pantalla.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Indique las fotos de las que se debe quitar la bruma.</translation>
    </message>
    <message>
        <source>Also read here: %1</source>
        <translation>Aquí también se leen: %1</translation>
    </message>
    <message>
        <source>Not read here, for want of a decoder: %1</source>
        <translation>Aquí no se leen, por falta de descodificador: %1</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Consulte veilaway --help.</translation>
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
        <source>The window can&apos;t be shown: %1. Start it in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>No se puede mostrar la ventana: %1. Iníciela en una sesión gráfica, o desde otro equipo con ssh -X. Sin ventana, veilaway FOTO... hace el trabajo.</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Recent sessions</source>
        <translation>Sesiones recientes</translation>
    </message>
    <message>
        <source>Drop photographs or a folder here</source>
        <translation>Suelte aquí fotos o una carpeta</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>&amp;Añadir fotos...</translation>
    </message>
    <message>
        <source>Add a &amp;folder...</source>
        <translation>Añadir una &amp;carpeta...</translation>
    </message>
</context>
<context>
    <name>FilmstripDelegate</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>FilmstripView</name>
    <message>
        <source>Photographs</source>
        <translation>Fotos</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histograma</translation>
    </message>
    <message>
        <source>The result; dashed: the photograph as it was</source>
        <translation>El resultado; en trazos: la foto como era</translation>
    </message>
    <message>
        <source>Black %1 %, white %2 %</source>
        <translation>Negro %1 %, blanco %2 %</translation>
    </message>
    <message>
        <source>black %1 %</source>
        <translation>negro %1 %</translation>
    </message>
    <message>
        <source>white %1 %</source>
        <translation>blanco %1 %</translation>
    </message>
</context>
<context>
    <name>KeySheet</name>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>Cerrar el mensaje</translation>
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
    <name>OptionTable</name>
    <message>
        <source>veilaway takes the haze out of photographs.</source>
        <translation>veilaway quita la bruma de las fotos.</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Uso:</translation>
    </message>
    <message>
        <source>PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for such a list on standard input.</source>
        <translation>PHOTO es una foto, una carpeta con fotos, @FILE para un archivo que las enumera, una por línea, o - para una lista así en la entrada estándar.</translation>
    </message>
    <message>
        <source>Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.</source>
        <translation>Cada resultado se escribe junto a su foto, con el nombre de esta y una etiqueta: hills.jpg pasa a ser hills_dehazed.jpg. La foto misma no se modifica nunca. La etiqueta sigue el idioma: _entnebelt con --language de, por ejemplo.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Órdenes:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Everything that follows is a photograph, even if it begins with a dash.</source>
        <translation>Todo lo que sigue es una foto, aunque empiece por un guion.</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>Formatos:</translation>
    </message>
    <message>
        <source>Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.</source>
        <translation>Se leen y escriben: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) y PSD. Un resultado tiene el formato de su foto, su profundidad (8 o 16 bits, o coma flotante), perfil de color, EXIF, IPTC y XMP. La orientación EXIF se conserva, así que el resultado se muestra en la misma posición.</translation>
    </message>
    <message>
        <source>Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others), whose result is a 16-bit TIFF, and, where --version names them, HEIC (heic, heif, hif), AVIF, WebP and JPEG XL (jxl), whose result is a TIFF of their depth. Photographs with any other suffix, or none, become a TIFF too.</source>
        <translation>Solo se leen: archivos RAW (dng, cr2, nef, arw, raf, orf, rw2 y otros), cuyo resultado es un TIFF de 16 bits, y, donde --version los nombra, HEIC (heic, heif, hif), AVIF, WebP y JPEG XL (jxl), cuyo resultado es un TIFF de su profundidad. Las fotos con otra extensión, o sin ella, también dan un TIFF.</translation>
    </message>
    <message>
        <source>XMP sidecar files are not read and stay where they are.</source>
        <translation>Los archivos XMP adjuntos no se leen y se quedan donde están.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Código de salida:</translation>
    </message>
    <message>
        <source>All photographs are done, skipped as requested, or came back unchanged (a message says why).</source>
        <translation>Todas las fotos están listas, se omitieron como se pidió o quedaron sin cambios (un mensaje dice por qué).</translation>
    </message>
    <message>
        <source>Some are not: standard error says which, why, and what helps. Or standard output could not be written.</source>
        <translation>Algunas no lo están: la salida de error dice cuáles, por qué y qué ayuda. O no se pudo escribir en la salida estándar.</translation>
    </message>
    <message>
        <source>The command line or the settings file is wrong; nothing was begun.</source>
        <translation>La línea de órdenes o el archivo de ajustes es incorrecto; no se empezó nada.</translation>
    </message>
    <message>
        <source>Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.</source>
        <translation>Ctrl-C termina el programa con esa señal (130 en un intérprete de órdenes) sin dejar un resultado a medias.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Ejemplos:</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>No se puede abrir el archivo. Compruebe que existe y que tiene permiso para leerlo.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>Es un vídeo. La bruma solo se puede quitar de fotografías; guarde una imagen del vídeo como JPEG, PNG o TIFF.</translation>
    </message>
    <message>
        <source>It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>Es una animación. La bruma solo se puede quitar de fotos; guarde un fotograma como JPEG, PNG o TIFF.</translation>
    </message>
    <message>
        <source>This installation can&apos;t decode its format; veilaway --version says which formats it can. Convert the photograph to JPEG, PNG or TIFF.</source>
        <translation>Esta instalación no puede descodificar su formato; veilaway --version dice cuáles puede. Convierta la foto a JPEG, PNG o TIFF.</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>No es una imagen de un formato conocido, o no del que indica su extensión. Se pueden leer %1 y archivos RAW; dé al archivo la extensión de su formato o conviértalo.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>El archivo está incompleto o dañado. Vuelva a copiarlo desde la cámara o desde una copia de seguridad.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs and try again.</source>
        <translation>No hay suficiente memoria para esta foto. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>No hay suficiente memoria para esta foto. Cierre otros programas o procese las fotos de una en una (--jobs 1).</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs and try again.</source>
        <translation>No hay suficiente memoria para este archivo RAW. Cierre otros programas e inténtelo de nuevo.</translation>
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
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Este tipo de píxeles no se puede leer. Guarde la foto como RGB de 8 o 16 bits e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Un nombre vacío no designa ninguna foto.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Su nombre o el de una carpeta contiene caracteres que no son UTF-8. Cámbiele el nombre.</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be opened. Give yourself the permission to open it.</source>
        <translation>No se puede abrir su carpeta. Dese permiso para abrirla.</translation>
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
</context>
<context>
    <name>PhotoPage</name>
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
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1: es el resultado de otra foto de la lista.</numerusform>
            <numerusform>%n resultados de otras fotos de la lista, por ejemplo «%1».</numerusform>
        </translation>
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
    <name>PhotoStore</name>
    <message>
        <source>There is not enough memory for it. Close other programs, or scale the photograph down.</source>
        <translation>No hay memoria suficiente para ella. Cierre otros programas o reduzca la foto.</translation>
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
    <name>PhotographList</name>
    <message>
        <source>The list &quot;%1&quot; can&apos;t be read: %2. Check its name, or write ./@... for a photograph whose name begins with @.</source>
        <translation>No se puede leer la lista «%1»: %2. Compruebe su nombre, o escriba ./@... para una foto cuyo nombre empiece por @.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.</source>
        <translation>La lista «%1» contiene bytes nulos. Añada --null (-0) si los nombres terminan con ellos, o guárdela como texto en UTF-8.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds no null bytes. Leave out --null (-0) if it has one name per line.</source>
        <translation>La lista «%1» no contiene bytes nulos. Omita --null (-0) si tiene un nombre por línea.</translation>
    </message>
</context>
<context>
    <name>PictureRenderer</name>
    <message>
        <source>There is not enough memory for this picture. Close other programs.</source>
        <translation>No hay memoria suficiente para esta imagen. Cierre otros programas.</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Intentar de nuevo</translation>
    </message>
    <message>
        <source>Hold: the photograph before</source>
        <translation>Mantener: la foto antes</translation>
    </message>
    <message>
        <source>Hold: the haze map; Alt does the same</source>
        <translation>Mantener: el mapa de bruma; Alt hace lo mismo</translation>
    </message>
    <message>
        <source>Move over the photograph</source>
        <translation>Moverse por la foto</translation>
    </message>
    <message>
        <source>Move the line between before and after</source>
        <translation>Mover la línea entre antes y después</translation>
    </message>
    <message>
        <source>Before, zoom %1 %</source>
        <translation>Antes, zoom %1 %</translation>
    </message>
    <message>
        <source>Haze map, zoom %1 %</source>
        <translation>Mapa de bruma, zoom %1 %</translation>
    </message>
    <message>
        <source>After %1 %, zoom %2 %</source>
        <translation>Después %1 %, zoom %2 %</translation>
    </message>
    <message>
        <source>Before and after %1 %, zoom %2 %</source>
        <translation>Antes y después %1 %, zoom %2 %</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Mapa de bruma</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After %1 %</source>
        <translation>Después %1 %</translation>
    </message>
    <message>
        <source>Estimating the haze</source>
        <translation>Estimando la bruma</translation>
    </message>
    <message>
        <source>Reading the photograph</source>
        <translation>Leyendo la foto</translation>
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
    <name>PrivateRun</name>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder for the results.</source>
        <translation>No se pueden crear archivos en la carpeta «%1»: %2. Libere espacio en ella o elija otra carpeta para los resultados.</translation>
    </message>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder with --output.</source>
        <translation>No se pueden crear archivos en la carpeta «%1»: %2. Libere espacio en ella o elija otra carpeta con --output.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2.</source>
        <translation>No se puede escribir «%1»: %2.</translation>
    </message>
    <message>
        <source>A link to the photograph can&apos;t be created, neither in the folder of its result nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>No se puede crear un enlace a la foto ni en la carpeta de su resultado ni en «%1». Libere espacio y compruebe que puede escribir allí.</translation>
    </message>
    <message>
        <source>Its %1 bits per channel don&apos;t fit into a file of this format. Choose a name that ends in .tif, .psd or, for up to 16 bits, .png.</source>
        <translation>Sus %1 bits por canal no caben en un archivo de este formato. Elija un nombre que termine en .tif, .psd o, hasta 16 bits, .png.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>El complemento escribió «%1» en lugar de «%2»</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>No se puede escribir en la salida estándar: %1. Libere espacio ahí o envíela a otro lugar.</translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %, %2 s</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message>
        <source>automatic strength</source>
        <translation>potencia automática</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1: %2 (%3 x %4 pixels, %5 of memory, %6)</source>
        <translation>%1: %2 (%3 x %4 píxeles, %5 de memoria, %6)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>Se procesaría %n foto.</numerusform>
            <numerusform>Se procesarían %n fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n foto procesada.</numerusform>
            <numerusform>%n fotos procesadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n quedó sin cambios.</numerusform>
            <numerusform>%n quedaron sin cambios.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>%n omitida.</numerusform>
            <numerusform>%n omitidas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>%n con error.</numerusform>
            <numerusform>%n con error.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>%n sin empezar.</numerusform>
            <numerusform>%n sin empezar.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>, quedan %1</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>guardando %1</translation>
    </message>
    <message>
        <source>removing haze: %1</source>
        <translation>quitando la bruma: %1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>leyendo %1</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;result</source>
        <translation>Abrir el &amp;resultado</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>Abrir la &amp;carpeta</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Show the result in the program that opens such pictures</source>
        <translation>Mostrar el resultado en el programa que abre esas imágenes</translation>
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
        <source>Start &amp;over</source>
        <translation>&amp;Volver a empezar</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Elegir otras fotos</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Se han procesado todas las fotos.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Fotos procesadas: %1 de %2.</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Deteniendo; se termina el archivo que se está guardando. Pulse Ctrl-C otra vez para salir de inmediato.</translation>
    </message>
    <message>
        <source>Remove haze</source>
        <translation>Quitar la bruma</translation>
    </message>
    <message>
        <source>There is no desktop that shows notifications.</source>
        <translation>No hay ningún escritorio que muestre notificaciones.</translation>
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
        <source>The list names no photographs: there is nothing to do.</source>
        <translation>La lista no nombra ninguna foto: no hay nada que hacer.</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists and is not a folder. Name another one.</source>
        <translation>--output: «%1» existe y no es una carpeta. Indique otra.</translation>
    </message>
    <message>
        <source>--output: results can&apos;t be written as &quot;%1&quot;. Choose a name that ends in one of %2.</source>
        <translation>--output: no se pueden escribir resultados como «%1». Elija un nombre que termine en uno de %2.</translation>
    </message>
    <message>
        <source>--output names the file &quot;%1&quot;, but there are %2 photographs. Name a folder, such as &quot;%3&quot;.</source>
        <translation>--output nombra el archivo «%1», pero hay %2 fotos. Indique una carpeta, como «%3».</translation>
    </message>
    <message>
        <source>--tag is for results that get their names from their photographs: leave it out, or name a folder as --output.</source>
        <translation>--tag es para resultados que toman su nombre de las fotos: omítalo o indique una carpeta en --output.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>Se omite «%1», que es el resultado de otra de las fotos.</numerusform>
            <numerusform>Se omiten %n archivos que son resultados de las demás fotos, por ejemplo «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>No se ha indicado --strength ni hay un valor predeterminado guardado: se usa %1.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>No se ha indicado --strength: se usa su valor predeterminado guardado, la potencia automática.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>No se ha indicado --strength: se usa su valor predeterminado guardado, %1.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>El archivo de ajustes «%1» tiene el nombre de un resultado. Dele otro nombre.</translation>
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
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Conservar</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Fotos</translation>
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
    <message>
        <source>Photographs that are done</source>
        <translation>Fotos terminadas</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Cada resultado se guarda junto a su foto.</translation>
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
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Deteniendo. Antes se termina de guardar el resultado en curso.</translation>
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
        <source>Its result already existed and was kept.</source>
        <translation>Su resultado ya existía y se ha conservado.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Sin cambios</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>SaveBar</name>
    <message>
        <source>less than a minute left</source>
        <translation>queda menos de un minuto</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>queda aproximadamente %n minuto</numerusform>
            <numerusform>quedan aproximadamente %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>queda aproximadamente %n hora</numerusform>
            <numerusform>quedan aproximadamente %n horas</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Guardando</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 de %2 guardadas</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>En pausa: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>%n foto guardada</numerusform>
            <numerusform>%n fotos guardadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>%n conservada</numerusform>
            <numerusform>%n conservadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n con error</numerusform>
            <numerusform>%n con error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>%n detenida</numerusform>
            <numerusform>%n detenidas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveOptionsDialog</name>
    <message>
        <source>In this &amp;folder:</source>
        <translation>En esta &amp;carpeta:</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Elegir...</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>Calidad &amp;JPEG:</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>Opciones de guardado</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Otherwise each result is saved beside its photograph</source>
        <translation>Si no, cada resultado se guarda junto a su foto</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>Carpeta de los resultados</translation>
    </message>
    <message>
        <source>&amp;Tag behind the name:</source>
        <translation>E&amp;tiqueta tras el nombre:</translation>
    </message>
    <message>
        <source>Otherwise each JPEG keeps the quality of its photograph</source>
        <translation>Si no, cada JPEG conserva la calidad de su foto</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Calidad JPEG</translation>
    </message>
    <message>
        <source>If a result exists already</source>
        <translation>Si ya existe un resultado</translation>
    </message>
    <message>
        <source>&amp;Replace it if its strength has changed</source>
        <translation>&amp;Reemplazarlo si su potencia ha cambiado</translation>
    </message>
    <message>
        <source>Replace it in &amp;any case</source>
        <translation>Reemplazarlo &amp;siempre</translation>
    </message>
    <message>
        <source>Keep &amp;both: the new one gets a number</source>
        <translation>Conservar &amp;ambos: el nuevo recibe un número</translation>
    </message>
    <message>
        <source>&amp;Keep it and save nothing</source>
        <translation>Conservarlo y &amp;no guardar nada</translation>
    </message>
    <message>
        <source>A tag can&apos;t contain &quot;/&quot;.</source>
        <translation>Una etiqueta no puede contener «/».</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;. Choose one that exists.</source>
        <translation>No existe la carpeta «%1». Elija una que exista.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Choose another one.</source>
        <translation>La carpeta «%1» es de solo lectura. Elija otra.</translation>
    </message>
    <message>
        <source>%1 becomes %2.</source>
        <translation>%1 pasa a ser %2.</translation>
    </message>
</context>
<context>
    <name>SaveQueue</name>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Su resultado ya existía y se ha conservado.</translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message>
        <source>edited</source>
        <translation>editada</translation>
    </message>
    <message>
        <source>waiting to be saved</source>
        <translation>en espera de guardarse</translation>
    </message>
    <message>
        <source>being saved</source>
        <translation>guardándose</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>guardada</translation>
    </message>
    <message>
        <source>changed since it was saved</source>
        <translation>cambiada desde que se guardó</translation>
    </message>
    <message>
        <source>existing result kept</source>
        <translation>se conservó el resultado existente</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>error</translation>
    </message>
    <message>
        <source>Strength %1 %, automatic</source>
        <translation>Potencia %1 %, automática</translation>
    </message>
    <message>
        <source>Strength %1 %</source>
        <translation>Potencia %1 %</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>Archivo RAW</translation>
    </message>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>Añadir %n foto</numerusform>
            <numerusform>Añadir %n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Change strength</source>
        <translation>Cambiar la potencia</translation>
    </message>
    <message>
        <source>Automatic strength</source>
        <translation>Potencia automática</translation>
    </message>
    <message>
        <source>Reset strength</source>
        <translation>Restablecer la potencia</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>Quitar %n foto</numerusform>
            <numerusform>Quitar %n fotos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The session can&apos;t be kept in &quot;%1&quot;: %2. Make room, or give yourself permission to write there.</source>
        <translation>La sesión no se puede conservar en «%1»: %2. Libere espacio o dese permiso para escribir allí.</translation>
    </message>
    <message>
        <source>Another window works on the settings file &quot;%1&quot;. Close it there first.</source>
        <translation>Otra ventana usa el archivo de ajustes «%1». Ciérrelo allí primero.</translation>
    </message>
    <message>
        <source>The session in &quot;%1&quot; can&apos;t be read: %2. Open its photographs or a settings file instead.</source>
        <translation>No se puede leer la sesión de «%1»: %2. Abra en su lugar sus fotos o un archivo de ajustes.</translation>
    </message>
    <message>
        <source>Another window works on this session. Close it there first.</source>
        <translation>Otra ventana usa esta sesión. Ciérrela allí primero.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Check its name and folder.</source>
        <translation>No hay ningún archivo de ajustes «%1». Compruebe su nombre y su carpeta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photographs. Give the settings file another name.</source>
        <translation>«%1» es una de las fotos. Dé otro nombre al archivo de ajustes.</translation>
    </message>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>Se perdería la potencia de %n foto.</numerusform>
            <numerusform>Se perderían las potencias de %n fotos.</numerusform>
        </translation>
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
    <name>StrengthPanel</name>
    <message>
        <source>&amp;Strength</source>
        <translation>&amp;Potencia</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <source>How much of the haze is removed</source>
        <translation>Cuánta bruma se quita</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Potencia en tanto por ciento</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automática</translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>Add photographs...</source>
        <translation>Añadir fotos...</translation>
    </message>
    <message>
        <source>Add photographs to the series</source>
        <translation>Añadir fotos a la serie</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Añadir una carpeta...</translation>
    </message>
    <message>
        <source>Add the photographs of a folder to the series</source>
        <translation>Añadir a la serie las fotos de una carpeta</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Volver a empezar</translation>
    </message>
    <message>
        <source>Begin an empty series; this one stays among the recent sessions</source>
        <translation>Empezar una serie vacía; esta queda entre las sesiones recientes</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>Abrir una sesió&amp;n...</translation>
    </message>
    <message>
        <source>Open photographs and strengths that were saved as a session</source>
        <translation>Abrir fotos y potencias guardadas como sesión</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Guardar la sesión</translation>
    </message>
    <message>
        <source>Save the list of photographs and their strengths</source>
        <translation>Guardar la lista de fotos y sus potencias</translation>
    </message>
    <message>
        <source>Save the session as...</source>
        <translation>Guardar la sesión como...</translation>
    </message>
    <message>
        <source>Save the session under another name</source>
        <translation>Guardar la sesión con otro nombre</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Foto anterior</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Foto siguiente</translation>
    </message>
    <message>
        <source>First photograph</source>
        <translation>Primera foto</translation>
    </message>
    <message>
        <source>Last photograph</source>
        <translation>Última foto</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Select all photographs</source>
        <translation>Seleccionar todas las fotos</translation>
    </message>
    <message>
        <source>Remove from the series</source>
        <translation>Quitar de la serie</translation>
    </message>
    <message>
        <source>Remove the selected photographs from the series; the files stay</source>
        <translation>Quitar de la serie las fotos seleccionadas; los archivos se quedan</translation>
    </message>
    <message>
        <source>Stronger</source>
        <translation>Más fuerte</translation>
    </message>
    <message>
        <source>Raise the strength by 1 per cent</source>
        <translation>Subir la potencia un 1 por ciento</translation>
    </message>
    <message>
        <source>Weaker</source>
        <translation>Más débil</translation>
    </message>
    <message>
        <source>Lower the strength by 1 per cent</source>
        <translation>Bajar la potencia un 1 por ciento</translation>
    </message>
    <message>
        <source>Stronger by 10</source>
        <translation>10 más fuerte</translation>
    </message>
    <message>
        <source>Raise the strength by 10 per cent</source>
        <translation>Subir la potencia un 10 por ciento</translation>
    </message>
    <message>
        <source>Weaker by 10</source>
        <translation>10 más débil</translation>
    </message>
    <message>
        <source>Lower the strength by 10 per cent</source>
        <translation>Bajar la potencia un 10 por ciento</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Give each selected photograph the strength that suits it</source>
        <translation>Dar a cada foto seleccionada la potencia que le conviene</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Go back to the strength at the start</source>
        <translation>Volver a la potencia inicial</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Deshacer el último cambio</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Make the change again that was undone</source>
        <translation>Volver a hacer el cambio deshecho</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected</source>
        <translation>Aplicar a la &amp;selección</translation>
    </message>
    <message>
        <source>Use this strength for all selected photographs</source>
        <translation>Usar esta potencia para todas las fotos seleccionadas</translation>
    </message>
    <message>
        <source>App&amp;ly to all</source>
        <translation>Aplicar a &amp;todas</translation>
    </message>
    <message>
        <source>Use this strength for all photographs of the series</source>
        <translation>Usar esta potencia para todas las fotos de la serie</translation>
    </message>
    <message>
        <source>Use as &amp;default</source>
        <translation>Usar por &amp;defecto</translation>
    </message>
    <message>
        <source>Start new photographs at this strength from now on</source>
        <translation>Empezar las fotos nuevas con esta potencia a partir de ahora</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Dividida</translation>
    </message>
    <message>
        <source>Before and after in one picture, with a line to drag</source>
        <translation>Antes y después en una imagen, con una línea que se arrastra</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Lado a lado</translation>
    </message>
    <message>
        <source>Before and after side by side</source>
        <translation>Antes y después lado a lado</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Only the result</source>
        <translation>Solo el resultado</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Hold, or hold Space: the photograph as it was</source>
        <translation>Mantener, o mantener Espacio: la foto como era</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Mapa de bruma</translation>
    </message>
    <message>
        <source>Hold, or hold M: where haze was found</source>
        <translation>Mantener, o mantener M: dónde se encontró bruma</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Recorte</translation>
    </message>
    <message>
        <source>Mark pixels that became black or white</source>
        <translation>Marcar los píxeles que quedaron negros o blancos</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show the whole photograph</source>
        <translation>Mostrar la foto entera</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show each pixel as it is, where the pointer is</source>
        <translation>Mostrar cada píxel tal como es, donde está el puntero</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>Show pixels at twice their size</source>
        <translation>Mostrar los píxeles al doble de su tamaño</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show pixels at four times their size</source>
        <translation>Mostrar los píxeles a cuatro veces su tamaño</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Save this one</source>
        <translation>Guardar esta</translation>
    </message>
    <message>
        <source>Save the result of this photograph</source>
        <translation>Guardar el resultado de esta foto</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Guardar todas</translation>
    </message>
    <message>
        <source>Save the results of the whole series</source>
        <translation>Guardar los resultados de toda la serie</translation>
    </message>
    <message>
        <source>Save op&amp;tions...</source>
        <translation>&amp;Opciones de guardado...</translation>
    </message>
    <message>
        <source>Folder, tag and quality of the results, and what happens to existing ones</source>
        <translation>Carpeta, etiqueta y calidad de los resultados, y qué pasa con los existentes</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pa&amp;usa</translation>
    </message>
    <message>
        <source>Finish the photographs in work and begin no other until you resume</source>
        <translation>Terminar las fotos en curso y no empezar otras hasta reanudar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stop saving; results that are complete stay</source>
        <translation>Dejar de guardar; los resultados completos se quedan</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Intentar de nuevo</translation>
    </message>
    <message>
        <source>Try again those photographs that failed</source>
        <translation>Intentar de nuevo con las fotos que fallaron</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Use the whole screen, or go back to the window</source>
        <translation>Usar toda la pantalla o volver a la ventana</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>Mostrar todas las teclas</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
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
        <source>Set how much haze to remove from each photograph. Hold Alt to see where the haze is.</source>
        <translation>Indique cuánta bruma quitar de cada foto. Mantenga Alt para ver dónde está la bruma.</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Potencia en tanto por ciento</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Foto anterior</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Foto siguiente</translation>
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
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1, %n foto, %2</numerusform>
            <numerusform>%1, %n fotos, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Drag the line to compare. Hold Space: before. Left, Right: photograph. Up, Down: strength.</source>
        <translation>Arrastrar la línea: comparar. Mantener Espacio: antes. Izquierda, derecha: foto. Arriba, abajo: potencia.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Open, save or begin a session: photographs with their strengths</source>
        <translation>Abrir, guardar o empezar una sesión: fotos con sus potencias</translation>
    </message>
    <message>
        <source>&amp;Recent sessions</source>
        <translation>Sesiones re&amp;cientes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 x %2 px, %3 bits</source>
        <translation>%1 x %2 px, %3 bits</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>Resultado: %1</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected (%1)</source>
        <translation>Aplicar a la &amp;selección (%1)</translation>
    </message>
    <message>
        <source>App&amp;ly to all (%1)</source>
        <translation>Aplicar a &amp;todas (%1)</translation>
    </message>
    <message>
        <source>Save all %1</source>
        <translation>Guardar las %1</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Reanudar</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pa&amp;usa</translation>
    </message>
    <message>
        <source>veilaway</source>
        <translation>veilaway</translation>
    </message>
    <message>
        <source>%1[*] - veilaway</source>
        <translation>%1[*] - veilaway</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) left out.</source>
        <translation>
            <numerusform>%n resultado omitido.</numerusform>
            <numerusform>%n resultados omitidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photographs in the folder &quot;%1&quot;.</source>
        <translation>No hay fotos en la carpeta «%1».</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>Quedaba por guardar %n foto de esta serie.</numerusform>
            <numerusform>Quedaban por guardar %n fotos de esta serie.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Save them now</source>
        <translation>&amp;Guardarlas ahora</translation>
    </message>
    <message>
        <source>The series is as you left it.</source>
        <translation>La serie está como la dejó.</translation>
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
        <source>Add a folder</source>
        <translation>Añadir una carpeta</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Abrir una sesión</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Archivos de ajustes (*.xml)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Guardar la sesión</translation>
    </message>
    <message>
        <source>New photographs start at their automatic strength.</source>
        <translation>Las fotos nuevas empiezan con su potencia automática.</translation>
    </message>
    <message>
        <source>New photographs start at %1 %.</source>
        <translation>Las fotos nuevas empiezan al %1 %.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>No se pudo guardar %n foto.</numerusform>
            <numerusform>No se pudieron guardar %n fotos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Try a&amp;gain</source>
        <translation>&amp;Intentar de nuevo</translation>
    </message>
    <message>
        <source>Saving has ended</source>
        <translation>Guardado terminado</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>C&amp;errar de todos modos</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>&amp;Quedarse</translation>
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
