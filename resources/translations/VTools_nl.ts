<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>GFL-fout: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Bestand: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>Er is niet genoeg vrije ruimte op &quot;%1&quot; om de bewerking te voltooien</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Kan niet schrijven naar bestand &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File &quot;%1&quot; is not found</source>
        <translation>Bestand &quot;%1&quot; is niet gevonden</translation>
    </message>
</context>
<context>
    <name>VLog</name>
    <message>
        <source>Critical error</source>
        <translation>Kritieke fout</translation>
    </message>
    <message>
        <source>Can not open file %1</source>
        <translation>Kan bestand %1 niet openen</translation>
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
