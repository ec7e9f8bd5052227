<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>Błąd GFL: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Plik: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>Za mało wolnego miejsca na „%1”, aby dokończyć operację</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Nie można zapisać do pliku „%1”</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>Usuwanie zablokowanego vic</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>Nie można zwolnić kolejnego bloku:
za mało dostępnej pamięci
lub używa się zbyt wielu wątków</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>Brak miejsca w folderze tymczasowym</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>Za mało miejsca na jeden wiersz w jednym bloku</translation>
    </message>
</context>
</TS>
