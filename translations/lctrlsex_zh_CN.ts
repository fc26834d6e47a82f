<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>DocumentStorage</name>
    <message>
        <source>The stored text is cut off at character %1; restore it from a copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored text is damaged before its end at character %1; restore it from a copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored text has a character that does not belong there (U+%1) at position %2; restore it from a copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored text goes on behind its end at position %1; restore it from a copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored text is not valid UTF-8 from byte %1 on; restore it from a copy.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FontFolder</name>
    <message>
        <source>Cannot make the link %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot make the folder %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system has no regular TrueType font; install one or put font files into %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HtmlGuard</name>
    <message>
        <source>More than 500 elements are open at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close elements before new ones are opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists are nested more than 50 deep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use fewer levels of lists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables are nested more than 4 deep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the content into one table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are more than 256 tables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join tables or divide the text into several items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table has more than 1000 columns.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove columns or column spans.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table has more than 200000 cells.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bind the table to a data source instead of storing its rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table or list stands inside an element that is not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move it out of the head or title of the document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table stands inside another one but in no cell that it could have.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the inner table into a cell without overlapping spans.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are more than 256 floating images and tables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put images and tables into the flow of the text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text is taller than 3000000 pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shorten the text or use smaller letters and margins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table is wider than 4000000 pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove columns or make them narrower.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A paragraph is too long to lay out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Divide the text into paragraphs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text takes too long to lay out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Divide the text into several items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long words, images in long lines or deep nesting make the text too slow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put blanks into long words and divide long paragraphs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text takes too much memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text is longer than 8388608 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The markup is too disordered to be read safely.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the text anew.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemCheck</name>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are %1 more of these</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mend the ones above first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no installed font shows %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install a font that has them or choose other characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is wider than the item and cut at the side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>use a smaller font or a wider item, or break the line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is higher than the item and cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>use a smaller font or a higher item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>make the image smaller than %1 x %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>image %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has the colour of its ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>change the colour of the text or of the ground</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ItemRenderer</name>
    <message>
        <source>size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x %2 pixels is no page size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>give both sides from 1 to %1 pixels, %2 million in all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has more than %1 pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>make the item higher or its text shorter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>image %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>font %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not installed, another font would be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>install the font or choose another one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>restore the programme file from a copy; the stored text is kept as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>document line %1 column %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Journals</name>
    <message>
        <source>it is not whole: what it holds does not match its checksum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no copy that was saved automatically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was written by another release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LEffectNode</name>
    <message>
        <source>No Effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wipe Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wipe Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wipe Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wipe Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal Blinds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical Blinds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mosaic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Laser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curtain Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curtain Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curtain Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curtain Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Box Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Box In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Lum::LTextPlugin::LTextClient</name>
    <message>
        <source>Play Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continuous Move Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continuous Move Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continuous Move Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>9 slow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continuous Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conditional Style Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bind Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not bound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The use of dynamic data sources for violent, terrorist, pornographic, or other illegal information is strictly prohibited. Any violations will be dealt with in accordance with relevant laws and regulations.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds for which the item plays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of times that the item plays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show and clear pages without an effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show and clear pages with random effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How a page appears</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast a page appears</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How a page disappears</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast a page disappears</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hold time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long a page stays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field that the table shows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name under which other systems find the item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodePublisher</name>
    <message>
        <source>The stored document cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored document cannot be shown (line %1, column %2): %3. %4.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The plug-in with the text editor was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install it beside the program, or name its file with --plugin FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install the plug-in of the same version as the workbench.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The library does not export the text client.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name the file of the plug-in with --plugin FILE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in gave no client.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgrammeDocument</name>
    <message>
        <source>Frame %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change hollow text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change alignment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change spacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change hold time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change playing time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change data source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change conditional styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change calculations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgrammeFile</name>
    <message>
        <source>line %1, column %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check its name and whether you may read it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name a *.programme.json file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is larger than 256 MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the old file is unchanged; make room, or save elsewhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mend the value named, or restore the file from a copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is not well-formed JSON: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mend the place named, or restore the file from a copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a programme is a JSON object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no programme file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its &quot;format&quot; must be &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file says no version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write &quot;version&quot;: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>version %1 is newer than the %2 that this program reads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>open the file with a newer release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such kind of item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write &quot;type&quot;: &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it must be HTML: a text or a list of lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the item has a document twice, here and as its RawHtml</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remove one of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it must be a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it must be an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it must be a text in quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it must be a whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it must be true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it must be &quot;LED&quot; or &quot;LCD&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it must be a whole number of pixels from 1 to %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RasterImage</name>
    <message>
        <source>The picture is too large; save it with at most 16384 pixels on a side and 64 million pixels in all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture file is larger than 16 MB; save it smaller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a PNG, JPEG, GIF or BMP picture; convert it to one of these.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is damaged or incomplete; save it again or copy it anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture cannot be read; check that the file exists and may be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a file with a picture; choose a picture file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextEdit</name>
    <message>
        <source>Edit as Plain Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored document is replaced by what you see here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Editor Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stroke Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one table can be inserted per editor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split Vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split Horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the number of rows: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the number of columns: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lctrlsex::BindingMenus</name>
    <message>
        <source>Filter DataSource</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the data source whose fields can be inserted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert a field that shows its current value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Condition styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give the selected text a look that depends on data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expression Data Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No data source is enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a data source first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data source has no fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No calculation is defined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No conditional style is defined</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lctrlsex::EditToolBar</name>
    <message>
        <source>&amp;Color...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Background Color...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Text Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Underline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;enter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Justify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Align Justify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content Align Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content Align Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content Align Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Editor Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stroke Color...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Stroke</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line Spacing:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Word Spacing:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>lctrlsex::ItemDocument</name>
    <message>
        <source>the image data is not Base64; insert the image again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such built-in image; insert the image again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>files and addresses are not loaded; insert the image into the programme</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::Autosave</name>
    <message>
        <source>no folder for it can be written</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::EditorPane</name>
    <message>
        <source>There is no text here yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Text Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects, times and data of a text item appear here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text editor cannot be used.

%1
%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::LayoutPanel</name>
    <message>
        <source>No page has this size: give both sides, of %1 million pixels at most.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frame reaches beyond its screen of %1 × %2 pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name is needed; the former one was kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change display kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind of display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LCD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left edge in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top edge in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::MainWindow</name>
    <message>
        <source>Unsaved changes cannot be kept safe: %1; save the programme to a folder that you may write to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1[*] – Workbench</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wall: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fonts: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No fonts to choose from: put font files into %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Workbench</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export Pages…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wall: &amp;Larger Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wall: &amp;Smaller Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wall: &amp;Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wall: Round L&amp;EDs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No programme was opened yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Workbench</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Workbench %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edits programmes for LED and LCD display screens.

Free software under the MIT licence.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Programme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Programme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programmes (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They are lost if you do not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Pages to a Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The export was cancelled; %n page(s) are in %1.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) were written to %1.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>A copy saved automatically is damaged: %1; it was kept as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A programme that you never saved was kept automatically on %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A copy of %1, saved automatically on %2, was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 The file was changed since.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Saved &amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep for Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is %1 as it was saved. Is the copy saved automatically still needed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete the Copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::NodeDelegate</name>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::NoticeBar</name>
    <message>
        <source>Close this notice</source>
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
        <source>Notice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::PageExport</name>
    <message>
        <source>Export Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing pages…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing the pages of %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ProgrammeDocument</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name a *.programme.json file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the programme has no file yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>save it under a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add text item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ProgrammePanel</name>
    <message>
        <source>Programme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controller, screens, frames and text items. F2 renames, Delete removes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No screen yet. “Add” below makes one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a text item, a frame or a screen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::ProgrammeTreeModel</name>
    <message>
        <source>Controller</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::StructureActions</name>
    <message>
        <source>Add &amp;Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a screen to the controller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a frame to the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;Text Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a text item to the frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a copy of what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move before the one above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move behind the one below</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::Thumbnails</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::WallPanel</name>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit (1/%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit (%1×)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous page (Page Up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page (Page Down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show pixels as round LEDs, from 4× on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of a screen pixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No screen is selected. Select one in the programme to see it here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>workbench::WallView</name>
    <message>
        <source>%1: %2 × %3 at %4, %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen of the selected item with all its frames. Plus and minus change the size, Page Up and Page Down turn the page, Return edits the item.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
