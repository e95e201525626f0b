<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AboutPage</name>
    <message>
        <source>The picture that a program shows while it starts, which a partner can replace by a logo, and the window that tells what the program is.</source>
        <translation>L'immagine che un programma mostra mentre si avvia, che un partner può sostituire con un logo, e la finestra che dice che cos'è il programma.</translation>
    </message>
</context>
<context>
    <name>AboutWindowPanel</name>
    <message>
        <source>About window</source>
        <translation>Finestra delle informazioni</translation>
    </message>
    <message>
        <source>With the &amp;version of Qt</source>
        <translation>Con la &amp;versione di Qt</translation>
    </message>
    <message>
        <source>Open About &amp;Window</source>
        <translation>Apri la &amp;finestra delle informazioni</translation>
    </message>
    <message>
        <source>Open Legal &amp;Notices</source>
        <translation>Apri le &amp;note legali</translation>
    </message>
    <message>
        <source>The notices are opened from a copy in the folder "%1".</source>
        <translation>Le note vengono aperte da una copia nella cartella «%1».</translation>
    </message>
    <message>
        <source>There are no notices at "%1".</source>
        <translation>Non ci sono note in «%1».</translation>
    </message>
</context>
<context>
    <name>AccessPage</name>
    <message>
        <source>A program whose user interface can be locked behind a password. The dialogs ask for it; the program keeps it and does the locking, here of the work area.</source>
        <translation>Un programma la cui interfaccia utente può essere bloccata con una password. Le finestre di dialogo la chiedono; il programma la conserva ed esegue il blocco, qui dell'area di lavoro.</translation>
    </message>
</context>
<context>
    <name>BoldTitlePanel</name>
    <message>
        <source>Bold titles</source>
        <translation>Titoli in grassetto</translation>
    </message>
    <message>
        <source>Proof, bold title</source>
        <translation>Prova, titolo grassetto</translation>
    </message>
    <message>
        <source>Proof, bold font</source>
        <translation>Prova, testo grassetto</translation>
    </message>
    <message>
        <source>Add R&amp;esult</source>
        <translation>Aggi&amp;ungi risultato</translation>
    </message>
    <message>
        <source>&amp;Update Weights</source>
        <translation>Aggiorna i &amp;pesi</translation>
    </message>
    <message>
        <source>Not passed</source>
        <translation>Non superata</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Superata</translation>
    </message>
    <message>
        <source>Mean ΔE %1</source>
        <translation>ΔE medio %1</translation>
    </message>
    <message>
        <source>Largest ΔE %1</source>
        <translation>ΔE massimo %1</translation>
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
        <translation>Un indicatore di attesa sopra un elenco in fase di riempimento, e una barra di avanzamento a cui riferiscono molti thread mentre lavorano.</translation>
    </message>
</context>
<context>
    <name>ChartPatches</name>
    <message>
        <source>Dark skin</source>
        <translation>Pelle scura</translation>
    </message>
    <message>
        <source>Light skin</source>
        <translation>Pelle chiara</translation>
    </message>
    <message>
        <source>Blue sky</source>
        <translation>Azzurro cielo</translation>
    </message>
    <message>
        <source>Foliage</source>
        <translation>Fogliame</translation>
    </message>
    <message>
        <source>Blue flower</source>
        <translation>Fiore azzurro</translation>
    </message>
    <message>
        <source>Bluish green</source>
        <translation>Verde bluastro</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Arancione</translation>
    </message>
    <message>
        <source>Purplish blue</source>
        <translation>Blu violaceo</translation>
    </message>
    <message>
        <source>Moderate red</source>
        <translation>Rosso moderato</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Viola</translation>
    </message>
    <message>
        <source>Yellow green</source>
        <translation>Verde giallastro</translation>
    </message>
    <message>
        <source>Orange yellow</source>
        <translation>Giallo arancio</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>White 9.5</source>
        <translation>Bianco 9,5</translation>
    </message>
    <message>
        <source>Neutral 8</source>
        <translation>Neutro 8</translation>
    </message>
    <message>
        <source>Neutral 6.5</source>
        <translation>Neutro 6,5</translation>
    </message>
    <message>
        <source>Neutral 5</source>
        <translation>Neutro 5</translation>
    </message>
    <message>
        <source>Neutral 3.5</source>
        <translation>Neutro 3,5</translation>
    </message>
    <message>
        <source>Black 2</source>
        <translation>Nero 2</translation>
    </message>
    <message>
        <source>Skin and nature</source>
        <translation>Pelle e natura</translation>
    </message>
    <message>
        <source>Further colours</source>
        <translation>Altri colori</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>Primari</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Grigi</translation>
    </message>
</context>
<context>
    <name>ChartReport</name>
    <message>
        <source>Colour comparison of the 24-patch chart</source>
        <translation>Confronto della tavola da 24 tasselli</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galleria TXGUICommon</translation>
    </message>
    <message>
        <source>Page {page} of {pages}</source>
        <translation>Pagina {page} di {pages}</translation>
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
        <translation>Medie pubblicate delle tavole più vecchie rispetto ai valori di riferimento attuali</translation>
    </message>
    <message>
        <source>Left half, set A: average of charts made before November 2014</source>
        <translation>Metà sinistra, serie A: media delle tavole prodotte prima di novembre 2014</translation>
    </message>
    <message>
        <source>Right half, set B: charts made since November 2014</source>
        <translation>Metà destra, serie B: tavole prodotte da novembre 2014</translation>
    </message>
    <message>
        <source>CIELAB under D50 for the 2° observer, shown in sRGB</source>
        <translation>CIELAB con D50 per l'osservatore a 2°, mostrato in sRGB</translation>
    </message>
    <message>
        <source>Differences of the 24 patches</source>
        <translation>Differenze dei 24 tasselli</translation>
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
        <translation>Media</translation>
    </message>
    <message>
        <source>95 %</source>
        <translation>95 %</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Massimo</translation>
    </message>
    <message>
        <source>Above %1</source>
        <translation>Oltre %1</translation>
    </message>
    <message>
        <source>%1 of each patch, tolerance %2</source>
        <translation>%1 di ogni tassello, tolleranza %2</translation>
    </message>
    <message>
        <source>ΔE*ab: CIE76, the distance in CIELAB. CIE 15, Colorimetry.</source>
        <translation>ΔE*ab: CIE76, la distanza in CIELAB. CIE 15, Colorimetry.</translation>
    </message>
    <message>
        <source>ΔE00: CIEDE2000, all weights 1. CIE 142:2001; ISO/CIE 11664-6.</source>
        <translation>ΔE00: CIEDE2000, tutti i pesi 1. CIE 142:2001; ISO/CIE 11664-6.</translation>
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
        <translation>N.</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Tassello</translation>
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
        <translation>Tassello della serie A</translation>
    </message>
    <message>
        <source>Patch of set B</source>
        <translation>Tassello della serie B</translation>
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
        <translation>Albero con griglia</translation>
    </message>
    <message>
        <source>Colour chart</source>
        <translation>Tavola dei colori</translation>
    </message>
    <message>
        <source>&amp;Grid lines</source>
        <translation>Linee della &amp;griglia</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Tassello</translation>
    </message>
</context>
<context>
    <name>ColourDifferencePage</name>
    <message>
        <source>How far two sets of colours of a chart are apart: as a bar, as swatches, and the spectrum behind a curve.</source>
        <translation>Quanto distano due serie di colori di una tavola: come barra, come campioni, e lo spettro dietro una curva.</translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPage</name>
    <message>
        <source>&amp;Illuminant:</source>
        <translation>&amp;Illuminante:</translation>
    </message>
    <message>
        <source>D&amp;50, prints</source>
        <translation>D&amp;50, stampe</translation>
    </message>
    <message>
        <source>D&amp;65, daylight</source>
        <translation>D&amp;65, luce diurna</translation>
    </message>
    <message>
        <source>&amp;Observer:</source>
        <translation>&amp;Osservatore:</translation>
    </message>
    <message>
        <source>&amp;2° field</source>
        <translation>Campo &amp;2°</translation>
    </message>
    <message>
        <source>&amp;10° field</source>
        <translation>Campo &amp;10°</translation>
    </message>
    <message>
        <source>White point:</source>
        <translation>Punto bianco:</translation>
    </message>
    <message>
        <source>Difference &amp;formula:</source>
        <translation>&amp;Formula della differenza:</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>Toll&amp;eranza:</translation>
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
        <translation>Misura del colore</translation>
    </message>
</context>
<context>
    <name>ColourPreset</name>
    <message>
        <source>It is no colour preset.</source>
        <translation>Non è una preimpostazione colore.</translation>
    </message>
    <message>
        <source>Its version, %1, is not known.</source>
        <translation>La sua versione, %1, non è nota.</translation>
    </message>
    <message>
        <source>"%1" is no rendering intent.</source>
        <translation>«%1» non è un intento di rendering.</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Percettivo</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimetrico relativo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimetrico assoluto</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Il nome è vuoto.</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation>Il nome supera i %1 caratteri.</translation>
    </message>
    <message>
        <source>The name has characters that cannot be shown.</source>
        <translation>Il nome contiene caratteri che non possono essere mostrati.</translation>
    </message>
    <message>
        <source>with black point compensation</source>
        <translation>con compensazione del punto nero</translation>
    </message>
    <message>
        <source>without black point compensation</source>
        <translation>senza compensazione del punto nero</translation>
    </message>
    <message>
        <source>%1, %2, paper L* %3 a* %4 b* %5, at most %6 % ink</source>
        <translation>%1, %2, carta L* %3 a* %4 b* %5, al massimo %6 % d'inchiostro</translation>
    </message>
</context>
<context>
    <name>ColourPresetCollection</name>
    <message>
        <source>Colour presets</source>
        <translation>Preimpostazioni colore</translation>
    </message>
    <message>
        <source>"%1" cannot be saved.</source>
        <translation>Impossibile salvare «%1».</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Questa preimpostazione non esiste.</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Carta patinata</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>Carta da giornale</translation>
    </message>
    <message>
        <source>Contract proof</source>
        <translation>Prova contrattuale</translation>
    </message>
    <message>
        <source>No preset can be loaded.</source>
        <translation>Non è possibile caricare alcuna preimpostazione.</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>Impossibile leggere la cartella «%1».</translation>
    </message>
    <message>
        <source>Nothing can be duplicated.</source>
        <translation>Non c'è nulla da duplicare.</translation>
    </message>
    <message>
        <source>"%1" cannot be imported.</source>
        <translation>Impossibile importare «%1».</translation>
    </message>
    <message>
        <source>"%1" cannot be written.</source>
        <translation>Impossibile scrivere «%1».</translation>
    </message>
    <message>
        <source>That is the folder of the presets themselves.</source>
        <translation>Questa è la cartella delle preimpostazioni stesse.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Non è un file.</translation>
    </message>
    <message>
        <source>"%1" cannot be deleted.</source>
        <translation>Impossibile eliminare «%1».</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>È un collegamento a un'altra posizione.</translation>
    </message>
    <message>
        <source>Another program has changed it in the meantime. Try again if that is to be lost.</source>
        <translation>Nel frattempo un altro programma l'ha modificata. Riprovare se queste modifiche possono andare perse.</translation>
    </message>
    <message>
        <source>Another preset is called "%1".</source>
        <translation>Un'altra preimpostazione si chiama «%1».</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>Impossibile creare la cartella «%1».</translation>
    </message>
</context>
<context>
    <name>ColourPresetForm</name>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>&amp;Intento di rendering:</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>Compensazione del &amp;punto nero</translation>
    </message>
    <message>
        <source>In&amp;k limit:</source>
        <translation>Limite &amp;d'inchiostro:</translation>
    </message>
    <message>
        <source>Paper white:</source>
        <translation>Bianco della carta:</translation>
    </message>
    <message>
        <source>The paper as a screen shows it</source>
        <translation>La carta come la mostra uno schermo</translation>
    </message>
    <message>
        <source>Lightness of the paper</source>
        <translation>Luminosità della carta</translation>
    </message>
    <message>
        <source>Green to red of the paper</source>
        <translation>Dal verde al rosso della carta</translation>
    </message>
    <message>
        <source>Blue to yellow of the paper</source>
        <translation>Dal blu al giallo della carta</translation>
    </message>
</context>
<context>
    <name>ColourPresetPanel</name>
    <message>
        <source>New preset</source>
        <translation>Nuova preimpostazione</translation>
    </message>
    <message>
        <source>Colour presets</source>
        <translation>Preimpostazioni colore</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>Preimpostazione:</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Nessuna preimpostazione</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importa...</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Edit</source>
        <translation>A&amp;nnulla modifica</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Elimina preimpostazione</translation>
    </message>
    <message>
        <source>Delete the preset "%1" for good?</source>
        <translation>Eliminare definitivamente la preimpostazione «%1»?</translation>
    </message>
    <message>
        <source>Change the name in the box and the settings, then save.</source>
        <translation>Modificare il nome nella casella e le impostazioni, poi salvare.</translation>
    </message>
    <message>
        <source>There is no preset. Make a new one, or import one.</source>
        <translation>Non c'è alcuna preimpostazione. Crearne una nuova o importarne una.</translation>
    </message>
    <message>
        <source>The settings can be changed once the preset is edited.</source>
        <translation>Le impostazioni si possono cambiare quando la preimpostazione è in modifica.</translation>
    </message>
    <message>
        <source>Files in "%1" that are no presets, and are left as they are: %2</source>
        <translation>File in «%1» che non sono preimpostazioni e restano invariati: %2</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Salva preimpostazione</translation>
    </message>
    <message>
        <source>The preset "%1" has been edited. Save it?</source>
        <translation>La preimpostazione «%1» è stata modificata. Salvarla?</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>Importa preimpostazione</translation>
    </message>
    <message>
        <source>Colour presets (*.json)</source>
        <translation>Preimpostazioni colore (*.json)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>Esporta preimpostazione</translation>
    </message>
</context>
<context>
    <name>ColourProfileCheck</name>
    <message>
        <source>%1 bytes by the header, %2 in the file.</source>
        <translation>%1 byte secondo l'intestazione, %2 nel file.</translation>
    </message>
    <message>
        <source>The signature is "%1" instead of "acsp".</source>
        <translation>La firma è «%1» invece di «acsp».</translation>
    </message>
    <message>
        <source>Version %1 is not supported.</source>
        <translation>La versione %1 non è supportata.</translation>
    </message>
    <message>
        <source>The device class "%1" is unknown.</source>
        <translation>La classe di dispositivo «%1» è sconosciuta.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Impossibile aprire il file.</translation>
    </message>
    <message>
        <source>The file ends within the header, after %1 bytes.</source>
        <translation>Il file termina all'interno dell'intestazione, dopo %1 byte.</translation>
    </message>
    <message>
        <source>"%1" cannot be used as a colour profile.</source>
        <translation>Impossibile usare «%1» come profilo colore.</translation>
    </message>
</context>
<context>
    <name>ComboBoxPanel</name>
    <message>
        <source>Combo boxes</source>
        <translation>Caselle combinate</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitate</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabilitate</translation>
    </message>
    <message>
        <source>&amp;Measured under:</source>
        <translation>Condizione di &amp;misura:</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>Ca&amp;rta:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Cartella:</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Ri&amp;nomina</translation>
    </message>
    <message>
        <source>Light of a tungsten lamp, the ultraviolet undefined</source>
        <translation>Luce di una lampada al tungsteno, ultravioletto non definito</translation>
    </message>
    <message>
        <source>Daylight D50, the ultraviolet as in D50</source>
        <translation>Luce diurna D50, ultravioletto come in D50</translation>
    </message>
    <message>
        <source>Without ultraviolet</source>
        <translation>Senza ultravioletto</translation>
    </message>
    <message>
        <source>Without ultraviolet, with polarising filters</source>
        <translation>Senza ultravioletto, con filtri polarizzatori</translation>
    </message>
    <message>
        <source>Focus lost: %1</source>
        <translation>Focus perso: %1</translation>
    </message>
    <message>
        <source>Measured under</source>
        <translation>Condizione di misura</translation>
    </message>
    <message>
        <source>Measured under, disabled</source>
        <translation>Condizione di misura, disabilitata</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Paper, disabled</source>
        <translation>Carta, disabilitata</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Folder, disabled</source>
        <translation>Cartella, disabilitata</translation>
    </message>
</context>
<context>
    <name>ContainersPage</name>
    <message>
        <source>What holds other widgets: a flow of equal cells, a square, splitters with a grip, group boxes that fold or have a bold title; and labels that are turned.</source>
        <translation>Ciò che contiene altri widget: un flusso di celle uguali, un quadrato, divisori con maniglia, riquadri di gruppo che si ripiegano o hanno un titolo in grassetto; ed etichette ruotate.</translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Numbers with a slider beside them, switches, and spin boxes that read as a plain value when they are disabled; and the state of a whole window in one call.</source>
        <translation>Numeri con accanto un cursore, interruttori, e caselle numeriche che da disabilitate si leggono come un semplice valore; e lo stato di un'intera finestra in una sola chiamata.</translation>
    </message>
</context>
<context>
    <name>CredentialPanel</name>
    <message>
        <source>Credential dialog</source>
        <translation>Finestra delle credenziali</translation>
    </message>
    <message>
        <source>Ask for &amp;Credentials...</source>
        <translation>C&amp;hiedi le credenziali...</translation>
    </message>
    <message>
        <source>Offer to r&amp;emember</source>
        <translation>&amp;Offri di ricordare</translation>
    </message>
    <message>
        <source>With the offer the dialog calls back at each OK with both fields filled in; the host asks by itself whether "Remember" is checked.</source>
        <translation>Con l'offerta la finestra richiama il programma a ogni OK con entrambi i campi compilati; il programma verifica da sé se «Ricorda» è selezionato.</translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation>Non ancora chieste.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annullato.</translation>
    </message>
    <message>
        <source>User: %1.</source>
        <translation>Utente: %1.</translation>
    </message>
    <message>
        <source>Characters of the password: %1.</source>
        <translation>Caratteri della password: %1.</translation>
    </message>
    <message>
        <source>The callback was called.</source>
        <translation>La funzione di richiamo è stata chiamata.</translation>
    </message>
    <message>
        <source>The callback was not called.</source>
        <translation>La funzione di richiamo non è stata chiamata.</translation>
    </message>
    <message>
        <source>"Remember" is checked.</source>
        <translation>«Ricorda» è selezionato.</translation>
    </message>
    <message>
        <source>"Remember" is not checked.</source>
        <translation>«Ricorda» non è selezionato.</translation>
    </message>
</context>
<context>
    <name>DatabasePage</name>
    <message>
        <source>The panel for the place of a program's data: its internal database or a server. Switch on a real MariaDB server on this computer, choose what is to go wrong, and turn the pages of a million measurements in either database.</source>
        <translation>Il pannello per la posizione dei dati di un programma: il suo database interno o un server. Attivare un vero server MariaDB su questo computer, scegliere che cosa deve andare storto e sfogliare le pagine di un milione di misure nell'uno o nell'altro database.</translation>
    </message>
    <message>
        <source>Database panel</source>
        <translation>Pannello del database</translation>
    </message>
</context>
<context>
    <name>DatabaseServerPanel</name>
    <message>
        <source>Local MariaDB server</source>
        <translation>Server MariaDB locale</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>&amp;Problema:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Password errata</translation>
    </message>
    <message>
        <source>No right to the database</source>
        <translation>Nessun diritto sul database</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Server muto</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nessuno in ascolto</translation>
    </message>
</context>
<context>
    <name>DatabaseSettingsPanel</name>
    <message>
        <source>Settings and dialog</source>
        <translation>Impostazioni e finestra di dialogo</translation>
    </message>
    <message>
        <source>S&amp;how Settings</source>
        <translation>&amp;Mostra impostazioni</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>Sal&amp;va</translation>
    </message>
    <message>
        <source>As&amp;k...</source>
        <translation>C&amp;hiedi...</translation>
    </message>
    <message>
        <source>Settings of the database</source>
        <translation>Impostazioni del database</translation>
    </message>
    <message>
        <source>Where to Keep the Measurements</source>
        <translation>Dove conservare le misure</translation>
    </message>
    <message>
        <source>As they stand in the panel, whether they work or not.</source>
        <translation>Come sono nel pannello, che funzionino o no.</translation>
    </message>
    <message>
        <source>Saved: a connection can be opened.</source>
        <translation>Salvate: è possibile aprire una connessione.</translation>
    </message>
    <message>
        <source>Nothing to save: no connection can be opened.</source>
        <translation>Niente da salvare: non è possibile aprire alcuna connessione.</translation>
    </message>
    <message>
        <source>Confirmed in the dialog: a connection can be opened.</source>
        <translation>Confermate nella finestra di dialogo: è possibile aprire una connessione.</translation>
    </message>
    <message>
        <source>Cancelled, or no connection can be opened.</source>
        <translation>Annullato, oppure non è possibile aprire alcuna connessione.</translation>
    </message>
</context>
<context>
    <name>DictionaryView</name>
    <message>
        <source>Key</source>
        <translation>Chiave</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
</context>
<context>
    <name>DifferenceBarPanel</name>
    <message>
        <source>Differences of the pairs</source>
        <translation>Differenze delle coppie</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Formula:</translation>
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
        <translation>Formula</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>&amp;Coppie:</translation>
    </message>
    <message>
        <source>Same patches</source>
        <translation>Tasselli uguali</translation>
    </message>
    <message>
        <source>Different patches</source>
        <translation>Tasselli diversi</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Coppie</translation>
    </message>
    <message>
        <source>Limit:</source>
        <translation>Limite:</translation>
    </message>
    <message>
        <source>%1 of %2 pairs are below the limit of %3. The mean is %4, and %5 % of the pairs are below it; the largest difference is %6.</source>
        <translation>%1 coppie su %2 sono sotto il limite di %3. La media è %4, e il %5 % delle coppie è al di sotto; la differenza massima è %6.</translation>
    </message>
</context>
<context>
    <name>DifferenceLegend</name>
    <message>
        <source>Colour difference by CIEDE2000. Up to %1: close.</source>
        <translation>Differenza di colore secondo CIEDE2000. Fino a %1: piccola.</translation>
    </message>
    <message>
        <source>Colours of the difference</source>
        <translation>Colori della differenza</translation>
    </message>
</context>
<context>
    <name>DisabledSpinBoxPanel</name>
    <message>
        <source>Spin boxes that are disabled</source>
        <translation>Caselle numeriche disabilitate</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitate</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabilitate</translation>
    </message>
    <message>
        <source>%1, enabled</source>
        <translation>%1, abilitata</translation>
    </message>
    <message>
        <source>%1, disabled</source>
        <translation>%1, disabilitata</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>S&amp;cambia</translation>
    </message>
</context>
<context>
    <name>DragDropEmissions</name>
    <message>
        <source>Signals</source>
        <translation>Segnali</translation>
    </message>
    <message>
        <source>Signals o&amp;f the page: %1</source>
        <translation>Segnali &amp;della pagina: %1</translation>
    </message>
    <message>
        <source>Signals of the page</source>
        <translation>Segnali della pagina</translation>
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
        <translation>Un campo che accetta file trascinati da qui o da qualsiasi programma, e cartelle che si ordinano trascinandole, in due viste che restano allineate.</translation>
    </message>
</context>
<context>
    <name>DriveManagerPanel</name>
    <message>
        <source>Manager window</source>
        <translation>Finestra di gestione</translation>
    </message>
    <message>
        <source>S&amp;hare:</source>
        <translation>Co&amp;ndivisione:</translation>
    </message>
    <message>
        <source>Add &amp;Drive</source>
        <translation>Aggiungi &amp;unità</translation>
    </message>
    <message>
        <source>Re&amp;move Added Drives</source>
        <translation>Rimuovi le unità &amp;aggiunte</translation>
    </message>
    <message>
        <source>Show F&amp;older</source>
        <translation>Mostra &amp;cartella</translation>
    </message>
    <message>
        <source>Check "Enabled", and all active drives in the list are connected, your own too. A connected drive is a link in "%1". The editor knows no port: a drive that you type in or edit leads to the standard port 445, not to the server above. Added drives are removed when the gallery ends; one that you have edited is yours, and stays.</source>
        <translation>Selezionando «Abilitato» vengono connesse tutte le unità attive dell'elenco, anche le proprie. Un'unità connessa è un collegamento in «%1». L'editor non prevede una porta: un'unità immessa o modificata a mano conduce alla porta standard 445, non al server qui sopra. Le unità aggiunte vengono rimosse alla chiusura della galleria; un'unità modificata appartiene all'utente e resta.</translation>
    </message>
    <message>
        <source>Added: %1.</source>
        <translation>Aggiunta: %1.</translation>
    </message>
    <message>
        <source>Added: %1. Check "Enabled" to have it connected.</source>
        <translation>Aggiunta: %1. Selezionare «Abilitato» per connetterla.</translation>
    </message>
    <message>
        <source>%1 is yours now, and leads to port %2: the editor knows no port. Remove it with "-".</source>
        <translation>%1 ora appartiene all'utente e conduce alla porta %2: l'editor non prevede una porta. Rimuoverla con «-».</translation>
    </message>
    <message>
        <source>All drive letters are taken.</source>
        <translation>Tutte le lettere di unità sono occupate.</translation>
    </message>
    <message>
        <source>No drive has been connected yet: there is no folder "%1".</source>
        <translation>Nessuna unità è ancora stata connessa: la cartella «%1» non esiste.</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>Nessun programma mostra la cartella «%1».</translation>
    </message>
</context>
<context>
    <name>DriveSessionPanel</name>
    <message>
        <source>Lo&amp;g of the drives:</source>
        <translation>Registro &amp;delle unità:</translation>
    </message>
    <message>
        <source>S&amp;ignals of the manager:</source>
        <translation>Segnali della &amp;gestione:</translation>
    </message>
</context>
<context>
    <name>DrivesPage</name>
    <message>
        <source>Drives of file servers that a program keeps connected. Switch on a real Samba server on this computer, choose what is to go wrong, add its drives to the list, and see how they stand.</source>
        <translation>Unità di server di file che un programma tiene connesse. Attivare un vero server Samba su questo computer, scegliere che cosa deve andare storto, aggiungere le sue unità all'elenco e osservarne lo stato.</translation>
    </message>
</context>
<context>
    <name>EmbeddingPanel</name>
    <message>
        <source>OK was clicked, and the dialog stays in the page.</source>
        <translation>È stato fatto clic su OK, e il dialogo resta nella pagina.</translation>
    </message>
    <message>
        <source>OK closed the window; its colour was taken over.</source>
        <translation>OK ha chiuso la finestra; il suo colore è stato adottato.</translation>
    </message>
    <message>
        <source>Cancel closed the window; the colour stays as it was.</source>
        <translation>«Annulla» ha chiuso la finestra; il colore resta com'era.</translation>
    </message>
    <message>
        <source>A dialog in two places</source>
        <translation>Un dialogo in due posti</translation>
    </message>
    <message>
        <source>Part of the page, the dialog is not ended by its buttons. As a window it is, and hands its colour over.</source>
        <translation>Come parte della pagina, il dialogo non viene chiuso dai suoi pulsanti. Come finestra sì, e consegna il suo colore.</translation>
    </message>
    <message>
        <source>Open as &amp;Window</source>
        <translation>Apri &amp;come finestra</translation>
    </message>
</context>
<context>
    <name>EmissionList</name>
    <message>
        <source>&amp;Clear</source>
        <translation>S&amp;vuota</translation>
    </message>
</context>
<context>
    <name>EncodedTextFile</name>
    <message>
        <source>There is no codec "%1".</source>
        <translation>Il codec «%1» non esiste.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Non è un file.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Impossibile leggerlo: %1.</translation>
    </message>
</context>
<context>
    <name>EncodingPanel</name>
    <message>
        <source>Text File</source>
        <translation>File di testo</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>File di testo (*.txt);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Default encoding</source>
        <translation>Codifica predefinita</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>S&amp;alva</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>Ca&amp;rica</translation>
    </message>
    <message>
        <source>&amp;Text file:</source>
        <translation>&amp;File di testo:</translation>
    </message>
    <message>
        <source>Example in UTF-8</source>
        <translation>Esempio in UTF-8</translation>
    </message>
    <message>
        <source>Example in ISO-8859-1</source>
        <translation>Esempio in ISO-8859-1</translation>
    </message>
    <message>
        <source>Choose &amp;File...</source>
        <translation>Sce&amp;gli file...</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>Testo del file</translation>
    </message>
    <message>
        <source>The file is not shown. %1</source>
        <translation>Il file non viene mostrato. %1</translation>
    </message>
    <message>
        <source>Bytes read as %1: %2.</source>
        <translation>Byte letti come %1: %2.</translation>
    </message>
    <message>
        <source>Places that this encoding cannot read: %1.</source>
        <translation>Punti che questa codifica non può leggere: %1.</translation>
    </message>
    <message>
        <source>The rest of the file is not shown.</source>
        <translation>Il resto del file non viene mostrato.</translation>
    </message>
</context>
<context>
    <name>ErrorBoxPanel</name>
    <message>
        <source>Show it</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Short:</source>
        <translation>Breve:</translation>
    </message>
    <message>
        <source>With details:</source>
        <translation>Con dettagli:</translation>
    </message>
    <message>
        <source>a line for each nested error</source>
        <translation>una riga per ogni errore annidato</translation>
    </message>
    <message>
        <source>nested errors folded away</source>
        <translation>errori annidati compressi</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>In&amp;formazione</translation>
    </message>
    <message>
        <source>&amp;Question</source>
        <translation>Do&amp;manda</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>&amp;Avviso</translation>
    </message>
    <message>
        <source>&amp;Critical</source>
        <translation>&amp;Critico</translation>
    </message>
    <message>
        <source>In&amp;formation</source>
        <comment>with details</comment>
        <translation>Informa&amp;zione</translation>
    </message>
    <message>
        <source>Q&amp;uestion</source>
        <comment>with details</comment>
        <translation>D&amp;omanda</translation>
    </message>
    <message>
        <source>War&amp;ning</source>
        <comment>with details</comment>
        <translation>A&amp;vviso</translation>
    </message>
    <message>
        <source>C&amp;ritical</source>
        <comment>with details</comment>
        <translation>C&amp;ritico</translation>
    </message>
    <message>
        <source>%1, short</source>
        <translation>%1, breve</translation>
    </message>
    <message>
        <source>%1, with details</source>
        <translation>%1, con dettagli</translation>
    </message>
</context>
<context>
    <name>ErrorComposer</name>
    <message>
        <source>Read a File as a Colour Profile</source>
        <translation>Leggi un file come profilo colore</translation>
    </message>
    <message>
        <source>Compose an error</source>
        <translation>Componi un errore</translation>
    </message>
    <message>
        <source>E&amp;xample:</source>
        <translation>&amp;Esempio:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Sfo&amp;glia...</translation>
    </message>
    <message>
        <source>Reads another file as a colour profile.</source>
        <translation>Legge un altro file come profilo colore.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>T&amp;itolo:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Without a title the domain stands in</source>
        <translation>Senza titolo vale al suo posto l'ambito</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descrizione:</translation>
    </message>
    <message>
        <source>D&amp;omain:</source>
        <translation>Am&amp;bito:</translation>
    </message>
    <message>
        <source>N&amp;ested errors:</source>
        <translation>Errori a&amp;nnidati:</translation>
    </message>
    <message>
        <source>One a line; two blanks put it below the line above</source>
        <translation>Uno per riga; due spazi lo mettono sotto la riga precedente</translation>
    </message>
    <message>
        <source>Com&amp;plete text:</source>
        <translation>Testo com&amp;pleto:</translation>
    </message>
    <message>
        <source>An error with nothing to say opens no box.</source>
        <translation>Un errore che non ha nulla da dire non apre alcuna finestra.</translation>
    </message>
</context>
<context>
    <name>ErrorExamples</name>
    <message>
        <source>Colour Profile</source>
        <translation>Profilo colore</translation>
    </message>
    <message>
        <source>The password of the measuring device cannot be read.</source>
        <translation>Impossibile leggere la password dello strumento di misura.</translation>
    </message>
    <message>
        <source>A file read as a colour profile</source>
        <translation>Un file letto come profilo colore</translation>
    </message>
    <message>
        <source>A password that was never enciphered</source>
        <translation>Una password mai cifrata</translation>
    </message>
    <message>
        <source>Reasons without a description</source>
        <translation>Motivi senza descrizione</translation>
    </message>
    <message>
        <source>Nothing to report</source>
        <translation>Niente da segnalare</translation>
    </message>
</context>
<context>
    <name>ErrorsPage</name>
    <message>
        <source>How a failure reaches the user: an error with the errors that led to it, the boxes that show it, and the manual.</source>
        <translation>Come un problema arriva all'utente: un errore con gli errori che l'hanno causato, le finestre che lo mostrano e il manuale.</translation>
    </message>
</context>
<context>
    <name>FeedbackFieldsPanel</name>
    <message>
        <source>Extra fields of the program</source>
        <translation>Campi aggiuntivi del programma</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Add F&amp;ield</source>
        <translation>&amp;Aggiungi campo</translation>
    </message>
    <message>
        <source>Re&amp;move Field</source>
        <translation>Rimuovi &amp;campo</translation>
    </message>
</context>
<context>
    <name>FeedbackFormPanel</name>
    <message>
        <source>Press room</source>
        <translation>Reparto stampa</translation>
    </message>
    <message>
        <source>Colour differences</source>
        <translation>Differenze di colore</translation>
    </message>
    <message>
        <source>The limit of the difference bar could be typed as well.</source>
        <translation>Il limite della barra delle differenze si potrebbe anche digitare.</translation>
    </message>
    <message>
        <source>Feedback form</source>
        <translation>Modulo di feedback</translation>
    </message>
    <message>
        <source>Open as &amp;Dialog</source>
        <translation>Apri come &amp;dialogo</translation>
    </message>
    <message>
        <source>A note goes to port 5050 of this computer, and nowhere else; the service takes it there while it is on. The form waits for the answer as long as it takes, and nothing can be pressed meanwhile.
It tells success only if part of the answer still comes in while it reads. An answer that has come whole, as from this computer, is not looked at: the form then says that the service may be unavailable, for an accepted note too. What has arrived stands in the session.</source>
        <translation>Un messaggio va alla porta 5050 di questo computer e in nessun altro luogo; lì lo accoglie il servizio, finché è attivo. Il modulo attende la risposta per tutto il tempo necessario, e intanto non si può premere nulla.
Segnala il successo solo se durante la lettura arriva ancora una parte della risposta. Una risposta già arrivata per intero, come da questo computer, non viene esaminata: il modulo dice allora che il servizio potrebbe non essere disponibile, anche per un messaggio accettato. Ciò che è arrivato si trova nella sessione.</translation>
    </message>
</context>
<context>
    <name>FeedbackPage</name>
    <message>
        <source>The form with which a user writes to the makers of a program. Switch on a real feedback service on this computer, choose what it answers, and submit a note.</source>
        <translation>Il modulo con cui un utente scrive agli autori di un programma. Attivare un vero servizio di feedback su questo computer, scegliere che cosa risponde e inviare un messaggio.</translation>
    </message>
</context>
<context>
    <name>FeedbackServicePanel</name>
    <message>
        <source>Local feedback service</source>
        <translation>Servizio di feedback locale</translation>
    </message>
    <message>
        <source>Ans&amp;wer:</source>
        <translation>Ris&amp;posta:</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Accettato</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rifiutato</translation>
    </message>
    <message>
        <source>Accepted after %1 seconds</source>
        <translation>Accettato dopo %1 secondi</translation>
    </message>
    <message>
        <source>Answer that breaks off</source>
        <translation>Risposta che si interrompe</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>Risposta che non è JSON</translation>
    </message>
    <message>
        <source>Status 500</source>
        <translation>Stato 500</translation>
    </message>
</context>
<context>
    <name>FeedbackSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>Che cosa &amp;ha ricevuto il servizio:</translation>
    </message>
    <message>
        <source>Signals of t&amp;he form and its dialog:</source>
        <translation>Segnali del &amp;modulo e del suo dialogo:</translation>
    </message>
</context>
<context>
    <name>FileDigests</name>
    <message>
        <source>Looking for files</source>
        <translation>Ricerca di file in corso</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lettura di %1</translation>
    </message>
</context>
<context>
    <name>FileDropPanel</name>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Files of the &amp;gallery:</source>
        <translation>&amp;File della galleria:</translation>
    </message>
    <message>
        <source>Files of the gallery</source>
        <translation>File della galleria</translation>
    </message>
    <message>
        <source>&amp;Put Into Field</source>
        <translation>&amp;Metti nel campo</translation>
    </message>
    <message>
        <source>&amp;Dropped file:</source>
        <translation>File rilas&amp;ciato:</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Trascinare qui i file</translation>
    </message>
    <message>
        <source>Nothing dropped yet</source>
        <translation>Ancora nessun file rilasciato</translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation>Rilasciati: %1</translation>
    </message>
    <message>
        <source>Dropped: %1, not on this computer: %2</source>
        <translation>Rilasciati: %1, di cui non su questo computer: %2</translation>
    </message>
</context>
<context>
    <name>FolderDropPanel</name>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>In your own &amp;order:</source>
        <translation>In &amp;ordine personale:</translation>
    </message>
    <message>
        <source>In alphab&amp;etical order:</source>
        <translation>In ordine alfa&amp;betico:</translation>
    </message>
    <message>
        <source>Folders in your own order</source>
        <translation>Cartelle in ordine personale</translation>
    </message>
    <message>
        <source>Folders in alphabetical order</source>
        <translation>Cartelle in ordine alfabetico</translation>
    </message>
    <message>
        <source>&amp;May be dropped:</source>
        <translation>R&amp;ilascio consentito:</translation>
    </message>
    <message>
        <source>Onto folders and between them</source>
        <translation>Su e tra le cartelle</translation>
    </message>
    <message>
        <source>Onto folders only</source>
        <translation>Solo sulle cartelle</translation>
    </message>
    <message>
        <source>Between folders only</source>
        <translation>Solo tra le cartelle</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>In nessun punto</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>N&amp;uova cartella</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>S&amp;posta su</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Sposta &amp;giù</translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation>Sposta de&amp;ntro</translation>
    </message>
    <message>
        <source>Move Ou&amp;t</source>
        <translation>Spost&amp;a fuori</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>New folder %1</source>
        <translation>Nuova cartella %1</translation>
    </message>
    <message>
        <source>“%1” is removed</source>
        <translation>«%1» è stata rimossa</translation>
    </message>
    <message>
        <source>“%1” is moved</source>
        <translation>«%1» è stata spostata</translation>
    </message>
    <message>
        <source>“%1” cannot move there</source>
        <translation>«%1» non può essere spostata lì</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Papers</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Uncoated</source>
        <translation>Non patinata</translation>
    </message>
    <message>
        <source>Coated, glossy</source>
        <translation>Patinata lucida</translation>
    </message>
    <message>
        <source>Coated, matt</source>
        <translation>Patinata opaca</translation>
    </message>
    <message>
        <source>Proofs</source>
        <translation>Prove colore</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>Schermi</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>Laptops</source>
        <translation>Portatili</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Tavole</translation>
    </message>
    <message>
        <source>24 colours</source>
        <translation>24 colori</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>Scala di grigi</translation>
    </message>
</context>
<context>
    <name>FolderJobBar</name>
    <message>
        <source>Relative paths start at the program's folder; several paths are separated by "%1".</source>
        <translation>I percorsi relativi partono dalla cartella del programma; più percorsi vanno separati con «%1».</translation>
    </message>
</context>
<context>
    <name>FolderLogEntry</name>
    <message>
        <source>The folder is empty.</source>
        <translation>La cartella è vuota.</translation>
    </message>
    <message>
        <source>Broken link: %1</source>
        <translation>Collegamento interrotto: %1</translation>
    </message>
    <message>
        <source>Very long name: %1</source>
        <translation>Nome molto lungo: %1</translation>
    </message>
    <message>
        <source>No right to read: %1</source>
        <translation>Nessun diritto di lettura: %1</translation>
    </message>
    <message>
        <source>No right to list the folder.</source>
        <translation>Nessun diritto di elencare il contenuto della cartella.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La cartella non esiste.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Questo è un file, non una cartella.</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>Dimensione totale: %1</translation>
    </message>
    <message>
        <source>Changed last: %1</source>
        <translation>File più recente: %1</translation>
    </message>
    <message>
        <source>Further findings are not listed.</source>
        <translation>Gli altri risultati non sono elencati.</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Cartella %1</translation>
    </message>
    <message>
        <source>Scan finished after %1 s</source>
        <translation>Scansione completata dopo %1 s</translation>
    </message>
    <message>
        <source>Scan cancelled after %1 s</source>
        <translation>Scansione annullata dopo %1 s</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Cartelle: %1</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>Avvisi: %1</translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation>Errori: %1</translation>
    </message>
</context>
<context>
    <name>FolderScanPanel</name>
    <message>
        <source>Folder scan with a spinner</source>
        <translation>Scansione di cartelle con indicatore di attesa</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Cartella:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>Avvia sca&amp;nsione</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>Scansione di una cartella</translation>
    </message>
    <message>
        <source>Spinner si&amp;ze:</source>
        <translation>&amp;Dimensione dell'indicatore:</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 pixel</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Changed last</source>
        <translation>Più recente</translation>
    </message>
    <message>
        <source>Largest folders</source>
        <translation>Cartelle più grandi</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3 so far</source>
        <translation>Cartelle: %1, file: %2, finora %3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3</source>
        <translation>Cartelle: %1, file: %2, %3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3; cancelled</source>
        <translation>Cartelle: %1, file: %2, %3; annullata</translation>
    </message>
</context>
<context>
    <name>FoldingPanel</name>
    <message>
        <source>Folding group box</source>
        <translation>Riquadro di gruppo ripiegabile</translation>
    </message>
    <message>
        <source>C&amp;onversion</source>
        <translation>C&amp;onversione</translation>
    </message>
    <message>
        <source>Rendering intent:</source>
        <translation>Intento di rendering:</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Percettivo</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimetrico relativo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimetrico assoluto</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>Compensazione &amp;del punto nero</translation>
    </message>
    <message>
        <source>Simulate the paper</source>
        <translation>Simula la carta</translation>
    </message>
    <message>
        <source>The black point counts for relative colorimetric alone.</source>
        <translation>Il punto nero conta solo per il colorimetrico relativo.</translation>
    </message>
    <message>
        <source>&amp;Keep the note hidden</source>
        <translation>Ti&amp;eni nascosta la nota</translation>
    </message>
    <message>
        <source>black point compensated</source>
        <translation>punto nero compensato</translation>
    </message>
    <message>
        <source>paper simulated</source>
        <translation>carta simulata</translation>
    </message>
</context>
<context>
    <name>FontsPanel</name>
    <message>
        <source>Fonts</source>
        <translation>Caratteri</translation>
    </message>
    <message>
        <source>There are no fonts in %1</source>
        <translation>Non ci sono caratteri in %1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>family and file</comment>
        <translation>%1, da %2</translation>
    </message>
    <message>
        <source>This file is no font.</source>
        <translation>Questo file non è un carattere.</translation>
    </message>
    <message>
        <source>Specimen of %1</source>
        <translation>Campione di %1</translation>
    </message>
</context>
<context>
    <name>FtpConfigurationPanel</name>
    <message>
        <source>FTP panel</source>
        <translation>Pannello FTP</translation>
    </message>
    <message>
        <source>Show stat&amp;us</source>
        <translation>&amp;Mostra stato</translation>
    </message>
    <message>
        <source>Show &amp;box "Active"</source>
        <translation>Mostra la &amp;casella «Attivo»</translation>
    </message>
    <message>
        <source>Show box "&amp;Erase"</source>
        <translation>Mostra la casella «&amp;Elimina»</translation>
    </message>
    <message>
        <source>&amp;Importer</source>
        <translation>Importa&amp;zione</translation>
    </message>
</context>
<context>
    <name>FtpPage</name>
    <message>
        <source>The panel for an FTP or SFTP server to import from or to export to. Switch on a real server on this computer, choose what is to go wrong, and check the connection.</source>
        <translation>Il pannello per un server FTP o SFTP da cui importare o verso cui esportare. Attivare un vero server su questo computer, scegliere che cosa deve andare storto e verificare la connessione.</translation>
    </message>
</context>
<context>
    <name>FtpServerPanel</name>
    <message>
        <source>Local server</source>
        <translation>Server locale</translation>
    </message>
    <message>
        <source>Protoc&amp;ol:</source>
        <translation>&amp;Protocollo:</translation>
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
        <translation>Pro&amp;blema:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Password errata</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Server muto</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nessuno in ascolto</translation>
    </message>
</context>
<context>
    <name>FtpSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>Che cosa &amp;ha ricevuto il server:</translation>
    </message>
    <message>
        <source>Signals of t&amp;he panel:</source>
        <translation>Segnali &amp;del pannello:</translation>
    </message>
</context>
<context>
    <name>FtpSettingsPanel</name>
    <message>
        <source>Settings and dialogs</source>
        <translation>Impostazioni e finestre di dialogo</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Mostra impostazio&amp;ni</translation>
    </message>
    <message>
        <source>I&amp;mport Dialog...</source>
        <translation>&amp;Finestra di importazione...</translation>
    </message>
    <message>
        <source>E&amp;xport Dialog...</source>
        <translation>Finestr&amp;a di esportazione...</translation>
    </message>
    <message>
        <source>Where the jobs come from</source>
        <translation>Da dove vengono i lavori</translation>
    </message>
    <message>
        <source>Where the jobs go to</source>
        <translation>Dove vanno i lavori</translation>
    </message>
</context>
<context>
    <name>GalleryAboutWindow</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galleria TXGUICommon</translation>
    </message>
    <message>
        <source>with Qt %1</source>
        <translation>con Qt %1</translation>
    </message>
</context>
<context>
    <name>GalleryCommandLine</name>
    <message>
        <source>Shows what the TXGUICommon library has to offer.</source>
        <translation>Mostra ciò che offre la libreria TXGUICommon.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Mostra questo aiuto ed esce.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
    <message>
        <source>Open at this page: %1.</source>
        <translation>Apre a questa pagina: %1.</translation>
    </message>
    <message>
        <source>file|folder</source>
        <translation>file|cartella</translation>
    </message>
    <message>
        <source>Save a picture of the named page as this PNG file, or of every page into this folder, print the paths and exit.</source>
        <translation>Salva un'immagine della pagina indicata in questo file PNG, o di ogni pagina in questa cartella, mostra i percorsi ed esce.</translation>
    </message>
    <message>
        <source>Widget style: %1.</source>
        <translation>Stile dei widget: %1.</translation>
    </message>
    <message>
        <source>Colours.</source>
        <translation>Colori.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>codice</translation>
    </message>
    <message>
        <source>Language of the texts, as en.</source>
        <translation>Lingua dei testi, per esempio en.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 richiede un valore.</translation>
    </message>
    <message>
        <source>Unexpected argument "%1".</source>
        <translation>Argomento imprevisto «%1».</translation>
    </message>
    <message>
        <source>There is no page "%1". The pages are: %2.</source>
        <translation>La pagina «%1» non esiste. Le pagine sono: %2.</translation>
    </message>
    <message>
        <source>There is no style "%1". The styles are: %2.</source>
        <translation>Lo stile «%1» non esiste. Gli stili sono: %2.</translation>
    </message>
    <message>
        <source>There is no language "%1". The languages are: %2.</source>
        <translation>La lingua «%1» non esiste. Le lingue sono: %2.</translation>
    </message>
    <message>
        <source>There is no palette "%1". The palettes are: light, dark, contrast.</source>
        <translation>La tavolozza «%1» non esiste. Le tavolozze sono: light, dark, contrast.</translation>
    </message>
</context>
<context>
    <name>GalleryGrabber</name>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>Impossibile creare la cartella «%1».</translation>
    </message>
    <message>
        <source>The page "%1" was not ready after %2 seconds.</source>
        <translation>La pagina «%1» non era pronta dopo %2 secondi.</translation>
    </message>
    <message>
        <source>The picture "%1" cannot be written: %2.</source>
        <translation>Impossibile scrivere l'immagine «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>GalleryHeader</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galleria TXGUICommon</translation>
    </message>
    <message>
        <source>P&amp;alette</source>
        <translation>&amp;Tavolozza</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Stile</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Informazioni...</translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <comment>key of the button About...</comment>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>About this program (%1)</source>
        <translation>Informazioni su questo programma (%1)</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiara</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scura</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Tavolozza</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>Contrasto elevato</translation>
    </message>
</context>
<context>
    <name>GalleryPages</name>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errori</translation>
    </message>
    <message>
        <source>Busy and progress</source>
        <translation>Attesa e avanzamento</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controlli</translation>
    </message>
    <message>
        <source>Lists and delegates</source>
        <translation>Elenchi e delegati</translation>
    </message>
    <message>
        <source>Containers and labels</source>
        <translation>Contenitori ed etichette</translation>
    </message>
    <message>
        <source>Drag and drop</source>
        <translation>Trascinamento</translation>
    </message>
    <message>
        <source>Selection bar</source>
        <translation>Barra di selezione</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Posta</translation>
    </message>
    <message>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Web interface</source>
        <translation>Interfaccia web</translation>
    </message>
    <message>
        <source>Trigger and encoding</source>
        <translation>Attivazione e codifica</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Colour difference</source>
        <translation>Differenza di colore</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Feedback</translation>
    </message>
    <message>
        <source>Language and style</source>
        <translation>Lingua e stile</translation>
    </message>
    <message>
        <source>Splash and About</source>
        <translation>Avvio e informazioni</translation>
    </message>
</context>
<context>
    <name>GallerySplash</name>
    <message>
        <source>Loading the fonts...</source>
        <translation>Caricamento dei caratteri...</translation>
    </message>
    <message>
        <source>Loading the pages...</source>
        <translation>Caricamento delle pagine...</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>%1 - TXGUICommon Gallery</source>
        <translation>%1 - Galleria TXGUICommon</translation>
    </message>
</context>
<context>
    <name>ImageViewBar</name>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Adatta</translation>
    </message>
    <message>
        <source>The whole picture in each zone, also when the window changes</source>
        <translation>L'intera immagine in ogni riquadro, anche quando la finestra cambia</translation>
    </message>
    <message>
        <source>S&amp;hare</source>
        <translation>&amp;Ripartisci</translation>
    </message>
    <message>
        <source>Each zone's share of the width: a half with two pictures, also when the window changes</source>
        <translation>La parte di larghezza di ogni riquadro: metà con due immagini, anche quando la finestra cambia</translation>
    </message>
    <message>
        <source>1&amp;00 %</source>
        <translation>1&amp;00 %</translation>
    </message>
    <message>
        <source>A pixel of the picture as one of the screen</source>
        <translation>Un pixel dell'immagine come uno dello schermo</translation>
    </message>
    <message>
        <source>Scal&amp;e:</source>
        <translation>S&amp;cala:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>A&amp;nnotazioni</translation>
    </message>
    <message>
        <source>Names of the pictures, outlines and numbers of the patches</source>
        <translation>Nomi delle immagini, contorni e numeri dei tasselli</translation>
    </message>
    <message>
        <source>&amp;Marker</source>
        <translation>&amp;Marcatore</translation>
    </message>
    <message>
        <source>A crosshair at the same place in all pictures</source>
        <translation>Un mirino nello stesso punto di tutte le immagini</translation>
    </message>
</context>
<context>
    <name>ImagesPage</name>
    <message>
        <source>Pictures side by side at one scale and position: a colour chart, the same chart in a simulated print, and how the two differ. Drag them, and turn the wheel to look closer.</source>
        <translation>Immagini affiancate con una sola scala e posizione: una tavola dei colori, la stessa tavola in una stampa simulata, e la differenza tra le due. Trascinarle, e girare la rotellina per guardare più da vicino.</translation>
    </message>
    <message>
        <source>Pictures side by side</source>
        <translation>Immagini affiancate</translation>
    </message>
    <message>
        <source>Just a moment...</source>
        <translation>Un momento...</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Tavola</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The print is computed: paper that is not white, ink that is not black, dots that grow by %1 percent and a trace of their screen. It shows what these four do, and is no proof of what a press would print.</source>
        <translation>La stampa è calcolata: carta che non è bianca, inchiostro che non è nero, punti che crescono del %1 percento e una traccia del loro retino. Mostra l'effetto di questi quattro fattori, e non è una prova colore di ciò che produrrebbe una macchina da stampa.</translation>
    </message>
    <message>
        <source>The first %1 of %2 files.</source>
        <translation>I primi %1 di %2 file.</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>The pictures differ in size: %1 pixels. All are laid out by the first.</source>
        <translation>Le immagini hanno dimensioni diverse: %1 pixel. Tutte vengono disposte secondo la prima.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>What was shown before stays.</source>
        <translation>Resta ciò che era mostrato prima.</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Impossibile leggerlo: %1.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Non è un file.</translation>
    </message>
</context>
<context>
    <name>JsonObjectReader</name>
    <message>
        <source>It holds no JSON object.</source>
        <translation>Non contiene alcun oggetto JSON.</translation>
    </message>
    <message>
        <source>"%1" is not known.</source>
        <translation>«%1» non è noto.</translation>
    </message>
    <message>
        <source>"%1" is no text.</source>
        <translation>«%1» non è un testo.</translation>
    </message>
    <message>
        <source>"%1" is neither true nor false.</source>
        <translation>«%1» non è né true né false.</translation>
    </message>
    <message>
        <source>"%1" is no number from %2 to %3.</source>
        <translation>«%1» non è un numero da %2 a %3.</translation>
    </message>
    <message>
        <source>"%1" is no whole number.</source>
        <translation>«%1» non è un numero intero.</translation>
    </message>
    <message>
        <source>"%1" is no object.</source>
        <translation>«%1» non è un oggetto.</translation>
    </message>
    <message>
        <source>"%1" is missing.</source>
        <translation>«%1» manca.</translation>
    </message>
</context>
<context>
    <name>JsonText</name>
    <message>
        <source>It is empty.</source>
        <translation>È vuoto.</translation>
    </message>
    <message>
        <source>It is no JSON (line %1: %2).</source>
        <translation>Non è JSON (riga %1: %2).</translation>
    </message>
    <message>
        <source>It is too large: more than %1.</source>
        <translation>È troppo grande: più di %1.</translation>
    </message>
    <message>
        <source>It holds too many values: more than %1.</source>
        <translation>Contiene troppi valori: più di %1.</translation>
    </message>
</context>
<context>
    <name>LabColourDialog</name>
    <message>
        <source>On screen %1</source>
        <translation>Sullo schermo %1</translation>
    </message>
    <message>
        <source>Beyond the screen; shown as %1</source>
        <translation>Fuori dalla gamma dello schermo; mostrato come %1</translation>
    </message>
    <message>
        <source>Mix a Colour</source>
        <translation>Componi un colore</translation>
    </message>
    <message>
        <source>Li&amp;ghtness L*:</source>
        <translation>L&amp;uminosità L*:</translation>
    </message>
    <message>
        <source>Gree&amp;n-red a*:</source>
        <translation>&amp;Verde-rosso a*:</translation>
    </message>
    <message>
        <source>&amp;Blue-yellow b*:</source>
        <translation>&amp;Blu-giallo b*:</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>Dal verde al rosso</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>Dal blu al giallo</translation>
    </message>
</context>
<context>
    <name>LabPlanePanel</name>
    <message>
        <source>Square layout and rotated labels</source>
        <translation>Disposizione quadrata ed etichette ruotate</translation>
    </message>
    <message>
        <source>b*: blue to yellow</source>
        <translation>b*: dal blu al giallo</translation>
    </message>
    <message>
        <source>a*: green to red</source>
        <translation>a*: dal verde al rosso</translation>
    </message>
    <message>
        <source>Lig&amp;htness:</source>
        <translation>Lu&amp;minosità:</translation>
    </message>
    <message>
        <source>&amp;Vertical axis:</source>
        <translation>&amp;Asse verticale:</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Senza rotazione</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>Senso orario</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>Senso antiorario</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>&amp;Bordi:</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Pu&amp;t Back</source>
        <translation>&amp;Rimetti</translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation>To&amp;gli</translation>
    </message>
    <message>
        <source>Colours of lightness %1, with the patches of the chart</source>
        <translation>Colori di luminosità %1, con i tasselli della tavola</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>How a program takes its language, its style sheet and its fonts from the files beside it.</source>
        <translation>Come un programma prende la lingua, il foglio di stile e i caratteri dai file accanto a sé.</translation>
    </message>
</context>
<context>
    <name>LanguagePanel</name>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>&amp;Texts of the gallery:</source>
        <translation>Testi &amp;della galleria:</translation>
    </message>
    <message>
        <source>Texts of the gallery</source>
        <translation>Testi della galleria</translation>
    </message>
    <message>
        <source>&amp;Import Translation...</source>
        <translation>&amp;Importa traduzione...</translation>
    </message>
    <message>
        <source>There are no translations in %1</source>
        <translation>Non ci sono traduzioni in %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>files in folder</comment>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Result 0: the file was copied.</source>
        <translation>Risultato 0: il file è stato copiato.</translation>
    </message>
    <message>
        <source>Result 1: the file was not copied.</source>
        <translation>Risultato 1: il file non è stato copiato.</translation>
    </message>
    <message>
        <source>Result 2: cancelled.</source>
        <translation>Risultato 2: annullato.</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>What the library draws into lists, tables and trees, and its combo boxes.</source>
        <translation>Ciò che la libreria disegna in elenchi, tabelle e alberi, e le sue caselle combinate.</translation>
    </message>
</context>
<context>
    <name>LocalMariaDbServer</name>
    <message>
        <source>the user has no name</source>
        <translation>l'utente non ha un nome</translation>
    </message>
    <message>
        <source>the database "%1" is the closed one</source>
        <translation>il database «%1» è quello chiuso</translation>
    </message>
</context>
<context>
    <name>LocalServer</name>
    <message>
        <source>no folder for the server: %1</source>
        <translation>nessuna cartella per il server: %1</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>%1 non si avvia: %2</translation>
    </message>
    <message>
        <source>%1 is not ready in time</source>
        <translation>%1 non è pronto in tempo</translation>
    </message>
    <message>
        <source>%1 ended before it was ready</source>
        <translation>%1 è terminato prima di essere pronto</translation>
    </message>
    <message>
        <source>%1 told no port but "%2"</source>
        <translation>%1 non ha indicato una porta, ma «%2»</translation>
    </message>
</context>
<context>
    <name>LocalServerPanel</name>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>Se&amp;rver:</translation>
    </message>
    <message>
        <source>&amp;Fill In the Panel</source>
        <translation>Compila &amp;il pannello</translation>
    </message>
    <message>
        <source>on, at %1</source>
        <translation>attivo, su %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>non attivo</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>Il server non si è avviato: %1</translation>
    </message>
    <message>
        <source>"./dev setup" installs what is needed.</source>
        <translation>«./dev setup» installa ciò che serve.</translation>
    </message>
    <message>
        <source>The server has stopped by itself.</source>
        <translation>Il server si è fermato da solo.</translation>
    </message>
    <message>
        <source>The server has stopped by itself: %1</source>
        <translation>Il server si è fermato da solo: %1</translation>
    </message>
</context>
<context>
    <name>LocalUpdateService</name>
    <message>
        <source>no folder for the replies: %1</source>
        <translation>nessuna cartella per le risposte: %1</translation>
    </message>
</context>
<context>
    <name>LocalWebServer</name>
    <message>
        <source>there is no file %1</source>
        <translation>il file %1 non esiste</translation>
    </message>
    <message>
        <source>%1 is no file with a certificate</source>
        <translation>%1 non è un file con un certificato</translation>
    </message>
</context>
<context>
    <name>LockPanel</name>
    <message>
        <source>Lock of the user interface</source>
        <translation>Blocco dell'interfaccia utente</translation>
    </message>
    <message>
        <source>The password is stored as</source>
        <translation>La password viene salvata come</translation>
    </message>
    <message>
        <source>MD5 &amp;digest</source>
        <translation>impro&amp;nta MD5</translation>
    </message>
    <message>
        <source>&amp;plain text</source>
        <translation>testo in &amp;chiaro</translation>
    </message>
    <message>
        <source>Stored at the moment</source>
        <translation>Attualmente salvato</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>&amp;Dimentica</translation>
    </message>
    <message>
        <source>Loc&amp;k...</source>
        <translation>&amp;Blocca...</translation>
    </message>
    <message>
        <source>&amp;First Password...</source>
        <translation>&amp;Prima password...</translation>
    </message>
    <message>
        <source>C&amp;hange Password...</source>
        <translation>Cambia pass&amp;word...</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niente</translation>
    </message>
    <message>
        <source>Locked with the stored password.</source>
        <translation>Bloccata con la password salvata.</translation>
    </message>
    <message>
        <source>Locked with a new password, which is now stored.</source>
        <translation>Bloccata con una nuova password, ora salvata.</translation>
    </message>
    <message>
        <source>Cancelled: nothing is locked, and what is stored stays.</source>
        <translation>Annullato: nulla è bloccato, e ciò che è salvato resta.</translation>
    </message>
    <message>
        <source>Cancelled after the password was changed: nothing is locked, and the new password is not kept.</source>
        <translation>Annullato dopo il cambio della password: nulla è bloccato, e la nuova password non viene conservata.</translation>
    </message>
    <message>
        <source>The new password is stored.</source>
        <translation>La nuova password è salvata.</translation>
    </message>
    <message>
        <source>Cancelled: what is stored stays.</source>
        <translation>Annullato: ciò che è salvato resta.</translation>
    </message>
    <message>
        <source>The password is forgotten.</source>
        <translation>La password è dimenticata.</translation>
    </message>
    <message>
        <source>The stored password has been replaced by its digest.</source>
        <translation>La password salvata è stata sostituita dalla sua impronta.</translation>
    </message>
    <message>
        <source>A digest cannot be turned back into the password: it is forgotten.</source>
        <translation>Da un'impronta non si può ricavare la password: è dimenticata.</translation>
    </message>
    <message>
        <source>Unlocked with the right password.</source>
        <translation>Sbloccata con la password corretta.</translation>
    </message>
    <message>
        <source>The work area is open.</source>
        <translation>L'area di lavoro è aperta.</translation>
    </message>
    <message>
        <source>No password has been set: the lock asks for a first one.</source>
        <translation>Non è impostata alcuna password: il blocco ne chiede una prima.</translation>
    </message>
</context>
<context>
    <name>LockedArea</name>
    <message>
        <source>Work area</source>
        <translation>Area di lavoro</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>The log of this very program, live: Qt's own messages, lines that the program prints, and a job that writes entries with sub-entries from several threads.</source>
        <translation>Il registro di questo stesso programma, dal vivo: i messaggi di Qt, le righe emesse dal programma, e un lavoro che scrive voci con sottovoci da più thread.</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>Scrivi una riga</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Informazione</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>A&amp;vviso</translation>
    </message>
    <message>
        <source>&amp;Error</source>
        <translation>&amp;Errore</translation>
    </message>
    <message>
        <source>&amp;Qt Warning</source>
        <translation>Avviso &amp;Qt</translation>
    </message>
    <message>
        <source>Live &amp;view:</source>
        <translation>Vista &amp;dal vivo:</translation>
    </message>
    <message>
        <source>&amp;Open Log Window</source>
        <translation>Apri la finestra del &amp;registro</translation>
    </message>
    <message>
        <source>Live view of the log</source>
        <translation>Vista dal vivo del registro</translation>
    </message>
    <message>
        <source>Some information, written by hand</source>
        <translation>Un'informazione, scritta a mano</translation>
    </message>
    <message>
        <source>A warning, written by hand</source>
        <translation>Un avviso, scritto a mano</translation>
    </message>
    <message>
        <source>An error, written by hand</source>
        <translation>Un errore, scritto a mano</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2 pixel, %3</translation>
    </message>
    <message>
        <source>Logo of the splash</source>
        <translation>Logo della schermata di avvio</translation>
    </message>
    <message>
        <source>Installed logo</source>
        <translation>Logo installato</translation>
    </message>
    <message>
        <source>Copy that is kept</source>
        <translation>Copia conservata</translation>
    </message>
    <message>
        <source>Shown at the start</source>
        <translation>Mostrato all'avvio</translation>
    </message>
    <message>
        <source>&amp;Put In a Logo...</source>
        <translation>&amp;Inserisci un logo...</translation>
    </message>
    <message>
        <source>&amp;Remove Logo...</source>
        <translation>&amp;Rimuovi logo...</translation>
    </message>
    <message>
        <source>Remove &amp;Copy...</source>
        <translation>Rimuovi &amp;copia...</translation>
    </message>
    <message>
        <source>Show Splas&amp;h</source>
        <translation>&amp;Mostra schermata di avvio</translation>
    </message>
    <message>
        <source>Put In a Logo</source>
        <translation>Inserisci un logo</translation>
    </message>
    <message>
        <source>Remove the installed logo "%1"?</source>
        <translation>Rimuovere il logo installato «%1»?</translation>
    </message>
    <message>
        <source>Remove the copy "%1"?</source>
        <translation>Rimuovere la copia «%1»?</translation>
    </message>
    <message>
        <source>Click to close.</source>
        <translation>Fare clic per chiudere.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>Non c'è.</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Non c'è ancora.</translation>
    </message>
    <message>
        <source>Nothing: there is no picture.</source>
        <translation>Niente: non c'è alcuna immagine.</translation>
    </message>
    <message>
        <source>The installed logo.</source>
        <translation>Il logo installato.</translation>
    </message>
    <message>
        <source>The copy, since there is no installed logo.</source>
        <translation>La copia, poiché non c'è un logo installato.</translation>
    </message>
    <message>
        <source>The gallery's own picture.</source>
        <translation>L'immagine propria della galleria.</translation>
    </message>
</context>
<context>
    <name>MailPage</name>
    <message>
        <source>The panel for the settings of outgoing mail. Switch on a real mail server on this computer, choose what is to go wrong, and send a test mail to it.</source>
        <translation>Il pannello per le impostazioni della posta in uscita. Attivare un vero server di posta su questo computer, scegliere che cosa deve andare storto e inviargli un messaggio di prova.</translation>
    </message>
    <message>
        <source>Mail panel</source>
        <translation>Pannello della posta</translation>
    </message>
    <message>
        <source>Settings of the panel</source>
        <translation>Impostazioni del pannello</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Mostra im&amp;postazioni</translation>
    </message>
    <message>
        <source>Dear Mia,

the proof of the poster is ready for you to look at.

Press room</source>
        <translation>Cara Mia,

la prova colore del manifesto è pronta da visionare.

Reparto stampa</translation>
    </message>
    <message>
        <source>Proof is ready</source>
        <translation>La prova colore è pronta</translation>
    </message>
</context>
<context>
    <name>MailServerPanel</name>
    <message>
        <source>Local mail server</source>
        <translation>Server di posta locale</translation>
    </message>
    <message>
        <source>Se&amp;curity:</source>
        <translation>Sicure&amp;zza:</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>In chiaro</translation>
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
        <translation>Pro&amp;blema:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Password errata</translation>
    </message>
    <message>
        <source>Receiver refused</source>
        <translation>Destinatario rifiutato</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Server muto</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nessuno in ascolto</translation>
    </message>
    <message>
        <source>Login &amp;needed</source>
        <translation>&amp;Accesso richiesto</translation>
    </message>
</context>
<context>
    <name>ManualPanel</name>
    <message>
        <source>Manual</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Open &amp;Manual</source>
        <translation>Apri man&amp;uale</translation>
    </message>
    <message>
        <source>Open a Missin&amp;g One</source>
        <translation>Apri un manuale c&amp;he manca</translation>
    </message>
    <message>
        <source>The manual of this gallery, in the system's viewer of PDF files.</source>
        <translation>Il manuale di questa galleria, nel visualizzatore di PDF del sistema.</translation>
    </message>
</context>
<context>
    <name>MeasurementMakingPanel</name>
    <message>
        <source>Table of measurements</source>
        <translation>Tabella delle misure</translation>
    </message>
    <message>
        <source>Fol&amp;der of the internal database:</source>
        <translation>Cartella &amp;del database interno:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Amo&amp;unt:</source>
        <translation>&amp;Quantità:</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 righe</translation>
    </message>
    <message>
        <source>&amp;Make Table</source>
        <translation>&amp;Crea tabella</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>On a server the table "%1" is dropped, made anew and left there.</source>
        <translation>Su un server la tabella «%1» viene eliminata, creata di nuovo e lasciata lì.</translation>
    </message>
    <message>
        <source>Folder of the Internal Database</source>
        <translation>Cartella del database interno</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annullamento...</translation>
    </message>
    <message>
        <source>Under way...</source>
        <translation>In corso...</translation>
    </message>
    <message>
        <source>No table was made: %1</source>
        <translation>Nessuna tabella è stata creata: %1</translation>
    </message>
    <message>
        <source>Made in %1 s.</source>
        <translation>Creata in %1 s.</translation>
    </message>
    <message>
        <source>Cancelled: no table was made.</source>
        <translation>Annullato: nessuna tabella è stata creata.</translation>
    </message>
</context>
<context>
    <name>MeasurementModel</name>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Tassello</translation>
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
        <source>ΔE</source>
        <translation>ΔE</translation>
    </message>
    <message>
        <source>Measured (UTC)</source>
        <translation>Misurato (UTC)</translation>
    </message>
    <message>
        <source>There is no connection to the database.</source>
        <translation>Non c'è connessione al database.</translation>
    </message>
</context>
<context>
    <name>MeasurementTablePanel</name>
    <message>
        <source>Measurements</source>
        <translation>Misure</translation>
    </message>
    <message>
        <source>ΔE ab&amp;ove:</source>
        <translation>ΔE &amp;oltre:</translation>
    </message>
    <message>
        <source>all</source>
        <translation>tutte</translation>
    </message>
    <message>
        <source>Rows per &amp;page:</source>
        <translation>Ri&amp;ghe per pagina:</translation>
    </message>
    <message>
        <source>&amp;Remove Rows</source>
        <translation>Rim&amp;uovi righe</translation>
    </message>
    <message>
        <source>Stateme&amp;nt:</source>
        <translation>Istru&amp;zione:</translation>
    </message>
    <message>
        <source>A click on No. or ΔE sorts: these columns have an index.</source>
        <translation>Un clic su N. o ΔE ordina: queste colonne hanno un indice.</translation>
    </message>
    <message>
        <source>The database refuses: %1</source>
        <translation>Il database rifiuta: %1</translation>
    </message>
    <message>
        <source>Answered in %1 ms.</source>
        <translation>Risposta in %1 ms.</translation>
    </message>
    <message>
        <source>No table yet.</source>
        <translation>Ancora nessuna tabella.</translation>
    </message>
</context>
<context>
    <name>OemLogo</name>
    <message>
        <source>The logo "%1" cannot be written: %2.</source>
        <translation>Impossibile scrivere il logo «%1»: %2.</translation>
    </message>
    <message>
        <source>No copy is kept: the folder "%1" cannot be written.</source>
        <translation>Non viene conservata alcuna copia: impossibile scrivere nella cartella «%1».</translation>
    </message>
    <message>
        <source>No copy is kept: there is no folder "%1".</source>
        <translation>Non viene conservata alcuna copia: la cartella «%1» non esiste.</translation>
    </message>
    <message>
        <source>The logo "%1" cannot be removed: %2.</source>
        <translation>Impossibile rimuovere il logo «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>OverviewPanel</name>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>First picture as a whole</source>
        <translation>Prima immagine per intero</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Configuration pages that plug-ins bring, with the settings that they give back, and a dialog that stands in a page as well as in a window.</source>
        <translation>Pagine di configurazione fornite da plug-in, con le impostazioni che restituiscono, e un dialogo che sta tanto in una pagina quanto in una finestra.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldCell</name>
    <message>
        <source>Program reads</source>
        <translation>Il programma legge</translation>
    </message>
    <message>
        <source>Field holds</source>
        <translation>Il campo contiene</translation>
    </message>
    <message>
        <source>The password itself stands in the field.</source>
        <translation>Nel campo c'è la password stessa.</translation>
    </message>
    <message>
        <source>A mask stands in the field, not the password.</source>
        <translation>Nel campo c'è una maschera, non la password.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldPanel</name>
    <message>
        <source>Password line edit</source>
        <translation>Campo per password</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valore:</translation>
    </message>
    <message>
        <source>Set &amp;by the Program</source>
        <translation>Imposta dal pro&amp;gramma</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitato</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabilitato</translation>
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
        <translation>TXPasswordLineEdit, abilitato</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, disabled</source>
        <translation>TXPasswordLineEdit, disabilitato</translation>
    </message>
    <message>
        <source>QLineEdit, enabled</source>
        <translation>QLineEdit, abilitato</translation>
    </message>
    <message>
        <source>QLineEdit, disabled</source>
        <translation>QLineEdit, disabilitato</translation>
    </message>
    <message>
        <source>What the program has set stays enciphered, and a mask of fixed length stands in its place, until the first key pressed in the field drops both. What the user types stands in the field, as in any other.</source>
        <translation>Ciò che il programma ha impostato resta cifrato, e al suo posto c'è una maschera di lunghezza fissa, finché il primo tasto premuto nel campo non li scarta entrambi. Ciò che l'utente digita sta nel campo, come in qualsiasi altro.</translation>
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
        <translation>%1, prima di novembre 2014</translation>
    </message>
    <message>
        <source>%1, since November 2014</source>
        <translation>%1, da novembre 2014</translation>
    </message>
</context>
<context>
    <name>PatchFlowPanel</name>
    <message>
        <source>Flow of equal cells</source>
        <translation>Flusso di celle uguali</translation>
    </message>
    <message>
        <source>Swatches in rows</source>
        <translation>Campioni in righe</translation>
    </message>
    <message>
        <source>S&amp;watches:</source>
        <translation>&amp;Campioni:</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>Posi&amp;zione:</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Inserisci</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>S&amp;vuota</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>Ri&amp;quadro:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Scatola</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Pannello</translation>
    </message>
    <message>
        <source>Of the style</source>
        <translation>Dello stile</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>&amp;Nomi</translation>
    </message>
    <message>
        <source>%1 × %2 pixels each</source>
        <translation>%1 × %2 pixel ciascuno</translation>
    </message>
    <message>
        <source>No swatch</source>
        <translation>Nessun campione</translation>
    </message>
</context>
<context>
    <name>PatchListPanel</name>
    <message>
        <source>List with separators</source>
        <translation>Elenco con separatori</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>Tasselli</translation>
    </message>
    <message>
        <source>Line &amp;Below</source>
        <translation>L&amp;inea sotto</translation>
    </message>
    <message>
        <source>Choose a row, and switch its line.</source>
        <translation>Scegliere una riga e attivare o disattivare la sua linea.</translation>
    </message>
    <message>
        <source>Row %1: line drawn</source>
        <translation>Riga %1: linea tracciata</translation>
    </message>
    <message>
        <source>Row %1: line removed</source>
        <translation>Riga %1: linea rimossa</translation>
    </message>
</context>
<context>
    <name>PatchRunsPanel</name>
    <message>
        <source>Table with pictures and times</source>
        <translation>Tabella con immagini e orari</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>Confronti</translation>
    </message>
    <message>
        <source>&amp;Compare Again</source>
        <translation>Confronta &amp;di nuovo</translation>
    </message>
    <message>
        <source>Compares the chosen rows. Make the last column narrow: first the time goes, then the end of the date.</source>
        <translation>Confronta le righe scelte. Restringendo l'ultima colonna sparisce prima l'ora, poi la fine della data.</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Tassello</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Risultato</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Confrontato</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buono</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Discreto</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Scarso</translation>
    </message>
</context>
<context>
    <name>PatchSplitPanel</name>
    <message>
        <source>Splitters</source>
        <translation>Divisori</translation>
    </message>
    <message>
        <source>Patches to look at</source>
        <translation>Tasselli da osservare</translation>
    </message>
    <message>
        <source>Si&amp;de by side</source>
        <translation>A&amp;ffiancati</translation>
    </message>
    <message>
        <source>&amp;Grip width:</source>
        <translation>Larg&amp;hezza maniglia:</translation>
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
Schermo: %4</translation>
    </message>
</context>
<context>
    <name>PatchSwatchesPanel</name>
    <message>
        <source>Patches of the chart</source>
        <translation>Tasselli della tavola</translation>
    </message>
    <message>
        <source>On the left of each patch charts made before November 2014, on the right those made since. A patch whose difference reaches the limit is framed.</source>
        <translation>A sinistra di ogni tassello le tavole prodotte prima di novembre 2014, a destra quelle prodotte da allora. Un tassello la cui differenza raggiunge il limite è incorniciato.</translation>
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
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Solid Colours</source>
        <translation>Fondi pieni</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>Tasselli</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Tassello</translation>
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
        <translation>Primari</translation>
    </message>
    <message>
        <source>Overprints</source>
        <translation>Sovrastampe</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>Inchiostri</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Inchiostro</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densità</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>Immagini (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>"%1" is no file.</source>
        <translation>«%1» non è un file.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>Impossibile leggere «%1»: %2.</translation>
    </message>
    <message>
        <source>"%1" is too large: %2 × %3 pixels, which take more than %4 MB of memory.</source>
        <translation>«%1» è troppo grande: %2 × %3 pixel, che occupano più di %4 MB di memoria.</translation>
    </message>
</context>
<context>
    <name>PicturesPanel</name>
    <message>
        <source>Open Pictures</source>
        <translation>Apri immagini</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>&amp;Open Pictures...</source>
        <translation>Apri &amp;immagini...</translation>
    </message>
    <message>
        <source>Show &amp;Chart</source>
        <translation>Mostra ta&amp;vola</translation>
    </message>
    <message>
        <source>Shown:</source>
        <translation>Mostrate:</translation>
    </message>
</context>
<context>
    <name>PixelReadout</name>
    <message>
        <source>Between the first two pictures, by CIEDE2000</source>
        <translation>Tra le prime due immagini, secondo CIEDE2000</translation>
    </message>
    <message>
        <source>Move the mouse over a picture.</source>
        <translation>Spostare il mouse sopra un'immagine.</translation>
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
        <translation>Modificate; ciò che è in grassetto non è salvato.</translation>
    </message>
    <message>
        <source>These settings are saved.</source>
        <translation>Queste impostazioni sono salvate.</translation>
    </message>
    <message>
        <source>The page's defaults; nothing is saved yet.</source>
        <translation>I valori predefiniti della pagina; nulla è ancora salvato.</translation>
    </message>
    <message>
        <source>Configuration pages from plug-ins</source>
        <translation>Pagine di configurazione da plug-in</translation>
    </message>
    <message>
        <source>No plug-in was found. Plug-ins are looked for in the folder "%1"; put one there and start the gallery again.</source>
        <translation>Nessun plug-in trovato. I plug-in vengono cercati nella cartella «%1»: metterne uno lì e riavviare la galleria.</translation>
    </message>
    <message>
        <source>&amp;Plug-ins found:</source>
        <translation>&amp;Plug-in trovati:</translation>
    </message>
    <message>
        <source>Plug-ins found</source>
        <translation>Plug-in trovati</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titolo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Settings, read bac&amp;k live:</source>
        <translation>I&amp;mpostazioni, rilette dal vivo:</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>S&amp;alva</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Ripristina</translation>
    </message>
</context>
<context>
    <name>PrintJobForm</name>
    <message>
        <source>Pape&amp;r:</source>
        <translation>Ca&amp;rta:</translation>
    </message>
    <message>
        <source>Coated, 115 g/m²</source>
        <translation>Patinata, 115 g/m²</translation>
    </message>
    <message>
        <source>Uncoated, 120 g/m²</source>
        <translation>Non patinata, 120 g/m²</translation>
    </message>
    <message>
        <source>Newsprint, 45 g/m²</source>
        <translation>Carta da giornale, 45 g/m²</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>&amp;Intento di rendering:</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimetrico relativo</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimetrico assoluto</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Percettivo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Total i&amp;nk limit:</source>
        <translation>Li&amp;mite totale d'inchiostro:</translation>
    </message>
    <message>
        <source>Delta &amp;E tolerance:</source>
        <translation>Tolleranza Delta &amp;E:</translation>
    </message>
    <message>
        <source>Black point c&amp;ompensation</source>
        <translation>Compensa&amp;zione del punto nero</translation>
    </message>
</context>
<context>
    <name>ProgressBarSwitches</name>
    <message>
        <source>Show te&amp;xt</source>
        <translation>M&amp;ostra testo</translation>
    </message>
    <message>
        <source>For&amp;mat:</source>
        <translation>For&amp;mato:</translation>
    </message>
    <message>
        <source>%p stands for the percentage, %v for the value, %m for the number of steps.</source>
        <translation>%p sta per la percentuale, %v per il valore, %m per il numero di passi.</translation>
    </message>
    <message>
        <source>In&amp;verted</source>
        <translation>Inve&amp;rtita</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>&amp;Verticale</translation>
    </message>
</context>
<context>
    <name>ReceivedMailsPanel</name>
    <message>
        <source>Received mails</source>
        <translation>Messaggi ricevuti</translation>
    </message>
    <message>
        <source>&amp;Mails:</source>
        <translation>&amp;Messaggi:</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Oggetto</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>As it cam&amp;e:</source>
        <translation>&amp;Com'è arrivato:</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>S&amp;vuota</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>ReportOptionsPanel</name>
    <message>
        <source>Report</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Formula:</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>Tolle&amp;ranza:</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>C&amp;oppie:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Carta:</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>Orie&amp;ntamento:</translation>
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
        <translation>Per numero</translation>
    </message>
    <message>
        <source>Largest first</source>
        <translation>Prima le più grandi</translation>
    </message>
    <message>
        <source>Smallest first</source>
        <translation>Prima le più piccole</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formula</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolleranza</translation>
    </message>
    <message>
        <source>Order of the pairs</source>
        <translation>Ordine delle coppie</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientamento</translation>
    </message>
</context>
<context>
    <name>ReportOutputPanel</name>
    <message>
        <source>Export PDF</source>
        <translation>Esporta PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documenti PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>&amp;Esporta PDF...</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>Sta&amp;mpa...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Open PDF</source>
        <translation>A&amp;pri PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) in "%1"</source>
        <translation>
            <numerusform>%n pagina in «%1»</numerusform>
            <numerusform>%n pagine in «%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled, nothing was written.</source>
        <translation>Annullato, nulla è stato scritto.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Nulla è stato scritto.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Stampato.</translation>
    </message>
    <message>
        <source>Cancelled, some pages may be printed.</source>
        <translation>Annullato, forse alcune pagine sono state stampate.</translation>
    </message>
    <message>
        <source>Printing has failed.</source>
        <translation>La stampa non è riuscita.</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>A colour comparison as pages of paper: drawn on the report canvas, with tables cut into pages, and taken to a PDF file or a printer.</source>
        <translation>Un confronto di colori come pagine di carta: disegnato sull'area del rapporto, con tabelle suddivise in pagine, e portato in un file PDF o su una stampante.</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>Pagine del rapporto</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPage</name>
    <message>
        <source>&amp;Company:</source>
        <translation>A&amp;zienda:</translation>
    </message>
    <message>
        <source>Stands at the head of the report</source>
        <translation>Compare in testa al rapporto</translation>
    </message>
    <message>
        <source>Op&amp;erator:</source>
        <translation>Op&amp;eratore:</translation>
    </message>
    <message>
        <source>Who has measured</source>
        <translation>Chi ha misurato</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>&amp;Formato carta:</translation>
    </message>
    <message>
        <source>&amp;Date on each page</source>
        <translation>&amp;Data su ogni pagina</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPlugin</name>
    <message>
        <source>Measuring Report</source>
        <translation>Rapporto di misura</translation>
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
        <translation>di %1</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Pa&amp;gina:</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Adatta alla larghezza</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Adatta alla pagina</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Pagina precedente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Pagina successiva</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
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
        <translation>Server Samba locale</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>&amp;Problema:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Password errata</translation>
    </message>
    <message>
        <source>Unknown share</source>
        <translation>Condivisione sconosciuta</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Server muto</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nessuno in ascolto</translation>
    </message>
    <message>
        <source>The server has another port now: drives added before do not lead to it.</source>
        <translation>Il server ha ora un'altra porta: le unità aggiunte prima non conducono ad esso.</translation>
    </message>
</context>
<context>
    <name>ScanPanel</name>
    <message>
        <source>Scan a folder</source>
        <translation>Scansione di una cartella</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Cartella:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>Avvia sca&amp;nsione</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>Scansione di una cartella</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Voci</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avvisi</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errori</translation>
    </message>
    <message>
        <source>Entries a second</source>
        <translation>Voci al secondo</translation>
    </message>
</context>
<context>
    <name>SchedulePage</name>
    <message>
        <source>The panels that set when an event comes back, and in which encoding text files are read. Save, and the gallery works out the next events, and reads a file anew.</source>
        <translation>I pannelli che stabiliscono quando un evento si ripete e con quale codifica vengono letti i file di testo. Al salvataggio la galleria calcola i prossimi eventi e rilegge un file.</translation>
    </message>
</context>
<context>
    <name>SelectionBarEmissions</name>
    <message>
        <source>Signals</source>
        <translation>Segnali</translation>
    </message>
    <message>
        <source>Si&amp;gnals of the bar: %1</source>
        <translation>Segnali della &amp;barra: %1</translation>
    </message>
    <message>
        <source>Signals of the bar</source>
        <translation>Segnali della barra</translation>
    </message>
</context>
<context>
    <name>SelectionBarOptions</name>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Import:</source>
        <translation>Importa:</translation>
    </message>
    <message>
        <source>in the bo&amp;x</source>
        <translation>nella &amp;casella</translation>
    </message>
    <message>
        <source>in a &amp;menu</source>
        <translation>in un &amp;menu</translation>
    </message>
    <message>
        <source>Names can be &amp;typed over</source>
        <translation>I nomi si possono &amp;riscrivere</translation>
    </message>
    <message>
        <source>Sho&amp;w the label:</source>
        <translation>Mostra l'&amp;etichetta:</translation>
    </message>
    <message>
        <source>Text of the label</source>
        <translation>Testo dell'etichetta</translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>The bar with which a user keeps a collection of presets, each a file of its own: pick, create, duplicate, rename, import, export, delete.</source>
        <translation>La barra con cui un utente gestisce una raccolta di preimpostazioni, ognuna in un proprio file: scegliere, creare, duplicare, rinominare, importare, esportare, eliminare.</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>The answer of the service is not shown.</source>
        <translation>La risposta del servizio non viene mostrata.</translation>
    </message>
    <message>
        <source>The answer of the service is too large.</source>
        <translation>La risposta del servizio è troppo grande.</translation>
    </message>
    <message>
        <source>Nobody listens at %1.</source>
        <translation>Nessuno in ascolto su %1.</translation>
    </message>
    <message>
        <source>The service has closed the connection before it had answered.</source>
        <translation>Il servizio ha chiuso la connessione prima di rispondere.</translation>
    </message>
    <message>
        <source>The service has said nothing for %1 seconds.</source>
        <translation>Il servizio non ha inviato nulla per %1 secondi.</translation>
    </message>
    <message>
        <source>The service has answered with HTTP status %1.</source>
        <translation>Il servizio ha risposto con lo stato HTTP %1.</translation>
    </message>
    <message>
        <source>The service cannot be asked: %1.</source>
        <translation>Impossibile interrogare il servizio: %1.</translation>
    </message>
</context>
<context>
    <name>SessionPanel</name>
    <message>
        <source>Session</source>
        <translation>Sessione</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>S&amp;vuota</translation>
    </message>
</context>
<context>
    <name>ShareSearchPanel</name>
    <message>
        <source>Share browser</source>
        <translation>Ricerca di condivisioni</translation>
    </message>
    <message>
        <source>&amp;Browse This Server...</source>
        <translation>Sfoglia &amp;questo server...</translation>
    </message>
    <message>
        <source>Browse the &amp;Network...</source>
        <translation>S&amp;foglia la rete...</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Scelta: %1</translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation>Nulla è stato scelto.</translation>
    </message>
    <message>
        <source>Nothing was found. %1</source>
        <translation>Nulla è stato trovato. %1</translation>
    </message>
    <message>
        <source>The log of the drives says why.</source>
        <translation>Il registro delle unità ne dice il motivo.</translation>
    </message>
    <message>
        <source>Choose a share of the server for the drives that are added.</source>
        <translation>Scegliere una condivisione del server per le unità da aggiungere.</translation>
    </message>
</context>
<context>
    <name>SortedPresetBar</name>
    <message>
        <source>Small variant, sorted</source>
        <translation>Variante piccola, ordinata</translation>
    </message>
    <message>
        <source>By name:</source>
        <translation>Per nome:</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importa...</translation>
    </message>
    <message>
        <source>The same presets through a sorting proxy. The menu of the button takes the place of the others.</source>
        <translation>Le stesse preimpostazioni attraverso un proxy di ordinamento. Il menu del pulsante prende il posto degli altri.</translation>
    </message>
</context>
<context>
    <name>SpectrumPanel</name>
    <message>
        <source>Spectrum</source>
        <translation>Spettro</translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation>&amp;Da:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;A:</translation>
    </message>
    <message>
        <source>First wavelength</source>
        <translation>Prima lunghezza d'onda</translation>
    </message>
    <message>
        <source>Last wavelength</source>
        <translation>Ultima lunghezza d'onda</translation>
    </message>
    <message>
        <source> nm</source>
        <translation> nm</translation>
    </message>
    <message>
        <source>How strongly the eye sees light of each wavelength: the function y of the CIE 1931 standard observer. The spectrum lies behind it.</source>
        <translation>Con quale intensità l'occhio vede la luce di ogni lunghezza d'onda: la funzione y dell'osservatore standard CIE 1931. Dietro si trova lo spettro.</translation>
    </message>
    <message>
        <source>Luminous efficiency from %1 to %2 nm</source>
        <translation>Efficienza luminosa da %1 a %2 nm</translation>
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
        <translation>Esempio</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>La&amp;voro:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Carta:</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Patinata</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>Carta da giornale</translation>
    </message>
    <message>
        <source>&amp;Copies of %1:</source>
        <translation>C&amp;opie di %1:</translation>
    </message>
    <message>
        <source>Tri&amp;m marks</source>
        <translation>Croci&amp;ni di taglio</translation>
    </message>
    <message>
        <source>drawn by the shipped sheet</source>
        <translation>disegnato dal foglio fornito</translation>
    </message>
    <message>
        <source>Copies made</source>
        <translation>Copie eseguite</translation>
    </message>
    <message>
        <source>Print Pr&amp;oof</source>
        <translation>Stampa &amp;prova colore</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>a disabled button</comment>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>StyleSheetPanel</name>
    <message>
        <source>Style sheet</source>
        <translation>Foglio di stile</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>&amp;Foglio:</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Foglio</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>&amp;Rileggi</translation>
    </message>
    <message>
        <source>Te&amp;xt as applied:</source>
        <translation>Testo come &amp;applicato:</translation>
    </message>
    <message>
        <source>Text as applied</source>
        <translation>Testo come applicato</translation>
    </message>
    <message>
        <source>No style sheet: the widgets look as their style draws them.</source>
        <translation>Nessun foglio di stile: i widget appaiono come li disegna il loro stile.</translation>
    </message>
</context>
<context>
    <name>SwitchPanel</name>
    <message>
        <source>Switch</source>
        <translation>Interruttore</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitato</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabilitato</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 pixel</translation>
    </message>
    <message>
        <source>Switch of %1 pixels</source>
        <translation>Interruttore da %1 pixel</translation>
    </message>
    <message>
        <source>Switch of %1 pixels, disabled</source>
        <translation>Interruttore da %1 pixel, disabilitato</translation>
    </message>
    <message>
        <source>&amp;Turn All On</source>
        <translation>Accen&amp;di tutti</translation>
    </message>
    <message>
        <source>on</source>
        <translation>acceso</translation>
    </message>
    <message>
        <source>off</source>
        <translation>spento</translation>
    </message>
    <message>
        <source>clicked: 0</source>
        <translation>clic: 0</translation>
    </message>
    <message>
        <source>clicked: %1, last by %2 pixels: %3</source>
        <translation>clic: %1, l'ultimo su quello da %2 pixel: %3</translation>
    </message>
</context>
<context>
    <name>TriggerPanel</name>
    <message>
        <source>The event never comes.</source>
        <translation>L'evento non si verifica mai.</translation>
    </message>
    <message>
        <source>By the settings that are kept, the event comes next on:</source>
        <translation>Secondo le impostazioni salvate, l'evento si verificherà il:</translation>
    </message>
    <message>
        <source>Trigger event</source>
        <translation>Evento di attivazione</translation>
    </message>
    <message>
        <source>Offer &amp;hours</source>
        <translation>Offri le &amp;ore</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>Sal&amp;va</translation>
    </message>
    <message>
        <source>L&amp;oad</source>
        <translation>&amp;Carica</translation>
    </message>
    <message>
        <source>Calibration of the instrument</source>
        <translation>Calibrazione dello strumento</translation>
    </message>
</context>
<context>
    <name>UnlockScreen</name>
    <message>
        <source>The work area is locked</source>
        <translation>L'area di lavoro è bloccata</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;word:</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>&amp;Sblocca</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>Questa non è la password.</translation>
    </message>
</context>
<context>
    <name>UpdateDialogPanel</name>
    <message>
        <source>Update dialog</source>
        <translation>Finestra di aggiornamento</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>Cerca a&amp;ggiornamenti</translation>
    </message>
    <message>
        <source>Show in F&amp;older</source>
        <translation>Mostra nella &amp;cartella</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>"Download and Install" writes the file to "%1", which a check makes where it is missing, "Download" to the folder that you choose. The file is a harmless text. "Install" opens it with the desktop's program for texts, and closes all windows of the gallery. Where there is no such program, nothing happens: "Show in Folder" shows the file.</source>
        <translation>«Scarica e installa» scrive il file in «%1», che una ricerca crea dove manca, «Scarica» nella cartella che si sceglie. Il file è un testo innocuo. «Installa» lo apre con il programma di testo del sistema e chiude tutte le finestre della galleria. Dove non c'è un programma simile non accade nulla: «Mostra nella cartella» mostra il file.</translation>
    </message>
    <message>
        <source>There is no folder "%1".</source>
        <translation>La cartella «%1» non esiste.</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>Nessun programma mostra la cartella «%1».</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiornamento</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;New in this release&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Databases: a million rows, page by page&lt;/li&gt;&lt;li&gt;Updates: what you are looking at&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;More at &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Novità di questa versione&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Database: un milione di righe, pagina per pagina&lt;/li&gt;&lt;li&gt;Aggiornamenti: ciò che si sta guardando&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Altro su &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>And one more thing. </source>
        <translation>E ancora una cosa. </translation>
    </message>
</context>
<context>
    <name>UpdatePage</name>
    <message>
        <source>The dialog in which a user looks for a newer release, downloads and installs it. Switch on a real update service on this computer, choose what it offers, and check for updates.</source>
        <translation>La finestra di dialogo in cui un utente cerca una versione più recente, la scarica e la installa. Attivare un vero servizio di aggiornamento su questo computer, scegliere che cosa offre e cercare aggiornamenti.</translation>
    </message>
</context>
<context>
    <name>UpdateServicePanel</name>
    <message>
        <source>Local update service</source>
        <translation>Servizio di aggiornamento locale</translation>
    </message>
    <message>
        <source>Off&amp;er:</source>
        <translation>&amp;Offerta:</translation>
    </message>
    <message>
        <source>Newer release</source>
        <translation>Versione più recente</translation>
    </message>
    <message>
        <source>Newer release, beta</source>
        <translation>Versione più recente, beta</translation>
    </message>
    <message>
        <source>Slow download</source>
        <translation>Scaricamento lento</translation>
    </message>
    <message>
        <source>Download that breaks off</source>
        <translation>Scaricamento che si interrompe</translation>
    </message>
    <message>
        <source>Release without a file</source>
        <translation>Versione senza file</translation>
    </message>
    <message>
        <source>Long release notes</source>
        <translation>Note di rilascio lunghe</translation>
    </message>
    <message>
        <source>Release of this build</source>
        <translation>Questa versione</translation>
    </message>
    <message>
        <source>Older release</source>
        <translation>Versione precedente</translation>
    </message>
    <message>
        <source>Empty answer</source>
        <translation>Risposta vuota</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>Risposta che non è JSON</translation>
    </message>
    <message>
        <source>Status 404</source>
        <translation>Stato 404</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nessuno in ascolto</translation>
    </message>
</context>
<context>
    <name>UpdateSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>Che cosa &amp;ha ricevuto il servizio:</translation>
    </message>
    <message>
        <source>Signals of t&amp;he dialog:</source>
        <translation>Segnali &amp;della finestra:</translation>
    </message>
</context>
<context>
    <name>UpdateSettingsPanel</name>
    <message>
        <source>Settings of updates</source>
        <translation>Impostazioni degli aggiornamenti</translation>
    </message>
    <message>
        <source>Loa&amp;d Settings</source>
        <translation>Carica &amp;impostazioni</translation>
    </message>
    <message>
        <source>Save Se&amp;ttings</source>
        <translation>Salva i&amp;mpostazioni</translation>
    </message>
    <message>
        <source>Stored settings:</source>
        <translation>Impostazioni salvate:</translation>
    </message>
    <message>
        <source>Stored settings</source>
        <translation>Impostazioni salvate</translation>
    </message>
    <message>
        <source>The dialog above checks by itself every %1 days.</source>
        <translation>La finestra qui sopra cerca da sola ogni %1 giorni.</translation>
    </message>
    <message>
        <source>The dialog above does not check by itself.</source>
        <translation>La finestra qui sopra non cerca da sola.</translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>&amp;Hover effects</source>
        <translation>&amp;Evidenzia sotto il mouse</translation>
    </message>
    <message>
        <source>Lights the innermost value under the mouse.</source>
        <translation>Evidenzia il valore più interno sotto il mouse.</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Anteprima</translation>
    </message>
    <message>
        <source>Shows what lists and dictionaries hold in their line.</source>
        <translation>Mostra nella loro riga ciò che elenchi e dizionari contengono.</translation>
    </message>
    <message>
        <source>Open &amp;Two Levels</source>
        <translation>Espandi &amp;due livelli</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Comprimi</translation>
    </message>
    <message>
        <source>Values: %1. Characters of the line: %2. %3</source>
        <translation>Valori: %1. Caratteri della riga: %2. %3</translation>
    </message>
    <message>
        <source>Shown in %1 ms.</source>
        <translation>Mostrato in %1 ms.</translation>
    </message>
    <message>
        <source>Opened in %1 ms.</source>
        <translation>Espanso in %1 ms.</translation>
    </message>
    <message>
        <source>Closed in %1 ms.</source>
        <translation>Compresso in %1 ms.</translation>
    </message>
</context>
<context>
    <name>ValueSliderPanel</name>
    <message>
        <source>Spin box with slider</source>
        <translation>Casella numerica con cursore</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Esposizione</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source>darker</source>
        <translation>più scuro</translation>
    </message>
    <message>
        <source>lighter</source>
        <translation>più chiaro</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Delta E tolerance</source>
        <translation>Tolleranza Delta E</translation>
    </message>
    <message>
        <source>seen by anyone</source>
        <translation>visibile a chiunque</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Levigatura</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivata</translation>
    </message>
    <message>
        <source>Total ink coverage</source>
        <translation>Inchiostro totale</translation>
    </message>
    <message>
        <source>bare paper</source>
        <translation>carta nuda</translation>
    </message>
    <message>
        <source>four full inks</source>
        <translation>quattro inchiostri pieni</translation>
    </message>
    <message>
        <source>Total ink coverage, disabled</source>
        <translation>Inchiostro totale, disabilitato</translation>
    </message>
    <message>
        <source>&amp;valueChanged: %1</source>
        <translation>valueC&amp;hanged: %1</translation>
    </message>
    <message>
        <source>Emissions of valueChanged</source>
        <translation>Emissioni di valueChanged</translation>
    </message>
    <message>
        <source>A value typed into the box goes to the slider and comes back, so one edit tells of itself more than once. The wheel changes nothing: it scrolls the page.</source>
        <translation>Un valore digitato nella casella va al cursore e ritorna, perciò una sola modifica si segnala più di una volta. La rotellina non cambia nulla: fa scorrere la pagina.</translation>
    </message>
</context>
<context>
    <name>ValueSourcePanel</name>
    <message>
        <source>Source</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>&amp;Gallery Settings</source>
        <translation>Impostazioni della &amp;galleria</translation>
    </message>
    <message>
        <source>JSO&amp;N File...</source>
        <translation>File &amp;JSON...</translation>
    </message>
    <message>
        <source>As&amp;k the Service</source>
        <translation>&amp;Interroga il servizio</translation>
    </message>
</context>
<context>
    <name>VariantPage</name>
    <message>
        <source>A value of any depth as one line of coloured text, which folds open level by level: the settings of this gallery, a JSON file, or the live answer of an update service.</source>
        <translation>Un valore di qualsiasi profondità come una riga di testo colorato, che si espande livello per livello: le impostazioni di questa galleria, un file JSON o la risposta dal vivo di un servizio di aggiornamento.</translation>
    </message>
    <message>
        <source>Settings of this gallery</source>
        <translation>Impostazioni di questa galleria</translation>
    </message>
    <message>
        <source>Nothing is stored yet: the gallery keeps its settings when it ends.</source>
        <translation>Nulla è ancora salvato: la galleria salva le sue impostazioni alla chiusura.</translation>
    </message>
    <message>
        <source>JSON File</source>
        <translation>File JSON</translation>
    </message>
    <message>
        <source>JSON files (*.json);;All files (*)</source>
        <translation>File JSON (*.json);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>File "%1"</source>
        <translation>File «%1»</translation>
    </message>
    <message>
        <source>The file "%1" is not shown.</source>
        <translation>Il file «%1» non viene mostrato.</translation>
    </message>
    <message>
        <source>The update service is off. Its switch turns it on.</source>
        <translation>Il servizio di aggiornamento non è attivo. Il suo interruttore lo attiva.</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>In attesa della risposta...</translation>
    </message>
    <message>
        <source>Answer of the update service</source>
        <translation>Risposta del servizio di aggiornamento</translation>
    </message>
</context>
<context>
    <name>WebCertificate</name>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>impossibile creare la cartella %1</translation>
    </message>
</context>
<context>
    <name>WebInterfacePage</name>
    <message>
        <source>The panel for the web interface of a program, beside a real web server that serves a page of the gallery. Only this computer reaches it, at the link with 127.0.0.1; the other links work once other computers may connect.</source>
        <translation>Il pannello per l'interfaccia web di un programma, accanto a un vero server web che fornisce una pagina della galleria. Solo questo computer lo raggiunge, tramite il collegamento con 127.0.0.1; gli altri collegamenti funzionano quando altri computer possono connettersi.</translation>
    </message>
    <message>
        <source>Web interface panel</source>
        <translation>Pannello dell'interfaccia web</translation>
    </message>
</context>
<context>
    <name>WebServerPanel</name>
    <message>
        <source>Web server</source>
        <translation>Server web</translation>
    </message>
    <message>
        <source>Other com&amp;puters may connect</source>
        <translation>Altri co&amp;mputer possono connettersi</translation>
    </message>
    <message>
        <source>Without it the server listens on 127.0.0.1 only, and no other link of the panel leads to it.</source>
        <translation>Senza questa opzione il server è in ascolto solo su 127.0.0.1, e nessun altro collegamento del pannello porta ad esso.</translation>
    </message>
    <message>
        <source>Visi&amp;t the Page</source>
        <translation>Visita la pa&amp;gina</translation>
    </message>
    <message>
        <source>the box "Enabled" of the panel is not checked</source>
        <translation>la casella «Abilitata» del pannello non è selezionata</translation>
    </message>
    <message>
        <source>HTTPS needs a certificate file</source>
        <translation>HTTPS richiede un file di certificato</translation>
    </message>
</context>
<context>
    <name>WebSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>Che cosa ha ricevuto &amp;il server:</translation>
    </message>
    <message>
        <source>&amp;Own visits:</source>
        <translation>Visite &amp;proprie:</translation>
    </message>
</context>
<context>
    <name>WebSettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Offer &amp;HTTPS</source>
        <translation>Offri &amp;HTTPS</translation>
    </message>
    <message>
        <source>Make &amp;Certificate</source>
        <translation>Crea c&amp;ertificato</translation>
    </message>
    <message>
        <source>Fill In E&amp;xample</source>
        <translation>I&amp;nserisci esempio</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Mostra imposta&amp;zioni</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>S&amp;alva</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>&amp;Carica</translation>
    </message>
    <message>
        <source>Settings of the web interface</source>
        <translation>Impostazioni dell'interfaccia web</translation>
    </message>
    <message>
        <source>Saved in the settings of the gallery.</source>
        <translation>Salvate nelle impostazioni della galleria.</translation>
    </message>
    <message>
        <source>Loaded from the settings of the gallery.</source>
        <translation>Caricate dalle impostazioni della galleria.</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>Nulla è ancora stato salvato.</translation>
    </message>
    <message>
        <source>The example is for the user "%1" with the password "%2".</source>
        <translation>L'esempio è per l'utente «%1» con la password «%2».</translation>
    </message>
    <message>
        <source>A certificate for localhost and 127.0.0.1 is in %1. A browser warns of it.</source>
        <translation>Un certificato per localhost e 127.0.0.1 si trova in %1. I browser mostrano un avviso al riguardo.</translation>
    </message>
    <message>
        <source>No certificate was made: %1</source>
        <translation>Nessun certificato è stato creato: %1</translation>
    </message>
</context>
<context>
    <name>WebStatusPage</name>
    <message>
        <source>Program</source>
        <translation>Programma</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processo</translation>
    </message>
    <message>
        <source>This page was made</source>
        <translation>Pagina creata</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocollo</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>everybody</source>
        <translation>tutti</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Mean %1, largest %2.</source>
        <translation>Media %1, massimo %2.</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galleria TXGUICommon</translation>
    </message>
    <message>
        <source>How it is served</source>
        <translation>Come viene fornita</translation>
    </message>
    <message>
        <source>Pages of the gallery</source>
        <translation>Pagine della galleria</translation>
    </message>
    <message>
        <source>Patches of the chart, older and newer, with ΔE 2000</source>
        <translation>Tasselli della tavola, vecchi e nuovi, con ΔE 2000</translation>
    </message>
</context>
<context>
    <name>WebVisit</name>
    <message>
        <source>%1: status %2, %3 bytes</source>
        <translation>%1: stato %2, %3 byte</translation>
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
        <translation>Stato dei widget</translation>
    </message>
    <message>
        <source>One call keeps the place and size of a window, its splitters and the columns of its views, in one nested dictionary for the program's settings. Another gives them back.</source>
        <translation>Una chiamata conserva posizione e dimensione di una finestra, i suoi divisori e le colonne delle sue viste, in un solo dizionario annidato per le impostazioni del programma. Un'altra li ripristina.</translation>
    </message>
    <message>
        <source>&amp;Open Window</source>
        <translation>&amp;Apri finestra</translation>
    </message>
    <message>
        <source>&amp;Keep State</source>
        <translation>Conse&amp;rva stato</translation>
    </message>
    <message>
        <source>&amp;Disarrange</source>
        <translation>Sco&amp;mpiglia</translation>
    </message>
    <message>
        <source>&amp;Restore State</source>
        <translation>Ri&amp;pristina stato</translation>
    </message>
    <message>
        <source>K&amp;ept state:</source>
        <translation>Stato co&amp;nservato:</translation>
    </message>
    <message>
        <source>Kept state</source>
        <translation>Stato conservato</translation>
    </message>
</context>
<context>
    <name>WidgetStateTree</name>
    <message>
        <source>Key</source>
        <translation>Chiave</translation>
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
        <translation>Più esecutori, un delegato</translation>
    </message>
    <message>
        <source>Files &amp;in:</source>
        <translation>File &amp;in:</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Sfo&amp;glia...</translation>
    </message>
    <message>
        <source>&amp;Read Files</source>
        <translation>L&amp;eggi file</translation>
    </message>
    <message>
        <source>Canc&amp;el</source>
        <translation>Ann&amp;ulla</translation>
    </message>
    <message>
        <source>Read the Files of a Folder</source>
        <translation>Leggi i file di una cartella</translation>
    </message>
    <message>
        <source>T&amp;hreads:</source>
        <translation>T&amp;hread:</translation>
    </message>
    <message>
        <source>Progress of the workers</source>
        <translation>Avanzamento degli esecutori</translation>
    </message>
    <message>
        <source>Reports of the workers</source>
        <translation>Notifiche degli esecutori</translation>
    </message>
    <message>
        <source>Paintings of the bar</source>
        <translation>Ridisegni della barra</translation>
    </message>
    <message>
        <source>Files read</source>
        <translation>File letti</translation>
    </message>
    <message>
        <source>Read in a second</source>
        <translation>Letti al secondo</translation>
    </message>
    <message>
        <source>%1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>%1 in %2 s; copie di altri file: %3, non leggibili: %4.</translation>
    </message>
    <message>
        <source>Cancelled after %1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>Annullato dopo %1 in %2 s; copie di altri file: %3, non leggibili: %4.</translation>
    </message>
</context>
</TS>
