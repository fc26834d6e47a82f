#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVarLengthArray>

namespace lctrlsex {

/**
 * Reads the members of one object into a record. A member that is missing, or is of a type that
 * does not fit, leaves what is there.
 */
class ObjectReader
{
public:
    explicit ObjectReader(const QJsonObject &object)
        : m_object(object)
    {}

    /** A text; numbers and truth values are taken as they are written. */
    void read(QLatin1String key, QString *text);
    /** A number: cut off behind its point, and brought into the range of an int. */
    void read(QLatin1String key, int *number);
    void read(QLatin1String key, bool *value);
    /** A list of texts, each as above; an element that is none is empty. */
    void read(QLatin1String key, QStringList *texts);
    /** A list that @p append takes over, element by element. */
    template <class Append>
    void readArray(QLatin1String key, const Append &append)
    {
        const QJsonValue value = m_object.value(key);
        if (value.isArray()) {
            m_read.append(key);
            const QJsonArray array = value.toArray();
            for (const QJsonValue &element : array) {
                append(element.toObject());
            }
        }
    }
    /** The object that a member is; empty when it is none. */
    [[nodiscard]] QJsonObject object(QLatin1String key);

    /** The members that nobody asked for, and those of a type that did not fit. */
    [[nodiscard]] QJsonObject others() const;

private:
    const QJsonObject m_object;
    QVarLengthArray<QLatin1String, 8> m_read;
};

} // namespace lctrlsex
