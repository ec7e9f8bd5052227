<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1: This is the result of another photograph in the list.</numerusform>
            <numerusform>%n results of other photographs in the list, such as &quot;%1&quot;.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>Reading %n photograph...</numerusform>
            <numerusform>Reading %n photographs...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>%n photograph</numerusform>
            <numerusform>%n photographs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... and %n more</numerusform>
            <numerusform>... and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>%n result of an earlier run already exists.</numerusform>
            <numerusform>%n results of an earlier run already exist.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n photograph done.</numerusform>
            <numerusform>%n photographs done.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>%n photograph was not started.</numerusform>
            <numerusform>%n photographs were not started.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>Left out &quot;%1&quot;, which is the result of one of the other photographs.</numerusform>
            <numerusform>Left out %n files that are results of the other photographs, such as &quot;%1&quot;.</numerusform>
        </translation>
    </message>
</context>
</TS>
