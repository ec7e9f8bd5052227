<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>Error GFL : &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>File : &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>Not enough free space on &quot;%1&quot; to finish operation</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Cannot write into file &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>Delete locked vic</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>No more block freeable :
not enough memory available
or too many threads used</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>No more space in temporary folder</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>Not enough space for one line in one block</translation>
    </message>
</context>
</TS>
