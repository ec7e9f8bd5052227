<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>UIHazePreview</name>
    <message>
        <source>Preview is uptodate</source>
        <translation>預覽已是最新</translation>
    </message>
</context>
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Haze correction</source>
        <translation>去除薄霧</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>強度</translation>
    </message>
    <message>
        <source>Split preview</source>
        <translation>分割預覽</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizardClass</name>
    <message>
        <source>Apply to all images</source>
        <translation>套用到所有圖片</translation>
    </message>
</context>
</TS>
