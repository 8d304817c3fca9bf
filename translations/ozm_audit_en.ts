<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>ozm::audit</name>
    <message numerus="yes">
        <source>Trail %1: %n entries</source>
        <translation>
            <numerusform>Trail %1: %n entry</numerusform>
            <numerusform>Trail %1: %n entries</numerusform>
        </translation>
    </message>
</context>
</TS>
