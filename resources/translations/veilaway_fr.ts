<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Son résultat « %1 » existe déjà. Indiquez --overwrite pour le remplacer.</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>Le dossier ne peut pas être lu. Donnez-vous le droit de le lire.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder or those inside it.</source>
        <translation>Ce dossier et ceux qu&apos;il contient ne renferment aucune photo.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder. Add --recursive for those in the folders inside it.</source>
        <translation>Ce dossier ne contient aucune photo. Ajoutez --recursive pour celles des sous-dossiers.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; already exists.</source>
        <translation>Ignorée : son résultat « %1 » existe déjà.</translation>
    </message>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>La photo n&apos;a pas d&apos;extension : le résultat sera un TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Le format « %1 » ne peut pas être écrit : le résultat sera un TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder for the results.</source>
        <translation>Son résultat « %1 » est le même fichier que la photo « %2 ». Déplacez l&apos;un des deux, ou choisissez un autre dossier pour les résultats.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder with --output.</source>
        <translation>Son résultat « %1 » est le même fichier que la photo « %2 ». Déplacez l&apos;un des deux, ou choisissez un autre dossier avec --output.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs, or give their results different folders.</source>
        <translation>Son résultat « %1 » serait aussi celui de « %2 ». Renommez l&apos;une des deux photos, ou donnez à leurs résultats des dossiers différents.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>Un dossier se trouve à l&apos;emplacement du résultat, « %1 ». Déplacez ce dossier.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; is newer than the photograph.</source>
        <translation>Ignorée : son résultat « %1 » est plus récent que la photo.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder for the results.</source>
        <translation>Son résultat « %1 » est protégé en écriture ou n&apos;est pas un fichier ordinaire. Déplacez-le, ou choisissez un autre dossier pour les résultats.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder with --output.</source>
        <translation>Son résultat « %1 » est protégé en écriture ou n&apos;est pas un fichier ordinaire. Déplacez-le, ou choisissez un autre dossier avec --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one for the results.</source>
        <translation>Son résultat ne peut pas être écrit : « %1 » n&apos;est pas un dossier. Choisissez-en un autre pour les résultats.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one with --output.</source>
        <translation>Son résultat ne peut pas être écrit : « %1 » n&apos;est pas un dossier. Choisissez-en un autre avec --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one for the results.</source>
        <translation>Son résultat ne peut pas être écrit : le dossier « %1 » est en lecture seule. Choisissez-en un autre pour les résultats.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one with --output.</source>
        <translation>Son résultat ne peut pas être écrit : le dossier « %1 » est en lecture seule. Choisissez-en un autre avec --output.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Le nom du résultat serait trop long. Donnez à la photo un nom plus court.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Arrêté ; aucun résultat n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation>Le module a échoué à %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire est insuffisante.</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>La photo a été modifiée, déplacée ou supprimée pendant que le voile était retiré. Remettez-la en place et recommencez.</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Fermez d&apos;autres programmes ou traitez les photos une par une (--jobs 1).</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>Libérez de la place dans le dossier « %1 » et vérifiez que vous avez le droit d&apos;y écrire.</translation>
    </message>
    <message>
        <source>The file also holds a gain map or further pictures, which don&apos;t fit the result and are left out.</source>
        <translation>Le fichier contient aussi une carte de gain ou d&apos;autres images, qui ne correspondent pas au résultat et sont écartées.</translation>
    </message>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Le résultat est enregistré, mais les données XMP de la photo n&apos;ont pas pu y être copiées : %1.</translation>
    </message>
    <message>
        <source>The result was written, but could not be given the photograph&apos;s time of modification: %1.</source>
        <translation>Le résultat a été écrit, mais la date de modification de la photo n&apos;a pas pu lui être donnée : %1.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>La photo demande environ %1 de mémoire, et %2 sont libres. Fermez d&apos;autres programmes ou réduisez la photo.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Did you mean --%1?</source>
        <translation>Vouliez-vous dire --%1 ?</translation>
    </message>
    <message>
        <source>Write &quot;./%1&quot; for the photograph of this name.</source>
        <translation>Écrivez « ./%1 » pour la photo de ce nom.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be followed by one of %2, not &quot;%3&quot;.</source>
        <translation>« %1 » doit être suivi de l&apos;un des mots %2, pas de « %3 ».</translation>
    </message>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength attend un nombre entier de 0 à 100 ou auto, pas « %1 ».</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs attend un nombre entier de 1 à %1, et non « %2 ».</translation>
    </message>
    <message>
        <source>--quality must be a whole number from 1 to 100, not &quot;%1&quot;.</source>
        <translation>--quality attend un nombre entier de 1 à 100, pas « %1 ».</translation>
    </message>
    <message>
        <source>--compression must be none, deflate or lzw, not &quot;%1&quot;.</source>
        <translation>--compression attend none, deflate ou lzw, pas « %1 ».</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>--language connaît %1, mais pas « %2 ».</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>--settings attend le nom d&apos;un fichier, en UTF-8.</translation>
    </message>
    <message>
        <source>--output must be the name of a folder or file, in UTF-8.</source>
        <translation>--output attend le nom d&apos;un dossier ou d&apos;un fichier, en UTF-8.</translation>
    </message>
    <message>
        <source>--tag is a part of a name: it must not contain a slash, and must be in UTF-8.</source>
        <translation>--tag est une partie d&apos;un nom : il ne doit pas contenir de barre oblique et doit être en UTF-8.</translation>
    </message>
    <message>
        <source>Of --skip-existing, --newer and --overwrite, only one can be used at a time.</source>
        <translation>--skip-existing, --newer et --overwrite s&apos;excluent : n&apos;en indiquez qu&apos;une.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default attend un nombre entier de 0 à 100, auto ou none, pas « %1 ».</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default enregistre la valeur par défaut et ne fait rien d&apos;autre : omettez les photos et les options qui les concernent.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with %2, which asks for it on the screen.</source>
        <translation>--%1 ne s&apos;emploie pas avec %2, qui le demande à l&apos;écran.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Indiquez les photos dont il faut retirer le voile.</translation>
    </message>
    <message>
        <source>Also read here: %1</source>
        <translation>Aussi lus ici : %1</translation>
    </message>
    <message>
        <source>Not read here, for want of a decoder: %1</source>
        <translation>Non lus ici, faute de décodeur : %1</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Voir veilaway --help.</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>La valeur par défaut ne peut pas être enregistrée dans « %1 ». Libérez de la place, ou donnez-vous le droit d&apos;y écrire.</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start it in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>La fenêtre ne peut pas être affichée : %1. Lancez-la dans une session graphique, ou depuis une autre machine avec ssh -X. Sans fenêtre, veilaway PHOTO... fait le travail.</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Recent sessions</source>
        <translation>Sessions récentes</translation>
    </message>
    <message>
        <source>Drop photographs or a folder here</source>
        <translation>Déposez des photos ou un dossier ici</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>&amp;Ajouter des photos...</translation>
    </message>
    <message>
        <source>Add a &amp;folder...</source>
        <translation>Ajouter un &amp;dossier...</translation>
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
        <translation>Photos</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramme</translation>
    </message>
    <message>
        <source>The result; dashed: the photograph as it was</source>
        <translation>Le résultat ; en tirets : la photo d&apos;origine</translation>
    </message>
    <message>
        <source>Black %1 %, white %2 %</source>
        <translation>Noir %1 %, blanc %2 %</translation>
    </message>
    <message>
        <source>black %1 %</source>
        <translation>noir %1 %</translation>
    </message>
    <message>
        <source>white %1 %</source>
        <translation>blanc %1 %</translation>
    </message>
</context>
<context>
    <name>KeySheet</name>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>Fermer le message</translation>
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
    <name>OptionTable</name>
    <message>
        <source>veilaway takes the haze out of photographs.</source>
        <translation>veilaway retire le voile atmosphérique des photos.</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Utilisation :</translation>
    </message>
    <message>
        <source>PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for such a list on standard input.</source>
        <translation>PHOTO est une photo, un dossier de photos, @FILE pour un fichier qui en donne la liste, une par ligne, ou - pour une telle liste sur l&apos;entrée standard.</translation>
    </message>
    <message>
        <source>Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.</source>
        <translation>Chaque résultat est écrit à côté de sa photo, sous le nom de celle-ci suivi d&apos;un suffixe : hills.jpg devient hills_dehazed.jpg. La photo elle-même n&apos;est jamais modifiée. Le suffixe suit la langue : _entnebelt avec --language de, par exemple.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commandes :</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options :</translation>
    </message>
    <message>
        <source>Everything that follows is a photograph, even if it begins with a dash.</source>
        <translation>Tout ce qui suit est une photo, même si cela commence par un tiret.</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>Formats :</translation>
    </message>
    <message>
        <source>Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.</source>
        <translation>Lus et écrits : JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) et PSD. Un résultat a le format de sa photo, sa profondeur (8 ou 16 bits, ou flottante), son profil de couleurs, ses données EXIF, IPTC et XMP. L&apos;orientation EXIF est conservée : le résultat s&apos;affiche dans le même sens.</translation>
    </message>
    <message>
        <source>Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others), whose result is a 16-bit TIFF, and, where --version names them, HEIC (heic, heif, hif), AVIF, WebP and JPEG XL (jxl), whose result is a TIFF of their depth. Photographs with any other suffix, or none, become a TIFF too.</source>
        <translation>Lus seulement : les fichiers bruts (dng, cr2, nef, arw, raf, orf, rw2 et autres), dont le résultat est un TIFF de 16 bits, et, si --version les nomme, HEIC (heic, heif, hif), AVIF, WebP et JPEG XL (jxl), dont le résultat est un TIFF de même profondeur. Les photos avec une autre extension, ou sans extension, deviennent aussi un TIFF.</translation>
    </message>
    <message>
        <source>XMP sidecar files are not read and stay where they are.</source>
        <translation>Les fichiers XMP annexes ne sont pas lus et restent à leur place.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Code de retour :</translation>
    </message>
    <message>
        <source>All photographs are done, skipped as requested, or came back unchanged (a message says why).</source>
        <translation>Toutes les photos sont faites, ignorées comme demandé ou restées inchangées (un message dit pourquoi).</translation>
    </message>
    <message>
        <source>Some are not: standard error says which, why, and what helps. Or standard output could not be written.</source>
        <translation>Certaines ne le sont pas : la sortie d&apos;erreur dit lesquelles, pourquoi et que faire. Ou la sortie standard n&apos;a pas pu être écrite.</translation>
    </message>
    <message>
        <source>The command line or the settings file is wrong; nothing was begun.</source>
        <translation>La ligne de commande ou le fichier de réglages est incorrect ; rien n&apos;a été commencé.</translation>
    </message>
    <message>
        <source>Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.</source>
        <translation>Ctrl-C termine le programme par ce signal (130 dans un shell), sans laisser de résultat incomplet.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Exemples :</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Impossible d&apos;ouvrir le fichier. Vérifiez qu&apos;il existe et que vous avez le droit de le lire.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>C&apos;est une vidéo. Le voile ne peut être retiré que de photos ; enregistrez-en une image en JPEG, PNG ou TIFF.</translation>
    </message>
    <message>
        <source>It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>C&apos;est une animation. Le voile ne peut être retiré que de photos ; enregistrez-en une image en JPEG, PNG ou TIFF.</translation>
    </message>
    <message>
        <source>This installation can&apos;t decode its format; veilaway --version says which formats it can. Convert the photograph to JPEG, PNG or TIFF.</source>
        <translation>Cette installation ne peut pas décoder son format ; veilaway --version dit lesquels elle peut décoder. Convertissez la photo en JPEG, PNG ou TIFF.</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>Ce n&apos;est pas une image d&apos;un format connu, ou pas de celui que son extension indique. %1 et les fichiers bruts peuvent être lus ; donnez au fichier l&apos;extension de son format, ou convertissez-le.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Le fichier est tronqué ou endommagé. Copiez-le de nouveau depuis l&apos;appareil photo ou une sauvegarde.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs and try again.</source>
        <translation>La mémoire est insuffisante pour cette photo. Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>La mémoire est insuffisante pour cette photo. Fermez d&apos;autres programmes ou traitez les photos une par une (--jobs 1).</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs and try again.</source>
        <translation>La mémoire est insuffisante pour ce fichier RAW. Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>La mémoire est insuffisante pour ce fichier RAW. Fermez d&apos;autres programmes ou traitez les photos une par une (--jobs 1).</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>Impossible de développer le fichier RAW : %1. Copiez-le de nouveau ou convertissez-le en DNG ou en TIFF.</translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Ce type de pixels ne peut pas être lu. Enregistrez la photo en RVB 8 ou 16 bits et réessayez.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Un nom vide ne désigne aucune photo.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Son nom ou celui d&apos;un dossier contient des caractères qui ne sont pas de l&apos;UTF-8. Renommez-la.</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be opened. Give yourself the permission to open it.</source>
        <translation>Son dossier ne peut pas être ouvert. Donnez-vous le droit de l&apos;ouvrir.</translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>Le lien ne mène nulle part. Indiquez la photo elle-même.</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>Ce fichier n&apos;existe pas. Vérifiez son nom et son dossier.</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>C&apos;est un dossier. Indiquez les photos qu&apos;il contient, par exemple « %1 ».</translation>
    </message>
    <message>
        <source>This is not a regular file. Copy the photograph into one.</source>
        <translation>Ce n&apos;est pas un fichier ordinaire. Copiez la photo dans un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>Impossible de lire le fichier. Accordez-vous le droit de le lire.</translation>
    </message>
    <message>
        <source>The file is empty. Copy it again from the camera or a backup.</source>
        <translation>Le fichier est vide. Copiez-le de nouveau depuis l&apos;appareil photo ou une sauvegarde.</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Choose the photographs to remove haze from, or drop them here. They are never changed: each result is saved beside its photograph.</source>
        <translation>Choisissez les photos dont il faut retirer le voile, ou déposez-les ici. Elles restent intactes : chaque résultat est enregistré à côté de sa photo.</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>&amp;Ajouter des photos...</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>&amp;Ouvrir une session...</translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation>Un fichier de réglages contenant des photos et la puissance de chacune</translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation>%1 : ce dossier ne contient aucune photo.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1 : c&apos;est le résultat d&apos;une autre photo de la liste.</numerusform>
            <numerusform>%n résultats d&apos;autres photos de la liste, par exemple « %1 ».</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>Lecture de %n photo...</numerusform>
            <numerusform>Lecture de %n photos...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... et %n autre</numerusform>
            <numerusform>... et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Écartées :</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>Ajouter des photos</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Photos (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Ouvrir une session</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Fichiers de réglages (*.xml)</translation>
    </message>
</context>
<context>
    <name>PhotoStore</name>
    <message>
        <source>There is not enough memory for it. Close other programs, or scale the photograph down.</source>
        <translation>Il n&apos;y a pas assez de mémoire pour elle. Fermez d&apos;autres programmes, ou réduisez la photo.</translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>La photo est trop grande : le voile ne peut être retiré que de photos dont la largeur ou la hauteur ne dépasse pas %1 pixels. Réduisez-la ou découpez-la en plusieurs parties.</translation>
    </message>
</context>
<context>
    <name>PhotographList</name>
    <message>
        <source>The list &quot;%1&quot; can&apos;t be read: %2. Check its name, or write ./@... for a photograph whose name begins with @.</source>
        <translation>La liste « %1 » ne peut pas être lue : %2. Vérifiez son nom, ou écrivez ./@... pour une photo dont le nom commence par @.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.</source>
        <translation>La liste « %1 » contient des octets nuls. Ajoutez --null (-0) si les noms se terminent ainsi, ou enregistrez-la comme texte en UTF-8.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds no null bytes. Leave out --null (-0) if it has one name per line.</source>
        <translation>La liste « %1 » ne contient pas d&apos;octets nuls. Omettez --null (-0) si elle a un nom par ligne.</translation>
    </message>
</context>
<context>
    <name>PictureRenderer</name>
    <message>
        <source>There is not enough memory for this picture. Close other programs.</source>
        <translation>Il n&apos;y a pas assez de mémoire pour cette image. Fermez d&apos;autres programmes.</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Photograph</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Hold: the photograph before</source>
        <translation>Maintenir : la photo avant</translation>
    </message>
    <message>
        <source>Hold: the haze map; Alt does the same</source>
        <translation>Maintenir : la carte du voile ; Alt fait de même</translation>
    </message>
    <message>
        <source>Move over the photograph</source>
        <translation>Se déplacer sur la photo</translation>
    </message>
    <message>
        <source>Move the line between before and after</source>
        <translation>Déplacer la ligne entre avant et après</translation>
    </message>
    <message>
        <source>Before, zoom %1 %</source>
        <translation>Avant, zoom %1 %</translation>
    </message>
    <message>
        <source>Haze map, zoom %1 %</source>
        <translation>Carte du voile, zoom %1 %</translation>
    </message>
    <message>
        <source>After %1 %, zoom %2 %</source>
        <translation>Après %1 %, zoom %2 %</translation>
    </message>
    <message>
        <source>Before and after %1 %, zoom %2 %</source>
        <translation>Avant et après %1 %, zoom %2 %</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Carte du voile</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After %1 %</source>
        <translation>Après %1 %</translation>
    </message>
    <message>
        <source>Estimating the haze</source>
        <translation>Estimation du voile</translation>
    </message>
    <message>
        <source>Reading the photograph</source>
        <translation>Lecture de la photo</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>Le module « %1 » est introuvable. Compilez-le, installez-le, ou indiquez son emplacement avec --plugin FICHIER.</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation> » ou « </translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>c&apos;est un module d&apos;un autre type</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>Impossible d&apos;utiliser le module « %1 » : %2. Réinstallez-le ou indiquez-en un autre avec --plugin FICHIER.</translation>
    </message>
</context>
<context>
    <name>PrivateRun</name>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder for the results.</source>
        <translation>Aucun fichier ne peut être créé dans le dossier « %1 » : %2. Libérez-y de la place, ou choisissez un autre dossier pour les résultats.</translation>
    </message>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder with --output.</source>
        <translation>Aucun fichier ne peut être créé dans le dossier « %1 » : %2. Libérez-y de la place, ou choisissez un autre dossier avec --output.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2.</source>
        <translation>« %1 » ne peut pas être écrit : %2.</translation>
    </message>
    <message>
        <source>A link to the photograph can&apos;t be created, neither in the folder of its result nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Un lien vers la photo ne peut être créé ni dans le dossier de son résultat ni dans « %1 ». Libérez-y de la place et vérifiez que vous pouvez y écrire.</translation>
    </message>
    <message>
        <source>Its %1 bits per channel don&apos;t fit into a file of this format. Choose a name that ends in .tif, .psd or, for up to 16 bits, .png.</source>
        <translation>Ses %1 bits par canal n&apos;entrent pas dans un fichier de ce format. Choisissez un nom en .tif, .psd ou, jusqu&apos;à 16 bits, .png.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Le module a écrit « %1 » au lieu de « %2 »</translation>
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
        <translation>Impossible d&apos;écrire sur la sortie standard : %1. Libérez de la place, ou envoyez-la ailleurs.</translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %, %2 s</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1 : %2 (%3)</translation>
    </message>
    <message>
        <source>automatic strength</source>
        <translation>puissance automatique</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1: %2 (%3 x %4 pixels, %5 of memory, %6)</source>
        <translation>%1 : %2 (%3 x %4 pixels, %5 de mémoire, %6)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>%n photo serait traitée.</numerusform>
            <numerusform>%n photos seraient traitées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n photo traitée.</numerusform>
            <numerusform>%n photos traitées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n restée inchangée.</numerusform>
            <numerusform>%n restées inchangées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>%n ignorée.</numerusform>
            <numerusform>%n ignorées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>%n en échec.</numerusform>
            <numerusform>%n en échec.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>%n non commencée.</numerusform>
            <numerusform>%n non commencées.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>, encore %1</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>enregistrement : %1</translation>
    </message>
    <message>
        <source>removing haze: %1</source>
        <translation>retrait du voile : %1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>lecture : %1</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;result</source>
        <translation>Ouvrir le &amp;résultat</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>Ouvrir le &amp;dossier</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Show the result in the program that opens such pictures</source>
        <translation>Montrer le résultat dans le programme qui ouvre ces images</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>&amp;Enregistrer la session...</translation>
    </message>
    <message>
        <source>Save the photographs and the strength of each in a settings file</source>
        <translation>Conserver les photos et la puissance de chacune dans un fichier de réglages</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>Reco&amp;mmencer</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Choisir d&apos;autres photos</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Toutes les photos sont traitées.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Photos traitées : %1 sur %2.</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Arrêt en cours ; le fichier en cours d&apos;enregistrement est terminé. Appuyez encore sur Ctrl-C pour quitter immédiatement.</translation>
    </message>
    <message>
        <source>Remove haze</source>
        <translation>Retirer le voile</translation>
    </message>
    <message>
        <source>There is no desktop that shows notifications.</source>
        <translation>Aucun bureau ne peut afficher de notification.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>Le fichier de réglages « %1 » ne cite aucune photo. Indiquez-en.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>Le fichier de réglages « %1 » n&apos;existe pas. Indiquez des photos pour le créer.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>Impossible d&apos;écrire le fichier de réglages « %1 » à cet endroit. Indiquez-en un dans un autre dossier.</translation>
    </message>
    <message>
        <source>The list names no photographs: there is nothing to do.</source>
        <translation>La liste ne nomme aucune photo : il n&apos;y a rien à faire.</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists and is not a folder. Name another one.</source>
        <translation>--output : « %1 » existe et n&apos;est pas un dossier. Indiquez-en un autre.</translation>
    </message>
    <message>
        <source>--output: results can&apos;t be written as &quot;%1&quot;. Choose a name that ends in one of %2.</source>
        <translation>--output : les résultats ne peuvent pas être écrits sous « %1 ». Choisissez un nom finissant par l&apos;un de %2.</translation>
    </message>
    <message>
        <source>--output names the file &quot;%1&quot;, but there are %2 photographs. Name a folder, such as &quot;%3&quot;.</source>
        <translation>--output nomme le fichier « %1 », mais il y a %2 photos. Indiquez un dossier, par exemple « %3 ».</translation>
    </message>
    <message>
        <source>--tag is for results that get their names from their photographs: leave it out, or name a folder as --output.</source>
        <translation>--tag s&apos;applique aux résultats nommés d&apos;après leurs photos : omettez-le, ou indiquez un dossier dans --output.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>« %1 » est laissé de côté : c&apos;est le résultat d&apos;une autre des photos.</numerusform>
            <numerusform>%n fichiers sont laissés de côté, car ce sont des résultats des autres photos, par exemple « %1 ».</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>--strength non indiqué et aucune valeur par défaut enregistrée : %1 est utilisé.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>Pas de --strength : votre valeur par défaut enregistrée est utilisée, la puissance automatique.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>--strength non indiqué : votre valeur par défaut enregistrée, %1, est utilisée.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Le fichier de réglages « %1 » porte le nom d&apos;un résultat. Donnez-lui un autre nom.</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Removing haze</source>
        <translation>Retrait du voile</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Conserver</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Photographs that are done</source>
        <translation>Photos terminées</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Chaque résultat est enregistré à côté de sa photo.</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>%n résultat d&apos;un traitement précédent existe déjà.</numerusform>
            <numerusform>%n résultats d&apos;un traitement précédent existent déjà.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v sur %m</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Arrêt en cours. L&apos;enregistrement d&apos;un résultat déjà commencé se termine d&apos;abord.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Son résultat existait déjà et a été conservé.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Inchangée</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
</context>
<context>
    <name>SaveBar</name>
    <message>
        <source>less than a minute left</source>
        <translation>encore moins d&apos;une minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>encore %n minute environ</numerusform>
            <numerusform>encore %n minutes environ</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>encore %n heure environ</numerusform>
            <numerusform>encore %n heures environ</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 sur %2 enregistrées</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>En pause : %1</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>%n photo enregistrée</numerusform>
            <numerusform>%n photos enregistrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>%n conservée</numerusform>
            <numerusform>%n conservées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n en échec</numerusform>
            <numerusform>%n en échec</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>%n arrêtée</numerusform>
            <numerusform>%n arrêtées</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveOptionsDialog</name>
    <message>
        <source>In this &amp;folder:</source>
        <translation>Dans ce &amp;dossier :</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>&amp;Choisir...</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>&amp;Qualité JPEG :</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>Options d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Otherwise each result is saved beside its photograph</source>
        <translation>Sinon, chaque résultat est enregistré à côté de sa photo</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>Dossier des résultats</translation>
    </message>
    <message>
        <source>&amp;Tag behind the name:</source>
        <translation>&amp;Suffixe après le nom :</translation>
    </message>
    <message>
        <source>Otherwise each JPEG keeps the quality of its photograph</source>
        <translation>Sinon, chaque JPEG garde la qualité de sa photo</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Qualité JPEG</translation>
    </message>
    <message>
        <source>If a result exists already</source>
        <translation>Si un résultat existe déjà</translation>
    </message>
    <message>
        <source>&amp;Replace it if its strength has changed</source>
        <translation>Le &amp;remplacer si sa puissance a changé</translation>
    </message>
    <message>
        <source>Replace it in &amp;any case</source>
        <translation>Le remplacer dans &amp;tous les cas</translation>
    </message>
    <message>
        <source>Keep &amp;both: the new one gets a number</source>
        <translation>Garder &amp;les deux : le nouveau reçoit un numéro</translation>
    </message>
    <message>
        <source>&amp;Keep it and save nothing</source>
        <translation>Le &amp;garder et ne rien enregistrer</translation>
    </message>
    <message>
        <source>A tag can&apos;t contain &quot;/&quot;.</source>
        <translation>Un suffixe ne peut pas contenir « / ».</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;. Choose one that exists.</source>
        <translation>Il n&apos;y a pas de dossier « %1 ». Choisissez-en un qui existe.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Choose another one.</source>
        <translation>Le dossier « %1 » est en lecture seule. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>%1 becomes %2.</source>
        <translation>%1 devient %2.</translation>
    </message>
</context>
<context>
    <name>SaveQueue</name>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Son résultat existait déjà et a été conservé.</translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message>
        <source>edited</source>
        <translation>modifiée</translation>
    </message>
    <message>
        <source>waiting to be saved</source>
        <translation>en attente d&apos;enregistrement</translation>
    </message>
    <message>
        <source>being saved</source>
        <translation>en cours d&apos;enregistrement</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>enregistrée</translation>
    </message>
    <message>
        <source>changed since it was saved</source>
        <translation>modifiée depuis l&apos;enregistrement</translation>
    </message>
    <message>
        <source>existing result kept</source>
        <translation>résultat existant conservé</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>échec</translation>
    </message>
    <message>
        <source>Strength %1 %, automatic</source>
        <translation>Puissance %1 %, automatique</translation>
    </message>
    <message>
        <source>Strength %1 %</source>
        <translation>Puissance %1 %</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>Fichier brut</translation>
    </message>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>Ajouter %n photo</numerusform>
            <numerusform>Ajouter %n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Change strength</source>
        <translation>Changer la puissance</translation>
    </message>
    <message>
        <source>Automatic strength</source>
        <translation>Puissance automatique</translation>
    </message>
    <message>
        <source>Reset strength</source>
        <translation>Réinitialiser la puissance</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>Retirer %n photo</numerusform>
            <numerusform>Retirer %n photos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The session can&apos;t be kept in &quot;%1&quot;: %2. Make room, or give yourself permission to write there.</source>
        <translation>La session ne peut pas être conservée dans « %1 » : %2. Libérez de la place, ou donnez-vous le droit d&apos;y écrire.</translation>
    </message>
    <message>
        <source>Another window works on the settings file &quot;%1&quot;. Close it there first.</source>
        <translation>Une autre fenêtre utilise le fichier de réglages « %1 ». Fermez-le d&apos;abord là-bas.</translation>
    </message>
    <message>
        <source>The session in &quot;%1&quot; can&apos;t be read: %2. Open its photographs or a settings file instead.</source>
        <translation>La session dans « %1 » ne peut pas être lue : %2. Ouvrez plutôt ses photos ou un fichier de réglages.</translation>
    </message>
    <message>
        <source>Another window works on this session. Close it there first.</source>
        <translation>Une autre fenêtre utilise cette session. Fermez-la d&apos;abord là-bas.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Check its name and folder.</source>
        <translation>Il n&apos;y a pas de fichier de réglages « %1 ». Vérifiez son nom et son dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photographs. Give the settings file another name.</source>
        <translation>« %1 » est l&apos;une des photos. Donnez un autre nom au fichier de réglages.</translation>
    </message>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>La puissance de %n photo serait perdue.</numerusform>
            <numerusform>Les puissances de %n photos seraient perdues.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>Plus aucune valeur par défaut n&apos;est enregistrée ; sans --strength, c&apos;est %1 pour cent.</translation>
    </message>
    <message>
        <source>From now on, each photograph gets its automatic strength.</source>
        <translation>Désormais, chaque photo reçoit sa puissance automatique.</translation>
    </message>
    <message>
        <source>From now on, the default strength is %1 per cent.</source>
        <translation>Désormais, la puissance par défaut est de %1 pour cent.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation>Impossible d&apos;utiliser le fichier de réglages « %1 » : %2. Réparez-le ou indiquez-en un autre.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c&apos;est un dossier</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>ligne %1, colonne %2 : %3</translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation>son élément racine n&apos;est pas &lt;%1&gt;</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %1</translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation>%1 : une photo sans chemin</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1 : « %2 » y figure deux fois</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1 : la photo requiert &lt;%2 %3=&quot;...&quot;/&gt; avec un nombre entier de 0 à 100</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>Impossible d&apos;écrire le fichier de réglages « %1 » : %2. Libérez de la place ou accordez-vous le droit d&apos;écrire à cet endroit.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>Le fichier de réglages « %1 » ne peut pas contenir la photo « %2 » : son nom contient des caractères de contrôle. Renommez-la.</translation>
    </message>
</context>
<context>
    <name>StrengthPanel</name>
    <message>
        <source>&amp;Strength</source>
        <translation>&amp;Puissance</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>How much of the haze is removed</source>
        <translation>La part du voile qui est retirée</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Puissance en pour cent</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>Add photographs...</source>
        <translation>Ajouter des photos...</translation>
    </message>
    <message>
        <source>Add photographs to the series</source>
        <translation>Ajouter des photos à la série</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Ajouter un dossier...</translation>
    </message>
    <message>
        <source>Add the photographs of a folder to the series</source>
        <translation>Ajouter les photos d&apos;un dossier à la série</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Begin an empty series; this one stays among the recent sessions</source>
        <translation>Commencer une série vide ; celle-ci reste parmi les sessions récentes</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>&amp;Ouvrir une session...</translation>
    </message>
    <message>
        <source>Open photographs and strengths that were saved as a session</source>
        <translation>Ouvrir des photos et des puissances enregistrées comme session</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Enregistrer la session</translation>
    </message>
    <message>
        <source>Save the list of photographs and their strengths</source>
        <translation>Enregistrer la liste des photos et leurs puissances</translation>
    </message>
    <message>
        <source>Save the session as...</source>
        <translation>Enregistrer la session sous...</translation>
    </message>
    <message>
        <source>Save the session under another name</source>
        <translation>Enregistrer la session sous un autre nom</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Photo précédente</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>First photograph</source>
        <translation>Première photo</translation>
    </message>
    <message>
        <source>Last photograph</source>
        <translation>Dernière photo</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Select all photographs</source>
        <translation>Sélectionner toutes les photos</translation>
    </message>
    <message>
        <source>Remove from the series</source>
        <translation>Retirer de la série</translation>
    </message>
    <message>
        <source>Remove the selected photographs from the series; the files stay</source>
        <translation>Retirer de la série les photos sélectionnées ; les fichiers restent</translation>
    </message>
    <message>
        <source>Stronger</source>
        <translation>Plus fort</translation>
    </message>
    <message>
        <source>Raise the strength by 1 per cent</source>
        <translation>Augmenter la puissance de 1 pour cent</translation>
    </message>
    <message>
        <source>Weaker</source>
        <translation>Moins fort</translation>
    </message>
    <message>
        <source>Lower the strength by 1 per cent</source>
        <translation>Diminuer la puissance de 1 pour cent</translation>
    </message>
    <message>
        <source>Stronger by 10</source>
        <translation>Plus fort de 10</translation>
    </message>
    <message>
        <source>Raise the strength by 10 per cent</source>
        <translation>Augmenter la puissance de 10 pour cent</translation>
    </message>
    <message>
        <source>Weaker by 10</source>
        <translation>Moins fort de 10</translation>
    </message>
    <message>
        <source>Lower the strength by 10 per cent</source>
        <translation>Diminuer la puissance de 10 pour cent</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Give each selected photograph the strength that suits it</source>
        <translation>Donner à chaque photo sélectionnée la puissance qui lui convient</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Go back to the strength at the start</source>
        <translation>Revenir à la puissance de départ</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Annuler la dernière modification</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Make the change again that was undone</source>
        <translation>Rétablir la modification annulée</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected</source>
        <translation>Appliquer à la &amp;sélection</translation>
    </message>
    <message>
        <source>Use this strength for all selected photographs</source>
        <translation>Utiliser cette puissance pour toutes les photos sélectionnées</translation>
    </message>
    <message>
        <source>App&amp;ly to all</source>
        <translation>Appli&amp;quer à toutes</translation>
    </message>
    <message>
        <source>Use this strength for all photographs of the series</source>
        <translation>Utiliser cette puissance pour toutes les photos de la série</translation>
    </message>
    <message>
        <source>Use as &amp;default</source>
        <translation>Utiliser par &amp;défaut</translation>
    </message>
    <message>
        <source>Start new photographs at this strength from now on</source>
        <translation>Commencer désormais les nouvelles photos à cette puissance</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Partagé</translation>
    </message>
    <message>
        <source>Before and after in one picture, with a line to drag</source>
        <translation>Avant et après dans une image, avec une ligne à déplacer</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Côte à côte</translation>
    </message>
    <message>
        <source>Before and after side by side</source>
        <translation>Avant et après côte à côte</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Only the result</source>
        <translation>Seulement le résultat</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Hold, or hold Space: the photograph as it was</source>
        <translation>Maintenir, ou maintenir Espace : la photo d&apos;origine</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Carte du voile</translation>
    </message>
    <message>
        <source>Hold, or hold M: where haze was found</source>
        <translation>Maintenir, ou maintenir M : où du voile a été trouvé</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Écrêtage</translation>
    </message>
    <message>
        <source>Mark pixels that became black or white</source>
        <translation>Marquer les pixels devenus noirs ou blancs</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Show the whole photograph</source>
        <translation>Montrer la photo entière</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show each pixel as it is, where the pointer is</source>
        <translation>Montrer chaque pixel tel qu&apos;il est, là où se trouve le pointeur</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>Show pixels at twice their size</source>
        <translation>Montrer les pixels au double de leur taille</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show pixels at four times their size</source>
        <translation>Montrer les pixels à quatre fois leur taille</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Save this one</source>
        <translation>Enregistrer celle-ci</translation>
    </message>
    <message>
        <source>Save the result of this photograph</source>
        <translation>Enregistrer le résultat de cette photo</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>Save the results of the whole series</source>
        <translation>Enregistrer les résultats de toute la série</translation>
    </message>
    <message>
        <source>Save op&amp;tions...</source>
        <translation>Op&amp;tions d&apos;enregistrement...</translation>
    </message>
    <message>
        <source>Folder, tag and quality of the results, and what happens to existing ones</source>
        <translation>Dossier, suffixe et qualité des résultats, et sort de ceux qui existent</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pa&amp;use</translation>
    </message>
    <message>
        <source>Finish the photographs in work and begin no other until you resume</source>
        <translation>Finir les photos en cours et n&apos;en commencer aucune autre avant la reprise</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop saving; results that are complete stay</source>
        <translation>Arrêter l&apos;enregistrement ; les résultats complets restent</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Try again those photographs that failed</source>
        <translation>Réessayer les photos qui ont échoué</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Use the whole screen, or go back to the window</source>
        <translation>Utiliser tout l&apos;écran, ou revenir à la fenêtre</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>Montrer toutes les touches</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fermer la fenêtre</translation>
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
        <translation>Retirer le &amp;voile</translation>
    </message>
    <message>
        <source>Set how much haze to remove from each photograph. Hold Alt to see where the haze is.</source>
        <translation>Réglez combien de voile retirer de chaque photo. Maintenez Alt pour voir où se trouve le voile.</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Puissance en pour cent</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Photo précédente</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Photo suivante</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Enregistrer la session</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Fichiers de réglages (*.xml)</translation>
    </message>
</context>
<context>
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1, %n photo, %2</numerusform>
            <numerusform>%1, %n photos, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Série</translation>
    </message>
    <message>
        <source>Drag the line to compare. Hold Space: before. Left, Right: photograph. Up, Down: strength.</source>
        <translation>Tirer la ligne : comparer. Maintenir Espace : avant. Gauche, droite : photo. Haut, bas : puissance.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Open, save or begin a session: photographs with their strengths</source>
        <translation>Ouvrir, enregistrer ou commencer une session : des photos avec leurs puissances</translation>
    </message>
    <message>
        <source>&amp;Recent sessions</source>
        <translation>Sessions &amp;récentes</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 x %2 px, %3 bits</source>
        <translation>%1 x %2 px, %3 bits</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>Résultat : %1</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected (%1)</source>
        <translation>Appliquer à la &amp;sélection (%1)</translation>
    </message>
    <message>
        <source>App&amp;ly to all (%1)</source>
        <translation>Appli&amp;quer à toutes (%1)</translation>
    </message>
    <message>
        <source>Save all %1</source>
        <translation>Enregistrer les %1</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Reprendre</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pa&amp;use</translation>
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
            <numerusform>%n résultat écarté.</numerusform>
            <numerusform>%n résultats écartés.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photographs in the folder &quot;%1&quot;.</source>
        <translation>Le dossier « %1 » ne contient aucune photo.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>%n photo de cette série restait à enregistrer.</numerusform>
            <numerusform>%n photos de cette série restaient à enregistrer.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Save them now</source>
        <translation>&amp;Les enregistrer maintenant</translation>
    </message>
    <message>
        <source>The series is as you left it.</source>
        <translation>La série est telle que vous l&apos;avez laissée.</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>Ajouter des photos</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Photos (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Ouvrir une session</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Fichiers de réglages (*.xml)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Enregistrer la session</translation>
    </message>
    <message>
        <source>New photographs start at their automatic strength.</source>
        <translation>Les nouvelles photos commencent à leur puissance automatique.</translation>
    </message>
    <message>
        <source>New photographs start at %1 %.</source>
        <translation>Les nouvelles photos commencent à %1 %.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>%n photo n&apos;a pas pu être enregistrée.</numerusform>
            <numerusform>%n photos n&apos;ont pas pu être enregistrées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Try a&amp;gain</source>
        <translation>Réessa&amp;yer</translation>
    </message>
    <message>
        <source>Saving has ended</source>
        <translation>L&apos;enregistrement est terminé</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>&amp;Fermer quand même</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>R&amp;ester</translation>
    </message>
</context>
<context>
    <name>whyUnchanged</name>
    <message>
        <source>It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, or no pixel has a usable colour. Crop it, or repair its colours in an image editor.</source>
        <translation>La photo est revenue telle quelle, car aucun voile n&apos;a pu être mesuré : un côté est plus de 100 000 fois plus long que l&apos;autre, ou aucun pixel n&apos;a de couleur utilisable. Recadrez la photo, ou corrigez ses couleurs dans un éditeur d&apos;images.</translation>
    </message>
    <message>
        <source>It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or memory ran short. Repair those pixels in an image editor, or close other programs and try again.</source>
        <translation>La photo est revenue telle quelle, car le voile n&apos;a pas pu être calculé : certains pixels ont des valeurs infinies ou indéfinies, ou la mémoire a manqué. Corrigez ces pixels dans un éditeur d&apos;images, ou fermez d&apos;autres programmes et recommencez.</translation>
    </message>
</context>
</TS>
