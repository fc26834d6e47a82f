#pragma once

class QString;
class QTreeWidget;

namespace lctrlsex {

/** Has @p hint stand in the middle of @p tree while that has no rows. */
void showWhileEmpty(QTreeWidget *tree, const QString &hint);

} // namespace lctrlsex
