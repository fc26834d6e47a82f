#pragma once

#include "htmlelements.h"
#include "htmlstyle.h"
#include "htmltokens.h"

#include <QHash>
#include <QString>
#include <QStringView>

#include <unordered_set>
#include <vector>

namespace lctrlsex {

/** Why a document costs too much. */
enum class HtmlExcess {
    None,
    Depth,
    Lists,
    TableDepth,
    Tables,
    Columns,
    Cells,
    HiddenTable,
    TableOrder,
    Floats,
    Height,
    Width,
    Paragraph,
    Work,
    Tangle,
    Memory
};

/** A row span that may reach below its table: the attribute and the rows from its cell down. */
struct RowSpanUse
{
    HtmlAttribute attribute;
    int row = 0;
    int span = 1;
    int rowsLeft = 0;
};

/** What one opened element asks for, read from its attributes. */
struct ElementRequest
{
    StyleFacts style;
    /** HTML attributes of tables and cells, already bounded. */
    double width = 0;
    double height = 0;
    double border = 0;
    double padding = 0;
    double spacing = 0;
    int columnSpan = 1;
    int rowSpan = 1;
    const HtmlAttribute *rowSpanAttribute = nullptr;
    /** Anything of a font that is not in the style. */
    uint fontKey = 0;
    bool floats = false;
    /** How many style attributes there are; Qt applies each. */
    int styles = 0;
};

/**
 * Follows a document as Qt builds it, element by element, and adds up what loading, laying out at
 * 256 pixels and drawing it will cost.
 *
 * Costs are upper estimates in nanoseconds of a desktop processor of about 2020, bytes and pixels.
 * They exist because Qt 5.15 has steps that are quadratic or endless in such things as the
 * length of a word, the items of a list or the height of the page.
 */
class HtmlWorkload
{
public:
    /** @param characters length of the document. */
    explicit HtmlWorkload(int characters);

    /** Follows an open tag. The name is in lower case and the element is what it stands for. */
    void open(const HtmlElement &element, QStringView name, const ElementRequest &request,
              bool selfClosed);
    /** Follows a close tag; one without an open element changes nothing. */
    void close(const HtmlElement &element, QStringView name);
    /** Follows text; entities count once. */
    void text(QStringView text);
    /** Applies the facts of a kept style sheet to all that follows. */
    void addSheet(const StyleFacts &facts);
    /** The document carries Qt's own mark, which makes line feeds mean nothing. */
    void setRichTextMark() { m_richText = true; }
    /** Closes what is open. */
    void finish();

    /** The first limit that is passed, if any. */
    [[nodiscard]] HtmlExcess excess() const { return m_excess; }
    /** Row spans that reach below their tables; complete after finish(). */
    [[nodiscard]] const std::vector<RowSpanUse> &longRowSpans() const { return m_longSpans; }

    /** Upper estimates so far, for tests and for tuning. */
    [[nodiscard]] double height() const { return m_heights.front(); }
    [[nodiscard]] double work() const { return m_work + m_tangle; }
    [[nodiscard]] double tangle() const { return m_tangle; }
    [[nodiscard]] double memory() const { return m_memory; }
    [[nodiscard]] int tables() const { return m_tableCount; }

private:
    struct Element
    {
        uint name = 0;
        uint traits = 0;
        double fontSize = 0;
        double lineHeight = 0;
        double lineFactor = 1;
        double letterSpacing = 0;
        double sideways = 0;
        double upright = 0;
        uint fontKey = 0;
        bool hidden = false;
        bool skipsChildren = false;
    };
    struct Table
    {
        int rows = 0;
        int columns = 0;
        int column = 0;
        double covered = 0;
        double written = 0;
        double rowHeight = 0;
        double rowExtra = 0;
        double columnExtra = 0;
        double widestCell = 0;
        double cellUpright = 0;
        int cellSpan = 1;
        bool inCell = false;
        bool overlaps = false;
        bool holdsTables = false;
        /** For each column: the row behind the last span and that span's width. */
        std::vector<int> freeFrom;
        std::vector<int> spanWidth;
        std::vector<RowSpanUse> spans;
    };
    struct Block
    {
        double characters = 0;
        double advance = 0;
        double images = 0;
        double imageHeight = 0;
        double forcedLines = 0;
        double fontSize = 0;
        double lineHeight = 0;
        double lineFactor = 1;
        double sideways = 0;
        double wordCharacters = 0;
        double wordUnits = 0;
        double wordImageHeight = 0;
    };

    [[nodiscard]] const Element &top() const { return m_open.back(); }
    void fail(HtmlExcess excess);
    void push(uint name, uint traits, const ElementRequest &request);
    void pop();
    void popTo(size_t size);
    [[nodiscard]] uint idOfUnknown(QStringView name);
    [[nodiscard]] size_t parentFor(uint traits, uint name);
    [[nodiscard]] size_t paragraphParent() const;
    void openImplied(uint traits);
    void openVoid(uint traits, const ElementRequest &request);
    void enter(uint traits, const ElementRequest &request, bool inRow);
    void enterTable(const ElementRequest &request);
    void enterCell(const ElementRequest &request);
    void leaveCell();
    void leaveRow();
    void leaveTable();
    void startBlock(bool repeated = false);
    void endWord();
    void endBlock();
    void noteFont();
    void addNarrow(int count);
    int addSpecial(QStringView text, int pos);
    void addOdd(uint code, uint before);
    void checkLimits();
    [[nodiscard]] double lineWidth() const;
    /** How often the text at hand is laid out, and how often of that in any one table. */
    [[nodiscard]] double passes() const;
    [[nodiscard]] double ordinaryPasses() const;

    std::vector<Element> m_open;
    std::vector<Table> m_tables;
    std::vector<double> m_heights;
    std::vector<double> m_listItems;
    std::vector<RowSpanUse> m_longSpans;
    std::unordered_set<uint> m_fonts;
    std::vector<int> m_openNames;
    QHash<QString, uint> m_unknownNames;
    Block m_block;
    StyleFacts m_sheet;
    HtmlExcess m_excess = HtmlExcess::None;
    double m_work = 0;
    double m_tangle = 0;
    double m_memory = 0;
    double m_mostTangle = 0;
    uint m_lastFont = 0;
    int m_openRows = 0;
    int m_tableCount = 0;
    int m_floats = 0;
    bool m_richText = false;
    bool m_keepsSpace = false;
    bool m_blockClosed = false;
};

} // namespace lctrlsex
