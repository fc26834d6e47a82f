#pragma once

#include "itemdocument.h"
#include "itemtemplate.h"

namespace player {

/** Which part of a bound item a document holds. */
struct PagePart
{
    int from = 0; ///< Rows, the last one left out; the frozen one is added to them.
    int to = 0;
    bool hasPrologue = false;
    bool hasEpilogue = false;
};

/** Makes documents of parts of a bound item, laid out at the width of its pages. */
class PageDocuments
{
public:
    /** All outlive this. */
    PageDocuments(const ItemTemplate *rows, ValueImages *images, const StoredItem *item, int width)
        : m_rows(*rows)
        , m_images(*images)
        , m_item(*item)
        , m_width(width)
    {}

    /** Loads a part into @p document; false, and an empty document, when it is refused. */
    bool load(lctrlsex::ItemDocument *document, const PagePart &part) const;
    /** The same for a table, with the tag of that row, around rows of markup. */
    bool loadRows(lctrlsex::ItemDocument *document, const QString &rows, int row) const;

    /** Why something was refused last; empty reason when nothing was. */
    [[nodiscard]] const Problem &refusal() const { return m_refusal; }

private:
    bool loadHtml(lctrlsex::ItemDocument *document, const QString &html) const;

    const ItemTemplate &m_rows;
    ValueImages &m_images;
    const StoredItem &m_item;
    int m_width;
    mutable Problem m_refusal;
};

} // namespace player
