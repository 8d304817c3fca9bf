<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>workbench::ReportDialog</name>
    <message numerus="yes">
        <source>%n of the files are in this folder already. Replace them?</source>
        <translation>
            <numerusform>%n of the files is in this folder already. Replace it?</numerusform>
            <numerusform>%n of the files are in this folder already. Replace them?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) saved to %1</source>
        <translation>
            <numerusform>%n file saved to %1</numerusform>
            <numerusform>%n files saved to %1</numerusform>
        </translation>
    </message>
</context>
</TS>
