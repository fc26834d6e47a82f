#include "processidentity.h"

#include <QFile>
#include <QSysInfo>

#include <limits>
#include <unistd.h>

namespace workbench {

/** When the process was started; 0 when there is none of that number, or only its remains. */
static quint64 startOf(qint64 id)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(id));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    // The name in parentheses may hold anything; behind it stand the state and 18 numbers.
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    constexpr int startField = 19;
    const bool isAlive = fields.size() > startField && fields.first() != "Z";
    return isAlive ? fields.at(startField).toULongLong() : 0;
}

ProcessIdentity thisProcess()
{
    static const ProcessIdentity own{getpid(), startOf(getpid()), QSysInfo::bootUniqueId(),
                                     QSysInfo::machineUniqueId()};
    return own;
}

static bool differ(const QByteArray &left, const QByteArray &right)
{
    return !left.isEmpty() && !right.isEmpty() && left != right;
}

bool isRunning(const ProcessIdentity &process)
{
    const ProcessIdentity own = thisProcess();
    if (differ(process.machine, own.machine)) {
        return true;
    }
    if (differ(process.boot, own.boot) || process.id <= 0 ||
        process.id > std::numeric_limits<pid_t>::max()) {
        return false;
    }
    const quint64 start = startOf(process.id);
    return start != 0 && (process.start == 0 || start == process.start);
}

} // namespace workbench
