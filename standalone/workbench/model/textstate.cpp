#include "textstate.h"

#include "lcontrollernode.h"
#include "leffectnode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"

#include <QDataStream>
#include <QHash>
#include <QSet>

namespace workbench {

namespace {

// Compressing costs more than it saves below.
constexpr int LargeState = 32 * 1024;

const QSet<QString> &bindingKeys()
{
    static const QSet<QString> keys{
        QStringLiteral("TableBindKey"),
        QStringLiteral("TableFixedBindKey"),
        QStringLiteral("TableRowBindKey"),
        QStringLiteral("TableColBindKey"),
        QStringLiteral("TableAdaptRowsColsBindKey"),
        QStringLiteral("TableListTypeSeparator"),
    };
    return keys;
}

const QSet<QString> &textKeys()
{
    static const QSet<QString> keys =
        bindingKeys() + QSet<QString>{
                            QStringLiteral("RawHtml"),
                            QStringLiteral("Html"),
                            QStringLiteral("PlayText"),
                            QStringLiteral("StringContent"),
                            QStringLiteral("TableFixedRow"),
                            QStringLiteral("TableFixedTemplate"),
                            QStringLiteral("TableFixedPlaceHolder"),
                            QStringLiteral("TableRowTemplate"),
                            QStringLiteral("TableRowPlaceHolder"),
                            QStringLiteral("TableColTemplate"),
                            QStringLiteral("TableColTemplatePrefix"),
                            QStringLiteral("TableColTemplateSuffix"),
                            QStringLiteral("TableColTemplateSeparator"),
                            QStringLiteral("TableColPlaceHolder"),
                            QStringLiteral("TableAdaptRowsCols"),
                            QStringLiteral("TableAdaptRowsColsTemplatePrefix"),
                            QStringLiteral("TableAdaptRowsColsTemplateSuffix"),
                            QStringLiteral("TableAdaptRowsColsPlaceHolder"),
                        };
    return keys;
}

/** What the nodes take for an attribute that is absent, from the nodes' own list. */
const QVariantMap &defaults()
{
    static const QVariantMap values{
        {QStringLiteral("Name"), QString()},
#define NODE_ATTRIBUTE(Class, Type, Getter, Setter, Key, Default)                                  \
    {QStringLiteral(Key), QVariant::fromValue(static_cast<Type>(Default))},
#include "nodeattributes.def"
#undef NODE_ATTRIBUTE
    };
    return values;
}

} // namespace

void storeAttribute(QVariantMap *attributes, const QString &key, const QVariant &value)
{
    if (value.isValid()) {
        attributes->insert(key, value);
    } else {
        attributes->remove(key);
    }
}

bool isTextKey(const QString &key)
{
    return textKeys().contains(key);
}

bool isBindingKey(const QString &key)
{
    return bindingKeys().contains(key);
}

bool readsTheSame(const QString &key, const QVariant &left, const QVariant &right)
{
    return (left.isValid() ? left : defaults().value(key)) ==
           (right.isValid() ? right : defaults().value(key));
}

void TextState::keep(const QVariantMap &attributes)
{
    QVariantMap values;
    int size = 0;
    for (const QString &key : textKeys()) {
        const QVariant value = attributes.value(key);
        values.insert(key, value);
        size += value.userType() == QMetaType::QString ? value.toString().size() : 0;
    }
    m_values.clear();
    m_compressed.clear();
    if (size < LargeState) {
        m_values = values;
        return;
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << values;
    m_compressed = qCompress(bytes, 1);
}

QVariantMap TextState::values() const
{
    if (m_compressed.isEmpty()) {
        return m_values;
    }
    QVariantMap values;
    const QByteArray bytes = qUncompress(m_compressed);
    QDataStream stream(bytes);
    stream >> values;
    return values;
}

} // namespace workbench
