<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_senza foschia</translation>
    </message>
    <message>
        <source>Haze is an atmospheric phenomenon that can affect outdoor photos. Everything far from the shooter seems to be covered by a white layer.This plugin helps you to remove the haze and clean your photo. To do that, it analyses each pixel to calculate the depth of air.</source>
        <translation>La foschia è un fenomeno atmosferico che può interessare le foto scattate all'aperto. Tutto ciò che è lontano dal fotografo sembra coperto da uno strato bianco. Questo plugin aiuta a rimuovere la foschia e a ripulire la foto. Per farlo analizza ogni pixel e calcola la profondità dell'aria.</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>Comment</source>
        <translation>Commento</translation>
    </message>
</context>
<context>
    <name>UIHazePreview</name>
    <message>
        <source>Preview is uptodate</source>
        <translation>L'anteprima è aggiornata</translation>
    </message>
</context>
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Haze correction</source>
        <translation>Correzione Foschia</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <source>Split preview</source>
        <translation>Anteprima divisa</translation>
    </message>
</context>
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
    <message>
        <source>WizardPage</source>
        <translation>PaginaDelWizard</translation>
    </message>
</context>
</TS>
