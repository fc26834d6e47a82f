<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>BoundPages</name>
    <message numerus="yes">
        <source>%n row(s) are higher than a page, the first is row %1</source>
        <translation>
            <numerusform>%n row is higher than a page: row %1</numerusform>
            <numerusform>%n rows are higher than a page, the first is row %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TextEdit</name>
    <message numerus="yes">
        <source>%n cell(s) that were pasted found no place in the table and were left out. Make the table larger first.</source>
        <translation>
            <numerusform>%n cell that was pasted found no place in the table and was left out. Make the table larger first.</numerusform>
            <numerusform>%n cells that were pasted found no place in the table and were left out. Make the table larger first.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>workbench::MainWindow</name>
    <message numerus="yes">
        <source>The export was cancelled; %n page(s) are in %1.</source>
        <translation>
            <numerusform>The export was cancelled; %n page is in %1.</numerusform>
            <numerusform>The export was cancelled; %n pages are in %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) were written to %1.</source>
        <translation>
            <numerusform>%n page was written to %1.</numerusform>
            <numerusform>%n pages were written to %1.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>workbench::SourceDialog</name>
    <message numerus="yes">
        <source>… and %n more key(s)</source>
        <translation>
            <numerusform>… and %n more key</numerusform>
            <numerusform>… and %n more keys</numerusform>
        </translation>
    </message>
</context>
</TS>
