#pragma once

#include <QString>

/** What a host puts on a drag so that its data can be dropped into a text item. */
namespace FieldDrag {

/** A qualified key in UTF-8, source name, ":" and key name: dropped into a text as a field. */
inline const QString FieldFormat = QStringLiteral("application/x-lctrlsex-field");
/** A qualified key of a list in UTF-8: what a table can be bound to. For the host itself. */
inline const QString TableFormat = QStringLiteral("application/x-lctrlsex-bindkey");

} // namespace FieldDrag
