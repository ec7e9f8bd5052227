<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>UIHazePreview</name>
    <message>
        <source>Preview is uptodate</source>
        <translation>プレビューは最新です</translation>
    </message>
</context>
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Power</source>
        <translation>強さ</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizard</name>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>前へ</translation>
    </message>
</context>
</TS>
