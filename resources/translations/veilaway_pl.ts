<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>Zdjęcie nie ma rozszerzenia, więc wynik będzie plikiem TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Formatu „%1” nie można zapisać, więc wynik będzie plikiem TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation>Wynik „%1” to ten sam plik co zdjęcie „%2”. Jeden z nich należy przenieść gdzie indziej.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs.</source>
        <translation>Wynik „%1” byłby zarazem wynikiem dla „%2”. Należy zmienić nazwę jednego z tych zdjęć.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>W miejscu wyniku, „%1”, znajduje się folder. Należy go przenieść gdzie indziej.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Wynik „%1” już istnieje. Aby go zastąpić, należy podać --overwrite.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation>Nie można zapisać wyniku: folder „%1” jest tylko do odczytu. Należy skopiować zdjęcie do innego folderu.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Nazwa wyniku byłaby za długa. Należy nadać zdjęciu krótszą nazwę.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Wynik został zapisany, ale nie udało się skopiować do niego danych XMP zdjęcia: %1.</translation>
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
        <source>Stopped; no result was written.</source>
        <translation>Zatrzymano; wynik nie został zapisany.</translation>
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
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Wtyczka zapisała „%1” zamiast „%2”</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>Zdjęcie zostało zmienione, przeniesione lub usunięte podczas usuwania mgły. Przywróć je i zacznij od nowa.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>Zdjęcie wymaga około %1 pamięci, a wolne jest %2. Należy zamknąć inne programy lub zmniejszyć zdjęcie.</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation>Przed</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Po</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength wymaga liczby całkowitej od 0 do 100 albo auto, a nie „%1”.</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs wymaga liczby całkowitej od 1 do %1, a nie „%2”.</translation>
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
        <source>--%1 can&apos;t be used with the wizard, which asks in its window.</source>
        <translation>--%1 nie dotyczy kreatora, który pyta o to w swoim oknie.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Należy podać zdjęcia, z których ma zostać usunięte zamglenie.</translation>
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
        <translation>veilaway usuwa zamglenie ze zdjęć.

Użycie:
  veilaway [run] ZDJĘCIE... [opcje]
  veilaway [run] --settings PLIK [opcje]
  veilaway wizard [ZDJĘCIE...] [opcje]
  veilaway --set-default N|auto|none
  veilaway --help | --version

Każdy wynik jest zapisywany obok swojego zdjęcia, pod jego nazwą z przyrostkiem: z hills.jpg powstaje hills_dehazed.jpg. Samo zdjęcie nigdy nie jest zmieniane. Przyrostek zależy od języka: na przykład _entnebelt przy --language de.

Kreator otwiera okno, w którym można wybrać zdjęcia, ustawić poziom dla każdego z nich z podglądem na żywo, usunąć zamglenie i porównać wyniki. Przyjmuje --settings (plik zawiera potem poziomy), --language, --jobs, --share-services i --plugin.

Opcje:
  --strength N      Ile zamglenia usunąć, w procentach: 0 pozostawia obraz bez zmian, 100 usuwa całe, a auto dobiera poziom do każdego zdjęcia: od 50 dla ciemnego do 80 dla jasnego. Bez tej opcji liczy się poziom z pliku ustawień, następnie zapisana wartość domyślna, a potem 70.
  --set-default N   Zapisuje tę wartość domyślną, liczbę lub auto, albo usuwa ją przy none. Nie robi nic więcej.
  --settings PLIK   Przechowuje poziom dla każdego zdjęcia w tym pliku XML. Jeśli plik istnieje, używane są poziomy z niego, chyba że podano też --strength; na koniec zawiera poziomy, których użyto. Bez argumentu ZDJĘCIE przetwarzane są wszystkie zdjęcia z pliku.
  --language JĘZYK  Język komunikatów i przyrostka: de, en, es, fr, it, ja, pl, ru, zh_CN lub zh_TW. Bez tej opcji język systemu.
  --jobs N          Liczba zdjęć przetwarzanych jednocześnie. Bez tej opcji tyle, ile zajmie wszystkie rdzenie i zmieści się w pamięci.
  --overwrite       Zastępuje wyniki, które już istnieją.
  --quiet           Zgłasza tylko to, co się nie powiodło.
  --json            Wypisuje dla każdego zdjęcia wiersz z obiektem JSON: photo, result, status (done, unchanged, failed, stopped), strength, automatic, seconds, message, unchanged (powód albo null).
  --share-services  Użycza wtyczce usług programu (dziennik, pula pamięci, liczba procesorów), zamiast pozwalać jej tworzyć własne.
  --plugin PLIK     Wczytuje ten plik wtyczki zamiast Nimbra.so obok programu lub w ../lib/nimbra.
  -h, --help        Wyświetla ten tekst.
  --version         Wyświetla wersje programu i wtyczki.
  --                Dalsze argumenty to zdjęcia, nawet jeśli zaczynają się od myślnika.

Formaty:
  Odczyt i zapis: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) i PSD. Wynik ma format swojego zdjęcia, jego głębię (8 lub 16 bitów albo liczby zmiennoprzecinkowe), profil kolorów oraz dane EXIF, IPTC i XMP. Orientacja EXIF jest zachowana, więc wynik jest wyświetlany tak jak jego zdjęcie.
  Tylko odczyt: pliki RAW z aparatu (dng, cr2, nef, arw, raf, orf, rw2 i inne). Wynikiem jest 16-bitowy TIFF. Zdjęcia z innym rozszerzeniem lub bez niego również stają się plikami TIFF. Pliki towarzyszące XMP pozostają na miejscu i nie są czytane.

Kody wyjścia:
  0  Wszystkie zdjęcia są gotowe albo pozostały bez zmian (z podaniem przyczyny).
  1  Niektóre nie są: standardowe wyjście błędów podaje które, dlaczego i co pomoże. Albo nie udało się zapisać na standardowe wyjście.
  2  Wiersz polecenia lub plik ustawień jest błędny; niczego nie rozpoczęto.
Ctrl-C kończy program sygnałem (130 w powłoce), bez pozostawiania niepełnego wyniku.

Przykłady:
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Zobacz veilaway --help.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default wymaga liczby całkowitej od 0 do 100, auto albo none, a nie „%1”.</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default zapisuje wartość domyślną i nie robi nic więcej: pomiń zdjęcia i opcje dla nich.</translation>
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
        <source>The window can&apos;t be shown: %1. Start the wizard in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>Nie można wyświetlić okna: %1. Kreatora należy uruchomić w sesji graficznej albo z innego komputera przez ssh -X. Bez okna pracę wykona veilaway ZDJĘCIE...</translation>
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
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Nie można otworzyć pliku. Należy sprawdzić, czy istnieje i czy można go odczytać.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Plik jest niepełny lub uszkodzony. Należy skopiować go ponownie z aparatu lub z kopii zapasowej.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Za mało pamięci na to zdjęcie. Należy zamknąć inne programy lub przetwarzać zdjęcia pojedynczo (--jobs 1).</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>To nie jest obraz w znanym formacie albo ma inny format, niż wskazuje rozszerzenie. Można odczytać JPEG, PNG, TIFF, HDR, EXR, PSD i pliki RAW z aparatu; należy nadać plikowi właściwe rozszerzenie lub go przekonwertować.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>To jest film. Zamglenie można usuwać tylko ze zdjęć; należy zapisać klatkę filmu jako JPEG, PNG lub TIFF.</translation>
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
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Za mało pamięci na ten plik RAW. Należy zamknąć inne programy lub przetwarzać zdjęcia pojedynczo (--jobs 1).</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>Nie można wywołać pliku RAW: %1. Należy skopiować go ponownie lub przekonwertować do DNG albo TIFF.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Jego nazwa lub nazwa folderu zawiera znaki, które nie są UTF-8. Zmień nazwę.</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1: to wynik innego zdjęcia z listy.</numerusform>
            <numerusform>%n wyniki innych zdjęć z listy, na przykład „%1”.</numerusform>
            <numerusform>%n wyników innych zdjęć z listy, na przykład „%1”.</numerusform>
        </translation>
    </message>
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
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>Zdjęcie jest za duże: zamglenie można usunąć ze zdjęć, których szerokość lub wysokość nie przekracza %1 pikseli. Należy je zmniejszyć lub podzielić na części.</translation>
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
    <name>ProgressView</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>Gotowe zdjęcia: %n.</numerusform>
            <numerusform>Gotowe zdjęcia: %n.</numerusform>
            <numerusform>Gotowe zdjęcia: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation>Gotowe zdjęcia: %1 z %2, niegotowe: %3.</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>wczytywanie</translation>
    </message>
    <message>
        <source>removing haze</source>
        <translation>usuwanie zamglenia</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>zapisywanie</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>Bez zmian: %n.</numerusform>
            <numerusform>Bez zmian: %n.</numerusform>
            <numerusform>Bez zmian: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>Nie można pisać na standardowe wyjście: %1. Należy zwolnić tam miejsce lub skierować je gdzie indziej.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>Nie rozpoczęto %n zdjęcia.</numerusform>
            <numerusform>Nie rozpoczęto %n zdjęć.</numerusform>
            <numerusform>Nie rozpoczęto %n zdjęć.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %, %2 s</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;folder</source>
        <translation>Otwórz &amp;folder</translation>
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
        <source>Results</source>
        <translation>Wyniki</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Wszystkie zdjęcia są gotowe.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Gotowe zdjęcia: %1 z %2.</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>Zacznij od &amp;nowa</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Pozwala wybrać inne zdjęcia</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>Nie podano --strength: używana jest zapisana wartość domyślna %1.</translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>Nie podano --strength i nie zapisano wartości domyślnej: używana jest wartość %1.</translation>
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
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Plik ustawień „%1” ma nazwę jednego z wyników. Należy nadać mu inną nazwę.</translation>
    </message>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Zatrzymywanie; trwa kończenie zapisywanego pliku. Ponowne naciśnięcie Ctrl-C kończy natychmiast.</translation>
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
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>Nie podano --strength: używana jest zapisana wartość domyślna, poziom automatyczny.</translation>
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
        <source>Each result is saved beside its photograph.</source>
        <translation>Każdy wynik jest zapisywany obok swojego zdjęcia.</translation>
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
        <source>Reading</source>
        <translation>Wczytywanie</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Zatrzymano</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Niepowodzenie</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Zatrzymywanie. Najpierw zostanie dokończony zapis wyniku, który jest już zapisywany.</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Wynik już istniał i został zachowany.</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Bez zmian</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Zachowano</translation>
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
    <name>TransposedRun</name>
    <message>
        <source>A temporary folder with a link to the photograph can&apos;t be created, neither beside it nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Nie można utworzyć folderu tymczasowego z dowiązaniem do zdjęcia ani obok niego, ani w „%1”. Należy zwolnić tam miejsce i sprawdzić, czy można tam zapisywać.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Wtyczka zapisała „%1” zamiast „%2”</translation>
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
        <source>Save session</source>
        <translation>Zapisywanie sesji</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Pliki ustawień (*.xml)</translation>
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
