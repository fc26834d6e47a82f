#include "singlefields.h"

#include "bindkey.h"

namespace lctrlsex {

namespace {

/** The names between the braces of @p key; none where there are no braces. */
QStringList namesOf(const QString &key)
{
    constexpr int listOfRecords = 21;
    constexpr int record = 22;
    const BindKey parts = classifyBindKey(key.mid(key.indexOf(QLatin1Char(':')) + 1));
    return parts.kind == listOfRecords || parts.kind == record ? parts.fields : QStringList();
}

/** What stands in front of the braces of @p key, with the dot. */
QString frontOf(const QString &key)
{
    return key.left(key.lastIndexOf(QStringLiteral(".{")) + 1);
}

} // namespace

QMap<QString, QString> singleFields(const QMap<QString, QString> &offered)
{
    QMap<QString, QString> fields;
    for (auto key = offered.cbegin(); key != offered.cend(); ++key) {
        const QStringList names = namesOf(key.key());
        if (names.isEmpty()) {
            fields.insert(key.key(), key.value());
        }
        // A value of several lines cannot be told from several values.
        const QStringList values = key.value().split(QLatin1Char('\n'));
        const bool isComplete = values.size() == names.size();
        for (int i = 0; i < names.size(); ++i) {
            fields.insert(frontOf(key.key()) + names.at(i), isComplete ? values.at(i) : QString());
        }
    }
    return fields;
}

QStringList fieldsInOrder(const QMap<QString, QString> &fields, const QString &bound)
{
    const QString front = namesOf(bound).isEmpty() ? bound : frontOf(bound);
    QStringList first;
    QStringList others;
    for (auto field = fields.cbegin(); field != fields.cend(); ++field) {
        const bool isBound = !front.isEmpty() && field.key().startsWith(front);
        (isBound ? first : others).append(field.key());
    }
    return first + others;
}

} // namespace lctrlsex
