#include "ldata.h"

#include "attributestore.h"

#include <QMap>
#include <QPointer>

static const QString s_nameKey = QStringLiteral("Name");

class LDataPrivate
{
public:
    AttributeStore attributes;
    QMap<QString, QStringList> files;
};

LData::LData(QObject *parent)
    : QObject(parent)
    , d(new LDataPrivate)
{}

LData::~LData() = default;

QString LData::name() const
{
    return readAttribute(Attribute(s_nameKey), QString());
}

void LData::SetName(const QString &value)
{
    SetAttribute(s_nameKey, value);
}

QString LData::TypeText() const
{
    return QString();
}

bool LData::HasAttribute(const QString &key) const
{
    return d->attributes.contains(key);
}

QVariant LData::Attribute(const QString &key) const
{
    return d->attributes.value(key);
}

void LData::SetAttribute(const QString &key, const QVariant &value)
{
    // The last statement of every setter, because whoever listens may delete the node.
    if (d->attributes.set(key, value)) {
        emit AttributeChanged(key);
    }
}

void LData::SetAttributes(const QVariantMap &values)
{
    QStringList changed;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (d->attributes.set(it.key(), it.value())) {
            changed.append(it.key());
        }
    }
    const QPointer<LData> self(this);
    for (int i = 0; i < changed.size() && self; ++i) {
        emit AttributeChanged(changed.at(i));
    }
}

void LData::RemoveAttribute(const QString &key)
{
    SetAttribute(key, QVariant());
}

QStringList LData::AttributeKeys() const
{
    return d->attributes.keys();
}

QStringList LData::GetFilePath(const QString &kind) const
{
    return d->files.value(kind);
}

void LData::SetFilePath(const QString &kind, const QStringList &files)
{
    if (d->files.value(kind) == files) {
        return;
    }
    if (files.isEmpty()) {
        d->files.remove(kind);
    } else {
        d->files.insert(kind, files);
    }
    emit FilePathChanged(kind);
}
