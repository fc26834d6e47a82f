#pragma once

#include <QColor>
#include <QSize>
#include <QString>
#include <QVector>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class QTextDocument;

namespace lctrlsex {

/** What a whole document's text colours can be turned into. */
enum class ColorConversion {
    Flip,           ///< Every colour into its complement, opaque.
    BlackWhiteSwap, ///< Opaque black into opaque white and back; other colours stay.
};

/** Asked while a conversion runs; lock-free, so that asking costs nothing. */
using StopFlag = std::atomic<bool>;
static_assert(StopFlag::is_always_lock_free);

/** Told how far a conversion is, in percent of the document's blocks. */
using ProgressReport = std::function<void(int percent)>;

/** A stretch of a document's text and the colour that it gets. */
struct ColorChange
{
    int position;
    int length;
    QColor color;
};

/** What became of a document's text colours. */
struct ConvertedColors
{
    QString html;
    QString text;                 ///< As QTextDocument::toPlainText() gives it.
    QVector<ColorChange> changes; ///< In the order of the text; none of an image.
};

/**
 * The document @p html with its text colours converted; text without a colour counts as black. All
 * else stays as it is: Qt's own HTML of which no colour changes comes back the same.
 *
 * No result when @p stop was set, which is asked for each fragment of text (reading the HTML and
 * writing the result are not interrupted), and when the guard refuses the document. @p report may
 * be empty; it is called after each block, rising to 100. Nothing is loaded from outside. Any
 * thread may call it while a GUI application exists.
 */
[[nodiscard]] std::optional<ConvertedColors> convertColors(const QString &html,
                                                           ColorConversion conversion,
                                                           const StopFlag &stop,
                                                           const ProgressReport &report);

/**
 * The same for @p document itself, whose positions the changes then have: HTML leaves out an empty
 * paragraph behind a table. A document that was stopped on the way has some of the new colours.
 */
[[nodiscard]] std::optional<ConvertedColors> convertColors(QTextDocument *document,
                                                           ColorConversion conversion,
                                                           const StopFlag &stop,
                                                           const ProgressReport &report);

/**
 * Gives the text of @p document the colours that changed in a conversion of its HTML or of a
 * copy of it, in one undo step; all else stays. Without a change nothing is announced. False, and
 * nothing is done, when the document does not hold the text that was converted.
 */
[[nodiscard]] bool applyColors(QTextDocument *document, const ConvertedColors &converted);

/** A copy of @p document that another thread may have: the two share no font. */
[[nodiscard]] std::unique_ptr<QTextDocument> detachedCopy(const QTextDocument &document);

/**
 * Gives all text of @p document fonts without antialiasing, in one undo step; HTML does not carry
 * it. A document that has them already is not changed.
 *
 * A document that is shown must not be handed to another thread: its view lays it out again.
 */
void removeAntialiasing(QTextDocument *document);

/**
 * The size of @p document's text in pixels when all of it stands on one line: the widths of its
 * fragments' bounding rectangles together, and the height of the largest font. Lengths are those of
 * the paint device that the document is laid out for.
 */
[[nodiscard]] QSize oneLineSize(const QTextDocument &document);

} // namespace lctrlsex
