<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AboutPage</name>
    <message>
        <source>The picture that a program shows while it starts, which a partner can replace by a logo, and the window that tells what the program is.</source>
        <translation>La imagen que un programa muestra mientras se inicia, que un socio puede sustituir por un logotipo, y la ventana que dice qué es el programa.</translation>
    </message>
</context>
<context>
    <name>AboutWindowPanel</name>
    <message>
        <source>About window</source>
        <translation>Ventana Acerca de</translation>
    </message>
    <message>
        <source>With the &amp;version of Qt</source>
        <translation>Con la &amp;versión de Qt</translation>
    </message>
    <message>
        <source>Open About &amp;Window</source>
        <translation>Abrir ventana &amp;Acerca de</translation>
    </message>
    <message>
        <source>Open Legal &amp;Notices</source>
        <translation>A&amp;brir avisos legales</translation>
    </message>
    <message>
        <source>The notices are opened from a copy in the folder "%1".</source>
        <translation>Los avisos se abren desde una copia en la carpeta «%1».</translation>
    </message>
    <message>
        <source>There are no notices at "%1".</source>
        <translation>No hay avisos en «%1».</translation>
    </message>
</context>
<context>
    <name>AccessPage</name>
    <message>
        <source>A program whose user interface can be locked behind a password. The dialogs ask for it; the program keeps it and does the locking, here of the work area.</source>
        <translation>Un programa cuya interfaz se puede bloquear con una contraseña. Los diálogos la piden; el programa la guarda y se encarga de bloquear, aquí, el área de trabajo.</translation>
    </message>
</context>
<context>
    <name>BoldTitlePanel</name>
    <message>
        <source>Bold titles</source>
        <translation>Títulos en negrita</translation>
    </message>
    <message>
        <source>Proof, bold title</source>
        <translation>Prueba, título en negrita</translation>
    </message>
    <message>
        <source>Proof, bold font</source>
        <translation>Prueba, letra en negrita</translation>
    </message>
    <message>
        <source>Add R&amp;esult</source>
        <translation>Añadir res&amp;ultado</translation>
    </message>
    <message>
        <source>&amp;Update Weights</source>
        <translation>Actuali&amp;zar grosores</translation>
    </message>
    <message>
        <source>Not passed</source>
        <translation>No superada</translation>
    </message>
    <message>
        <source>Passed</source>
        <translation>Superada</translation>
    </message>
    <message>
        <source>Mean ΔE %1</source>
        <translation>ΔE media %1</translation>
    </message>
    <message>
        <source>Largest ΔE %1</source>
        <translation>ΔE máxima %1</translation>
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
        <translation>Un indicador giratorio sobre una lista que se está llenando y una barra de progreso a la que informan muchos hilos mientras trabajan.</translation>
    </message>
</context>
<context>
    <name>ChartPatches</name>
    <message>
        <source>Dark skin</source>
        <translation>Piel oscura</translation>
    </message>
    <message>
        <source>Light skin</source>
        <translation>Piel clara</translation>
    </message>
    <message>
        <source>Blue sky</source>
        <translation>Azul cielo</translation>
    </message>
    <message>
        <source>Foliage</source>
        <translation>Follaje</translation>
    </message>
    <message>
        <source>Blue flower</source>
        <translation>Flor azul</translation>
    </message>
    <message>
        <source>Bluish green</source>
        <translation>Verde azulado</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Purplish blue</source>
        <translation>Azul violáceo</translation>
    </message>
    <message>
        <source>Moderate red</source>
        <translation>Rojo moderado</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Púrpura</translation>
    </message>
    <message>
        <source>Yellow green</source>
        <translation>Verde amarillento</translation>
    </message>
    <message>
        <source>Orange yellow</source>
        <translation>Amarillo anaranjado</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>White 9.5</source>
        <translation>Blanco 9,5</translation>
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
        <translation>Negro 2</translation>
    </message>
    <message>
        <source>Skin and nature</source>
        <translation>Piel y naturaleza</translation>
    </message>
    <message>
        <source>Further colours</source>
        <translation>Otros colores</translation>
    </message>
    <message>
        <source>Primaries</source>
        <translation>Primarios</translation>
    </message>
    <message>
        <source>Greys</source>
        <translation>Grises</translation>
    </message>
</context>
<context>
    <name>ChartReport</name>
    <message>
        <source>Colour comparison of the 24-patch chart</source>
        <translation>Comparación de la carta de 24 parches</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galería de TXGUICommon</translation>
    </message>
    <message>
        <source>Page {page} of {pages}</source>
        <translation>Página {page} de {pages}</translation>
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
        <translation>Medias publicadas de cartas antiguas frente a los valores de referencia actuales</translation>
    </message>
    <message>
        <source>Left half, set A: average of charts made before November 2014</source>
        <translation>Mitad izquierda, conjunto A: media de cartas fabricadas antes de noviembre de 2014</translation>
    </message>
    <message>
        <source>Right half, set B: charts made since November 2014</source>
        <translation>Mitad derecha, conjunto B: cartas fabricadas desde noviembre de 2014</translation>
    </message>
    <message>
        <source>CIELAB under D50 for the 2° observer, shown in sRGB</source>
        <translation>CIELAB con D50 para el observador de 2°, mostrado en sRGB</translation>
    </message>
    <message>
        <source>Differences of the 24 patches</source>
        <translation>Diferencias de los 24 parches</translation>
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
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Above %1</source>
        <translation>Más de %1</translation>
    </message>
    <message>
        <source>%1 of each patch, tolerance %2</source>
        <translation>%1 de cada parche, tolerancia %2</translation>
    </message>
    <message>
        <source>ΔE*ab: CIE76, the distance in CIELAB. CIE 15, Colorimetry.</source>
        <translation>ΔE*ab: CIE76, la distancia en CIELAB. CIE 15, Colorimetry.</translation>
    </message>
    <message>
        <source>ΔE00: CIEDE2000, all weights 1. CIE 142:2001; ISO/CIE 11664-6.</source>
        <translation>ΔE00: CIEDE2000, todos los pesos 1. CIE 142:2001; ISO/CIE 11664-6.</translation>
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
        <translation>N.º</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Parche</translation>
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
        <translation>Parche del conjunto A</translation>
    </message>
    <message>
        <source>Patch of set B</source>
        <translation>Parche del conjunto B</translation>
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
        <translation>Árbol con cuadrícula</translation>
    </message>
    <message>
        <source>Colour chart</source>
        <translation>Carta de color</translation>
    </message>
    <message>
        <source>&amp;Grid lines</source>
        <translation>&amp;Líneas de cuadrícula</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Parche</translation>
    </message>
</context>
<context>
    <name>ColourDifferencePage</name>
    <message>
        <source>How far two sets of colours of a chart are apart: as a bar, as swatches, and the spectrum behind a curve.</source>
        <translation>Cuánto distan dos conjuntos de colores de una carta: como barra, como muestras de color, y el espectro detrás de una curva.</translation>
    </message>
</context>
<context>
    <name>ColourPreferencesPage</name>
    <message>
        <source>&amp;Illuminant:</source>
        <translation>Ilu&amp;minante:</translation>
    </message>
    <message>
        <source>D&amp;50, prints</source>
        <translation>D&amp;50, impresos</translation>
    </message>
    <message>
        <source>D&amp;65, daylight</source>
        <translation>D&amp;65, luz diurna</translation>
    </message>
    <message>
        <source>&amp;Observer:</source>
        <translation>&amp;Observador:</translation>
    </message>
    <message>
        <source>&amp;2° field</source>
        <translation>Campo de &amp;2°</translation>
    </message>
    <message>
        <source>&amp;10° field</source>
        <translation>Campo de &amp;10°</translation>
    </message>
    <message>
        <source>White point:</source>
        <translation>Punto blanco:</translation>
    </message>
    <message>
        <source>Difference &amp;formula:</source>
        <translation>&amp;Fórmula de diferencia:</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Tolerancia:</translation>
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
        <translation>Medición de color</translation>
    </message>
</context>
<context>
    <name>ColourPreset</name>
    <message>
        <source>It is no colour preset.</source>
        <translation>No es un preajuste de color.</translation>
    </message>
    <message>
        <source>Its version, %1, is not known.</source>
        <translation>Su versión, %1, es desconocida.</translation>
    </message>
    <message>
        <source>"%1" is no rendering intent.</source>
        <translation>«%1» no es un propósito de representación.</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrico relativo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrico absoluto</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>El nombre está vacío.</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation>El nombre tiene más de %1 caracteres.</translation>
    </message>
    <message>
        <source>The name has characters that cannot be shown.</source>
        <translation>El nombre tiene caracteres que no se pueden mostrar.</translation>
    </message>
    <message>
        <source>with black point compensation</source>
        <translation>con compensación de punto negro</translation>
    </message>
    <message>
        <source>without black point compensation</source>
        <translation>sin compensación de punto negro</translation>
    </message>
    <message>
        <source>%1, %2, paper L* %3 a* %4 b* %5, at most %6 % ink</source>
        <translation>%1, %2, papel L* %3 a* %4 b* %5, como máximo %6 % de tinta</translation>
    </message>
</context>
<context>
    <name>ColourPresetCollection</name>
    <message>
        <source>Colour presets</source>
        <translation>Preajustes de color</translation>
    </message>
    <message>
        <source>"%1" cannot be saved.</source>
        <translation>No se puede guardar «%1».</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>No existe ese preajuste.</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>Papel estucado</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>Papel prensa</translation>
    </message>
    <message>
        <source>Contract proof</source>
        <translation>Prueba contractual</translation>
    </message>
    <message>
        <source>No preset can be loaded.</source>
        <translation>No se puede cargar ningún preajuste.</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>No se puede leer la carpeta «%1».</translation>
    </message>
    <message>
        <source>Nothing can be duplicated.</source>
        <translation>No se puede duplicar nada.</translation>
    </message>
    <message>
        <source>"%1" cannot be imported.</source>
        <translation>No se puede importar «%1».</translation>
    </message>
    <message>
        <source>"%1" cannot be written.</source>
        <translation>No se puede escribir «%1».</translation>
    </message>
    <message>
        <source>That is the folder of the presets themselves.</source>
        <translation>Esa es la propia carpeta de los preajustes.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>"%1" cannot be deleted.</source>
        <translation>No se puede eliminar «%1».</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Es un enlace a otro lugar.</translation>
    </message>
    <message>
        <source>Another program has changed it in the meantime. Try again if that is to be lost.</source>
        <translation>Entretanto, otro programa lo ha cambiado. Inténtelo de nuevo si ese cambio se puede perder.</translation>
    </message>
    <message>
        <source>Another preset is called "%1".</source>
        <translation>Otro preajuste se llama «%1».</translation>
    </message>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>No se puede crear la carpeta «%1».</translation>
    </message>
</context>
<context>
    <name>ColourPresetForm</name>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>Propósito de &amp;representación:</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>Compensación &amp;de punto negro</translation>
    </message>
    <message>
        <source>In&amp;k limit:</source>
        <translation>&amp;Límite de tinta:</translation>
    </message>
    <message>
        <source>Paper white:</source>
        <translation>Blanco del papel:</translation>
    </message>
    <message>
        <source>The paper as a screen shows it</source>
        <translation>El papel tal como lo muestra una pantalla</translation>
    </message>
    <message>
        <source>Lightness of the paper</source>
        <translation>Claridad del papel</translation>
    </message>
    <message>
        <source>Green to red of the paper</source>
        <translation>De verde a rojo del papel</translation>
    </message>
    <message>
        <source>Blue to yellow of the paper</source>
        <translation>De azul a amarillo del papel</translation>
    </message>
</context>
<context>
    <name>ColourPresetPanel</name>
    <message>
        <source>New preset</source>
        <translation>Preajuste nuevo</translation>
    </message>
    <message>
        <source>Colour presets</source>
        <translation>Preajustes de color</translation>
    </message>
    <message>
        <source>Preset:</source>
        <translation>Preajuste:</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Ningún preajuste</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importar...</translation>
    </message>
    <message>
        <source>Ca&amp;ncel Edit</source>
        <translation>&amp;Cancelar edición</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Eliminar preajuste</translation>
    </message>
    <message>
        <source>Delete the preset "%1" for good?</source>
        <translation>¿Eliminar definitivamente el preajuste «%1»?</translation>
    </message>
    <message>
        <source>Change the name in the box and the settings, then save.</source>
        <translation>Cambie el nombre en la lista desplegable y los ajustes, y luego guarde.</translation>
    </message>
    <message>
        <source>There is no preset. Make a new one, or import one.</source>
        <translation>No hay ningún preajuste. Cree uno nuevo o importe uno.</translation>
    </message>
    <message>
        <source>The settings can be changed once the preset is edited.</source>
        <translation>Los ajustes se pueden cambiar cuando se edita el preajuste.</translation>
    </message>
    <message>
        <source>Files in "%1" that are no presets, and are left as they are: %2</source>
        <translation>Archivos en «%1» que no son preajustes y se dejan como están: %2</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Guardar preajuste</translation>
    </message>
    <message>
        <source>The preset "%1" has been edited. Save it?</source>
        <translation>El preajuste «%1» se ha editado. ¿Guardarlo?</translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation>Importar preajuste</translation>
    </message>
    <message>
        <source>Colour presets (*.json)</source>
        <translation>Preajustes de color (*.json)</translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation>Exportar preajuste</translation>
    </message>
</context>
<context>
    <name>ColourProfileCheck</name>
    <message>
        <source>%1 bytes by the header, %2 in the file.</source>
        <translation>%1 bytes según la cabecera, %2 en el archivo.</translation>
    </message>
    <message>
        <source>The signature is "%1" instead of "acsp".</source>
        <translation>La firma es «%1» en lugar de «acsp».</translation>
    </message>
    <message>
        <source>Version %1 is not supported.</source>
        <translation>La versión %1 no se admite.</translation>
    </message>
    <message>
        <source>The device class "%1" is unknown.</source>
        <translation>La clase de dispositivo «%1» es desconocida.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>No se puede abrir el archivo.</translation>
    </message>
    <message>
        <source>The file ends within the header, after %1 bytes.</source>
        <translation>El archivo termina dentro de la cabecera, tras %1 bytes.</translation>
    </message>
    <message>
        <source>"%1" cannot be used as a colour profile.</source>
        <translation>«%1» no se puede usar como perfil de color.</translation>
    </message>
</context>
<context>
    <name>ComboBoxPanel</name>
    <message>
        <source>Combo boxes</source>
        <translation>Listas desplegables</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitado</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deshabilitado</translation>
    </message>
    <message>
        <source>&amp;Measured under:</source>
        <translation>Condición de &amp;medida:</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>P&amp;apel:</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>Cambiar &amp;nombre</translation>
    </message>
    <message>
        <source>Light of a tungsten lamp, the ultraviolet undefined</source>
        <translation>Luz de lámpara de tungsteno, ultravioleta sin definir</translation>
    </message>
    <message>
        <source>Daylight D50, the ultraviolet as in D50</source>
        <translation>Luz diurna D50, ultravioleta como en D50</translation>
    </message>
    <message>
        <source>Without ultraviolet</source>
        <translation>Sin ultravioleta</translation>
    </message>
    <message>
        <source>Without ultraviolet, with polarising filters</source>
        <translation>Sin ultravioleta, con filtros polarizadores</translation>
    </message>
    <message>
        <source>Focus lost: %1</source>
        <translation>Foco perdido: %1</translation>
    </message>
    <message>
        <source>Measured under</source>
        <translation>Condición de medida</translation>
    </message>
    <message>
        <source>Measured under, disabled</source>
        <translation>Condición de medida, deshabilitada</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Paper, disabled</source>
        <translation>Papel, deshabilitado</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Folder, disabled</source>
        <translation>Carpeta, deshabilitada</translation>
    </message>
</context>
<context>
    <name>ContainersPage</name>
    <message>
        <source>What holds other widgets: a flow of equal cells, a square, splitters with a grip, group boxes that fold or have a bold title; and labels that are turned.</source>
        <translation>Lo que contiene otros widgets: celdas iguales que fluyen, un cuadrado, divisores con tirador, grupos que se pliegan o tienen el título en negrita, y etiquetas giradas.</translation>
    </message>
</context>
<context>
    <name>ControlsPage</name>
    <message>
        <source>Numbers with a slider beside them, switches, and spin boxes that read as a plain value when they are disabled; and the state of a whole window in one call.</source>
        <translation>Números con un control deslizante al lado, interruptores, y campos numéricos que se leen como un simple valor cuando están deshabilitados; y el estado de toda una ventana en una sola llamada.</translation>
    </message>
</context>
<context>
    <name>CredentialPanel</name>
    <message>
        <source>Credential dialog</source>
        <translation>Diálogo de credenciales</translation>
    </message>
    <message>
        <source>Ask for &amp;Credentials...</source>
        <translation>Pe&amp;dir credenciales...</translation>
    </message>
    <message>
        <source>Offer to r&amp;emember</source>
        <translation>Ofrecer &amp;recordar</translation>
    </message>
    <message>
        <source>With the offer the dialog calls back at each OK with both fields filled in; the host asks by itself whether "Remember" is checked.</source>
        <translation>Con la oferta, el diálogo avisa cada vez que se pulsa «Aceptar» con ambos campos rellenos; el programa comprueba por sí mismo si «Recordar» está marcado.</translation>
    </message>
    <message>
        <source>Not asked yet.</source>
        <translation>Aún no se han pedido.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>User: %1.</source>
        <translation>Usuario: %1.</translation>
    </message>
    <message>
        <source>Characters of the password: %1.</source>
        <translation>Caracteres de la contraseña: %1.</translation>
    </message>
    <message>
        <source>The callback was called.</source>
        <translation>Se llamó a la función de aviso.</translation>
    </message>
    <message>
        <source>The callback was not called.</source>
        <translation>No se llamó a la función de aviso.</translation>
    </message>
    <message>
        <source>"Remember" is checked.</source>
        <translation>«Recordar» está marcado.</translation>
    </message>
    <message>
        <source>"Remember" is not checked.</source>
        <translation>«Recordar» no está marcado.</translation>
    </message>
</context>
<context>
    <name>DatabasePage</name>
    <message>
        <source>The panel for the place of a program's data: its internal database or a server. Switch on a real MariaDB server on this computer, choose what is to go wrong, and turn the pages of a million measurements in either database.</source>
        <translation>El panel para el lugar de los datos de un programa: su base de datos interna o un servidor. Active un servidor MariaDB real en este equipo, elija qué debe fallar y pase las páginas de un millón de mediciones en cualquiera de las dos bases de datos.</translation>
    </message>
    <message>
        <source>Database panel</source>
        <translation>Panel de base de datos</translation>
    </message>
</context>
<context>
    <name>DatabaseServerPanel</name>
    <message>
        <source>Local MariaDB server</source>
        <translation>Servidor MariaDB local</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>Proble&amp;ma:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>No right to the database</source>
        <translation>Sin derechos sobre la base de datos</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Servidor mudo</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nadie responde</translation>
    </message>
</context>
<context>
    <name>DatabaseSettingsPanel</name>
    <message>
        <source>Settings and dialog</source>
        <translation>Ajustes y diálogo</translation>
    </message>
    <message>
        <source>S&amp;how Settings</source>
        <translation>Mostrar &amp;ajustes</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>As&amp;k...</source>
        <translation>Pregu&amp;ntar...</translation>
    </message>
    <message>
        <source>Settings of the database</source>
        <translation>Ajustes de la base de datos</translation>
    </message>
    <message>
        <source>Where to Keep the Measurements</source>
        <translation>Dónde guardar las mediciones</translation>
    </message>
    <message>
        <source>As they stand in the panel, whether they work or not.</source>
        <translation>Tal como están en el panel, funcionen o no.</translation>
    </message>
    <message>
        <source>Saved: a connection can be opened.</source>
        <translation>Guardado: se puede abrir una conexión.</translation>
    </message>
    <message>
        <source>Nothing to save: no connection can be opened.</source>
        <translation>Nada que guardar: no se puede abrir ninguna conexión.</translation>
    </message>
    <message>
        <source>Confirmed in the dialog: a connection can be opened.</source>
        <translation>Confirmado en el diálogo: se puede abrir una conexión.</translation>
    </message>
    <message>
        <source>Cancelled, or no connection can be opened.</source>
        <translation>Cancelado, o no se puede abrir ninguna conexión.</translation>
    </message>
</context>
<context>
    <name>DictionaryView</name>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>DifferenceBarPanel</name>
    <message>
        <source>Differences of the pairs</source>
        <translation>Diferencias de los pares</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Fórmula:</translation>
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
        <translation>Fórmula</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>Pa&amp;res:</translation>
    </message>
    <message>
        <source>Same patches</source>
        <translation>Parches iguales</translation>
    </message>
    <message>
        <source>Different patches</source>
        <translation>Parches distintos</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Pares</translation>
    </message>
    <message>
        <source>Limit:</source>
        <translation>Límite:</translation>
    </message>
    <message>
        <source>%1 of %2 pairs are below the limit of %3. The mean is %4, and %5 % of the pairs are below it; the largest difference is %6.</source>
        <translation>%1 de %2 pares están por debajo del límite de %3. La media es %4 y el %5 % de los pares está por debajo de ella; la mayor diferencia es %6.</translation>
    </message>
</context>
<context>
    <name>DifferenceLegend</name>
    <message>
        <source>Colour difference by CIEDE2000. Up to %1: close.</source>
        <translation>Diferencia de color según CIEDE2000. Hasta %1: pequeña.</translation>
    </message>
    <message>
        <source>Colours of the difference</source>
        <translation>Colores de la diferencia</translation>
    </message>
</context>
<context>
    <name>DisabledSpinBoxPanel</name>
    <message>
        <source>Spin boxes that are disabled</source>
        <translation>Campos numéricos deshabilitados</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitado</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deshabilitado</translation>
    </message>
    <message>
        <source>%1, enabled</source>
        <translation>%1, habilitado</translation>
    </message>
    <message>
        <source>%1, disabled</source>
        <translation>%1, deshabilitado</translation>
    </message>
    <message>
        <source>S&amp;wap</source>
        <translation>I&amp;ntercambiar</translation>
    </message>
</context>
<context>
    <name>DragDropEmissions</name>
    <message>
        <source>Signals</source>
        <translation>Señales</translation>
    </message>
    <message>
        <source>Signals o&amp;f the page: %1</source>
        <translation>Señales &amp;de la página: %1</translation>
    </message>
    <message>
        <source>Signals of the page</source>
        <translation>Señales de la página</translation>
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
        <translation>Un campo que acepta archivos soltados desde aquí o desde cualquier programa, y carpetas que se ordenan arrastrando, en dos vistas que van a la par.</translation>
    </message>
</context>
<context>
    <name>DriveManagerPanel</name>
    <message>
        <source>Manager window</source>
        <translation>Ventana del gestor</translation>
    </message>
    <message>
        <source>S&amp;hare:</source>
        <translation>Recur&amp;so compartido:</translation>
    </message>
    <message>
        <source>Add &amp;Drive</source>
        <translation>&amp;Añadir unidad</translation>
    </message>
    <message>
        <source>Re&amp;move Added Drives</source>
        <translation>&amp;Quitar las añadidas</translation>
    </message>
    <message>
        <source>Show F&amp;older</source>
        <translation>&amp;Mostrar carpeta</translation>
    </message>
    <message>
        <source>Check "Enabled", and all active drives in the list are connected, your own too. A connected drive is a link in "%1". The editor knows no port: a drive that you type in or edit leads to the standard port 445, not to the server above. Added drives are removed when the gallery ends; one that you have edited is yours, and stays.</source>
        <translation>Marque «Habilitado» y se conectarán todas las unidades activas de la lista, también las suyas. Una unidad conectada es un enlace en «%1». El editor no conoce puertos: una unidad que usted introduzca o edite lleva al puerto estándar 445, no al servidor de arriba. Las unidades añadidas se quitan al cerrar la galería; la que usted haya editado es suya y permanece.</translation>
    </message>
    <message>
        <source>Added: %1.</source>
        <translation>Añadida: %1.</translation>
    </message>
    <message>
        <source>Added: %1. Check "Enabled" to have it connected.</source>
        <translation>Añadida: %1. Marque «Habilitado» para que se conecte.</translation>
    </message>
    <message>
        <source>%1 is yours now, and leads to port %2: the editor knows no port. Remove it with "-".</source>
        <translation>%1 es ahora suya y lleva al puerto %2: el editor no conoce puertos. Quítela con «-».</translation>
    </message>
    <message>
        <source>All drive letters are taken.</source>
        <translation>Todas las letras de unidad están ocupadas.</translation>
    </message>
    <message>
        <source>No drive has been connected yet: there is no folder "%1".</source>
        <translation>Aún no se ha conectado ninguna unidad: no existe la carpeta «%1».</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>Ningún programa muestra la carpeta «%1».</translation>
    </message>
</context>
<context>
    <name>DriveSessionPanel</name>
    <message>
        <source>Lo&amp;g of the drives:</source>
        <translation>Registro de las &amp;unidades:</translation>
    </message>
    <message>
        <source>S&amp;ignals of the manager:</source>
        <translation>Señales del &amp;gestor:</translation>
    </message>
</context>
<context>
    <name>DrivesPage</name>
    <message>
        <source>Drives of file servers that a program keeps connected. Switch on a real Samba server on this computer, choose what is to go wrong, add its drives to the list, and see how they stand.</source>
        <translation>Unidades de servidores de archivos que un programa mantiene conectadas. Active un servidor Samba real en este equipo, elija qué debe fallar, añada sus unidades a la lista y vea en qué estado están.</translation>
    </message>
</context>
<context>
    <name>EmbeddingPanel</name>
    <message>
        <source>OK was clicked, and the dialog stays in the page.</source>
        <translation>Se ha pulsado «Aceptar» y el diálogo sigue en la página.</translation>
    </message>
    <message>
        <source>OK closed the window; its colour was taken over.</source>
        <translation>«Aceptar» ha cerrado la ventana; su color se ha adoptado.</translation>
    </message>
    <message>
        <source>Cancel closed the window; the colour stays as it was.</source>
        <translation>«Cancelar» ha cerrado la ventana; el color queda como estaba.</translation>
    </message>
    <message>
        <source>A dialog in two places</source>
        <translation>Un diálogo en dos lugares</translation>
    </message>
    <message>
        <source>Part of the page, the dialog is not ended by its buttons. As a window it is, and hands its colour over.</source>
        <translation>Como parte de la página, el diálogo no termina con sus botones. Como ventana sí, y entrega su color.</translation>
    </message>
    <message>
        <source>Open as &amp;Window</source>
        <translation>&amp;Abrir como ventana</translation>
    </message>
</context>
<context>
    <name>EmissionList</name>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vaciar</translation>
    </message>
</context>
<context>
    <name>EncodedTextFile</name>
    <message>
        <source>There is no codec "%1".</source>
        <translation>No existe el códec «%1».</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>No se puede leer: %1.</translation>
    </message>
</context>
<context>
    <name>EncodingPanel</name>
    <message>
        <source>Text File</source>
        <translation>Archivo de texto</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Archivos de texto (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Default encoding</source>
        <translation>Codificación predeterminada</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>Guar&amp;dar</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>Ca&amp;rgar</translation>
    </message>
    <message>
        <source>&amp;Text file:</source>
        <translation>Archivo de &amp;texto:</translation>
    </message>
    <message>
        <source>Example in UTF-8</source>
        <translation>Ejemplo en UTF-8</translation>
    </message>
    <message>
        <source>Example in ISO-8859-1</source>
        <translation>Ejemplo en ISO-8859-1</translation>
    </message>
    <message>
        <source>Choose &amp;File...</source>
        <translation>Elegir &amp;archivo...</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>Texto del archivo</translation>
    </message>
    <message>
        <source>The file is not shown. %1</source>
        <translation>El archivo no se muestra. %1</translation>
    </message>
    <message>
        <source>Bytes read as %1: %2.</source>
        <translation>Bytes leídos como %1: %2.</translation>
    </message>
    <message>
        <source>Places that this encoding cannot read: %1.</source>
        <translation>Posiciones que esta codificación no puede leer: %1.</translation>
    </message>
    <message>
        <source>The rest of the file is not shown.</source>
        <translation>El resto del archivo no se muestra.</translation>
    </message>
</context>
<context>
    <name>ErrorBoxPanel</name>
    <message>
        <source>Show it</source>
        <translation>Mostrarlo</translation>
    </message>
    <message>
        <source>Short:</source>
        <translation>Breve:</translation>
    </message>
    <message>
        <source>With details:</source>
        <translation>Con detalles:</translation>
    </message>
    <message>
        <source>a line for each nested error</source>
        <translation>una línea por cada error anidado</translation>
    </message>
    <message>
        <source>nested errors folded away</source>
        <translation>errores anidados contraídos</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>In&amp;formación</translation>
    </message>
    <message>
        <source>&amp;Question</source>
        <translation>Pre&amp;gunta</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>Ad&amp;vertencia</translation>
    </message>
    <message>
        <source>&amp;Critical</source>
        <translation>&amp;Crítico</translation>
    </message>
    <message>
        <source>In&amp;formation</source>
        <comment>with details</comment>
        <translation>Infor&amp;mación</translation>
    </message>
    <message>
        <source>Q&amp;uestion</source>
        <comment>with details</comment>
        <translation>Preg&amp;unta</translation>
    </message>
    <message>
        <source>War&amp;ning</source>
        <comment>with details</comment>
        <translation>Adverte&amp;ncia</translation>
    </message>
    <message>
        <source>C&amp;ritical</source>
        <comment>with details</comment>
        <translation>C&amp;rítico</translation>
    </message>
    <message>
        <source>%1, short</source>
        <translation>%1, breve</translation>
    </message>
    <message>
        <source>%1, with details</source>
        <translation>%1, con detalles</translation>
    </message>
</context>
<context>
    <name>ErrorComposer</name>
    <message>
        <source>Read a File as a Colour Profile</source>
        <translation>Leer un archivo como perfil de color</translation>
    </message>
    <message>
        <source>Compose an error</source>
        <translation>Componer un error</translation>
    </message>
    <message>
        <source>E&amp;xample:</source>
        <translation>E&amp;jemplo:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Reads another file as a colour profile.</source>
        <translation>Lee otro archivo como perfil de color.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Without a title the domain stands in</source>
        <translation>Sin título, el dominio ocupa su lugar</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descripción:</translation>
    </message>
    <message>
        <source>D&amp;omain:</source>
        <translation>D&amp;ominio:</translation>
    </message>
    <message>
        <source>N&amp;ested errors:</source>
        <translation>Errores &amp;anidados:</translation>
    </message>
    <message>
        <source>One a line; two blanks put it below the line above</source>
        <translation>Uno por línea; dos espacios lo ponen por debajo de la línea anterior</translation>
    </message>
    <message>
        <source>Com&amp;plete text:</source>
        <translation>Texto comp&amp;leto:</translation>
    </message>
    <message>
        <source>An error with nothing to say opens no box.</source>
        <translation>Un error que no tiene nada que decir no abre ningún cuadro.</translation>
    </message>
</context>
<context>
    <name>ErrorExamples</name>
    <message>
        <source>Colour Profile</source>
        <translation>Perfil de color</translation>
    </message>
    <message>
        <source>The password of the measuring device cannot be read.</source>
        <translation>No se puede leer la contraseña del instrumento de medida.</translation>
    </message>
    <message>
        <source>A file read as a colour profile</source>
        <translation>Un archivo leído como perfil de color</translation>
    </message>
    <message>
        <source>A password that was never enciphered</source>
        <translation>Una contraseña que nunca se cifró</translation>
    </message>
    <message>
        <source>Reasons without a description</source>
        <translation>Motivos sin descripción</translation>
    </message>
    <message>
        <source>Nothing to report</source>
        <translation>Nada de que informar</translation>
    </message>
</context>
<context>
    <name>ErrorsPage</name>
    <message>
        <source>How a failure reaches the user: an error with the errors that led to it, the boxes that show it, and the manual.</source>
        <translation>Cómo llega un fallo al usuario: un error con los errores que llevaron a él, los cuadros que lo muestran y el manual.</translation>
    </message>
</context>
<context>
    <name>FeedbackFieldsPanel</name>
    <message>
        <source>Extra fields of the program</source>
        <translation>Campos adicionales del programa</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Add F&amp;ield</source>
        <translation>&amp;Añadir campo</translation>
    </message>
    <message>
        <source>Re&amp;move Field</source>
        <translation>&amp;Quitar campo</translation>
    </message>
</context>
<context>
    <name>FeedbackFormPanel</name>
    <message>
        <source>Press room</source>
        <translation>Sala de impresión</translation>
    </message>
    <message>
        <source>Colour differences</source>
        <translation>Diferencias de color</translation>
    </message>
    <message>
        <source>The limit of the difference bar could be typed as well.</source>
        <translation>El límite de la barra de diferencias también se podría teclear.</translation>
    </message>
    <message>
        <source>Feedback form</source>
        <translation>Formulario de comentarios</translation>
    </message>
    <message>
        <source>Open as &amp;Dialog</source>
        <translation>Abrir como &amp;diálogo</translation>
    </message>
    <message>
        <source>A note goes to port 5050 of this computer, and nowhere else; the service takes it there while it is on. The form waits for the answer as long as it takes, and nothing can be pressed meanwhile.
It tells success only if part of the answer still comes in while it reads. An answer that has come whole, as from this computer, is not looked at: the form then says that the service may be unavailable, for an accepted note too. What has arrived stands in the session.</source>
        <translation>Un mensaje va al puerto 5050 de este equipo y a ningún otro sitio; allí lo recoge el servicio mientras está activo. El formulario espera la respuesta el tiempo que haga falta, y entretanto no se puede pulsar nada.
Solo informa de éxito si una parte de la respuesta sigue llegando mientras lee. Una respuesta que ya ha llegado entera, como la de este equipo, no la mira: entonces el formulario dice que el servicio quizá no esté disponible, también con un mensaje aceptado. Lo que ha llegado figura en la sesión.</translation>
    </message>
</context>
<context>
    <name>FeedbackPage</name>
    <message>
        <source>The form with which a user writes to the makers of a program. Switch on a real feedback service on this computer, choose what it answers, and submit a note.</source>
        <translation>El formulario con el que un usuario escribe a los autores de un programa. Active un servicio de comentarios real en este equipo, elija qué responde y envíe un mensaje.</translation>
    </message>
</context>
<context>
    <name>FeedbackServicePanel</name>
    <message>
        <source>Local feedback service</source>
        <translation>Servicio de comentarios local</translation>
    </message>
    <message>
        <source>Ans&amp;wer:</source>
        <translation>&amp;Respuesta:</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Aceptado</translation>
    </message>
    <message>
        <source>Refused</source>
        <translation>Rechazado</translation>
    </message>
    <message>
        <source>Accepted after %1 seconds</source>
        <translation>Aceptado tras %1 segundos</translation>
    </message>
    <message>
        <source>Answer that breaks off</source>
        <translation>Respuesta que se interrumpe</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>Respuesta que no es JSON</translation>
    </message>
    <message>
        <source>Status 500</source>
        <translation>Estado 500</translation>
    </message>
</context>
<context>
    <name>FeedbackSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>Lo que recibió el &amp;servicio:</translation>
    </message>
    <message>
        <source>Signals of t&amp;he form and its dialog:</source>
        <translation>Señales del &amp;formulario y su diálogo:</translation>
    </message>
</context>
<context>
    <name>FileDigests</name>
    <message>
        <source>Looking for files</source>
        <translation>Buscando archivos</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Leyendo %1</translation>
    </message>
</context>
<context>
    <name>FileDropPanel</name>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Files of the &amp;gallery:</source>
        <translation>Archivos de la &amp;galería:</translation>
    </message>
    <message>
        <source>Files of the gallery</source>
        <translation>Archivos de la galería</translation>
    </message>
    <message>
        <source>&amp;Put Into Field</source>
        <translation>Poner en el ca&amp;mpo</translation>
    </message>
    <message>
        <source>&amp;Dropped file:</source>
        <translation>&amp;Archivo soltado:</translation>
    </message>
    <message>
        <source>Drop files here</source>
        <translation>Suelte archivos aquí</translation>
    </message>
    <message>
        <source>Nothing dropped yet</source>
        <translation>Aún no se ha soltado nada</translation>
    </message>
    <message>
        <source>Dropped: %1</source>
        <translation>Soltados: %1</translation>
    </message>
    <message>
        <source>Dropped: %1, not on this computer: %2</source>
        <translation>Soltados: %1; no están en este equipo: %2</translation>
    </message>
</context>
<context>
    <name>FolderDropPanel</name>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>In your own &amp;order:</source>
        <translation>En su propio &amp;orden:</translation>
    </message>
    <message>
        <source>In alphab&amp;etical order:</source>
        <translation>En orden al&amp;fabético:</translation>
    </message>
    <message>
        <source>Folders in your own order</source>
        <translation>Carpetas en su propio orden</translation>
    </message>
    <message>
        <source>Folders in alphabetical order</source>
        <translation>Carpetas en orden alfabético</translation>
    </message>
    <message>
        <source>&amp;May be dropped:</source>
        <translation>Se puede solta&amp;r:</translation>
    </message>
    <message>
        <source>Onto folders and between them</source>
        <translation>Sobre y entre carpetas</translation>
    </message>
    <message>
        <source>Onto folders only</source>
        <translation>Solo sobre carpetas</translation>
    </message>
    <message>
        <source>Between folders only</source>
        <translation>Solo entre carpetas</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Carpeta &amp;nueva</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Move &amp;In</source>
        <translation>Me&amp;ter</translation>
    </message>
    <message>
        <source>Move Ou&amp;t</source>
        <translation>Sa&amp;car</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>New folder %1</source>
        <translation>Carpeta nueva %1</translation>
    </message>
    <message>
        <source>“%1” is removed</source>
        <translation>«%1» se ha quitado</translation>
    </message>
    <message>
        <source>“%1” is moved</source>
        <translation>«%1» se ha movido</translation>
    </message>
    <message>
        <source>“%1” cannot move there</source>
        <translation>«%1» no se puede mover ahí</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>Papers</source>
        <translation>Papeles</translation>
    </message>
    <message>
        <source>Uncoated</source>
        <translation>No estucado</translation>
    </message>
    <message>
        <source>Coated, glossy</source>
        <translation>Estucado, brillante</translation>
    </message>
    <message>
        <source>Coated, matt</source>
        <translation>Estucado, mate</translation>
    </message>
    <message>
        <source>Proofs</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Screens</source>
        <translation>Pantallas</translation>
    </message>
    <message>
        <source>Studio</source>
        <translation>Estudio</translation>
    </message>
    <message>
        <source>Laptops</source>
        <translation>Portátiles</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>Cartas</translation>
    </message>
    <message>
        <source>24 colours</source>
        <translation>24 colores</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>Escala de grises</translation>
    </message>
</context>
<context>
    <name>FolderJobBar</name>
    <message>
        <source>Relative paths start at the program's folder; several paths are separated by "%1".</source>
        <translation>Las rutas relativas parten de la carpeta del programa; varias rutas se separan con «%1».</translation>
    </message>
</context>
<context>
    <name>FolderLogEntry</name>
    <message>
        <source>The folder is empty.</source>
        <translation>La carpeta está vacía.</translation>
    </message>
    <message>
        <source>Broken link: %1</source>
        <translation>Enlace roto: %1</translation>
    </message>
    <message>
        <source>Very long name: %1</source>
        <translation>Nombre muy largo: %1</translation>
    </message>
    <message>
        <source>No right to read: %1</source>
        <translation>Sin derecho de lectura: %1</translation>
    </message>
    <message>
        <source>No right to list the folder.</source>
        <translation>Sin derecho a ver el contenido de la carpeta.</translation>
    </message>
    <message>
        <source>The folder does not exist.</source>
        <translation>La carpeta no existe.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Esto es un archivo, no una carpeta.</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Archivos: %1</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>Tamaño total: %1</translation>
    </message>
    <message>
        <source>Changed last: %1</source>
        <translation>Archivo más reciente: %1</translation>
    </message>
    <message>
        <source>Further findings are not listed.</source>
        <translation>Los demás hallazgos no se enumeran.</translation>
    </message>
    <message>
        <source>Folder %1</source>
        <translation>Carpeta %1</translation>
    </message>
    <message>
        <source>Scan finished after %1 s</source>
        <translation>Exploración terminada tras %1 s</translation>
    </message>
    <message>
        <source>Scan cancelled after %1 s</source>
        <translation>Exploración cancelada tras %1 s</translation>
    </message>
    <message>
        <source>Folders: %1</source>
        <translation>Carpetas: %1</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>Advertencias: %1</translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation>Errores: %1</translation>
    </message>
</context>
<context>
    <name>FolderScanPanel</name>
    <message>
        <source>Folder scan with a spinner</source>
        <translation>Exploración de carpeta con indicador giratorio</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>Inici&amp;ar exploración</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ca&amp;ncelar</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>Explorar una carpeta</translation>
    </message>
    <message>
        <source>Spinner si&amp;ze:</source>
        <translation>Tamaño &amp;del indicador:</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 píxeles</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Changed last</source>
        <translation>Más reciente</translation>
    </message>
    <message>
        <source>Largest folders</source>
        <translation>Carpetas más grandes</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3 so far</source>
        <translation>%1 carpetas, %2 archivos, %3 hasta ahora</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3</source>
        <translation>%1 carpetas, %2 archivos, %3</translation>
    </message>
    <message>
        <source>%1 folders, %2 files, %3; cancelled</source>
        <translation>%1 carpetas, %2 archivos, %3; cancelado</translation>
    </message>
</context>
<context>
    <name>FoldingPanel</name>
    <message>
        <source>Folding group box</source>
        <translation>Grupo plegable</translation>
    </message>
    <message>
        <source>C&amp;onversion</source>
        <translation>C&amp;onversión</translation>
    </message>
    <message>
        <source>Rendering intent:</source>
        <translation>Propósito de representación:</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrico relativo</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrico absoluto</translation>
    </message>
    <message>
        <source>&amp;Black point compensation</source>
        <translation>Compensación de punto ne&amp;gro</translation>
    </message>
    <message>
        <source>Simulate the paper</source>
        <translation>Simular el papel</translation>
    </message>
    <message>
        <source>The black point counts for relative colorimetric alone.</source>
        <translation>El punto negro solo cuenta en el colorimétrico relativo.</translation>
    </message>
    <message>
        <source>&amp;Keep the note hidden</source>
        <translation>M&amp;antener oculta la nota</translation>
    </message>
    <message>
        <source>black point compensated</source>
        <translation>punto negro compensado</translation>
    </message>
    <message>
        <source>paper simulated</source>
        <translation>papel simulado</translation>
    </message>
</context>
<context>
    <name>FontsPanel</name>
    <message>
        <source>Fonts</source>
        <translation>Tipos de letra</translation>
    </message>
    <message>
        <source>There are no fonts in %1</source>
        <translation>No hay tipos de letra en %1</translation>
    </message>
    <message>
        <source>%1, from %2</source>
        <comment>family and file</comment>
        <translation>%1, de %2</translation>
    </message>
    <message>
        <source>This file is no font.</source>
        <translation>Este archivo no es un tipo de letra.</translation>
    </message>
    <message>
        <source>Specimen of %1</source>
        <translation>Muestra de %1</translation>
    </message>
</context>
<context>
    <name>FtpConfigurationPanel</name>
    <message>
        <source>FTP panel</source>
        <translation>Panel FTP</translation>
    </message>
    <message>
        <source>Show stat&amp;us</source>
        <translation>Mo&amp;strar estado</translation>
    </message>
    <message>
        <source>Show &amp;box "Active"</source>
        <translation>Mostrar casilla «&amp;Activo»</translation>
    </message>
    <message>
        <source>Show box "&amp;Erase"</source>
        <translation>Mos&amp;trar casilla «Borrar»</translation>
    </message>
    <message>
        <source>&amp;Importer</source>
        <translation>I&amp;mportación</translation>
    </message>
</context>
<context>
    <name>FtpPage</name>
    <message>
        <source>The panel for an FTP or SFTP server to import from or to export to. Switch on a real server on this computer, choose what is to go wrong, and check the connection.</source>
        <translation>El panel para un servidor FTP o SFTP desde el que importar o al que exportar. Active un servidor real en este equipo, elija qué debe fallar y compruebe la conexión.</translation>
    </message>
</context>
<context>
    <name>FtpServerPanel</name>
    <message>
        <source>Local server</source>
        <translation>Servidor local</translation>
    </message>
    <message>
        <source>Protoc&amp;ol:</source>
        <translation>Pr&amp;otocolo:</translation>
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
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Servidor mudo</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nadie responde</translation>
    </message>
</context>
<context>
    <name>FtpSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>Lo &amp;que recibió el servidor:</translation>
    </message>
    <message>
        <source>Signals of t&amp;he panel:</source>
        <translation>Señales &amp;del panel:</translation>
    </message>
</context>
<context>
    <name>FtpSettingsPanel</name>
    <message>
        <source>Settings and dialogs</source>
        <translation>Ajustes y diálogos</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>Mostrar a&amp;justes</translation>
    </message>
    <message>
        <source>I&amp;mport Dialog...</source>
        <translation>Diálo&amp;go de importación...</translation>
    </message>
    <message>
        <source>E&amp;xport Dialog...</source>
        <translation>Diálogo de e&amp;xportación...</translation>
    </message>
    <message>
        <source>Where the jobs come from</source>
        <translation>De dónde vienen los trabajos</translation>
    </message>
    <message>
        <source>Where the jobs go to</source>
        <translation>Adónde van los trabajos</translation>
    </message>
</context>
<context>
    <name>GalleryAboutWindow</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galería de TXGUICommon</translation>
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
        <translation>Muestra lo que ofrece la biblioteca TXGUICommon.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Muestra esta ayuda y termina.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Open at this page: %1.</source>
        <translation>Abre esta página: %1.</translation>
    </message>
    <message>
        <source>file|folder</source>
        <translation>archivo|carpeta</translation>
    </message>
    <message>
        <source>Save a picture of the named page as this PNG file, or of every page into this folder, print the paths and exit.</source>
        <translation>Guarda una imagen de la página indicada en este archivo PNG, o de todas las páginas en esta carpeta, escribe las rutas y termina.</translation>
    </message>
    <message>
        <source>Widget style: %1.</source>
        <translation>Estilo de los widgets: %1.</translation>
    </message>
    <message>
        <source>Colours.</source>
        <translation>Colores.</translation>
    </message>
    <message>
        <source>code</source>
        <translation>código</translation>
    </message>
    <message>
        <source>Language of the texts, as en.</source>
        <translation>Idioma de los textos, como en.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 necesita un valor.</translation>
    </message>
    <message>
        <source>Unexpected argument "%1".</source>
        <translation>Argumento inesperado «%1».</translation>
    </message>
    <message>
        <source>There is no page "%1". The pages are: %2.</source>
        <translation>No existe la página «%1». Las páginas son: %2.</translation>
    </message>
    <message>
        <source>There is no style "%1". The styles are: %2.</source>
        <translation>No existe el estilo «%1». Los estilos son: %2.</translation>
    </message>
    <message>
        <source>There is no language "%1". The languages are: %2.</source>
        <translation>No existe el idioma «%1». Los idiomas son: %2.</translation>
    </message>
    <message>
        <source>There is no palette "%1". The palettes are: light, dark, contrast.</source>
        <translation>No existe la paleta «%1». Las paletas son: light, dark, contrast.</translation>
    </message>
</context>
<context>
    <name>GalleryGrabber</name>
    <message>
        <source>The folder "%1" cannot be made.</source>
        <translation>No se puede crear la carpeta «%1».</translation>
    </message>
    <message>
        <source>The page "%1" was not ready after %2 seconds.</source>
        <translation>La página «%1» no estaba lista tras %2 segundos.</translation>
    </message>
    <message>
        <source>The picture "%1" cannot be written: %2.</source>
        <translation>No se puede escribir la imagen «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>GalleryHeader</name>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galería de TXGUICommon</translation>
    </message>
    <message>
        <source>P&amp;alette</source>
        <translation>&amp;Paleta</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Estilo</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Acerca de...</translation>
    </message>
    <message>
        <source>Alt+Y</source>
        <comment>key of the button About...</comment>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>About this program (%1)</source>
        <translation>Acerca de este programa (%1)</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clara</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscura</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Paleta</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>High Contrast</source>
        <translation>Alto contraste</translation>
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
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Busy and progress</source>
        <translation>Actividad y progreso</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Acceso</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controles</translation>
    </message>
    <message>
        <source>Lists and delegates</source>
        <translation>Listas y delegados</translation>
    </message>
    <message>
        <source>Containers and labels</source>
        <translation>Contenedores y etiquetas</translation>
    </message>
    <message>
        <source>Drag and drop</source>
        <translation>Arrastrar y soltar</translation>
    </message>
    <message>
        <source>Selection bar</source>
        <translation>Barra de selección</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Correo</translation>
    </message>
    <message>
        <source>FTP</source>
        <translation>FTP</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de datos</translation>
    </message>
    <message>
        <source>Web interface</source>
        <translation>Interfaz web</translation>
    </message>
    <message>
        <source>Trigger and encoding</source>
        <translation>Disparador y codificación</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Variant</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Colour difference</source>
        <translation>Diferencia de color</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Comentarios</translation>
    </message>
    <message>
        <source>Language and style</source>
        <translation>Idioma y estilo</translation>
    </message>
    <message>
        <source>Splash and About</source>
        <translation>Inicio y Acerca de</translation>
    </message>
</context>
<context>
    <name>GallerySplash</name>
    <message>
        <source>Loading the fonts...</source>
        <translation>Cargando los tipos de letra...</translation>
    </message>
    <message>
        <source>Loading the pages...</source>
        <translation>Cargando las páginas...</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>%1 - TXGUICommon Gallery</source>
        <translation>%1 - Galería de TXGUICommon</translation>
    </message>
</context>
<context>
    <name>ImageViewBar</name>
    <message>
        <source>&amp;Fit</source>
        <translation>&amp;Ajustar</translation>
    </message>
    <message>
        <source>The whole picture in each zone, also when the window changes</source>
        <translation>La imagen entera en cada zona, también cuando cambia la ventana</translation>
    </message>
    <message>
        <source>S&amp;hare</source>
        <translation>&amp;Repartir</translation>
    </message>
    <message>
        <source>Each zone's share of the width: a half with two pictures, also when the window changes</source>
        <translation>La parte del ancho de cada zona: la mitad con dos imágenes, también cuando cambia la ventana</translation>
    </message>
    <message>
        <source>1&amp;00 %</source>
        <translation>1&amp;00 %</translation>
    </message>
    <message>
        <source>A pixel of the picture as one of the screen</source>
        <translation>Un píxel de la imagen como uno de la pantalla</translation>
    </message>
    <message>
        <source>Scal&amp;e:</source>
        <translation>E&amp;scala:</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>O&amp;verlay</source>
        <translation>Ró&amp;tulos</translation>
    </message>
    <message>
        <source>Names of the pictures, outlines and numbers of the patches</source>
        <translation>Nombres de las imágenes, contornos y números de los parches</translation>
    </message>
    <message>
        <source>&amp;Marker</source>
        <translation>&amp;Marca</translation>
    </message>
    <message>
        <source>A crosshair at the same place in all pictures</source>
        <translation>Una cruz en el mismo lugar de todas las imágenes</translation>
    </message>
</context>
<context>
    <name>ImagesPage</name>
    <message>
        <source>Pictures side by side at one scale and position: a colour chart, the same chart in a simulated print, and how the two differ. Drag them, and turn the wheel to look closer.</source>
        <translation>Imágenes lado a lado con una misma escala y posición: una carta de color, la misma carta en una impresión simulada y en qué difieren ambas. Arrástrelas y gire la rueda para verlas más de cerca.</translation>
    </message>
    <message>
        <source>Pictures side by side</source>
        <translation>Imágenes lado a lado</translation>
    </message>
    <message>
        <source>Just a moment...</source>
        <translation>Un momento...</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Impresión</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The print is computed: paper that is not white, ink that is not black, dots that grow by %1 percent and a trace of their screen. It shows what these four do, and is no proof of what a press would print.</source>
        <translation>La impresión está calculada: papel que no es blanco, tinta que no es negra, puntos que crecen un %1 por ciento y un rastro de su trama. Muestra el efecto de estas cuatro cosas, y no es una prueba de lo que imprimiría una máquina.</translation>
    </message>
    <message>
        <source>The first %1 of %2 files.</source>
        <translation>Los primeros %1 de %2 archivos.</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>The pictures differ in size: %1 pixels. All are laid out by the first.</source>
        <translation>Las imágenes difieren en tamaño: %1 píxeles. Todas se disponen según la primera.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>What was shown before stays.</source>
        <translation>Lo que se mostraba antes permanece.</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>No se puede leer: %1.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>No es un archivo.</translation>
    </message>
</context>
<context>
    <name>JsonObjectReader</name>
    <message>
        <source>It holds no JSON object.</source>
        <translation>No contiene ningún objeto JSON.</translation>
    </message>
    <message>
        <source>"%1" is not known.</source>
        <translation>«%1» es desconocido.</translation>
    </message>
    <message>
        <source>"%1" is no text.</source>
        <translation>«%1» no es un texto.</translation>
    </message>
    <message>
        <source>"%1" is neither true nor false.</source>
        <translation>«%1» no es ni true ni false.</translation>
    </message>
    <message>
        <source>"%1" is no number from %2 to %3.</source>
        <translation>«%1» no es un número de %2 a %3.</translation>
    </message>
    <message>
        <source>"%1" is no whole number.</source>
        <translation>«%1» no es un número entero.</translation>
    </message>
    <message>
        <source>"%1" is no object.</source>
        <translation>«%1» no es un objeto.</translation>
    </message>
    <message>
        <source>"%1" is missing.</source>
        <translation>Falta «%1».</translation>
    </message>
</context>
<context>
    <name>JsonText</name>
    <message>
        <source>It is empty.</source>
        <translation>Está vacío.</translation>
    </message>
    <message>
        <source>It is no JSON (line %1: %2).</source>
        <translation>No es JSON (línea %1: %2).</translation>
    </message>
    <message>
        <source>It is too large: more than %1.</source>
        <translation>Es demasiado grande: más de %1.</translation>
    </message>
    <message>
        <source>It holds too many values: more than %1.</source>
        <translation>Contiene demasiados valores: más de %1.</translation>
    </message>
</context>
<context>
    <name>LabColourDialog</name>
    <message>
        <source>On screen %1</source>
        <translation>En pantalla %1</translation>
    </message>
    <message>
        <source>Beyond the screen; shown as %1</source>
        <translation>Fuera del alcance de la pantalla; se muestra como %1</translation>
    </message>
    <message>
        <source>Mix a Colour</source>
        <translation>Mezclar un color</translation>
    </message>
    <message>
        <source>Li&amp;ghtness L*:</source>
        <translation>C&amp;laridad L*:</translation>
    </message>
    <message>
        <source>Gree&amp;n-red a*:</source>
        <translation>&amp;Verde-rojo a*:</translation>
    </message>
    <message>
        <source>&amp;Blue-yellow b*:</source>
        <translation>Azul-amarillo &amp;b*:</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Claridad</translation>
    </message>
    <message>
        <source>Green to red</source>
        <translation>De verde a rojo</translation>
    </message>
    <message>
        <source>Blue to yellow</source>
        <translation>De azul a amarillo</translation>
    </message>
</context>
<context>
    <name>LabPlanePanel</name>
    <message>
        <source>Square layout and rotated labels</source>
        <translation>Disposición cuadrada y etiquetas giradas</translation>
    </message>
    <message>
        <source>b*: blue to yellow</source>
        <translation>b*: de azul a amarillo</translation>
    </message>
    <message>
        <source>a*: green to red</source>
        <translation>a*: de verde a rojo</translation>
    </message>
    <message>
        <source>Lig&amp;htness:</source>
        <translation>Clari&amp;dad:</translation>
    </message>
    <message>
        <source>&amp;Vertical axis:</source>
        <translation>E&amp;je vertical:</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Sin giro</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>Giro horario</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>Giro antihorario</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>&amp;Márgenes:</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Pu&amp;t Back</source>
        <translation>&amp;Devolver</translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation>Sa&amp;car</translation>
    </message>
    <message>
        <source>Colours of lightness %1, with the patches of the chart</source>
        <translation>Colores de claridad %1, con los parches de la carta</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>How a program takes its language, its style sheet and its fonts from the files beside it.</source>
        <translation>Cómo toma un programa su idioma, su hoja de estilo y sus tipos de letra de los archivos que lo acompañan.</translation>
    </message>
</context>
<context>
    <name>LanguagePanel</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>&amp;Texts of the gallery:</source>
        <translation>Textos de la &amp;galería:</translation>
    </message>
    <message>
        <source>Texts of the gallery</source>
        <translation>Textos de la galería</translation>
    </message>
    <message>
        <source>&amp;Import Translation...</source>
        <translation>Impo&amp;rtar traducción...</translation>
    </message>
    <message>
        <source>There are no translations in %1</source>
        <translation>No hay traducciones en %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>files in folder</comment>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Result 0: the file was copied.</source>
        <translation>Resultado 0: el archivo se ha copiado.</translation>
    </message>
    <message>
        <source>Result 1: the file was not copied.</source>
        <translation>Resultado 1: el archivo no se ha copiado.</translation>
    </message>
    <message>
        <source>Result 2: cancelled.</source>
        <translation>Resultado 2: cancelado.</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>What the library draws into lists, tables and trees, and its combo boxes.</source>
        <translation>Lo que la biblioteca dibuja en listas, tablas y árboles, y sus listas desplegables.</translation>
    </message>
</context>
<context>
    <name>LocalMariaDbServer</name>
    <message>
        <source>the user has no name</source>
        <translation>el usuario no tiene nombre</translation>
    </message>
    <message>
        <source>the database "%1" is the closed one</source>
        <translation>la base de datos «%1» es la que está cerrada</translation>
    </message>
</context>
<context>
    <name>LocalServer</name>
    <message>
        <source>no folder for the server: %1</source>
        <translation>no hay carpeta para el servidor: %1</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>%1 no se inicia: %2</translation>
    </message>
    <message>
        <source>%1 is not ready in time</source>
        <translation>%1 no está listo a tiempo</translation>
    </message>
    <message>
        <source>%1 ended before it was ready</source>
        <translation>%1 terminó antes de estar listo</translation>
    </message>
    <message>
        <source>%1 told no port but "%2"</source>
        <translation>%1 no indicó ningún puerto, sino «%2»</translation>
    </message>
</context>
<context>
    <name>LocalServerPanel</name>
    <message>
        <source>Ser&amp;ver:</source>
        <translation>Ser&amp;vidor:</translation>
    </message>
    <message>
        <source>&amp;Fill In the Panel</source>
        <translation>&amp;Rellenar el panel</translation>
    </message>
    <message>
        <source>on, at %1</source>
        <translation>activo, en %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>inactivo</translation>
    </message>
    <message>
        <source>The server did not start: %1</source>
        <translation>El servidor no se ha iniciado: %1</translation>
    </message>
    <message>
        <source>"./dev setup" installs what is needed.</source>
        <translation>«./dev setup» instala lo necesario.</translation>
    </message>
    <message>
        <source>The server has stopped by itself.</source>
        <translation>El servidor se ha detenido por sí solo.</translation>
    </message>
    <message>
        <source>The server has stopped by itself: %1</source>
        <translation>El servidor se ha detenido por sí solo: %1</translation>
    </message>
</context>
<context>
    <name>LocalUpdateService</name>
    <message>
        <source>no folder for the replies: %1</source>
        <translation>no hay carpeta para las respuestas: %1</translation>
    </message>
</context>
<context>
    <name>LocalWebServer</name>
    <message>
        <source>there is no file %1</source>
        <translation>no existe el archivo %1</translation>
    </message>
    <message>
        <source>%1 is no file with a certificate</source>
        <translation>%1 no es un archivo con un certificado</translation>
    </message>
</context>
<context>
    <name>LockPanel</name>
    <message>
        <source>Lock of the user interface</source>
        <translation>Bloqueo de la interfaz</translation>
    </message>
    <message>
        <source>The password is stored as</source>
        <translation>La contraseña se guarda como</translation>
    </message>
    <message>
        <source>MD5 &amp;digest</source>
        <translation>re&amp;sumen MD5</translation>
    </message>
    <message>
        <source>&amp;plain text</source>
        <translation>te&amp;xto sin cifrar</translation>
    </message>
    <message>
        <source>Stored at the moment</source>
        <translation>Guardado actualmente</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>&amp;Olvidar</translation>
    </message>
    <message>
        <source>Loc&amp;k...</source>
        <translation>&amp;Bloquear...</translation>
    </message>
    <message>
        <source>&amp;First Password...</source>
        <translation>Primera &amp;contraseña...</translation>
    </message>
    <message>
        <source>C&amp;hange Password...</source>
        <translation>Ca&amp;mbiar contraseña...</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>Locked with the stored password.</source>
        <translation>Bloqueada con la contraseña guardada.</translation>
    </message>
    <message>
        <source>Locked with a new password, which is now stored.</source>
        <translation>Bloqueada con una contraseña nueva, que ahora está guardada.</translation>
    </message>
    <message>
        <source>Cancelled: nothing is locked, and what is stored stays.</source>
        <translation>Cancelado: no se bloquea nada y lo guardado permanece.</translation>
    </message>
    <message>
        <source>Cancelled after the password was changed: nothing is locked, and the new password is not kept.</source>
        <translation>Cancelado después de cambiar la contraseña: no se bloquea nada y la contraseña nueva no se conserva.</translation>
    </message>
    <message>
        <source>The new password is stored.</source>
        <translation>La contraseña nueva está guardada.</translation>
    </message>
    <message>
        <source>Cancelled: what is stored stays.</source>
        <translation>Cancelado: lo guardado permanece.</translation>
    </message>
    <message>
        <source>The password is forgotten.</source>
        <translation>La contraseña se ha olvidado.</translation>
    </message>
    <message>
        <source>The stored password has been replaced by its digest.</source>
        <translation>La contraseña guardada se ha sustituido por su resumen.</translation>
    </message>
    <message>
        <source>A digest cannot be turned back into the password: it is forgotten.</source>
        <translation>Un resumen no se puede volver a convertir en la contraseña: se ha olvidado.</translation>
    </message>
    <message>
        <source>Unlocked with the right password.</source>
        <translation>Desbloqueada con la contraseña correcta.</translation>
    </message>
    <message>
        <source>The work area is open.</source>
        <translation>El área de trabajo está abierta.</translation>
    </message>
    <message>
        <source>No password has been set: the lock asks for a first one.</source>
        <translation>No hay ninguna contraseña definida: el bloqueo pide la primera.</translation>
    </message>
</context>
<context>
    <name>LockedArea</name>
    <message>
        <source>Work area</source>
        <translation>Área de trabajo</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>The log of this very program, live: Qt's own messages, lines that the program prints, and a job that writes entries with sub-entries from several threads.</source>
        <translation>El registro de este mismo programa, en directo: mensajes de Qt, líneas que el programa emite y un trabajo que escribe entradas con subentradas desde varios hilos.</translation>
    </message>
    <message>
        <source>Write a line</source>
        <translation>Escribir una línea</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>In&amp;formación</translation>
    </message>
    <message>
        <source>&amp;Warning</source>
        <translation>A&amp;dvertencia</translation>
    </message>
    <message>
        <source>&amp;Error</source>
        <translation>E&amp;rror</translation>
    </message>
    <message>
        <source>&amp;Qt Warning</source>
        <translation>Advertencia de &amp;Qt</translation>
    </message>
    <message>
        <source>Live &amp;view:</source>
        <translation>&amp;Vista en directo:</translation>
    </message>
    <message>
        <source>&amp;Open Log Window</source>
        <translation>A&amp;brir ventana del registro</translation>
    </message>
    <message>
        <source>Live view of the log</source>
        <translation>Vista en directo del registro</translation>
    </message>
    <message>
        <source>Some information, written by hand</source>
        <translation>Una información, escrita a mano</translation>
    </message>
    <message>
        <source>A warning, written by hand</source>
        <translation>Una advertencia, escrita a mano</translation>
    </message>
    <message>
        <source>An error, written by hand</source>
        <translation>Un error, escrito a mano</translation>
    </message>
</context>
<context>
    <name>LogoPanel</name>
    <message>
        <source>%1 × %2 pixels, %3</source>
        <translation>%1 × %2 píxeles, %3</translation>
    </message>
    <message>
        <source>Logo of the splash</source>
        <translation>Logotipo de la imagen de inicio</translation>
    </message>
    <message>
        <source>Installed logo</source>
        <translation>Logotipo instalado</translation>
    </message>
    <message>
        <source>Copy that is kept</source>
        <translation>Copia que se conserva</translation>
    </message>
    <message>
        <source>Shown at the start</source>
        <translation>Se muestra al inicio</translation>
    </message>
    <message>
        <source>&amp;Put In a Logo...</source>
        <translation>Poner un &amp;logotipo...</translation>
    </message>
    <message>
        <source>&amp;Remove Logo...</source>
        <translation>&amp;Quitar logotipo...</translation>
    </message>
    <message>
        <source>Remove &amp;Copy...</source>
        <translation>Quitar &amp;copia...</translation>
    </message>
    <message>
        <source>Show Splas&amp;h</source>
        <translation>&amp;Mostrar imagen de inicio</translation>
    </message>
    <message>
        <source>Put In a Logo</source>
        <translation>Poner un logotipo</translation>
    </message>
    <message>
        <source>Remove the installed logo "%1"?</source>
        <translation>¿Quitar el logotipo instalado «%1»?</translation>
    </message>
    <message>
        <source>Remove the copy "%1"?</source>
        <translation>¿Quitar la copia «%1»?</translation>
    </message>
    <message>
        <source>Click to close.</source>
        <translation>Haga clic para cerrar.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>There is none.</source>
        <translation>No hay ninguno.</translation>
    </message>
    <message>
        <source>There is none yet.</source>
        <translation>Aún no hay ninguna.</translation>
    </message>
    <message>
        <source>Nothing: there is no picture.</source>
        <translation>Nada: no hay ninguna imagen.</translation>
    </message>
    <message>
        <source>The installed logo.</source>
        <translation>El logotipo instalado.</translation>
    </message>
    <message>
        <source>The copy, since there is no installed logo.</source>
        <translation>La copia, ya que no hay ningún logotipo instalado.</translation>
    </message>
    <message>
        <source>The gallery's own picture.</source>
        <translation>La imagen propia de la galería.</translation>
    </message>
</context>
<context>
    <name>MailPage</name>
    <message>
        <source>The panel for the settings of outgoing mail. Switch on a real mail server on this computer, choose what is to go wrong, and send a test mail to it.</source>
        <translation>El panel para los ajustes del correo saliente. Active un servidor de correo real en este equipo, elija qué debe fallar y envíele un correo de prueba.</translation>
    </message>
    <message>
        <source>Mail panel</source>
        <translation>Panel de correo</translation>
    </message>
    <message>
        <source>Settings of the panel</source>
        <translation>Ajustes del panel</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>&amp;Mostrar ajustes</translation>
    </message>
    <message>
        <source>Dear Mia,

the proof of the poster is ready for you to look at.

Press room</source>
        <translation>Estimada Mia:

La prueba del cartel está lista para que la vea.

Sala de impresión</translation>
    </message>
    <message>
        <source>Proof is ready</source>
        <translation>La prueba está lista</translation>
    </message>
</context>
<context>
    <name>MailServerPanel</name>
    <message>
        <source>Local mail server</source>
        <translation>Servidor de correo local</translation>
    </message>
    <message>
        <source>Se&amp;curity:</source>
        <translation>Se&amp;guridad:</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Sin cifrar</translation>
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
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>Receiver refused</source>
        <translation>Destinatario rechazado</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Servidor mudo</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nadie responde</translation>
    </message>
    <message>
        <source>Login &amp;needed</source>
        <translation>Exigir inicio &amp;de sesión</translation>
    </message>
</context>
<context>
    <name>ManualPanel</name>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Open &amp;Manual</source>
        <translation>A&amp;brir manual</translation>
    </message>
    <message>
        <source>Open a Missin&amp;g One</source>
        <translation>Abrir uno inexi&amp;stente</translation>
    </message>
    <message>
        <source>The manual of this gallery, in the system's viewer of PDF files.</source>
        <translation>El manual de esta galería, en el visor de archivos PDF del sistema.</translation>
    </message>
</context>
<context>
    <name>MeasurementMakingPanel</name>
    <message>
        <source>Table of measurements</source>
        <translation>Tabla de mediciones</translation>
    </message>
    <message>
        <source>Fol&amp;der of the internal database:</source>
        <translation>Carpeta de la base de &amp;datos interna:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>Amo&amp;unt:</source>
        <translation>Can&amp;tidad:</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 filas</translation>
    </message>
    <message>
        <source>&amp;Make Table</source>
        <translation>Crear ta&amp;bla</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>On a server the table "%1" is dropped, made anew and left there.</source>
        <translation>En un servidor, la tabla «%1» se elimina, se crea de nuevo y se deja allí.</translation>
    </message>
    <message>
        <source>Folder of the Internal Database</source>
        <translation>Carpeta de la base de datos interna</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelando...</translation>
    </message>
    <message>
        <source>Under way...</source>
        <translation>En curso...</translation>
    </message>
    <message>
        <source>No table was made: %1</source>
        <translation>No se ha creado ninguna tabla: %1</translation>
    </message>
    <message>
        <source>Made in %1 s.</source>
        <translation>Creada en %1 s.</translation>
    </message>
    <message>
        <source>Cancelled: no table was made.</source>
        <translation>Cancelado: no se ha creado ninguna tabla.</translation>
    </message>
</context>
<context>
    <name>MeasurementModel</name>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Parche</translation>
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
        <translation>Medido (UTC)</translation>
    </message>
    <message>
        <source>There is no connection to the database.</source>
        <translation>No hay conexión con la base de datos.</translation>
    </message>
</context>
<context>
    <name>MeasurementTablePanel</name>
    <message>
        <source>Measurements</source>
        <translation>Mediciones</translation>
    </message>
    <message>
        <source>ΔE ab&amp;ove:</source>
        <translation>ΔE mayor &amp;que:</translation>
    </message>
    <message>
        <source>all</source>
        <translation>todas</translation>
    </message>
    <message>
        <source>Rows per &amp;page:</source>
        <translation>&amp;Filas por página:</translation>
    </message>
    <message>
        <source>&amp;Remove Rows</source>
        <translation>Q&amp;uitar filas</translation>
    </message>
    <message>
        <source>Stateme&amp;nt:</source>
        <translation>&amp;Sentencia:</translation>
    </message>
    <message>
        <source>A click on No. or ΔE sorts: these columns have an index.</source>
        <translation>Un clic en N.º o ΔE ordena: estas columnas tienen un índice.</translation>
    </message>
    <message>
        <source>The database refuses: %1</source>
        <translation>La base de datos rechaza: %1</translation>
    </message>
    <message>
        <source>Answered in %1 ms.</source>
        <translation>Respondido en %1 ms.</translation>
    </message>
    <message>
        <source>No table yet.</source>
        <translation>Aún no hay tabla.</translation>
    </message>
</context>
<context>
    <name>OemLogo</name>
    <message>
        <source>The logo "%1" cannot be written: %2.</source>
        <translation>No se puede escribir el logotipo «%1»: %2.</translation>
    </message>
    <message>
        <source>No copy is kept: the folder "%1" cannot be written.</source>
        <translation>No se conserva ninguna copia: no se puede escribir en la carpeta «%1».</translation>
    </message>
    <message>
        <source>No copy is kept: there is no folder "%1".</source>
        <translation>No se conserva ninguna copia: no existe la carpeta «%1».</translation>
    </message>
    <message>
        <source>The logo "%1" cannot be removed: %2.</source>
        <translation>No se puede quitar el logotipo «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>OverviewPanel</name>
    <message>
        <source>Overview</source>
        <translation>Vista general</translation>
    </message>
    <message>
        <source>First picture as a whole</source>
        <translation>Primera imagen completa</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Configuration pages that plug-ins bring, with the settings that they give back, and a dialog that stands in a page as well as in a window.</source>
        <translation>Páginas de configuración que aportan los complementos, con los ajustes que devuelven, y un diálogo que está tanto en una página como en una ventana.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldCell</name>
    <message>
        <source>Program reads</source>
        <translation>El programa lee</translation>
    </message>
    <message>
        <source>Field holds</source>
        <translation>El campo contiene</translation>
    </message>
    <message>
        <source>The password itself stands in the field.</source>
        <translation>En el campo está la propia contraseña.</translation>
    </message>
    <message>
        <source>A mask stands in the field, not the password.</source>
        <translation>En el campo hay una máscara, no la contraseña.</translation>
    </message>
</context>
<context>
    <name>PasswordFieldPanel</name>
    <message>
        <source>Password line edit</source>
        <translation>Campo de contraseña</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valor:</translation>
    </message>
    <message>
        <source>Set &amp;by the Program</source>
        <translation>Poner desde el pro&amp;grama</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitado</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deshabilitado</translation>
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
        <translation>TXPasswordLineEdit, habilitado</translation>
    </message>
    <message>
        <source>TXPasswordLineEdit, disabled</source>
        <translation>TXPasswordLineEdit, deshabilitado</translation>
    </message>
    <message>
        <source>QLineEdit, enabled</source>
        <translation>QLineEdit, habilitado</translation>
    </message>
    <message>
        <source>QLineEdit, disabled</source>
        <translation>QLineEdit, deshabilitado</translation>
    </message>
    <message>
        <source>What the program has set stays enciphered, and a mask of fixed length stands in its place, until the first key pressed in the field drops both. What the user types stands in the field, as in any other.</source>
        <translation>Lo que ha puesto el programa sigue cifrado y en su lugar hay una máscara de longitud fija, hasta que la primera tecla pulsada en el campo descarta ambos. Lo que el usuario teclea está en el campo, como en cualquier otro.</translation>
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
        <translation>%1, antes de noviembre de 2014</translation>
    </message>
    <message>
        <source>%1, since November 2014</source>
        <translation>%1, desde noviembre de 2014</translation>
    </message>
</context>
<context>
    <name>PatchFlowPanel</name>
    <message>
        <source>Flow of equal cells</source>
        <translation>Celdas iguales que fluyen</translation>
    </message>
    <message>
        <source>Swatches in rows</source>
        <translation>Muestras en filas</translation>
    </message>
    <message>
        <source>S&amp;watches:</source>
        <translation>Mues&amp;tras:</translation>
    </message>
    <message>
        <source>&amp;Position:</source>
        <translation>Po&amp;sición:</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>I&amp;nsertar</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vaciar</translation>
    </message>
    <message>
        <source>&amp;Frame:</source>
        <translation>Ma&amp;rco:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Caja</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>Of the style</source>
        <translation>Del estilo</translation>
    </message>
    <message>
        <source>&amp;Names</source>
        <translation>Nom&amp;bres</translation>
    </message>
    <message>
        <source>%1 × %2 pixels each</source>
        <translation>%1 × %2 píxeles cada una</translation>
    </message>
    <message>
        <source>No swatch</source>
        <translation>Ninguna muestra</translation>
    </message>
</context>
<context>
    <name>PatchListPanel</name>
    <message>
        <source>List with separators</source>
        <translation>Lista con separadores</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>Parches</translation>
    </message>
    <message>
        <source>Line &amp;Below</source>
        <translation>Línea &amp;debajo</translation>
    </message>
    <message>
        <source>Choose a row, and switch its line.</source>
        <translation>Elija una fila y ponga o quite su línea.</translation>
    </message>
    <message>
        <source>Row %1: line drawn</source>
        <translation>Fila %1: línea dibujada</translation>
    </message>
    <message>
        <source>Row %1: line removed</source>
        <translation>Fila %1: línea quitada</translation>
    </message>
</context>
<context>
    <name>PatchRunsPanel</name>
    <message>
        <source>Table with pictures and times</source>
        <translation>Tabla con imágenes y horas</translation>
    </message>
    <message>
        <source>Comparisons</source>
        <translation>Comparaciones</translation>
    </message>
    <message>
        <source>&amp;Compare Again</source>
        <translation>Compa&amp;rar de nuevo</translation>
    </message>
    <message>
        <source>Compares the chosen rows. Make the last column narrow: first the time goes, then the end of the date.</source>
        <translation>Compara las filas elegidas. Estreche la última columna: primero desaparece la hora y luego el final de la fecha.</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Parche</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Comparado</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bueno</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Regular</translation>
    </message>
    <message>
        <source>Poor</source>
        <translation>Malo</translation>
    </message>
</context>
<context>
    <name>PatchSplitPanel</name>
    <message>
        <source>Splitters</source>
        <translation>Divisores</translation>
    </message>
    <message>
        <source>Patches to look at</source>
        <translation>Parches para ver</translation>
    </message>
    <message>
        <source>Si&amp;de by side</source>
        <translation>&amp;Lado a lado</translation>
    </message>
    <message>
        <source>&amp;Grip width:</source>
        <translation>Anc&amp;ho del tirador:</translation>
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
En pantalla: %4</translation>
    </message>
</context>
<context>
    <name>PatchSwatchesPanel</name>
    <message>
        <source>Patches of the chart</source>
        <translation>Parches de la carta</translation>
    </message>
    <message>
        <source>On the left of each patch charts made before November 2014, on the right those made since. A patch whose difference reaches the limit is framed.</source>
        <translation>A la izquierda de cada parche, cartas fabricadas antes de noviembre de 2014; a la derecha, las posteriores. El parche cuya diferencia alcanza el límite lleva un marco.</translation>
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
        <translation>Cian</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Solid Colours</source>
        <translation>Colores sólidos</translation>
    </message>
    <message>
        <source>Patches</source>
        <translation>Parches</translation>
    </message>
    <message>
        <source>Patch</source>
        <translation>Parche</translation>
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
        <translation>Primarios</translation>
    </message>
    <message>
        <source>Overprints</source>
        <translation>Sobreimpresiones</translation>
    </message>
    <message>
        <source>Inks</source>
        <translation>Tintas</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densidad</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>Pictures (%1)</source>
        <translation>Imágenes (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>"%1" is no file.</source>
        <translation>«%1» no es un archivo.</translation>
    </message>
    <message>
        <source>"%1" cannot be read: %2.</source>
        <translation>No se puede leer «%1»: %2.</translation>
    </message>
    <message>
        <source>"%1" is too large: %2 × %3 pixels, which take more than %4 MB of memory.</source>
        <translation>«%1» es demasiado grande: %2 × %3 píxeles, que ocupan más de %4 MB de memoria.</translation>
    </message>
</context>
<context>
    <name>PicturesPanel</name>
    <message>
        <source>Open Pictures</source>
        <translation>Abrir imágenes</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>&amp;Open Pictures...</source>
        <translation>A&amp;brir imágenes...</translation>
    </message>
    <message>
        <source>Show &amp;Chart</source>
        <translation>Mostrar &amp;carta</translation>
    </message>
    <message>
        <source>Shown:</source>
        <translation>Se muestran:</translation>
    </message>
</context>
<context>
    <name>PixelReadout</name>
    <message>
        <source>Between the first two pictures, by CIEDE2000</source>
        <translation>Entre las dos primeras imágenes, según CIEDE2000</translation>
    </message>
    <message>
        <source>Move the mouse over a picture.</source>
        <translation>Mueva el ratón sobre una imagen.</translation>
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
        <translation>Cambiado; lo que está en negrita no está guardado.</translation>
    </message>
    <message>
        <source>These settings are saved.</source>
        <translation>Estos ajustes están guardados.</translation>
    </message>
    <message>
        <source>The page's defaults; nothing is saved yet.</source>
        <translation>Los valores predeterminados de la página; aún no hay nada guardado.</translation>
    </message>
    <message>
        <source>Configuration pages from plug-ins</source>
        <translation>Páginas de configuración de complementos</translation>
    </message>
    <message>
        <source>No plug-in was found. Plug-ins are looked for in the folder "%1"; put one there and start the gallery again.</source>
        <translation>No se ha encontrado ningún complemento. Los complementos se buscan en la carpeta «%1»; ponga uno allí y reinicie la galería.</translation>
    </message>
    <message>
        <source>&amp;Plug-ins found:</source>
        <translation>&amp;Complementos encontrados:</translation>
    </message>
    <message>
        <source>Plug-ins found</source>
        <translation>Complementos encontrados</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Clase</translation>
    </message>
    <message>
        <source>Settings, read bac&amp;k live:</source>
        <translation>A&amp;justes, releídos en directo:</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
</context>
<context>
    <name>PrintJobForm</name>
    <message>
        <source>Pape&amp;r:</source>
        <translation>P&amp;apel:</translation>
    </message>
    <message>
        <source>Coated, 115 g/m²</source>
        <translation>Estucado, 115 g/m²</translation>
    </message>
    <message>
        <source>Uncoated, 120 g/m²</source>
        <translation>No estucado, 120 g/m²</translation>
    </message>
    <message>
        <source>Newsprint, 45 g/m²</source>
        <translation>Papel prensa, 45 g/m²</translation>
    </message>
    <message>
        <source>Rendering &amp;intent:</source>
        <translation>Propósito de &amp;representación:</translation>
    </message>
    <message>
        <source>Relative colorimetric</source>
        <translation>Colorimétrico relativo</translation>
    </message>
    <message>
        <source>Absolute colorimetric</source>
        <translation>Colorimétrico absoluto</translation>
    </message>
    <message>
        <source>Perceptual</source>
        <translation>Perceptual</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Total i&amp;nk limit:</source>
        <translation>Límite total de &amp;tinta:</translation>
    </message>
    <message>
        <source>Delta &amp;E tolerance:</source>
        <translation>Tolerancia de &amp;Delta E:</translation>
    </message>
    <message>
        <source>Black point c&amp;ompensation</source>
        <translation>Compensación de punto &amp;negro</translation>
    </message>
</context>
<context>
    <name>ProgressBarSwitches</name>
    <message>
        <source>Show te&amp;xt</source>
        <translation>M&amp;ostrar texto</translation>
    </message>
    <message>
        <source>For&amp;mat:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>%p stands for the percentage, %v for the value, %m for the number of steps.</source>
        <translation>%p representa el porcentaje, %v el valor y %m el número de pasos.</translation>
    </message>
    <message>
        <source>In&amp;verted</source>
        <translation>Inver&amp;tida</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>Vertica&amp;l</translation>
    </message>
</context>
<context>
    <name>ReceivedMailsPanel</name>
    <message>
        <source>Received mails</source>
        <translation>Correos recibidos</translation>
    </message>
    <message>
        <source>&amp;Mails:</source>
        <translation>Correo&amp;s:</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Para</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Asunto</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>As it cam&amp;e:</source>
        <translation>&amp;Tal como llegó:</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>Va&amp;ciar</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
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
        <translation>Informe</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Fórmula:</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Tolerancia:</translation>
    </message>
    <message>
        <source>Pa&amp;irs:</source>
        <translation>Pa&amp;res:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>P&amp;apel:</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>&amp;Orientación:</translation>
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
        <translation>Por número</translation>
    </message>
    <message>
        <source>Largest first</source>
        <translation>Mayores primero</translation>
    </message>
    <message>
        <source>Smallest first</source>
        <translation>Menores primero</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Fórmula</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Tolerancia</translation>
    </message>
    <message>
        <source>Order of the pairs</source>
        <translation>Orden de los pares</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
</context>
<context>
    <name>ReportOutputPanel</name>
    <message>
        <source>Export PDF</source>
        <translation>Exportar PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documentos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>&amp;Export PDF...</source>
        <translation>E&amp;xportar PDF...</translation>
    </message>
    <message>
        <source>Pri&amp;nt...</source>
        <translation>I&amp;mprimir...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Open PDF</source>
        <translation>A&amp;brir PDF</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) in "%1"</source>
        <translation>
            <numerusform>%n página en «%1»</numerusform>
            <numerusform>%n páginas en «%1»</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancelled, nothing was written.</source>
        <translation>Cancelado, no se ha escrito nada.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>No se ha escrito nada.</translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation>Impreso.</translation>
    </message>
    <message>
        <source>Cancelled, some pages may be printed.</source>
        <translation>Cancelado, puede que se hayan impreso algunas páginas.</translation>
    </message>
    <message>
        <source>Printing has failed.</source>
        <translation>La impresión ha fallado.</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>A colour comparison as pages of paper: drawn on the report canvas, with tables cut into pages, and taken to a PDF file or a printer.</source>
        <translation>Una comparación de color como páginas de papel: dibujada en el lienzo del informe, con tablas repartidas en páginas, y llevada a un archivo PDF o a una impresora.</translation>
    </message>
    <message>
        <source>Pages of the report</source>
        <translation>Páginas del informe</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPage</name>
    <message>
        <source>&amp;Company:</source>
        <translation>E&amp;mpresa:</translation>
    </message>
    <message>
        <source>Stands at the head of the report</source>
        <translation>Figura en el encabezado del informe</translation>
    </message>
    <message>
        <source>Op&amp;erator:</source>
        <translation>&amp;Operador:</translation>
    </message>
    <message>
        <source>Who has measured</source>
        <translation>Quién ha medido</translation>
    </message>
    <message>
        <source>Paper si&amp;ze:</source>
        <translation>&amp;Tamaño del papel:</translation>
    </message>
    <message>
        <source>&amp;Date on each page</source>
        <translation>&amp;Fecha en cada página</translation>
    </message>
</context>
<context>
    <name>ReportPreferencesPlugin</name>
    <message>
        <source>Measuring Report</source>
        <translation>Informe de medición</translation>
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
        <translation>de %1</translation>
    </message>
    <message>
        <source>Pa&amp;ge:</source>
        <translation>Pá&amp;gina:</translation>
    </message>
    <message>
        <source>&amp;Zoom:</source>
        <translation>&amp;Zoom:</translation>
    </message>
    <message>
        <source>Fit width</source>
        <translation>Ajustar al ancho</translation>
    </message>
    <message>
        <source>Fit page</source>
        <translation>Ajustar a la página</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Página anterior</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Más pequeño</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Más grande</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
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
        <translation>Servidor Samba local</translation>
    </message>
    <message>
        <source>&amp;Trouble:</source>
        <translation>Pro&amp;blema:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>Unknown share</source>
        <translation>Recurso desconocido</translation>
    </message>
    <message>
        <source>Silent server</source>
        <translation>Servidor mudo</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nadie responde</translation>
    </message>
    <message>
        <source>The server has another port now: drives added before do not lead to it.</source>
        <translation>El servidor tiene ahora otro puerto: las unidades añadidas antes no llevan a él.</translation>
    </message>
</context>
<context>
    <name>ScanPanel</name>
    <message>
        <source>Scan a folder</source>
        <translation>Explorar una carpeta</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Carpeta:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>E&amp;xaminar...</translation>
    </message>
    <message>
        <source>S&amp;tart Scan</source>
        <translation>Inici&amp;ar exploración</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ca&amp;ncelar</translation>
    </message>
    <message>
        <source>Scan a Folder</source>
        <translation>Explorar una carpeta</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Advertencias</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Entries a second</source>
        <translation>Entradas por segundo</translation>
    </message>
</context>
<context>
    <name>SchedulePage</name>
    <message>
        <source>The panels that set when an event comes back, and in which encoding text files are read. Save, and the gallery works out the next events, and reads a file anew.</source>
        <translation>Los paneles que fijan cuándo vuelve un evento y con qué codificación se leen los archivos de texto. Guarde, y la galería calculará los próximos eventos y leerá de nuevo un archivo.</translation>
    </message>
</context>
<context>
    <name>SelectionBarEmissions</name>
    <message>
        <source>Signals</source>
        <translation>Señales</translation>
    </message>
    <message>
        <source>Si&amp;gnals of the bar: %1</source>
        <translation>&amp;Señales de la barra: %1</translation>
    </message>
    <message>
        <source>Signals of the bar</source>
        <translation>Señales de la barra</translation>
    </message>
</context>
<context>
    <name>SelectionBarOptions</name>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Import:</source>
        <translation>Importar:</translation>
    </message>
    <message>
        <source>in the bo&amp;x</source>
        <translation>e&amp;n la lista</translation>
    </message>
    <message>
        <source>in a &amp;menu</source>
        <translation>en un &amp;menú</translation>
    </message>
    <message>
        <source>Names can be &amp;typed over</source>
        <translation>Los nombres se pueden s&amp;obrescribir</translation>
    </message>
    <message>
        <source>Sho&amp;w the label:</source>
        <translation>Mos&amp;trar la etiqueta:</translation>
    </message>
    <message>
        <source>Text of the label</source>
        <translation>Texto de la etiqueta</translation>
    </message>
</context>
<context>
    <name>SelectionPage</name>
    <message>
        <source>The bar with which a user keeps a collection of presets, each a file of its own: pick, create, duplicate, rename, import, export, delete.</source>
        <translation>La barra con la que un usuario cuida una colección de preajustes, cada uno en su propio archivo: elegir, crear, duplicar, cambiar de nombre, importar, exportar, eliminar.</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>The answer of the service is not shown.</source>
        <translation>La respuesta del servicio no se muestra.</translation>
    </message>
    <message>
        <source>The answer of the service is too large.</source>
        <translation>La respuesta del servicio es demasiado grande.</translation>
    </message>
    <message>
        <source>Nobody listens at %1.</source>
        <translation>Nadie responde en %1.</translation>
    </message>
    <message>
        <source>The service has closed the connection before it had answered.</source>
        <translation>El servicio ha cerrado la conexión antes de responder.</translation>
    </message>
    <message>
        <source>The service has said nothing for %1 seconds.</source>
        <translation>El servicio no ha dicho nada durante %1 segundos.</translation>
    </message>
    <message>
        <source>The service has answered with HTTP status %1.</source>
        <translation>El servicio ha respondido con el estado HTTP %1.</translation>
    </message>
    <message>
        <source>The service cannot be asked: %1.</source>
        <translation>No se puede preguntar al servicio: %1.</translation>
    </message>
</context>
<context>
    <name>SessionPanel</name>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Clea&amp;r</source>
        <translation>Va&amp;ciar</translation>
    </message>
</context>
<context>
    <name>ShareSearchPanel</name>
    <message>
        <source>Share browser</source>
        <translation>Explorador de recursos compartidos</translation>
    </message>
    <message>
        <source>&amp;Browse This Server...</source>
        <translation>E&amp;xaminar este servidor...</translation>
    </message>
    <message>
        <source>Browse the &amp;Network...</source>
        <translation>Examinar &amp;la red...</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Elegido: %1</translation>
    </message>
    <message>
        <source>Nothing was chosen.</source>
        <translation>No se ha elegido nada.</translation>
    </message>
    <message>
        <source>Nothing was found. %1</source>
        <translation>No se ha encontrado nada. %1</translation>
    </message>
    <message>
        <source>The log of the drives says why.</source>
        <translation>El registro de las unidades dice por qué.</translation>
    </message>
    <message>
        <source>Choose a share of the server for the drives that are added.</source>
        <translation>Elija un recurso compartido del servidor para las unidades que se añaden.</translation>
    </message>
</context>
<context>
    <name>SortedPresetBar</name>
    <message>
        <source>Small variant, sorted</source>
        <translation>Variante pequeña, ordenada</translation>
    </message>
    <message>
        <source>By name:</source>
        <translation>Por nombre:</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Importar...</translation>
    </message>
    <message>
        <source>The same presets through a sorting proxy. The menu of the button takes the place of the others.</source>
        <translation>Los mismos preajustes a través de un proxy de ordenación. El menú del botón sustituye a los demás.</translation>
    </message>
</context>
<context>
    <name>SpectrumPanel</name>
    <message>
        <source>Spectrum</source>
        <translation>Espectro</translation>
    </message>
    <message>
        <source>F&amp;rom:</source>
        <translation>&amp;Desde:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Hasta:</translation>
    </message>
    <message>
        <source>First wavelength</source>
        <translation>Primera longitud de onda</translation>
    </message>
    <message>
        <source>Last wavelength</source>
        <translation>Última longitud de onda</translation>
    </message>
    <message>
        <source> nm</source>
        <translation> nm</translation>
    </message>
    <message>
        <source>How strongly the eye sees light of each wavelength: the function y of the CIE 1931 standard observer. The spectrum lies behind it.</source>
        <translation>Con qué intensidad ve el ojo la luz de cada longitud de onda: la función y del observador patrón CIE 1931. El espectro está detrás.</translation>
    </message>
    <message>
        <source>Luminous efficiency from %1 to %2 nm</source>
        <translation>Eficiencia luminosa de %1 a %2 nm</translation>
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
        <translation>Muestra</translation>
    </message>
    <message>
        <source>&amp;Job:</source>
        <translation>&amp;Trabajo:</translation>
    </message>
    <message>
        <source>&amp;Paper:</source>
        <translation>P&amp;apel:</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Estucado</translation>
    </message>
    <message>
        <source>Newsprint</source>
        <translation>Papel prensa</translation>
    </message>
    <message>
        <source>&amp;Copies of %1:</source>
        <translation>&amp;Copias de %1:</translation>
    </message>
    <message>
        <source>Tri&amp;m marks</source>
        <translation>Marcas &amp;de corte</translation>
    </message>
    <message>
        <source>drawn by the shipped sheet</source>
        <translation>dibujado por la hoja incluida</translation>
    </message>
    <message>
        <source>Copies made</source>
        <translation>Copias hechas</translation>
    </message>
    <message>
        <source>Print Pr&amp;oof</source>
        <translation>I&amp;mprimir prueba</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>a disabled button</comment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>StyleSheetPanel</name>
    <message>
        <source>Style sheet</source>
        <translation>Hoja de estilo</translation>
    </message>
    <message>
        <source>S&amp;heet:</source>
        <translation>&amp;Hoja:</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Hoja</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>&amp;Read Again</source>
        <translation>&amp;Leer de nuevo</translation>
    </message>
    <message>
        <source>Te&amp;xt as applied:</source>
        <translation>Te&amp;xto aplicado:</translation>
    </message>
    <message>
        <source>Text as applied</source>
        <translation>Texto aplicado</translation>
    </message>
    <message>
        <source>No style sheet: the widgets look as their style draws them.</source>
        <translation>Sin hoja de estilo: los widgets se ven como los dibuja su estilo.</translation>
    </message>
</context>
<context>
    <name>SwitchPanel</name>
    <message>
        <source>Switch</source>
        <translation>Interruptor</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitado</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deshabilitado</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>Switch of %1 pixels</source>
        <translation>Interruptor de %1 píxeles</translation>
    </message>
    <message>
        <source>Switch of %1 pixels, disabled</source>
        <translation>Interruptor de %1 píxeles, deshabilitado</translation>
    </message>
    <message>
        <source>&amp;Turn All On</source>
        <translation>Activar &amp;todos</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>inactivo</translation>
    </message>
    <message>
        <source>clicked: 0</source>
        <translation>clics: 0</translation>
    </message>
    <message>
        <source>clicked: %1, last by %2 pixels: %3</source>
        <translation>clics: %1, el último en el de %2 píxeles: %3</translation>
    </message>
</context>
<context>
    <name>TriggerPanel</name>
    <message>
        <source>The event never comes.</source>
        <translation>El evento no llega nunca.</translation>
    </message>
    <message>
        <source>By the settings that are kept, the event comes next on:</source>
        <translation>Según los ajustes guardados, el próximo evento es el:</translation>
    </message>
    <message>
        <source>Trigger event</source>
        <translation>Evento disparador</translation>
    </message>
    <message>
        <source>Offer &amp;hours</source>
        <translation>Ofrecer &amp;horas</translation>
    </message>
    <message>
        <source>Sa&amp;ve</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>L&amp;oad</source>
        <translation>&amp;Cargar</translation>
    </message>
    <message>
        <source>Calibration of the instrument</source>
        <translation>Calibración del instrumento</translation>
    </message>
</context>
<context>
    <name>UnlockScreen</name>
    <message>
        <source>The work area is locked</source>
        <translation>El área de trabajo está bloqueada</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>&amp;Contraseña:</translation>
    </message>
    <message>
        <source>&amp;Unlock</source>
        <translation>&amp;Desbloquear</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>Esta no es la contraseña.</translation>
    </message>
</context>
<context>
    <name>UpdateDialogPanel</name>
    <message>
        <source>Update dialog</source>
        <translation>Diálogo de actualización</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>&amp;Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Show in F&amp;older</source>
        <translation>&amp;Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>"Download and Install" writes the file to "%1", which a check makes where it is missing, "Download" to the folder that you choose. The file is a harmless text. "Install" opens it with the desktop's program for texts, and closes all windows of the gallery. Where there is no such program, nothing happens: "Show in Folder" shows the file.</source>
        <translation>«Descargar e instalar» escribe el archivo en «%1», que una búsqueda crea si falta; «Descargar», en la carpeta que usted elija. El archivo es un texto inofensivo. «Instalar» lo abre con el programa de textos del escritorio y cierra todas las ventanas de la galería. Si no hay tal programa, no ocurre nada: «Mostrar en la carpeta» muestra el archivo.</translation>
    </message>
    <message>
        <source>There is no folder "%1".</source>
        <translation>No existe la carpeta «%1».</translation>
    </message>
    <message>
        <source>No program shows the folder "%1".</source>
        <translation>Ningún programa muestra la carpeta «%1».</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
</context>
<context>
    <name>UpdateOffer</name>
    <message>
        <source>&lt;p&gt;&lt;b&gt;New in this release&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Databases: a million rows, page by page&lt;/li&gt;&lt;li&gt;Updates: what you are looking at&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;More at &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Novedades de esta versión&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;&lt;li&gt;Bases de datos: un millón de filas, página a página&lt;/li&gt;&lt;li&gt;Actualizaciones: lo que está viendo&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Más en &lt;a href="https://www.tovra.example"&gt;www.tovra.example&lt;/a&gt;.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>And one more thing. </source>
        <translation>Y una cosa más. </translation>
    </message>
</context>
<context>
    <name>UpdatePage</name>
    <message>
        <source>The dialog in which a user looks for a newer release, downloads and installs it. Switch on a real update service on this computer, choose what it offers, and check for updates.</source>
        <translation>El diálogo en el que un usuario busca una versión más reciente, la descarga y la instala. Active un servicio de actualizaciones real en este equipo, elija qué ofrece y busque actualizaciones.</translation>
    </message>
</context>
<context>
    <name>UpdateServicePanel</name>
    <message>
        <source>Local update service</source>
        <translation>Servicio de actualizaciones local</translation>
    </message>
    <message>
        <source>Off&amp;er:</source>
        <translation>&amp;Oferta:</translation>
    </message>
    <message>
        <source>Newer release</source>
        <translation>Versión más reciente</translation>
    </message>
    <message>
        <source>Newer release, beta</source>
        <translation>Versión más reciente, beta</translation>
    </message>
    <message>
        <source>Slow download</source>
        <translation>Descarga lenta</translation>
    </message>
    <message>
        <source>Download that breaks off</source>
        <translation>Descarga que se interrumpe</translation>
    </message>
    <message>
        <source>Release without a file</source>
        <translation>Versión sin archivo</translation>
    </message>
    <message>
        <source>Long release notes</source>
        <translation>Notas de la versión largas</translation>
    </message>
    <message>
        <source>Release of this build</source>
        <translation>Esta misma versión</translation>
    </message>
    <message>
        <source>Older release</source>
        <translation>Versión más antigua</translation>
    </message>
    <message>
        <source>Empty answer</source>
        <translation>Respuesta vacía</translation>
    </message>
    <message>
        <source>Answer that is no JSON</source>
        <translation>Respuesta que no es JSON</translation>
    </message>
    <message>
        <source>Status 404</source>
        <translation>Estado 404</translation>
    </message>
    <message>
        <source>Nobody listens</source>
        <translation>Nadie responde</translation>
    </message>
</context>
<context>
    <name>UpdateSessionPanel</name>
    <message>
        <source>What the service &amp;got:</source>
        <translation>Lo que &amp;recibió el servicio:</translation>
    </message>
    <message>
        <source>Signals of t&amp;he dialog:</source>
        <translation>&amp;Señales del diálogo:</translation>
    </message>
</context>
<context>
    <name>UpdateSettingsPanel</name>
    <message>
        <source>Settings of updates</source>
        <translation>Ajustes de actualización</translation>
    </message>
    <message>
        <source>Loa&amp;d Settings</source>
        <translation>Cargar &amp;ajustes</translation>
    </message>
    <message>
        <source>Save Se&amp;ttings</source>
        <translation>&amp;Guardar ajustes</translation>
    </message>
    <message>
        <source>Stored settings:</source>
        <translation>Ajustes guardados:</translation>
    </message>
    <message>
        <source>Stored settings</source>
        <translation>Ajustes guardados</translation>
    </message>
    <message>
        <source>The dialog above checks by itself every %1 days.</source>
        <translation>El diálogo de arriba busca por sí solo cada %1 días.</translation>
    </message>
    <message>
        <source>The dialog above does not check by itself.</source>
        <translation>El diálogo de arriba no busca por sí solo.</translation>
    </message>
</context>
<context>
    <name>ValuePanel</name>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>&amp;Hover effects</source>
        <translation>Efectos al pasar el &amp;ratón</translation>
    </message>
    <message>
        <source>Lights the innermost value under the mouse.</source>
        <translation>Resalta el valor más interior bajo el ratón.</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>Vi&amp;sta previa</translation>
    </message>
    <message>
        <source>Shows what lists and dictionaries hold in their line.</source>
        <translation>Muestra en su línea lo que contienen las listas y los diccionarios.</translation>
    </message>
    <message>
        <source>Open &amp;Two Levels</source>
        <translation>Expandir &amp;dos niveles</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Contraer</translation>
    </message>
    <message>
        <source>Values: %1. Characters of the line: %2. %3</source>
        <translation>Valores: %1. Caracteres de la línea: %2. %3</translation>
    </message>
    <message>
        <source>Shown in %1 ms.</source>
        <translation>Mostrado en %1 ms.</translation>
    </message>
    <message>
        <source>Opened in %1 ms.</source>
        <translation>Expandido en %1 ms.</translation>
    </message>
    <message>
        <source>Closed in %1 ms.</source>
        <translation>Contraído en %1 ms.</translation>
    </message>
</context>
<context>
    <name>ValueSliderPanel</name>
    <message>
        <source>Spin box with slider</source>
        <translation>Campo numérico con control deslizante</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Exposición</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source>darker</source>
        <translation>más oscuro</translation>
    </message>
    <message>
        <source>lighter</source>
        <translation>más claro</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Delta E tolerance</source>
        <translation>Tolerancia de Delta E</translation>
    </message>
    <message>
        <source>seen by anyone</source>
        <translation>visible para cualquiera</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Suavizado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>Total ink coverage</source>
        <translation>Cobertura total de tinta</translation>
    </message>
    <message>
        <source>bare paper</source>
        <translation>papel sin tinta</translation>
    </message>
    <message>
        <source>four full inks</source>
        <translation>cuatro tintas plenas</translation>
    </message>
    <message>
        <source>Total ink coverage, disabled</source>
        <translation>Cobertura de tinta, deshabilitada</translation>
    </message>
    <message>
        <source>&amp;valueChanged: %1</source>
        <translation>value&amp;Changed: %1</translation>
    </message>
    <message>
        <source>Emissions of valueChanged</source>
        <translation>Emisiones de valueChanged</translation>
    </message>
    <message>
        <source>A value typed into the box goes to the slider and comes back, so one edit tells of itself more than once. The wheel changes nothing: it scrolls the page.</source>
        <translation>Un valor tecleado en el campo va al control deslizante y vuelve, de modo que un solo cambio se anuncia más de una vez. La rueda no cambia nada: desplaza la página.</translation>
    </message>
</context>
<context>
    <name>ValueSourcePanel</name>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>&amp;Gallery Settings</source>
        <translation>Ajustes de la &amp;galería</translation>
    </message>
    <message>
        <source>JSO&amp;N File...</source>
        <translation>Archivo JSO&amp;N...</translation>
    </message>
    <message>
        <source>As&amp;k the Service</source>
        <translation>Preguntar &amp;al servicio</translation>
    </message>
</context>
<context>
    <name>VariantPage</name>
    <message>
        <source>A value of any depth as one line of coloured text, which folds open level by level: the settings of this gallery, a JSON file, or the live answer of an update service.</source>
        <translation>Un valor de cualquier profundidad como una línea de texto en color que se despliega nivel a nivel: los ajustes de esta galería, un archivo JSON o la respuesta en directo de un servicio de actualizaciones.</translation>
    </message>
    <message>
        <source>Settings of this gallery</source>
        <translation>Ajustes de esta galería</translation>
    </message>
    <message>
        <source>Nothing is stored yet: the gallery keeps its settings when it ends.</source>
        <translation>Aún no hay nada guardado: la galería guarda sus ajustes al terminar.</translation>
    </message>
    <message>
        <source>JSON File</source>
        <translation>Archivo JSON</translation>
    </message>
    <message>
        <source>JSON files (*.json);;All files (*)</source>
        <translation>Archivos JSON (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>File "%1"</source>
        <translation>Archivo «%1»</translation>
    </message>
    <message>
        <source>The file "%1" is not shown.</source>
        <translation>El archivo «%1» no se muestra.</translation>
    </message>
    <message>
        <source>The update service is off. Its switch turns it on.</source>
        <translation>El servicio de actualizaciones está inactivo. Su interruptor lo activa.</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>Esperando la respuesta...</translation>
    </message>
    <message>
        <source>Answer of the update service</source>
        <translation>Respuesta del servicio de actualizaciones</translation>
    </message>
</context>
<context>
    <name>WebCertificate</name>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>no se puede crear la carpeta %1</translation>
    </message>
</context>
<context>
    <name>WebInterfacePage</name>
    <message>
        <source>The panel for the web interface of a program, beside a real web server that serves a page of the gallery. Only this computer reaches it, at the link with 127.0.0.1; the other links work once other computers may connect.</source>
        <translation>El panel para la interfaz web de un programa, junto a un servidor web real que sirve una página de la galería. Solo este equipo accede a él, por el enlace con 127.0.0.1; los demás enlaces funcionan cuando se permite la conexión de otros equipos.</translation>
    </message>
    <message>
        <source>Web interface panel</source>
        <translation>Panel de la interfaz web</translation>
    </message>
</context>
<context>
    <name>WebServerPanel</name>
    <message>
        <source>Web server</source>
        <translation>Servidor web</translation>
    </message>
    <message>
        <source>Other com&amp;puters may connect</source>
        <translation>Permitir &amp;otros equipos</translation>
    </message>
    <message>
        <source>Without it the server listens on 127.0.0.1 only, and no other link of the panel leads to it.</source>
        <translation>Sin esto, el servidor escucha solo en 127.0.0.1 y ningún otro enlace del panel lleva a él.</translation>
    </message>
    <message>
        <source>Visi&amp;t the Page</source>
        <translation>Visitar &amp;la página</translation>
    </message>
    <message>
        <source>the box "Enabled" of the panel is not checked</source>
        <translation>la casilla «Habilitada» del panel no está marcada</translation>
    </message>
    <message>
        <source>HTTPS needs a certificate file</source>
        <translation>HTTPS necesita un archivo de certificado</translation>
    </message>
</context>
<context>
    <name>WebSessionPanel</name>
    <message>
        <source>What the server &amp;got:</source>
        <translation>Lo &amp;que recibió el servidor:</translation>
    </message>
    <message>
        <source>&amp;Own visits:</source>
        <translation>Vi&amp;sitas propias:</translation>
    </message>
</context>
<context>
    <name>WebSettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Offer &amp;HTTPS</source>
        <translation>Ofrecer &amp;HTTPS</translation>
    </message>
    <message>
        <source>Make &amp;Certificate</source>
        <translation>Crear cer&amp;tificado</translation>
    </message>
    <message>
        <source>Fill In E&amp;xample</source>
        <translation>Relle&amp;nar ejemplo</translation>
    </message>
    <message>
        <source>Sho&amp;w Settings</source>
        <translation>&amp;Mostrar ajustes</translation>
    </message>
    <message>
        <source>Sav&amp;e</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Loa&amp;d</source>
        <translation>Ca&amp;rgar</translation>
    </message>
    <message>
        <source>Settings of the web interface</source>
        <translation>Ajustes de la interfaz web</translation>
    </message>
    <message>
        <source>Saved in the settings of the gallery.</source>
        <translation>Guardado en los ajustes de la galería.</translation>
    </message>
    <message>
        <source>Loaded from the settings of the gallery.</source>
        <translation>Cargado de los ajustes de la galería.</translation>
    </message>
    <message>
        <source>Nothing has been saved yet.</source>
        <translation>Aún no se ha guardado nada.</translation>
    </message>
    <message>
        <source>The example is for the user "%1" with the password "%2".</source>
        <translation>El ejemplo es para el usuario «%1» con la contraseña «%2».</translation>
    </message>
    <message>
        <source>A certificate for localhost and 127.0.0.1 is in %1. A browser warns of it.</source>
        <translation>En %1 hay un certificado para localhost y 127.0.0.1. El navegador advierte sobre él.</translation>
    </message>
    <message>
        <source>No certificate was made: %1</source>
        <translation>No se ha creado ningún certificado: %1</translation>
    </message>
</context>
<context>
    <name>WebStatusPage</name>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
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
        <translation>Proceso</translation>
    </message>
    <message>
        <source>This page was made</source>
        <translation>Página creada</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocolo</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>everybody</source>
        <translation>todos</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Mean %1, largest %2.</source>
        <translation>Media %1, máxima %2.</translation>
    </message>
    <message>
        <source>TXGUICommon Gallery</source>
        <translation>Galería de TXGUICommon</translation>
    </message>
    <message>
        <source>How it is served</source>
        <translation>Cómo se sirve</translation>
    </message>
    <message>
        <source>Pages of the gallery</source>
        <translation>Páginas de la galería</translation>
    </message>
    <message>
        <source>Patches of the chart, older and newer, with ΔE 2000</source>
        <translation>Parches de la carta, antiguos y nuevos, con ΔE 2000</translation>
    </message>
</context>
<context>
    <name>WebVisit</name>
    <message>
        <source>%1: status %2, %3 bytes</source>
        <translation>%1: estado %2, %3 bytes</translation>
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
        <translation>Estado de los widgets</translation>
    </message>
    <message>
        <source>One call keeps the place and size of a window, its splitters and the columns of its views, in one nested dictionary for the program's settings. Another gives them back.</source>
        <translation>Una llamada conserva la posición y el tamaño de una ventana, sus divisores y las columnas de sus vistas, en un único diccionario anidado para los ajustes del programa. Otra los restablece.</translation>
    </message>
    <message>
        <source>&amp;Open Window</source>
        <translation>&amp;Abrir ventana</translation>
    </message>
    <message>
        <source>&amp;Keep State</source>
        <translation>Guardar e&amp;stado</translation>
    </message>
    <message>
        <source>&amp;Disarrange</source>
        <translation>&amp;Desordenar</translation>
    </message>
    <message>
        <source>&amp;Restore State</source>
        <translation>&amp;Restaurar estado</translation>
    </message>
    <message>
        <source>K&amp;ept state:</source>
        <translation>Estado &amp;guardado:</translation>
    </message>
    <message>
        <source>Kept state</source>
        <translation>Estado guardado</translation>
    </message>
</context>
<context>
    <name>WidgetStateTree</name>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
</context>
<context>
    <name>WorkersPanel</name>
    <message>
        <source>Several workers, one delegate</source>
        <translation>Varios hilos de trabajo, un delegado</translation>
    </message>
    <message>
        <source>Files &amp;in:</source>
        <translation>Archi&amp;vos en:</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Exa&amp;minar...</translation>
    </message>
    <message>
        <source>&amp;Read Files</source>
        <translation>Leer archivo&amp;s</translation>
    </message>
    <message>
        <source>Canc&amp;el</source>
        <translation>Cancela&amp;r</translation>
    </message>
    <message>
        <source>Read the Files of a Folder</source>
        <translation>Leer los archivos de una carpeta</translation>
    </message>
    <message>
        <source>T&amp;hreads:</source>
        <translation>&amp;Hilos:</translation>
    </message>
    <message>
        <source>Progress of the workers</source>
        <translation>Progreso de los hilos de trabajo</translation>
    </message>
    <message>
        <source>Reports of the workers</source>
        <translation>Avisos de los hilos</translation>
    </message>
    <message>
        <source>Paintings of the bar</source>
        <translation>Repintados de la barra</translation>
    </message>
    <message>
        <source>Files read</source>
        <translation>Archivos leídos</translation>
    </message>
    <message>
        <source>Read in a second</source>
        <translation>Leídos por segundo</translation>
    </message>
    <message>
        <source>%1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>%1 en %2 s; copias de otros archivos: %3, no legibles: %4.</translation>
    </message>
    <message>
        <source>Cancelled after %1 in %2 s; copies of other files: %3, not readable: %4.</source>
        <translation>Cancelado tras %1 en %2 s; copias de otros archivos: %3, no legibles: %4.</translation>
    </message>
</context>
</TS>
