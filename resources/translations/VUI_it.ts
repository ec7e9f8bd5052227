<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>UIImageDefListWizard</name>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Precedente</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizardClass</name>
    <message>
        <source>Apply to all images</source>
        <translation>Applica a tutte le immagini</translation>
    </message>
</context>
</TS>
