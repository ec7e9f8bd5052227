<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>Ошибка GFL: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>Файл: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>На «%1» недостаточно свободного места для завершения операции</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>Невозможно записать в файл «%1»</translation>
    </message>
    <message>
        <source>File &quot;%1&quot; is not found</source>
        <translation>Файл «%1» не найден</translation>
    </message>
</context>
<context>
    <name>VLog</name>
    <message>
        <source>Critical error</source>
        <translation>Критическая ошибка</translation>
    </message>
    <message>
        <source>Can not open file %1</source>
        <translation>Невозможно открыть файл %1</translation>
    </message>
</context>
<context>
    <name>VSystemInfo</name>
    <message>
        <source>Bytes</source>
        <translation>байт</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>КБ</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>МБ</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>ГБ</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>ТБ</translation>
    </message>
</context>
</TS>
