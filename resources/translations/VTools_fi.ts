<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>GFL-virhe: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Tiedosto: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>Kohteessa ”%1” ei ole tarpeeksi vapaata tilaa toiminnon loppuun viemiseksi</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Tiedostoon ”%1” ei voi kirjoittaa</translation>
    </message>
    <message>
        <source>File &quot;%1&quot; is not found</source>
        <translation>Tiedostoa ”%1” ei löydy</translation>
    </message>
</context>
<context>
    <name>VLog</name>
    <message>
        <source>Critical error</source>
        <translation>Vakava virhe</translation>
    </message>
    <message>
        <source>Can not open file %1</source>
        <translation>Tiedostoa %1 ei voi avata</translation>
    </message>
</context>
<context>
    <name>VSystemInfo</name>
    <message>
        <source>Bytes</source>
        <translation>tavua</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>kt</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mt</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Gt</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>Tt</translation>
    </message>
</context>
</TS>
