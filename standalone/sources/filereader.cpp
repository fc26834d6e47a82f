#include "filereader.h"

#include "datasourceconfig.h"
#include "movedsources.h"
#include "sourcetexts.h"
#include "systemreason.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QTimer>

#include <cerrno>
#include <sys/stat.h>

namespace sources {

namespace {

constexpr qint64 DefaultCap = 256LL * 1024 * 1024;
constexpr int Patience = 2000; ///< Milliseconds that a file which never rests is waited for.

/** The file's stamp; an error for what is no file, above all a pipe, which would never end. */
FileStamp stampOf(const QString &fileName, QString *error)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(fileName).constData(), &status) != 0) {
        *error = SourceTexts::tr("the file cannot be read: %1")
                     .arg(systemReason(qt_error_string(errno)));
        return {};
    }
    if (!S_ISREG(status.st_mode)) {
        *error = SourceTexts::tr("this is no file");
        return {};
    }
    return {quint64(status.st_dev), quint64(status.st_ino), qint64(status.st_size),
            qint64(status.st_mtim.tv_sec) * 1000000000 + status.st_mtim.tv_nsec};
}

/** Milliseconds since the content changed; a clock that goes wrong says long ago. */
qint64 ageOf(const FileStamp &stamp)
{
    const qint64 age = QDateTime::currentMSecsSinceEpoch() - stamp.changed / 1000000;
    return age < 0 ? Patience : age;
}

} // namespace

bool FileStamp::operator==(const FileStamp &other) const
{
    return device == other.device && inode == other.inode && size == other.size &&
           changed == other.changed;
}

FileReader::FileReader(const SourceSettings &settings, const SourceContext &context)
    : SourceReader(settings, context)
    , m_fileName(fullFileName(context.folder, settings.file))
{}

void FileReader::open()
{
    m_watcher = new QFileSystemWatcher(this);
    m_quiet = new QTimer(this);
    m_quiet->setSingleShot(true);
    m_quiet->setInterval(context().settling);
    connect(m_quiet, &QTimer::timeout, this, &SourceReader::due);
    const auto changed = [this] {
        if (!m_quiet->isActive()) {
            m_quiet->start();
        }
    };
    connect(m_watcher, &QFileSystemWatcher::fileChanged, this, changed);
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, changed);
}

// The folder too: a file that is replaced by another one is watched no longer.
void FileReader::watch()
{
    const QString folder = QFileInfo(m_fileName).path();
    if (!m_watcher->files().contains(m_fileName) && QFile::exists(m_fileName)) {
        m_watcher->addPath(m_fileName);
    }
    if (!m_watcher->directories().contains(folder) && QFile::exists(folder)) {
        m_watcher->addPath(folder);
    }
}

int FileReader::nextInterval() const
{
    return milliseconds(settings().interval, 5000);
}

void FileReader::read()
{
    watch();
    m_attempts.start();
    attempt();
}

void FileReader::tryAgain()
{
    QTimer::singleShot(qMax(10, context().settling / 4), this, &FileReader::attempt);
}

void FileReader::attempt()
{
    QString error;
    const FileStamp before = stampOf(m_fileName, &error);
    if (!error.isEmpty()) {
        m_read = FileStamp();
        return end(Reading::failed(error));
    }
    if (before == m_read) {
        Reading reading;
        reading.outcome = Reading::Unchanged;
        return end(reading);
    }
    if (before == m_broken) {
        return end(Reading::failed(m_brokenReason));
    }
    const bool mayWait = !stop() && m_attempts.elapsed() < Patience;
    if (mayWait && ageOf(before) < context().settling) {
        return tryAgain();
    }
    const QByteArray bytes = readAll(&error);
    if (!error.isEmpty()) {
        return end(Reading::failed(error));
    }
    const FileStamp after = stampOf(m_fileName, &error);
    if (after != before || bytes.size() != before.size) {
        return mayWait ? tryAgain() : end(Reading::failed(SourceTexts::tr("the file never rests")));
    }
    const Reply reply = bytes.isEmpty() ? Reply{{}, SourceTexts::tr("the file is empty"), false}
                                        : parseReply(bytes, format(), settings(), stop());
    // Whoever writes line by line pauses between lines; a line cut off that stays so is meant.
    if ((reply.looksCut || !reply.error.isEmpty()) && mayWait && ageOf(before) < Patience) {
        return tryAgain();
    }
    m_read = reply.error.isEmpty() ? before : FileStamp();
    m_broken = reply.error.isEmpty() || stop() ? FileStamp() : before;
    m_brokenReason = reply.error;
    end(Reading::of(reply, bytes.size()));
}

void FileReader::end(const Reading &reading)
{
    emit finished(reading);
}

QByteArray FileReader::readAll(QString *error) const
{
    const qint64 cap = settings().sizeCap > 0 ? settings().sizeCap : DefaultCap;
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        *error =
            SourceTexts::tr("the file cannot be read: %1").arg(systemReason(file.errorString()));
        return QByteArray();
    }
    if (file.size() > cap) {
        *error = SourceTexts::tr("it is larger than %1 bytes").arg(cap);
        return QByteArray();
    }
    QByteArray bytes(int(file.size()), Qt::Uninitialized);
    qint64 size = 0;
    while (size < bytes.size() && !stop()) {
        const qint64 read =
            file.read(bytes.data() + size, qMin<qint64>(bytes.size() - size, 1 << 22));
        if (read < 0) {
            *error = SourceTexts::tr("the file cannot be read: %1")
                         .arg(systemReason(file.errorString()));
            return QByteArray();
        }
        if (read == 0) {
            break;
        }
        size += read;
    }
    bytes.truncate(int(size));
    return bytes;
}

QString FileReader::format() const
{
    if (!settings().format.isEmpty()) {
        return settings().format;
    }
    if (settings().type == DataSourceEntry::JsonFile) {
        return QStringLiteral("json");
    }
    const bool isText = m_fileName.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive);
    return isText ? QStringLiteral("text") : QStringLiteral("csv");
}

} // namespace sources
