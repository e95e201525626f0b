<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>LanguageBox</name>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
</context>
<context>
    <name>Readings</name>
    <message>
        <source>The file %1 cannot be opened.</source>
        <translation>Die Datei %1 lässt sich nicht öffnen.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) were left out.</source>
        <translation>
            <numerusform>Eine Datei wurde ausgelassen.</numerusform>
            <numerusform>%n Dateien wurden ausgelassen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>Import of %1</source>
        <translation>Einlesen von %1</translation>
    </message>
</context>
</TS>
