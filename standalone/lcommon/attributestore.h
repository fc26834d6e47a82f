#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

/** The attributes of one node: values under keys, sorted by key. */
class AttributeStore
{
public:
    /** The value, invalid when there is none. */
    [[nodiscard]] QVariant value(const QString &key) const { return m_values.value(key); }
    [[nodiscard]] bool contains(const QString &key) const { return m_values.contains(key); }
    [[nodiscard]] QStringList keys() const { return m_values.keys(); }

    /**
     * Stores a value; an invalid one removes what is there. True when something changed: numbers
     * are equal whatever their type, any other values only when their types are, too.
     */
    bool set(const QString &key, const QVariant &value);

private:
    QVariantMap m_values;
};

/**
 * A stored value as a whole number. Any numeric type will do, since JSON knows only doubles, as
 * long as the number is whole and fits; true and false read as 1 and 0. Else @p fallback.
 */
[[nodiscard]] int readAttribute(const QVariant &value, int fallback);
/** A stored value as a flag: a boolean, or the number 0 or 1. Else @p fallback. */
[[nodiscard]] bool readAttribute(const QVariant &value, bool fallback);
/** A stored value as text: only a text will do. Else @p fallback. */
[[nodiscard]] QString readAttribute(const QVariant &value, const QString &fallback);
/** A stored value as a packed colour or other number without sign. Else @p fallback. */
[[nodiscard]] unsigned int readAttribute(const QVariant &value, unsigned int fallback);
