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
        <source>Delete locked vic</source>
        <translation>Verwijderen van een vergrendelde vic</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>Er kunnen geen blokken meer worden vrijgegeven:
niet genoeg geheugen beschikbaar
of te veel threads in gebruik</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>Geen ruimte meer in de tijdelijke map</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>Niet genoeg ruimte voor één regel in één blok</translation>
    </message>
</context>
</TS>
