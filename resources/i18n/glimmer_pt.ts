<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>Inglês (EUA)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Espanhol</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>Francês</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Chinês simplificado</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Cantonês</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Japonês</translation>
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
        <translation>Não foi possível ler o arquivo de áudio extraído.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Falha ao iniciar o processo %1. Código de saída %2</translation>
    </message>
</context>
</TS>
