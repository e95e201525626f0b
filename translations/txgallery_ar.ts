<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AboutPage</name>
    <message>
        <source>The picture that a program shows while it starts, which a partner can replace by a logo, and the window that tells what the program is.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AboutWindowPanel</name>
    <message>
        <source>About window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the &amp;version of Qt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open About &amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Legal &amp;Notices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The notices are opened from a copy in the folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no notices at &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AccessPage</name>
    <message>
        <source>A program whose user interface can be locked behind a password. The dialogs ask for it; the program keeps it and does the locking, here of the work area.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BoldTitlePanel</name>
    <message>
        <source>Bold titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proof, bold title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proof, bold font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add R&amp;esult</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Update Weights</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not passed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean ΔE %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest ΔE %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: ΔE %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusyPage</name>
    <message>
        <source>A spinner over a list that is being filled, and a progress bar that many threads report to while they work.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChartPatches</name>
    <message>
        <source>Dark skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue sky</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foliage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue flower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bluish green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purplish blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moderate red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orange yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White 9.5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutral 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutral 6.5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutral 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neutral 3.5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skin and nature</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Greys</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChartReport</name>
    <message>
        <source>Colour comparison of the 24-patch chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page {page} of {pages}</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChartReportCover</name>
    <message>
        <source>ΔE*ab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ΔE00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Published averages of older charts against the current reference values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left half, set A: average of charts made before November 2014</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right half, set B: charts made since November 2014</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CIELAB under D50 for the 2° observer, shown in sRGB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differences of the 24 patches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CIE76</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CIEDE2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>95 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Above %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of each patch, tolerance %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ΔE*ab: CIE76, the distance in CIELAB. CIE 15, Colorimetry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ΔE00: CIEDE2000, all weights 1. CIE 142:2001; ISO/CIE 11664-6.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>G. Sharma, W. Wu, E. N. Dalal: The CIEDE2000 color-difference formula. Color Research and Application 30 (2005).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChartReportTables</name>
    <message>
        <source>No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A L*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A a*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A b*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B L*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B a*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B b*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ΔE*ab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ΔE00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch of set A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch of set B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ΔL*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Δa*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Δb*</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChartTreePanel</name>
    <message>
        <source>Tree with a grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Grid lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourDifferencePage</name>
    <message>
        <source>How far two sets of colours of a chart are apart: as a bar, as swatches, and the spectrum behind a curve.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPage</name>
    <message>
        <source>&amp;Illuminant:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;50, prints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;65, daylight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Observer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;2° field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;10° field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White point:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference &amp;formula:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ΔE </source>
        <comment>before a number</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPlugin</name>
    <message>
        <source>Colour Measurement</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourPreset</name>
    <message>
        <source>It is no colour preset.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its version, %1, is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no rendering intent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name has characters that cannot be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with black point compensation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without black point compensation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2, paper L* %3 a* %4 b* %5, at most %6 % ink</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourPresetCollection</name>
    <message>
        <source>Colour presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contract proof</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No preset can be loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be duplicated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That is the folder of the presets themselves.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed it in the meantime. Try again if that is to be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another preset is called &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourPresetForm</name>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;k limit:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper white:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The paper as a screen shows it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lightness of the paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green to red of the paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue to yellow of the paper</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourPresetPanel</name>
    <message>
        <source>New preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;ncel Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; for good?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the name in the box and the settings, then save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no preset. Make a new one, or import one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings can be changed once the preset is edited.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files in &quot;%1&quot; that are no presets, and are left as they are: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preset &quot;%1&quot; has been edited. Save it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour presets (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColourProfileCheck</name>
    <message>
        <source>%1 bytes by the header, %2 in the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The signature is &quot;%1&quot; instead of &quot;acsp&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1 is not supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The device class &quot;%1&quot; is unknown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file ends within the header, after %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used as a colour profile.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComboBoxPanel</name>
    <message>
        <source>Combo boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Measured under:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light of a tungsten lamp, the ultraviolet undefined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Daylight D50, the ultraviolet as in D50</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without ultraviolet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without ultraviolet, with polarising filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focus lost: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measured under</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measured under, disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper, disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder, disabled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ContainersPage</name>
    <message>
        <source>What holds other widgets: a flow of equal cells, a square, splitters with a grip, group boxes that fold or have a bold title; and labels that are turned.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Numbers with a slider beside them, switches, and spin boxes that read as a plain value when they are disabled; and the state of a whole window in one call.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CredentialPanel</name>
    <message>
        <source>Credential dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask for &amp;Credentials...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offer to r&amp;emember</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With the offer the dialog calls back at each OK with both fields filled in; the host asks by itself whether &quot;Remember&quot; is checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Characters of the password: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The callback was called.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The callback was not called.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Remember&quot; is checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Remember&quot; is not checked.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatabasePage</name>
    <message>
        <source>The panel for the place of a program&apos;s data: its internal database or a server. Switch on a real MariaDB server on this computer, choose what is to go wrong, and turn the pages of a million measurements in either database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatabaseServerPanel</name>
    <message>
        <source>Local MariaDB server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No right to the database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatabaseSettingsPanel</name>
    <message>
        <source>Settings and dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;how Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As&amp;k...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings of the database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where to Keep the Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As they stand in the panel, whether they work or not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved: a connection can be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to save: no connection can be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirmed in the dialog: a connection can be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled, or no connection can be opened.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DictionaryView</name>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DifferenceBarPanel</name>
    <message>
        <source>Differences of the pairs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CIE76</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CIEDE2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same patches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Different patches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 pairs are below the limit of %3. The mean is %4, and %5 % of the pairs are below it; the largest difference is %6.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DifferenceLegend</name>
    <message>
        <source>Colour difference by CIEDE2000. Up to %1: close.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours of the difference</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DisabledSpinBoxPanel</name>
    <message>
        <source>Spin boxes that are disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DragDropEmissions</name>
    <message>
        <source>Signals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signals o&amp;f the page: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signals of the page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DragDropPage</name>
    <message>
        <source>A field that takes files dropped from here or from any program, and folders that are sorted by dragging, in two views that stay in step.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DriveManagerPanel</name>
    <message>
        <source>Manager window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;hare:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move Added Drives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show F&amp;older</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check &quot;Enabled&quot;, and all active drives in the list are connected, your own too. A connected drive is a link in &quot;%1&quot;. The editor knows no port: a drive that you type in or edit leads to the standard port 445, not to the server above. Added drives are removed when the gallery ends; one that you have edited is yours, and stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added: %1. Check &quot;Enabled&quot; to have it connected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is yours now, and leads to port %2: the editor knows no port. Remove it with &quot;-&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All drive letters are taken.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No drive has been connected yet: there is no folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program shows the folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DriveSessionPanel</name>
    <message>
        <source>Lo&amp;g of the drives:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;ignals of the manager:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DrivesPage</name>
    <message>
        <source>Drives of file servers that a program keeps connected. Switch on a real Samba server on this computer, choose what is to go wrong, add its drives to the list, and see how they stand.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EmbeddingPanel</name>
    <message>
        <source>OK was clicked, and the dialog stays in the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK closed the window; its colour was taken over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel closed the window; the colour stays as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A dialog in two places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of the page, the dialog is not ended by its buttons. As a window it is, and hands its colour over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open as &amp;Window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EmissionList</name>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EncodedTextFile</name>
    <message>
        <source>There is no codec &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EncodingPanel</name>
    <message>
        <source>Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example in UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example in ISO-8859-1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose &amp;File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not shown. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes read as %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Places that this encoding cannot read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rest of the file is not shown.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorBoxPanel</name>
    <message>
        <source>Show it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With details:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a line for each nested error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nested errors folded away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;formation</source>
        <comment>with details</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Q&amp;uestion</source>
        <comment>with details</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>War&amp;ning</source>
        <comment>with details</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ritical</source>
        <comment>with details</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, short</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, with details</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorComposer</name>
    <message>
        <source>Read a File as a Colour Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compose an error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xample:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads another file as a colour profile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a title the domain stands in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;omain:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N&amp;ested errors:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One a line; two blanks put it below the line above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Com&amp;plete text:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error with nothing to say opens no box.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorExamples</name>
    <message>
        <source>Colour Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password of the measuring device cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file read as a colour profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A password that was never enciphered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reasons without a description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ErrorsPage</name>
    <message>
        <source>How a failure reaches the user: an error with the errors that led to it, the boxes that show it, and the manual.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FeedbackFieldsPanel</name>
    <message>
        <source>Extra fields of the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add F&amp;ield</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move Field</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FeedbackFormPanel</name>
    <message>
        <source>Press room</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The limit of the difference bar could be typed as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open as &amp;Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A note goes to port 5050 of this computer, and nowhere else; the service takes it there while it is on. The form waits for the answer as long as it takes, and nothing can be pressed meanwhile.
It tells success only if part of the answer still comes in while it reads. An answer that has come whole, as from this computer, is not looked at: the form then says that the service may be unavailable, for an accepted note too. What has arrived stands in the session.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FeedbackPage</name>
    <message>
        <source>The form with which a user writes to the makers of a program. Switch on a real feedback service on this computer, choose what it answers, and submit a note.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FeedbackServicePanel</name>
    <message>
        <source>Local feedback service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ans&amp;wer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accepted after %1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answer that breaks off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status 500</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FeedbackSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signals of t&amp;he form and its dialog:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileDigests</name>
    <message>
        <source>Looking for files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileDropPanel</name>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of the &amp;gallery:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of the gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Put Into Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dropped file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing dropped yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dropped: %1, not on this computer: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderDropPanel</name>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In your own &amp;order:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In alphab&amp;etical order:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders in your own order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders in alphabetical order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;May be dropped:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Onto folders and between them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Onto folders only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Between folders only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Ou&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot move there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Papers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncoated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coated, glossy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coated, matt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proofs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Studio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Laptops</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Charts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>24 colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderJobBar</name>
    <message>
        <source>Relative paths start at the program&apos;s folder; several paths are separated by &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderLogEntry</name>
    <message>
        <source>The folder is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken link: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Very long name: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No right to read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No right to list the folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed last: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further findings are not listed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan finished after %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan cancelled after %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderScanPanel</name>
    <message>
        <source>Folder scan with a spinner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spinner si&amp;ze:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3 so far</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3; cancelled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FoldingPanel</name>
    <message>
        <source>Folding group box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;onversion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rendering intent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulate the paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The black point counts for relative colorimetric alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep the note hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>black point compensated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paper simulated</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FontsPanel</name>
    <message>
        <source>Fonts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no fonts in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>family and file</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file is no font.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specimen of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FtpConfigurationPanel</name>
    <message>
        <source>FTP panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show stat&amp;us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;box &quot;Active&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show box &quot;&amp;Erase&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Importer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FtpPage</name>
    <message>
        <source>The panel for an FTP or SFTP server to import from or to export to. Switch on a real server on this computer, choose what is to go wrong, and check the connection.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FtpServerPanel</name>
    <message>
        <source>Local server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protoc&amp;ol:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FTP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SFTP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FtpSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signals of t&amp;he panel:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FtpSettingsPanel</name>
    <message>
        <source>Settings and dialogs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;mport Dialog...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport Dialog...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the jobs come from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the jobs go to</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GalleryAboutWindow</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with Qt %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GalleryCommandLine</name>
    <message>
        <source>Shows what the TXGUICommon library has to offer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open at this page: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file|folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a picture of the named page as this PNG file, or of every page into this folder, print the paths and exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Widget style: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language of the texts, as en.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;. The pages are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no style &quot;%1&quot;. The styles are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no palette &quot;%1&quot;. The palettes are: light, dark.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;. The languages are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GalleryGrabber</name>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page &quot;%1&quot; was not ready after %2 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GalleryHeader</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;alette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <comment>key of the button About...</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About this program (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GalleryPages</name>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busy and progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists and delegates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Containers and labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag and drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FTP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger and encoding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language and style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Splash and About</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GallerySplash</name>
    <message>
        <source>Loading the fonts...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading the pages...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - TXGUICommon Gallery</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageViewBar</name>
    <message>
        <source>&amp;Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole picture in each zone, also when the window changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;hare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each zone&apos;s share of the width: a half with two pictures, also when the window changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1&amp;00 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A pixel of the picture as one of the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scal&amp;e:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names of the pictures, outlines and numbers of the patches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A crosshair at the same place in all pictures</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImagesPage</name>
    <message>
        <source>Pictures side by side at one scale and position: a colour chart, the same chart in a simulated print, and how the two differ. Drag them, and turn the wheel to look closer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures side by side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Just a moment...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The print is computed: paper that is not white, ink that is not black, dots that grow by %1 percent and a trace of their screen. It shows what these four do, and is no proof of what a press would print.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first %1 of %2 files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pictures differ in size: %1 pixels. All are laid out by the first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was shown before stays.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JsonObjectReader</name>
    <message>
        <source>It holds no JSON object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number from %2 to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JsonText</name>
    <message>
        <source>It is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no JSON (line %1: %2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is too large: more than %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It holds too many values: more than %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LabColourDialog</name>
    <message>
        <source>On screen %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beyond the screen; shown as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mix a Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Li&amp;ghtness L*:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gree&amp;n-red a*:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Blue-yellow b*:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LabPlanePanel</name>
    <message>
        <source>Square layout and rotated labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>b*: blue to yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a*: green to red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lig&amp;htness:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Vertical axis:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pu&amp;t Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colours of lightness %1, with the patches of the chart</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>How a program takes its language, its style sheet and its fonts from the files beside it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguagePanel</name>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Texts of the gallery:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texts of the gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Translation...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no translations in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>files in folder</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result 0: the file was copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result 1: the file was not copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result 2: cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>What the library draws into lists, tables and trees, and its combo boxes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocalServerPanel</name>
    <message>
        <source>Ser&amp;ver:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fill In the Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on, at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;./dev setup&quot; installs what is needed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has stopped by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has stopped by itself: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockPanel</name>
    <message>
        <source>Lock of the user interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password is stored as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MD5 &amp;digest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;plain text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stored at the moment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loc&amp;k...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;First Password...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;hange Password...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked with the stored password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked with a new password, which is now stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled: nothing is locked, and what is stored stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled after the password was changed: nothing is locked, and the new password is not kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new password is stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled: what is stored stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password is forgotten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored password has been replaced by its digest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A digest cannot be turned back into the password: it is forgotten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlocked with the right password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The work area is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No password has been set: the lock asks for a first one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockedArea</name>
    <message>
        <source>Work area</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>The log of this very program, live: Qt&apos;s own messages, lines that the program prints, and a job that writes entries with sub-entries from several threads.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Qt Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live &amp;view:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Log Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Live view of the log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some information, written by hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A warning, written by hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An error, written by hand</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logo of the splash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy that is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown at the start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Put In a Logo...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Logo...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove &amp;Copy...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Splas&amp;h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put In a Logo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the installed logo &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the copy &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to close.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing: there is no picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installed logo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy, since there is no installed logo.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The gallery&apos;s own picture.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MailPage</name>
    <message>
        <source>The panel for the settings of outgoing mail. Switch on a real mail server on this computer, choose what is to go wrong, and send a test mail to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings of the panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dear Mia,

the proof of the poster is ready for you to look at.

Press room</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proof is ready</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MailServerPanel</name>
    <message>
        <source>Local mail server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se&amp;curity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STARTTLS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TLS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiver refused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login &amp;needed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ManualPanel</name>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a Missin&amp;g One</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The manual of this gallery, in the system&apos;s viewer of PDF files.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeasurementMakingPanel</name>
    <message>
        <source>Table of measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fol&amp;der of the internal database:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amo&amp;unt:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Make Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On a server the table &quot;%1&quot; is dropped, made anew and left there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of the Internal Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Under way...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No table was made: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made in %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled: no table was made.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeasurementModel</name>
    <message>
        <source>No.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>b*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ΔE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measured (UTC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no connection to the database.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeasurementTablePanel</name>
    <message>
        <source>Measurements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ΔE ab&amp;ove:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows per &amp;page:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stateme&amp;nt:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A click on No. or ΔE sorts: these columns have an index.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database refuses: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answered in %1 ms.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No table yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OemLogo</name>
    <message>
        <source>The logo &quot;%1&quot; cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No copy is kept: the folder &quot;%1&quot; cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No copy is kept: there is no folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The logo &quot;%1&quot; cannot be removed: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OverviewPanel</name>
    <message>
        <source>Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First picture as a whole</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Configuration pages that plug-ins bring, with the settings that they give back, and a dialog that stands in a page as well as in a window.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordFieldCell</name>
    <message>
        <source>Program reads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password itself stands in the field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A mask stands in the field, not the password.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasswordFieldPanel</name>
    <message>
        <source>Password line edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;by the Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;XPasswordLineEdit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;QLineEdit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QLineEdit, enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QLineEdit, disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the program has set stays enciphered, and a mask of fixed length stands in its place, until the first key pressed in the field drops both. What the user types stands in the field, as in any other.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchDifferenceCell</name>
    <message>
        <source>ΔE %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, before November 2014</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, since November 2014</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchFlowPanel</name>
    <message>
        <source>Flow of equal cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swatches in rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;watches:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No swatch</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchListPanel</name>
    <message>
        <source>List with separators</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line &amp;Below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a row, and switch its line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1: line drawn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1: line removed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchRunsPanel</name>
    <message>
        <source>Table with pictures and times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Compare Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compares the chosen rows. Make the last column narrow: first the time goes, then the end of the date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Poor</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchSplitPanel</name>
    <message>
        <source>Splitters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patches to look at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Si&amp;de by side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Grip width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L* %1
a* %2
b* %3
On the screen: %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchSwatchesPanel</name>
    <message>
        <source>Patches of the chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the left of each patch charts made before November 2014, on the right those made since. A patch whose difference reaches the limit is framed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchTint</name>
    <message>
        <source>%1, %2 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PatchWindow</name>
    <message>
        <source>Cyan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solid Colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>b*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delta E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overprints</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Density</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>Pictures (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large: %2 × %3 pixels, which take more than %4 MB of memory.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PicturesPanel</name>
    <message>
        <source>Open Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Pictures...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Chart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PixelReadout</name>
    <message>
        <source>Between the first two pictures, by CIEDE2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the mouse over a picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x %1, y %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginPanel</name>
    <message>
        <source>Changed; what is in bold is not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These settings are saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page&apos;s defaults; nothing is saved yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration pages from plug-ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No plug-in was found. Plug-ins are looked for in the folder &quot;%1&quot;; put one there and start the gallery again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Plug-ins found:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings, read bac&amp;k live:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintJobForm</name>
    <message>
        <source>Pape&amp;r:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coated, 115 g/m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncoated, 120 g/m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newsprint, 45 g/m²</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total i&amp;nk limit:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delta &amp;E tolerance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black point c&amp;ompensation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgressBarSwitches</name>
    <message>
        <source>Show te&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For&amp;mat:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%p stands for the percentage, %v for the value, %m for the number of steps.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;verted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReceivedMailsPanel</name>
    <message>
        <source>Received mails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mails:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TLS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As it cam&amp;e:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportOptionsPanel</name>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CIE76</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CIEDE2000</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Order of the pairs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportOutputPanel</name>
    <message>
        <source>Export PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) in &quot;%1&quot;</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled, nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled, some pages may be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing has failed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>A colour comparison as pages of paper: drawn on the report canvas, with tables cut into pages, and taken to a PDF file or a printer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPage</name>
    <message>
        <source>&amp;Company:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stands at the head of the report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Op&amp;erator:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who has measured</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Date on each page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPlugin</name>
    <message>
        <source>Measuring Report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportViewBar</name>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SambaServerPanel</name>
    <message>
        <source>Local Samba server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has another port now: drives added before do not lead to it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScanPanel</name>
    <message>
        <source>Scan a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entries a second</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SchedulePage</name>
    <message>
        <source>The panels that set when an event comes back, and in which encoding text files are read. Save, and the gallery works out the next events, and reads a file anew.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionBarEmissions</name>
    <message>
        <source>Signals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Si&amp;gnals of the bar: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signals of the bar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionBarOptions</name>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the bo&amp;x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in a &amp;menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names can be &amp;typed over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w the label:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text of the label</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>The bar with which a user keeps a collection of presets, each a file of its own: pick, create, duplicate, rename, import, export, delete.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>The answer of the service is not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The answer of the service is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody listens at %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The service has closed the connection before it had answered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The service has said nothing for %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The service has answered with HTTP status %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The service cannot be asked: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SessionPanel</name>
    <message>
        <source>Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShareSearchPanel</name>
    <message>
        <source>Share browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse This Server...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse the &amp;Network...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was found. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log of the drives says why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a share of the server for the drives that are added.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SortedPresetBar</name>
    <message>
        <source>Small variant, sorted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same presets through a sorting proxy. The menu of the button takes the place of the others.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpectrumPanel</name>
    <message>
        <source>Spectrum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First wavelength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last wavelength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> nm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How strongly the eye sees light of each wavelength: the function y of the CIE 1931 standard observer. The spectrum lies behind it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luminous efficiency from %1 to %2 nm</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpectrumPlot</name>
    <message>
        <source>%1 nm</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StyleSamplePanel</name>
    <message>
        <source>Sample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copies of %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tri&amp;m marks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drawn by the shipped sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Pr&amp;oof</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>a disabled button</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StyleSheetPanel</name>
    <message>
        <source>Style sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Te&amp;xt as applied:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text as applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No style sheet: the widgets look as their style draws them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SwitchPanel</name>
    <message>
        <source>Switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch of %1 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch of %1 pixels, disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Turn All On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clicked: 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>clicked: %1, last by %2 pixels: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TriggerPanel</name>
    <message>
        <source>The event never comes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By the settings that are kept, the event comes next on:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offer &amp;hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;oad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calibration of the instrument</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnlockScreen</name>
    <message>
        <source>The work area is locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateDialogPanel</name>
    <message>
        <source>Update dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in F&amp;older</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Download and Install&quot; writes the file to &quot;%1&quot;, which a check makes where it is missing, &quot;Download&quot; to the folder that you choose. The file is a harmless text. &quot;Install&quot; opens it with the desktop&apos;s program for texts, and closes all windows of the gallery. Where there is no such program, nothing happens: &quot;Show in Folder&quot; shows the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program shows the folder &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;New in this release&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Databases: a million rows, page by page&lt;/li&gt;&lt;li&gt;Updates: what you are looking at&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;More at &lt;a href=&quot;https://www.tovra.example&quot;&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>And one more thing. </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdatePage</name>
    <message>
        <source>The dialog in which a user looks for a newer release, downloads and installs it. Switch on a real update service on this computer, choose what it offers, and check for updates.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateServicePanel</name>
    <message>
        <source>Local update service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Off&amp;er:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newer release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Newer release, beta</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slow download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download that breaks off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release without a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long release notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release of this build</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Older release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status 404</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signals of t&amp;he dialog:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateSettingsPanel</name>
    <message>
        <source>Settings of updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loa&amp;d Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Se&amp;ttings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stored settings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stored settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The dialog above checks by itself every %1 days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The dialog above does not check by itself.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hover effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lights the innermost value under the mouse.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what lists and dictionaries hold in their line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Two Levels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values: %1. Characters of the line: %2. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown in %1 ms.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened in %1 ms.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closed in %1 ms.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueSliderPanel</name>
    <message>
        <source>Spin box with slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> EV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>darker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lighter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delta E tolerance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seen by anyone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total ink coverage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bare paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>four full inks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total ink coverage, disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;valueChanged: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emissions of valueChanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A value typed into the box goes to the slider and comes back, so one edit tells of itself more than once. The wheel changes nothing: it scrolls the page.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueSourcePanel</name>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Gallery Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSO&amp;N File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As&amp;k the Service</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VariantPage</name>
    <message>
        <source>A value of any depth as one line of coloured text, which folds open level by level: the settings of this gallery, a JSON file, or the live answer of an update service.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings of this gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is stored yet: the gallery keeps its settings when it ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON files (*.json);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The update service is off. Its switch turns it on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answer of the update service</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebCertificate</name>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebInterfacePage</name>
    <message>
        <source>The panel for the web interface of a program, beside a real web server that serves a page of the gallery. Only this computer reaches it, at the link with 127.0.0.1; the other links work once other computers may connect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web interface panel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebServerPanel</name>
    <message>
        <source>Web server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other com&amp;puters may connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without it the server listens on 127.0.0.1 only, and no other link of the panel leads to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visi&amp;t the Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the box &quot;Enabled&quot; of the panel is not checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HTTPS needs a certificate file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Own visits:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebSettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offer &amp;HTTPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make &amp;Certificate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill In E&amp;xample</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings of the web interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved in the settings of the gallery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded from the settings of the gallery.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The example is for the user &quot;%1&quot; with the password &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A certificate for localhost and 127.0.0.1 is in %1. A browser warns of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No certificate was made: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebStatusPage</name>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This page was made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>everybody</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean %1, largest %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How it is served</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages of the gallery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patches of the chart, older and newer, with ΔE 2000</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebVisit</name>
    <message>
        <source>%1: status %2, %3 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetStatePanel</name>
    <message>
        <source>Widget state</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One call keeps the place and size of a window, its splitters and the columns of its views, in one nested dictionary for the program&apos;s settings. Another gives them back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disarrange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>K&amp;ept state:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept state</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetStateTree</name>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WorkersPanel</name>
    <message>
        <source>Several workers, one delegate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files &amp;in:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Read Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canc&amp;el</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the Files of a Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;hreads:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the workers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports of the workers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paintings of the bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read in a second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled after %1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
