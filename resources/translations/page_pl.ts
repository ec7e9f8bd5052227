<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Haze correction</source>
        <translation>Usuwanie zamglenia</translation>
    </message>
    <message>
        <source>Split preview</source>
        <translation>Podziel podgląd</translation>
    </message>
</context>
</TS>
