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
    <name>ProgressView</name>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>%n photograph would be done.</numerusform>
            <numerusform>%n photographs would be done.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n photograph done.</numerusform>
            <numerusform>%n photographs done.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n came back unchanged.</numerusform>
            <numerusform>%n came back unchanged.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>%n skipped.</numerusform>
            <numerusform>%n skipped.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>%n failed.</numerusform>
            <numerusform>%n failed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>%n not started.</numerusform>
            <numerusform>%n not started.</numerusform>
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
    <name>SaveBar</name>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>about %n minute left</numerusform>
            <numerusform>about %n minutes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>about %n hour left</numerusform>
            <numerusform>about %n hours left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>%n photograph saved</numerusform>
            <numerusform>%n photographs saved</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>%n kept as it is</numerusform>
            <numerusform>%n kept as they are</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>%n stopped</numerusform>
            <numerusform>%n stopped</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>Add %n photograph</numerusform>
            <numerusform>Add %n photographs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>Remove %n photograph</numerusform>
            <numerusform>Remove %n photographs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>The strength of %n photograph would be lost.</numerusform>
            <numerusform>The strengths of %n photographs would be lost.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1, %n photograph, %2</numerusform>
            <numerusform>%1, %n photographs, %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) left out.</source>
        <translation>
            <numerusform>%n result left out.</numerusform>
            <numerusform>%n results left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>%n photograph of this series was still to be saved.</numerusform>
            <numerusform>%n photographs of this series were still to be saved.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>%n photograph could not be saved.</numerusform>
            <numerusform>%n photographs could not be saved.</numerusform>
        </translation>
    </message>
</context>
</TS>
