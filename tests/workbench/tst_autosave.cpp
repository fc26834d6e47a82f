#include "autosave.h"
#include "ltexteffectnode.h"
#include "programmedocument.h"
#include "programmeitems.h"
#include "recentfiles.h"
#include "recovery.h"

#include <QGuiApplication>
#include <QProcess>
#include <QRandomGenerator>
#include <QtTest>

#include <cstdio>

using namespace workbench;

static LTextEffectNode *firstItem(const ProgrammeDocument &document)
{
    return player::programmeItems(document.controller()).value(0).node;
}

static QStringList hidden(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden).filter(QStringLiteral("autosave"));
}

/** Another workbench: opens a file, types the time into it and says so, until it is killed. */
static int typist(const QString &file)
{
    ProgrammeDocument document;
    if (!file.isEmpty() && document.open(file).isSet()) {
        return 1;
    }
    Autosave autosave(&document);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&document] {
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        firstItem(document)->SetRawHtmlText(QString::number(now));
        std::printf("%lld\n", static_cast<long long>(now));
        std::fflush(stdout);
    });
    timer.start(20);
    return QCoreApplication::exec();
}

class TestAutosave : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void journalComesAndGoes();
    void journalIsWrittenInTime();
    void placesForJournals();
    void whatIsFoundLater();
    void damagedJournals();
    void killedWhileTyping_data();
    void killedWhileTyping();
    void recentFiles();

private:
    QString saved(ProgrammeDocument *document, const QString &name) const
    {
        const QString file = m_folder->filePath(name);
        return document->saveAs(file).isSet() ? QString() : file;
    }
    QByteArray journalOfTheDead(const QString &original, const QByteArray &programme) const
    {
        JournalHead head;
        head.original = original;
        const FileStamp stamp = stampOf(original);
        head.originalHash = stamp.hash;
        head.originalSize = stamp.size;
        head.saved = QDateTime::currentDateTimeUtc();
        head.process = thisProcess();
        head.process.start -= 1; // our number, but not us
        return writeJournal(head, programme);
    }
    static void put(const QString &name, const QByteArray &bytes)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTemporaryDir> m_data;
};

void TestAutosave::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_data = std::make_unique<QTemporaryDir>();
    qputenv("LCTRLSEX_DATA_DIR", QFile::encodeName(m_data->path()));
}

void TestAutosave::journalComesAndGoes()
{
    ProgrammeDocument document;
    const QString file = saved(&document, QStringLiteral("a.programme.json"));
    const QString expected = m_folder->filePath(QStringLiteral(".a.programme.json.autosave"));
    Autosave autosave(&document);
    autosave.flush();
    QCOMPARE(hidden(m_folder->path()), QStringList()); // nothing to keep

    QVERIFY(document.addScreen());
    autosave.flush();
    QCOMPARE(autosave.journalFile(), expected);
    const Journal journal = loadJournal(expected);
    QCOMPARE(journal.error, QString());
    QCOMPARE(journal.programme, document.contents());
    QCOMPARE(journal.head.original, file);
    QCOMPARE(journal.head.originalHash, stampOf(file).hash);
    QVERIFY(findJournals({m_folder->path()}).isEmpty()); // ours, and we run

    const QDateTime written = journal.head.saved;
    QTest::qWait(5);
    autosave.flush();
    QCOMPARE(loadJournal(expected).head.saved, written); // nothing changed
    document.undo();
    QTRY_COMPARE(hidden(m_folder->path()), QStringList());
    document.redo();
    autosave.flush();
    QVERIFY(QFile::exists(expected));
    QVERIFY(!document.save().isSet());
    QTRY_COMPARE(hidden(m_folder->path()), QStringList());
    QVERIFY(document.addScreen());
    autosave.flush();
    document.newProgramme();
    QTRY_COMPARE(hidden(m_folder->path()), QStringList());
    {
        Autosave ending(&document);
        QVERIFY(document.addScreen());
        ending.flush();
        autosave.discard();
        QVERIFY(QFile::exists(ending.journalFile()));
    }
    QCOMPARE(hidden(recoveryFolder()).size(), 1); // kept until the user has said so
}

void TestAutosave::journalIsWrittenInTime()
{
    ProgrammeDocument document;
    saved(&document, QStringLiteral("a.programme.json"));
    Autosave autosave(&document);
    QElapsedTimer timer;
    timer.start();
    firstItem(document)->SetUseStroke(1);
    QTRY_VERIFY_WITH_TIMEOUT(!autosave.journalFile().isEmpty(), 5000);
    QTRY_COMPARE(loadJournal(autosave.journalFile()).programme, document.contents());
    QVERIFY(timer.elapsed() < 5000);
}

void TestAutosave::placesForJournals()
{
    ProgrammeDocument document;
    Autosave autosave(&document);
    const QString gone = m_folder->filePath(QStringLiteral("no/folder/b.programme.json"));
    QVERIFY(!document.restore(document.contents(), gone).isSet());
    autosave.flush();
    QCOMPARE(autosave.journalFile(),
             recoveryFolder() + QStringLiteral("/.b.programme.json.autosave"));
    // A journal that was left behind is never written over.
    put(recoveryFolder() + QStringLiteral("/.untitled.autosave"), "left behind");
    document.newProgramme();
    QVERIFY(document.addScreen());
    autosave.flush();
    QCOMPARE(autosave.journalFile(), recoveryFolder() + QStringLiteral("/.untitled.2.autosave"));

    // A file stands where the folder should be: said, and tried again.
    document.newProgramme();
    autosave.discard();
    QVERIFY(QDir(recoveryFolder()).removeRecursively());
    put(recoveryFolder(), "no folder");
    QSignalSpy failed(&autosave, &Autosave::failed);
    QVERIFY(document.addScreen());
    autosave.flush();
    QCOMPARE(failed.size(), 1);
    QVERIFY(QFile::remove(recoveryFolder()));
    autosave.flush();
    QVERIFY(QFile::exists(autosave.journalFile()));

    // The folder of the file goes while it is edited, as that of a stick does.
    const QString sub = m_folder->filePath(QStringLiteral("stick"));
    QVERIFY(QDir().mkpath(sub));
    QVERIFY(!saved(&document, QStringLiteral("stick/c.programme.json")).isEmpty());
    QVERIFY(document.addScreen());
    autosave.flush();
    QVERIFY(autosave.journalFile().startsWith(sub));
    QVERIFY(QDir(sub).removeRecursively());
    QVERIFY(document.addScreen());
    autosave.flush();
    QTRY_COMPARE(failed.size(), 2);
    autosave.flush();
    QVERIFY(QFile::exists(autosave.journalFile()));
}

void TestAutosave::whatIsFoundLater()
{
    ProgrammeDocument document;
    const QString file = saved(&document, QStringLiteral("a.programme.json"));
    QVERIFY(document.addScreen());
    const QByteArray programme = document.contents();
    const QString journal = m_folder->filePath(QStringLiteral(".a.programme.json.autosave"));
    put(journal, journalOfTheDead(file, programme));
    QDir().mkpath(recoveryFolder());
    put(recoveryFolder() + QStringLiteral("/.untitled.autosave"),
        journalOfTheDead(QString(), programme));
    QVector<Recovery> found = findJournals({}, {file});
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.first().state, Recovery::Ok);
    QCOMPARE(found.first().original, QString()); // the newest
    QCOMPARE(found.last().original, file);
    QCOMPARE(found.last().state, Recovery::Ok);
    QCOMPARE(recoveredProgramme(found.last()), programme);

    QVERIFY(!document.save().isSet());
    found = findJournals({m_folder->path()});
    QCOMPARE(found.last().state, Recovery::OriginalChanged);
    QVERIFY(discardRecovery(found.first()));

    // Taken over by one of two that want it.
    ProgrammeDocument restored;
    Autosave autosave(&restored);
    Autosave other(&document);
    QVERIFY(!restored.restore(recoveredProgramme(found.last()), file).isSet());
    QVERIFY(autosave.adopt(journal));
    QCOMPARE(loadJournal(autosave.journalFile()).programme, programme);
    QVERIFY(findJournals({m_folder->path()}).isEmpty());
    QVERIFY(!discardRecovery(found.last()));
    QVERIFY(!other.adopt(m_folder->filePath(QStringLiteral(".gone.autosave"))));
    QVERIFY(!restored.save().isSet());
    QTRY_COMPARE(hidden(m_folder->path()), QStringList());
}

void TestAutosave::damagedJournals()
{
    ProgrammeDocument document;
    const QByteArray whole = journalOfTheDead(QStringLiteral("/a.json"), document.contents());
    QRandomGenerator random(1);
    QDir().mkpath(recoveryFolder());
    constexpr int count = 500;
    for (int i = 0; i < count; ++i) {
        QByteArray bytes = whole;
        if (i % 2) {
            bytes.truncate(random.bounded(bytes.size()));
        } else {
            const int at = random.bounded(bytes.size());
            bytes[at] = char(bytes.at(at) ^ (1 << random.bounded(8)));
        }
        put(QStringLiteral("%1/.%2.autosave").arg(recoveryFolder()).arg(i), bytes);
    }
    const QVector<Recovery> found = findJournals({});
    QCOMPARE(found.size(), count);
    for (const Recovery &recovery : found) {
        QCOMPARE(recovery.state, Recovery::Broken);
        QVERIFY(!recovery.reason.isEmpty() && recovery.journal.endsWith(QStringLiteral(".bad")));
        QVERIFY(recoveredProgramme(recovery).isEmpty());
        QVERIFY(!discardRecovery(recovery));
        QVERIFY(QFile::exists(recovery.journal));
    }
    QVERIFY(findJournals({}).isEmpty()); // reported once
    QCOMPARE(hidden(recoveryFolder()).size(), count);
}

void TestAutosave::killedWhileTyping_data()
{
    QTest::addColumn<bool>("wasSaved");
    QTest::newRow("of a file") << true;
    QTest::newRow("never saved") << false;
}

void TestAutosave::killedWhileTyping()
{
    QFETCH(bool, wasSaved);
    ProgrammeDocument document;
    const QString file =
        wasSaved ? saved(&document, QStringLiteral("a.programme.json")) : QString();
    Autosave autosave(&document);
    QVERIFY(document.addScreen());
    autosave.flush();

    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--type"), file});
    QVERIFY(other.waitForStarted());
    const QString folder = wasSaved ? m_folder->path() : recoveryFolder();
    QTRY_COMPARE_WITH_TIMEOUT(hidden(folder).size(), 2, 10000);
    QVERIFY(findJournals({folder}).isEmpty()); // both run
    const QByteArray ours = loadJournal(autosave.journalFile()).programme;
    QTest::qWait(2500);
    other.kill();
    QVERIFY(other.waitForFinished());
    const qint64 last = other.readAllStandardOutput().trimmed().split('\n').last().toLongLong();

    const QVector<Recovery> found = findJournals({folder});
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().state, Recovery::Ok);
    QCOMPARE(found.first().original, file);
    QVERIFY(found.first().journal != autosave.journalFile());
    QCOMPARE(loadJournal(autosave.journalFile()).programme, ours);
    QVERIFY(!document.restore(recoveredProgramme(found.first()), file).isSet());
    const qint64 kept = firstItem(document)->GetRawHtmlText().toLongLong();
    QVERIFY2(last > 0 && last - kept < 5000, qPrintable(QString::number(last - kept)));
}

void TestAutosave::recentFiles()
{
    RecentFiles recent;
    for (int i = 0; i < 12; ++i) {
        const QString file = m_folder->filePath(QString::number(i));
        put(file, "x");
        recent.add(file);
    }
    QCOMPARE(recent.files().size(), 10);
    QCOMPARE(QFileInfo(recent.files().first()).fileName(), QStringLiteral("11"));
    const QString link = m_folder->filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("5")), link));
    recent.add(link);
    recent.add(m_folder->filePath(QStringLiteral("../%1/7").arg(QDir(m_folder->path()).dirName())));
    QCOMPARE(recent.files().size(), 10);
    QCOMPARE(QFileInfo(recent.files().at(1)).fileName(), QStringLiteral("link"));
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("7"))));
    RecentFiles later;
    QCOMPARE(later.files(), recent.files());
    QCOMPARE(later.files().size(), 9);
    QCOMPARE(later.folders(), QStringList{m_folder->path()});
    later.remove(link);
    QCOMPARE(later.files().size(), 8);
}

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--type")) {
        return typist(arguments.value(2));
    }
    TestAutosave test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_autosave.moc"
