<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no format that can be written, so the result is a TIFF.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is itself one of the photographs given. Leave out one of the two.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is the result of &quot;%1&quot;, which is given too. Leave out one of the two.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would be that of &quot;%2&quot; too. Rename one of the two photographs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where its result belongs, at &quot;%1&quot;, a folder stands. Move the folder away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is there already. Give --overwrite to replace it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result is there, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped; no result was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and see that you may write there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength wants a whole number from 0 to 100, not &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--jobs wants a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--language knows %1, but not &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--settings wants the name of a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 is not for the wizard, which asks in its window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name the photographs to take the haze from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>veilaway takes the haze out of photographs.

Usage:
  veilaway [run] PHOTO... [options]
  veilaway [run] --settings FILE [options]
  veilaway wizard [PHOTO...] [options]
  veilaway --help | --version

Each result is written beside its photograph, under the photograph&apos;s name with a
tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed.
The tag follows the language: _entnebelt with --language de, for instance.

The wizard opens a window: choose photographs, set the strength of each with a live
preview, take the haze away, and compare. It takes --settings (which then holds the
strengths), --language, --jobs, --share-services and --plugin.

Options:
  --strength N      How much haze to take away, in per cent: 0 leaves the picture as
                    it is, 100 takes all. Without it, the strength in the settings
                    file counts, then your stored default, then 70.
  --settings FILE   Keep the strength of each photograph in this XML file. If the file
                    is there, its strengths are used, unless --strength is given too;
                    at the end it holds the strengths that were used. Without a PHOTO,
                    all photographs in the file are done.
  --language LANG   Language of messages and of the tag: de, en, es, fr, it, ja, pl,
                    ru, zh_CN or zh_TW. Without it, that of the system.
  --jobs N          Photographs worked on at the same time. Without it, as many as keep
                    all cores busy and fit into memory.
  --overwrite       Replace results that are there already.
  --quiet           Say nothing but what failed.
  --json            Write one JSON object a line for each photograph, with photo,
                    result, status (done, failed, stopped), strength, seconds, message.
  --share-services  Lend the plug-in the program&apos;s own services (log, memory pool,
                    processor count) instead of letting it make them.
  --plugin FILE     Load this plug-in file instead of Nimbra.so beside the program or
                    in ../lib/nimbra.
  -h, --help        Show this text.
  --version         Show the versions of the program and of the plug-in.
  --                What follows are photographs, even if they begin with a dash.

Formats:
  Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri),
  OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8, 16
  bits or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that
  the result is shown as its photograph is.
  Read only: camera raw (dng, cr2, cr3, nef, arw, raf, orf, rw2 and others). The result
  is a TIFF of 16 bits. Photographs with any other suffix, or none, become a TIFF too.
  XMP sidecar files stay where they are and are not read.

Ends with:
  0  All photographs are done.
  1  Some are not: standard error says which, why, and what helps. Ctrl-C ends so too,
     without leaving half a result.
  2  The command line or the settings file is wrong; nothing was begun.

Examples:
  veilaway hills.jpg --strength 80
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it anew from the camera or a backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no picture of a known format, or another one than its suffix says. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of what it is, or convert it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An empty name stands for no photograph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no regular file. Copy the photograph into one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is empty. Copy it anew from the camera or a backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it anew, or convert it to DNG or TIFF.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the photographs to take the haze from, or drop them here. They stay as they are: each result is written beside its photograph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too wide: haze can be taken from photographs of up to %1 pixels in width. Scale it down, or cut it into parts.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; is not there. Build or install it, or say with --plugin FILE where it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it anew, or name another one with --plugin FILE.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 (%3 s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 photographs done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>taking haze away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the photographs and the strength of each in a settings file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped before it began.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs to make one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written there. Name one in another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taking the haze away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each result is written beside its photograph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run are there already.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopping. The photographs in hand end first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its result was there already and has been kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; stands in it twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself the permission to write there.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WizardWindow</name>
    <message>
        <source>veilaway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take the haze away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>XmpCarrier</name>
    <message>
        <source>the result can&apos;t be replaced</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
