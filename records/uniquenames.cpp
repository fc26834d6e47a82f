#include "uniquenames.h"

namespace lctrlsex {

QString UniqueNames::makeUnique(const QString &base)
{
    QString name = base;
    if (isTaken(base)) {
        int &last = m_last[base];
        do {
            name = base + QLatin1Char('_') + QString::number(++last);
        } while (isTaken(name));
    }
    take(name);
    return name;
}

} // namespace lctrlsex
