<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>GFL 错误：&quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>文件：&quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>&quot;%1&quot; 上的可用空间不足，无法完成操作</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>无法写入文件 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>删除已锁定的 vic</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>没有可释放的块：
可用内存不足
或使用的线程过多</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>临时文件夹空间已用完</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>一个块中没有足够的空间容纳一行</translation>
    </message>
</context>
</TS>
