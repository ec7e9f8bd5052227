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
        <source>Delete locked vic</source>
        <translation>Sletting av en låst vic</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>Ingen flere blokker kan frigjøres:
det er ikke nok ledig minne
eller det brukes for mange tråder</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>Ikke mer plass i den midlertidige mappen</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>Ikke nok plass til én linje i én blokk</translation>
    </message>
</context>
</TS>
