<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>BoundPages</name>
    <message>
        <source>table</source>
        <translation>表格</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) are higher than a page, the first is row %1</source>
        <translation>
            <numerusform>%n 行高于一页，第一个是第 %1 行</numerusform>
        </translation>
    </message>
    <message>
        <source>use a smaller font or a higher item</source>
        <translation>请使用较小的字体或加高节目项</translation>
    </message>
    <message>
        <source>field &quot;%1&quot;</source>
        <translation>字段“%1”</translation>
    </message>
    <message>
        <source>it leads to no data</source>
        <translation>它不指向任何数据</translation>
    </message>
    <message>
        <source>conditional style &quot;%1&quot;</source>
        <translation>条件样式“%1”</translation>
    </message>
    <message>
        <source>there is none of that identifier</source>
        <translation>没有该标识符的条件样式</translation>
    </message>
    <message>
        <source>choose another style for the text that has it</source>
        <translation>请为使用它的文本选择其他样式</translation>
    </message>
    <message>
        <source>calculation &quot;%1&quot;</source>
        <translation>计算“%1”</translation>
    </message>
    <message>
        <source>it has no result: %1</source>
        <translation>它没有结果：%1</translation>
    </message>
    <message>
        <source>its default is shown; change the step or the data</source>
        <translation>显示其默认值；请更改步骤或数据</translation>
    </message>
</context>
<context>
    <name>ConditionTexts</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1 is greater than %2</source>
        <translation>%1 大于 %2</translation>
    </message>
    <message>
        <source>%1 is not greater than %2</source>
        <translation>%1 不大于 %2</translation>
    </message>
    <message>
        <source>%1 is less than %2</source>
        <translation>%1 小于 %2</translation>
    </message>
    <message>
        <source>%1 is not less than %2</source>
        <translation>%1 不小于 %2</translation>
    </message>
    <message>
        <source>%1 is at least %2</source>
        <translation>%1 大于或等于 %2</translation>
    </message>
    <message>
        <source>%1 is not at least %2</source>
        <translation>%1 未达到 %2</translation>
    </message>
    <message>
        <source>%1 is at most %2</source>
        <translation>%1 小于或等于 %2</translation>
    </message>
    <message>
        <source>%1 is not at most %2</source>
        <translation>%1 超过 %2</translation>
    </message>
    <message>
        <source>%1 equals %2</source>
        <translation>%1 等于 %2</translation>
    </message>
    <message>
        <source>%1 does not equal %2</source>
        <translation>%1 不等于 %2</translation>
    </message>
    <message>
        <source>%1 (condition %2)</source>
        <translation>%1（条件 %2）</translation>
    </message>
    <message>
        <source>%1 names no number and never holds</source>
        <translation>%1 没有给出数字，永远不成立</translation>
    </message>
    <message>
        <source>%1 never holds, because &quot;%2&quot; is not a number</source>
        <translation>%1 永远不成立，因为“%2”不是数字</translation>
    </message>
    <message>
        <source>%1 is not a number, so %2 cannot hold</source>
        <translation>%1 不是数字，因此 %2 不成立</translation>
    </message>
    <message>
        <source>%1 lies in %2</source>
        <translation>%1 在 %2 之内</translation>
    </message>
    <message>
        <source>%1 does not lie in %2</source>
        <translation>%1 不在 %2 之内</translation>
    </message>
    <message>
        <source>the pattern %1 is found in %2</source>
        <translation>在 %2 中找到模式 %1</translation>
    </message>
    <message>
        <source>the pattern %1 is broken at character %2: %3</source>
        <translation>模式 %1 在第 %2 个字符处有误：%3</translation>
    </message>
    <message>
        <source>the pattern %1 is longer than %2 characters and not searched for</source>
        <translation>模式 %1 超过 %2 个字符，不进行查找</translation>
    </message>
    <message>
        <source>the value %1 is longer than %2 characters and not searched for %3</source>
        <translation>值 %1 超过 %2 个字符，不在其中查找 %3</translation>
    </message>
    <message>
        <source>searching %2 for the pattern %1 takes too long</source>
        <translation>在 %2 中查找模式 %1 耗时过长</translation>
    </message>
    <message>
        <source>the patterns before %1 took all the time of this refresh</source>
        <translation>%1 之前的模式已用完本次刷新的时间</translation>
    </message>
    <message>
        <source>the pattern %1 is not found in %2</source>
        <translation>在 %2 中未找到模式 %1</translation>
    </message>
    <message>
        <source>the condition is empty and never holds</source>
        <translation>条件为空，永远不成立</translation>
    </message>
    <message>
        <source>there is no value, so %1 cannot hold</source>
        <translation>没有值，因此 %1 不成立</translation>
    </message>
    <message>
        <source>%1 (it is stored as a regular expression, not as a comparison)</source>
        <translation>%1（该条件按正则表达式而非比较保存）</translation>
    </message>
</context>
<context>
    <name>ConfigurationClipboard</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>全部复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>覆盖</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>全部删除</translation>
    </message>
    <message>
        <source>Please select at least one configuration item to copy</source>
        <translation>请至少选择一个要复制的配置项</translation>
    </message>
    <message>
        <source>No configuration items to copy</source>
        <translation>没有可复制的配置项</translation>
    </message>
    <message>
        <source>No data in clipboard</source>
        <translation>剪贴板中没有数据</translation>
    </message>
    <message>
        <source>Are you sure you want to paste %1 configuration item(s) from clipboard?</source>
        <translation>确定要从剪贴板粘贴 %1 个配置项吗？</translation>
    </message>
    <message>
        <source>Failed to paste configuration items</source>
        <translation>粘贴配置项失败</translation>
    </message>
    <message>
        <source>Are you sure you want to override all configuration items?</source>
        <translation>确定要覆盖所有配置项吗？</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Do you want to delete all configuration items?</source>
        <translation>要删除所有配置项吗？</translation>
    </message>
    <message>
        <source>Append %1 configuration items</source>
        <translation>追加 %1 个配置项</translation>
    </message>
    <message>
        <source>Paste %1 configuration items (will overwrite existing data)</source>
        <translation>粘贴 %1 个配置项（将覆盖现有数据）</translation>
    </message>
</context>
<context>
    <name>ConfigurationForm</name>
    <message>
        <source>Add configuration item</source>
        <translation>添加配置项</translation>
    </message>
    <message>
        <source>Add conditions for this configuration item</source>
        <translation>为此配置项添加条件</translation>
    </message>
    <message>
        <source>Delete this row</source>
        <translation>删除此行</translation>
    </message>
</context>
<context>
    <name>DocumentStorage</name>
    <message>
        <source>The stored text is cut off at character %1; restore it from a copy.</source>
        <translation>存储的文本在第 %1 个字符处被截断；请用副本恢复。</translation>
    </message>
    <message>
        <source>The stored text is damaged before its end at character %1; restore it from a copy.</source>
        <translation>存储的文本在结束前的第 %1 个字符处已损坏；请用副本恢复。</translation>
    </message>
    <message>
        <source>The stored text has a character that does not belong there (U+%1) at position %2; restore it from a copy.</source>
        <translation>存储的文本含有不应出现的字符（U+%1，位置 %2）；请用副本恢复。</translation>
    </message>
    <message>
        <source>The stored text goes on behind its end at position %1; restore it from a copy.</source>
        <translation>存储的文本在位置 %1 结束之后仍有内容；请用副本恢复。</translation>
    </message>
    <message>
        <source>The stored text is not valid UTF-8 from byte %1 on; restore it from a copy.</source>
        <translation>存储的文本从第 %1 个字节起不是有效的 UTF-8；请用副本恢复。</translation>
    </message>
</context>
<context>
    <name>FontFolder</name>
    <message>
        <source>Cannot make the link %1: %2</source>
        <translation>无法创建链接 %1：%2</translation>
    </message>
    <message>
        <source>Cannot make the folder %1: %2</source>
        <translation>无法创建文件夹 %1：%2</translation>
    </message>
    <message>
        <source>The system has no regular TrueType font; install one or put font files into %1</source>
        <translation>系统中没有常规的 TrueType 字体；请安装字体，或将字体文件放入 %1</translation>
    </message>
</context>
<context>
    <name>HtmlGuard</name>
    <message>
        <source>More than 500 elements are open at once.</source>
        <translation>同时打开的元素超过 500 个。</translation>
    </message>
    <message>
        <source>Close elements before new ones are opened.</source>
        <translation>请先关闭元素，再打开新的元素。</translation>
    </message>
    <message>
        <source>Lists are nested more than 50 deep.</source>
        <translation>列表嵌套超过 50 层。</translation>
    </message>
    <message>
        <source>Use fewer levels of lists.</source>
        <translation>请减少列表的层数。</translation>
    </message>
    <message>
        <source>Tables are nested more than 4 deep.</source>
        <translation>表格嵌套超过 4 层。</translation>
    </message>
    <message>
        <source>Put the content into one table.</source>
        <translation>请将内容放入一个表格。</translation>
    </message>
    <message>
        <source>There are more than 256 tables.</source>
        <translation>表格超过 256 个。</translation>
    </message>
    <message>
        <source>Join tables or divide the text into several items.</source>
        <translation>请合并表格，或将文本分成多个文本项。</translation>
    </message>
    <message>
        <source>A table has more than 1000 columns.</source>
        <translation>有表格超过 1000 列。</translation>
    </message>
    <message>
        <source>Remove columns or column spans.</source>
        <translation>请删除列或跨列合并。</translation>
    </message>
    <message>
        <source>A table has more than 200000 cells.</source>
        <translation>有表格超过 200000 个单元格。</translation>
    </message>
    <message>
        <source>Bind the table to a data source instead of storing its rows.</source>
        <translation>请将表格绑定到数据源，而不是存储所有行。</translation>
    </message>
    <message>
        <source>A table or list stands inside an element that is not shown.</source>
        <translation>有表格或列表位于不显示的元素之内。</translation>
    </message>
    <message>
        <source>Move it out of the head or title of the document.</source>
        <translation>请将其移出文档的头部或标题。</translation>
    </message>
    <message>
        <source>A table stands inside another one but in no cell that it could have.</source>
        <translation>有表格位于另一表格之内，却不在其任何单元格中。</translation>
    </message>
    <message>
        <source>Put the inner table into a cell without overlapping spans.</source>
        <translation>请将内层表格放入没有重叠合并的单元格。</translation>
    </message>
    <message>
        <source>There are more than 256 floating images and tables.</source>
        <translation>浮动的图片和表格超过 256 个。</translation>
    </message>
    <message>
        <source>Put images and tables into the flow of the text.</source>
        <translation>请将图片和表格嵌入文本行中。</translation>
    </message>
    <message>
        <source>The text is taller than 3000000 pixels.</source>
        <translation>文本高度超过 3000000 像素。</translation>
    </message>
    <message>
        <source>Shorten the text or use smaller letters and margins.</source>
        <translation>请缩短文本，或使用较小的字号和边距。</translation>
    </message>
    <message>
        <source>A table is wider than 4000000 pixels.</source>
        <translation>有表格的宽度超过 4000000 像素。</translation>
    </message>
    <message>
        <source>Remove columns or make them narrower.</source>
        <translation>请删除列或缩小列宽。</translation>
    </message>
    <message>
        <source>A paragraph is too long to lay out.</source>
        <translation>有段落过长，无法排版。</translation>
    </message>
    <message>
        <source>Divide the text into paragraphs.</source>
        <translation>请将文本分段。</translation>
    </message>
    <message>
        <source>The text takes too long to lay out.</source>
        <translation>文本排版耗时过长。</translation>
    </message>
    <message>
        <source>Divide the text into several items.</source>
        <translation>请将文本分成多个文本项。</translation>
    </message>
    <message>
        <source>Long words, images in long lines or deep nesting make the text too slow.</source>
        <translation>过长的单词、长行中的图片或过深的嵌套使文本处理过慢。</translation>
    </message>
    <message>
        <source>Put blanks into long words and divide long paragraphs.</source>
        <translation>请在过长的单词中加入空格，并拆分过长的段落。</translation>
    </message>
    <message>
        <source>The text takes too much memory.</source>
        <translation>文本占用的内存过多。</translation>
    </message>
    <message>
        <source>The text is longer than 8388608 characters.</source>
        <translation>文本超过 8388608 个字符。</translation>
    </message>
    <message>
        <source>The markup is too disordered to be read safely.</source>
        <translation>标记过于混乱，无法安全读取。</translation>
    </message>
    <message>
        <source>Enter the text anew.</source>
        <translation>请重新输入文本。</translation>
    </message>
</context>
<context>
    <name>ImageInsertion</name>
    <message>
        <source>No picture was inserted. %1</source>
        <translation>未插入图片。%1</translation>
    </message>
    <message>
        <source>At most %1 files can be inserted at once; insert them in parts.</source>
        <translation>一次最多可插入 %1 个文件；请分批插入。</translation>
    </message>
    <message>
        <source>No picture was inserted, because the document could not be opened again: %1</source>
        <translation>未插入图片，因为插入后文档将无法再次打开：%1</translation>
    </message>
    <message>
        <source>Insert Image...</source>
        <translation>插入图片...</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.gif *.bmp)</source>
        <translation>图片 (*.png *.jpg *.jpeg *.gif *.bmp)</translation>
    </message>
</context>
<context>
    <name>ItemCheck</name>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>there are %1 more of these</source>
        <translation>此类问题还有 %1 个</translation>
    </message>
    <message>
        <source>mend the ones above first</source>
        <translation>请先解决上述问题</translation>
    </message>
    <message>
        <source>characters</source>
        <translation>字符</translation>
    </message>
    <message>
        <source>no installed font shows %1</source>
        <translation>已安装的字体都无法显示 %1</translation>
    </message>
    <message>
        <source>install a font that has them or choose other characters</source>
        <translation>请安装包含这些字符的字体，或改用其他字符</translation>
    </message>
    <message>
        <source>it is wider than the item and cut at the side</source>
        <translation>宽度超出文本项，侧边被裁切</translation>
    </message>
    <message>
        <source>use a smaller font or a wider item, or break the line</source>
        <translation>请使用较小的字号或较宽的文本项，或者换行</translation>
    </message>
    <message>
        <source>text %1</source>
        <translation>文本 %1</translation>
    </message>
    <message>
        <source>it is higher than the item and cut</source>
        <translation>高度超出文本项，已被裁切</translation>
    </message>
    <message>
        <source>use a smaller font or a higher item</source>
        <translation>请使用较小的字号或较高的文本项</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 像素</translation>
    </message>
    <message>
        <source>it is larger than the item</source>
        <translation>大于文本项</translation>
    </message>
    <message>
        <source>make the image smaller than %1 x %2 pixels</source>
        <translation>请将图片缩小到 %1 x %2 像素以内</translation>
    </message>
    <message>
        <source>image %1, %2</source>
        <translation>图片 %1，%2</translation>
    </message>
    <message>
        <source>it has the colour of its ground</source>
        <translation>颜色与背景相同</translation>
    </message>
    <message>
        <source>change the colour of the text or of the ground</source>
        <translation>请更改文本或背景的颜色</translation>
    </message>
    <message>
        <source>no installed font shows %1 and %2 more</source>
        <translation>已安装的字体都无法显示 %1 以及另外 %2 个字符</translation>
    </message>
</context>
<context>
    <name>ItemRenderer</name>
    <message>
        <source>size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>%1 x %2 pixels is no page size</source>
        <translation>%1 x %2 像素不是有效的页面大小</translation>
    </message>
    <message>
        <source>give both sides from 1 to %1 pixels, %2 million in all</source>
        <translation>请将两边设为 1 到 %1 像素，总计不超过 %2 百万像素</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>it has more than %1 pages</source>
        <translation>超过 %1 页</translation>
    </message>
    <message>
        <source>make the item higher or its text shorter</source>
        <translation>请增加文本项的高度或缩短文本</translation>
    </message>
    <message>
        <source>image %1</source>
        <translation>图片 %1</translation>
    </message>
    <message>
        <source>font %1</source>
        <translation>字体 %1</translation>
    </message>
    <message>
        <source>it is not installed, another font would be shown</source>
        <translation>未安装，将以其他字体显示</translation>
    </message>
    <message>
        <source>install the font or choose another one</source>
        <translation>请安装该字体或选择其他字体</translation>
    </message>
    <message>
        <source>document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>restore the programme file from a copy; the stored text is kept as it is</source>
        <translation>请用副本恢复节目文件；存储的文本保持原样</translation>
    </message>
    <message>
        <source>document line %1 column %2</source>
        <translation>文档第 %1 行第 %2 列</translation>
    </message>
</context>
<context>
    <name>ItemTemplate</name>
    <message>
        <source>table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>open the item in the editor and bind its table again</source>
        <translation>请在编辑器中打开该节目项并重新绑定表格</translation>
    </message>
    <message>
        <source>the place of its rows is not marked in the stored text</source>
        <translation>存储的文本中没有标出表格行的位置</translation>
    </message>
    <message>
        <source>no row is stored that could be repeated</source>
        <translation>没有存储可重复的行</translation>
    </message>
    <message>
        <source>the cells stored for it do not make up rows</source>
        <translation>存储的单元格不能组成行</translation>
    </message>
    <message>
        <source>its key &quot;%1&quot; leads to no data</source>
        <translation>其键“%1”不指向任何数据</translation>
    </message>
    <message>
        <source>it has room for %1 of %2 columns</source>
        <translation>它只能容纳 %2 列中的 %1 列</translation>
    </message>
    <message>
        <source>make the table wider or show fewer values</source>
        <translation>请加宽表格或减少显示的值</translation>
    </message>
</context>
<context>
    <name>Journals</name>
    <message>
        <source>it is not whole: what it holds does not match its checksum</source>
        <translation>副本不完整：内容与校验和不符</translation>
    </message>
    <message>
        <source>it is no copy that was saved automatically</source>
        <translation>这不是自动保存的副本</translation>
    </message>
    <message>
        <source>it was written by another release</source>
        <translation>副本由其他版本写入</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>文件过大</translation>
    </message>
</context>
<context>
    <name>KeySuggestion</name>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>您是否想用“%1”？</translation>
    </message>
    <message>
        <source>choose a key that the source has</source>
        <translation>请选择数据源中存在的键</translation>
    </message>
    <message>
        <source>add a source of the name &quot;%1&quot; or choose another key</source>
        <translation>请添加名为“%1”的数据源或选择其他键</translation>
    </message>
</context>
<context>
    <name>LConditionalStyling</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Input Source</source>
        <translation>输入源</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Expression Type</source>
        <translation>表达式类型</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>字号</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>BackgroundColor</source>
        <translation>背景颜色</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Underline</source>
        <translation>下划线</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Conditional Styling</source>
        <translation>条件样式</translation>
    </message>
    <message>
        <source>No conditional styles yet. &quot;Add configuration item&quot; makes the first one.</source>
        <translation>还没有条件样式。点击“添加配置项”创建第一个。</translation>
    </message>
    <message>
        <source>Configuration item</source>
        <translation>配置项</translation>
    </message>
    <message>
        <source>Select Color</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>Duplicate Name</source>
        <translation>名称重复</translation>
    </message>
    <message>
        <source>Name must be unique, please enter a different name!</source>
        <translation>名称必须唯一，请输入其他名称！</translation>
    </message>
    <message>
        <source>Invalid Name</source>
        <translation>名称无效</translation>
    </message>
    <message>
        <source>Name contains illegal characters.</source>
        <translation>名称包含非法字符。</translation>
    </message>
    <message>
        <source>Choose a configuration item to try a value</source>
        <translation>选择一个配置项以测试数值</translation>
    </message>
</context>
<context>
    <name>LEffectNode</name>
    <message>
        <source>No Effect</source>
        <translation>无特技</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>随机</translation>
    </message>
    <message>
        <source>Slide Left</source>
        <translation>左移</translation>
    </message>
    <message>
        <source>Slide Right</source>
        <translation>右移</translation>
    </message>
    <message>
        <source>Slide Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Slide Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Wipe Left</source>
        <translation>向左擦除</translation>
    </message>
    <message>
        <source>Wipe Right</source>
        <translation>向右擦除</translation>
    </message>
    <message>
        <source>Wipe Up</source>
        <translation>向上擦除</translation>
    </message>
    <message>
        <source>Wipe Down</source>
        <translation>向下擦除</translation>
    </message>
    <message>
        <source>Horizontal Blinds</source>
        <translation>水平百叶窗</translation>
    </message>
    <message>
        <source>Vertical Blinds</source>
        <translation>垂直百叶窗</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>淡入淡出</translation>
    </message>
    <message>
        <source>Mosaic</source>
        <translation>马赛克</translation>
    </message>
    <message>
        <source>Laser</source>
        <translation>激光</translation>
    </message>
    <message>
        <source>Curtain Open</source>
        <translation>幕布拉开</translation>
    </message>
    <message>
        <source>Curtain Close</source>
        <translation>幕布合拢</translation>
    </message>
    <message>
        <source>Curtain Up</source>
        <translation>幕布升起</translation>
    </message>
    <message>
        <source>Curtain Down</source>
        <translation>幕布落下</translation>
    </message>
    <message>
        <source>Scroll</source>
        <translation>卷轴</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>飘雪</translation>
    </message>
    <message>
        <source>Keep Page</source>
        <translation>保持画面</translation>
    </message>
    <message>
        <source>Box Out</source>
        <translation>方框展开</translation>
    </message>
    <message>
        <source>Box In</source>
        <translation>方框收缩</translation>
    </message>
    <message>
        <source>Blink</source>
        <translation>闪烁</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>棋盘格</translation>
    </message>
</context>
<context>
    <name>LModbusParameterOperation</name>
    <message>
        <source>Name contains illegal characters.</source>
        <translation>名称包含非法字符。</translation>
    </message>
    <message>
        <source>Name already exists!</source>
        <translation>名称已存在！</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Conditional Operation</source>
        <translation>条件运算</translation>
    </message>
    <message>
        <source>ConfigName</source>
        <translation>配置名称</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Expression Name</source>
        <translation>表达式名称</translation>
    </message>
    <message>
        <source>Selection Operator</source>
        <translation>选择运算符</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>No configuration item yet. “Add configuration item” makes one.</source>
        <translation>还没有配置项。请用“添加配置项”新建一个。</translation>
    </message>
</context>
<context>
    <name>Lum::LTextPlugin::LTextClient</name>
    <message>
        <source>Play Time</source>
        <translation>播放时间</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>停留</translation>
    </message>
    <message>
        <source>Continuous Move Up</source>
        <translation>连续上移</translation>
    </message>
    <message>
        <source>Continuous Move Right</source>
        <translation>连续右移</translation>
    </message>
    <message>
        <source>Continuous Move Left</source>
        <translation>连续左移</translation>
    </message>
    <message>
        <source>1 fast</source>
        <translation>1 最快</translation>
    </message>
    <message>
        <source>9 slow</source>
        <translation>9 最慢</translation>
    </message>
    <message>
        <source>By Time</source>
        <translation>按时长</translation>
    </message>
    <message>
        <source>By Count</source>
        <translation>按次数</translation>
    </message>
    <message>
        <source>Continuous Move</source>
        <translation>连续移动</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>No Effect</source>
        <translation>无特技</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>随机</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清屏</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Conditional Style Settings</source>
        <translation>条件样式设置</translation>
    </message>
    <message>
        <source>Operation Settings</source>
        <translation>运算设置</translation>
    </message>
    <message>
        <source>Bind Table</source>
        <translation>绑定表格</translation>
    </message>
    <message>
        <source>Not bound</source>
        <translation>未绑定</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>标识</translation>
    </message>
    <message>
        <source>The use of dynamic data sources for violent, terrorist, pornographic, or other illegal information is strictly prohibited. Any violations will be dealt with in accordance with relevant laws and regulations.</source>
        <translation>严禁利用动态数据源发布暴力、恐怖、色情等违法信息，违者将依照相关法律法规处理。</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Leave editing</source>
        <translation>退出编辑</translation>
    </message>
    <message>
        <source>Seconds for which the item plays</source>
        <translation>播放该文本项的秒数</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Number of times that the item plays</source>
        <translation>播放该文本项的次数</translation>
    </message>
    <message>
        <source>Show and clear pages without an effect</source>
        <translation>页面的显示和清屏不使用特技</translation>
    </message>
    <message>
        <source>Show and clear pages with random effects</source>
        <translation>页面的显示和清屏使用随机特技</translation>
    </message>
    <message>
        <source>Display effect</source>
        <translation>显示特技</translation>
    </message>
    <message>
        <source>How a page appears</source>
        <translation>页面如何出现</translation>
    </message>
    <message>
        <source>Display speed</source>
        <translation>显示速度</translation>
    </message>
    <message>
        <source>How fast a page appears</source>
        <translation>页面出现的快慢</translation>
    </message>
    <message>
        <source>Clear effect</source>
        <translation>清屏特技</translation>
    </message>
    <message>
        <source>How a page disappears</source>
        <translation>页面如何消失</translation>
    </message>
    <message>
        <source>Clear speed</source>
        <translation>清屏速度</translation>
    </message>
    <message>
        <source>How fast a page disappears</source>
        <translation>页面消失的快慢</translation>
    </message>
    <message>
        <source>Hold time</source>
        <translation>停留时间</translation>
    </message>
    <message>
        <source>How long a page stays</source>
        <translation>页面停留的时长</translation>
    </message>
    <message>
        <source>Field that the table shows</source>
        <translation>表格显示的字段</translation>
    </message>
    <message>
        <source>Name under which other systems find the item</source>
        <translation>其他系统查找该文本项时使用的名称</translation>
    </message>
    <message>
        <source>The pages move by without a stop; the display effect is the direction</source>
        <translation>页面不停顿地连续移动；显示效果决定移动方向</translation>
    </message>
    <message>
        <source>What this item stores cannot be read (byte %1: %2). It stays as it is until you accept the dialog with changes.</source>
        <translation>无法读取此节目项存储的内容（第 %1 字节：%2）。在您修改并确认对话框之前，它保持不变。</translation>
    </message>
    <message>
        <source>A copy is kept in %1</source>
        <translation>副本保存在 %1</translation>
    </message>
    <message>
        <source>No copy could be written to %1: free some space or allow writing there, then try again.</source>
        <translation>无法将副本写入 %1：请释放一些空间或允许写入，然后重试。</translation>
    </message>
</context>
<context>
    <name>NoData</name>
    <message>
        <source>No data</source>
        <translation>暂无数据</translation>
    </message>
</context>
<context>
    <name>NodePublisher</name>
    <message>
        <source>The stored document cannot be read: %1</source>
        <translation>无法读取存储的文档：%1</translation>
    </message>
    <message>
        <source>The stored document cannot be shown (line %1, column %2): %3 %4</source>
        <translation>无法显示存储的文档（第 %1 行，第 %2 列）：%3%4</translation>
    </message>
</context>
<context>
    <name>Operation</name>
    <message>
        <source>%1: argument %2, &quot;%3&quot;, is not a number.</source>
        <translation>%1：第 %2 个参数“%3”不是数字。</translation>
    </message>
    <message>
        <source>%1: argument %2 is empty, because %3 is computed later.</source>
        <translation>%1：第 %2 个参数为空，因为 %3 在后面才计算。</translation>
    </message>
    <message>
        <source>%1: argument %2 is empty, because %3 refers to itself.</source>
        <translation>%1：第 %2 个参数为空，因为 %3 引用了自身。</translation>
    </message>
    <message>
        <source>%1: argument %2 is empty, because there is no step %3.</source>
        <translation>%1：第 %2 个参数为空，因为没有步骤 %3。</translation>
    </message>
    <message>
        <source>%1: argument %2 is empty, because %3 has no result.</source>
        <translation>%1：第 %2 个参数为空，因为 %3 没有结果。</translation>
    </message>
    <message>
        <source>%1: the result is longer than %2 characters.</source>
        <translation>%1：结果超过 %2 个字符。</translation>
    </message>
    <message>
        <source>%1: the list has more than %2 parts.</source>
        <translation>%1：列表超过 %2 项。</translation>
    </message>
    <message>
        <source>%1: the steps so far have handled more than %2 characters; use shorter texts or fewer steps.</source>
        <translation>%1：到此为止的步骤已处理超过 %2 个字符；请使用更短的文本或减少步骤。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; needs at least %3 arguments, has %4.</source>
        <translation>%1：“%2”至少需要 %3 个参数，现有 %4 个。</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; needs %3 arguments, has %4.</source>
        <translation>%1：“%2”需要 %3 个参数，现有 %4 个。</translation>
    </message>
    <message>
        <source>The decimal range is 0-6, and if it exceeds this range, the boundary will be used</source>
        <translation>小数位数的范围是 0-6，超出范围时使用边界值</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>步骤 %1</translation>
    </message>
    <message>
        <source>%1: there is no operator &quot;%2&quot;.</source>
        <translation>%1：没有运算符“%2”。</translation>
    </message>
    <message>
        <source>%1: position %2 is outside the list of %3.</source>
        <translation>%1：位置 %2 超出共 %3 项的列表。</translation>
    </message>
    <message>
        <source>%1: argument %2, &quot;%3&quot;, is not a whole number or is too large.</source>
        <translation>%1：第 %2 个参数“%3”不是整数或过大。</translation>
    </message>
    <message>
        <source>%1: argument %2, &quot;%3&quot;, is not a whole number or is too large; it counts as 0.</source>
        <translation>%1：第 %2 个参数“%3”不是整数或过大，按 0 处理。</translation>
    </message>
</context>
<context>
    <name>OperationItems</name>
    <message>
        <source>Configuration item</source>
        <translation>配置项</translation>
    </message>
</context>
<context>
    <name>PageDocuments</name>
    <message>
        <source>rows of the table</source>
        <translation>表格的行</translation>
    </message>
</context>
<context>
    <name>PastedText</name>
    <message>
        <source>The text was not inserted: it has %1 characters, and at most %2 can be inserted at once. Insert it in parts, or divide it into several items.</source>
        <translation>未插入文本：它有 %1 个字符，而一次最多可插入 %2 个。请分次插入，或将其分到多个文本项。</translation>
    </message>
    <message>
        <source>The text was not inserted: it has %1 lines, and at most %2 can be inserted at once. Insert it in parts, or divide it into several items.</source>
        <translation>未插入文本：它有 %1 行，而一次最多可插入 %2 行。请分次插入，或将其分到多个文本项。</translation>
    </message>
    <message>
        <source>The text of %1 characters was not inserted, because the document could not be opened again: %2</source>
        <translation>未插入这段 %1 个字符的文本，因为插入后文档将无法再次打开：%2</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>The plug-in with the text editor was not found.</source>
        <translation>未找到文本编辑器插件。</translation>
    </message>
    <message>
        <source>Install it beside the program, or name its file with --plugin FILE.</source>
        <translation>请将其安装到程序所在位置，或用 --plugin FILE 指定其文件。</translation>
    </message>
    <message>
        <source>Install the plug-in of the same version as the workbench.</source>
        <translation>请安装与工作台版本相同的插件。</translation>
    </message>
    <message>
        <source>The library does not export the text client.</source>
        <translation>该库没有导出文本客户端。</translation>
    </message>
    <message>
        <source>Name the file of the plug-in with --plugin FILE.</source>
        <translation>请用 --plugin FILE 指定插件文件。</translation>
    </message>
    <message>
        <source>The plug-in gave no client.</source>
        <translation>插件没有提供客户端。</translation>
    </message>
</context>
<context>
    <name>ProgrammeDocument</name>
    <message>
        <source>Frame %1</source>
        <translation>分区 %1</translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation>屏幕 %1</translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation>文本 %1</translation>
    </message>
    <message>
        <source>Change stroke</source>
        <translation>更改描边</translation>
    </message>
    <message>
        <source>Change hollow text</source>
        <translation>更改空心字</translation>
    </message>
    <message>
        <source>Change background</source>
        <translation>更改背景</translation>
    </message>
    <message>
        <source>Change alignment</source>
        <translation>更改对齐方式</translation>
    </message>
    <message>
        <source>Change spacing</source>
        <translation>更改间距</translation>
    </message>
    <message>
        <source>Change font</source>
        <translation>更改字体</translation>
    </message>
    <message>
        <source>Change effect</source>
        <translation>更改特技</translation>
    </message>
    <message>
        <source>Change hold time</source>
        <translation>更改停留时间</translation>
    </message>
    <message>
        <source>Change playing time</source>
        <translation>更改播放时间</translation>
    </message>
    <message>
        <source>Change border</source>
        <translation>更改边框</translation>
    </message>
    <message>
        <source>Change place</source>
        <translation>更改位置</translation>
    </message>
    <message>
        <source>Change size</source>
        <translation>更改大小</translation>
    </message>
    <message>
        <source>Change name</source>
        <translation>更改名称</translation>
    </message>
    <message>
        <source>Change identifier</source>
        <translation>更改标识</translation>
    </message>
    <message>
        <source>Change controller</source>
        <translation>更改控制器</translation>
    </message>
    <message>
        <source>Change data source</source>
        <translation>更改数据源</translation>
    </message>
    <message>
        <source>Change conditional styles</source>
        <translation>更改条件样式</translation>
    </message>
    <message>
        <source>Change calculations</source>
        <translation>更改运算</translation>
    </message>
    <message>
        <source>Change table</source>
        <translation>更改表格</translation>
    </message>
    <message>
        <source>Change item</source>
        <translation>更改文本项</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>编辑文本</translation>
    </message>
    <message>
        <source>Change antialiasing</source>
        <translation>更改抗锯齿</translation>
    </message>
</context>
<context>
    <name>ProgrammeFile</name>
    <message>
        <source>line %1, column %2</source>
        <translation>第 %1 行第 %2 列</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>check its name and whether you may read it</source>
        <translation>请检查文件名以及您是否有读取权限</translation>
    </message>
    <message>
        <source>name a *.programme.json file</source>
        <translation>请指定 *.programme.json 文件</translation>
    </message>
    <message>
        <source>the file is larger than 256 MiB</source>
        <translation>文件大于 256 MiB</translation>
    </message>
    <message>
        <source>the file cannot be written: %1</source>
        <translation>无法写入文件：%1</translation>
    </message>
    <message>
        <source>the old file is unchanged; make room, or save elsewhere</source>
        <translation>原文件未更改；请腾出空间，或保存到其他位置</translation>
    </message>
    <message>
        <source>mend the value named, or restore the file from a copy</source>
        <translation>请修正所指的值，或用副本恢复文件</translation>
    </message>
    <message>
        <source>the file is not well-formed JSON: %1</source>
        <translation>文件不是格式正确的 JSON：%1</translation>
    </message>
    <message>
        <source>mend the place named, or restore the file from a copy</source>
        <translation>请修正所指的位置，或用副本恢复文件</translation>
    </message>
    <message>
        <source>a programme is a JSON object</source>
        <translation>节目必须是一个 JSON 对象</translation>
    </message>
    <message>
        <source>this is no programme file</source>
        <translation>这不是节目文件</translation>
    </message>
    <message>
        <source>its &quot;format&quot; must be &quot;%1&quot;</source>
        <translation>其 &quot;format&quot; 必须为 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the file says no version</source>
        <translation>文件没有注明版本</translation>
    </message>
    <message>
        <source>write &quot;version&quot;: %1</source>
        <translation>请写入 &quot;version&quot;: %1</translation>
    </message>
    <message>
        <source>version %1 is newer than the %2 that this program reads</source>
        <translation>版本 %1 高于本程序可读取的版本 %2</translation>
    </message>
    <message>
        <source>open the file with a newer release</source>
        <translation>请用较新的版本打开该文件</translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation>屏幕 %1</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>分区 %1</translation>
    </message>
    <message>
        <source>there is no such kind of item</source>
        <translation>没有这种类型的项</translation>
    </message>
    <message>
        <source>write &quot;type&quot;: &quot;%1&quot;</source>
        <translation>请写入 &quot;type&quot;: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Text %1</source>
        <translation>文本 %1</translation>
    </message>
    <message>
        <source>it must be HTML: a text or a list of lines</source>
        <translation>必须是 HTML：一段文本或由多行组成的列表</translation>
    </message>
    <message>
        <source>the item has a document twice, here and as its RawHtml</source>
        <translation>该项有两份文档：此处一份，RawHtml 中一份</translation>
    </message>
    <message>
        <source>remove one of them</source>
        <translation>请删除其中一份</translation>
    </message>
    <message>
        <source>it must be a list</source>
        <translation>必须是列表</translation>
    </message>
    <message>
        <source>it must be an object</source>
        <translation>必须是对象</translation>
    </message>
    <message>
        <source>it must be a text in quotes</source>
        <translation>必须是带引号的文本</translation>
    </message>
    <message>
        <source>it must be a whole number</source>
        <translation>必须是整数</translation>
    </message>
    <message>
        <source>it must be true or false</source>
        <translation>必须是 true 或 false</translation>
    </message>
    <message>
        <source>it must be &quot;LED&quot; or &quot;LCD&quot;</source>
        <translation>必须是 &quot;LED&quot; 或 &quot;LCD&quot;</translation>
    </message>
    <message>
        <source>it must be a whole number of pixels from 1 to %1</source>
        <translation>必须是 1 到 %1 的整数像素值</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>关闭此面板</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮动</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>使此面板浮动，或重新停靠</translation>
    </message>
</context>
<context>
    <name>QTabBar</name>
    <message>
        <source>Scroll Left</source>
        <translation>向左滚动</translation>
    </message>
    <message>
        <source>Scroll Right</source>
        <translation>向右滚动</translation>
    </message>
</context>
<context>
    <name>RasterImage</name>
    <message>
        <source>The picture is too large; save it with at most 16384 pixels on a side and 64 million pixels in all.</source>
        <translation>图片过大；请以每边最多 16384 像素、总计最多 6400 万像素保存。</translation>
    </message>
    <message>
        <source>The file is not a PNG, JPEG, GIF or BMP picture; convert it to one of these.</source>
        <translation>该文件不是 PNG、JPEG、GIF 或 BMP 图片；请转换为其中一种格式。</translation>
    </message>
    <message>
        <source>The picture is damaged or incomplete; save it again or copy it anew.</source>
        <translation>图片已损坏或不完整；请重新保存或复制。</translation>
    </message>
    <message>
        <source>The picture cannot be read; check that the file exists and may be read.</source>
        <translation>无法读取图片；请检查文件是否存在以及是否有读取权限。</translation>
    </message>
    <message>
        <source>This is not a file with a picture; choose a picture file.</source>
        <translation>这不是图片文件；请选择图片文件。</translation>
    </message>
    <message>
        <source>The picture file is larger than %1 MB; save it smaller.</source>
        <translation>图片文件大于 %1 MB；请缩小后保存。</translation>
    </message>
</context>
<context>
    <name>RecordTexts</name>
    <message>
        <source>a list is expected</source>
        <translation>应为列表</translation>
    </message>
</context>
<context>
    <name>RecordsCheck</name>
    <message>
        <source>conditional styles</source>
        <translation>条件样式</translation>
    </message>
    <message>
        <source>calculations</source>
        <translation>运算</translation>
    </message>
    <message>
        <source>they cannot be read from character %1 on: %2</source>
        <translation>从第 %1 个字符起无法读取：%2</translation>
    </message>
    <message>
        <source>mend them in the programme file or set them anew</source>
        <translation>请在节目文件中修正，或重新设置</translation>
    </message>
    <message>
        <source>conditional style %1, condition %2</source>
        <translation>条件样式 %1，条件 %2</translation>
    </message>
    <message>
        <source>change the condition or delete it</source>
        <translation>请修改或删除该条件</translation>
    </message>
    <message>
        <source>calculation %1</source>
        <translation>运算 %1</translation>
    </message>
    <message>
        <source>change the step or delete it</source>
        <translation>请修改或删除该步骤</translation>
    </message>
    <message>
        <source>conditional style %1</source>
        <translation>条件样式 %1</translation>
    </message>
    <message>
        <source>nothing in the item uses it</source>
        <translation>节目项中没有内容使用它</translation>
    </message>
    <message>
        <source>give it to a text or delete it</source>
        <translation>请将其应用于文本或删除</translation>
    </message>
</context>
<context>
    <name>Sources</name>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>there are more than %1 columns</source>
        <translation>超过 %1 列</translation>
    </message>
    <message>
        <source>the table is too large</source>
        <translation>表格过大</translation>
    </message>
    <message>
        <source>the text ends within quotes</source>
        <translation>文本在引号内结束</translation>
    </message>
    <message>
        <source>there is no header line</source>
        <translation>没有标题行</translation>
    </message>
    <message>
        <source>there is no kind of source with the number %1</source>
        <translation>没有编号为 %1 的数据源类型</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>the file never rests</source>
        <translation>文件一直在变化</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>it is larger than %1 bytes</source>
        <translation>大于 %1 字节</translation>
    </message>
    <message>
        <source>something follows behind the end</source>
        <translation>结尾之后还有内容</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>第 %1 行，第 %2 列：%3</translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation>文本过早结束</translation>
    </message>
    <message>
        <source>this is no JSON</source>
        <translation>这不是 JSON</translation>
    </message>
    <message>
        <source>it is nested too deeply</source>
        <translation>嵌套过深</translation>
    </message>
    <message>
        <source>the number is too large</source>
        <translation>数字过大</translation>
    </message>
    <message>
        <source>a text holds a control character</source>
        <translation>文本中含有控制字符</translation>
    </message>
    <message>
        <source>the text is not UTF-8</source>
        <translation>文本不是 UTF-8</translation>
    </message>
    <message>
        <source>a secret must not stand in the file; put it into an environment variable and write ${env:NAME} here</source>
        <translation>密码等机密不得写在文件中；请放入环境变量，并在此写 ${env:NAME}</translation>
    </message>
    <message>
        <source>the environment variable %1 is not set</source>
        <translation>环境变量 %1 未设置</translation>
    </message>
    <message>
        <source>mend the value named</source>
        <translation>请更正所指的值</translation>
    </message>
    <message>
        <source>check the file that &quot;sources&quot; names</source>
        <translation>请检查 &quot;sources&quot; 所指的文件</translation>
    </message>
    <message>
        <source>there is another source of that name</source>
        <translation>已有同名的数据源</translation>
    </message>
    <message>
        <source>it must be a list, or the name of a file</source>
        <translation>必须是列表或文件名</translation>
    </message>
    <message>
        <source>it must be an object</source>
        <translation>必须是对象</translation>
    </message>
    <message>
        <source>not well-formed JSON: %1</source>
        <translation>不是格式正确的 JSON：%1</translation>
    </message>
    <message>
        <source>what stands there could not be read; mend it first, so that it is not lost</source>
        <translation>那里的内容无法读取；请先更正，以免丢失</translation>
    </message>
    <message>
        <source>CSV or text file</source>
        <translation>CSV 或文本文件</translation>
    </message>
    <message>
        <source>JSON file</source>
        <translation>JSON 文件</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>it must be a text in quotes</source>
        <translation>必须是带引号的文本</translation>
    </message>
    <message>
        <source>it must be true or false</source>
        <translation>必须是 true 或 false</translation>
    </message>
    <message>
        <source>it must be a number from %1 to %2</source>
        <translation>必须是 %1 到 %2 之间的数</translation>
    </message>
    <message>
        <source>it must be an http or https address</source>
        <translation>必须是 http 或 https 地址</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>缺少此项</translation>
    </message>
    <message>
        <source>a name must not hold any of %1</source>
        <translation>名称不得含有下列字符：%1</translation>
    </message>
    <message>
        <source>it must be &quot;csv&quot;, &quot;text&quot; or &quot;json&quot;</source>
        <translation>必须是 &quot;csv&quot;、&quot;text&quot; 或 &quot;json&quot;</translation>
    </message>
    <message>
        <source>it must be one character such as &quot;,&quot;</source>
        <translation>必须是一个字符，例如 &quot;,&quot;</translation>
    </message>
    <message>
        <source>there is no such encoding</source>
        <translation>没有这种编码</translation>
    </message>
    <message>
        <source>there is no encoding %1</source>
        <translation>没有编码 %1</translation>
    </message>
    <message>
        <source>the text is too long for an encoding other than UTF-8</source>
        <translation>文本过长，只能使用 UTF-8 编码</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>%1 秒内没有应答</translation>
    </message>
    <message>
        <source>the answer is larger than %1 bytes</source>
        <translation>应答大于 %1 字节</translation>
    </message>
    <message>
        <source>the address leads to a scheme other than http and https</source>
        <translation>地址指向 http 和 https 以外的协议</translation>
    </message>
    <message>
        <source>a redirection from https to http is not followed</source>
        <translation>不跟随从 https 到 http 的重定向</translation>
    </message>
    <message>
        <source>more than %1 redirections</source>
        <translation>重定向超过 %1 次</translation>
    </message>
    <message>
        <source>the connection failed: %1</source>
        <translation>连接失败：%1</translation>
    </message>
    <message>
        <source>the answer is cut off</source>
        <translation>应答被截断</translation>
    </message>
    <message>
        <source>the server answered %1 %2</source>
        <translation>服务器应答 %1 %2</translation>
    </message>
    <message>
        <source>the answer is cut off: %1 of %2 bytes came</source>
        <translation>应答被截断：%2 字节中只收到 %1 字节</translation>
    </message>
    <message>
        <source>the answer is empty</source>
        <translation>应答为空</translation>
    </message>
    <message>
        <source>the content type %1 is neither JSON nor CSV; set &quot;format&quot;</source>
        <translation>内容类型 %1 既不是 JSON 也不是 CSV；请设置 &quot;format&quot;</translation>
    </message>
    <message>
        <source>the recording cannot be read: %1</source>
        <translation>无法读取记录：%1</translation>
    </message>
    <message>
        <source>the recording is empty</source>
        <translation>记录为空</translation>
    </message>
    <message>
        <source>line %1 of the recording is damaged</source>
        <translation>记录的第 %1 行已损坏</translation>
    </message>
    <message>
        <source>HTTP or HTTPS</source>
        <translation>HTTP 或 HTTPS</translation>
    </message>
    <message>
        <source>SQL database</source>
        <translation>SQL 数据库</translation>
    </message>
    <message>
        <source>the driver %1 is missing</source>
        <translation>缺少驱动 %1</translation>
    </message>
    <message>
        <source>the driver %1 is missing; install the Debian package %2</source>
        <translation>缺少驱动 %1；请安装 Debian 软件包 %2</translation>
    </message>
    <message>
        <source>the database cannot be opened: %1</source>
        <translation>无法打开数据库：%1</translation>
    </message>
    <message>
        <source>the query %1 failed: %2</source>
        <translation>查询 %1 失败：%2</translation>
    </message>
    <message>
        <source>the query %1 has no columns</source>
        <translation>查询 %1 没有列</translation>
    </message>
    <message>
        <source>the query %1 took longer than %2 seconds</source>
        <translation>查询 %1 超过 %2 秒</translation>
    </message>
    <message>
        <source>the query %1 has more than %2 rows</source>
        <translation>查询 %1 超过 %2 行</translation>
    </message>
    <message>
        <source>the certificate cannot be read: %1</source>
        <translation>无法读取证书：%1</translation>
    </message>
    <message>
        <source>there is no certificate in %1</source>
        <translation>%1 中没有证书</translation>
    </message>
    <message>
        <source>the server is not trusted: %1</source>
        <translation>服务器不受信任：%1</translation>
    </message>
</context>
<context>
    <name>TableMenu</name>
    <message>
        <source>Insert Row Above</source>
        <translation>在上方插入行</translation>
    </message>
    <message>
        <source>Insert Row Below</source>
        <translation>在下方插入行</translation>
    </message>
    <message>
        <source>Delete Row</source>
        <translation>删除行</translation>
    </message>
    <message>
        <source>Insert Column Left</source>
        <translation>在左侧插入列</translation>
    </message>
    <message>
        <source>Insert Column Right</source>
        <translation>在右侧插入列</translation>
    </message>
    <message>
        <source>Delete Column</source>
        <translation>删除列</translation>
    </message>
    <message>
        <source>Merge Cells</source>
        <translation>合并单元格</translation>
    </message>
    <message>
        <source>Split Vertically</source>
        <translation>垂直拆分</translation>
    </message>
    <message>
        <source>Split Horizontally</source>
        <translation>水平拆分</translation>
    </message>
    <message>
        <source>Table Properties</source>
        <translation>表格属性</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Split Cell</source>
        <translation>拆分单元格</translation>
    </message>
</context>
<context>
    <name>TableProperty</name>
    <message>
        <source>Table property</source>
        <translation>表格属性</translation>
    </message>
    <message>
        <source>A table has at most 20,000 cells and is at most 16,384 pixels wide. Make it smaller.</source>
        <translation>表格最多 20,000 个单元格，宽度最多 16,384 像素。请减小表格。</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Fixed form</source>
        <translation>固定表格</translation>
    </message>
    <message>
        <source>Dynamic Rows</source>
        <translation>动态行</translation>
    </message>
    <message>
        <source>Dynamic Columns</source>
        <translation>动态列</translation>
    </message>
    <message>
        <source>Adaptive Rows and Columns</source>
        <translation>自适应行列</translation>
    </message>
    <message>
        <source>Table Head</source>
        <translation>表头</translation>
    </message>
    <message>
        <source>Freeze Top Row</source>
        <translation>冻结首行</translation>
    </message>
    <message>
        <source>Turn the page</source>
        <translation>翻页</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Adaptive Region</source>
        <translation>自适应区域</translation>
    </message>
    <message>
        <source>Alignment and Color</source>
        <translation>对齐和颜色</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>背景颜色</translation>
    </message>
    <message>
        <source>Border and Margins</source>
        <translation>边框和边距</translation>
    </message>
    <message>
        <source>Margins in cell</source>
        <translation>单元格边距</translation>
    </message>
    <message>
        <source>pixels between cell border and its contets</source>
        <translation>单元格边框与内容之间的像素</translation>
    </message>
    <message>
        <source>Border Width</source>
        <translation>边框宽度</translation>
    </message>
    <message>
        <source>Border Color:</source>
        <translation>边框颜色：</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Height of the table while its cells are empty</source>
        <translation>单元格为空时表格的高度</translation>
    </message>
    <message>
        <source>How much of the item&apos;s height the table takes</source>
        <translation>表格占文本项高度的比例</translation>
    </message>
    <message>
        <source>Stretch the table to the height of the page</source>
        <translation>将表格拉伸到页面高度</translation>
    </message>
    <message>
        <source>Repeat the first row on every page</source>
        <translation>在每一页重复首行</translation>
    </message>
</context>
<context>
    <name>TableQuestions</name>
    <message>
        <source>Split Vertically</source>
        <translation>垂直拆分</translation>
    </message>
    <message>
        <source>Split Horizontally</source>
        <translation>水平拆分</translation>
    </message>
    <message>
        <source>Please enter the number of rows: </source>
        <translation>请输入行数：</translation>
    </message>
    <message>
        <source>Please enter the number of columns: </source>
        <translation>请输入列数：</translation>
    </message>
    <message>
        <source>Insert Table</source>
        <translation>插入表格</translation>
    </message>
</context>
<context>
    <name>TextEdit</name>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>文本颜色</translation>
    </message>
    <message>
        <source>Text Background Color</source>
        <translation>文本背景色</translation>
    </message>
    <message>
        <source>Editor Background Color</source>
        <translation>编辑器背景色</translation>
    </message>
    <message>
        <source>Stroke Color</source>
        <translation>描边颜色</translation>
    </message>
    <message>
        <source>Insert Table</source>
        <translation>插入表格</translation>
    </message>
    <message>
        <source>Only one table can be inserted per editor.</source>
        <translation>每个编辑器只能插入一个表格。</translation>
    </message>
    <message>
        <source>This text could not be opened again as it is now: %1</source>
        <translation>这段文本目前的状态将无法再次打开：%1</translation>
    </message>
    <message>
        <source>The text was not converted: %1</source>
        <translation>文本未转换：%1</translation>
    </message>
    <message>
        <source>The text was not converted because it was changed meanwhile. Try again.</source>
        <translation>文本未转换，因为其间文本已被更改。请重试。</translation>
    </message>
    <message>
        <source>New Table</source>
        <translation>新建表格</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) that were pasted found no place in the table and were left out. Make the table larger first.</source>
        <translation>
            <numerusform>粘贴的内容中有 %n 个单元格在表格中放不下，已忽略。请先扩大表格。</numerusform>
        </translation>
    </message>
    <message>
        <source>Modify table properties</source>
        <translation>修改表格属性</translation>
    </message>
</context>
<context>
    <name>TextProgressWidget</name>
    <message>
        <source>Converting the Text</source>
        <translation>正在转换文本</translation>
    </message>
    <message>
        <source>Progress of the conversion</source>
        <translation>转换进度</translation>
    </message>
    <message>
        <source>Exit the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>File is the conversion, whether to quit the conversion?</source>
        <translation>文件正在转换，是否退出转换？</translation>
    </message>
</context>
<context>
    <name>lctrlsex::BindingMenus</name>
    <message>
        <source>Filter DataSource</source>
        <translation>筛选数据源</translation>
    </message>
    <message>
        <source>Choose the data source whose fields can be inserted</source>
        <translation>选择可供插入字段的数据源</translation>
    </message>
    <message>
        <source>Insert field</source>
        <translation>插入字段</translation>
    </message>
    <message>
        <source>Insert a field that shows its current value</source>
        <translation>插入显示当前值的字段</translation>
    </message>
    <message>
        <source>Condition styles</source>
        <translation>条件样式</translation>
    </message>
    <message>
        <source>Give the selected text a look that depends on data</source>
        <translation>让所选文本的外观随数据变化</translation>
    </message>
    <message>
        <source>Expression Data Source</source>
        <translation>运算数据源</translation>
    </message>
    <message>
        <source>No data source is enabled</source>
        <translation>没有启用的数据源</translation>
    </message>
    <message>
        <source>Choose a data source first</source>
        <translation>请先选择数据源</translation>
    </message>
    <message>
        <source>The data source has no fields</source>
        <translation>该数据源没有字段</translation>
    </message>
    <message>
        <source>No calculation is defined</source>
        <translation>未定义运算</translation>
    </message>
    <message>
        <source>No conditional style is defined</source>
        <translation>未定义条件样式</translation>
    </message>
</context>
<context>
    <name>lctrlsex::ConditionCells</name>
    <message>
        <source>No data source</source>
        <translation>没有数据源</translation>
    </message>
    <message>
        <source>Choose a field</source>
        <translation>选择字段</translation>
    </message>
    <message>
        <source>%1 (not available)</source>
        <translation>%1（不可用）</translation>
    </message>
</context>
<context>
    <name>lctrlsex::EditToolBar</name>
    <message>
        <source>&amp;Color...</source>
        <translation>颜色(&amp;C)...</translation>
    </message>
    <message>
        <source>Text Color</source>
        <translation>文本颜色</translation>
    </message>
    <message>
        <source>Text Background Color</source>
        <translation>文本背景色</translation>
    </message>
    <message>
        <source>Text Background Color...</source>
        <translation>文本背景色...</translation>
    </message>
    <message>
        <source>Clear Background Color</source>
        <translation>清除背景色</translation>
    </message>
    <message>
        <source>Clear Text Background Color</source>
        <translation>清除文本背景色</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>粗体(&amp;B)</translation>
    </message>
    <message>
        <source>Text Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>斜体(&amp;I)</translation>
    </message>
    <message>
        <source>Text Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>&amp;Underline</source>
        <translation>下划线(&amp;U)</translation>
    </message>
    <message>
        <source>Text Underline</source>
        <translation>下划线</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>左对齐(&amp;L)</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>左对齐</translation>
    </message>
    <message>
        <source>C&amp;enter</source>
        <translation>居中(&amp;E)</translation>
    </message>
    <message>
        <source>Align Center</source>
        <translation>水平居中</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>右对齐(&amp;R)</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>右对齐</translation>
    </message>
    <message>
        <source>&amp;Justify</source>
        <translation>两端对齐(&amp;J)</translation>
    </message>
    <message>
        <source>Align Justify</source>
        <translation>两端对齐</translation>
    </message>
    <message>
        <source>Content Align Bottom</source>
        <translation>内容靠下</translation>
    </message>
    <message>
        <source>Content Align Center</source>
        <translation>内容垂直居中</translation>
    </message>
    <message>
        <source>Content Align Top</source>
        <translation>内容靠上</translation>
    </message>
    <message>
        <source>Editor Background Color</source>
        <translation>编辑器背景色</translation>
    </message>
    <message>
        <source>Transparent Background</source>
        <translation>透明背景</translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation>空心字</translation>
    </message>
    <message>
        <source>Stroke</source>
        <translation>描边</translation>
    </message>
    <message>
        <source>Stroke Color...</source>
        <translation>描边颜色...</translation>
    </message>
    <message>
        <source>Clear Stroke</source>
        <translation>清除描边</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1（缺失）</translation>
    </message>
    <message>
        <source>Line Spacing:</source>
        <translation>行间距：</translation>
    </message>
    <message>
        <source>Word Spacing:</source>
        <translation>字间距：</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>字号</translation>
    </message>
</context>
<context>
    <name>lctrlsex::ExpressionEditor</name>
    <message>
        <source>Single-value comparison</source>
        <translation>单值比较</translation>
    </message>
    <message>
        <source>Open interval (a,b)</source>
        <translation>开区间 (a,b)</translation>
    </message>
    <message>
        <source>Closed interval [a,b]</source>
        <translation>闭区间 [a,b]</translation>
    </message>
    <message>
        <source>Closed left and open right [a,b)</source>
        <translation>左闭右开 [a,b)</translation>
    </message>
    <message>
        <source>Open left and close right (a,b]</source>
        <translation>左开右闭 (a,b]</translation>
    </message>
    <message>
        <source>Regular matching</source>
        <translation>正则匹配</translation>
    </message>
    <message>
        <source>Enter a numeric value</source>
        <translation>输入数值</translation>
    </message>
    <message>
        <source>Start value</source>
        <translation>起始值</translation>
    </message>
    <message>
        <source>End value</source>
        <translation>结束值</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>比较</translation>
    </message>
</context>
<context>
    <name>lctrlsex::ItemDocument</name>
    <message>
        <source>the image data is not Base64; insert the image again</source>
        <translation>图片数据不是 Base64；请重新插入图片</translation>
    </message>
    <message>
        <source>there is no such built-in image; insert the image again</source>
        <translation>没有这个内置图片；请重新插入图片</translation>
    </message>
    <message>
        <source>files and addresses are not loaded; insert the image into the programme</source>
        <translation>不加载文件和网址；请将图片插入节目</translation>
    </message>
</context>
<context>
    <name>lctrlsex::NoticeStrip</name>
    <message>
        <source>Edit as Plain Text</source>
        <translation>按纯文本编辑</translation>
    </message>
    <message>
        <source>The stored document is replaced by what you see here</source>
        <translation>存储的文档将被此处所见的内容替换</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>关闭此通知</translation>
    </message>
</context>
<context>
    <name>lctrlsex::OperationCells</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Default value</source>
        <translation>默认值</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>运算符</translation>
    </message>
    <message>
        <source>Argument %1</source>
        <translation>参数 %1</translation>
    </message>
</context>
<context>
    <name>lctrlsex::TrialPanel</name>
    <message>
        <source>Live &amp;value of the input source</source>
        <translation>输入源的实时值(&amp;V)</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>&amp;Test value</source>
        <translation>测试值(&amp;T)</translation>
    </message>
    <message>
        <source>Type a value to see which condition holds</source>
        <translation>输入一个值，查看哪个条件成立</translation>
    </message>
    <message>
        <source>%1: condition %2 applies</source>
        <translation>%1：条件 %2 生效</translation>
    </message>
    <message>
        <source>%1: no condition holds</source>
        <translation>%1：没有条件成立</translation>
    </message>
    <message>
        <source>The text keeps its own style</source>
        <translation>文本保持原有样式</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>（空）</translation>
    </message>
</context>
<context>
    <name>lctrlsex::ViewMenu</name>
    <message>
        <source>Insert Table</source>
        <translation>插入表格</translation>
    </message>
    <message>
        <source>Insert field</source>
        <translation>插入字段</translation>
    </message>
    <message>
        <source>The data source has no fields</source>
        <translation>该数据源没有字段</translation>
    </message>
    <message>
        <source>Table Properties</source>
        <translation>表格属性</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Insert Row Above</source>
        <translation>在上方插入行</translation>
    </message>
    <message>
        <source>Insert Row Below</source>
        <translation>在下方插入行</translation>
    </message>
    <message>
        <source>Delete Row</source>
        <translation>删除行</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Insert Column Left</source>
        <translation>在左侧插入列</translation>
    </message>
    <message>
        <source>Insert Column Right</source>
        <translation>在右侧插入列</translation>
    </message>
    <message>
        <source>Delete Column</source>
        <translation>删除列</translation>
    </message>
    <message>
        <source>Align in Cell</source>
        <translation>单元格内对齐</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message>
        <source>Merge Cells</source>
        <translation>合并单元格</translation>
    </message>
    <message>
        <source>Unmerge</source>
        <translation>取消合并</translation>
    </message>
    <message>
        <source>Split Cell</source>
        <translation>拆分单元格</translation>
    </message>
    <message>
        <source>Split Vertically</source>
        <translation>垂直拆分</translation>
    </message>
    <message>
        <source>Split Horizontally</source>
        <translation>水平拆分</translation>
    </message>
    <message>
        <source>Only one table can be inserted per document.</source>
        <translation>每个文档只能插入一个表格。</translation>
    </message>
    <message>
        <source>Invalid table properties provided</source>
        <translation>提供的表格属性无效</translation>
    </message>
    <message>
        <source>Failed to insert table</source>
        <translation>插入表格失败</translation>
    </message>
    <message>
        <source>Modify table properties</source>
        <translation>修改表格属性</translation>
    </message>
</context>
<context>
    <name>workbench::Autosave</name>
    <message>
        <source>no folder for it can be written</source>
        <translation>没有可写入的文件夹</translation>
    </message>
</context>
<context>
    <name>workbench::BindFieldsDialog</name>
    <message>
        <source>Bind Table</source>
        <translation>绑定表格</translation>
    </message>
    <message>
        <source>Fields that the table shows, one a cell, in this order:</source>
        <translation>表格显示的字段，每个单元格一个，按此顺序：</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下移(&amp;D)</translation>
    </message>
    <message>
        <source>Choose at least one field.</source>
        <translation>请至少选择一个字段。</translation>
    </message>
</context>
<context>
    <name>workbench::DataModel</name>
    <message>
        <source>Source or key</source>
        <translation>数据源或键</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>Stale for %1: %2</source>
        <translation>已过期 %1：%2</translation>
    </message>
    <message>
        <source>%1 ago, took %2 ms</source>
        <translation>%1前，用时 %2 毫秒</translation>
    </message>
    <message>
        <source>%1, %2 rows</source>
        <translation>%1，%2 行</translation>
    </message>
    <message>
        <source>list of values</source>
        <translation>值列表</translation>
    </message>
    <message>
        <source>record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>list of records</source>
        <translation>记录列表</translation>
    </message>
    <message>
        <source>rows and columns</source>
        <translation>行列数据</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>%1 ago</source>
        <translation>%1前</translation>
    </message>
    <message>
        <source>Stale for %1</source>
        <translation>已过期%1</translation>
    </message>
</context>
<context>
    <name>workbench::DataPanel</name>
    <message>
        <source>%1:%2
%3</source>
        <translation>%1:%2
%3</translation>
    </message>
    <message>
        <source>Insert a table into the text to show it.</source>
        <translation>请在文本中插入表格以显示此数据。</translation>
    </message>
    <message>
        <source>Add data source %1</source>
        <translation>添加数据源 %1</translation>
    </message>
    <message>
        <source>Change data source %1</source>
        <translation>更改数据源 %1</translation>
    </message>
    <message>
        <source>Remove data source %1</source>
        <translation>移除数据源 %1</translation>
    </message>
    <message>
        <source>Search keys and values</source>
        <translation>搜索键和值</translation>
    </message>
    <message>
        <source>Data sources</source>
        <translation>数据源</translation>
    </message>
    <message>
        <source>Sources and their keys. Return inserts a value or binds the table.</source>
        <translation>数据源及其键。按回车键可插入值或绑定表格。</translation>
    </message>
    <message>
        <source>No data source yet. “Add” below connects a file, a web address or a database; then drag values into the text.</source>
        <translation>尚无数据源。点击下方的“添加”可连接文件、网址或数据库，然后将值拖到文本中。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add a data source</source>
        <translation>添加数据源</translation>
    </message>
    <message>
        <source>Edit Source...</source>
        <translation>编辑数据源...</translation>
    </message>
    <message>
        <source>Remove Source</source>
        <translation>移除数据源</translation>
    </message>
    <message>
        <source>Read Now</source>
        <translation>立即读取</translation>
    </message>
    <message>
        <source>Insert Value</source>
        <translation>插入值</translation>
    </message>
    <message>
        <source>Insert the value into the text at the cursor</source>
        <translation>在文本光标处插入该值</translation>
    </message>
    <message>
        <source>Bind Table...</source>
        <translation>绑定表格...</translation>
    </message>
    <message>
        <source>Fill the table with this data</source>
        <translation>用此数据填充表格</translation>
    </message>
    <message>
        <source>Copy Key</source>
        <translation>复制键</translation>
    </message>
</context>
<context>
    <name>workbench::EditorPane</name>
    <message>
        <source>There is no text here yet.</source>
        <translation>这里还没有文本。</translation>
    </message>
    <message>
        <source>Add Text Item</source>
        <translation>添加文本项</translation>
    </message>
    <message>
        <source>Effects, times and data of a text item appear here.</source>
        <translation>文本项的特技、时间和数据显示在这里。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>The text editor cannot be used.

%1
%2</source>
        <translation>无法使用文本编辑器。

%1
%2</translation>
    </message>
</context>
<context>
    <name>workbench::LayoutPanel</name>
    <message>
        <source>No page has this size: give both sides, of %1 million pixels at most.</source>
        <translation>页面不能是这个大小：请给出宽度和高度，总计最多 %1 百万像素。</translation>
    </message>
    <message>
        <source>The frame reaches beyond its screen of %1 × %2 pixels.</source>
        <translation>分区超出了 %1 × %2 像素的屏幕。</translation>
    </message>
    <message>
        <source>A name is needed; the former one was kept.</source>
        <translation>名称不能为空；已保留原名称。</translation>
    </message>
    <message>
        <source>Change display kind</source>
        <translation>更改显示屏类型</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>未选择任何内容。</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>分区</translation>
    </message>
    <message>
        <source>Text item</source>
        <translation>文本项</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示屏</translation>
    </message>
    <message>
        <source>Kind of display</source>
        <translation>显示屏类型</translation>
    </message>
    <message>
        <source>LED</source>
        <translation>LED</translation>
    </message>
    <message>
        <source>LCD</source>
        <translation>LCD</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Left edge in pixels</source>
        <translation>左边距（像素）</translation>
    </message>
    <message>
        <source>Top edge in pixels</source>
        <translation>上边距（像素）</translation>
    </message>
    <message>
        <source>Size of the frame</source>
        <translation>使用分区的大小</translation>
    </message>
    <message>
        <source>Size of the screen</source>
        <translation>使用屏幕的大小</translation>
    </message>
    <message>
        <source>Size of the controller</source>
        <translation>使用控制器的大小</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>宽度（像素）</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>高度（像素）</translation>
    </message>
</context>
<context>
    <name>workbench::MainWindow</name>
    <message>
        <source>Unsaved changes cannot be kept safe: %1; save the programme to a folder that you may write to.</source>
        <translation>未保存的更改无法自动备份：%1；请将节目保存到您有写入权限的文件夹。</translation>
    </message>
    <message>
        <source>%1[*] – Workbench</source>
        <translation>%1[*] – 工作台</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>Wall: %1</source>
        <translation>显示墙：%1</translation>
    </message>
    <message>
        <source>Fonts: %1</source>
        <translation>字体：%1</translation>
    </message>
    <message>
        <source>No fonts to choose from: put font files into %1</source>
        <translation>没有可选的字体：请将字体文件放入 %1</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About Workbench</source>
        <translation>关于工作台(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近打开(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Export Pages…</source>
        <translation>导出页面(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo: %1</source>
        <translation>撤销(&amp;U)：%1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo: %1</source>
        <translation>重做(&amp;R)：%1</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Wall: &amp;Larger Pixels</source>
        <translation>显示墙：放大像素(&amp;L)</translation>
    </message>
    <message>
        <source>Wall: &amp;Smaller Pixels</source>
        <translation>显示墙：缩小像素(&amp;S)</translation>
    </message>
    <message>
        <source>Wall: &amp;Fit</source>
        <translation>显示墙：适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>Wall: Round L&amp;EDs</source>
        <translation>显示墙：圆形灯珠(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>重置布局(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Palette</source>
        <translation>配色(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>跟随系统(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>No programme was opened yet</source>
        <translation>尚未打开过节目</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>清空列表(&amp;C)</translation>
    </message>
    <message>
        <source>About Workbench</source>
        <translation>关于工作台</translation>
    </message>
    <message>
        <source>Workbench %1</source>
        <translation>工作台 %1</translation>
    </message>
    <message>
        <source>Edits programmes for LED and LCD display screens.

Free software under the MIT licence.</source>
        <translation>编辑 LED 和 LCD 显示屏的节目。

采用 MIT 许可证的自由软件。</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>节目</translation>
    </message>
    <message>
        <source>Item Properties</source>
        <translation>文本项属性</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>显示墙</translation>
    </message>
    <message>
        <source>Save Programme</source>
        <translation>保存节目</translation>
    </message>
    <message>
        <source>Open Programme</source>
        <translation>打开节目</translation>
    </message>
    <message>
        <source>Programmes (*.%1)</source>
        <translation>节目 (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>Save the changes to “%1”?</source>
        <translation>是否保存对“%1”的更改？</translation>
    </message>
    <message>
        <source>They are lost if you do not.</source>
        <translation>如果不保存，更改将丢失。</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Save</source>
        <translation>不保存(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2: %3</source>
        <translation>%1：%2：%3</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1；%2</translation>
    </message>
    <message>
        <source>Export Pages to a Folder</source>
        <translation>导出页面到文件夹</translation>
    </message>
    <message numerus="yes">
        <source>The export was cancelled; %n page(s) are in %1.</source>
        <translation>
            <numerusform>导出已取消；已有 %n 页写入 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) were written to %1.</source>
        <translation>
            <numerusform>已将 %n 页写入 %1。</numerusform>
        </translation>
    </message>
    <message>
        <source>A copy saved automatically is damaged: %1; it was kept as %2.</source>
        <translation>一份自动保存的副本已损坏：%1；已保留为 %2。</translation>
    </message>
    <message>
        <source>A programme that you never saved was kept automatically on %1.</source>
        <translation>一个从未保存过的节目已于 %1 自动保留。</translation>
    </message>
    <message>
        <source>A copy of %1, saved automatically on %2, was found.</source>
        <translation>找到 %1 于 %2 自动保存的副本。</translation>
    </message>
    <message>
        <source>%1 The file was changed since.</source>
        <translation>%1此后该文件又有更改。</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Open Saved &amp;File</source>
        <translation>打开已保存的文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Keep for Later</source>
        <translation>留待以后(&amp;K)</translation>
    </message>
    <message>
        <source>This is %1 as it was saved. Is the copy saved automatically still needed?</source>
        <translation>这是已保存的 %1。自动保存的副本还需要吗？</translation>
    </message>
    <message>
        <source>&amp;Delete the Copy</source>
        <translation>删除副本(&amp;D)</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>语言(&amp;G)</translation>
    </message>
    <message>
        <source>another workbench has restored this copy too</source>
        <translation>另一个工作台也恢复了此副本</translation>
    </message>
    <message>
        <source>save one of the two under another name</source>
        <translation>请将其中一个另存为其他名称</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>文本(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Invert Colours</source>
        <translation>反转颜色(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Swap Black and White</source>
        <translation>黑白互换(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Antialiasing Off</source>
        <translation>关闭抗锯齿(&amp;A)</translation>
    </message>
    <message>
        <source>Wall: Pa&amp;use</source>
        <translation>显示墙：暂停(&amp;U)</translation>
    </message>
    <message>
        <source>Wall: Pla&amp;y</source>
        <translation>显示墙：播放(&amp;Y)</translation>
    </message>
    <message>
        <source>Wall: S&amp;top</source>
        <translation>显示墙：停止(&amp;T)</translation>
    </message>
    <message>
        <source>Insert I&amp;mage...</source>
        <translation>插入图片(&amp;M)...</translation>
    </message>
    <message>
        <source>There is no table in this text yet: insert one with the table button, then bind it.</source>
        <translation>此文本中还没有表格：请先用表格按钮插入一个，再进行绑定。</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
</context>
<context>
    <name>workbench::NodeDelegate</name>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>no size</source>
        <translation>无大小</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>workbench::NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>关闭此通知</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>通知</translation>
    </message>
</context>
<context>
    <name>workbench::PageExport</name>
    <message>
        <source>Export Pages</source>
        <translation>导出页面</translation>
    </message>
    <message>
        <source>Writing pages…</source>
        <translation>正在写入页面…</translation>
    </message>
    <message>
        <source>%1: the folder cannot be made</source>
        <translation>%1：无法创建文件夹</translation>
    </message>
    <message>
        <source>Writing the pages of %1…</source>
        <translation>正在写入 %1 的页面…</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>workbench::ProgrammeDocument</name>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation>这不是普通文件</translation>
    </message>
    <message>
        <source>name a *.programme.json file</source>
        <translation>请指定 *.programme.json 文件</translation>
    </message>
    <message>
        <source>the programme has no file yet</source>
        <translation>节目尚无文件</translation>
    </message>
    <message>
        <source>save it under a name</source>
        <translation>请为其命名并保存</translation>
    </message>
    <message>
        <source>Add screen</source>
        <translation>添加屏幕</translation>
    </message>
    <message>
        <source>Add frame</source>
        <translation>添加分区</translation>
    </message>
    <message>
        <source>Add text item</source>
        <translation>添加文本项</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>创建 %1 的副本</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>删除 %1</translation>
    </message>
    <message>
        <source>Rename to %1</source>
        <translation>重命名为 %1</translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>移动 %1</translation>
    </message>
    <message>
        <source>Place %1</source>
        <translation>放置 %1</translation>
    </message>
    <message>
        <source>Resize %1</source>
        <translation>调整 %1 的大小</translation>
    </message>
</context>
<context>
    <name>workbench::ProgrammePanel</name>
    <message>
        <source>Programme</source>
        <translation>节目</translation>
    </message>
    <message>
        <source>Controller, screens, frames and text items. F2 renames, Delete removes.</source>
        <translation>控制器、屏幕、分区和文本项。F2 重命名，Delete 删除。</translation>
    </message>
    <message>
        <source>No screen yet. “Add” below makes one.</source>
        <translation>还没有屏幕。点击下方的“添加”来创建。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add a text item, a frame or a screen</source>
        <translation>添加文本项、分区或屏幕</translation>
    </message>
</context>
<context>
    <name>workbench::ProgrammeTreeModel</name>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
</context>
<context>
    <name>workbench::QueryEdits</name>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>Remov&amp;e</source>
        <translation>移除(&amp;E)</translation>
    </message>
    <message>
        <source>Na&amp;me in keys:</source>
        <translation>键中的名称(&amp;M)：</translation>
    </message>
    <message>
        <source>Queries</source>
        <translation>查询</translation>
    </message>
    <message>
        <source>Add a query (Insert)</source>
        <translation>添加查询 (Insert)</translation>
    </message>
    <message>
        <source>Remove the query (Delete)</source>
        <translation>移除查询 (Delete)</translation>
    </message>
    <message>
        <source>Text of the query</source>
        <translation>查询的文本</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>无名称</translation>
    </message>
    <message>
        <source>There is no query yet: add one.</source>
        <translation>尚无查询：请添加。</translation>
    </message>
    <message>
        <source>a query has no name</source>
        <translation>有一个查询没有名称</translation>
    </message>
    <message>
        <source>there are two queries called %1</source>
        <translation>有两个查询都叫 %1</translation>
    </message>
    <message>
        <source>a name must not hold any of %1</source>
        <translation>名称不得含有下列字符：%1</translation>
    </message>
    <message>
        <source>there is none</source>
        <translation>还没有查询</translation>
    </message>
    <message>
        <source>%1 has no text</source>
        <translation>%1 没有文本</translation>
    </message>
</context>
<context>
    <name>workbench::SourceDialog</name>
    <message numerus="yes">
        <source>… and %n more key(s)</source>
        <translation>
            <numerusform>… 还有 %n 个键</numerusform>
        </translation>
    </message>
    <message>
        <source>There is another source of that name.</source>
        <translation>已有同名的数据源。</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>CSV or text file</source>
        <translation>CSV 或文本文件</translation>
    </message>
    <message>
        <source>JSON file</source>
        <translation>JSON 文件</translation>
    </message>
    <message>
        <source>Web address</source>
        <translation>网址</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>数据库</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Kind %1</source>
        <translation>类型 %1</translation>
    </message>
    <message>
        <source>&amp;In use</source>
        <translation>启用(&amp;I)</translation>
    </message>
    <message>
        <source>Data Source – %1</source>
        <translation>数据源 – %1</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>文件(&amp;F)：</translation>
    </message>
    <message>
        <source>relative to the programme, or a full path</source>
        <translation>相对于节目文件的路径，或完整路径</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>地址(&amp;A)：</translation>
    </message>
    <message>
        <source>One a line, secrets by reference:</source>
        <translation>每行一个，密码等机密请用引用：</translation>
    </message>
    <message>
        <source>&amp;Headers:</source>
        <translation>请求头(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Read every:</source>
        <translation>读取间隔(&amp;R)：</translation>
    </message>
    <message>
        <source>&amp;Give up after:</source>
        <translation>超时(&amp;G)：</translation>
    </message>
    <message>
        <source>Dri&amp;ver:</source>
        <translation>驱动(&amp;V)：</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>数据库(&amp;D)：</translation>
    </message>
    <message>
        <source>its name, or its file with QSQLITE</source>
        <translation>数据库名；QSQLITE 则为数据库文件</translation>
    </message>
    <message>
        <source>&amp;Host:</source>
        <translation>主机(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>端口(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>用户(&amp;U)：</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>密码(&amp;W)：</translation>
    </message>
    <message>
        <source>plain text</source>
        <translation>纯文本</translation>
    </message>
    <message>
        <source>tab</source>
        <translation>制表符</translation>
    </message>
    <message>
        <source>&amp;Separator:</source>
        <translation>分隔符(&amp;S)：</translation>
    </message>
    <message>
        <source>&amp;Encoding:</source>
        <translation>编码(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>测试(&amp;T)</translation>
    </message>
    <message>
        <source>Read the source once and show what it delivers</source>
        <translation>读取一次数据源并显示其内容</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>JSON files (*.json)</source>
        <translation>JSON 文件 (*.json)</translation>
    </message>
    <message>
        <source>CSV and text files (*.csv *.tsv *.txt)</source>
        <translation>CSV 和文本文件 (*.csv *.tsv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>For&amp;mat:</source>
        <translation>格式(&amp;M)：</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>&amp;Queries:</source>
        <translation>查询(&amp;Q)：</translation>
    </message>
    <message>
        <source>Certi&amp;ficate:</source>
        <translation>证书(&amp;F)：</translation>
    </message>
    <message>
        <source>file of one that the system does not trust</source>
        <translation>系统不信任的证书的文件</translation>
    </message>
    <message>
        <source>Certificates (*.pem *.crt *.cer)</source>
        <translation>证书 (*.pem *.crt *.cer)</translation>
    </message>
    <message>
        <source>SQLite databases (*.sqlite *.sqlite3 *.db)</source>
        <translation>SQLite 数据库 (*.sqlite *.sqlite3 *.db)</translation>
    </message>
</context>
<context>
    <name>workbench::StructureActions</name>
    <message>
        <source>Add &amp;Screen</source>
        <translation>添加屏幕(&amp;S)</translation>
    </message>
    <message>
        <source>Add a screen to the controller</source>
        <translation>向控制器添加屏幕</translation>
    </message>
    <message>
        <source>Add &amp;Frame</source>
        <translation>添加分区(&amp;F)</translation>
    </message>
    <message>
        <source>Add a frame to the screen</source>
        <translation>向屏幕添加分区</translation>
    </message>
    <message>
        <source>Add a text item to the frame</source>
        <translation>向分区添加文本项</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>创建副本(&amp;D)</translation>
    </message>
    <message>
        <source>Add a copy of what is selected</source>
        <translation>添加所选内容的副本</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>重命名(&amp;N)</translation>
    </message>
    <message>
        <source>Type another name</source>
        <translation>输入新名称</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>删除(&amp;M)</translation>
    </message>
    <message>
        <source>Remove what is selected</source>
        <translation>删除所选内容</translation>
    </message>
    <message>
        <source>Move before the one above</source>
        <translation>移到上一个之前</translation>
    </message>
    <message>
        <source>Move behind the one below</source>
        <translation>移到下一个之后</translation>
    </message>
    <message>
        <source>Add Text &amp;Item</source>
        <translation>添加文本项(&amp;I)</translation>
    </message>
    <message>
        <source>Mo&amp;ve Up</source>
        <translation>上移(&amp;V)</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>下移(&amp;W)</translation>
    </message>
</context>
<context>
    <name>workbench::Thumbnails</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation>%1：%2；%3</translation>
    </message>
</context>
<context>
    <name>workbench::WallPanel</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>%1, %2 × %3 pixels</source>
        <translation>%1，%2 × %3 像素</translation>
    </message>
    <message>
        <source>Fit (1/%1)</source>
        <translation>适合 (1/%1)</translation>
    </message>
    <message>
        <source>Fit (%1×)</source>
        <translation>适合 (%1×)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>Previous page (Page Up)</source>
        <translation>上一页 (Page Up)</translation>
    </message>
    <message>
        <source>Next page (Page Down)</source>
        <translation>下一页 (Page Down)</translation>
    </message>
    <message>
        <source>Show pixels as round LEDs, from 4× on</source>
        <translation>将像素显示为圆形灯珠（4× 起）</translation>
    </message>
    <message>
        <source>Smaller pixels</source>
        <translation>缩小像素</translation>
    </message>
    <message>
        <source>Larger pixels</source>
        <translation>放大像素</translation>
    </message>
    <message>
        <source>Size of a screen pixel</source>
        <translation>屏幕像素的大小</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>No screen is selected. Select one in the programme to see it here.</source>
        <translation>未选择屏幕。在节目中选择一个即可在此查看。</translation>
    </message>
    <message>
        <source>Stop and show the edited page (Shift+F5)</source>
        <translation>停止并显示正在编辑的页面 (Shift+F5)</translation>
    </message>
    <message>
        <source>Pause (F5)</source>
        <translation>暂停 (F5)</translation>
    </message>
    <message>
        <source>Play the screen (F5)</source>
        <translation>播放屏幕 (F5)</translation>
    </message>
    <message>
        <source>coming in</source>
        <translation>显示中</translation>
    </message>
    <message>
        <source>going out</source>
        <translation>清除中</translation>
    </message>
    <message>
        <source>held</source>
        <translation>停留</translation>
    </message>
    <message>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>workbench::WallView</name>
    <message>
        <source>%1: %2 × %3 at %4, %5</source>
        <translation>%1：%2 × %3，位于 %4，%5</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>显示墙</translation>
    </message>
    <message>
        <source>The screen of the selected item with all its frames. Plus and minus change the size, Page Up and Page Down turn the page, Return edits the item.</source>
        <translation>所选文本项所在的屏幕及其全部分区。加号和减号改变大小，Page Up 和 Page Down 翻页，Return 编辑文本项。</translation>
    </message>
</context>
</TS>
