<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
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
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>Die extrahierte Audiodatei konnte nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Prozess %1 konnte nicht gestartet werden. Exit-Code %2</translation>
    </message>
</context>
</TS>
