<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>Inglés (EE. UU.)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Chino simplificado</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Cantonés</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>Ruso</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>No se pudo leer el archivo de audio extraído.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>No se pudo iniciar el proceso %1. Código de salida %2</translation>
    </message>
</context>
</TS>
