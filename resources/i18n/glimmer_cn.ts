<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
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
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>无法读取提取的音频文件。</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>无法启动进程 %1。退出代码 %2</translation>
    </message>
</context>
</TS>
