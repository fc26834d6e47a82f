#include "processidentity.h"

#include <QByteArray>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <limits>
#include <unistd.h>

namespace workbench {

/** When the process was started; 0 when there is none of that number. */
static quint64 startOf(qint64 id)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(id));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    // The name in parentheses may hold anything; behind it the start is the 20th number.
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    constexpr int startField = 19;
    return fields.size() > startField ? fields.at(startField).toULongLong() : 0;
}

ProcessIdentity thisProcess()
{
    static const ProcessIdentity own{getpid(), startOf(getpid())};
    return own;
}

bool isRunning(const ProcessIdentity &process)
{
    if (process.id <= 0 || process.id > std::numeric_limits<pid_t>::max()) {
        return false;
    }
    if (kill(static_cast<pid_t>(process.id), 0) != 0 && errno == ESRCH) {
        return false;
    }
    const quint64 start = startOf(process.id);
    return start == 0 || process.start == 0 || start == process.start;
}

} // namespace workbench
