<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_entnebelt</translation>
    </message>
    <message>
        <source>Haze is an atmospheric phenomenon that can affect outdoor photos. Everything far from the shooter seems to be covered by a white layer.This plugin helps you to remove the haze and clean your photo. To do that, it analyses each pixel to calculate the depth of air.</source>
        <translation>Dunst ist eine atmosphärische Erscheinung, die Außenaufnahmen beeinträchtigen kann. Alles, was weit vom Fotografen entfernt ist, scheint von einer weißen Schicht bedeckt zu sein. Dieses Modul hilft Ihnen, den Dunst zu entfernen und Ihr Foto zu klären. Dazu untersucht es jedes Pixel und berechnet die Tiefe der Luft.</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
</context>
<context>
    <name>UIHazePreview</name>
    <message>
        <source>Preview is uptodate</source>
        <translation>Die Vorschau ist aktuell</translation>
    </message>
</context>
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Haze correction</source>
        <translation>Dunstkorrektur</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Split preview</source>
        <translation>Geteilte Vorschau</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizard</name>
    <message>
        <source>Next</source>
        <translation>Nächstes</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Vorheriges</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizardClass</name>
    <message>
        <source>Apply to all images</source>
        <translation>Auf alle Bilder anwenden</translation>
    </message>
    <message>
        <source>WizardPage</source>
        <translation>Assistentenseite</translation>
    </message>
</context>
</TS>
