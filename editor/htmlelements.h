#pragma once

#include <QStringView>

namespace lctrlsex {

/** What an element is to Qt, as bits. */
enum HtmlTrait : unsigned {
    BlockTrait = 1U << 0,
    /** Its content is not shown. */
    HiddenTrait = 1U << 1,
    /** It never holds anything. */
    VoidTrait = 1U << 2,
    ListTrait = 1U << 3,
    TableTrait = 1U << 4,
    /** thead, tbody or tfoot. */
    SectionTrait = 1U << 5,
    RowTrait = 1U << 6,
    CellTrait = 1U << 7,
    /** td: Qt invents the row and the table around it. */
    DataCellTrait = 1U << 8,
    ItemTrait = 1U << 9,
    ParagraphTrait = 1U << 10,
    /** dd or dt. */
    TermTrait = 1U << 11,
    TermListTrait = 1U << 12,
    CaptionTrait = 1U << 13,
    BodyTrait = 1U << 14,
    HeadTrait = 1U << 15,
    PreTrait = 1U << 16,
    BreakTrait = 1U << 17,
    RuleTrait = 1U << 18,
    ImageTrait = 1U << 19,
    StyleTrait = 1U << 20,
    ScriptTrait = 1U << 21,
    /** The tag is taken out of a document. */
    RefusedTrait = 1U << 22,
    /** It changes the font in a way of its own. */
    FontTrait = 1U << 23,
    /** It may enlarge the font. */
    LargeTrait = 1U << 24,
    MetaTrait = 1U << 25,
    QuoteTrait = 1U << 26,
    LinkTrait = 1U << 27,
};

/** A known element; id is 0 for others. */
struct HtmlElement
{
    unsigned id = 0;
    unsigned traits = 0;
};

/** Highest id of a known element. */
[[nodiscard]] unsigned lastHtmlElementId();

/** Finds an element by its name in lower case. */
[[nodiscard]] HtmlElement findHtmlElement(QStringView name);

} // namespace lctrlsex
