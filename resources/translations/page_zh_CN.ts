<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>UIHazePreview</name>
    <message>
        <source>Preview is uptodate</source>
        <translation>预览已是最新</translation>
    </message>
</context>
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Haze correction</source>
        <translation>去除薄雾</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>Split preview</source>
        <translation>分割预览</translation>
    </message>
</context>
</TS>
