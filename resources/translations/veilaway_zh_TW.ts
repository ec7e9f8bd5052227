<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>沒有副檔名，因此結果儲存為 TIFF。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>無法寫入「%1」格式，因此結果儲存為 TIFF。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation>其結果檔案「%1」與照片「%2」是同一個檔案。請將其中一個移到別處。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs.</source>
        <translation>其結果檔案「%1」會與「%2」的結果同名。請重新命名其中一張照片。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>結果檔案的位置「%1」上有一個同名資料夾。請將該資料夾移到別處。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>其結果檔案「%1」已經存在。如要取代，請加上 --overwrite。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation>無法寫入結果：資料夾「%1」是唯讀的。請將照片複製到其他資料夾。</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>結果檔案的名稱會過長。請為照片取一個較短的名稱。</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>結果已儲存，但無法將照片的 XMP 複製到結果中：%1。</translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation>外掛程式在下列位置發生錯誤：%1。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>記憶體不足。</translation>
    </message>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>已停止，未寫入結果。</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>請關閉其他程式，或一次只處理一張照片（--jobs 1）。</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>請在資料夾「%1」中騰出空間，並確認您有權在其中寫入。</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>外掛程式寫入的是「%1」，而不是「%2」。</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>去除霧霾期間，照片被更改、移動或刪除。請將其放回原處，然後重新開始。</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>此照片約需 %1 記憶體，而可用記憶體為 %2。請關閉其他程式，或縮小照片。</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation>處理前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>處理後</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength 需要 0 到 100 之間的整數或 auto，而不是「%1」。</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs 必須是 1 到 %1 之間的整數，不能是「%2」。</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>--language 支援 %1，不支援「%2」。</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>--settings 後面必須指定 UTF-8 檔案名稱。</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with the wizard, which asks in its window.</source>
        <translation>精靈不接受 --%1，請在其視窗中設定。</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>請指定要去除薄霧的照片。</translation>
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
        <translation>veilaway 用於去除照片中的薄霧。

用法：
  veilaway [run] PHOTO... [選項]
  veilaway [run] --settings FILE [選項]
  veilaway wizard [PHOTO...] [選項]
  veilaway --set-default N|auto|none
  veilaway --help | --version

每張照片的結果都寫入其所在的資料夾，名稱為照片名稱加上標記：hills.jpg 變為 hills_去除糢糊.jpg。照片本身絕不會更動。標記隨語言而變，例如 --language en 時為 _dehazed。

精靈會開啟一個視窗：選擇照片，在即時預覽下設定每張照片的強度，去除薄霧，然後比較前後效果。它接受 --settings（強度儲存在該檔案中）、--language、--jobs、--share-services 和 --plugin。

選項：
  --strength N      去除薄霧的程度（百分比）：0 表示保持照片不變，100 表示全部去除，auto 表示依每張照片自動選擇：暗的照片為 50，亮的照片最高為 80。未指定時，依序採用設定檔中的強度、您儲存的預設值、70。
  --set-default N   儲存此預設值（數字或 auto），或用 none 取消。不做其他任何事。
  --settings FILE   將每張照片的強度儲存在此 XML 檔案中。如果檔案已存在，則使用其中的強度，除非另外指定了 --strength；結束時，檔案記錄實際使用的強度。未指定 PHOTO 時，處理檔案中的所有照片。
  --language LANG   訊息和標記的語言：de、en、es、fr、it、ja、pl、ru、zh_CN 或 zh_TW。未指定時，使用系統的語言。
  --jobs N          同時處理的照片數量。未指定時，在記憶體允許的範圍內取能讓所有核心保持忙碌的數量。
  --overwrite       取代已有的結果。
  --quiet           只回報失敗的內容。
  --json            為每張照片輸出一行 JSON 物件，包含 photo、result、status（done、unchanged、failed、stopped）、strength、automatic、seconds、message、unchanged（原因，或 null）。
  --share-services  讓外掛程式使用本程式自身的服務（記錄、記憶體集區、處理器數量），而不是由外掛程式自行建立。
  --plugin FILE     載入此外掛程式檔案，而不是程式所在資料夾或 ../lib/nimbra 中的 Nimbra.so。
  -h, --help        顯示本說明。
  --version         顯示程式和外掛程式的版本。
  --                其後的內容都是照片，即使以連字號開頭。

格式：
  讀取和寫入：JPEG（jpg、jpeg）、PNG、TIFF（tif、tiff）、Radiance（hdr、hdri）、OpenEXR（exr）和 PSD。結果沿用照片的格式、位元深度（8 位元、16 位元或浮點）、色彩描述檔、EXIF、IPTC 和 XMP。EXIF 方向保持不變，因此結果的顯示方向與照片相同。
  僅讀取：相機 RAW（dng、cr2、nef、arw、raf、orf、rw2 等）。結果為 16 位元 TIFF。副檔名為其他或沒有副檔名的照片，結果也是 TIFF。XMP 附屬檔案留在原處，不會讀取。

結束代碼：
  0  所有照片皆已完成，或保持原樣（並說明原因）。
  1  部分照片未完成：標準錯誤輸出會說明是哪些照片、原因以及解決辦法。或者無法寫入標準輸出。
  2  命令列或設定檔有誤；未開始任何處理。
按 Ctrl-C 時程式由該訊號結束（在 shell 中為 130），且不會留下不完整的結果。

範例：
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>請參閱 veilaway --help。</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default 需要 0 到 100 之間的整數、auto 或 none，而不是「%1」。</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default 只儲存預設值：請去掉照片以及用於照片的選項。</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>無法將預設值儲存到「%1」。請騰出空間，或為自己授予寫入權限。</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start the wizard in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>無法顯示視窗：%1。請在桌面工作階段中啟動精靈，或從另一台電腦以 ssh -X 啟動。不需要視窗時，可用 veilaway 照片... 完成處理。</translation>
    </message>
</context>
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_去除糢糊</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>無法開啟檔案。請檢查檔案是否存在，以及您是否有權讀取。</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>檔案不完整或已損毀。請從相機或備份重新複製。</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>記憶體不足，無法處理此照片。請關閉其他程式，或一次只處理一張照片（--jobs 1）。</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>這不是已知格式的影像，或其實際格式與副檔名不符。可以讀取 JPEG、PNG、TIFF、HDR、EXR、PSD 和相機 RAW；請將副檔名改為與實際格式一致，或轉換該檔案。</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>這是影片。只能從照片中去除薄霧；請將其中的一格畫面儲存為 JPEG、PNG 或 TIFF。</translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>無法讀取這種像素格式。請另存為 8 位元或 16 位元 RGB，然後再試一次。</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>空白名稱不代表任何照片。</translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>連結指向的檔案不存在。請直接指定照片本身。</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>沒有這個檔案。請檢查名稱和資料夾。</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>這是一個資料夾。請指定其中的照片，例如「%1」。</translation>
    </message>
    <message>
        <source>This is not a regular file. Copy the photograph into one.</source>
        <translation>這不是一般檔案。請將照片複製為一般檔案。</translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>無法讀取檔案。請為自己授予讀取權限。</translation>
    </message>
    <message>
        <source>The file is empty. Copy it again from the camera or a backup.</source>
        <translation>檔案是空的。請從相機或備份重新複製。</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>記憶體不足，無法處理此相機 RAW 檔案。請關閉其他程式，或一次只處理一張照片（--jobs 1）。</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>無法解碼此相機 RAW 檔案：%1。請重新複製，或轉換為 DNG 或 TIFF。</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>其名稱或資料夾名稱含有非 UTF-8 字元。請重新命名。</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>清單中其他照片的 %n 個結果，例如「%1」。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Choose the photographs to remove haze from, or drop them here. They are never changed: each result is saved beside its photograph.</source>
        <translation>請選擇要去除薄霧的照片，或將照片拖放到此處。原照片保持不變，每張照片的結果都寫入其所在的資料夾。</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>新增照片(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>開啟工作階段(&amp;O)...</translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation>記錄照片及每張照片強度的設定檔</translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation>%1：此資料夾中沒有照片。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>正在讀取 %n 張照片...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>%n 張照片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... 以及另外 %n 項</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>未加入：</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>新增照片</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>照片 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>開啟工作階段</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>設定檔 (*.xml)</translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>照片過大：只能為寬度或高度不超過 %1 像素的照片去除薄霧。請縮小照片，或將其裁成幾個部分。</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>找不到外掛程式「%1」。請建置或安裝它，或用 --plugin FILE 指定其位置。</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>」或「</translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>它是另一種類型的外掛程式</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>無法使用外掛程式「%1」：%2。請重新安裝，或用 --plugin FILE 指定其他外掛程式。</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1：%2（%3）</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n 張照片已完成。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation>共 %2 張照片，%1 張已完成，%3 張未完成。</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>正在讀取</translation>
    </message>
    <message>
        <source>removing haze</source>
        <translation>正在去除薄霧</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>正在儲存</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n 張保持原樣。</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>無法寫入標準輸出：%1。請騰出空間，或將其輸出到別處。</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>%n 張照片未開始處理。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %，%2 秒</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;folder</source>
        <translation>開啟資料夾(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>儲存工作階段(&amp;S)...</translation>
    </message>
    <message>
        <source>Save the photographs and the strength of each in a settings file</source>
        <translation>將照片及每張照片的強度儲存到設定檔中</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>所有照片皆已完成。</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>共 %2 張照片，%1 張已完成。</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>重新開始(&amp;O)</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>選擇其他照片</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>未指定 --strength：使用您儲存的預設值 %1。</translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>未指定 --strength，也沒有儲存的預設值：使用 %1。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>設定檔「%1」中沒有照片。請指定照片。</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>沒有設定檔「%1」。請指定照片以建立該檔案。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>無法在該位置寫入設定檔「%1」。請指定其他資料夾中的檔案。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>設定檔「%1」與某個結果檔案同名。請另取一個名稱。</translation>
    </message>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>正在停止；正在完成目前儲存的檔案。再按一次 Ctrl-C 可立即結束。</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>已略過 %n 個檔案，它們是其他照片的結果，例如「%1」。</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>未指定 --strength：採用您儲存的預設值，即自動強度。</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>Removing haze</source>
        <translation>正在去除薄霧</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>每張照片的結果都寫入其所在的資料夾。</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>取代(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>保留(&amp;K)</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強度</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>State</source>
        <translation>狀態</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>已有 %n 個先前處理的結果。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v / %m</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>正在讀取</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>正在儲存</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>正在停止。正在儲存的結果會先儲存完畢。</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>其結果已經存在，已予保留。</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>未改變</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>已保留</translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>不再儲存預設值；未指定 --strength 時為百分之 %1。</translation>
    </message>
    <message>
        <source>From now on, each photograph gets its automatic strength.</source>
        <translation>從現在起，每張照片採用各自的自動強度。</translation>
    </message>
    <message>
        <source>From now on, the default strength is %1 per cent.</source>
        <translation>從現在起，預設強度為百分之 %1。</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation>無法使用設定檔「%1」：%2。請修復該檔案，或指定其他檔案。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是一個資料夾</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>第 %1 行第 %2 欄：%3</translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation>其最外層元素不是 &lt;%1&gt;</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation>%1：有一張照片沒有路徑</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1：「%2」重複出現</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1：該照片需要 &lt;%2 %3=&quot;...&quot;/&gt;，其值為 0 到 100 之間的整數</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>無法寫入設定檔「%1」：%2。請騰出空間，或為自己授予在該處寫入的權限。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>設定檔「%1」無法記錄照片「%2」：其名稱含有控制字元。請重新命名。</translation>
    </message>
</context>
<context>
    <name>TransposedRun</name>
    <message>
        <source>A temporary folder with a link to the photograph can&apos;t be created, neither beside it nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>在照片旁邊和「%1」中都無法建立含有照片連結的暫存資料夾。請在那裡騰出空間，並確認您有權寫入。</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>外掛程式寫入的是「%1」，而不是「%2」。</translation>
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
        <translation>去除薄霧(&amp;T)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>儲存工作階段</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>設定檔 (*.xml)</translation>
    </message>
</context>
<context>
    <name>whyUnchanged</name>
    <message>
        <source>It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, or no pixel has a usable colour. Crop it, or repair its colours in an image editor.</source>
        <translation>照片保持原樣，因為無法測量薄霧：一邊的長度超過另一邊的 100,000 倍，或沒有任何像素具有可用的顏色。請裁切照片，或在影像編輯器中修正其顏色。</translation>
    </message>
    <message>
        <source>It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or memory ran short. Repair those pixels in an image editor, or close other programs and try again.</source>
        <translation>照片保持原樣，因為無法計算薄霧：某些像素含有無窮大或未定義的值，或記憶體不足。請在影像編輯器中修正這些像素，或關閉其他程式後重試。</translation>
    </message>
</context>
</TS>
