<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_HK">
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
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>無法讀取擷取的音訊檔案。</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>無法啟動處理程序 %1。結束代碼 %2</translation>
    </message>
</context>
</TS>
