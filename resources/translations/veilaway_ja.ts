<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>結果のファイル「%1」はすでにあります。置き換えるには --overwrite を指定してください。</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>フォルダーを読み取れません。読み取りの許可を設定してください。</translation>
    </message>
    <message>
        <source>There are no photographs in this folder or those inside it.</source>
        <translation>このフォルダーにも、その中のフォルダーにも写真はありません。</translation>
    </message>
    <message>
        <source>There are no photographs in this folder. Add --recursive for those in the folders inside it.</source>
        <translation>このフォルダーに写真はありません。中のフォルダーの写真も対象にするには --recursive を指定してください。</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; already exists.</source>
        <translation>スキップしました: 結果のファイル「%1」はすでにあります。</translation>
    </message>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>拡張子がないため、結果は TIFF になります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>「%1」形式では書き込めないため、結果は TIFF になります。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder for the results.</source>
        <translation>結果のファイル「%1」は写真「%2」と同一のファイルです。どちらか一方を別の場所に移すか、結果の保存先として別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder with --output.</source>
        <translation>結果のファイル「%1」は写真「%2」と同一のファイルです。どちらか一方を別の場所に移すか、--output で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs, or give their results different folders.</source>
        <translation>結果のファイル「%1」は「%2」の結果と同じになります。どちらか一方の写真の名前を変えるか、結果の保存先を別々のフォルダーにしてください。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>結果の書き込み先「%1」に同名のフォルダーがあります。フォルダーを別の場所に移してください。</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; is newer than the photograph.</source>
        <translation>スキップしました: 結果のファイル「%1」は写真より新しいものです。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder for the results.</source>
        <translation>結果のファイル「%1」は書き込みが禁止されているか、通常のファイルではありません。別の場所に移すか、結果の保存先として別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder with --output.</source>
        <translation>結果のファイル「%1」は書き込みが禁止されているか、通常のファイルではありません。別の場所に移すか、--output で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one for the results.</source>
        <translation>結果を書き込めません。「%1」はフォルダーではありません。結果の保存先として別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one with --output.</source>
        <translation>結果を書き込めません。「%1」はフォルダーではありません。--output で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one for the results.</source>
        <translation>結果を書き込めません。フォルダー「%1」は読み取り専用です。結果の保存先として別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one with --output.</source>
        <translation>結果を書き込めません。フォルダー「%1」は読み取り専用です。--output で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>結果のファイル名が長すぎます。写真の名前を短くしてください。</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>中止しました。結果は書き込まれていません。</translation>
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
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>かすみを取り除いている間に写真が変更、移動、または削除されました。元に戻してからやり直してください。</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>ほかのプログラムを終了してから、もう一度お試しください。</translation>
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
        <source>The file also holds a gain map or further pictures, which don&apos;t fit the result and are left out.</source>
        <translation>このファイルにはゲインマップまたは別の画像も含まれていますが、結果と合わないため省かれます。</translation>
    </message>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>結果は書き込まれましたが、写真の XMP を結果にコピーできませんでした: %1。</translation>
    </message>
    <message>
        <source>The result was written, but could not be given the photograph&apos;s time of modification: %1.</source>
        <translation>結果は書き込まれましたが、写真の更新日時を結果に設定できませんでした: %1。</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>この写真には約 %1 のメモリが必要ですが、空きは %2 です。ほかのプログラムを終了するか、写真を縮小してください。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Did you mean --%1?</source>
        <translation>--%1 のことですか?</translation>
    </message>
    <message>
        <source>Write &quot;./%1&quot; for the photograph of this name.</source>
        <translation>この名前の写真を指定するには「./%1」と入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be followed by one of %2, not &quot;%3&quot;.</source>
        <translation>「%1」の後には %2 のいずれかを指定してください（「%3」は使えません）。</translation>
    </message>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength には 0 から 100 までの整数または auto を指定してください（「%1」は使えません）。</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs には 1 から %1 までの整数を指定してください。「%2」は使えません。</translation>
    </message>
    <message>
        <source>--quality must be a whole number from 1 to 100, not &quot;%1&quot;.</source>
        <translation>--quality には 1 から 100 までの整数を指定してください（「%1」は使えません）。</translation>
    </message>
    <message>
        <source>--compression must be none, deflate or lzw, not &quot;%1&quot;.</source>
        <translation>--compression には none、deflate、lzw のいずれかを指定してください（「%1」は使えません）。</translation>
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
        <source>--output must be the name of a folder or file, in UTF-8.</source>
        <translation>--output には UTF-8 のフォルダー名またはファイル名を指定してください。</translation>
    </message>
    <message>
        <source>--tag is a part of a name: it must not contain a slash, and must be in UTF-8.</source>
        <translation>--tag は名前の一部です。スラッシュを含まない UTF-8 の文字列を指定してください。</translation>
    </message>
    <message>
        <source>Of --skip-existing, --newer and --overwrite, only one can be used at a time.</source>
        <translation>--skip-existing、--newer、--overwrite は、どれか 1 つしか指定できません。</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default には 0 から 100 までの整数、auto、none のいずれかを指定してください（「%1」は使えません）。</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default は既定値を保存するだけです。写真と、写真のためのオプションは指定しないでください。</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with %2, which asks for it on the screen.</source>
        <translation>--%1 は %2 では使えません。画面の中で指定します。</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>ヘイズを除去する写真を指定してください。</translation>
    </message>
    <message>
        <source>Also read here: %1</source>
        <translation>この環境ではさらに次の形式も読み込めます: %1</translation>
    </message>
    <message>
        <source>Not read here, for want of a decoder: %1</source>
        <translation>デコーダーがないため、この環境では読み込めない形式: %1</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>veilaway --help をご覧ください。</translation>
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
        <source>The window can&apos;t be shown: %1. Start it in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>ウィンドウを表示できません: %1。デスクトップ環境で起動するか、別のマシンから ssh -X で接続してください。ウィンドウなしで処理するには veilaway 写真... を使います。</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Recent sessions</source>
        <translation>最近のセッション</translation>
    </message>
    <message>
        <source>Drop photographs or a folder here</source>
        <translation>写真またはフォルダーをここにドロップ</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>写真を追加(&amp;A)...</translation>
    </message>
    <message>
        <source>Add a &amp;folder...</source>
        <translation>フォルダーを追加(&amp;F)...</translation>
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
        <translation>写真</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>ヒストグラム</translation>
    </message>
    <message>
        <source>The result; dashed: the photograph as it was</source>
        <translation>結果（破線は元の写真）</translation>
    </message>
    <message>
        <source>Black %1 %, white %2 %</source>
        <translation>黒 %1%、白 %2%</translation>
    </message>
    <message>
        <source>black %1 %</source>
        <translation>黒 %1%</translation>
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
        <translation>キー操作</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>メッセージを閉じる</translation>
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
    <name>OptionTable</name>
    <message>
        <source>veilaway takes the haze out of photographs.</source>
        <translation>veilaway は写真からヘイズを除去します。</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>使い方:</translation>
    </message>
    <message>
        <source>PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for such a list on standard input.</source>
        <translation>PHOTO には、写真、写真の入ったフォルダー、写真を 1 行に 1 つずつ並べたファイルを示す @FILE、または同じ一覧を標準入力から読む - を指定します。</translation>
    </message>
    <message>
        <source>Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.</source>
        <translation>結果はそれぞれの写真と同じフォルダーに、写真の名前にタグを付けた名前で書き込まれます。たとえば hills.jpg の結果は hills_除去薄霧.jpg になります。元の写真が変更されることはありません。タグは言語に応じて変わり、たとえば --language de なら _entnebelt になります。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>コマンド:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>オプション:</translation>
    </message>
    <message>
        <source>Everything that follows is a photograph, even if it begins with a dash.</source>
        <translation>これより後は、ハイフンで始まるものも写真として扱います。</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>形式:</translation>
    </message>
    <message>
        <source>Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.</source>
        <translation>読み書き: JPEG (jpg、jpeg)、PNG、TIFF (tif、tiff)、Radiance (hdr、hdri)、OpenEXR (exr)、PSD。結果は元の写真の形式、ビット深度（8、16 ビット、浮動小数点）、カラープロファイル、EXIF、IPTC、XMP を引き継ぎます。EXIF の向きも保たれるため、結果は元の写真と同じ向きで表示されます。</translation>
    </message>
    <message>
        <source>Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others), whose result is a 16-bit TIFF, and, where --version names them, HEIC (heic, heif, hif), AVIF, WebP and JPEG XL (jxl), whose result is a TIFF of their depth. Photographs with any other suffix, or none, become a TIFF too.</source>
        <translation>読み込みのみ: カメラ RAW (dng、cr2、nef、arw、raf、orf、rw2 など)。結果は 16 ビットの TIFF になります。--version に表示される場合は HEIC (heic、heif、hif)、AVIF、WebP、JPEG XL (jxl) も読み込め、結果は同じビット深度の TIFF になります。その他の拡張子の写真や拡張子のない写真も、結果は TIFF になります。</translation>
    </message>
    <message>
        <source>XMP sidecar files are not read and stay where they are.</source>
        <translation>XMP サイドカーファイルは読み込まれず、そのまま残ります。</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>終了コード:</translation>
    </message>
    <message>
        <source>All photographs are done, skipped as requested, or came back unchanged (a message says why).</source>
        <translation>すべての写真を処理したか、指定どおりスキップしたか、元のまま返しました（理由を示します）。</translation>
    </message>
    <message>
        <source>Some are not: standard error says which, why, and what helps. Or standard output could not be written.</source>
        <translation>処理できなかった写真があります。どの写真か、その理由と対処法が標準エラー出力に表示されます。または、標準出力に書き込めませんでした。</translation>
    </message>
    <message>
        <source>The command line or the settings file is wrong; nothing was begun.</source>
        <translation>コマンドラインまたは設定ファイルに誤りがあります。処理は始まっていません。</translation>
    </message>
    <message>
        <source>Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.</source>
        <translation>Ctrl-C ではシグナルで終了し (シェルでは 130)、書きかけの結果は残りません。</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>例:</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>ファイルを開けません。ファイルがあるか、読み取りが許可されているかを確認してください。</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>これは動画です。ヘイズを除去できるのは写真だけです。動画から切り出した画像を JPEG、PNG または TIFF で保存してください。</translation>
    </message>
    <message>
        <source>It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>これはアニメーションです。ヘイズを除去できるのは写真だけです。1 フレームを JPEG、PNG または TIFF で保存してください。</translation>
    </message>
    <message>
        <source>This installation can&apos;t decode its format; veilaway --version says which formats it can. Convert the photograph to JPEG, PNG or TIFF.</source>
        <translation>この環境ではこの形式をデコードできません。対応する形式は veilaway --version で確認できます。写真を JPEG、PNG または TIFF に変換してください。</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>対応する形式の画像ではないか、拡張子が実際の形式と異なります。読み込めるのは %1 とカメラの RAW です。拡張子を実際の形式に合わせるか、画像を変換してください。</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>ファイルが途中で切れているか、壊れています。カメラまたはバックアップからコピーし直してください。</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs and try again.</source>
        <translation>この写真を処理するにはメモリが足りません。ほかのプログラムを終了してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>この写真を処理するにはメモリが足りません。ほかのプログラムを終了するか、写真を 1 枚ずつ処理してください (--jobs 1)。</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs and try again.</source>
        <translation>このカメラ RAW ファイルを処理するにはメモリが足りません。ほかのプログラムを終了してから、もう一度お試しください。</translation>
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
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>このピクセル形式は読み込めません。8 または 16 ビットの RGB で保存し直してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>空の名前は写真の指定になりません。</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>名前またはフォルダの名前に UTF-8 ではない文字が含まれています。名前を変更してください。</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be opened. Give yourself the permission to open it.</source>
        <translation>この写真のフォルダーを開けません。開く許可を設定してください。</translation>
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
</context>
<context>
    <name>PhotoPage</name>
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
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>リスト内のほかの写真の結果である %n 個のファイル（「%1」など）</numerusform>
        </translation>
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
    <name>PhotoStore</name>
    <message>
        <source>There is not enough memory for it. Close other programs, or scale the photograph down.</source>
        <translation>この写真を処理するにはメモリが足りません。ほかのプログラムを終了するか、写真を縮小してください。</translation>
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
    <name>PhotographList</name>
    <message>
        <source>The list &quot;%1&quot; can&apos;t be read: %2. Check its name, or write ./@... for a photograph whose name begins with @.</source>
        <translation>一覧「%1」を読み込めません: %2。名前を確認してください。名前が @ で始まる写真は ./@... のように指定します。</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.</source>
        <translation>一覧「%1」にはヌルバイトが含まれています。名前がヌルバイトで区切られている場合は --null (-0) を付け、そうでなければ UTF-8 のテキストとして保存してください。</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds no null bytes. Leave out --null (-0) if it has one name per line.</source>
        <translation>一覧「%1」にヌルバイトはありません。1 行に 1 つずつ名前が書かれている場合は --null (-0) を外してください。</translation>
    </message>
</context>
<context>
    <name>PictureRenderer</name>
    <message>
        <source>There is not enough memory for this picture. Close other programs.</source>
        <translation>この画像を表示するにはメモリが足りません。ほかのプログラムを終了してください。</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Photograph</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Hold: the photograph before</source>
        <translation>押している間: 処理前の写真</translation>
    </message>
    <message>
        <source>Hold: the haze map; Alt does the same</source>
        <translation>押している間: ヘイズマップ (Alt も同じ)</translation>
    </message>
    <message>
        <source>Move over the photograph</source>
        <translation>写真の中を移動</translation>
    </message>
    <message>
        <source>Move the line between before and after</source>
        <translation>処理前と処理後の境界線を動かす</translation>
    </message>
    <message>
        <source>Before, zoom %1 %</source>
        <translation>処理前、表示倍率 %1%</translation>
    </message>
    <message>
        <source>Haze map, zoom %1 %</source>
        <translation>ヘイズマップ、表示倍率 %1%</translation>
    </message>
    <message>
        <source>After %1 %, zoom %2 %</source>
        <translation>処理後 %1%、表示倍率 %2%</translation>
    </message>
    <message>
        <source>Before and after %1 %, zoom %2 %</source>
        <translation>処理前と処理後 %1%、表示倍率 %2%</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>ヘイズマップ</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>処理前</translation>
    </message>
    <message>
        <source>After %1 %</source>
        <translation>処理後 %1%</translation>
    </message>
    <message>
        <source>Estimating the haze</source>
        <translation>ヘイズを推定中</translation>
    </message>
    <message>
        <source>Reading the photograph</source>
        <translation>写真を読み込み中</translation>
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
    <name>PrivateRun</name>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder for the results.</source>
        <translation>フォルダー「%1」にファイルを作成できません: %2。空き容量を増やすか、結果の保存先として別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder with --output.</source>
        <translation>フォルダー「%1」にファイルを作成できません: %2。空き容量を増やすか、--output で別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2.</source>
        <translation>「%1」を書き込めません: %2。</translation>
    </message>
    <message>
        <source>A link to the photograph can&apos;t be created, neither in the folder of its result nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>結果のフォルダーにも「%1」にも、写真へのリンクを作成できません。空き容量があり、書き込みが許可されていることを確認してください。</translation>
    </message>
    <message>
        <source>Its %1 bits per channel don&apos;t fit into a file of this format. Choose a name that ends in .tif, .psd or, for up to 16 bits, .png.</source>
        <translation>チャンネルあたり %1 ビットの画像は、この形式のファイルには保存できません。.tif、.psd、または 16 ビットまでなら .png で終わる名前を指定してください。</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>プラグインは「%2」ではなく「%1」に書き込みました</translation>
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
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>標準出力に書き込めません: %1。空き容量を確保するか、別の出力先を指定してください。</translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %、%2 秒</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message>
        <source>automatic strength</source>
        <translation>自動の強さ</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1: %2 (%3 x %4 pixels, %5 of memory, %6)</source>
        <translation>%1: %2 (%3 x %4 ピクセル、メモリ %5、%6)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>%n 枚の写真が処理の対象です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n 枚の写真を処理しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n 枚は元のままです。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>%n 枚をスキップしました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>%n 枚が失敗しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>%n 枚は処理を始めていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>、残り %1</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>保存中: %1</translation>
    </message>
    <message>
        <source>removing haze: %1</source>
        <translation>ヘイズを除去中: %1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>読み込み中: %1</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;result</source>
        <translation>結果を開く(&amp;R)</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>フォルダーを開く(&amp;F)</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Show the result in the program that opens such pictures</source>
        <translation>画像を開く既定のプログラムで結果を表示します</translation>
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
        <source>Start &amp;over</source>
        <translation>最初からやり直す(&amp;O)</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>別の写真を選びます</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>すべての写真を処理しました。</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>%2 枚の写真のうち %1 枚を処理しました。</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>停止しています。保存中のファイルを書き終えます。すぐに終了するには、もう一度 Ctrl-C を押してください。</translation>
    </message>
    <message>
        <source>Remove haze</source>
        <translation>ヘイズを除去</translation>
    </message>
    <message>
        <source>There is no desktop that shows notifications.</source>
        <translation>通知を表示できるデスクトップがありません。</translation>
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
        <source>The list names no photographs: there is nothing to do.</source>
        <translation>一覧に写真がないため、処理するものはありません。</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists and is not a folder. Name another one.</source>
        <translation>--output: 「%1」はすでにありますが、フォルダーではありません。別の名前を指定してください。</translation>
    </message>
    <message>
        <source>--output: results can&apos;t be written as &quot;%1&quot;. Choose a name that ends in one of %2.</source>
        <translation>--output: 結果を「%1」として書き込むことはできません。%2 のいずれかで終わる名前を指定してください。</translation>
    </message>
    <message>
        <source>--output names the file &quot;%1&quot;, but there are %2 photographs. Name a folder, such as &quot;%3&quot;.</source>
        <translation>--output にファイル「%1」が指定されていますが、写真は %2 枚あります。「%3」のようなフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>--tag is for results that get their names from their photographs: leave it out, or name a folder as --output.</source>
        <translation>--tag は、写真の名前から結果の名前を付けるときのオプションです。--tag を指定しないか、--output にフォルダーを指定してください。</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>ほかの写真の結果である %n 個のファイル (「%1」など) を除外しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>--strength が指定されておらず、既定値も保存されていないため、%1 を使います。</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>--strength が指定されていないため、保存されている既定値（自動の強さ）を使います。</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>--strength が指定されていないため、保存されている既定値 %1 を使います。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>設定ファイル「%1」の名前が結果のファイルと同じです。別の名前にしてください。</translation>
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
        <source>&amp;Replace</source>
        <translation>置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>そのまま残す(&amp;K)</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>写真</translation>
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
    <message>
        <source>Photographs that are done</source>
        <translation>処理が終わった写真</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>結果はそれぞれの写真と同じフォルダーに書き込まれます。</translation>
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
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>中止しています。保存中の結果は最後まで保存されます。</translation>
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
        <source>Its result already existed and was kept.</source>
        <translation>結果がすでにあったため、そのまま残しました。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>変化なし</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>既存を保持</translation>
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
        <translation>残り 1 分未満</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>残り約 %n 分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>残り約 %n 時間</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>保存中</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%2 枚中 %1 枚を保存済み</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>一時停止中: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>%n 枚を保存</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>%n 枚はそのまま</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n 枚が失敗</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>%n 枚を中止</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveOptionsDialog</name>
    <message>
        <source>In this &amp;folder:</source>
        <translation>保存先フォルダー(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>選択(&amp;C)...</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>JPEG の画質(&amp;Q):</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>保存オプション</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Otherwise each result is saved beside its photograph</source>
        <translation>指定しない場合、結果はそれぞれの写真と同じフォルダーに保存されます</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>結果のフォルダー</translation>
    </message>
    <message>
        <source>&amp;Tag behind the name:</source>
        <translation>名前に付けるタグ(&amp;T):</translation>
    </message>
    <message>
        <source>Otherwise each JPEG keeps the quality of its photograph</source>
        <translation>指定しない場合、JPEG は元の写真の画質で保存されます</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG の画質</translation>
    </message>
    <message>
        <source>If a result exists already</source>
        <translation>結果がすでにある場合</translation>
    </message>
    <message>
        <source>&amp;Replace it if its strength has changed</source>
        <translation>強さが変わっていれば置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>Replace it in &amp;any case</source>
        <translation>常に置き換える(&amp;A)</translation>
    </message>
    <message>
        <source>Keep &amp;both: the new one gets a number</source>
        <translation>両方残す: 新しい結果に番号を付ける(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Keep it and save nothing</source>
        <translation>そのまま残し、保存しない(&amp;K)</translation>
    </message>
    <message>
        <source>A tag can&apos;t contain &quot;/&quot;.</source>
        <translation>タグに「/」は使えません。</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;. Choose one that exists.</source>
        <translation>フォルダー「%1」はありません。既存のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Choose another one.</source>
        <translation>フォルダー「%1」は読み取り専用です。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>%1 becomes %2.</source>
        <translation>%1 の結果は %2 になります。</translation>
    </message>
</context>
<context>
    <name>SaveQueue</name>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>結果がすでにあったため、そのまま残しました。</translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message>
        <source>edited</source>
        <translation>編集済み</translation>
    </message>
    <message>
        <source>waiting to be saved</source>
        <translation>保存待ち</translation>
    </message>
    <message>
        <source>being saved</source>
        <translation>保存中</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>changed since it was saved</source>
        <translation>保存後に変更あり</translation>
    </message>
    <message>
        <source>existing result kept</source>
        <translation>既存の結果を保持</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Strength %1 %, automatic</source>
        <translation>強さ %1%、自動</translation>
    </message>
    <message>
        <source>Strength %1 %</source>
        <translation>強さ %1%</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>カメラ RAW</translation>
    </message>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>%n 枚の写真を追加</numerusform>
        </translation>
    </message>
    <message>
        <source>Change strength</source>
        <translation>強さの変更</translation>
    </message>
    <message>
        <source>Automatic strength</source>
        <translation>自動の強さ</translation>
    </message>
    <message>
        <source>Reset strength</source>
        <translation>強さのリセット</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>%n 枚の写真を外す</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The session can&apos;t be kept in &quot;%1&quot;: %2. Make room, or give yourself permission to write there.</source>
        <translation>セッションを「%1」に保存できません: %2。空き容量を増やすか、書き込みの許可を設定してください。</translation>
    </message>
    <message>
        <source>Another window works on the settings file &quot;%1&quot;. Close it there first.</source>
        <translation>設定ファイル「%1」は別のウィンドウで使用中です。先にそのウィンドウで閉じてください。</translation>
    </message>
    <message>
        <source>The session in &quot;%1&quot; can&apos;t be read: %2. Open its photographs or a settings file instead.</source>
        <translation>「%1」のセッションを読み込めません: %2。代わりに写真または設定ファイルを開いてください。</translation>
    </message>
    <message>
        <source>Another window works on this session. Close it there first.</source>
        <translation>このセッションは別のウィンドウで使用中です。先にそのウィンドウで閉じてください。</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Check its name and folder.</source>
        <translation>設定ファイル「%1」はありません。名前とフォルダーを確認してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photographs. Give the settings file another name.</source>
        <translation>「%1」は写真のファイルです。設定ファイルには別の名前を付けてください。</translation>
    </message>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>%n 枚の写真の強さが失われます。</numerusform>
        </translation>
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
    <name>StrengthPanel</name>
    <message>
        <source>&amp;Strength</source>
        <translation>強さ(&amp;S)</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強さ</translation>
    </message>
    <message>
        <source>How much of the haze is removed</source>
        <translation>ヘイズを除去する度合い</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>強さ (パーセント)</translation>
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
        <translation>写真を追加...</translation>
    </message>
    <message>
        <source>Add photographs to the series</source>
        <translation>写真をシリーズに追加します</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>フォルダーを追加...</translation>
    </message>
    <message>
        <source>Add the photographs of a folder to the series</source>
        <translation>フォルダーの写真をシリーズに追加します</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>最初からやり直す</translation>
    </message>
    <message>
        <source>Begin an empty series; this one stays among the recent sessions</source>
        <translation>空のシリーズを始めます。今のシリーズは最近のセッションに残ります</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>セッションを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Open photographs and strengths that were saved as a session</source>
        <translation>セッションとして保存した写真と強さを開きます</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>セッションを保存</translation>
    </message>
    <message>
        <source>Save the list of photographs and their strengths</source>
        <translation>写真の一覧とそれぞれの強さを保存します</translation>
    </message>
    <message>
        <source>Save the session as...</source>
        <translation>セッションに名前を付けて保存...</translation>
    </message>
    <message>
        <source>Save the session under another name</source>
        <translation>セッションを別の名前で保存します</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>前の写真</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>次の写真</translation>
    </message>
    <message>
        <source>First photograph</source>
        <translation>最初の写真</translation>
    </message>
    <message>
        <source>Last photograph</source>
        <translation>最後の写真</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Select all photographs</source>
        <translation>すべての写真を選択します</translation>
    </message>
    <message>
        <source>Remove from the series</source>
        <translation>シリーズから外す</translation>
    </message>
    <message>
        <source>Remove the selected photographs from the series; the files stay</source>
        <translation>選択した写真をシリーズから外します。ファイルは残ります</translation>
    </message>
    <message>
        <source>Stronger</source>
        <translation>強く</translation>
    </message>
    <message>
        <source>Raise the strength by 1 per cent</source>
        <translation>強さを 1 パーセント上げます</translation>
    </message>
    <message>
        <source>Weaker</source>
        <translation>弱く</translation>
    </message>
    <message>
        <source>Lower the strength by 1 per cent</source>
        <translation>強さを 1 パーセント下げます</translation>
    </message>
    <message>
        <source>Stronger by 10</source>
        <translation>10 強く</translation>
    </message>
    <message>
        <source>Raise the strength by 10 per cent</source>
        <translation>強さを 10 パーセント上げます</translation>
    </message>
    <message>
        <source>Weaker by 10</source>
        <translation>10 弱く</translation>
    </message>
    <message>
        <source>Lower the strength by 10 per cent</source>
        <translation>強さを 10 パーセント下げます</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Give each selected photograph the strength that suits it</source>
        <translation>選択した写真それぞれに適した強さを設定します</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Go back to the strength at the start</source>
        <translation>最初の強さに戻します</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>直前の変更を元に戻します</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Make the change again that was undone</source>
        <translation>元に戻した変更をやり直します</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected</source>
        <translation>選択した写真に適用(&amp;Y)</translation>
    </message>
    <message>
        <source>Use this strength for all selected photographs</source>
        <translation>選択したすべての写真をこの強さにします</translation>
    </message>
    <message>
        <source>App&amp;ly to all</source>
        <translation>すべてに適用(&amp;L)</translation>
    </message>
    <message>
        <source>Use this strength for all photographs of the series</source>
        <translation>シリーズのすべての写真をこの強さにします</translation>
    </message>
    <message>
        <source>Use as &amp;default</source>
        <translation>既定値にする(&amp;D)</translation>
    </message>
    <message>
        <source>Start new photographs at this strength from now on</source>
        <translation>今後、新しい写真をこの強さから始めます</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Before and after in one picture, with a line to drag</source>
        <translation>処理前と処理後を、動かせる境界線のある 1 つの画像で表示します</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>並べて表示</translation>
    </message>
    <message>
        <source>Before and after side by side</source>
        <translation>処理前と処理後を並べて表示します</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Only the result</source>
        <translation>結果だけを表示します</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>処理前</translation>
    </message>
    <message>
        <source>Hold, or hold Space: the photograph as it was</source>
        <translation>押している間（スペースキーも同じ）: 元の写真</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>ヘイズマップ</translation>
    </message>
    <message>
        <source>Hold, or hold M: where haze was found</source>
        <translation>押している間（M キーも同じ）: ヘイズの検出された場所</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>クリッピング</translation>
    </message>
    <message>
        <source>Mark pixels that became black or white</source>
        <translation>黒つぶれまたは白飛びした画素を示します</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Show the whole photograph</source>
        <translation>写真全体を表示します</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Show each pixel as it is, where the pointer is</source>
        <translation>ポインターの位置を画素等倍で表示します</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200%</translation>
    </message>
    <message>
        <source>Show pixels at twice their size</source>
        <translation>画素を 2 倍の大きさで表示します</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400%</translation>
    </message>
    <message>
        <source>Show pixels at four times their size</source>
        <translation>画素を 4 倍の大きさで表示します</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Save this one</source>
        <translation>この写真を保存</translation>
    </message>
    <message>
        <source>Save the result of this photograph</source>
        <translation>この写真の結果を保存します</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>すべて保存</translation>
    </message>
    <message>
        <source>Save the results of the whole series</source>
        <translation>シリーズ全体の結果を保存します</translation>
    </message>
    <message>
        <source>Save op&amp;tions...</source>
        <translation>保存オプション(&amp;I)...</translation>
    </message>
    <message>
        <source>Folder, tag and quality of the results, and what happens to existing ones</source>
        <translation>結果のフォルダー、タグ、画質と、既存の結果の扱い</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>Finish the photographs in work and begin no other until you resume</source>
        <translation>処理中の写真を終え、再開するまで次の写真を始めません</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Stop saving; results that are complete stay</source>
        <translation>保存を中止します。保存の終わった結果は残ります</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Try again those photographs that failed</source>
        <translation>失敗した写真をもう一度処理します</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Use the whole screen, or go back to the window</source>
        <translation>画面全体に表示するか、ウィンドウに戻します</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー操作</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>すべてのキー操作を表示します</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>ウィンドウを閉じます</translation>
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
        <translation>ヘイズを除去(&amp;T)</translation>
    </message>
    <message>
        <source>Set how much haze to remove from each photograph. Hold Alt to see where the haze is.</source>
        <translation>写真ごとにヘイズを除去する度合いを決めてください。Alt キーを押している間、ヘイズのある場所が表示されます。</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>強さ (パーセント)</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>前の写真</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>次の写真</translation>
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
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1、写真 %n 枚、%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>シリーズ</translation>
    </message>
    <message>
        <source>Drag the line to compare. Hold Space: before. Left, Right: photograph. Up, Down: strength.</source>
        <translation>線をドラッグ: 比較。スペースキーを押している間: 処理前。左右キー: 写真。上下キー: 強さ。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>表示倍率</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Open, save or begin a session: photographs with their strengths</source>
        <translation>セッション（写真とそれぞれの強さ）を開く、保存する、または新しく始めます</translation>
    </message>
    <message>
        <source>&amp;Recent sessions</source>
        <translation>最近のセッション(&amp;R)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 x %2 px, %3 bits</source>
        <translation>%1 x %2 px、%3 ビット</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>結果: %1</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected (%1)</source>
        <translation>選択した写真に適用 (%1)(&amp;Y)</translation>
    </message>
    <message>
        <source>App&amp;ly to all (%1)</source>
        <translation>すべてに適用 (%1)(&amp;L)</translation>
    </message>
    <message>
        <source>Save all %1</source>
        <translation>%1 枚すべて保存</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>再開(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>一時停止(&amp;P)</translation>
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
            <numerusform>結果のファイル %n 個を除外しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photographs in the folder &quot;%1&quot;.</source>
        <translation>フォルダー「%1」に写真はありません。</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>このシリーズには、まだ保存していない写真が %n 枚あります。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Save them now</source>
        <translation>今すぐ保存(&amp;N)</translation>
    </message>
    <message>
        <source>The series is as you left it.</source>
        <translation>シリーズは前回終了したときのままです。</translation>
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
        <source>Add a folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>セッションを開く</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>設定ファイル (*.xml)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>セッションを保存</translation>
    </message>
    <message>
        <source>New photographs start at their automatic strength.</source>
        <translation>新しい写真は自動の強さから始まります。</translation>
    </message>
    <message>
        <source>New photographs start at %1 %.</source>
        <translation>新しい写真は %1% から始まります。</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>%n 枚の写真を保存できませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>Try a&amp;gain</source>
        <translation>再試行(&amp;G)</translation>
    </message>
    <message>
        <source>Saving has ended</source>
        <translation>保存が終わりました</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>それでも閉じる(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>閉じない(&amp;T)</translation>
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
