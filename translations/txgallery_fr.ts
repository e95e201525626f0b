<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AboutPage</name>
    <message>
        <source>The picture that a program shows while it starts, which a partner can replace by a logo, and the window that tells what the program is.</source>
        <translation>L’image qu’un programme affiche à son démarrage et qu’un partenaire peut remplacer par un logo, et la fenêtre qui dit ce qu’est le programme.</translation>
    </message>
</context>
<context>
    <name>AboutWindowPanel</name>
    <message>
        <source>About window</source>
        <translation>Fenêtre « À propos »</translation>
    </message>
    <message>
        <source>With the &amp;version of Qt</source>
        <translation>Avec la &amp;version de Qt</translation>
    </message>
    <message>
        <source>Open About &amp;Window</source>
        <translation>Ouvrir la &amp;fenêtre « À propos »</translation>
    </message>
    <message>
        <source>Open Legal &amp;Notices</source>
        <translation>Ouvrir les &amp;mentions légales</translation>
    </message>
    <message>
        <source>The notices are opened from a copy in the folder "%1".</source>
        <translation>Les mentions sont ouvertes à partir d’une copie dans le dossier « %1 ».</translation>
    </message>
    <message>
        <source>There are no notices at "%1".</source>
        <translation>Il n’y a pas de mentions à l’emplacement « %1 ».</translation>
    </message>
</context>
<context>
    <name>AccessPage</name>
    <message>
        <source>A program whose user interface can be locked behind a password. The dialogs ask for it; the program keeps it and does the locking, here of the work area.</source>
        <translation>Un programme dont l’interface peut être verrouillée par un mot de passe. Les dialogues le demandent ; le programme le conserve et effectue le verrouillage, ici celui de l’espace de travail.</translation>
    </message>
</context>
<context>
    <name>BoldTitlePanel</name>
    <message>
        <source>Bold titles</source>
        <translation>Titres en gras</translation>
    </message>
    <message>
        <source>Proof, bold title</source>
        <translation>Épreuve, titre en gras</translation>
    </message>
    <message>
        <source>Proof, bold font</source>
        <translation>Épreuve, police en gras</translation>
    </message>
    <message>
        <source>Add R&amp;esult</source>
        <translation>A&amp;jouter un résultat</translation>
    </message>
    <message>
        <source>&amp;Update Weights</source>
        <translation>Ra&amp;fraîchir les graisses</translation>
    </message>
    <message>
        <source>Not passed</source>
        <translation>Non conforme</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>Mean ΔE %1</source>
        <translation>ΔE moyen %1</translation>
    </message>
    <message>
        <source>Largest ΔE %1</source>
        <translation>ΔE maximal %1</translation>
    </message>
    <message>
        <source>%1: ΔE %2</source>
        <translation>%1 : ΔE %2</translation>
    </message>
</context>
<context>
    <name>BusyPage</name>
    <message>
        <source>A spinner over a list that is being filled, and a progress bar that many threads report to while they work.</source>
        <translation>Un indicateur d’activité sur une liste en cours de remplissage, et une barre de progression que de nombreux threads alimentent pendant leur travail.</translation>
    </message>
</context>
<context>
    <name>ChartPatches</name>
    <message>
        <source>Dark skin</source>
        <translation>Peau foncée</translation>
    </message>
    <message>
        <source>Light skin</source>
        <translation>Peau claire</translation>
    </message>
    <message>
        <source>Blue sky</source>
        <translation>Bleu ciel</translation>
    </message>
    <message>
        <source>Foliage</source>
        <translation>Feuillage</translation>
    </message>
    <message>
        <source>Blue flower</source>
        <translation>Fleur bleue</translation>
    </message>
    <message>
        <source>Bluish green</source>
        <translation>Vert bleuté</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Purplish blue</source>
        <translation>Bleu violacé</translation>
    </message>
    <message>
        <source>Moderate red</source>
        <translation>Rouge moyen</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Pourpre</translation>
    </message>
    <message>
        <source>Yellow green</source>
        <translation>Vert-jaune</translation>
    </message>
    <message>
        <source>Orange yellow</source>
        <translation>Jaune orangé</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
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
        <translation>Blanc 9,5</translation>
    </message>
    <message>
        <source>Neutral 8</source>
        <translation>Gris 8</translation>
    </message>
    <message>
        <source>Neutral 6.5</source>
        <translation>Gris 6,5</translation>
    </message>
    <message>
        <source>Neutral 5</source>
        <translation>Gris 5</translation>
    </message>
    <message>
        <source>Neutral 3.5</source>
        <translation>Gris 3,5</translation>
    </message>
    <message>
        <source>Black 2</source>
        <translation>Noir 2</translation>
    </message>
    <message>
        <source>Skin and nature</source>
        <translation>Peau et nature</translation>
    </message>
    <message>
        <source>Further colours</source>
        <translation>Autres couleurs</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>Couleurs primaires</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Gris</translation>
    </message>
</context>
<context>
    <name>ChartReport</name>
    <message>
        <source>Colour comparison of the 24-patch chart</source>
        <translation>Comparaison de la charte à 24 plages</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galerie TXGUICommon</translation>
    </message>
    <message>
        <source>Page {page} of {pages}</source>
        <translation>Page {page} sur {pages}</translation>
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
        <translation>Moyennes publiées d’anciennes chartes par rapport aux valeurs de référence actuelles</translation>
    </message>
    <message>
        <source>Left half, set A: average of charts made before November 2014</source>
        <translation>Moitié gauche, jeu A : moyenne de chartes fabriquées avant novembre 2014</translation>
    </message>
    <message>
        <source>Right half, set B: charts made since November 2014</source>
        <translation>Moitié droite, jeu B : chartes fabriquées depuis novembre 2014</translation>
    </message>
    <message>
        <source>CIELAB under D50 for the 2° observer, shown in sRGB</source>
        <translation>CIELAB sous D50 pour l’observateur 2°, affiché en sRGB</translation>
    </message>
    <message>
        <source>Differences of the 24 patches</source>
        <translation>Écarts des 24 plages</translation>
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
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>95 %</source>
        <translation>95 %</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Above %1</source>
        <translation>Plus de %1</translation>
    </message>
    <message>
        <source>%1 of each patch, tolerance %2</source>
        <translation>%1 de chaque plage, tolérance %2</translation>
    </message>
    <message>
        <source>ΔE*ab: CIE76, the distance in CIELAB. CIE 15, Colorimetry.</source>
        <translation>ΔE*ab : CIE76, la distance dans CIELAB. CIE 15, Colorimetry.</translation>
    </message>
    <message>
        <source>ΔE00: CIEDE2000, all weights 1. CIE 142:2001; ISO/CIE 11664-6.</source>
        <translation>ΔE00 : CIEDE2000, tous les poids à 1. CIE 142:2001 ; ISO/CIE 11664-6.</translation>
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
        <translation>N°</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Plage</translation>
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
        <translation>Plage du jeu A</translation>
    </message>
    <message>
        <source>Patch of set B</source>
        <translation>Plage du jeu B</translation>
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
        <translation>Arborescence avec grille</translation>
    </message>
    <message>
        <source>Colour chart</source>
        <translation>Charte de couleurs</translation>
    </message>
    <message>
        <source>&amp;Grid lines</source>
        <translation>Lignes de la &amp;grille</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Plage</translation>
    </message>
</context>
<context>
    <name>ColourDifferencePage</name>
    <message>
        <source>How far two sets of colours of a chart are apart: as a bar, as swatches, and the spectrum behind a curve.</source>
        <translation>À quel point deux jeux de couleurs d’une charte s’écartent l’un de l’autre : sous forme de barre, de nuances, et le spectre derrière une courbe.</translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPage</name>
    <message>
        <source>&amp;Illuminant:</source>
        <translation>&amp;Illuminant :</translation>
    </message>
    <message>
        <source>D&amp;50, prints</source>
        <translation>D&amp;50, imprimés</translation>
    </message>
    <message>
        <source>D&amp;65, daylight</source>
        <translation>D&amp;65, lumière du jour</translation>
    </message>
    <message>
        <source>&amp;Observer:</source>
        <translation>&amp;Observateur :</translation>
    </message>
    <message>
        <source>&amp;2° field</source>
        <translation>Champ de &amp;2°</translation>
    </message>
    <message>
        <source>&amp;10° field</source>
        <translation>Champ de &amp;10°</translation>
    </message>
    <message>
        <source>White point:</source>
        <translation>Point blanc :</translation>
    </message>
    <message>
        <source>Difference &amp;formula:</source>
        <translation>&amp;Formule d’écart :</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Tolérance :</translation>
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
        <translation>Mesure des couleurs</translation>
    </message>
</context>
<context>
    <name>ColourPreset</name>
    <message>
        <source>It is no colour preset.</source>
        <translation>Ce n’est pas un préréglage de couleur.</translation>
    </message>
    <message>
        <source>Its version, %1, is not known.</source>
        <translation>Sa version, %1, n’est pas connue.</translation>
    </message>
    <message>
        <source>"%1" is no rendering intent.</source>
        <translation>« %1 » n’est pas un mode de rendu.</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptif</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrique relatif</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrique absolu</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Le nom est vide.</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation>Le nom compte plus de %1 caractères.</translation>
    </message>
    <message>
        <source>The name has characters that cannot be shown.</source>
        <translation>Le nom contient des caractères qui ne peuvent pas être affichés.</translation>
    </message>
    <message>
        <source>with black point compensation</source>
        <translation>avec compensation du point noir</translation>
    </message>
    <message>
        <source>without black point compensation</source>
        <translation>sans compensation du point noir</translation>
    </message>
    <message>
        <source>%1, %2, paper L* %3 a* %4 b* %5, at most %6 % ink</source>
        <translation>%1, %2, papier L* %3 a* %4 b* %5, encrage d’au plus %6 %</translation>
    </message>
</context>
<context>
    <name>ColourPresetCollection</name>
    <message>
        <source>Colour presets</source>
        <translation>Préréglages de couleur</translation>
    </message>
    <message>
        <source>"%1" cannot be saved.</source>
        <translation>Impossible d’enregistrer « %1 ».</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Ce préréglage n’existe pas.</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Papier couché</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>Papier journal</translation>
    </message>
    <message>
        <source>Contract proof</source>
        <translation>Épreuve contractuelle</translation>
    </message>
    <message>
        <source>No preset can be loaded.</source>
        <translation>Aucun préréglage ne peut être chargé.</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>Impossible de lire le dossier « %1 ».</translation>
    </message>
    <message>
        <source>Nothing can be duplicated.</source>
        <translation>Il n’y a rien à dupliquer.</translation>
    </message>
    <message>
        <source>"%1" cannot be imported.</source>
        <translation>Impossible d’importer « %1 ».</translation>
    </message>
    <message>
        <source>"%1" cannot be written.</source>
        <translation>Impossible d’écrire « %1 ».</translation>
    </message>
    <message>
        <source>That is the folder of the presets themselves.</source>
        <translation>C’est le dossier des préréglages eux-mêmes.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>"%1" cannot be deleted.</source>
        <translation>Impossible de supprimer « %1 ».</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>C’est un lien vers un autre emplacement.</translation>
    </message>
    <message>
        <source>Another program has changed it in the meantime. Try again if that is to be lost.</source>
        <translation>Un autre programme l’a modifié entre-temps. Réessayez si ces modifications peuvent être perdues.</translation>
    </message>
    <message>
        <source>Another preset is called "%1".</source>
        <translation>Un autre préréglage s’appelle « %1 ».</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>Impossible de créer le dossier « %1 ».</translation>
    </message>
</context>
<context>
    <name>ColourPresetForm</name>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>Mode de &amp;rendu :</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>&amp;Compensation du point noir</translation>
    </message>
    <message>
        <source>In&amp;k limit:</source>
        <translation>Limite &amp;d’encrage :</translation>
    </message>
    <message>
        <source>Paper white:</source>
        <translation>Blanc du papier :</translation>
    </message>
    <message>
        <source>The paper as a screen shows it</source>
        <translation>Le papier tel qu’un écran l’affiche</translation>
    </message>
    <message>
        <source>Lightness of the paper</source>
        <translation>Clarté du papier</translation>
    </message>
    <message>
        <source>Green to red of the paper</source>
        <translation>Du vert au rouge, pour le papier</translation>
    </message>
    <message>
        <source>Blue to yellow of the paper</source>
        <translation>Du bleu au jaune, pour le papier</translation>
    </message>
</context>
<context>
    <name>ColourPresetPanel</name>
    <message>
        <source>New preset</source>
        <translation>Nouveau préréglage</translation>
    </message>
    <message>
        <source>Colour presets</source>
        <translation>Préréglages de couleur</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>Préréglage :</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Aucun préréglage</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importer...</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Edit</source>
        <translation>Annuler la modifica&amp;tion</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>Delete the preset "%1" for good?</source>
        <translation>Supprimer définitivement le préréglage « %1 » ?</translation>
    </message>
    <message>
        <source>Change the name in the box and the settings, then save.</source>
        <translation>Modifiez le nom dans le champ ainsi que les paramètres, puis enregistrez.</translation>
    </message>
    <message>
        <source>There is no preset. Make a new one, or import one.</source>
        <translation>Il n’y a pas de préréglage. Créez-en un ou importez-en un.</translation>
    </message>
    <message>
        <source>The settings can be changed once the preset is edited.</source>
        <translation>Les paramètres peuvent être changés dès que le préréglage est en cours de modification.</translation>
    </message>
    <message>
        <source>Files in "%1" that are no presets, and are left as they are: %2</source>
        <translation>Fichiers de « %1 » qui ne sont pas des préréglages et sont laissés tels quels : %2</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>The preset "%1" has been edited. Save it?</source>
        <translation>Le préréglage « %1 » a été modifié. L’enregistrer ?</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>Importer un préréglage</translation>
    </message>
    <message>
        <source>Colour presets (*.json)</source>
        <translation>Préréglages de couleur (*.json)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>Exporter le préréglage</translation>
    </message>
</context>
<context>
    <name>ColourProfileCheck</name>
    <message>
        <source>%1 bytes by the header, %2 in the file.</source>
        <translation>%1 octets selon l’en-tête, %2 dans le fichier.</translation>
    </message>
    <message>
        <source>The signature is "%1" instead of "acsp".</source>
        <translation>La signature est « %1 » au lieu de « acsp ».</translation>
    </message>
    <message>
        <source>Version %1 is not supported.</source>
        <translation>La version %1 n’est pas prise en charge.</translation>
    </message>
    <message>
        <source>The device class "%1" is unknown.</source>
        <translation>La classe de périphérique « %1 » est inconnue.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Impossible d’ouvrir le fichier.</translation>
    </message>
    <message>
        <source>The file ends within the header, after %1 bytes.</source>
        <translation>Le fichier se termine dans l’en-tête, après %1 octets.</translation>
    </message>
    <message>
        <source>"%1" cannot be used as a colour profile.</source>
        <translation>« %1 » ne peut pas servir de profil de couleur.</translation>
    </message>
</context>
<context>
    <name>ComboBoxPanel</name>
    <message>
        <source>Combo boxes</source>
        <translation>Listes déroulantes</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>&amp;Measured under:</source>
        <translation>Condition de &amp;mesure :</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>&amp;Papier :</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier :</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Light of a tungsten lamp, the ultraviolet undefined</source>
        <translation>Lumière d’une lampe au tungstène, ultraviolet non défini</translation>
    </message>
    <message>
        <source>Daylight D50, the ultraviolet as in D50</source>
        <translation>Lumière du jour D50, ultraviolet comme dans D50</translation>
    </message>
    <message>
        <source>Without ultraviolet</source>
        <translation>Sans ultraviolet</translation>
    </message>
    <message>
        <source>Without ultraviolet, with polarising filters</source>
        <translation>Sans ultraviolet, avec filtres polarisants</translation>
    </message>
    <message>
        <source>Focus lost: %1</source>
        <translation>Focus perdu : %1</translation>
    </message>
    <message>
        <source>Measured under</source>
        <translation>Condition de mesure</translation>
    </message>
    <message>
        <source>Measured under, disabled</source>
        <translation>Condition de mesure, désactivée</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Paper, disabled</source>
        <translation>Papier, désactivé</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Folder, disabled</source>
        <translation>Dossier, désactivé</translation>
    </message>
</context>
<context>
    <name>ContainersPage</name>
    <message>
        <source>What holds other widgets: a flow of equal cells, a square, splitters with a grip, group boxes that fold or have a bold title; and labels that are turned.</source>
        <translation>Ce qui contient d’autres widgets : un flux de cellules égales, un carré, des séparateurs avec poignée, des groupes repliables ou à titre en gras ; et des libellés pivotés.</translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Numbers with a slider beside them, switches, and spin boxes that read as a plain value when they are disabled; and the state of a whole window in one call.</source>
        <translation>Des nombres accompagnés d’un curseur, des interrupteurs, et des champs numériques qui se lisent comme une simple valeur lorsqu’ils sont désactivés ; et l’état de toute une fenêtre en un seul appel.</translation>
    </message>
</context>
<context>
    <name>CredentialPanel</name>
    <message>
        <source>Credential dialog</source>
        <translation>Dialogue d’identification</translation>
    </message>
    <message>
        <source>Ask for &amp;Credentials...</source>
        <translation>Demander les &amp;identifiants...</translation>
    </message>
    <message>
        <source>Offer to r&amp;emember</source>
        <translation>Proposer de &amp;mémoriser</translation>
    </message>
    <message>
        <source>With the offer the dialog calls back at each OK with both fields filled in; the host asks by itself whether "Remember" is checked.</source>
        <translation>Avec cette proposition, le dialogue rappelle le programme à chaque OK si les deux champs sont remplis ; le programme demande lui-même si « Mémoriser » est coché.</translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation>Pas encore demandés.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>User: %1.</source>
        <translation>Utilisateur : %1.</translation>
    </message>
    <message>
        <source>Characters of the password: %1.</source>
        <translation>Caractères du mot de passe : %1.</translation>
    </message>
    <message>
        <source>The callback was called.</source>
        <translation>Le rappel a eu lieu.</translation>
    </message>
    <message>
        <source>The callback was not called.</source>
        <translation>Le rappel n’a pas eu lieu.</translation>
    </message>
    <message>
        <source>"Remember" is checked.</source>
        <translation>« Mémoriser » est coché.</translation>
    </message>
    <message>
        <source>"Remember" is not checked.</source>
        <translation>« Mémoriser » n’est pas coché.</translation>
    </message>
</context>
<context>
    <name>DatabasePage</name>
    <message>
        <source>The panel for the place of a program's data: its internal database or a server. Switch on a real MariaDB server on this computer, choose what is to go wrong, and turn the pages of a million measurements in either database.</source>
        <translation>Le panneau pour l’emplacement des données d’un programme : sa base de données interne ou un serveur. Démarrez un vrai serveur MariaDB sur cet ordinateur, choisissez ce qui doit mal tourner et feuilletez un million de mesures dans l’une ou l’autre base de données.</translation>
    </message>
    <message>
        <source>Database panel</source>
        <translation>Panneau de la base de données</translation>
    </message>
</context>
<context>
    <name>DatabaseServerPanel</name>
    <message>
        <source>Local MariaDB server</source>
        <translation>Serveur MariaDB local</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>Problè&amp;me :</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Mot de passe erroné</translation>
    </message>
    <message>
        <source>No right to the database</source>
        <translation>Aucun droit sur la base de données</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Serveur muet</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Aucun serveur à l’écoute</translation>
    </message>
</context>
<context>
    <name>DatabaseSettingsPanel</name>
    <message>
        <source>Settings and dialog</source>
        <translation>Paramètres et dialogue</translation>
    </message>
    <message>
        <source>S&amp;how Settings</source>
        <translation>V&amp;oir les paramètres</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>As&amp;k...</source>
        <translation>&amp;Demander...</translation>
    </message>
    <message>
        <source>Settings of the database</source>
        <translation>Paramètres de la base de données</translation>
    </message>
    <message>
        <source>Where to Keep the Measurements</source>
        <translation>Où conserver les mesures</translation>
    </message>
    <message>
        <source>As they stand in the panel, whether they work or not.</source>
        <translation>Tels qu’ils figurent dans le panneau, qu’ils fonctionnent ou non.</translation>
    </message>
    <message>
        <source>Saved: a connection can be opened.</source>
        <translation>Enregistré : une connexion peut être ouverte.</translation>
    </message>
    <message>
        <source>Nothing to save: no connection can be opened.</source>
        <translation>Rien à enregistrer : aucune connexion ne peut être ouverte.</translation>
    </message>
    <message>
        <source>Confirmed in the dialog: a connection can be opened.</source>
        <translation>Confirmé dans le dialogue : une connexion peut être ouverte.</translation>
    </message>
    <message>
        <source>Cancelled, or no connection can be opened.</source>
        <translation>Annulé, ou aucune connexion ne peut être ouverte.</translation>
    </message>
</context>
<context>
    <name>DictionaryView</name>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>DifferenceBarPanel</name>
    <message>
        <source>Differences of the pairs</source>
        <translation>Écarts des paires</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Formule :</translation>
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
        <translation>Formule</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>Pa&amp;ires :</translation>
    </message>
    <message>
        <source>Same patches</source>
        <translation>Mêmes plages</translation>
    </message>
    <message>
        <source>Different patches</source>
        <translation>Plages différentes</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paires</translation>
    </message>
    <message>
        <source>Limit:</source>
        <translation>Limite :</translation>
    </message>
    <message>
        <source>%1 of %2 pairs are below the limit of %3. The mean is %4, and %5 % of the pairs are below it; the largest difference is %6.</source>
        <translation>%1 paires sur %2 sont sous la limite de %3. La moyenne est de %4, et %5 % des paires sont en dessous ; le plus grand écart est de %6.</translation>
    </message>
</context>
<context>
    <name>DifferenceLegend</name>
    <message>
        <source>Colour difference by CIEDE2000. Up to %1: close.</source>
        <translation>Écart de couleur selon CIEDE2000. Jusqu’à %1 : faible.</translation>
    </message>
    <message>
        <source>Colours of the difference</source>
        <translation>Couleurs de l’écart</translation>
    </message>
</context>
<context>
    <name>DisabledSpinBoxPanel</name>
    <message>
        <source>Spin boxes that are disabled</source>
        <translation>Champs numériques désactivés</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>%1, enabled</source>
        <translation>%1, activé</translation>
    </message>
    <message>
        <source>%1, disabled</source>
        <translation>%1, désactivé</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>&amp;Permuter</translation>
    </message>
</context>
<context>
    <name>DragDropEmissions</name>
    <message>
        <source>Signals</source>
        <translation>Signaux</translation>
    </message>
    <message>
        <source>Signals o&amp;f the page: %1</source>
        <translation>Signau&amp;x de la page : %1</translation>
    </message>
    <message>
        <source>Signals of the page</source>
        <translation>Signaux de la page</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>DragDropPage</name>
    <message>
        <source>A field that takes files dropped from here or from any program, and folders that are sorted by dragging, in two views that stay in step.</source>
        <translation>Un champ qui accepte les fichiers déposés depuis cette page ou tout autre programme, et des dossiers que l’on classe en les faisant glisser, dans deux vues qui restent synchronisées.</translation>
    </message>
</context>
<context>
    <name>DriveManagerPanel</name>
    <message>
        <source>Manager window</source>
        <translation>Fenêtre du gestionnaire</translation>
    </message>
    <message>
        <source>S&amp;hare:</source>
        <translation>&amp;Partage :</translation>
    </message>
    <message>
        <source>Add &amp;Drive</source>
        <translation>Ajouter &amp;un lecteur</translation>
    </message>
    <message>
        <source>Re&amp;move Added Drives</source>
        <translation>Supprimer les lec&amp;teurs ajoutés</translation>
    </message>
    <message>
        <source>Show F&amp;older</source>
        <translation>A&amp;fficher le dossier</translation>
    </message>
    <message>
        <source>Check "Enabled", and all active drives in the list are connected, your own too. A connected drive is a link in "%1". The editor knows no port: a drive that you type in or edit leads to the standard port 445, not to the server above. Added drives are removed when the gallery ends; one that you have edited is yours, and stays.</source>
        <translation>Cochez « Activé » et tous les lecteurs actifs de la liste sont connectés, les vôtres aussi. Un lecteur connecté est un lien dans « %1 ». L’éditeur ne connaît pas de port : un lecteur que vous saisissez ou modifiez mène au port standard 445, et non au serveur ci-dessus. Les lecteurs ajoutés sont supprimés à la fermeture de la galerie ; celui que vous avez modifié est à vous, et reste.</translation>
    </message>
    <message>
        <source>Added: %1.</source>
        <translation>Ajouté : %1.</translation>
    </message>
    <message>
        <source>Added: %1. Check "Enabled" to have it connected.</source>
        <translation>Ajouté : %1. Cochez « Activé » pour établir la connexion.</translation>
    </message>
    <message>
        <source>%1 is yours now, and leads to port %2: the editor knows no port. Remove it with "-".</source>
        <translation>%1 est désormais à vous et mène au port %2 : l’éditeur ne connaît pas de port. Supprimez-le avec « - ».</translation>
    </message>
    <message>
        <source>All drive letters are taken.</source>
        <translation>Toutes les lettres de lecteur sont prises.</translation>
    </message>
    <message>
        <source>No drive has been connected yet: there is no folder "%1".</source>
        <translation>Aucun lecteur n’a encore été connecté : il n’y a pas de dossier « %1 ».</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>Aucun programme n’affiche le dossier « %1 ».</translation>
    </message>
</context>
<context>
    <name>DriveSessionPanel</name>
    <message>
        <source>Lo&amp;g of the drives:</source>
        <translation>&amp;Journal des lecteurs :</translation>
    </message>
    <message>
        <source>S&amp;ignals of the manager:</source>
        <translation>Signaux du &amp;gestionnaire :</translation>
    </message>
</context>
<context>
    <name>DrivesPage</name>
    <message>
        <source>Drives of file servers that a program keeps connected. Switch on a real Samba server on this computer, choose what is to go wrong, add its drives to the list, and see how they stand.</source>
        <translation>Les lecteurs de serveurs de fichiers qu’un programme garde connectés. Démarrez un vrai serveur Samba sur cet ordinateur, choisissez ce qui doit mal tourner, ajoutez ses lecteurs à la liste et voyez dans quel état ils sont.</translation>
    </message>
</context>
<context>
    <name>EmbeddingPanel</name>
    <message>
        <source>OK was clicked, and the dialog stays in the page.</source>
        <translation>Vous avez cliqué sur OK, et le dialogue reste dans la page.</translation>
    </message>
    <message>
        <source>OK closed the window; its colour was taken over.</source>
        <translation>OK a fermé la fenêtre ; sa couleur a été reprise.</translation>
    </message>
    <message>
        <source>Cancel closed the window; the colour stays as it was.</source>
        <translation>« Annuler » a fermé la fenêtre ; la couleur reste inchangée.</translation>
    </message>
    <message>
        <source>A dialog in two places</source>
        <translation>Un dialogue à deux endroits</translation>
    </message>
    <message>
        <source>Part of the page, the dialog is not ended by its buttons. As a window it is, and hands its colour over.</source>
        <translation>Dans la page, le dialogue n’est pas fermé par ses boutons. En tant que fenêtre, il l’est et transmet sa couleur.</translation>
    </message>
    <message>
        <source>Open as &amp;Window</source>
        <translation>Ouvrir comme fe&amp;nêtre</translation>
    </message>
</context>
<context>
    <name>EmissionList</name>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vider</translation>
    </message>
</context>
<context>
    <name>EncodedTextFile</name>
    <message>
        <source>There is no codec "%1".</source>
        <translation>Il n’y a pas de codec « %1 ».</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Lecture impossible : %1.</translation>
    </message>
</context>
<context>
    <name>EncodingPanel</name>
    <message>
        <source>Text File</source>
        <translation>Fichier texte</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Fichiers texte (*.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Default encoding</source>
        <translation>Encodage par défaut</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>E&amp;nregistrer</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>C&amp;harger</translation>
    </message>
    <message>
        <source>&amp;Text file:</source>
        <translation>Fichier &amp;texte :</translation>
    </message>
    <message>
        <source>Example in UTF-8</source>
        <translation>Exemple en UTF-8</translation>
    </message>
    <message>
        <source>Example in ISO-8859-1</source>
        <translation>Exemple en ISO-8859-1</translation>
    </message>
    <message>
        <source>Choose &amp;File...</source>
        <translation>Choisir un &amp;fichier...</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>Texte du fichier</translation>
    </message>
    <message>
        <source>The file is not shown. %1</source>
        <translation>Le fichier n’est pas affiché. %1</translation>
    </message>
    <message>
        <source>Bytes read as %1: %2.</source>
        <translation>Octets lus en %1 : %2.</translation>
    </message>
    <message>
        <source>Places that this encoding cannot read: %1.</source>
        <translation>Endroits illisibles dans cet encodage : %1.</translation>
    </message>
    <message>
        <source>The rest of the file is not shown.</source>
        <translation>Le reste du fichier n’est pas affiché.</translation>
    </message>
</context>
<context>
    <name>ErrorBoxPanel</name>
    <message>
        <source>Show it</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Short:</source>
        <translation>Court :</translation>
    </message>
    <message>
        <source>With details:</source>
        <translation>Avec détails :</translation>
    </message>
    <message>
        <source>a line for each nested error</source>
        <translation>une ligne par erreur imbriquée</translation>
    </message>
    <message>
        <source>nested errors folded away</source>
        <translation>erreurs imbriquées repliées</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Information</translation>
    </message>
    <message>
        <source>&amp;Question</source>
        <translation>Questio&amp;n</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>A&amp;vertissement</translation>
    </message>
    <message>
        <source>&amp;Critical</source>
        <translation>C&amp;ritique</translation>
    </message>
    <message>
        <source>In&amp;formation</source>
        <comment>with details</comment>
        <translation>In&amp;formation</translation>
    </message>
    <message>
        <source>Q&amp;uestion</source>
        <comment>with details</comment>
        <translation>Q&amp;uestion</translation>
    </message>
    <message>
        <source>War&amp;ning</source>
        <comment>with details</comment>
        <translation>Avertisse&amp;ment</translation>
    </message>
    <message>
        <source>C&amp;ritical</source>
        <comment>with details</comment>
        <translation>Criti&amp;que</translation>
    </message>
    <message>
        <source>%1, short</source>
        <translation>%1, court</translation>
    </message>
    <message>
        <source>%1, with details</source>
        <translation>%1, avec détails</translation>
    </message>
</context>
<context>
    <name>ErrorComposer</name>
    <message>
        <source>Read a File as a Colour Profile</source>
        <translation>Lire un fichier comme profil de couleur</translation>
    </message>
    <message>
        <source>Compose an error</source>
        <translation>Composer une erreur</translation>
    </message>
    <message>
        <source>E&amp;xample:</source>
        <translation>E&amp;xemple :</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>C&amp;hoisir...</translation>
    </message>
    <message>
        <source>Reads another file as a colour profile.</source>
        <translation>Lit un autre fichier comme profil de couleur.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre :</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Without a title the domain stands in</source>
        <translation>Sans titre, le domaine le remplace</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>Descri&amp;ption :</translation>
    </message>
    <message>
        <source>D&amp;omain:</source>
        <translation>&amp;Domaine :</translation>
    </message>
    <message>
        <source>N&amp;ested errors:</source>
        <translation>Erreurs im&amp;briquées :</translation>
    </message>
    <message>
        <source>One a line; two blanks put it below the line above</source>
        <translation>Une par ligne ; deux espaces la placent sous la ligne précédente</translation>
    </message>
    <message>
        <source>Com&amp;plete text:</source>
        <translation>Texte &amp;complet :</translation>
    </message>
    <message>
        <source>An error with nothing to say opens no box.</source>
        <translation>Une erreur qui n’a rien à dire n’ouvre pas de fenêtre.</translation>
    </message>
</context>
<context>
    <name>ErrorExamples</name>
    <message>
        <source>Colour Profile</source>
        <translation>Profil de couleur</translation>
    </message>
    <message>
        <source>The password of the measuring device cannot be read.</source>
        <translation>Impossible de lire le mot de passe de l’instrument de mesure.</translation>
    </message>
    <message>
        <source>A file read as a colour profile</source>
        <translation>Un fichier lu comme profil de couleur</translation>
    </message>
    <message>
        <source>A password that was never enciphered</source>
        <translation>Un mot de passe qui n’a jamais été chiffré</translation>
    </message>
    <message>
        <source>Reasons without a description</source>
        <translation>Des raisons sans description</translation>
    </message>
    <message>
        <source>Nothing to report</source>
        <translation>Rien à signaler</translation>
    </message>
</context>
<context>
    <name>ErrorsPage</name>
    <message>
        <source>How a failure reaches the user: an error with the errors that led to it, the boxes that show it, and the manual.</source>
        <translation>Comment un échec parvient à l’utilisateur : une erreur avec les erreurs qui y ont mené, les boîtes de message qui l’affichent, et le manuel.</translation>
    </message>
</context>
<context>
    <name>FeedbackFieldsPanel</name>
    <message>
        <source>Extra fields of the program</source>
        <translation>Champs supplémentaires du programme</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Add F&amp;ield</source>
        <translation>Ajouter &amp;un champ</translation>
    </message>
    <message>
        <source>Re&amp;move Field</source>
        <translation>Supprimer le &amp;champ</translation>
    </message>
</context>
<context>
    <name>FeedbackFormPanel</name>
    <message>
        <source>Press room</source>
        <translation>Atelier d’impression</translation>
    </message>
    <message>
        <source>Colour differences</source>
        <translation>Écarts de couleur</translation>
    </message>
    <message>
        <source>The limit of the difference bar could be typed as well.</source>
        <translation>La limite de la barre d’écart pourrait aussi se saisir au clavier.</translation>
    </message>
    <message>
        <source>Feedback form</source>
        <translation>Formulaire de commentaires</translation>
    </message>
    <message>
        <source>Open as &amp;Dialog</source>
        <translation>&amp;Ouvrir comme dialogue</translation>
    </message>
    <message>
        <source>A note goes to port 5050 of this computer, and nowhere else; the service takes it there while it is on. The form waits for the answer as long as it takes, and nothing can be pressed meanwhile.
It tells success only if part of the answer still comes in while it reads. An answer that has come whole, as from this computer, is not looked at: the form then says that the service may be unavailable, for an accepted note too. What has arrived stands in the session.</source>
        <translation>Un message est envoyé au port 5050 de cet ordinateur, et nulle part ailleurs ; le service l’y reçoit tant qu’il est en marche. Le formulaire attend la réponse aussi longtemps qu’il le faut, et rien n’est utilisable pendant ce temps.
Il n’annonce un succès que si une partie de la réponse arrive encore pendant qu’il lit. Une réponse arrivée tout entière, comme depuis cet ordinateur, n’est pas examinée : le formulaire dit alors que le service est peut-être indisponible, même pour un message accepté. Ce qui est arrivé figure dans la session.</translation>
    </message>
</context>
<context>
    <name>FeedbackPage</name>
    <message>
        <source>The form with which a user writes to the makers of a program. Switch on a real feedback service on this computer, choose what it answers, and submit a note.</source>
        <translation>Le formulaire par lequel un utilisateur écrit aux auteurs d’un programme. Démarrez un vrai service de commentaires sur cet ordinateur, choisissez ce qu’il répond et envoyez un message.</translation>
    </message>
</context>
<context>
    <name>FeedbackServicePanel</name>
    <message>
        <source>Local feedback service</source>
        <translation>Service de commentaires local</translation>
    </message>
    <message>
        <source>Ans&amp;wer:</source>
        <translation>&amp;Réponse :</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Accepté</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Refusé</translation>
    </message>
    <message>
        <source>Accepted after %1 seconds</source>
        <translation>Accepté après %1 secondes</translation>
    </message>
    <message>
        <source>Answer that breaks off</source>
        <translation>Réponse qui s’interrompt</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>Réponse qui n’est pas du JSON</translation>
    </message>
    <message>
        <source>Status 500</source>
        <translation>Statut 500</translation>
    </message>
</context>
<context>
    <name>FeedbackSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>Reçu &amp;par le service :</translation>
    </message>
    <message>
        <source>Signals of t&amp;he form and its dialog:</source>
        <translation>Signaux du &amp;formulaire et de son dialogue :</translation>
    </message>
</context>
<context>
    <name>FileDigests</name>
    <message>
        <source>Looking for files</source>
        <translation>Recherche de fichiers</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lecture de %1</translation>
    </message>
</context>
<context>
    <name>FileDropPanel</name>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Files of the &amp;gallery:</source>
        <translation>Fichiers de la &amp;galerie :</translation>
    </message>
    <message>
        <source>Files of the gallery</source>
        <translation>Fichiers de la galerie</translation>
    </message>
    <message>
        <source>&amp;Put Into Field</source>
        <translation>Placer dans le &amp;champ</translation>
    </message>
    <message>
        <source>&amp;Dropped file:</source>
        <translation>&amp;Fichier déposé :</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Déposez des fichiers ici</translation>
    </message>
    <message>
        <source>Nothing dropped yet</source>
        <translation>Rien n’a encore été déposé</translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation>Déposés : %1</translation>
    </message>
    <message>
        <source>Dropped: %1, not on this computer: %2</source>
        <translation>Déposés : %1, hors de cet ordinateur : %2</translation>
    </message>
</context>
<context>
    <name>FolderDropPanel</name>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>In your own &amp;order:</source>
        <translation>Da&amp;ns votre propre ordre :</translation>
    </message>
    <message>
        <source>In alphab&amp;etical order:</source>
        <translation>Dans l’ordre alp&amp;habétique :</translation>
    </message>
    <message>
        <source>Folders in your own order</source>
        <translation>Dossiers dans votre propre ordre</translation>
    </message>
    <message>
        <source>Folders in alphabetical order</source>
        <translation>Dossiers dans l’ordre alphabétique</translation>
    </message>
    <message>
        <source>&amp;May be dropped:</source>
        <translation>Dépôt p&amp;ermis :</translation>
    </message>
    <message>
        <source>Onto folders and between them</source>
        <translation>Sur et entre dossiers</translation>
    </message>
    <message>
        <source>Onto folders only</source>
        <translation>Sur les dossiers</translation>
    </message>
    <message>
        <source>Between folders only</source>
        <translation>Entre les dossiers</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nulle part</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>No&amp;uveau dossier</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Su&amp;pprimer</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation>&amp;Rentrer</translation>
    </message>
    <message>
        <source>Move Ou&amp;t</source>
        <translation>S&amp;ortir</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>New folder %1</source>
        <translation>Nouveau dossier %1</translation>
    </message>
    <message>
        <source>“%1” is removed</source>
        <translation>« %1 » a été supprimé</translation>
    </message>
    <message>
        <source>“%1” is moved</source>
        <translation>« %1 » a été déplacé</translation>
    </message>
    <message>
        <source>“%1” cannot move there</source>
        <translation>« %1 » ne peut pas être déplacé là</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Papers</source>
        <translation>Papiers</translation>
    </message>
    <message>
        <source>Uncoated</source>
        <translation>Non couché</translation>
    </message>
    <message>
        <source>Coated, glossy</source>
        <translation>Couché brillant</translation>
    </message>
    <message>
        <source>Coated, matt</source>
        <translation>Couché mat</translation>
    </message>
    <message>
        <source>Proofs</source>
        <translation>Épreuves</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>Écrans</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Studio</translation>
    </message>
    <message>
        <source>Laptops</source>
        <translation>Portables</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Chartes</translation>
    </message>
    <message>
        <source>24 colours</source>
        <translation>24 couleurs</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>Gamme de gris</translation>
    </message>
</context>
<context>
    <name>FolderJobBar</name>
    <message>
        <source>Relative paths start at the program's folder; several paths are separated by "%1".</source>
        <translation>Les chemins relatifs partent du dossier du programme ; plusieurs chemins sont séparés par « %1 ».</translation>
    </message>
</context>
<context>
    <name>FolderLogEntry</name>
    <message>
        <source>The folder is empty.</source>
        <translation>Le dossier est vide.</translation>
    </message>
    <message>
        <source>Broken link: %1</source>
        <translation>Lien rompu : %1</translation>
    </message>
    <message>
        <source>Very long name: %1</source>
        <translation>Nom très long : %1</translation>
    </message>
    <message>
        <source>No right to read: %1</source>
        <translation>Pas de droit de lecture : %1</translation>
    </message>
    <message>
        <source>No right to list the folder.</source>
        <translation>Pas de droit de lister le contenu du dossier.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>Le dossier n’existe pas.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>C’est un fichier, pas un dossier.</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Fichiers : %1</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>Taille totale : %1</translation>
    </message>
    <message>
        <source>Changed last: %1</source>
        <translation>Modifié en dernier : %1</translation>
    </message>
    <message>
        <source>Further findings are not listed.</source>
        <translation>Les autres résultats ne sont pas listés.</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Dossier %1</translation>
    </message>
    <message>
        <source>Scan finished after %1 s</source>
        <translation>Analyse terminée après %1 s</translation>
    </message>
    <message>
        <source>Scan cancelled after %1 s</source>
        <translation>Analyse annulée après %1 s</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Dossiers : %1</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>Avertissements : %1</translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation>Erreurs : %1</translation>
    </message>
</context>
<context>
    <name>FolderScanPanel</name>
    <message>
        <source>Folder scan with a spinner</source>
        <translation>Analyse d’un dossier avec indicateur d’activité</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier :</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>La&amp;ncer l’analyse</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Annule&amp;r</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>Analyser un dossier</translation>
    </message>
    <message>
        <source>Spinner si&amp;ze:</source>
        <translation>&amp;Taille de l’indicateur :</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 pixels</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Changed last</source>
        <translation>Plus récent</translation>
    </message>
    <message>
        <source>Largest folders</source>
        <translation>Dossiers les plus volumineux</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3 so far</source>
        <translation>%1 dossiers, %2 fichiers, %3 jusqu’ici</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3</source>
        <translation>%1 dossiers, %2 fichiers, %3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3; cancelled</source>
        <translation>%1 dossiers, %2 fichiers, %3 ; annulé</translation>
    </message>
</context>
<context>
    <name>FoldingPanel</name>
    <message>
        <source>Folding group box</source>
        <translation>Groupe repliable</translation>
    </message>
    <message>
        <source>C&amp;onversion</source>
        <translation>Con&amp;version</translation>
    </message>
    <message>
        <source>Rendering intent:</source>
        <translation>Mode de rendu :</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptif</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrique relatif</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrique absolu</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>Compensation d&amp;u point noir</translation>
    </message>
    <message>
        <source>Simulate the paper</source>
        <translation>Simuler le papier</translation>
    </message>
    <message>
        <source>The black point counts for relative colorimetric alone.</source>
        <translation>Le point noir ne compte que pour le mode colorimétrique relatif.</translation>
    </message>
    <message>
        <source>&amp;Keep the note hidden</source>
        <translation>Garder la remarque cac&amp;hée</translation>
    </message>
    <message>
        <source>black point compensated</source>
        <translation>point noir compensé</translation>
    </message>
    <message>
        <source>paper simulated</source>
        <translation>papier simulé</translation>
    </message>
</context>
<context>
    <name>FontsPanel</name>
    <message>
        <source>Fonts</source>
        <translation>Polices</translation>
    </message>
    <message>
        <source>There are no fonts in %1</source>
        <translation>Il n’y a pas de polices dans %1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>family and file</comment>
        <translation>%1, de %2</translation>
    </message>
    <message>
        <source>This file is no font.</source>
        <translation>Ce fichier n’est pas une police.</translation>
    </message>
    <message>
        <source>Specimen of %1</source>
        <translation>Spécimen de %1</translation>
    </message>
</context>
<context>
    <name>FtpConfigurationPanel</name>
    <message>
        <source>FTP panel</source>
        <translation>Panneau FTP</translation>
    </message>
    <message>
        <source>Show stat&amp;us</source>
        <translation>A&amp;fficher l’état</translation>
    </message>
    <message>
        <source>Show &amp;box "Active"</source>
        <translation>Afficher la &amp;case « Actif »</translation>
    </message>
    <message>
        <source>Show box "&amp;Erase"</source>
        <translation>Afficher la case « &amp;Effacer »</translation>
    </message>
    <message>
        <source>&amp;Importer</source>
        <translation>&amp;Importation</translation>
    </message>
</context>
<context>
    <name>FtpPage</name>
    <message>
        <source>The panel for an FTP or SFTP server to import from or to export to. Switch on a real server on this computer, choose what is to go wrong, and check the connection.</source>
        <translation>Le panneau pour un serveur FTP ou SFTP depuis lequel importer ou vers lequel exporter. Démarrez un vrai serveur sur cet ordinateur, choisissez ce qui doit mal tourner et vérifiez la connexion.</translation>
    </message>
</context>
<context>
    <name>FtpServerPanel</name>
    <message>
        <source>Local server</source>
        <translation>Serveur local</translation>
    </message>
    <message>
        <source>Protoc&amp;ol:</source>
        <translation>Pr&amp;otocole :</translation>
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
        <translation>Pro&amp;blème :</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Mot de passe erroné</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Serveur muet</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Aucun serveur à l’écoute</translation>
    </message>
</context>
<context>
    <name>FtpSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>Reçu &amp;par le serveur :</translation>
    </message>
    <message>
        <source>Signals of t&amp;he panel:</source>
        <translation>Si&amp;gnaux du panneau :</translation>
    </message>
</context>
<context>
    <name>FtpSettingsPanel</name>
    <message>
        <source>Settings and dialogs</source>
        <translation>Paramètres et dialogues</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Voir les para&amp;mètres</translation>
    </message>
    <message>
        <source>I&amp;mport Dialog...</source>
        <translation>Dialogue d’impor&amp;tation...</translation>
    </message>
    <message>
        <source>E&amp;xport Dialog...</source>
        <translation>Dialogue d’e&amp;xportation...</translation>
    </message>
    <message>
        <source>Where the jobs come from</source>
        <translation>Provenance des travaux</translation>
    </message>
    <message>
        <source>Where the jobs go to</source>
        <translation>Destination des travaux</translation>
    </message>
</context>
<context>
    <name>GalleryAboutWindow</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galerie TXGUICommon</translation>
    </message>
    <message>
        <source>with Qt %1</source>
        <translation>avec Qt %1</translation>
    </message>
</context>
<context>
    <name>GalleryCommandLine</name>
    <message>
        <source>Shows what the TXGUICommon library has to offer.</source>
        <translation>Montre ce que propose la bibliothèque TXGUICommon.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Affiche cette aide et quitte.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>Open at this page: %1.</source>
        <translation>Ouvre cette page : %1.</translation>
    </message>
    <message>
        <source>file|folder</source>
        <translation>fichier|dossier</translation>
    </message>
    <message>
        <source>Save a picture of the named page as this PNG file, or of every page into this folder, print the paths and exit.</source>
        <translation>Enregistre une image de la page indiquée dans ce fichier PNG, ou de chaque page dans ce dossier, affiche les chemins et quitte.</translation>
    </message>
    <message>
        <source>Widget style: %1.</source>
        <translation>Style des widgets : %1.</translation>
    </message>
    <message>
        <source>Colours.</source>
        <translation>Couleurs.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>code</translation>
    </message>
    <message>
        <source>Language of the texts, as en.</source>
        <translation>Langue des textes, par exemple en.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 exige une valeur.</translation>
    </message>
    <message>
        <source>Unexpected argument "%1".</source>
        <translation>Argument inattendu « %1 ».</translation>
    </message>
    <message>
        <source>There is no page "%1". The pages are: %2.</source>
        <translation>Il n’y a pas de page « %1 ». Les pages sont : %2.</translation>
    </message>
    <message>
        <source>There is no style "%1". The styles are: %2.</source>
        <translation>Il n’y a pas de style « %1 ». Les styles sont : %2.</translation>
    </message>
    <message>
        <source>There is no language "%1". The languages are: %2.</source>
        <translation>Il n’y a pas de langue « %1 ». Les langues sont : %2.</translation>
    </message>
    <message>
        <source>There is no palette "%1". The palettes are: light, dark, contrast.</source>
        <translation>Il n’y a pas de palette « %1 ». Les palettes sont : light, dark, contrast.</translation>
    </message>
</context>
<context>
    <name>GalleryGrabber</name>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>Impossible de créer le dossier « %1 ».</translation>
    </message>
    <message>
        <source>The page "%1" was not ready after %2 seconds.</source>
        <translation>La page « %1 » n’était pas prête après %2 secondes.</translation>
    </message>
    <message>
        <source>The picture "%1" cannot be written: %2.</source>
        <translation>Impossible d’écrire l’image « %1 » : %2.</translation>
    </message>
</context>
<context>
    <name>GalleryHeader</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galerie TXGUICommon</translation>
    </message>
    <message>
        <source>P&amp;alette</source>
        <translation>P&amp;alette</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Style</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>À propos...</translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <comment>key of the button About...</comment>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>About this program (%1)</source>
        <translation>À propos de ce programme (%1)</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claire</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>Contraste élevé</translation>
    </message>
</context>
<context>
    <name>GalleryPages</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Busy and progress</source>
        <translation>Activité et progression</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Accès</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Contrôles</translation>
    </message>
    <message>
        <source>Lists and delegates</source>
        <translation>Listes et délégués</translation>
    </message>
    <message>
        <source>Containers and labels</source>
        <translation>Conteneurs et libellés</translation>
    </message>
    <message>
        <source>Drag and drop</source>
        <translation>Glisser-déposer</translation>
    </message>
    <message>
        <source>Selection bar</source>
        <translation>Barre de sélection</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Courriel</translation>
    </message>
    <message>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de données</translation>
    </message>
    <message>
        <source>Web interface</source>
        <translation>Interface web</translation>
    </message>
    <message>
        <source>Trigger and encoding</source>
        <translation>Déclencheur et encodage</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Lecteurs</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Colour difference</source>
        <translation>Écart de couleur</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Language and style</source>
        <translation>Langue et style</translation>
    </message>
    <message>
        <source>Splash and About</source>
        <translation>Démarrage et À propos</translation>
    </message>
</context>
<context>
    <name>GallerySplash</name>
    <message>
        <source>Loading the fonts...</source>
        <translation>Chargement des polices...</translation>
    </message>
    <message>
        <source>Loading the pages...</source>
        <translation>Chargement des pages...</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>%1 - TXGUICommon Gallery</source>
        <translation>%1 – Galerie TXGUICommon</translation>
    </message>
</context>
<context>
    <name>ImageViewBar</name>
    <message>
        <source>&amp;Fit</source>
        <translation>Ajus&amp;ter</translation>
    </message>
    <message>
        <source>The whole picture in each zone, also when the window changes</source>
        <translation>L’image entière dans chaque zone, même quand la fenêtre change</translation>
    </message>
    <message>
        <source>S&amp;hare</source>
        <translation>&amp;Répartir</translation>
    </message>
    <message>
        <source>Each zone's share of the width: a half with two pictures, also when the window changes</source>
        <translation>La part de chaque zone dans la largeur : la moitié avec deux images, même quand la fenêtre change</translation>
    </message>
    <message>
        <source>1&amp;00 %</source>
        <translation>1&amp;00 %</translation>
    </message>
    <message>
        <source>A pixel of the picture as one of the screen</source>
        <translation>Un pixel de l’image pour un pixel de l’écran</translation>
    </message>
    <message>
        <source>Scal&amp;e:</source>
        <translation>Éc&amp;helle :</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>Suri&amp;mpression</translation>
    </message>
    <message>
        <source>Names of the pictures, outlines and numbers of the patches</source>
        <translation>Noms des images, contours et numéros des plages</translation>
    </message>
    <message>
        <source>&amp;Marker</source>
        <translation>Re&amp;père</translation>
    </message>
    <message>
        <source>A crosshair at the same place in all pictures</source>
        <translation>Un réticule au même endroit dans toutes les images</translation>
    </message>
</context>
<context>
    <name>ImagesPage</name>
    <message>
        <source>Pictures side by side at one scale and position: a colour chart, the same chart in a simulated print, and how the two differ. Drag them, and turn the wheel to look closer.</source>
        <translation>Des images côte à côte, à la même échelle et à la même position : une charte de couleurs, la même charte en impression simulée, et ce qui les distingue. Faites-les glisser et tournez la molette pour regarder de plus près.</translation>
    </message>
    <message>
        <source>Pictures side by side</source>
        <translation>Images côte à côte</translation>
    </message>
    <message>
        <source>Just a moment...</source>
        <translation>Un instant...</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Charte</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimé</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>The print is computed: paper that is not white, ink that is not black, dots that grow by %1 percent and a trace of their screen. It shows what these four do, and is no proof of what a press would print.</source>
        <translation>L’imprimé est calculé : un papier qui n’est pas blanc, une encre qui n’est pas noire, des points qui grossissent de %1 pour cent et une trace de leur trame. Il montre ce que produisent ces quatre facteurs, et n’est pas une épreuve de ce qu’imprimerait une presse.</translation>
    </message>
    <message>
        <source>The first %1 of %2 files.</source>
        <translation>Les %1 premiers fichiers sur %2.</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>The pictures differ in size: %1 pixels. All are laid out by the first.</source>
        <translation>Les images diffèrent par leur taille : %1 pixels. Toutes sont disposées d’après la première.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>What was shown before stays.</source>
        <translation>Ce qui était affiché auparavant reste.</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Lecture impossible : %1.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
</context>
<context>
    <name>JsonObjectReader</name>
    <message>
        <source>It holds no JSON object.</source>
        <translation>Il ne contient pas d’objet JSON.</translation>
    </message>
    <message>
        <source>"%1" is not known.</source>
        <translation>« %1 » n’est pas connu.</translation>
    </message>
    <message>
        <source>"%1" is no text.</source>
        <translation>« %1 » n’est pas un texte.</translation>
    </message>
    <message>
        <source>"%1" is neither true nor false.</source>
        <translation>« %1 » ne vaut ni true ni false.</translation>
    </message>
    <message>
        <source>"%1" is no number from %2 to %3.</source>
        <translation>« %1 » n’est pas un nombre de %2 à %3.</translation>
    </message>
    <message>
        <source>"%1" is no whole number.</source>
        <translation>« %1 » n’est pas un nombre entier.</translation>
    </message>
    <message>
        <source>"%1" is no object.</source>
        <translation>« %1 » n’est pas un objet.</translation>
    </message>
    <message>
        <source>"%1" is missing.</source>
        <translation>« %1 » est absent.</translation>
    </message>
</context>
<context>
    <name>JsonText</name>
    <message>
        <source>It is empty.</source>
        <translation>Le texte est vide.</translation>
    </message>
    <message>
        <source>It is no JSON (line %1: %2).</source>
        <translation>Le texte n’est pas du JSON (ligne %1 : %2).</translation>
    </message>
    <message>
        <source>It is too large: more than %1.</source>
        <translation>Le texte est trop grand : plus de %1.</translation>
    </message>
    <message>
        <source>It holds too many values: more than %1.</source>
        <translation>Le texte contient trop de valeurs : plus de %1.</translation>
    </message>
</context>
<context>
    <name>LabColourDialog</name>
    <message>
        <source>On screen %1</source>
        <translation>À l’écran %1</translation>
    </message>
    <message>
        <source>Beyond the screen; shown as %1</source>
        <translation>Hors de portée de l’écran ; affichée comme %1</translation>
    </message>
    <message>
        <source>Mix a Colour</source>
        <translation>Composer une couleur</translation>
    </message>
    <message>
        <source>Li&amp;ghtness L*:</source>
        <translation>&amp;Clarté L* :</translation>
    </message>
    <message>
        <source>Gree&amp;n-red a*:</source>
        <translation>&amp;Vert–rouge a* :</translation>
    </message>
    <message>
        <source>&amp;Blue-yellow b*:</source>
        <translation>&amp;Bleu–jaune b* :</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Clarté</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>Du vert au rouge</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>Du bleu au jaune</translation>
    </message>
</context>
<context>
    <name>LabPlanePanel</name>
    <message>
        <source>Square layout and rotated labels</source>
        <translation>Disposition carrée et libellés pivotés</translation>
    </message>
    <message>
        <source>b*: blue to yellow</source>
        <translation>b* : du bleu au jaune</translation>
    </message>
    <message>
        <source>a*: green to red</source>
        <translation>a* : du vert au rouge</translation>
    </message>
    <message>
        <source>Lig&amp;htness:</source>
        <translation>&amp;Clarté :</translation>
    </message>
    <message>
        <source>&amp;Vertical axis:</source>
        <translation>A&amp;xe vertical :</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Sans rotation</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>Sens horaire</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>Sens antihoraire</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>&amp;Marges :</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Pu&amp;t Back</source>
        <translation>&amp;Remettre</translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation>&amp;Extraire</translation>
    </message>
    <message>
        <source>Colours of lightness %1, with the patches of the chart</source>
        <translation>Couleurs de clarté %1, avec les plages de la charte</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>How a program takes its language, its style sheet and its fonts from the files beside it.</source>
        <translation>Comment un programme tire sa langue, sa feuille de style et ses polices des fichiers placés à côté de lui.</translation>
    </message>
</context>
<context>
    <name>LanguagePanel</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>&amp;Texts of the gallery:</source>
        <translation>Textes de la &amp;galerie :</translation>
    </message>
    <message>
        <source>Texts of the gallery</source>
        <translation>Textes de la galerie</translation>
    </message>
    <message>
        <source>&amp;Import Translation...</source>
        <translation>Importer &amp;une traduction...</translation>
    </message>
    <message>
        <source>There are no translations in %1</source>
        <translation>Il n’y a pas de traductions dans %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>files in folder</comment>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>Result 0: the file was copied.</source>
        <translation>Résultat 0 : le fichier a été copié.</translation>
    </message>
    <message>
        <source>Result 1: the file was not copied.</source>
        <translation>Résultat 1 : le fichier n’a pas été copié.</translation>
    </message>
    <message>
        <source>Result 2: cancelled.</source>
        <translation>Résultat 2 : annulé.</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>What the library draws into lists, tables and trees, and its combo boxes.</source>
        <translation>Ce que la bibliothèque dessine dans les listes, les tableaux et les arborescences, et ses listes déroulantes.</translation>
    </message>
</context>
<context>
    <name>LocalMariaDbServer</name>
    <message>
        <source>the user has no name</source>
        <translation>l’utilisateur n’a pas de nom</translation>
    </message>
    <message>
        <source>the database "%1" is the closed one</source>
        <translation>la base de données « %1 » est celle qui est fermée</translation>
    </message>
</context>
<context>
    <name>LocalServer</name>
    <message>
        <source>no folder for the server: %1</source>
        <translation>pas de dossier pour le serveur : %1</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>%1 ne démarre pas : %2</translation>
    </message>
    <message>
        <source>%1 is not ready in time</source>
        <translation>%1 n’est pas prêt à temps</translation>
    </message>
    <message>
        <source>%1 ended before it was ready</source>
        <translation>%1 s’est terminé avant d’être prêt</translation>
    </message>
    <message>
        <source>%1 told no port but "%2"</source>
        <translation>%1 n’a indiqué aucun port, mais « %2 »</translation>
    </message>
</context>
<context>
    <name>LocalServerPanel</name>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>Ser&amp;veur :</translation>
    </message>
    <message>
        <source>&amp;Fill In the Panel</source>
        <translation>&amp;Remplir le panneau</translation>
    </message>
    <message>
        <source>on, at %1</source>
        <translation>en marche, à %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>à l’arrêt</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>Le serveur n’a pas démarré : %1</translation>
    </message>
    <message>
        <source>"./dev setup" installs what is needed.</source>
        <translation>« ./dev setup » installe ce qu’il faut.</translation>
    </message>
    <message>
        <source>The server has stopped by itself.</source>
        <translation>Le serveur s’est arrêté de lui-même.</translation>
    </message>
    <message>
        <source>The server has stopped by itself: %1</source>
        <translation>Le serveur s’est arrêté de lui-même : %1</translation>
    </message>
</context>
<context>
    <name>LocalUpdateService</name>
    <message>
        <source>no folder for the replies: %1</source>
        <translation>pas de dossier pour les réponses : %1</translation>
    </message>
</context>
<context>
    <name>LocalWebServer</name>
    <message>
        <source>there is no file %1</source>
        <translation>le fichier %1 n’existe pas</translation>
    </message>
    <message>
        <source>%1 is no file with a certificate</source>
        <translation>%1 n’est pas un fichier contenant un certificat</translation>
    </message>
</context>
<context>
    <name>LockPanel</name>
    <message>
        <source>Lock of the user interface</source>
        <translation>Verrouillage de l’interface</translation>
    </message>
    <message>
        <source>The password is stored as</source>
        <translation>Le mot de passe est stocké sous forme de</translation>
    </message>
    <message>
        <source>MD5 &amp;digest</source>
        <translation>emprein&amp;te MD5</translation>
    </message>
    <message>
        <source>&amp;plain text</source>
        <translation>te&amp;xte en clair</translation>
    </message>
    <message>
        <source>Stored at the moment</source>
        <translation>Actuellement stocké</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>&amp;Oublier</translation>
    </message>
    <message>
        <source>Loc&amp;k...</source>
        <translation>Ve&amp;rrouiller...</translation>
    </message>
    <message>
        <source>&amp;First Password...</source>
        <translation>Premier mot &amp;de passe...</translation>
    </message>
    <message>
        <source>C&amp;hange Password...</source>
        <translation>Modi&amp;fier le mot de passe...</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>Locked with the stored password.</source>
        <translation>Verrouillé avec le mot de passe stocké.</translation>
    </message>
    <message>
        <source>Locked with a new password, which is now stored.</source>
        <translation>Verrouillé avec un nouveau mot de passe, désormais stocké.</translation>
    </message>
    <message>
        <source>Cancelled: nothing is locked, and what is stored stays.</source>
        <translation>Annulé : rien n’est verrouillé, et ce qui est stocké reste.</translation>
    </message>
    <message>
        <source>Cancelled after the password was changed: nothing is locked, and the new password is not kept.</source>
        <translation>Annulé après la modification du mot de passe : rien n’est verrouillé, et le nouveau mot de passe n’est pas conservé.</translation>
    </message>
    <message>
        <source>The new password is stored.</source>
        <translation>Le nouveau mot de passe est stocké.</translation>
    </message>
    <message>
        <source>Cancelled: what is stored stays.</source>
        <translation>Annulé : ce qui est stocké reste.</translation>
    </message>
    <message>
        <source>The password is forgotten.</source>
        <translation>Le mot de passe est oublié.</translation>
    </message>
    <message>
        <source>The stored password has been replaced by its digest.</source>
        <translation>Le mot de passe stocké a été remplacé par son empreinte.</translation>
    </message>
    <message>
        <source>A digest cannot be turned back into the password: it is forgotten.</source>
        <translation>Une empreinte ne permet pas de retrouver le mot de passe : il est oublié.</translation>
    </message>
    <message>
        <source>Unlocked with the right password.</source>
        <translation>Déverrouillé avec le bon mot de passe.</translation>
    </message>
    <message>
        <source>The work area is open.</source>
        <translation>L’espace de travail est ouvert.</translation>
    </message>
    <message>
        <source>No password has been set: the lock asks for a first one.</source>
        <translation>Aucun mot de passe n’est défini : le verrouillage en demande un premier.</translation>
    </message>
</context>
<context>
    <name>LockedArea</name>
    <message>
        <source>Work area</source>
        <translation>Espace de travail</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>The log of this very program, live: Qt's own messages, lines that the program prints, and a job that writes entries with sub-entries from several threads.</source>
        <translation>Le journal de ce programme même, en direct : les messages de Qt, les lignes que le programme affiche, et une tâche qui écrit des entrées et des sous-entrées depuis plusieurs threads.</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>Écrire une ligne</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Information</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>A&amp;vertissement</translation>
    </message>
    <message>
        <source>&amp;Error</source>
        <translation>&amp;Erreur</translation>
    </message>
    <message>
        <source>&amp;Qt Warning</source>
        <translation>Avertissement &amp;Qt</translation>
    </message>
    <message>
        <source>Live &amp;view:</source>
        <translation>Vue en dire&amp;ct :</translation>
    </message>
    <message>
        <source>&amp;Open Log Window</source>
        <translation>&amp;Ouvrir la fenêtre du journal</translation>
    </message>
    <message>
        <source>Live view of the log</source>
        <translation>Vue en direct du journal</translation>
    </message>
    <message>
        <source>Some information, written by hand</source>
        <translation>Une information, écrite à la main</translation>
    </message>
    <message>
        <source>A warning, written by hand</source>
        <translation>Un avertissement, écrit à la main</translation>
    </message>
    <message>
        <source>An error, written by hand</source>
        <translation>Une erreur, écrite à la main</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2 pixels, %3</translation>
    </message>
    <message>
        <source>Logo of the splash</source>
        <translation>Logo de l’écran de démarrage</translation>
    </message>
    <message>
        <source>Installed logo</source>
        <translation>Logo installé</translation>
    </message>
    <message>
        <source>Copy that is kept</source>
        <translation>Copie conservée</translation>
    </message>
    <message>
        <source>Shown at the start</source>
        <translation>Affiché au démarrage</translation>
    </message>
    <message>
        <source>&amp;Put In a Logo...</source>
        <translation>&amp;Installer un logo...</translation>
    </message>
    <message>
        <source>&amp;Remove Logo...</source>
        <translation>Su&amp;pprimer le logo...</translation>
    </message>
    <message>
        <source>Remove &amp;Copy...</source>
        <translation>Supprimer la &amp;copie...</translation>
    </message>
    <message>
        <source>Show Splas&amp;h</source>
        <translation>Afficher l’écran de &amp;démarrage</translation>
    </message>
    <message>
        <source>Put In a Logo</source>
        <translation>Installer un logo</translation>
    </message>
    <message>
        <source>Remove the installed logo "%1"?</source>
        <translation>Supprimer le logo installé « %1 » ?</translation>
    </message>
    <message>
        <source>Remove the copy "%1"?</source>
        <translation>Supprimer la copie « %1 » ?</translation>
    </message>
    <message>
        <source>Click to close.</source>
        <translation>Cliquez pour fermer.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>Il n’y en a pas.</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Il n’y en a pas encore.</translation>
    </message>
    <message>
        <source>Nothing: there is no picture.</source>
        <translation>Rien : il n’y a pas d’image.</translation>
    </message>
    <message>
        <source>The installed logo.</source>
        <translation>Le logo installé.</translation>
    </message>
    <message>
        <source>The copy, since there is no installed logo.</source>
        <translation>La copie, puisqu’aucun logo n’est installé.</translation>
    </message>
    <message>
        <source>The gallery's own picture.</source>
        <translation>L’image propre à la galerie.</translation>
    </message>
</context>
<context>
    <name>MailPage</name>
    <message>
        <source>The panel for the settings of outgoing mail. Switch on a real mail server on this computer, choose what is to go wrong, and send a test mail to it.</source>
        <translation>Le panneau pour les paramètres du courriel sortant. Démarrez un vrai serveur de messagerie sur cet ordinateur, choisissez ce qui doit mal tourner et envoyez-lui un courriel de test.</translation>
    </message>
    <message>
        <source>Mail panel</source>
        <translation>Panneau du courriel</translation>
    </message>
    <message>
        <source>Settings of the panel</source>
        <translation>Paramètres du panneau</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Voir les para&amp;mètres</translation>
    </message>
    <message>
        <source>Dear Mia,

the proof of the poster is ready for you to look at.

Press room</source>
        <translation>Bonjour Mia,

l’épreuve de l’affiche est prête, vous pouvez venir la voir.

Atelier d’impression</translation>
    </message>
    <message>
        <source>Proof is ready</source>
        <translation>L’épreuve est prête</translation>
    </message>
</context>
<context>
    <name>MailServerPanel</name>
    <message>
        <source>Local mail server</source>
        <translation>Serveur de messagerie local</translation>
    </message>
    <message>
        <source>Se&amp;curity:</source>
        <translation>Sé&amp;curité :</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Sans chiffrement</translation>
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
        <translation>&amp;Problème :</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Mot de passe erroné</translation>
    </message>
    <message>
        <source>Receiver refused</source>
        <translation>Destinataire refusé</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Serveur muet</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Aucun serveur à l’écoute</translation>
    </message>
    <message>
        <source>Login &amp;needed</source>
        <translation>&amp;Identification requise</translation>
    </message>
</context>
<context>
    <name>ManualPanel</name>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Open &amp;Manual</source>
        <translation>&amp;Ouvrir le manuel</translation>
    </message>
    <message>
        <source>Open a Missin&amp;g One</source>
        <translation>Ouvrir un manu&amp;el manquant</translation>
    </message>
    <message>
        <source>The manual of this gallery, in the system's viewer of PDF files.</source>
        <translation>Le manuel de cette galerie, dans la visionneuse de fichiers PDF du système.</translation>
    </message>
</context>
<context>
    <name>MeasurementMakingPanel</name>
    <message>
        <source>Table of measurements</source>
        <translation>Table des mesures</translation>
    </message>
    <message>
        <source>Fol&amp;der of the internal database:</source>
        <translation>Dossier de la &amp;base de données interne :</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Par&amp;courir...</translation>
    </message>
    <message>
        <source>Amo&amp;unt:</source>
        <translation>&amp;Quantité :</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source>&amp;Make Table</source>
        <translation>Créer la &amp;table</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>On a server the table "%1" is dropped, made anew and left there.</source>
        <translation>Sur un serveur, la table « %1 » est supprimée, recréée et laissée en place.</translation>
    </message>
    <message>
        <source>Folder of the Internal Database</source>
        <translation>Dossier de la base de données interne</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annulation...</translation>
    </message>
    <message>
        <source>Under way...</source>
        <translation>En cours...</translation>
    </message>
    <message>
        <source>No table was made: %1</source>
        <translation>Aucune table n’a été créée : %1</translation>
    </message>
    <message>
        <source>Made in %1 s.</source>
        <translation>Créée en %1 s.</translation>
    </message>
    <message>
        <source>Cancelled: no table was made.</source>
        <translation>Annulé : aucune table n’a été créée.</translation>
    </message>
</context>
<context>
    <name>MeasurementModel</name>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Plage</translation>
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
        <translation>Mesurée (UTC)</translation>
    </message>
    <message>
        <source>There is no connection to the database.</source>
        <translation>Il n’y a pas de connexion à la base de données.</translation>
    </message>
</context>
<context>
    <name>MeasurementTablePanel</name>
    <message>
        <source>Measurements</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>ΔE ab&amp;ove:</source>
        <translation>ΔE s&amp;upérieur à :</translation>
    </message>
    <message>
        <source>all</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>Rows per &amp;page:</source>
        <translation>Lignes par &amp;page :</translation>
    </message>
    <message>
        <source>&amp;Remove Rows</source>
        <translation>Supprimer les li&amp;gnes</translation>
    </message>
    <message>
        <source>Stateme&amp;nt:</source>
        <translation>&amp;Instruction :</translation>
    </message>
    <message>
        <source>A click on No. or ΔE sorts: these columns have an index.</source>
        <translation>Un clic sur N° ou ΔE trie : ces colonnes ont un index.</translation>
    </message>
    <message>
        <source>The database refuses: %1</source>
        <translation>La base de données refuse : %1</translation>
    </message>
    <message>
        <source>Answered in %1 ms.</source>
        <translation>Réponse en %1 ms.</translation>
    </message>
    <message>
        <source>No table yet.</source>
        <translation>Pas encore de table.</translation>
    </message>
</context>
<context>
    <name>OemLogo</name>
    <message>
        <source>The logo "%1" cannot be written: %2.</source>
        <translation>Impossible d’écrire le logo « %1 » : %2.</translation>
    </message>
    <message>
        <source>No copy is kept: the folder "%1" cannot be written.</source>
        <translation>Aucune copie n’est conservée : impossible d’écrire dans le dossier « %1 ».</translation>
    </message>
    <message>
        <source>No copy is kept: there is no folder "%1".</source>
        <translation>Aucune copie n’est conservée : il n’y a pas de dossier « %1 ».</translation>
    </message>
    <message>
        <source>The logo "%1" cannot be removed: %2.</source>
        <translation>Impossible de supprimer le logo « %1 » : %2.</translation>
    </message>
</context>
<context>
    <name>OverviewPanel</name>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>First picture as a whole</source>
        <translation>Première image en entier</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Configuration pages that plug-ins bring, with the settings that they give back, and a dialog that stands in a page as well as in a window.</source>
        <translation>Des pages de configuration apportées par des modules, avec les paramètres qu’elles renvoient, et un dialogue qui se place dans une page aussi bien que dans une fenêtre.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldCell</name>
    <message>
        <source>Program reads</source>
        <translation>Le programme lit</translation>
    </message>
    <message>
        <source>Field holds</source>
        <translation>Le champ contient</translation>
    </message>
    <message>
        <source>The password itself stands in the field.</source>
        <translation>Le mot de passe lui-même est dans le champ.</translation>
    </message>
    <message>
        <source>A mask stands in the field, not the password.</source>
        <translation>Un masque est dans le champ, pas le mot de passe.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldPanel</name>
    <message>
        <source>Password line edit</source>
        <translation>Champ de mot de passe</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valeur :</translation>
    </message>
    <message>
        <source>Set &amp;by the Program</source>
        <translation>Défi&amp;nir par le programme</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>T&amp;XPasswordLineEdit</source>
        <translation>TXPass&amp;wordLineEdit</translation>
    </message>
    <message>
        <source>&amp;QLineEdit</source>
        <translation>&amp;QLineEdit</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, enabled</source>
        <translation>TXPasswordLineEdit, activé</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, disabled</source>
        <translation>TXPasswordLineEdit, désactivé</translation>
    </message>
    <message>
        <source>QLineEdit, enabled</source>
        <translation>QLineEdit, activé</translation>
    </message>
    <message>
        <source>QLineEdit, disabled</source>
        <translation>QLineEdit, désactivé</translation>
    </message>
    <message>
        <source>What the program has set stays enciphered, and a mask of fixed length stands in its place, until the first key pressed in the field drops both. What the user types stands in the field, as in any other.</source>
        <translation>Ce que le programme a défini reste chiffré, et un masque de longueur fixe en tient lieu, jusqu’à ce que la première touche pressée dans le champ efface les deux. Ce que l’utilisateur saisit est dans le champ, comme dans tout autre.</translation>
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
        <translation>%1, avant novembre 2014</translation>
    </message>
    <message>
        <source>%1, since November 2014</source>
        <translation>%1, depuis novembre 2014</translation>
    </message>
</context>
<context>
    <name>PatchFlowPanel</name>
    <message>
        <source>Flow of equal cells</source>
        <translation>Flux de cellules égales</translation>
    </message>
    <message>
        <source>Swatches in rows</source>
        <translation>Nuances en rangées</translation>
    </message>
    <message>
        <source>S&amp;watches:</source>
        <translation>&amp;Nuances :</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>&amp;Position :</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insérer</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Supp&amp;rimer</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>Vi&amp;der</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>&amp;Bordure :</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Boîte</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panneau</translation>
    </message>
    <message>
        <source>Of the style</source>
        <translation>Du style</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>N&amp;oms</translation>
    </message>
    <message>
        <source>%1 × %2 pixels each</source>
        <translation>%1 × %2 pixels chacune</translation>
    </message>
    <message>
        <source>No swatch</source>
        <translation>Aucune nuance</translation>
    </message>
</context>
<context>
    <name>PatchListPanel</name>
    <message>
        <source>List with separators</source>
        <translation>Liste avec traits de séparation</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>Plages</translation>
    </message>
    <message>
        <source>Line &amp;Below</source>
        <translation>&amp;Trait en dessous</translation>
    </message>
    <message>
        <source>Choose a row, and switch its line.</source>
        <translation>Choisissez une ligne et basculez son trait.</translation>
    </message>
    <message>
        <source>Row %1: line drawn</source>
        <translation>Ligne %1 : trait tracé</translation>
    </message>
    <message>
        <source>Row %1: line removed</source>
        <translation>Ligne %1 : trait supprimé</translation>
    </message>
</context>
<context>
    <name>PatchRunsPanel</name>
    <message>
        <source>Table with pictures and times</source>
        <translation>Tableau avec images et heures</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>Comparaisons</translation>
    </message>
    <message>
        <source>&amp;Compare Again</source>
        <translation>&amp;Comparer à nouveau</translation>
    </message>
    <message>
        <source>Compares the chosen rows. Make the last column narrow: first the time goes, then the end of the date.</source>
        <translation>Compare les lignes choisies. Rétrécissez la dernière colonne : d’abord l’heure disparaît, puis la fin de la date.</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Comparée le</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Mauvais</translation>
    </message>
</context>
<context>
    <name>PatchSplitPanel</name>
    <message>
        <source>Splitters</source>
        <translation>Séparateurs</translation>
    </message>
    <message>
        <source>Patches to look at</source>
        <translation>Plages à regarder</translation>
    </message>
    <message>
        <source>Si&amp;de by side</source>
        <translation>Cô&amp;te à côte</translation>
    </message>
    <message>
        <source>&amp;Grip width:</source>
        <translation>Lar&amp;geur de la poignée :</translation>
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
À l’écran : %4</translation>
    </message>
</context>
<context>
    <name>PatchSwatchesPanel</name>
    <message>
        <source>Patches of the chart</source>
        <translation>Plages de la charte</translation>
    </message>
    <message>
        <source>On the left of each patch charts made before November 2014, on the right those made since. A patch whose difference reaches the limit is framed.</source>
        <translation>À gauche de chaque plage, les chartes fabriquées avant novembre 2014 ; à droite, celles fabriquées depuis. Une plage dont l’écart atteint la limite est encadrée.</translation>
    </message>
</context>
<context>
    <name>PatchTint</name>
    <message>
        <source>%1, %2 %</source>
        <translation>%1, %2 %</translation>
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
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Solid Colours</source>
        <translation>Aplats</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>Plages</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Plage</translation>
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
        <translation>Primaires</translation>
    </message>
    <message>
        <source>Overprints</source>
        <translation>Superpositions</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>Encres</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Encre</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densité</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>"%1" is no file.</source>
        <translation>« %1 » n’est pas un fichier.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>Impossible de lire « %1 » : %2.</translation>
    </message>
    <message>
        <source>"%1" is too large: %2 × %3 pixels, which take more than %4 MB of memory.</source>
        <translation>« %1 » est trop grand : %2 × %3 pixels, qui exigent plus de %4 Mo de mémoire.</translation>
    </message>
</context>
<context>
    <name>PicturesPanel</name>
    <message>
        <source>Open Pictures</source>
        <translation>Ouvrir des images</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>&amp;Open Pictures...</source>
        <translation>&amp;Ouvrir des images...</translation>
    </message>
    <message>
        <source>Show &amp;Chart</source>
        <translation>Afficher la &amp;charte</translation>
    </message>
    <message>
        <source>Shown:</source>
        <translation>Affichées :</translation>
    </message>
</context>
<context>
    <name>PixelReadout</name>
    <message>
        <source>Between the first two pictures, by CIEDE2000</source>
        <translation>Entre les deux premières images, selon CIEDE2000</translation>
    </message>
    <message>
        <source>Move the mouse over a picture.</source>
        <translation>Passez la souris sur une image.</translation>
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
        <translation>Modifié ; ce qui est en gras n’est pas enregistré.</translation>
    </message>
    <message>
        <source>These settings are saved.</source>
        <translation>Ces paramètres sont enregistrés.</translation>
    </message>
    <message>
        <source>The page's defaults; nothing is saved yet.</source>
        <translation>Les valeurs par défaut de la page ; rien n’est encore enregistré.</translation>
    </message>
    <message>
        <source>Configuration pages from plug-ins</source>
        <translation>Pages de configuration issues de modules</translation>
    </message>
    <message>
        <source>No plug-in was found. Plug-ins are looked for in the folder "%1"; put one there and start the gallery again.</source>
        <translation>Aucun module n’a été trouvé. Les modules sont cherchés dans le dossier « %1 » ; placez-en un à cet endroit et redémarrez la galerie.</translation>
    </message>
    <message>
        <source>&amp;Plug-ins found:</source>
        <translation>&amp;Modules trouvés :</translation>
    </message>
    <message>
        <source>Plug-ins found</source>
        <translation>Modules trouvés</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Settings, read bac&amp;k live:</source>
        <translation>Paramètres, relus en &amp;direct :</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
</context>
<context>
    <name>PrintJobForm</name>
    <message>
        <source>Pape&amp;r:</source>
        <translation>&amp;Papier :</translation>
    </message>
    <message>
        <source>Coated, 115 g/m²</source>
        <translation>Couché, 115 g/m²</translation>
    </message>
    <message>
        <source>Uncoated, 120 g/m²</source>
        <translation>Non couché, 120 g/m²</translation>
    </message>
    <message>
        <source>Newsprint, 45 g/m²</source>
        <translation>Papier journal, 45 g/m²</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>&amp;Mode de rendu :</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrique relatif</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrique absolu</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptif</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Total i&amp;nk limit:</source>
        <translation>Limite d’en&amp;crage total :</translation>
    </message>
    <message>
        <source>Delta &amp;E tolerance:</source>
        <translation>Tolérance Delta &amp;E :</translation>
    </message>
    <message>
        <source>Black point c&amp;ompensation</source>
        <translation>Compensat&amp;ion du point noir</translation>
    </message>
</context>
<context>
    <name>ProgressBarSwitches</name>
    <message>
        <source>Show te&amp;xt</source>
        <translation>Afficher le te&amp;xte</translation>
    </message>
    <message>
        <source>For&amp;mat:</source>
        <translation>For&amp;mat :</translation>
    </message>
    <message>
        <source>%p stands for the percentage, %v for the value, %m for the number of steps.</source>
        <translation>%p désigne le pourcentage, %v la valeur, %m le nombre d’étapes.</translation>
    </message>
    <message>
        <source>In&amp;verted</source>
        <translation>In&amp;versée</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>Verti&amp;cale</translation>
    </message>
</context>
<context>
    <name>ReceivedMailsPanel</name>
    <message>
        <source>Received mails</source>
        <translation>Courriels reçus</translation>
    </message>
    <message>
        <source>&amp;Mails:</source>
        <translation>C&amp;ourriels :</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>As it cam&amp;e:</source>
        <translation>&amp;Tel que reçu :</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>Vi&amp;der</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
</context>
<context>
    <name>ReportOptionsPanel</name>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Formule :</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Tolérance :</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>Pa&amp;ires :</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier :</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>O&amp;rientation :</translation>
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
        <translation>Par numéro</translation>
    </message>
    <message>
        <source>Largest first</source>
        <translation>Plus grands d’abord</translation>
    </message>
    <message>
        <source>Smallest first</source>
        <translation>Plus petits d’abord</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formule</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <source>Order of the pairs</source>
        <translation>Ordre des paires</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
</context>
<context>
    <name>ReportOutputPanel</name>
    <message>
        <source>Export PDF</source>
        <translation>Exporter en PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>&amp;Exporter en PDF...</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>I&amp;mprimer...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Open PDF</source>
        <translation>&amp;Ouvrir le PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) in "%1"</source>
        <translation>
            <numerusform>%n page dans « %1 »</numerusform>
            <numerusform>%n pages dans « %1 »</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled, nothing was written.</source>
        <translation>Annulé, rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Imprimé.</translation>
    </message>
    <message>
        <source>Cancelled, some pages may be printed.</source>
        <translation>Annulé, certaines pages sont peut-être imprimées.</translation>
    </message>
    <message>
        <source>Printing has failed.</source>
        <translation>L’impression a échoué.</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>A colour comparison as pages of paper: drawn on the report canvas, with tables cut into pages, and taken to a PDF file or a printer.</source>
        <translation>Une comparaison de couleurs sous forme de pages de papier : dessinée sur la surface du rapport, avec des tableaux répartis sur plusieurs pages, et envoyée dans un fichier PDF ou vers une imprimante.</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>Pages du rapport</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPage</name>
    <message>
        <source>&amp;Company:</source>
        <translation>En&amp;treprise :</translation>
    </message>
    <message>
        <source>Stands at the head of the report</source>
        <translation>Figure en tête du rapport</translation>
    </message>
    <message>
        <source>Op&amp;erator:</source>
        <translation>&amp;Opérateur :</translation>
    </message>
    <message>
        <source>Who has measured</source>
        <translation>Qui a effectué les mesures</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>Format du &amp;papier :</translation>
    </message>
    <message>
        <source>&amp;Date on each page</source>
        <translation>Date sur c&amp;haque page</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPlugin</name>
    <message>
        <source>Measuring Report</source>
        <translation>Rapport de mesure</translation>
    </message>
</context>
<context>
    <name>ReportViewBar</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Pa&amp;ge :</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>&amp;Zoom :</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Largeur de page</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
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
        <translation>Serveur Samba local</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>P&amp;roblème :</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Mot de passe erroné</translation>
    </message>
    <message>
        <source>Unknown share</source>
        <translation>Partage inconnu</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Serveur muet</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Aucun serveur à l’écoute</translation>
    </message>
    <message>
        <source>The server has another port now: drives added before do not lead to it.</source>
        <translation>Le serveur a maintenant un autre port : les lecteurs ajoutés auparavant n’y mènent pas.</translation>
    </message>
</context>
<context>
    <name>ScanPanel</name>
    <message>
        <source>Scan a folder</source>
        <translation>Analyser un dossier</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Dossier :</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>La&amp;ncer l’analyse</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Annule&amp;r</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>Analyser un dossier</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Entries a second</source>
        <translation>Entrées par seconde</translation>
    </message>
</context>
<context>
    <name>SchedulePage</name>
    <message>
        <source>The panels that set when an event comes back, and in which encoding text files are read. Save, and the gallery works out the next events, and reads a file anew.</source>
        <translation>Les panneaux qui définissent quand un événement revient et dans quel encodage les fichiers texte sont lus. Enregistrez, et la galerie calcule les prochains événements et relit un fichier.</translation>
    </message>
</context>
<context>
    <name>SelectionBarEmissions</name>
    <message>
        <source>Signals</source>
        <translation>Signaux</translation>
    </message>
    <message>
        <source>Si&amp;gnals of the bar: %1</source>
        <translation>Signaux de la &amp;barre : %1</translation>
    </message>
    <message>
        <source>Signals of the bar</source>
        <translation>Signaux de la barre</translation>
    </message>
</context>
<context>
    <name>SelectionBarOptions</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Import:</source>
        <translation>Importer :</translation>
    </message>
    <message>
        <source>in the bo&amp;x</source>
        <translation>da&amp;ns la liste déroulante</translation>
    </message>
    <message>
        <source>in a &amp;menu</source>
        <translation>dans un &amp;menu</translation>
    </message>
    <message>
        <source>Names can be &amp;typed over</source>
        <translation>Noms modifiables &amp;par saisie</translation>
    </message>
    <message>
        <source>Sho&amp;w the label:</source>
        <translation>A&amp;fficher le libellé :</translation>
    </message>
    <message>
        <source>Text of the label</source>
        <translation>Texte du libellé</translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>The bar with which a user keeps a collection of presets, each a file of its own: pick, create, duplicate, rename, import, export, delete.</source>
        <translation>La barre avec laquelle un utilisateur gère une collection de préréglages, chacun dans son propre fichier : choisir, créer, dupliquer, renommer, importer, exporter, supprimer.</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>The answer of the service is not shown.</source>
        <translation>La réponse du service n’est pas affichée.</translation>
    </message>
    <message>
        <source>The answer of the service is too large.</source>
        <translation>La réponse du service est trop grande.</translation>
    </message>
    <message>
        <source>Nobody listens at %1.</source>
        <translation>Aucun serveur n’écoute à %1.</translation>
    </message>
    <message>
        <source>The service has closed the connection before it had answered.</source>
        <translation>Le service a fermé la connexion avant d’avoir répondu.</translation>
    </message>
    <message>
        <source>The service has said nothing for %1 seconds.</source>
        <translation>Le service n’a rien dit pendant %1 secondes.</translation>
    </message>
    <message>
        <source>The service has answered with HTTP status %1.</source>
        <translation>Le service a répondu avec le statut HTTP %1.</translation>
    </message>
    <message>
        <source>The service cannot be asked: %1.</source>
        <translation>Impossible d’interroger le service : %1.</translation>
    </message>
</context>
<context>
    <name>SessionPanel</name>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>Vi&amp;der</translation>
    </message>
</context>
<context>
    <name>ShareSearchPanel</name>
    <message>
        <source>Share browser</source>
        <translation>Recherche de partages</translation>
    </message>
    <message>
        <source>&amp;Browse This Server...</source>
        <translation>Parcourir &amp;ce serveur...</translation>
    </message>
    <message>
        <source>Browse the &amp;Network...</source>
        <translation>Parc&amp;ourir le réseau...</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Choisi : %1</translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation>Rien n’a été choisi.</translation>
    </message>
    <message>
        <source>Nothing was found. %1</source>
        <translation>Rien n’a été trouvé. %1</translation>
    </message>
    <message>
        <source>The log of the drives says why.</source>
        <translation>Le journal des lecteurs dit pourquoi.</translation>
    </message>
    <message>
        <source>Choose a share of the server for the drives that are added.</source>
        <translation>Choisissez un partage du serveur pour les lecteurs qui sont ajoutés.</translation>
    </message>
</context>
<context>
    <name>SortedPresetBar</name>
    <message>
        <source>Small variant, sorted</source>
        <translation>Petite variante, triée</translation>
    </message>
    <message>
        <source>By name:</source>
        <translation>Par nom :</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importer...</translation>
    </message>
    <message>
        <source>The same presets through a sorting proxy. The menu of the button takes the place of the others.</source>
        <translation>Les mêmes préréglages à travers un proxy de tri. Le menu du bouton remplace les autres.</translation>
    </message>
</context>
<context>
    <name>SpectrumPanel</name>
    <message>
        <source>Spectrum</source>
        <translation>Spectre</translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation>&amp;De :</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Jusqu’à :</translation>
    </message>
    <message>
        <source>First wavelength</source>
        <translation>Première longueur d’onde</translation>
    </message>
    <message>
        <source>Last wavelength</source>
        <translation>Dernière longueur d’onde</translation>
    </message>
    <message>
        <source> nm</source>
        <translation> nm</translation>
    </message>
    <message>
        <source>How strongly the eye sees light of each wavelength: the function y of the CIE 1931 standard observer. The spectrum lies behind it.</source>
        <translation>L’intensité avec laquelle l’œil voit la lumière de chaque longueur d’onde : la fonction y de l’observateur de référence CIE 1931. Le spectre se trouve derrière.</translation>
    </message>
    <message>
        <source>Luminous efficiency from %1 to %2 nm</source>
        <translation>Efficacité lumineuse de %1 à %2 nm</translation>
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
        <translation>Exemple</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>&amp;Travail :</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>&amp;Papier :</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Couché</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>Papier journal</translation>
    </message>
    <message>
        <source>&amp;Copies of %1:</source>
        <translation>&amp;Exemplaires de %1 :</translation>
    </message>
    <message>
        <source>Tri&amp;m marks</source>
        <translation>Traits de &amp;coupe</translation>
    </message>
    <message>
        <source>drawn by the shipped sheet</source>
        <translation>dessiné par la feuille de style fournie</translation>
    </message>
    <message>
        <source>Copies made</source>
        <translation>Exemplaires réalisés</translation>
    </message>
    <message>
        <source>Print Pr&amp;oof</source>
        <translation>&amp;Imprimer l’épreuve</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>a disabled button</comment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>StyleSheetPanel</name>
    <message>
        <source>Style sheet</source>
        <translation>Feuille de style</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>&amp;Feuille :</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Feuille</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>Te&amp;xt as applied:</source>
        <translation>Te&amp;xte appliqué :</translation>
    </message>
    <message>
        <source>Text as applied</source>
        <translation>Texte appliqué</translation>
    </message>
    <message>
        <source>No style sheet: the widgets look as their style draws them.</source>
        <translation>Aucune feuille de style : les widgets ont l’aspect que leur donne leur style.</translation>
    </message>
</context>
<context>
    <name>SwitchPanel</name>
    <message>
        <source>Switch</source>
        <translation>Interrupteur</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Switch of %1 pixels</source>
        <translation>Interrupteur de %1 pixels</translation>
    </message>
    <message>
        <source>Switch of %1 pixels, disabled</source>
        <translation>Interrupteur de %1 pixels, désactivé</translation>
    </message>
    <message>
        <source>&amp;Turn All On</source>
        <translation>&amp;Tout mettre en marche</translation>
    </message>
    <message>
        <source>on</source>
        <translation>marche</translation>
    </message>
    <message>
        <source>off</source>
        <translation>arrêt</translation>
    </message>
    <message>
        <source>clicked: 0</source>
        <translation>clics : 0</translation>
    </message>
    <message>
        <source>clicked: %1, last by %2 pixels: %3</source>
        <translation>clics : %1, le dernier sur %2 pixels : %3</translation>
    </message>
</context>
<context>
    <name>TriggerPanel</name>
    <message>
        <source>The event never comes.</source>
        <translation>L’événement ne survient jamais.</translation>
    </message>
    <message>
        <source>By the settings that are kept, the event comes next on:</source>
        <translation>D’après les paramètres enregistrés, l’événement aura lieu le :</translation>
    </message>
    <message>
        <source>Trigger event</source>
        <translation>Événement déclencheur</translation>
    </message>
    <message>
        <source>Offer &amp;hours</source>
        <translation>&amp;Proposer les heures</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>L&amp;oad</source>
        <translation>&amp;Charger</translation>
    </message>
    <message>
        <source>Calibration of the instrument</source>
        <translation>Étalonnage de l’instrument</translation>
    </message>
</context>
<context>
    <name>UnlockScreen</name>
    <message>
        <source>The work area is locked</source>
        <translation>L’espace de travail est verrouillé</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>&amp;Déverrouiller</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>Ce n’est pas le mot de passe.</translation>
    </message>
</context>
<context>
    <name>UpdateDialogPanel</name>
    <message>
        <source>Update dialog</source>
        <translation>Dialogue de mise à jour</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>Rechercher les &amp;mises à jour</translation>
    </message>
    <message>
        <source>Show in F&amp;older</source>
        <translation>A&amp;fficher dans le dossier</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>"Download and Install" writes the file to "%1", which a check makes where it is missing, "Download" to the folder that you choose. The file is a harmless text. "Install" opens it with the desktop's program for texts, and closes all windows of the gallery. Where there is no such program, nothing happens: "Show in Folder" shows the file.</source>
        <translation>« Télécharger et installer » écrit le fichier dans « %1 », qu’une recherche crée s’il manque, « Télécharger » dans le dossier que vous choisissez. Le fichier est un texte inoffensif. « Installer » l’ouvre avec le programme du bureau pour les textes et ferme toutes les fenêtres de la galerie. Sans un tel programme, rien ne se passe : « Afficher dans le dossier » montre le fichier.</translation>
    </message>
    <message>
        <source>There is no folder "%1".</source>
        <translation>Il n’y a pas de dossier « %1 ».</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>Aucun programme n’affiche le dossier « %1 ».</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;New in this release&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Databases: a million rows, page by page&lt;/li&gt;&lt;li&gt;Updates: what you are looking at&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;More at &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Nouveau dans cette version&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Bases de données : un million de lignes, page par page&lt;/li&gt;&lt;li&gt;Mises à jour : ce que vous regardez en ce moment&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Pour en savoir plus : &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>And one more thing. </source>
        <translation>Et encore une chose. </translation>
    </message>
</context>
<context>
    <name>UpdatePage</name>
    <message>
        <source>The dialog in which a user looks for a newer release, downloads and installs it. Switch on a real update service on this computer, choose what it offers, and check for updates.</source>
        <translation>Le dialogue dans lequel un utilisateur cherche une version plus récente, la télécharge et l’installe. Démarrez un vrai service de mise à jour sur cet ordinateur, choisissez ce qu’il propose et recherchez les mises à jour.</translation>
    </message>
</context>
<context>
    <name>UpdateServicePanel</name>
    <message>
        <source>Local update service</source>
        <translation>Service de mise à jour local</translation>
    </message>
    <message>
        <source>Off&amp;er:</source>
        <translation>&amp;Offre :</translation>
    </message>
    <message>
        <source>Newer release</source>
        <translation>Version plus récente</translation>
    </message>
    <message>
        <source>Newer release, beta</source>
        <translation>Version plus récente, bêta</translation>
    </message>
    <message>
        <source>Slow download</source>
        <translation>Téléchargement lent</translation>
    </message>
    <message>
        <source>Download that breaks off</source>
        <translation>Téléchargement qui s’interrompt</translation>
    </message>
    <message>
        <source>Release without a file</source>
        <translation>Version sans fichier</translation>
    </message>
    <message>
        <source>Long release notes</source>
        <translation>Longues notes de version</translation>
    </message>
    <message>
        <source>Release of this build</source>
        <translation>Cette version</translation>
    </message>
    <message>
        <source>Older release</source>
        <translation>Version plus ancienne</translation>
    </message>
    <message>
        <source>Empty answer</source>
        <translation>Réponse vide</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>Réponse qui n’est pas du JSON</translation>
    </message>
    <message>
        <source>Status 404</source>
        <translation>Statut 404</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Aucun serveur à l’écoute</translation>
    </message>
</context>
<context>
    <name>UpdateSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>&amp;Reçu par le service :</translation>
    </message>
    <message>
        <source>Signals of t&amp;he dialog:</source>
        <translation>Si&amp;gnaux du dialogue :</translation>
    </message>
</context>
<context>
    <name>UpdateSettingsPanel</name>
    <message>
        <source>Settings of updates</source>
        <translation>Paramètres des mises à jour</translation>
    </message>
    <message>
        <source>Loa&amp;d Settings</source>
        <translation>&amp;Charger les paramètres</translation>
    </message>
    <message>
        <source>Save Se&amp;ttings</source>
        <translation>&amp;Enregistrer les paramètres</translation>
    </message>
    <message>
        <source>Stored settings:</source>
        <translation>Paramètres stockés :</translation>
    </message>
    <message>
        <source>Stored settings</source>
        <translation>Paramètres stockés</translation>
    </message>
    <message>
        <source>The dialog above checks by itself every %1 days.</source>
        <translation>Le dialogue ci-dessus fait une recherche de lui-même tous les %1 jours.</translation>
    </message>
    <message>
        <source>The dialog above does not check by itself.</source>
        <translation>Le dialogue ci-dessus ne fait pas de recherche de lui-même.</translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>&amp;Hover effects</source>
        <translation>&amp;Effets de survol</translation>
    </message>
    <message>
        <source>Lights the innermost value under the mouse.</source>
        <translation>Met en évidence la valeur la plus intérieure sous la souris.</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>A&amp;perçu</translation>
    </message>
    <message>
        <source>Shows what lists and dictionaries hold in their line.</source>
        <translation>Montre sur leur ligne ce que contiennent les listes et les dictionnaires.</translation>
    </message>
    <message>
        <source>Open &amp;Two Levels</source>
        <translation>&amp;Déplier deux niveaux</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Replier</translation>
    </message>
    <message>
        <source>Values: %1. Characters of the line: %2. %3</source>
        <translation>Valeurs : %1. Caractères de la ligne : %2. %3</translation>
    </message>
    <message>
        <source>Shown in %1 ms.</source>
        <translation>Affiché en %1 ms.</translation>
    </message>
    <message>
        <source>Opened in %1 ms.</source>
        <translation>Déplié en %1 ms.</translation>
    </message>
    <message>
        <source>Closed in %1 ms.</source>
        <translation>Replié en %1 ms.</translation>
    </message>
</context>
<context>
    <name>ValueSliderPanel</name>
    <message>
        <source>Spin box with slider</source>
        <translation>Champ numérique avec curseur</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposition</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source>darker</source>
        <translation>plus sombre</translation>
    </message>
    <message>
        <source>lighter</source>
        <translation>plus clair</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Delta E tolerance</source>
        <translation>Tolérance Delta E</translation>
    </message>
    <message>
        <source>seen by anyone</source>
        <translation>visible par tous</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Lissage</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Total ink coverage</source>
        <translation>Taux d’encrage total</translation>
    </message>
    <message>
        <source>bare paper</source>
        <translation>papier nu</translation>
    </message>
    <message>
        <source>four full inks</source>
        <translation>quatre encres pleines</translation>
    </message>
    <message>
        <source>Total ink coverage, disabled</source>
        <translation>Taux d’encrage total, désactivé</translation>
    </message>
    <message>
        <source>&amp;valueChanged: %1</source>
        <translation>valueC&amp;hanged : %1</translation>
    </message>
    <message>
        <source>Emissions of valueChanged</source>
        <translation>Émissions de valueChanged</translation>
    </message>
    <message>
        <source>A value typed into the box goes to the slider and comes back, so one edit tells of itself more than once. The wheel changes nothing: it scrolls the page.</source>
        <translation>Une valeur saisie dans le champ passe au curseur et en revient, si bien qu’une saisie se signale plus d’une fois. La molette ne change rien : elle fait défiler la page.</translation>
    </message>
</context>
<context>
    <name>ValueSourcePanel</name>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>&amp;Gallery Settings</source>
        <translation>Paramètres de la &amp;galerie</translation>
    </message>
    <message>
        <source>JSO&amp;N File...</source>
        <translation>Fichier &amp;JSON...</translation>
    </message>
    <message>
        <source>As&amp;k the Service</source>
        <translation>&amp;Interroger le service</translation>
    </message>
</context>
<context>
    <name>VariantPage</name>
    <message>
        <source>A value of any depth as one line of coloured text, which folds open level by level: the settings of this gallery, a JSON file, or the live answer of an update service.</source>
        <translation>Une valeur de profondeur quelconque sous forme d’une ligne de texte en couleur, qui se déplie niveau par niveau : les paramètres de cette galerie, un fichier JSON ou la réponse en direct d’un service de mise à jour.</translation>
    </message>
    <message>
        <source>Settings of this gallery</source>
        <translation>Paramètres de cette galerie</translation>
    </message>
    <message>
        <source>Nothing is stored yet: the gallery keeps its settings when it ends.</source>
        <translation>Rien n’est encore stocké : la galerie conserve ses paramètres quand elle se termine.</translation>
    </message>
    <message>
        <source>JSON File</source>
        <translation>Fichier JSON</translation>
    </message>
    <message>
        <source>JSON files (*.json);;All files (*)</source>
        <translation>Fichiers JSON (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>File "%1"</source>
        <translation>Fichier « %1 »</translation>
    </message>
    <message>
        <source>The file "%1" is not shown.</source>
        <translation>Le fichier « %1 » n’est pas affiché.</translation>
    </message>
    <message>
        <source>The update service is off. Its switch turns it on.</source>
        <translation>Le service de mise à jour est à l’arrêt. Son interrupteur le met en marche.</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>En attente de la réponse...</translation>
    </message>
    <message>
        <source>Answer of the update service</source>
        <translation>Réponse du service de mise à jour</translation>
    </message>
</context>
<context>
    <name>WebCertificate</name>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
</context>
<context>
    <name>WebInterfacePage</name>
    <message>
        <source>The panel for the web interface of a program, beside a real web server that serves a page of the gallery. Only this computer reaches it, at the link with 127.0.0.1; the other links work once other computers may connect.</source>
        <translation>Le panneau pour l’interface web d’un programme, à côté d’un vrai serveur web qui fournit une page de la galerie. Seul cet ordinateur y accède, par le lien avec 127.0.0.1 ; les autres liens fonctionnent dès que d’autres ordinateurs peuvent se connecter.</translation>
    </message>
    <message>
        <source>Web interface panel</source>
        <translation>Panneau de l’interface web</translation>
    </message>
</context>
<context>
    <name>WebServerPanel</name>
    <message>
        <source>Web server</source>
        <translation>Serveur web</translation>
    </message>
    <message>
        <source>Other com&amp;puters may connect</source>
        <translation>Autoriser d’autres &amp;ordinateurs</translation>
    </message>
    <message>
        <source>Without it the server listens on 127.0.0.1 only, and no other link of the panel leads to it.</source>
        <translation>Sinon, le serveur n’écoute que sur 127.0.0.1, et aucun autre lien du panneau n’y mène.</translation>
    </message>
    <message>
        <source>Visi&amp;t the Page</source>
        <translation>Visi&amp;ter la page</translation>
    </message>
    <message>
        <source>the box "Enabled" of the panel is not checked</source>
        <translation>la case « Activée » du panneau n’est pas cochée</translation>
    </message>
    <message>
        <source>HTTPS needs a certificate file</source>
        <translation>HTTPS exige un fichier de certificat</translation>
    </message>
</context>
<context>
    <name>WebSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>&amp;Reçu par le serveur :</translation>
    </message>
    <message>
        <source>&amp;Own visits:</source>
        <translation>Visites &amp;propres :</translation>
    </message>
</context>
<context>
    <name>WebSettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Offer &amp;HTTPS</source>
        <translation>Offrir &amp;HTTPS</translation>
    </message>
    <message>
        <source>Make &amp;Certificate</source>
        <translation>Créer &amp;un certificat</translation>
    </message>
    <message>
        <source>Fill In E&amp;xample</source>
        <translation>Insérer l’e&amp;xemple</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Voir les para&amp;mètres</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>&amp;Charger</translation>
    </message>
    <message>
        <source>Settings of the web interface</source>
        <translation>Paramètres de l’interface web</translation>
    </message>
    <message>
        <source>Saved in the settings of the gallery.</source>
        <translation>Enregistré dans les paramètres de la galerie.</translation>
    </message>
    <message>
        <source>Loaded from the settings of the gallery.</source>
        <translation>Chargé depuis les paramètres de la galerie.</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>Rien n’a encore été enregistré.</translation>
    </message>
    <message>
        <source>The example is for the user "%1" with the password "%2".</source>
        <translation>L’exemple est pour l’utilisateur « %1 » avec le mot de passe « %2 ».</translation>
    </message>
    <message>
        <source>A certificate for localhost and 127.0.0.1 is in %1. A browser warns of it.</source>
        <translation>Un certificat pour localhost et 127.0.0.1 se trouve dans %1. Un navigateur met en garde contre lui.</translation>
    </message>
    <message>
        <source>No certificate was made: %1</source>
        <translation>Aucun certificat n’a été créé : %1</translation>
    </message>
</context>
<context>
    <name>WebStatusPage</name>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>This page was made</source>
        <translation>Création de cette page</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocole</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>everybody</source>
        <translation>tout le monde</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Mean %1, largest %2.</source>
        <translation>Moyenne %1, maximum %2.</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galerie TXGUICommon</translation>
    </message>
    <message>
        <source>How it is served</source>
        <translation>Comment elle est fournie</translation>
    </message>
    <message>
        <source>Pages of the gallery</source>
        <translation>Pages de la galerie</translation>
    </message>
    <message>
        <source>Patches of the chart, older and newer, with ΔE 2000</source>
        <translation>Plages de la charte, anciennes et nouvelles, avec ΔE 2000</translation>
    </message>
</context>
<context>
    <name>WebVisit</name>
    <message>
        <source>%1: status %2, %3 bytes</source>
        <translation>%1 : statut %2, %3 octets</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>WidgetStatePanel</name>
    <message>
        <source>Widget state</source>
        <translation>État des widgets</translation>
    </message>
    <message>
        <source>One call keeps the place and size of a window, its splitters and the columns of its views, in one nested dictionary for the program's settings. Another gives them back.</source>
        <translation>Un appel conserve la position et la taille d’une fenêtre, ses séparateurs et les colonnes de ses vues, dans un dictionnaire imbriqué pour les paramètres du programme. Un autre les rétablit.</translation>
    </message>
    <message>
        <source>&amp;Open Window</source>
        <translation>&amp;Ouvrir la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Keep State</source>
        <translation>&amp;Conserver l’état</translation>
    </message>
    <message>
        <source>&amp;Disarrange</source>
        <translation>&amp;Mettre en désordre</translation>
    </message>
    <message>
        <source>&amp;Restore State</source>
        <translation>&amp;Restaurer l’état</translation>
    </message>
    <message>
        <source>K&amp;ept state:</source>
        <translation>État co&amp;nservé :</translation>
    </message>
    <message>
        <source>Kept state</source>
        <translation>État conservé</translation>
    </message>
</context>
<context>
    <name>WidgetStateTree</name>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
</context>
<context>
    <name>WorkersPanel</name>
    <message>
        <source>Several workers, one delegate</source>
        <translation>Plusieurs exécutants, un délégué</translation>
    </message>
    <message>
        <source>Files &amp;in:</source>
        <translation>&amp;Fichiers dans :</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Parc&amp;ourir...</translation>
    </message>
    <message>
        <source>&amp;Read Files</source>
        <translation>L&amp;ire les fichiers</translation>
    </message>
    <message>
        <source>Canc&amp;el</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>Read the Files of a Folder</source>
        <translation>Lire les fichiers d’un dossier</translation>
    </message>
    <message>
        <source>T&amp;hreads:</source>
        <translation>T&amp;hreads :</translation>
    </message>
    <message>
        <source>Progress of the workers</source>
        <translation>Progression des exécutants</translation>
    </message>
    <message>
        <source>Reports of the workers</source>
        <translation>Messages des exécutants</translation>
    </message>
    <message>
        <source>Paintings of the bar</source>
        <translation>Tracés de la barre</translation>
    </message>
    <message>
        <source>Files read</source>
        <translation>Fichiers lus</translation>
    </message>
    <message>
        <source>Read in a second</source>
        <translation>Lus par seconde</translation>
    </message>
    <message>
        <source>%1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>%1 en %2 s ; copies d’autres fichiers : %3, illisibles : %4.</translation>
    </message>
    <message>
        <source>Cancelled after %1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>Annulé après %1 en %2 s ; copies d’autres fichiers : %3, illisibles : %4.</translation>
    </message>
</context>
</TS>
