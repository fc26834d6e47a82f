#pragma once

#include <QColor>
#include <QString>

class QTextCharFormat;

namespace lctrlsex {

/** The look of text that is about to be typed, as the tool bar shows it. */
struct TypingStyle
{
    QString family;     ///< Empty leaves the family to the document.
    int pointSize = 16; ///< In points; 0 and below mean 16.
    bool italic = false;
    bool underline = false;
    bool bold = false;
    QColor color; ///< Of the letters; invalid leaves it to the document.

    /** The size that counts, above 0. */
    [[nodiscard]] int effectiveSize() const;
    /** A format with these properties set, the weight 75 or 50, and nothing else. */
    [[nodiscard]] QTextCharFormat toFormat() const;

    bool operator==(const TypingStyle &other) const;
    bool operator!=(const TypingStyle &other) const { return !(*this == other); }
};

} // namespace lctrlsex
