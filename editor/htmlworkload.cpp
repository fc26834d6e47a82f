#include "htmlworkload.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace lctrlsex {

namespace {

// Limits that a user can understand and that no sensible document reaches.
constexpr size_t deepestElement = 500;
constexpr size_t deepestList = 50;
constexpr size_t deepestTable = 4;
constexpr int mostTables = 256;
constexpr int mostColumns = 1000;
constexpr double mostCells = 200000;
constexpr int mostFloats = 256;
constexpr double longestParagraph = 500000;
// Qt lays out for ever below pixel 8 388 607, and its widths overflow beyond.
constexpr double greatestHeight = 6000000;
constexpr double greatestWidth = 4000000;
constexpr double mostMemory = 220e6;
constexpr double mostWork = 1e9;

// Measured with Qt 5.15.8, in nanoseconds and bytes, rounded up.
constexpr double openTagTime = 1500;
constexpr double closeTagTime = 700;
constexpr double perDepthTime = 18;
constexpr double textRunTime = 2500;
constexpr double characterTime = 60;
constexpr double tabTime = 1000;
constexpr double lineTime = 1500;
constexpr double blockTime = 4500;
constexpr double listItemTime = 24;
constexpr double listTime = 4000;
constexpr double imageTime = 14000;
constexpr double imagePerCharacterTime = 80;
constexpr double slotTime = 2700;
constexpr double cellTime = 13000;
constexpr double fontTime = 250000;
constexpr double floatPerLineTime = 10;
constexpr double wordTime = 10;
constexpr double scriptChangeTime = 4000;
constexpr double markupCharacterTime = 30;
constexpr double tagMemory = 620;
constexpr double blockMemory = 400;
constexpr double cellMemory = 500;
constexpr double characterMemory = 10;
// A change of format or script inside a word costs as much as so many characters.
constexpr double changeUnits = 30;
// Below this length a word is no dearer than its characters.
constexpr double plainWord = 24;

constexpr double layoutWidth = 256;
constexpr double ordinaryFont = 16;
constexpr double linePerFont = 1.5;
constexpr double narrowAdvance = 0.6;
constexpr double listIndent = 40;
constexpr double quoteIndent = 80;
constexpr double blockMargins = 30;

bool allowedIn(uint traits, uint parent)
{
    if ((traits & TermTrait) != 0) {
        return (parent & TermListTrait) != 0;
    }
    if ((traits & RowTrait) != 0) {
        return (parent & (TableTrait | SectionTrait)) != 0;
    }
    if ((traits & CellTrait) != 0) {
        return (parent & RowTrait) != 0;
    }
    if ((traits & (SectionTrait | CaptionTrait)) != 0) {
        return (parent & TableTrait) != 0;
    }
    return (traits & BodyTrait) == 0 || (parent & HeadTrait) == 0;
}

bool mayBreakAround(uint code)
{
    const bool ideograph = (code >= 0x3400 && code <= 0x4dbf) || (code >= 0x4e00 && code <= 0x9fff);
    return ideograph || (code >= 0xac00 && code <= 0xd7a3);
}

/** Characters of one class are laid out in one go. */
uint scriptClass(uint code)
{
    if (code < 0x250 || (code >= 0x2010 && code < 0x2028) || (code >= 0xd800 && code <= 0xdfff)) {
        return 0;
    }
    return code >= 0x2e80 && code < 0xd800 ? 1 : code >> 8;
}

bool isLayoutSpace(QChar c)
{
    return c == QLatin1Char(' ') || (c >= QLatin1Char('\t') && c <= QLatin1Char('\r'));
}

} // namespace

HtmlWorkload::HtmlWorkload(int characters)
    : m_open(1)
    , m_heights(1)
    , m_openNames(lastHtmlElementId() + 1)
    , m_work(characters * markupCharacterTime)
    , m_memory(characters * characterMemory)
    , m_mostTangle(50e6 + characters * 100.0)
{
    m_open.front().fontSize = ordinaryFont;
}

void HtmlWorkload::fail(HtmlExcess excess)
{
    if (m_excess == HtmlExcess::None) {
        m_excess = excess;
    }
}

void HtmlWorkload::checkLimits()
{
    if (m_tangle > m_mostTangle) {
        fail(HtmlExcess::Tangle);
    } else if (m_work + m_tangle > mostWork) {
        fail(HtmlExcess::Work);
    } else if (m_memory > mostMemory) {
        fail(HtmlExcess::Memory);
    }
}

uint HtmlWorkload::idOfUnknown(QStringView name)
{
    const QString text = name.toString();
    const auto found = m_unknownNames.constFind(text);
    if (found != m_unknownNames.constEnd()) {
        return *found;
    }
    m_openNames.push_back(0);
    const uint id = uint(m_openNames.size()) - 1;
    m_unknownNames.insert(text, id);
    return id;
}

void HtmlWorkload::open(const HtmlElement &element, QStringView name, const ElementRequest &request,
                        bool selfClosed)
{
    const uint traits = element.traits;
    const uint id = element.id != 0 ? element.id : idOfUnknown(name);
    m_work += openTagTime;
    m_tangle += double(m_open.size()) * perDepthTime;
    m_memory += 2 * tagMemory;
    m_keepsSpace = m_keepsSpace || request.style.keepsSpace || (traits & PreTrait) != 0;
    popTo(parentFor(traits, id) + 1);
    if ((traits & VoidTrait) != 0) {
        openVoid(traits, request);
    } else {
        push(id, traits, request);
        if (selfClosed) {
            pop();
        }
    }
    checkLimits();
}

size_t HtmlWorkload::paragraphParent() const
{
    size_t p = m_open.size() - 1;
    while (p > 0 && ((m_open[p].traits & BlockTrait) == 0 || m_open[p].hidden)) {
        --p;
    }
    return p > 0 && (m_open[p].traits & ParagraphTrait) != 0 ? p : m_open.size() - 1;
}

size_t HtmlWorkload::parentFor(uint traits, uint name)
{
    if ((traits & DataCellTrait) != 0 && m_openRows == 0) {
        openImplied(TableTrait);
        openImplied(RowTrait);
    }
    if ((traits & RowTrait) != 0 && m_tables.empty()) {
        openImplied(TableTrait);
    }
    size_t p = (traits & ParagraphTrait) != 0 ? paragraphParent() : m_open.size() - 1;
    if ((traits & (ParagraphTrait | ItemTrait)) != 0 && p > 0 && m_open[p].name == name) {
        --p;
    }
    while (p > 0 && !allowedIn(traits, m_open[p].traits)) {
        --p;
    }
    return p;
}

void HtmlWorkload::openImplied(uint traits)
{
    m_memory += tagMemory;
    const QStringView name =
        (traits & TableTrait) != 0 ? QStringView(u"table") : QStringView(u"tr");
    push(findHtmlElement(name).id, traits, ElementRequest());
}

void HtmlWorkload::push(uint name, uint traits, const ElementRequest &request)
{
    const bool inRow = (top().traits & RowTrait) != 0;
    const StyleFacts &style = request.style;
    Element element = top();
    element.name = name;
    element.traits = traits;
    element.skipsChildren = element.skipsChildren || style.emptyParagraph;
    element.hidden = element.hidden || (traits & HiddenTrait) != 0;
    const double largest = (traits & LargeTrait) != 0 || request.fontKey != 0 ? 2.4 : 1;
    element.fontSize = std::max({style.fontSize > 0 ? style.fontSize : element.fontSize,
                                 largest > 1 ? largest * ordinaryFont : 0.0, m_sheet.fontSize});
    element.lineHeight = std::max(style.lineHeight, element.lineHeight);
    element.lineFactor = std::max(style.lineFactor, element.lineFactor);
    element.letterSpacing += style.letterSpacing;
    const double indent = ((traits & ListTrait) != 0 ? listIndent : 0) +
                          ((traits & (QuoteTrait | TermTrait)) != 0 ? quoteIndent : 0);
    element.sideways += (traits & (BlockTrait | TableTrait)) != 0 ? style.sideways + indent : 0;
    const bool ownMargins = (traits & BlockTrait) != 0 && !style.marginGiven;
    element.upright = style.upright + m_sheet.upright + (ownMargins ? blockMargins : 0);
    if ((traits & FontTrait) != 0 || style.fontKey != 0 || request.fontKey != 0) {
        element.fontKey =
            element.fontKey * 0x9e3779b1U + name * 31U + style.fontKey + request.fontKey * 7U + 1U;
    }
    m_open.push_back(element);
    ++m_openNames[name];
    m_openRows += (traits & RowTrait) != 0 ? 1 : 0;
    if (m_open.size() > deepestElement + 1) {
        fail(HtmlExcess::Depth);
    }
    enter(traits, request, inRow);
}

void HtmlWorkload::enter(uint traits, const ElementRequest &request, bool inRow)
{
    const bool hidden = top().hidden;
    const bool skipped = hidden || top().skipsChildren;
    if (skipped && (traits & (TableTrait | ListTrait)) != 0) {
        // Qt does not start it but ends it, and with it the one around.
        fail(HtmlExcess::HiddenTable);
    }
    if ((traits & ListTrait) != 0) {
        m_listItems.push_back(0);
        m_work += listTime;
        if (m_listItems.size() > deepestList) {
            fail(HtmlExcess::Lists);
        }
    } else if ((traits & TableTrait) != 0) {
        enterTable(request);
    } else if ((traits & RowTrait) != 0) {
        Table &table = m_tables.back();
        ++table.rows;
        table.column = 0;
        if (double(table.rows) * table.columns > mostCells) {
            fail(HtmlExcess::Cells);
        }
    } else if ((traits & CellTrait) != 0) {
        // Outside of a row Qt starts no new block for a cell.
        if (inRow) {
            enterCell(request);
        } else {
            m_block.forcedLines += 1;
        }
    } else if ((traits & BlockTrait) != 0 && !hidden) {
        startBlock();
    }
}

void HtmlWorkload::enterTable(const ElementRequest &request)
{
    endBlock();
    if (!m_tables.empty()) {
        // Outside of a cell, or where spans overlap, Qt loses its place and puts each further
        // table into the one before: as deep as there are tables.
        Table &outer = m_tables.back();
        outer.holdsTables = true;
        if (!outer.inCell || outer.overlaps || request.style.rootFrame) {
            fail(HtmlExcess::TableOrder);
        }
    }
    const double frame = 2 * (request.border + request.padding) + request.spacing;
    Table table;
    table.rowExtra = frame;
    table.columnExtra = frame;
    m_tables.push_back(table);
    m_heights.push_back(top().upright + request.height + frame + blockMargins);
    m_floats += request.floats || request.style.floats ? 1 : 0;
    if (m_floats > mostFloats) {
        fail(HtmlExcess::Floats);
    }
    if (++m_tableCount > mostTables) {
        fail(HtmlExcess::Tables);
    }
    if (m_tables.size() > deepestTable) {
        fail(HtmlExcess::TableDepth);
    }
}

void HtmlWorkload::enterCell(const ElementRequest &request)
{
    Table &table = m_tables.back();
    const int row = table.rows - 1;
    // As Qt counts: a span from above moves the cell on by the whole width of that span.
    while (table.column < int(table.freeFrom.size()) &&
           table.freeFrom[size_t(table.column)] > row) {
        table.column += std::max(1, table.spanWidth[size_t(table.column)]);
    }
    table.written += 1;
    const int first = table.column;
    table.column += request.columnSpan;
    table.columns = std::max(table.columns, table.column);
    if (table.columns > mostColumns) {
        fail(HtmlExcess::Columns);
        table.columns = mostColumns;
    }
    if (double(table.rows) * table.columns > mostCells) {
        fail(HtmlExcess::Cells);
    }
    const size_t columns = size_t(table.columns);
    table.freeFrom.resize(columns);
    table.spanWidth.resize(columns);
    for (int i = first; i < std::min(int(columns), table.column); ++i) {
        table.overlaps = table.overlaps || table.freeFrom[size_t(i)] > row;
    }
    if (table.overlaps && table.holdsTables) {
        fail(HtmlExcess::TableOrder);
    }
    table.inCell = true;
    const int rowSpan = std::min(request.rowSpan, int(mostCells));
    for (size_t i = size_t(first); i < std::min(columns, size_t(table.column)); ++i) {
        table.freeFrom[i] = row + rowSpan;
        table.spanWidth[i] = request.columnSpan;
    }
    table.covered += double(request.columnSpan) * rowSpan - 1;
    if (rowSpan > 1 && request.rowSpanAttribute != nullptr) {
        table.spans.push_back({*request.rowSpanAttribute, row, rowSpan, 0});
    }
    table.cellSpan = rowSpan;
    table.cellUpright = top().upright;
    table.widestCell = std::max({table.widestCell, request.width, request.style.sideways});
    endBlock();
    m_heights.push_back(0);
    startBlock();
}

void HtmlWorkload::leaveCell()
{
    endBlock();
    Table &table = m_tables.back();
    const double height = m_heights.back() + table.cellUpright;
    m_heights.pop_back();
    table.inCell = false;
    if (table.cellSpan > 1) {
        m_heights.back() += height;
    } else {
        table.rowHeight = std::max(table.rowHeight, height);
    }
}

void HtmlWorkload::leaveRow()
{
    Table &table = m_tables.back();
    m_heights.back() += std::max(table.rowHeight, linePerFont * ordinaryFont) + table.rowExtra;
    table.rowHeight = 0;
}

void HtmlWorkload::leaveTable()
{
    endBlock();
    Table &table = m_tables.back();
    const double slots = double(table.rows) * table.columns;
    const double cells = std::max(double(table.rows), slots - table.covered);
    // Slots that no tag of the document stands for come out of spans and rows of unequal length.
    const double unwritten = std::max(0.0, slots - table.written);
    m_work += (slots - unwritten) * slotTime;
    m_tangle += unwritten * slotTime;
    const double nested = cellTime * std::max(0.0, passes() / 3 - 1);
    m_work += std::min(cells, table.written) * cellTime;
    m_tangle += std::max(0.0, cells - table.written) * cellTime + cells * nested;
    m_memory += cells * cellMemory;
    if (table.columns * (table.columnExtra + table.widestCell) > greatestWidth) {
        fail(HtmlExcess::Width);
    }
    for (RowSpanUse &use : table.spans) {
        use.rowsLeft = table.rows - use.row;
        if (use.span > use.rowsLeft) {
            m_longSpans.push_back(use);
        }
    }
    m_tables.pop_back();
    const double height = m_heights.back();
    m_heights.pop_back();
    m_heights.back() += height;
    startBlock(true);
}

void HtmlWorkload::openVoid(uint traits, const ElementRequest &request)
{
    if ((traits & BreakTrait) != 0) {
        endWord();
        noteFont();
        m_work += lineTime;
        m_block.forcedLines += 1;
        m_block.characters += 1;
    } else if ((traits & RuleTrait) != 0) {
        startBlock();
        m_heights.back() += request.style.upright;
    } else if ((traits & ImageTrait) != 0) {
        noteFont();
        m_work += imageTime;
        m_tangle += (m_block.characters + m_block.images) * imagePerCharacterTime;
        m_block.images += 1;
        m_block.wordUnits += changeUnits;
        // Without a height Qt scales the picture with its width.
        const double guessed = request.width > 0 ? request.width : layoutWidth;
        m_block.imageHeight += request.height > 0 ? request.height : guessed;
        m_block.advance += request.width > 0 ? request.width : layoutWidth;
        m_floats += request.floats || request.style.floats ? 1 : 0;
        if (m_floats > mostFloats) {
            fail(HtmlExcess::Floats);
        }
    }
}

void HtmlWorkload::close(const HtmlElement &element, QStringView name)
{
    const uint id = element.id != 0 ? element.id : m_unknownNames.value(name.toString());
    m_work += closeTagTime;
    m_memory += tagMemory;
    if (id != 0 && m_openNames[id] > 0) {
        size_t p = m_open.size() - 1;
        while (m_open[p].name != id) {
            --p;
        }
        popTo(p);
    }
    checkLimits();
}

void HtmlWorkload::popTo(size_t size)
{
    while (m_open.size() > size) {
        pop();
    }
}

void HtmlWorkload::pop()
{
    const Element element = top();
    const bool inRow = (m_open[m_open.size() - 2].traits & RowTrait) != 0;
    if ((element.traits & ListTrait) != 0) {
        m_listItems.pop_back();
    } else if ((element.traits & TableTrait) != 0) {
        leaveTable();
    } else if ((element.traits & RowTrait) != 0) {
        --m_openRows;
        leaveRow();
    } else if ((element.traits & CellTrait) != 0 && inRow) {
        leaveCell();
    }
    m_blockClosed = m_blockClosed || (element.traits & (BlockTrait | TableTrait)) != 0;
    --m_openNames[element.name];
    m_open.pop_back();
}

void HtmlWorkload::startBlock(bool repeated)
{
    endBlock();
    m_blockClosed = false;
    m_block.fontSize = top().fontSize;
    m_heights.back() += repeated ? 0 : top().upright;
    m_work += blockTime;
    m_memory += blockMemory;
    if (!m_listItems.empty()) {
        m_listItems.back() += 1;
        m_work += m_listItems.back() * listItemTime;
    }
}

double HtmlWorkload::passes() const
{
    // Each table around a text lays it out once more or twice, to find its widths.
    static constexpr double factors[] = {1, 2, 5, 9, 16};
    return factors[std::min(m_tables.size(), std::size(factors) - 1)];
}

double HtmlWorkload::ordinaryPasses() const
{
    return m_tables.empty() ? 1 : 2;
}

double HtmlWorkload::lineWidth() const
{
    // The width of a cell and of the room beside a float is for Qt to find: it may be nothing.
    const double free = layoutWidth - m_block.sideways - m_sheet.sideways;
    return m_tables.empty() && m_floats == 0 ? free : 0;
}

void HtmlWorkload::endWord()
{
    if (m_block.wordUnits >= plainWord) {
        const double perLine = lineWidth() / (narrowAdvance * std::max(1.0, m_block.fontSize));
        m_tangle += m_block.wordCharacters * m_block.wordUnits / 2 / std::max(1.0, perLine) *
                    wordTime * passes();
    }
    m_block.wordCharacters = 0;
    m_block.wordUnits = 0;
}

void HtmlWorkload::endBlock()
{
    endWord();
    const double font = std::max(m_block.fontSize, ordinaryFont);
    const double width = lineWidth();
    const double pieces = m_block.characters + m_block.images;
    const double lines = width < 2 * font ? pieces : std::min(pieces, 2 * m_block.advance / width);
    const double count = std::ceil(lines) + 1 + m_block.forcedLines;
    const double lineHeight =
        std::max({linePerFont * font * std::max(m_block.lineFactor, m_sheet.lineFactor),
                  m_block.lineHeight, m_sheet.lineHeight});
    m_heights.back() += count * lineHeight + m_block.imageHeight;
    m_work += count * lineTime * ordinaryPasses();
    m_tangle += count * (lineTime * (passes() - ordinaryPasses()) + m_floats * floatPerLineTime);
    if (m_block.characters > longestParagraph || m_block.advance > greatestWidth) {
        fail(HtmlExcess::Paragraph);
    }
    if (std::accumulate(m_heights.begin(), m_heights.end(), 0.0) > greatestHeight) {
        fail(HtmlExcess::Height);
    }
    checkLimits();
    m_block = Block();
}

void HtmlWorkload::noteFont()
{
    const Element &element = top();
    m_block.fontSize = std::max({m_block.fontSize, element.fontSize, m_sheet.fontSize});
    m_block.lineHeight = std::max(m_block.lineHeight, element.lineHeight);
    m_block.lineFactor = std::max(m_block.lineFactor, element.lineFactor);
    m_block.sideways = std::max(m_block.sideways, element.sideways);
    if (element.fontKey != m_lastFont) {
        m_lastFont = element.fontKey;
        m_tangle += m_fonts.insert(m_lastFont).second ? fontTime : 0;
    }
}

void HtmlWorkload::addNarrow(int count)
{
    const Element &element = top();
    const double spacing = element.letterSpacing + m_sheet.letterSpacing;
    m_block.characters += count;
    m_block.advance += count * (narrowAdvance * element.fontSize + spacing);
}

void HtmlWorkload::addOdd(uint code, uint before)
{
    noteFont();
    m_block.characters += 1;
    m_block.advance += top().fontSize + top().letterSpacing + m_sheet.letterSpacing;
    if (scriptClass(code) != scriptClass(before)) {
        m_work += scriptChangeTime;
        m_block.wordUnits += changeUnits;
    }
    if (mayBreakAround(code)) {
        endWord();
        return;
    }
    m_block.wordCharacters += 1;
    m_block.wordUnits += 1;
}

int HtmlWorkload::addSpecial(QStringView text, int pos)
{
    uint code = text[pos].unicode();
    int length = 1;
    if (code == '&') {
        const HtmlEntity entity = readEntity(text, pos);
        if (entity.length > 0) {
            length = entity.length;
            code = entity.code;
        }
    }
    const bool block = code == 0x2029 || code == 0xfdd0 || code == 0xfdd1;
    if (block || ((code == '\n' || code == '\r') && m_keepsSpace && !m_richText)) {
        startBlock(true);
        noteFont();
    } else if (code == 0x2028) {
        endWord();
        m_block.forcedLines += 1;
    } else if ((code == '\n' || code == '\r') && m_richText) {
        // Left out without a trace, so the word goes on.
        m_work += characterTime;
    } else if (code == ' ' || (code >= '\t' && code <= '\r')) {
        endWord();
        addNarrow(1);
        m_work += code == '\t' ? tabTime : 0;
    } else {
        addOdd(code, pos > 0 ? text[pos - 1].unicode() : 'a');
    }
    return length;
}

void HtmlWorkload::text(QStringView text)
{
    if ((!m_keepsSpace || m_richText) && std::all_of(text.begin(), text.end(), isLayoutSpace)) {
        m_work += closeTagTime;
        endWord();
        return;
    }
    noteFont();
    m_work += textRunTime + double(text.size()) * characterTime * ordinaryPasses();
    m_tangle += double(text.size()) * characterTime * (passes() - ordinaryPasses());
    if (m_blockClosed) {
        // Text behind a closed block gets one of its own, often.
        m_blockClosed = false;
        m_block.forcedLines += 1;
        m_work += blockTime;
        m_memory += blockMemory;
    }
    if (m_block.wordCharacters > 0) {
        m_block.wordUnits += changeUnits;
    }
    const int size = int(text.size());
    for (int i = 0; i < size;) {
        const int begin = i;
        while (i < size && text[i].unicode() > 0x20 && text[i].unicode() < 0x7f &&
               text[i] != QLatin1Char('&')) {
            ++i;
        }
        if (i > begin) {
            addNarrow(i - begin);
            m_block.wordCharacters += i - begin;
            m_block.wordUnits += i - begin;
        }
        if (i < size) {
            i += addSpecial(text, i);
        }
    }
    checkLimits();
}

void HtmlWorkload::addSheet(const StyleFacts &facts)
{
    m_sheet.merge(facts);
    m_keepsSpace = m_keepsSpace || facts.keepsSpace;
}

void HtmlWorkload::finish()
{
    popTo(1);
    endBlock();
}

} // namespace lctrlsex
