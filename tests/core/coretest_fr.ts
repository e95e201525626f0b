<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name></name>
    <message>
        <source>Translation file %1 failed to load</source>
        <translation>Le fichier de traduction %1 ne peut pas être chargé</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select your translation file</source>
        <translation>Choisissez votre fichier de traduction</translation>
    </message>
    <message>
        <source>Impossible to copy file %1 in this folder %2</source>
        <translation>Dans le dossier %2, le fichier %1 ne peut pas être copié</translation>
    </message>
    <message>
        <source>No Style has been loaded.</source>
        <translation>Aucun style n'a été chargé.</translation>
    </message>
</context>
</TS>
