<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>Chyba GFL: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Soubor: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>Na „%1“ není dost volného místa k dokončení operace</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Do souboru „%1“ nelze zapisovat</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>Mazání uzamčeného vic</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>Nelze uvolnit žádný další blok:
není k dispozici dost paměti
nebo se používá příliš mnoho vláken</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>V dočasné složce už není místo</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>V jednom bloku není dost místa pro jeden řádek</translation>
    </message>
</context>
</TS>
