#pragma once

#include "datasnapshot.h"
#include "itemdocument.h"
#include "pagelines.h"
#include "pagerenderer.h"
#include "problem.h"

#include <memory>

class LTextEffectNode;

namespace player {

class BoundPages;

/**
 * The pages of one text item, from what its node stores and the data of the moment.
 *
 * Both are read once, on construction; later changes are not seen. Nothing is written to the node.
 * Without any data the item is as its author sees it, placeholders and all. With data a bound table
 * is filled, and so are fields, calculations and conditional styles in any text; a table whose
 * stored templates do not fit it is shown as its author sees it. For the GUI thread.
 */
class ItemRenderer
{
public:
    /**
     * Reads the document of @p node; a null one has no pages. @p size stands in for the item's own
     * size when it is valid; @p place names the item in problems.
     */
    ItemRenderer(LTextEffectNode *node, const QString &place, const QSize &size = QSize(),
                 const sources::DataSnapshot &data = {});
    ~ItemRenderer();
    Q_DISABLE_COPY(ItemRenderer)

    /**
     * Why the item is not shown as meant, as far as reading and laying out told until now. What is
     * wrong with data is a warning, because the page is shown.
     */
    [[nodiscard]] Problems problems() const;

    /** Whether there are pages: the stored text could be read and the size is a page size. */
    [[nodiscard]] bool hasPages() const;
    /** Whether page @p index, from 0, exists; seeks page breaks no further than there. */
    [[nodiscard]] bool hasPage(int index) const;
    /** Of a bound table with many rows this seeks all of its page breaks. */
    [[nodiscard]] int pageCount() const;
    [[nodiscard]] QSize size() const { return m_style.size; }
    [[nodiscard]] QString place() const { return m_place; }

    /** Page @p index, from 0, before hollow, stroke and placement; null out of range. */
    [[nodiscard]] QImage page(int index);
    /** Page @p index, from 0, as the screen shows it; null out of range. */
    [[nodiscard]] QImage finishedPage(int index);

    /**
     * The document as it is laid out, and what part of it each page shows; of a bound table, that
     * of the page made last, at first the first one.
     */
    [[nodiscard]] lctrlsex::ItemDocument &document();
    [[nodiscard]] QVector<lctrlsex::PageSlice> slices() const;
    /**
     * The sources whose data shows on the pages, those that deliver nothing among them. None when
     * there is no data at all: what the item would show is not looked for then.
     */
    [[nodiscard]] QSet<QString> sources() const;
    /** What shows behind the text; transparent where that depends on what lies below the item. */
    [[nodiscard]] QColor groundColor() const;

private:
    [[nodiscard]] QString readHtml(const LTextEffectNode &node);
    bool load(const LTextEffectNode &node);
    bool loadBound(const LTextEffectNode &node);
    void checkDocument(const QString &itemFamily);
    void problem(Problem::Severity severity, const QString &part, const QString &reason,
                 const QString &remedy);

    QString m_place;
    lctrlsex::ItemDocument m_document;
    lctrlsex::PageStyle m_style;
    lctrlsex::PageFinish m_finish;
    QVector<lctrlsex::PageSlice> m_slices;
    sources::DataSnapshot m_data;
    /** What the item shows of the data, whether its table is bound or not; null without data. */
    std::unique_ptr<BoundPages> m_bound;
    bool m_isBound = false;
    Problems m_problems;
};

} // namespace player
