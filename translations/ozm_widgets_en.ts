<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>SpectrumFileDialog</name>
    <message numerus="yes">
        <source>%n file(s) and folder(s)</source>
        <translation>
            <numerusform>%n file or folder</numerusform>
            <numerusform>%n files and folders</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ozm::editor::ComparisonDialog</name>
    <message numerus="yes">
        <source>%n difference(s)</source>
        <translation>
            <numerusform>%n difference</numerusform>
            <numerusform>%n differences</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ozm::editor::TableEditing</name>
    <message numerus="yes">
        <source>Width of %n column(s)</source>
        <translation>
            <numerusform>Width of %n column</numerusform>
            <numerusform>Widths of %n columns</numerusform>
        </translation>
    </message>
</context>
</TS>
