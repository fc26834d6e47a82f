#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

namespace workbench {

/**
 * What a text item keeps of its document between two steps of the history: the text itself and what
 * the editor derives from it and from the table's binding. Large ones are kept compressed.
 */
class TextState
{
public:
    /** Keeps what of @p attributes belongs to a text; the rest is left out. */
    void keep(const QVariantMap &attributes);
    /** All keys of a text; an invalid value for an attribute that was absent. */
    [[nodiscard]] QVariantMap values() const;

private:
    QVariantMap m_values;
    QByteArray m_compressed;
};

/** Puts a value into a map of attributes; an invalid one removes what is there. */
void storeAttribute(QVariantMap *attributes, const QString &key, const QVariant &value);

/** Whether a TextState holds the attribute @p key. */
[[nodiscard]] bool isTextKey(const QString &key);
/** Whether it is a text key that the user sets without editing the text: the table's binding. */
[[nodiscard]] bool isBindingKey(const QString &key);

/**
 * Whether an attribute reads the same under both values: equal, or one absent and the other the
 * value that is then taken for it.
 */
[[nodiscard]] bool readsTheSame(const QString &key, const QVariant &left, const QVariant &right);

} // namespace workbench
