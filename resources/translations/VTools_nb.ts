<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>GFL-feil: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Fil: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>Det er ikke nok ledig plass på «%1» til å fullføre operasjonen</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Kan ikke skrive til filen «%1»</translation>
    </message>
    <message>
        <source>File &quot;%1&quot; is not found</source>
        <translation>Finner ikke filen «%1»</translation>
    </message>
</context>
<context>
    <name>VLog</name>
    <message>
        <source>Critical error</source>
        <translation>Kritisk feil</translation>
    </message>
    <message>
        <source>Can not open file %1</source>
        <translation>Kan ikke åpne filen %1</translation>
    </message>
</context>
<context>
    <name>VSystemInfo</name>
    <message>
        <source>Bytes</source>
        <translation>byte</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>kB</translation>
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
