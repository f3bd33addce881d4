<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
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
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>抽出した音声ファイルを読み込めませんでした。</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>プロセス %1 を開始できませんでした。終了コード %2</translation>
    </message>
</context>
</TS>
