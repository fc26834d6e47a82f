#include "itempages.h"
#include "lcontrollernode.h"
#include "ltexteffectnode.h"
#include "mainwindow.h"
#include "programmedocument.h"
#include "programmeitems.h"
#include "wallpanel.h"
#include "wallview.h"

#include <QAction>
#include <QComboBox>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QUndoStack>
#include <QtTest>

#include <memory>

using namespace workbench;

/** Both halves of the workbench and the plug-in itself, on the demo programme. */
class TestWorkbench : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void looksWithoutTouching();
    void undoesAcrossItems();
    void showsOnTheWallWhatIsEdited();
    void convertsAsOneStep_data();
    void convertsAsOneStep();

private:
    QTextEdit *view() const { return m_window->centralWidget()->findChild<QTextEdit *>(); }
    ProgrammeDocument *document() const { return m_window->document(); }
    QVector<player::ProgrammeItem> items() const
    {
        return player::programmeItems(document()->controller());
    }
    void type(const QString &text);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void TestWorkbench::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("LCTRLSEX_DATA_DIR", m_folder->path().toUtf8());
    const QString file = m_folder->filePath("demo.programme.json");
    QVERIFY(QFile::copy(LCTRLSEX_SOURCE_DIR "/examples/demo.programme.json", file));
    const LoadedPlugin plugin = loadPlugin({QStringLiteral(PLUGIN)});
    QVERIFY2(plugin.client != nullptr, qPrintable(plugin.reason));
    m_window = std::make_unique<MainWindow>(plugin, FontFolder::fill());
    m_window->resize(1280, 800);
    m_window->show();
    m_window->start(file);
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    QVERIFY(items().size() > 3);
}

void TestWorkbench::cleanup()
{
    m_window.reset();
}

void TestWorkbench::type(const QString &text)
{
    view()->setFocus();
    QTest::keyClicks(view(), text);
    QTest::qWait(80); // The editor joins runs of one format a moment later.
}

void TestWorkbench::looksWithoutTouching()
{
    for (const player::ProgrammeItem &item : items()) {
        m_window->selectNode(item.node);
        QTest::qWait(70);
        QVERIFY2(!document()->isModified(), qPrintable(item.place));
    }
    QCOMPARE(document()->history()->count(), 0);
}

void TestWorkbench::undoesAcrossItems()
{
    auto *undo = m_window->findChild<QAction *>("Undo");
    auto *redo = m_window->findChild<QAction *>("Redo");
    QStringList before;
    for (int i = 0; i < 2; ++i) {
        m_window->selectNode(items().at(i).node);
        QTest::qWait(70);
        before.append(view()->toPlainText());
    }
    for (const int i : {0, 1, 0}) {
        m_window->selectNode(items().at(i).node);
        type("ab");
    }
    QStringList after;
    for (int i = 0; i < 2; ++i) {
        after.append(items().at(i).node->GetPlayText());
    }
    QVERIFY(after.at(0) != before.at(0) && after.at(1) != before.at(1));
    for (int guard = 0; undo->isEnabled() && guard < 100; ++guard) {
        undo->trigger();
        QTest::qWait(30);
    }
    QVERIFY(!undo->isEnabled());
    QVERIFY(!m_window->isWindowModified());
    for (int i = 0; i < 2; ++i) {
        m_window->selectNode(items().at(i).node);
        QCOMPARE(view()->toPlainText(), before.at(i));
    }
    QTest::qWait(80);
    for (int guard = 0; redo->isEnabled() && guard < 100; ++guard) {
        redo->trigger();
        QTest::qWait(30);
    }
    for (int i = 0; i < 2; ++i) {
        m_window->selectNode(items().at(i).node);
        QCOMPARE(view()->toPlainText(), after.at(i));
    }
}

void TestWorkbench::showsOnTheWallWhatIsEdited()
{
    const WallView *wall = m_window->wall()->view();
    m_window->selectNode(items().at(0).node);
    type("Q");
    // At once the editor's own picture, then the player's: they are one renderer's.
    const QImage atOnce = wall->scene().items.at(0).page;
    const qint64 key = atOnce.cacheKey();
    QTRY_VERIFY(wall->scene().items.at(0).page.cacheKey() != key);
    const QImage later = wall->scene().items.at(0).page;
    QCOMPARE(later.convertToFormat(QImage::Format_ARGB32),
             atOnce.convertToFormat(QImage::Format_ARGB32));
}

void TestWorkbench::convertsAsOneStep_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("step");
    QTest::newRow("invert") << "InvertColours"
                            << "Edit text";
    QTest::newRow("swap") << "SwapBlackAndWhite"
                          << "Edit text";
    QTest::newRow("antialiasing") << "AntialiasingOff"
                                  << "Change antialiasing";
}

void TestWorkbench::convertsAsOneStep()
{
    QFETCH(QString, command);
    QFETCH(QString, step);
    auto *action = m_window->findChild<QAction *>(command);
    const auto *off = m_window->findChild<QAction *>("AntialiasingOff");
    m_window->selectNode(items().at(0).node);
    QTest::qWait(80);
    const QByteArray before = document()->contents();
    action->trigger();
    QVERIFY(!action->isEnabled());
    QTRY_COMPARE(document()->history()->count(), 1);
    QTest::qWait(80);
    QCOMPARE(document()->history()->count(), 1);
    QCOMPARE(document()->history()->undoText(), step);
    QVERIFY(action->isEnabled());
    QCOMPARE(off->isChecked(), action == off);
    const QByteArray after = document()->contents();
    document()->undo();
    QTest::qWait(80);
    QCOMPARE(document()->contents(), before);
    QVERIFY(action->isEnabled() && !off->isChecked());
    document()->redo();
    QTest::qWait(80);
    QCOMPARE(document()->contents(), after);
    QCOMPARE(off->isChecked(), action == off);
    if (action == off) { // on again
        action->trigger();
        QTest::qWait(80);
        QVERIFY(items().at(0).node->GetTextAntialias() && !off->isChecked());
    }
    QVERIFY(document()->remove(items().at(0).node->GetScreenNode()));
    QVERIFY(!action->isEnabled());
}

int main(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "72");
    QApplication application(argc, argv);
    TestWorkbench test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_workbench.moc"
