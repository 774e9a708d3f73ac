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
        <source>Show Line&amp;weights</source>
        <translation>L&amp;inienstärken anzeigen</translation>
    </message>
    <message>
        <source>Light &amp;Colors</source>
        <translation>&amp;Helle Farben</translation>
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
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
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
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
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
</context>
</TS>
