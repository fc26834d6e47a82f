#include "recovery.h"

#include "journal.h"
#include "movefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace workbench {

namespace {

QString asideName(const QString &journal)
{
    QString name = journal + QStringLiteral(".bad");
    for (int i = 2; QFileInfo::exists(name); ++i) {
        name = QStringLiteral("%1.%2.bad").arg(journal).arg(i);
    }
    return name;
}

Recovery broken(const QString &journal, const QString &reason)
{
    Recovery recovery;
    recovery.state = Recovery::Broken;
    recovery.reason = reason;
    const QString aside = asideName(journal);
    recovery.journal = moveFile(journal, aside) ? aside : journal;
    return recovery;
}

/** False for a journal whose process still runs. */
bool examine(const QString &fileName, Recovery *recovery)
{
    const Journal journal = loadJournal(fileName);
    if (!journal.error.isEmpty()) {
        *recovery = broken(fileName, journal.error);
        return true;
    }
    if (isRunning(journal.head.process)) {
        return false;
    }
    recovery->journal = fileName;
    recovery->original = journal.head.original;
    recovery->saved = journal.head.saved;
    const FileStamp now = stampOf(journal.head.original);
    const bool isSame =
        now.hash == journal.head.originalHash && now.size == journal.head.originalSize;
    recovery->state = isSame ? Recovery::Ok : Recovery::OriginalChanged;
    return true;
}

} // namespace

QVector<Recovery> findJournals(const QStringList &folders, const QStringList &files)
{
    QStringList places{recoveryFolder()};
    places += folders;
    for (const QString &file : files) {
        places.append(QFileInfo(file).absolutePath());
    }
    QStringList known;
    QVector<Recovery> found;
    for (const QString &place : qAsConst(places)) {
        const QString folder = QDir(place).canonicalPath();
        if (folder.isEmpty() || known.contains(folder)) {
            continue;
        }
        known.append(folder);
        const QFileInfoList journals = QDir(folder).entryInfoList(
            {journalPattern()}, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Name);
        for (const QFileInfo &journal : journals) {
            Recovery recovery;
            if (examine(journal.absoluteFilePath(), &recovery)) {
                found.append(recovery);
            }
        }
    }
    std::stable_sort(found.begin(), found.end(), [](const Recovery &left, const Recovery &right) {
        return left.saved > right.saved;
    });
    return found;
}

QByteArray recoveredProgramme(const Recovery &recovery)
{
    return loadJournal(recovery.journal).programme;
}

bool discardRecovery(const Recovery &recovery)
{
    if (recovery.state == Recovery::Broken) {
        return false;
    }
    // It may be another process's by now.
    const Journal journal = loadJournal(recovery.journal);
    return journal.error.isEmpty() && !isRunning(journal.head.process) &&
           QFile::remove(recovery.journal);
}

} // namespace workbench
