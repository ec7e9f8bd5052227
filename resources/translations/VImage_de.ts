<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>GFL-Fehler: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Datei: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>Auf „%1“ ist nicht genug Speicherplatz frei, um den Vorgang abzuschließen</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>Löschen eines gesperrten vic</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>Es kann kein weiterer Block freigegeben werden:
es ist nicht genug Speicher verfügbar
oder es werden zu viele Threads verwendet</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>Im temporären Ordner ist kein Platz mehr</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>In einem Block ist nicht genug Platz für eine Zeile</translation>
    </message>
</context>
</TS>
