#pragma once

#include <QtGlobal>

namespace workbench {

/** A process, told apart from a later one that was given the same number. */
struct ProcessIdentity
{
    qint64 id = 0;
    quint64 start = 0; ///< When it was started, in ticks since the machine was; 0 when unknown.
};

[[nodiscard]] ProcessIdentity thisProcess();
/** Whether @p process still runs; when its start is unknown, whether its number is in use. */
[[nodiscard]] bool isRunning(const ProcessIdentity &process);

} // namespace workbench
