<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>Errore GFL: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>File: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>Spazio libero insufficiente su &quot;%1&quot; per completare l'operazione</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Impossibile scrivere nel file &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>Eliminazione di un vic bloccato</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>Nessun altro blocco liberabile:
memoria disponibile insufficiente
o troppi thread in uso</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>Spazio esaurito nella cartella temporanea</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>Spazio insufficiente per una riga in un blocco</translation>
    </message>
</context>
</TS>
