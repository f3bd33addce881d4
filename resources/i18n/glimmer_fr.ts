<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Turn the moments of a video into still pictures with their captions.</source>
        <translation>Transformez les moments d’une vidéo en images fixes avec leurs sous-titres.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>AutoCaptionFlow</name>
    <message>
        <source>The speech service gave an answer that cannot be read.</source>
        <translation>Le service de reconnaissance vocale a renvoyé une réponse illisible.</translation>
    </message>
    <message>
        <source>No speech found</source>
        <translation>Aucune parole détectée</translation>
    </message>
    <message>
        <source>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</source>
        <translation>Aucun mot n’a été reconnu dans la piste audio de cette vidéo. Vérifiez la langue des sous-titres ou ajoutez plutôt un fichier de sous-titres.</translation>
    </message>
    <message>
        <source>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</source>
        <translation>Impossible d’extraire la piste audio de la vidéo. Elle n’a peut-être pas de son, ou ffmpeg est absent.</translation>
    </message>
    <message>
        <source>Generating captions...</source>
        <translation>Génération des sous-titres…</translation>
    </message>
    <message>
        <source>Automatic captions failed</source>
        <translation>Échec des sous-titres automatiques</translation>
    </message>
    <message>
        <source>The speech service could not be reached.</source>
        <translation>Impossible de joindre le service de reconnaissance vocale.</translation>
    </message>
</context>
<context>
    <name>CaptionDock</name>
    <message>
        <source>Captions</source>
        <translation>Sous-titres</translation>
    </message>
</context>
<context>
    <name>CaptionFileFlow</name>
    <message>
        <source>Open local subtitle</source>
        <translation>Ouvrir un fichier de sous-titres</translation>
    </message>
    <message>
        <source>Subtitle Files</source>
        <translation>Fichiers de sous-titres</translation>
    </message>
    <message>
        <source>The subtitle file could not be converted.</source>
        <translation>Impossible de convertir le fichier de sous-titres.</translation>
    </message>
    <message>
        <source>%1 holds no captions that can be shown.</source>
        <translation>%1 ne contient aucun sous-titre affichable.</translation>
    </message>
    <message>
        <source>No captions loaded</source>
        <translation>Aucun sous-titre chargé</translation>
    </message>
    <message>
        <source>Reading the captions of %1…</source>
        <translation>Lecture des sous-titres de %1…</translation>
    </message>
    <message>
        <source>Converting %1…</source>
        <translation>Conversion de %1…</translation>
    </message>
    <message>
        <source>Some captions were not loaded</source>
        <translation>Certains sous-titres n&apos;ont pas été chargés</translation>
    </message>
    <message>
        <source>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</source>
        <translation>%1 des %2 sous-titres de %3 n&apos;ont pas pu être lus ; les %4 autres ont été chargés.</translation>
    </message>
</context>
<context>
    <name>CaptionFileReader</name>
    <message>
        <source>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</source>
        <translation>« %1 » contient plus de %2 sous-titres. Pour ménager la mémoire, %2 sous-titres au plus sont chargés depuis un fichier : scindez-le en plusieurs parties.</translation>
    </message>
</context>
<context>
    <name>CaptionItem</name>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>Anglais (États-Unis)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Chinois simplifié</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Cantonais</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Coréen</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>Russe</translation>
    </message>
    <message>
        <source>No subtitle file was chosen.</source>
        <translation>Aucun fichier de sous-titres n’a été choisi.</translation>
    </message>
    <message>
        <source>No captions were found in &quot;%1&quot;.</source>
        <translation>Aucun sous-titre trouvé dans « %1 ».</translation>
    </message>
    <message>
        <source>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</source>
        <translation>Les sous-titres s’enregistrent en fichier .srt ou .ass ; « %1 » n’est ni l’un ni l’autre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>Impossible d’écrire « %1 » : %2</translation>
    </message>
</context>
<context>
    <name>CaptionSaveFlow</name>
    <message>
        <source>Save captions</source>
        <translation>Enregistrer les sous-titres</translation>
    </message>
    <message>
        <source>Save captions as...</source>
        <translation>Enregistrer les sous-titres sous...</translation>
    </message>
    <message>
        <source>captions</source>
        <translation>sous-titres</translation>
    </message>
    <message>
        <source>SubRip subtitles (*.srt)</source>
        <translation>Sous-titres SubRip (*.srt)</translation>
    </message>
    <message>
        <source>ASS subtitles (*.ass)</source>
        <translation>Sous-titres ASS (*.ass)</translation>
    </message>
    <message>
        <source>The captions were not saved</source>
        <translation>Les sous-titres n’ont pas été enregistrés</translation>
    </message>
</context>
<context>
    <name>CaptionStyleBar</name>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
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
        <translation>Contour</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ombre</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Appliquer à tous</translation>
    </message>
    <message>
        <source>Apply size, position and border to every caption</source>
        <translation>Appliquer la taille, la position et le contour à tous les sous-titres</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capturer</translation>
    </message>
    <message>
        <source>Include this caption in &quot;Capture selected&quot;</source>
        <translation>Inclure ce sous-titre dans « Capturer la sélection »</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Modifier le texte</translation>
    </message>
    <message>
        <source>Edit the caption on the video (or double-click it)</source>
        <translation>Modifier le sous-titre sur la vidéo (ou double-cliquer dessus)</translation>
    </message>
    <message>
        <source>Add caption</source>
        <translation>Ajouter un sous-titre</translation>
    </message>
    <message>
        <source>Add a caption at the current position</source>
        <translation>Ajouter un sous-titre à la position actuelle</translation>
    </message>
</context>
<context>
    <name>CaptionWidget</name>
    <message>
        <source>search text</source>
        <translation>rechercher du texte</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Capturer les cochés</translation>
    </message>
    <message>
        <source>Auto captions</source>
        <translation>Sous-titres auto</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Add local subtitle</source>
        <translation>Ajouter un fichier de sous-titres</translation>
    </message>
    <message>
        <source>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</source>
        <translation>Aucun sous-titre pour l’instant. Générez-les à partir de la parole de la vidéo, créez-en un à l’instant actuel ou ajoutez un fichier de sous-titres.</translation>
    </message>
    <message>
        <source>Captions (%1)</source>
        <translation>Sous-titres (%1)</translation>
    </message>
    <message>
        <source>Select all (%1/%2)</source>
        <translation>Tout cocher (%1/%2)</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Effacer les sous-titres</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captions?</source>
        <translation>
            <numerusform>Supprimer %Ln sous-titre ?</numerusform>
            <numerusform>Supprimer les %Ln sous-titres ?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>%1 – needs a speech server</source>
        <translation>%1 – nécessite un serveur vocal</translation>
    </message>
</context>
<context>
    <name>CaptureController</name>
    <message>
        <source>Capture failed</source>
        <translation>Échec de la capture</translation>
    </message>
    <message>
        <source>The player did not reach the requested moment.</source>
        <translation>Le lecteur n’a pas atteint le moment demandé.</translation>
    </message>
    <message>
        <source>Capturing images</source>
        <translation>Capture des images</translation>
    </message>
    <message>
        <source>The frame could not be captured from the player.</source>
        <translation>Impossible de capturer l’image depuis le lecteur.</translation>
    </message>
    <message>
        <source>Applying current style</source>
        <translation>Application du style actuel</translation>
    </message>
    <message>
        <source>Nothing to capture</source>
        <translation>Rien à capturer</translation>
    </message>
    <message>
        <source>Open a video first, then capture its frames.</source>
        <translation>Ouvrez d&apos;abord une vidéo, puis capturez ses images.</translation>
    </message>
    <message>
        <source>No caption ticked</source>
        <translation>Aucun sous-titre coché</translation>
    </message>
    <message>
        <source>Tick the captions whose moments you want in the caption list, then press Capture checked again.</source>
        <translation>Cochez dans la liste les sous-titres dont vous voulez les moments, puis appuyez de nouveau sur Capturer les cochés.</translation>
    </message>
</context>
<context>
    <name>CheckUpdateDialog</name>
    <message>
        <source>Version: %1</source>
        <translation>Version : %1</translation>
    </message>
    <message>
        <source>Release date: %1</source>
        <translation>Date de publication : %1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>Taille : %1</translation>
    </message>
    <message>
        <source>Check for update</source>
        <translation>Rechercher une mise à jour</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Your current use is already the latest version.</source>
        <translation>Vous utilisez déjà la dernière version.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version is available</source>
        <translation>Une nouvelle version est disponible</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>The version information could not be read.</source>
        <translation>Impossible de lire les informations de version.</translation>
    </message>
    <message>
        <source>Could not check for updates. Please check your network connection and try again.
%1</source>
        <translation>Impossible de rechercher les mises à jour. Vérifiez votre connexion réseau et réessayez.
%1</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>The captions have changes that were not saved.</source>
        <translation>Les sous-titres ont des modifications non enregistrées.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captured frames were never exported and will be lost.</source>
        <translation>
            <numerusform>%Ln image capturée n’a jamais été exportée et sera perdue.</numerusform>
            <numerusform>%Ln images capturées n’ont jamais été exportées et seront perdues.</numerusform>
        </translation>
    </message>
    <message>
        <source>Close Glimmer</source>
        <translation>Fermer Glimmer</translation>
    </message>
    <message>
        <source>Save captions</source>
        <translation>Enregistrer les sous-titres</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Fermer quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>DownloadManager</name>
    <message>
        <source>The download tool could not be started: %1</source>
        <translation>Impossible de démarrer l’outil de téléchargement : %1</translation>
    </message>
    <message>
        <source>The downloaded file could not be opened: %1</source>
        <translation>Impossible d’ouvrir le fichier téléchargé : %1</translation>
    </message>
    <message>
        <source>The download tool stopped before the download was complete.</source>
        <translation>L’outil de téléchargement s’est arrêté avant la fin du téléchargement.</translation>
    </message>
</context>
<context>
    <name>ExportNotice</name>
    <message numerus="yes">
        <source>Saved %n picture(s) to %1</source>
        <translation>
            <numerusform>%n image enregistrée dans %1</numerusform>
            <numerusform>%n images enregistrées dans %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output folder %1 cannot be written.</source>
        <translation>Impossible d&apos;écrire dans le dossier de sortie %1.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>Impossible de lire le fichier audio extrait.</translation>
    </message>
    <message>
        <source>The video has no sound that could be extracted.</source>
        <translation>La vidéo ne contient aucun son à extraire.</translation>
    </message>
    <message>
        <source>The speech service could not be reached: %1</source>
        <translation>Impossible de joindre le service de reconnaissance vocale : %1</translation>
    </message>
</context>
<context>
    <name>ImageExporter</name>
    <message>
        <source>No picture was exported.</source>
        <translation>Aucune image n’a été exportée.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were exported, but some failed.</source>
        <translation>
            <numerusform>%n image a été exportée, mais d’autres ont échoué.</numerusform>
            <numerusform>%n images ont été exportées, mais d’autres ont échoué.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageItem</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>ImageListViewDialog</name>
    <message>
        <source>Captured frames</source>
        <translation>Images capturées</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Tout supprimer</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
</context>
<context>
    <name>ImagesWidget</name>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>Vue en liste</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>Apply Current Style</source>
        <translation>Appliquer le style</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>No frame is selected.</source>
        <translation>Aucune image n’est sélectionnée.</translation>
    </message>
    <message>
        <source>Capture every frame again with the current caption style</source>
        <translation>Capturer à nouveau toutes les images avec le style de sous-titre actuel</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Effacer les images</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln frames?</source>
        <translation>
            <numerusform>Supprimer %Ln image ?</numerusform>
            <numerusform>Supprimer les %Ln images ?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>LicenseManager</name>
    <message>
        <source>Please enter a licence key.</source>
        <translation>Veuillez saisir une clé de licence.</translation>
    </message>
    <message>
        <source>The licence server sent an answer that could not be read.</source>
        <translation>Le serveur de licences a renvoyé une réponse illisible.</translation>
    </message>
    <message>
        <source>This licence key was not accepted.</source>
        <translation>Cette clé de licence n’a pas été acceptée.</translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Open video...</source>
        <translation>Ouvrir une vidéo…</translation>
    </message>
    <message>
        <source>Add local subtitle...</source>
        <translation>Ajouter un fichier de sous-titres…</translation>
    </message>
    <message>
        <source>Caption panel</source>
        <translation>Panneau des sous-titres</translation>
    </message>
    <message>
        <source>Output folder...</source>
        <translation>Dossier de sortie…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Register...</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>About Glimmer</source>
        <translation>À propos de Glimmer</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Ouvrir le dossier des journaux</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Format de sortie</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Choisir le dossier de sortie</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Moteur vocal...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The video cannot be played</source>
        <translation>Impossible de lire la vidéo</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>Impossible d’ouvrir %1 : %2</translation>
    </message>
    <message>
        <source>The video cannot be opened</source>
        <translation>Impossible d’ouvrir la vidéo</translation>
    </message>
    <message>
        <source>%1 does not exist or cannot be read.</source>
        <translation>%1 n’existe pas ou ne peut pas être lu.</translation>
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
        <translation>le fichier ne contient pas de vidéo, seulement du son</translation>
    </message>
</context>
<context>
    <name>OutputFiles</name>
    <message>
        <source>%1: the file has vanished before it could be moved to the output folder.</source>
        <translation>%1 : le fichier a disparu avant d’avoir pu être déplacé dans le dossier de sortie.</translation>
    </message>
    <message>
        <source>%1 could not be moved to the output folder %2; it was kept at %3.</source>
        <translation>Impossible de déplacer %1 dans le dossier de sortie %2 ; le fichier a été conservé dans %3.</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>The picture is empty.</source>
        <translation>L’image est vide.</translation>
    </message>
    <message>
        <source>This system cannot write %1 pictures. Choose PNG.</source>
        <translation>Ce système ne peut pas enregistrer d’images %1. Choisissez PNG.</translation>
    </message>
    <message>
        <source>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>L’image est trop haute pour le WEBP : %1×%2 pixels, alors que le WEBP accepte au plus %3 pixels de côté. Choisissez PNG ou une échelle plus petite.</translation>
    </message>
    <message>
        <source>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>L’image est trop large pour le WEBP : %1×%2 pixels, alors que le WEBP accepte au plus %3 pixels de côté. Choisissez PNG ou une échelle plus petite.</translation>
    </message>
    <message>
        <source>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>L’image est trop haute pour le JPG : %1×%2 pixels, alors que le JPG accepte au plus %3 pixels de côté. Choisissez PNG ou une échelle plus petite.</translation>
    </message>
    <message>
        <source>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>L’image est trop large pour le JPG : %1×%2 pixels, alors que le JPG accepte au plus %3 pixels de côté. Choisissez PNG ou une échelle plus petite.</translation>
    </message>
    <message>
        <source>Cannot create the file in %1: %2</source>
        <translation>Impossible de créer le fichier dans %1 : %2</translation>
    </message>
    <message>
        <source>Writing the picture to %1 failed: %2</source>
        <translation>L&apos;écriture de l&apos;image dans %1 a échoué : %2</translation>
    </message>
</context>
<context>
    <name>PreviewWidget</name>
    <message>
        <source>Layout:</source>
        <translation>Disposition :</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>X space</source>
        <translation>Espace X</translation>
    </message>
    <message>
        <source>Y space</source>
        <translation>Espace Y</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>The scale is 0: there is no picture to export.</source>
        <translation>L’échelle est à 0 : il n’y a aucune image à exporter.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Impossible de démarrer le processus %1. Code de sortie %2</translation>
    </message>
</context>
<context>
    <name>RegisterDialog</name>
    <message>
        <source>Register %1</source>
        <translation>Enregistrer %1</translation>
    </message>
    <message>
        <source>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</source>
        <translation>Saisissez la clé de licence reçue lors de votre achat. Les copies enregistrées exportent les images sans filigrane.</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Clé de licence</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Checking the licence key...</source>
        <translation>Vérification de la clé de licence…</translation>
    </message>
    <message>
        <source>This copy is registered (%1). Thank you!</source>
        <translation>Cette copie est enregistrée (%1). Merci !</translation>
    </message>
</context>
<context>
    <name>RegisterGuideDialog</name>
    <message>
        <source>Export complete</source>
        <translation>Exportation terminée</translation>
    </message>
    <message>
        <source>Your pictures were exported with a watermark</source>
        <translation>Vos images ont été exportées avec un filigrane</translation>
    </message>
    <message>
        <source>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</source>
        <translation>Cette copie de %1 n’est pas enregistrée : chaque image exportée porte le filigrane « %1 ». Enregistrez-la avec votre clé de licence pour exporter désormais des images sans filigrane.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Register now</source>
        <translation>Enregistrer maintenant</translation>
    </message>
</context>
<context>
    <name>SaveFileBar</name>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Dossier de sortie :</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format :</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Choisir le dossier de sortie</translation>
    </message>
</context>
<context>
    <name>SpeechEngineDialog</name>
    <message>
        <source>Works: %1</source>
        <translation>Fonctionne : %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Échec : %1</translation>
    </message>
    <message>
        <source>Speech engine</source>
        <translation>Moteur vocal</translation>
    </message>
    <message>
        <source>Built-in (offline, English only)</source>
        <translation>Intégré (hors ligne, anglais uniquement)</translation>
    </message>
    <message>
        <source>Transcription server (OpenAI-compatible API)</source>
        <translation>Serveur de transcription (API compatible OpenAI)</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse :</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modèle :</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Clé :</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Tester</translation>
    </message>
    <message>
        <source>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</source>
        <translation>GLIMMER_SPEECHD_OPENAI_URL est défini : les sous-titres automatiques utilisent ce serveur, quel que soit le choix fait ici.</translation>
    </message>
    <message>
        <source>Testing...</source>
        <translation>Test en cours...</translation>
    </message>
</context>
<context>
    <name>SpeechEngineTest</name>
    <message numerus="yes">
        <source>The test got no answer within %n second(s).</source>
        <translation>
            <numerusform>Le test n’a reçu aucune réponse en %n seconde.</numerusform>
            <numerusform>Le test n’a reçu aucune réponse en %n secondes.</numerusform>
        </translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>Le programme du service de reconnaissance vocale est introuvable : %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>Le service de reconnaissance vocale s’est arrêté : %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>Impossible de démarrer le service de reconnaissance vocale : %1</translation>
    </message>
    <message>
        <source>The test sound could not be written: %1</source>
        <translation>Le son de test n’a pas pu être écrit : %1</translation>
    </message>
    <message>
        <source>The built-in engine works. It recognises English.</source>
        <translation>Le moteur intégré fonctionne. Il reconnaît l’anglais.</translation>
    </message>
    <message>
        <source>%1 answered with model %2. It recognises the languages its model knows.</source>
        <translation>%1 a répondu avec le modèle %2. Il reconnaît les langues que son modèle connaît.</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(par défaut)</translation>
    </message>
</context>
<context>
    <name>SpeechService</name>
    <message>
        <source>The speech service did not start in time.</source>
        <translation>Le service de reconnaissance vocale n’a pas démarré à temps.</translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>Le programme du service de reconnaissance vocale est introuvable : %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>Le service de reconnaissance vocale s’est arrêté : %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>Impossible de démarrer le service de reconnaissance vocale : %1</translation>
    </message>
    <message>
        <source>The speech service did not answer: %1</source>
        <translation>Le service vocal n’a pas répondu : %1</translation>
    </message>
</context>
<context>
    <name>SubtitleConverter</name>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</source>
        <translation>Impossible de convertir le fichier SRT « %1 » : ffmpeg est introuvable.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</source>
        <translation>Impossible de convertir le fichier SRT « %1 » : ffmpeg n’a pas terminé à temps.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted.</source>
        <translation>Impossible de convertir le fichier SRT « %1 ».</translation>
    </message>
</context>
<context>
    <name>SubtitleFile</name>
    <message>
        <source>&quot;%1&quot; is a folder, not a subtitle file.</source>
        <translation>« %1 » est un dossier, pas un fichier de sous-titres.</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; could not be opened.</source>
        <translation>Impossible d’ouvrir le fichier de sous-titres « %1 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</source>
        <translation>« %1 » n&apos;est pas un fichier ordinaire (périphérique, tube ou socket) : il ne peut pas être lu comme sous-titres.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</source>
        <translation>« %1 » est trop volumineux pour un fichier de sous-titres : les fichiers de sous-titres jusqu&apos;à %2 Mo peuvent être chargés.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Open video</source>
        <translation>Ouvrir une vidéo</translation>
    </message>
    <message>
        <source>Open a video [Ctrl+O]</source>
        <translation>Ouvrir une vidéo [Ctrl+O]</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Sous-titres</translation>
    </message>
    <message>
        <source>Show or hide the caption list</source>
        <translation>Afficher ou masquer la liste des sous-titres</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Enter a licence key to remove the watermark</source>
        <translation>Saisissez une clé de licence pour retirer le filigrane</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annuler : %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir : %1</translation>
    </message>
    <message>
        <source>Load subtitles</source>
        <translation>Charger les sous-titres</translation>
    </message>
    <message>
        <source>Automatic captions</source>
        <translation>Sous-titres automatiques</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Effacer les images</translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation>Supprimer l’image</translation>
    </message>
    <message>
        <source>Re-capture frames</source>
        <translation>Recapturer les images</translation>
    </message>
</context>
<context>
    <name>VideoPlayWidget</name>
    <message>
        <source>Drop your video here! Or,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;Click here to import video.&lt;/a&gt;</source>
        <translation>Déposez votre vidéo ici ! Ou&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;cliquez ici pour importer une vidéo.&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Backward [Left]</source>
        <translation>Image précédente [Gauche]</translation>
    </message>
    <message>
        <source>Forward [Right]</source>
        <translation>Image suivante [Droite]</translation>
    </message>
    <message>
        <source>Play [Space]</source>
        <translation>Lecture [Espace]</translation>
    </message>
    <message>
        <source>Stop [Ctrl+/]</source>
        <translation>Arrêter [Ctrl+/]</translation>
    </message>
    <message>
        <source>Capture [Ctrl+Alt+S]</source>
        <translation>Capturer [Ctrl+Alt+S]</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capturer</translation>
    </message>
    <message>
        <source>Capture selected</source>
        <translation>Capturer la sélection</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Fichiers vidéo</translation>
    </message>
    <message>
        <source>Open Video</source>
        <translation>Ouvrir une vidéo</translation>
    </message>
    <message>
        <source>New caption</source>
        <translation>Nouveau sous-titre</translation>
    </message>
</context>
<context>
    <name>WindowFlows</name>
    <message>
        <source>No video</source>
        <translation>Aucune vidéo</translation>
    </message>
    <message>
        <source>Open a video first, then generate its captions.</source>
        <translation>Ouvrez d’abord une vidéo, puis générez ses sous-titres.</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Capturer les cochés</translation>
    </message>
    <message>
        <source>Some captions were not captured</source>
        <translation>Certains sous-titres n’ont pas été capturés</translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) start at or after the end of the video, or have no readable start time, and were skipped.</source>
        <translation>
            <numerusform>%n sous-titre commence à la fin de la vidéo ou après, ou n’a pas d’heure de début lisible, et a été ignoré.</numerusform>
            <numerusform>%n sous-titres commencent à la fin de la vidéo ou après, ou n’ont pas d’heure de début lisible, et ont été ignorés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a video first, then create a caption at the current time.</source>
        <translation>Ouvrez d’abord une vidéo, puis créez un sous-titre à l’instant actuel.</translation>
    </message>
    <message>
        <source>No room for a caption</source>
        <translation>Pas de place pour un sous-titre</translation>
    </message>
    <message>
        <source>A caption already covers the current time. Move to a moment without a caption.</source>
        <translation>Un sous-titre couvre déjà l’instant actuel. Placez-vous à un moment sans sous-titre.</translation>
    </message>
    <message>
        <source>Edit the style of all captions</source>
        <translation>Modifier le style de tous les sous-titres</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>Modifier le sous-titre</translation>
    </message>
    <message>
        <source>Create caption</source>
        <translation>Créer un sous-titre</translation>
    </message>
    <message>
        <source>Edit caption text</source>
        <translation>Modifier le texte du sous-titre</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Effacer les sous-titres</translation>
    </message>
    <message>
        <source>%1 needs a speech server</source>
        <translation>%1 nécessite un serveur vocal</translation>
    </message>
    <message>
        <source>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</source>
        <translation>Le moteur vocal intégré ne reconnaît que l’anglais. Pour des sous-titres en %1, connectez un serveur de transcription dans Moteur vocal.</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Moteur vocal...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The video player could not be started: %1</source>
        <translation>Impossible de démarrer le lecteur vidéo : %1</translation>
    </message>
</context>
</TS>
