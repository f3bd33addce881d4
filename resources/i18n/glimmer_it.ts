<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>Informazioni su %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Turn the moments of a video into still pictures with their captions.</source>
        <translation>Trasforma i momenti di un video in immagini fisse con i loro sottotitoli.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>AutoCaptionFlow</name>
    <message>
        <source>The speech service gave an answer that cannot be read.</source>
        <translation>Il servizio di riconoscimento vocale ha fornito una risposta illeggibile.</translation>
    </message>
    <message>
        <source>No speech found</source>
        <translation>Nessun parlato rilevato</translation>
    </message>
    <message>
        <source>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</source>
        <translation>Nessuna parola riconosciuta nella traccia audio di questo video. Controlla la lingua dei sottotitoli oppure aggiungi un file di sottotitoli.</translation>
    </message>
    <message>
        <source>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</source>
        <translation>Impossibile estrarre la traccia audio dal video. Potrebbe non avere audio oppure manca ffmpeg.</translation>
    </message>
    <message>
        <source>Generating captions...</source>
        <translation>Generazione dei sottotitoli...</translation>
    </message>
    <message>
        <source>Automatic captions failed</source>
        <translation>Sottotitoli automatici non riusciti</translation>
    </message>
    <message>
        <source>The speech service could not be reached.</source>
        <translation>Impossibile raggiungere il servizio di riconoscimento vocale.</translation>
    </message>
</context>
<context>
    <name>CaptionDock</name>
    <message>
        <source>Captions</source>
        <translation>Sottotitoli</translation>
    </message>
</context>
<context>
    <name>CaptionFileFlow</name>
    <message>
        <source>Open local subtitle</source>
        <translation>Apri sottotitoli locali</translation>
    </message>
    <message>
        <source>Subtitle Files</source>
        <translation>File di sottotitoli</translation>
    </message>
    <message>
        <source>The subtitle file could not be converted.</source>
        <translation>Impossibile convertire il file di sottotitoli.</translation>
    </message>
    <message>
        <source>%1 holds no captions that can be shown.</source>
        <translation>%1 non contiene sottotitoli visualizzabili.</translation>
    </message>
    <message>
        <source>No captions loaded</source>
        <translation>Nessun sottotitolo caricato</translation>
    </message>
    <message>
        <source>Reading the captions of %1…</source>
        <translation>Lettura dei sottotitoli di %1…</translation>
    </message>
    <message>
        <source>Converting %1…</source>
        <translation>Conversione di %1…</translation>
    </message>
    <message>
        <source>Some captions were not loaded</source>
        <translation>Alcuni sottotitoli non sono stati caricati</translation>
    </message>
    <message>
        <source>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</source>
        <translation>Non è stato possibile leggere %1 dei %2 sottotitoli di %3; gli altri %4 sono stati caricati.</translation>
    </message>
</context>
<context>
    <name>CaptionFileReader</name>
    <message>
        <source>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</source>
        <translation>&quot;%1&quot; contiene più di %2 sottotitoli. Per non esaurire la memoria, da un file si caricano al massimo %2 sottotitoli: dividilo in parti.</translation>
    </message>
</context>
<context>
    <name>CaptionItem</name>
    <message>
        <source>Hide</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
</context>
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>Inglese (Stati Uniti)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>Francese</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Cinese semplificato</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Cantonese</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Giapponese</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>Russo</translation>
    </message>
    <message>
        <source>No subtitle file was chosen.</source>
        <translation>Non è stato scelto alcun file di sottotitoli.</translation>
    </message>
    <message>
        <source>No captions were found in &quot;%1&quot;.</source>
        <translation>Nessun sottotitolo trovato in &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</source>
        <translation>I sottotitoli si salvano come file .srt o .ass; «%1» non è né l’uno né l’altro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>Impossibile scrivere «%1»: %2</translation>
    </message>
</context>
<context>
    <name>CaptionSaveFlow</name>
    <message>
        <source>Save captions</source>
        <translation>Salva sottotitoli</translation>
    </message>
    <message>
        <source>Save captions as...</source>
        <translation>Salva sottotitoli come...</translation>
    </message>
    <message>
        <source>captions</source>
        <translation>sottotitoli</translation>
    </message>
    <message>
        <source>SubRip subtitles (*.srt)</source>
        <translation>Sottotitoli SubRip (*.srt)</translation>
    </message>
    <message>
        <source>ASS subtitles (*.ass)</source>
        <translation>Sottotitoli ASS (*.ass)</translation>
    </message>
    <message>
        <source>The captions were not saved</source>
        <translation>I sottotitoli non sono stati salvati</translation>
    </message>
</context>
<context>
    <name>CaptionStyleBar</name>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordo</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ombra</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Applica a tutti</translation>
    </message>
    <message>
        <source>Apply size, position and border to every caption</source>
        <translation>Applica dimensione, posizione e bordo a tutti i sottotitoli</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Cattura</translation>
    </message>
    <message>
        <source>Include this caption in &quot;Capture selected&quot;</source>
        <translation>Includi questo sottotitolo in &quot;Cattura selezionati&quot;</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Modifica testo</translation>
    </message>
    <message>
        <source>Edit the caption on the video (or double-click it)</source>
        <translation>Modifica il sottotitolo sul video (o fai doppio clic su di esso)</translation>
    </message>
    <message>
        <source>Add caption</source>
        <translation>Aggiungi sottotitolo</translation>
    </message>
    <message>
        <source>Add a caption at the current position</source>
        <translation>Aggiungi un sottotitolo nella posizione attuale</translation>
    </message>
</context>
<context>
    <name>CaptionWidget</name>
    <message>
        <source>search text</source>
        <translation>cerca testo</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>Separa</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Nascondi</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella tutto</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Cattura spuntati</translation>
    </message>
    <message>
        <source>Auto captions</source>
        <translation>Sottotitoli automatici</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crea</translation>
    </message>
    <message>
        <source>Add local subtitle</source>
        <translation>Aggiungi sottotitoli locali</translation>
    </message>
    <message>
        <source>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</source>
        <translation>Ancora nessun sottotitolo. Generali dal parlato del video, creane uno nel punto attuale o aggiungi un file di sottotitoli.</translation>
    </message>
    <message>
        <source>Captions (%1)</source>
        <translation>Sottotitoli (%1)</translation>
    </message>
    <message>
        <source>Select all (%1/%2)</source>
        <translation>Seleziona tutto (%1/%2)</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Cancella sottotitoli</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captions?</source>
        <translation>
            <numerusform>Rimuovere %Ln sottotitolo?</numerusform>
            <numerusform>Rimuovere tutti i %Ln sottotitoli?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>%1 – needs a speech server</source>
        <translation>%1 – richiede un server vocale</translation>
    </message>
</context>
<context>
    <name>CaptureController</name>
    <message>
        <source>Capture failed</source>
        <translation>Cattura non riuscita</translation>
    </message>
    <message>
        <source>The player did not reach the requested moment.</source>
        <translation>Il lettore non ha raggiunto il punto richiesto.</translation>
    </message>
    <message>
        <source>Capturing images</source>
        <translation>Cattura delle immagini</translation>
    </message>
    <message>
        <source>The frame could not be captured from the player.</source>
        <translation>Impossibile catturare il fotogramma dal lettore.</translation>
    </message>
    <message>
        <source>Applying current style</source>
        <translation>Applicazione dello stile attuale</translation>
    </message>
    <message>
        <source>Nothing to capture</source>
        <translation>Niente da catturare</translation>
    </message>
    <message>
        <source>Open a video first, then capture its frames.</source>
        <translation>Apri prima un video, poi cattura i suoi fotogrammi.</translation>
    </message>
    <message>
        <source>No caption ticked</source>
        <translation>Nessun sottotitolo spuntato</translation>
    </message>
    <message>
        <source>Tick the captions whose moments you want in the caption list, then press Capture checked again.</source>
        <translation>Spunta nell&apos;elenco i sottotitoli di cui vuoi i momenti, poi premi di nuovo Cattura spuntati.</translation>
    </message>
</context>
<context>
    <name>CheckUpdateDialog</name>
    <message>
        <source>Version: %1</source>
        <translation>Versione: %1</translation>
    </message>
    <message>
        <source>Release date: %1</source>
        <translation>Data di rilascio: %1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>Dimensione: %1</translation>
    </message>
    <message>
        <source>Check for update</source>
        <translation>Verifica aggiornamenti</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Your current use is already the latest version.</source>
        <translation>Stai già usando la versione più recente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version is available</source>
        <translation>È disponibile una nuova versione</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Aggiorna ora</translation>
    </message>
    <message>
        <source>The version information could not be read.</source>
        <translation>Impossibile leggere le informazioni sulla versione.</translation>
    </message>
    <message>
        <source>Could not check for updates. Please check your network connection and try again.
%1</source>
        <translation>Impossibile verificare gli aggiornamenti. Controlla la connessione di rete e riprova.
%1</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>The captions have changes that were not saved.</source>
        <translation>I sottotitoli hanno modifiche non salvate.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captured frames were never exported and will be lost.</source>
        <translation>
            <numerusform>%Ln fotogramma catturato non è mai stato esportato e andrà perso.</numerusform>
            <numerusform>%Ln fotogrammi catturati non sono mai stati esportati e andranno persi.</numerusform>
        </translation>
    </message>
    <message>
        <source>Close Glimmer</source>
        <translation>Chiudi Glimmer</translation>
    </message>
    <message>
        <source>Save captions</source>
        <translation>Salva sottotitoli</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Scarta</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Chiudi comunque</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>DownloadManager</name>
    <message>
        <source>The download tool could not be started: %1</source>
        <translation>Impossibile avviare lo strumento di download: %1</translation>
    </message>
    <message>
        <source>The downloaded file could not be opened: %1</source>
        <translation>Impossibile aprire il file scaricato: %1</translation>
    </message>
    <message>
        <source>The download tool stopped before the download was complete.</source>
        <translation>Lo strumento di download si è interrotto prima del completamento.</translation>
    </message>
</context>
<context>
    <name>ExportNotice</name>
    <message numerus="yes">
        <source>Saved %n picture(s) to %1</source>
        <translation>
            <numerusform>%n immagine salvata in %1</numerusform>
            <numerusform>%n immagini salvate in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output folder %1 cannot be written.</source>
        <translation>Impossibile scrivere nella cartella di output %1.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>Impossibile leggere il file audio estratto.</translation>
    </message>
    <message>
        <source>The video has no sound that could be extracted.</source>
        <translation>Il video non contiene audio da estrarre.</translation>
    </message>
    <message>
        <source>The speech service could not be reached: %1</source>
        <translation>Impossibile raggiungere il servizio di riconoscimento vocale: %1</translation>
    </message>
</context>
<context>
    <name>ImageExporter</name>
    <message>
        <source>No picture was exported.</source>
        <translation>Nessuna immagine è stata esportata.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were exported, but some failed.</source>
        <translation>
            <numerusform>%n immagine è stata esportata, ma altre non sono riuscite.</numerusform>
            <numerusform>%n immagini sono state esportate, ma altre non sono riuscite.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageItem</name>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
</context>
<context>
    <name>ImageListViewDialog</name>
    <message>
        <source>Captured frames</source>
        <translation>Fotogrammi catturati</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Elimina tutto</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
</context>
<context>
    <name>ImagesWidget</name>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>Vista elenco</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Cancella tutto</translation>
    </message>
    <message>
        <source>Apply Current Style</source>
        <translation>Applica stile</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n fotogramma</numerusform>
            <numerusform>%n fotogrammi</numerusform>
        </translation>
    </message>
    <message>
        <source>No frame is selected.</source>
        <translation>Nessun fotogramma selezionato.</translation>
    </message>
    <message>
        <source>Capture every frame again with the current caption style</source>
        <translation>Cattura di nuovo tutti i fotogrammi con lo stile di sottotitolo attuale</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Cancella fotogrammi</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln frames?</source>
        <translation>
            <numerusform>Rimuovere %Ln fotogramma?</numerusform>
            <numerusform>Rimuovere tutti i %Ln fotogrammi?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>LicenseManager</name>
    <message>
        <source>Please enter a licence key.</source>
        <translation>Inserisci una chiave di licenza.</translation>
    </message>
    <message>
        <source>The licence server sent an answer that could not be read.</source>
        <translation>Il server delle licenze ha inviato una risposta illeggibile.</translation>
    </message>
    <message>
        <source>This licence key was not accepted.</source>
        <translation>Questa chiave di licenza non è stata accettata.</translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Open video...</source>
        <translation>Apri video...</translation>
    </message>
    <message>
        <source>Add local subtitle...</source>
        <translation>Aggiungi sottotitoli locali...</translation>
    </message>
    <message>
        <source>Caption panel</source>
        <translation>Pannello sottotitoli</translation>
    </message>
    <message>
        <source>Output folder...</source>
        <translation>Cartella di destinazione...</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Verifica aggiornamenti</translation>
    </message>
    <message>
        <source>Register...</source>
        <translation>Registra...</translation>
    </message>
    <message>
        <source>About Glimmer</source>
        <translation>Informazioni su Glimmer</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Apri cartella dei log</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Formato di output</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Scegli la cartella di destinazione</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Motore vocale...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The video cannot be played</source>
        <translation>Impossibile riprodurre il video</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>Impossibile aprire %1: %2</translation>
    </message>
    <message>
        <source>The video cannot be opened</source>
        <translation>Impossibile aprire il video</translation>
    </message>
    <message>
        <source>%1 does not exist or cannot be read.</source>
        <translation>%1 non esiste o non può essere letto.</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>MpvWidget</name>
    <message>
        <source>the file has no video, only sound</source>
        <translation>il file non contiene video, solo audio</translation>
    </message>
</context>
<context>
    <name>OutputFiles</name>
    <message>
        <source>%1: the file has vanished before it could be moved to the output folder.</source>
        <translation>%1: il file è scomparso prima di poter essere spostato nella cartella di destinazione.</translation>
    </message>
    <message>
        <source>%1 could not be moved to the output folder %2; it was kept at %3.</source>
        <translation>Impossibile spostare %1 nella cartella di destinazione %2; il file è stato conservato in %3.</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>The picture is empty.</source>
        <translation>L’immagine è vuota.</translation>
    </message>
    <message>
        <source>This system cannot write %1 pictures. Choose PNG.</source>
        <translation>Questo sistema non può salvare immagini %1. Scegli PNG.</translation>
    </message>
    <message>
        <source>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>L’immagine è troppo alta per WEBP: %1×%2 pixel, e WEBP ammette al massimo %3 pixel per lato. Scegli PNG o una scala più piccola.</translation>
    </message>
    <message>
        <source>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>L’immagine è troppo larga per WEBP: %1×%2 pixel, e WEBP ammette al massimo %3 pixel per lato. Scegli PNG o una scala più piccola.</translation>
    </message>
    <message>
        <source>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>L’immagine è troppo alta per JPG: %1×%2 pixel, e JPG ammette al massimo %3 pixel per lato. Scegli PNG o una scala più piccola.</translation>
    </message>
    <message>
        <source>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>L’immagine è troppo larga per JPG: %1×%2 pixel, e JPG ammette al massimo %3 pixel per lato. Scegli PNG o una scala più piccola.</translation>
    </message>
    <message>
        <source>Cannot create the file in %1: %2</source>
        <translation>Impossibile creare il file in %1: %2</translation>
    </message>
    <message>
        <source>Writing the picture to %1 failed: %2</source>
        <translation>Scrittura dell&apos;immagine in %1 non riuscita: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWidget</name>
    <message>
        <source>Layout:</source>
        <translation>Disposizione:</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Griglia</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>X space</source>
        <translation>Spazio X</translation>
    </message>
    <message>
        <source>Y space</source>
        <translation>Spazio Y</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>The scale is 0: there is no picture to export.</source>
        <translation>La scala è 0: non c’è alcuna immagine da esportare.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Impossibile avviare il processo %1. Codice di uscita %2</translation>
    </message>
</context>
<context>
    <name>RegisterDialog</name>
    <message>
        <source>Register %1</source>
        <translation>Registra %1</translation>
    </message>
    <message>
        <source>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</source>
        <translation>Inserisci la chiave di licenza ricevuta con l’acquisto. Le copie registrate esportano immagini senza filigrana.</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Chiave di licenza</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registra</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Checking the licence key...</source>
        <translation>Verifica della chiave di licenza...</translation>
    </message>
    <message>
        <source>This copy is registered (%1). Thank you!</source>
        <translation>Questa copia è registrata (%1). Grazie!</translation>
    </message>
</context>
<context>
    <name>RegisterGuideDialog</name>
    <message>
        <source>Export complete</source>
        <translation>Esportazione completata</translation>
    </message>
    <message>
        <source>Your pictures were exported with a watermark</source>
        <translation>Le immagini sono state esportate con una filigrana</translation>
    </message>
    <message>
        <source>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</source>
        <translation>Questa copia di %1 non è registrata, quindi ogni immagine esportata porta la filigrana &quot;%1&quot;. Registrala con la tua chiave di licenza per esportare da ora in poi immagini senza filigrana.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>Register now</source>
        <translation>Registra ora</translation>
    </message>
</context>
<context>
    <name>SaveFileBar</name>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Cartella di destinazione:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambia</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Formato:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Scegli la cartella di destinazione</translation>
    </message>
</context>
<context>
    <name>SpeechEngineDialog</name>
    <message>
        <source>Works: %1</source>
        <translation>Funziona: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Non riuscito: %1</translation>
    </message>
    <message>
        <source>Speech engine</source>
        <translation>Motore vocale</translation>
    </message>
    <message>
        <source>Built-in (offline, English only)</source>
        <translation>Integrato (offline, solo inglese)</translation>
    </message>
    <message>
        <source>Transcription server (OpenAI-compatible API)</source>
        <translation>Server di trascrizione (API compatibile con OpenAI)</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modello:</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Chiave:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuna</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</source>
        <translation>GLIMMER_SPEECHD_OPENAI_URL è impostata: i sottotitoli automatici usano quel server, qualunque cosa si scelga qui.</translation>
    </message>
    <message>
        <source>Testing...</source>
        <translation>Prova in corso...</translation>
    </message>
</context>
<context>
    <name>SpeechEngineTest</name>
    <message numerus="yes">
        <source>The test got no answer within %n second(s).</source>
        <translation>
            <numerusform>La prova non ha ricevuto risposta entro %n secondo.</numerusform>
            <numerusform>La prova non ha ricevuto risposta entro %n secondi.</numerusform>
        </translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>Manca il programma del servizio di riconoscimento vocale: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>Il servizio di riconoscimento vocale si è interrotto: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>Impossibile avviare il servizio di riconoscimento vocale: %1</translation>
    </message>
    <message>
        <source>The test sound could not be written: %1</source>
        <translation>Non è stato possibile scrivere il suono di prova: %1</translation>
    </message>
    <message>
        <source>The built-in engine works. It recognises English.</source>
        <translation>Il motore integrato funziona. Riconosce l’inglese.</translation>
    </message>
    <message>
        <source>%1 answered with model %2. It recognises the languages its model knows.</source>
        <translation>%1 ha risposto con il modello %2. Riconosce le lingue che il suo modello conosce.</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(predefinito)</translation>
    </message>
</context>
<context>
    <name>SpeechService</name>
    <message>
        <source>The speech service did not start in time.</source>
        <translation>Il servizio di riconoscimento vocale non si è avviato in tempo.</translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>Manca il programma del servizio di riconoscimento vocale: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>Il servizio di riconoscimento vocale si è interrotto: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>Impossibile avviare il servizio di riconoscimento vocale: %1</translation>
    </message>
    <message>
        <source>The speech service did not answer: %1</source>
        <translation>Il servizio vocale non ha risposto: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleConverter</name>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</source>
        <translation>Impossibile convertire il file SRT &quot;%1&quot;: ffmpeg non trovato.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</source>
        <translation>Impossibile convertire il file SRT &quot;%1&quot;: ffmpeg non ha terminato in tempo.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted.</source>
        <translation>Impossibile convertire il file SRT &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SubtitleFile</name>
    <message>
        <source>&quot;%1&quot; is a folder, not a subtitle file.</source>
        <translation>&quot;%1&quot; è una cartella, non un file di sottotitoli.</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; could not be opened.</source>
        <translation>Impossibile aprire il file di sottotitoli &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</source>
        <translation>&quot;%1&quot; non è un file normale (dispositivo, pipe o socket): non può essere letto come sottotitoli.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</source>
        <translation>&quot;%1&quot; è troppo grande per essere un file di sottotitoli: si possono caricare file di sottotitoli fino a %2 MB.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Open video</source>
        <translation>Apri video</translation>
    </message>
    <message>
        <source>Open a video [Ctrl+O]</source>
        <translation>Apri un video [Ctrl+O]</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Sottotitoli</translation>
    </message>
    <message>
        <source>Show or hide the caption list</source>
        <translation>Mostra o nascondi l’elenco dei sottotitoli</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registra</translation>
    </message>
    <message>
        <source>Enter a licence key to remove the watermark</source>
        <translation>Inserisci una chiave di licenza per rimuovere la filigrana</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annulla: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Ripeti: %1</translation>
    </message>
    <message>
        <source>Load subtitles</source>
        <translation>Carica sottotitoli</translation>
    </message>
    <message>
        <source>Automatic captions</source>
        <translation>Sottotitoli automatici</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Cancella fotogrammi</translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation>Elimina fotogramma</translation>
    </message>
    <message>
        <source>Re-capture frames</source>
        <translation>Ricattura fotogrammi</translation>
    </message>
</context>
<context>
    <name>VideoPlayWidget</name>
    <message>
        <source>Drop your video here! Or,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;Click here to import video.&lt;/a&gt;</source>
        <translation>Trascina qui il tuo video! Oppure&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;fai clic qui per importare un video.&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Backward [Left]</source>
        <translation>Fotogramma precedente [Sinistra]</translation>
    </message>
    <message>
        <source>Forward [Right]</source>
        <translation>Fotogramma successivo [Destra]</translation>
    </message>
    <message>
        <source>Play [Space]</source>
        <translation>Riproduci [Spazio]</translation>
    </message>
    <message>
        <source>Stop [Ctrl+/]</source>
        <translation>Interrompi [Ctrl+/]</translation>
    </message>
    <message>
        <source>Capture [Ctrl+Alt+S]</source>
        <translation>Cattura [Ctrl+Alt+S]</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Cattura</translation>
    </message>
    <message>
        <source>Capture selected</source>
        <translation>Cattura selezionati</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>File video</translation>
    </message>
    <message>
        <source>Open Video</source>
        <translation>Apri video</translation>
    </message>
    <message>
        <source>New caption</source>
        <translation>Nuovo sottotitolo</translation>
    </message>
</context>
<context>
    <name>WindowFlows</name>
    <message>
        <source>No video</source>
        <translation>Nessun video</translation>
    </message>
    <message>
        <source>Open a video first, then generate its captions.</source>
        <translation>Apri prima un video, poi genera i suoi sottotitoli.</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Cattura spuntati</translation>
    </message>
    <message>
        <source>Some captions were not captured</source>
        <translation>Alcuni sottotitoli non sono stati catturati</translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) start at or after the end of the video, or have no readable start time, and were skipped.</source>
        <translation>
            <numerusform>%n sottotitolo inizia alla fine del video o dopo, oppure non ha un orario di inizio leggibile, ed è stato saltato.</numerusform>
            <numerusform>%n sottotitoli iniziano alla fine del video o dopo, oppure non hanno un orario di inizio leggibile, e sono stati saltati.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a video first, then create a caption at the current time.</source>
        <translation>Apri prima un video, poi crea un sottotitolo nel punto attuale.</translation>
    </message>
    <message>
        <source>No room for a caption</source>
        <translation>Non c’è spazio per un sottotitolo</translation>
    </message>
    <message>
        <source>A caption already covers the current time. Move to a moment without a caption.</source>
        <translation>Nel punto attuale c’è già un sottotitolo. Spostati in un punto senza sottotitoli.</translation>
    </message>
    <message>
        <source>Edit the style of all captions</source>
        <translation>Modifica lo stile di tutti i sottotitoli</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>Modifica sottotitolo</translation>
    </message>
    <message>
        <source>Create caption</source>
        <translation>Crea sottotitolo</translation>
    </message>
    <message>
        <source>Edit caption text</source>
        <translation>Modifica testo del sottotitolo</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Cancella sottotitoli</translation>
    </message>
    <message>
        <source>%1 needs a speech server</source>
        <translation>%1 richiede un server vocale</translation>
    </message>
    <message>
        <source>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</source>
        <translation>Il motore vocale integrato riconosce solo l’inglese. Per i sottotitoli in %1, collega un server di trascrizione in Motore vocale.</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Motore vocale...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The video player could not be started: %1</source>
        <translation>Impossibile avviare il lettore video: %1</translation>
    </message>
</context>
</TS>
