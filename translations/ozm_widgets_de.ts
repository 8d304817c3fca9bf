<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>OZMDockWidgetTitleBar</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Float</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dock %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Float %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OZMStyle</name>
    <message>
        <source>%1 Error code: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UndoStack</name>
    <message>
        <source>A new edit cannot be made while another is being undone or redone.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ozm::BlackSplitterHandle</name>
    <message>
        <source>Divider</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
