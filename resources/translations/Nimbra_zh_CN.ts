<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_离开薄雾</translation>
    </message>
    <message>
        <source>Haze is an atmospheric phenomenon that can affect outdoor photos. Everything far from the shooter seems to be covered by a white layer.This plugin helps you to remove the haze and clean your photo. To do that, it analyses each pixel to calculate the depth of air.</source>
        <translation>薄雾是一种会影响户外照片的大气现象。远离拍摄者的一切看起来都像蒙上了一层白色。本插件可帮助您去除薄雾，使照片变得清晰。为此，它会分析每个像素，计算空气的深度。</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>Comment</source>
        <translation>意见</translation>
    </message>
</context>
<context>
    <name>UIHazePreview</name>
    <message>
        <source>Preview is uptodate</source>
        <translation>预览最新</translation>
    </message>
</context>
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Haze correction</source>
        <translation>校正模糊</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电力</translation>
    </message>
    <message>
        <source>Split preview</source>
        <translation>离开预览 </translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizard</name>
    <message>
        <source>Next</source>
        <translation>下一个 </translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>上一个 </translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizardClass</name>
    <message>
        <source>Apply to all images</source>
        <translation>应用到所有图片</translation>
    </message>
    <message>
        <source>WizardPage</source>
        <translation>WizardPage</translation>
    </message>
</context>
</TS>
