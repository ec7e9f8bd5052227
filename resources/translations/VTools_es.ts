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
        <source>File &quot;%1&quot; is not found</source>
        <translation>No se encuentra el archivo «%1»</translation>
    </message>
</context>
<context>
    <name>VLog</name>
    <message>
        <source>Critical error</source>
        <translation>Error crítico</translation>
    </message>
    <message>
        <source>Can not open file %1</source>
        <translation>No se puede abrir el archivo %1</translation>
    </message>
</context>
<context>
    <name>VSystemInfo</name>
    <message>
        <source>Bytes</source>
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
</TS>
