<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>Inglese (USA)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>Francese</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Cinese semplificato</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Cantonese</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Giapponese</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>Russo</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>Impossibile leggere il file audio estratto.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Impossibile avviare il processo %1. Codice di uscita %2</translation>
    </message>
</context>
</TS>
