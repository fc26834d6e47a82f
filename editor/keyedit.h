#pragma once

#include <QString>

class QKeyEvent;
class QTextCursor;

namespace lctrlsex {

/**
 * What a key does to the text at a cursor without a selection. Qt makes no edit block of it, so
 * that nothing can join its undo step; apply() does.
 */
struct KeyEdit
{
    QString text; ///< To insert; a line feed for a new paragraph.
    int from = 0; ///< To delete, up to @p to.
    int to = 0;

    [[nodiscard]] bool isNone() const { return text.isEmpty() && from == to; }
    /** Whether runs that look alike, but are not the same, come to stand side by side. */
    [[nodiscard]] bool leavesLookAlikes(const QTextCursor &cursor) const;
    /** Makes the edit at @p cursor, in one edit block with whatever is open there. */
    void apply(QTextCursor *cursor) const;
};

/** The edit that @p key makes at @p cursor; none when it is not known to be one. */
[[nodiscard]] KeyEdit keyEditOf(const QKeyEvent &key, const QTextCursor &cursor);

} // namespace lctrlsex
