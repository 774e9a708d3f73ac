<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BlockChooser</name>
    <message>
        <source>Open Block</source>
        <translation>Block öffnen</translation>
    </message>
    <message>
        <source>Filter blocks</source>
        <translation>Blöcke filtern</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>Blöcke</translation>
    </message>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Type a command, such as QSELECT or HELP</source>
        <translation>Einen Befehl eingeben, etwa QSELECT oder HELP</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Befehl:</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Open &amp;Block...</source>
        <translation>&amp;Block öffnen...</translation>
    </message>
    <message>
        <source>&amp;Close Block</source>
        <translation>Block s&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Handles...</source>
        <translation>&amp;Handles...</translation>
    </message>
    <message>
        <source>&amp;CSV...</source>
        <translation>&amp;CSV...</translation>
    </message>
    <message>
        <source>&amp;JSON...</source>
        <translation>&amp;JSON...</translation>
    </message>
    <message>
        <source>&amp;Drawing...</source>
        <translation>&amp;Zeichnung...</translation>
    </message>
    <message>
        <source>&amp;Faults in the File</source>
        <translation>Fehler in der &amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>&amp;Undo Selection</source>
        <translation>Auswahl &amp;rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo Selection</source>
        <translation>Auswahl &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Invert Selection</source>
        <translation>Auswahl &amp;umkehren</translation>
    </message>
    <message>
        <source>&amp;Deselect</source>
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>&amp;Handles</source>
        <translation>&amp;Handles</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>&amp;JSON</source>
        <translation>&amp;JSON</translation>
    </message>
    <message>
        <source>As &amp;Command</source>
        <translation>Als &amp;Befehl</translation>
    </message>
    <message>
        <source>&amp;Quick Select...</source>
        <translation>&amp;Schnellauswahl...</translation>
    </message>
    <message>
        <source>Select &amp;Similar</source>
        <translation>Ähn&amp;liche auswählen</translation>
    </message>
    <message>
        <source>Zoom to &amp;Extents</source>
        <translation>Auf &amp;Grenzen zoomen</translation>
    </message>
    <message>
        <source>Zoom to &amp;Window</source>
        <translation>Auf &amp;Fenster zoomen</translation>
    </message>
    <message>
        <source>Zoom to &amp;Selection</source>
        <translation>Auf &amp;Auswahl zoomen</translation>
    </message>
    <message>
        <source>Zoom &amp;Back</source>
        <translation>&amp;Zurück zoomen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Next Selected</source>
        <translation>&amp;Nächstes ausgewähltes Objekt</translation>
    </message>
    <message>
        <source>&amp;Previous Selected</source>
        <translation>V&amp;orheriges ausgewähltes Objekt</translation>
    </message>
    <message>
        <source>Find a &amp;Layer</source>
        <translation>&amp;Layer suchen</translation>
    </message>
    <message>
        <source>List the &amp;Values of Texts</source>
        <translation>We&amp;rte von Texten auflisten</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Quick Select</source>
        <translation>&amp;Schnellauswahl</translation>
    </message>
    <message>
        <source>&amp;Keys and Commands</source>
        <translation>&amp;Tasten und Befehle</translation>
    </message>
    <message>
        <source>&amp;About kwdraw</source>
        <translation>Ü&amp;ber kwdraw</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Ends a box, gives up picking, then deselects</source>
        <translation>Beendet einen Rahmen, bricht das Wählen ab, hebt dann die Auswahl auf</translation>
    </message>
    <message>
        <source>Enter, Space</source>
        <translation>Eingabe, Leertaste</translation>
    </message>
    <message>
        <source>End picking; otherwise go to the command line</source>
        <translation>Beenden das Wählen; sonst wechseln sie in die Befehlszeile</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>While picking: takes away from the selection</source>
        <translation>Beim Wählen: nimmt aus der Auswahl heraus</translation>
    </message>
    <message>
        <source>Any letter</source>
        <translation>Jeder Buchstabe</translation>
    </message>
    <message>
        <source>Begins a command in the command line</source>
        <translation>Beginnt einen Befehl in der Befehlszeile</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>Zooms to the extents</source>
        <translation>Zoomt auf die Grenzen</translation>
    </message>
    <message>
        <source>Opens a file</source>
        <translation>Öffnet eine Datei</translation>
    </message>
    <message>
        <source>Writes the selection in the format that the file&apos;s name tells</source>
        <translation>Schreibt die Auswahl in dem Format, das der Dateiname angibt</translation>
    </message>
    <message>
        <source>Shows a layout</source>
        <translation>Zeigt ein Layout</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Zooms at the cursor</source>
        <translation>Zoomt an der Stelle des Mauszeigers</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Mittlere Taste</translation>
    </message>
    <message>
        <source>Pans; a double click zooms to the extents</source>
        <translation>Verschiebt die Ansicht; ein Doppelklick zoomt auf die Grenzen</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Was es bewirkt</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>Show Linewei&amp;ghts</source>
        <translation>L&amp;inienstärken anzeigen</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;High Contrast</source>
        <translation>Hoher &amp;Kontrast</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Export Selection</source>
        <translation>Auswahl e&amp;xportieren</translation>
    </message>
    <message>
        <source>&amp;Copy Selection</source>
        <translation>Auswahl &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>Far&amp;ben</translation>
    </message>
    <message>
        <source>Run &amp;Last Filter</source>
        <translation>Letzten &amp;Filter ausführen</translation>
    </message>
    <message>
        <source>Preview &amp;Matches</source>
        <translation>&amp;Treffer vorab zeigen</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>%1 is an external reference or a layout and can&apos;t be opened.</source>
        <translation>%1 ist eine externe Referenz oder ein Layout und lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>The block %1 can&apos;t be opened.</source>
        <translation>Der Block %1 lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>The block %1 was not opened.</source>
        <translation>Der Block %1 wurde nicht geöffnet.</translation>
    </message>
</context>
<context>
    <name>DrawingLoader</name>
    <message>
        <source>%1 can&apos;t be opened: %2</source>
        <translation>%1 lässt sich nicht öffnen: %2</translation>
    </message>
</context>
<context>
    <name>DrawingView</name>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>Keys and Commands</source>
        <translation>Tasten und Befehle</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Search this page</source>
        <translation>Diese Seite durchsuchen</translation>
    </message>
    <message>
        <source>Not found on this page</source>
        <translation>Auf dieser Seite nicht gefunden</translation>
    </message>
</context>
<context>
    <name>LayerModel</name>
    <message>
        <source>%1 (locked)</source>
        <translation>%1 (gesperrt)</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Gefroren</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Shown in the view; the drawing stays as it is</source>
        <translation>In der Ansicht sichtbar; die Zeichnung bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>Frozen in the view: neither shown nor found by Select All</source>
        <translation>In der Ansicht gefroren: weder sichtbar noch von „Alles auswählen“ erfasst</translation>
    </message>
    <message>
        <source>Double-click to show this layer alone</source>
        <translation>Doppelklick zeigt nur diesen Layer</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Filter layers</source>
        <translation>Layer filtern</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>All On</source>
        <translation>Alle ein</translation>
    </message>
    <message>
        <source>Turn all layers on</source>
        <translation>Alle Layer einschalten</translation>
    </message>
    <message>
        <source>All Off</source>
        <translation>Alle aus</translation>
    </message>
    <message>
        <source>Turn all layers off</source>
        <translation>Alle Layer ausschalten</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Isolieren</translation>
    </message>
    <message>
        <source>Show the chosen layers alone</source>
        <translation>Nur die gewählten Layer zeigen</translation>
    </message>
    <message>
        <source>As Drawn</source>
        <translation>Wie gezeichnet</translation>
    </message>
    <message>
        <source>Show what the drawing says</source>
        <translation>Zeigen, was die Zeichnung vorgibt</translation>
    </message>
    <message>
        <source>Turn On</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Frieren</translation>
    </message>
    <message>
        <source>Thaw</source>
        <translation>Tauen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Command Line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Unbekannter Befehl „%1“.</translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>Ist %1 gemeint?</translation>
    </message>
    <message>
        <source>KEYS lists all commands.</source>
        <translation>KEYS listet alle Befehle auf.</translation>
    </message>
    <message>
        <source>That can&apos;t be done now.</source>
        <translation>Das geht jetzt nicht.</translation>
    </message>
    <message>
        <source>The drawing has no layout &quot;%1&quot;.</source>
        <translation>Die Zeichnung hat kein Layout „%1“.</translation>
    </message>
    <message>
        <source>About kwdraw</source>
        <translation>Über kwdraw</translation>
    </message>
    <message>
        <source>kwdraw %1

Shows drawings and selects among their objects by their properties.</source>
        <translation>kwdraw %1

Zeigt Zeichnungen und wählt ihre Objekte nach Eigenschaften aus.</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 wird geöffnet</translation>
    </message>
    <message>
        <source>Opening %1 was cancelled.</source>
        <translation>Das Öffnen von %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Opening a block</source>
        <translation>Ein Block wird geöffnet</translation>
    </message>
    <message>
        <source>The file has changed on the disk.</source>
        <translation>Die Datei hat sich auf dem Datenträger geändert.</translation>
    </message>
    <message>
        <source>Open a Drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>Drawings (*.dxf *.DXF *.dwg *.DWG);;All files (*)</source>
        <translation>Zeichnungen (*.dxf *.DXF *.dwg *.DWG);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The file has changed, but its end is missing: it may still be being written. The drawing stays as it was.</source>
        <translation>Die Datei hat sich geändert, aber ihr Ende fehlt: Vielleicht wird sie noch geschrieben. Die Zeichnung bleibt, wie sie war.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n objects</source>
        <translation>
            <numerusform>%1: %n Objekt</numerusform>
            <numerusform>%1: %n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Block %1</source>
        <translation>Block %1</translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <translation>&amp;%1 %2</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Only one drawing is open at a time; the first one is taken.</source>
        <translation>Es ist immer nur eine Zeichnung offen; die erste wird genommen.</translation>
    </message>
    <message>
        <source>Handles (*.txt)</source>
        <translation>Handles (*.txt)</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabellen (*.csv)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Drawings (*.dxf)</source>
        <translation>Zeichnungen (*.dxf)</translation>
    </message>
    <message>
        <source>Writing the selection</source>
        <translation>Die Auswahl wird geschrieben</translation>
    </message>
    <message>
        <source>Export the Selection</source>
        <translation>Auswahl exportieren</translation>
    </message>
    <message>
        <source>There is nothing to write.</source>
        <translation>Es gibt nichts zu schreiben.</translation>
    </message>
    <message>
        <source>Select objects:</source>
        <translation>Objekte wählen:</translation>
    </message>
    <message>
        <source>Select objects, then press Enter. Shift takes away. %1 picked.</source>
        <translation>Objekte wählen, dann Eingabe drücken. Umschalt nimmt weg. %1 gewählt.</translation>
    </message>
    <message>
        <source>%1 of %2: handle %3</source>
        <translation>%1 von %2: Handle %3</translation>
    </message>
    <message>
        <source>R&amp;ecent Filters</source>
        <translation>Zule&amp;tzt verwendete Filter</translation>
    </message>
    <message>
        <source>Open Rece&amp;nt</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
</context>
<context>
    <name>MatchPreview</name>
    <message>
        <source>Would select %1 ... (%2%)</source>
        <translation>Würde %1 auswählen ... (%2%)</translation>
    </message>
    <message>
        <source>Would select %1</source>
        <translation>Würde %1 auswählen</translation>
    </message>
    <message>
        <source>Would select —</source>
        <translation>Würde — auswählen</translation>
    </message>
    <message>
        <source>Would select — (%1)</source>
        <translation>Würde — auswählen (%1)</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Object type</source>
        <translation>Objekttyp</translation>
    </message>
    <message>
        <source>Similar</source>
        <translation>Ähnliche</translation>
    </message>
    <message>
        <source>Select all objects of the same type on the same layer</source>
        <translation>Alle Objekte desselben Typs auf demselben Layer auswählen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Filter the properties</source>
        <translation>Eigenschaften filtern</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Wert kopieren</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Reading: %1 of %2 objects so far</source>
        <translation>Lesen: bisher %1 von %2 Objekten</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>Wert &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;Row</source>
        <translation>&amp;Zeile kopieren</translation>
    </message>
    <message>
        <source>&amp;Select Similar</source>
        <translation>Ähnliche au&amp;swählen</translation>
    </message>
    <message>
        <source>Select Similar in &amp;All Types</source>
        <translation>Ähnliche &amp;aller Typen auswählen</translation>
    </message>
    <message>
        <source>&amp;Exclude These</source>
        <translation>Diese a&amp;usschließen</translation>
    </message>
    <message>
        <source>Select everything but the objects with this value</source>
        <translation>Alles außer den Objekten mit diesem Wert auswählen</translation>
    </message>
    <message>
        <source>&amp;Quick Filter as Text</source>
        <translation>Als &amp;Filtertext</translation>
    </message>
    <message>
        <source>*Varies*</source>
        <translation>*Verschieden*</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rot</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>gelb</translation>
    </message>
    <message>
        <source>green</source>
        <translation>grün</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>cyan</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blau</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>white</source>
        <translation>weiß</translation>
    </message>
    <message numerus="yes">
        <source>%n values</source>
        <translation>
            <numerusform>%n Wert</numerusform>
            <numerusform>%n Werte</numerusform>
        </translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Weitere</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>One fault was found in the file.</source>
        <translation>In der Datei wurde ein Fehler gefunden.</translation>
    </message>
    <message>
        <source>%1 faults were found in the file.</source>
        <translation>In der Datei wurden %1 Fehler gefunden.</translation>
    </message>
    <message>
        <source>Not all of it could be read.</source>
        <translation>Nicht alles davon konnte gelesen werden.</translation>
    </message>
    <message>
        <source>Faults in %1</source>
        <translation>Fehler in %1</translation>
    </message>
    <message>
        <source>Byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>Handle</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Was gefunden wurde</translation>
    </message>
    <message>
        <source>The first %1 of %2 are listed.</source>
        <translation>Die ersten %1 von %2 sind aufgeführt.</translation>
    </message>
</context>
<context>
    <name>SavedFilters</name>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Ausführen</translation>
    </message>
    <message>
        <source>&amp;Save Last</source>
        <translation>Letzte &amp;speichern</translation>
    </message>
    <message>
        <source>Give the last quick select a name</source>
        <translation>Der letzten Schnellauswahl einen Namen geben</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>filter</source>
        <translation>filter</translation>
    </message>
</context>
<context>
    <name>SelectionOutput</name>
    <message numerus="yes">
        <source>%n objects are in the clipboard.</source>
        <translation>
            <numerusform>%n Objekt ist in der Zwischenablage.</numerusform>
            <numerusform>%n Objekte sind in der Zwischenablage.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n objects were written to %1.</source>
        <translation>
            <numerusform>%n Objekt wurde nach %1 geschrieben.</numerusform>
            <numerusform>%n Objekte wurden nach %1 geschrieben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing the selection was given up.</source>
        <translation>Das Schreiben der Auswahl wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>Reading was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read: no permission.</source>
        <translation>Die Datei lässt sich nicht lesen: keine Berechtigung.</translation>
    </message>
    <message>
        <source>The file can&apos;t be read.</source>
        <translation>Die Datei lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>The file is a folder, not a drawing.</source>
        <translation>Die Datei ist ein Ordner, keine Zeichnung.</translation>
    </message>
    <message>
        <source>The file is no regular file.</source>
        <translation>Die Datei ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file is no DXF drawing.</source>
        <translation>Die Datei ist keine DXF-Zeichnung.</translation>
    </message>
    <message>
        <source>The file is too large for the memory.</source>
        <translation>Die Datei ist zu groß für den Speicher.</translation>
    </message>
    <message>
        <source>The file is a DWG drawing (%1), which can&apos;t be read here. Save it as DXF.</source>
        <translation>Die Datei ist eine DWG-Zeichnung (%1), die sich hier nicht lesen lässt. Speichern Sie sie als DXF.</translation>
    </message>
    <message>
        <source>The file is a DWG drawing. Install the converter dwg2dxf on the path, or save it as DXF.</source>
        <translation>Die Datei ist eine DWG-Zeichnung. Installieren Sie den Umwandler dwg2dxf im Pfad, oder speichern Sie sie als DXF.</translation>
    </message>
    <message>
        <source>There is no folder to convert the DWG drawing in.</source>
        <translation>Es gibt keinen Ordner, in dem sich die DWG-Zeichnung umwandeln ließe.</translation>
    </message>
    <message>
        <source>The converter %1 can&apos;t be started.</source>
        <translation>Der Umwandler %1 lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>The DWG drawing can&apos;t be converted: %1 ended with an error.</source>
        <translation>Die DWG-Zeichnung lässt sich nicht umwandeln: %1 endete mit einem Fehler.</translation>
    </message>
    <message>
        <source>Only entities that were read from a file can be written.</source>
        <translation>Nur Objekte, die aus einer Datei gelesen wurden, lassen sich schreiben.</translation>
    </message>
    <message>
        <source>The drawing is too large for the memory.</source>
        <translation>Die Zeichnung ist zu groß für den Speicher.</translation>
    </message>
    <message>
        <source>A group code was expected; the line was left out</source>
        <translation>Ein Gruppencode wurde erwartet; die Zeile wurde ausgelassen</translation>
    </message>
    <message>
        <source>A number is malformed; what could be read of it was used</source>
        <translation>Eine Zahl ist fehlerhaft; was davon lesbar war, wurde verwendet</translation>
    </message>
    <message>
        <source>A number is written with a decimal comma</source>
        <translation>Eine Zahl ist mit einem Dezimalkomma geschrieben</translation>
    </message>
    <message>
        <source>A handle is malformed; it counts as none</source>
        <translation>Ein Handle ist fehlerhaft; es zählt als keines</translation>
    </message>
    <message>
        <source>A text is too long; the rest of it was left out</source>
        <translation>Ein Text ist zu lang; sein Rest wurde ausgelassen</translation>
    </message>
    <message>
        <source>A record is too long; the rest of it was left out</source>
        <translation>Ein Datensatz ist zu lang; sein Rest wurde ausgelassen</translation>
    </message>
    <message>
        <source>The file ends before its end mark</source>
        <translation>Die Datei endet vor ihrer Endmarke</translation>
    </message>
    <message>
        <source>A section is not closed</source>
        <translation>Ein Abschnitt ist nicht abgeschlossen</translation>
    </message>
    <message>
        <source>A record stands outside of all sections; it was left out</source>
        <translation>Ein Datensatz steht außerhalb aller Abschnitte; er wurde ausgelassen</translation>
    </message>
    <message>
        <source>The code page is not known; ANSI_1252 was used</source>
        <translation>Die Codepage ist nicht bekannt; ANSI_1252 wurde verwendet</translation>
    </message>
    <message>
        <source>The texts are UTF-8 and not in the code page of the file; they were read as UTF-8</source>
        <translation>Die Texte sind UTF-8 und nicht in der Codepage der Datei; sie wurden als UTF-8 gelesen</translation>
    </message>
    <message>
        <source>An object has the handle 0; it was given a new one</source>
        <translation>Ein Objekt hat das Handle 0; es bekam ein neues</translation>
    </message>
    <message>
        <source>A handle is used twice; the second object was given a new one</source>
        <translation>Ein Handle steht zweimal; das zweite Objekt bekam ein neues</translation>
    </message>
    <message>
        <source>A name stands twice in a table; the first record counts</source>
        <translation>Ein Name steht zweimal in einer Tabelle; der erste Eintrag zählt</translation>
    </message>
    <message>
        <source>A table record or block has no name; it was given one</source>
        <translation>Ein Tabelleneintrag oder Block hat keinen Namen; er bekam einen</translation>
    </message>
    <message>
        <source>A layer is used and not defined; it was made with defaults</source>
        <translation>Ein Layer wird verwendet und ist nicht definiert; er wurde mit Vorgaben angelegt</translation>
    </message>
    <message>
        <source>A linetype is used and not defined; it was made with defaults</source>
        <translation>Ein Linientyp wird verwendet und ist nicht definiert; er wurde mit Vorgaben angelegt</translation>
    </message>
    <message>
        <source>A style is used and not defined; it was made with defaults</source>
        <translation>Ein Stil wird verwendet und ist nicht definiert; er wurde mit Vorgaben angelegt</translation>
    </message>
    <message>
        <source>A block is used and not defined</source>
        <translation>Ein Block wird verwendet und ist nicht definiert</translation>
    </message>
    <message>
        <source>The kind of an entity is not known; its general properties were read</source>
        <translation>Die Art eines Objekts ist nicht bekannt; seine allgemeinen Eigenschaften wurden gelesen</translation>
    </message>
    <message>
        <source>A vertex, attribute or sequence end follows nothing that it could belong to</source>
        <translation>Ein Scheitelpunkt, Attribut oder Folgenende folgt auf nichts, wozu es gehören könnte</translation>
    </message>
    <message>
        <source>A table is not closed</source>
        <translation>Eine Tabelle ist nicht abgeschlossen</translation>
    </message>
    <message>
        <source>A block is not closed</source>
        <translation>Ein Block ist nicht abgeschlossen</translation>
    </message>
    <message>
        <source>A header variable has no value of its kind; its default was kept</source>
        <translation>Eine Kopfvariable hat keinen Wert ihrer Art; ihre Vorgabe blieb</translation>
    </message>
    <message>
        <source>An object has no handle; it was given a new one</source>
        <translation>Ein Objekt hat kein Handle; es bekam ein neues</translation>
    </message>
    <message>
        <source>The owner that an object names is not in the drawing</source>
        <translation>Der Besitzer, den ein Objekt nennt, ist nicht in der Zeichnung</translation>
    </message>
    <message>
        <source>A block holds a reference that leads back to the block itself</source>
        <translation>Ein Block enthält eine Referenz, die auf den Block selbst zurückführt</translation>
    </message>
    <message>
        <source>The version of the drawing is not known</source>
        <translation>Die Version der Zeichnung ist nicht bekannt</translation>
    </message>
    <message>
        <source>A section of that name is not known; it was left out</source>
        <translation>Ein Abschnitt dieses Namens ist nicht bekannt; er wurde ausgelassen</translation>
    </message>
    <message>
        <source>A table record stands outside of its table; it was read all the same</source>
        <translation>Ein Tabelleneintrag steht außerhalb seiner Tabelle; er wurde trotzdem gelesen</translation>
    </message>
    <message>
        <source>A table record of that kind is not known; it was left out</source>
        <translation>Ein Tabelleneintrag dieser Art ist nicht bekannt; er wurde ausgelassen</translation>
    </message>
    <message>
        <source>no object type &quot;%1&quot;; did you mean &quot;%2&quot;? There are: %3</source>
        <translation>kein Objekttyp „%1“; ist „%2“ gemeint? Es gibt: %3</translation>
    </message>
    <message>
        <source>no object type &quot;%1&quot;; there are: %2</source>
        <translation>kein Objekttyp „%1“; es gibt: %2</translation>
    </message>
    <message>
        <source>no object type &quot;%1&quot;; the drawing holds none</source>
        <translation>kein Objekttyp „%1“; die Zeichnung enthält keinen</translation>
    </message>
    <message>
        <source>no property &quot;%1&quot;; did you mean &quot;%2&quot;? There are: %3</source>
        <translation>keine Eigenschaft „%1“; ist „%2“ gemeint? Es gibt: %3</translation>
    </message>
    <message>
        <source>no property &quot;%1&quot;; there are: %2</source>
        <translation>keine Eigenschaft „%1“; es gibt: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names several properties; say one of: %2</source>
        <translation>„%1“ nennt mehrere Eigenschaften; zur Wahl stehen: %2</translation>
    </message>
    <message>
        <source>no operator &quot;%1&quot; for this property. There are: %2</source>
        <translation>kein Operator „%1“ für diese Eigenschaft. Es gibt: %2</translation>
    </message>
    <message>
        <source>no operator &quot;%1&quot; for this property</source>
        <translation>kein Operator „%1“ für diese Eigenschaft</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for the property &quot;%2&quot;; it is true or false</source>
        <translation>„%1“ ist kein Wert für die Eigenschaft „%2“; sie ist wahr oder falsch</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for the property &quot;%2&quot;; it is ByLayer, ByBlock, a name such as red, a number from 1 to 255, or red, green and blue as 255,128,0</source>
        <translation>„%1“ ist kein Wert für die Eigenschaft „%2“; sie ist VonLayer, VonBlock, ein Name wie rot, eine Zahl von 1 bis 255, oder Rot, Grün und Blau als 255,128,0</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for the property &quot;%2&quot;</source>
        <translation>„%1“ ist kein Wert für die Eigenschaft „%2“</translation>
    </message>
    <message>
        <source>a property is needed before &quot;%1&quot;</source>
        <translation>vor „%1“ fehlt eine Eigenschaft</translation>
    </message>
    <message>
        <source>there is no bracket that this one closes</source>
        <translation>es gibt keine Klammer, die diese schließt</translation>
    </message>
    <message>
        <source>here &quot;and&quot;, &quot;or&quot; or the end is expected</source>
        <translation>hier wird „and“, „or“ oder das Ende erwartet</translation>
    </message>
    <message>
        <source>the brackets go too deep</source>
        <translation>die Klammern sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>this bracket is never closed</source>
        <translation>diese Klammer wird nicht geschlossen</translation>
    </message>
    <message>
        <source>the name of a filter is expected behind &quot;@&quot;</source>
        <translation>hinter „@“ wird der Name eines Filters erwartet</translation>
    </message>
    <message>
        <source>behind a quoted name a colon or an operator is expected</source>
        <translation>hinter einem Namen in Anführungszeichen wird ein Doppelpunkt oder ein Operator erwartet</translation>
    </message>
    <message>
        <source>a type or a property is expected here</source>
        <translation>hier wird ein Typ oder eine Eigenschaft erwartet</translation>
    </message>
    <message>
        <source>a value is expected behind the operator; the empty text is &quot;&quot;</source>
        <translation>hinter dem Operator wird ein Wert erwartet; der leere Text ist &quot;&quot;</translation>
    </message>
    <message>
        <source>this quote is never closed</source>
        <translation>dieses Anführungszeichen wird nicht geschlossen</translation>
    </message>
    <message>
        <source>a filter stands on one line</source>
        <translation>ein Filter steht in einer Zeile</translation>
    </message>
    <message>
        <source>there is no filter &quot;%1&quot;</source>
        <translation>es gibt keinen Filter „%1“</translation>
    </message>
    <message>
        <source>there is a filter &quot;%1&quot; already</source>
        <translation>es gibt schon einen Filter „%1“</translation>
    </message>
    <message>
        <source>the filter &quot;%1&quot; names itself</source>
        <translation>der Filter „%1“ nennt sich selbst</translation>
    </message>
    <message>
        <source>the filter &quot;%1&quot; names &quot;%2&quot;</source>
        <translation>der Filter „%1“ nennt „%2“</translation>
    </message>
    <message>
        <source>the space can&apos;t be read</source>
        <translation>der Bereich lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>the space can&apos;t be searched</source>
        <translation>der Bereich lässt sich nicht durchsuchen</translation>
    </message>
    <message>
        <source>the space holds no objects</source>
        <translation>der Bereich enthält keine Objekte</translation>
    </message>
    <message>
        <source>nothing is selected</source>
        <translation>nichts ist ausgewählt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be searched for</source>
        <translation>nach „%1“ lässt sich nicht suchen</translation>
    </message>
    <message>
        <source>values of this kind can&apos;t be compared by &quot;%1&quot;</source>
        <translation>Werte dieser Art lassen sich nicht mit „%1“ vergleichen</translation>
    </message>
    <message>
        <source>The search was over objects that were picked by hand; this is its filter.</source>
        <translation>Gesucht wurde in Objekten, die von Hand gewählt waren; dies ist der Filter dazu.</translation>
    </message>
    <message>
        <source>The search was over a selection that was made by hand; this is its filter.</source>
        <translation>Gesucht wurde in einer Auswahl von Hand; dies ist der Filter dazu.</translation>
    </message>
    <message>
        <source>The search added to a selection that was made by hand; this is its filter.</source>
        <translation>Die Suche ergänzte eine Auswahl von Hand; dies ist der Filter dazu.</translation>
    </message>
    <message>
        <source>The searches had several tolerances; this is the filter of the last one.</source>
        <translation>Die Suchen hatten mehrere Toleranzen; dies ist der Filter der letzten.</translation>
    </message>
    <message>
        <source>No filter that can be typed finds the same in this drawing.</source>
        <translation>Kein Filter, der sich eingeben lässt, findet dasselbe in dieser Zeichnung.</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Open a Drawing...</source>
        <translation>Zeichnung öffnen...</translation>
    </message>
    <message>
        <source>or drop one here</source>
        <translation>oder hier ablegen</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>No units</source>
        <translation>Ohne Einheit</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>Miles</source>
        <translation>Meilen</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Centimeters</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Meters</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>Kilometers</source>
        <translation>Kilometer</translation>
    </message>
    <message>
        <source>Microinches</source>
        <translation>Mikrozoll</translation>
    </message>
    <message>
        <source>Mils</source>
        <translation>Mil</translation>
    </message>
    <message>
        <source>Yards</source>
        <translation>Yard</translation>
    </message>
    <message>
        <source>Angstroms</source>
        <translation>Ångström</translation>
    </message>
    <message>
        <source>Nanometers</source>
        <translation>Nanometer</translation>
    </message>
    <message>
        <source>Microns</source>
        <translation>Mikrometer</translation>
    </message>
    <message>
        <source>Decimeters</source>
        <translation>Dezimeter</translation>
    </message>
    <message>
        <source>Dekameters</source>
        <translation>Dekameter</translation>
    </message>
    <message>
        <source>Hectometers</source>
        <translation>Hektometer</translation>
    </message>
    <message>
        <source>Gigameters</source>
        <translation>Gigameter</translation>
    </message>
    <message>
        <source>Astronomical units</source>
        <translation>Astronomische Einheiten</translation>
    </message>
    <message>
        <source>Light years</source>
        <translation>Lichtjahre</translation>
    </message>
    <message>
        <source>Parsecs</source>
        <translation>Parsec</translation>
    </message>
    <message>
        <source>US survey feet</source>
        <translation>US-Vermessungsfuß</translation>
    </message>
    <message>
        <source>US survey inches</source>
        <translation>US-Vermessungszoll</translation>
    </message>
    <message>
        <source>US survey yards</source>
        <translation>US-Vermessungsyard</translation>
    </message>
</context>
</TS>
