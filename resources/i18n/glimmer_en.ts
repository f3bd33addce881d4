<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>About %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Turn the moments of a video into still pictures with their captions.</source>
        <translation>Turn the moments of a video into still pictures with their captions.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>AutoCaptionFlow</name>
    <message>
        <source>The speech service gave an answer that cannot be read.</source>
        <translation>The speech service gave an answer that cannot be read.</translation>
    </message>
    <message>
        <source>No speech found</source>
        <translation>No speech found</translation>
    </message>
    <message>
        <source>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</source>
        <translation>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</translation>
    </message>
    <message>
        <source>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</source>
        <translation>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</translation>
    </message>
    <message>
        <source>Generating captions...</source>
        <translation>Generating captions...</translation>
    </message>
    <message>
        <source>Automatic captions failed</source>
        <translation>Automatic captions failed</translation>
    </message>
    <message>
        <source>The speech service could not be reached.</source>
        <translation>The speech service could not be reached.</translation>
    </message>
</context>
<context>
    <name>CaptionDock</name>
    <message>
        <source>Captions</source>
        <translation>Captions</translation>
    </message>
</context>
<context>
    <name>CaptionFileFlow</name>
    <message>
        <source>Open local subtitle</source>
        <translation>Open local subtitle</translation>
    </message>
    <message>
        <source>Subtitle Files</source>
        <translation>Subtitle Files</translation>
    </message>
    <message>
        <source>The subtitle file could not be converted.</source>
        <translation>The subtitle file could not be converted.</translation>
    </message>
    <message>
        <source>%1 holds no captions that can be shown.</source>
        <translation>%1 holds no captions that can be shown.</translation>
    </message>
    <message>
        <source>No captions loaded</source>
        <translation>No captions loaded</translation>
    </message>
    <message>
        <source>Reading the captions of %1…</source>
        <translation>Reading the captions of %1…</translation>
    </message>
    <message>
        <source>Converting %1…</source>
        <translation>Converting %1…</translation>
    </message>
    <message>
        <source>Some captions were not loaded</source>
        <translation>Some captions were not loaded</translation>
    </message>
    <message>
        <source>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</source>
        <translation>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</translation>
    </message>
</context>
<context>
    <name>CaptionFileReader</name>
    <message>
        <source>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</source>
        <translation>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</translation>
    </message>
</context>
<context>
    <name>CaptionItem</name>
    <message>
        <source>Hide</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
</context>
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>English (US)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>French</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Chinese (Simplified)</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Cantonese</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Korean</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>Russian</translation>
    </message>
    <message>
        <source>No subtitle file was chosen.</source>
        <translation>No subtitle file was chosen.</translation>
    </message>
    <message>
        <source>No captions were found in &quot;%1&quot;.</source>
        <translation>No captions were found in &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</source>
        <translation>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>&quot;%1&quot; could not be written: %2</translation>
    </message>
</context>
<context>
    <name>CaptionSaveFlow</name>
    <message>
        <source>Save captions</source>
        <translation>Save captions</translation>
    </message>
    <message>
        <source>Save captions as...</source>
        <translation>Save captions as...</translation>
    </message>
    <message>
        <source>captions</source>
        <translation>captions</translation>
    </message>
    <message>
        <source>SubRip subtitles (*.srt)</source>
        <translation>SubRip subtitles (*.srt)</translation>
    </message>
    <message>
        <source>ASS subtitles (*.ass)</source>
        <translation>ASS subtitles (*.ass)</translation>
    </message>
    <message>
        <source>The captions were not saved</source>
        <translation>The captions were not saved</translation>
    </message>
</context>
<context>
    <name>CaptionStyleBar</name>
    <message>
        <source>Size</source>
        <translation>Size</translation>
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
        <translation>Border</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Shadow</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Apply to all</translation>
    </message>
    <message>
        <source>Apply size, position and border to every caption</source>
        <translation>Apply size, position and border to every caption</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Include this caption in &quot;Capture selected&quot;</source>
        <translation>Include this caption in &quot;Capture selected&quot;</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>Edit text</translation>
    </message>
    <message>
        <source>Edit the caption on the video (or double-click it)</source>
        <translation>Edit the caption on the video (or double-click it)</translation>
    </message>
    <message>
        <source>Add caption</source>
        <translation>Add caption</translation>
    </message>
    <message>
        <source>Add a caption at the current position</source>
        <translation>Add a caption at the current position</translation>
    </message>
</context>
<context>
    <name>CaptionWidget</name>
    <message>
        <source>search text</source>
        <translation>search text</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>Popup</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Capture checked</translation>
    </message>
    <message>
        <source>Auto captions</source>
        <translation>Auto captions</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>Add local subtitle</source>
        <translation>Add local subtitle</translation>
    </message>
    <message>
        <source>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</source>
        <translation>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</translation>
    </message>
    <message>
        <source>Captions (%1)</source>
        <translation>Captions (%1)</translation>
    </message>
    <message>
        <source>Select all (%1/%2)</source>
        <translation>Select all (%1/%2)</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Clear captions</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captions?</source>
        <translation>
            <numerusform>Remove %Ln caption?</numerusform>
            <numerusform>Remove all %Ln captions?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>%1 – needs a speech server</source>
        <translation>%1 – needs a speech server</translation>
    </message>
</context>
<context>
    <name>CaptureController</name>
    <message>
        <source>Capture failed</source>
        <translation>Capture failed</translation>
    </message>
    <message>
        <source>The player did not reach the requested moment.</source>
        <translation>The player did not reach the requested moment.</translation>
    </message>
    <message>
        <source>Capturing images</source>
        <translation>Capturing images</translation>
    </message>
    <message>
        <source>The frame could not be captured from the player.</source>
        <translation>The frame could not be captured from the player.</translation>
    </message>
    <message>
        <source>Applying current style</source>
        <translation>Applying current style</translation>
    </message>
    <message>
        <source>Nothing to capture</source>
        <translation>Nothing to capture</translation>
    </message>
    <message>
        <source>Open a video first, then capture its frames.</source>
        <translation>Open a video first, then capture its frames.</translation>
    </message>
    <message>
        <source>No caption ticked</source>
        <translation>No caption ticked</translation>
    </message>
    <message>
        <source>Tick the captions whose moments you want in the caption list, then press Capture checked again.</source>
        <translation>Tick the captions whose moments you want in the caption list, then press Capture checked again.</translation>
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
        <translation>Release date: %1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>Size: %1</translation>
    </message>
    <message>
        <source>Check for update</source>
        <translation>Check for update</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Your current use is already the latest version.</source>
        <translation>Your current use is already the latest version.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version is available</source>
        <translation>A new version is available</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Remind me later</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>Update now</translation>
    </message>
    <message>
        <source>The version information could not be read.</source>
        <translation>The version information could not be read.</translation>
    </message>
    <message>
        <source>Could not check for updates. Please check your network connection and try again.
%1</source>
        <translation>Could not check for updates. Please check your network connection and try again.
%1</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>The captions have changes that were not saved.</source>
        <translation>The captions have changes that were not saved.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captured frames were never exported and will be lost.</source>
        <translation>
            <numerusform>%Ln captured frame was never exported and will be lost.</numerusform>
            <numerusform>%Ln captured frames were never exported and will be lost.</numerusform>
        </translation>
    </message>
    <message>
        <source>Close Glimmer</source>
        <translation>Close Glimmer</translation>
    </message>
    <message>
        <source>Save captions</source>
        <translation>Save captions</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Close anyway</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>DownloadManager</name>
    <message>
        <source>The download tool could not be started: %1</source>
        <translation>The download tool could not be started: %1</translation>
    </message>
    <message>
        <source>The downloaded file could not be opened: %1</source>
        <translation>The downloaded file could not be opened: %1</translation>
    </message>
    <message>
        <source>The download tool stopped before the download was complete.</source>
        <translation>The download tool stopped before the download was complete.</translation>
    </message>
</context>
<context>
    <name>ExportNotice</name>
    <message numerus="yes">
        <source>Saved %n picture(s) to %1</source>
        <translation>
            <numerusform>Saved %n picture to %1</numerusform>
            <numerusform>Saved %n pictures to %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output folder %1 cannot be written.</source>
        <translation>The output folder %1 cannot be written.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>The extracted audio file could not be read.</translation>
    </message>
    <message>
        <source>The video has no sound that could be extracted.</source>
        <translation>The video has no sound that could be extracted.</translation>
    </message>
    <message>
        <source>The speech service could not be reached: %1</source>
        <translation>The speech service could not be reached: %1</translation>
    </message>
</context>
<context>
    <name>ImageExporter</name>
    <message>
        <source>No picture was exported.</source>
        <translation>No picture was exported.</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were exported, but some failed.</source>
        <translation>
            <numerusform>%n picture was exported, but some failed.</numerusform>
            <numerusform>%n pictures were exported, but some failed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageItem</name>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>ImageListViewDialog</name>
    <message>
        <source>Captured frames</source>
        <translation>Captured frames</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Delete all</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
</context>
<context>
    <name>ImagesWidget</name>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>List view</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Apply Current Style</source>
        <translation>Apply Current Style</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n frame</numerusform>
            <numerusform>%n frames</numerusform>
        </translation>
    </message>
    <message>
        <source>No frame is selected.</source>
        <translation>No frame is selected.</translation>
    </message>
    <message>
        <source>Capture every frame again with the current caption style</source>
        <translation>Capture every frame again with the current caption style</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Clear frames</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln frames?</source>
        <translation>
            <numerusform>Remove %Ln frame?</numerusform>
            <numerusform>Remove all %Ln frames?</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>LicenseManager</name>
    <message>
        <source>Please enter a licence key.</source>
        <translation>Please enter a licence key.</translation>
    </message>
    <message>
        <source>The licence server sent an answer that could not be read.</source>
        <translation>The licence server sent an answer that could not be read.</translation>
    </message>
    <message>
        <source>This licence key was not accepted.</source>
        <translation>This licence key was not accepted.</translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Open video...</source>
        <translation>Open video...</translation>
    </message>
    <message>
        <source>Add local subtitle...</source>
        <translation>Add local subtitle...</translation>
    </message>
    <message>
        <source>Caption panel</source>
        <translation>Caption panel</translation>
    </message>
    <message>
        <source>Output folder...</source>
        <translation>Output folder...</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Check for updates</translation>
    </message>
    <message>
        <source>Register...</source>
        <translation>Register...</translation>
    </message>
    <message>
        <source>About Glimmer</source>
        <translation>About Glimmer</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Open log folder</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Output format</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Choose the output folder</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Speech engine...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The video cannot be played</source>
        <translation>The video cannot be played</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>%1 could not be opened: %2</translation>
    </message>
    <message>
        <source>The video cannot be opened</source>
        <translation>The video cannot be opened</translation>
    </message>
    <message>
        <source>%1 does not exist or cannot be read.</source>
        <translation>%1 does not exist or cannot be read.</translation>
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
        <translation>the file has no video, only sound</translation>
    </message>
</context>
<context>
    <name>OutputFiles</name>
    <message>
        <source>%1: the file has vanished before it could be moved to the output folder.</source>
        <translation>%1: the file has vanished before it could be moved to the output folder.</translation>
    </message>
    <message>
        <source>%1 could not be moved to the output folder %2; it was kept at %3.</source>
        <translation>%1 could not be moved to the output folder %2; it was kept at %3.</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>The picture is empty.</source>
        <translation>The picture is empty.</translation>
    </message>
    <message>
        <source>This system cannot write %1 pictures. Choose PNG.</source>
        <translation>This system cannot write %1 pictures. Choose PNG.</translation>
    </message>
    <message>
        <source>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</translation>
    </message>
    <message>
        <source>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</translation>
    </message>
    <message>
        <source>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</translation>
    </message>
    <message>
        <source>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</translation>
    </message>
    <message>
        <source>Cannot create the file in %1: %2</source>
        <translation>Cannot create the file in %1: %2</translation>
    </message>
    <message>
        <source>Writing the picture to %1 failed: %2</source>
        <translation>Writing the picture to %1 failed: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWidget</name>
    <message>
        <source>Layout:</source>
        <translation>Layout:</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grid</translation>
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
        <translation>Fit</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>Enlarge</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>X space</source>
        <translation>X space</translation>
    </message>
    <message>
        <source>Y space</source>
        <translation>Y space</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Column</translation>
    </message>
    <message>
        <source>The scale is 0: there is no picture to export.</source>
        <translation>The scale is 0: there is no picture to export.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Failed to start process %1. exit code %2</translation>
    </message>
</context>
<context>
    <name>RegisterDialog</name>
    <message>
        <source>Register %1</source>
        <translation>Register %1</translation>
    </message>
    <message>
        <source>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</source>
        <translation>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>Licence key</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Checking the licence key...</source>
        <translation>Checking the licence key...</translation>
    </message>
    <message>
        <source>This copy is registered (%1). Thank you!</source>
        <translation>This copy is registered (%1). Thank you!</translation>
    </message>
</context>
<context>
    <name>RegisterGuideDialog</name>
    <message>
        <source>Export complete</source>
        <translation>Export complete</translation>
    </message>
    <message>
        <source>Your pictures were exported with a watermark</source>
        <translation>Your pictures were exported with a watermark</translation>
    </message>
    <message>
        <source>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</source>
        <translation>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Register now</source>
        <translation>Register now</translation>
    </message>
</context>
<context>
    <name>SaveFileBar</name>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Output folder:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>Choose the output folder</translation>
    </message>
</context>
<context>
    <name>SpeechEngineDialog</name>
    <message>
        <source>Works: %1</source>
        <translation>Works: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Failed: %1</translation>
    </message>
    <message>
        <source>Speech engine</source>
        <translation>Speech engine</translation>
    </message>
    <message>
        <source>Built-in (offline, English only)</source>
        <translation>Built-in (offline, English only)</translation>
    </message>
    <message>
        <source>Transcription server (OpenAI-compatible API)</source>
        <translation>Transcription server (OpenAI-compatible API)</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Address:</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Key:</translation>
    </message>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</source>
        <translation>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</translation>
    </message>
    <message>
        <source>Testing...</source>
        <translation>Testing...</translation>
    </message>
</context>
<context>
    <name>SpeechEngineTest</name>
    <message numerus="yes">
        <source>The test got no answer within %n second(s).</source>
        <translation>
            <numerusform>The test got no answer within %n second.</numerusform>
            <numerusform>The test got no answer within %n seconds.</numerusform>
        </translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>The speech service program is missing: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>The speech service stopped: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>The speech service could not be started: %1</translation>
    </message>
    <message>
        <source>The test sound could not be written: %1</source>
        <translation>The test sound could not be written: %1</translation>
    </message>
    <message>
        <source>The built-in engine works. It recognises English.</source>
        <translation>The built-in engine works. It recognises English.</translation>
    </message>
    <message>
        <source>%1 answered with model %2. It recognises the languages its model knows.</source>
        <translation>%1 answered with model %2. It recognises the languages its model knows.</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>(default)</translation>
    </message>
</context>
<context>
    <name>SpeechService</name>
    <message>
        <source>The speech service did not start in time.</source>
        <translation>The speech service did not start in time.</translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>The speech service program is missing: %1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>The speech service stopped: %1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>The speech service could not be started: %1</translation>
    </message>
    <message>
        <source>The speech service did not answer: %1</source>
        <translation>The speech service did not answer: %1</translation>
    </message>
</context>
<context>
    <name>SubtitleConverter</name>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</source>
        <translation>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</source>
        <translation>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted.</source>
        <translation>The SRT file &quot;%1&quot; could not be converted.</translation>
    </message>
</context>
<context>
    <name>SubtitleFile</name>
    <message>
        <source>&quot;%1&quot; is a folder, not a subtitle file.</source>
        <translation>&quot;%1&quot; is a folder, not a subtitle file.</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; could not be opened.</source>
        <translation>The subtitle file &quot;%1&quot; could not be opened.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</source>
        <translation>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</source>
        <translation>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Open video</source>
        <translation>Open video</translation>
    </message>
    <message>
        <source>Open a video [Ctrl+O]</source>
        <translation>Open a video [Ctrl+O]</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Captions</translation>
    </message>
    <message>
        <source>Show or hide the caption list</source>
        <translation>Show or hide the caption list</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Enter a licence key to remove the watermark</source>
        <translation>Enter a licence key to remove the watermark</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Undo %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Redo %1</translation>
    </message>
    <message>
        <source>Load subtitles</source>
        <translation>Load subtitles</translation>
    </message>
    <message>
        <source>Automatic captions</source>
        <translation>Automatic captions</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>Clear frames</translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation>Delete frame</translation>
    </message>
    <message>
        <source>Re-capture frames</source>
        <translation>Re-capture frames</translation>
    </message>
</context>
<context>
    <name>VideoPlayWidget</name>
    <message>
        <source>Drop your video here! Or,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;Click here to import video.&lt;/a&gt;</source>
        <translation>Drop your video here! Or,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;Click here to import video.&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Backward [Left]</source>
        <translation>Backward [Left]</translation>
    </message>
    <message>
        <source>Forward [Right]</source>
        <translation>Forward [Right]</translation>
    </message>
    <message>
        <source>Play [Space]</source>
        <translation>Play [Space]</translation>
    </message>
    <message>
        <source>Stop [Ctrl+/]</source>
        <translation>Stop [Ctrl+/]</translation>
    </message>
    <message>
        <source>Capture [Ctrl+Alt+S]</source>
        <translation>Capture [Ctrl+Alt+S]</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Capture selected</source>
        <translation>Capture selected</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Video Files</translation>
    </message>
    <message>
        <source>Open Video</source>
        <translation>Open Video</translation>
    </message>
    <message>
        <source>New caption</source>
        <translation>New caption</translation>
    </message>
</context>
<context>
    <name>WindowFlows</name>
    <message>
        <source>No video</source>
        <translation>No video</translation>
    </message>
    <message>
        <source>Open a video first, then generate its captions.</source>
        <translation>Open a video first, then generate its captions.</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>Capture checked</translation>
    </message>
    <message>
        <source>Some captions were not captured</source>
        <translation>Some captions were not captured</translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) start at or after the end of the video, or have no readable start time, and were skipped.</source>
        <translation>
            <numerusform>%n caption starts at or after the end of the video, or has no readable start time, and was skipped.</numerusform>
            <numerusform>%n captions start at or after the end of the video, or have no readable start time, and were skipped.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a video first, then create a caption at the current time.</source>
        <translation>Open a video first, then create a caption at the current time.</translation>
    </message>
    <message>
        <source>No room for a caption</source>
        <translation>No room for a caption</translation>
    </message>
    <message>
        <source>A caption already covers the current time. Move to a moment without a caption.</source>
        <translation>A caption already covers the current time. Move to a moment without a caption.</translation>
    </message>
    <message>
        <source>Edit the style of all captions</source>
        <translation>Edit the style of all captions</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>Edit caption</translation>
    </message>
    <message>
        <source>Create caption</source>
        <translation>Create caption</translation>
    </message>
    <message>
        <source>Edit caption text</source>
        <translation>Edit caption text</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>Clear captions</translation>
    </message>
    <message>
        <source>%1 needs a speech server</source>
        <translation>%1 needs a speech server</translation>
    </message>
    <message>
        <source>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</source>
        <translation>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>Speech engine...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The video player could not be started: %1</source>
        <translation>The video player could not be started: %1</translation>
    </message>
</context>
</TS>
