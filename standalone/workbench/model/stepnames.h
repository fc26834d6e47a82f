#pragma once

#include <QString>
#include <QStringList>

namespace workbench {

/** The name of a step that changed these attributes: of their group, when all are of one. */
[[nodiscard]] QString stepNameOf(const QStringList &keys);
/** The name of a step that changed the text. */
[[nodiscard]] QString textStepName();

} // namespace workbench
