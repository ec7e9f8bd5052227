<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>GFL 錯誤：&quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>檔案：&quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>&quot;%1&quot; 上的可用空間不足，無法完成操作</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>無法寫入檔案 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>刪除已鎖定的 vic</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>沒有可釋放的區塊：
可用記憶體不足
或使用的執行緒過多</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>暫存資料夾空間已用完</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>一個區塊中沒有足夠的空間容納一行</translation>
    </message>
</context>
</TS>
