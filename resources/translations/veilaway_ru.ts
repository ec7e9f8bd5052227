<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Результат «%1» уже существует. Чтобы заменить его, укажите --overwrite.</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>Не удаётся прочитать папку. Дайте себе право на чтение.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder or those inside it.</source>
        <translation>В этой папке и вложенных в неё нет фотографий.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder. Add --recursive for those in the folders inside it.</source>
        <translation>В этой папке нет фотографий. Чтобы взять их из вложенных папок, добавьте --recursive.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; already exists.</source>
        <translation>Пропущено: результат «%1» уже существует.</translation>
    </message>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>У файла нет расширения, поэтому результат сохраняется в TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Запись в формат «%1» не поддерживается, поэтому результат сохраняется в TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder for the results.</source>
        <translation>Результат «%1» — тот же файл, что и фотография «%2». Переместите один из них или выберите другую папку для результатов.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder with --output.</source>
        <translation>Результат «%1» — тот же файл, что и фотография «%2». Переместите один из них или выберите другую папку с помощью --output.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs, or give their results different folders.</source>
        <translation>Результат «%1» совпал бы с результатом для «%2». Переименуйте одну из двух фотографий или укажите для результатов разные папки.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>На месте результата «%1» находится папка. Переместите её.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; is newer than the photograph.</source>
        <translation>Пропущено: результат «%1» новее фотографии.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder for the results.</source>
        <translation>Результат «%1» защищён от записи или не является обычным файлом. Переместите его или выберите другую папку для результатов.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder with --output.</source>
        <translation>Результат «%1» защищён от записи или не является обычным файлом. Переместите его или выберите другую папку с помощью --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one for the results.</source>
        <translation>Результат нельзя записать: «%1» не папка. Выберите другую папку для результатов.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one with --output.</source>
        <translation>Результат нельзя записать: «%1» не папка. Выберите другую с помощью --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one for the results.</source>
        <translation>Результат нельзя записать: папка «%1» доступна только для чтения. Выберите другую папку для результатов.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one with --output.</source>
        <translation>Результат нельзя записать: папка «%1» доступна только для чтения. Выберите другую с помощью --output.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Имя результата оказалось бы слишком длинным. Дайте фотографии более короткое имя.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Остановлено; результат не записан.</translation>
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
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>Снимок был изменён, перемещён или удалён, пока убиралась дымка. Верните его на место и начните заново.</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>Закройте другие программы и повторите попытку.</translation>
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
        <source>The file also holds a gain map or further pictures, which don&apos;t fit the result and are left out.</source>
        <translation>В файле есть ещё карта усиления или другие изображения; к результату они не подходят и в него не вошли.</translation>
    </message>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Результат сохранён, но скопировать в него XMP фотографии не удалось: %1.</translation>
    </message>
    <message>
        <source>The result was written, but could not be given the photograph&apos;s time of modification: %1.</source>
        <translation>Результат записан, но передать ему время изменения фотографии не удалось: %1.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>Для фотографии нужно около %1 памяти, а свободно %2. Закройте другие программы или уменьшите фотографию.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Did you mean --%1?</source>
        <translation>Возможно, имелось в виду --%1?</translation>
    </message>
    <message>
        <source>Write &quot;./%1&quot; for the photograph of this name.</source>
        <translation>Чтобы указать фотографию с этим именем, напишите «./%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be followed by one of %2, not &quot;%3&quot;.</source>
        <translation>После «%1» должно стоять одно из %2, а не «%3».</translation>
    </message>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>Для --strength нужно целое число от 0 до 100 или auto, а не «%1».</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>Для --jobs нужно целое число от 1 до %1, а не «%2».</translation>
    </message>
    <message>
        <source>--quality must be a whole number from 1 to 100, not &quot;%1&quot;.</source>
        <translation>Для --quality нужно целое число от 1 до 100, а не «%1».</translation>
    </message>
    <message>
        <source>--compression must be none, deflate or lzw, not &quot;%1&quot;.</source>
        <translation>Для --compression нужно none, deflate или lzw, а не «%1».</translation>
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
        <source>--output must be the name of a folder or file, in UTF-8.</source>
        <translation>Для --output нужно имя папки или файла в UTF-8.</translation>
    </message>
    <message>
        <source>--tag is a part of a name: it must not contain a slash, and must be in UTF-8.</source>
        <translation>--tag — часть имени: без косой черты и в UTF-8.</translation>
    </message>
    <message>
        <source>Of --skip-existing, --newer and --overwrite, only one can be used at a time.</source>
        <translation>Из --skip-existing, --newer и --overwrite можно указать только одно.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>Для --set-default нужно целое число от 0 до 100, auto или none, а не «%1».</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default сохраняет значение по умолчанию и больше ничего не делает: уберите фотографии и параметры для них.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with %2, which asks for it on the screen.</source>
        <translation>--%1 нельзя указать вместе с %2: об этом спрашивается на экране.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Укажите фотографии, с которых нужно убрать дымку.</translation>
    </message>
    <message>
        <source>Also read here: %1</source>
        <translation>Здесь читаются также: %1</translation>
    </message>
    <message>
        <source>Not read here, for want of a decoder: %1</source>
        <translation>Здесь не читаются, нет декодера: %1</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>См. veilaway --help.</translation>
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
        <source>The window can&apos;t be shown: %1. Start it in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>Не удаётся показать окно: %1. Запустите его в графическом сеансе или с другого компьютера через ssh -X. Без окна работу выполнит veilaway ФОТО...</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Recent sessions</source>
        <translation>Недавние сеансы</translation>
    </message>
    <message>
        <source>Drop photographs or a folder here</source>
        <translation>Перетащите сюда фотографии или папку</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>До&amp;бавить фотографии...</translation>
    </message>
    <message>
        <source>Add a &amp;folder...</source>
        <translation>Добавить п&amp;апку...</translation>
    </message>
</context>
<context>
    <name>FilmstripDelegate</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>FilmstripView</name>
    <message>
        <source>Photographs</source>
        <translation>Фотографии</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Гистограмма</translation>
    </message>
    <message>
        <source>The result; dashed: the photograph as it was</source>
        <translation>Результат; пунктиром: фотография, какой была</translation>
    </message>
    <message>
        <source>Black %1 %, white %2 %</source>
        <translation>Чёрное %1 %, белое %2 %</translation>
    </message>
    <message>
        <source>black %1 %</source>
        <translation>чёрное %1 %</translation>
    </message>
    <message>
        <source>white %1 %</source>
        <translation>белое %1 %</translation>
    </message>
</context>
<context>
    <name>KeySheet</name>
    <message>
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>Сообщение</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>Закрыть сообщение</translation>
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
    <name>OptionTable</name>
    <message>
        <source>veilaway takes the haze out of photographs.</source>
        <translation>veilaway убирает дымку с фотографий.</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Использование:</translation>
    </message>
    <message>
        <source>PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for such a list on standard input.</source>
        <translation>PHOTO — фотография, папка с фотографиями, @FILE — файл с их списком, по одной в строке, или - для такого списка на стандартном вводе.</translation>
    </message>
    <message>
        <source>Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.</source>
        <translation>Каждый результат записывается рядом с фотографией под её именем с добавкой: из hills.jpg получается hills_dehazed.jpg. Сама фотография никогда не меняется. Добавка зависит от языка: например, _entnebelt с --language de.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Команды:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Параметры:</translation>
    </message>
    <message>
        <source>Everything that follows is a photograph, even if it begins with a dash.</source>
        <translation>Всё, что следует дальше, — фотографии, даже если имя начинается с дефиса.</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>Форматы:</translation>
    </message>
    <message>
        <source>Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.</source>
        <translation>Чтение и запись: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) и PSD. У результата формат фотографии, её глубина (8 или 16 бит либо плавающая запятая), цветовой профиль, EXIF, IPTC и XMP. Ориентация EXIF сохраняется, поэтому результат показывается так же.</translation>
    </message>
    <message>
        <source>Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others), whose result is a 16-bit TIFF, and, where --version names them, HEIC (heic, heif, hif), AVIF, WebP and JPEG XL (jxl), whose result is a TIFF of their depth. Photographs with any other suffix, or none, become a TIFF too.</source>
        <translation>Только чтение: файлы RAW (dng, cr2, nef, arw, raf, orf, rw2 и другие), результат — 16-битный TIFF, а также, если их называет --version, HEIC (heic, heif, hif), AVIF, WebP и JPEG XL (jxl), результат — TIFF той же глубины. Фотографии с другим суффиксом или без него тоже становятся TIFF.</translation>
    </message>
    <message>
        <source>XMP sidecar files are not read and stay where they are.</source>
        <translation>Сопутствующие файлы XMP не читаются и остаются на месте.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Код завершения:</translation>
    </message>
    <message>
        <source>All photographs are done, skipped as requested, or came back unchanged (a message says why).</source>
        <translation>Все фотографии готовы, пропущены по требованию или остались без изменений (сообщение объясняет почему).</translation>
    </message>
    <message>
        <source>Some are not: standard error says which, why, and what helps. Or standard output could not be written.</source>
        <translation>Некоторые не готовы: поток ошибок говорит, какие, почему и что поможет. Или не удалось писать в стандартный вывод.</translation>
    </message>
    <message>
        <source>The command line or the settings file is wrong; nothing was begun.</source>
        <translation>Ошибка в командной строке или файле настроек; ничего не начато.</translation>
    </message>
    <message>
        <source>Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.</source>
        <translation>Ctrl-C завершает программу этим сигналом (130 в оболочке), не оставляя половины результата.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Примеры:</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Не удаётся открыть файл. Проверьте, существует ли он и разрешено ли вам его читать.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>Это видео. Дымку можно убрать только с фотографий; сохраните кадр видео в JPEG, PNG или TIFF.</translation>
    </message>
    <message>
        <source>It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>Это анимация. Дымку можно убрать только с фотографий; сохраните её кадр как JPEG, PNG или TIFF.</translation>
    </message>
    <message>
        <source>This installation can&apos;t decode its format; veilaway --version says which formats it can. Convert the photograph to JPEG, PNG or TIFF.</source>
        <translation>Эта установка не декодирует такой формат; veilaway --version говорит, какие декодирует. Преобразуйте фотографию в JPEG, PNG или TIFF.</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>Это не изображение известного формата или не того, который указан суффиксом. Читаются %1 и файлы RAW; дайте файлу суффикс его формата или преобразуйте его.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Файл обрывается или повреждён. Скопируйте его заново с камеры или из резервной копии.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs and try again.</source>
        <translation>Для этой фотографии недостаточно памяти. Закройте другие программы и повторите попытку.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Для этой фотографии недостаточно памяти. Закройте другие программы или обрабатывайте фотографии по одной (--jobs 1).</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs and try again.</source>
        <translation>Для этого RAW-файла недостаточно памяти. Закройте другие программы и повторите попытку.</translation>
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
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Этот вид пикселей не поддерживается. Сохраните фотографию в RGB с 8 или 16 битами и повторите попытку.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Пустое имя не обозначает фотографию.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>В его имени или в имени папки есть знаки не в кодировке UTF-8. Переименуйте его.</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be opened. Give yourself the permission to open it.</source>
        <translation>Не удаётся открыть её папку. Дайте себе право открывать её.</translation>
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
</context>
<context>
    <name>PhotoPage</name>
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
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%n файл — результат другой фотографии из списка, например «%1».</numerusform>
            <numerusform>%n файла — результаты других фотографий из списка, например «%1».</numerusform>
            <numerusform>%n файлов — результаты других фотографий из списка, например «%1».</numerusform>
        </translation>
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
    <name>PhotoStore</name>
    <message>
        <source>There is not enough memory for it. Close other programs, or scale the photograph down.</source>
        <translation>Для неё не хватает памяти. Закройте другие программы или уменьшите фотографию.</translation>
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
    <name>PhotographList</name>
    <message>
        <source>The list &quot;%1&quot; can&apos;t be read: %2. Check its name, or write ./@... for a photograph whose name begins with @.</source>
        <translation>Не удаётся прочитать список «%1»: %2. Проверьте имя или напишите ./@..., если имя фотографии начинается с @.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.</source>
        <translation>Список «%1» содержит нулевые байты. Добавьте --null (-0), если ими кончаются имена, или сохраните его как текст в UTF-8.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds no null bytes. Leave out --null (-0) if it has one name per line.</source>
        <translation>В списке «%1» нет нулевых байтов. Уберите --null (-0), если в каждой строке одно имя.</translation>
    </message>
</context>
<context>
    <name>PictureRenderer</name>
    <message>
        <source>There is not enough memory for this picture. Close other programs.</source>
        <translation>Для этого изображения не хватает памяти. Закройте другие программы.</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Photograph</source>
        <translation>Фотография</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить ещё раз</translation>
    </message>
    <message>
        <source>Hold: the photograph before</source>
        <translation>Удерживать: исходная фотография</translation>
    </message>
    <message>
        <source>Hold: the haze map; Alt does the same</source>
        <translation>Удерживать: карта дымки; Alt делает то же</translation>
    </message>
    <message>
        <source>Move over the photograph</source>
        <translation>Перемещаться по фотографии</translation>
    </message>
    <message>
        <source>Move the line between before and after</source>
        <translation>Двигать линию между «до» и «после»</translation>
    </message>
    <message>
        <source>Before, zoom %1 %</source>
        <translation>До, масштаб %1 %</translation>
    </message>
    <message>
        <source>Haze map, zoom %1 %</source>
        <translation>Карта дымки, масштаб %1 %</translation>
    </message>
    <message>
        <source>After %1 %, zoom %2 %</source>
        <translation>После %1 %, масштаб %2 %</translation>
    </message>
    <message>
        <source>Before and after %1 %, zoom %2 %</source>
        <translation>До и после %1 %, масштаб %2 %</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Карта дымки</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>До</translation>
    </message>
    <message>
        <source>After %1 %</source>
        <translation>После %1 %</translation>
    </message>
    <message>
        <source>Estimating the haze</source>
        <translation>Оценка дымки</translation>
    </message>
    <message>
        <source>Reading the photograph</source>
        <translation>Чтение фотографии</translation>
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
    <name>PrivateRun</name>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder for the results.</source>
        <translation>В папке «%1» нельзя создать файлы: %2. Освободите место или выберите другую папку для результатов.</translation>
    </message>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder with --output.</source>
        <translation>В папке «%1» нельзя создать файлы: %2. Освободите место или выберите другую папку с помощью --output.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2.</source>
        <translation>Не удаётся записать «%1»: %2.</translation>
    </message>
    <message>
        <source>A link to the photograph can&apos;t be created, neither in the folder of its result nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Ссылку на фотографию нельзя создать ни в папке её результата, ни в «%1». Освободите место и проверьте, разрешена ли вам запись.</translation>
    </message>
    <message>
        <source>Its %1 bits per channel don&apos;t fit into a file of this format. Choose a name that ends in .tif, .psd or, for up to 16 bits, .png.</source>
        <translation>Её %1 бит на канал не помещаются в файл этого формата. Выберите имя, оканчивающееся на .tif, .psd или, до 16 бит, .png.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Подключаемый модуль записал «%1» вместо «%2»</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 ч %2 мин</translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>Не удаётся записать в стандартный поток вывода: %1. Освободите место или направьте его в другое место.</translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %, %2 с</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message>
        <source>automatic strength</source>
        <translation>автоматическая интенсивность</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1: %2 (%3 x %4 pixels, %5 of memory, %6)</source>
        <translation>%1: %2 (%3 x %4 пикселей, память %5, %6)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>Была бы обработана %n фотография.</numerusform>
            <numerusform>Были бы обработаны %n фотографии.</numerusform>
            <numerusform>Было бы обработано %n фотографий.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>Обработано фотографий: %n.</numerusform>
            <numerusform>Обработано фотографий: %n.</numerusform>
            <numerusform>Обработано фотографий: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>Без изменений: %n.</numerusform>
            <numerusform>Без изменений: %n.</numerusform>
            <numerusform>Без изменений: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>Пропущено: %n.</numerusform>
            <numerusform>Пропущено: %n.</numerusform>
            <numerusform>Пропущено: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>Не удалось: %n.</numerusform>
            <numerusform>Не удалось: %n.</numerusform>
            <numerusform>Не удалось: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>Не начато: %n.</numerusform>
            <numerusform>Не начато: %n.</numerusform>
            <numerusform>Не начато: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>, осталось %1</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>сохранение: %1</translation>
    </message>
    <message>
        <source>removing haze: %1</source>
        <translation>удаление дымки: %1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>чтение: %1</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;result</source>
        <translation>Открыть &amp;результат</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>Открыть &amp;папку</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Show the result in the program that opens such pictures</source>
        <translation>Показать результат в программе, которая открывает такие изображения</translation>
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
        <source>Start &amp;over</source>
        <translation>На&amp;чать заново</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Выбрать другие фотографии</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Все фотографии обработаны.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Обработано фотографий: %1 из %2.</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Остановка; дописывается сохраняемый файл. Чтобы завершить немедленно, нажмите Ctrl-C ещё раз.</translation>
    </message>
    <message>
        <source>Remove haze</source>
        <translation>Убрать дымку</translation>
    </message>
    <message>
        <source>There is no desktop that shows notifications.</source>
        <translation>Нет рабочего стола, который показывает уведомления.</translation>
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
        <source>The list names no photographs: there is nothing to do.</source>
        <translation>В списке нет фотографий: делать нечего.</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists and is not a folder. Name another one.</source>
        <translation>--output: «%1» существует, и это не папка. Укажите другую.</translation>
    </message>
    <message>
        <source>--output: results can&apos;t be written as &quot;%1&quot;. Choose a name that ends in one of %2.</source>
        <translation>--output: результаты нельзя записать как «%1». Выберите имя, оканчивающееся на одно из %2.</translation>
    </message>
    <message>
        <source>--output names the file &quot;%1&quot;, but there are %2 photographs. Name a folder, such as &quot;%3&quot;.</source>
        <translation>--output называет файл «%1», но фотографий %2. Укажите папку, например «%3».</translation>
    </message>
    <message>
        <source>--tag is for results that get their names from their photographs: leave it out, or name a folder as --output.</source>
        <translation>--tag — для результатов, которые называются по фотографиям: уберите его или укажите папку в --output.</translation>
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
        <source>No --strength given and no default stored: using %1.</source>
        <translation>Параметр --strength не указан, сохранённого значения по умолчанию нет: используется %1.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>--strength не указан: используется сохранённое значение по умолчанию, автоматическая интенсивность.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>Параметр --strength не указан: используется ваше сохранённое значение по умолчанию %1.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Имя файла настроек «%1» совпадает с именем результата. Дайте ему другое имя.</translation>
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
        <source>&amp;Replace</source>
        <translation>&amp;Заменить</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>Ос&amp;тавить</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Фотографии</translation>
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
    <message>
        <source>Photographs that are done</source>
        <translation>Готовые фотографии</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Каждый результат записывается рядом со своей фотографией.</translation>
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
        <translation>%1 %</translation>
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
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Остановка. Результат, который уже сохраняется, будет дописан.</translation>
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
        <source>Its result already existed and was kept.</source>
        <translation>Результат уже был и оставлен без изменений.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Без изменений</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Прежний результат</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Ошибка</translation>
    </message>
</context>
<context>
    <name>SaveBar</name>
    <message>
        <source>less than a minute left</source>
        <translation>осталось меньше минуты</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>осталась примерно %n минута</numerusform>
            <numerusform>осталось примерно %n минуты</numerusform>
            <numerusform>осталось примерно %n минут</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>остался примерно %n час</numerusform>
            <numerusform>осталось примерно %n часа</numerusform>
            <numerusform>осталось примерно %n часов</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Сохранение</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>сохранено %1 из %2</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Пауза: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>сохранена %n фотография</numerusform>
            <numerusform>сохранены %n фотографии</numerusform>
            <numerusform>сохранено %n фотографий</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>оставлено: %n</numerusform>
            <numerusform>оставлено: %n</numerusform>
            <numerusform>оставлено: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>не удалось: %n</numerusform>
            <numerusform>не удалось: %n</numerusform>
            <numerusform>не удалось: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>остановлено: %n</numerusform>
            <numerusform>остановлено: %n</numerusform>
            <numerusform>остановлено: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveOptionsDialog</name>
    <message>
        <source>In this &amp;folder:</source>
        <translation>В этой &amp;папке:</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Выбрать...</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>&amp;Качество JPEG:</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>Параметры сохранения</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Результаты</translation>
    </message>
    <message>
        <source>Otherwise each result is saved beside its photograph</source>
        <translation>Иначе каждый результат сохраняется рядом с фотографией</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>Папка результатов</translation>
    </message>
    <message>
        <source>&amp;Tag behind the name:</source>
        <translation>&amp;Добавка к имени:</translation>
    </message>
    <message>
        <source>Otherwise each JPEG keeps the quality of its photograph</source>
        <translation>Иначе JPEG сохраняет качество своей фотографии</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Качество JPEG</translation>
    </message>
    <message>
        <source>If a result exists already</source>
        <translation>Если результат уже есть</translation>
    </message>
    <message>
        <source>&amp;Replace it if its strength has changed</source>
        <translation>&amp;Заменить, если изменилась интенсивность</translation>
    </message>
    <message>
        <source>Replace it in &amp;any case</source>
        <translation>Заменить в любом &amp;случае</translation>
    </message>
    <message>
        <source>Keep &amp;both: the new one gets a number</source>
        <translation>Оставить &amp;оба: новый получит номер</translation>
    </message>
    <message>
        <source>&amp;Keep it and save nothing</source>
        <translation>Оставить и &amp;ничего не сохранять</translation>
    </message>
    <message>
        <source>A tag can&apos;t contain &quot;/&quot;.</source>
        <translation>Добавка не может содержать «/».</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;. Choose one that exists.</source>
        <translation>Нет папки «%1». Выберите существующую.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Choose another one.</source>
        <translation>Папка «%1» доступна только для чтения. Выберите другую.</translation>
    </message>
    <message>
        <source>%1 becomes %2.</source>
        <translation>%1 станет %2.</translation>
    </message>
</context>
<context>
    <name>SaveQueue</name>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Результат уже был и оставлен без изменений.</translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message>
        <source>edited</source>
        <translation>изменена</translation>
    </message>
    <message>
        <source>waiting to be saved</source>
        <translation>ждёт сохранения</translation>
    </message>
    <message>
        <source>being saved</source>
        <translation>сохраняется</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>сохранена</translation>
    </message>
    <message>
        <source>changed since it was saved</source>
        <translation>изменена после сохранения</translation>
    </message>
    <message>
        <source>existing result kept</source>
        <translation>прежний результат оставлен</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>не удалось</translation>
    </message>
    <message>
        <source>Strength %1 %, automatic</source>
        <translation>Интенсивность %1 %, автоматическая</translation>
    </message>
    <message>
        <source>Strength %1 %</source>
        <translation>Интенсивность %1 %</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>Файл RAW</translation>
    </message>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>Добавить %n фотографию</numerusform>
            <numerusform>Добавить %n фотографии</numerusform>
            <numerusform>Добавить %n фотографий</numerusform>
        </translation>
    </message>
    <message>
        <source>Change strength</source>
        <translation>Изменить интенсивность</translation>
    </message>
    <message>
        <source>Automatic strength</source>
        <translation>Автоматическая интенсивность</translation>
    </message>
    <message>
        <source>Reset strength</source>
        <translation>Сбросить интенсивность</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>Убрать %n фотографию</numerusform>
            <numerusform>Убрать %n фотографии</numerusform>
            <numerusform>Убрать %n фотографий</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The session can&apos;t be kept in &quot;%1&quot;: %2. Make room, or give yourself permission to write there.</source>
        <translation>Сеанс нельзя хранить в «%1»: %2. Освободите место или дайте себе право на запись.</translation>
    </message>
    <message>
        <source>Another window works on the settings file &quot;%1&quot;. Close it there first.</source>
        <translation>С файлом настроек «%1» работает другое окно. Сначала закройте его там.</translation>
    </message>
    <message>
        <source>The session in &quot;%1&quot; can&apos;t be read: %2. Open its photographs or a settings file instead.</source>
        <translation>Сеанс в «%1» не читается: %2. Откройте вместо него фотографии или файл настроек.</translation>
    </message>
    <message>
        <source>Another window works on this session. Close it there first.</source>
        <translation>С этим сеансом работает другое окно. Сначала закройте его там.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Check its name and folder.</source>
        <translation>Нет файла настроек «%1». Проверьте имя и папку.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photographs. Give the settings file another name.</source>
        <translation>«%1» — одна из фотографий. Дайте файлу настроек другое имя.</translation>
    </message>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>Будет потеряна интенсивность %n фотографии.</numerusform>
            <numerusform>Будет потеряна интенсивность %n фотографий.</numerusform>
            <numerusform>Будет потеряна интенсивность %n фотографий.</numerusform>
        </translation>
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
    <name>StrengthPanel</name>
    <message>
        <source>&amp;Strength</source>
        <translation>&amp;Интенсивность</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Интенсивность</translation>
    </message>
    <message>
        <source>How much of the haze is removed</source>
        <translation>Какую долю дымки убрать</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Интенсивность в процентах</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>автоматически</translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>Add photographs...</source>
        <translation>Добавить фотографии...</translation>
    </message>
    <message>
        <source>Add photographs to the series</source>
        <translation>Добавить фотографии в серию</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Добавить папку...</translation>
    </message>
    <message>
        <source>Add the photographs of a folder to the series</source>
        <translation>Добавить в серию фотографии из папки</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Начать заново</translation>
    </message>
    <message>
        <source>Begin an empty series; this one stays among the recent sessions</source>
        <translation>Начать пустую серию; эта останется среди недавних сеансов</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>&amp;Открыть сеанс...</translation>
    </message>
    <message>
        <source>Open photographs and strengths that were saved as a session</source>
        <translation>Открыть фотографии и интенсивность, сохранённые как сеанс</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Сохранить сеанс</translation>
    </message>
    <message>
        <source>Save the list of photographs and their strengths</source>
        <translation>Сохранить список фотографий и их интенсивность</translation>
    </message>
    <message>
        <source>Save the session as...</source>
        <translation>Сохранить сеанс как...</translation>
    </message>
    <message>
        <source>Save the session under another name</source>
        <translation>Сохранить сеанс под другим именем</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Предыдущая фотография</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Следующая фотография</translation>
    </message>
    <message>
        <source>First photograph</source>
        <translation>Первая фотография</translation>
    </message>
    <message>
        <source>Last photograph</source>
        <translation>Последняя фотография</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Select all photographs</source>
        <translation>Выделить все фотографии</translation>
    </message>
    <message>
        <source>Remove from the series</source>
        <translation>Убрать из серии</translation>
    </message>
    <message>
        <source>Remove the selected photographs from the series; the files stay</source>
        <translation>Убрать выделенные фотографии из серии; файлы останутся</translation>
    </message>
    <message>
        <source>Stronger</source>
        <translation>Сильнее</translation>
    </message>
    <message>
        <source>Raise the strength by 1 per cent</source>
        <translation>Увеличить интенсивность на 1 процент</translation>
    </message>
    <message>
        <source>Weaker</source>
        <translation>Слабее</translation>
    </message>
    <message>
        <source>Lower the strength by 1 per cent</source>
        <translation>Уменьшить интенсивность на 1 процент</translation>
    </message>
    <message>
        <source>Stronger by 10</source>
        <translation>Сильнее на 10</translation>
    </message>
    <message>
        <source>Raise the strength by 10 per cent</source>
        <translation>Увеличить интенсивность на 10 процентов</translation>
    </message>
    <message>
        <source>Weaker by 10</source>
        <translation>Слабее на 10</translation>
    </message>
    <message>
        <source>Lower the strength by 10 per cent</source>
        <translation>Уменьшить интенсивность на 10 процентов</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Авто</translation>
    </message>
    <message>
        <source>Give each selected photograph the strength that suits it</source>
        <translation>Дать каждой выделенной фотографии подходящую интенсивность</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Go back to the strength at the start</source>
        <translation>Вернуться к начальной интенсивности</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Отменить последнее изменение</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Make the change again that was undone</source>
        <translation>Повторить отменённое изменение</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected</source>
        <translation>К в&amp;ыделенным</translation>
    </message>
    <message>
        <source>Use this strength for all selected photographs</source>
        <translation>Применить эту интенсивность ко всем выделенным фотографиям</translation>
    </message>
    <message>
        <source>App&amp;ly to all</source>
        <translation>Ко &amp;всем</translation>
    </message>
    <message>
        <source>Use this strength for all photographs of the series</source>
        <translation>Применить эту интенсивность ко всем фотографиям серии</translation>
    </message>
    <message>
        <source>Use as &amp;default</source>
        <translation>По &amp;умолчанию</translation>
    </message>
    <message>
        <source>Start new photographs at this strength from now on</source>
        <translation>Отныне начинать новые фотографии с этой интенсивности</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>С линией</translation>
    </message>
    <message>
        <source>Before and after in one picture, with a line to drag</source>
        <translation>До и после на одном изображении, с подвижной линией</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Рядом</translation>
    </message>
    <message>
        <source>Before and after side by side</source>
        <translation>До и после рядом</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>Only the result</source>
        <translation>Только результат</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>До</translation>
    </message>
    <message>
        <source>Hold, or hold Space: the photograph as it was</source>
        <translation>Удерживать, или удерживать пробел: фотография, какой была</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Карта дымки</translation>
    </message>
    <message>
        <source>Hold, or hold M: where haze was found</source>
        <translation>Удерживать, или удерживать M: где найдена дымка</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Отсечение</translation>
    </message>
    <message>
        <source>Mark pixels that became black or white</source>
        <translation>Отметить пиксели, ставшие чёрными или белыми</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Вместить</translation>
    </message>
    <message>
        <source>Show the whole photograph</source>
        <translation>Показать фотографию целиком</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show each pixel as it is, where the pointer is</source>
        <translation>Показать каждый пиксель как есть, там, где указатель</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>Show pixels at twice their size</source>
        <translation>Показать пиксели вдвое крупнее</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show pixels at four times their size</source>
        <translation>Показать пиксели вчетверо крупнее</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Save this one</source>
        <translation>Сохранить эту</translation>
    </message>
    <message>
        <source>Save the result of this photograph</source>
        <translation>Сохранить результат этой фотографии</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Сохранить все</translation>
    </message>
    <message>
        <source>Save the results of the whole series</source>
        <translation>Сохранить результаты всей серии</translation>
    </message>
    <message>
        <source>Save op&amp;tions...</source>
        <translation>Пара&amp;метры сохранения...</translation>
    </message>
    <message>
        <source>Folder, tag and quality of the results, and what happens to existing ones</source>
        <translation>Папка, добавка и качество результатов, и что делать с существующими</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Пауза</translation>
    </message>
    <message>
        <source>Finish the photographs in work and begin no other until you resume</source>
        <translation>Закончить начатые фотографии и не начинать других до продолжения</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Stop saving; results that are complete stay</source>
        <translation>Прекратить сохранение; готовые результаты останутся</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить ещё раз</translation>
    </message>
    <message>
        <source>Try again those photographs that failed</source>
        <translation>Повторить для фотографий, с которыми не получилось</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Во весь экран</translation>
    </message>
    <message>
        <source>Use the whole screen, or go back to the window</source>
        <translation>Занять весь экран или вернуться к окну</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Клавиши</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>Показать все клавиши</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Закрыть окно</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
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
        <source>Set how much haze to remove from each photograph. Hold Alt to see where the haze is.</source>
        <translation>Укажите, сколько дымки убрать с каждой фотографии. Удерживайте Alt, чтобы увидеть, где дымка.</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Фотография</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Интенсивность в процентах</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Предыдущая фотография</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Следующая фотография</translation>
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
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1, %n фотография, %2</numerusform>
            <numerusform>%1, %n фотографии, %2</numerusform>
            <numerusform>%1, %n фотографий, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Фотография</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Серия</translation>
    </message>
    <message>
        <source>Drag the line to compare. Hold Space: before. Left, Right: photograph. Up, Down: strength.</source>
        <translation>Тяните линию: сравнение. Пробел: до. Влево, вправо: фотография. Вверх, вниз: интенсивность.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Сеанс</translation>
    </message>
    <message>
        <source>Open, save or begin a session: photographs with their strengths</source>
        <translation>Открыть, сохранить или начать сеанс: фотографии с их интенсивностью</translation>
    </message>
    <message>
        <source>&amp;Recent sessions</source>
        <translation>&amp;Недавние сеансы</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 x %2 px, %3 bits</source>
        <translation>%1 x %2 пикс., %3 бит</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>Результат: %1</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected (%1)</source>
        <translation>К в&amp;ыделенным (%1)</translation>
    </message>
    <message>
        <source>App&amp;ly to all (%1)</source>
        <translation>Ко &amp;всем (%1)</translation>
    </message>
    <message>
        <source>Save all %1</source>
        <translation>Сохранить все %1</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>П&amp;родолжить</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Пауза</translation>
    </message>
    <message>
        <source>veilaway</source>
        <translation>veilaway</translation>
    </message>
    <message>
        <source>%1[*] - veilaway</source>
        <translation>%1[*] - veilaway</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) left out.</source>
        <translation>
            <numerusform>Не добавлен %n результат.</numerusform>
            <numerusform>Не добавлены %n результата.</numerusform>
            <numerusform>Не добавлено %n результатов.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photographs in the folder &quot;%1&quot;.</source>
        <translation>В папке «%1» нет фотографий.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>Осталось сохранить %n фотографию этой серии.</numerusform>
            <numerusform>Осталось сохранить %n фотографии этой серии.</numerusform>
            <numerusform>Осталось сохранить %n фотографий этой серии.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Save them now</source>
        <translation>&amp;Сохранить сейчас</translation>
    </message>
    <message>
        <source>The series is as you left it.</source>
        <translation>Серия такая, какой вы её оставили.</translation>
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
        <source>Add a folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Открыть сеанс</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Файлы настроек (*.xml)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Сохранить сеанс</translation>
    </message>
    <message>
        <source>New photographs start at their automatic strength.</source>
        <translation>Новые фотографии начинают с автоматической интенсивности.</translation>
    </message>
    <message>
        <source>New photographs start at %1 %.</source>
        <translation>Новые фотографии начинают с %1 %.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>Не удалось сохранить %n фотографию.</numerusform>
            <numerusform>Не удалось сохранить %n фотографии.</numerusform>
            <numerusform>Не удалось сохранить %n фотографий.</numerusform>
        </translation>
    </message>
    <message>
        <source>Try a&amp;gain</source>
        <translation>Повторить &amp;ещё раз</translation>
    </message>
    <message>
        <source>Saving has ended</source>
        <translation>Сохранение закончено</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>&amp;Закрыть всё равно</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>О&amp;статься</translation>
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
