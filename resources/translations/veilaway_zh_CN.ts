<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>没有扩展名，因此结果保存为 TIFF。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>无法写入“%1”格式，因此结果保存为 TIFF。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation>其结果文件“%1”与照片“%2”是同一个文件。请将两者之一移到别处。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs.</source>
        <translation>其结果文件“%1”会与“%2”的结果同名。请重命名其中一张照片。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>结果文件的位置“%1”上有一个同名文件夹。请将该文件夹移到别处。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>其结果文件“%1”已经存在。如要替换，请加上 --overwrite。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation>无法写入结果：文件夹“%1”是只读的。请将照片复制到其他文件夹。</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>结果文件的名称会过长。请为照片取一个较短的名称。</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>结果已保存，但无法将照片的 XMP 复制到结果中：%1。</translation>
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
        <source>Stopped; no result was written.</source>
        <translation>已停止，未写入结果。</translation>
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
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>插件写入的是“%1”，而不是“%2”。</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>去除雾霾期间，照片被更改、移动或删除。请将其放回原处，然后重新开始。</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>此照片约需 %1 内存，而可用内存为 %2。请关闭其他程序，或缩小照片。</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation>处理前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>处理后</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength 需要 0 到 100 之间的整数或 auto，而不是“%1”。</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs 必须是 1 到 %1 之间的整数，不能是“%2”。</translation>
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
        <source>--%1 can&apos;t be used with the wizard, which asks in its window.</source>
        <translation>向导不接受 --%1，请在其窗口中设置。</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>请指定要去除薄雾的照片。</translation>
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
        <translation>veilaway 用于去除照片中的薄雾。

用法：
  veilaway [run] PHOTO... [选项]
  veilaway [run] --settings FILE [选项]
  veilaway wizard [PHOTO...] [选项]
  veilaway --set-default N|auto|none
  veilaway --help | --version

每张照片的结果都写入其所在的文件夹，名称为照片名加上标记：hills.jpg 变为 hills_离开薄雾.jpg。照片本身绝不会改动。标记随语言而变，例如 --language en 时为 _dehazed。

向导会打开一个窗口：选择照片，在实时预览下设定每张照片的强度，去除薄雾，然后比较前后效果。它接受 --settings（强度保存在该文件中）、--language、--jobs、--share-services 和 --plugin。

选项：
  --strength N      去除薄雾的程度（百分比）：0 表示保持照片不变，100 表示全部去除，auto 表示按每张照片自动选择：暗的照片为 50，亮的照片最高为 80。未指定时，依次采用设置文件中的强度、您保存的默认值、70。
  --set-default N   保存此默认值（数字或 auto），或用 none 取消。不做其他任何事。
  --settings FILE   将每张照片的强度保存在此 XML 文件中。如果文件已存在，则使用其中的强度，除非另外指定了 --strength；结束时，文件记录实际使用的强度。不给出 PHOTO 时，处理文件中的所有照片。
  --language LANG   消息和标记的语言：de、en、es、fr、it、ja、pl、ru、zh_CN 或 zh_TW。未指定时，使用系统的语言。
  --jobs N          同时处理的照片数量。未指定时，在内存允许的范围内取能让所有核心保持忙碌的数量。
  --overwrite       替换已有的结果。
  --quiet           只报告失败的内容。
  --json            为每张照片输出一行 JSON 对象，包含 photo、result、status（done、unchanged、failed、stopped）、strength、automatic、seconds、message、unchanged（原因，或 null）。
  --share-services  让插件使用本程序自身的服务（日志、内存池、处理器数量），而不是由插件自行创建。
  --plugin FILE     加载此插件文件，而不是程序所在文件夹或 ../lib/nimbra 中的 Nimbra.so。
  -h, --help        显示本说明。
  --version         显示程序和插件的版本。
  --                其后的内容都是照片，即使以连字符开头。

格式：
  读取和写入：JPEG（jpg、jpeg）、PNG、TIFF（tif、tiff）、Radiance（hdr、hdri）、OpenEXR（exr）和 PSD。结果沿用照片的格式、位深度（8 位、16 位或浮点）、颜色配置文件、EXIF、IPTC 和 XMP。EXIF 方向保持不变，因此结果的显示方向与照片相同。
  仅读取：相机 RAW（dng、cr2、nef、arw、raf、orf、rw2 等）。结果为 16 位 TIFF。扩展名为其他或没有扩展名的照片，结果也是 TIFF。XMP 附属文件留在原处，不会读取。

退出代码：
  0  所有照片均已完成，或保持原样（并说明原因）。
  1  部分照片未完成：标准错误输出会说明是哪些照片、原因以及解决办法。或者无法写入标准输出。
  2  命令行或设置文件有误；未开始任何处理。
按 Ctrl-C 时程序由该信号结束（在 shell 中为 130），且不会留下不完整的结果。

示例：
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>请参阅 veilaway --help。</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default 需要 0 到 100 之间的整数、auto 或 none，而不是“%1”。</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default 只保存默认值：请去掉照片以及用于照片的选项。</translation>
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
        <source>The window can&apos;t be shown: %1. Start the wizard in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>无法显示窗口：%1。请在桌面会话中启动向导，或从另一台计算机用 ssh -X 启动。不需要窗口时，可用 veilaway 照片... 完成处理。</translation>
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
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>无法打开文件。请检查文件是否存在，以及您是否有权读取。</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>文件不完整或已损坏。请从相机或备份中重新复制。</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>内存不足，无法处理此照片。请关闭其他程序，或一次只处理一张照片（--jobs 1）。</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>这不是已知格式的图像，或者其实际格式与扩展名不符。可以读取 JPEG、PNG、TIFF、HDR、EXR、PSD 和相机 RAW；请将扩展名改为与实际格式一致，或转换该文件。</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>这是视频。只能从照片中去除薄雾；请将其中的一帧画面保存为 JPEG、PNG 或 TIFF。</translation>
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
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>内存不足，无法处理此相机 RAW 文件。请关闭其他程序，或一次只处理一张照片（--jobs 1）。</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>无法解码此相机 RAW 文件：%1。请重新复制，或转换为 DNG 或 TIFF。</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>其名称或文件夹名称含有非 UTF-8 字符。请重命名。</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>列表中其他照片的 %n 个结果，例如“%1”。</numerusform>
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
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>照片过大：只能为宽度或高度不超过 %1 像素的照片去除薄雾。请缩小照片，或将其裁成几部分。</translation>
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
            <numerusform>%n 张照片已完成。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation>共 %2 张照片，%1 张已完成，%3 张未完成。</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>正在读取</translation>
    </message>
    <message>
        <source>removing haze</source>
        <translation>正在去除薄雾</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>正在保存</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n 张保持原样。</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>无法写入标准输出：%1。请腾出空间，或将其输出到别处。</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>%n 张照片未开始处理。</numerusform>
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
        <translation>打开文件夹(&amp;F)</translation>
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
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>所有照片均已完成。</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>共 %2 张照片，%1 张已完成。</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>重新开始(&amp;O)</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>选择其他照片</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>未指定 --strength：使用您保存的默认值 %1。</translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>未指定 --strength，也没有保存的默认值：使用 %1。</translation>
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
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>设置文件“%1”与某个结果文件同名。请另取一个名称。</translation>
    </message>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>正在停止；正在完成当前保存的文件。再按一次 Ctrl-C 可立即结束。</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>已略过 %n 个文件，它们是其他照片的结果，例如“%1”。</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>未指定 --strength：采用您保存的默认值，即自动强度。</translation>
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
        <source>Each result is saved beside its photograph.</source>
        <translation>每张照片的结果都写入其所在的文件夹。</translation>
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
        <source>Reading</source>
        <translation>正在读取</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>正在保存</translation>
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
        <translation>失败</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>正在停止。正在保存的结果会先保存完毕。</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>其结果已经存在，已予保留。</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>未改变</translation>
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
    <name>TransposedRun</name>
    <message>
        <source>A temporary folder with a link to the photograph can&apos;t be created, neither beside it nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>在照片旁边和“%1”中都无法创建包含照片链接的临时文件夹。请在那里腾出空间，并确认您有权写入。</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>插件写入的是“%1”，而不是“%2”。</translation>
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
        <source>Save session</source>
        <translation>保存会话</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>设置文件 (*.xml)</translation>
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
