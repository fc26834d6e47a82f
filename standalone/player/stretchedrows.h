#pragma once

#include <QtGlobal>

class QTextDocument;

namespace player {

/** Where the last row of the last table of a laid-out document ends, its border included. */
[[nodiscard]] qreal tableBottom(const QTextDocument &document);

/**
 * Makes the rows of the tables of a laid-out document higher, all by as much, until the document is
 * @p height pixels high. Does nothing to a document that is.
 */
void stretchTables(QTextDocument *document, int height);

} // namespace player
