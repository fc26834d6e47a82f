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
</TS>
