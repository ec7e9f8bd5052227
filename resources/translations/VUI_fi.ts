<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name>UIImageDefListWizard</name>
    <message>
        <source>Next</source>
        <translation>Seuraava</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Edellinen</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizardClass</name>
    <message>
        <source>Apply to all images</source>
        <translation>Käytä kaikkiin kuviin</translation>
    </message>
</context>
</TS>
