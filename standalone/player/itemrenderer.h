#pragma once

#include "itemdocument.h"
#include "pagelines.h"
#include "pagerenderer.h"
#include "problem.h"

class LTextEffectNode;

namespace player {

/**
 * The pages of one text item, from what its node stores.
 *
 * The document is read once, on construction; later changes of the node are not seen. Nothing is
 * written to the node. For the GUI thread.
 */
class ItemRenderer
{
public:
    /**
     * Reads the document of @p node; a null one has no pages. @p size stands in for the item's own
     * size when it is valid; @p place names the item in problems.
     */
    ItemRenderer(LTextEffectNode *node, const QString &place, const QSize &size = QSize());
    ~ItemRenderer();
    Q_DISABLE_COPY(ItemRenderer)

    /** Why the item is not shown as meant, as far as reading and laying out tells. */
    [[nodiscard]] const Problems &problems() const { return m_problems; }

    /** Whether there are pages: the stored text could be read and the size is a page size. */
    [[nodiscard]] bool hasPages() const { return !m_slices.isEmpty(); }
    [[nodiscard]] int pageCount() const { return m_slices.size(); }
    [[nodiscard]] QSize size() const { return m_style.size; }
    [[nodiscard]] QString place() const { return m_place; }

    /** Page @p index, from 0, before hollow, stroke and placement; null out of range. */
    [[nodiscard]] QImage page(int index);
    /** Page @p index, from 0, as the screen shows it; null out of range. */
    [[nodiscard]] QImage finishedPage(int index);

    /** The document as it is laid out, and what part of it each page shows. */
    [[nodiscard]] lctrlsex::ItemDocument &document() { return m_document; }
    [[nodiscard]] const QVector<lctrlsex::PageSlice> &slices() const { return m_slices; }
    /** What shows behind the text; transparent where that depends on what lies below the item. */
    [[nodiscard]] QColor groundColor() const;

private:
    bool load(const LTextEffectNode &node);
    void problem(Problem::Severity severity, const QString &part, const QString &reason,
                 const QString &remedy);

    QString m_place;
    lctrlsex::ItemDocument m_document;
    lctrlsex::PageStyle m_style;
    lctrlsex::PageFinish m_finish;
    QVector<lctrlsex::PageSlice> m_slices;
    Problems m_problems;
};

} // namespace player
