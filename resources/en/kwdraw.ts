<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>BlockChooser</name>
    <message numerus="yes">
        <source>%n objects</source>
        <translation>
            <numerusform>%n object</numerusform>
            <numerusform>%n objects</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%1: %n objects</source>
        <translation>
            <numerusform>%1: %n object</numerusform>
            <numerusform>%1: %n objects</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message numerus="yes">
        <source>%n values</source>
        <translation>
            <numerusform>%n value</numerusform>
            <numerusform>%n values</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SelectionOutput</name>
    <message numerus="yes">
        <source>%n objects are in the clipboard.</source>
        <translation>
            <numerusform>%n object is in the clipboard.</numerusform>
            <numerusform>%n objects are in the clipboard.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n objects were written to %1.</source>
        <translation>
            <numerusform>%n object was written to %1.</numerusform>
            <numerusform>%n objects were written to %1.</numerusform>
        </translation>
    </message>
</context>
</TS>
