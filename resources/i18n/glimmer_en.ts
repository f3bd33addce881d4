<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
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
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>The extracted audio file could not be read.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Failed to start process %1. exit code %2</translation>
    </message>
</context>
</TS>
