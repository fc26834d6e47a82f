#include "journal.h"

#include "lappconfig.h"
#include "systemreason.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace workbench {

namespace {

const QString FormatKey = QStringLiteral("format");
const QString FormatName = QStringLiteral("lctrlsex-autosave");
const QString VersionKey = QStringLiteral("version");
const QString OriginalKey = QStringLiteral("original");
const QString SizeKey = QStringLiteral("originalSize");
const QString HashKey = QStringLiteral("originalHash");
const QString SavedKey = QStringLiteral("saved");
const QString ProcessKey = QStringLiteral("process");
const QString StartKey = QStringLiteral("start");
const QString BootKey = QStringLiteral("boot");
const QString MachineKey = QStringLiteral("machine");
constexpr int Version = 1;
constexpr qint64 LargestJournal = 300LL * 1024 * 1024;

struct Journals
{
    Q_DECLARE_TR_FUNCTIONS(Journals)
};

QByteArray checksum(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

Journal broken(const QString &reason)
{
    Journal journal;
    journal.error = reason;
    return journal;
}

JournalHead headOf(const QJsonObject &object)
{
    JournalHead head;
    head.original = object.value(OriginalKey).toString();
    head.originalSize = static_cast<qint64>(object.value(SizeKey).toDouble());
    head.originalHash = QByteArray::fromHex(object.value(HashKey).toString().toLatin1());
    head.saved = QDateTime::fromString(object.value(SavedKey).toString(), Qt::ISODateWithMs);
    head.process.id = static_cast<qint64>(object.value(ProcessKey).toDouble());
    head.process.start = object.value(StartKey).toString().toULongLong();
    head.process.boot = object.value(BootKey).toString().toLatin1();
    head.process.machine = object.value(MachineKey).toString().toLatin1();
    return head;
}

} // namespace

FileStamp stampOf(const QString &fileName)
{
    QFile file(fileName);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly) || !hash.addData(&file)) {
        return {};
    }
    return {hash.result(), file.size()};
}

// Checksum of all that follows, line feed, the head on one line, line feed, the programme.
QByteArray writeJournal(const JournalHead &head, const QByteArray &programme)
{
    const QJsonObject object{
        {FormatKey, FormatName},
        {VersionKey, Version},
        {OriginalKey, head.original},
        {SizeKey, head.originalSize},
        {HashKey, QString::fromLatin1(head.originalHash.toHex())},
        {SavedKey, head.saved.toString(Qt::ISODateWithMs)},
        {ProcessKey, head.process.id},
        {StartKey, QString::number(head.process.start)},
        {BootKey, QString::fromLatin1(head.process.boot)},
        {MachineKey, QString::fromLatin1(head.process.machine)},
    };
    const QByteArray rest = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n' + programme;
    return checksum(rest) + '\n' + rest;
}

Journal readJournal(const QByteArray &bytes)
{
    const int headStart = bytes.indexOf('\n') + 1;
    const QByteArray rest = bytes.mid(headStart);
    if (headStart == 0 || checksum(rest) != bytes.left(headStart - 1)) {
        return broken(Journals::tr("it is not whole: what it holds does not match its checksum"));
    }
    const int end = rest.indexOf('\n');
    const QJsonObject object = QJsonDocument::fromJson(rest.left(end)).object();
    if (end < 0 || object.value(FormatKey).toString() != FormatName) {
        return broken(Journals::tr("it is no copy that was saved automatically"));
    }
    if (object.value(VersionKey).toInt() != Version) {
        return broken(Journals::tr("it was written by another release"));
    }
    Journal journal;
    journal.head = headOf(object);
    journal.programme = rest.mid(end + 1);
    return journal;
}

Journal loadJournal(const QString &fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        return broken(Journals::tr("it cannot be read: %1").arg(systemReason(file.errorString())));
    }
    if (file.size() > LargestJournal) {
        return broken(Journals::tr("it is too large"));
    }
    return readJournal(file.readAll());
}

QString recoveryFolder()
{
    return LAppConfig::AppDataDir() + QStringLiteral("/recovery");
}

QString journalName(const QString &original, int attempt)
{
    const QString name =
        original.isEmpty() ? QStringLiteral("untitled") : QFileInfo(original).fileName();
    const QString number = attempt > 1 ? QStringLiteral(".%1").arg(attempt) : QString();
    return QLatin1Char('.') + name + number + QStringLiteral(".autosave");
}

QString journalPattern()
{
    return QStringLiteral(".*.autosave");
}

} // namespace workbench
