<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>其结果文件“%1”已经存在。如要替换，请加上 --overwrite。</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>无法读取文件夹。请为自己授予读取权限。</translation>
    </message>
    <message>
        <source>There are no photographs in this folder or those inside it.</source>
        <translation>此文件夹及其子文件夹中没有照片。</translation>
    </message>
    <message>
        <source>There are no photographs in this folder. Add --recursive for those in the folders inside it.</source>
        <translation>此文件夹中没有照片。如要包括子文件夹中的照片，请加上 --recursive。</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; already exists.</source>
        <translation>已跳过：其结果文件“%1”已经存在。</translation>
    </message>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>没有扩展名，因此结果保存为 TIFF。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>无法写入“%1”格式，因此结果保存为 TIFF。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder for the results.</source>
        <translation>其结果文件“%1”与照片“%2”是同一个文件。请将两者之一移到别处，或为结果选择其他文件夹。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder with --output.</source>
        <translation>其结果文件“%1”与照片“%2”是同一个文件。请将两者之一移到别处，或用 --output 指定其他文件夹。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs, or give their results different folders.</source>
        <translation>其结果文件“%1”会与“%2”的结果同名。请重命名其中一张照片，或为两者的结果指定不同的文件夹。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>结果文件的位置“%1”上有一个同名文件夹。请将该文件夹移到别处。</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; is newer than the photograph.</source>
        <translation>已跳过：其结果文件“%1”比照片更新。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder for the results.</source>
        <translation>其结果文件“%1”受写保护，或不是普通文件。请将它移到别处，或为结果选择其他文件夹。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder with --output.</source>
        <translation>其结果文件“%1”受写保护，或不是普通文件。请将它移到别处，或用 --output 指定其他文件夹。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one for the results.</source>
        <translation>无法写入结果：“%1”不是文件夹。请为结果选择其他文件夹。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one with --output.</source>
        <translation>无法写入结果：“%1”不是文件夹。请用 --output 指定其他文件夹。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one for the results.</source>
        <translation>无法写入结果：文件夹“%1”是只读的。请为结果选择其他文件夹。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one with --output.</source>
        <translation>无法写入结果：文件夹“%1”是只读的。请用 --output 指定其他文件夹。</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>结果文件的名称会过长。请为照片取一个较短的名称。</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>已停止，未写入结果。</translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation>插件在以下位置出错：%1。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>去除雾霾期间，照片被更改、移动或删除。请将其放回原处，然后重新开始。</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>请关闭其他程序，然后重试。</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>请关闭其他程序，或一次只处理一张照片（--jobs 1）。</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>请在文件夹“%1”中腾出空间，并确认您有权在其中写入。</translation>
    </message>
    <message>
        <source>The file also holds a gain map or further pictures, which don&apos;t fit the result and are left out.</source>
        <translation>文件中还含有增益图或其他图像，它们与结果不符，因此不予保留。</translation>
    </message>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>结果已保存，但无法将照片的 XMP 复制到结果中：%1。</translation>
    </message>
    <message>
        <source>The result was written, but could not be given the photograph&apos;s time of modification: %1.</source>
        <translation>结果已写入，但无法为其设置照片的修改时间：%1。</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>此照片约需 %1 内存，而可用内存为 %2。请关闭其他程序，或缩小照片。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Did you mean --%1?</source>
        <translation>您是否想输入 --%1？</translation>
    </message>
    <message>
        <source>Write &quot;./%1&quot; for the photograph of this name.</source>
        <translation>如要指定这个名称的照片，请写“./%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be followed by one of %2, not &quot;%3&quot;.</source>
        <translation>“%1”后面需要 %2 之一，而不是“%3”。</translation>
    </message>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength 需要 0 到 100 之间的整数或 auto，而不是“%1”。</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs 必须是 1 到 %1 之间的整数，不能是“%2”。</translation>
    </message>
    <message>
        <source>--quality must be a whole number from 1 to 100, not &quot;%1&quot;.</source>
        <translation>--quality 需要 1 到 100 之间的整数，而不是“%1”。</translation>
    </message>
    <message>
        <source>--compression must be none, deflate or lzw, not &quot;%1&quot;.</source>
        <translation>--compression 需要 none、deflate 或 lzw，而不是“%1”。</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>--language 支持 %1，不支持“%2”。</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>--settings 后面必须给出 UTF-8 文件名。</translation>
    </message>
    <message>
        <source>--output must be the name of a folder or file, in UTF-8.</source>
        <translation>--output 后面必须给出 UTF-8 文件夹名或文件名。</translation>
    </message>
    <message>
        <source>--tag is a part of a name: it must not contain a slash, and must be in UTF-8.</source>
        <translation>--tag 是名称的一部分：不能含有斜杠，且必须为 UTF-8。</translation>
    </message>
    <message>
        <source>Of --skip-existing, --newer and --overwrite, only one can be used at a time.</source>
        <translation>--skip-existing、--newer 和 --overwrite 一次只能使用一个。</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default 需要 0 到 100 之间的整数、auto 或 none，而不是“%1”。</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default 只保存默认值：请去掉照片以及用于照片的选项。</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with %2, which asks for it on the screen.</source>
        <translation>--%1 不能与 %2 一起使用，请在屏幕上设置。</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>请指定要去除薄雾的照片。</translation>
    </message>
    <message>
        <source>Also read here: %1</source>
        <translation>此处还可读取：%1</translation>
    </message>
    <message>
        <source>Not read here, for want of a decoder: %1</source>
        <translation>因缺少解码器，此处无法读取：%1</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>请参阅 veilaway --help。</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>无法将默认值保存到“%1”。请腾出空间，或为自己授予写入权限。</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start it in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>无法显示窗口：%1。请在桌面会话中启动，或从另一台计算机用 ssh -X 启动。不需要窗口时，可用 veilaway 照片... 完成处理。</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Recent sessions</source>
        <translation>最近的会话</translation>
    </message>
    <message>
        <source>Drop photographs or a folder here</source>
        <translation>将照片或文件夹拖放到此处</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>添加照片(&amp;A)...</translation>
    </message>
    <message>
        <source>Add a &amp;folder...</source>
        <translation>添加文件夹(&amp;F)...</translation>
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
        <translation>直方图</translation>
    </message>
    <message>
        <source>The result; dashed: the photograph as it was</source>
        <translation>结果；虚线为原来的照片</translation>
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
        <translation>快捷键</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>关闭消息</translation>
    </message>
</context>
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_离开薄雾</translation>
    </message>
</context>
<context>
    <name>OptionTable</name>
    <message>
        <source>veilaway takes the haze out of photographs.</source>
        <translation>veilaway 用于去除照片中的薄雾。</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>用法：</translation>
    </message>
    <message>
        <source>PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for such a list on standard input.</source>
        <translation>PHOTO 可以是一张照片、一个含有照片的文件夹、@FILE（逐行列出照片的文件），或 -（从标准输入读取这样的列表）。</translation>
    </message>
    <message>
        <source>Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.</source>
        <translation>每张照片的结果都写入其所在的文件夹，名称为照片名加上标记：hills.jpg 变为 hills_离开薄雾.jpg。照片本身绝不会改动。标记随语言而变，例如 --language de 时为 _entnebelt。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Everything that follows is a photograph, even if it begins with a dash.</source>
        <translation>其后的内容都是照片，即使以连字符开头。</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>格式：</translation>
    </message>
    <message>
        <source>Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.</source>
        <translation>读取和写入：JPEG（jpg、jpeg）、PNG、TIFF（tif、tiff）、Radiance（hdr、hdri）、OpenEXR（exr）和 PSD。结果沿用照片的格式、位深度（8 位、16 位或浮点）、颜色配置文件、EXIF、IPTC 和 XMP。EXIF 方向保持不变，因此结果的显示方向与照片相同。</translation>
    </message>
    <message>
        <source>Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others), whose result is a 16-bit TIFF, and, where --version names them, HEIC (heic, heif, hif), AVIF, WebP and JPEG XL (jxl), whose result is a TIFF of their depth. Photographs with any other suffix, or none, become a TIFF too.</source>
        <translation>仅读取：相机 RAW（dng、cr2、nef、arw、raf、orf、rw2 等），结果为 16 位 TIFF；以及 --version 中列出时的 HEIC（heic、heif、hif）、AVIF、WebP 和 JPEG XL（jxl），结果为相同位深度的 TIFF。扩展名为其他或没有扩展名的照片，结果也是 TIFF。</translation>
    </message>
    <message>
        <source>XMP sidecar files are not read and stay where they are.</source>
        <translation>XMP 附属文件留在原处，不会读取。</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>退出代码：</translation>
    </message>
    <message>
        <source>All photographs are done, skipped as requested, or came back unchanged (a message says why).</source>
        <translation>所有照片均已完成、按要求跳过，或保持原样（并说明原因）。</translation>
    </message>
    <message>
        <source>Some are not: standard error says which, why, and what helps. Or standard output could not be written.</source>
        <translation>部分照片未完成：标准错误输出会说明是哪些照片、原因以及解决办法。或者无法写入标准输出。</translation>
    </message>
    <message>
        <source>The command line or the settings file is wrong; nothing was begun.</source>
        <translation>命令行或设置文件有误；未开始任何处理。</translation>
    </message>
    <message>
        <source>Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.</source>
        <translation>按 Ctrl-C 时程序由该信号结束（在 shell 中为 130），且不会留下不完整的结果。</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>示例：</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>无法打开文件。请检查文件是否存在，以及您是否有权读取。</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>这是视频。只能从照片中去除薄雾；请将其中的一帧画面保存为 JPEG、PNG 或 TIFF。</translation>
    </message>
    <message>
        <source>It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>这是动画。只能从照片中去除薄雾；请将其中的一帧保存为 JPEG、PNG 或 TIFF。</translation>
    </message>
    <message>
        <source>This installation can&apos;t decode its format; veilaway --version says which formats it can. Convert the photograph to JPEG, PNG or TIFF.</source>
        <translation>此安装无法解码该格式；可用 veilaway --version 查看支持的格式。请将照片转换为 JPEG、PNG 或 TIFF。</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>这不是已知格式的图像，或者其实际格式与扩展名不符。可以读取 %1 和相机 RAW；请将扩展名改为与实际格式一致，或转换该文件。</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>文件不完整或已损坏。请从相机或备份中重新复制。</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs and try again.</source>
        <translation>内存不足，无法处理此照片。请关闭其他程序，然后重试。</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>内存不足，无法处理此照片。请关闭其他程序，或一次只处理一张照片（--jobs 1）。</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs and try again.</source>
        <translation>内存不足，无法处理此相机 RAW 文件。请关闭其他程序，然后重试。</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>内存不足，无法处理此相机 RAW 文件。请关闭其他程序，或一次只处理一张照片（--jobs 1）。</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>无法解码此相机 RAW 文件：%1。请重新复制，或转换为 DNG 或 TIFF。</translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>无法读取这种像素格式。请另存为 8 位或 16 位 RGB，然后重试。</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>空名称不代表任何照片。</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>其名称或文件夹名称含有非 UTF-8 字符。请重命名。</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be opened. Give yourself the permission to open it.</source>
        <translation>无法打开其所在文件夹。请为自己授予打开权限。</translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>链接指向的文件不存在。请直接指定照片本身。</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>没有这个文件。请检查名称和文件夹。</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>这是一个文件夹。请指定其中的照片，例如“%1”。</translation>
    </message>
    <message>
        <source>This is not a regular file. Copy the photograph into one.</source>
        <translation>这不是普通文件。请将照片复制为普通文件。</translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>无法读取文件。请为自己授予读取权限。</translation>
    </message>
    <message>
        <source>The file is empty. Copy it again from the camera or a backup.</source>
        <translation>文件是空的。请从相机或备份中重新复制。</translation>
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
        <translation>请选择要去除薄雾的照片，或将照片拖放到此处。原照片保持不变，每张照片的结果都写入其所在的文件夹。</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>添加照片(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>打开会话(&amp;O)...</translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation>记录照片及每张照片强度的设置文件</translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation>%1：此文件夹中没有照片。</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>列表中其他照片的 %n 个结果，例如“%1”。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>正在读取 %n 张照片...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>%n 张照片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... 以及另外 %n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>未添加：</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>添加照片</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>照片 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>打开会话</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>设置文件 (*.xml)</translation>
    </message>
</context>
<context>
    <name>PhotoStore</name>
    <message>
        <source>There is not enough memory for it. Close other programs, or scale the photograph down.</source>
        <translation>内存不足，无法处理此照片。请关闭其他程序，或缩小照片。</translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>照片过大：只能为宽度或高度不超过 %1 像素的照片去除薄雾。请缩小照片，或将其裁成几部分。</translation>
    </message>
</context>
<context>
    <name>PhotographList</name>
    <message>
        <source>The list &quot;%1&quot; can&apos;t be read: %2. Check its name, or write ./@... for a photograph whose name begins with @.</source>
        <translation>无法读取列表“%1”：%2。请检查名称；如果照片名以 @ 开头，请写成 ./@...。</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.</source>
        <translation>列表“%1”含有空字节。如果名称以空字节结尾，请加上 --null (-0)；否则请将它另存为 UTF-8 文本。</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds no null bytes. Leave out --null (-0) if it has one name per line.</source>
        <translation>列表“%1”不含空字节。如果每行一个名称，请去掉 --null (-0)。</translation>
    </message>
</context>
<context>
    <name>PictureRenderer</name>
    <message>
        <source>There is not enough memory for this picture. Close other programs.</source>
        <translation>内存不足，无法显示此图像。请关闭其他程序。</translation>
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
        <translation>重试</translation>
    </message>
    <message>
        <source>Hold: the photograph before</source>
        <translation>按住：显示处理前的照片</translation>
    </message>
    <message>
        <source>Hold: the haze map; Alt does the same</source>
        <translation>按住：显示薄雾分布图；Alt 键作用相同</translation>
    </message>
    <message>
        <source>Move over the photograph</source>
        <translation>在照片上移动</translation>
    </message>
    <message>
        <source>Move the line between before and after</source>
        <translation>移动处理前与处理后的分界线</translation>
    </message>
    <message>
        <source>Before, zoom %1 %</source>
        <translation>处理前，缩放 %1%</translation>
    </message>
    <message>
        <source>Haze map, zoom %1 %</source>
        <translation>薄雾分布图，缩放 %1%</translation>
    </message>
    <message>
        <source>After %1 %, zoom %2 %</source>
        <translation>处理后 %1%，缩放 %2%</translation>
    </message>
    <message>
        <source>Before and after %1 %, zoom %2 %</source>
        <translation>处理前与处理后 %1%，缩放 %2%</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>薄雾图</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>处理前</translation>
    </message>
    <message>
        <source>After %1 %</source>
        <translation>处理后 %1%</translation>
    </message>
    <message>
        <source>Estimating the haze</source>
        <translation>正在估算薄雾</translation>
    </message>
    <message>
        <source>Reading the photograph</source>
        <translation>正在读取照片</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>找不到插件“%1”。请构建或安装它，或用 --plugin FILE 指定其位置。</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>”或“</translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>它是另一种类型的插件</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>无法使用插件“%1”：%2。请重新安装，或用 --plugin FILE 指定其他插件。</translation>
    </message>
</context>
<context>
    <name>PrivateRun</name>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder for the results.</source>
        <translation>无法在文件夹“%1”中创建文件：%2。请腾出空间，或为结果选择其他文件夹。</translation>
    </message>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder with --output.</source>
        <translation>无法在文件夹“%1”中创建文件：%2。请腾出空间，或用 --output 指定其他文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>A link to the photograph can&apos;t be created, neither in the folder of its result nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>在结果所在的文件夹和“%1”中都无法创建照片的链接。请在那里腾出空间，并确认您有权写入。</translation>
    </message>
    <message>
        <source>Its %1 bits per channel don&apos;t fit into a file of this format. Choose a name that ends in .tif, .psd or, for up to 16 bits, .png.</source>
        <translation>每通道 %1 位的数据无法存入此格式的文件。请选择以 .tif、.psd 或（不超过 16 位时）.png 结尾的名称。</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>插件写入的是“%1”，而不是“%2”</translation>
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
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小时 %2 分钟</translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>无法写入标准输出：%1。请腾出空间，或将其输出到别处。</translation>
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
        <translation>自动强度</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1: %2 (%3 x %4 pixels, %5 of memory, %6)</source>
        <translation>%1：%2（%3 x %4 像素，内存 %5，%6）</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>将处理 %n 张照片。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n 张照片已完成。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n 张保持原样。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>%n 张已跳过。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>%n 张失败。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>%n 张未开始处理。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>，剩余 %1</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>正在保存：%1</translation>
    </message>
    <message>
        <source>removing haze: %1</source>
        <translation>正在去除薄雾：%1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>正在读取：%1</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;result</source>
        <translation>打开结果(&amp;R)</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>打开文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Show the result in the program that opens such pictures</source>
        <translation>用打开此类图像的程序显示结果</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>保存会话(&amp;S)...</translation>
    </message>
    <message>
        <source>Save the photographs and the strength of each in a settings file</source>
        <translation>将照片及每张照片的强度保存到设置文件中</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>重新开始(&amp;O)</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>选择其他照片</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>所有照片均已完成。</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>共 %2 张照片，%1 张已完成。</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>正在停止；正在完成当前保存的文件。再按一次 Ctrl-C 可立即结束。</translation>
    </message>
    <message>
        <source>Remove haze</source>
        <translation>去除薄雾</translation>
    </message>
    <message>
        <source>There is no desktop that shows notifications.</source>
        <translation>没有可显示通知的桌面。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>设置文件“%1”中没有照片。请指定照片。</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>没有设置文件“%1”。请指定照片以创建该文件。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>无法在该位置写入设置文件“%1”。请指定其他文件夹中的文件。</translation>
    </message>
    <message>
        <source>The list names no photographs: there is nothing to do.</source>
        <translation>列表中没有照片：无需处理。</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists and is not a folder. Name another one.</source>
        <translation>--output：“%1”已经存在，且不是文件夹。请指定其他名称。</translation>
    </message>
    <message>
        <source>--output: results can&apos;t be written as &quot;%1&quot;. Choose a name that ends in one of %2.</source>
        <translation>--output：结果无法写入为“%1”。请选择以 %2 之一结尾的名称。</translation>
    </message>
    <message>
        <source>--output names the file &quot;%1&quot;, but there are %2 photographs. Name a folder, such as &quot;%3&quot;.</source>
        <translation>--output 指定的是文件“%1”，但照片有 %2 张。请指定文件夹，例如“%3”。</translation>
    </message>
    <message>
        <source>--tag is for results that get their names from their photographs: leave it out, or name a folder as --output.</source>
        <translation>--tag 用于按照片命名的结果：请去掉它，或将 --output 指定为文件夹。</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>已略过 %n 个文件，它们是其他照片的结果，例如“%1”。</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>未指定 --strength，也没有保存的默认值：使用 %1。</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>未指定 --strength：采用您保存的默认值，即自动强度。</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>未指定 --strength：使用您保存的默认值 %1。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>设置文件“%1”与某个结果文件同名。请另取一个名称。</translation>
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
        <translation>正在去除薄雾</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
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
        <translation>强度</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Photographs that are done</source>
        <translation>已完成的照片</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>每张照片的结果都写入其所在的文件夹。</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>已有 %n 个先前处理的结果。</numerusform>
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
        <translation>正在停止。正在保存的结果会先保存完毕。</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>正在读取</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>正在保存</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>其结果已经存在，已予保留。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>未改变</translation>
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
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>SaveBar</name>
    <message>
        <source>less than a minute left</source>
        <translation>剩余不到 1 分钟</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>剩余约 %n 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>剩余约 %n 小时</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>正在保存</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>已保存 %1 / %2</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>已暂停：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>已保存 %n 张照片</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>%n 张保留原样</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n 张失败</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>%n 张已停止</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveOptionsDialog</name>
    <message>
        <source>In this &amp;folder:</source>
        <translation>保存到此文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>选择(&amp;C)...</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>JPEG 质量(&amp;Q)：</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>保存选项</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Otherwise each result is saved beside its photograph</source>
        <translation>否则每个结果都保存在其照片所在的文件夹</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>结果文件夹</translation>
    </message>
    <message>
        <source>&amp;Tag behind the name:</source>
        <translation>名称后的标记(&amp;T)：</translation>
    </message>
    <message>
        <source>Otherwise each JPEG keeps the quality of its photograph</source>
        <translation>否则每个 JPEG 沿用其照片的质量</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG 质量</translation>
    </message>
    <message>
        <source>If a result exists already</source>
        <translation>如果结果已经存在</translation>
    </message>
    <message>
        <source>&amp;Replace it if its strength has changed</source>
        <translation>强度有变化时替换(&amp;R)</translation>
    </message>
    <message>
        <source>Replace it in &amp;any case</source>
        <translation>始终替换(&amp;A)</translation>
    </message>
    <message>
        <source>Keep &amp;both: the new one gets a number</source>
        <translation>两者都保留：为新结果编号(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Keep it and save nothing</source>
        <translation>保留原结果，不保存(&amp;K)</translation>
    </message>
    <message>
        <source>A tag can&apos;t contain &quot;/&quot;.</source>
        <translation>标记中不能含有“/”。</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;. Choose one that exists.</source>
        <translation>没有文件夹“%1”。请选择已有的文件夹。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Choose another one.</source>
        <translation>文件夹“%1”是只读的。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>%1 becomes %2.</source>
        <translation>%1 变为 %2。</translation>
    </message>
</context>
<context>
    <name>SaveQueue</name>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>其结果已经存在，已予保留。</translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message>
        <source>edited</source>
        <translation>已编辑</translation>
    </message>
    <message>
        <source>waiting to be saved</source>
        <translation>等待保存</translation>
    </message>
    <message>
        <source>being saved</source>
        <translation>正在保存</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>changed since it was saved</source>
        <translation>保存后有更改</translation>
    </message>
    <message>
        <source>existing result kept</source>
        <translation>已保留原有结果</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Strength %1 %, automatic</source>
        <translation>强度 %1%，自动</translation>
    </message>
    <message>
        <source>Strength %1 %</source>
        <translation>强度 %1%</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>相机 RAW</translation>
    </message>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>添加 %n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Change strength</source>
        <translation>更改强度</translation>
    </message>
    <message>
        <source>Automatic strength</source>
        <translation>自动强度</translation>
    </message>
    <message>
        <source>Reset strength</source>
        <translation>重置强度</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>移除 %n 张照片</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The session can&apos;t be kept in &quot;%1&quot;: %2. Make room, or give yourself permission to write there.</source>
        <translation>无法将会话保存到“%1”：%2。请腾出空间，或为自己授予在该处写入的权限。</translation>
    </message>
    <message>
        <source>Another window works on the settings file &quot;%1&quot;. Close it there first.</source>
        <translation>另一个窗口正在使用设置文件“%1”。请先在那里将其关闭。</translation>
    </message>
    <message>
        <source>The session in &quot;%1&quot; can&apos;t be read: %2. Open its photographs or a settings file instead.</source>
        <translation>无法读取“%1”中的会话：%2。请改为打开其照片或设置文件。</translation>
    </message>
    <message>
        <source>Another window works on this session. Close it there first.</source>
        <translation>另一个窗口正在使用此会话。请先在那里将其关闭。</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Check its name and folder.</source>
        <translation>没有设置文件“%1”。请检查名称和文件夹。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photographs. Give the settings file another name.</source>
        <translation>“%1”是其中一张照片。请为设置文件另取一个名称。</translation>
    </message>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>%n 张照片的强度将会丢失。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>不再保存默认值；未指定 --strength 时为百分之 %1。</translation>
    </message>
    <message>
        <source>From now on, each photograph gets its automatic strength.</source>
        <translation>从现在起，每张照片采用各自的自动强度。</translation>
    </message>
    <message>
        <source>From now on, the default strength is %1 per cent.</source>
        <translation>从现在起，默认强度为百分之 %1。</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation>无法使用设置文件“%1”：%2。请修复该文件，或指定其他文件。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是一个文件夹</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>第 %1 行第 %2 列：%3</translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation>其最外层元素不是 &lt;%1&gt;</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation>%1：有一张照片没有路径</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1：“%2”重复出现</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1：该照片需要 &lt;%2 %3=&quot;...&quot;/&gt;，其值为 0 到 100 之间的整数</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>无法写入设置文件“%1”：%2。请腾出空间，或为自己授予在该处写入的权限。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>设置文件“%1”无法记录照片“%2”：其名称含有控制字符。请重命名。</translation>
    </message>
</context>
<context>
    <name>StrengthPanel</name>
    <message>
        <source>&amp;Strength</source>
        <translation>强度(&amp;S)</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>How much of the haze is removed</source>
        <translation>去除薄雾的程度</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>强度（百分比）</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>Add photographs...</source>
        <translation>添加照片...</translation>
    </message>
    <message>
        <source>Add photographs to the series</source>
        <translation>将照片添加到系列</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>添加文件夹...</translation>
    </message>
    <message>
        <source>Add the photographs of a folder to the series</source>
        <translation>将文件夹中的照片添加到系列</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Begin an empty series; this one stays among the recent sessions</source>
        <translation>开始一个空系列；当前系列保留在最近的会话中</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>打开会话(&amp;O)...</translation>
    </message>
    <message>
        <source>Open photographs and strengths that were saved as a session</source>
        <translation>打开保存为会话的照片和强度</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>保存会话</translation>
    </message>
    <message>
        <source>Save the list of photographs and their strengths</source>
        <translation>保存照片列表及每张照片的强度</translation>
    </message>
    <message>
        <source>Save the session as...</source>
        <translation>会话另存为...</translation>
    </message>
    <message>
        <source>Save the session under another name</source>
        <translation>以其他名称保存会话</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>上一张照片</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>下一张照片</translation>
    </message>
    <message>
        <source>First photograph</source>
        <translation>第一张照片</translation>
    </message>
    <message>
        <source>Last photograph</source>
        <translation>最后一张照片</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Select all photographs</source>
        <translation>选择所有照片</translation>
    </message>
    <message>
        <source>Remove from the series</source>
        <translation>从系列中移除</translation>
    </message>
    <message>
        <source>Remove the selected photographs from the series; the files stay</source>
        <translation>从系列中移除所选照片；文件不受影响</translation>
    </message>
    <message>
        <source>Stronger</source>
        <translation>增强</translation>
    </message>
    <message>
        <source>Raise the strength by 1 per cent</source>
        <translation>将强度提高百分之 1</translation>
    </message>
    <message>
        <source>Weaker</source>
        <translation>减弱</translation>
    </message>
    <message>
        <source>Lower the strength by 1 per cent</source>
        <translation>将强度降低百分之 1</translation>
    </message>
    <message>
        <source>Stronger by 10</source>
        <translation>增强 10</translation>
    </message>
    <message>
        <source>Raise the strength by 10 per cent</source>
        <translation>将强度提高百分之 10</translation>
    </message>
    <message>
        <source>Weaker by 10</source>
        <translation>减弱 10</translation>
    </message>
    <message>
        <source>Lower the strength by 10 per cent</source>
        <translation>将强度降低百分之 10</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Give each selected photograph the strength that suits it</source>
        <translation>为每张所选照片设置适合的强度</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Go back to the strength at the start</source>
        <translation>恢复最初的强度</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>撤销上一次更改</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Make the change again that was undone</source>
        <translation>重做已撤销的更改</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected</source>
        <translation>应用到所选照片(&amp;Y)</translation>
    </message>
    <message>
        <source>Use this strength for all selected photographs</source>
        <translation>对所有所选照片使用此强度</translation>
    </message>
    <message>
        <source>App&amp;ly to all</source>
        <translation>应用到全部(&amp;L)</translation>
    </message>
    <message>
        <source>Use this strength for all photographs of the series</source>
        <translation>对系列中的所有照片使用此强度</translation>
    </message>
    <message>
        <source>Use as &amp;default</source>
        <translation>设为默认值(&amp;D)</translation>
    </message>
    <message>
        <source>Start new photographs at this strength from now on</source>
        <translation>从现在起，新照片以此强度开始</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Before and after in one picture, with a line to drag</source>
        <translation>在同一画面中显示处理前和处理后，可拖动分界线</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>并排</translation>
    </message>
    <message>
        <source>Before and after side by side</source>
        <translation>并排显示处理前和处理后</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Only the result</source>
        <translation>仅显示结果</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>处理前</translation>
    </message>
    <message>
        <source>Hold, or hold Space: the photograph as it was</source>
        <translation>按住此处或空格键：显示原来的照片</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>薄雾图</translation>
    </message>
    <message>
        <source>Hold, or hold M: where haze was found</source>
        <translation>按住此处或 M 键：显示检测到薄雾的位置</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>溢出</translation>
    </message>
    <message>
        <source>Mark pixels that became black or white</source>
        <translation>标出变为纯黑或纯白的像素</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>Show the whole photograph</source>
        <translation>显示整张照片</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Show each pixel as it is, where the pointer is</source>
        <translation>在指针位置按实际像素显示</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200%</translation>
    </message>
    <message>
        <source>Show pixels at twice their size</source>
        <translation>以两倍大小显示像素</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400%</translation>
    </message>
    <message>
        <source>Show pixels at four times their size</source>
        <translation>以四倍大小显示像素</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Save this one</source>
        <translation>保存这张</translation>
    </message>
    <message>
        <source>Save the result of this photograph</source>
        <translation>保存这张照片的结果</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>全部保存</translation>
    </message>
    <message>
        <source>Save the results of the whole series</source>
        <translation>保存整个系列的结果</translation>
    </message>
    <message>
        <source>Save op&amp;tions...</source>
        <translation>保存选项(&amp;I)...</translation>
    </message>
    <message>
        <source>Folder, tag and quality of the results, and what happens to existing ones</source>
        <translation>结果的文件夹、标记和质量，以及如何处理已有的结果</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
    </message>
    <message>
        <source>Finish the photographs in work and begin no other until you resume</source>
        <translation>完成正在处理的照片，继续之前不再开始其他照片</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop saving; results that are complete stay</source>
        <translation>停止保存；已完成的结果会保留</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Try again those photographs that failed</source>
        <translation>重试失败的照片</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Use the whole screen, or go back to the window</source>
        <translation>使用整个屏幕，或返回窗口</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>显示所有快捷键</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>关闭窗口</translation>
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
        <translation>去除薄雾(&amp;T)</translation>
    </message>
    <message>
        <source>Set how much haze to remove from each photograph. Hold Alt to see where the haze is.</source>
        <translation>请设置每张照片去除薄雾的程度。按住 Alt 键可查看薄雾所在的位置。</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>强度（百分比）</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>上一张照片</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>下一张照片</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>保存会话</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>设置文件 (*.xml)</translation>
    </message>
</context>
<context>
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1，%n 张照片，%2</numerusform>
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
        <translation>拖动分界线：比较。按住空格键：处理前。左、右键：照片。上、下键：强度。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Open, save or begin a session: photographs with their strengths</source>
        <translation>打开、保存或新建会话：照片及每张照片的强度</translation>
    </message>
    <message>
        <source>&amp;Recent sessions</source>
        <translation>最近的会话(&amp;R)</translation>
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
        <translation>%1 x %2 像素，%3 位</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>结果：%1</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected (%1)</source>
        <translation>应用到所选照片（%1）(&amp;Y)</translation>
    </message>
    <message>
        <source>App&amp;ly to all (%1)</source>
        <translation>应用到全部（%1）(&amp;L)</translation>
    </message>
    <message>
        <source>Save all %1</source>
        <translation>保存全部 %1 张</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>继续(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
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
            <numerusform>已略过 %n 个结果文件。</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photographs in the folder &quot;%1&quot;.</source>
        <translation>文件夹“%1”中没有照片。</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>此系列还有 %n 张照片尚未保存。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Save them now</source>
        <translation>立即保存(&amp;N)</translation>
    </message>
    <message>
        <source>The series is as you left it.</source>
        <translation>系列与您上次离开时相同。</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>添加照片</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>照片 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>打开会话</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>设置文件 (*.xml)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>保存会话</translation>
    </message>
    <message>
        <source>New photographs start at their automatic strength.</source>
        <translation>新照片以各自的自动强度开始。</translation>
    </message>
    <message>
        <source>New photographs start at %1 %.</source>
        <translation>新照片以 %1% 的强度开始。</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>%n 张照片未能保存。</numerusform>
        </translation>
    </message>
    <message>
        <source>Try a&amp;gain</source>
        <translation>重试(&amp;G)</translation>
    </message>
    <message>
        <source>Saving has ended</source>
        <translation>保存已结束</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>仍要关闭(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>不关闭(&amp;T)</translation>
    </message>
</context>
<context>
    <name>whyUnchanged</name>
    <message>
        <source>It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, or no pixel has a usable colour. Crop it, or repair its colours in an image editor.</source>
        <translation>照片保持原样，因为无法测量薄雾：一边的长度超过另一边的 100,000 倍，或没有任何像素具有可用的颜色。请裁剪照片，或在图像编辑器中修正其颜色。</translation>
    </message>
    <message>
        <source>It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or memory ran short. Repair those pixels in an image editor, or close other programs and try again.</source>
        <translation>照片保持原样，因为无法计算薄雾：某些像素含有无穷大或未定义的值，或内存不足。请在图像编辑器中修正这些像素，或关闭其他程序后重试。</translation>
    </message>
</context>
</TS>
