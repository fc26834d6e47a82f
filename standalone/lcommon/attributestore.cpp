#include "attributestore.h"

#include <cmath>
#include <limits>
#include <optional>

static bool isNumber(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

// QVariant's own comparison converts, so that the text "1" would equal the number 1.
static bool sameValue(const QVariant &left, const QVariant &right)
{
    const bool comparable =
        left.userType() == right.userType() || (isNumber(left) && isNumber(right));
    return comparable && left == right;
}

bool AttributeStore::set(const QString &key, const QVariant &value)
{
    if (key.isEmpty()) {
        return false;
    }
    if (!value.isValid()) {
        return m_values.remove(key) > 0;
    }
    const auto found = m_values.find(key);
    if (found == m_values.end()) {
        m_values.insert(key, value);
        return true;
    }
    if (sameValue(*found, value)) {
        return false;
    }
    *found = value;
    return true;
}

template <typename Number>
static std::optional<Number> wholeNumber(const QVariant &value)
{
    if (!isNumber(value)) {
        return std::nullopt;
    }
    const double number = value.toDouble();
    const bool fits = number >= std::numeric_limits<Number>::min() &&
                      number <= std::numeric_limits<Number>::max() && std::trunc(number) == number;
    return fits ? std::optional<Number>(static_cast<Number>(number)) : std::nullopt;
}

int readAttribute(const QVariant &value, int fallback)
{
    if (value.userType() == QMetaType::Bool) {
        return value.toBool() ? 1 : 0;
    }
    return wholeNumber<int>(value).value_or(fallback);
}

bool readAttribute(const QVariant &value, bool fallback)
{
    if (value.userType() == QMetaType::Bool) {
        return value.toBool();
    }
    const std::optional<int> number = wholeNumber<int>(value);
    return number == 0 || number == 1 ? *number == 1 : fallback;
}

QString readAttribute(const QVariant &value, const QString &fallback)
{
    return value.userType() == QMetaType::QString ? value.toString() : fallback;
}

unsigned int readAttribute(const QVariant &value, unsigned int fallback)
{
    return wholeNumber<unsigned int>(value).value_or(fallback);
}
