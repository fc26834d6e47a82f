#pragma once

#include <QColor>
#include <QString>
#include <QTextCharFormat>

class QTextCursor;

namespace lctrlsex {

/** What the tool bar shows of the format at the cursor. */
struct ToolbarFormat
{
    QString family;
    qreal pointSize = 16;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    QColor color = Qt::black;
    Qt::Alignment align = Qt::AlignLeft; ///< Horizontal; leading is left.
    int lineSpacing = 100;               ///< Percent; 100 where no proportional height is set.

    [[nodiscard]] bool operator==(const ToolbarFormat &other) const;
    [[nodiscard]] bool operator!=(const ToolbarFormat &other) const { return !(*this == other); }
};

/**
 * The format at @p cursor. What the text does not set itself is the document's default font; a
 * size in pixels counts as points, because a point is a pixel here. A null cursor gives defaults.
 */
[[nodiscard]] ToolbarFormat toolbarFormatAt(const QTextCursor &cursor);

/**
 * Whether text in @p format would be black on black, which also holds where neither colour is set:
 * the format of an emptied document.
 */
[[nodiscard]] bool isInvisible(const QTextCharFormat &format);
/**
 * @p text where it can be told from @p ground; else a colour that can: white, or the darkest grey
 * that isInvisible() does not take for a missing colour.
 */
[[nodiscard]] QColor shownOn(const QColor &ground, const QColor &text);

} // namespace lctrlsex
