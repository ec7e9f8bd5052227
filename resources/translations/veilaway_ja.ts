<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>拡張子がないため、結果は TIFF になります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>「%1」形式では書き込めないため、結果は TIFF になります。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation>結果のファイル「%1」は写真「%2」と同一のファイルです。どちらか一方を別の場所に移してください。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs.</source>
        <translation>結果のファイル「%1」は「%2」の結果と同じになります。どちらか一方の写真の名前を変えてください。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>結果の書き込み先「%1」に同名のフォルダーがあります。フォルダーを別の場所に移してください。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>結果のファイル「%1」はすでにあります。置き換えるには --overwrite を指定してください。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation>結果を書き込めません。フォルダー「%1」は読み取り専用です。写真を別のフォルダーにコピーしてください。</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>結果のファイル名が長すぎます。写真の名前を短くしてください。</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>結果は書き込まれましたが、写真の XMP を結果にコピーできませんでした: %1。</translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation>プラグインの処理が次の場所で失敗しました: %1。</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリが足りません。</translation>
    </message>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>中止しました。結果は書き込まれていません。</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>ほかのプログラムを終了するか、写真を 1 枚ずつ処理してください (--jobs 1)。</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>フォルダー「%1」に空き容量があり、書き込みが許可されていることを確認してください。</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>プラグインは「%2」ではなく「%1」に書き込みました。</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>かすみを取り除いている間に写真が変更、移動、または削除されました。元に戻してからやり直してください。</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>この写真には約 %1 のメモリが必要ですが、空きは %2 です。ほかのプログラムを終了するか、写真を縮小してください。</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation>処理前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>処理後</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength には 0 から 100 までの整数または auto を指定してください（「%1」は使えません）。</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs には 1 から %1 までの整数を指定してください。「%2」は使えません。</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>--language に指定できるのは %1 です。「%2」は使えません。</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>--settings には UTF-8 のファイル名を指定してください。</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with the wizard, which asks in its window.</source>
        <translation>--%1 はウィザードでは使えません。ウィンドウの中で指定します。</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>ヘイズを除去する写真を指定してください。</translation>
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
        <translation>veilaway は写真からヘイズを除去します。

使い方:
  veilaway [run] PHOTO... [オプション]
  veilaway [run] --settings FILE [オプション]
  veilaway wizard [PHOTO...] [オプション]
  veilaway --set-default N|auto|none
  veilaway --help | --version

結果はそれぞれの写真と同じフォルダーに、写真の名前にタグを付けた名前で書き込まれます。たとえば hills.jpg の結果は hills_除去薄霧.jpg になります。元の写真が変更されることはありません。タグは言語に応じて変わり、たとえば --language en なら _dehazed になります。

ウィザードはウィンドウを開きます。写真を選び、ライブプレビューを見ながらそれぞれの強さを決め、ヘイズを除去して、結果を比べることができます。使えるのは --settings（強さはこのファイルに記録されます）、--language、--jobs、--share-services、--plugin です。

オプション:
  --strength N      除去するヘイズの量（パーセント）。0 では写真はそのままで、100 ではすべて除去します。auto では写真ごとに決まります（暗い写真の 50 から明るい写真の 80 まで）。指定しない場合は、設定ファイルの強さ、保存されている既定値、70 の順に使います。
  --set-default N   この既定値（数値または auto）を保存します。none では取り消します。ほかには何もしません。
  --settings FILE   写真ごとの強さをこの XML ファイルに記録します。ファイルがすでにあれば、--strength の指定がない限りその中の強さを使います。終了時には、使った強さが記録されます。PHOTO を指定しないと、ファイルにあるすべての写真を処理します。
  --language LANG   メッセージとタグの言語: de、en、es、fr、it、ja、pl、ru、zh_CN、zh_TW のいずれか。指定しない場合はシステムの言語です。
  --jobs N          同時に処理する写真の枚数。指定しない場合は、すべてのコアが働き、メモリに収まる枚数にします。
  --overwrite       すでにある結果を置き換えます。
  --quiet           失敗したもの以外は何も表示しません。
  --json            写真ごとに JSON オブジェクトを 1 行で出力します。項目は photo、result、status（done、unchanged、failed、stopped）、strength、automatic、seconds、message、unchanged（理由、または null）です。
  --share-services  ログ、メモリプール、プロセッサ数などのサービスを、プラグインに作らせずに、このプログラムのものを貸し出します。
  --plugin FILE     プログラムと同じフォルダー、または ../lib/nimbra にある Nimbra.so の代わりに、このプラグインファイルを読み込みます。
  -h, --help        この説明を表示します。
  --version         プログラムとプラグインのバージョンを表示します。
  --                これより後は、ハイフンで始まるものも写真として扱います。

形式:
  読み書き: JPEG (jpg、jpeg)、PNG、TIFF (tif、tiff)、Radiance (hdr、hdri)、OpenEXR (exr)、PSD。結果は元の写真の形式、ビット深度（8、16 ビット、浮動小数点）、カラープロファイル、EXIF、IPTC、XMP を引き継ぎます。EXIF の向きも保たれるため、結果は元の写真と同じ向きで表示されます。
  読み込みのみ: カメラ RAW (dng、cr2、nef、arw、raf、orf、rw2 など)。結果は 16 ビットの TIFF になります。その他の拡張子の写真や拡張子のない写真も、結果は TIFF になります。XMP サイドカーファイルは読み込まれず、そのまま残ります。

終了コード:
  0  すべての写真を処理したか、元のまま返しました（理由を示します）。
  1  処理できなかった写真があります。どの写真か、その理由と対処法が標準エラー出力に表示されます。または、標準出力に書き込めませんでした。
  2  コマンドラインまたは設定ファイルに誤りがあります。処理は始まっていません。
Ctrl-C ではシグナルで終了し (シェルでは 130)、書きかけの結果は残りません。

例:
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>veilaway --help をご覧ください。</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default には 0 から 100 までの整数、auto、none のいずれかを指定してください（「%1」は使えません）。</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default は既定値を保存するだけです。写真と、写真のためのオプションは指定しないでください。</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>既定値を「%1」に保存できません。空き容量を増やすか、書き込みの権限を付けてください。</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start the wizard in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>ウィンドウを表示できません: %1。デスクトップ環境でウィザードを起動するか、別のマシンから ssh -X で接続してください。ウィンドウなしで処理するには veilaway 写真... を使います。</translation>
    </message>
</context>
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_除去薄霧</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>ファイルを開けません。ファイルがあるか、読み取りが許可されているかを確認してください。</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>ファイルが途中で切れているか、壊れています。カメラまたはバックアップからコピーし直してください。</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>この写真を処理するにはメモリが足りません。ほかのプログラムを終了するか、写真を 1 枚ずつ処理してください (--jobs 1)。</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>対応する形式の画像ではないか、拡張子が実際の形式と異なります。読み込めるのは JPEG、PNG、TIFF、HDR、EXR、PSD とカメラの RAW です。拡張子を実際の形式に合わせるか、画像を変換してください。</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>これは動画です。ヘイズを除去できるのは写真だけです。動画から切り出した画像を JPEG、PNG または TIFF で保存してください。</translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>このピクセル形式は読み込めません。8 または 16 ビットの RGB で保存し直してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>空の名前は写真の指定になりません。</translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>リンク先がありません。写真そのものを指定してください。</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>ファイルが見つかりません。名前とフォルダーを確認してください。</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>これはフォルダーです。中の写真を、たとえば「%1」のように指定してください。</translation>
    </message>
    <message>
        <source>This is not a regular file. Copy the photograph into one.</source>
        <translation>通常のファイルではありません。写真を通常のファイルにコピーしてください。</translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>ファイルを読み取れません。読み取りの許可を設定してください。</translation>
    </message>
    <message>
        <source>The file is empty. Copy it again from the camera or a backup.</source>
        <translation>ファイルが空です。カメラまたはバックアップからコピーし直してください。</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>このカメラ RAW ファイルを処理するにはメモリが足りません。ほかのプログラムを終了するか、写真を 1 枚ずつ処理してください (--jobs 1)。</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>カメラ RAW ファイルを現像できません: %1。コピーし直すか、DNG または TIFF に変換してください。</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>名前またはフォルダの名前に UTF-8 ではない文字が含まれています。名前を変更してください。</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>リスト内のほかの写真の結果である %n 個のファイル（「%1」など）</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>リストから外す(&amp;R)</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Choose the photographs to remove haze from, or drop them here. They are never changed: each result is saved beside its photograph.</source>
        <translation>ヘイズを除去する写真を選ぶか、ここにドロップしてください。元の写真は変更されません。結果はそれぞれの写真と同じフォルダーに書き込まれます。</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>写真を追加(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>セッションを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation>写真とそれぞれの強さを記録した設定ファイル</translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation>%1: このフォルダーに写真はありません。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>%n 枚の写真を読み込み中...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>写真 %n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>...ほか %n 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>追加できなかったもの:</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>写真を追加</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>写真 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>セッションを開く</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>設定ファイル (*.xml)</translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>写真が大きすぎます。ヘイズを除去できるのは、幅または高さが %1 ピクセル以下の写真です。縮小するか、分割してください。</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>プラグイン「%1」が見つかりません。ビルドまたはインストールするか、--plugin FILE で場所を指定してください。</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>」または「</translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>種類の異なるプラグインです</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>プラグイン「%1」を使えません: %2。インストールし直すか、--plugin FILE で別のプラグインを指定してください。</translation>
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
        <translation>%1: %2 (%3)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n 枚の写真を処理しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation>%2 枚の写真のうち %1 枚を処理しました。残り %3 枚は処理できませんでした。</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>読み込み中</translation>
    </message>
    <message>
        <source>removing haze</source>
        <translation>ヘイズを除去中</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>保存中</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n 枚は元のままです。</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>標準出力に書き込めません: %1。空き容量を確保するか、別の出力先を指定してください。</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>%n 枚の写真は処理を始めていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %、%2 秒</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;folder</source>
        <translation>フォルダーを開く(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>セッションを保存(&amp;S)...</translation>
    </message>
    <message>
        <source>Save the photographs and the strength of each in a settings file</source>
        <translation>写真とそれぞれの強さを設定ファイルに保存します</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>すべての写真を処理しました。</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>%2 枚の写真のうち %1 枚を処理しました。</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>最初からやり直す(&amp;O)</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>別の写真を選びます</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>--strength が指定されていないため、保存されている既定値 %1 を使います。</translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>--strength が指定されておらず、既定値も保存されていないため、%1 を使います。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>設定ファイル「%1」に写真がありません。写真を指定してください。</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>設定ファイル「%1」はありません。新しく作るには写真を指定してください。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>その場所には設定ファイル「%1」を書き込めません。別のフォルダーのファイルを指定してください。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>設定ファイル「%1」の名前が結果のファイルと同じです。別の名前にしてください。</translation>
    </message>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>停止しています。保存中のファイルを書き終えます。すぐに終了するには、もう一度 Ctrl-C を押してください。</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>ほかの写真の結果である %n 個のファイル (「%1」など) を除外しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>--strength が指定されていないため、保存されている既定値（自動の強さ）を使います。</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation>中止(&amp;S)</translation>
    </message>
    <message>
        <source>Removing haze</source>
        <translation>ヘイズを除去中</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>結果はそれぞれの写真と同じフォルダーに書き込まれます。</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>そのまま残す(&amp;K)</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強さ</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>以前の処理結果がすでに %n 件あります。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v / %m</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>読み込み中</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>保存中</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>中止しています。保存中の結果は最後まで保存されます。</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>結果がすでにあったため、そのまま残しました。</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>変化なし</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>既存を保持</translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>保存されている既定値はなくなりました。--strength を指定しない場合は %1 パーセントです。</translation>
    </message>
    <message>
        <source>From now on, each photograph gets its automatic strength.</source>
        <translation>今後、写真ごとに自動の強さを使います。</translation>
    </message>
    <message>
        <source>From now on, the default strength is %1 per cent.</source>
        <translation>今後、強さの既定値は %1 パーセントです。</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation>設定ファイル「%1」を使えません: %2。修正するか、別のファイルを指定してください。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>%1 行 %2 列: %3</translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation>最上位の要素が &lt;%1&gt; ではありません</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation>%1: パスのない写真があります</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1: 「%2」が重複しています</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1: 写真には &lt;%2 %3=&quot;...&quot;/&gt; と 0 から 100 までの整数が必要です</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>設定ファイル「%1」を書き込めません: %2。空き容量を増やすか、書き込みの許可を設定してください。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>設定ファイル「%1」に写真「%2」を記録できません。名前に制御文字が含まれています。名前を変更してください。</translation>
    </message>
</context>
<context>
    <name>TransposedRun</name>
    <message>
        <source>A temporary folder with a link to the photograph can&apos;t be created, neither beside it nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>写真と同じ場所にも「%1」にも、写真へのリンクを含む一時フォルダーを作成できません。空き容量があり、書き込みが許可されていることを確認してください。</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>プラグインは「%2」ではなく「%1」に書き込みました。</translation>
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
        <translation>ヘイズを除去(&amp;T)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>セッションを保存</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>設定ファイル (*.xml)</translation>
    </message>
</context>
<context>
    <name>whyUnchanged</name>
    <message>
        <source>It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, or no pixel has a usable colour. Crop it, or repair its colours in an image editor.</source>
        <translation>ヘイズを測定できなかったため、写真は元のままです。一辺が他辺の 100,000 倍を超えているか、使える色の画素がありません。写真を切り抜くか、画像編集ソフトで色を修正してください。</translation>
    </message>
    <message>
        <source>It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or memory ran short. Repair those pixels in an image editor, or close other programs and try again.</source>
        <translation>ヘイズを計算できなかったため、写真は元のままです。無限大または未定義の値の画素があるか、メモリが不足しました。画像編集ソフトでその画素を修正するか、ほかのプログラムを終了してやり直してください。</translation>
    </message>
</context>
</TS>
