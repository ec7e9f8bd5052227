<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Wynik „%1” już istnieje. Aby go zastąpić, należy podać --overwrite.</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>Nie można odczytać folderu. Należy nadać sobie prawo do odczytu.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder or those inside it.</source>
        <translation>W tym folderze i jego podfolderach nie ma zdjęć.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder. Add --recursive for those in the folders inside it.</source>
        <translation>W tym folderze nie ma zdjęć. Aby wziąć zdjęcia z podfolderów, należy dodać --recursive.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; already exists.</source>
        <translation>Pominięto: wynik „%1” już istnieje.</translation>
    </message>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>Zdjęcie nie ma rozszerzenia, więc wynik będzie plikiem TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Formatu „%1” nie można zapisać, więc wynik będzie plikiem TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder for the results.</source>
        <translation>Wynik „%1” jest tym samym plikiem co zdjęcie „%2”. Należy przenieść jeden z nich lub wybrać inny folder na wyniki.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder with --output.</source>
        <translation>Wynik „%1” jest tym samym plikiem co zdjęcie „%2”. Należy przenieść jeden z nich lub wybrać inny folder za pomocą --output.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs, or give their results different folders.</source>
        <translation>Wynik „%1” byłby zarazem wynikiem dla „%2”. Należy zmienić nazwę jednego z tych zdjęć lub wskazać dla ich wyników różne foldery.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>W miejscu wyniku, „%1”, znajduje się folder. Należy go przenieść gdzie indziej.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; is newer than the photograph.</source>
        <translation>Pominięto: wynik „%1” jest nowszy niż zdjęcie.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder for the results.</source>
        <translation>Wynik „%1” jest chroniony przed zapisem lub nie jest zwykłym plikiem. Należy go przenieść lub wybrać inny folder na wyniki.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder with --output.</source>
        <translation>Wynik „%1” jest chroniony przed zapisem lub nie jest zwykłym plikiem. Należy go przenieść lub wybrać inny folder za pomocą --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one for the results.</source>
        <translation>Wyniku nie można zapisać: „%1” nie jest folderem. Należy wybrać inny folder na wyniki.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one with --output.</source>
        <translation>Wyniku nie można zapisać: „%1” nie jest folderem. Należy wybrać inny za pomocą --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one for the results.</source>
        <translation>Wyniku nie można zapisać: folder „%1” jest tylko do odczytu. Należy wybrać inny folder na wyniki.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one with --output.</source>
        <translation>Wyniku nie można zapisać: folder „%1” jest tylko do odczytu. Należy wybrać inny za pomocą --output.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Nazwa wyniku byłaby za długa. Należy nadać zdjęciu krótszą nazwę.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Zatrzymano; wynik nie został zapisany.</translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation>Błąd wtyczki w %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Za mało pamięci.</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>Zdjęcie zostało zmienione, przeniesione lub usunięte podczas usuwania mgły. Przywróć je i zacznij od nowa.</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>Należy zamknąć inne programy i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Należy zamknąć inne programy lub przetwarzać zdjęcia pojedynczo (--jobs 1).</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>Należy zwolnić miejsce w folderze „%1” i sprawdzić, czy można w nim zapisywać.</translation>
    </message>
    <message>
        <source>The file also holds a gain map or further pictures, which don&apos;t fit the result and are left out.</source>
        <translation>Plik zawiera też mapę wzmocnienia lub dalsze obrazy, które nie pasują do wyniku i zostały pominięte.</translation>
    </message>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Wynik został zapisany, ale nie udało się skopiować do niego danych XMP zdjęcia: %1.</translation>
    </message>
    <message>
        <source>The result was written, but could not be given the photograph&apos;s time of modification: %1.</source>
        <translation>Wynik został zapisany, ale nie udało się nadać mu czasu modyfikacji zdjęcia: %1.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>Zdjęcie wymaga około %1 pamięci, a wolne jest %2. Należy zamknąć inne programy lub zmniejszyć zdjęcie.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Did you mean --%1?</source>
        <translation>Czy chodziło o --%1?</translation>
    </message>
    <message>
        <source>Write &quot;./%1&quot; for the photograph of this name.</source>
        <translation>Aby wskazać zdjęcie o tej nazwie, należy napisać „./%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be followed by one of %2, not &quot;%3&quot;.</source>
        <translation>Po „%1” musi wystąpić jedno z %2, a nie „%3”.</translation>
    </message>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength wymaga liczby całkowitej od 0 do 100 albo auto, a nie „%1”.</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs wymaga liczby całkowitej od 1 do %1, a nie „%2”.</translation>
    </message>
    <message>
        <source>--quality must be a whole number from 1 to 100, not &quot;%1&quot;.</source>
        <translation>--quality wymaga liczby całkowitej od 1 do 100, a nie „%1”.</translation>
    </message>
    <message>
        <source>--compression must be none, deflate or lzw, not &quot;%1&quot;.</source>
        <translation>--compression wymaga none, deflate lub lzw, a nie „%1”.</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>--language zna wartości %1, ale nie „%2”.</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>--settings wymaga nazwy pliku w UTF-8.</translation>
    </message>
    <message>
        <source>--output must be the name of a folder or file, in UTF-8.</source>
        <translation>--output wymaga nazwy folderu lub pliku w UTF-8.</translation>
    </message>
    <message>
        <source>--tag is a part of a name: it must not contain a slash, and must be in UTF-8.</source>
        <translation>--tag jest częścią nazwy: nie może zawierać ukośnika i musi być w UTF-8.</translation>
    </message>
    <message>
        <source>Of --skip-existing, --newer and --overwrite, only one can be used at a time.</source>
        <translation>Z --skip-existing, --newer i --overwrite można użyć tylko jednego.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default wymaga liczby całkowitej od 0 do 100, auto albo none, a nie „%1”.</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default zapisuje wartość domyślną i nie robi nic więcej: pomiń zdjęcia i opcje dla nich.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with %2, which asks for it on the screen.</source>
        <translation>--%1 nie można użyć razem z %2: tam pytanie pojawia się na ekranie.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Należy podać zdjęcia, z których ma zostać usunięte zamglenie.</translation>
    </message>
    <message>
        <source>Also read here: %1</source>
        <translation>Tu odczytywane są także: %1</translation>
    </message>
    <message>
        <source>Not read here, for want of a decoder: %1</source>
        <translation>Tu nie są odczytywane z braku dekodera: %1</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Zobacz veilaway --help.</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>Nie można zapisać wartości domyślnej w „%1”. Zwolnij miejsce albo nadaj sobie uprawnienie do zapisu w tym miejscu.</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start it in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>Nie można wyświetlić okna: %1. Należy je uruchomić w sesji graficznej albo z innego komputera przez ssh -X. Bez okna pracę wykona veilaway ZDJĘCIE...</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Recent sessions</source>
        <translation>Ostatnie sesje</translation>
    </message>
    <message>
        <source>Drop photographs or a folder here</source>
        <translation>Tu można upuścić zdjęcia lub folder</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>Dod&amp;aj zdjęcia...</translation>
    </message>
    <message>
        <source>Add a &amp;folder...</source>
        <translation>Dodaj &amp;folder...</translation>
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
        <translation>Zdjęcia</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histogram</translation>
    </message>
    <message>
        <source>The result; dashed: the photograph as it was</source>
        <translation>Wynik; linią przerywaną: zdjęcie, jakie było</translation>
    </message>
    <message>
        <source>Black %1 %, white %2 %</source>
        <translation>Czerń %1 %, biel %2 %</translation>
    </message>
    <message>
        <source>black %1 %</source>
        <translation>czerń %1 %</translation>
    </message>
    <message>
        <source>white %1 %</source>
        <translation>biel %1 %</translation>
    </message>
</context>
<context>
    <name>KeySheet</name>
    <message>
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>Komunikat</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>Zamknij komunikat</translation>
    </message>
</context>
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_dehazed</translation>
    </message>
</context>
<context>
    <name>OptionTable</name>
    <message>
        <source>veilaway takes the haze out of photographs.</source>
        <translation>veilaway usuwa zamglenie ze zdjęć.</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Użycie:</translation>
    </message>
    <message>
        <source>PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for such a list on standard input.</source>
        <translation>PHOTO to zdjęcie, folder ze zdjęciami, @FILE dla pliku z ich listą, po jednym w wierszu, lub - dla takiej listy na standardowym wejściu.</translation>
    </message>
    <message>
        <source>Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.</source>
        <translation>Każdy wynik jest zapisywany obok swojego zdjęcia pod jego nazwą z dopiskiem: z hills.jpg powstaje hills_dehazed.jpg. Samo zdjęcie nigdy się nie zmienia. Dopisek zależy od języka: na przykład _entnebelt z --language de.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Polecenia:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opcje:</translation>
    </message>
    <message>
        <source>Everything that follows is a photograph, even if it begins with a dash.</source>
        <translation>Wszystko, co następuje, to zdjęcia, nawet jeśli nazwa zaczyna się myślnikiem.</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>Formaty:</translation>
    </message>
    <message>
        <source>Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.</source>
        <translation>Odczyt i zapis: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) i PSD. Wynik ma format swojego zdjęcia, jego głębię (8 lub 16 bitów albo liczby zmiennoprzecinkowe), profil kolorów, EXIF, IPTC i XMP. Orientacja EXIF zostaje, więc wynik jest pokazywany tak samo.</translation>
    </message>
    <message>
        <source>Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others), whose result is a 16-bit TIFF, and, where --version names them, HEIC (heic, heif, hif), AVIF, WebP and JPEG XL (jxl), whose result is a TIFF of their depth. Photographs with any other suffix, or none, become a TIFF too.</source>
        <translation>Tylko odczyt: pliki RAW (dng, cr2, nef, arw, raf, orf, rw2 i inne), których wynikiem jest 16-bitowy TIFF, oraz, jeśli wymienia je --version, HEIC (heic, heif, hif), AVIF, WebP i JPEG XL (jxl), których wynikiem jest TIFF o ich głębi. Zdjęcia z innym rozszerzeniem lub bez niego też stają się plikami TIFF.</translation>
    </message>
    <message>
        <source>XMP sidecar files are not read and stay where they are.</source>
        <translation>Towarzyszące pliki XMP nie są odczytywane i zostają na miejscu.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Kod wyjścia:</translation>
    </message>
    <message>
        <source>All photographs are done, skipped as requested, or came back unchanged (a message says why).</source>
        <translation>Wszystkie zdjęcia są gotowe, pominięte na żądanie lub pozostały bez zmian (komunikat mówi dlaczego).</translation>
    </message>
    <message>
        <source>Some are not: standard error says which, why, and what helps. Or standard output could not be written.</source>
        <translation>Niektóre nie są: standardowe wyjście błędów mówi, które, dlaczego i co pomoże. Albo nie udało się pisać na standardowe wyjście.</translation>
    </message>
    <message>
        <source>The command line or the settings file is wrong; nothing was begun.</source>
        <translation>Wiersz poleceń lub plik ustawień jest błędny; niczego nie zaczęto.</translation>
    </message>
    <message>
        <source>Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.</source>
        <translation>Ctrl-C kończy program tym sygnałem (130 w powłoce), nie zostawiając połowy wyniku.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Przykłady:</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Nie można otworzyć pliku. Należy sprawdzić, czy istnieje i czy można go odczytać.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>To jest film. Zamglenie można usuwać tylko ze zdjęć; należy zapisać klatkę filmu jako JPEG, PNG lub TIFF.</translation>
    </message>
    <message>
        <source>It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>To jest animacja. Zamglenie można usuwać tylko ze zdjęć; należy zapisać jej klatkę jako JPEG, PNG lub TIFF.</translation>
    </message>
    <message>
        <source>This installation can&apos;t decode its format; veilaway --version says which formats it can. Convert the photograph to JPEG, PNG or TIFF.</source>
        <translation>Ta instalacja nie dekoduje tego formatu; veilaway --version mówi, które dekoduje. Należy przekonwertować zdjęcie na JPEG, PNG lub TIFF.</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>To nie jest obraz w znanym formacie lub nie w tym, który wskazuje rozszerzenie. Można odczytać %1 i pliki RAW; należy nadać plikowi rozszerzenie jego formatu lub go przekonwertować.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Plik jest niepełny lub uszkodzony. Należy skopiować go ponownie z aparatu lub z kopii zapasowej.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs and try again.</source>
        <translation>Za mało pamięci na to zdjęcie. Należy zamknąć inne programy i spróbować ponownie.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Za mało pamięci na to zdjęcie. Należy zamknąć inne programy lub przetwarzać zdjęcia pojedynczo (--jobs 1).</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs and try again.</source>
        <translation>Za mało pamięci na ten plik RAW. Należy zamknąć inne programy i spróbować ponownie.</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Za mało pamięci na ten plik RAW. Należy zamknąć inne programy lub przetwarzać zdjęcia pojedynczo (--jobs 1).</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>Nie można wywołać pliku RAW: %1. Należy skopiować go ponownie lub przekonwertować do DNG albo TIFF.</translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Nie można odczytać tego rodzaju pikseli. Należy zapisać zdjęcie jako RGB 8- lub 16-bitowe i spróbować ponownie.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Pusta nazwa nie oznacza żadnego zdjęcia.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Jego nazwa lub nazwa folderu zawiera znaki, które nie są UTF-8. Zmień nazwę.</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be opened. Give yourself the permission to open it.</source>
        <translation>Nie można otworzyć jego folderu. Należy nadać sobie prawo do jego otwierania.</translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>Dowiązanie prowadzi donikąd. Należy podać samo zdjęcie.</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>Nie ma takiego pliku. Należy sprawdzić nazwę i folder.</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>To jest folder. Należy podać zdjęcia, które zawiera, na przykład „%1”.</translation>
    </message>
    <message>
        <source>This is not a regular file. Copy the photograph into one.</source>
        <translation>To nie jest zwykły plik. Należy skopiować zdjęcie do zwykłego pliku.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>Nie można odczytać pliku. Należy nadać sobie prawo do jego odczytu.</translation>
    </message>
    <message>
        <source>The file is empty. Copy it again from the camera or a backup.</source>
        <translation>Plik jest pusty. Należy skopiować go ponownie z aparatu lub z kopii zapasowej.</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Choose the photographs to remove haze from, or drop them here. They are never changed: each result is saved beside its photograph.</source>
        <translation>Należy wybrać zdjęcia, z których ma zostać usunięte zamglenie, lub upuścić je tutaj. Same zdjęcia się nie zmieniają: każdy wynik jest zapisywany obok swojego zdjęcia.</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>Dod&amp;aj zdjęcia...</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>&amp;Otwórz sesję...</translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation>Plik ustawień ze zdjęciami i poziomem dla każdego z nich</translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation>%1: w tym folderze nie ma zdjęć.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1: to wynik innego zdjęcia z listy.</numerusform>
            <numerusform>%n wyniki innych zdjęć z listy, na przykład „%1”.</numerusform>
            <numerusform>%n wyników innych zdjęć z listy, na przykład „%1”.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>Wczytywanie %n zdjęcia...</numerusform>
            <numerusform>Wczytywanie %n zdjęć...</numerusform>
            <numerusform>Wczytywanie %n zdjęć...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>%n zdjęcie</numerusform>
            <numerusform>%n zdjęcia</numerusform>
            <numerusform>%n zdjęć</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... i jeszcze %n</numerusform>
            <numerusform>... i jeszcze %n</numerusform>
            <numerusform>... i jeszcze %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Pominięto:</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>Dodawanie zdjęć</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Zdjęcia (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Otwieranie sesji</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Pliki ustawień (*.xml)</translation>
    </message>
</context>
<context>
    <name>PhotoStore</name>
    <message>
        <source>There is not enough memory for it. Close other programs, or scale the photograph down.</source>
        <translation>Brakuje na nie pamięci. Należy zamknąć inne programy lub zmniejszyć zdjęcie.</translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>Zdjęcie jest za duże: zamglenie można usunąć ze zdjęć, których szerokość lub wysokość nie przekracza %1 pikseli. Należy je zmniejszyć lub podzielić na części.</translation>
    </message>
</context>
<context>
    <name>PhotographList</name>
    <message>
        <source>The list &quot;%1&quot; can&apos;t be read: %2. Check its name, or write ./@... for a photograph whose name begins with @.</source>
        <translation>Nie można odczytać listy „%1”: %2. Należy sprawdzić nazwę lub napisać ./@..., jeśli nazwa zdjęcia zaczyna się od @.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.</source>
        <translation>Lista „%1” zawiera bajty zerowe. Należy dodać --null (-0), jeśli kończą one nazwy, lub zapisać listę jako tekst w UTF-8.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds no null bytes. Leave out --null (-0) if it has one name per line.</source>
        <translation>Lista „%1” nie zawiera bajtów zerowych. Należy pominąć --null (-0), jeśli w każdym wierszu jest jedna nazwa.</translation>
    </message>
</context>
<context>
    <name>PictureRenderer</name>
    <message>
        <source>There is not enough memory for this picture. Close other programs.</source>
        <translation>Brakuje pamięci na ten obraz. Należy zamknąć inne programy.</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Photograph</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Hold: the photograph before</source>
        <translation>Przytrzymaj: zdjęcie przed</translation>
    </message>
    <message>
        <source>Hold: the haze map; Alt does the same</source>
        <translation>Przytrzymaj: mapa zamglenia; Alt działa tak samo</translation>
    </message>
    <message>
        <source>Move over the photograph</source>
        <translation>Przesuwanie po zdjęciu</translation>
    </message>
    <message>
        <source>Move the line between before and after</source>
        <translation>Przesuwanie linii między przed i po</translation>
    </message>
    <message>
        <source>Before, zoom %1 %</source>
        <translation>Przed, powiększenie %1 %</translation>
    </message>
    <message>
        <source>Haze map, zoom %1 %</source>
        <translation>Mapa zamglenia, powiększenie %1 %</translation>
    </message>
    <message>
        <source>After %1 %, zoom %2 %</source>
        <translation>Po %1 %, powiększenie %2 %</translation>
    </message>
    <message>
        <source>Before and after %1 %, zoom %2 %</source>
        <translation>Przed i po %1 %, powiększenie %2 %</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Mapa zamglenia</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>After %1 %</source>
        <translation>Po %1 %</translation>
    </message>
    <message>
        <source>Estimating the haze</source>
        <translation>Szacowanie zamglenia</translation>
    </message>
    <message>
        <source>Reading the photograph</source>
        <translation>Odczyt zdjęcia</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>Brak wtyczki „%1”. Należy ją zbudować lub zainstalować albo wskazać jej położenie za pomocą --plugin PLIK.</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>” lub „</translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>to wtyczka innego rodzaju</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>Nie można użyć wtyczki „%1”: %2. Należy zainstalować ją ponownie lub wskazać inną za pomocą --plugin PLIK.</translation>
    </message>
</context>
<context>
    <name>PrivateRun</name>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder for the results.</source>
        <translation>W folderze „%1” nie można tworzyć plików: %2. Należy zwolnić miejsce lub wybrać inny folder na wyniki.</translation>
    </message>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder with --output.</source>
        <translation>W folderze „%1” nie można tworzyć plików: %2. Należy zwolnić miejsce lub wybrać inny folder za pomocą --output.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2.</source>
        <translation>Nie można zapisać „%1”: %2.</translation>
    </message>
    <message>
        <source>A link to the photograph can&apos;t be created, neither in the folder of its result nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Odnośnika do zdjęcia nie można utworzyć ani w folderze wyniku, ani w „%1”. Należy zwolnić miejsce i sprawdzić, czy można tam zapisywać.</translation>
    </message>
    <message>
        <source>Its %1 bits per channel don&apos;t fit into a file of this format. Choose a name that ends in .tif, .psd or, for up to 16 bits, .png.</source>
        <translation>Jego %1 bitów na kanał nie mieści się w pliku tego formatu. Należy wybrać nazwę z końcówką .tif, .psd lub, do 16 bitów, .png.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Wtyczka zapisała „%1” zamiast „%2”</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 godz. %2 min</translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>Nie można pisać na standardowe wyjście: %1. Należy zwolnić tam miejsce lub skierować je gdzie indziej.</translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %, %2 s</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message>
        <source>automatic strength</source>
        <translation>poziom automatyczny</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1: %2 (%3 x %4 pixels, %5 of memory, %6)</source>
        <translation>%1: %2 (%3 x %4 pikseli, pamięć %5, %6)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>Przetworzone zostałoby %n zdjęcie.</numerusform>
            <numerusform>Przetworzone zostałyby %n zdjęcia.</numerusform>
            <numerusform>Przetworzonych zostałoby %n zdjęć.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>Gotowe zdjęcia: %n.</numerusform>
            <numerusform>Gotowe zdjęcia: %n.</numerusform>
            <numerusform>Gotowe zdjęcia: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>Bez zmian: %n.</numerusform>
            <numerusform>Bez zmian: %n.</numerusform>
            <numerusform>Bez zmian: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>Pominięto: %n.</numerusform>
            <numerusform>Pominięto: %n.</numerusform>
            <numerusform>Pominięto: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>Nie udało się: %n.</numerusform>
            <numerusform>Nie udało się: %n.</numerusform>
            <numerusform>Nie udało się: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>Nie zaczęto: %n.</numerusform>
            <numerusform>Nie zaczęto: %n.</numerusform>
            <numerusform>Nie zaczęto: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>, zostało %1</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>zapis: %1</translation>
    </message>
    <message>
        <source>removing haze: %1</source>
        <translation>usuwanie zamglenia: %1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>odczyt: %1</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;result</source>
        <translation>Otwórz &amp;wynik</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>Otwórz &amp;folder</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>Show the result in the program that opens such pictures</source>
        <translation>Pokaż wynik w programie, który otwiera takie obrazy</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>Zapisz &amp;sesję...</translation>
    </message>
    <message>
        <source>Save the photographs and the strength of each in a settings file</source>
        <translation>Zapisuje zdjęcia i poziom dla każdego z nich w pliku ustawień</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>Zacznij od &amp;nowa</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Pozwala wybrać inne zdjęcia</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Wszystkie zdjęcia są gotowe.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Gotowe zdjęcia: %1 z %2.</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Zatrzymywanie; trwa kończenie zapisywanego pliku. Ponowne naciśnięcie Ctrl-C kończy natychmiast.</translation>
    </message>
    <message>
        <source>Remove haze</source>
        <translation>Usuń zamglenie</translation>
    </message>
    <message>
        <source>There is no desktop that shows notifications.</source>
        <translation>Brak pulpitu, który pokazuje powiadomienia.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>Plik ustawień „%1” nie zawiera żadnych zdjęć. Należy podać zdjęcia.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>Nie ma pliku ustawień „%1”. Aby go utworzyć, należy podać zdjęcia.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>Nie można tam zapisać pliku ustawień „%1”. Należy podać plik w innym folderze.</translation>
    </message>
    <message>
        <source>The list names no photographs: there is nothing to do.</source>
        <translation>Lista nie wymienia zdjęć: nie ma nic do zrobienia.</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists and is not a folder. Name another one.</source>
        <translation>--output: „%1” istnieje i nie jest folderem. Należy podać inny.</translation>
    </message>
    <message>
        <source>--output: results can&apos;t be written as &quot;%1&quot;. Choose a name that ends in one of %2.</source>
        <translation>--output: wyników nie można zapisać jako „%1”. Należy wybrać nazwę z jedną z końcówek %2.</translation>
    </message>
    <message>
        <source>--output names the file &quot;%1&quot;, but there are %2 photographs. Name a folder, such as &quot;%3&quot;.</source>
        <translation>--output wskazuje plik „%1”, ale zdjęć jest %2. Należy podać folder, na przykład „%3”.</translation>
    </message>
    <message>
        <source>--tag is for results that get their names from their photographs: leave it out, or name a folder as --output.</source>
        <translation>--tag dotyczy wyników nazywanych od zdjęć: należy go pominąć lub podać folder w --output.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>Pominięto „%1”: to wynik innego z podanych zdjęć.</numerusform>
            <numerusform>Pominięto %n pliki, które są wynikami pozostałych zdjęć, na przykład „%1”.</numerusform>
            <numerusform>Pominięto %n plików, które są wynikami pozostałych zdjęć, na przykład „%1”.</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>Nie podano --strength i nie zapisano wartości domyślnej: używana jest wartość %1.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>Nie podano --strength: używana jest zapisana wartość domyślna, poziom automatyczny.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>Nie podano --strength: używana jest zapisana wartość domyślna %1.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Plik ustawień „%1” ma nazwę jednego z wyników. Należy nadać mu inną nazwę.</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Zatrzymaj</translation>
    </message>
    <message>
        <source>Removing haze</source>
        <translation>Usuwanie zamglenia</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>Za&amp;stąp</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>Z&amp;achowaj</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Poziom</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Photographs that are done</source>
        <translation>Gotowe zdjęcia</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Każdy wynik jest zapisywany obok swojego zdjęcia.</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>Istnieje już %n wynik wcześniejszego przetwarzania.</numerusform>
            <numerusform>Istnieją już %n wyniki wcześniejszego przetwarzania.</numerusform>
            <numerusform>Istnieje już %n wyników wcześniejszego przetwarzania.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekuje</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v z %m</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Zatrzymywanie. Najpierw zostanie dokończony zapis wyniku, który jest już zapisywany.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Wczytywanie</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Wynik już istniał i został zachowany.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Bez zmian</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Zatrzymano</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Zachowano</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
</context>
<context>
    <name>SaveBar</name>
    <message>
        <source>less than a minute left</source>
        <translation>została mniej niż minuta</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>została około %n minuta</numerusform>
            <numerusform>zostały około %n minuty</numerusform>
            <numerusform>zostało około %n minut</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>została około %n godzina</numerusform>
            <numerusform>zostały około %n godziny</numerusform>
            <numerusform>zostało około %n godzin</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>zapisano %1 z %2</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Wstrzymano: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>zapisano %n zdjęcie</numerusform>
            <numerusform>zapisano %n zdjęcia</numerusform>
            <numerusform>zapisano %n zdjęć</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>zachowano: %n</numerusform>
            <numerusform>zachowano: %n</numerusform>
            <numerusform>zachowano: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>nie udało się: %n</numerusform>
            <numerusform>nie udało się: %n</numerusform>
            <numerusform>nie udało się: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>zatrzymano: %n</numerusform>
            <numerusform>zatrzymano: %n</numerusform>
            <numerusform>zatrzymano: %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveOptionsDialog</name>
    <message>
        <source>In this &amp;folder:</source>
        <translation>W tym &amp;folderze:</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Wybierz...</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>&amp;Jakość JPEG:</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>Opcje zapisu</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>Otherwise each result is saved beside its photograph</source>
        <translation>W przeciwnym razie każdy wynik jest zapisywany obok swojego zdjęcia</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>Folder wyników</translation>
    </message>
    <message>
        <source>&amp;Tag behind the name:</source>
        <translation>&amp;Dopisek za nazwą:</translation>
    </message>
    <message>
        <source>Otherwise each JPEG keeps the quality of its photograph</source>
        <translation>W przeciwnym razie każdy JPEG zachowuje jakość swojego zdjęcia</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Jakość JPEG</translation>
    </message>
    <message>
        <source>If a result exists already</source>
        <translation>Jeśli wynik już istnieje</translation>
    </message>
    <message>
        <source>&amp;Replace it if its strength has changed</source>
        <translation>&amp;Zastąp, jeśli zmienił się poziom</translation>
    </message>
    <message>
        <source>Replace it in &amp;any case</source>
        <translation>Zastąp w &amp;każdym razie</translation>
    </message>
    <message>
        <source>Keep &amp;both: the new one gets a number</source>
        <translation>Zachowaj &amp;oba: nowy dostanie numer</translation>
    </message>
    <message>
        <source>&amp;Keep it and save nothing</source>
        <translation>Zachowaj i &amp;nic nie zapisuj</translation>
    </message>
    <message>
        <source>A tag can&apos;t contain &quot;/&quot;.</source>
        <translation>Dopisek nie może zawierać „/”.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;. Choose one that exists.</source>
        <translation>Nie ma folderu „%1”. Należy wybrać istniejący.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Choose another one.</source>
        <translation>Folder „%1” jest tylko do odczytu. Należy wybrać inny.</translation>
    </message>
    <message>
        <source>%1 becomes %2.</source>
        <translation>%1 stanie się %2.</translation>
    </message>
</context>
<context>
    <name>SaveQueue</name>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Wynik już istniał i został zachowany.</translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message>
        <source>edited</source>
        <translation>edytowane</translation>
    </message>
    <message>
        <source>waiting to be saved</source>
        <translation>czeka na zapis</translation>
    </message>
    <message>
        <source>being saved</source>
        <translation>w trakcie zapisu</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>zapisane</translation>
    </message>
    <message>
        <source>changed since it was saved</source>
        <translation>zmienione po zapisie</translation>
    </message>
    <message>
        <source>existing result kept</source>
        <translation>zachowano istniejący wynik</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>nie udało się</translation>
    </message>
    <message>
        <source>Strength %1 %, automatic</source>
        <translation>Poziom %1 %, automatyczny</translation>
    </message>
    <message>
        <source>Strength %1 %</source>
        <translation>Poziom %1 %</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>Plik RAW</translation>
    </message>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>Dodaj %n zdjęcie</numerusform>
            <numerusform>Dodaj %n zdjęcia</numerusform>
            <numerusform>Dodaj %n zdjęć</numerusform>
        </translation>
    </message>
    <message>
        <source>Change strength</source>
        <translation>Zmień poziom</translation>
    </message>
    <message>
        <source>Automatic strength</source>
        <translation>Poziom automatyczny</translation>
    </message>
    <message>
        <source>Reset strength</source>
        <translation>Przywróć poziom</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>Usuń %n zdjęcie</numerusform>
            <numerusform>Usuń %n zdjęcia</numerusform>
            <numerusform>Usuń %n zdjęć</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The session can&apos;t be kept in &quot;%1&quot;: %2. Make room, or give yourself permission to write there.</source>
        <translation>Sesji nie można przechować w „%1”: %2. Należy zwolnić miejsce lub nadać sobie prawo do zapisu.</translation>
    </message>
    <message>
        <source>Another window works on the settings file &quot;%1&quot;. Close it there first.</source>
        <translation>Pliku ustawień „%1” używa inne okno. Należy go najpierw tam zamknąć.</translation>
    </message>
    <message>
        <source>The session in &quot;%1&quot; can&apos;t be read: %2. Open its photographs or a settings file instead.</source>
        <translation>Sesji w „%1” nie można odczytać: %2. Zamiast niej należy otworzyć zdjęcia lub plik ustawień.</translation>
    </message>
    <message>
        <source>Another window works on this session. Close it there first.</source>
        <translation>Tej sesji używa inne okno. Należy ją najpierw tam zamknąć.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Check its name and folder.</source>
        <translation>Nie ma pliku ustawień „%1”. Należy sprawdzić nazwę i folder.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photographs. Give the settings file another name.</source>
        <translation>„%1” to jedno ze zdjęć. Należy nadać plikowi ustawień inną nazwę.</translation>
    </message>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>Utracony zostałby poziom %n zdjęcia.</numerusform>
            <numerusform>Utracone zostałyby poziomy %n zdjęć.</numerusform>
            <numerusform>Utracone zostałyby poziomy %n zdjęć.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>Nie ma już zapisanej wartości domyślnej; bez --strength jest to %1 procent.</translation>
    </message>
    <message>
        <source>From now on, each photograph gets its automatic strength.</source>
        <translation>Odtąd każde zdjęcie otrzymuje swój poziom automatyczny.</translation>
    </message>
    <message>
        <source>From now on, the default strength is %1 per cent.</source>
        <translation>Odtąd domyślny poziom to %1 procent.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation>Nie można użyć pliku ustawień „%1”: %2. Należy go naprawić lub podać inny.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>to jest folder</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>wiersz %1, kolumna %2: %3</translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation>jego elementem głównym nie jest &lt;%1&gt;</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>wiersz %1</translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation>%1: zdjęcie bez ścieżki</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1: „%2” występuje w nim dwa razy</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1: zdjęcie wymaga &lt;%2 %3=&quot;...&quot;/&gt; z liczbą całkowitą od 0 do 100</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>Nie można zapisać pliku ustawień „%1”: %2. Należy zwolnić miejsce lub nadać sobie prawo zapisu w tym folderze.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>Plik ustawień „%1” nie może zawierać zdjęcia „%2”: jego nazwa zawiera znaki sterujące. Zmień nazwę.</translation>
    </message>
</context>
<context>
    <name>StrengthPanel</name>
    <message>
        <source>&amp;Strength</source>
        <translation>&amp;Poziom</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Poziom</translation>
    </message>
    <message>
        <source>How much of the haze is removed</source>
        <translation>Ile zamglenia jest usuwane</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Poziom w procentach</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatycznie</translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>Add photographs...</source>
        <translation>Dodaj zdjęcia...</translation>
    </message>
    <message>
        <source>Add photographs to the series</source>
        <translation>Dodaj zdjęcia do serii</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Dodaj folder...</translation>
    </message>
    <message>
        <source>Add the photographs of a folder to the series</source>
        <translation>Dodaj do serii zdjęcia z folderu</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Zacznij od nowa</translation>
    </message>
    <message>
        <source>Begin an empty series; this one stays among the recent sessions</source>
        <translation>Zacznij pustą serię; ta zostanie wśród ostatnich sesji</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>Otwórz 162|&amp;Otwórz sesję...sesję...</translation>
    </message>
    <message>
        <source>Open photographs and strengths that were saved as a session</source>
        <translation>Otwórz zdjęcia i poziomy zapisane jako sesja</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Zapisz sesję</translation>
    </message>
    <message>
        <source>Save the list of photographs and their strengths</source>
        <translation>Zapisz listę zdjęć i ich poziomy</translation>
    </message>
    <message>
        <source>Save the session as...</source>
        <translation>Zapisz sesję jako...</translation>
    </message>
    <message>
        <source>Save the session under another name</source>
        <translation>Zapisz sesję pod inną nazwą</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Poprzednie zdjęcie</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Następne zdjęcie</translation>
    </message>
    <message>
        <source>First photograph</source>
        <translation>Pierwsze zdjęcie</translation>
    </message>
    <message>
        <source>Last photograph</source>
        <translation>Ostatnie zdjęcie</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Select all photographs</source>
        <translation>Zaznacz wszystkie zdjęcia</translation>
    </message>
    <message>
        <source>Remove from the series</source>
        <translation>Usuń z serii</translation>
    </message>
    <message>
        <source>Remove the selected photographs from the series; the files stay</source>
        <translation>Usuń zaznaczone zdjęcia z serii; pliki zostaną</translation>
    </message>
    <message>
        <source>Stronger</source>
        <translation>Mocniej</translation>
    </message>
    <message>
        <source>Raise the strength by 1 per cent</source>
        <translation>Zwiększ poziom o 1 procent</translation>
    </message>
    <message>
        <source>Weaker</source>
        <translation>Słabiej</translation>
    </message>
    <message>
        <source>Lower the strength by 1 per cent</source>
        <translation>Zmniejsz poziom o 1 procent</translation>
    </message>
    <message>
        <source>Stronger by 10</source>
        <translation>Mocniej o 10</translation>
    </message>
    <message>
        <source>Raise the strength by 10 per cent</source>
        <translation>Zwiększ poziom o 10 procent</translation>
    </message>
    <message>
        <source>Weaker by 10</source>
        <translation>Słabiej o 10</translation>
    </message>
    <message>
        <source>Lower the strength by 10 per cent</source>
        <translation>Zmniejsz poziom o 10 procent</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Give each selected photograph the strength that suits it</source>
        <translation>Nadaj każdemu zaznaczonemu zdjęciu odpowiedni poziom</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Go back to the strength at the start</source>
        <translation>Wróć do poziomu początkowego</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Cofnij ostatnią zmianę</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Make the change again that was undone</source>
        <translation>Ponów cofniętą zmianę</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected</source>
        <translation>Do zaznacz&amp;onych</translation>
    </message>
    <message>
        <source>Use this strength for all selected photographs</source>
        <translation>Użyj tego poziomu dla wszystkich zaznaczonych zdjęć</translation>
    </message>
    <message>
        <source>App&amp;ly to all</source>
        <translation>Do wsz&amp;ystkich</translation>
    </message>
    <message>
        <source>Use this strength for all photographs of the series</source>
        <translation>Użyj tego poziomu dla wszystkich zdjęć serii</translation>
    </message>
    <message>
        <source>Use as &amp;default</source>
        <translation>Użyj jako &amp;domyślny</translation>
    </message>
    <message>
        <source>Start new photographs at this strength from now on</source>
        <translation>Odtąd zaczynaj nowe zdjęcia z tym poziomem</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Podział</translation>
    </message>
    <message>
        <source>Before and after in one picture, with a line to drag</source>
        <translation>Przed i po na jednym obrazie, z przesuwaną linią</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Obok siebie</translation>
    </message>
    <message>
        <source>Before and after side by side</source>
        <translation>Przed i po obok siebie</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Wynik</translation>
    </message>
    <message>
        <source>Only the result</source>
        <translation>Tylko wynik</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>Hold, or hold Space: the photograph as it was</source>
        <translation>Przytrzymaj, także spację: zdjęcie, jakie było</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Mapa zamglenia</translation>
    </message>
    <message>
        <source>Hold, or hold M: where haze was found</source>
        <translation>Przytrzymaj, także M: gdzie wykryto zamglenie</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Obcięcia</translation>
    </message>
    <message>
        <source>Mark pixels that became black or white</source>
        <translation>Zaznacz piksele, które stały się czarne lub białe</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Dopasuj</translation>
    </message>
    <message>
        <source>Show the whole photograph</source>
        <translation>Pokaż całe zdjęcie</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show each pixel as it is, where the pointer is</source>
        <translation>Pokaż każdy piksel takim, jaki jest, tam gdzie wskaźnik</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>Show pixels at twice their size</source>
        <translation>Pokaż piksele dwa razy większe</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show pixels at four times their size</source>
        <translation>Pokaż piksele cztery razy większe</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Save this one</source>
        <translation>Zapisz to</translation>
    </message>
    <message>
        <source>Save the result of this photograph</source>
        <translation>Zapisz wynik tego zdjęcia</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Zapisz wszystkie</translation>
    </message>
    <message>
        <source>Save the results of the whole series</source>
        <translation>Zapisz wyniki całej serii</translation>
    </message>
    <message>
        <source>Save op&amp;tions...</source>
        <translation>Opc&amp;je zapisu...</translation>
    </message>
    <message>
        <source>Folder, tag and quality of the results, and what happens to existing ones</source>
        <translation>Folder, dopisek i jakość wyników oraz co zrobić z istniejącymi</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Wst&amp;rzymaj</translation>
    </message>
    <message>
        <source>Finish the photographs in work and begin no other until you resume</source>
        <translation>Dokończ zaczęte zdjęcia i nie zaczynaj innych do wznowienia</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Stop saving; results that are complete stay</source>
        <translation>Przerwij zapis; gotowe wyniki zostaną</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Try again those photographs that failed</source>
        <translation>Spróbuj ponownie ze zdjęciami, które się nie powiodły</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Pełny ekran</translation>
    </message>
    <message>
        <source>Use the whole screen, or go back to the window</source>
        <translation>Użyj całego ekranu lub wróć do okna</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Klawisze</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>Pokaż wszystkie klawisze</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Zamknij okno</translation>
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
        <translation>&amp;Usuń zamglenie</translation>
    </message>
    <message>
        <source>Set how much haze to remove from each photograph. Hold Alt to see where the haze is.</source>
        <translation>Należy określić, ile zamglenia usunąć z każdego zdjęcia. Przytrzymanie Alt pokazuje, gdzie jest zamglenie.</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Poziom w procentach</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Poprzednie zdjęcie</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Następne zdjęcie</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Zapisywanie sesji</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Pliki ustawień (*.xml)</translation>
    </message>
</context>
<context>
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1, %n zdjęcie, %2</numerusform>
            <numerusform>%1, %n zdjęcia, %2</numerusform>
            <numerusform>%1, %n zdjęć, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Seria</translation>
    </message>
    <message>
        <source>Drag the line to compare. Hold Space: before. Left, Right: photograph. Up, Down: strength.</source>
        <translation>Przeciągnięcie linii: porównanie. Spacja: przed. W lewo, w prawo: zdjęcie. W górę, w dół: poziom.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesja</translation>
    </message>
    <message>
        <source>Open, save or begin a session: photographs with their strengths</source>
        <translation>Otwórz, zapisz lub zacznij sesję: zdjęcia z ich poziomami</translation>
    </message>
    <message>
        <source>&amp;Recent sessions</source>
        <translation>Ostatnie s&amp;esje</translation>
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
        <translation>%1 x %2 px, %3 bitów</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>Wynik: %1</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected (%1)</source>
        <translation>Do zaznacz&amp;onych (%1)</translation>
    </message>
    <message>
        <source>App&amp;ly to all (%1)</source>
        <translation>Do wsz&amp;ystkich (%1)</translation>
    </message>
    <message>
        <source>Save all %1</source>
        <translation>Zapisz wszystkie %1</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Wznów</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Wst&amp;rzymaj</translation>
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
            <numerusform>Pominięto %n wynik.</numerusform>
            <numerusform>Pominięto %n wyniki.</numerusform>
            <numerusform>Pominięto %n wyników.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photographs in the folder &quot;%1&quot;.</source>
        <translation>W folderze „%1” nie ma zdjęć.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>Zostało do zapisania %n zdjęcie tej serii.</numerusform>
            <numerusform>Zostały do zapisania %n zdjęcia tej serii.</numerusform>
            <numerusform>Zostało do zapisania %n zdjęć tej serii.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Save them now</source>
        <translation>&amp;Zapisz teraz</translation>
    </message>
    <message>
        <source>The series is as you left it.</source>
        <translation>Seria jest taka, jaką zostawiono.</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>Dodaj zdjęcia</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Zdjęcia (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Otwórz sesję</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Pliki ustawień (*.xml)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Zapisz sesję</translation>
    </message>
    <message>
        <source>New photographs start at their automatic strength.</source>
        <translation>Nowe zdjęcia zaczynają z poziomem automatycznym.</translation>
    </message>
    <message>
        <source>New photographs start at %1 %.</source>
        <translation>Nowe zdjęcia zaczynają z poziomem %1 %.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>Nie udało się zapisać %n zdjęcia.</numerusform>
            <numerusform>Nie udało się zapisać %n zdjęć.</numerusform>
            <numerusform>Nie udało się zapisać %n zdjęć.</numerusform>
        </translation>
    </message>
    <message>
        <source>Try a&amp;gain</source>
        <translation>Spró&amp;buj ponownie</translation>
    </message>
    <message>
        <source>Saving has ended</source>
        <translation>Zapisywanie zakończone</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>Zamknij &amp;mimo to</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>Zos&amp;tań</translation>
    </message>
</context>
<context>
    <name>whyUnchanged</name>
    <message>
        <source>It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, or no pixel has a usable colour. Crop it, or repair its colours in an image editor.</source>
        <translation>Zdjęcie pozostało bez zmian, ponieważ nie udało się zmierzyć zamglenia: jeden bok jest ponad 100 000 razy dłuższy od drugiego albo żaden piksel nie ma użytecznego koloru. Należy przyciąć zdjęcie lub poprawić jego kolory w edytorze obrazów.</translation>
    </message>
    <message>
        <source>It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or memory ran short. Repair those pixels in an image editor, or close other programs and try again.</source>
        <translation>Zdjęcie pozostało bez zmian, ponieważ nie udało się obliczyć zamglenia: niektóre piksele mają wartości nieskończone lub nieokreślone albo zabrakło pamięci. Należy poprawić te piksele w edytorze obrazów albo zamknąć inne programy i spróbować ponownie.</translation>
    </message>
</context>
</TS>
