#pragma once

#include <QByteArray>

namespace workbench {

/** A process, told apart from a later one that was given the same number. */
struct ProcessIdentity
{
    qint64 id = 0;
    quint64 start = 0;  ///< When it was started, in ticks since the machine was; 0 when unknown.
    QByteArray boot;    ///< Another one each time that the machine is started; empty when unknown.
    QByteArray machine; ///< Of the machine that it runs on; empty when unknown.
};

[[nodiscard]] ProcessIdentity thisProcess();
/**
 * Whether @p process still runs, as far as what is known of it tells. One of another machine, which
 * may share our disk, is taken to run.
 */
[[nodiscard]] bool isRunning(const ProcessIdentity &process);

} // namespace workbench
