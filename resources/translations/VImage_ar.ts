<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>VException</name>
    <message>
        <source>Error GFL : &quot;%1&quot;</source>
        <translation>خطأ GFL : &quot;%1&quot;</translation>
    </message>
    <message>
        <source>File : &quot;%1&quot;</source>
        <translation>الملف : &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Not enough free space on &quot;%1&quot; to finish operation</source>
        <translation>لا توجد مساحة كافية على &quot;%1&quot; لإتمام العملية</translation>
    </message>
    <message>
        <source>Cannot write into file &quot;%1&quot;</source>
        <translation>تتعذر الكتابة في الملف &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Delete locked vic</source>
        <translation>حذف vic مقفل</translation>
    </message>
    <message>
        <source>No more block freeable :
not enough memory available
or too many threads used</source>
        <translation>لا توجد كتل أخرى يمكن تحريرها :
الذاكرة المتوفرة غير كافية
أو عدد الخيوط المستخدمة كبير جدًا</translation>
    </message>
    <message>
        <source>No more space in temporary folder</source>
        <translation>لم تعد هناك مساحة في المجلد المؤقت</translation>
    </message>
    <message>
        <source>Not enough space for one line in one block</source>
        <translation>لا توجد مساحة كافية لسطر واحد في كتلة واحدة</translation>
    </message>
</context>
</TS>
