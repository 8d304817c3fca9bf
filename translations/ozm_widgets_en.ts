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
</TS>
