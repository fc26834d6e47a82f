#pragma once

#include <QString>

class QTextBlock;
class QTextDocument;

namespace lctrlsex {

/*
 * Blank lines between the one table of a document and the text behind it.
 *
 * Qt writes one of them less than there are and, where the last cell has a text, reads one more
 * than are written: text that stands right behind a table would move down by a line each time that
 * it is opened. What is stored has them all, and reading takes the one away that nobody wrote.
 * Documents with more tables, or frames, are left as they are.
 */

/** The blank paragraph that Qt would not write; invalid when there is none. */
[[nodiscard]] QTextBlock unwrittenBlank(const QTextDocument &document);

/** @p html, as Qt writes it, with @p paragraph right behind its table. */
[[nodiscard]] QString withParagraphBehindTable(const QString &html, const QString &paragraph);

/** Takes away what reading @p html made too much in @p document. */
void removeUnwrittenBlank(QTextDocument *document, const QString &html);

} // namespace lctrlsex
