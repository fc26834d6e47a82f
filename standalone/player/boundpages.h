#pragma once

#include "pagelines.h"
#include "pagerenderer.h"
#include "rowheights.h"
#include "valueimages.h"

namespace player {

/**
 * What an item shows of data: the pages of a bound table, from what the item stores and the data
 * alone; for other items their text, filled.
 *
 * Pages break between rows, by the heights that the rows have; a page is laid out from its own rows
 * only, when it is asked for, and the breaks are sought only as far as they are needed. The text in
 * front of the table is on the first pages, that behind it on the last; the frozen row is repeated.
 * A row that no page can hold is shown from its top on a page of its own. When the table fills the
 * area its rows are stretched to the height of each page. For the GUI thread.
 */
class BoundPages
{
public:
    BoundPages(const StoredItem &item, const sources::DataSnapshot &data,
               const lctrlsex::PageStyle &style);

    /** Unless it is ItemTemplate::Bound there are no pages. */
    [[nodiscard]] ItemTemplate::State state() const { return m_rows.state(); }
    [[nodiscard]] const ItemTemplate &rows() const { return m_rows; }
    /** The sources that it shows values of, or would if they had any. */
    [[nodiscard]] QSet<QString> sources() const;
    /**
     * Text that is not bound as a table, with its fields, calculations and styles; the document
     * that it is loaded into gets the images of its fields then.
     */
    [[nodiscard]] QString filledText(const QString &html);
    void moveImagesTo(QTextDocument *document) { m_images.moveTo(document); }
    /** What was found wrong with the item's data so far; places are parts of the item. */
    [[nodiscard]] Problems problems() const;

    /** Whether page @p index, from 0, exists; seeks breaks up to there. */
    [[nodiscard]] bool hasPage(int index);
    /** Seeks all breaks. */
    [[nodiscard]] int pageCount();
    /** Page @p index, from 0, before hollow, stroke and placement; null when it does not exist. */
    [[nodiscard]] QImage page(int index);
    /** The rows on a page that exists, the frozen one not counted, from the first to the last. */
    [[nodiscard]] QPair<int, int> rowsOf(int index);

    /** The document of the page that was made last, and the parts of it that are pages. */
    [[nodiscard]] lctrlsex::ItemDocument &document() { return m_document; }
    [[nodiscard]] QVector<lctrlsex::PageSlice> slices() const { return m_slices; }

private:
    /** Which stretch of rows, and which slice of its document, a page is. */
    struct Place
    {
        int stretch = 0;
        int slice = 0;
    };

    void begin();
    [[nodiscard]] qreal bottomOfFirst(int rows);
    void addStretch();
    void end();
    [[nodiscard]] int fill(int row, qreal bottom, qreal limit);
    [[nodiscard]] int stretchCount() const { return m_starts.size() - 1; }
    [[nodiscard]] Place placeOf(int page) const;
    [[nodiscard]] PagePart partOf(int stretch) const;
    [[nodiscard]] QVector<lctrlsex::PageSlice> slicesOf(int stretch) const;
    void load(int stretch);

    StoredItem m_item;
    lctrlsex::PageStyle m_style;
    sources::DataSnapshot m_data;
    ItemValues m_values;
    LineStyles m_styles;
    ValueImages m_images;
    ItemTemplate m_rows;
    PageDocuments m_documents;
    RowHeights m_heights;
    /** First rows of the stretches, one a page, and the row behind the last of them. */
    QVector<int> m_starts;
    bool m_isBegun = false;
    bool m_isComplete = false;
    qreal m_tail = 0;                     ///< A document's height below the last row of its table.
    QVector<lctrlsex::PageSlice> m_first; ///< Of the first stretch.
    QVector<lctrlsex::PageSlice> m_last;  ///< Of the last one.
    int m_cutRows = 0;
    int m_firstCut = -1;
    bool m_isLastCut = false; ///< The last stretch so far is a row that no page can hold.
    lctrlsex::ItemDocument m_document;
    int m_loaded = -1; ///< The stretch that it holds.
    QVector<lctrlsex::PageSlice> m_slices;
};

} // namespace player
