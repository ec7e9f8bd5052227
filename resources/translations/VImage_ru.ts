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
        <source>Delete locked vic</source>
        <translation>Удаление заблокированного vic</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>Больше нет блоков, которые можно освободить:
недостаточно доступной памяти
или используется слишком много потоков</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>Во временной папке больше нет места</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>Недостаточно места для одной строки в одном блоке</translation>
    </message>
</context>
</TS>
