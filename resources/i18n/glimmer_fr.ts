<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>CaptionManager</name>
    <message>
        <source>英语（美国）</source>
        <translation>Anglais (États-Unis)</translation>
    </message>
    <message>
        <source>西班牙语</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>法语</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>简体中文</source>
        <translation>Chinois simplifié</translation>
    </message>
    <message>
        <source>粤语</source>
        <translation>Cantonais</translation>
    </message>
    <message>
        <source>韩语</source>
        <translation>Coréen</translation>
    </message>
    <message>
        <source>日语</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>俄语</source>
        <translation>Russe</translation>
    </message>
</context>
<context>
    <name>HttpManager</name>
    <message>
        <source>The extracted audio file could not be read.</source>
        <translation>Impossible de lire le fichier audio extrait.</translation>
    </message>
</context>
<context>
    <name>ProcessThread</name>
    <message>
        <source>Failed to start process %1. exit code %2</source>
        <translation>Impossible de démarrer le processus %1. Code de sortie %2</translation>
    </message>
</context>
</TS>
