#pragma once

#include <QString>

class QFont;
class QTextCharFormat;
class QTextDocument;

namespace lctrlsex {

/** How the text of an item is set beyond what its HTML says. */
struct TextSettings
{
    QString fontFamily; ///< For text without a family of its own; empty: the application's.
    int fontSize = 16;  ///< In points, for text without a size of its own; 1 to 1000.
    int fontSpace = 0;  ///< The word-spacing control's number, see letterSpacing().
    bool singleLine = false;
    bool antialias = true; ///< Whether letters have soft edges.

    bool operator==(const TextSettings &other) const;
    bool operator!=(const TextSettings &other) const { return !(*this == other); }
};

/**
 * The absolute letter spacing in pixels that the word-spacing control's number @p value means:
 * the number itself from 0 to 99, an eighth of it below 0, 0 above 99.
 */
[[nodiscard]] qreal letterSpacing(int value);

/**
 * Gives all text of @p document the letter spacing of @p settings; HTML cannot carry it. Does
 * nothing in single-line mode, as the control does nothing there.
 */
void applyLetterSpacing(QTextDocument *document, const TextSettings &settings);

/** Whether text in @p font has letters with soft edges. */
[[nodiscard]] bool isAntialiased(const QFont &font);

/**
 * Gives all text of @p document, also what is typed later, letters with soft edges or without, by
 * the default font; what can be undone stays so.
 */
void setAntialiasing(QTextDocument *document, bool on);

/**
 * Makes @p document, whose font sizes stay in points, lay a point out as a pixel: for the document
 * that a view edits. Links are never underlined; the font of @p settings is the default font.
 * Outlives setHtml().
 *
 * Qt scales table widths, padding and margins by the same 72 dots per inch over those of the
 * desktop, so these are true to the pixel only where the desktop has 72. Pages do not have this
 * flaw, see preparePage().
 */
void prepareView(QTextDocument *document, const TextSettings &settings);

/**
 * Makes @p document one that pages are drawn from: images count their own pixels, links are never
 * underlined, the font of @p settings is the default font. Together with pointsToPixels() every
 * length is a number of pixels, whatever the desktop's resolution. Outlives setHtml().
 */
void preparePage(QTextDocument *document, const TextSettings &settings);

/**
 * Turns every font size in points into the same number of pixels, rounded; the text stays. To be
 * called after the content of a page's document is set.
 */
void pointsToPixels(QTextDocument *document);
/** The same for one format; false when its size is not in points. */
bool pointsToPixels(QTextCharFormat *format);

/**
 * The other way round, for the document of a view: Qt writes a size in pixels down as that in
 * points around it. To be called after the content is set.
 */
void pixelsToPoints(QTextDocument *document);

} // namespace lctrlsex
