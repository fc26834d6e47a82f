#include "datacache.h"

#include "replacefile.h"
#include "sourcelogging.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

namespace sources {

namespace {

constexpr int Version = 1;
constexpr qint64 MostBytes = 16LL * 1024 * 1024; ///< Of data that is kept.
constexpr qint64 LargestFile = 256LL * 1024 * 1024;
constexpr int LeastPause = 60000; ///< Milliseconds between two writings, for the sake of disks.

QByteArray digest(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().left(40);
}

QString cacheFileName(const SourceSettings &settings, const SourceContext &context)
{
    if (context.cacheFolder.isEmpty()) {
        return QString();
    }
    const QByteArray id = context.programme.toUtf8() + '\0' + settings.name.toUtf8();
    return QDir(context.cacheFolder)
        .filePath(QString::fromLatin1(digest(id)) + QStringLiteral(".data"));
}

} // namespace

QString defaultCacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
           QStringLiteral("/sources");
}

DataCache::DataCache(const SourceSettings &settings, const SourceContext &context)
    : m_fileName(cacheFileName(settings, context))
    , m_settings(digest(QJsonDocument(settingsToJson(settings)).toJson()))
{}

SourceData DataCache::load() const
{
    SourceData data;
    QFile file(m_fileName);
    if (m_fileName.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return data;
    }
    const QByteArray head = file.readLine(1000);
    const QJsonObject about = QJsonDocument::fromJson(head).object();
    if (about.value(QStringLiteral("settings")).toString().toLatin1() != m_settings &&
        !about.isEmpty()) {
        return data; // of the source as it was set up before
    }
    const QByteArray body = file.size() <= LargestFile ? file.readAll() : QByteArray();
    const Reply reply = parseJson(body);
    const QDateTime takenAt =
        QDateTime::fromString(about.value(QStringLiteral("takenAt")).toString(), Qt::ISODateWithMs);
    if (about.value(QStringLiteral("version")).toInt() != Version || !takenAt.isValid() ||
        about.value(QStringLiteral("digest")).toString().toLatin1() != digest(body) ||
        !reply.error.isEmpty()) {
        qCWarning(lcSources, "%s: the last good data is damaged and not used",
                  qUtf8Printable(m_fileName));
        return data;
    }
    data.value = reply.value;
    data.takenAt = takenAt.toUTC();
    data.isStale = true;
    return data;
}

void DataCache::store(const SourceData &data, qint64 bytes)
{
    if (m_fileName.isEmpty() || bytes > MostBytes) {
        return;
    }
    m_waiting = data;
    if (!m_written.isValid() || m_written.elapsed() >= LeastPause) {
        flush();
    }
}

void DataCache::flush()
{
    if (m_waiting.value.isMissing()) {
        return;
    }
    const QByteArray body = toJson(m_waiting.value);
    const QJsonObject about{
        {QStringLiteral("version"), Version},
        {QStringLiteral("settings"), QString::fromLatin1(m_settings)},
        {QStringLiteral("takenAt"), m_waiting.takenAt.toString(Qt::ISODateWithMs)},
        {QStringLiteral("digest"), QString::fromLatin1(digest(body))},
    };
    QDir().mkpath(QFileInfo(m_fileName).path());
    const QString reason =
        replaceFile(m_fileName, QJsonDocument(about).toJson(QJsonDocument::Compact) + '\n' + body);
    if (!reason.isEmpty()) {
        qCWarning(lcSources, "%s: %s", qUtf8Printable(m_fileName), qUtf8Printable(reason));
    }
    m_waiting = SourceData();
    m_written.start();
}

} // namespace sources
