<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="re" sourcelanguage="en">
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_удалена атмосферная дымка</translation>
    </message>
    <message>
        <source>Haze is an atmospheric phenomenon that can affect outdoor photos. Everything far from the shooter seems to be covered by a white layer.This plugin helps you to remove the haze and clean your photo. To do that, it analyses each pixel to calculate the depth of air.</source>
        <translation>Дымка — это атмосферное явление, которое может портить фотографии, снятые на открытом воздухе. Всё, что находится далеко от фотографа, кажется покрытым белой пеленой. Этот модуль помогает убрать дымку и сделать фотографию чистой. Для этого он анализирует каждый пиксель и вычисляет глубину воздуха.</translation>
    </message>
</context>
<context>
    <name>Library</name>
    <message>
        <source>Comment</source>
        <translation>Комментарий</translation>
    </message>
</context>
<context>
    <name>UIHazePreview</name>
    <message>
        <source>Preview is uptodate</source>
        <translation>Предварительный просмотр обновлен</translation>
    </message>
</context>
<context>
    <name>UIHazePreviewClass</name>
    <message>
        <source>Haze correction</source>
        <translation>Коррекция дымки</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Интенсивность</translation>
    </message>
    <message>
        <source>Split preview</source>
        <translation>Разделить предварительный просмотр</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizard</name>
    <message>
        <source>Next</source>
        <translation>Вперед</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>UIImageDefListWizardClass</name>
    <message>
        <source>Apply to all images</source>
        <translation>Применить ко всем изображениям</translation>
    </message>
    <message>
        <source>WizardPage</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
