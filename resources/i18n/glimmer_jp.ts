<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About %1</source>
        <translation>%1 について</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Turn the moments of a video into still pictures with their captions.</source>
        <translation>動画のワンシーンを字幕付きの静止画にします。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>AutoCaptionFlow</name>
    <message>
        <source>The speech service gave an answer that cannot be read.</source>
        <translation>音声認識サービスから読み取れない応答が返されました。</translation>
    </message>
    <message>
        <source>No speech found</source>
        <translation>音声が見つかりません</translation>
    </message>
    <message>
        <source>No words were recognised in this video&apos;s sound track. Check the caption language, or add a subtitle file instead.</source>
        <translation>この動画の音声トラックから言葉を認識できませんでした。字幕の言語を確認するか、代わりに字幕ファイルを追加してください。</translation>
    </message>
    <message>
        <source>The sound track could not be extracted from the video. It may have no audio, or ffmpeg is missing.</source>
        <translation>動画から音声トラックを抽出できませんでした。音声がないか、ffmpeg が見つかりません。</translation>
    </message>
    <message>
        <source>Generating captions...</source>
        <translation>字幕を生成しています…</translation>
    </message>
    <message>
        <source>Automatic captions failed</source>
        <translation>自動字幕の生成に失敗しました</translation>
    </message>
    <message>
        <source>The speech service could not be reached.</source>
        <translation>音声認識サービスに接続できませんでした。</translation>
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
        <translation>ローカル字幕を開く</translation>
    </message>
    <message>
        <source>Subtitle Files</source>
        <translation>字幕ファイル</translation>
    </message>
    <message>
        <source>The subtitle file could not be converted.</source>
        <translation>字幕ファイルを変換できませんでした。</translation>
    </message>
    <message>
        <source>%1 holds no captions that can be shown.</source>
        <translation>%1 には表示できる字幕がありません。</translation>
    </message>
    <message>
        <source>No captions loaded</source>
        <translation>字幕を読み込めませんでした</translation>
    </message>
    <message>
        <source>Reading the captions of %1…</source>
        <translation>%1 の字幕を読み込んでいます…</translation>
    </message>
    <message>
        <source>Converting %1…</source>
        <translation>%1 を変換しています…</translation>
    </message>
    <message>
        <source>Some captions were not loaded</source>
        <translation>一部の字幕を読み込めませんでした</translation>
    </message>
    <message>
        <source>%1 of the %2 captions in %3 could not be read; the other %4 were loaded.</source>
        <translation>%3 の字幕 %2 件のうち %1 件を読み取れませんでした。残りの %4 件は読み込まれました。</translation>
    </message>
</context>
<context>
    <name>CaptionFileReader</name>
    <message>
        <source>&quot;%1&quot; holds more than %2 captions. To keep memory in bounds, at most %2 captions are loaded from one file: split it into parts.</source>
        <translation>「%1」には %2 件を超える字幕があります。メモリを使い切らないよう、1 つのファイルから読み込めるのは %2 件までです。ファイルを分割してください。</translation>
    </message>
</context>
<context>
    <name>CaptionItem</name>
    <message>
        <source>Hide</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>英語（米国）</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>スペイン語</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>フランス語</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>中国語（簡体字）</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>広東語</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>韓国語</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>ロシア語</translation>
    </message>
    <message>
        <source>No subtitle file was chosen.</source>
        <translation>字幕ファイルが選択されていません。</translation>
    </message>
    <message>
        <source>No captions were found in &quot;%1&quot;.</source>
        <translation>「%1」に字幕が見つかりませんでした。</translation>
    </message>
    <message>
        <source>Captions are saved as .srt or .ass files; &quot;%1&quot; is neither.</source>
        <translation>字幕は .srt または .ass ファイルとして保存します。「%1」はどちらでもありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>「%1」を書き込めませんでした: %2</translation>
    </message>
</context>
<context>
    <name>CaptionSaveFlow</name>
    <message>
        <source>Save captions</source>
        <translation>字幕を保存</translation>
    </message>
    <message>
        <source>Save captions as...</source>
        <translation>名前を付けて字幕を保存...</translation>
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
        <translation>字幕を保存できませんでした</translation>
    </message>
</context>
<context>
    <name>CaptionStyleBar</name>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
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
        <translation>縁取り</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>影</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>すべてに適用</translation>
    </message>
    <message>
        <source>Apply size, position and border to every caption</source>
        <translation>サイズ・位置・縁取りをすべての字幕に適用</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>キャプチャ</translation>
    </message>
    <message>
        <source>Include this caption in &quot;Capture selected&quot;</source>
        <translation>この字幕を「選択をキャプチャ」に含める</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>テキストを編集</translation>
    </message>
    <message>
        <source>Edit the caption on the video (or double-click it)</source>
        <translation>動画上で字幕を編集（またはダブルクリック）</translation>
    </message>
    <message>
        <source>Add caption</source>
        <translation>字幕を追加</translation>
    </message>
    <message>
        <source>Add a caption at the current position</source>
        <translation>現在の位置に字幕を追加</translation>
    </message>
</context>
<context>
    <name>CaptionWidget</name>
    <message>
        <source>search text</source>
        <translation>テキストを検索</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Popup</source>
        <translation>切り離す</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>非表示</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>すべてクリア</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>チェック済みをキャプチャ</translation>
    </message>
    <message>
        <source>Auto captions</source>
        <translation>自動字幕</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>新規作成</translation>
    </message>
    <message>
        <source>Add local subtitle</source>
        <translation>ローカル字幕を追加</translation>
    </message>
    <message>
        <source>No captions yet. Generate them from the video&apos;s speech, create one at the current time, or add a subtitle file.</source>
        <translation>まだ字幕がありません。動画の音声から生成するか、現在の位置に作成するか、字幕ファイルを追加してください。</translation>
    </message>
    <message>
        <source>Captions (%1)</source>
        <translation>字幕（%1）</translation>
    </message>
    <message>
        <source>Select all (%1/%2)</source>
        <translation>すべて選択（%1/%2）</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>字幕をすべて削除</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln captions?</source>
        <translation>
            <numerusform>%Ln 件の字幕をすべて削除しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>%1 – needs a speech server</source>
        <translation>%1 – 音声サーバーが必要</translation>
    </message>
</context>
<context>
    <name>CaptureController</name>
    <message>
        <source>Capture failed</source>
        <translation>キャプチャに失敗しました</translation>
    </message>
    <message>
        <source>The player did not reach the requested moment.</source>
        <translation>プレーヤーが指定した位置に移動できませんでした。</translation>
    </message>
    <message>
        <source>Capturing images</source>
        <translation>画像をキャプチャしています</translation>
    </message>
    <message>
        <source>The frame could not be captured from the player.</source>
        <translation>プレーヤーからフレームをキャプチャできませんでした。</translation>
    </message>
    <message>
        <source>Applying current style</source>
        <translation>現在のスタイルを適用しています</translation>
    </message>
    <message>
        <source>Nothing to capture</source>
        <translation>キャプチャするものがありません</translation>
    </message>
    <message>
        <source>Open a video first, then capture its frames.</source>
        <translation>まず動画を開いてから、フレームをキャプチャしてください。</translation>
    </message>
    <message>
        <source>No caption ticked</source>
        <translation>チェックされた字幕がありません</translation>
    </message>
    <message>
        <source>Tick the captions whose moments you want in the caption list, then press Capture checked again.</source>
        <translation>字幕リストで必要な字幕にチェックを入れてから、もう一度「チェック済みをキャプチャ」を押してください。</translation>
    </message>
</context>
<context>
    <name>CheckUpdateDialog</name>
    <message>
        <source>Version: %1</source>
        <translation>バージョン：%1</translation>
    </message>
    <message>
        <source>Release date: %1</source>
        <translation>リリース日：%1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>サイズ：%1</translation>
    </message>
    <message>
        <source>Check for update</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Your current use is already the latest version.</source>
        <translation>お使いのバージョンは最新です。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>A new version is available</source>
        <translation>新しいバージョンがあります</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Update now</source>
        <translation>今すぐ更新</translation>
    </message>
    <message>
        <source>The version information could not be read.</source>
        <translation>バージョン情報を読み取れませんでした。</translation>
    </message>
    <message>
        <source>Could not check for updates. Please check your network connection and try again.
%1</source>
        <translation>アップデートを確認できませんでした。ネットワーク接続を確認して、もう一度お試しください。
%1</translation>
    </message>
</context>
<context>
    <name>CloseGuard</name>
    <message>
        <source>The captions have changes that were not saved.</source>
        <translation>字幕に保存されていない変更があります。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln captured frames were never exported and will be lost.</source>
        <translation>
            <numerusform>キャプチャした %Ln 枚のフレームは一度も書き出されておらず、失われます。</numerusform>
        </translation>
    </message>
    <message>
        <source>Close Glimmer</source>
        <translation>Glimmer を閉じる</translation>
    </message>
    <message>
        <source>Save captions</source>
        <translation>字幕を保存</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>DownloadManager</name>
    <message>
        <source>The download tool could not be started: %1</source>
        <translation>ダウンロードツールを起動できませんでした：%1</translation>
    </message>
    <message>
        <source>The downloaded file could not be opened: %1</source>
        <translation>ダウンロードしたファイルを開けませんでした：%1</translation>
    </message>
    <message>
        <source>The download tool stopped before the download was complete.</source>
        <translation>ダウンロードが完了する前にダウンロードツールが停止しました。</translation>
    </message>
</context>
<context>
    <name>ExportNotice</name>
    <message numerus="yes">
        <source>Saved %n picture(s) to %1</source>
        <translation>
            <numerusform>%n 枚の画像を %1 に保存しました</numerusform>
        </translation>
    </message>
    <message>
        <source>The output folder %1 cannot be written.</source>
        <translation>出力フォルダー %1 に書き込めません。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>抽出した音声ファイルを読み取れませんでした。</translation>
    </message>
    <message>
        <source>The video has no sound that could be extracted.</source>
        <translation>この動画には抽出できる音声がありません。</translation>
    </message>
    <message>
        <source>The speech service could not be reached: %1</source>
        <translation>音声認識サービスに接続できませんでした：%1</translation>
    </message>
</context>
<context>
    <name>ImageExporter</name>
    <message>
        <source>No picture was exported.</source>
        <translation>画像はエクスポートされませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n picture(s) were exported, but some failed.</source>
        <translation>
            <numerusform>%n 枚の画像をエクスポートしましたが、一部は失敗しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ImageItem</name>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>ImageListViewDialog</name>
    <message>
        <source>Captured frames</source>
        <translation>キャプチャしたフレーム</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>すべて削除</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体表示</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
</context>
<context>
    <name>ImagesWidget</name>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>List view</source>
        <translation>リスト表示</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>すべてクリア</translation>
    </message>
    <message>
        <source>Apply Current Style</source>
        <translation>スタイルを適用</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>No frame is selected.</source>
        <translation>フレームが選択されていません。</translation>
    </message>
    <message>
        <source>Capture every frame again with the current caption style</source>
        <translation>現在の字幕スタイルですべてのフレームをキャプチャし直す</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>フレームをすべて削除</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln frames?</source>
        <translation>
            <numerusform>%Ln 枚のフレームをすべて削除しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>LicenseManager</name>
    <message>
        <source>Please enter a licence key.</source>
        <translation>ライセンスキーを入力してください。</translation>
    </message>
    <message>
        <source>The licence server sent an answer that could not be read.</source>
        <translation>ライセンスサーバーから読み取れない応答が返されました。</translation>
    </message>
    <message>
        <source>This licence key was not accepted.</source>
        <translation>このライセンスキーは受け付けられませんでした。</translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Open video...</source>
        <translation>動画を開く…</translation>
    </message>
    <message>
        <source>Add local subtitle...</source>
        <translation>ローカル字幕を追加…</translation>
    </message>
    <message>
        <source>Caption panel</source>
        <translation>字幕パネル</translation>
    </message>
    <message>
        <source>Output folder...</source>
        <translation>出力フォルダー…</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Register...</source>
        <translation>登録…</translation>
    </message>
    <message>
        <source>About Glimmer</source>
        <translation>Glimmer について</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>ログフォルダーを開く</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>出力形式</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>出力フォルダーを選択</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>音声エンジン...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The video cannot be played</source>
        <translation>動画を再生できません</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>%1 を開けませんでした：%2</translation>
    </message>
    <message>
        <source>The video cannot be opened</source>
        <translation>動画を開けません</translation>
    </message>
    <message>
        <source>%1 does not exist or cannot be read.</source>
        <translation>%1 は存在しないか、読み取れません。</translation>
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
        <translation>このファイルには映像がなく、音声のみです</translation>
    </message>
</context>
<context>
    <name>OutputFiles</name>
    <message>
        <source>%1: the file has vanished before it could be moved to the output folder.</source>
        <translation>%1：出力フォルダーに移動する前にファイルが見つからなくなりました。</translation>
    </message>
    <message>
        <source>%1 could not be moved to the output folder %2; it was kept at %3.</source>
        <translation>%1 を出力フォルダー %2 に移動できなかったため、%3 に残しました。</translation>
    </message>
</context>
<context>
    <name>PictureWriter</name>
    <message>
        <source>The picture is empty.</source>
        <translation>画像が空です。</translation>
    </message>
    <message>
        <source>This system cannot write %1 pictures. Choose PNG.</source>
        <translation>このシステムでは %1 画像を書き出せません。PNG を選んでください。</translation>
    </message>
    <message>
        <source>The picture is too tall for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>画像が縦に大きすぎて WEBP にできません：%1×%2 ピクセルですが、WEBP は一辺 %3 ピクセルまでです。PNG を選ぶか、倍率を下げてください。</translation>
    </message>
    <message>
        <source>The picture is too wide for WEBP: %1x%2 pixels, and WEBP holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>画像が横に大きすぎて WEBP にできません：%1×%2 ピクセルですが、WEBP は一辺 %3 ピクセルまでです。PNG を選ぶか、倍率を下げてください。</translation>
    </message>
    <message>
        <source>The picture is too tall for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>画像が縦に大きすぎて JPG にできません：%1×%2 ピクセルですが、JPG は一辺 %3 ピクセルまでです。PNG を選ぶか、倍率を下げてください。</translation>
    </message>
    <message>
        <source>The picture is too wide for JPG: %1x%2 pixels, and JPG holds at most %3 pixels on a side. Choose PNG or a smaller scale.</source>
        <translation>画像が横に大きすぎて JPG にできません：%1×%2 ピクセルですが、JPG は一辺 %3 ピクセルまでです。PNG を選ぶか、倍率を下げてください。</translation>
    </message>
    <message>
        <source>Cannot create the file in %1: %2</source>
        <translation>%1 にファイルを作成できません: %2</translation>
    </message>
    <message>
        <source>Writing the picture to %1 failed: %2</source>
        <translation>%1 への画像の書き込みに失敗しました: %2</translation>
    </message>
</context>
<context>
    <name>PreviewWidget</name>
    <message>
        <source>Layout:</source>
        <translation>レイアウト：</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体表示</translation>
    </message>
    <message>
        <source>Enlarge</source>
        <translation>拡大表示</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>X space</source>
        <translation>横の間隔</translation>
    </message>
    <message>
        <source>Y space</source>
        <translation>縦の間隔</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列数</translation>
    </message>
    <message>
        <source>The scale is 0: there is no picture to export.</source>
        <translation>倍率が 0 のため、エクスポートする画像がありません。</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>プロセス %1 を起動できませんでした。終了コード %2</translation>
    </message>
</context>
<context>
    <name>RegisterDialog</name>
    <message>
        <source>Register %1</source>
        <translation>%1 を登録</translation>
    </message>
    <message>
        <source>Enter the licence key you received with your purchase. Registered copies export pictures without a watermark.</source>
        <translation>購入時に受け取ったライセンスキーを入力してください。登録すると、透かしなしで画像をエクスポートできます。</translation>
    </message>
    <message>
        <source>Licence key</source>
        <translation>ライセンスキー</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>登録</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Checking the licence key...</source>
        <translation>ライセンスキーを確認しています…</translation>
    </message>
    <message>
        <source>This copy is registered (%1). Thank you!</source>
        <translation>このコピーは登録済みです（%1）。ありがとうございます！</translation>
    </message>
</context>
<context>
    <name>RegisterGuideDialog</name>
    <message>
        <source>Export complete</source>
        <translation>エクスポート完了</translation>
    </message>
    <message>
        <source>Your pictures were exported with a watermark</source>
        <translation>画像は透かし付きでエクスポートされました</translation>
    </message>
    <message>
        <source>This copy of %1 is not registered, so every exported picture carries the &quot;%1&quot; watermark. Register with your licence key to export clean pictures from now on.</source>
        <translation>この %1 は未登録のため、エクスポートしたすべての画像に「%1」の透かしが入ります。ライセンスキーで登録すると、以後は透かしなしの画像をエクスポートできます。</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Register now</source>
        <translation>今すぐ登録</translation>
    </message>
</context>
<context>
    <name>SaveFileBar</name>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>出力フォルダー：</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>形式：</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Choose the output folder</source>
        <translation>出力フォルダーを選択</translation>
    </message>
</context>
<context>
    <name>SpeechEngineDialog</name>
    <message>
        <source>Works: %1</source>
        <translation>動作します：%1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失敗しました：%1</translation>
    </message>
    <message>
        <source>Speech engine</source>
        <translation>音声エンジン</translation>
    </message>
    <message>
        <source>Built-in (offline, English only)</source>
        <translation>内蔵（オフライン、英語のみ）</translation>
    </message>
    <message>
        <source>Transcription server (OpenAI-compatible API)</source>
        <translation>文字起こしサーバー（OpenAI 互換 API）</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>アドレス：</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>モデル：</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>キー：</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>テスト</translation>
    </message>
    <message>
        <source>GLIMMER_SPEECHD_OPENAI_URL is set: automatic captions use that server whatever is chosen here.</source>
        <translation>GLIMMER_SPEECHD_OPENAI_URL が設定されています：ここでの選択にかかわらず、自動字幕はそのサーバーを使います。</translation>
    </message>
    <message>
        <source>Testing...</source>
        <translation>テスト中...</translation>
    </message>
</context>
<context>
    <name>SpeechEngineTest</name>
    <message numerus="yes">
        <source>The test got no answer within %n second(s).</source>
        <translation>
            <numerusform>テストは %n 秒以内に応答を得られませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>音声認識サービスのプログラムが見つかりません：%1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>音声認識サービスが停止しました：%1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>音声認識サービスを起動できませんでした：%1</translation>
    </message>
    <message>
        <source>The test sound could not be written: %1</source>
        <translation>テスト音を書き込めませんでした：%1</translation>
    </message>
    <message>
        <source>The built-in engine works. It recognises English.</source>
        <translation>内蔵エンジンは動作しています。英語を認識します。</translation>
    </message>
    <message>
        <source>%1 answered with model %2. It recognises the languages its model knows.</source>
        <translation>%1 がモデル %2 で応答しました。モデルが対応する言語を認識します。</translation>
    </message>
    <message>
        <source>(default)</source>
        <translation>（既定）</translation>
    </message>
</context>
<context>
    <name>SpeechService</name>
    <message>
        <source>The speech service did not start in time.</source>
        <translation>音声認識サービスが時間内に起動しませんでした。</translation>
    </message>
    <message>
        <source>The speech service program is missing: %1</source>
        <translation>音声認識サービスのプログラムが見つかりません：%1</translation>
    </message>
    <message>
        <source>The speech service stopped: %1</source>
        <translation>音声認識サービスが停止しました：%1</translation>
    </message>
    <message>
        <source>The speech service could not be started: %1</source>
        <translation>音声認識サービスを起動できませんでした：%1</translation>
    </message>
    <message>
        <source>The speech service did not answer: %1</source>
        <translation>音声サービスが応答しませんでした：%1</translation>
    </message>
</context>
<context>
    <name>SubtitleConverter</name>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg was not found.</source>
        <translation>SRT ファイル「%1」を変換できませんでした：ffmpeg が見つかりません。</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted: ffmpeg did not finish in time.</source>
        <translation>SRT ファイル「%1」を変換できませんでした：ffmpeg が時間内に終了しませんでした。</translation>
    </message>
    <message>
        <source>The SRT file &quot;%1&quot; could not be converted.</source>
        <translation>SRT ファイル「%1」を変換できませんでした。</translation>
    </message>
</context>
<context>
    <name>SubtitleFile</name>
    <message>
        <source>&quot;%1&quot; is a folder, not a subtitle file.</source>
        <translation>「%1」はフォルダーです。字幕ファイルではありません。</translation>
    </message>
    <message>
        <source>The subtitle file &quot;%1&quot; could not be opened.</source>
        <translation>字幕ファイル「%1」を開けませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinary file (a device, pipe or socket): it cannot be read as subtitles.</source>
        <translation>「%1」は通常のファイルではありません（デバイス、パイプ、ソケット）。字幕として読み込めません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large to be a subtitle file: subtitle files of up to %2 MB can be loaded.</source>
        <translation>「%1」は字幕ファイルとしては大きすぎます。読み込める字幕ファイルは %2 MB までです。</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Open video</source>
        <translation>動画を開く</translation>
    </message>
    <message>
        <source>Open a video [Ctrl+O]</source>
        <translation>動画を開く [Ctrl+O]</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Show or hide the caption list</source>
        <translation>字幕リストの表示/非表示</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>登録</translation>
    </message>
    <message>
        <source>Enter a licence key to remove the watermark</source>
        <translation>ライセンスキーを入力して透かしを消す</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>UndoHistory</name>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>やり直す: %1</translation>
    </message>
    <message>
        <source>Load subtitles</source>
        <translation>字幕の読み込み</translation>
    </message>
    <message>
        <source>Automatic captions</source>
        <translation>自動字幕</translation>
    </message>
    <message>
        <source>Clear frames</source>
        <translation>フレームをすべて削除</translation>
    </message>
    <message>
        <source>Delete frame</source>
        <translation>フレームの削除</translation>
    </message>
    <message>
        <source>Re-capture frames</source>
        <translation>フレームの再キャプチャ</translation>
    </message>
</context>
<context>
    <name>VideoPlayWidget</name>
    <message>
        <source>Drop your video here! Or,&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;Click here to import video.&lt;/a&gt;</source>
        <translation>ここに動画をドロップ！または&lt;br&gt;&lt;a style=&quot;color: #008cf1;&quot; href=&quot;clicked&quot;&gt;ここをクリックして動画を読み込みます。&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Backward [Left]</source>
        <translation>コマ戻し [←]</translation>
    </message>
    <message>
        <source>Forward [Right]</source>
        <translation>コマ送り [→]</translation>
    </message>
    <message>
        <source>Play [Space]</source>
        <translation>再生 [スペース]</translation>
    </message>
    <message>
        <source>Stop [Ctrl+/]</source>
        <translation>停止 [Ctrl+/]</translation>
    </message>
    <message>
        <source>Capture [Ctrl+Alt+S]</source>
        <translation>キャプチャ [Ctrl+Alt+S]</translation>
    </message>
    <message>
        <source>Capture</source>
        <translation>キャプチャ</translation>
    </message>
    <message>
        <source>Capture selected</source>
        <translation>選択をキャプチャ</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>動画ファイル</translation>
    </message>
    <message>
        <source>Open Video</source>
        <translation>動画を開く</translation>
    </message>
    <message>
        <source>New caption</source>
        <translation>新しい字幕</translation>
    </message>
</context>
<context>
    <name>WindowFlows</name>
    <message>
        <source>No video</source>
        <translation>動画がありません</translation>
    </message>
    <message>
        <source>Open a video first, then generate its captions.</source>
        <translation>先に動画を開いてから、字幕を生成してください。</translation>
    </message>
    <message>
        <source>Capture checked</source>
        <translation>チェック済みをキャプチャ</translation>
    </message>
    <message>
        <source>Some captions were not captured</source>
        <translation>一部の字幕はキャプチャされませんでした</translation>
    </message>
    <message numerus="yes">
        <source>%n caption(s) start at or after the end of the video, or have no readable start time, and were skipped.</source>
        <translation>
            <numerusform>%n 件の字幕は動画の終わり以降に始まるか、開始時刻を読み取れないため、スキップされました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Open a video first, then create a caption at the current time.</source>
        <translation>先に動画を開いてから、現在の位置に字幕を作成してください。</translation>
    </message>
    <message>
        <source>No room for a caption</source>
        <translation>ここには字幕を追加できません</translation>
    </message>
    <message>
        <source>A caption already covers the current time. Move to a moment without a caption.</source>
        <translation>現在の位置にはすでに字幕があります。字幕のない位置に移動してください。</translation>
    </message>
    <message>
        <source>Edit the style of all captions</source>
        <translation>すべての字幕のスタイル変更</translation>
    </message>
    <message>
        <source>Edit caption</source>
        <translation>字幕の編集</translation>
    </message>
    <message>
        <source>Create caption</source>
        <translation>字幕の作成</translation>
    </message>
    <message>
        <source>Edit caption text</source>
        <translation>字幕テキストの編集</translation>
    </message>
    <message>
        <source>Clear captions</source>
        <translation>字幕をすべて削除</translation>
    </message>
    <message>
        <source>%1 needs a speech server</source>
        <translation>%1 には音声サーバーが必要です</translation>
    </message>
    <message>
        <source>The built-in speech engine recognises English only. To make captions in %1, connect a transcription server in Speech engine.</source>
        <translation>内蔵の音声エンジンは英語のみを認識します。%1の字幕を作るには、「音声エンジン」で文字起こしサーバーを接続してください。</translation>
    </message>
    <message>
        <source>Speech engine...</source>
        <translation>音声エンジン...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The video player could not be started: %1</source>
        <translation>動画プレーヤーを起動できませんでした：%1</translation>
    </message>
</context>
</TS>
