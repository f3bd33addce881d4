<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Turn the moments of a video into still pictures with their captions.</source>
        <translation>Verwandelt die Momente eines Videos in Standbilder mit ihren Untertiteln.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>AutoCaptionFlow</name>
    <message>
        <source>The speech service gave an answer that cannot be read.</source>
        <translation>Der Spracherkennungsdienst hat eine unlesbare Antwort geliefert.</translation>
    </message>
    <message>
        <source>No speech found</source>
        <translation>Keine Sprache gefunden</translation>
    </message>
    <message>
        <source>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</source>
        <translation>In der Tonspur dieses Videos wurden keine Wörter erkannt. Prüfen Sie die Untertitelsprache oder fügen Sie stattdessen eine Untertiteldatei hinzu.</translation>
    </message>
    <message>
        <source>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</source>
        <translation>Die Tonspur konnte nicht aus dem Video extrahiert werden. Möglicherweise hat es keinen Ton oder ffmpeg fehlt.</translation>
    </message>
    <message>
        <source>Generating captions...</source>
        <translation>Untertitel werden erzeugt …</translation>
    </message>
    <message>
        <source>Automatic captions failed</source>
        <translation>Automatische Untertitel fehlgeschlagen</translation>
    </message>
    <message>
        <source>The speech service could not be reached.</source>
        <translation>Der Spracherkennungsdienst ist nicht erreichbar.</translation>
    </message>
</context>
<context>
    <name>CaptionDock</name>
    <message>
        <source>Captions</source>
        <translation>Untertitel</translation>
    </message>
</context>
<context>
    <name>CaptionFileFlow</name>
    <message>
        <source>Open local subtitle</source>
        <translation>Untertiteldatei öffnen</translation>
    </message>
    <message>
        <source>Subtitle Files</source>
        <translation>Untertiteldateien</translation>
    </message>
    <message>
        <source>The subtitle file could not be converted.</source>
        <translation>Die Untertiteldatei konnte nicht umgewandelt werden.</translation>
    </message>
    <message>
        <source>%1 holds no captions that can be shown.</source>
        <translation>%1 enthält keine anzeigbaren Untertitel.</translation>
    </message>
    <message>
        <source>No captions loaded</source>
        <translation>Keine Untertitel geladen</translation>
    </message>
    <message>
        <source>Reading the captions of %1…</source>
        <translation>Untertitel aus %1 werden gelesen…</translation>
    </message>
    <message>
        <source>Converting %1…</source>
        <translation>%1 wird umgewandelt…</translation>
    </message>
    <message>
        <source>Some captions were not loaded</source>
        <translation>Einige Untertitel wurden nicht geladen</translation>
    </message>
    <message>
        <source>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</source>
        <translation>%1 der %2 Untertitel in %3 konnten nicht gelesen werden; die übrigen %4 wurden geladen.</translation>
    </message>
</context>
<context>
    <name>CaptionFileReader</name>
    <message>
        <source>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</source>
        <translation>„%1“ enthält mehr als %2 Untertitel. Damit der Speicher reicht, werden aus einer Datei höchstens %2 Untertitel geladen: Teilen Sie die Datei auf.</translation>
    </message>
</context>
<context>
    <name>CaptionItem</name>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Einblenden</translation>
    </message>
</context>
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>Englisch (USA)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Kantonesisch</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>No subtitle file was chosen.</source>
        <translation>Es wurde keine Untertiteldatei ausgewählt.</translation>
    </message>
    <message>
        <source>No captions were found in &quot;%1&quot;.</source>
        <translation>In „%1“ wurden keine Untertitel gefunden.</translation>
    </message>
    <message>
        <source>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</source>
        <translation>Untertitel werden als .srt- oder .ass-Datei gespeichert; „%1“ ist keines von beiden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>CaptionSaveFlow</name>
    <message>
        <source>Save captions</source>
        <translation>Untertitel speichern</translation>
    </message>
    <message>
        <source>Save captions as...</source>
        <translation>Untertitel speichern unter...</translation>
    </message>
    <message>
        <source>captions</source>
        <translation>untertitel</translation>
    </message>
    <message>
        <source>SubRip subtitles (*.srt)</source>
        <translation>SubRip-Untertitel (*.srt)</translation>
    </message>
    <message>
        <source>ASS subtitles (*.ass)</source>
        <translation>ASS-Untertitel (*.ass)</translation>
    </message>
    <message>
        <source>The captions were not saved</source>
        <translation>Die Untertitel wurden nicht gespeichert</translation>
    </message>
</context>
<context>
    <name>CaptionStyleBar</name>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
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
        <translation>Rand</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Apply size, position and border to every caption</source>
        <translation>Größe, Position und Rand auf alle Untertitel anwenden</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Erfassen</translation>
    </message>
    <message>
        <source>Include this caption in &quot;Capture selected&quot;</source>
        <translation>Diesen Untertitel bei „Markierte erfassen“ einbeziehen</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Edit the caption on the video (or double-click it)</source>
        <translation>Untertitel direkt im Video bearbeiten (oder doppelt darauf klicken)</translation>
    </message>
    <message>
        <source>Add caption</source>
        <translation>Untertitel hinzufügen</translation>
    </message>
    <message>
        <source>Add a caption at the current position</source>
        <translation>Untertitel an der aktuellen Position hinzufügen</translation>
    </message>
</context>
<context>
    <name>CaptionWidget</name>
    <message>
        <source>search text</source>
        <translation>Text suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>Abtrennen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Einblenden</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Angehakte erfassen</translation>
    </message>
    <message>
        <source>Auto captions</source>
        <translation>Automatische Untertitel</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Neu erstellen</translation>
    </message>
    <message>
        <source>Add local subtitle</source>
        <translation>Untertiteldatei hinzufügen</translation>
    </message>
    <message>
        <source>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</source>
        <translation>Noch keine Untertitel. Erzeugen Sie sie aus der Sprache des Videos, erstellen Sie einen an der aktuellen Stelle oder fügen Sie eine Untertiteldatei hinzu.</translation>
    </message>
    <message>
        <source>Captions (%1)</source>
        <translation>Untertitel (%1)</translation>
    </message>
    <message>
        <source>Select all (%1/%2)</source>
        <translation>Alle auswählen (%1/%2)</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Untertitel löschen</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captions?</source>
        <translation>
            <numerusform>%Ln Untertitel entfernen?</numerusform>
            <numerusform>Alle %Ln Untertitel entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>%1 – needs a speech server</source>
        <translation>%1 – braucht einen Sprachserver</translation>
    </message>
</context>
<context>
    <name>CaptureController</name>
    <message>
        <source>Capture failed</source>
        <translation>Erfassen fehlgeschlagen</translation>
    </message>
    <message>
        <source>The player did not reach the requested moment.</source>
        <translation>Der Player hat die gewünschte Stelle nicht erreicht.</translation>
    </message>
    <message>
        <source>Capturing images</source>
        <translation>Bilder werden erfasst</translation>
    </message>
    <message>
        <source>The frame could not be captured from the player.</source>
        <translation>Das Bild konnte nicht aus dem Player erfasst werden.</translation>
    </message>
    <message>
        <source>Applying current style</source>
        <translation>Aktueller Stil wird angewendet</translation>
    </message>
    <message>
        <source>Nothing to capture</source>
        <translation>Nichts aufzunehmen</translation>
    </message>
    <message>
        <source>Open a video first, then capture its frames.</source>
        <translation>Öffnen Sie zuerst ein Video und nehmen Sie dann seine Bilder auf.</translation>
    </message>
    <message>
        <source>No caption ticked</source>
        <translation>Kein Untertitel angehakt</translation>
    </message>
    <message>
        <source>Tick the captions whose moments you want in the caption list, then press Capture checked again.</source>
        <translation>Haken Sie in der Untertitelliste die Untertitel an, deren Momente Sie möchten, und drücken Sie dann erneut „Angehakte erfassen“.</translation>
    </message>
</context>
<context>
    <name>CheckUpdateDialog</name>
    <message>
        <source>Version: %1</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>Release date: %1</source>
        <translation>Veröffentlicht am: %1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>Größe: %1</translation>
    </message>
    <message>
        <source>Check for update</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Your current use is already the latest version.</source>
        <translation>Sie verwenden bereits die neueste Version.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version is available</source>
        <translation>Eine neue Version ist verfügbar</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Jetzt aktualisieren</translation>
    </message>
    <message>
        <source>The version information could not be read.</source>
        <translation>Die Versionsinformationen konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Could not check for updates. Please check your network connection and try again.
%1</source>
        <translation>Es konnte nicht nach Updates gesucht werden. Bitte prüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.
%1</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>The captions have changes that were not saved.</source>
        <translation>Die Untertitel haben ungespeicherte Änderungen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captured frames were never exported and will be lost.</source>
        <translation>
            <numerusform>%Ln aufgenommenes Bild wurde nie exportiert und geht verloren.</numerusform>
            <numerusform>%Ln aufgenommene Bilder wurden nie exportiert und gehen verloren.</numerusform>
        </translation>
    </message>
    <message>
        <source>Close Glimmer</source>
        <translation>Glimmer schließen</translation>
    </message>
    <message>
        <source>Save captions</source>
        <translation>Untertitel speichern</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Trotzdem schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DownloadManager</name>
    <message>
        <source>The download tool could not be started: %1</source>
        <translation>Das Download-Programm konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>The downloaded file could not be opened: %1</source>
        <translation>Die heruntergeladene Datei konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>The download tool stopped before the download was complete.</source>
        <translation>Das Download-Programm wurde beendet, bevor der Download abgeschlossen war.</translation>
    </message>
</context>
<context>
    <name>ExportNotice</name>
    <message numerus="yes">
        <source>Saved %n picture(s) to %1</source>
        <translation>
            <numerusform>%n Bild in %1 gespeichert</numerusform>
            <numerusform>%n Bilder in %1 gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>The output folder %1 cannot be written.</source>
        <translation>In den Ausgabeordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>Die extrahierte Audiodatei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The video has no sound that could be extracted.</source>
        <translation>Das Video hat keinen Ton, der extrahiert werden könnte.</translation>
    </message>
    <message>
        <source>The speech service could not be reached: %1</source>
        <translation>Der Spracherkennungsdienst ist nicht erreichbar: %1</translation>
    </message>
</context>
<context>
    <name>ImageExporter</name>
    <message>
        <source>No picture was exported.</source>
        <translation>Es wurde kein Bild exportiert.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were exported, but some failed.</source>
        <translation>
            <numerusform>%n Bild wurde exportiert, einige andere jedoch nicht.</numerusform>
            <numerusform>%n Bilder wurden exportiert, einige andere jedoch nicht.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageItem</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>ImageListViewDialog</name>
    <message>
        <source>Captured frames</source>
        <translation>Erfasste Bilder</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Alle löschen</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
</context>
<context>
    <name>ImagesWidget</name>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>Listenansicht</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Apply Current Style</source>
        <translation>Stil übernehmen</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>No frame is selected.</source>
        <translation>Es ist kein Bild ausgewählt.</translation>
    </message>
    <message>
        <source>Capture every frame again with the current caption style</source>
        <translation>Alle Bilder mit dem aktuellen Untertitelstil neu erfassen</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Bilder löschen</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln frames?</source>
        <translation>
            <numerusform>%Ln Bild entfernen?</numerusform>
            <numerusform>Alle %Ln Bilder entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>LicenseManager</name>
    <message>
        <source>Please enter a licence key.</source>
        <translation>Bitte geben Sie einen Lizenzschlüssel ein.</translation>
    </message>
    <message>
        <source>The licence server sent an answer that could not be read.</source>
        <translation>Der Lizenzserver hat eine unlesbare Antwort gesendet.</translation>
    </message>
    <message>
        <source>This licence key was not accepted.</source>
        <translation>Dieser Lizenzschlüssel wurde nicht akzeptiert.</translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Open video...</source>
        <translation>Video öffnen …</translation>
    </message>
    <message>
        <source>Add local subtitle...</source>
        <translation>Untertiteldatei hinzufügen …</translation>
    </message>
    <message>
        <source>Caption panel</source>
        <translation>Untertitelleiste</translation>
    </message>
    <message>
        <source>Output folder...</source>
        <translation>Ausgabeordner …</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Register...</source>
        <translation>Registrieren …</translation>
    </message>
    <message>
        <source>About Glimmer</source>
        <translation>Über Glimmer</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Protokollordner öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Ausgabeordner wählen</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Spracherkennung...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The video cannot be played</source>
        <translation>Das Video kann nicht abgespielt werden</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>%1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>The video cannot be opened</source>
        <translation>Das Video kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1 does not exist or cannot be read.</source>
        <translation>%1 existiert nicht oder kann nicht gelesen werden.</translation>
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
        <translation>die Datei enthält kein Video, nur Ton</translation>
    </message>
</context>
<context>
    <name>OutputFiles</name>
    <message>
        <source>%1: the file has vanished before it could be moved to the output folder.</source>
        <translation>%1: Die Datei ist verschwunden, bevor sie in den Ausgabeordner verschoben werden konnte.</translation>
    </message>
    <message>
        <source>%1 could not be moved to the output folder %2; it was kept at %3.</source>
        <translation>%1 konnte nicht in den Ausgabeordner %2 verschoben werden; die Datei liegt weiterhin unter %3.</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>The picture is empty.</source>
        <translation>Das Bild ist leer.</translation>
    </message>
    <message>
        <source>This system cannot write %1 pictures. Choose PNG.</source>
        <translation>Dieses System kann keine %1-Bilder schreiben. Wählen Sie PNG.</translation>
    </message>
    <message>
        <source>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>Das Bild ist zu hoch für WEBP: %1×%2 Pixel, WEBP erlaubt höchstens %3 Pixel pro Seite. Wählen Sie PNG oder eine kleinere Skalierung.</translation>
    </message>
    <message>
        <source>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>Das Bild ist zu breit für WEBP: %1×%2 Pixel, WEBP erlaubt höchstens %3 Pixel pro Seite. Wählen Sie PNG oder eine kleinere Skalierung.</translation>
    </message>
    <message>
        <source>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>Das Bild ist zu hoch für JPG: %1×%2 Pixel, JPG erlaubt höchstens %3 Pixel pro Seite. Wählen Sie PNG oder eine kleinere Skalierung.</translation>
    </message>
    <message>
        <source>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>Das Bild ist zu breit für JPG: %1×%2 Pixel, JPG erlaubt höchstens %3 Pixel pro Seite. Wählen Sie PNG oder eine kleinere Skalierung.</translation>
    </message>
    <message>
        <source>Cannot create the file in %1: %2</source>
        <translation>Die Datei kann in %1 nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>Writing the picture to %1 failed: %2</source>
        <translation>Das Bild konnte nicht in %1 geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWidget</name>
    <message>
        <source>Layout:</source>
        <translation>Anordnung:</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>X space</source>
        <translation>X-Abstand</translation>
    </message>
    <message>
        <source>Y space</source>
        <translation>Y-Abstand</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>The scale is 0: there is no picture to export.</source>
        <translation>Die Skalierung ist 0: Es gibt kein Bild zum Exportieren.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Prozess %1 konnte nicht gestartet werden. Exit-Code %2</translation>
    </message>
</context>
<context>
    <name>RegisterDialog</name>
    <message>
        <source>Register %1</source>
        <translation>%1 registrieren</translation>
    </message>
    <message>
        <source>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</source>
        <translation>Geben Sie den Lizenzschlüssel ein, den Sie beim Kauf erhalten haben. Registrierte Versionen exportieren Bilder ohne Wasserzeichen.</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Lizenzschlüssel</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Checking the licence key...</source>
        <translation>Lizenzschlüssel wird geprüft …</translation>
    </message>
    <message>
        <source>This copy is registered (%1). Thank you!</source>
        <translation>Diese Version ist registriert (%1). Vielen Dank!</translation>
    </message>
</context>
<context>
    <name>RegisterGuideDialog</name>
    <message>
        <source>Export complete</source>
        <translation>Export abgeschlossen</translation>
    </message>
    <message>
        <source>Your pictures were exported with a watermark</source>
        <translation>Ihre Bilder wurden mit Wasserzeichen exportiert</translation>
    </message>
    <message>
        <source>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</source>
        <translation>Diese Version von %1 ist nicht registriert, daher trägt jedes exportierte Bild das Wasserzeichen „%1“. Registrieren Sie sich mit Ihrem Lizenzschlüssel, um ab sofort Bilder ohne Wasserzeichen zu exportieren.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Register now</source>
        <translation>Jetzt registrieren</translation>
    </message>
</context>
<context>
    <name>SaveFileBar</name>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Ausgabeordner:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Ausgabeordner wählen</translation>
    </message>
</context>
<context>
    <name>SpeechEngineDialog</name>
    <message>
        <source>Works: %1</source>
        <translation>Funktioniert: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Speech engine</source>
        <translation>Spracherkennung</translation>
    </message>
    <message>
        <source>Built-in (offline, English only)</source>
        <translation>Eingebaut (offline, nur Englisch)</translation>
    </message>
    <message>
        <source>Transcription server (OpenAI-compatible API)</source>
        <translation>Transkriptionsserver (OpenAI-kompatible API)</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modell:</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Schlüssel:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</source>
        <translation>GLIMMER_SPEECHD_OPENAI_URL ist gesetzt: Automatische Untertitel nutzen diesen Server, gleich was hier gewählt ist.</translation>
    </message>
    <message>
        <source>Testing...</source>
        <translation>Wird getestet...</translation>
    </message>
</context>
<context>
    <name>SpeechEngineTest</name>
    <message numerus="yes">
        <source>The test got no answer within %n second(s).</source>
        <translation>
            <numerusform>Der Test bekam innerhalb von %n Sekunde keine Antwort.</numerusform>
            <numerusform>Der Test bekam innerhalb von %n Sekunden keine Antwort.</numerusform>
        </translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>Das Programm des Spracherkennungsdienstes fehlt: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>Der Spracherkennungsdienst wurde beendet: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>Der Spracherkennungsdienst konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>The test sound could not be written: %1</source>
        <translation>Der Testklang konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The built-in engine works. It recognises English.</source>
        <translation>Die eingebaute Erkennung funktioniert. Sie erkennt Englisch.</translation>
    </message>
    <message>
        <source>%1 answered with model %2. It recognises the languages its model knows.</source>
        <translation>%1 hat mit dem Modell %2 geantwortet. Er erkennt die Sprachen, die sein Modell kennt.</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(Standard)</translation>
    </message>
</context>
<context>
    <name>SpeechService</name>
    <message>
        <source>The speech service did not start in time.</source>
        <translation>Der Spracherkennungsdienst ist nicht rechtzeitig gestartet.</translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>Das Programm des Spracherkennungsdienstes fehlt: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>Der Spracherkennungsdienst wurde beendet: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>Der Spracherkennungsdienst konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>The speech service did not answer: %1</source>
        <translation>Der Spracherkennungsdienst hat nicht geantwortet: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleConverter</name>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</source>
        <translation>Die SRT-Datei „%1“ konnte nicht umgewandelt werden: ffmpeg wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</source>
        <translation>Die SRT-Datei „%1“ konnte nicht umgewandelt werden: ffmpeg wurde nicht rechtzeitig fertig.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted.</source>
        <translation>Die SRT-Datei „%1“ konnte nicht umgewandelt werden.</translation>
    </message>
</context>
<context>
    <name>SubtitleFile</name>
    <message>
        <source>&quot;%1&quot; is a folder, not a subtitle file.</source>
        <translation>„%1“ ist ein Ordner, keine Untertiteldatei.</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; could not be opened.</source>
        <translation>Die Untertiteldatei „%1“ konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</source>
        <translation>„%1“ ist keine gewöhnliche Datei (ein Gerät, eine Pipe oder ein Socket) und kann nicht als Untertitel gelesen werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</source>
        <translation>„%1“ ist zu groß für eine Untertiteldatei: Untertiteldateien bis %2 MB können geladen werden.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Open video</source>
        <translation>Video öffnen</translation>
    </message>
    <message>
        <source>Open a video [Ctrl+O]</source>
        <translation>Video öffnen [Strg+O]</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>Show or hide the caption list</source>
        <translation>Untertitelliste ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>Enter a licence key to remove the watermark</source>
        <translation>Lizenzschlüssel eingeben, um das Wasserzeichen zu entfernen</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Load subtitles</source>
        <translation>Untertitel laden</translation>
    </message>
    <message>
        <source>Automatic captions</source>
        <translation>Automatische Untertitel</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Bilder löschen</translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation>Bild löschen</translation>
    </message>
    <message>
        <source>Re-capture frames</source>
        <translation>Bilder neu aufnehmen</translation>
    </message>
</context>
<context>
    <name>VideoPlayWidget</name>
    <message>
        <source>Drop your video here! Or,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;Click here to import video.&lt;/a&gt;</source>
        <translation>Video hierher ziehen! Oder&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;hier klicken, um ein Video zu importieren.&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Backward [Left]</source>
        <translation>Bild zurück [Pfeil links]</translation>
    </message>
    <message>
        <source>Forward [Right]</source>
        <translation>Bild vor [Pfeil rechts]</translation>
    </message>
    <message>
        <source>Play [Space]</source>
        <translation>Wiedergabe [Leertaste]</translation>
    </message>
    <message>
        <source>Stop [Ctrl+/]</source>
        <translation>Stopp [Strg+/]</translation>
    </message>
    <message>
        <source>Capture [Ctrl+Alt+S]</source>
        <translation>Erfassen [Strg+Alt+S]</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Erfassen</translation>
    </message>
    <message>
        <source>Capture selected</source>
        <translation>Ausgewählte erfassen</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Videodateien</translation>
    </message>
    <message>
        <source>Open Video</source>
        <translation>Video öffnen</translation>
    </message>
    <message>
        <source>New caption</source>
        <translation>Neuer Untertitel</translation>
    </message>
</context>
<context>
    <name>WindowFlows</name>
    <message>
        <source>No video</source>
        <translation>Kein Video</translation>
    </message>
    <message>
        <source>Open a video first, then generate its captions.</source>
        <translation>Öffnen Sie zuerst ein Video und erzeugen Sie dann seine Untertitel.</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Angehakte erfassen</translation>
    </message>
    <message>
        <source>Some captions were not captured</source>
        <translation>Einige Untertitel wurden nicht aufgenommen</translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) start at or after the end of the video, or have no readable start time, and were skipped.</source>
        <translation>
            <numerusform>%n Untertitel beginnt am oder nach dem Ende des Videos oder hat keine lesbare Startzeit und wurde übersprungen.</numerusform>
            <numerusform>%n Untertitel beginnen am oder nach dem Ende des Videos oder haben keine lesbare Startzeit und wurden übersprungen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a video first, then create a caption at the current time.</source>
        <translation>Öffnen Sie zuerst ein Video und erstellen Sie dann einen Untertitel an der aktuellen Stelle.</translation>
    </message>
    <message>
        <source>No room for a caption</source>
        <translation>Kein Platz für einen Untertitel</translation>
    </message>
    <message>
        <source>A caption already covers the current time. Move to a moment without a caption.</source>
        <translation>An der aktuellen Stelle gibt es bereits einen Untertitel. Gehen Sie zu einer Stelle ohne Untertitel.</translation>
    </message>
    <message>
        <source>Edit the style of all captions</source>
        <translation>Stil aller Untertitel ändern</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>Untertitel bearbeiten</translation>
    </message>
    <message>
        <source>Create caption</source>
        <translation>Untertitel erstellen</translation>
    </message>
    <message>
        <source>Edit caption text</source>
        <translation>Untertiteltext bearbeiten</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Untertitel löschen</translation>
    </message>
    <message>
        <source>%1 needs a speech server</source>
        <translation>%1 braucht einen Sprachserver</translation>
    </message>
    <message>
        <source>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</source>
        <translation>Die eingebaute Spracherkennung erkennt nur Englisch. Für Untertitel auf %1 verbinden Sie unter Spracherkennung einen Transkriptionsserver.</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Spracherkennung...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The video player could not be started: %1</source>
        <translation>Der Videoplayer konnte nicht gestartet werden: %1</translation>
    </message>
</context>
</TS>
