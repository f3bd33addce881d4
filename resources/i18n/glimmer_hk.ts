<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_HK">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>關於 %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Turn the moments of a video into still pictures with their captions.</source>
        <translation>將影片中的精彩瞬間連同字幕一起變成靜態圖片。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>AutoCaptionFlow</name>
    <message>
        <source>The speech service gave an answer that cannot be read.</source>
        <translation>語音辨識服務傳回了無法讀取的結果。</translation>
    </message>
    <message>
        <source>No speech found</source>
        <translation>未辨識到語音</translation>
    </message>
    <message>
        <source>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</source>
        <translation>未能在此影片的音軌中辨識出任何文字。請檢查字幕語言，或改為加入字幕檔案。</translation>
    </message>
    <message>
        <source>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</source>
        <translation>無法從影片中擷取音軌。影片可能沒有聲音，或缺少 ffmpeg。</translation>
    </message>
    <message>
        <source>Generating captions...</source>
        <translation>正在產生字幕…</translation>
    </message>
    <message>
        <source>Automatic captions failed</source>
        <translation>自動產生字幕失敗</translation>
    </message>
    <message>
        <source>The speech service could not be reached.</source>
        <translation>無法連線至語音辨識服務。</translation>
    </message>
</context>
<context>
    <name>CaptionDock</name>
    <message>
        <source>Captions</source>
        <translation>字幕</translation>
    </message>
</context>
<context>
    <name>CaptionFileFlow</name>
    <message>
        <source>Open local subtitle</source>
        <translation>開啟本機字幕</translation>
    </message>
    <message>
        <source>Subtitle Files</source>
        <translation>字幕檔案</translation>
    </message>
    <message>
        <source>The subtitle file could not be converted.</source>
        <translation>無法轉換字幕檔案。</translation>
    </message>
    <message>
        <source>%1 holds no captions that can be shown.</source>
        <translation>%1 中沒有可顯示的字幕。</translation>
    </message>
    <message>
        <source>No captions loaded</source>
        <translation>未載入字幕</translation>
    </message>
    <message>
        <source>Reading the captions of %1…</source>
        <translation>正在讀取 %1 的字幕…</translation>
    </message>
    <message>
        <source>Converting %1…</source>
        <translation>正在轉換 %1…</translation>
    </message>
    <message>
        <source>Some captions were not loaded</source>
        <translation>部分字幕未能載入</translation>
    </message>
    <message>
        <source>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</source>
        <translation>%3 中的 %2 條字幕有 %1 條無法讀取；其餘 %4 條已載入。</translation>
    </message>
</context>
<context>
    <name>CaptionFileReader</name>
    <message>
        <source>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</source>
        <translation>「%1」包含超過 %2 條字幕。為避免耗盡記憶體，每個檔案最多載入 %2 條字幕：請將其分拆。</translation>
    </message>
</context>
<context>
    <name>CaptionItem</name>
    <message>
        <source>Hide</source>
        <translation>隱藏</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
</context>
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>英語（美國）</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>西班牙語</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>法語</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>粵語</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>韓語</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>日語</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>俄語</translation>
    </message>
    <message>
        <source>No subtitle file was chosen.</source>
        <translation>未選擇字幕檔案。</translation>
    </message>
    <message>
        <source>No captions were found in &quot;%1&quot;.</source>
        <translation>在「%1」中找不到字幕。</translation>
    </message>
    <message>
        <source>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</source>
        <translation>字幕只能儲存為 .srt 或 .ass 檔案，「%1」兩者都不是。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>無法寫入「%1」：%2</translation>
    </message>
</context>
<context>
    <name>CaptionSaveFlow</name>
    <message>
        <source>Save captions</source>
        <translation>儲存字幕</translation>
    </message>
    <message>
        <source>Save captions as...</source>
        <translation>字幕另存為...</translation>
    </message>
    <message>
        <source>captions</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>SubRip subtitles (*.srt)</source>
        <translation>SubRip 字幕 (*.srt)</translation>
    </message>
    <message>
        <source>ASS subtitles (*.ass)</source>
        <translation>ASS 字幕 (*.ass)</translation>
    </message>
    <message>
        <source>The captions were not saved</source>
        <translation>字幕未儲存</translation>
    </message>
</context>
<context>
    <name>CaptionStyleBar</name>
    <message>
        <source>Size</source>
        <translation>字級</translation>
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
        <translation>描邊</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>陰影</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>套用至全部</translation>
    </message>
    <message>
        <source>Apply size, position and border to every caption</source>
        <translation>將字級、位置和描邊套用至所有字幕</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>截圖</translation>
    </message>
    <message>
        <source>Include this caption in &quot;Capture selected&quot;</source>
        <translation>將此字幕加入「截取所選」</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>編輯文字</translation>
    </message>
    <message>
        <source>Edit the caption on the video (or double-click it)</source>
        <translation>在影片上編輯字幕（或按兩下字幕）</translation>
    </message>
    <message>
        <source>Add caption</source>
        <translation>新增字幕</translation>
    </message>
    <message>
        <source>Add a caption at the current position</source>
        <translation>在目前位置新增字幕</translation>
    </message>
</context>
<context>
    <name>CaptionWidget</name>
    <message>
        <source>search text</source>
        <translation>搜尋文字</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>彈出</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隱藏</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除全部</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>截取勾選</translation>
    </message>
    <message>
        <source>Auto captions</source>
        <translation>自動產生字幕</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Add local subtitle</source>
        <translation>新增本機字幕</translation>
    </message>
    <message>
        <source>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</source>
        <translation>尚無字幕。可以根據影片中的語音自動產生，在目前時間新增一則，或加入字幕檔案。</translation>
    </message>
    <message>
        <source>Captions (%1)</source>
        <translation>字幕（%1）</translation>
    </message>
    <message>
        <source>Select all (%1/%2)</source>
        <translation>全選（%1/%2）</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>清除字幕</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captions?</source>
        <translation>
            <numerusform>要刪除全部 %Ln 條字幕嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>%1 – needs a speech server</source>
        <translation>%1 – 需要語音伺服器</translation>
    </message>
</context>
<context>
    <name>CaptureController</name>
    <message>
        <source>Capture failed</source>
        <translation>截圖失敗</translation>
    </message>
    <message>
        <source>The player did not reach the requested moment.</source>
        <translation>播放器未能跳至指定時間點。</translation>
    </message>
    <message>
        <source>Capturing images</source>
        <translation>正在截圖</translation>
    </message>
    <message>
        <source>The frame could not be captured from the player.</source>
        <translation>無法從播放器擷取畫面。</translation>
    </message>
    <message>
        <source>Applying current style</source>
        <translation>正在套用目前樣式</translation>
    </message>
    <message>
        <source>Nothing to capture</source>
        <translation>沒有可擷取的內容</translation>
    </message>
    <message>
        <source>Open a video first, then capture its frames.</source>
        <translation>請先開啟影片，然後再擷取畫面。</translation>
    </message>
    <message>
        <source>No caption ticked</source>
        <translation>未勾選字幕</translation>
    </message>
    <message>
        <source>Tick the captions whose moments you want in the caption list, then press Capture checked again.</source>
        <translation>請在字幕列表中勾選需要的字幕，然後再次點擊「截取勾選」。</translation>
    </message>
</context>
<context>
    <name>CheckUpdateDialog</name>
    <message>
        <source>Version: %1</source>
        <translation>版本：%1</translation>
    </message>
    <message>
        <source>Release date: %1</source>
        <translation>發佈日期：%1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>大小：%1</translation>
    </message>
    <message>
        <source>Check for update</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Your current use is already the latest version.</source>
        <translation>目前已是最新版本。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>A new version is available</source>
        <translation>有新版本可用</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>稍後提醒我</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>立即更新</translation>
    </message>
    <message>
        <source>The version information could not be read.</source>
        <translation>無法讀取版本資訊。</translation>
    </message>
    <message>
        <source>Could not check for updates. Please check your network connection and try again.
%1</source>
        <translation>無法檢查更新。請檢查網路連線後再試一次。
%1</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>The captions have changes that were not saved.</source>
        <translation>字幕有尚未儲存的修改。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captured frames were never exported and will be lost.</source>
        <translation>
            <numerusform>%Ln 張擷取的畫面從未匯出，將會遺失。</numerusform>
        </translation>
    </message>
    <message>
        <source>Close Glimmer</source>
        <translation>關閉 Glimmer</translation>
    </message>
    <message>
        <source>Save captions</source>
        <translation>儲存字幕</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>捨棄</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>仍然關閉</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DownloadManager</name>
    <message>
        <source>The download tool could not be started: %1</source>
        <translation>無法啟動下載工具：%1</translation>
    </message>
    <message>
        <source>The downloaded file could not be opened: %1</source>
        <translation>無法開啟已下載的檔案：%1</translation>
    </message>
    <message>
        <source>The download tool stopped before the download was complete.</source>
        <translation>下載工具在下載完成前停止了。</translation>
    </message>
</context>
<context>
    <name>ExportNotice</name>
    <message numerus="yes">
        <source>Saved %n picture(s) to %1</source>
        <translation>
            <numerusform>已將 %n 張圖片儲存到 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output folder %1 cannot be written.</source>
        <translation>無法寫入輸出資料夾 %1。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>無法讀取擷取出的音訊檔案。</translation>
    </message>
    <message>
        <source>The video has no sound that could be extracted.</source>
        <translation>此影片沒有可擷取的聲音。</translation>
    </message>
    <message>
        <source>The speech service could not be reached: %1</source>
        <translation>無法連線至語音辨識服務：%1</translation>
    </message>
</context>
<context>
    <name>ImageExporter</name>
    <message>
        <source>No picture was exported.</source>
        <translation>沒有匯出任何圖片。</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were exported, but some failed.</source>
        <translation>
            <numerusform>已匯出 %n 張圖片，但有部分失敗。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageItem</name>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
</context>
<context>
    <name>ImageListViewDialog</name>
    <message>
        <source>Captured frames</source>
        <translation>已擷取的畫面</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>全部刪除</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>符合視窗</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>匯出</translation>
    </message>
</context>
<context>
    <name>ImagesWidget</name>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>清單檢視</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除全部</translation>
    </message>
    <message>
        <source>Apply Current Style</source>
        <translation>套用目前樣式</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n 張</numerusform>
        </translation>
    </message>
    <message>
        <source>No frame is selected.</source>
        <translation>未選取任何畫面。</translation>
    </message>
    <message>
        <source>Capture every frame again with the current caption style</source>
        <translation>以目前字幕樣式重新擷取所有畫面</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>清除畫面</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln frames?</source>
        <translation>
            <numerusform>要刪除全部 %Ln 張畫面嗎？</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>刪除</translation>
    </message>
</context>
<context>
    <name>LicenseManager</name>
    <message>
        <source>Please enter a licence key.</source>
        <translation>請輸入授權金鑰。</translation>
    </message>
    <message>
        <source>The licence server sent an answer that could not be read.</source>
        <translation>授權伺服器傳回了無法讀取的回應。</translation>
    </message>
    <message>
        <source>This licence key was not accepted.</source>
        <translation>此授權金鑰未被接受。</translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Open video...</source>
        <translation>開啟影片…</translation>
    </message>
    <message>
        <source>Add local subtitle...</source>
        <translation>新增本機字幕…</translation>
    </message>
    <message>
        <source>Caption panel</source>
        <translation>字幕面板</translation>
    </message>
    <message>
        <source>Output folder...</source>
        <translation>輸出資料夾…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Register...</source>
        <translation>註冊…</translation>
    </message>
    <message>
        <source>About Glimmer</source>
        <translation>關於 Glimmer</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>開啟記錄檔資料夾</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>輸出格式</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>選擇輸出資料夾</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>語音引擎...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The video cannot be played</source>
        <translation>無法播放此影片</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>無法開啟 %1：%2</translation>
    </message>
    <message>
        <source>The video cannot be opened</source>
        <translation>無法開啟此影片</translation>
    </message>
    <message>
        <source>%1 does not exist or cannot be read.</source>
        <translation>%1 不存在或無法讀取。</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>MpvWidget</name>
    <message>
        <source>the file has no video, only sound</source>
        <translation>該檔案沒有影片，只有聲音</translation>
    </message>
</context>
<context>
    <name>OutputFiles</name>
    <message>
        <source>%1: the file has vanished before it could be moved to the output folder.</source>
        <translation>%1：檔案在移至輸出資料夾之前已不存在。</translation>
    </message>
    <message>
        <source>%1 could not be moved to the output folder %2; it was kept at %3.</source>
        <translation>無法將 %1 移至輸出資料夾 %2，檔案已保留在 %3。</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>The picture is empty.</source>
        <translation>圖片是空的。</translation>
    </message>
    <message>
        <source>This system cannot write %1 pictures. Choose PNG.</source>
        <translation>此系統無法寫入 %1 圖片，請選擇 PNG。</translation>
    </message>
    <message>
        <source>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>圖片太高，無法儲存為 WEBP：%1×%2 像素，而 WEBP 每邊最多 %3 像素。請選擇 PNG 或較小的縮放比例。</translation>
    </message>
    <message>
        <source>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>圖片太寬，無法儲存為 WEBP：%1×%2 像素，而 WEBP 每邊最多 %3 像素。請選擇 PNG 或較小的縮放比例。</translation>
    </message>
    <message>
        <source>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>圖片太高，無法儲存為 JPG：%1×%2 像素，而 JPG 每邊最多 %3 像素。請選擇 PNG 或較小的縮放比例。</translation>
    </message>
    <message>
        <source>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>圖片太寬，無法儲存為 JPG：%1×%2 像素，而 JPG 每邊最多 %3 像素。請選擇 PNG 或較小的縮放比例。</translation>
    </message>
    <message>
        <source>Cannot create the file in %1: %2</source>
        <translation>無法在 %1 中建立檔案：%2</translation>
    </message>
    <message>
        <source>Writing the picture to %1 failed: %2</source>
        <translation>無法將圖片寫入 %1：%2</translation>
    </message>
</context>
<context>
    <name>PreviewWidget</name>
    <message>
        <source>Layout:</source>
        <translation>版面配置：</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>網格</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>縱向</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>橫向</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>符合視窗</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>放大檢視</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>寬度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>X space</source>
        <translation>水平間距</translation>
    </message>
    <message>
        <source>Y space</source>
        <translation>垂直間距</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>欄數</translation>
    </message>
    <message>
        <source>The scale is 0: there is no picture to export.</source>
        <translation>縮放比例為 0，沒有可匯出的圖片。</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>無法啟動處理程序 %1。結束代碼 %2</translation>
    </message>
</context>
<context>
    <name>RegisterDialog</name>
    <message>
        <source>Register %1</source>
        <translation>註冊 %1</translation>
    </message>
    <message>
        <source>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</source>
        <translation>請輸入購買時取得的授權金鑰。註冊後匯出的圖片不帶浮水印。</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>授權金鑰</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>註冊</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Checking the licence key...</source>
        <translation>正在驗證授權金鑰…</translation>
    </message>
    <message>
        <source>This copy is registered (%1). Thank you!</source>
        <translation>此副本已註冊（%1）。感謝您的支持！</translation>
    </message>
</context>
<context>
    <name>RegisterGuideDialog</name>
    <message>
        <source>Export complete</source>
        <translation>匯出完成</translation>
    </message>
    <message>
        <source>Your pictures were exported with a watermark</source>
        <translation>匯出的圖片帶有浮水印</translation>
    </message>
    <message>
        <source>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</source>
        <translation>此 %1 副本尚未註冊，因此每張匯出的圖片都帶有「%1」浮水印。使用授權金鑰註冊後，即可匯出無浮水印的圖片。</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍後再說</translation>
    </message>
    <message>
        <source>Register now</source>
        <translation>立即註冊</translation>
    </message>
</context>
<context>
    <name>SaveFileBar</name>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>輸出資料夾：</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>格式：</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>匯出</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>選擇輸出資料夾</translation>
    </message>
</context>
<context>
    <name>SpeechEngineDialog</name>
    <message>
        <source>Works: %1</source>
        <translation>可用：%1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失敗：%1</translation>
    </message>
    <message>
        <source>Speech engine</source>
        <translation>語音引擎</translation>
    </message>
    <message>
        <source>Built-in (offline, English only)</source>
        <translation>內置（離線，僅英語）</translation>
    </message>
    <message>
        <source>Transcription server (OpenAI-compatible API)</source>
        <translation>轉寫伺服器（OpenAI 相容 API）</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>地址：</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>模型：</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>密鑰：</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>測試</translation>
    </message>
    <message>
        <source>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</source>
        <translation>已設定 GLIMMER_SPEECHD_OPENAI_URL：無論此處如何選擇，自動字幕都使用該伺服器。</translation>
    </message>
    <message>
        <source>Testing...</source>
        <translation>正在測試...</translation>
    </message>
</context>
<context>
    <name>SpeechEngineTest</name>
    <message numerus="yes">
        <source>The test got no answer within %n second(s).</source>
        <translation>
            <numerusform>測試在 %n 秒內沒有收到回應。</numerusform>
        </translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>缺少語音辨識服務程式：%1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>語音辨識服務已停止：%1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>無法啟動語音辨識服務：%1</translation>
    </message>
    <message>
        <source>The test sound could not be written: %1</source>
        <translation>無法寫入測試聲音：%1</translation>
    </message>
    <message>
        <source>The built-in engine works. It recognises English.</source>
        <translation>內置引擎運作正常，可識別英語。</translation>
    </message>
    <message>
        <source>%1 answered with model %2. It recognises the languages its model knows.</source>
        <translation>%1 已使用模型 %2 回應，可識別其模型所支援的語言。</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>（預設）</translation>
    </message>
</context>
<context>
    <name>SpeechService</name>
    <message>
        <source>The speech service did not start in time.</source>
        <translation>語音辨識服務未能及時啟動。</translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>缺少語音辨識服務程式：%1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>語音辨識服務已停止：%1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>無法啟動語音辨識服務：%1</translation>
    </message>
    <message>
        <source>The speech service did not answer: %1</source>
        <translation>語音服務沒有回應：%1</translation>
    </message>
</context>
<context>
    <name>SubtitleConverter</name>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</source>
        <translation>無法轉換 SRT 檔案「%1」：找不到 ffmpeg。</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</source>
        <translation>無法轉換 SRT 檔案「%1」：ffmpeg 未能及時完成。</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted.</source>
        <translation>無法轉換 SRT 檔案「%1」。</translation>
    </message>
</context>
<context>
    <name>SubtitleFile</name>
    <message>
        <source>&quot;%1&quot; is a folder, not a subtitle file.</source>
        <translation>「%1」是資料夾，不是字幕檔案。</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; could not be opened.</source>
        <translation>無法開啟字幕檔案「%1」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</source>
        <translation>「%1」不是一般檔案（裝置、管道或通訊端）：無法作為字幕讀取。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</source>
        <translation>「%1」太大，不像字幕檔案：最多可載入 %2 MB 的字幕檔案。</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Open video</source>
        <translation>開啟影片</translation>
    </message>
    <message>
        <source>Open a video [Ctrl+O]</source>
        <translation>開啟影片 [Ctrl+O]</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Show or hide the caption list</source>
        <translation>顯示或隱藏字幕清單</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>註冊</translation>
    </message>
    <message>
        <source>Enter a licence key to remove the watermark</source>
        <translation>輸入授權金鑰以移除浮水印</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>選單</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>復原：%1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>重做：%1</translation>
    </message>
    <message>
        <source>Load subtitles</source>
        <translation>載入字幕</translation>
    </message>
    <message>
        <source>Automatic captions</source>
        <translation>自動字幕</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>清除畫面</translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation>刪除畫面</translation>
    </message>
    <message>
        <source>Re-capture frames</source>
        <translation>重新擷取畫面</translation>
    </message>
</context>
<context>
    <name>VideoPlayWidget</name>
    <message>
        <source>Drop your video here! Or,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;Click here to import video.&lt;/a&gt;</source>
        <translation>將影片拖放到這裡！或者&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;按一下這裡匯入影片。&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Backward [Left]</source>
        <translation>上一格 [左方向鍵]</translation>
    </message>
    <message>
        <source>Forward [Right]</source>
        <translation>下一格 [右方向鍵]</translation>
    </message>
    <message>
        <source>Play [Space]</source>
        <translation>播放 [空白鍵]</translation>
    </message>
    <message>
        <source>Stop [Ctrl+/]</source>
        <translation>停止 [Ctrl+/]</translation>
    </message>
    <message>
        <source>Capture [Ctrl+Alt+S]</source>
        <translation>截圖 [Ctrl+Alt+S]</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>截圖</translation>
    </message>
    <message>
        <source>Capture selected</source>
        <translation>截取所選</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>倍速</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>影片檔案</translation>
    </message>
    <message>
        <source>Open Video</source>
        <translation>開啟影片</translation>
    </message>
    <message>
        <source>New caption</source>
        <translation>新字幕</translation>
    </message>
</context>
<context>
    <name>WindowFlows</name>
    <message>
        <source>No video</source>
        <translation>沒有影片</translation>
    </message>
    <message>
        <source>Open a video first, then generate its captions.</source>
        <translation>請先開啟影片，再產生字幕。</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>截取勾選</translation>
    </message>
    <message>
        <source>Some captions were not captured</source>
        <translation>部分字幕未截圖</translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) start at or after the end of the video, or have no readable start time, and were skipped.</source>
        <translation>
            <numerusform>有 %n 條字幕的開始時間在影片結束處或之後，或無法讀取，已略過。</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a video first, then create a caption at the current time.</source>
        <translation>請先開啟影片，再於目前時間新增字幕。</translation>
    </message>
    <message>
        <source>No room for a caption</source>
        <translation>此處無法新增字幕</translation>
    </message>
    <message>
        <source>A caption already covers the current time. Move to a moment without a caption.</source>
        <translation>目前時間已有字幕，請移到沒有字幕的時間點。</translation>
    </message>
    <message>
        <source>Edit the style of all captions</source>
        <translation>修改全部字幕樣式</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>編輯字幕</translation>
    </message>
    <message>
        <source>Create caption</source>
        <translation>新增字幕</translation>
    </message>
    <message>
        <source>Edit caption text</source>
        <translation>編輯字幕文字</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>清除字幕</translation>
    </message>
    <message>
        <source>%1 needs a speech server</source>
        <translation>%1 需要語音伺服器</translation>
    </message>
    <message>
        <source>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</source>
        <translation>內置語音引擎僅識別英語。要生成%1字幕，請在「語音引擎」中連接轉寫伺服器。</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>語音引擎...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The video player could not be started: %1</source>
        <translation>無法啟動影片播放器：%1</translation>
    </message>
</context>
</TS>
