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
</TS>
