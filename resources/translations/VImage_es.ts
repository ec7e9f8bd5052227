<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>Error de GFL: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Archivo: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>No hay suficiente espacio libre en «%1» para terminar la operación</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>No se puede escribir en el archivo «%1»</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>Eliminación de un vic bloqueado</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>No quedan bloques que se puedan liberar:
no hay suficiente memoria disponible
o se usan demasiados hilos</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>No queda espacio en la carpeta temporal</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>No hay suficiente espacio para una línea en un bloque</translation>
    </message>
</context>
</TS>
