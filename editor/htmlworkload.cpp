#include "htmlworkload.h"

#include "htmlcosts.h"

#include <algorithm>

namespace lctrlsex {

using namespace cost;

namespace {

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
    m_work +=
        openTagTime + ((traits & FontTrait) != 0 ? fontTagTime : 0) + request.styles * styleTime;
    m_work += (traits & LinkTrait) != 0 ? linkTime : 0;
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
        const double height = request.height > 0 ? request.height : guessed;
        m_block.imageHeight += height;
        m_block.wordImageHeight = std::max(m_block.wordImageHeight, height);
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
