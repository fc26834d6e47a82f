#pragma once

#include <QString>

namespace lctrlsex {

/** What became of a document that was to be loaded. */
struct GuardedHtml
{
    /** The document may be given to QTextDocument::setHtml. */
    bool accepted = false;
    /**
     * The document to load: the one handed in, shared, when nothing had to be changed. Empty when
     * it was refused.
     */
    QString html;
    /** Why it was refused, in one sentence for the user; empty otherwise. */
    QString reason;
    /** What the user can do about it. */
    QString remedy;
    /** Where the limit was passed, both from 1; 0 when the document was accepted. */
    int line = 0;
    int column = 0;
};

/** Longest document that is read at all, in characters. */
constexpr int longestHtml = 8 * 1024 * 1024;

/**
 * Makes a document fit to be loaded, laid out at 256 pixels or more and drawn.
 *
 * What Qt 5.15 itself writes passes unchanged. Sizes beyond sense are clamped, what loads or runs
 * something is taken out, characters that break the document later become U+FFFD. A document that
 * would still take Qt more than about a second or 300 MB, or never end, is refused. Images keep
 * their names: it is the document class that decides what they may load.
 *
 * Linear in the length; keeps no state, so any thread may call it. Guarding an accepted result
 * again gives the same text.
 */
[[nodiscard]] GuardedHtml guardHtml(const QString &html);

} // namespace lctrlsex
