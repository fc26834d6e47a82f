#include "movedsources.h"

#include <QDir>
#include <QJsonArray>

namespace sources {

namespace {

const QString Sources = QStringLiteral("sources");

/** As far as it exists: ".." leads out of the folder that a link points to. */
QDir withoutLinks(const QString &folder)
{
    const QString path = QDir(folder).canonicalPath();
    return QDir(path.isEmpty() ? folder : path);
}

class Move
{
public:
    Move(const QString &from, const QString &to)
        : m_from(withoutLinks(from))
        , m_to(withoutLinks(to))
    {}

    [[nodiscard]] bool isNeeded() const { return m_from != m_to; }

    [[nodiscard]] QString moved(const QString &name) const
    {
        const bool isRelative = !name.isEmpty() && QDir::isRelativePath(name) &&
                                !name.startsWith(QLatin1String("${env:"));
        return isRelative ? m_to.relativeFilePath(m_from.absoluteFilePath(name)) : name;
    }

    void move(QJsonObject *object, const QString &key) const
    {
        const QJsonValue name = object->value(key);
        if (name.isString()) {
            object->insert(key, moved(name.toString()));
        }
    }

private:
    const QDir m_from;
    const QDir m_to;
};

QJsonObject movedSource(QJsonObject source, const Move &move)
{
    for (const char *const key : {"file", "certificate", "replay"}) {
        move.move(&source, QLatin1String(key));
    }
    QJsonObject connection = source.value(QStringLiteral("connection")).toObject();
    // What other drivers call a database is no file.
    if (connection.value(QStringLiteral("driver")) == QLatin1String("QSQLITE")) {
        move.move(&connection, QStringLiteral("database"));
        source.insert(QStringLiteral("connection"), connection);
    }
    return source;
}

} // namespace

QString fullFileName(const QString &folder, const QString &name)
{
    return QDir::cleanPath(withoutLinks(folder).absoluteFilePath(name));
}

QJsonValue movedSources(const QJsonValue &list, const QString &from, const QString &to)
{
    const Move move(from, to);
    if (!list.isArray() || !move.isNeeded()) {
        return list;
    }
    QJsonArray moved;
    const QJsonArray sources = list.toArray();
    for (const QJsonValue &source : sources) {
        moved.append(source.isObject() ? movedSource(source.toObject(), move) : source);
    }
    return moved;
}

QJsonObject movedMembers(QJsonObject members, const QString &from, const QString &to)
{
    const QJsonValue sources = members.value(Sources);
    if (sources.isString()) {
        const Move move(from, to);
        if (move.isNeeded()) {
            move.move(&members, Sources);
        }
    } else if (!sources.isUndefined()) {
        members.insert(Sources, movedSources(sources, from, to));
    }
    return members;
}

} // namespace sources
