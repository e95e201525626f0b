<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutPage</name>
    <message>
        <source>The picture that a program shows while it starts, which a partner can replace by a logo, and the window that tells what the program is.</source>
        <translation>Das Bild, das ein Programm beim Start zeigt und das ein Partner durch sein Logo ersetzen kann, und das Fenster, das sagt, was das Programm ist.</translation>
    </message>
</context>
<context>
    <name>AboutWindowPanel</name>
    <message>
        <source>About window</source>
        <translation>Info-Fenster</translation>
    </message>
    <message>
        <source>With the &amp;version of Qt</source>
        <translation>Mit der &amp;Version von Qt</translation>
    </message>
    <message>
        <source>Open About &amp;Window</source>
        <translation>Info-&amp;Fenster öffnen</translation>
    </message>
    <message>
        <source>Open Legal &amp;Notices</source>
        <translation>Rechtliche &amp;Hinweise öffnen</translation>
    </message>
    <message>
        <source>The notices are opened from a copy in the folder "%1".</source>
        <translation>Die Hinweise werden aus einer Kopie im Ordner „%1“ geöffnet.</translation>
    </message>
    <message>
        <source>There are no notices at "%1".</source>
        <translation>Unter „%1“ sind keine Hinweise.</translation>
    </message>
</context>
<context>
    <name>AccessPage</name>
    <message>
        <source>A program whose user interface can be locked behind a password. The dialogs ask for it; the program keeps it and does the locking, here of the work area.</source>
        <translation>Ein Programm, dessen Oberfläche sich hinter einem Passwort sperren lässt. Die Dialoge fragen danach; das Programm bewahrt es auf und sperrt, hier den Arbeitsbereich.</translation>
    </message>
</context>
<context>
    <name>BoldTitlePanel</name>
    <message>
        <source>Bold titles</source>
        <translation>Fette Titel</translation>
    </message>
    <message>
        <source>Proof, bold title</source>
        <translation>Proof, fetter Titel</translation>
    </message>
    <message>
        <source>Proof, bold font</source>
        <translation>Proof, fette Schrift</translation>
    </message>
    <message>
        <source>Add R&amp;esult</source>
        <translation>&amp;Ergebnis hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Update Weights</source>
        <translation>Schrift&amp;gewichte aktualisieren</translation>
    </message>
    <message>
        <source>Not passed</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Mean ΔE %1</source>
        <translation>Mittleres ΔE %1</translation>
    </message>
    <message>
        <source>Largest ΔE %1</source>
        <translation>Größtes ΔE %1</translation>
    </message>
    <message>
        <source>%1: ΔE %2</source>
        <translation>%1: ΔE %2</translation>
    </message>
</context>
<context>
    <name>BusyPage</name>
    <message>
        <source>A spinner over a list that is being filled, and a progress bar that many threads report to while they work.</source>
        <translation>Ein Spinner über einer Liste, die gefüllt wird, und ein Fortschrittsbalken, dem viele Threads während der Arbeit ihren Stand melden.</translation>
    </message>
</context>
<context>
    <name>ChartPatches</name>
    <message>
        <source>Dark skin</source>
        <translation>Dunkle Haut</translation>
    </message>
    <message>
        <source>Light skin</source>
        <translation>Helle Haut</translation>
    </message>
    <message>
        <source>Blue sky</source>
        <translation>Himmelblau</translation>
    </message>
    <message>
        <source>Foliage</source>
        <translation>Laub</translation>
    </message>
    <message>
        <source>Blue flower</source>
        <translation>Blaue Blüte</translation>
    </message>
    <message>
        <source>Bluish green</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Purplish blue</source>
        <translation>Violettblau</translation>
    </message>
    <message>
        <source>Moderate red</source>
        <translation>Mittleres Rot</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Purpur</translation>
    </message>
    <message>
        <source>Yellow green</source>
        <translation>Gelbgrün</translation>
    </message>
    <message>
        <source>Orange yellow</source>
        <translation>Orangegelb</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>White 9.5</source>
        <translation>Weiß 9,5</translation>
    </message>
    <message>
        <source>Neutral 8</source>
        <translation>Grau 8</translation>
    </message>
    <message>
        <source>Neutral 6.5</source>
        <translation>Grau 6,5</translation>
    </message>
    <message>
        <source>Neutral 5</source>
        <translation>Grau 5</translation>
    </message>
    <message>
        <source>Neutral 3.5</source>
        <translation>Grau 3,5</translation>
    </message>
    <message>
        <source>Black 2</source>
        <translation>Schwarz 2</translation>
    </message>
    <message>
        <source>Skin and nature</source>
        <translation>Haut und Natur</translation>
    </message>
    <message>
        <source>Further colours</source>
        <translation>Weitere Farben</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>Primärfarben</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Grautöne</translation>
    </message>
</context>
<context>
    <name>ChartReport</name>
    <message>
        <source>Colour comparison of the 24-patch chart</source>
        <translation>Farbvergleich der Tafel mit 24 Feldern</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommon-Galerie</translation>
    </message>
    <message>
        <source>Page {page} of {pages}</source>
        <translation>Seite {page} von {pages}</translation>
    </message>
</context>
<context>
    <name>ChartReportCover</name>
    <message>
        <source>ΔE*ab</source>
        <translation>ΔE*ab</translation>
    </message>
    <message>
        <source>ΔE00</source>
        <translation>ΔE00</translation>
    </message>
    <message>
        <source>Published averages of older charts against the current reference values</source>
        <translation>Veröffentlichte Mittelwerte älterer Tafeln gegen die heutigen Referenzwerte</translation>
    </message>
    <message>
        <source>Left half, set A: average of charts made before November 2014</source>
        <translation>Linke Hälfte, Satz A: Mittelwert der Tafeln von vor November 2014</translation>
    </message>
    <message>
        <source>Right half, set B: charts made since November 2014</source>
        <translation>Rechte Hälfte, Satz B: Tafeln seit November 2014</translation>
    </message>
    <message>
        <source>CIELAB under D50 for the 2° observer, shown in sRGB</source>
        <translation>CIELAB unter D50 für den 2°-Beobachter, gezeigt in sRGB</translation>
    </message>
    <message>
        <source>Differences of the 24 patches</source>
        <translation>Abstände der 24 Felder</translation>
    </message>
    <message>
        <source>CIE76</source>
        <translation>CIE76</translation>
    </message>
    <message>
        <source>CIEDE2000</source>
        <translation>CIEDE2000</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>95 %</source>
        <translation>95 %</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Above %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>%1 of each patch, tolerance %2</source>
        <translation>%1 jedes Felds, Toleranz %2</translation>
    </message>
    <message>
        <source>ΔE*ab: CIE76, the distance in CIELAB. CIE 15, Colorimetry.</source>
        <translation>ΔE*ab: CIE76, der Abstand in CIELAB. CIE 15, Colorimetry.</translation>
    </message>
    <message>
        <source>ΔE00: CIEDE2000, all weights 1. CIE 142:2001; ISO/CIE 11664-6.</source>
        <translation>ΔE00: CIEDE2000, alle Gewichte 1. CIE 142:2001; ISO/CIE 11664-6.</translation>
    </message>
    <message>
        <source>G. Sharma, W. Wu, E. N. Dalal: The CIEDE2000 color-difference formula. Color Research and Application 30 (2005).</source>
        <translation>G. Sharma, W. Wu, E. N. Dalal: The CIEDE2000 color-difference formula. Color Research and Application 30 (2005).</translation>
    </message>
</context>
<context>
    <name>ChartReportTables</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>A L*</source>
        <translation>A L*</translation>
    </message>
    <message>
        <source>A a*</source>
        <translation>A a*</translation>
    </message>
    <message>
        <source>A b*</source>
        <translation>A b*</translation>
    </message>
    <message>
        <source>B L*</source>
        <translation>B L*</translation>
    </message>
    <message>
        <source>B a*</source>
        <translation>B a*</translation>
    </message>
    <message>
        <source>B b*</source>
        <translation>B b*</translation>
    </message>
    <message>
        <source>ΔE*ab</source>
        <translation>ΔE*ab</translation>
    </message>
    <message>
        <source>ΔE00</source>
        <translation>ΔE00</translation>
    </message>
    <message>
        <source>Patch of set A</source>
        <translation>Feld aus Satz A</translation>
    </message>
    <message>
        <source>Patch of set B</source>
        <translation>Feld aus Satz B</translation>
    </message>
    <message>
        <source>ΔL*</source>
        <translation>ΔL*</translation>
    </message>
    <message>
        <source>Δa*</source>
        <translation>Δa*</translation>
    </message>
    <message>
        <source>Δb*</source>
        <translation>Δb*</translation>
    </message>
</context>
<context>
    <name>ChartTreePanel</name>
    <message>
        <source>Tree with a grid</source>
        <translation>Baum mit Gitter</translation>
    </message>
    <message>
        <source>Colour chart</source>
        <translation>Farbtafel</translation>
    </message>
    <message>
        <source>&amp;Grid lines</source>
        <translation>&amp;Gitterlinien</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Feld</translation>
    </message>
</context>
<context>
    <name>ColourDifferencePage</name>
    <message>
        <source>How far two sets of colours of a chart are apart: as a bar, as swatches, and the spectrum behind a curve.</source>
        <translation>Wie weit zwei Sätze von Farben einer Tafel auseinanderliegen: als Balken, als Farbfelder, und das Spektrum hinter einer Kurve.</translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPage</name>
    <message>
        <source>&amp;Illuminant:</source>
        <translation>Lic&amp;htart:</translation>
    </message>
    <message>
        <source>D&amp;50, prints</source>
        <translation>D&amp;50, Drucke</translation>
    </message>
    <message>
        <source>D&amp;65, daylight</source>
        <translation>D&amp;65, Tageslicht</translation>
    </message>
    <message>
        <source>&amp;Observer:</source>
        <translation>Be&amp;obachter:</translation>
    </message>
    <message>
        <source>&amp;2° field</source>
        <translation>&amp;2°-Feld</translation>
    </message>
    <message>
        <source>&amp;10° field</source>
        <translation>&amp;10°-Feld</translation>
    </message>
    <message>
        <source>White point:</source>
        <translation>Weißpunkt:</translation>
    </message>
    <message>
        <source>Difference &amp;formula:</source>
        <translation>Abstandsfor&amp;mel:</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Toleranz:</translation>
    </message>
    <message>
        <source>ΔE </source>
        <comment>before a number</comment>
        <translation>ΔE </translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPlugin</name>
    <message>
        <source>Colour Measurement</source>
        <translation>Farbmessung</translation>
    </message>
</context>
<context>
    <name>ColourPreset</name>
    <message>
        <source>It is no colour preset.</source>
        <translation>Das ist keine Farbvoreinstellung.</translation>
    </message>
    <message>
        <source>Its version, %1, is not known.</source>
        <translation>Ihre Version, %1, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>"%1" is no rendering intent.</source>
        <translation>„%1“ ist kein Rendering Intent.</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perzeptiv</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Relativ farbmetrisch</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Absolut farbmetrisch</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation>Der Name ist länger als %1 Zeichen.</translation>
    </message>
    <message>
        <source>The name has characters that cannot be shown.</source>
        <translation>Der Name hat Zeichen, die sich nicht anzeigen lassen.</translation>
    </message>
    <message>
        <source>with black point compensation</source>
        <translation>mit Tiefenkompensierung</translation>
    </message>
    <message>
        <source>without black point compensation</source>
        <translation>ohne Tiefenkompensierung</translation>
    </message>
    <message>
        <source>%1, %2, paper L* %3 a* %4 b* %5, at most %6 % ink</source>
        <translation>%1, %2, Papier L* %3 a* %4 b* %5, höchstens %6 % Farbauftrag</translation>
    </message>
</context>
<context>
    <name>ColourPresetCollection</name>
    <message>
        <source>Colour presets</source>
        <translation>Farbvoreinstellungen</translation>
    </message>
    <message>
        <source>"%1" cannot be saved.</source>
        <translation>„%1“ kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Diese Voreinstellung gibt es nicht.</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Gestrichenes Papier</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>Zeitungspapier</translation>
    </message>
    <message>
        <source>Contract proof</source>
        <translation>Kontraktproof</translation>
    </message>
    <message>
        <source>Nothing can be duplicated.</source>
        <translation>Nichts kann dupliziert werden.</translation>
    </message>
    <message>
        <source>"%1" cannot be imported.</source>
        <translation>„%1“ kann nicht importiert werden.</translation>
    </message>
    <message>
        <source>"%1" cannot be written.</source>
        <translation>„%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>That is the folder of the presets themselves.</source>
        <translation>Das ist der Ordner der Voreinstellungen selbst.</translation>
    </message>
    <message>
        <source>"%1" cannot be deleted.</source>
        <translation>„%1“ kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Das ist ein Verweis auf einen anderen Ort.</translation>
    </message>
    <message>
        <source>Another preset is called "%1".</source>
        <translation>Eine andere Voreinstellung heißt „%1“.</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>No preset can be loaded.</source>
        <translation>Es kann keine Voreinstellung geladen werden.</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>Der Ordner „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>Another program has changed it in the meantime. Try again if that is to be lost.</source>
        <translation>Ein anderes Programm hat sie inzwischen geändert. Versuchen Sie es noch einmal, wenn das verloren gehen soll.</translation>
    </message>
</context>
<context>
    <name>ColourPresetForm</name>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>Rendering In&amp;tent:</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>Tiefen&amp;kompensierung</translation>
    </message>
    <message>
        <source>In&amp;k limit:</source>
        <translation>Maximaler &amp;Farbauftrag:</translation>
    </message>
    <message>
        <source>Paper white:</source>
        <translation>Papierweiß:</translation>
    </message>
    <message>
        <source>The paper as a screen shows it</source>
        <translation>Das Papier, wie es ein Bildschirm zeigt</translation>
    </message>
    <message>
        <source>Lightness of the paper</source>
        <translation>Helligkeit des Papiers</translation>
    </message>
    <message>
        <source>Green to red of the paper</source>
        <translation>Grün bis Rot des Papiers</translation>
    </message>
    <message>
        <source>Blue to yellow of the paper</source>
        <translation>Blau bis Gelb des Papiers</translation>
    </message>
</context>
<context>
    <name>ColourPresetPanel</name>
    <message>
        <source>New preset</source>
        <translation>Neue Voreinstellung</translation>
    </message>
    <message>
        <source>Colour presets</source>
        <translation>Farbvoreinstellungen</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>Voreinstellung:</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Keine Voreinstellung</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Edit</source>
        <translation>Bearbeitu&amp;ng abbrechen</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Voreinstellung löschen</translation>
    </message>
    <message>
        <source>Delete the preset "%1" for good?</source>
        <translation>Die Voreinstellung „%1“ endgültig löschen?</translation>
    </message>
    <message>
        <source>Change the name in the box and the settings, then save.</source>
        <translation>Ändern Sie den Namen im Feld und die Einstellungen, und speichern Sie dann.</translation>
    </message>
    <message>
        <source>There is no preset. Make a new one, or import one.</source>
        <translation>Es gibt keine Voreinstellung. Legen Sie eine neue an, oder importieren Sie eine.</translation>
    </message>
    <message>
        <source>The settings can be changed once the preset is edited.</source>
        <translation>Die Einstellungen lassen sich ändern, sobald die Voreinstellung bearbeitet wird.</translation>
    </message>
    <message>
        <source>Files in "%1" that are no presets, and are left as they are: %2</source>
        <translation>Dateien in „%1“, die keine Voreinstellungen sind und so bleiben, wie sie sind: %2</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Voreinstellung speichern</translation>
    </message>
    <message>
        <source>The preset "%1" has been edited. Save it?</source>
        <translation>Die Voreinstellung „%1“ wurde bearbeitet. Speichern?</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>Voreinstellung importieren</translation>
    </message>
    <message>
        <source>Colour presets (*.json)</source>
        <translation>Farbvoreinstellungen (*.json)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>Voreinstellung exportieren</translation>
    </message>
</context>
<context>
    <name>ColourProfileCheck</name>
    <message>
        <source>%1 bytes by the header, %2 in the file.</source>
        <translation>%1 Byte laut Kopf, %2 in der Datei.</translation>
    </message>
    <message>
        <source>The signature is "%1" instead of "acsp".</source>
        <translation>Die Kennung ist „%1“ statt „acsp“.</translation>
    </message>
    <message>
        <source>Version %1 is not supported.</source>
        <translation>Version %1 wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>The device class "%1" is unknown.</source>
        <translation>Die Geräteklasse „%1“ ist unbekannt.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The file ends within the header, after %1 bytes.</source>
        <translation>Die Datei endet im Kopf, nach %1 Byte.</translation>
    </message>
    <message>
        <source>"%1" cannot be used as a colour profile.</source>
        <translation>„%1“ kann nicht als Farbprofil verwendet werden.</translation>
    </message>
</context>
<context>
    <name>ComboBoxPanel</name>
    <message>
        <source>Combo boxes</source>
        <translation>Auswahlfelder</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>&amp;Measured under:</source>
        <translation>&amp;Messbedingung:</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>Pa&amp;pier:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Light of a tungsten lamp, the ultraviolet undefined</source>
        <translation>Licht einer Glühlampe, der UV-Anteil nicht festgelegt</translation>
    </message>
    <message>
        <source>Daylight D50, the ultraviolet as in D50</source>
        <translation>Tageslicht D50, der UV-Anteil wie in D50</translation>
    </message>
    <message>
        <source>Without ultraviolet</source>
        <translation>Ohne UV-Anteil</translation>
    </message>
    <message>
        <source>Without ultraviolet, with polarising filters</source>
        <translation>Ohne UV-Anteil, mit Polarisationsfiltern</translation>
    </message>
    <message>
        <source>Focus lost: %1</source>
        <translation>Fokus verloren: %1</translation>
    </message>
    <message>
        <source>Measured under</source>
        <translation>Messbedingung</translation>
    </message>
    <message>
        <source>Measured under, disabled</source>
        <translation>Messbedingung, deaktiviert</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paper, disabled</source>
        <translation>Papier, deaktiviert</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Folder, disabled</source>
        <translation>Ordner, deaktiviert</translation>
    </message>
</context>
<context>
    <name>ContainersPage</name>
    <message>
        <source>What holds other widgets: a flow of equal cells, a square, splitters with a grip, group boxes that fold or have a bold title; and labels that are turned.</source>
        <translation>Was andere Widgets aufnimmt: gleiche Zellen im Fluss, ein Quadrat, Teiler mit Griff, Gruppen, die sich falten lassen oder einen fetten Titel haben; und gedrehte Beschriftungen.</translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Numbers with a slider beside them, switches, and spin boxes that read as a plain value when they are disabled; and the state of a whole window in one call.</source>
        <translation>Zahlen mit einem Schieberegler daneben, Schalter, und Drehfelder, die sich deaktiviert wie ein einfacher Wert lesen; und der Zustand eines ganzen Fensters in einem Aufruf.</translation>
    </message>
</context>
<context>
    <name>CredentialPanel</name>
    <message>
        <source>Credential dialog</source>
        <translation>Anmeldedialog</translation>
    </message>
    <message>
        <source>Ask for &amp;Credentials...</source>
        <translation>Nach Anmelde&amp;daten fragen …</translation>
    </message>
    <message>
        <source>Offer to r&amp;emember</source>
        <translation>M&amp;erken anbieten</translation>
    </message>
    <message>
        <source>With the offer the dialog calls back at each OK with both fields filled in; the host asks by itself whether "Remember" is checked.</source>
        <translation>Mit dem Angebot meldet sich der Dialog bei jedem OK, bei dem beide Felder ausgefüllt sind; das Programm fragt selbst, ob „Merken“ angekreuzt ist.</translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation>Noch nicht gefragt.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>User: %1.</source>
        <translation>Benutzer: %1.</translation>
    </message>
    <message>
        <source>Characters of the password: %1.</source>
        <translation>Zeichen des Passworts: %1.</translation>
    </message>
    <message>
        <source>The callback was called.</source>
        <translation>Der Rückruf kam.</translation>
    </message>
    <message>
        <source>The callback was not called.</source>
        <translation>Der Rückruf kam nicht.</translation>
    </message>
    <message>
        <source>"Remember" is checked.</source>
        <translation>„Merken“ ist angekreuzt.</translation>
    </message>
    <message>
        <source>"Remember" is not checked.</source>
        <translation>„Merken“ ist nicht angekreuzt.</translation>
    </message>
</context>
<context>
    <name>DatabasePage</name>
    <message>
        <source>The panel for the place of a program's data: its internal database or a server. Switch on a real MariaDB server on this computer, choose what is to go wrong, and turn the pages of a million measurements in either database.</source>
        <translation>Das Formular für den Ort der Daten eines Programms: seine interne Datenbank oder ein Server. Schalten Sie einen echten MariaDB-Server auf diesem Rechner ein, wählen Sie, was schiefgehen soll, und blättern Sie in einer Million Messungen in einer der beiden Datenbanken.</translation>
    </message>
    <message>
        <source>Database panel</source>
        <translation>Datenbankeinstellungen</translation>
    </message>
</context>
<context>
    <name>DatabaseServerPanel</name>
    <message>
        <source>Local MariaDB server</source>
        <translation>Lokaler MariaDB-Server</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>S&amp;törung:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>No right to the database</source>
        <translation>Kein Recht an der Datenbank</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Stummer Server</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Niemand antwortet</translation>
    </message>
</context>
<context>
    <name>DatabaseSettingsPanel</name>
    <message>
        <source>Settings and dialog</source>
        <translation>Einstellungen und Dialog</translation>
    </message>
    <message>
        <source>S&amp;how Settings</source>
        <translation>Einstellungen &amp;zeigen</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>Sp&amp;eichern</translation>
    </message>
    <message>
        <source>As&amp;k...</source>
        <translation>Fra&amp;gen …</translation>
    </message>
    <message>
        <source>Settings of the database</source>
        <translation>Einstellungen der Datenbank</translation>
    </message>
    <message>
        <source>Where to Keep the Measurements</source>
        <translation>Wo die Messungen liegen sollen</translation>
    </message>
    <message>
        <source>As they stand in the panel, whether they work or not.</source>
        <translation>Wie sie im Formular stehen, ob sie gelten oder nicht.</translation>
    </message>
    <message>
        <source>Saved: a connection can be opened.</source>
        <translation>Gespeichert: Eine Verbindung lässt sich öffnen.</translation>
    </message>
    <message>
        <source>Nothing to save: no connection can be opened.</source>
        <translation>Nichts zu speichern: Es lässt sich keine Verbindung öffnen.</translation>
    </message>
    <message>
        <source>Confirmed in the dialog: a connection can be opened.</source>
        <translation>Im Dialog bestätigt: Eine Verbindung lässt sich öffnen.</translation>
    </message>
    <message>
        <source>Cancelled, or no connection can be opened.</source>
        <translation>Abgebrochen, oder es lässt sich keine Verbindung öffnen.</translation>
    </message>
</context>
<context>
    <name>DictionaryView</name>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>DifferenceBarPanel</name>
    <message>
        <source>Differences of the pairs</source>
        <translation>Abstände der Paare</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Formel:</translation>
    </message>
    <message>
        <source>CIE76</source>
        <translation>CIE76</translation>
    </message>
    <message>
        <source>CIEDE2000</source>
        <translation>CIEDE2000</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>Paa&amp;re:</translation>
    </message>
    <message>
        <source>Same patches</source>
        <translation>Gleiche Felder</translation>
    </message>
    <message>
        <source>Different patches</source>
        <translation>Verschiedene Felder</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paare</translation>
    </message>
    <message>
        <source>Limit:</source>
        <translation>Grenzwert:</translation>
    </message>
    <message>
        <source>%1 of %2 pairs are below the limit of %3. The mean is %4, and %5 % of the pairs are below it; the largest difference is %6.</source>
        <translation>%1 von %2 Paaren liegen unter dem Grenzwert %3. Der Mittelwert ist %4, und %5 % der Paare liegen darunter; der größte Abstand ist %6.</translation>
    </message>
</context>
<context>
    <name>DifferenceLegend</name>
    <message>
        <source>Colour difference by CIEDE2000. Up to %1: close.</source>
        <translation>Farbabstand nach CIEDE2000. Bis %1: gering.</translation>
    </message>
    <message>
        <source>Colours of the difference</source>
        <translation>Farben des Abstands</translation>
    </message>
</context>
<context>
    <name>DisabledSpinBoxPanel</name>
    <message>
        <source>Spin boxes that are disabled</source>
        <translation>Deaktivierte Drehfelder</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>%1, enabled</source>
        <translation>%1, aktiviert</translation>
    </message>
    <message>
        <source>%1, disabled</source>
        <translation>%1, deaktiviert</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>&amp;Tauschen</translation>
    </message>
</context>
<context>
    <name>DragDropEmissions</name>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Signals o&amp;f the page: %1</source>
        <translation>Si&amp;gnale der Seite: %1</translation>
    </message>
    <message>
        <source>Signals of the page</source>
        <translation>Signale der Seite</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>DragDropPage</name>
    <message>
        <source>A field that takes files dropped from here or from any program, and folders that are sorted by dragging, in two views that stay in step.</source>
        <translation>Ein Feld, auf das sich Dateien von hier oder aus jedem Programm ziehen lassen, und Ordner, die durch Ziehen sortiert werden, in zwei Ansichten, die im Gleichschritt bleiben.</translation>
    </message>
</context>
<context>
    <name>DriveManagerPanel</name>
    <message>
        <source>Manager window</source>
        <translation>Fenster der Verwaltung</translation>
    </message>
    <message>
        <source>S&amp;hare:</source>
        <translation>Frei&amp;gabe:</translation>
    </message>
    <message>
        <source>Add &amp;Drive</source>
        <translation>&amp;Laufwerk hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;move Added Drives</source>
        <translation>&amp;Hinzugefügte entfernen</translation>
    </message>
    <message>
        <source>Show F&amp;older</source>
        <translation>&amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>Check "Enabled", and all active drives in the list are connected, your own too. A connected drive is a link in "%1". The editor knows no port: a drive that you type in or edit leads to the standard port 445, not to the server above. Added drives are removed when the gallery ends; one that you have edited is yours, and stays.</source>
        <translation>Kreuzen Sie „Aktiviert“ an, und alle aktiven Laufwerke der Liste werden verbunden, auch Ihre eigenen. Ein verbundenes Laufwerk ist ein Verweis in „%1“. Der Editor kennt keinen Port: Ein Laufwerk, das Sie eingeben oder bearbeiten, führt zum Standardport 445, nicht zum Server oben. Hinzugefügte Laufwerke werden beim Beenden der Galerie entfernt; eines, das Sie bearbeitet haben, gehört Ihnen und bleibt.</translation>
    </message>
    <message>
        <source>Added: %1.</source>
        <translation>Hinzugefügt: %1.</translation>
    </message>
    <message>
        <source>Added: %1. Check "Enabled" to have it connected.</source>
        <translation>Hinzugefügt: %1. Kreuzen Sie „Aktiviert“ an, damit es verbunden wird.</translation>
    </message>
    <message>
        <source>%1 is yours now, and leads to port %2: the editor knows no port. Remove it with "-".</source>
        <translation>%1 gehört jetzt Ihnen und führt zu Port %2: Der Editor kennt keinen Port. Entfernen Sie es mit „-“.</translation>
    </message>
    <message>
        <source>All drive letters are taken.</source>
        <translation>Alle Laufwerksbuchstaben sind vergeben.</translation>
    </message>
    <message>
        <source>No drive has been connected yet: there is no folder "%1".</source>
        <translation>Noch wurde kein Laufwerk verbunden: Es gibt keinen Ordner „%1“.</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>Kein Programm zeigt den Ordner „%1“.</translation>
    </message>
</context>
<context>
    <name>DriveSessionPanel</name>
    <message>
        <source>Lo&amp;g of the drives:</source>
        <translation>&amp;Protokoll der Laufwerke:</translation>
    </message>
    <message>
        <source>S&amp;ignals of the manager:</source>
        <translation>S&amp;ignale der Verwaltung:</translation>
    </message>
</context>
<context>
    <name>DrivesPage</name>
    <message>
        <source>Drives of file servers that a program keeps connected. Switch on a real Samba server on this computer, choose what is to go wrong, add its drives to the list, and see how they stand.</source>
        <translation>Laufwerke von Dateiservern, die ein Programm verbunden hält. Schalten Sie einen echten Samba-Server auf diesem Rechner ein, wählen Sie, was schiefgehen soll, fügen Sie seine Laufwerke zur Liste hinzu und sehen Sie, wie es um sie steht.</translation>
    </message>
</context>
<context>
    <name>EmbeddingPanel</name>
    <message>
        <source>OK was clicked, and the dialog stays in the page.</source>
        <translation>OK wurde angeklickt, und der Dialog bleibt auf der Seite.</translation>
    </message>
    <message>
        <source>OK closed the window; its colour was taken over.</source>
        <translation>OK hat das Fenster geschlossen; seine Farbe wurde übernommen.</translation>
    </message>
    <message>
        <source>Cancel closed the window; the colour stays as it was.</source>
        <translation>„Abbrechen“ hat das Fenster geschlossen; die Farbe bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>A dialog in two places</source>
        <translation>Ein Dialog an zwei Orten</translation>
    </message>
    <message>
        <source>Part of the page, the dialog is not ended by its buttons. As a window it is, and hands its colour over.</source>
        <translation>Als Teil der Seite endet der Dialog nicht durch seine Schaltflächen. Als Fenster endet er und gibt seine Farbe weiter.</translation>
    </message>
    <message>
        <source>Open as &amp;Window</source>
        <translation>Als &amp;Fenster öffnen</translation>
    </message>
</context>
<context>
    <name>EmissionList</name>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
</context>
<context>
    <name>EncodedTextFile</name>
    <message>
        <source>There is no codec "%1".</source>
        <translation>Es gibt keinen Codec „%1“.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Sie kann nicht gelesen werden: %1.</translation>
    </message>
</context>
<context>
    <name>EncodingPanel</name>
    <message>
        <source>Text File</source>
        <translation>Textdatei</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Textdateien (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Default encoding</source>
        <translation>Standardkodierung</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>Sp&amp;eichern</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>La&amp;den</translation>
    </message>
    <message>
        <source>&amp;Text file:</source>
        <translation>&amp;Textdatei:</translation>
    </message>
    <message>
        <source>Example in UTF-8</source>
        <translation>Beispiel in UTF-8</translation>
    </message>
    <message>
        <source>Example in ISO-8859-1</source>
        <translation>Beispiel in ISO-8859-1</translation>
    </message>
    <message>
        <source>Choose &amp;File...</source>
        <translation>Datei &amp;wählen …</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>Text der Datei</translation>
    </message>
    <message>
        <source>The file is not shown. %1</source>
        <translation>Die Datei wird nicht gezeigt. %1</translation>
    </message>
    <message>
        <source>Bytes read as %1: %2.</source>
        <translation>Als %1 gelesene Bytes: %2.</translation>
    </message>
    <message>
        <source>Places that this encoding cannot read: %1.</source>
        <translation>Stellen, die diese Kodierung nicht lesen kann: %1.</translation>
    </message>
    <message>
        <source>The rest of the file is not shown.</source>
        <translation>Der Rest der Datei wird nicht gezeigt.</translation>
    </message>
</context>
<context>
    <name>ErrorBoxPanel</name>
    <message>
        <source>Show it</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Short:</source>
        <translation>Kurz:</translation>
    </message>
    <message>
        <source>With details:</source>
        <translation>Mit Einzelheiten:</translation>
    </message>
    <message>
        <source>a line for each nested error</source>
        <translation>eine Zeile je verschachteltem Fehler</translation>
    </message>
    <message>
        <source>nested errors folded away</source>
        <translation>verschachtelte Fehler eingeklappt</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Information</translation>
    </message>
    <message>
        <source>&amp;Question</source>
        <translation>&amp;Frage</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>&amp;Warnung</translation>
    </message>
    <message>
        <source>&amp;Critical</source>
        <translation>&amp;Kritisch</translation>
    </message>
    <message>
        <source>In&amp;formation</source>
        <comment>with details</comment>
        <translation>Infor&amp;mation</translation>
    </message>
    <message>
        <source>Q&amp;uestion</source>
        <comment>with details</comment>
        <translation>Fra&amp;ge</translation>
    </message>
    <message>
        <source>War&amp;ning</source>
        <comment>with details</comment>
        <translation>War&amp;nung</translation>
    </message>
    <message>
        <source>C&amp;ritical</source>
        <comment>with details</comment>
        <translation>K&amp;ritisch</translation>
    </message>
    <message>
        <source>%1, short</source>
        <translation>%1, kurz</translation>
    </message>
    <message>
        <source>%1, with details</source>
        <translation>%1, mit Einzelheiten</translation>
    </message>
</context>
<context>
    <name>ErrorComposer</name>
    <message>
        <source>Read a File as a Colour Profile</source>
        <translation>Eine Datei als Farbprofil lesen</translation>
    </message>
    <message>
        <source>Compose an error</source>
        <translation>Einen Fehler zusammenstellen</translation>
    </message>
    <message>
        <source>E&amp;xample:</source>
        <translation>Beis&amp;piel:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen …</translation>
    </message>
    <message>
        <source>Reads another file as a colour profile.</source>
        <translation>Liest eine andere Datei als Farbprofil.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Without a title the domain stands in</source>
        <translation>Ohne Titel steht der Bereich dafür</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>D&amp;omain:</source>
        <translation>B&amp;ereich:</translation>
    </message>
    <message>
        <source>N&amp;ested errors:</source>
        <translation>&amp;Verschachtelte Fehler:</translation>
    </message>
    <message>
        <source>One a line; two blanks put it below the line above</source>
        <translation>Einer je Zeile; zwei Leerzeichen stellen ihn unter die Zeile darüber</translation>
    </message>
    <message>
        <source>Com&amp;plete text:</source>
        <translation>Vo&amp;llständiger Text:</translation>
    </message>
    <message>
        <source>An error with nothing to say opens no box.</source>
        <translation>Ein Fehler, der nichts zu sagen hat, öffnet kein Fenster.</translation>
    </message>
</context>
<context>
    <name>ErrorExamples</name>
    <message>
        <source>The password of the measuring device cannot be read.</source>
        <translation>Das Passwort des Messgeräts kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A file read as a colour profile</source>
        <translation>Eine Datei, als Farbprofil gelesen</translation>
    </message>
    <message>
        <source>A password that was never enciphered</source>
        <translation>Ein Passwort, das nie verschlüsselt wurde</translation>
    </message>
    <message>
        <source>Reasons without a description</source>
        <translation>Gründe ohne Beschreibung</translation>
    </message>
    <message>
        <source>Nothing to report</source>
        <translation>Nichts zu melden</translation>
    </message>
    <message>
        <source>Colour Profile</source>
        <translation>Farbprofil</translation>
    </message>
</context>
<context>
    <name>ErrorsPage</name>
    <message>
        <source>How a failure reaches the user: an error with the errors that led to it, the boxes that show it, and the manual.</source>
        <translation>Wie ein Fehlschlag den Benutzer erreicht: ein Fehler mit den Fehlern, die zu ihm führten, die Meldungsfenster dafür und das Handbuch.</translation>
    </message>
</context>
<context>
    <name>FeedbackFieldsPanel</name>
    <message>
        <source>Extra fields of the program</source>
        <translation>Zusätzliche Felder des Programms</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Add F&amp;ield</source>
        <translation>Feld &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;move Field</source>
        <translation>Feld &amp;entfernen</translation>
    </message>
</context>
<context>
    <name>FeedbackFormPanel</name>
    <message>
        <source>Press room</source>
        <translation>Drucksaal</translation>
    </message>
    <message>
        <source>Colour differences</source>
        <translation>Farbabstände</translation>
    </message>
    <message>
        <source>The limit of the difference bar could be typed as well.</source>
        <translation>Der Grenzwert des Farbabstandsbalkens könnte sich auch eintippen lassen.</translation>
    </message>
    <message>
        <source>Feedback form</source>
        <translation>Feedback-Formular</translation>
    </message>
    <message>
        <source>Open as &amp;Dialog</source>
        <translation>Als &amp;Dialog öffnen</translation>
    </message>
    <message>
        <source>A note goes to port 5050 of this computer, and nowhere else; the service takes it there while it is on. The form waits for the answer as long as it takes, and nothing can be pressed meanwhile.
It tells success only if part of the answer still comes in while it reads. An answer that has come whole, as from this computer, is not looked at: the form then says that the service may be unavailable, for an accepted note too. What has arrived stands in the session.</source>
        <translation>Eine Nachricht geht an Port 5050 dieses Rechners und nirgendwohin sonst; dort nimmt sie der Dienst an, solange er an ist. Das Formular wartet auf die Antwort, so lange es dauert, und inzwischen lässt sich nichts drücken.
Erfolg meldet es nur, wenn beim Lesen noch ein Teil der Antwort eintrifft. Eine Antwort, die schon ganz da ist, wie von diesem Rechner, sieht es nicht an: Dann sagt das Formular, der Dienst sei vielleicht nicht erreichbar, auch bei einer angenommenen Nachricht. Was angekommen ist, steht in der Sitzung.</translation>
    </message>
</context>
<context>
    <name>FeedbackPage</name>
    <message>
        <source>The form with which a user writes to the makers of a program. Switch on a real feedback service on this computer, choose what it answers, and submit a note.</source>
        <translation>Das Formular, mit dem Benutzer den Herstellern eines Programms schreiben. Schalten Sie einen echten Feedback-Dienst auf diesem Rechner ein, wählen Sie, was er antwortet, und senden Sie eine Nachricht ab.</translation>
    </message>
</context>
<context>
    <name>FeedbackServicePanel</name>
    <message>
        <source>Local feedback service</source>
        <translation>Lokaler Feedback-Dienst</translation>
    </message>
    <message>
        <source>Ans&amp;wer:</source>
        <translation>Ant&amp;wort:</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Angenommen</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>Accepted after %1 seconds</source>
        <translation>Angenommen nach %1 Sekunden</translation>
    </message>
    <message>
        <source>Answer that breaks off</source>
        <translation>Antwort, die abbricht</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>Antwort, die kein JSON ist</translation>
    </message>
    <message>
        <source>Status 500</source>
        <translation>Status 500</translation>
    </message>
</context>
<context>
    <name>FeedbackSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>Was der Dienst &amp;bekam:</translation>
    </message>
    <message>
        <source>Signals of t&amp;he form and its dialog:</source>
        <translation>Si&amp;gnale des Formulars und seines Dialogs:</translation>
    </message>
</context>
<context>
    <name>FileDigests</name>
    <message>
        <source>Looking for files</source>
        <translation>Dateien werden gesucht</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
</context>
<context>
    <name>FileDropPanel</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Files of the &amp;gallery:</source>
        <translation>Date&amp;ien der Galerie:</translation>
    </message>
    <message>
        <source>Files of the gallery</source>
        <translation>Dateien der Galerie</translation>
    </message>
    <message>
        <source>&amp;Put Into Field</source>
        <translation>Ins &amp;Feld setzen</translation>
    </message>
    <message>
        <source>&amp;Dropped file:</source>
        <translation>Abgelegte &amp;Datei:</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Dateien hier ablegen</translation>
    </message>
    <message>
        <source>Nothing dropped yet</source>
        <translation>Noch nichts abgelegt</translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation>Abgelegt: %1</translation>
    </message>
    <message>
        <source>Dropped: %1, not on this computer: %2</source>
        <translation>Abgelegt: %1, davon nicht auf diesem Rechner: %2</translation>
    </message>
</context>
<context>
    <name>FolderDropPanel</name>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>In your own &amp;order:</source>
        <translation>In &amp;eigener Ordnung:</translation>
    </message>
    <message>
        <source>In alphab&amp;etical order:</source>
        <translation>In alpha&amp;betischer Ordnung:</translation>
    </message>
    <message>
        <source>Folders in your own order</source>
        <translation>Ordner in eigener Ordnung</translation>
    </message>
    <message>
        <source>Folders in alphabetical order</source>
        <translation>Ordner in alphabetischer Ordnung</translation>
    </message>
    <message>
        <source>&amp;May be dropped:</source>
        <translation>Darf abgelegt &amp;werden:</translation>
    </message>
    <message>
        <source>Onto folders and between them</source>
        <translation>Auf Ordnern und dazwischen</translation>
    </message>
    <message>
        <source>Onto folders only</source>
        <translation>Nur auf Ordnern</translation>
    </message>
    <message>
        <source>Between folders only</source>
        <translation>Nur zwischen Ordnern</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>En&amp;tfernen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation>&amp;Hinein</translation>
    </message>
    <message>
        <source>Move Ou&amp;t</source>
        <translation>He&amp;raus</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>New folder %1</source>
        <translation>Neuer Ordner %1</translation>
    </message>
    <message>
        <source>“%1” is removed</source>
        <translation>„%1“ ist entfernt</translation>
    </message>
    <message>
        <source>“%1” is moved</source>
        <translation>„%1“ ist verschoben</translation>
    </message>
    <message>
        <source>“%1” cannot move there</source>
        <translation>„%1“ kann dorthin nicht</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Papers</source>
        <translation>Papiere</translation>
    </message>
    <message>
        <source>Uncoated</source>
        <translation>Ungestrichen</translation>
    </message>
    <message>
        <source>Coated, glossy</source>
        <translation>Gestrichen, glänzend</translation>
    </message>
    <message>
        <source>Coated, matt</source>
        <translation>Gestrichen, matt</translation>
    </message>
    <message>
        <source>Proofs</source>
        <translation>Proofs</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>Laptops</source>
        <translation>Laptops</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Testtafeln</translation>
    </message>
    <message>
        <source>24 colours</source>
        <translation>24 Farben</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>Graustufen</translation>
    </message>
</context>
<context>
    <name>FolderJobBar</name>
    <message>
        <source>Relative paths start at the program's folder; several paths are separated by "%1".</source>
        <translation>Relative Pfade beginnen im Ordner des Programms; mehrere Pfade werden durch „%1“ getrennt.</translation>
    </message>
</context>
<context>
    <name>FolderLogEntry</name>
    <message>
        <source>The folder is empty.</source>
        <translation>Der Ordner ist leer.</translation>
    </message>
    <message>
        <source>Broken link: %1</source>
        <translation>Verwaister Verweis: %1</translation>
    </message>
    <message>
        <source>Very long name: %1</source>
        <translation>Sehr langer Name: %1</translation>
    </message>
    <message>
        <source>No right to read: %1</source>
        <translation>Kein Leserecht: %1</translation>
    </message>
    <message>
        <source>No right to list the folder.</source>
        <translation>Kein Recht, den Ordner aufzulisten.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Den Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Das ist eine Datei, kein Ordner.</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>Gesamtgröße: %1</translation>
    </message>
    <message>
        <source>Changed last: %1</source>
        <translation>Zuletzt geändert: %1</translation>
    </message>
    <message>
        <source>Further findings are not listed.</source>
        <translation>Weitere Funde werden nicht aufgeführt.</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Ordner %1</translation>
    </message>
    <message>
        <source>Scan finished after %1 s</source>
        <translation>Suche nach %1 s beendet</translation>
    </message>
    <message>
        <source>Scan cancelled after %1 s</source>
        <translation>Suche nach %1 s abgebrochen</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Ordner: %1</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>Warnungen: %1</translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation>Fehler: %1</translation>
    </message>
</context>
<context>
    <name>FolderScanPanel</name>
    <message>
        <source>Folder scan with a spinner</source>
        <translation>Ordnersuche mit Spinner</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen …</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>Suche s&amp;tarten</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>Ordner durchsuchen</translation>
    </message>
    <message>
        <source>Spinner si&amp;ze:</source>
        <translation>&amp;Größe des Spinners:</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Changed last</source>
        <translation>Zuletzt geändert</translation>
    </message>
    <message>
        <source>Largest folders</source>
        <translation>Größte Ordner</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3 so far</source>
        <translation>%1 Ordner, %2 Dateien, %3 bis jetzt</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3</source>
        <translation>%1 Ordner, %2 Dateien, %3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3; cancelled</source>
        <translation>%1 Ordner, %2 Dateien, %3; abgebrochen</translation>
    </message>
</context>
<context>
    <name>FoldingPanel</name>
    <message>
        <source>Folding group box</source>
        <translation>Faltbare Gruppe</translation>
    </message>
    <message>
        <source>C&amp;onversion</source>
        <translation>K&amp;onvertierung</translation>
    </message>
    <message>
        <source>Rendering intent:</source>
        <translation>Rendering Intent:</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perzeptiv</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Relativ farbmetrisch</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Absolut farbmetrisch</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>Tiefen&amp;kompensierung</translation>
    </message>
    <message>
        <source>Simulate the paper</source>
        <translation>Papier simulieren</translation>
    </message>
    <message>
        <source>The black point counts for relative colorimetric alone.</source>
        <translation>Der Schwarzpunkt zählt nur bei relativ farbmetrisch.</translation>
    </message>
    <message>
        <source>&amp;Keep the note hidden</source>
        <translation>&amp;Hinweis verborgen halten</translation>
    </message>
    <message>
        <source>black point compensated</source>
        <translation>Schwarzpunkt kompensiert</translation>
    </message>
    <message>
        <source>paper simulated</source>
        <translation>Papier simuliert</translation>
    </message>
</context>
<context>
    <name>FontsPanel</name>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>There are no fonts in %1</source>
        <translation>Es gibt keine Schriften in %1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>family and file</comment>
        <translation>%1, aus %2</translation>
    </message>
    <message>
        <source>This file is no font.</source>
        <translation>Diese Datei ist keine Schrift.</translation>
    </message>
    <message>
        <source>Specimen of %1</source>
        <translation>Probe von %1</translation>
    </message>
</context>
<context>
    <name>FtpConfigurationPanel</name>
    <message>
        <source>FTP panel</source>
        <translation>FTP-Einstellungen</translation>
    </message>
    <message>
        <source>Show stat&amp;us</source>
        <translation>Stat&amp;us zeigen</translation>
    </message>
    <message>
        <source>Show &amp;box "Active"</source>
        <translation>&amp;Kästchen „Aktiv“ zeigen</translation>
    </message>
    <message>
        <source>Show box "&amp;Erase"</source>
        <translation>Kästchen „&amp;Löschen“ zeigen</translation>
    </message>
    <message>
        <source>&amp;Importer</source>
        <translation>&amp;Import</translation>
    </message>
</context>
<context>
    <name>FtpPage</name>
    <message>
        <source>The panel for an FTP or SFTP server to import from or to export to. Switch on a real server on this computer, choose what is to go wrong, and check the connection.</source>
        <translation>Das Formular für einen FTP- oder SFTP-Server, von dem importiert oder zu dem exportiert wird. Schalten Sie einen echten Server auf diesem Rechner ein, wählen Sie, was schiefgehen soll, und prüfen Sie die Verbindung.</translation>
    </message>
</context>
<context>
    <name>FtpServerPanel</name>
    <message>
        <source>Local server</source>
        <translation>Lokaler Server</translation>
    </message>
    <message>
        <source>Protoc&amp;ol:</source>
        <translation>Pr&amp;otokoll:</translation>
    </message>
    <message>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <source>SFTP</source>
        <translation>SFTP</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>S&amp;törung:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Stummer Server</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Niemand antwortet</translation>
    </message>
</context>
<context>
    <name>FtpSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>Was der Server &amp;bekam:</translation>
    </message>
    <message>
        <source>Signals of t&amp;he panel:</source>
        <translation>Si&amp;gnale des Formulars:</translation>
    </message>
</context>
<context>
    <name>FtpSettingsPanel</name>
    <message>
        <source>Settings and dialogs</source>
        <translation>Einstellungen und Dialoge</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Einstellungen &amp;zeigen</translation>
    </message>
    <message>
        <source>I&amp;mport Dialog...</source>
        <translation>I&amp;mport-Dialog …</translation>
    </message>
    <message>
        <source>E&amp;xport Dialog...</source>
        <translation>E&amp;xport-Dialog …</translation>
    </message>
    <message>
        <source>Where the jobs come from</source>
        <translation>Woher die Aufträge kommen</translation>
    </message>
    <message>
        <source>Where the jobs go to</source>
        <translation>Wohin die Aufträge gehen</translation>
    </message>
</context>
<context>
    <name>GalleryAboutWindow</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommon-Galerie</translation>
    </message>
    <message>
        <source>with Qt %1</source>
        <translation>mit Qt %1</translation>
    </message>
</context>
<context>
    <name>GalleryCommandLine</name>
    <message>
        <source>There is no page "%1". The pages are: %2.</source>
        <translation>Es gibt keine Seite „%1“. Die Seiten sind: %2.</translation>
    </message>
    <message>
        <source>There is no style "%1". The styles are: %2.</source>
        <translation>Es gibt keinen Stil „%1“. Die Stile sind: %2.</translation>
    </message>
    <message>
        <source>There is no language "%1". The languages are: %2.</source>
        <translation>Es gibt keine Sprache „%1“. Die Sprachen sind: %2.</translation>
    </message>
    <message>
        <source>Shows what the TXGUICommon library has to offer.</source>
        <translation>Zeigt, was die Bibliothek TXGUICommon zu bieten hat.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Zeigt diese Hilfe und endet.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Open at this page: %1.</source>
        <translation>Öffnet diese Seite: %1.</translation>
    </message>
    <message>
        <source>file|folder</source>
        <translation>Datei|Ordner</translation>
    </message>
    <message>
        <source>Save a picture of the named page as this PNG file, or of every page into this folder, print the paths and exit.</source>
        <translation>Speichert ein Bild der genannten Seite als diese PNG-Datei oder ein Bild jeder Seite in diesen Ordner, gibt die Pfade aus und endet.</translation>
    </message>
    <message>
        <source>Widget style: %1.</source>
        <translation>Stil der Widgets: %1.</translation>
    </message>
    <message>
        <source>Colours.</source>
        <translation>Farben.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Kürzel</translation>
    </message>
    <message>
        <source>Language of the texts, as en.</source>
        <translation>Sprache der Texte, etwa en.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>Unexpected argument "%1".</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>There is no palette "%1". The palettes are: light, dark, contrast.</source>
        <translation>Es gibt keine Palette „%1“. Die Paletten sind: light, dark, contrast.</translation>
    </message>
</context>
<context>
    <name>GalleryGrabber</name>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>Der Ordner „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The page "%1" was not ready after %2 seconds.</source>
        <translation>Die Seite „%1“ war nach %2 Sekunden nicht fertig.</translation>
    </message>
    <message>
        <source>The picture "%1" cannot be written: %2.</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>GalleryHeader</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommon-Galerie</translation>
    </message>
    <message>
        <source>P&amp;alette</source>
        <translation>P&amp;alette</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Stil</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>Spra&amp;che</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Über …</translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <comment>key of the button About...</comment>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>About this program (%1)</source>
        <translation>Über dieses Programm (%1)</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
</context>
<context>
    <name>GalleryPages</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Zugang</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Bedienelemente</translation>
    </message>
    <message>
        <source>Lists and delegates</source>
        <translation>Listen und Delegaten</translation>
    </message>
    <message>
        <source>Selection bar</source>
        <translation>Auswahlleiste</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Mail</translation>
    </message>
    <message>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Laufwerke</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Colour difference</source>
        <translation>Farbabstand</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Feedback</translation>
    </message>
    <message>
        <source>Language and style</source>
        <translation>Sprache und Stil</translation>
    </message>
    <message>
        <source>Busy and progress</source>
        <translation>Arbeit und Fortschritt</translation>
    </message>
    <message>
        <source>Containers and labels</source>
        <translation>Container und Label</translation>
    </message>
    <message>
        <source>Drag and drop</source>
        <translation>Ziehen und Ablegen</translation>
    </message>
    <message>
        <source>Web interface</source>
        <translation>Weboberfläche</translation>
    </message>
    <message>
        <source>Trigger and encoding</source>
        <translation>Auslöser und Kodierung</translation>
    </message>
    <message>
        <source>Splash and About</source>
        <translation>Startbild und Info</translation>
    </message>
</context>
<context>
    <name>GallerySplash</name>
    <message>
        <source>Loading the fonts...</source>
        <translation>Schriften werden geladen …</translation>
    </message>
    <message>
        <source>Loading the pages...</source>
        <translation>Seiten werden geladen …</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>%1 - TXGUICommon Gallery</source>
        <translation>%1 – TXGUICommon-Galerie</translation>
    </message>
</context>
<context>
    <name>ImageViewBar</name>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>The whole picture in each zone, also when the window changes</source>
        <translation>Das ganze Bild in jedem Bereich, auch wenn sich das Fenster ändert</translation>
    </message>
    <message>
        <source>S&amp;hare</source>
        <translation>Auf&amp;teilen</translation>
    </message>
    <message>
        <source>Each zone's share of the width: a half with two pictures, also when the window changes</source>
        <translation>Der Anteil jedes Bereichs an der Breite: bei zwei Bildern die Hälfte, auch wenn sich das Fenster ändert</translation>
    </message>
    <message>
        <source>1&amp;00 %</source>
        <translation>1&amp;00 %</translation>
    </message>
    <message>
        <source>A pixel of the picture as one of the screen</source>
        <translation>Ein Pixel des Bilds als eines des Bildschirms</translation>
    </message>
    <message>
        <source>Scal&amp;e:</source>
        <translation>&amp;Maßstab:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>&amp;Beschriftung</translation>
    </message>
    <message>
        <source>Names of the pictures, outlines and numbers of the patches</source>
        <translation>Namen der Bilder, Umrisse und Nummern der Felder</translation>
    </message>
    <message>
        <source>&amp;Marker</source>
        <translation>Ma&amp;rke</translation>
    </message>
    <message>
        <source>A crosshair at the same place in all pictures</source>
        <translation>Ein Fadenkreuz an derselben Stelle in allen Bildern</translation>
    </message>
</context>
<context>
    <name>ImagesPage</name>
    <message>
        <source>Pictures side by side at one scale and position: a colour chart, the same chart in a simulated print, and how the two differ. Drag them, and turn the wheel to look closer.</source>
        <translation>Bilder nebeneinander in einem Maßstab und an einer Stelle: eine Farbtafel, dieselbe Tafel in einem simulierten Druck, und wie sich die beiden unterscheiden. Ziehen Sie sie, und drehen Sie das Mausrad, um genauer hinzusehen.</translation>
    </message>
    <message>
        <source>Pictures side by side</source>
        <translation>Bilder nebeneinander</translation>
    </message>
    <message>
        <source>Just a moment...</source>
        <translation>Einen Moment …</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Tafel</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The print is computed: paper that is not white, ink that is not black, dots that grow by %1 percent and a trace of their screen. It shows what these four do, and is no proof of what a press would print.</source>
        <translation>Der Druck ist berechnet: Papier, das nicht weiß ist, Farbe, die nicht schwarz ist, Punkte, die um %1 Prozent wachsen, und eine Spur ihres Rasters. Er zeigt, was diese vier bewirken, und ist kein Proof dessen, was eine Maschine drucken würde.</translation>
    </message>
    <message>
        <source>The first %1 of %2 files.</source>
        <translation>Die ersten %1 von %2 Dateien.</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>The pictures differ in size: %1 pixels. All are laid out by the first.</source>
        <translation>Die Bilder sind verschieden groß: %1 Pixel. Alle richten sich nach dem ersten.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>What was shown before stays.</source>
        <translation>Was vorher gezeigt wurde, bleibt.</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Sie kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
</context>
<context>
    <name>JsonObjectReader</name>
    <message>
        <source>It holds no JSON object.</source>
        <translation>Darin steht kein JSON-Objekt.</translation>
    </message>
    <message>
        <source>"%1" is not known.</source>
        <translation>„%1“ ist nicht bekannt.</translation>
    </message>
    <message>
        <source>"%1" is no text.</source>
        <translation>„%1“ ist kein Text.</translation>
    </message>
    <message>
        <source>"%1" is neither true nor false.</source>
        <translation>„%1“ ist weder true noch false.</translation>
    </message>
    <message>
        <source>"%1" is no number from %2 to %3.</source>
        <translation>„%1“ ist keine Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>"%1" is no whole number.</source>
        <translation>„%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>"%1" is no object.</source>
        <translation>„%1“ ist kein Objekt.</translation>
    </message>
    <message>
        <source>"%1" is missing.</source>
        <translation>„%1“ fehlt.</translation>
    </message>
</context>
<context>
    <name>JsonText</name>
    <message>
        <source>It is empty.</source>
        <translation>Der Text ist leer.</translation>
    </message>
    <message>
        <source>It is no JSON (line %1: %2).</source>
        <translation>Der Text ist kein JSON (Zeile %1: %2).</translation>
    </message>
    <message>
        <source>It is too large: more than %1.</source>
        <translation>Der Text ist zu groß: mehr als %1.</translation>
    </message>
    <message>
        <source>It holds too many values: more than %1.</source>
        <translation>Der Text enthält zu viele Werte: mehr als %1.</translation>
    </message>
</context>
<context>
    <name>LabColourDialog</name>
    <message>
        <source>On screen %1</source>
        <translation>Auf dem Bildschirm %1</translation>
    </message>
    <message>
        <source>Beyond the screen; shown as %1</source>
        <translation>Außerhalb des Bildschirms; gezeigt als %1</translation>
    </message>
    <message>
        <source>Mix a Colour</source>
        <translation>Eine Farbe mischen</translation>
    </message>
    <message>
        <source>Li&amp;ghtness L*:</source>
        <translation>Helli&amp;gkeit L*:</translation>
    </message>
    <message>
        <source>Gree&amp;n-red a*:</source>
        <translation>Grü&amp;n–Rot a*:</translation>
    </message>
    <message>
        <source>&amp;Blue-yellow b*:</source>
        <translation>&amp;Blau–Gelb b*:</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>Grün bis Rot</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>Blau bis Gelb</translation>
    </message>
</context>
<context>
    <name>LabPlanePanel</name>
    <message>
        <source>Square layout and rotated labels</source>
        <translation>Quadratisches Layout und gedrehte Beschriftungen</translation>
    </message>
    <message>
        <source>b*: blue to yellow</source>
        <translation>b*: Blau bis Gelb</translation>
    </message>
    <message>
        <source>a*: green to red</source>
        <translation>a*: Grün bis Rot</translation>
    </message>
    <message>
        <source>Lig&amp;htness:</source>
        <translation>He&amp;lligkeit:</translation>
    </message>
    <message>
        <source>&amp;Vertical axis:</source>
        <translation>&amp;Vertikale Achse:</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Aufrecht</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>Rechtsherum</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>Linksherum</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>Rän&amp;der:</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Pu&amp;t Back</source>
        <translation>Z&amp;urücklegen</translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation>Hera&amp;usnehmen</translation>
    </message>
    <message>
        <source>Colours of lightness %1, with the patches of the chart</source>
        <translation>Farben der Helligkeit %1 mit den Feldern der Farbtafel</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>How a program takes its language, its style sheet and its fonts from the files beside it.</source>
        <translation>Wie ein Programm seine Sprache, sein Stylesheet und seine Schriften aus den Dateien neben sich nimmt.</translation>
    </message>
</context>
<context>
    <name>LanguagePanel</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>&amp;Texts of the gallery:</source>
        <translation>&amp;Texte der Galerie:</translation>
    </message>
    <message>
        <source>Texts of the gallery</source>
        <translation>Texte der Galerie</translation>
    </message>
    <message>
        <source>&amp;Import Translation...</source>
        <translation>Übersetzung &amp;importieren …</translation>
    </message>
    <message>
        <source>There are no translations in %1</source>
        <translation>Es gibt keine Übersetzungen in %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>files in folder</comment>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Result 0: the file was copied.</source>
        <translation>Ergebnis 0: Die Datei wurde kopiert.</translation>
    </message>
    <message>
        <source>Result 1: the file was not copied.</source>
        <translation>Ergebnis 1: Die Datei wurde nicht kopiert.</translation>
    </message>
    <message>
        <source>Result 2: cancelled.</source>
        <translation>Ergebnis 2: abgebrochen.</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>What the library draws into lists, tables and trees, and its combo boxes.</source>
        <translation>Was die Bibliothek in Listen, Tabellen und Bäume zeichnet, und ihre Auswahlfelder.</translation>
    </message>
</context>
<context>
    <name>LocalMariaDbServer</name>
    <message>
        <source>the user has no name</source>
        <translation>der Benutzer hat keinen Namen</translation>
    </message>
    <message>
        <source>the database "%1" is the closed one</source>
        <translation>die Datenbank „%1“ ist die gesperrte</translation>
    </message>
</context>
<context>
    <name>LocalServer</name>
    <message>
        <source>no folder for the server: %1</source>
        <translation>kein Ordner für den Server: %1</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>%1 startet nicht: %2</translation>
    </message>
    <message>
        <source>%1 is not ready in time</source>
        <translation>%1 ist nicht rechtzeitig bereit</translation>
    </message>
    <message>
        <source>%1 ended before it was ready</source>
        <translation>%1 endete, bevor es bereit war</translation>
    </message>
    <message>
        <source>%1 told no port but "%2"</source>
        <translation>%1 nannte keinen Port, sondern „%2“</translation>
    </message>
</context>
<context>
    <name>LocalServerPanel</name>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>Ser&amp;ver:</translation>
    </message>
    <message>
        <source>&amp;Fill In the Panel</source>
        <translation>&amp;Felder ausfüllen</translation>
    </message>
    <message>
        <source>on, at %1</source>
        <translation>an, unter %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>Der Server ist nicht gestartet: %1</translation>
    </message>
    <message>
        <source>"./dev setup" installs what is needed.</source>
        <translation>„./dev setup“ installiert, was nötig ist.</translation>
    </message>
    <message>
        <source>The server has stopped by itself.</source>
        <translation>Der Server hat sich von selbst beendet.</translation>
    </message>
    <message>
        <source>The server has stopped by itself: %1</source>
        <translation>Der Server hat sich von selbst beendet: %1</translation>
    </message>
</context>
<context>
    <name>LocalUpdateService</name>
    <message>
        <source>no folder for the replies: %1</source>
        <translation>kein Ordner für die Antworten: %1</translation>
    </message>
</context>
<context>
    <name>LocalWebServer</name>
    <message>
        <source>there is no file %1</source>
        <translation>es gibt keine Datei %1</translation>
    </message>
    <message>
        <source>%1 is no file with a certificate</source>
        <translation>%1 ist keine Datei mit einem Zertifikat</translation>
    </message>
</context>
<context>
    <name>LockPanel</name>
    <message>
        <source>Lock of the user interface</source>
        <translation>Sperre der Oberfläche</translation>
    </message>
    <message>
        <source>The password is stored as</source>
        <translation>Das Passwort wird gespeichert als</translation>
    </message>
    <message>
        <source>MD5 &amp;digest</source>
        <translation>MD5-Prü&amp;fsumme</translation>
    </message>
    <message>
        <source>&amp;plain text</source>
        <translation>&amp;Klartext</translation>
    </message>
    <message>
        <source>Stored at the moment</source>
        <translation>Zurzeit gespeichert</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>&amp;Vergessen</translation>
    </message>
    <message>
        <source>Loc&amp;k...</source>
        <translation>Spe&amp;rren …</translation>
    </message>
    <message>
        <source>&amp;First Password...</source>
        <translation>&amp;Erstes Passwort …</translation>
    </message>
    <message>
        <source>C&amp;hange Password...</source>
        <translation>Passwort än&amp;dern …</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Locked with the stored password.</source>
        <translation>Mit dem gespeicherten Passwort gesperrt.</translation>
    </message>
    <message>
        <source>Locked with a new password, which is now stored.</source>
        <translation>Mit einem neuen Passwort gesperrt, das jetzt gespeichert ist.</translation>
    </message>
    <message>
        <source>Cancelled: nothing is locked, and what is stored stays.</source>
        <translation>Abgebrochen: Nichts ist gesperrt, und das Gespeicherte bleibt.</translation>
    </message>
    <message>
        <source>Cancelled after the password was changed: nothing is locked, and the new password is not kept.</source>
        <translation>Nach der Änderung des Passworts abgebrochen: Nichts ist gesperrt, und das neue Passwort wird nicht behalten.</translation>
    </message>
    <message>
        <source>The new password is stored.</source>
        <translation>Das neue Passwort ist gespeichert.</translation>
    </message>
    <message>
        <source>Cancelled: what is stored stays.</source>
        <translation>Abgebrochen: Das Gespeicherte bleibt.</translation>
    </message>
    <message>
        <source>The password is forgotten.</source>
        <translation>Das Passwort ist vergessen.</translation>
    </message>
    <message>
        <source>The stored password has been replaced by its digest.</source>
        <translation>Das gespeicherte Passwort wurde durch seine Prüfsumme ersetzt.</translation>
    </message>
    <message>
        <source>A digest cannot be turned back into the password: it is forgotten.</source>
        <translation>Aus einer Prüfsumme lässt sich das Passwort nicht zurückgewinnen: Es ist vergessen.</translation>
    </message>
    <message>
        <source>Unlocked with the right password.</source>
        <translation>Mit dem richtigen Passwort entsperrt.</translation>
    </message>
    <message>
        <source>The work area is open.</source>
        <translation>Der Arbeitsbereich ist offen.</translation>
    </message>
    <message>
        <source>No password has been set: the lock asks for a first one.</source>
        <translation>Es ist kein Passwort gesetzt: Die Sperre fragt nach einem ersten.</translation>
    </message>
</context>
<context>
    <name>LockedArea</name>
    <message>
        <source>Work area</source>
        <translation>Arbeitsbereich</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>The log of this very program, live: Qt's own messages, lines that the program prints, and a job that writes entries with sub-entries from several threads.</source>
        <translation>Das Protokoll dieses Programms, live: Meldungen von Qt, Zeilen, die das Programm ausgibt, und ein Auftrag, der aus mehreren Threads Einträge mit Untereinträgen schreibt.</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>Eine Zeile schreiben</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Information</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>&amp;Warnung</translation>
    </message>
    <message>
        <source>&amp;Error</source>
        <translation>&amp;Fehler</translation>
    </message>
    <message>
        <source>&amp;Qt Warning</source>
        <translation>&amp;Qt-Warnung</translation>
    </message>
    <message>
        <source>Live &amp;view:</source>
        <translation>&amp;Live-Ansicht:</translation>
    </message>
    <message>
        <source>&amp;Open Log Window</source>
        <translation>&amp;Protokollfenster öffnen</translation>
    </message>
    <message>
        <source>Live view of the log</source>
        <translation>Live-Ansicht des Protokolls</translation>
    </message>
    <message>
        <source>Some information, written by hand</source>
        <translation>Eine Information, von Hand geschrieben</translation>
    </message>
    <message>
        <source>A warning, written by hand</source>
        <translation>Eine Warnung, von Hand geschrieben</translation>
    </message>
    <message>
        <source>An error, written by hand</source>
        <translation>Ein Fehler, von Hand geschrieben</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2 Pixel, %3</translation>
    </message>
    <message>
        <source>Logo of the splash</source>
        <translation>Logo des Startbilds</translation>
    </message>
    <message>
        <source>Installed logo</source>
        <translation>Installiertes Logo</translation>
    </message>
    <message>
        <source>Copy that is kept</source>
        <translation>Aufbewahrte Kopie</translation>
    </message>
    <message>
        <source>Shown at the start</source>
        <translation>Beim Start gezeigt</translation>
    </message>
    <message>
        <source>&amp;Put In a Logo...</source>
        <translation>&amp;Logo einsetzen …</translation>
    </message>
    <message>
        <source>&amp;Remove Logo...</source>
        <translation>Logo &amp;entfernen …</translation>
    </message>
    <message>
        <source>Remove &amp;Copy...</source>
        <translation>&amp;Kopie entfernen …</translation>
    </message>
    <message>
        <source>Show Splas&amp;h</source>
        <translation>Startbild &amp;zeigen</translation>
    </message>
    <message>
        <source>Put In a Logo</source>
        <translation>Logo einsetzen</translation>
    </message>
    <message>
        <source>Remove the installed logo "%1"?</source>
        <translation>Das installierte Logo „%1“ entfernen?</translation>
    </message>
    <message>
        <source>Remove the copy "%1"?</source>
        <translation>Die Kopie „%1“ entfernen?</translation>
    </message>
    <message>
        <source>Click to close.</source>
        <translation>Klicken schließt das Bild.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>Es gibt keines.</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Es gibt noch keine.</translation>
    </message>
    <message>
        <source>Nothing: there is no picture.</source>
        <translation>Nichts: Es gibt kein Bild.</translation>
    </message>
    <message>
        <source>The installed logo.</source>
        <translation>Das installierte Logo.</translation>
    </message>
    <message>
        <source>The copy, since there is no installed logo.</source>
        <translation>Die Kopie, da kein Logo installiert ist.</translation>
    </message>
    <message>
        <source>The gallery's own picture.</source>
        <translation>Das eigene Bild der Galerie.</translation>
    </message>
</context>
<context>
    <name>MailPage</name>
    <message>
        <source>The panel for the settings of outgoing mail. Switch on a real mail server on this computer, choose what is to go wrong, and send a test mail to it.</source>
        <translation>Das Formular für die Einstellungen ausgehender Mails. Schalten Sie einen echten Mailserver auf diesem Rechner ein, wählen Sie, was schiefgehen soll, und senden Sie ihm eine Testmail.</translation>
    </message>
    <message>
        <source>Mail panel</source>
        <translation>Maileinstellungen</translation>
    </message>
    <message>
        <source>Settings of the panel</source>
        <translation>Einstellungen des Formulars</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Einstellungen &amp;zeigen</translation>
    </message>
    <message>
        <source>Dear Mia,

the proof of the poster is ready for you to look at.

Press room</source>
        <translation>Liebe Mia,

der Proof des Plakats liegt für dich bereit.

Drucksaal</translation>
    </message>
    <message>
        <source>Proof is ready</source>
        <translation>Proof ist fertig</translation>
    </message>
</context>
<context>
    <name>MailServerPanel</name>
    <message>
        <source>Local mail server</source>
        <translation>Lokaler Mailserver</translation>
    </message>
    <message>
        <source>Se&amp;curity:</source>
        <translation>Siche&amp;rheit:</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Unverschlüsselt</translation>
    </message>
    <message>
        <source>STARTTLS</source>
        <translation>STARTTLS</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>S&amp;törung:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>Receiver refused</source>
        <translation>Empfänger abgelehnt</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Stummer Server</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Niemand antwortet</translation>
    </message>
    <message>
        <source>Login &amp;needed</source>
        <translation>An&amp;meldung nötig</translation>
    </message>
</context>
<context>
    <name>ManualPanel</name>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Open &amp;Manual</source>
        <translation>&amp;Handbuch öffnen</translation>
    </message>
    <message>
        <source>Open a Missin&amp;g One</source>
        <translation>Fehlendes Handb&amp;uch öffnen</translation>
    </message>
    <message>
        <source>The manual of this gallery, in the system's viewer of PDF files.</source>
        <translation>Das Handbuch dieser Galerie, im PDF-Programm des Systems.</translation>
    </message>
</context>
<context>
    <name>MeasurementMakingPanel</name>
    <message>
        <source>Table of measurements</source>
        <translation>Tabelle der Messungen</translation>
    </message>
    <message>
        <source>Fol&amp;der of the internal database:</source>
        <translation>Or&amp;dner der internen Datenbank:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Durchs&amp;uchen …</translation>
    </message>
    <message>
        <source>Amo&amp;unt:</source>
        <translation>&amp;Menge:</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>&amp;Make Table</source>
        <translation>Ta&amp;belle anlegen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>On a server the table "%1" is dropped, made anew and left there.</source>
        <translation>Auf einem Server wird die Tabelle „%1“ gelöscht, neu angelegt und dort belassen.</translation>
    </message>
    <message>
        <source>Folder of the Internal Database</source>
        <translation>Ordner der internen Datenbank</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen …</translation>
    </message>
    <message>
        <source>Under way...</source>
        <translation>In Arbeit …</translation>
    </message>
    <message>
        <source>No table was made: %1</source>
        <translation>Es wurde keine Tabelle angelegt: %1</translation>
    </message>
    <message>
        <source>Made in %1 s.</source>
        <translation>In %1 s angelegt.</translation>
    </message>
    <message>
        <source>Cancelled: no table was made.</source>
        <translation>Abgebrochen: Es wurde keine Tabelle angelegt.</translation>
    </message>
</context>
<context>
    <name>MeasurementModel</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Messfeld</translation>
    </message>
    <message>
        <source>L*</source>
        <translation>L*</translation>
    </message>
    <message>
        <source>a*</source>
        <translation>a*</translation>
    </message>
    <message>
        <source>b*</source>
        <translation>b*</translation>
    </message>
    <message>
        <source>Measured (UTC)</source>
        <translation>Gemessen (UTC)</translation>
    </message>
    <message>
        <source>There is no connection to the database.</source>
        <translation>Es gibt keine Verbindung zur Datenbank.</translation>
    </message>
    <message>
        <source>ΔE</source>
        <translation>ΔE</translation>
    </message>
</context>
<context>
    <name>MeasurementTablePanel</name>
    <message>
        <source>Measurements</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Rows per &amp;page:</source>
        <translation>Zeilen &amp;pro Seite:</translation>
    </message>
    <message>
        <source>&amp;Remove Rows</source>
        <translation>Zei&amp;len entfernen</translation>
    </message>
    <message>
        <source>Stateme&amp;nt:</source>
        <translation>A&amp;nweisung:</translation>
    </message>
    <message>
        <source>The database refuses: %1</source>
        <translation>Die Datenbank lehnt ab: %1</translation>
    </message>
    <message>
        <source>Answered in %1 ms.</source>
        <translation>In %1 ms beantwortet.</translation>
    </message>
    <message>
        <source>No table yet.</source>
        <translation>Noch keine Tabelle.</translation>
    </message>
    <message>
        <source>ΔE ab&amp;ove:</source>
        <translation>ΔE &amp;über:</translation>
    </message>
    <message>
        <source>A click on No. or ΔE sorts: these columns have an index.</source>
        <translation>Ein Klick auf Nr. oder ΔE sortiert: Diese Spalten haben einen Index.</translation>
    </message>
</context>
<context>
    <name>OemLogo</name>
    <message>
        <source>The logo "%1" cannot be written: %2.</source>
        <translation>Das Logo „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>No copy is kept: the folder "%1" cannot be written.</source>
        <translation>Es wird keine Kopie aufbewahrt: In den Ordner „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>No copy is kept: there is no folder "%1".</source>
        <translation>Es wird keine Kopie aufbewahrt: Den Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The logo "%1" cannot be removed: %2.</source>
        <translation>Das Logo „%1“ kann nicht entfernt werden: %2.</translation>
    </message>
</context>
<context>
    <name>OverviewPanel</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>First picture as a whole</source>
        <translation>Erstes Bild als Ganzes</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Configuration pages that plug-ins bring, with the settings that they give back, and a dialog that stands in a page as well as in a window.</source>
        <translation>Konfigurationsseiten aus Plug-ins, mit den Einstellungen, die sie zurückgeben, und ein Dialog, der auf einer Seite wie in einem Fenster steht.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldCell</name>
    <message>
        <source>Program reads</source>
        <translation>Programm liest</translation>
    </message>
    <message>
        <source>Field holds</source>
        <translation>Feld enthält</translation>
    </message>
    <message>
        <source>The password itself stands in the field.</source>
        <translation>Im Feld steht das Passwort selbst.</translation>
    </message>
    <message>
        <source>A mask stands in the field, not the password.</source>
        <translation>Im Feld steht eine Maske, nicht das Passwort.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldPanel</name>
    <message>
        <source>Password line edit</source>
        <translation>Eingabefeld für Passwörter</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Wert:</translation>
    </message>
    <message>
        <source>Set &amp;by the Program</source>
        <translation>Vom Pro&amp;gramm setzen</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>T&amp;XPasswordLineEdit</source>
        <translation>T&amp;XPasswordLineEdit</translation>
    </message>
    <message>
        <source>&amp;QLineEdit</source>
        <translation>&amp;QLineEdit</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, enabled</source>
        <translation>TXPasswordLineEdit, aktiviert</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, disabled</source>
        <translation>TXPasswordLineEdit, deaktiviert</translation>
    </message>
    <message>
        <source>QLineEdit, enabled</source>
        <translation>QLineEdit, aktiviert</translation>
    </message>
    <message>
        <source>QLineEdit, disabled</source>
        <translation>QLineEdit, deaktiviert</translation>
    </message>
    <message>
        <source>What the program has set stays enciphered, and a mask of fixed length stands in its place, until the first key pressed in the field drops both. What the user types stands in the field, as in any other.</source>
        <translation>Was das Programm gesetzt hat, bleibt verschlüsselt, und an seiner Stelle steht eine Maske fester Länge, bis der erste Tastendruck im Feld beides verwirft. Was der Benutzer eintippt, steht im Feld wie in jedem anderen.</translation>
    </message>
</context>
<context>
    <name>PatchDifferenceCell</name>
    <message>
        <source>ΔE %1</source>
        <translation>ΔE %1</translation>
    </message>
    <message>
        <source>%1, before November 2014</source>
        <translation>%1, vor November 2014</translation>
    </message>
    <message>
        <source>%1, since November 2014</source>
        <translation>%1, seit November 2014</translation>
    </message>
</context>
<context>
    <name>PatchFlowPanel</name>
    <message>
        <source>Flow of equal cells</source>
        <translation>Gleiche Zellen im Fluss</translation>
    </message>
    <message>
        <source>Swatches in rows</source>
        <translation>Farbfelder in Reihen</translation>
    </message>
    <message>
        <source>S&amp;watches:</source>
        <translation>&amp;Farbfelder:</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>&amp;Position:</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>En&amp;tfernen</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>Rah&amp;men:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Kasten</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Of the style</source>
        <translation>Vom Stil</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Namen</translation>
    </message>
    <message>
        <source>%1 × %2 pixels each</source>
        <translation>je %1 × %2 Pixel</translation>
    </message>
    <message>
        <source>No swatch</source>
        <translation>Kein Farbfeld</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>Lee&amp;ren</translation>
    </message>
</context>
<context>
    <name>PatchListPanel</name>
    <message>
        <source>List with separators</source>
        <translation>Liste mit Trennlinien</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>Messfelder</translation>
    </message>
    <message>
        <source>Line &amp;Below</source>
        <translation>&amp;Linie darunter</translation>
    </message>
    <message>
        <source>Choose a row, and switch its line.</source>
        <translation>Wählen Sie eine Zeile, und schalten Sie ihre Linie um.</translation>
    </message>
    <message>
        <source>Row %1: line drawn</source>
        <translation>Zeile %1: Linie gezogen</translation>
    </message>
    <message>
        <source>Row %1: line removed</source>
        <translation>Zeile %1: Linie entfernt</translation>
    </message>
</context>
<context>
    <name>PatchRunsPanel</name>
    <message>
        <source>Table with pictures and times</source>
        <translation>Tabelle mit Bildern und Zeiten</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>Vergleiche</translation>
    </message>
    <message>
        <source>&amp;Compare Again</source>
        <translation>&amp;Erneut vergleichen</translation>
    </message>
    <message>
        <source>Compares the chosen rows. Make the last column narrow: first the time goes, then the end of the date.</source>
        <translation>Vergleicht die gewählten Zeilen. Machen Sie die letzte Spalte schmal: Zuerst fällt die Uhrzeit weg, dann das Ende des Datums.</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Messfeld</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Verglichen</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Schlecht</translation>
    </message>
</context>
<context>
    <name>PatchSplitPanel</name>
    <message>
        <source>Splitters</source>
        <translation>Teiler</translation>
    </message>
    <message>
        <source>Patches to look at</source>
        <translation>Felder zum Ansehen</translation>
    </message>
    <message>
        <source>Si&amp;de by side</source>
        <translation>Ne&amp;beneinander</translation>
    </message>
    <message>
        <source>&amp;Grip width:</source>
        <translation>&amp;Weite des Griffs:</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>L* %1
a* %2
b* %3
On the screen: %4</source>
        <translation>L* %1
a* %2
b* %3
Auf dem Bildschirm: %4</translation>
    </message>
</context>
<context>
    <name>PatchSwatchesPanel</name>
    <message>
        <source>Patches of the chart</source>
        <translation>Felder der Tafel</translation>
    </message>
    <message>
        <source>On the left of each patch charts made before November 2014, on the right those made since. A patch whose difference reaches the limit is framed.</source>
        <translation>Links in jedem Feld Tafeln von vor November 2014, rechts die seither hergestellten. Ein Feld, dessen Abstand den Grenzwert erreicht, ist gerahmt.</translation>
    </message>
</context>
<context>
    <name>PatchTint</name>
    <message>
        <source>%1, %2 %</source>
        <translation>%1, %2 %</translation>
    </message>
</context>
<context>
    <name>PatchWindow</name>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Solid Colours</source>
        <translation>Volltöne</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>Messfelder</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Messfeld</translation>
    </message>
    <message>
        <source>L*</source>
        <translation>L*</translation>
    </message>
    <message>
        <source>a*</source>
        <translation>a*</translation>
    </message>
    <message>
        <source>b*</source>
        <translation>b*</translation>
    </message>
    <message>
        <source>Delta E</source>
        <translation>Delta E</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>Primärfarben</translation>
    </message>
    <message>
        <source>Overprints</source>
        <translation>Übereinanderdrucke</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>Druckfarben</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Druckfarbe</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>"%1" is no file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>"%1" is too large: %2 × %3 pixels, which take more than %4 MB of memory.</source>
        <translation>„%1“ ist zu groß: %2 × %3 Pixel, die mehr als %4 MB Speicher brauchen.</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Bilder (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>PicturesPanel</name>
    <message>
        <source>Open Pictures</source>
        <translation>Bilder öffnen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>&amp;Open Pictures...</source>
        <translation>Bilder öff&amp;nen …</translation>
    </message>
    <message>
        <source>Show &amp;Chart</source>
        <translation>Farbta&amp;fel zeigen</translation>
    </message>
    <message>
        <source>Shown:</source>
        <translation>Gezeigt:</translation>
    </message>
</context>
<context>
    <name>PixelReadout</name>
    <message>
        <source>Between the first two pictures, by CIEDE2000</source>
        <translation>Zwischen den ersten beiden Bildern, nach CIEDE2000</translation>
    </message>
    <message>
        <source>Move the mouse over a picture.</source>
        <translation>Bewegen Sie die Maus über ein Bild.</translation>
    </message>
    <message>
        <source>x %1, y %2</source>
        <translation>x %1, y %2</translation>
    </message>
</context>
<context>
    <name>PluginPanel</name>
    <message>
        <source>Changed; what is in bold is not saved.</source>
        <translation>Geändert; was fett ist, ist nicht gespeichert.</translation>
    </message>
    <message>
        <source>These settings are saved.</source>
        <translation>Diese Einstellungen sind gespeichert.</translation>
    </message>
    <message>
        <source>The page's defaults; nothing is saved yet.</source>
        <translation>Die Vorgaben der Seite; noch ist nichts gespeichert.</translation>
    </message>
    <message>
        <source>Configuration pages from plug-ins</source>
        <translation>Konfigurationsseiten aus Plug-ins</translation>
    </message>
    <message>
        <source>No plug-in was found. Plug-ins are looked for in the folder "%1"; put one there and start the gallery again.</source>
        <translation>Es wurde kein Plug-in gefunden. Plug-ins werden im Ordner „%1“ gesucht; legen Sie dort eines ab und starten Sie die Galerie neu.</translation>
    </message>
    <message>
        <source>&amp;Plug-ins found:</source>
        <translation>Gefundene &amp;Plug-ins:</translation>
    </message>
    <message>
        <source>Plug-ins found</source>
        <translation>Gefundene Plug-ins</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Settings, read bac&amp;k live:</source>
        <translation>Einste&amp;llungen, live zurückgelesen:</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>Sp&amp;eichern</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>PrintJobForm</name>
    <message>
        <source>Pape&amp;r:</source>
        <translation>Pap&amp;ier:</translation>
    </message>
    <message>
        <source>Coated, 115 g/m²</source>
        <translation>Gestrichen, 115 g/m²</translation>
    </message>
    <message>
        <source>Uncoated, 120 g/m²</source>
        <translation>Ungestrichen, 120 g/m²</translation>
    </message>
    <message>
        <source>Newsprint, 45 g/m²</source>
        <translation>Zeitungspapier, 45 g/m²</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>Rendering In&amp;tent:</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Relativ farbmetrisch</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Absolut farbmetrisch</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perzeptiv</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Total i&amp;nk limit:</source>
        <translation>Maximaler Farba&amp;uftrag:</translation>
    </message>
    <message>
        <source>Delta &amp;E tolerance:</source>
        <translation>Delta-E-T&amp;oleranz:</translation>
    </message>
    <message>
        <source>Black point c&amp;ompensation</source>
        <translation>Tiefenko&amp;mpensierung</translation>
    </message>
</context>
<context>
    <name>ProgressBarSwitches</name>
    <message>
        <source>Show te&amp;xt</source>
        <translation>Text &amp;zeigen</translation>
    </message>
    <message>
        <source>For&amp;mat:</source>
        <translation>For&amp;mat:</translation>
    </message>
    <message>
        <source>%p stands for the percentage, %v for the value, %m for the number of steps.</source>
        <translation>%p steht für die Prozente, %v für den Wert, %m für die Zahl der Schritte.</translation>
    </message>
    <message>
        <source>In&amp;verted</source>
        <translation>Umge&amp;kehrt</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>Au&amp;frecht</translation>
    </message>
</context>
<context>
    <name>ReceivedMailsPanel</name>
    <message>
        <source>Received mails</source>
        <translation>Empfangene Mails</translation>
    </message>
    <message>
        <source>&amp;Mails:</source>
        <translation>Ma&amp;ils:</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Betreff</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>As it cam&amp;e:</source>
        <translation>Wi&amp;e sie ankam:</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
</context>
<context>
    <name>ReportOptionsPanel</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Formel:</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>To&amp;leranz:</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>Paa&amp;re:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>Ausr&amp;ichtung:</translation>
    </message>
    <message>
        <source>CIE76</source>
        <translation>CIE76</translation>
    </message>
    <message>
        <source>CIEDE2000</source>
        <translation>CIEDE2000</translation>
    </message>
    <message>
        <source>By number</source>
        <translation>Nach Nummer</translation>
    </message>
    <message>
        <source>Largest first</source>
        <translation>Größte zuerst</translation>
    </message>
    <message>
        <source>Smallest first</source>
        <translation>Kleinste zuerst</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleranz</translation>
    </message>
    <message>
        <source>Order of the pairs</source>
        <translation>Reihenfolge der Paare</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
</context>
<context>
    <name>ReportOutputPanel</name>
    <message>
        <source>Export PDF</source>
        <translation>PDF exportieren</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>PDF &amp;exportieren …</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Open PDF</source>
        <translation>PDF öff&amp;nen</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) in "%1"</source>
        <translation>
            <numerusform>%n Seite in „%1“</numerusform>
            <numerusform>%n Seiten in „%1“</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled, nothing was written.</source>
        <translation>Abgebrochen, es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Gedruckt.</translation>
    </message>
    <message>
        <source>Cancelled, some pages may be printed.</source>
        <translation>Abgebrochen, einige Seiten sind vielleicht gedruckt.</translation>
    </message>
    <message>
        <source>Printing has failed.</source>
        <translation>Das Drucken ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>A colour comparison as pages of paper: drawn on the report canvas, with tables cut into pages, and taken to a PDF file or a printer.</source>
        <translation>Ein Farbvergleich als Seiten aus Papier: auf die Fläche des Berichts gezeichnet, mit Tabellen, die auf Seiten verteilt sind, und in eine PDF-Datei oder auf einen Drucker gebracht.</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>Seiten des Berichts</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPage</name>
    <message>
        <source>&amp;Company:</source>
        <translation>Fi&amp;rma:</translation>
    </message>
    <message>
        <source>Stands at the head of the report</source>
        <translation>Steht am Kopf des Berichts</translation>
    </message>
    <message>
        <source>Op&amp;erator:</source>
        <translation>&amp;Durchgeführt von:</translation>
    </message>
    <message>
        <source>Who has measured</source>
        <translation>Wer gemessen hat</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>Pap&amp;ierformat:</translation>
    </message>
    <message>
        <source>&amp;Date on each page</source>
        <translation>Dat&amp;um auf jeder Seite</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPlugin</name>
    <message>
        <source>Measuring Report</source>
        <translation>Messbericht</translation>
    </message>
</context>
<context>
    <name>ReportViewBar</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Sei&amp;te:</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>SambaServerPanel</name>
    <message>
        <source>Local Samba server</source>
        <translation>Lokaler Samba-Server</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>S&amp;törung:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>Unknown share</source>
        <translation>Unbekannte Freigabe</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Stummer Server</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Niemand antwortet</translation>
    </message>
    <message>
        <source>The server has another port now: drives added before do not lead to it.</source>
        <translation>Der Server hat jetzt einen anderen Port: Früher hinzugefügte Laufwerke führen nicht zu ihm.</translation>
    </message>
</context>
<context>
    <name>ScanPanel</name>
    <message>
        <source>Scan a Folder</source>
        <translation>Ordner durchsuchen</translation>
    </message>
    <message>
        <source>Scan a folder</source>
        <translation>Einen Ordner durchsuchen</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen …</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>Suche s&amp;tarten</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Entries a second</source>
        <translation>Einträge je Sekunde</translation>
    </message>
</context>
<context>
    <name>SchedulePage</name>
    <message>
        <source>The panels that set when an event comes back, and in which encoding text files are read. Save, and the gallery works out the next events, and reads a file anew.</source>
        <translation>Die Formulare, die festlegen, wann ein Ereignis wiederkehrt und in welcher Kodierung Textdateien gelesen werden. Nach dem Speichern errechnet die Galerie die nächsten Ereignisse und liest eine Datei neu.</translation>
    </message>
</context>
<context>
    <name>SelectionBarEmissions</name>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Si&amp;gnals of the bar: %1</source>
        <translation>Si&amp;gnale der Leiste: %1</translation>
    </message>
    <message>
        <source>Signals of the bar</source>
        <translation>Signale der Leiste</translation>
    </message>
</context>
<context>
    <name>SelectionBarOptions</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Import:</source>
        <translation>Importieren:</translation>
    </message>
    <message>
        <source>in the bo&amp;x</source>
        <translation>im Aus&amp;wahlfeld</translation>
    </message>
    <message>
        <source>in a &amp;menu</source>
        <translation>in einem &amp;Menü</translation>
    </message>
    <message>
        <source>Names can be &amp;typed over</source>
        <translation>Namen lassen sich ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>Sho&amp;w the label:</source>
        <translation>Beschriftung &amp;zeigen:</translation>
    </message>
    <message>
        <source>Text of the label</source>
        <translation>Text der Beschriftung</translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>The bar with which a user keeps a collection of presets, each a file of its own: pick, create, duplicate, rename, import, export, delete.</source>
        <translation>Die Leiste, mit der Benutzer eine Sammlung von Voreinstellungen pflegen, jede eine eigene Datei: wählen, anlegen, duplizieren, umbenennen, importieren, exportieren, löschen.</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>The answer of the service is not shown.</source>
        <translation>Die Antwort des Diensts wird nicht gezeigt.</translation>
    </message>
    <message>
        <source>The answer of the service is too large.</source>
        <translation>Die Antwort des Diensts ist zu groß.</translation>
    </message>
    <message>
        <source>Nobody listens at %1.</source>
        <translation>Unter %1 antwortet niemand.</translation>
    </message>
    <message>
        <source>The service has closed the connection before it had answered.</source>
        <translation>Der Dienst hat die Verbindung beendet, bevor er geantwortet hat.</translation>
    </message>
    <message>
        <source>The service has said nothing for %1 seconds.</source>
        <translation>Der Dienst hat %1 Sekunden lang nichts gesagt.</translation>
    </message>
    <message>
        <source>The service has answered with HTTP status %1.</source>
        <translation>Der Dienst hat mit HTTP-Status %1 geantwortet.</translation>
    </message>
    <message>
        <source>The service cannot be asked: %1.</source>
        <translation>Der Dienst kann nicht gefragt werden: %1.</translation>
    </message>
</context>
<context>
    <name>SessionPanel</name>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>Lee&amp;ren</translation>
    </message>
</context>
<context>
    <name>ShareSearchPanel</name>
    <message>
        <source>Share browser</source>
        <translation>Suche nach Freigaben</translation>
    </message>
    <message>
        <source>&amp;Browse This Server...</source>
        <translation>Diesen Server d&amp;urchsuchen …</translation>
    </message>
    <message>
        <source>Browse the &amp;Network...</source>
        <translation>&amp;Netzwerk durchsuchen …</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Gewählt: %1</translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation>Es wurde nichts gewählt.</translation>
    </message>
    <message>
        <source>Nothing was found. %1</source>
        <translation>Es wurde nichts gefunden. %1</translation>
    </message>
    <message>
        <source>The log of the drives says why.</source>
        <translation>Das Protokoll der Laufwerke sagt, warum.</translation>
    </message>
    <message>
        <source>Choose a share of the server for the drives that are added.</source>
        <translation>Wählen Sie eine Freigabe des Servers für die Laufwerke, die hinzugefügt werden.</translation>
    </message>
</context>
<context>
    <name>SortedPresetBar</name>
    <message>
        <source>Small variant, sorted</source>
        <translation>Kleine Variante, sortiert</translation>
    </message>
    <message>
        <source>By name:</source>
        <translation>Nach Name:</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>The same presets through a sorting proxy. The menu of the button takes the place of the others.</source>
        <translation>Dieselben Voreinstellungen durch einen sortierenden Proxy. Das Menü der Schaltfläche tritt an die Stelle der anderen.</translation>
    </message>
</context>
<context>
    <name>SpectrumPanel</name>
    <message>
        <source>Spectrum</source>
        <translation>Spektrum</translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Bis:</translation>
    </message>
    <message>
        <source>First wavelength</source>
        <translation>Erste Wellenlänge</translation>
    </message>
    <message>
        <source>Last wavelength</source>
        <translation>Letzte Wellenlänge</translation>
    </message>
    <message>
        <source> nm</source>
        <translation> nm</translation>
    </message>
    <message>
        <source>How strongly the eye sees light of each wavelength: the function y of the CIE 1931 standard observer. The spectrum lies behind it.</source>
        <translation>Wie stark das Auge Licht jeder Wellenlänge sieht: die Funktion y des Normalbeobachters CIE 1931. Dahinter liegt das Spektrum.</translation>
    </message>
    <message>
        <source>Luminous efficiency from %1 to %2 nm</source>
        <translation>Hellempfindlichkeit von %1 bis %2 nm</translation>
    </message>
</context>
<context>
    <name>SpectrumPlot</name>
    <message>
        <source>%1 nm</source>
        <translation>%1 nm</translation>
    </message>
</context>
<context>
    <name>StyleSamplePanel</name>
    <message>
        <source>Sample</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>&amp;Job:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Gestrichen</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>Zeitungspapier</translation>
    </message>
    <message>
        <source>&amp;Copies of %1:</source>
        <translation>Exe&amp;mplare von %1:</translation>
    </message>
    <message>
        <source>Tri&amp;m marks</source>
        <translation>Schnittmar&amp;ken</translation>
    </message>
    <message>
        <source>drawn by the shipped sheet</source>
        <translation>vom mitgelieferten Stylesheet gezeichnet</translation>
    </message>
    <message>
        <source>Copies made</source>
        <translation>Fertige Exemplare</translation>
    </message>
    <message>
        <source>Print Pr&amp;oof</source>
        <translation>Pr&amp;oof drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>a disabled button</comment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>StyleSheetPanel</name>
    <message>
        <source>Style sheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>Styles&amp;heet:</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>Neu &amp;lesen</translation>
    </message>
    <message>
        <source>Te&amp;xt as applied:</source>
        <translation>Te&amp;xt, wie er gilt:</translation>
    </message>
    <message>
        <source>Text as applied</source>
        <translation>Text, wie er gilt</translation>
    </message>
    <message>
        <source>No style sheet: the widgets look as their style draws them.</source>
        <translation>Kein Stylesheet: Die Widgets sehen so aus, wie ihr Stil sie zeichnet.</translation>
    </message>
</context>
<context>
    <name>SwitchPanel</name>
    <message>
        <source>Switch</source>
        <translation>Schalter</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>Switch of %1 pixels</source>
        <translation>Schalter von %1 Pixeln</translation>
    </message>
    <message>
        <source>Switch of %1 pixels, disabled</source>
        <translation>Schalter von %1 Pixeln, deaktiviert</translation>
    </message>
    <message>
        <source>&amp;Turn All On</source>
        <translation>Alle &amp;einschalten</translation>
    </message>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>clicked: 0</source>
        <translation>geklickt: 0</translation>
    </message>
    <message>
        <source>clicked: %1, last by %2 pixels: %3</source>
        <translation>geklickt: %1, zuletzt von %2 Pixeln: %3</translation>
    </message>
</context>
<context>
    <name>TriggerPanel</name>
    <message>
        <source>The event never comes.</source>
        <translation>Das Ereignis kommt nie.</translation>
    </message>
    <message>
        <source>By the settings that are kept, the event comes next on:</source>
        <translation>Nach den gespeicherten Einstellungen kommt das Ereignis als Nächstes am:</translation>
    </message>
    <message>
        <source>Trigger event</source>
        <translation>Auslösendes Ereignis</translation>
    </message>
    <message>
        <source>Offer &amp;hours</source>
        <translation>St&amp;unden anbieten</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>L&amp;oad</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>Calibration of the instrument</source>
        <translation>Kalibrierung des Messgeräts</translation>
    </message>
</context>
<context>
    <name>UnlockScreen</name>
    <message>
        <source>The work area is locked</source>
        <translation>Der Arbeitsbereich ist gesperrt</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>E&amp;ntsperren</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>Das ist nicht das Passwort.</translation>
    </message>
</context>
<context>
    <name>UpdateDialogPanel</name>
    <message>
        <source>Update dialog</source>
        <translation>Update-Dialog</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>Nach &amp;Updates suchen</translation>
    </message>
    <message>
        <source>Show in F&amp;older</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>"Download and Install" writes the file to "%1", which a check makes where it is missing, "Download" to the folder that you choose. The file is a harmless text. "Install" opens it with the desktop's program for texts, and closes all windows of the gallery. Where there is no such program, nothing happens: "Show in Folder" shows the file.</source>
        <translation>„Herunterladen und installieren“ schreibt die Datei in den Ordner „%1“, den eine Suche anlegt, wo er fehlt, „Herunterladen“ in den Ordner, den Sie wählen. Die Datei ist ein harmloser Text. „Installieren“ öffnet sie mit dem Textprogramm des Systems und schließt alle Fenster der Galerie. Wo es kein solches Programm gibt, geschieht nichts: „Im Ordner zeigen“ zeigt die Datei.</translation>
    </message>
    <message>
        <source>There is no folder "%1".</source>
        <translation>Es gibt keinen Ordner „%1“.</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>Kein Programm zeigt den Ordner „%1“.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;New in this release&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Databases: a million rows, page by page&lt;/li&gt;&lt;li&gt;Updates: what you are looking at&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;More at &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Neu in dieser Version&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Datenbanken: eine Million Zeilen, Seite für Seite&lt;/li&gt;&lt;li&gt;Updates: was Sie gerade ansehen&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Mehr unter &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>And one more thing. </source>
        <translation>Und noch etwas. </translation>
    </message>
</context>
<context>
    <name>UpdatePage</name>
    <message>
        <source>The dialog in which a user looks for a newer release, downloads and installs it. Switch on a real update service on this computer, choose what it offers, and check for updates.</source>
        <translation>Der Dialog, in dem ein Benutzer nach einer neueren Version sucht, sie herunterlädt und installiert. Schalten Sie einen echten Update-Dienst auf diesem Rechner ein, wählen Sie, was er anbietet, und suchen Sie nach Updates.</translation>
    </message>
</context>
<context>
    <name>UpdateServicePanel</name>
    <message>
        <source>Local update service</source>
        <translation>Lokaler Update-Dienst</translation>
    </message>
    <message>
        <source>Off&amp;er:</source>
        <translation>Ang&amp;ebot:</translation>
    </message>
    <message>
        <source>Newer release</source>
        <translation>Neuere Version</translation>
    </message>
    <message>
        <source>Newer release, beta</source>
        <translation>Neuere Version, Beta</translation>
    </message>
    <message>
        <source>Slow download</source>
        <translation>Langsamer Download</translation>
    </message>
    <message>
        <source>Download that breaks off</source>
        <translation>Download, der abbricht</translation>
    </message>
    <message>
        <source>Release without a file</source>
        <translation>Version ohne Datei</translation>
    </message>
    <message>
        <source>Long release notes</source>
        <translation>Lange Versionshinweise</translation>
    </message>
    <message>
        <source>Release of this build</source>
        <translation>Diese Version</translation>
    </message>
    <message>
        <source>Older release</source>
        <translation>Ältere Version</translation>
    </message>
    <message>
        <source>Empty answer</source>
        <translation>Leere Antwort</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>Antwort, die kein JSON ist</translation>
    </message>
    <message>
        <source>Status 404</source>
        <translation>Status 404</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Niemand antwortet</translation>
    </message>
</context>
<context>
    <name>UpdateSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>Was der Dienst &amp;bekam:</translation>
    </message>
    <message>
        <source>Signals of t&amp;he dialog:</source>
        <translation>Si&amp;gnale des Dialogs:</translation>
    </message>
</context>
<context>
    <name>UpdateSettingsPanel</name>
    <message>
        <source>Settings of updates</source>
        <translation>Einstellungen für Updates</translation>
    </message>
    <message>
        <source>Loa&amp;d Settings</source>
        <translation>Einstellungen la&amp;den</translation>
    </message>
    <message>
        <source>Save Se&amp;ttings</source>
        <translation>Einstellungen s&amp;peichern</translation>
    </message>
    <message>
        <source>Stored settings</source>
        <translation>Gespeicherte Einstellungen</translation>
    </message>
    <message>
        <source>The dialog above checks by itself every %1 days.</source>
        <translation>Der Dialog oben sucht von selbst alle %1 Tage.</translation>
    </message>
    <message>
        <source>The dialog above does not check by itself.</source>
        <translation>Der Dialog oben sucht nicht von selbst.</translation>
    </message>
    <message>
        <source>Stored settings:</source>
        <translation>Gespeicherte Einstellungen:</translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&amp;Hover effects</source>
        <translation>&amp;Hervorheben unter der Maus</translation>
    </message>
    <message>
        <source>Lights the innermost value under the mouse.</source>
        <translation>Hebt den innersten Wert unter der Maus hervor.</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>V&amp;orschau</translation>
    </message>
    <message>
        <source>Shows what lists and dictionaries hold in their line.</source>
        <translation>Zeigt in der Zeile von Listen und Wörterbüchern, was sie enthalten.</translation>
    </message>
    <message>
        <source>Open &amp;Two Levels</source>
        <translation>&amp;Zwei Ebenen öffnen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Values: %1. Characters of the line: %2. %3</source>
        <translation>Werte: %1. Zeichen der Zeile: %2. %3</translation>
    </message>
    <message>
        <source>Shown in %1 ms.</source>
        <translation>In %1 ms gezeigt.</translation>
    </message>
    <message>
        <source>Opened in %1 ms.</source>
        <translation>In %1 ms geöffnet.</translation>
    </message>
    <message>
        <source>Closed in %1 ms.</source>
        <translation>In %1 ms geschlossen.</translation>
    </message>
</context>
<context>
    <name>ValueSliderPanel</name>
    <message>
        <source>Spin box with slider</source>
        <translation>Drehfeld mit Schieberegler</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Belichtung</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source>darker</source>
        <translation>dunkler</translation>
    </message>
    <message>
        <source>lighter</source>
        <translation>heller</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Delta E tolerance</source>
        <translation>Delta-E-Toleranz</translation>
    </message>
    <message>
        <source>seen by anyone</source>
        <translation>für jeden sichtbar</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Glättung</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Total ink coverage</source>
        <translation>Gesamtfarbauftrag</translation>
    </message>
    <message>
        <source>bare paper</source>
        <translation>unbedruckt</translation>
    </message>
    <message>
        <source>four full inks</source>
        <translation>vier volle Farben</translation>
    </message>
    <message>
        <source>Total ink coverage, disabled</source>
        <translation>Gesamtfarbauftrag, deaktiviert</translation>
    </message>
    <message>
        <source>A value typed into the box goes to the slider and comes back, so one edit tells of itself more than once. The wheel changes nothing: it scrolls the page.</source>
        <translation>Ein ins Feld getippter Wert geht zum Schieberegler und kommt zurück, so meldet sich eine Eingabe mehr als einmal. Das Mausrad ändert nichts: Es scrollt die Seite.</translation>
    </message>
    <message>
        <source>&amp;valueChanged: %1</source>
        <translation>&amp;valueChanged: %1</translation>
    </message>
    <message>
        <source>Emissions of valueChanged</source>
        <translation>Signale valueChanged</translation>
    </message>
</context>
<context>
    <name>ValueSourcePanel</name>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>&amp;Gallery Settings</source>
        <translation>&amp;Galerie-Einstellungen</translation>
    </message>
    <message>
        <source>JSO&amp;N File...</source>
        <translation>JSO&amp;N-Datei …</translation>
    </message>
    <message>
        <source>As&amp;k the Service</source>
        <translation>&amp;Dienst fragen</translation>
    </message>
</context>
<context>
    <name>VariantPage</name>
    <message>
        <source>A value of any depth as one line of coloured text, which folds open level by level: the settings of this gallery, a JSON file, or the live answer of an update service.</source>
        <translation>Ein Wert beliebiger Tiefe als eine Zeile farbigen Texts, die sich Ebene für Ebene ausklappen lässt: die Einstellungen dieser Galerie, eine JSON-Datei oder die Antwort eines Update-Diensts.</translation>
    </message>
    <message>
        <source>Settings of this gallery</source>
        <translation>Einstellungen dieser Galerie</translation>
    </message>
    <message>
        <source>Nothing is stored yet: the gallery keeps its settings when it ends.</source>
        <translation>Noch ist nichts gespeichert: Die Galerie sichert ihre Einstellungen, wenn sie endet.</translation>
    </message>
    <message>
        <source>JSON File</source>
        <translation>JSON-Datei</translation>
    </message>
    <message>
        <source>JSON files (*.json);;All files (*)</source>
        <translation>JSON-Dateien (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>File "%1"</source>
        <translation>Datei „%1“</translation>
    </message>
    <message>
        <source>The file "%1" is not shown.</source>
        <translation>Die Datei „%1“ wird nicht gezeigt.</translation>
    </message>
    <message>
        <source>The update service is off. Its switch turns it on.</source>
        <translation>Der Update-Dienst ist aus. Sein Schalter schaltet ihn ein.</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>Warten auf die Antwort …</translation>
    </message>
    <message>
        <source>Answer of the update service</source>
        <translation>Antwort des Update-Diensts</translation>
    </message>
</context>
<context>
    <name>WebCertificate</name>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>WebInterfacePage</name>
    <message>
        <source>The panel for the web interface of a program, beside a real web server that serves a page of the gallery. Only this computer reaches it, at the link with 127.0.0.1; the other links work once other computers may connect.</source>
        <translation>Das Formular für die Weboberfläche eines Programms, neben einem echten Webserver, der eine Seite der Galerie ausliefert. Nur dieser Rechner erreicht ihn, über den Link mit 127.0.0.1; die anderen Links gelten, sobald andere Rechner zugelassen sind.</translation>
    </message>
    <message>
        <source>Web interface panel</source>
        <translation>Formular der Weboberfläche</translation>
    </message>
</context>
<context>
    <name>WebServerPanel</name>
    <message>
        <source>Web server</source>
        <translation>Webserver</translation>
    </message>
    <message>
        <source>Other com&amp;puters may connect</source>
        <translation>Andere Rechner z&amp;ulassen</translation>
    </message>
    <message>
        <source>Without it the server listens on 127.0.0.1 only, and no other link of the panel leads to it.</source>
        <translation>Ohne dies lauscht der Server nur auf 127.0.0.1, und kein anderer Link des Formulars führt zu ihm.</translation>
    </message>
    <message>
        <source>Visi&amp;t the Page</source>
        <translation>Seite &amp;besuchen</translation>
    </message>
    <message>
        <source>the box "Enabled" of the panel is not checked</source>
        <translation>das Kästchen „Aktiviert“ des Formulars ist nicht angekreuzt</translation>
    </message>
    <message>
        <source>HTTPS needs a certificate file</source>
        <translation>HTTPS braucht eine Zertifikatsdatei</translation>
    </message>
</context>
<context>
    <name>WebSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>Was der Server be&amp;kam:</translation>
    </message>
    <message>
        <source>&amp;Own visits:</source>
        <translation>Ei&amp;gene Besuche:</translation>
    </message>
</context>
<context>
    <name>WebSettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Offer &amp;HTTPS</source>
        <translation>Mit &amp;HTTPS</translation>
    </message>
    <message>
        <source>Make &amp;Certificate</source>
        <translation>Zertif&amp;ikat erzeugen</translation>
    </message>
    <message>
        <source>Fill In E&amp;xample</source>
        <translation>Beispiel ein&amp;tragen</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Einstellungen &amp;zeigen</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>Sp&amp;eichern</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>La&amp;den</translation>
    </message>
    <message>
        <source>Settings of the web interface</source>
        <translation>Einstellungen der Weboberfläche</translation>
    </message>
    <message>
        <source>Saved in the settings of the gallery.</source>
        <translation>In den Einstellungen der Galerie gespeichert.</translation>
    </message>
    <message>
        <source>Loaded from the settings of the gallery.</source>
        <translation>Aus den Einstellungen der Galerie geladen.</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>Es wurde noch nichts gespeichert.</translation>
    </message>
    <message>
        <source>The example is for the user "%1" with the password "%2".</source>
        <translation>Das Beispiel ist für den Benutzer „%1“ mit dem Passwort „%2“.</translation>
    </message>
    <message>
        <source>A certificate for localhost and 127.0.0.1 is in %1. A browser warns of it.</source>
        <translation>Ein Zertifikat für localhost und 127.0.0.1 liegt in %1. Ein Browser warnt davor.</translation>
    </message>
    <message>
        <source>No certificate was made: %1</source>
        <translation>Es wurde kein Zertifikat erzeugt: %1</translation>
    </message>
</context>
<context>
    <name>WebStatusPage</name>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Prozess</translation>
    </message>
    <message>
        <source>This page was made</source>
        <translation>Diese Seite entstand</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>everybody</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Mean %1, largest %2.</source>
        <translation>Mittel %1, größtes %2.</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>TXGUICommon-Galerie</translation>
    </message>
    <message>
        <source>How it is served</source>
        <translation>Wie sie ausgeliefert wird</translation>
    </message>
    <message>
        <source>Pages of the gallery</source>
        <translation>Seiten der Galerie</translation>
    </message>
    <message>
        <source>Patches of the chart, older and newer, with ΔE 2000</source>
        <translation>Felder der Farbtafel, ältere und neuere, mit ΔE 2000</translation>
    </message>
</context>
<context>
    <name>WebVisit</name>
    <message>
        <source>%1: status %2, %3 bytes</source>
        <translation>%1: Status %2, %3 Byte</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>WidgetStatePanel</name>
    <message>
        <source>Widget state</source>
        <translation>Zustand von Widgets</translation>
    </message>
    <message>
        <source>One call keeps the place and size of a window, its splitters and the columns of its views, in one nested dictionary for the program's settings. Another gives them back.</source>
        <translation>Ein Aufruf merkt sich Ort und Größe eines Fensters, seine Teiler und die Spalten seiner Ansichten, in einem verschachtelten Wörterbuch für die Einstellungen des Programms. Ein anderer stellt sie wieder her.</translation>
    </message>
    <message>
        <source>&amp;Open Window</source>
        <translation>&amp;Fenster öffnen</translation>
    </message>
    <message>
        <source>&amp;Keep State</source>
        <translation>Zustand &amp;merken</translation>
    </message>
    <message>
        <source>&amp;Disarrange</source>
        <translation>&amp;Durcheinanderbringen</translation>
    </message>
    <message>
        <source>&amp;Restore State</source>
        <translation>Zustand &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>K&amp;ept state:</source>
        <translation>&amp;Gemerkter Zustand:</translation>
    </message>
    <message>
        <source>Kept state</source>
        <translation>Gemerkter Zustand</translation>
    </message>
</context>
<context>
    <name>WidgetStateTree</name>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Byte</translation>
    </message>
</context>
<context>
    <name>WorkersPanel</name>
    <message>
        <source>Several workers, one delegate</source>
        <translation>Mehrere Arbeiter, ein Delegat</translation>
    </message>
    <message>
        <source>Files &amp;in:</source>
        <translation>Dateien &amp;in:</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>D&amp;urchsuchen …</translation>
    </message>
    <message>
        <source>&amp;Read Files</source>
        <translation>Dateien &amp;lesen</translation>
    </message>
    <message>
        <source>Canc&amp;el</source>
        <translation>Abbr&amp;echen</translation>
    </message>
    <message>
        <source>Read the Files of a Folder</source>
        <translation>Die Dateien eines Ordners lesen</translation>
    </message>
    <message>
        <source>T&amp;hreads:</source>
        <translation>T&amp;hreads:</translation>
    </message>
    <message>
        <source>Progress of the workers</source>
        <translation>Fortschritt der Arbeiter</translation>
    </message>
    <message>
        <source>Reports of the workers</source>
        <translation>Meldungen der Arbeiter</translation>
    </message>
    <message>
        <source>Paintings of the bar</source>
        <translation>Zeichnungen des Balkens</translation>
    </message>
    <message>
        <source>Files read</source>
        <translation>Gelesene Dateien</translation>
    </message>
    <message>
        <source>Read in a second</source>
        <translation>Je Sekunde gelesen</translation>
    </message>
    <message>
        <source>%1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>%1 in %2 s; Kopien anderer Dateien: %3, nicht lesbar: %4.</translation>
    </message>
    <message>
        <source>Cancelled after %1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>Abgebrochen nach %1 in %2 s; Kopien anderer Dateien: %3, nicht lesbar: %4.</translation>
    </message>
</context>
</TS>
