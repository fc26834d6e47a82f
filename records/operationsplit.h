#pragma once

#include <QString>
#include <QVector>

namespace lctrlsex {

/** The parts of a text, joined with line feeds, and where each of them ends in that. */
struct SplitText
{
    QString joined;
    QVector<int> ends;
};

/** @p separator with \\n, \\r, \\t and \\\\ replaced by what they stand for. */
[[nodiscard]] QString unescapedSeparator(const QString &separator);

/**
 * The parts of @p text between the occurrences of @p separator, without the empty ones, in a time
 * in proportion to both lengths. An empty separator parts all characters. Stops soon after
 * mostOperationElements parts or longestOperationText characters, with more than that.
 */
[[nodiscard]] SplitText splitText(const QString &text, const QString &separator);

} // namespace lctrlsex
