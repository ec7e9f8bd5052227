<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>Erreur GFL : &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Fichier : &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>L'espace libre sur « %1 » est insuffisant pour terminer l'opération</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Impossible d'écrire dans le fichier « %1 »</translation>
    </message>
    <message>
        <source>File &quot;%1&quot; is not found</source>
        <translation>Le fichier « %1 » est introuvable</translation>
    </message>
</context>
<context>
    <name>VLog</name>
    <message>
        <source>Critical error</source>
        <translation>Erreur critique</translation>
    </message>
    <message>
        <source>Can not open file %1</source>
        <translation>Impossible d'ouvrir le fichier %1</translation>
    </message>
</context>
<context>
    <name>VSystemInfo</name>
    <message>
        <source>Bytes</source>
        <translation>octets</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>To</translation>
    </message>
</context>
</TS>
