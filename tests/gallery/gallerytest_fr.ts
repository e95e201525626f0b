<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>GalleryPages</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>GalleryHeader</name>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
</context>
<context>
    <name>ScanPanel</name>
    <message>
        <source>Scan a folder</source>
        <translation>Examiner un dossier</translation>
    </message>
</context>
<context>
    <name>FolderLogEntry</name>
    <message>
        <source>Folder %1</source>
        <translation>Dossier %1</translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPlugin</name>
    <message>
        <source>Colour Measurement</source>
        <translation>Mesure des couleurs</translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPage</name>
    <message>
        <source>White point:</source>
        <translation>Point blanc :</translation>
    </message>
</context>
<context>
    <name>PluginPanel</name>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Enregistrer</translation>
    </message>
</context>
<context>
    <name>ErrorExamples</name>
    <message>
        <source>The password of the measuring device cannot be read.</source>
        <translation>Le mot de passe de l'instrument est illisible.</translation>
    </message>
</context>
</TS>
