<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_除去薄霧</translation>
    </message>
    <message>
        <source>Haze is an atmospheric phenomenon that can affect outdoor photos. Everything far from the shooter seems to be covered by a white layer.This plugin helps you to remove the haze and clean your photo. To do that, it analyses each pixel to calculate the depth of air.</source>
        <translation>ヘイズは、屋外で撮影した写真に影響を与えることがある大気現象です。撮影者から遠くにあるものは、すべて白い層に覆われているように見えます。このプラグインは、ヘイズを取り除いて写真をきれいにします。そのために、各ピクセルを解析して空気の深さを計算します。</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
</context>
<context>
    <name>UIHazePreview</name>
    <message>
        <source>Preview is uptodate</source>
        <translation>ヘイズ補正</translation>
    </message>
</context>
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Haze correction</source>
        <translation>ヘイズ補正</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>電源</translation>
    </message>
    <message>
        <source>Split preview</source>
        <translation>分割プレビュー</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizard</name>
    <message>
        <source>Next</source>
        <translation>次の</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>前の</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizardClass</name>
    <message>
        <source>Apply to all images</source>
        <translation>すべての画像に適用</translation>
    </message>
    <message>
        <source>WizardPage</source>
        <translation>WizardPage</translation>
    </message>
</context>
</TS>
