#pragma once

#include <QString>

namespace player {

/** @p markup with @p text in place of all its text and images, in the look of the first of it. */
[[nodiscard]] QString markupWithText(const QString &markup, const QString &text);

/** A row that says that there is no data, over all the columns of the row @p markup, in its look.
 */
[[nodiscard]] QString noDataRow(const QString &markup);

/** "No data", in the user's language. */
[[nodiscard]] QString noDataText();

} // namespace player
