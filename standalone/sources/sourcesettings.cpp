#include "sourcesettings.h"

#include "datasourceconfig.h"
#include "datasourceconfigmanager.h"
#include "secrets.h"
#include "sourcetexts.h"

#include <QTextCodec>
#include <QUrl>

#include <limits>

namespace sources {

namespace {

const QString Connection = QStringLiteral("connection");
const QString Headers = QStringLiteral("headers");
const QString Queries = QStringLiteral("queries");

/** Takes members out of an object; what is left is unknown. */
class Taker
{
public:
    Taker(QJsonObject object, JsonPath path, QVector<SettingsFault> *faults)
        : m_rest(std::move(object))
        , m_path(std::move(path))
        , m_faults(faults)
    {}

    void take(const QString &key, QString *text)
    {
        takeIf(key, &QJsonValue::isString, SourceTexts::tr("it must be a text in quotes"),
               [&](const QJsonValue &value) { *text = value.toString(); });
    }
    void take(const QString &key, bool *value)
    {
        takeIf(key, &QJsonValue::isBool, SourceTexts::tr("it must be true or false"),
               [&](const QJsonValue &taken) { *value = taken.toBool(); });
    }
    template <typename Number>
    void take(const QString &key, Number *number, double least, double most)
    {
        const QJsonValue value = m_rest.take(key);
        if (value.isUndefined()) {
            return;
        }
        const double given = value.toDouble(std::numeric_limits<double>::quiet_NaN());
        if (given >= least && given <= most) {
            *number = Number(given);
        } else {
            fault(key, SourceTexts::tr("it must be a number from %1 to %2").arg(least).arg(most));
        }
    }
    void take(const QString &key, QVector<NamedText> *texts)
    {
        const QJsonObject object = takeObject(key);
        for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
            if (it->isString()) {
                texts->append({it.key(), it->toString()});
            } else {
                m_faults->append({m_path.key(key).key(it.key()),
                                  SourceTexts::tr("it must be a text in quotes")});
            }
        }
    }
    QJsonObject takeObject(const QString &key)
    {
        QJsonObject object;
        takeIf(key, &QJsonValue::isObject, SourceTexts::tr("it must be an object"),
               [&](const QJsonValue &value) { object = value.toObject(); });
        return object;
    }
    [[nodiscard]] QJsonObject rest() const { return m_rest; }

private:
    template <typename Set>
    void takeIf(const QString &key, bool (QJsonValue::*fits)() const, const QString &reason,
                Set set)
    {
        const QJsonValue value = m_rest.take(key);
        if ((value.*fits)()) {
            set(value);
        } else if (!value.isUndefined()) {
            fault(key, reason);
        }
    }
    void fault(const QString &key, const QString &reason)
    {
        m_faults->append({m_path.key(key), reason});
    }

    QJsonObject m_rest;
    const JsonPath m_path;
    QVector<SettingsFault> *m_faults;
};

/** Every text member, under the name that it has in the file. */
template <typename Settings, typename Each>
void forEachText(Settings *settings, Each each)
{
    each(QStringLiteral("file"), &settings->file);
    each(QStringLiteral("url"), &settings->url);
    each(QStringLiteral("certificate"), &settings->certificate);
    each(QStringLiteral("query"), &settings->query);
    each(QStringLiteral("format"), &settings->format);
    each(QStringLiteral("delimiter"), &settings->delimiter);
    each(QStringLiteral("encoding"), &settings->encoding);
    each(QStringLiteral("replay"), &settings->replay);
}

template <typename Connection, typename Each>
void forEachConnectionText(Connection *connection, Each each)
{
    each(QStringLiteral("driver"), &connection->driver);
    each(QStringLiteral("host"), &connection->host);
    each(QStringLiteral("database"), &connection->database);
    each(QStringLiteral("user"), &connection->user);
    each(QStringLiteral("password"), &connection->password);
    each(QStringLiteral("options"), &connection->options);
}

QJsonObject toObject(const QVector<NamedText> &texts)
{
    QJsonObject object;
    for (const NamedText &text : texts) {
        object.insert(text.name, text.text);
    }
    return object;
}

void insertUnlessEmpty(QJsonObject *object, const QString &key, const QJsonObject &value)
{
    if (!value.isEmpty()) {
        object->insert(key, value);
    }
}

QString urlFault(const QString &url)
{
    const QUrl parsed(url, QUrl::StrictMode);
    const bool isWeb =
        parsed.scheme() == QLatin1String("http") || parsed.scheme() == QLatin1String("https");
    // A reference may stand anywhere in an address, which is no address before it is resolved.
    if (hasReference(url)) {
        return url.startsWith(QLatin1String("http")) || url.startsWith(QLatin1String("${env:"))
                   ? QString()
                   : SourceTexts::tr("it must be an http or https address");
    }
    return parsed.isValid() && isWeb && !parsed.host().isEmpty()
               ? QString()
               : SourceTexts::tr("it must be an http or https address");
}

/** What the kind of the source needs. */
QVector<SettingsFault> kindFaults(const SourceSettings &settings, const JsonPath &path)
{
    QVector<SettingsFault> faults;
    if (!settings.replay.isEmpty()) {
        return faults; // whatever it is, it is not asked
    }
    const QString missing = SourceTexts::tr("it is missing");
    const bool isFile =
        settings.type == DataSourceEntry::CsvFile || settings.type == DataSourceEntry::JsonFile;
    if (isFile && settings.file.isEmpty()) {
        faults.append({path.key(QStringLiteral("file")), missing});
    }
    if (settings.type == DataSourceEntry::Http && !urlFault(settings.url).isEmpty()) {
        faults.append({path.key(QStringLiteral("url")), urlFault(settings.url)});
    }
    if (settings.type == DataSourceEntry::Sql && settings.connection.driver.isEmpty()) {
        faults.append({path.key(Connection).key(QStringLiteral("driver")), missing});
    }
    if (settings.type == DataSourceEntry::Sql && settings.query.isEmpty() &&
        settings.queries.isEmpty()) {
        faults.append({path.key(QStringLiteral("query")), missing});
    }
    return faults;
}

} // namespace

SourceSettings settingsFromJson(const QJsonObject &object, const JsonPath &path,
                                QVector<SettingsFault> *faults)
{
    SourceSettings settings;
    Taker taker(object, path, faults);
    taker.take(QStringLiteral("name"), &settings.name);
    taker.take(QStringLiteral("type"), &settings.type, 1, std::numeric_limits<int>::max());
    taker.take(QStringLiteral("enabled"), &settings.enabled);
    forEachText(&settings, [&](const QString &key, QString *text) { taker.take(key, text); });
    taker.take(Headers, &settings.headers);
    taker.take(Queries, &settings.queries);
    taker.take(QStringLiteral("interval"), &settings.interval, 0.1, 1000000);
    taker.take(QStringLiteral("timeout"), &settings.timeout, 0.1, 3600);
    taker.take(QStringLiteral("sizeCap"), &settings.sizeCap, 1, 1 << 30);
    Taker connection(taker.takeObject(Connection), path.key(Connection), faults);
    forEachConnectionText(&settings.connection,
                          [&](const QString &key, QString *text) { connection.take(key, text); });
    connection.take(QStringLiteral("port"), &settings.connection.port, 1, 65535);
    settings.connection.unknown = connection.rest();
    settings.unknown = taker.rest();
    return settings;
}

QJsonObject settingsToJson(const SourceSettings &settings)
{
    QJsonObject object = settings.unknown;
    object.insert(QStringLiteral("name"), settings.name);
    object.insert(QStringLiteral("type"), settings.type);
    if (!settings.enabled) {
        object.insert(QStringLiteral("enabled"), false);
    }
    QJsonObject connection = settings.connection.unknown;
    const auto insertText = [](QJsonObject *target) {
        return [target](const QString &key, const QString *text) {
            if (!text->isEmpty()) {
                target->insert(key, *text);
            }
        };
    };
    forEachText(&settings, insertText(&object));
    forEachConnectionText(&settings.connection, insertText(&connection));
    const auto insertNumber = [](QJsonObject *target, const QString &key, double number) {
        if (number > 0) {
            target->insert(key, number);
        }
    };
    insertNumber(&connection, QStringLiteral("port"), settings.connection.port);
    insertNumber(&object, QStringLiteral("interval"), settings.interval);
    insertNumber(&object, QStringLiteral("timeout"), settings.timeout);
    insertNumber(&object, QStringLiteral("sizeCap"), double(settings.sizeCap));
    insertUnlessEmpty(&object, Connection, connection);
    insertUnlessEmpty(&object, Headers, toObject(settings.headers));
    insertUnlessEmpty(&object, Queries, toObject(settings.queries));
    return object;
}

QVector<SettingsFault> settingsFaults(const SourceSettings &settings, const JsonPath &path)
{
    QVector<SettingsFault> faults;
    if (settings.name.isEmpty()) {
        faults.append({path.key(QStringLiteral("name")), SourceTexts::tr("it is missing")});
    } else if (DataSourceConfigManager::ContainsIllegalChars(settings.name)) {
        faults.append({path.key(QStringLiteral("name")),
                       SourceTexts::tr("a name must not hold any of %1")
                           .arg(QStringLiteral(": ; , $ % & | * ? \" ' / \\ < > { } [ ]"))});
    }
    static const QStringList formats{QString(), QStringLiteral("csv"), QStringLiteral("text"),
                                     QStringLiteral("json")};
    if (!formats.contains(settings.format)) {
        faults.append({path.key(QStringLiteral("format")),
                       SourceTexts::tr("it must be \"csv\", \"text\" or \"json\"")});
    }
    const QString delimiter = settings.delimiter;
    if (!delimiter.isEmpty() &&
        (delimiter.size() != 1 || delimiter.at(0).unicode() > 0x7e ||
         QStringLiteral("\"\r\n").contains(delimiter) || delimiter.at(0).isNull())) {
        faults.append({path.key(QStringLiteral("delimiter")),
                       SourceTexts::tr("it must be one character such as \",\"")});
    }
    if (!settings.encoding.isEmpty() &&
        QTextCodec::codecForName(settings.encoding.toLatin1()) == nullptr) {
        faults.append(
            {path.key(QStringLiteral("encoding")), SourceTexts::tr("there is no such encoding")});
    }
    return faults + kindFaults(settings, path) + secretFaults(settingsToJson(settings), path);
}

} // namespace sources
