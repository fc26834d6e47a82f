#include "mainwindowtest.h"

#include "journal.h"
#include "modalanswerer.h"
#include "noticebar.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenu>

using namespace workbench;

/** Opening, saving, exporting, and what is told and asked about files. */
class TestMainWindowFiles : public MainWindowTest
{
    Q_OBJECT

private slots:
    void guardsUnsavedChanges_data();
    void guardsUnsavedChanges();
    void savesUnderAName();
    void tellsWhatIsWrongWithAFile_data();
    void tellsWhatIsWrongWithAFile();
    void offersWhatACrashLeft_data();
    void offersWhatACrashLeft();
    void exportsPages();
};

using Answer = std::function<void(QDialog *)>;

/** Presses the button of that object name. */
static Answer press(const char *name)
{
    return [name](QDialog *dialog) {
        auto *button = dialog->findChild<QAbstractButton *>(name);
        button != nullptr ? button->click() : dialog->reject();
    };
}

/** Enters a path into a file dialog and accepts it. */
static Answer choose(const QString &path)
{
    return [path](QDialog *dialog) {
        auto *line = dialog->findChild<QLineEdit *>("fileNameEdit");
        line->setText(path);
        QMetaObject::invokeMethod(dialog, "accept");
    };
}

void TestMainWindowFiles::guardsUnsavedChanges_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("leaves");
    QTest::addColumn<bool>("saves");
    QTest::newRow("save") << QByteArray("SaveButton") << true << true;
    QTest::newRow("discard") << QByteArray("DiscardButton") << true << false;
    QTest::newRow("cancel") << QByteArray("CancelButton") << false << false;
    QTest::newRow("escape") << QByteArray("no such button") << false << false;
}

void TestMainWindowFiles::guardsUnsavedChanges()
{
    QFETCH(QByteArray, button);
    QFETCH(bool, leaves);
    QFETCH(bool, saves);
    open(demo());
    action("New")->trigger();
    QVERIFY(m_window->document()->fileName().isEmpty()); // Nothing to ask.
    m_window->openFile(demo());
    action("AddScreen")->trigger();
    {
        ModalAnswerer answerer(press(button.constData()));
        action("New")->trigger();
        QVERIFY(answerer.wasAsked());
        QCOMPARE(m_window->document()->fileName().isEmpty(), leaves);
    }
    QCOMPARE(
        loadProgramme(m_folder->filePath("demo.programme.json")).controller->ChildNodes().size(),
        saves ? 3 : 2);
    m_window->openFile(m_folder->filePath("demo.programme.json"));
    action("AddScreen")->trigger();
    ModalAnswerer answerer(press(button.constData()));
    QCOMPARE(m_window->close(), leaves);
    QVERIFY(answerer.wasAsked());
}

void TestMainWindowFiles::savesUnderAName()
{
    open(QString());
    QVERIFY(m_window->document()->fileName().isEmpty());
    const QString target = m_folder->filePath("mine");
    {
        ModalAnswerer answerer(choose(target));
        action("Save")->trigger();
        QVERIFY(answerer.wasAsked());
    }
    QCOMPARE(m_window->document()->fileName(), target + ".programme.json");
    QVERIFY(m_window->windowTitle().startsWith("mine[*]"));
    QVERIFY(loadProgramme(m_window->document()->fileName()).controller != nullptr);
    // The next start opens it again.
    m_window.reset();
    open(QString());
    QCOMPARE(m_window->document()->fileName(), target + ".programme.json");
    auto *recent = find<QMenu>("RecentMenu");
    emit recent->aboutToShow();
    QCOMPARE(recent->actions().constFirst()->text(), target + ".programme.json");
}

void TestMainWindowFiles::tellsWhatIsWrongWithAFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("said");
    QTest::newRow("no JSON") << QByteArray("{\n  \"format\": ?") << "line 2";
    QTest::newRow("a value") << QByteArray(Programme).replace("\"width\": 64", "\"width\": 0")
                             << "controller.width";
}

void TestMainWindowFiles::tellsWhatIsWrongWithAFile()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, said);
    open(demo());
    LControllerNode *former = m_window->document()->controller();
    const QString file = write("broken.programme.json", bytes);
    QVERIFY(!m_window->openFile(file));
    const QString told = m_window->notices()->textOf("file");
    QVERIFY2(told.startsWith(file + ": ") && told.contains(said), qPrintable(told));
    QCOMPARE(m_window->document()->controller(), former);
    QCOMPARE(view()->toPlainText(), QString("first"));
    m_window->openFile(demo());
    QVERIFY(m_window->notices()->textOf("file").isEmpty());
    m_window->openFile("/no/such/file");
    QVERIFY(!m_window->notices()->textOf("file").isEmpty());
}

void TestMainWindowFiles::offersWhatACrashLeft_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("restore") << QByteArray("RestoreButton");
    QTest::newRow("open saved file") << QByteArray("OpenSavedButton");
    QTest::newRow("keep for later") << QByteArray("KeepButton");
    QTest::newRow("close") << QByteArray("NoticeClose");
}

void TestMainWindowFiles::offersWhatACrashLeft()
{
    QFETCH(QByteArray, button);
    const QString original = demo();
    const FileStamp stamp = stampOf(original);
    JournalHead head;
    head.original = original;
    head.originalSize = stamp.size;
    head.originalHash = stamp.hash;
    head.saved = QDateTime::currentDateTime();
    head.process = thisProcess();
    head.process.id = 1 << 30; // No process has such a number.
    head.process.start = 1;
    const QString journal =
        write(journalName(original, 1),
              writeJournal(head, QByteArray(Programme).replace("\"First\"", "\"Rescued\"")));
    open(original);
    QVERIFY(m_window->notices()->textOf("recovery").contains(original));
    QCOMPARE(node({0, 0, 0})->name(), QString("First"));
    auto *bar = find<NoticeBar>("NoticeBar.recovery");
    bar->findChild<QAbstractButton *>(button)->click();
    const bool isRestored = button == "RestoreButton";
    QCOMPARE(node({0, 0, 0})->name(), QString(isRestored ? "Rescued" : "First"));
    QCOMPARE(m_window->isWindowModified(), isRestored);
    QCOMPARE(m_window->document()->fileName(), original);
    QVERIFY(QFileInfo::exists(journal));
    if (button == "OpenSavedButton") {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        find<QAbstractButton>("DeleteCopyButton")->click();
        QVERIFY(!QFileInfo::exists(journal));
    }
    QVERIFY(m_window->notices()->textOf("recovery").isEmpty());
}

void TestMainWindowFiles::exportsPages()
{
    open(demo());
    const QString folder = m_folder->filePath("pages");
    QVERIFY(QDir().mkpath(folder));
    ModalAnswerer answerer(choose(folder));
    action("ExportPages")->trigger();
    QVERIFY(answerer.wasAsked());
    QTRY_VERIFY(!m_window->notices()->textOf("export").isEmpty());
    QCOMPARE(QDir(folder).entryList(QDir::Files),
             QStringList({"First-1.png", "Second-1.png", "Third-1.png"}));
    QCOMPARE(QImage(folder + "/Third-1.png").size(), QSize(32, 32));
}

int main(int argc, char **argv)
{
    return runMainWindowTest<TestMainWindowFiles>(argc, argv);
}

#include "tst_mainwindow_files.moc"
