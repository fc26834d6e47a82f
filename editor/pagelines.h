#pragma once

#include <QVector>

#include <limits>

class QTextDocument;

namespace lctrlsex {

/** A stretch of a laid-out document that shows on one page, in document pixels. */
struct PageSlice
{
    qreal top = 0;     ///< First pixel row of the document that belongs to the page.
    qreal bottom = 0;  ///< One past the last; never more than the page height below drawnAt.
    qreal drawnAt = 0; ///< Where the slice's top stands on the page: the margin kept above it.
    bool cut = false;  ///< A line or table row is higher than a page and loses its lower part.
};

/** The most pages that one document is broken into; what follows is not shown. */
constexpr int MostPages = 9999;

/**
 * Breaks @p document, laid out at the width it has, into pages of @p height pixels. Lines of text
 * are never cut; table rows are kept whole where a page can hold them. The first page starts at
 * the document's very top. Empty lines behind the last text make no page of their own; an empty
 * document has one page. At most MostPages.
 *
 * What lies more than a page below @p until is not laid out for it and may be left out.
 */
[[nodiscard]] QVector<PageSlice> paginate(const QTextDocument &document, qreal height,
                                          qreal until = std::numeric_limits<qreal>::infinity());

} // namespace lctrlsex
