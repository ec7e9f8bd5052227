<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>BatchPlan</name>
    <message>
        <source>Its result &quot;%1&quot; already exists. Add --overwrite to replace it.</source>
        <translation>Il suo risultato &quot;%1&quot; esiste già. Indicare --overwrite per sostituirlo.</translation>
    </message>
    <message>
        <source>The folder can&apos;t be read. Give yourself the permission to read it.</source>
        <translation>La cartella non può essere letta. Concedersi il permesso di leggerla.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder or those inside it.</source>
        <translation>In questa cartella e in quelle al suo interno non ci sono foto.</translation>
    </message>
    <message>
        <source>There are no photographs in this folder. Add --recursive for those in the folders inside it.</source>
        <translation>In questa cartella non ci sono foto. Aggiungere --recursive per quelle delle sottocartelle.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; already exists.</source>
        <translation>Saltata: il suo risultato &quot;%1&quot; esiste già.</translation>
    </message>
    <message>
        <source>It has no suffix, so the result is a TIFF.</source>
        <translation>La foto non ha estensione, quindi il risultato sarà un TIFF.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a format that can be written, so the result is a TIFF.</source>
        <translation>Il formato &quot;%1&quot; non può essere scritto, quindi il risultato sarà un TIFF.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder for the results.</source>
        <translation>Il suo risultato &quot;%1&quot; è lo stesso file della foto &quot;%2&quot;. Spostare uno dei due o scegliere un&apos;altra cartella per i risultati.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is the same file as the photograph &quot;%2&quot;. Move one of the two away, or choose another folder with --output.</source>
        <translation>Il suo risultato &quot;%1&quot; è lo stesso file della foto &quot;%2&quot;. Spostare uno dei due o scegliere un&apos;altra cartella con --output.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; would also be the result of &quot;%2&quot;. Rename one of the two photographs, or give their results different folders.</source>
        <translation>Il suo risultato &quot;%1&quot; sarebbe anche quello di &quot;%2&quot;. Rinominare una delle due foto o indicare cartelle diverse per i risultati.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is a folder. Move the folder away.</source>
        <translation>Al posto del risultato, &quot;%1&quot;, c&apos;è una cartella. Spostare altrove la cartella.</translation>
    </message>
    <message>
        <source>Skipped: its result &quot;%1&quot; is newer than the photograph.</source>
        <translation>Saltata: il suo risultato &quot;%1&quot; è più recente della foto.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder for the results.</source>
        <translation>Il suo risultato &quot;%1&quot; è protetto da scrittura o non è un file normale. Spostarlo o scegliere un&apos;altra cartella per i risultati.</translation>
    </message>
    <message>
        <source>Its result &quot;%1&quot; is write-protected or not a regular file. Move it away, or choose another folder with --output.</source>
        <translation>Il suo risultato &quot;%1&quot; è protetto da scrittura o non è un file normale. Spostarlo o scegliere un&apos;altra cartella con --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one for the results.</source>
        <translation>Il suo risultato non può essere scritto: &quot;%1&quot; non è una cartella. Sceglierne un&apos;altra per i risultati.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: &quot;%1&quot; is not a folder. Choose another one with --output.</source>
        <translation>Il suo risultato non può essere scritto: &quot;%1&quot; non è una cartella. Sceglierne un&apos;altra con --output.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one for the results.</source>
        <translation>Il suo risultato non può essere scritto: la cartella &quot;%1&quot; è di sola lettura. Sceglierne un&apos;altra per i risultati.</translation>
    </message>
    <message>
        <source>Its result can&apos;t be written: the folder &quot;%1&quot; is read-only. Choose another one with --output.</source>
        <translation>Il suo risultato non può essere scritto: la cartella &quot;%1&quot; è di sola lettura. Sceglierne un&apos;altra con --output.</translation>
    </message>
    <message>
        <source>The name of its result would be too long. Give the photograph a shorter name.</source>
        <translation>Il nome del risultato sarebbe troppo lungo. Dare alla foto un nome più corto.</translation>
    </message>
</context>
<context>
    <name>BatchRunner</name>
    <message>
        <source>Stopped; no result was written.</source>
        <translation>Interrotto; nessun risultato è stato scritto.</translation>
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
        <source>The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.</source>
        <translation>La foto è stata modificata, spostata o cancellata mentre si toglieva la foschia. Rimettetela al suo posto e ricominciate.</translation>
    </message>
    <message>
        <source>Close other programs and try again.</source>
        <translation>Chiudere altri programmi e riprovare.</translation>
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
        <source>The file also holds a gain map or further pictures, which don&apos;t fit the result and are left out.</source>
        <translation>Il file contiene anche una mappa di guadagno o altre immagini, che non corrispondono al risultato e vengono tralasciate.</translation>
    </message>
    <message>
        <source>The result was written, but the photograph&apos;s XMP could not be copied into it: %1.</source>
        <translation>Il risultato è stato salvato, ma non è stato possibile copiarvi i dati XMP della foto: %1.</translation>
    </message>
    <message>
        <source>The result was written, but could not be given the photograph&apos;s time of modification: %1.</source>
        <translation>Il risultato è stato scritto, ma non ha potuto ricevere la data di modifica della foto: %1.</translation>
    </message>
    <message>
        <source>It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.</source>
        <translation>La foto richiede circa %1 di memoria e ne sono liberi %2. Chiudere altri programmi o ridurre la foto.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Did you mean --%1?</source>
        <translation>Si intendeva --%1?</translation>
    </message>
    <message>
        <source>Write &quot;./%1&quot; for the photograph of this name.</source>
        <translation>Scrivere &quot;./%1&quot; per la foto con questo nome.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be followed by one of %2, not &quot;%3&quot;.</source>
        <translation>A &quot;%1&quot; deve seguire uno tra %2, non &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>--strength must be a whole number from 0 to 100, or auto, not &quot;%1&quot;.</source>
        <translation>--strength richiede un numero intero da 0 a 100 oppure auto, non &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--jobs must be a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>--jobs richiede un numero intero da 1 a %1, non &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>--quality must be a whole number from 1 to 100, not &quot;%1&quot;.</source>
        <translation>--quality richiede un numero intero da 1 a 100, non &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--compression must be none, deflate or lzw, not &quot;%1&quot;.</source>
        <translation>--compression richiede none, deflate o lzw, non &quot;%1&quot;.</translation>
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
        <source>--output must be the name of a folder or file, in UTF-8.</source>
        <translation>--output richiede il nome di una cartella o di un file, in UTF-8.</translation>
    </message>
    <message>
        <source>--tag is a part of a name: it must not contain a slash, and must be in UTF-8.</source>
        <translation>--tag è parte di un nome: non può contenere una barra e deve essere in UTF-8.</translation>
    </message>
    <message>
        <source>Of --skip-existing, --newer and --overwrite, only one can be used at a time.</source>
        <translation>Tra --skip-existing, --newer e --overwrite se ne può usare solo una.</translation>
    </message>
    <message>
        <source>--set-default must be a whole number from 0 to 100, auto or none, not &quot;%1&quot;.</source>
        <translation>--set-default richiede un numero intero da 0 a 100, auto o none, non &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--set-default only stores the default: leave out photographs and the options for them.</source>
        <translation>--set-default salva il valore predefinito e non fa altro: omettere le foto e le opzioni per esse.</translation>
    </message>
    <message>
        <source>--%1 can&apos;t be used with %2, which asks for it on the screen.</source>
        <translation>--%1 non può essere usata con %2, che lo chiede sullo schermo.</translation>
    </message>
    <message>
        <source>Name the photographs to remove haze from.</source>
        <translation>Indicare le foto da cui rimuovere la foschia.</translation>
    </message>
    <message>
        <source>Also read here: %1</source>
        <translation>Qui si leggono anche: %1</translation>
    </message>
    <message>
        <source>Not read here, for want of a decoder: %1</source>
        <translation>Qui non si leggono, per mancanza di decodificatore: %1</translation>
    </message>
    <message>
        <source>See veilaway --help.</source>
        <translation>Vedere veilaway --help.</translation>
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
        <source>The window can&apos;t be shown: %1. Start it in a desktop session, or from another machine with ssh -X. Without a window, veilaway PHOTO... does the work.</source>
        <translation>Impossibile mostrare la finestra: %1. Avviarla in una sessione grafica, o da un altro computer con ssh -X. Senza finestra, veilaway FOTO... fa il lavoro.</translation>
    </message>
</context>
<context>
    <name>EmptyView</name>
    <message>
        <source>Recent sessions</source>
        <translation>Sessioni recenti</translation>
    </message>
    <message>
        <source>Drop photographs or a folder here</source>
        <translation>Trascinare qui le foto o una cartella</translation>
    </message>
    <message>
        <source>&amp;Add photographs...</source>
        <translation>&amp;Aggiungi foto...</translation>
    </message>
    <message>
        <source>Add a &amp;folder...</source>
        <translation>Aggiungi una &amp;cartella...</translation>
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
        <translation>Foto</translation>
    </message>
</context>
<context>
    <name>HistogramView</name>
    <message>
        <source>Histogram</source>
        <translation>Istogramma</translation>
    </message>
    <message>
        <source>The result; dashed: the photograph as it was</source>
        <translation>Il risultato; tratteggiata: la foto com&apos;era</translation>
    </message>
    <message>
        <source>Black %1 %, white %2 %</source>
        <translation>Nero %1 %, bianco %2 %</translation>
    </message>
    <message>
        <source>black %1 %</source>
        <translation>nero %1 %</translation>
    </message>
    <message>
        <source>white %1 %</source>
        <translation>bianco %1 %</translation>
    </message>
</context>
<context>
    <name>KeySheet</name>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>Chiudi il messaggio</translation>
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
    <name>OptionTable</name>
    <message>
        <source>veilaway takes the haze out of photographs.</source>
        <translation>veilaway rimuove la foschia dalle foto.</translation>
    </message>
    <message>
        <source>Usage:</source>
        <translation>Uso:</translation>
    </message>
    <message>
        <source>PHOTO is a photograph, a folder with photographs, @FILE for a file that lists them, one per line, or - for such a list on standard input.</source>
        <translation>PHOTO è una foto, una cartella di foto, @FILE per un file che le elenca, una per riga, oppure - per un elenco simile sullo standard input.</translation>
    </message>
    <message>
        <source>Each result is written beside its photograph, under the photograph&apos;s name with a tag: hills.jpg becomes hills_dehazed.jpg. The photograph itself is never changed. The tag follows the language: _entnebelt with --language de, for instance.</source>
        <translation>Ogni risultato viene scritto accanto alla propria foto, con il nome della foto e un&apos;etichetta: hills.jpg diventa hills_dehazed.jpg. La foto stessa non viene mai modificata. L&apos;etichetta segue la lingua: _entnebelt con --language de, per esempio.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandi:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opzioni:</translation>
    </message>
    <message>
        <source>Everything that follows is a photograph, even if it begins with a dash.</source>
        <translation>Tutto ciò che segue è una foto, anche se comincia con un trattino.</translation>
    </message>
    <message>
        <source>Formats:</source>
        <translation>Formati:</translation>
    </message>
    <message>
        <source>Read and written: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) and PSD. A result has the format of its photograph, its depth (8 or 16 bits, or float), colour profile, EXIF, IPTC and XMP. EXIF orientation is kept, so that the result is shown the same way up.</source>
        <translation>Letti e scritti: JPEG (jpg, jpeg), PNG, TIFF (tif, tiff), Radiance (hdr, hdri), OpenEXR (exr) e PSD. Un risultato ha il formato della sua foto, la sua profondità (8 o 16 bit, o virgola mobile), profilo colore, EXIF, IPTC e XMP. L&apos;orientamento EXIF resta, quindi il risultato viene mostrato nello stesso verso.</translation>
    </message>
    <message>
        <source>Read only: camera raw (dng, cr2, nef, arw, raf, orf, rw2 and others), whose result is a 16-bit TIFF, and, where --version names them, HEIC (heic, heif, hif), AVIF, WebP and JPEG XL (jxl), whose result is a TIFF of their depth. Photographs with any other suffix, or none, become a TIFF too.</source>
        <translation>Solo letti: file raw (dng, cr2, nef, arw, raf, orf, rw2 e altri), il cui risultato è un TIFF a 16 bit, e, dove --version li nomina, HEIC (heic, heif, hif), AVIF, WebP e JPEG XL (jxl), il cui risultato è un TIFF della loro profondità. Anche le foto con un&apos;altra estensione, o senza, diventano un TIFF.</translation>
    </message>
    <message>
        <source>XMP sidecar files are not read and stay where they are.</source>
        <translation>I file XMP collaterali non vengono letti e restano dove sono.</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>Codice di uscita:</translation>
    </message>
    <message>
        <source>All photographs are done, skipped as requested, or came back unchanged (a message says why).</source>
        <translation>Tutte le foto sono pronte, saltate come richiesto o rimaste invariate (un messaggio dice perché).</translation>
    </message>
    <message>
        <source>Some are not: standard error says which, why, and what helps. Or standard output could not be written.</source>
        <translation>Alcune non lo sono: lo standard error dice quali, perché e che cosa fare. Oppure non è stato possibile scrivere sullo standard output.</translation>
    </message>
    <message>
        <source>The command line or the settings file is wrong; nothing was begun.</source>
        <translation>La riga di comando o il file di impostazioni è errato; nulla è stato iniziato.</translation>
    </message>
    <message>
        <source>Ctrl-C ends the program by that signal (130 in a shell), without leaving half a result.</source>
        <translation>Ctrl-C termina il programma con quel segnale (130 in una shell), senza lasciare risultati a metà.</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Esempi:</translation>
    </message>
</context>
<context>
    <name>PhotoLoader</name>
    <message>
        <source>The file can&apos;t be opened. Check that it exists and that you may read it.</source>
        <translation>Impossibile aprire il file. Verificare che esista e di avere il permesso di leggerlo.</translation>
    </message>
    <message>
        <source>It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>È un video. La foschia si può togliere solo dalle foto; salvarne un fotogramma in JPEG, PNG o TIFF.</translation>
    </message>
    <message>
        <source>It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.</source>
        <translation>È un&apos;animazione. La foschia si può rimuovere solo dalle foto; salvarne un fotogramma come JPEG, PNG o TIFF.</translation>
    </message>
    <message>
        <source>This installation can&apos;t decode its format; veilaway --version says which formats it can. Convert the photograph to JPEG, PNG or TIFF.</source>
        <translation>Questa installazione non può decodificare il formato; veilaway --version dice quali può. Convertire la foto in JPEG, PNG o TIFF.</translation>
    </message>
    <message>
        <source>It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can be read; give the file the suffix of its format, or convert it.</source>
        <translation>Non è un&apos;immagine in un formato noto, o non in quello indicato dall&apos;estensione. Si possono leggere %1 e i file raw; dare al file l&apos;estensione del suo formato o convertirlo.</translation>
    </message>
    <message>
        <source>The file is cut short or damaged. Copy it again from the camera or a backup.</source>
        <translation>Il file è incompleto o danneggiato. Copiarlo di nuovo dalla fotocamera o da un backup.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs and try again.</source>
        <translation>Memoria insufficiente per questa foto. Chiudere altri programmi e riprovare.</translation>
    </message>
    <message>
        <source>There is not enough memory for it. Close other programs, or work on one photograph at a time (--jobs 1).</source>
        <translation>Memoria insufficiente per questa foto. Chiudere altri programmi o elaborare una foto alla volta (--jobs 1).</translation>
    </message>
    <message>
        <source>There is not enough memory for this camera raw file. Close other programs and try again.</source>
        <translation>Memoria insufficiente per questo file RAW. Chiudere altri programmi e riprovare.</translation>
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
        <source>Its kind of pixels can&apos;t be read. Save it as RGB with 8 or 16 bits and try again.</source>
        <translation>Questo tipo di pixel non può essere letto. Salvare la foto in RGB a 8 o 16 bit e riprovare.</translation>
    </message>
    <message>
        <source>An empty name cannot be that of a photograph.</source>
        <translation>Un nome vuoto non indica alcuna foto.</translation>
    </message>
    <message>
        <source>Its name or that of a folder holds letters that are not UTF-8. Rename it.</source>
        <translation>Il suo nome o quello di una cartella contiene caratteri che non sono UTF-8. Rinominatela.</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be opened. Give yourself the permission to open it.</source>
        <translation>La sua cartella non può essere aperta. Concedersi il permesso di aprirla.</translation>
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
</context>
<context>
    <name>PhotoPage</name>
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
    <message numerus="yes">
        <source>%n file(s) that are results of other photographs in the list, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>%1: è il risultato di un&apos;altra foto dell&apos;elenco.</numerusform>
            <numerusform>%n risultati di altre foto dell&apos;elenco, per esempio &quot;%1&quot;.</numerusform>
        </translation>
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
    <name>PhotoStore</name>
    <message>
        <source>There is not enough memory for it. Close other programs, or scale the photograph down.</source>
        <translation>Non c&apos;è abbastanza memoria. Chiudere altri programmi o ridurre la foto.</translation>
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
    <name>PhotographList</name>
    <message>
        <source>The list &quot;%1&quot; can&apos;t be read: %2. Check its name, or write ./@... for a photograph whose name begins with @.</source>
        <translation>L&apos;elenco &quot;%1&quot; non può essere letto: %2. Verificarne il nome, o scrivere ./@... per una foto il cui nome comincia con @.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.</source>
        <translation>L&apos;elenco &quot;%1&quot; contiene byte nulli. Aggiungere --null (-0) se i nomi terminano con essi, o salvarlo come testo in UTF-8.</translation>
    </message>
    <message>
        <source>The list &quot;%1&quot; holds no null bytes. Leave out --null (-0) if it has one name per line.</source>
        <translation>L&apos;elenco &quot;%1&quot; non contiene byte nulli. Omettere --null (-0) se ha un nome per riga.</translation>
    </message>
</context>
<context>
    <name>PictureRenderer</name>
    <message>
        <source>There is not enough memory for this picture. Close other programs.</source>
        <translation>Non c&apos;è abbastanza memoria per questa immagine. Chiudere altri programmi.</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Nuovo tentativo</translation>
    </message>
    <message>
        <source>Hold: the photograph before</source>
        <translation>Tenere premuto: la foto prima</translation>
    </message>
    <message>
        <source>Hold: the haze map; Alt does the same</source>
        <translation>Tenere premuto: la mappa della foschia; Alt fa lo stesso</translation>
    </message>
    <message>
        <source>Move over the photograph</source>
        <translation>Spostarsi sulla foto</translation>
    </message>
    <message>
        <source>Move the line between before and after</source>
        <translation>Spostare la linea tra prima e dopo</translation>
    </message>
    <message>
        <source>Before, zoom %1 %</source>
        <translation>Prima, zoom %1 %</translation>
    </message>
    <message>
        <source>Haze map, zoom %1 %</source>
        <translation>Mappa della foschia, zoom %1 %</translation>
    </message>
    <message>
        <source>After %1 %, zoom %2 %</source>
        <translation>Dopo %1 %, zoom %2 %</translation>
    </message>
    <message>
        <source>Before and after %1 %, zoom %2 %</source>
        <translation>Prima e dopo %1 %, zoom %2 %</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Mappa della foschia</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>After %1 %</source>
        <translation>Dopo %1 %</translation>
    </message>
    <message>
        <source>Estimating the haze</source>
        <translation>Stima della foschia</translation>
    </message>
    <message>
        <source>Reading the photograph</source>
        <translation>Lettura della foto</translation>
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
    <name>PrivateRun</name>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder for the results.</source>
        <translation>Nella cartella &quot;%1&quot; non si possono creare file: %2. Liberare spazio o scegliere un&apos;altra cartella per i risultati.</translation>
    </message>
    <message>
        <source>No files can be created in the folder &quot;%1&quot;: %2. Make room there, or choose another folder with --output.</source>
        <translation>Nella cartella &quot;%1&quot; non si possono creare file: %2. Liberare spazio o scegliere un&apos;altra cartella con --output.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2.</source>
        <translation>&quot;%1&quot; non può essere scritto: %2.</translation>
    </message>
    <message>
        <source>A link to the photograph can&apos;t be created, neither in the folder of its result nor in &quot;%1&quot;. Make room there, and check that you can write there.</source>
        <translation>Un collegamento alla foto non può essere creato né nella cartella del risultato né in &quot;%1&quot;. Liberare spazio e verificare di potervi scrivere.</translation>
    </message>
    <message>
        <source>Its %1 bits per channel don&apos;t fit into a file of this format. Choose a name that ends in .tif, .psd or, for up to 16 bits, .png.</source>
        <translation>I suoi %1 bit per canale non entrano in un file di questo formato. Scegliere un nome che finisce in .tif, .psd o, fino a 16 bit, .png.</translation>
    </message>
    <message>
        <source>The plug-in wrote &quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>Il plug-in ha scritto &quot;%1&quot; invece di &quot;%2&quot;</translation>
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
        <translation>Impossibile scrivere sullo standard output: %1. Liberare spazio, o inviarlo altrove.</translation>
    </message>
    <message>
        <source>%1 %, %2 s</source>
        <translation>%1 %, %2 s</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1: %2 (%3)</translation>
    </message>
    <message>
        <source>automatic strength</source>
        <translation>potenza automatica</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1: %2 (%3 x %4 pixels, %5 of memory, %6)</source>
        <translation>%1: %2 (%3 x %4 pixel, %5 di memoria, %6)</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) would be done.</source>
        <translation>
            <numerusform>%n foto verrebbe elaborata.</numerusform>
            <numerusform>%n foto verrebbero elaborate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) done.</source>
        <translation>
            <numerusform>%n foto elaborata.</numerusform>
            <numerusform>%n foto elaborate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n came back unchanged.</source>
        <translation>
            <numerusform>%n rimasta invariata.</numerusform>
            <numerusform>%n rimaste invariate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n skipped.</source>
        <translation>
            <numerusform>%n saltata.</numerusform>
            <numerusform>%n saltate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed.</source>
        <translation>
            <numerusform>%n non riuscita.</numerusform>
            <numerusform>%n non riuscite.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n not started.</source>
        <translation>
            <numerusform>%n non iniziata.</numerusform>
            <numerusform>%n non iniziate.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>, %1 left</source>
        <translation>, ancora %1</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>salvataggio di %1</translation>
    </message>
    <message>
        <source>removing haze: %1</source>
        <translation>rimozione della foschia: %1</translation>
    </message>
    <message>
        <source>reading %1</source>
        <translation>lettura di %1</translation>
    </message>
</context>
<context>
    <name>ResultPage</name>
    <message>
        <source>Open &amp;result</source>
        <translation>Apri il &amp;risultato</translation>
    </message>
    <message>
        <source>Open &amp;folder</source>
        <translation>&amp;Apri la cartella</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Show the result in the program that opens such pictures</source>
        <translation>Mostra il risultato nel programma che apre queste immagini</translation>
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
        <source>Start &amp;over</source>
        <translation>&amp;Ricomincia</translation>
    </message>
    <message>
        <source>Choose other photographs</source>
        <translation>Scegli altre foto</translation>
    </message>
    <message>
        <source>All photographs are done.</source>
        <translation>Tutte le foto sono state elaborate.</translation>
    </message>
    <message>
        <source>%1 of %2 photographs are done.</source>
        <translation>Foto elaborate: %1 su %2.</translation>
    </message>
</context>
<context>
    <name>RunCommand</name>
    <message>
        <source>Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.</source>
        <translation>Arresto in corso; si completa il file che si sta salvando. Premere di nuovo Ctrl-C per terminare subito.</translation>
    </message>
    <message>
        <source>Remove haze</source>
        <translation>Rimuovi la foschia</translation>
    </message>
    <message>
        <source>There is no desktop that shows notifications.</source>
        <translation>Non c&apos;è un desktop che mostri notifiche.</translation>
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
        <source>The list names no photographs: there is nothing to do.</source>
        <translation>L&apos;elenco non nomina foto: non c&apos;è nulla da fare.</translation>
    </message>
    <message>
        <source>--output: &quot;%1&quot; exists and is not a folder. Name another one.</source>
        <translation>--output: &quot;%1&quot; esiste e non è una cartella. Indicarne un&apos;altra.</translation>
    </message>
    <message>
        <source>--output: results can&apos;t be written as &quot;%1&quot;. Choose a name that ends in one of %2.</source>
        <translation>--output: i risultati non possono essere scritti come &quot;%1&quot;. Scegliere un nome che finisce in uno di %2.</translation>
    </message>
    <message>
        <source>--output names the file &quot;%1&quot;, but there are %2 photographs. Name a folder, such as &quot;%3&quot;.</source>
        <translation>--output nomina il file &quot;%1&quot;, ma ci sono %2 foto. Indicare una cartella, per esempio &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>--tag is for results that get their names from their photographs: leave it out, or name a folder as --output.</source>
        <translation>--tag serve ai risultati che prendono il nome dalle foto: tralasciarla, o indicare una cartella come --output.</translation>
    </message>
    <message numerus="yes">
        <source>Left out %n file(s) that are results of the other photographs, such as &quot;%1&quot;.</source>
        <translation>
            <numerusform>&quot;%1&quot; viene tralasciato: è il risultato di un&apos;altra delle foto.</numerusform>
            <numerusform>%n file vengono tralasciati perché sono risultati delle altre foto, per esempio &quot;%1&quot;.</numerusform>
        </translation>
    </message>
    <message>
        <source>No --strength given and no default stored: using %1.</source>
        <translation>--strength non indicato e nessun valore predefinito salvato: si usa %1.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default, the automatic strength.</source>
        <translation>Nessun --strength indicato: si usa il valore predefinito salvato, la potenza automatica.</translation>
    </message>
    <message>
        <source>No --strength given: using your stored default of %1.</source>
        <translation>--strength non indicato: si usa il valore predefinito salvato, %1.</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; has the name of a result. Give it another name.</source>
        <translation>Il file di impostazioni &quot;%1&quot; ha il nome di un risultato. Dargli un altro nome.</translation>
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
        <source>&amp;Replace</source>
        <translation>S&amp;ostituisci</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Mantieni</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Foto</translation>
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
    <message>
        <source>Photographs that are done</source>
        <translation>Foto completate</translation>
    </message>
    <message>
        <source>Each result is saved beside its photograph.</source>
        <translation>Ogni risultato viene salvato accanto alla propria foto.</translation>
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
        <source>Stopping. A result that is being saved is finished first.</source>
        <translation>Interruzione in corso. Prima si conclude il salvataggio di un risultato già iniziato.</translation>
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
        <source>Its result already existed and was kept.</source>
        <translation>Il suo risultato esisteva già ed è stato mantenuto.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Invariata</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Mantenuto</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
</context>
<context>
    <name>SaveBar</name>
    <message>
        <source>less than a minute left</source>
        <translation>ancora meno di un minuto</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s) left</source>
        <translation>
            <numerusform>ancora circa %n minuto</numerusform>
            <numerusform>ancora circa %n minuti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n hour(s) left</source>
        <translation>
            <numerusform>ancora circa %n ora</numerusform>
            <numerusform>ancora circa %n ore</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Salvataggio</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 di %2 salvate</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>In pausa: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) saved</source>
        <translation>
            <numerusform>%n foto salvata</numerusform>
            <numerusform>%n foto salvate</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept as it is</source>
        <translation>
            <numerusform>%n mantenuta</numerusform>
            <numerusform>%n mantenute</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n non riuscita</numerusform>
            <numerusform>%n non riuscite</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n stopped</source>
        <translation>
            <numerusform>%n interrotta</numerusform>
            <numerusform>%n interrotte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveOptionsDialog</name>
    <message>
        <source>In this &amp;folder:</source>
        <translation>In questa &amp;cartella:</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>Sceg&amp;li...</translation>
    </message>
    <message>
        <source>JPEG &amp;quality:</source>
        <translation>&amp;Qualità JPEG:</translation>
    </message>
    <message>
        <source>Save options</source>
        <translation>Opzioni di salvataggio</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Otherwise each result is saved beside its photograph</source>
        <translation>Altrimenti ogni risultato viene salvato accanto alla sua foto</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>Cartella dei risultati</translation>
    </message>
    <message>
        <source>&amp;Tag behind the name:</source>
        <translation>&amp;Etichetta dopo il nome:</translation>
    </message>
    <message>
        <source>Otherwise each JPEG keeps the quality of its photograph</source>
        <translation>Altrimenti ogni JPEG mantiene la qualità della sua foto</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Qualità JPEG</translation>
    </message>
    <message>
        <source>If a result exists already</source>
        <translation>Se esiste già un risultato</translation>
    </message>
    <message>
        <source>&amp;Replace it if its strength has changed</source>
        <translation>&amp;Sostituirlo se la potenza è cambiata</translation>
    </message>
    <message>
        <source>Replace it in &amp;any case</source>
        <translation>Sostituirlo in &amp;ogni caso</translation>
    </message>
    <message>
        <source>Keep &amp;both: the new one gets a number</source>
        <translation>Mantenere entram&amp;bi: il nuovo riceve un numero</translation>
    </message>
    <message>
        <source>&amp;Keep it and save nothing</source>
        <translation>&amp;Mantenerlo e non salvare nulla</translation>
    </message>
    <message>
        <source>A tag can&apos;t contain &quot;/&quot;.</source>
        <translation>Un&apos;etichetta non può contenere &quot;/&quot;.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;. Choose one that exists.</source>
        <translation>Non c&apos;è una cartella &quot;%1&quot;. Sceglierne una che esiste.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is read-only. Choose another one.</source>
        <translation>La cartella &quot;%1&quot; è di sola lettura. Sceglierne un&apos;altra.</translation>
    </message>
    <message>
        <source>%1 becomes %2.</source>
        <translation>%1 diventa %2.</translation>
    </message>
</context>
<context>
    <name>SaveQueue</name>
    <message>
        <source>Its result already existed and was kept.</source>
        <translation>Il suo risultato esisteva già ed è stato mantenuto.</translation>
    </message>
</context>
<context>
    <name>Series</name>
    <message>
        <source>edited</source>
        <translation>modificata</translation>
    </message>
    <message>
        <source>waiting to be saved</source>
        <translation>in attesa di salvataggio</translation>
    </message>
    <message>
        <source>being saved</source>
        <translation>salvataggio in corso</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>salvata</translation>
    </message>
    <message>
        <source>changed since it was saved</source>
        <translation>cambiata dopo il salvataggio</translation>
    </message>
    <message>
        <source>existing result kept</source>
        <translation>risultato esistente mantenuto</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>non riuscita</translation>
    </message>
    <message>
        <source>Strength %1 %, automatic</source>
        <translation>Potenza %1 %, automatica</translation>
    </message>
    <message>
        <source>Strength %1 %</source>
        <translation>Potenza %1 %</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>File raw</translation>
    </message>
    <message numerus="yes">
        <source>Add %n photograph(s)</source>
        <translation>
            <numerusform>Aggiungi %n foto</numerusform>
            <numerusform>Aggiungi %n foto</numerusform>
        </translation>
    </message>
    <message>
        <source>Change strength</source>
        <translation>Cambia la potenza</translation>
    </message>
    <message>
        <source>Automatic strength</source>
        <translation>Potenza automatica</translation>
    </message>
    <message>
        <source>Reset strength</source>
        <translation>Ripristina la potenza</translation>
    </message>
    <message numerus="yes">
        <source>Remove %n photograph(s)</source>
        <translation>
            <numerusform>Rimuovi %n foto</numerusform>
            <numerusform>Rimuovi %n foto</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>The session can&apos;t be kept in &quot;%1&quot;: %2. Make room, or give yourself permission to write there.</source>
        <translation>La sessione non può essere conservata in &quot;%1&quot;: %2. Liberare spazio, o concedersi il permesso di scrivervi.</translation>
    </message>
    <message>
        <source>Another window works on the settings file &quot;%1&quot;. Close it there first.</source>
        <translation>Un&apos;altra finestra usa il file di impostazioni &quot;%1&quot;. Chiuderlo prima lì.</translation>
    </message>
    <message>
        <source>The session in &quot;%1&quot; can&apos;t be read: %2. Open its photographs or a settings file instead.</source>
        <translation>La sessione in &quot;%1&quot; non può essere letta: %2. Aprire invece le sue foto o un file di impostazioni.</translation>
    </message>
    <message>
        <source>Another window works on this session. Close it there first.</source>
        <translation>Un&apos;altra finestra usa questa sessione. Chiuderla prima lì.</translation>
    </message>
    <message>
        <source>There is no settings file &quot;%1&quot;. Check its name and folder.</source>
        <translation>Non c&apos;è un file di impostazioni &quot;%1&quot;. Verificarne nome e cartella.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the photographs. Give the settings file another name.</source>
        <translation>&quot;%1&quot; è una delle foto. Dare un altro nome al file di impostazioni.</translation>
    </message>
    <message numerus="yes">
        <source>The strengths of %n photograph(s) would be lost.</source>
        <translation>
            <numerusform>Andrebbe persa la potenza di %n foto.</numerusform>
            <numerusform>Andrebbero perse le potenze di %n foto.</numerusform>
        </translation>
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
    <name>StrengthPanel</name>
    <message>
        <source>&amp;Strength</source>
        <translation>&amp;Potenza</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Potenza</translation>
    </message>
    <message>
        <source>How much of the haze is removed</source>
        <translation>Quanta foschia viene rimossa</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Potenza in percentuale</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatica</translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>Add photographs...</source>
        <translation>Aggiungi foto...</translation>
    </message>
    <message>
        <source>Add photographs to the series</source>
        <translation>Aggiungi foto alla serie</translation>
    </message>
    <message>
        <source>Add a folder...</source>
        <translation>Aggiungi una cartella...</translation>
    </message>
    <message>
        <source>Add the photographs of a folder to the series</source>
        <translation>Aggiungi alla serie le foto di una cartella</translation>
    </message>
    <message>
        <source>Start over</source>
        <translation>Ricomincia</translation>
    </message>
    <message>
        <source>Begin an empty series; this one stays among the recent sessions</source>
        <translation>Inizia una serie vuota; questa resta tra le sessioni recenti</translation>
    </message>
    <message>
        <source>&amp;Open a session...</source>
        <translation>&amp;Apri una sessione...</translation>
    </message>
    <message>
        <source>Open photographs and strengths that were saved as a session</source>
        <translation>Apri foto e potenze salvate come sessione</translation>
    </message>
    <message>
        <source>Save the session</source>
        <translation>Salva la sessione</translation>
    </message>
    <message>
        <source>Save the list of photographs and their strengths</source>
        <translation>Salva l&apos;elenco delle foto e le loro potenze</translation>
    </message>
    <message>
        <source>Save the session as...</source>
        <translation>Salva la sessione come...</translation>
    </message>
    <message>
        <source>Save the session under another name</source>
        <translation>Salva la sessione con un altro nome</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Foto precedente</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Foto successiva</translation>
    </message>
    <message>
        <source>First photograph</source>
        <translation>Prima foto</translation>
    </message>
    <message>
        <source>Last photograph</source>
        <translation>Ultima foto</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Select all photographs</source>
        <translation>Seleziona tutte le foto</translation>
    </message>
    <message>
        <source>Remove from the series</source>
        <translation>Rimuovi dalla serie</translation>
    </message>
    <message>
        <source>Remove the selected photographs from the series; the files stay</source>
        <translation>Rimuovi dalla serie le foto selezionate; i file restano</translation>
    </message>
    <message>
        <source>Stronger</source>
        <translation>Più forte</translation>
    </message>
    <message>
        <source>Raise the strength by 1 per cent</source>
        <translation>Aumenta la potenza dell&apos;1 per cento</translation>
    </message>
    <message>
        <source>Weaker</source>
        <translation>Più debole</translation>
    </message>
    <message>
        <source>Lower the strength by 1 per cent</source>
        <translation>Riduci la potenza dell&apos;1 per cento</translation>
    </message>
    <message>
        <source>Stronger by 10</source>
        <translation>Più forte di 10</translation>
    </message>
    <message>
        <source>Raise the strength by 10 per cent</source>
        <translation>Aumenta la potenza del 10 per cento</translation>
    </message>
    <message>
        <source>Weaker by 10</source>
        <translation>Più debole di 10</translation>
    </message>
    <message>
        <source>Lower the strength by 10 per cent</source>
        <translation>Riduci la potenza del 10 per cento</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Give each selected photograph the strength that suits it</source>
        <translation>Dai a ogni foto selezionata la potenza adatta</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Go back to the strength at the start</source>
        <translation>Torna alla potenza iniziale</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Undo the last change</source>
        <translation>Annulla l&apos;ultima modifica</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Make the change again that was undone</source>
        <translation>Ripeti la modifica annullata</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected</source>
        <translation>Applica alla &amp;selezione</translation>
    </message>
    <message>
        <source>Use this strength for all selected photographs</source>
        <translation>Usa questa potenza per tutte le foto selezionate</translation>
    </message>
    <message>
        <source>App&amp;ly to all</source>
        <translation>Applica a &amp;tutte</translation>
    </message>
    <message>
        <source>Use this strength for all photographs of the series</source>
        <translation>Usa questa potenza per tutte le foto della serie</translation>
    </message>
    <message>
        <source>Use as &amp;default</source>
        <translation>Usa come pre&amp;definita</translation>
    </message>
    <message>
        <source>Start new photographs at this strength from now on</source>
        <translation>D&apos;ora in poi le nuove foto iniziano con questa potenza</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Divisa</translation>
    </message>
    <message>
        <source>Before and after in one picture, with a line to drag</source>
        <translation>Prima e dopo in un&apos;immagine, con una linea da trascinare</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Affiancate</translation>
    </message>
    <message>
        <source>Before and after side by side</source>
        <translation>Prima e dopo una accanto all&apos;altra</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>Only the result</source>
        <translation>Solo il risultato</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>Hold, or hold Space: the photograph as it was</source>
        <translation>Tenere premuto, o tenere premuto Spazio: la foto com&apos;era</translation>
    </message>
    <message>
        <source>Haze map</source>
        <translation>Foschia</translation>
    </message>
    <message>
        <source>Hold, or hold M: where haze was found</source>
        <translation>Tenere premuto, o tenere premuto M: dove è stata trovata foschia</translation>
    </message>
    <message>
        <source>Clipping</source>
        <translation>Tagli</translation>
    </message>
    <message>
        <source>Mark pixels that became black or white</source>
        <translation>Segna i pixel diventati neri o bianchi</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Show the whole photograph</source>
        <translation>Mostra la foto intera</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show each pixel as it is, where the pointer is</source>
        <translation>Mostra ogni pixel com&apos;è, nel punto del puntatore</translation>
    </message>
    <message>
        <source>200 %</source>
        <translation>200 %</translation>
    </message>
    <message>
        <source>Show pixels at twice their size</source>
        <translation>Mostra i pixel al doppio della grandezza</translation>
    </message>
    <message>
        <source>400 %</source>
        <translation>400 %</translation>
    </message>
    <message>
        <source>Show pixels at four times their size</source>
        <translation>Mostra i pixel a quattro volte la grandezza</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Save this one</source>
        <translation>Salva questa</translation>
    </message>
    <message>
        <source>Save the result of this photograph</source>
        <translation>Salva il risultato di questa foto</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Salva tutte</translation>
    </message>
    <message>
        <source>Save the results of the whole series</source>
        <translation>Salva i risultati di tutta la serie</translation>
    </message>
    <message>
        <source>Save op&amp;tions...</source>
        <translation>&amp;Opzioni di salvataggio...</translation>
    </message>
    <message>
        <source>Folder, tag and quality of the results, and what happens to existing ones</source>
        <translation>Cartella, etichetta e qualità dei risultati, e che cosa succede a quelli esistenti</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pa&amp;usa</translation>
    </message>
    <message>
        <source>Finish the photographs in work and begin no other until you resume</source>
        <translation>Finisci le foto in corso e non iniziarne altre fino alla ripresa</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Stop saving; results that are complete stay</source>
        <translation>Smetti di salvare; i risultati completi restano</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Nuovo tentativo</translation>
    </message>
    <message>
        <source>Try again those photographs that failed</source>
        <translation>Riprova con le foto non riuscite</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Use the whole screen, or go back to the window</source>
        <translation>Usa tutto lo schermo, o torna alla finestra</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message>
        <source>Show all keys</source>
        <translation>Mostra tutti i tasti</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Chiudi la finestra</translation>
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
        <translation>&amp;Rimuovi la foschia</translation>
    </message>
    <message>
        <source>Set how much haze to remove from each photograph. Hold Alt to see where the haze is.</source>
        <translation>Indicare quanta foschia rimuovere da ogni foto. Tenere premuto Alt per vedere dov&apos;è la foschia.</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Strength in per cent</source>
        <translation>Potenza in percentuale</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Previous photograph</source>
        <translation>Foto precedente</translation>
    </message>
    <message>
        <source>Next photograph</source>
        <translation>Foto successiva</translation>
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
    <name>WorkspaceWindow</name>
    <message numerus="yes">
        <source>%1, %n photograph(s), %2</source>
        <translation>
            <numerusform>%1, %n foto, %2</numerusform>
            <numerusform>%1, %n foto, %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Drag the line to compare. Hold Space: before. Left, Right: photograph. Up, Down: strength.</source>
        <translation>Trascinare la linea: confronto. Tenere Spazio: prima. Sinistra, destra: foto. Su, giù: potenza.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sessione</translation>
    </message>
    <message>
        <source>Open, save or begin a session: photographs with their strengths</source>
        <translation>Apri, salva o inizia una sessione: foto con le loro potenze</translation>
    </message>
    <message>
        <source>&amp;Recent sessions</source>
        <translation>Sessioni re&amp;centi</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 x %2 px, %3 bits</source>
        <translation>%1 x %2 px, %3 bit</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Result: %1</source>
        <translation>Risultato: %1</translation>
    </message>
    <message>
        <source>Appl&amp;y to selected (%1)</source>
        <translation>Applica alla &amp;selezione (%1)</translation>
    </message>
    <message>
        <source>App&amp;ly to all (%1)</source>
        <translation>Applica a &amp;tutte (%1)</translation>
    </message>
    <message>
        <source>Save all %1</source>
        <translation>Salva le %1</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Riprendi</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Pa&amp;usa</translation>
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
            <numerusform>%n risultato tralasciato.</numerusform>
            <numerusform>%n risultati tralasciati.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photographs in the folder &quot;%1&quot;.</source>
        <translation>Nella cartella &quot;%1&quot; non ci sono foto.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) of this series were still to be saved.</source>
        <translation>
            <numerusform>%n foto di questa serie era ancora da salvare.</numerusform>
            <numerusform>%n foto di questa serie erano ancora da salvare.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Save them now</source>
        <translation>Sal&amp;vale ora</translation>
    </message>
    <message>
        <source>The series is as you left it.</source>
        <translation>La serie è come è stata lasciata.</translation>
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
        <source>Add a folder</source>
        <translation>Aggiungi una cartella</translation>
    </message>
    <message>
        <source>Open a session</source>
        <translation>Apri una sessione</translation>
    </message>
    <message>
        <source>Settings files (*.xml)</source>
        <translation>File di impostazioni (*.xml)</translation>
    </message>
    <message>
        <source>Save session</source>
        <translation>Salva la sessione</translation>
    </message>
    <message>
        <source>New photographs start at their automatic strength.</source>
        <translation>Le nuove foto iniziano con la loro potenza automatica.</translation>
    </message>
    <message>
        <source>New photographs start at %1 %.</source>
        <translation>Le nuove foto iniziano al %1 %.</translation>
    </message>
    <message numerus="yes">
        <source>%n photograph(s) could not be saved.</source>
        <translation>
            <numerusform>%n foto non è stata salvata.</numerusform>
            <numerusform>%n foto non sono state salvate.</numerusform>
        </translation>
    </message>
    <message>
        <source>Try a&amp;gain</source>
        <translation>&amp;Nuovo tentativo</translation>
    </message>
    <message>
        <source>Saving has ended</source>
        <translation>Salvataggio terminato</translation>
    </message>
    <message>
        <source>Close &amp;anyway</source>
        <translation>&amp;Chiudi comunque</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>&amp;Resta</translation>
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
