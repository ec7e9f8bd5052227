<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>La photo n&apos;a pas d&apos;extension&#xa0;: le résultat sera un TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Le format «&#xa0;%1&#xa0;» ne peut pas être écrit&#xa0;: le résultat sera un TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation>Son résultat «&#xa0;%1&#xa0;» est le même fichier que la photo «&#xa0;%2&#xa0;». Déplacez l&apos;un des deux.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs.</source>
        <translation>Son résultat «&#xa0;%1&#xa0;» serait aussi celui de «&#xa0;%2&#xa0;». Renommez l&apos;une des deux photos.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>Un dossier se trouve à l&apos;emplacement du résultat, «&#xa0;%1&#xa0;». Déplacez ce dossier.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Son résultat «&#xa0;%1&#xa0;» existe déjà. Indiquez --overwrite pour le remplacer.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation>Impossible d&apos;écrire le résultat&#xa0;: le dossier «&#xa0;%1&#xa0;» est en lecture seule. Copiez la photo dans un autre dossier.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Le nom du résultat serait trop long. Donnez à la photo un nom plus court.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Le résultat est enregistré, mais les données XMP de la photo n&apos;ont pas pu y être copiées&#xa0;: %1.</translation>
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
        <source>Stopped; no result was written.</source>
        <translation>Arrêté&#xa0;; aucun résultat n&apos;a été écrit.</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Fermez d&apos;autres programmes ou traitez les photos une par une (--jobs 1).</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>Libérez de la place dans le dossier «&#xa0;%1&#xa0;» et vérifiez que vous avez le droit d&apos;y écrire.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Le module a écrit «&#xa0;%1&#xa0;» au lieu de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>La photo a été modifiée, déplacée ou supprimée pendant que le voile était retiré. Remettez-la en place et recommencez.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>La photo demande environ %1 de mémoire, et %2 sont libres. Fermez d&apos;autres programmes ou réduisez la photo.</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength attend un nombre entier de 0 à 100 ou auto, pas «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs attend un nombre entier de 1 à %1, et non «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>--language connaît %1, mais pas «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>--settings attend le nom d&apos;un fichier, en UTF-8.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with the wizard, which asks in its window.</source>
        <translation>--%1 ne s&apos;applique pas à l&apos;assistant, qui pose la question dans sa fenêtre.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Indiquez les photos dont il faut retirer le voile.</translation>
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
        <translation>veilaway retire le voile atmosphérique des photos.

Utilisation&#xa0;:
  veilaway [run] PHOTO... [options]
  veilaway [run] --settings FICHIER [options]
  veilaway wizard [PHOTO...] [options]
  veilaway --set-default N|auto|none
  veilaway --help | --version

Chaque résultat est enregistré à côté de sa photo, sous le nom de celle-ci suivi d&apos;un suffixe&#xa0;: hills.jpg devient hills_dehazed.jpg. La photo elle-même n&apos;est jamais modifiée. Le suffixe dépend de la langue&#xa0;: _entnebelt avec --language de, par exemple.

L&apos;assistant ouvre une fenêtre&#xa0;: choisissez les photos, réglez la puissance de chacune avec un aperçu en direct, retirez le voile et comparez. Il accepte --settings (le fichier contient ensuite les puissances), --language, --jobs, --share-services et --plugin.

Options&#xa0;:
  --strength N        Quantité de voile à retirer, en pour cent&#xa0;: 0 laisse l&apos;image telle quelle, 100 retire tout, et auto s&apos;adapte à chaque photo&#xa0;: de 50 pour une photo sombre à 80 pour une claire. Sans cette option, c&apos;est la puissance du fichier de réglages qui compte, sinon votre valeur par défaut enregistrée, sinon 70.
  --set-default N     Enregistrer cette valeur par défaut, un nombre ou auto, ou la retirer par none. Ne fait rien d&apos;autre.
  --settings FICHIER  Conserver la puissance de chaque photo dans ce fichier XML. Si le fichier existe, ses puissances sont utilisées, sauf si --strength est aussi indiqué&#xa0;; à la fin, il contient les puissances utilisées. Sans PHOTO, toutes les photos du fichier sont traitées.
  --language LANG     Langue des messages et du suffixe&#xa0;: de, en, es, fr, it, ja, pl, ru, zh_CN ou zh_TW. Sans cette option, celle du système.
  --jobs N            Nombre de photos traitées en même temps. Sans cette option, autant qu&apos;il en faut pour occuper tous les cœurs et qu&apos;en permet la mémoire.
  --overwrite         Remplacer les résultats qui existent déjà.
  --quiet             Ne signaler que les échecs.
  --json              Écrire pour chaque photo une ligne avec un objet JSON&#xa0;: photo, result, status (done, unchanged, failed, stopped), strength, automatic, seconds, message, unchanged (la raison, ou null).
  --share-services    Prêter au module les services du programme (journal, réserve de mémoire, nombre de processeurs) au lieu de le laisser créer les siens.
  --plugin FICHIER    Charger ce fichier de module au lieu de Nimbra.so, à côté du programme ou dans ../lib/nimbra.
  -h, --help          Afficher ce texte.
  --version           Afficher les versions du programme et du module.
  --                  Ce qui suit désigne des photos, même si cela commence par un tiret.

Formats&#xa0;:
  En lecture et en écriture&#xa0;: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) et PSD. Un résultat garde le format de sa photo, sa profondeur (8 ou 16 bits ou virgule flottante), son profil de couleurs, ses données EXIF, IPTC et XMP. L&apos;orientation EXIF est conservée&#xa0;: le résultat s&apos;affiche comme sa photo.
  En lecture seule&#xa0;: RAW (dng, cr2, nef, arw, raf, orf, rw2 et autres). Le résultat est un TIFF 16 bits. Les photos avec une autre extension, ou sans extension, donnent aussi un TIFF. Les fichiers XMP annexes restent en place et ne sont pas lus.

Codes de retour&#xa0;:
  0  Toutes les photos sont traitées, ou revenues telles quelles (il dit pourquoi).
  1  Certaines ne le sont pas&#xa0;: la sortie d&apos;erreur standard dit lesquelles, pourquoi et que faire. Ou la sortie standard n&apos;a pas pu être écrite.
  2  La ligne de commande ou le fichier de réglages est incorrect&#xa0;; rien n&apos;a commencé.
Ctrl-C y met fin par le signal (130 dans un shell), sans laisser de résultat incomplet.

Exemples&#xa0;:
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Voir veilaway --help.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default attend un nombre entier de 0 à 100, auto ou none, pas «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default enregistre la valeur par défaut et ne fait rien d&apos;autre&#xa0;: omettez les photos et les options qui les concernent.</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>La valeur par défaut ne peut pas être enregistrée dans «&#xa0;%1&#xa0;». Libérez de la place, ou donnez-vous le droit d&apos;y écrire.</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start the wizard in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>La fenêtre ne peut pas être affichée : %1. Lancez l&apos;assistant dans une session graphique, ou depuis une autre machine avec ssh -X. Sans fenêtre, veilaway PHOTO... fait le travail.</translation>
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
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Impossible d&apos;ouvrir le fichier. Vérifiez qu&apos;il existe et que vous avez le droit de le lire.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Le fichier est tronqué ou endommagé. Copiez-le de nouveau depuis l&apos;appareil photo ou une sauvegarde.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>La mémoire est insuffisante pour cette photo. Fermez d&apos;autres programmes ou traitez les photos une par une (--jobs 1).</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>Ce n&apos;est pas une image d&apos;un format connu, ou son format n&apos;est pas celui qu&apos;annonce l&apos;extension. Les formats lus sont JPEG, PNG, TIFF, HDR, EXR, PSD et RAW&#xa0;; donnez au fichier l&apos;extension qui lui correspond ou convertissez-le.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>C&apos;est une vidéo. Le voile ne peut être retiré que de photos&#xa0;; enregistrez-en une image en JPEG, PNG ou TIFF.</translation>
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
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>Le lien ne mène nulle part. Indiquez la photo elle-même.</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>Ce fichier n&apos;existe pas. Vérifiez son nom et son dossier.</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>C&apos;est un dossier. Indiquez les photos qu&apos;il contient, par exemple «&#xa0;%1&#xa0;».</translation>
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
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>La mémoire est insuffisante pour ce fichier RAW. Fermez d&apos;autres programmes ou traitez les photos une par une (--jobs 1).</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>Impossible de développer le fichier RAW&#xa0;: %1. Copiez-le de nouveau ou convertissez-le en DNG ou en TIFF.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Son nom ou celui d&apos;un dossier contient des caractères qui ne sont pas de l&apos;UTF-8. Renommez-la.</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1&#xa0;: c&apos;est le résultat d&apos;une autre photo de la liste.</numerusform>
            <numerusform>%n résultats d&apos;autres photos de la liste, par exemple «&#xa0;%1&#xa0;».</numerusform>
        </translation>
    </message>
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
        <translation>Choisissez les photos dont il faut retirer le voile, ou déposez-les ici. Elles restent intactes&#xa0;: chaque résultat est enregistré à côté de sa photo.</translation>
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
        <translation>%1&#xa0;: ce dossier ne contient aucune photo.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
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
        <translation>Écartées&#xa0;:</translation>
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
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>La photo est trop grande&#xa0;: le voile ne peut être retiré que de photos dont la largeur ou la hauteur ne dépasse pas %1 pixels. Réduisez-la ou découpez-la en plusieurs parties.</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>Le module «&#xa0;%1&#xa0;» est introuvable. Compilez-le, installez-le, ou indiquez son emplacement avec --plugin FICHIER.</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>&#xa0;» ou «&#xa0;</translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>c&apos;est un module d&apos;un autre type</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>Impossible d&apos;utiliser le module «&#xa0;%1&#xa0;»&#xa0;: %2. Réinstallez-le ou indiquez-en un autre avec --plugin FICHIER.</translation>
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
        <translation>%1&#xa0;: %2 (%3)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n photo traitée.</numerusform>
            <numerusform>%n photos traitées.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation>Photos traitées&#xa0;: %1 sur %2&#xa0;; non traitées&#xa0;: %3.</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>lecture</translation>
    </message>
    <message>
        <source>removing haze</source>
        <translation>retrait du voile</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>enregistrement</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>Inchangée&#xa0;: %n.</numerusform>
            <numerusform>Inchangées&#xa0;: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>Impossible d&apos;écrire sur la sortie standard&#xa0;: %1. Libérez de la place, ou envoyez-la ailleurs.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>%n photo n&apos;a pas été commencée.</numerusform>
            <numerusform>%n photos n&apos;ont pas été commencées.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1&#xa0;%, %2 s</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;folder</source>
        <translation>Ouvrir le &amp;dossier</translation>
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
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Toutes les photos sont traitées.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Photos traitées&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>Reco&amp;mmencer</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Choisir d&apos;autres photos</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>--strength non indiqué&#xa0;: votre valeur par défaut enregistrée, %1, est utilisée.</translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>--strength non indiqué et aucune valeur par défaut enregistrée&#xa0;: %1 est utilisé.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>Le fichier de réglages «&#xa0;%1&#xa0;» ne cite aucune photo. Indiquez-en.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>Le fichier de réglages «&#xa0;%1&#xa0;» n&apos;existe pas. Indiquez des photos pour le créer.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>Impossible d&apos;écrire le fichier de réglages «&#xa0;%1&#xa0;» à cet endroit. Indiquez-en un dans un autre dossier.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Le fichier de réglages «&#xa0;%1&#xa0;» porte le nom d&apos;un résultat. Donnez-lui un autre nom.</translation>
    </message>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Arrêt en cours&#xa0;; le fichier en cours d&apos;enregistrement est terminé. Appuyez encore sur Ctrl-C pour quitter immédiatement.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>«&#xa0;%1&#xa0;» est laissé de côté&#xa0;: c&apos;est le résultat d&apos;une autre des photos.</numerusform>
            <numerusform>%n fichiers sont laissés de côté, car ce sont des résultats des autres photos, par exemple «&#xa0;%1&#xa0;».</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>Pas de --strength&#xa0;: votre valeur par défaut enregistrée est utilisée, la puissance automatique.</translation>
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
        <source>Each result is saved beside its photograph.</source>
        <translation>Chaque résultat est enregistré à côté de sa photo.</translation>
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
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>%n résultat d&apos;un traitement précédent existe déjà.</numerusform>
            <numerusform>%n résultats d&apos;un traitement précédent existent déjà.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
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
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Arrêt en cours. L&apos;enregistrement d&apos;un résultat déjà commencé se termine d&apos;abord.</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Son résultat existait déjà et a été conservé.</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Inchangée</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Conservé</translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>Plus aucune valeur par défaut n&apos;est enregistrée&#xa0;; sans --strength, c&apos;est %1 pour cent.</translation>
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
        <translation>Impossible d&apos;utiliser le fichier de réglages «&#xa0;%1&#xa0;»&#xa0;: %2. Réparez-le ou indiquez-en un autre.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c&apos;est un dossier</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>ligne %1, colonne %2&#xa0;: %3</translation>
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
        <translation>%1&#xa0;: une photo sans chemin</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» y figure deux fois</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1&#xa0;: la photo requiert &lt;%2 %3=&quot;...&quot;/&gt; avec un nombre entier de 0 à 100</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>Impossible d&apos;écrire le fichier de réglages «&#xa0;%1&#xa0;»&#xa0;: %2. Libérez de la place ou accordez-vous le droit d&apos;écrire à cet endroit.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>Le fichier de réglages «&#xa0;%1&#xa0;» ne peut pas contenir la photo «&#xa0;%2&#xa0;»&#xa0;: son nom contient des caractères de contrôle. Renommez-la.</translation>
    </message>
</context>
<context>
    <name>TransposedRun</name>
    <message>
        <source>A temporary folder with a link to the photograph can&apos;t be created, neither beside it nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Aucun dossier temporaire avec un lien vers la photo ne peut être créé, ni à côté d&apos;elle ni dans «&#xa0;%1&#xa0;». Libérez-y de la place et vérifiez que vous avez le droit d&apos;y écrire.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Le module a écrit «&#xa0;%1&#xa0;» au lieu de «&#xa0;%2&#xa0;»</translation>
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
        <source>Save session</source>
        <translation>Enregistrer la session</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>Fichiers de réglages (*.xml)</translation>
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
