#pragma once

class QPainter;
class QRectF;
class QTextDocument;

namespace lctrlsex {

/** What the layout of @p document makes of one pixel of a table's lengths: views may differ. */
[[nodiscard]] double lengthScale(const QTextDocument &document);

/**
 * Fills the background of the tables of @p document that lie in @p shown, both in the document's
 * coordinates: for tables with collapsed borders the text engine forgets to. To be called before
 * the document is drawn with the same @p painter; tables inside others are not looked at.
 */
void drawTableGrounds(QPainter *painter, const QTextDocument &document, const QRectF &shown);

} // namespace lctrlsex
