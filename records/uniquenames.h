#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace lctrlsex {

/** The names that are taken among things of one kind, and free ones made from them. */
class UniqueNames
{
public:
    void take(const QString &name) { m_taken.insert(name); }
    [[nodiscard]] bool isTaken(const QString &name) const { return m_taken.contains(name); }

    /**
     * @p base when it is free, else the first free one of base_1, base_2 and so on; it is taken
     * from then on. A name given ten thousand times takes no longer each time.
     */
    [[nodiscard]] QString makeUnique(const QString &base);

private:
    QSet<QString> m_taken;
    QHash<QString, int> m_last; ///< The last number that a base was given.
};

} // namespace lctrlsex
