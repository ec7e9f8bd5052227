<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>У файла нет расширения, поэтому результат сохраняется в TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Запись в формат «%1» не поддерживается, поэтому результат сохраняется в TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation>Результат «%1» — тот же файл, что и фотография «%2». Переместите один из них.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs.</source>
        <translation>Результат «%1» совпал бы с результатом для «%2». Переименуйте одну из двух фотографий.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>На месте результата «%1» находится папка. Переместите её.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Результат «%1» уже существует. Чтобы заменить его, укажите --overwrite.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation>Результат нельзя записать: папка «%1» доступна только для чтения. Скопируйте фотографию в другую папку.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Имя результата оказалось бы слишком длинным. Дайте фотографии более короткое имя.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Результат сохранён, но скопировать в него XMP фотографии не удалось: %1.</translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation>Сбой модуля в %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Недостаточно памяти.</translation>
    </message>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Остановлено; результат не записан.</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Закройте другие программы или обрабатывайте фотографии по одной (--jobs 1).</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>Освободите место в папке «%1» и проверьте, разрешена ли вам запись в неё.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Модуль записал «%1» вместо «%2»</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>Снимок был изменён, перемещён или удалён, пока убиралась дымка. Верните его на место и начните заново.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>Для фотографии нужно около %1 памяти, а свободно %2. Закройте другие программы или уменьшите фотографию.</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation>До</translation>
    </message>
    <message>
        <source>After</source>
        <translation>После</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>Для --strength нужно целое число от 0 до 100 или auto, а не «%1».</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>Для --jobs нужно целое число от 1 до %1, а не «%2».</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>Для --language допустимы значения %1, но не «%2».</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>Для --settings нужно имя файла в UTF-8.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with the wizard, which asks in its window.</source>
        <translation>Параметр --%1 не для мастера: там это задаётся в окне.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Укажите фотографии, с которых нужно убрать дымку.</translation>
    </message>
    <message>
        <source>veilaway takes the haze out of photographs.

Usage:
  veilaway [run] PHOTO... [options]
  veilaway [run] --settings FILE [options]
  veilaway wizard [PHOTO...] [options]
  veilaway --set-default N|auto|none
  veilaway --help | --version

Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.

The wizard opens a window: choose photographs, set the strength of each with a live preview, remove the haze, and compare. It takes --settings (which then holds the strengths), --language, --jobs, --share-services and --plugin.

Options:
  --strength N      How much haze to remove, in per cent: 0 leaves the picture as it is, 100 removes all of it, and auto chooses a strength for each photograph, from 50 for a dark one to 80 for a bright one. Without this option, the strength in the settings file is used, otherwise your stored default, otherwise 70.
  --set-default N   Store this default, a number or auto, or remove the stored one with none. Nothing else is done.
  --settings FILE   Keep the strength of each photograph in this XML file. If the file exists, its strengths are used, unless --strength is given too; afterwards it holds the strengths that were used. Without a PHOTO, all photographs in the file are done.
  --language LANG   Language of messages and of the tag: de, en, es, fr, it, ja, pl, ru, zh_CN or zh_TW. Without this option, the language of the system.
  --jobs N          Number of photographs to work on at the same time. Without this option, as many as keep all cores busy and fit into memory.
  --overwrite       Replace results that already exist.
  --quiet           Report failures only.
  --json            Write one line with a JSON object for each photograph: photo, result, status (done, unchanged, failed, stopped), strength, automatic, seconds, message, unchanged (the reason, or null).
  --share-services  Lend the plug-in the program&apos;s own services (log, memory pool, processor count) instead of letting it start its own.
  --plugin FILE     Load this plug-in file instead of Nimbra.so beside the program or in ../lib/nimbra.
  -h, --help        Show this text.
  --version         Show the versions of the program and the plug-in.
  --                Everything that follows is a photograph, even if it begins with a dash.

Formats:
  Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.
  Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others). The result is a 16-bit TIFF. Photographs with any other suffix, or none, become a TIFF too.
  XMP sidecar files are not read and stay where they are.

Exit status:
  0  All photographs are done, or came back unchanged (a message says why).
  1  Some are not: standard error says which, why, and what helps. Or standard output could not be written.
  2  The command line or the settings file is wrong; nothing was begun.
Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.

Examples:
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</source>
        <translation>veilaway убирает дымку с фотографий.

Использование:
  veilaway [run] PHOTO... [параметры]
  veilaway [run] --settings FILE [параметры]
  veilaway wizard [PHOTO...] [параметры]
  veilaway --set-default N|auto|none
  veilaway --help | --version

Каждый результат записывается рядом со своей фотографией под её именем с добавкой: из hills.jpg получается «hills_удалена атмосферная дымка.jpg». Сама фотография никогда не изменяется. Добавка зависит от языка: например, _dehazed при --language en.

Мастер открывает окно: выберите фотографии, задайте интенсивность для каждой, сразу видя её действие в предварительном просмотре, уберите дымку и сравните. Он принимает --settings (тогда интенсивность хранится в этом файле), --language, --jobs, --share-services и --plugin.

Параметры:
  --strength N      Сколько дымки убрать, в процентах: 0 оставляет снимок как есть, 100 убирает всю, а auto подбирает интенсивность к каждой фотографии: от 50 для тёмной до 80 для светлой. Если не указано, действует интенсивность из файла настроек, затем ваше сохранённое значение по умолчанию, затем 70.
  --set-default N   Сохранить это значение по умолчанию, число или auto, либо убрать его с помощью none. Больше ничего не делает.
  --settings FILE   Хранить интенсивность для каждой фотографии в этом файле XML. Если файл есть, значения берутся из него, когда не указан --strength; в конце в нём остаются использованные значения. Без PHOTO обрабатываются все фотографии из файла.
  --language LANG   Язык сообщений и добавки к имени: de, en, es, fr, it, ja, pl, ru, zh_CN или zh_TW. Если не указан, берётся язык системы.
  --jobs N          Сколько фотографий обрабатывать одновременно. Если не указано, столько, чтобы загрузить все ядра и уместиться в памяти.
  --overwrite       Заменять уже существующие результаты.
  --quiet           Сообщать только о том, что не удалось.
  --json            Выводить для каждой фотографии объект JSON в отдельной строке с полями photo, result, status (done, unchanged, failed, stopped), strength, automatic, seconds, message, unchanged (причина или null).
  --share-services  Предоставить модулю собственные службы программы (журнал, пул памяти, число процессоров), чтобы он не создавал свои.
  --plugin FILE     Загрузить модуль из этого файла вместо Nimbra.so, лежащего рядом с программой или в ../lib/nimbra.
  -h, --help        Показать эту справку.
  --version         Показать версии программы и модуля.
  --                Всё, что дальше, — фотографии, даже если имя начинается с дефиса.

Форматы:
  Чтение и запись: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) и PSD. Результат получает формат своей фотографии, её глубину цвета (8, 16 бит или с плавающей запятой), цветовой профиль, EXIF, IPTC и XMP. Ориентация EXIF сохраняется, и результат отображается так же, как сама фотография.
  Только чтение: RAW-файлы камер (dng, cr2, nef, arw, raf, orf, rw2 и другие). Результат — TIFF с 16 битами. Для фотографий с другим расширением или без него результат тоже TIFF. Сопутствующие файлы XMP остаются на месте и не читаются.

Код завершения:
  0  Все фотографии обработаны или остались прежними (с указанием причины).
  1  Обработаны не все: в стандартном потоке ошибок указано, какие нет, почему и что поможет. Либо не удалась запись в стандартный поток вывода.
  2  Ошибка в командной строке или в файле настроек; обработка не начиналась.
Ctrl-C завершает работу сигналом (130 в оболочке), не оставляя незаконченных результатов.

Примеры:
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>См. veilaway --help.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>Для --set-default нужно целое число от 0 до 100, auto или none, а не «%1».</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default сохраняет значение по умолчанию и больше ничего не делает: уберите фотографии и параметры для них.</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>Значение по умолчанию не удаётся сохранить в «%1». Освободите место или дайте себе право записи туда.</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start the wizard in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>Не удаётся показать окно: %1. Запустите мастер в графическом сеансе или с другого компьютера через ssh -X. Без окна работу выполнит veilaway ФОТО...</translation>
    </message>
</context>
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_удалена атмосферная дымка</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Не удаётся открыть файл. Проверьте, существует ли он и разрешено ли вам его читать.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Файл обрывается или повреждён. Скопируйте его заново с камеры или из резервной копии.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Для этой фотографии недостаточно памяти. Закройте другие программы или обрабатывайте фотографии по одной (--jobs 1).</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>Это не изображение известного формата, или его формат не соответствует расширению. Читаются JPEG, PNG, TIFF, HDR, EXR, PSD и RAW-файлы камер; дайте файлу расширение, соответствующее его формату, или преобразуйте его.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>Это видео. Дымку можно убрать только с фотографий; сохраните кадр видео в JPEG, PNG или TIFF.</translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Этот вид пикселей не поддерживается. Сохраните фотографию в RGB с 8 или 16 битами и повторите попытку.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Пустое имя не обозначает фотографию.</translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>Ссылка никуда не ведёт. Укажите саму фотографию.</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>Такого файла нет. Проверьте имя и папку.</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>Это папка. Укажите фотографии в ней, например «%1».</translation>
    </message>
    <message>
        <source>This is not a regular file. Copy the photograph into one.</source>
        <translation>Это не обычный файл. Скопируйте фотографию в обычный файл.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>Файл нельзя прочитать. Разрешите себе его чтение.</translation>
    </message>
    <message>
        <source>The file is empty. Copy it again from the camera or a backup.</source>
        <translation>Файл пуст. Скопируйте его заново с камеры или из резервной копии.</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Для этого RAW-файла недостаточно памяти. Закройте другие программы или обрабатывайте фотографии по одной (--jobs 1).</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>RAW-файл не удаётся проявить: %1. Скопируйте его заново или преобразуйте в DNG или TIFF.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>В его имени или в имени папки есть знаки не в кодировке UTF-8. Переименуйте его.</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%n файл — результат другой фотографии из списка, например «%1».</numerusform>
            <numerusform>%n файла — результаты других фотографий из списка, например «%1».</numerusform>
            <numerusform>%n файлов — результаты других фотографий из списка, например «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Убрать</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Фотографии</translation>
    </message>
    <message>
        <source>Choose the photographs to remove haze from, or drop them here. They are never changed: each result is saved beside its photograph.</source>
        <translation>Выберите фотографии, с которых нужно убрать дымку, или перетащите их сюда. Сами они не изменятся: каждый результат записывается рядом со своей фотографией.</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>До&amp;бавить фотографии...</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>&amp;Открыть сеанс...</translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation>Файл настроек с фотографиями и интенсивностью для каждой из них</translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation>%1: в этой папке нет фотографий.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>Чтение %n фотографии...</numerusform>
            <numerusform>Чтение %n фотографий...</numerusform>
            <numerusform>Чтение %n фотографий...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>%n фотография</numerusform>
            <numerusform>%n фотографии</numerusform>
            <numerusform>%n фотографий</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... и ещё %n</numerusform>
            <numerusform>... и ещё %n</numerusform>
            <numerusform>... и ещё %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Не добавлено:</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>Добавить фотографии</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Фотографии (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Открыть сеанс</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Файлы настроек (*.xml)</translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>Фотография слишком велика: дымку можно убрать с фотографий, ширина или высота которых не больше %1 пикс. Уменьшите её или разрежьте на части.</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>Модуль «%1» не найден. Соберите или установите его либо укажите его расположение с помощью --plugin FILE.</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>» или «</translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>это модуль другого типа</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>Модуль «%1» нельзя использовать: %2. Установите его заново или укажите другой с помощью --plugin FILE.</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>Обработано фотографий: %n.</numerusform>
            <numerusform>Обработано фотографий: %n.</numerusform>
            <numerusform>Обработано фотографий: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation>Обработано фотографий: %1 из %2; не обработано: %3.</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>чтение</translation>
    </message>
    <message>
        <source>removing haze</source>
        <translation>удаление дымки</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>сохранение</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>Осталось без изменений: %n.</numerusform>
            <numerusform>Осталось без изменений: %n.</numerusform>
            <numerusform>Осталось без изменений: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>Не удаётся записать в стандартный поток вывода: %1. Освободите место или направьте его в другое место.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>Не начата %n фотография.</numerusform>
            <numerusform>Не начаты %n фотографии.</numerusform>
            <numerusform>Не начато %n фотографий.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %, %2 с</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;folder</source>
        <translation>Открыть &amp;папку</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>&amp;Сохранить сеанс...</translation>
    </message>
    <message>
        <source>Save the photographs and the strength of each in a settings file</source>
        <translation>Сохранить фотографии и интенсивность для каждой из них в файле настроек</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Все фотографии обработаны.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Обработано фотографий: %1 из %2.</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>На&amp;чать заново</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Выбрать другие фотографии</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>Параметр --strength не указан: используется ваше сохранённое значение по умолчанию %1.</translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>Параметр --strength не указан, сохранённого значения по умолчанию нет: используется %1.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>В файле настроек «%1» нет фотографий. Укажите их.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>Файла настроек «%1» нет. Чтобы создать его, укажите фотографии.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>Файл настроек «%1» там нельзя записать. Укажите файл в другой папке.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Имя файла настроек «%1» совпадает с именем результата. Дайте ему другое имя.</translation>
    </message>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Остановка; дописывается сохраняемый файл. Чтобы завершить немедленно, нажмите Ctrl-C ещё раз.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>Пропущен %n файл, который является результатом другой фотографии, например «%1».</numerusform>
            <numerusform>Пропущено %n файла, которые являются результатами других фотографий, например «%1».</numerusform>
            <numerusform>Пропущено %n файлов, которые являются результатами других фотографий, например «%1».</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>--strength не указан: используется сохранённое значение по умолчанию, автоматическая интенсивность.</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Остановить</translation>
    </message>
    <message>
        <source>Removing haze</source>
        <translation>Удаление дымки</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Каждый результат записывается рядом со своей фотографией.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Заменить</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>Ос&amp;тавить</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Фотография</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Интенсивность</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход работы</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>Уже есть %n результат прошлой обработки.</numerusform>
            <numerusform>Уже есть %n результата прошлой обработки.</numerusform>
            <numerusform>Уже есть %n результатов прошлой обработки.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v из %m</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Чтение</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Сохранение</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Остановка. Результат, который уже сохраняется, будет дописан.</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Результат уже был и оставлен без изменений.</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Без изменений</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Прежний результат</translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>Сохранённого значения по умолчанию больше нет; без --strength это %1 процентов.</translation>
    </message>
    <message>
        <source>From now on, each photograph gets its automatic strength.</source>
        <translation>Теперь каждая фотография получает свою автоматическую интенсивность.</translation>
    </message>
    <message>
        <source>From now on, the default strength is %1 per cent.</source>
        <translation>Теперь интенсивность по умолчанию — %1 %.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation>Файл настроек «%1» нельзя использовать: %2. Исправьте его или укажите другой.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>это папка</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>строка %1, столбец %2: %3</translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation>его корневой элемент — не &lt;%1&gt;</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>строка %1</translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation>%1: фотография без пути</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1: «%2» встречается дважды</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1: для фотографии нужен элемент &lt;%2 %3=&quot;...&quot;/&gt; с целым числом от 0 до 100</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>Файл настроек «%1» нельзя записать: %2. Освободите место или разрешите себе запись в эту папку.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>Файл настроек «%1» не может содержать снимок «%2»: в его имени есть управляющие символы. Переименуйте его.</translation>
    </message>
</context>
<context>
    <name>TransposedRun</name>
    <message>
        <source>A temporary folder with a link to the photograph can&apos;t be created, neither beside it nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Временную папку со ссылкой на фотографию нельзя создать ни рядом с ней, ни в «%1». Освободите там место и проверьте, разрешена ли вам запись.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Модуль записал «%1» вместо «%2»</translation>
    </message>
</context>
<context>
    <name>WizardWindow</name>
    <message>
        <source>veilaway</source>
        <translation>veilaway</translation>
    </message>
    <message>
        <source>&amp;Remove haze</source>
        <translation>&amp;Убрать дымку</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Сохранить сеанс</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Файлы настроек (*.xml)</translation>
    </message>
</context>
<context>
    <name>whyUnchanged</name>
    <message>
        <source>It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, or no pixel has a usable colour. Crop it, or repair its colours in an image editor.</source>
        <translation>Фотография осталась прежней, так как измерить дымку не удалось: одна сторона более чем в 100 000 раз длиннее другой, либо ни у одного пикселя нет пригодного цвета. Обрежьте фотографию или исправьте её цвета в редакторе изображений.</translation>
    </message>
    <message>
        <source>It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or memory ran short. Repair those pixels in an image editor, or close other programs and try again.</source>
        <translation>Фотография осталась прежней, так как вычислить дымку не удалось: у некоторых пикселей бесконечные или неопределённые значения, либо не хватило памяти. Исправьте эти пиксели в редакторе изображений или закройте другие программы и повторите.</translation>
    </message>
</context>
</TS>
