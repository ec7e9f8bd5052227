<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_dehazed</translation>
    </message>
    <message>
        <source>Haze is an atmospheric phenomenon that can affect outdoor photos. Everything far from the shooter seems to be covered by a white layer.This plugin helps you to remove the haze and clean your photo. To do that, it analyses each pixel to calculate the depth of air.</source>
        <translation>Zamglenie to zjawisko atmosferyczne, które może pogarszać zdjęcia wykonane w plenerze. Wszystko, co jest daleko od fotografa, wydaje się pokryte białą warstwą. Ta wtyczka pomaga usunąć zamglenie i oczyścić zdjęcie. W tym celu analizuje każdy piksel i oblicza głębokość powietrza.</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>Comment</source>
        <translation>Komentarz</translation>
    </message>
</context>
<context>
    <name>UIHazePreview</name>
    <message>
        <source>Preview is uptodate</source>
        <translation>Podgląd jest aktualny</translation>
    </message>
</context>
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Haze correction</source>
        <translation>Korekta mgły</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Poziom</translation>
    </message>
    <message>
        <source>Split preview</source>
        <translation>Zamień podgląd</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizard</name>
    <message>
        <source>Next</source>
        <translation>Następny</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Poprzedni</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizardClass</name>
    <message>
        <source>Apply to all images</source>
        <translation>Zastosuj do wszystkich zdjęć</translation>
    </message>
    <message>
        <source>WizardPage</source>
        <translation>Kreator</translation>
    </message>
</context>
</TS>
