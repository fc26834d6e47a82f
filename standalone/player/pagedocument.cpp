#include "pagedocument.h"

#include "htmlguard.h"
#include "valueimages.h"

#include <QCoreApplication>

namespace player {

using namespace lctrlsex;

/** Texts of this file, under one name for translators. */
struct PageDocumentsTexts
{
    Q_DECLARE_TR_FUNCTIONS(PageDocuments)
};

bool PageDocuments::load(ItemDocument *document, const PagePart &part) const
{
    QString html = m_rows.head();
    if (part.hasPrologue) {
        html += m_rows.prologue();
    }
    if (part.from < part.to) {
        html += m_rows.tableTag(part.from);
        const int frozen = m_rows.frozenRow(part.from);
        if (frozen >= 0) {
            m_rows.appendRows(&html, frozen, frozen + 1);
        }
        m_rows.appendRows(&html, part.from, part.to);
        html += QLatin1String("</table>");
    }
    html += part.hasEpilogue ? m_rows.epilogue() : QStringLiteral("</body></html>");
    return loadHtml(document, html);
}

bool PageDocuments::loadRows(ItemDocument *document, const QString &rows, int row) const
{
    return loadHtml(document, m_rows.head() + m_rows.tableTag(row) + rows +
                                  QLatin1String("</table></body></html>"));
}

bool PageDocuments::loadHtml(ItemDocument *document, const QString &html) const
{
    const GuardedHtml guarded = guardHtml(html);
    if (!guarded.accepted) {
        m_refusal = {Problem::Warning, PageDocumentsTexts::tr("rows of the table"), guarded.reason,
                     guarded.remedy};
    }
    // Before it is loaded, so that it is laid out only once: with a table that is most of the work.
    // A height of 0 keeps the text in one piece.
    const QSizeF size(m_width, 0);
    if (document->pageSize() != size) {
        document->clear();
        document->setPageSize(size);
    }
    document->loadItem(guarded.html, m_item.text);
    if (m_images.moveTo(document)) {
        document->markContentsDirty(0, document->characterCount());
    }
    return guarded.accepted;
}

} // namespace player
