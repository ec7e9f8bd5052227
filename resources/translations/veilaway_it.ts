<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>La foto non ha estensione, quindi il risultato sarà un TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Il formato &quot;%1&quot; non può essere scritto, quindi il risultato sarà un TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away.</source>
        <translation>Il suo risultato &quot;%1&quot; è lo stesso file della foto &quot;%2&quot;. Spostare altrove uno dei due.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs.</source>
        <translation>Il suo risultato &quot;%1&quot; sarebbe anche quello di &quot;%2&quot;. Rinominare una delle due foto.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>Al posto del risultato, &quot;%1&quot;, c&apos;è una cartella. Spostare altrove la cartella.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Il suo risultato &quot;%1&quot; esiste già. Indicare --overwrite per sostituirlo.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Copy the photograph to another folder.</source>
        <translation>Impossibile scrivere il risultato: la cartella &quot;%1&quot; è di sola lettura. Copiare la foto in un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Il nome del risultato sarebbe troppo lungo. Dare alla foto un nome più corto.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Il risultato è stato salvato, ma non è stato possibile copiarvi i dati XMP della foto: %1.</translation>
    </message>
    <message>
        <source>The plug-in failed at %1</source>
        <translation>Errore del plugin in %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Memoria insufficiente.</translation>
    </message>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Interrotto; nessun risultato è stato scritto.</translation>
    </message>
    <message>
        <source>Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Chiudere altri programmi o elaborare una foto alla volta (--jobs 1).</translation>
    </message>
    <message>
        <source>Make room in the folder &quot;%1&quot;, and check that you can write to it.</source>
        <translation>Liberare spazio nella cartella &quot;%1&quot; e verificare di avere il permesso di scrivervi.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Il plugin ha scritto &quot;%1&quot; invece di &quot;%2&quot;</translation>
    </message>
    <message>
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>La foto è stata modificata, spostata o cancellata mentre si toglieva la foschia. Rimettetela al suo posto e ricominciate.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>La foto richiede circa %1 di memoria e ne sono liberi %2. Chiudere altri programmi o ridurre la foto.</translation>
    </message>
</context>
<context>
    <name>BeforeAfterView</name>
    <message>
        <source>Before</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Dopo</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength richiede un numero intero da 0 a 100 oppure auto, non &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs richiede un numero intero da 1 a %1, non &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>--language must be one of %1, not &quot;%2&quot;.</source>
        <translation>--language riconosce %1, ma non &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>--settings must be the name of a file, in UTF-8.</source>
        <translation>--settings richiede il nome di un file, in UTF-8.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with the wizard, which asks in its window.</source>
        <translation>--%1 non vale per la procedura guidata, che chiede nella sua finestra.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Indicare le foto da cui rimuovere la foschia.</translation>
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
        <translation>veilaway rimuove la foschia dalle foto.

Uso:
  veilaway [run] FOTO... [opzioni]
  veilaway [run] --settings FILE [opzioni]
  veilaway wizard [FOTO...] [opzioni]
  veilaway --set-default N|auto|none
  veilaway --help | --version

Ogni risultato viene salvato accanto alla propria foto, con lo stesso nome più un suffisso: hills.jpg diventa &quot;hills_senza foschia.jpg&quot;. La foto originale non viene mai modificata. Il suffisso segue la lingua: con --language en, per esempio, è _dehazed.

La procedura guidata apre una finestra: scegliere le foto, regolare la potenza di ciascuna con un&apos;anteprima in tempo reale, rimuovere la foschia e confrontare. Accetta --settings (il file conterrà poi le potenze), --language, --jobs, --share-services e --plugin.

Opzioni:
  --strength N      Quanta foschia rimuovere, in percentuale: 0 lascia l&apos;immagine com&apos;è, 100 la rimuove tutta e auto si adatta a ogni foto: da 50 per una scura a 80 per una chiara. Senza questa opzione vale la potenza nel file di impostazioni, poi il valore predefinito salvato, poi 70.
  --set-default N   Salva questo valore predefinito, un numero o auto, oppure lo toglie con none. Non fa altro.
  --settings FILE   Conserva la potenza di ogni foto in questo file XML. Se il file esiste, se ne usano le potenze, a meno che non sia indicato anche --strength; alla fine contiene le potenze usate. Senza FOTO si elaborano tutte le foto del file.
  --language LANG   Lingua dei messaggi e del suffisso: de, en, es, fr, it, ja, pl, ru, zh_CN o zh_TW. Senza questa opzione, quella del sistema.
  --jobs N          Numero di foto elaborate contemporaneamente. Senza questa opzione, quante bastano a occupare tutti i core e stanno in memoria.
  --overwrite       Sostituisce i risultati già esistenti.
  --quiet           Segnala soltanto gli errori.
  --json            Scrive per ogni foto una riga con un oggetto JSON: photo, result, status (done, unchanged, failed, stopped), strength, automatic, seconds, message, unchanged (il motivo, o null).
  --share-services  Presta al plugin i servizi del programma (registro, riserva di memoria, numero di processori) invece di lasciare che li crei.
  --plugin FILE     Carica questo file di plugin invece di Nimbra.so accanto al programma o in ../lib/nimbra.
  -h, --help        Mostra questo testo.
  --version         Mostra le versioni del programma e del plugin.
  --                Ciò che segue sono foto, anche se iniziano con un trattino.

Formati:
  In lettura e scrittura: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) e PSD. Il risultato ha il formato della foto, la sua profondità (8 o 16 bit o virgola mobile), il profilo colore e i dati EXIF, IPTC e XMP. L&apos;orientamento EXIF viene mantenuto, così il risultato appare come la foto.
  In sola lettura: RAW (dng, cr2, nef, arw, raf, orf, rw2 e altri). Il risultato è un TIFF a 16 bit. Anche le foto con un&apos;altra estensione, o senza, diventano un TIFF. I file XMP collaterali restano dove sono e non vengono letti.

Codici di uscita:
  0  Tutte le foto sono state elaborate, o sono rimaste com&apos;erano (con il motivo).
  1  Alcune no: lo standard error dice quali, perché e che cosa fare. Oppure non è stato possibile scrivere sullo standard output.
  2  La riga di comando o il file di impostazioni è errato; nulla è stato iniziato.
Ctrl-C lo termina con il segnale (130 in una shell), senza lasciare risultati a metà.

Esempi:
  veilaway hills.jpg --strength 80
  veilaway hills.jpg valley.jpg --strength auto
  veilaway holiday/*.jpg holiday/*.cr2 --settings holiday/haze.xml
  veilaway --settings holiday/haze.xml --overwrite
</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Vedere veilaway --help.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default richiede un numero intero da 0 a 100, auto o none, non &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default salva il valore predefinito e non fa altro: omettere le foto e le opzioni per esse.</translation>
    </message>
</context>
<context>
    <name>DefaultStrength</name>
    <message>
        <source>The default can&apos;t be stored in &quot;%1&quot;. Make room, or give yourself permission to write there.</source>
        <translation>Il valore predefinito non può essere salvato in &quot;%1&quot;. Liberare spazio o concedersi il permesso di scrivere lì.</translation>
    </message>
</context>
<context>
    <name>DisplayWatch</name>
    <message>
        <source>The window can&apos;t be shown: %1. Start the wizard in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>Impossibile mostrare la finestra: %1. Avviare la procedura guidata in una sessione grafica, o da un altro computer con ssh -X. Senza finestra, veilaway FOTO... fa il lavoro.</translation>
    </message>
</context>
<context>
    <name>NimbraOne2One</name>
    <message>
        <source>_dehazed</source>
        <translation>_senza foschia</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Impossibile aprire il file. Verificare che esista e di avere il permesso di leggerlo.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Il file è incompleto o danneggiato. Copiarlo di nuovo dalla fotocamera o da un backup.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Memoria insufficiente per questa foto. Chiudere altri programmi o elaborare una foto alla volta (--jobs 1).</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. JPEG, PNG, TIFF, HDR, EXR, PSD and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>Non è un&apos;immagine in un formato noto, oppure il formato non è quello indicato dall&apos;estensione. Si possono leggere JPEG, PNG, TIFF, HDR, EXR, PSD e RAW; dare al file l&apos;estensione corretta o convertirlo.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>È un video. La foschia si può togliere solo dalle foto; salvarne un fotogramma in JPEG, PNG o TIFF.</translation>
    </message>
    <message>
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Questo tipo di pixel non può essere letto. Salvare la foto in RGB a 8 o 16 bit e riprovare.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Un nome vuoto non indica alcuna foto.</translation>
    </message>
    <message>
        <source>The link leads nowhere. Name the photograph itself.</source>
        <translation>Il collegamento non porta a nulla. Indicare direttamente la foto.</translation>
    </message>
    <message>
        <source>There is no such file. Check its name and folder.</source>
        <translation>Il file non esiste. Verificare il nome e la cartella.</translation>
    </message>
    <message>
        <source>This is a folder. Name the photographs in it, for instance &quot;%1&quot;.</source>
        <translation>Questa è una cartella. Indicare le foto che contiene, per esempio &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>This is not a regular file. Copy the photograph into one.</source>
        <translation>Questo non è un file normale. Copiare la foto in un file normale.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>Impossibile leggere il file. Attribuirsi il permesso di leggerlo.</translation>
    </message>
    <message>
        <source>The file is empty. Copy it again from the camera or a backup.</source>
        <translation>Il file è vuoto. Copiarlo di nuovo dalla fotocamera o da un backup.</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Memoria insufficiente per questo file RAW. Chiudere altri programmi o elaborare una foto alla volta (--jobs 1).</translation>
    </message>
    <message>
        <source>The camera raw file can&apos;t be developed: %1. Copy it again, or convert it to DNG or TIFF.</source>
        <translation>Impossibile sviluppare il file RAW: %1. Copiarlo di nuovo o convertirlo in DNG o TIFF.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Il suo nome o quello di una cartella contiene caratteri che non sono UTF-8. Rinominatela.</translation>
    </message>
</context>
<context>
    <name>PhotoPage</name>
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1: è il risultato di un&apos;altra foto dell&apos;elenco.</numerusform>
            <numerusform>%n risultati di altre foto dell&apos;elenco, per esempio &quot;%1&quot;.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Choose the photographs to remove haze from, or drop them here. They are never changed: each result is saved beside its photograph.</source>
        <translation>Scegliere le foto da cui rimuovere la foschia o trascinarle qui. Le foto restano intatte: ogni risultato viene salvato accanto alla propria foto.</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>&amp;Aggiungi foto...</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>A&amp;pri una sessione...</translation>
    </message>
    <message>
        <source>A settings file with photographs and the strength of each</source>
        <translation>Un file di impostazioni con le foto e la potenza di ciascuna</translation>
    </message>
    <message>
        <source>%1: There are no photographs in this folder.</source>
        <translation>%1: la cartella non contiene foto.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n photograph(s)...</source>
        <translation>
            <numerusform>Lettura di %n foto...</numerusform>
            <numerusform>Lettura di %n foto...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s)</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n foto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more</source>
        <translation>
            <numerusform>... e %n altra</numerusform>
            <numerusform>... e altre %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Escluse:</translation>
    </message>
    <message>
        <source>Add photographs</source>
        <translation>Aggiungi foto</translation>
    </message>
    <message>
        <source>Photographs (%1)</source>
        <translation>Foto (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Apri una sessione</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>File di impostazioni (*.xml)</translation>
    </message>
</context>
<context>
    <name>Photograph</name>
    <message>
        <source>It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or cut it into parts.</source>
        <translation>La foto è troppo grande: la foschia può essere rimossa da foto la cui larghezza o altezza sia al massimo di %1 pixel. Ridurla o dividerla in parti.</translation>
    </message>
</context>
<context>
    <name>PluginFile</name>
    <message>
        <source>The plug-in &quot;%1&quot; was not found. Build or install it, or give its location with --plugin FILE.</source>
        <translation>Il plugin &quot;%1&quot; non è presente. Compilarlo o installarlo, oppure indicare con --plugin FILE dove si trova.</translation>
    </message>
    <message>
        <source>&quot; or &quot;</source>
        <translation>&quot; o &quot;</translation>
    </message>
    <message>
        <source>it is a plug-in of another kind</source>
        <translation>è un plugin di un altro tipo</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; can&apos;t be used: %2. Install it again, or name another one with --plugin FILE.</source>
        <translation>Impossibile usare il plugin &quot;%1&quot;: %2. Reinstallarlo o indicarne un altro con --plugin FILE.</translation>
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
        <translation>%1: %2 (%3)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n foto elaborata.</numerusform>
            <numerusform>%n foto elaborate.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 photographs done, %3 not.</source>
        <translation>Foto elaborate: %1 su %2; non elaborate: %3.</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>lettura</translation>
    </message>
    <message>
        <source>removing haze</source>
        <translation>rimozione della foschia</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>salvataggio</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>Rimasta invariata: %n.</numerusform>
            <numerusform>Rimaste invariate: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to standard output failed: %1. Make room there, or redirect it.</source>
        <translation>Impossibile scrivere sullo standard output: %1. Liberare spazio, o inviarlo altrove.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) not started.</source>
        <translation>
            <numerusform>%n foto non è stata iniziata.</numerusform>
            <numerusform>%n foto non sono state iniziate.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %, %2 s</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;folder</source>
        <translation>&amp;Apri la cartella</translation>
    </message>
    <message>
        <source>&amp;Save session...</source>
        <translation>&amp;Salva la sessione...</translation>
    </message>
    <message>
        <source>Save the photographs and the strength of each in a settings file</source>
        <translation>Conserva le foto e la potenza di ciascuna in un file di impostazioni</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Tutte le foto sono state elaborate.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Foto elaborate: %1 su %2.</translation>
    </message>
    <message>
        <source>Start &amp;over</source>
        <translation>&amp;Ricomincia</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Scegli altre foto</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>--strength non indicato: si usa il valore predefinito salvato, %1.</translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>--strength non indicato e nessun valore predefinito salvato: si usa %1.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; names no photographs. Name some on the command line.</source>
        <translation>Il file di impostazioni &quot;%1&quot; non elenca alcuna foto. Indicarne qualcuna.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Name photographs on the command line to create it.</source>
        <translation>Il file di impostazioni &quot;%1&quot; non esiste. Indicare delle foto per crearlo.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: its folder is read-only or missing. Name a file in another folder.</source>
        <translation>Impossibile scrivere lì il file di impostazioni &quot;%1&quot;. Indicarne uno in un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Il file di impostazioni &quot;%1&quot; ha il nome di un risultato. Dargli un altro nome.</translation>
    </message>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Arresto in corso; si completa il file che si sta salvando. Premere di nuovo Ctrl-C per terminare subito.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>&quot;%1&quot; viene tralasciato: è il risultato di un&apos;altra delle foto.</numerusform>
            <numerusform>%n file vengono tralasciati perché sono risultati delle altre foto, per esempio &quot;%1&quot;.</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>Nessun --strength indicato: si usa il valore predefinito salvato, la potenza automatica.</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Interrompi</translation>
    </message>
    <message>
        <source>Removing haze</source>
        <translation>Rimozione della foschia</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Ogni risultato viene salvato accanto alla propria foto.</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>S&amp;ostituisci</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Mantieni</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message numerus="yes">
        <source>%n result(s) of an earlier run already exist.</source>
        <translation>
            <numerusform>Esiste già %n risultato di un&apos;elaborazione precedente.</numerusform>
            <numerusform>Esistono già %n risultati di un&apos;elaborazione precedente.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v di %m</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lettura</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Salvataggio</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Interruzione in corso. Prima si conclude il salvataggio di un risultato già iniziato.</translation>
    </message>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Il suo risultato esisteva già ed è stato mantenuto.</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Invariata</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Mantenuto</translation>
    </message>
</context>
<context>
    <name>SetDefaultCommand</name>
    <message>
        <source>The stored default was removed. Without --strength, %1 per cent is used.</source>
        <translation>Nessun valore predefinito è più salvato; senza --strength è %1 per cento.</translation>
    </message>
    <message>
        <source>From now on, each photograph gets its automatic strength.</source>
        <translation>D&apos;ora in poi ogni foto riceve la sua potenza automatica.</translation>
    </message>
    <message>
        <source>From now on, the default strength is %1 per cent.</source>
        <translation>D&apos;ora in poi la potenza predefinita è %1 per cento.</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be used: %2. Repair it, or name another one.</source>
        <translation>Impossibile usare il file di impostazioni &quot;%1&quot;: %2. Correggerlo o indicarne un altro.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>riga %1, colonna %2: %3</translation>
    </message>
    <message>
        <source>its outermost element is not &lt;%1&gt;</source>
        <translation>il suo elemento radice non è &lt;%1&gt;</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>riga %1</translation>
    </message>
    <message>
        <source>%1: a photo without a path</source>
        <translation>%1: una foto senza percorso</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; appears twice</source>
        <translation>%1: &quot;%2&quot; vi compare due volte</translation>
    </message>
    <message>
        <source>%1: the photo needs &lt;%2 %3=&quot;...&quot;/&gt; with a whole number from 0 to 100</source>
        <translation>%1: alla foto serve &lt;%2 %3=&quot;...&quot;/&gt; con un numero intero da 0 a 100</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t be written: %2. Make room, or give yourself permission to write there.</source>
        <translation>Impossibile scrivere il file di impostazioni &quot;%1&quot;: %2. Liberare spazio o attribuirsi il permesso di scrivervi.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; can&apos;t hold the photograph &quot;%2&quot;: its name contains control characters. Rename the photograph.</source>
        <translation>Il file delle impostazioni &quot;%1&quot; non può contenere la foto &quot;%2&quot;: il suo nome ha caratteri di controllo. Rinominatela.</translation>
    </message>
</context>
<context>
    <name>TransposedRun</name>
    <message>
        <source>A temporary folder with a link to the photograph can&apos;t be created, neither beside it nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Non è possibile creare una cartella temporanea con un collegamento alla foto, né accanto ad essa né in &quot;%1&quot;. Liberare spazio e verificare di avere il permesso di scrivervi.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Il plugin ha scritto &quot;%1&quot; invece di &quot;%2&quot;</translation>
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
        <translation>&amp;Rimuovi la foschia</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Salva la sessione</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>File di impostazioni (*.xml)</translation>
    </message>
</context>
<context>
    <name>whyUnchanged</name>
    <message>
        <source>It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, or no pixel has a usable colour. Crop it, or repair its colours in an image editor.</source>
        <translation>La foto è rimasta com&apos;era, perché non è stato possibile misurare la foschia: un lato è oltre 100.000 volte più lungo dell&apos;altro, o nessun pixel ha un colore utilizzabile. Ritagliare la foto o correggerne i colori in un editor di immagini.</translation>
    </message>
    <message>
        <source>It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or memory ran short. Repair those pixels in an image editor, or close other programs and try again.</source>
        <translation>La foto è rimasta com&apos;era, perché non è stato possibile calcolare la foschia: alcuni pixel hanno valori infiniti o non definiti, o la memoria non è bastata. Correggere quei pixel in un editor di immagini, oppure chiudere altri programmi e riprovare.</translation>
    </message>
</context>
</TS>
