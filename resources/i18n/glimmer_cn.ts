<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Turn the moments of a video into still pictures with their captions.</source>
        <translation>将视频中的精彩瞬间连同字幕一起变成静态图片。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>AutoCaptionFlow</name>
    <message>
        <source>The speech service gave an answer that cannot be read.</source>
        <translation>语音识别服务返回了无法读取的结果。</translation>
    </message>
    <message>
        <source>No speech found</source>
        <translation>未识别到语音</translation>
    </message>
    <message>
        <source>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</source>
        <translation>未能在该视频的音轨中识别出任何文字。请检查字幕语言，或改为添加字幕文件。</translation>
    </message>
    <message>
        <source>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</source>
        <translation>无法从视频中提取音轨。视频可能没有声音，或缺少 ffmpeg。</translation>
    </message>
    <message>
        <source>Generating captions...</source>
        <translation>正在生成字幕…</translation>
    </message>
    <message>
        <source>Automatic captions failed</source>
        <translation>自动生成字幕失败</translation>
    </message>
    <message>
        <source>The speech service could not be reached.</source>
        <translation>无法连接语音识别服务。</translation>
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
        <translation>打开本地字幕</translation>
    </message>
    <message>
        <source>Subtitle Files</source>
        <translation>字幕文件</translation>
    </message>
    <message>
        <source>The subtitle file could not be converted.</source>
        <translation>无法转换字幕文件。</translation>
    </message>
    <message>
        <source>%1 holds no captions that can be shown.</source>
        <translation>%1 中没有可显示的字幕。</translation>
    </message>
    <message>
        <source>No captions loaded</source>
        <translation>未加载字幕</translation>
    </message>
    <message>
        <source>Reading the captions of %1…</source>
        <translation>正在读取 %1 的字幕…</translation>
    </message>
    <message>
        <source>Converting %1…</source>
        <translation>正在转换 %1…</translation>
    </message>
    <message>
        <source>Some captions were not loaded</source>
        <translation>部分字幕未能加载</translation>
    </message>
    <message>
        <source>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</source>
        <translation>%3 中的 %2 条字幕有 %1 条无法读取；其余 %4 条已加载。</translation>
    </message>
</context>
<context>
    <name>CaptionFileReader</name>
    <message>
        <source>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</source>
        <translation>“%1”包含超过 %2 条字幕。为避免耗尽内存，每个文件最多加载 %2 条字幕：请将其拆分。</translation>
    </message>
</context>
<context>
    <name>CaptionItem</name>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>英语（美国）</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>粤语</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>No subtitle file was chosen.</source>
        <translation>未选择字幕文件。</translation>
    </message>
    <message>
        <source>No captions were found in &quot;%1&quot;.</source>
        <translation>在“%1”中未找到字幕。</translation>
    </message>
    <message>
        <source>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</source>
        <translation>字幕只能保存为 .srt 或 .ass 文件，“%1”两者都不是。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
</context>
<context>
    <name>CaptionSaveFlow</name>
    <message>
        <source>Save captions</source>
        <translation>保存字幕</translation>
    </message>
    <message>
        <source>Save captions as...</source>
        <translation>字幕另存为...</translation>
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
        <translation>字幕未保存</translation>
    </message>
</context>
<context>
    <name>CaptionStyleBar</name>
    <message>
        <source>Size</source>
        <translation>字号</translation>
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
        <translation>描边</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>阴影</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>应用到全部</translation>
    </message>
    <message>
        <source>Apply size, position and border to every caption</source>
        <translation>将字号、位置和描边应用到所有字幕</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Include this caption in &quot;Capture selected&quot;</source>
        <translation>将此字幕加入“截取所选”</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>编辑文字</translation>
    </message>
    <message>
        <source>Edit the caption on the video (or double-click it)</source>
        <translation>在视频上编辑字幕（或双击字幕）</translation>
    </message>
    <message>
        <source>Add caption</source>
        <translation>添加字幕</translation>
    </message>
    <message>
        <source>Add a caption at the current position</source>
        <translation>在当前位置添加字幕</translation>
    </message>
</context>
<context>
    <name>CaptionWidget</name>
    <message>
        <source>search text</source>
        <translation>搜索文字</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>弹出</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>截取勾选</translation>
    </message>
    <message>
        <source>Auto captions</source>
        <translation>自动生成字幕</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Add local subtitle</source>
        <translation>添加本地字幕</translation>
    </message>
    <message>
        <source>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</source>
        <translation>还没有字幕。可以根据视频中的语音自动生成，在当前时间新建一条，或添加字幕文件。</translation>
    </message>
    <message>
        <source>Captions (%1)</source>
        <translation>字幕（%1）</translation>
    </message>
    <message>
        <source>Select all (%1/%2)</source>
        <translation>全选（%1/%2）</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>清空字幕</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captions?</source>
        <translation>
            <numerusform>要删除全部 %Ln 条字幕吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>%1 – needs a speech server</source>
        <translation>%1 – 需要语音服务器</translation>
    </message>
</context>
<context>
    <name>CaptureController</name>
    <message>
        <source>Capture failed</source>
        <translation>截图失败</translation>
    </message>
    <message>
        <source>The player did not reach the requested moment.</source>
        <translation>播放器未能跳转到指定时间点。</translation>
    </message>
    <message>
        <source>Capturing images</source>
        <translation>正在截图</translation>
    </message>
    <message>
        <source>The frame could not be captured from the player.</source>
        <translation>无法从播放器截取画面。</translation>
    </message>
    <message>
        <source>Applying current style</source>
        <translation>正在应用当前样式</translation>
    </message>
    <message>
        <source>Nothing to capture</source>
        <translation>没有可截取的内容</translation>
    </message>
    <message>
        <source>Open a video first, then capture its frames.</source>
        <translation>请先打开视频，然后再截取画面。</translation>
    </message>
    <message>
        <source>No caption ticked</source>
        <translation>未勾选字幕</translation>
    </message>
    <message>
        <source>Tick the captions whose moments you want in the caption list, then press Capture checked again.</source>
        <translation>请在字幕列表中勾选需要的字幕，然后再次点击“截取勾选”。</translation>
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
        <translation>发布日期：%1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>大小：%1</translation>
    </message>
    <message>
        <source>Check for update</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Your current use is already the latest version.</source>
        <translation>当前已是最新版本。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>A new version is available</source>
        <translation>有新版本可用</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>稍后提醒我</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>立即更新</translation>
    </message>
    <message>
        <source>The version information could not be read.</source>
        <translation>无法读取版本信息。</translation>
    </message>
    <message>
        <source>Could not check for updates. Please check your network connection and try again.
%1</source>
        <translation>无法检查更新。请检查网络连接后重试。
%1</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>The captions have changes that were not saved.</source>
        <translation>字幕有尚未保存的修改。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captured frames were never exported and will be lost.</source>
        <translation>
            <numerusform>%Ln 张截取的画面从未导出，将会丢失。</numerusform>
        </translation>
    </message>
    <message>
        <source>Close Glimmer</source>
        <translation>关闭 Glimmer</translation>
    </message>
    <message>
        <source>Save captions</source>
        <translation>保存字幕</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>仍然关闭</translation>
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
        <translation>无法启动下载工具：%1</translation>
    </message>
    <message>
        <source>The downloaded file could not be opened: %1</source>
        <translation>无法打开已下载的文件：%1</translation>
    </message>
    <message>
        <source>The download tool stopped before the download was complete.</source>
        <translation>下载工具在下载完成前停止了。</translation>
    </message>
</context>
<context>
    <name>ExportNotice</name>
    <message numerus="yes">
        <source>Saved %n picture(s) to %1</source>
        <translation>
            <numerusform>已将 %n 张图片保存到 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The output folder %1 cannot be written.</source>
        <translation>无法写入输出文件夹 %1。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>无法读取提取出的音频文件。</translation>
    </message>
    <message>
        <source>The video has no sound that could be extracted.</source>
        <translation>该视频没有可提取的声音。</translation>
    </message>
    <message>
        <source>The speech service could not be reached: %1</source>
        <translation>无法连接语音识别服务：%1</translation>
    </message>
</context>
<context>
    <name>ImageExporter</name>
    <message>
        <source>No picture was exported.</source>
        <translation>没有导出任何图片。</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were exported, but some failed.</source>
        <translation>
            <numerusform>已导出 %n 张图片，但有部分失败。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageItem</name>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>ImageListViewDialog</name>
    <message>
        <source>Captured frames</source>
        <translation>已截取的画面</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>全部删除</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适应窗口</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
</context>
<context>
    <name>ImagesWidget</name>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>列表视图</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Apply Current Style</source>
        <translation>应用当前样式</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n 张</numerusform>
        </translation>
    </message>
    <message>
        <source>No frame is selected.</source>
        <translation>未选择任何画面。</translation>
    </message>
    <message>
        <source>Capture every frame again with the current caption style</source>
        <translation>用当前字幕样式重新截取所有画面</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>清空画面</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln frames?</source>
        <translation>
            <numerusform>要删除全部 %Ln 张画面吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>LicenseManager</name>
    <message>
        <source>Please enter a licence key.</source>
        <translation>请输入许可证密钥。</translation>
    </message>
    <message>
        <source>The licence server sent an answer that could not be read.</source>
        <translation>许可证服务器返回了无法读取的响应。</translation>
    </message>
    <message>
        <source>This licence key was not accepted.</source>
        <translation>此许可证密钥未被接受。</translation>
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
        <translation>打开视频…</translation>
    </message>
    <message>
        <source>Add local subtitle...</source>
        <translation>添加本地字幕…</translation>
    </message>
    <message>
        <source>Caption panel</source>
        <translation>字幕面板</translation>
    </message>
    <message>
        <source>Output folder...</source>
        <translation>输出文件夹…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Register...</source>
        <translation>注册…</translation>
    </message>
    <message>
        <source>About Glimmer</source>
        <translation>关于 Glimmer</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>打开日志文件夹</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>输出格式</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>选择输出文件夹</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>语音引擎...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The video cannot be played</source>
        <translation>无法播放该视频</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>无法打开 %1：%2</translation>
    </message>
    <message>
        <source>The video cannot be opened</source>
        <translation>无法打开该视频</translation>
    </message>
    <message>
        <source>%1 does not exist or cannot be read.</source>
        <translation>%1 不存在或无法读取。</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>MpvWidget</name>
    <message>
        <source>the file has no video, only sound</source>
        <translation>该文件没有视频，只有声音</translation>
    </message>
</context>
<context>
    <name>OutputFiles</name>
    <message>
        <source>%1: the file has vanished before it could be moved to the output folder.</source>
        <translation>%1：文件在移动到输出文件夹之前已不存在。</translation>
    </message>
    <message>
        <source>%1 could not be moved to the output folder %2; it was kept at %3.</source>
        <translation>无法将 %1 移动到输出文件夹 %2，文件已保留在 %3。</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>The picture is empty.</source>
        <translation>图片为空。</translation>
    </message>
    <message>
        <source>This system cannot write %1 pictures. Choose PNG.</source>
        <translation>此系统无法写入 %1 图片，请选择 PNG。</translation>
    </message>
    <message>
        <source>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>图片太高，无法保存为 WEBP：%1×%2 像素，而 WEBP 每边最多 %3 像素。请选择 PNG 或更小的缩放比例。</translation>
    </message>
    <message>
        <source>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>图片太宽，无法保存为 WEBP：%1×%2 像素，而 WEBP 每边最多 %3 像素。请选择 PNG 或更小的缩放比例。</translation>
    </message>
    <message>
        <source>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>图片太高，无法保存为 JPG：%1×%2 像素，而 JPG 每边最多 %3 像素。请选择 PNG 或更小的缩放比例。</translation>
    </message>
    <message>
        <source>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>图片太宽，无法保存为 JPG：%1×%2 像素，而 JPG 每边最多 %3 像素。请选择 PNG 或更小的缩放比例。</translation>
    </message>
    <message>
        <source>Cannot create the file in %1: %2</source>
        <translation>无法在 %1 中创建文件：%2</translation>
    </message>
    <message>
        <source>Writing the picture to %1 failed: %2</source>
        <translation>无法将图片写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>PreviewWidget</name>
    <message>
        <source>Layout:</source>
        <translation>布局：</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适应窗口</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>放大查看</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>X space</source>
        <translation>横向间距</translation>
    </message>
    <message>
        <source>Y space</source>
        <translation>纵向间距</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列数</translation>
    </message>
    <message>
        <source>The scale is 0: there is no picture to export.</source>
        <translation>缩放比例为 0，没有可导出的图片。</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>无法启动进程 %1。退出代码 %2</translation>
    </message>
</context>
<context>
    <name>RegisterDialog</name>
    <message>
        <source>Register %1</source>
        <translation>注册 %1</translation>
    </message>
    <message>
        <source>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</source>
        <translation>请输入购买时获得的许可证密钥。注册后导出的图片不带水印。</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>许可证密钥</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>注册</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Checking the licence key...</source>
        <translation>正在验证许可证密钥…</translation>
    </message>
    <message>
        <source>This copy is registered (%1). Thank you!</source>
        <translation>此副本已注册（%1）。感谢您的支持！</translation>
    </message>
</context>
<context>
    <name>RegisterGuideDialog</name>
    <message>
        <source>Export complete</source>
        <translation>导出完成</translation>
    </message>
    <message>
        <source>Your pictures were exported with a watermark</source>
        <translation>导出的图片带有水印</translation>
    </message>
    <message>
        <source>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</source>
        <translation>此 %1 副本尚未注册，因此每张导出的图片都带有“%1”水印。使用许可证密钥注册后，即可导出无水印的图片。</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Register now</source>
        <translation>立即注册</translation>
    </message>
</context>
<context>
    <name>SaveFileBar</name>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>输出文件夹：</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>格式：</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>选择输出文件夹</translation>
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
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Speech engine</source>
        <translation>语音引擎</translation>
    </message>
    <message>
        <source>Built-in (offline, English only)</source>
        <translation>内置（离线，仅英语）</translation>
    </message>
    <message>
        <source>Transcription server (OpenAI-compatible API)</source>
        <translation>转写服务器（OpenAI 兼容 API）</translation>
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
        <translation>密钥：</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</source>
        <translation>已设置 GLIMMER_SPEECHD_OPENAI_URL：无论此处如何选择，自动字幕都使用该服务器。</translation>
    </message>
    <message>
        <source>Testing...</source>
        <translation>正在测试...</translation>
    </message>
</context>
<context>
    <name>SpeechEngineTest</name>
    <message numerus="yes">
        <source>The test got no answer within %n second(s).</source>
        <translation>
            <numerusform>测试在 %n 秒内没有收到应答。</numerusform>
        </translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>缺少语音识别服务程序：%1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>语音识别服务已停止：%1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>无法启动语音识别服务：%1</translation>
    </message>
    <message>
        <source>The test sound could not be written: %1</source>
        <translation>无法写入测试声音：%1</translation>
    </message>
    <message>
        <source>The built-in engine works. It recognises English.</source>
        <translation>内置引擎工作正常，可识别英语。</translation>
    </message>
    <message>
        <source>%1 answered with model %2. It recognises the languages its model knows.</source>
        <translation>%1 已使用模型 %2 应答，可识别其模型所支持的语言。</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>（默认）</translation>
    </message>
</context>
<context>
    <name>SpeechService</name>
    <message>
        <source>The speech service did not start in time.</source>
        <translation>语音识别服务未能及时启动。</translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>缺少语音识别服务程序：%1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>语音识别服务已停止：%1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>无法启动语音识别服务：%1</translation>
    </message>
    <message>
        <source>The speech service did not answer: %1</source>
        <translation>语音服务没有应答：%1</translation>
    </message>
</context>
<context>
    <name>SubtitleConverter</name>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</source>
        <translation>无法转换 SRT 文件“%1”：找不到 ffmpeg。</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</source>
        <translation>无法转换 SRT 文件“%1”：ffmpeg 未能及时完成。</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted.</source>
        <translation>无法转换 SRT 文件“%1”。</translation>
    </message>
</context>
<context>
    <name>SubtitleFile</name>
    <message>
        <source>&quot;%1&quot; is a folder, not a subtitle file.</source>
        <translation>“%1”是文件夹，不是字幕文件。</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; could not be opened.</source>
        <translation>无法打开字幕文件“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</source>
        <translation>“%1”不是普通文件（设备、管道或套接字）：无法作为字幕读取。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</source>
        <translation>“%1”太大，不像字幕文件：最多可加载 %2 MB 的字幕文件。</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Open video</source>
        <translation>打开视频</translation>
    </message>
    <message>
        <source>Open a video [Ctrl+O]</source>
        <translation>打开视频 [Ctrl+O]</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Show or hide the caption list</source>
        <translation>显示或隐藏字幕列表</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>注册</translation>
    </message>
    <message>
        <source>Enter a licence key to remove the watermark</source>
        <translation>输入许可证密钥以去除水印</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>撤销：%1</translation>
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
        <translation>加载字幕</translation>
    </message>
    <message>
        <source>Automatic captions</source>
        <translation>自动字幕</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>清空画面</translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation>删除画面</translation>
    </message>
    <message>
        <source>Re-capture frames</source>
        <translation>重新截取画面</translation>
    </message>
</context>
<context>
    <name>VideoPlayWidget</name>
    <message>
        <source>Drop your video here! Or,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;Click here to import video.&lt;/a&gt;</source>
        <translation>将视频拖放到这里！或者&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;点击此处导入视频。&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Backward [Left]</source>
        <translation>上一帧 [左方向键]</translation>
    </message>
    <message>
        <source>Forward [Right]</source>
        <translation>下一帧 [右方向键]</translation>
    </message>
    <message>
        <source>Play [Space]</source>
        <translation>播放 [空格键]</translation>
    </message>
    <message>
        <source>Stop [Ctrl+/]</source>
        <translation>停止 [Ctrl+/]</translation>
    </message>
    <message>
        <source>Capture [Ctrl+Alt+S]</source>
        <translation>截图 [Ctrl+Alt+S]</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>截图</translation>
    </message>
    <message>
        <source>Capture selected</source>
        <translation>截取所选</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>倍速</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>视频文件</translation>
    </message>
    <message>
        <source>Open Video</source>
        <translation>打开视频</translation>
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
        <translation>没有视频</translation>
    </message>
    <message>
        <source>Open a video first, then generate its captions.</source>
        <translation>请先打开视频，再生成字幕。</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>截取勾选</translation>
    </message>
    <message>
        <source>Some captions were not captured</source>
        <translation>部分字幕未截图</translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) start at or after the end of the video, or have no readable start time, and were skipped.</source>
        <translation>
            <numerusform>有 %n 条字幕的开始时间在视频结束处或之后，或无法读取，已跳过。</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a video first, then create a caption at the current time.</source>
        <translation>请先打开视频，再在当前时间新建字幕。</translation>
    </message>
    <message>
        <source>No room for a caption</source>
        <translation>此处无法添加字幕</translation>
    </message>
    <message>
        <source>A caption already covers the current time. Move to a moment without a caption.</source>
        <translation>当前时间已有字幕，请移到没有字幕的时间点。</translation>
    </message>
    <message>
        <source>Edit the style of all captions</source>
        <translation>修改全部字幕样式</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>编辑字幕</translation>
    </message>
    <message>
        <source>Create caption</source>
        <translation>新建字幕</translation>
    </message>
    <message>
        <source>Edit caption text</source>
        <translation>编辑字幕文字</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>清空字幕</translation>
    </message>
    <message>
        <source>%1 needs a speech server</source>
        <translation>%1 需要语音服务器</translation>
    </message>
    <message>
        <source>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</source>
        <translation>内置语音引擎仅识别英语。要生成%1字幕，请在“语音引擎”中连接转写服务器。</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>语音引擎...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The video player could not be started: %1</source>
        <translation>无法启动视频播放器：%1</translation>
    </message>
</context>
</TS>
