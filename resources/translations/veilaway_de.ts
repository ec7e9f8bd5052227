<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Das Ergebnis „%1“ ist schon vorhanden. Geben Sie --overwrite an, um es zu ersetzen.</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>Der Ordner kann nicht gelesen werden. Geben Sie sich das Recht, ihn zu lesen.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder or those inside it.</source>
        <translation>In diesem Ordner und denen darin sind keine Fotos.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder. Add --recursive for those in the folders inside it.</source>
        <translation>In diesem Ordner sind keine Fotos. Mit --recursive werden auch die in Unterordnern gefunden.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; already exists.</source>
        <translation>Übersprungen: Das Ergebnis „%1“ ist schon vorhanden.</translation>
    </message>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>Das Foto hat keine Dateiendung, daher wird das Ergebnis ein TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Das Format „%1“ kann nicht geschrieben werden, daher wird das Ergebnis ein TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder for the results.</source>
        <translation>Das Ergebnis „%1“ ist dieselbe Datei wie das Foto „%2“. Verschieben Sie eines der beiden, oder wählen Sie einen anderen Ordner für die Ergebnisse.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder with --output.</source>
        <translation>Das Ergebnis „%1“ ist dieselbe Datei wie das Foto „%2“. Verschieben Sie eines der beiden, oder wählen Sie mit --output einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs, or give their results different folders.</source>
        <translation>Das Ergebnis „%1“ wäre zugleich das von „%2“. Benennen Sie eines der beiden Fotos um, oder geben Sie für die Ergebnisse verschiedene Ordner an.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>Am Ort des Ergebnisses, „%1“, liegt ein Ordner. Verschieben Sie den Ordner.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; is newer than the photograph.</source>
        <translation>Übersprungen: Das Ergebnis „%1“ ist neuer als das Foto.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder for the results.</source>
        <translation>Das Ergebnis „%1“ ist schreibgeschützt oder keine gewöhnliche Datei. Verschieben Sie es, oder wählen Sie einen anderen Ordner für die Ergebnisse.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder with --output.</source>
        <translation>Das Ergebnis „%1“ ist schreibgeschützt oder keine gewöhnliche Datei. Verschieben Sie es, oder wählen Sie mit --output einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one for the results.</source>
        <translation>Das Ergebnis kann nicht geschrieben werden: „%1“ ist kein Ordner. Wählen Sie einen anderen für die Ergebnisse.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one with --output.</source>
        <translation>Das Ergebnis kann nicht geschrieben werden: „%1“ ist kein Ordner. Wählen Sie mit --output einen anderen.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one for the results.</source>
        <translation>Das Ergebnis kann nicht geschrieben werden: Der Ordner „%1“ ist schreibgeschützt. Wählen Sie einen anderen für die Ergebnisse.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one with --output.</source>
        <translation>Das Ergebnis kann nicht geschrieben werden: Der Ordner „%1“ ist schreibgeschützt. Wählen Sie mit --output einen anderen.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Der Name des Ergebnisses würde zu lang. Geben Sie dem Foto einen kürzeren Namen.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Angehalten; es wurde kein Ergebnis geschrieben.</translation>
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
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>Das Foto wurde geändert, verschoben oder gelöscht, während der Dunst entfernt wurde. Legen Sie es zurück und beginnen Sie von vorn.</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
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
        <source>The file also holds a gain map or further pictures, which don&apos;t fit the result and are left out.</source>
        <translation>Die Datei enthält auch eine Gain-Map oder weitere Bilder, die nicht zum Ergebnis passen; sie werden weggelassen.</translation>
    </message>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Das Ergebnis liegt vor, aber die XMP-Daten des Fotos konnten nicht hineinkopiert werden: %1.</translation>
    </message>
    <message>
        <source>The result was written, but could not be given the photograph&apos;s time of modification: %1.</source>
        <translation>Das Ergebnis liegt vor, aber die Änderungszeit des Fotos konnte nicht übernommen werden: %1.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>Das Foto braucht etwa %1 Arbeitsspeicher, frei sind %2. Schließen Sie andere Programme oder verkleinern Sie das Foto.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Did you mean --%1?</source>
        <translation>Meinten Sie --%1?</translation>
    </message>
    <message>
        <source>Write &quot;./%1&quot; for the photograph of this name.</source>
        <translation>Schreiben Sie „./%1“ für das Foto dieses Namens.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be followed by one of %2, not &quot;%3&quot;.</source>
        <translation>Auf „%1“ muss eines von %2 folgen, nicht „%3“.</translation>
    </message>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength erwartet eine ganze Zahl von 0 bis 100 oder auto, nicht „%1“.</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs erwartet eine ganze Zahl von 1 bis %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>--quality must be a whole number from 1 to 100, not &quot;%1&quot;.</source>
        <translation>--quality muss eine ganze Zahl von 1 bis 100 sein, nicht „%1“.</translation>
    </message>
    <message>
        <source>--compression must be none, deflate or lzw, not &quot;%1&quot;.</source>
        <translation>--compression muss none, deflate oder lzw sein, nicht „%1“.</translation>
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
        <source>--output must be the name of a folder or file, in UTF-8.</source>
        <translation>--output muss der Name eines Ordners oder einer Datei sein, in UTF-8.</translation>
    </message>
    <message>
        <source>--tag is a part of a name: it must not contain a slash, and must be in UTF-8.</source>
        <translation>--tag ist ein Teil eines Namens: Er darf keinen Schrägstrich enthalten und muss in UTF-8 sein.</translation>
    </message>
    <message>
        <source>Of --skip-existing, --newer and --overwrite, only one can be used at a time.</source>
        <translation>Von --skip-existing, --newer und --overwrite kann nur eines verwendet werden.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default erwartet eine ganze Zahl von 0 bis 100, auto oder none, nicht „%1“.</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default speichert nur die Voreinstellung: Lassen Sie Fotos und die Optionen für sie weg.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with %2, which asks for it on the screen.</source>
        <translation>--%1 gilt nicht zusammen mit %2; dort wird am Bildschirm danach gefragt.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Geben Sie die Fotos an, aus denen der Dunst entfernt werden soll.</translation>
    </message>
    <message>
        <source>Also read here: %1</source>
        <translation>Hier außerdem lesbar: %1</translation>
    </message>
    <message>
        <source>Not read here, for want of a decoder: %1</source>
        <translation>Hier mangels Decoder nicht lesbar: %1</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Siehe veilaway --help.</translation>
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
        <source>The window can&apos;t be shown: %1. Start it in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>Das Fenster kann nicht gezeigt werden: %1. Starten Sie es in einer grafischen Sitzung oder von einem anderen Rechner aus mit ssh -X. Ohne Fenster erledigt veilaway FOTO... die Arbeit.</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Recent sessions</source>
        <translation>Letzte Sitzungen</translation>
    </message>
    <message>
        <source>Drop photographs or a folder here</source>
        <translation>Fotos oder einen Ordner hier ablegen</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>Fotos &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>Add a &amp;folder...</source>
        <translation>&amp;Ordner hinzufügen...</translation>
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
        <translation>Fotos</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <source>The result; dashed: the photograph as it was</source>
        <translation>Das Ergebnis; gestrichelt: das Foto, wie es war</translation>
    </message>
    <message>
        <source>Black %1 %, white %2 %</source>
        <translation>Schwarz %1 %, Weiß %2 %</translation>
    </message>
    <message>
        <source>black %1 %</source>
        <translation>schwarz %1 %</translation>
    </message>
    <message>
        <source>white %1 %</source>
        <translation>weiß %1 %</translation>
    </message>
</context>
<context>
    <name>KeySheet</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>Meldung schließen</translation>
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
    <name>OptionTable</name>
    <message>
        <source>veilaway takes the haze out of photographs.</source>
        <translation>veilaway entfernt den Dunst aus Fotos.</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Aufruf:</translation>
    </message>
    <message>
        <source>PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for such a list on standard input.</source>
        <translation>PHOTO ist ein Foto, ein Ordner mit Fotos, @FILE für eine Datei, die sie auflistet (eines pro Zeile), oder - für eine solche Liste auf der Standardeingabe.</translation>
    </message>
    <message>
        <source>Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.</source>
        <translation>Jedes Ergebnis wird neben sein Foto geschrieben, unter dessen Namen mit einem Zusatz: Aus hills.jpg wird hills_dehazed.jpg. Das Foto selbst wird nie verändert. Der Zusatz folgt der Sprache: mit --language de zum Beispiel _entnebelt.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Everything that follows is a photograph, even if it begins with a dash.</source>
        <translation>Alles, was folgt, ist ein Foto, auch wenn es mit einem Strich beginnt.</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>Formate:</translation>
    </message>
    <message>
        <source>Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.</source>
        <translation>Gelesen und geschrieben: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) und PSD. Ein Ergebnis hat das Format seines Fotos, dessen Farbtiefe (8 oder 16 Bit oder Gleitkomma), Farbprofil, EXIF, IPTC und XMP. Die EXIF-Ausrichtung bleibt, sodass das Ergebnis in derselben Lage gezeigt wird.</translation>
    </message>
    <message>
        <source>Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others), whose result is a 16-bit TIFF, and, where --version names them, HEIC (heic, heif, hif), AVIF, WebP and JPEG XL (jxl), whose result is a TIFF of their depth. Photographs with any other suffix, or none, become a TIFF too.</source>
        <translation>Nur gelesen: Kamera-Rohdaten (dng, cr2, nef, arw, raf, orf, rw2 und andere), deren Ergebnis ein TIFF mit 16 Bit ist, und, wo --version sie nennt, HEIC (heic, heif, hif), AVIF, WebP und JPEG XL (jxl), deren Ergebnis ein TIFF ihrer Farbtiefe ist. Auch Fotos mit anderer oder ohne Dateiendung werden zu einem TIFF.</translation>
    </message>
    <message>
        <source>XMP sidecar files are not read and stay where they are.</source>
        <translation>XMP-Begleitdateien werden nicht gelesen und bleiben, wo sie sind.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Rückgabewert:</translation>
    </message>
    <message>
        <source>All photographs are done, skipped as requested, or came back unchanged (a message says why).</source>
        <translation>Alle Fotos sind fertig, wie verlangt übersprungen oder unverändert geblieben (eine Meldung sagt, warum).</translation>
    </message>
    <message>
        <source>Some are not: standard error says which, why, and what helps. Or standard output could not be written.</source>
        <translation>Einige sind es nicht: Die Standardfehlerausgabe sagt, welche, warum und was hilft. Oder die Standardausgabe war nicht beschreibbar.</translation>
    </message>
    <message>
        <source>The command line or the settings file is wrong; nothing was begun.</source>
        <translation>Die Befehlszeile oder die Einstellungsdatei ist falsch; nichts wurde begonnen.</translation>
    </message>
    <message>
        <source>Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.</source>
        <translation>Strg-C beendet das Programm durch dieses Signal (in einer Shell 130), ohne ein halbes Ergebnis zu hinterlassen.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Beispiele:</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Die Datei kann nicht geöffnet werden. Prüfen Sie, ob sie existiert und ob Sie sie lesen dürfen.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>Das ist ein Video. Dunst lässt sich nur aus Fotos entfernen; speichern Sie ein Bild daraus als JPEG, PNG oder TIFF.</translation>
    </message>
    <message>
        <source>It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>Das ist eine Animation. Dunst lässt sich nur aus Fotos entfernen; speichern Sie ein Einzelbild davon als JPEG, PNG oder TIFF.</translation>
    </message>
    <message>
        <source>This installation can&apos;t decode its format; veilaway --version says which formats it can. Convert the photograph to JPEG, PNG or TIFF.</source>
        <translation>Diese Installation kann das Format nicht decodieren; veilaway --version sagt, welche sie kann. Wandeln Sie das Foto in JPEG, PNG oder TIFF um.</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>Das ist kein Bild in einem bekannten Format oder nicht in dem, das die Dateiendung nennt. %1 und Kamera-Rohdaten können gelesen werden; geben Sie der Datei die Endung ihres Formats, oder wandeln Sie sie um.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Die Datei ist unvollständig oder beschädigt. Kopieren Sie sie erneut von der Kamera oder aus einer Sicherung.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs and try again.</source>
        <translation>Der Arbeitsspeicher reicht dafür nicht aus. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Der Arbeitsspeicher reicht dafür nicht aus. Schließen Sie andere Programme oder bearbeiten Sie die Fotos einzeln (--jobs 1).</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs and try again.</source>
        <translation>Der Arbeitsspeicher reicht für diese RAW-Datei nicht aus. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
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
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Diese Art von Pixeln kann nicht gelesen werden. Speichern Sie das Foto als RGB mit 8 oder 16 Bit und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Ein leerer Name bezeichnet kein Foto.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Sein Name oder der eines Ordners enthält Zeichen, die kein UTF-8 sind. Benennen Sie es um.</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be opened. Give yourself the permission to open it.</source>
        <translation>Sein Ordner kann nicht geöffnet werden. Geben Sie sich das Recht, ihn zu öffnen.</translation>
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
</context>
<context>
    <name>PhotoPage</name>
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
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1: Das ist das Ergebnis eines anderen Fotos in der Liste.</numerusform>
            <numerusform>%n Dateien, die Ergebnisse anderer Fotos in der Liste sind, zum Beispiel „%1“.</numerusform>
        </translation>
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
    <name>PhotoStore</name>
    <message>
        <source>There is not enough memory for it. Close other programs, or scale the photograph down.</source>
        <translation>Dafür ist nicht genug Speicher frei. Schließen Sie andere Programme, oder verkleinern Sie das Foto.</translation>
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
    <name>PhotographList</name>
    <message>
        <source>The list &quot;%1&quot; can&apos;t be read: %2. Check its name, or write ./@... for a photograph whose name begins with @.</source>
        <translation>Die Liste „%1“ kann nicht gelesen werden: %2. Prüfen Sie den Namen, oder schreiben Sie ./@..., wenn der Name eines Fotos mit @ beginnt.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.</source>
        <translation>Die Liste „%1“ enthält Nullbytes. Fügen Sie --null (-0) hinzu, wenn die Namen damit enden, oder speichern Sie sie als Text in UTF-8.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds no null bytes. Leave out --null (-0) if it has one name per line.</source>
        <translation>Die Liste „%1“ enthält keine Nullbytes. Lassen Sie --null (-0) weg, wenn in jeder Zeile ein Name steht.</translation>
    </message>
</context>
<context>
    <name>PictureRenderer</name>
    <message>
        <source>There is not enough memory for this picture. Close other programs.</source>
        <translation>Für dieses Bild ist nicht genug Speicher frei. Schließen Sie andere Programme.</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Hold: the photograph before</source>
        <translation>Halten: das Foto vorher</translation>
    </message>
    <message>
        <source>Hold: the haze map; Alt does the same</source>
        <translation>Halten: die Dunstkarte; Alt tut dasselbe</translation>
    </message>
    <message>
        <source>Move over the photograph</source>
        <translation>Über das Foto bewegen</translation>
    </message>
    <message>
        <source>Move the line between before and after</source>
        <translation>Die Linie zwischen vorher und nachher verschieben</translation>
    </message>
    <message>
        <source>Before, zoom %1 %</source>
        <translation>Vorher, Zoom %1 %</translation>
    </message>
    <message>
        <source>Haze map, zoom %1 %</source>
        <translation>Dunstkarte, Zoom %1 %</translation>
    </message>
    <message>
        <source>After %1 %, zoom %2 %</source>
        <translation>Nachher %1 %, Zoom %2 %</translation>
    </message>
    <message>
        <source>Before and after %1 %, zoom %2 %</source>
        <translation>Vorher und nachher %1 %, Zoom %2 %</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Dunstkarte</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After %1 %</source>
        <translation>Nachher %1 %</translation>
    </message>
    <message>
        <source>Estimating the haze</source>
        <translation>Dunst wird geschätzt</translation>
    </message>
    <message>
        <source>Reading the photograph</source>
        <translation>Foto wird gelesen</translation>
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
    <name>PrivateRun</name>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder for the results.</source>
        <translation>Im Ordner „%1“ können keine Dateien angelegt werden: %2. Schaffen Sie dort Platz, oder wählen Sie einen anderen Ordner für die Ergebnisse.</translation>
    </message>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder with --output.</source>
        <translation>Im Ordner „%1“ können keine Dateien angelegt werden: %2. Schaffen Sie dort Platz, oder wählen Sie mit --output einen anderen Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>A link to the photograph can&apos;t be created, neither in the folder of its result nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Eine Verknüpfung mit dem Foto kann weder im Ordner des Ergebnisses noch in „%1“ angelegt werden. Schaffen Sie dort Platz, und prüfen Sie, ob Sie dort schreiben dürfen.</translation>
    </message>
    <message>
        <source>Its %1 bits per channel don&apos;t fit into a file of this format. Choose a name that ends in .tif, .psd or, for up to 16 bits, .png.</source>
        <translation>Die %1 Bit pro Kanal passen nicht in eine Datei dieses Formats. Wählen Sie einen Namen, der auf .tif, .psd oder, bis 16 Bit, auf .png endet.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Das Plug-in hat „%1“ statt „%2“ geschrieben</translation>
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
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>In die Standardausgabe kann nicht geschrieben werden: %1. Schaffen Sie dort Platz, oder leiten Sie die Ausgabe woandershin.</translation>
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
        <translation>automatische Stärke</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1: %2 (%3 x %4 pixels, %5 of memory, %6)</source>
        <translation>%1: %2 (%3 x %4 Pixel, %5 Speicher, %6)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>%n Foto würde bearbeitet.</numerusform>
            <numerusform>%n Fotos würden bearbeitet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n Foto fertig.</numerusform>
            <numerusform>%n Fotos fertig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n blieb unverändert.</numerusform>
            <numerusform>%n blieben unverändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>%n übersprungen.</numerusform>
            <numerusform>%n übersprungen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>%n fehlgeschlagen.</numerusform>
            <numerusform>%n fehlgeschlagen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>%n nicht begonnen.</numerusform>
            <numerusform>%n nicht begonnen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>, noch %1</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>wird gespeichert: %1</translation>
    </message>
    <message>
        <source>removing haze: %1</source>
        <translation>Dunst wird entfernt: %1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>wird gelesen: %1</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;result</source>
        <translation>&amp;Ergebnis öffnen</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Show the result in the program that opens such pictures</source>
        <translation>Das Ergebnis in dem Programm zeigen, das solche Bilder öffnet</translation>
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
        <source>Start &amp;over</source>
        <translation>&amp;Von vorn beginnen</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Andere Fotos auswählen</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Alle Fotos sind fertig.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>%1 von %2 Fotos sind fertig.</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Wird beendet; die Datei, die gerade gespeichert wird, wird noch fertiggestellt. Nochmals Strg+C beendet sofort.</translation>
    </message>
    <message>
        <source>Remove haze</source>
        <translation>Dunst entfernen</translation>
    </message>
    <message>
        <source>There is no desktop that shows notifications.</source>
        <translation>Es gibt keinen Desktop, der Benachrichtigungen zeigt.</translation>
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
        <source>The list names no photographs: there is nothing to do.</source>
        <translation>Die Liste nennt keine Fotos: Es gibt nichts zu tun.</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists and is not a folder. Name another one.</source>
        <translation>--output: „%1“ gibt es schon, und es ist kein Ordner. Geben Sie einen anderen an.</translation>
    </message>
    <message>
        <source>--output: results can&apos;t be written as &quot;%1&quot;. Choose a name that ends in one of %2.</source>
        <translation>--output: Ergebnisse können nicht als „%1“ geschrieben werden. Wählen Sie einen Namen, der auf eines von %2 endet.</translation>
    </message>
    <message>
        <source>--output names the file &quot;%1&quot;, but there are %2 photographs. Name a folder, such as &quot;%3&quot;.</source>
        <translation>--output nennt die Datei „%1“, aber es sind %2 Fotos. Geben Sie einen Ordner an, etwa „%3“.</translation>
    </message>
    <message>
        <source>--tag is for results that get their names from their photographs: leave it out, or name a folder as --output.</source>
        <translation>--tag gilt für Ergebnisse, die nach ihren Fotos benannt werden: Lassen Sie es weg, oder geben Sie als --output einen Ordner an.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>„%1“ wird ausgelassen: Es ist das Ergebnis eines der anderen Fotos.</numerusform>
            <numerusform>%n Dateien werden ausgelassen, die Ergebnisse der anderen Fotos sind, zum Beispiel „%1“.</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>Kein --strength angegeben und keine Voreinstellung gespeichert: %1 wird verwendet.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>Kein --strength angegeben: Ihre gespeicherte Voreinstellung wird verwendet, die automatische Stärke.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>Kein --strength angegeben: Ihre gespeicherte Voreinstellung %1 wird verwendet.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Die Einstellungsdatei „%1“ trägt den Namen eines Ergebnisses. Geben Sie ihr einen anderen.</translation>
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
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Fotos</translation>
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
    <message>
        <source>Photographs that are done</source>
        <translation>Fertige Fotos</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Jedes Ergebnis wird neben seinem Foto gespeichert.</translation>
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
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Wird angehalten. Ein Ergebnis, das gerade gespeichert wird, wird noch fertiggestellt.</translation>
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
        <source>Its result already existed and was kept.</source>
        <translation>Das Ergebnis war schon vorhanden und wurde behalten.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>SaveBar</name>
    <message>
        <source>less than a minute left</source>
        <translation>noch weniger als eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>noch etwa %n Minute</numerusform>
            <numerusform>noch etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>noch etwa %n Stunde</numerusform>
            <numerusform>noch etwa %n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Wird gespeichert</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 von %2 gespeichert</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Pause: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>%n Foto gespeichert</numerusform>
            <numerusform>%n Fotos gespeichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>%n beibehalten</numerusform>
            <numerusform>%n beibehalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n fehlgeschlagen</numerusform>
            <numerusform>%n fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>%n angehalten</numerusform>
            <numerusform>%n angehalten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveOptionsDialog</name>
    <message>
        <source>In this &amp;folder:</source>
        <translation>In diesem &amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Wählen...</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>JPEG-&amp;Qualität:</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>Speicheroptionen</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Otherwise each result is saved beside its photograph</source>
        <translation>Sonst wird jedes Ergebnis neben seinem Foto gespeichert</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>Ordner der Ergebnisse</translation>
    </message>
    <message>
        <source>&amp;Tag behind the name:</source>
        <translation>&amp;Zusatz hinter dem Namen:</translation>
    </message>
    <message>
        <source>Otherwise each JPEG keeps the quality of its photograph</source>
        <translation>Sonst behält jedes JPEG die Qualität seines Fotos</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG-Qualität</translation>
    </message>
    <message>
        <source>If a result exists already</source>
        <translation>Wenn es schon ein Ergebnis gibt</translation>
    </message>
    <message>
        <source>&amp;Replace it if its strength has changed</source>
        <translation>Bei geänderter &amp;Stärke ersetzen</translation>
    </message>
    <message>
        <source>Replace it in &amp;any case</source>
        <translation>In &amp;jedem Fall ersetzen</translation>
    </message>
    <message>
        <source>Keep &amp;both: the new one gets a number</source>
        <translation>&amp;Beide behalten: Das neue bekommt eine Nummer</translation>
    </message>
    <message>
        <source>&amp;Keep it and save nothing</source>
        <translation>Be&amp;halten und nichts speichern</translation>
    </message>
    <message>
        <source>A tag can&apos;t contain &quot;/&quot;.</source>
        <translation>Ein Zusatz kann kein „/“ enthalten.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;. Choose one that exists.</source>
        <translation>Es gibt keinen Ordner „%1“. Wählen Sie einen, den es gibt.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Choose another one.</source>
        <translation>Der Ordner „%1“ ist schreibgeschützt. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>%1 becomes %2.</source>
        <translation>Aus %1 wird %2.</translation>
    </message>
</context>
<context>
    <name>SaveQueue</name>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Das Ergebnis gab es schon; es wurde beibehalten.</translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message>
        <source>edited</source>
        <translation>bearbeitet</translation>
    </message>
    <message>
        <source>waiting to be saved</source>
        <translation>wartet aufs Speichern</translation>
    </message>
    <message>
        <source>being saved</source>
        <translation>wird gespeichert</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>changed since it was saved</source>
        <translation>seit dem Speichern geändert</translation>
    </message>
    <message>
        <source>existing result kept</source>
        <translation>vorhandenes Ergebnis beibehalten</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>Strength %1 %, automatic</source>
        <translation>Stärke %1 %, automatisch</translation>
    </message>
    <message>
        <source>Strength %1 %</source>
        <translation>Stärke %1 %</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>Kamera-Rohdaten</translation>
    </message>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>%n Foto hinzufügen</numerusform>
            <numerusform>%n Fotos hinzufügen</numerusform>
        </translation>
    </message>
    <message>
        <source>Change strength</source>
        <translation>Stärke ändern</translation>
    </message>
    <message>
        <source>Automatic strength</source>
        <translation>Automatische Stärke</translation>
    </message>
    <message>
        <source>Reset strength</source>
        <translation>Stärke zurücksetzen</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>%n Foto entfernen</numerusform>
            <numerusform>%n Fotos entfernen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The session can&apos;t be kept in &quot;%1&quot;: %2. Make room, or give yourself permission to write there.</source>
        <translation>Die Sitzung kann nicht in „%1“ aufbewahrt werden: %2. Schaffen Sie Platz, oder geben Sie sich dort Schreibrechte.</translation>
    </message>
    <message>
        <source>Another window works on the settings file &quot;%1&quot;. Close it there first.</source>
        <translation>Ein anderes Fenster arbeitet an der Einstellungsdatei „%1“. Schließen Sie sie dort zuerst.</translation>
    </message>
    <message>
        <source>The session in &quot;%1&quot; can&apos;t be read: %2. Open its photographs or a settings file instead.</source>
        <translation>Die Sitzung in „%1“ kann nicht gelesen werden: %2. Öffnen Sie stattdessen ihre Fotos oder eine Einstellungsdatei.</translation>
    </message>
    <message>
        <source>Another window works on this session. Close it there first.</source>
        <translation>Ein anderes Fenster arbeitet an dieser Sitzung. Schließen Sie sie dort zuerst.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Check its name and folder.</source>
        <translation>Es gibt keine Einstellungsdatei „%1“. Prüfen Sie Namen und Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photographs. Give the settings file another name.</source>
        <translation>„%1“ ist eines der Fotos. Geben Sie der Einstellungsdatei einen anderen Namen.</translation>
    </message>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>Die Stärke von %n Foto ginge verloren.</numerusform>
            <numerusform>Die Stärken von %n Fotos gingen verloren.</numerusform>
        </translation>
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
    <name>StrengthPanel</name>
    <message>
        <source>&amp;Strength</source>
        <translation>&amp;Stärke</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>How much of the haze is removed</source>
        <translation>Wie viel vom Dunst entfernt wird</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Stärke in Prozent</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>Add photographs...</source>
        <translation>Fotos hinzufügen...</translation>
    </message>
    <message>
        <source>Add photographs to the series</source>
        <translation>Der Reihe Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Ordner hinzufügen...</translation>
    </message>
    <message>
        <source>Add the photographs of a folder to the series</source>
        <translation>Die Fotos eines Ordners der Reihe hinzufügen</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Neu beginnen</translation>
    </message>
    <message>
        <source>Begin an empty series; this one stays among the recent sessions</source>
        <translation>Eine leere Reihe beginnen; diese bleibt unter den letzten Sitzungen</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>Sitzung &amp;öffnen...</translation>
    </message>
    <message>
        <source>Open photographs and strengths that were saved as a session</source>
        <translation>Als Sitzung gespeicherte Fotos und Stärken öffnen</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Sitzung speichern</translation>
    </message>
    <message>
        <source>Save the list of photographs and their strengths</source>
        <translation>Die Liste der Fotos und ihre Stärken speichern</translation>
    </message>
    <message>
        <source>Save the session as...</source>
        <translation>Sitzung speichern unter...</translation>
    </message>
    <message>
        <source>Save the session under another name</source>
        <translation>Die Sitzung unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Voriges Foto</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Nächstes Foto</translation>
    </message>
    <message>
        <source>First photograph</source>
        <translation>Erstes Foto</translation>
    </message>
    <message>
        <source>Last photograph</source>
        <translation>Letztes Foto</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Select all photographs</source>
        <translation>Alle Fotos auswählen</translation>
    </message>
    <message>
        <source>Remove from the series</source>
        <translation>Aus der Reihe entfernen</translation>
    </message>
    <message>
        <source>Remove the selected photographs from the series; the files stay</source>
        <translation>Die ausgewählten Fotos aus der Reihe entfernen; die Dateien bleiben</translation>
    </message>
    <message>
        <source>Stronger</source>
        <translation>Stärker</translation>
    </message>
    <message>
        <source>Raise the strength by 1 per cent</source>
        <translation>Die Stärke um 1 Prozent erhöhen</translation>
    </message>
    <message>
        <source>Weaker</source>
        <translation>Schwächer</translation>
    </message>
    <message>
        <source>Lower the strength by 1 per cent</source>
        <translation>Die Stärke um 1 Prozent senken</translation>
    </message>
    <message>
        <source>Stronger by 10</source>
        <translation>Um 10 stärker</translation>
    </message>
    <message>
        <source>Raise the strength by 10 per cent</source>
        <translation>Die Stärke um 10 Prozent erhöhen</translation>
    </message>
    <message>
        <source>Weaker by 10</source>
        <translation>Um 10 schwächer</translation>
    </message>
    <message>
        <source>Lower the strength by 10 per cent</source>
        <translation>Die Stärke um 10 Prozent senken</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Give each selected photograph the strength that suits it</source>
        <translation>Jedem ausgewählten Foto die passende Stärke geben</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Go back to the strength at the start</source>
        <translation>Zur Stärke vom Anfang zurückkehren</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Die letzte Änderung rückgängig machen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Make the change again that was undone</source>
        <translation>Die rückgängig gemachte Änderung wiederholen</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected</source>
        <translation>Auf aus&amp;gewählte anwenden</translation>
    </message>
    <message>
        <source>Use this strength for all selected photographs</source>
        <translation>Diese Stärke für alle ausgewählten Fotos verwenden</translation>
    </message>
    <message>
        <source>App&amp;ly to all</source>
        <translation>Auf a&amp;lle anwenden</translation>
    </message>
    <message>
        <source>Use this strength for all photographs of the series</source>
        <translation>Diese Stärke für alle Fotos der Reihe verwenden</translation>
    </message>
    <message>
        <source>Use as &amp;default</source>
        <translation>Als Sta&amp;ndard verwenden</translation>
    </message>
    <message>
        <source>Start new photographs at this strength from now on</source>
        <translation>Neue Fotos ab jetzt mit dieser Stärke beginnen</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Geteilt</translation>
    </message>
    <message>
        <source>Before and after in one picture, with a line to drag</source>
        <translation>Vorher und nachher in einem Bild, mit einer Linie zum Ziehen</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Before and after side by side</source>
        <translation>Vorher und nachher nebeneinander</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Only the result</source>
        <translation>Nur das Ergebnis</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Hold, or hold Space: the photograph as it was</source>
        <translation>Halten, oder Leertaste halten: das Foto, wie es war</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Dunstkarte</translation>
    </message>
    <message>
        <source>Hold, or hold M: where haze was found</source>
        <translation>Halten, oder M halten: wo Dunst gefunden wurde</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Beschnitt</translation>
    </message>
    <message>
        <source>Mark pixels that became black or white</source>
        <translation>Pixel markieren, die schwarz oder weiß wurden</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show the whole photograph</source>
        <translation>Das ganze Foto zeigen</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show each pixel as it is, where the pointer is</source>
        <translation>Jedes Pixel zeigen, wie es ist, an der Stelle des Zeigers</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>Show pixels at twice their size</source>
        <translation>Pixel doppelt so groß zeigen</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show pixels at four times their size</source>
        <translation>Pixel viermal so groß zeigen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Save this one</source>
        <translation>Dieses speichern</translation>
    </message>
    <message>
        <source>Save the result of this photograph</source>
        <translation>Das Ergebnis dieses Fotos speichern</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Alle speichern</translation>
    </message>
    <message>
        <source>Save the results of the whole series</source>
        <translation>Die Ergebnisse der ganzen Reihe speichern</translation>
    </message>
    <message>
        <source>Save op&amp;tions...</source>
        <translation>Speicheropt&amp;ionen...</translation>
    </message>
    <message>
        <source>Folder, tag and quality of the results, and what happens to existing ones</source>
        <translation>Ordner, Zusatz und Qualität der Ergebnisse, und was mit vorhandenen geschieht</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Finish the photographs in work and begin no other until you resume</source>
        <translation>Die Fotos in Arbeit beenden und bis zum Fortsetzen kein anderes beginnen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stop saving; results that are complete stay</source>
        <translation>Nicht weiter speichern; fertige Ergebnisse bleiben</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Try again those photographs that failed</source>
        <translation>Fotos, die fehlgeschlagen sind, erneut versuchen</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Use the whole screen, or go back to the window</source>
        <translation>Den ganzen Bildschirm nutzen oder zum Fenster zurückkehren</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>Alle Tasten zeigen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Das Fenster schließen</translation>
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
        <translation>&amp;Dunst entfernen</translation>
    </message>
    <message>
        <source>Set how much haze to remove from each photograph. Hold Alt to see where the haze is.</source>
        <translation>Legen Sie fest, wie viel Dunst aus jedem Foto entfernt wird. Halten Sie Alt, um zu sehen, wo der Dunst ist.</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Stärke in Prozent</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Voriges Foto</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Nächstes Foto</translation>
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
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1, %n Foto, %2</numerusform>
            <numerusform>%1, %n Fotos, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Reihe</translation>
    </message>
    <message>
        <source>Drag the line to compare. Hold Space: before. Left, Right: photograph. Up, Down: strength.</source>
        <translation>Linie ziehen: vergleichen. Leertaste halten: vorher. Links, rechts: Foto. Auf, ab: Stärke.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Open, save or begin a session: photographs with their strengths</source>
        <translation>Eine Sitzung öffnen, speichern oder beginnen: Fotos mit ihren Stärken</translation>
    </message>
    <message>
        <source>&amp;Recent sessions</source>
        <translation>Le&amp;tzte Sitzungen</translation>
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
        <translation>%1 x %2 px, %3 Bit</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>Ergebnis: %1</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected (%1)</source>
        <translation>Auf aus&amp;gewählte anwenden (%1)</translation>
    </message>
    <message>
        <source>App&amp;ly to all (%1)</source>
        <translation>Auf a&amp;lle anwenden (%1)</translation>
    </message>
    <message>
        <source>Save all %1</source>
        <translation>Alle %1 speichern</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Fortsetzen</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
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
            <numerusform>%n Ergebnis weggelassen.</numerusform>
            <numerusform>%n Ergebnisse weggelassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photographs in the folder &quot;%1&quot;.</source>
        <translation>Im Ordner „%1“ sind keine Fotos.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>%n Foto dieser Reihe war noch zu speichern.</numerusform>
            <numerusform>%n Fotos dieser Reihe waren noch zu speichern.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Save them now</source>
        <translation>&amp;Jetzt speichern</translation>
    </message>
    <message>
        <source>The series is as you left it.</source>
        <translation>Die Reihe ist, wie Sie sie verlassen haben.</translation>
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
        <source>Add a folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Sitzung öffnen</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Einstellungsdateien (*.xml)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Sitzung speichern</translation>
    </message>
    <message>
        <source>New photographs start at their automatic strength.</source>
        <translation>Neue Fotos beginnen mit ihrer automatischen Stärke.</translation>
    </message>
    <message>
        <source>New photographs start at %1 %.</source>
        <translation>Neue Fotos beginnen mit %1 %.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>%n Foto konnte nicht gespeichert werden.</numerusform>
            <numerusform>%n Fotos konnten nicht gespeichert werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Try a&amp;gain</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>Saving has ended</source>
        <translation>Das Speichern ist beendet</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>&amp;Trotzdem schließen</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>&amp;Bleiben</translation>
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
