<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>其結果檔案「%1」已經存在。如要取代，請加上 --overwrite。</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>無法讀取資料夾。請為自己授予讀取權限。</translation>
    </message>
    <message>
        <source>There are no photographs in this folder or those inside it.</source>
        <translation>此資料夾及其子資料夾中沒有照片。</translation>
    </message>
    <message>
        <source>There are no photographs in this folder. Add --recursive for those in the folders inside it.</source>
        <translation>此資料夾中沒有照片。如要包括子資料夾中的照片，請加上 --recursive。</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; already exists.</source>
        <translation>已略過：其結果檔案「%1」已經存在。</translation>
    </message>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>沒有副檔名，因此結果儲存為 TIFF。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>無法寫入「%1」格式，因此結果儲存為 TIFF。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder for the results.</source>
        <translation>其結果檔案「%1」與照片「%2」是同一個檔案。請將其中一個移到別處，或為結果選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder with --output.</source>
        <translation>其結果檔案「%1」與照片「%2」是同一個檔案。請將其中一個移到別處，或用 --output 指定其他資料夾。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs, or give their results different folders.</source>
        <translation>其結果檔案「%1」會與「%2」的結果同名。請重新命名其中一張照片，或為兩者的結果指定不同的資料夾。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>結果檔案的位置「%1」上有一個同名資料夾。請將該資料夾移到別處。</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; is newer than the photograph.</source>
        <translation>已略過：其結果檔案「%1」比照片更新。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder for the results.</source>
        <translation>其結果檔案「%1」受寫入保護，或不是一般檔案。請將它移到別處，或為結果選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder with --output.</source>
        <translation>其結果檔案「%1」受寫入保護，或不是一般檔案。請將它移到別處，或用 --output 指定其他資料夾。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one for the results.</source>
        <translation>無法寫入結果：「%1」不是資料夾。請為結果選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one with --output.</source>
        <translation>無法寫入結果：「%1」不是資料夾。請用 --output 指定其他資料夾。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one for the results.</source>
        <translation>無法寫入結果：資料夾「%1」是唯讀的。請為結果選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one with --output.</source>
        <translation>無法寫入結果：資料夾「%1」是唯讀的。請用 --output 指定其他資料夾。</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>結果檔案的名稱會過長。請為照片取一個較短的名稱。</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>已停止，未寫入結果。</translation>
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
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>去除霧霾期間，照片被更改、移動或刪除。請將其放回原處，然後重新開始。</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>請關閉其他程式，然後重試。</translation>
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
        <source>The file also holds a gain map or further pictures, which don&apos;t fit the result and are left out.</source>
        <translation>檔案中還含有增益圖或其他影像，它們與結果不符，因此不予保留。</translation>
    </message>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>結果已儲存，但無法將照片的 XMP 複製到結果中：%1。</translation>
    </message>
    <message>
        <source>The result was written, but could not be given the photograph&apos;s time of modification: %1.</source>
        <translation>結果已寫入，但無法為其設定照片的修改時間：%1。</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>此照片約需 %1 記憶體，而可用記憶體為 %2。請關閉其他程式，或縮小照片。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Did you mean --%1?</source>
        <translation>您是否想輸入 --%1？</translation>
    </message>
    <message>
        <source>Write &quot;./%1&quot; for the photograph of this name.</source>
        <translation>如要指定這個名稱的照片，請寫「./%1」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be followed by one of %2, not &quot;%3&quot;.</source>
        <translation>「%1」後面需要 %2 其中之一，而不是「%3」。</translation>
    </message>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength 需要 0 到 100 之間的整數或 auto，而不是「%1」。</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs 必須是 1 到 %1 之間的整數，不能是「%2」。</translation>
    </message>
    <message>
        <source>--quality must be a whole number from 1 to 100, not &quot;%1&quot;.</source>
        <translation>--quality 需要 1 到 100 之間的整數，而不是「%1」。</translation>
    </message>
    <message>
        <source>--compression must be none, deflate or lzw, not &quot;%1&quot;.</source>
        <translation>--compression 需要 none、deflate 或 lzw，而不是「%1」。</translation>
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
        <source>--output must be the name of a folder or file, in UTF-8.</source>
        <translation>--output 後面必須指定 UTF-8 資料夾名稱或檔案名稱。</translation>
    </message>
    <message>
        <source>--tag is a part of a name: it must not contain a slash, and must be in UTF-8.</source>
        <translation>--tag 是名稱的一部分：不能含有斜線，且必須為 UTF-8。</translation>
    </message>
    <message>
        <source>Of --skip-existing, --newer and --overwrite, only one can be used at a time.</source>
        <translation>--skip-existing、--newer 和 --overwrite 一次只能使用一個。</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default 需要 0 到 100 之間的整數、auto 或 none，而不是「%1」。</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default 只儲存預設值：請去掉照片以及用於照片的選項。</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with %2, which asks for it on the screen.</source>
        <translation>--%1 不能與 %2 一起使用，請在畫面上設定。</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>請指定要去除薄霧的照片。</translation>
    </message>
    <message>
        <source>Also read here: %1</source>
        <translation>此處還可讀取：%1</translation>
    </message>
    <message>
        <source>Not read here, for want of a decoder: %1</source>
        <translation>因缺少解碼器，此處無法讀取：%1</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>請參閱 veilaway --help。</translation>
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
        <source>The window can&apos;t be shown: %1. Start it in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>無法顯示視窗：%1。請在桌面工作階段中啟動，或從另一台電腦以 ssh -X 啟動。不需要視窗時，可用 veilaway 照片... 完成處理。</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Recent sessions</source>
        <translation>最近的工作階段</translation>
    </message>
    <message>
        <source>Drop photographs or a folder here</source>
        <translation>將照片或資料夾拖放到此處</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>新增照片(&amp;A)...</translation>
    </message>
    <message>
        <source>Add a &amp;folder...</source>
        <translation>新增資料夾(&amp;F)...</translation>
    </message>
</context>
<context>
    <name>FilmstripDelegate</name>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>FilmstripView</name>
    <message>
        <source>Photographs</source>
        <translation>照片</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>色階分佈圖</translation>
    </message>
    <message>
        <source>The result; dashed: the photograph as it was</source>
        <translation>結果；虛線為原來的照片</translation>
    </message>
    <message>
        <source>Black %1 %, white %2 %</source>
        <translation>黑 %1%，白 %2%</translation>
    </message>
    <message>
        <source>black %1 %</source>
        <translation>黑 %1%</translation>
    </message>
    <message>
        <source>white %1 %</source>
        <translation>白 %1%</translation>
    </message>
</context>
<context>
    <name>KeySheet</name>
    <message>
        <source>Keys</source>
        <translation>快速鍵</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>訊息</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>關閉訊息</translation>
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
    <name>OptionTable</name>
    <message>
        <source>veilaway takes the haze out of photographs.</source>
        <translation>veilaway 用於去除照片中的薄霧。</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>用法：</translation>
    </message>
    <message>
        <source>PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for such a list on standard input.</source>
        <translation>PHOTO 可以是一張照片、一個含有照片的資料夾、@FILE（逐行列出照片的檔案），或 -（從標準輸入讀取這樣的清單）。</translation>
    </message>
    <message>
        <source>Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.</source>
        <translation>每張照片的結果都寫入其所在的資料夾，名稱為照片名稱加上標記：hills.jpg 變為 hills_去除糢糊.jpg。照片本身絕不會更動。標記隨語言而變，例如 --language de 時為 _entnebelt。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>選項：</translation>
    </message>
    <message>
        <source>Everything that follows is a photograph, even if it begins with a dash.</source>
        <translation>其後的內容都是照片，即使以連字號開頭。</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>格式：</translation>
    </message>
    <message>
        <source>Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.</source>
        <translation>讀取和寫入：JPEG（jpg、jpeg）、PNG、TIFF（tif、tiff）、Radiance（hdr、hdri）、OpenEXR（exr）和 PSD。結果沿用照片的格式、位元深度（8 位元、16 位元或浮點）、色彩描述檔、EXIF、IPTC 和 XMP。EXIF 方向保持不變，因此結果的顯示方向與照片相同。</translation>
    </message>
    <message>
        <source>Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others), whose result is a 16-bit TIFF, and, where --version names them, HEIC (heic, heif, hif), AVIF, WebP and JPEG XL (jxl), whose result is a TIFF of their depth. Photographs with any other suffix, or none, become a TIFF too.</source>
        <translation>僅讀取：相機 RAW（dng、cr2、nef、arw、raf、orf、rw2 等），結果為 16 位元 TIFF；以及 --version 中列出時的 HEIC（heic、heif、hif）、AVIF、WebP 和 JPEG XL（jxl），結果為相同位元深度的 TIFF。副檔名為其他或沒有副檔名的照片，結果也是 TIFF。</translation>
    </message>
    <message>
        <source>XMP sidecar files are not read and stay where they are.</source>
        <translation>XMP 附屬檔案留在原處，不會讀取。</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>結束代碼：</translation>
    </message>
    <message>
        <source>All photographs are done, skipped as requested, or came back unchanged (a message says why).</source>
        <translation>所有照片皆已完成、依要求略過，或保持原樣（並說明原因）。</translation>
    </message>
    <message>
        <source>Some are not: standard error says which, why, and what helps. Or standard output could not be written.</source>
        <translation>部分照片未完成：標準錯誤輸出會說明是哪些照片、原因以及解決辦法。或者無法寫入標準輸出。</translation>
    </message>
    <message>
        <source>The command line or the settings file is wrong; nothing was begun.</source>
        <translation>命令列或設定檔有誤；未開始任何處理。</translation>
    </message>
    <message>
        <source>Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.</source>
        <translation>按 Ctrl-C 時程式由該訊號結束（在 shell 中為 130），且不會留下不完整的結果。</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>範例：</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>無法開啟檔案。請檢查檔案是否存在，以及您是否有權讀取。</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>這是影片。只能從照片中去除薄霧；請將其中的一格畫面儲存為 JPEG、PNG 或 TIFF。</translation>
    </message>
    <message>
        <source>It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>這是動畫。只能從照片中去除薄霧；請將其中的一格儲存為 JPEG、PNG 或 TIFF。</translation>
    </message>
    <message>
        <source>This installation can&apos;t decode its format; veilaway --version says which formats it can. Convert the photograph to JPEG, PNG or TIFF.</source>
        <translation>此安裝無法解碼該格式；可用 veilaway --version 查看支援的格式。請將照片轉換為 JPEG、PNG 或 TIFF。</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>這不是已知格式的影像，或其實際格式與副檔名不符。可以讀取 %1 和相機 RAW；請將副檔名改為與實際格式一致，或轉換該檔案。</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>檔案不完整或已損毀。請從相機或備份重新複製。</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs and try again.</source>
        <translation>記憶體不足，無法處理此照片。請關閉其他程式，然後重試。</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>記憶體不足，無法處理此照片。請關閉其他程式，或一次只處理一張照片（--jobs 1）。</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs and try again.</source>
        <translation>記憶體不足，無法處理此相機 RAW 檔案。請關閉其他程式，然後重試。</translation>
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
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>無法讀取這種像素格式。請另存為 8 位元或 16 位元 RGB，然後再試一次。</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>空白名稱不代表任何照片。</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>其名稱或資料夾名稱含有非 UTF-8 字元。請重新命名。</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be opened. Give yourself the permission to open it.</source>
        <translation>無法開啟其所在資料夾。請為自己授予開啟權限。</translation>
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
</context>
<context>
    <name>PhotoPage</name>
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
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>清單中其他照片的 %n 個結果，例如「%1」。</numerusform>
        </translation>
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
    <name>PhotoStore</name>
    <message>
        <source>There is not enough memory for it. Close other programs, or scale the photograph down.</source>
        <translation>記憶體不足，無法處理此照片。請關閉其他程式，或縮小照片。</translation>
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
    <name>PhotographList</name>
    <message>
        <source>The list &quot;%1&quot; can&apos;t be read: %2. Check its name, or write ./@... for a photograph whose name begins with @.</source>
        <translation>無法讀取清單「%1」：%2。請檢查名稱；如果照片名稱以 @ 開頭，請寫成 ./@...。</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.</source>
        <translation>清單「%1」含有空位元組。如果名稱以空位元組結尾，請加上 --null (-0)；否則請將它另存為 UTF-8 文字。</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds no null bytes. Leave out --null (-0) if it has one name per line.</source>
        <translation>清單「%1」不含空位元組。如果每行一個名稱，請去掉 --null (-0)。</translation>
    </message>
</context>
<context>
    <name>PictureRenderer</name>
    <message>
        <source>There is not enough memory for this picture. Close other programs.</source>
        <translation>記憶體不足，無法顯示此影像。請關閉其他程式。</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Photograph</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Hold: the photograph before</source>
        <translation>按住：顯示處理前的照片</translation>
    </message>
    <message>
        <source>Hold: the haze map; Alt does the same</source>
        <translation>按住：顯示薄霧分佈圖；Alt 鍵作用相同</translation>
    </message>
    <message>
        <source>Move over the photograph</source>
        <translation>在照片上移動</translation>
    </message>
    <message>
        <source>Move the line between before and after</source>
        <translation>移動處理前與處理後的分界線</translation>
    </message>
    <message>
        <source>Before, zoom %1 %</source>
        <translation>處理前，縮放 %1%</translation>
    </message>
    <message>
        <source>Haze map, zoom %1 %</source>
        <translation>薄霧分佈圖，縮放 %1%</translation>
    </message>
    <message>
        <source>After %1 %, zoom %2 %</source>
        <translation>處理後 %1%，縮放 %2%</translation>
    </message>
    <message>
        <source>Before and after %1 %, zoom %2 %</source>
        <translation>處理前與處理後 %1%，縮放 %2%</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>薄霧圖</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>處理前</translation>
    </message>
    <message>
        <source>After %1 %</source>
        <translation>處理後 %1%</translation>
    </message>
    <message>
        <source>Estimating the haze</source>
        <translation>正在估算薄霧</translation>
    </message>
    <message>
        <source>Reading the photograph</source>
        <translation>正在讀取照片</translation>
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
    <name>PrivateRun</name>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder for the results.</source>
        <translation>無法在資料夾「%1」中建立檔案：%2。請騰出空間，或為結果選擇其他資料夾。</translation>
    </message>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder with --output.</source>
        <translation>無法在資料夾「%1」中建立檔案：%2。請騰出空間，或用 --output 指定其他資料夾。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2.</source>
        <translation>無法寫入「%1」：%2。</translation>
    </message>
    <message>
        <source>A link to the photograph can&apos;t be created, neither in the folder of its result nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>在結果所在的資料夾和「%1」中都無法建立照片的連結。請在那裡騰出空間，並確認您有權寫入。</translation>
    </message>
    <message>
        <source>Its %1 bits per channel don&apos;t fit into a file of this format. Choose a name that ends in .tif, .psd or, for up to 16 bits, .png.</source>
        <translation>每色版 %1 位元的資料無法存入此格式的檔案。請選擇以 .tif、.psd 或（不超過 16 位元時）.png 結尾的名稱。</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>外掛程式寫入的是「%1」，而不是「%2」</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分鐘</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小時 %2 分鐘</translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>無法寫入標準輸出：%1。請騰出空間，或將其輸出到別處。</translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %，%2 秒</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1：%2（%3）</translation>
    </message>
    <message>
        <source>automatic strength</source>
        <translation>自動強度</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1: %2 (%3 x %4 pixels, %5 of memory, %6)</source>
        <translation>%1：%2（%3 x %4 像素，記憶體 %5，%6）</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>將處理 %n 張照片。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n 張照片已完成。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n 張保持原樣。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>%n 張已略過。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>%n 張失敗。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>%n 張未開始處理。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>，剩餘 %1</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>正在儲存：%1</translation>
    </message>
    <message>
        <source>removing haze: %1</source>
        <translation>正在去除薄霧：%1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>正在讀取：%1</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;result</source>
        <translation>開啟結果(&amp;R)</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>開啟資料夾(&amp;F)</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Show the result in the program that opens such pictures</source>
        <translation>用開啟此類影像的程式顯示結果</translation>
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
        <source>Start &amp;over</source>
        <translation>重新開始(&amp;O)</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>選擇其他照片</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>所有照片皆已完成。</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>共 %2 張照片，%1 張已完成。</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>正在停止；正在完成目前儲存的檔案。再按一次 Ctrl-C 可立即結束。</translation>
    </message>
    <message>
        <source>Remove haze</source>
        <translation>去除薄霧</translation>
    </message>
    <message>
        <source>There is no desktop that shows notifications.</source>
        <translation>沒有可顯示通知的桌面。</translation>
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
        <source>The list names no photographs: there is nothing to do.</source>
        <translation>清單中沒有照片：無需處理。</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists and is not a folder. Name another one.</source>
        <translation>--output：「%1」已經存在，且不是資料夾。請指定其他名稱。</translation>
    </message>
    <message>
        <source>--output: results can&apos;t be written as &quot;%1&quot;. Choose a name that ends in one of %2.</source>
        <translation>--output：結果無法寫入為「%1」。請選擇以 %2 其中之一結尾的名稱。</translation>
    </message>
    <message>
        <source>--output names the file &quot;%1&quot;, but there are %2 photographs. Name a folder, such as &quot;%3&quot;.</source>
        <translation>--output 指定的是檔案「%1」，但照片有 %2 張。請指定資料夾，例如「%3」。</translation>
    </message>
    <message>
        <source>--tag is for results that get their names from their photographs: leave it out, or name a folder as --output.</source>
        <translation>--tag 用於依照片命名的結果：請去掉它，或將 --output 指定為資料夾。</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>已略過 %n 個檔案，它們是其他照片的結果，例如「%1」。</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>未指定 --strength，也沒有儲存的預設值：使用 %1。</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>未指定 --strength：採用您儲存的預設值，即自動強度。</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>未指定 --strength：使用您儲存的預設值 %1。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>設定檔「%1」與某個結果檔案同名。請另取一個名稱。</translation>
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
        <source>&amp;Replace</source>
        <translation>取代(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>保留(&amp;K)</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>照片</translation>
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
    <message>
        <source>Photographs that are done</source>
        <translation>已完成的照片</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>每張照片的結果都寫入其所在的資料夾。</translation>
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
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>正在停止。正在儲存的結果會先儲存完畢。</translation>
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
        <source>Its result already existed and was kept.</source>
        <translation>其結果已經存在，已予保留。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>未改變</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>已保留</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
</context>
<context>
    <name>SaveBar</name>
    <message>
        <source>less than a minute left</source>
        <translation>剩餘不到 1 分鐘</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>剩餘約 %n 分鐘</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>剩餘約 %n 小時</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>正在儲存</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>已儲存 %1 / %2</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>已暫停：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>已儲存 %n 張照片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>%n 張保留原樣</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n 張失敗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>%n 張已停止</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveOptionsDialog</name>
    <message>
        <source>In this &amp;folder:</source>
        <translation>儲存到此資料夾(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>選擇(&amp;C)...</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>JPEG 品質(&amp;Q)：</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>儲存選項</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Otherwise each result is saved beside its photograph</source>
        <translation>否則每個結果都儲存在其照片所在的資料夾</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>結果資料夾</translation>
    </message>
    <message>
        <source>&amp;Tag behind the name:</source>
        <translation>名稱後的標記(&amp;T)：</translation>
    </message>
    <message>
        <source>Otherwise each JPEG keeps the quality of its photograph</source>
        <translation>否則每個 JPEG 沿用其照片的品質</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG 品質</translation>
    </message>
    <message>
        <source>If a result exists already</source>
        <translation>如果結果已經存在</translation>
    </message>
    <message>
        <source>&amp;Replace it if its strength has changed</source>
        <translation>強度有變化時取代(&amp;R)</translation>
    </message>
    <message>
        <source>Replace it in &amp;any case</source>
        <translation>一律取代(&amp;A)</translation>
    </message>
    <message>
        <source>Keep &amp;both: the new one gets a number</source>
        <translation>兩者都保留：為新結果編號(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Keep it and save nothing</source>
        <translation>保留原結果，不儲存(&amp;K)</translation>
    </message>
    <message>
        <source>A tag can&apos;t contain &quot;/&quot;.</source>
        <translation>標記中不能含有「/」。</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;. Choose one that exists.</source>
        <translation>沒有資料夾「%1」。請選擇已有的資料夾。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Choose another one.</source>
        <translation>資料夾「%1」是唯讀的。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>%1 becomes %2.</source>
        <translation>%1 變為 %2。</translation>
    </message>
</context>
<context>
    <name>SaveQueue</name>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>其結果已經存在，已予保留。</translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message>
        <source>edited</source>
        <translation>已編輯</translation>
    </message>
    <message>
        <source>waiting to be saved</source>
        <translation>等待儲存</translation>
    </message>
    <message>
        <source>being saved</source>
        <translation>正在儲存</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>已儲存</translation>
    </message>
    <message>
        <source>changed since it was saved</source>
        <translation>儲存後有變更</translation>
    </message>
    <message>
        <source>existing result kept</source>
        <translation>已保留原有結果</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Strength %1 %, automatic</source>
        <translation>強度 %1%，自動</translation>
    </message>
    <message>
        <source>Strength %1 %</source>
        <translation>強度 %1%</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>相機 RAW</translation>
    </message>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>新增 %n 張照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Change strength</source>
        <translation>變更強度</translation>
    </message>
    <message>
        <source>Automatic strength</source>
        <translation>自動強度</translation>
    </message>
    <message>
        <source>Reset strength</source>
        <translation>重設強度</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>移除 %n 張照片</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The session can&apos;t be kept in &quot;%1&quot;: %2. Make room, or give yourself permission to write there.</source>
        <translation>無法將工作階段儲存到「%1」：%2。請騰出空間，或為自己授予在該處寫入的權限。</translation>
    </message>
    <message>
        <source>Another window works on the settings file &quot;%1&quot;. Close it there first.</source>
        <translation>另一個視窗正在使用設定檔「%1」。請先在那裡將其關閉。</translation>
    </message>
    <message>
        <source>The session in &quot;%1&quot; can&apos;t be read: %2. Open its photographs or a settings file instead.</source>
        <translation>無法讀取「%1」中的工作階段：%2。請改為開啟其照片或設定檔。</translation>
    </message>
    <message>
        <source>Another window works on this session. Close it there first.</source>
        <translation>另一個視窗正在使用此工作階段。請先在那裡將其關閉。</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Check its name and folder.</source>
        <translation>沒有設定檔「%1」。請檢查名稱和資料夾。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photographs. Give the settings file another name.</source>
        <translation>「%1」是其中一張照片。請為設定檔另取一個名稱。</translation>
    </message>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>%n 張照片的強度將會遺失。</numerusform>
        </translation>
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
    <name>StrengthPanel</name>
    <message>
        <source>&amp;Strength</source>
        <translation>強度(&amp;S)</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強度</translation>
    </message>
    <message>
        <source>How much of the haze is removed</source>
        <translation>去除薄霧的程度</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>強度（百分比）</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>Add photographs...</source>
        <translation>新增照片...</translation>
    </message>
    <message>
        <source>Add photographs to the series</source>
        <translation>將照片加入系列</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>新增資料夾...</translation>
    </message>
    <message>
        <source>Add the photographs of a folder to the series</source>
        <translation>將資料夾中的照片加入系列</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>重新開始</translation>
    </message>
    <message>
        <source>Begin an empty series; this one stays among the recent sessions</source>
        <translation>開始一個空的系列；目前的系列保留在最近的工作階段中</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>開啟工作階段(&amp;O)...</translation>
    </message>
    <message>
        <source>Open photographs and strengths that were saved as a session</source>
        <translation>開啟儲存為工作階段的照片和強度</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>儲存工作階段</translation>
    </message>
    <message>
        <source>Save the list of photographs and their strengths</source>
        <translation>儲存照片清單及每張照片的強度</translation>
    </message>
    <message>
        <source>Save the session as...</source>
        <translation>工作階段另存為...</translation>
    </message>
    <message>
        <source>Save the session under another name</source>
        <translation>以其他名稱儲存工作階段</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>上一張照片</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>下一張照片</translation>
    </message>
    <message>
        <source>First photograph</source>
        <translation>第一張照片</translation>
    </message>
    <message>
        <source>Last photograph</source>
        <translation>最後一張照片</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Select all photographs</source>
        <translation>選取所有照片</translation>
    </message>
    <message>
        <source>Remove from the series</source>
        <translation>從系列中移除</translation>
    </message>
    <message>
        <source>Remove the selected photographs from the series; the files stay</source>
        <translation>從系列中移除選取的照片；檔案不受影響</translation>
    </message>
    <message>
        <source>Stronger</source>
        <translation>增強</translation>
    </message>
    <message>
        <source>Raise the strength by 1 per cent</source>
        <translation>將強度提高百分之 1</translation>
    </message>
    <message>
        <source>Weaker</source>
        <translation>減弱</translation>
    </message>
    <message>
        <source>Lower the strength by 1 per cent</source>
        <translation>將強度降低百分之 1</translation>
    </message>
    <message>
        <source>Stronger by 10</source>
        <translation>增強 10</translation>
    </message>
    <message>
        <source>Raise the strength by 10 per cent</source>
        <translation>將強度提高百分之 10</translation>
    </message>
    <message>
        <source>Weaker by 10</source>
        <translation>減弱 10</translation>
    </message>
    <message>
        <source>Lower the strength by 10 per cent</source>
        <translation>將強度降低百分之 10</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Give each selected photograph the strength that suits it</source>
        <translation>為每張選取的照片設定適合的強度</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Go back to the strength at the start</source>
        <translation>恢復最初的強度</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>復原上一次變更</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Make the change again that was undone</source>
        <translation>重做已復原的變更</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected</source>
        <translation>套用到選取的照片(&amp;Y)</translation>
    </message>
    <message>
        <source>Use this strength for all selected photographs</source>
        <translation>對所有選取的照片使用此強度</translation>
    </message>
    <message>
        <source>App&amp;ly to all</source>
        <translation>套用到全部(&amp;L)</translation>
    </message>
    <message>
        <source>Use this strength for all photographs of the series</source>
        <translation>對系列中的所有照片使用此強度</translation>
    </message>
    <message>
        <source>Use as &amp;default</source>
        <translation>設為預設值(&amp;D)</translation>
    </message>
    <message>
        <source>Start new photographs at this strength from now on</source>
        <translation>從現在起，新照片以此強度開始</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Before and after in one picture, with a line to drag</source>
        <translation>在同一畫面中顯示處理前和處理後，可拖曳分界線</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>並排</translation>
    </message>
    <message>
        <source>Before and after side by side</source>
        <translation>並排顯示處理前和處理後</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Only the result</source>
        <translation>僅顯示結果</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>處理前</translation>
    </message>
    <message>
        <source>Hold, or hold Space: the photograph as it was</source>
        <translation>按住此處或空白鍵：顯示原來的照片</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>薄霧圖</translation>
    </message>
    <message>
        <source>Hold, or hold M: where haze was found</source>
        <translation>按住此處或 M 鍵：顯示偵測到薄霧的位置</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>過曝/死黑</translation>
    </message>
    <message>
        <source>Mark pixels that became black or white</source>
        <translation>標示變為純黑或純白的像素</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>符合</translation>
    </message>
    <message>
        <source>Show the whole photograph</source>
        <translation>顯示整張照片</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Show each pixel as it is, where the pointer is</source>
        <translation>在指標位置以實際像素顯示</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200%</translation>
    </message>
    <message>
        <source>Show pixels at twice their size</source>
        <translation>以兩倍大小顯示像素</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400%</translation>
    </message>
    <message>
        <source>Show pixels at four times their size</source>
        <translation>以四倍大小顯示像素</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Save this one</source>
        <translation>儲存這張</translation>
    </message>
    <message>
        <source>Save the result of this photograph</source>
        <translation>儲存這張照片的結果</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>全部儲存</translation>
    </message>
    <message>
        <source>Save the results of the whole series</source>
        <translation>儲存整個系列的結果</translation>
    </message>
    <message>
        <source>Save op&amp;tions...</source>
        <translation>儲存選項(&amp;I)...</translation>
    </message>
    <message>
        <source>Folder, tag and quality of the results, and what happens to existing ones</source>
        <translation>結果的資料夾、標記和品質，以及如何處理已有的結果</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暫停(&amp;P)</translation>
    </message>
    <message>
        <source>Finish the photographs in work and begin no other until you resume</source>
        <translation>完成正在處理的照片，繼續之前不再開始其他照片</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop saving; results that are complete stay</source>
        <translation>停止儲存；已完成的結果會保留</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Try again those photographs that failed</source>
        <translation>重試失敗的照片</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全螢幕</translation>
    </message>
    <message>
        <source>Use the whole screen, or go back to the window</source>
        <translation>使用整個螢幕，或返回視窗</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>快速鍵</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>顯示所有快速鍵</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>關閉視窗</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
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
        <source>Set how much haze to remove from each photograph. Hold Alt to see where the haze is.</source>
        <translation>請設定每張照片去除薄霧的程度。按住 Alt 鍵可查看薄霧所在的位置。</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>強度（百分比）</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>上一張照片</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>下一張照片</translation>
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
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1，%n 張照片，%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Drag the line to compare. Hold Space: before. Left, Right: photograph. Up, Down: strength.</source>
        <translation>拖曳分界線：比較。按住空白鍵：處理前。左、右鍵：照片。上、下鍵：強度。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>工作階段</translation>
    </message>
    <message>
        <source>Open, save or begin a session: photographs with their strengths</source>
        <translation>開啟、儲存或新建工作階段：照片及每張照片的強度</translation>
    </message>
    <message>
        <source>&amp;Recent sessions</source>
        <translation>最近的工作階段(&amp;R)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 x %2 px, %3 bits</source>
        <translation>%1 x %2 像素，%3 位元</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>結果：%1</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected (%1)</source>
        <translation>套用到選取的照片（%1）(&amp;Y)</translation>
    </message>
    <message>
        <source>App&amp;ly to all (%1)</source>
        <translation>套用到全部（%1）(&amp;L)</translation>
    </message>
    <message>
        <source>Save all %1</source>
        <translation>儲存全部 %1 張</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>繼續(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暫停(&amp;P)</translation>
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
            <numerusform>已略過 %n 個結果檔案。</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photographs in the folder &quot;%1&quot;.</source>
        <translation>資料夾「%1」中沒有照片。</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>此系列還有 %n 張照片尚未儲存。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Save them now</source>
        <translation>立即儲存(&amp;N)</translation>
    </message>
    <message>
        <source>The series is as you left it.</source>
        <translation>系列與您上次離開時相同。</translation>
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
        <source>Add a folder</source>
        <translation>新增資料夾</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>開啟工作階段</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>設定檔 (*.xml)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>儲存工作階段</translation>
    </message>
    <message>
        <source>New photographs start at their automatic strength.</source>
        <translation>新照片以各自的自動強度開始。</translation>
    </message>
    <message>
        <source>New photographs start at %1 %.</source>
        <translation>新照片以 %1% 的強度開始。</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>%n 張照片未能儲存。</numerusform>
        </translation>
    </message>
    <message>
        <source>Try a&amp;gain</source>
        <translation>重試(&amp;G)</translation>
    </message>
    <message>
        <source>Saving has ended</source>
        <translation>儲存已結束</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>仍要關閉(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>不關閉(&amp;T)</translation>
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
