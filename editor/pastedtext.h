#pragma once

#include <QString>

#include <functional>

class QTextCharFormat;
class QTextCursor;
class QTextDocument;

namespace lctrlsex {

/**
 * Most characters and lines that are inserted at once. Inserting, laying out, storing and drawing
 * took 0.4 s for 200,000 characters of prose, 0.5 s for 20,000 short lines, 1.1 s for both at once
 * and 1.3 s for tabs alone, in an item of 256 x 64 pixels and on two cores that had other work too.
 */
constexpr int mostPastedCharacters = 200000;
constexpr int mostPastedLines = 20000;

/** Text that is to be inserted, or why it is not. */
struct PastedText
{
    /** What is left of the text; may be empty. */
    QString text;
    /** What is wrong, how much of it and what to do, for the user; empty when nothing is. */
    QString refusal;
};

/**
 * What a document can keep of @p text: every kind of line end as the one that Qt knows, no
 * placeholders of objects, and U+FFFD for what no document can store. On one line when
 * @p singleLine is set. Any thread.
 */
[[nodiscard]] QString storableText(const QString &text, bool singleLine);

/** The same, refused when it is longer than the limits above. Any thread. */
[[nodiscard]] PastedText pastedText(const QString &text, bool singleLine);

/** Why @p document, once stored, could not be opened again, and the remedy; empty when it can. */
[[nodiscard]] QString reopeningProblem(const QTextDocument &document);

/**
 * The same for the document that @p edit would make; it is given a cursor like @p cursor in a copy
 * of the document, which itself stays as it is.
 */
[[nodiscard]] QString reopeningProblemAfter(const QTextCursor &cursor,
                                            const std::function<void(QTextCursor *)> &edit);

/**
 * The same for the document that inserting @p text at @p cursor, in place of its selection, would
 * make. The document stays as it is.
 */
[[nodiscard]] QString insertionProblem(const QTextCursor &cursor, const QString &text,
                                       const QTextCharFormat &format);

} // namespace lctrlsex
