#include "programmeschema.h"

#include "lcontrollernode.h"
#include "leffectnode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "programmekeys.h"
#include "programmetexts.h"

#include <QHash>
#include <QSet>

#include <cmath>
#include <type_traits>

namespace ProgrammeSchema {

namespace {

template <typename T>
constexpr Kind kindOf()
{
    if (std::is_same<T, QString>::value) {
        return Text;
    }
    return std::is_same<T, bool>::value ? Truth : Number;
}

/** The kinds of all attributes that the nodes know, from the nodes' own list. */
const QHash<QString, Kind> &attributeKinds()
{
    static const QHash<QString, Kind> kinds{
#define NODE_ATTRIBUTE(Class, Type, Getter, Setter, Key, Default)                                  \
    {QStringLiteral(Key), kindOf<Type>()},
#include "nodeattributes.def"
#undef NODE_ATTRIBUTE
    };
    return kinds;
}

/** The attributes that are an empty text as long as nobody sets them. */
const QSet<QString> &blankAttributes()
{
    static const QSet<QString> keys = [] {
        QSet<QString> blank;
#define NODE_ATTRIBUTE(Class, Type, Getter, Setter, Key, Default)                                  \
    if (QVariant(static_cast<Type>(Default)) == QVariant(QString())) {                             \
        blank.insert(QStringLiteral(Key));                                                         \
    }
#include "nodeattributes.def"
#undef NODE_ATTRIBUTE
        blank.remove(ProgrammeKeys::DisplayHtml);
        return blank;
    }();
    return keys;
}

} // namespace

const QVector<Member> &controllerMembers()
{
    static const QVector<Member> members{
        {QStringLiteral("kind"), QStringLiteral("DeviceKind"), DeviceKind},
        {QStringLiteral("model"), QStringLiteral("DeviceModel"), Text},
        {QStringLiteral("width"), QStringLiteral("Width"), Side},
        {QStringLiteral("height"), QStringLiteral("Height"), Side},
    };
    return members;
}

const QVector<Member> &frameMembers()
{
    static const QVector<Member> members{
        {QStringLiteral("x"), QStringLiteral("X"), Number},
        {QStringLiteral("y"), QStringLiteral("Y"), Number},
        {QStringLiteral("width"), QStringLiteral("Width"), Side},
        {QStringLiteral("height"), QStringLiteral("Height"), Side},
    };
    return members;
}

const QVector<Member> &borderMembers()
{
    static const QVector<Member> members{
        {QStringLiteral("enabled"), QStringLiteral("FrameEnable"), Truth},
        {QStringLiteral("type"), QStringLiteral("FrameType"), Number},
        {QStringLiteral("effect"), QStringLiteral("FrameEffect"), Number},
        {QStringLiteral("speed"), QStringLiteral("FrameSpeed"), Number},
    };
    return members;
}

QString fault(Kind kind, const QJsonValue &value)
{
    const double number = value.toDouble(0.5);
    const bool isWhole = std::floor(number) == number && std::abs(number) <= 4294967295.0;
    switch (kind) {
    case Text:
        return value.isString() ? QString() : ProgrammeFileTexts::tr("it must be a text in quotes");
    case Number:
        return isWhole ? QString() : ProgrammeFileTexts::tr("it must be a whole number");
    case Truth:
        return value.isBool() ? QString() : ProgrammeFileTexts::tr("it must be true or false");
    case DeviceKind: {
        const QString text = value.toString();
        const bool isKnown = text == QLatin1String("LED") || text == QLatin1String("LCD");
        return isKnown ? QString() : ProgrammeFileTexts::tr("it must be \"LED\" or \"LCD\"");
    }
    case Side:
        return isWhole && number >= 1 && number <= LongestSide
                   ? QString()
                   : ProgrammeFileTexts::tr("it must be a whole number of pixels from 1 to %1")
                         .arg(LongestSide);
    }
    return {};
}

bool isBlank(const QString &key, const QVariant &value)
{
    return value.userType() == QMetaType::QString && value.toString().isEmpty() &&
           blankAttributes().contains(key);
}

QString attributeFault(const QString &key, const QJsonValue &value)
{
    const auto kind = attributeKinds().constFind(key);
    return kind == attributeKinds().constEnd() || value.isNull() ? QString() : fault(*kind, value);
}

} // namespace ProgrammeSchema
