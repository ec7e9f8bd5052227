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
        <source>Delete locked vic</source>
        <translation>Suppression d'un vic verrouillé</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>Plus aucun bloc ne peut être libéré :
mémoire disponible insuffisante
ou trop de threads utilisés</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>Plus d'espace dans le dossier temporaire</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>Espace insuffisant pour une ligne dans un bloc</translation>
    </message>
</context>
</TS>
