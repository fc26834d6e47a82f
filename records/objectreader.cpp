#include "objectreader.h"

#include <QVariant>

#include <algorithm>
#include <limits>

namespace lctrlsex {

static bool isText(const QJsonValue &value)
{
    return value.isString() || value.isDouble() || value.isBool();
}

static QString textOf(const QJsonValue &value)
{
    return value.isString() ? value.toString()
           : isText(value)  ? value.toVariant().toString()
                            : QString();
}

void ObjectReader::read(QLatin1String key, QString *text)
{
    const QJsonValue value = m_object.value(key);
    if (isText(value)) {
        m_read.append(key);
        *text = textOf(value);
    }
}

void ObjectReader::read(QLatin1String key, int *number)
{
    const QJsonValue value = m_object.value(key);
    if (value.isDouble()) {
        m_read.append(key);
        constexpr double least = std::numeric_limits<int>::min();
        constexpr double most = std::numeric_limits<int>::max();
        *number = static_cast<int>(std::clamp(value.toDouble(), least, most));
    }
}

void ObjectReader::read(QLatin1String key, bool *value)
{
    const QJsonValue found = m_object.value(key);
    if (found.isBool()) {
        m_read.append(key);
        *value = found.toBool();
    }
}

void ObjectReader::read(QLatin1String key, QStringList *texts)
{
    const QJsonValue value = m_object.value(key);
    if (!value.isArray()) {
        return;
    }
    m_read.append(key);
    const QJsonArray array = value.toArray();
    texts->clear();
    texts->reserve(array.size());
    for (const QJsonValue &element : array) {
        texts->append(textOf(element));
    }
}

QJsonObject ObjectReader::object(QLatin1String key)
{
    const QJsonValue value = m_object.value(key);
    if (value.isObject()) {
        m_read.append(key);
    }
    return value.toObject();
}

QJsonObject ObjectReader::others() const
{
    QJsonObject result;
    if (m_object.size() == m_read.size()) {
        return result;
    }
    for (auto member = m_object.begin(); member != m_object.end(); ++member) {
        if (std::find(m_read.begin(), m_read.end(), member.key()) == m_read.end()) {
            result.insert(member.key(), member.value());
        }
    }
    return result;
}

} // namespace lctrlsex
