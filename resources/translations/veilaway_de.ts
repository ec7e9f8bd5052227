<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>Das Foto hat keine Dateiendung, daher wird das Ergebnis ein TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Das Format „%1“ kann nicht geschrieben werden, daher wird das Ergebnis ein TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation>Das Ergebnis „%1“ ist dieselbe Datei wie das Foto „%2“. Verschieben Sie eines der beiden an einen anderen Ort.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs.</source>
        <translation>Das Ergebnis „%1“ wäre zugleich das von „%2“. Benennen Sie eines der beiden Fotos um.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>Am Ort des Ergebnisses, „%1“, liegt ein Ordner. Verschieben Sie den Ordner.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Das Ergebnis „%1“ ist schon vorhanden. Geben Sie --overwrite an, um es zu ersetzen.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation>Das Ergebnis kann nicht geschrieben werden: Der Ordner „%1“ ist schreibgeschützt. Kopieren Sie das Foto in einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Der Name des Ergebnisses würde zu lang. Geben Sie dem Foto einen kürzeren Namen.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Das Ergebnis liegt vor, aber die XMP-Daten des Fotos konnten nicht hineinkopiert werden: %1.</translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation>Das Plug-in ist fehlgeschlagen bei %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Angehalten; es wurde kein Ergebnis geschrieben.</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Schließen Sie andere Programme oder bearbeiten Sie die Fotos einzeln (--jobs 1).</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>Schaffen Sie Platz im Ordner „%1“ und prüfen Sie, ob Sie dort schreiben dürfen.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Das Plug-in hat „%1“ statt „%2“ geschrieben</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>Das Foto wurde geändert, verschoben oder gelöscht, während der Dunst entfernt wurde. Legen Sie es zurück und beginnen Sie von vorn.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>Das Foto braucht etwa %1 Arbeitsspeicher, frei sind %2. Schließen Sie andere Programme oder verkleinern Sie das Foto.</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength erwartet eine ganze Zahl von 0 bis 100 oder auto, nicht „%1“.</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs erwartet eine ganze Zahl von 1 bis %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>--language kennt %1, aber nicht „%2“.</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>--settings erwartet den Namen einer Datei, in UTF-8.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with the wizard, which asks in its window.</source>
        <translation>--%1 gilt nicht für den Assistenten; er fragt in seinem Fenster danach.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Geben Sie die Fotos an, aus denen der Dunst entfernt werden soll.</translation>
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
        <translation>veilaway entfernt den Dunst aus Fotos.

Aufruf:
  veilaway [run] FOTO... [Optionen]
  veilaway [run] --settings DATEI [Optionen]
  veilaway wizard [FOTO...] [Optionen]
  veilaway --set-default N|auto|none
  veilaway --help | --version

Jedes Ergebnis wird neben seinem Foto gespeichert, unter dessen Namen mit einem Zusatz: Aus hills.jpg wird hills_entnebelt.jpg. Das Foto selbst bleibt unverändert. Der Zusatz richtet sich nach der Sprache: mit --language en zum Beispiel _dehazed.

Der Assistent öffnet ein Fenster: Fotos auswählen, für jedes die Stärke bei laufender Vorschau einstellen, den Dunst entfernen und vergleichen. Er kennt --settings (die Datei enthält danach die Stärken), --language, --jobs, --share-services und --plugin.

Optionen:
  --strength N      Wie viel Dunst entfernt wird, in Prozent: 0 lässt das Bild, wie es ist, 100 entfernt allen, und auto richtet sich nach jedem Foto: 50 bei einem dunklen bis 80 bei einem hellen. Ohne diese Option gilt die Stärke in der Einstellungsdatei, sonst Ihre gespeicherte Voreinstellung, sonst 70.
  --set-default N   Diese Voreinstellung speichern, eine Zahl oder auto, oder sie mit none zurücknehmen. Sonst geschieht nichts.
  --settings DATEI  Die Stärke für jedes Foto in dieser XML-Datei aufbewahren. Gibt es die Datei schon, gelten ihre Stärken, sofern nicht auch --strength angegeben ist; am Ende enthält sie die verwendeten Stärken. Ohne FOTO werden alle Fotos in der Datei bearbeitet.
  --language LANG   Sprache der Meldungen und des Zusatzes: de, en, es, fr, it, ja, pl, ru, zh_CN oder zh_TW. Ohne diese Option die des Systems.
  --jobs N          Anzahl der gleichzeitig bearbeiteten Fotos. Ohne diese Option so viele, wie alle Kerne auslasten und in den Speicher passen.
  --overwrite       Bereits vorhandene Ergebnisse ersetzen.
  --quiet           Nur melden, was fehlgeschlagen ist.
  --json            Für jedes Foto eine Zeile mit einem JSON-Objekt ausgeben: photo, result, status (done, unchanged, failed, stopped), strength, automatic, seconds, message, unchanged (der Grund, oder null).
  --share-services  Dem Plug-in die Dienste des Programms leihen (Protokoll, Speicherpool, Anzahl der Prozessoren), statt es eigene anlegen zu lassen.
  --plugin DATEI    Diese Plug-in-Datei laden statt Nimbra.so neben dem Programm oder in ../lib/nimbra.
  -h, --help        Diesen Text anzeigen.
  --version         Die Versionen des Programms und des Plug-ins anzeigen.
  --                Was folgt, sind Fotos, auch wenn sie mit einem Strich beginnen.

Formate:
  Lesen und schreiben: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) und PSD. Ein Ergebnis hat Format, Farbtiefe (8 oder 16 Bit oder Gleitkomma), Farbprofil, EXIF, IPTC und XMP seines Fotos. Die EXIF-Ausrichtung bleibt erhalten, sodass das Ergebnis wie sein Foto angezeigt wird.
  Nur lesen: Kamera-RAW (dng, cr2, nef, arw, raf, orf, rw2 und andere). Das Ergebnis ist ein TIFF mit 16 Bit. Auch Fotos mit einer anderen oder ohne Dateiendung werden ein TIFF. XMP-Begleitdateien bleiben, wo sie sind, und werden nicht gelesen.

Rückgabewert:
  0  Alle Fotos sind fertig oder kamen unverändert zurück (mit dem Grund).
  1  Einige sind es nicht: Die Standardfehlerausgabe nennt sie, den Grund und was hilft. Oder die Standardausgabe konnte nicht geschrieben werden.
  2  Die Befehlszeile oder die Einstellungsdatei ist falsch; nichts wurde begonnen.
Strg+C beendet es durch das Signal (130 in einer Shell), ohne ein halbes Ergebnis zu hinterlassen.

Beispiele:
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Siehe veilaway --help.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default erwartet eine ganze Zahl von 0 bis 100, auto oder none, nicht „%1“.</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default speichert nur die Voreinstellung: Lassen Sie Fotos und die Optionen für sie weg.</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>Die Voreinstellung kann nicht in „%1“ gespeichert werden. Schaffen Sie Platz, oder geben Sie sich die Berechtigung, dort zu schreiben.</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start the wizard in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>Das Fenster kann nicht gezeigt werden: %1. Starten Sie den Assistenten in einer grafischen Sitzung oder von einem anderen Rechner aus mit ssh -X. Ohne Fenster erledigt veilaway FOTO... die Arbeit.</translation>
    </message>
</context>
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_entnebelt</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Die Datei kann nicht geöffnet werden. Prüfen Sie, ob sie existiert und ob Sie sie lesen dürfen.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Die Datei ist unvollständig oder beschädigt. Kopieren Sie sie erneut von der Kamera oder aus einer Sicherung.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Der Arbeitsspeicher reicht dafür nicht aus. Schließen Sie andere Programme oder bearbeiten Sie die Fotos einzeln (--jobs 1).</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>Das ist kein Bild in einem bekannten Format oder ein anderes, als die Dateiendung angibt. Lesbar sind JPEG, PNG, TIFF, HDR, EXR, PSD und Kamera-RAW; geben Sie der Datei die passende Endung oder konvertieren Sie sie.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>Das ist ein Video. Dunst lässt sich nur aus Fotos entfernen; speichern Sie ein Bild daraus als JPEG, PNG oder TIFF.</translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Diese Art von Pixeln kann nicht gelesen werden. Speichern Sie das Foto als RGB mit 8 oder 16 Bit und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Ein leerer Name bezeichnet kein Foto.</translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>Die Verknüpfung führt ins Leere. Geben Sie das Foto selbst an.</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>Diese Datei gibt es nicht. Prüfen Sie Name und Ordner.</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>Das ist ein Ordner. Geben Sie die Fotos darin an, zum Beispiel „%1“.</translation>
    </message>
    <message>
        <source>This is not a regular file. Copy the photograph into one.</source>
        <translation>Das ist keine gewöhnliche Datei. Kopieren Sie das Foto in eine solche.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>Die Datei kann nicht gelesen werden. Verschaffen Sie sich das Leserecht dafür.</translation>
    </message>
    <message>
        <source>The file is empty. Copy it again from the camera or a backup.</source>
        <translation>Die Datei ist leer. Kopieren Sie sie erneut von der Kamera oder aus einer Sicherung.</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Der Arbeitsspeicher reicht für diese RAW-Datei nicht aus. Schließen Sie andere Programme oder bearbeiten Sie die Fotos einzeln (--jobs 1).</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>Die RAW-Datei kann nicht entwickelt werden: %1. Kopieren Sie sie erneut oder konvertieren Sie sie in DNG oder TIFF.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Sein Name oder der eines Ordners enthält Zeichen, die kein UTF-8 sind. Benennen Sie es um.</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1: Das ist das Ergebnis eines anderen Fotos in der Liste.</numerusform>
            <numerusform>%n Dateien, die Ergebnisse anderer Fotos in der Liste sind, zum Beispiel „%1“.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Choose the photographs to remove haze from, or drop them here. They are never changed: each result is saved beside its photograph.</source>
        <translation>Wählen Sie die Fotos aus, aus denen der Dunst entfernt werden soll, oder ziehen Sie sie hierher. Sie bleiben unverändert: Jedes Ergebnis wird neben seinem Foto gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>Fotos &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>&amp;Sitzung öffnen...</translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation>Eine Einstellungsdatei mit Fotos und der Stärke für jedes Foto</translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation>%1: In diesem Ordner sind keine Fotos.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>%n Foto wird gelesen...</numerusform>
            <numerusform>%n Fotos werden gelesen...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... und %n weiteres</numerusform>
            <numerusform>... und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Ausgelassen:</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Fotos (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Sitzung öffnen</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Einstellungsdateien (*.xml)</translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>Das Foto ist zu groß: Dunst kann nur aus Fotos entfernt werden, deren Breite oder Höhe höchstens %1 Pixel beträgt. Verkleinern Sie es oder zerlegen Sie es in Teile.</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>Das Plug-in „%1“ ist nicht vorhanden. Erstellen oder installieren Sie es, oder geben Sie mit --plugin DATEI an, wo es liegt.</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>“ oder „</translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>es ist ein Plug-in anderer Art</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>Das Plug-in „%1“ kann nicht verwendet werden: %2. Installieren Sie es neu, oder geben Sie mit --plugin DATEI ein anderes an.</translation>
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
            <numerusform>%n Foto fertig.</numerusform>
            <numerusform>%n Fotos fertig.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation>%1 von %2 Fotos fertig, %3 nicht.</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>removing haze</source>
        <translation>Dunst entfernen</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n kam unverändert zurück.</numerusform>
            <numerusform>%n kamen unverändert zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>In die Standardausgabe kann nicht geschrieben werden: %1. Schaffen Sie dort Platz, oder leiten Sie die Ausgabe woandershin.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>%n Foto wurde nicht begonnen.</numerusform>
            <numerusform>%n Fotos wurden nicht begonnen.</numerusform>
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
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>Sitzung s&amp;peichern...</translation>
    </message>
    <message>
        <source>Save the photographs and the strength of each in a settings file</source>
        <translation>Die Fotos und die Stärke für jedes Foto in einer Einstellungsdatei aufbewahren</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Alle Fotos sind fertig.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>%1 von %2 Fotos sind fertig.</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>&amp;Von vorn beginnen</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Andere Fotos auswählen</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>Kein --strength angegeben: Ihre gespeicherte Voreinstellung %1 wird verwendet.</translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>Kein --strength angegeben und keine Voreinstellung gespeichert: %1 wird verwendet.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>Die Einstellungsdatei „%1“ nennt keine Fotos. Geben Sie welche an.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>Die Einstellungsdatei „%1“ gibt es nicht. Geben Sie Fotos an, um sie anzulegen.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>Die Einstellungsdatei „%1“ kann dort nicht geschrieben werden. Geben Sie eine in einem anderen Ordner an.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Die Einstellungsdatei „%1“ trägt den Namen eines Ergebnisses. Geben Sie ihr einen anderen.</translation>
    </message>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Wird beendet; die Datei, die gerade gespeichert wird, wird noch fertiggestellt. Nochmals Strg+C beendet sofort.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>„%1“ wird ausgelassen: Es ist das Ergebnis eines der anderen Fotos.</numerusform>
            <numerusform>%n Dateien werden ausgelassen, die Ergebnisse der anderen Fotos sind, zum Beispiel „%1“.</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>Kein --strength angegeben: Ihre gespeicherte Voreinstellung wird verwendet, die automatische Stärke.</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>Removing haze</source>
        <translation>Dunst wird entfernt</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Jedes Ergebnis wird neben seinem Foto gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>%n Ergebnis eines früheren Durchgangs ist schon vorhanden.</numerusform>
            <numerusform>%n Ergebnisse eines früheren Durchgangs sind schon vorhanden.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v von %m</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Wird gelesen</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Wird gespeichert</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Wird angehalten. Ein Ergebnis, das gerade gespeichert wird, wird noch fertiggestellt.</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Das Ergebnis war schon vorhanden und wurde behalten.</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>Es ist keine Voreinstellung mehr gespeichert; ohne --strength sind es %1 Prozent.</translation>
    </message>
    <message>
        <source>From now on, each photograph gets its automatic strength.</source>
        <translation>Von jetzt an bekommt jedes Foto seine automatische Stärke.</translation>
    </message>
    <message>
        <source>From now on, the default strength is %1 per cent.</source>
        <translation>Von jetzt an ist die voreingestellte Stärke %1 Prozent.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation>Die Einstellungsdatei „%1“ kann nicht verwendet werden: %2. Reparieren Sie sie oder geben Sie eine andere an.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation>ihr äußerstes Element ist nicht &lt;%1&gt;</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation>%1: ein Foto ohne Pfad</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1: „%2“ kommt darin zweimal vor</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1: Das Foto braucht &lt;%2 %3=&quot;...&quot;/&gt; mit einer ganzen Zahl von 0 bis 100</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>Die Einstellungsdatei „%1“ kann nicht geschrieben werden: %2. Schaffen Sie Platz oder verschaffen Sie sich dort das Schreibrecht.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>Die Einstellungsdatei „%1“ kann das Foto „%2“ nicht aufnehmen: Sein Name enthält Steuerzeichen. Benennen Sie es um.</translation>
    </message>
</context>
<context>
    <name>TransposedRun</name>
    <message>
        <source>A temporary folder with a link to the photograph can&apos;t be created, neither beside it nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Weder neben dem Foto noch in „%1“ kann ein temporärer Ordner mit einer Verknüpfung angelegt werden. Schaffen Sie dort Platz und prüfen Sie, ob Sie dort schreiben dürfen.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Das Plug-in hat „%1“ statt „%2“ geschrieben</translation>
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
        <translation>&amp;Dunst entfernen</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Sitzung speichern</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Einstellungsdateien (*.xml)</translation>
    </message>
</context>
<context>
    <name>whyUnchanged</name>
    <message>
        <source>It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, or no pixel has a usable colour. Crop it, or repair its colours in an image editor.</source>
        <translation>Das Foto kam unverändert zurück, da sich kein Dunst messen ließ: Eine Seite ist mehr als 100.000-mal so lang wie die andere, oder kein Pixel hat eine brauchbare Farbe. Schneiden Sie das Foto zu, oder berichtigen Sie seine Farben in einem Bildbearbeitungsprogramm.</translation>
    </message>
    <message>
        <source>It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or memory ran short. Repair those pixels in an image editor, or close other programs and try again.</source>
        <translation>Das Foto kam unverändert zurück, da sich der Dunst nicht berechnen ließ: Einige Pixel haben unendliche oder undefinierte Werte, oder der Arbeitsspeicher reichte nicht. Berichtigen Sie diese Pixel in einem Bildbearbeitungsprogramm, oder schließen Sie andere Programme und versuchen Sie es noch einmal.</translation>
    </message>
</context>
</TS>
