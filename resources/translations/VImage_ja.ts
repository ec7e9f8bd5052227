<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>GFL エラー: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>ファイル: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>&quot;%1&quot; の空き容量が不足しているため、処理を完了できません</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>ファイル &quot;%1&quot; に書き込めません</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>ロックされた vic の削除</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>解放できるブロックがもうありません:
使用可能なメモリが不足しているか、
使用中のスレッドが多すぎます</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>一時フォルダーに空き容量がありません</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>1 ブロックに 1 行分の領域がありません</translation>
    </message>
</context>
</TS>
