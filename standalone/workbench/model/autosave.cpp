#include "autosave.h"

#include "journalwriter.h"
#include "movefile.h"
#include "programmedocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace workbench {

namespace {

// With the time that the writing takes, well below five seconds.
constexpr int WriteDelay = 2000;
constexpr int MostAttempts = 100;

/** Gives @p file a journal's name in @p folder that is free, and tells it; empty if none is. */
QString moveToFreeName(const QString &file, const QString &folder, const QString &original)
{
    for (int attempt = 1; attempt <= MostAttempts; ++attempt) {
        const QString name = folder + QLatin1Char('/') + journalName(original, attempt);
        if (moveFile(file, name)) {
            return name;
        }
    }
    return {};
}

/** A name of this process alone for a journal until it has its own. */
QString newName(const QString &folder)
{
    return QStringLiteral("%1/.new-%2.autosave").arg(folder).arg(thisProcess().id);
}

QString putInto(const QString &folder, const QString &original, const QByteArray &bytes)
{
    const QString name = newName(folder);
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return {};
    }
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
    file.close();
    const QString journal = isWritten ? moveToFreeName(name, folder, original) : QString();
    if (journal.isEmpty()) {
        QFile::remove(name);
    }
    return journal;
}

} // namespace

Autosave::Autosave(ProgrammeDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_writer(new JournalWriter)
{
    m_head.process = thisProcess();
    m_timer.setSingleShot(true);
    m_timer.setInterval(WriteDelay);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::write);
    connect(document, &ProgrammeDocument::contentsChanged, this, &Autosave::onChanged);
    connect(document, &ProgrammeDocument::modifiedChanged, this, &Autosave::onChanged);
    connect(document, &ProgrammeDocument::aboutToReplace, this, &Autosave::drop);
    connect(document, &ProgrammeDocument::replaced, this, &Autosave::rememberOriginal);
    connect(document, &ProgrammeDocument::saved, this, &Autosave::rememberOriginal);
    connect(m_writer.get(), &JournalWriter::failed, this, [this](const QString &reason) {
        m_written.clear();
        if (!QFileInfo::exists(m_journal)) {
            m_journal.clear(); // its folder is gone: look for another one
        }
        emit failed(reason);
    });
    rememberOriginal();
}

Autosave::~Autosave() = default;

void Autosave::rememberOriginal()
{
    const FileStamp stamp = stampOf(m_document->fileName());
    m_head.original = m_document->fileName();
    m_head.originalSize = stamp.size;
    m_head.originalHash = stamp.hash;
}

void Autosave::onChanged()
{
    if (!m_document->isModified()) {
        drop();
    } else if (!m_timer.isActive()) {
        m_timer.start();
    }
}

void Autosave::write()
{
    m_timer.stop();
    if (!m_document || !m_document->isModified()) {
        return;
    }
    const QByteArray programme = m_document->contents();
    if (programme == m_written) {
        return;
    }
    m_head.saved = QDateTime::currentDateTimeUtc();
    if (m_journal.isEmpty()) {
        m_journal = claim(programme);
    }
    if (m_journal.isEmpty()) {
        emit failed(tr("no folder for it can be written"));
        return;
    }
    // The claim, too, is written again: only this way it is sure to outlast the machine.
    m_written = programme;
    m_writer->write(m_journal, m_head, programme);
}

QString Autosave::claim(const QByteArray &programme)
{
    const QByteArray bytes = writeJournal(m_head, programme);
    const QString &original = m_head.original;
    if (!original.isEmpty()) {
        const QString beside = putInto(QFileInfo(original).absolutePath(), original, bytes);
        if (!beside.isEmpty()) {
            return beside;
        }
    }
    QDir().mkpath(recoveryFolder());
    return putInto(recoveryFolder(), original, bytes);
}

void Autosave::drop()
{
    m_timer.stop();
    m_written.clear();
    if (!m_journal.isEmpty()) {
        m_writer->remove(m_journal);
        m_journal.clear();
    }
}

void Autosave::discard()
{
    drop();
    m_writer->wait();
}

bool Autosave::adopt(const QString &journal)
{
    if (!m_document) {
        return false;
    }
    const QString folder = QFileInfo(journal).absolutePath();
    const QString taken = newName(folder);
    if (!moveFile(journal, taken)) {
        return false;
    }
    drop();
    m_writer->wait();
    const QString own = moveToFreeName(taken, folder, m_document->fileName());
    m_journal = own.isEmpty() ? taken : own;
    flush();
    return true;
}

void Autosave::flush()
{
    write();
    m_writer->wait();
}

} // namespace workbench
