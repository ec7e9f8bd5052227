<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>GFL-virhe: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Tiedosto: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>Kohteessa ”%1” ei ole tarpeeksi vapaata tilaa toiminnon loppuun viemiseksi</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Tiedostoon ”%1” ei voi kirjoittaa</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>Lukitun vicin poistaminen</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>Yhtään lohkoa ei voi enää vapauttaa:
muistia ei ole tarpeeksi
tai säikeitä on käytössä liikaa</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>Väliaikaiskansiossa ei ole enää tilaa</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>Yhdessä lohkossa ei ole tarpeeksi tilaa yhdelle riville</translation>
    </message>
</context>
</TS>
