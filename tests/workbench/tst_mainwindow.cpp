#include "editorpane.h"
#include "inodeclient.h"
#include "journal.h"
#include "lcontrollernode.h"
#include "lframenode.h"
#include "ltexteffectnode.h"
#include "mainwindow.h"
#include "modalanswerer.h"
#include "noticebar.h"
#include "palettes.h"
#include "programmedocument.h"
#include "programmepanel.h"
#include "wallpanel.h"
#include "wallview.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTranslator>
#include <QTreeView>
#include <QUndoStack>
#include <QtTest>

#include <memory>

using namespace workbench;

/** The whole window, around a stand-in for the plug-in. */
class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void opensAndSelects();
    void bindsTheFirstItemBelow();
    void keepsThePluginsWidgets();
    void typesAndUndoes();
    void leavesNoUndoKeyToTheView();
    void leavesTheFocusWithTheTree();
    void addsAndRemoves();
    void renames();
    void placesAndSizes();
    void showsTheEditOnTheWall();
    void turnsPages();
    void guardsUnsavedChanges_data();
    void guardsUnsavedChanges();
    void savesUnderAName();
    void tellsWhatIsWrongWithAFile_data();
    void tellsWhatIsWrongWithAFile();
    void offersWhatACrashLeft_data();
    void offersWhatACrashLeft();
    void exportsPages();
    void remembersTheLayout();
    void changesPalette();
    void changesLanguage();
    void saysWhyThereIsNoEditor();

private:
    MainWindow *open(const QString &fileName);
    QString write(const QString &name, const QByteArray &bytes);
    QString demo();
    QAction *action(const char *name) const;
    LNode *node(const QList<int> &path) const;
    QTextEdit *view() const { return m_plugin.client->findChild<QTextEdit *>("FakeView"); }
    int count(const char *what) const { return m_plugin.client->property(what).toInt(); }

    LoadedPlugin m_plugin;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

static const char Programme[] = R"({ "format": "lctrlsex-programme", "version": 1,
  "controller": { "kind": "LED", "width": 64, "height": 32 },
  "screens": [
    { "name": "One", "frames": [
      { "name": "Left", "x": 0, "y": 0, "width": 32, "height": 32,
        "items": [ { "name": "First", "document": "<p style=\"font-size:6pt; color:#ffffff\">first</p>" },
                   { "name": "Second", "document": "<p style=\"font-size:6pt; color:#ffffff\">second</p>" } ] },
      { "name": "Right", "x": 32, "y": 0, "width": 32, "height": 32,
        "items": [ { "name": "Third", "document": "<p style=\"font-size:6pt; color:#ffffff\">third</p>" } ] } ] },
    { "name": "Two", "frames": [ { "name": "Bare", "items": [] } ] } ] })";

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

void TestMainWindow::initTestCase()
{
    m_plugin = loadPlugin({QStringLiteral(FAKE_CLIENT)});
    QVERIFY2(m_plugin.client != nullptr, qPrintable(m_plugin.reason));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestMainWindow::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    qputenv("LCTRLSEX_DATA_DIR", m_folder->filePath("data").toUtf8());
    QDir().mkpath(m_folder->filePath("data"));
}

void TestMainWindow::cleanup()
{
    if (m_window) {
        // Without the question that close() asks.
        m_window.reset();
    }
    applyPalette(PaletteChoice::System);
}

MainWindow *TestMainWindow::open(const QString &fileName)
{
    m_window.reset();
    m_window = std::make_unique<MainWindow>(m_plugin, FontFolder::Result());
    m_window->resize(1280, 800);
    m_window->show();
    m_window->start(fileName);
    QCoreApplication::processEvents();
    return m_window.get();
}

QString TestMainWindow::write(const QString &name, const QByteArray &bytes)
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName()
                                                                                : QString();
}

QString TestMainWindow::demo()
{
    return write("demo.programme.json", Programme);
}

QAction *TestMainWindow::action(const char *name) const
{
    return m_window->findChild<QAction *>(name);
}

LNode *TestMainWindow::node(const QList<int> &path) const
{
    LNode *node = m_window->document()->controller();
    for (const int index : path) {
        node = node->ChildNodes().at(index);
    }
    return node;
}

void TestMainWindow::opensAndSelects()
{
    open(demo());
    QCOMPARE(view()->toPlainText(), QString("first"));
    QCOMPARE(m_window->windowTitle(), QString("demo[*] – Workbench"));
    QVERIFY(!m_window->isWindowModified());
    const auto *attributes = m_plugin.client->findChild<QWidget *>("TextAttributesBg");
    QVERIFY(attributes == nullptr); // It was taken into the dock.
    const auto *area = m_window->findChild<QScrollArea *>("ItemProperties");
    QCOMPARE(area->widget()->objectName(), QString("TextAttributesBg"));
    QVERIFY(area->widget()->isVisible());

    m_window->selectNode(node({0, 1, 0}));
    QCOMPARE(view()->toPlainText(), QString("third"));
    QCOMPARE(area->widget()->objectName(), QString("TextAttributesBg"));
    const WallScene scene = m_window->wall()->view()->scene();
    QCOMPARE(scene.size, QSize(64, 32));
    QCOMPARE(scene.items.size(), 2);
    QCOMPARE(scene.items.at(0).name, QString("First"));
    QVERIFY(!scene.items.at(0).isCurrent && scene.items.at(1).isCurrent);
    QCOMPARE(scene.items.at(1).rect, QRect(32, 0, 32, 32));
    // Looking at items changes nothing.
    m_window->selectNode(node({0, 0, 1}));
    QCOMPARE(m_window->wall()->view()->scene().items.at(0).name, QString("Second"));
    QTest::qWait(20);
    QVERIFY(!m_window->isWindowModified());
    emit m_window->wall()->view()->itemClicked(1);
    QCOMPARE(view()->toPlainText(), QString("third"));
}

void TestMainWindow::bindsTheFirstItemBelow()
{
    open(demo());
    auto *editor = m_window->findChild<EditorPane *>("EditorPane");
    m_window->selectNode(node({0, 1}));
    QCOMPARE(editor->node(), node({0, 1, 0}));
    const int inits = count("inits");
    m_window->selectNode(node({0, 1, 0}));
    QCOMPARE(count("inits"), inits);
    m_window->selectNode(node({1}));
    QVERIFY(editor->node() == nullptr);
    auto *add = m_window->findChild<QAbstractButton *>("AddItemButton");
    QVERIFY(add->isVisible());
    add->click();
    QCOMPARE(node({1, 0})->ChildNodes().size(), 1);
    QVERIFY(editor->node() != nullptr);
    QVERIFY(!add->isVisible());
}

void TestMainWindow::keepsThePluginsWidgets()
{
    open(demo());
    const QPointer<QWidget> client(m_plugin.client->GetClient());
    const QPointer<QWidget> attributes(
        m_window->findChild<QScrollArea *>("ItemProperties")->widget());
    m_window.reset();
    QVERIFY(client && attributes);
    QVERIFY(client->parent() == nullptr);
    QVERIFY(attributes->window() == client);
    // A second window takes them again.
    open(demo());
    QVERIFY(client->isVisible() && attributes->isVisible());
}

void TestMainWindow::typesAndUndoes()
{
    open(demo());
    QTest::keyClicks(view(), "ab");
    QTest::qWait(20);
    QCOMPARE(m_window->document()->isModified(), true);
    QVERIFY(m_window->isWindowModified());
    QVERIFY(action("Undo")->text().contains("Edit text"));
    auto *item = qobject_cast<LTextEffectNode *>(node({0, 0, 0}));
    QCOMPARE(item->GetPlayText(), QString("abfirst"));
    while (m_window->document()->history()->canUndo()) {
        action("Undo")->trigger();
        QTest::qWait(5);
    }
    QCOMPARE(view()->toPlainText(), QString("first"));
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(!action("Undo")->isEnabled());
    while (m_window->document()->history()->canRedo()) {
        action("Redo")->trigger();
        QTest::qWait(5);
    }
    QCOMPARE(view()->toPlainText(), QString("abfirst"));
}

void TestMainWindow::leavesNoUndoKeyToTheView()
{
    open(demo());
    m_window->activateWindow();
    view()->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClicks(view(), "x");
    QTest::qWait(20);
    m_window->selectNode(node({0, 1, 0}));
    view()->setFocus();
    // The view of another item has nothing to undo of its own; the history has.
    QTest::keyClick(view(), Qt::Key_Z, Qt::ControlModifier);
    QTest::qWait(20);
    QVERIFY(!m_window->document()->isModified());
    QCOMPARE(view()->toPlainText(), QString("first"));
    QTest::keyClick(view(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(view()->toPlainText(), QString("first"));
    QTest::keyClick(view(), Qt::Key_Y, Qt::ControlModifier);
    QTest::qWait(20);
    QCOMPARE(view()->toPlainText(), QString("xfirst"));
}

void TestMainWindow::leavesTheFocusWithTheTree()
{
    open(demo());
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    auto *tree = m_window->findChild<QTreeView *>("ProgrammeTree");
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Down);
    QCOMPARE(view()->toPlainText(), QString("second"));
    QVERIFY(tree->hasFocus());
    QTest::keyClick(tree, Qt::Key_Delete);
    QCOMPARE(node({0, 0})->ChildNodes().size(), 1);
    QVERIFY(tree->hasFocus());
    QTest::keyClick(tree, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(view()->toPlainText(), QString("second"));
    emit m_window->wall()->view()->itemActivated(1);
    QVERIFY(view()->hasFocus());
}

void TestMainWindow::addsAndRemoves()
{
    open(demo());
    auto *editor = m_window->findChild<EditorPane *>("EditorPane");
    auto *panel = m_window->findChild<ProgrammePanel *>("ProgrammePanel");
    action("AddItem")->trigger();
    QCOMPARE(node({0, 0})->ChildNodes().size(), 3);
    QCOMPARE(panel->currentNode(), node({0, 0, 2}));
    QCOMPARE(editor->node(), node({0, 0, 2}));
    QVERIFY(action("MoveUp")->isEnabled() && !action("MoveDown")->isEnabled());
    action("MoveUp")->trigger();
    QCOMPARE(panel->currentNode(), node({0, 0, 1}));
    QCOMPARE(editor->node(), node({0, 0, 1}));

    const int finishes = count("finishes");
    const QPointer<LNode> gone(panel->currentNode());
    action("Remove")->trigger();
    QCOMPARE(node({0, 0})->ChildNodes().size(), 2);
    QVERIFY(count("finishes") > finishes);
    QVERIFY(editor->node() != gone.data() && editor->node() != nullptr);
    action("Undo")->trigger();
    QCOMPARE(panel->currentNode(), gone.data());
    QCOMPARE(editor->node(), gone.data());

    // A whole screen, with the item that is bound in it.
    m_window->selectNode(node({0}));
    action("Remove")->trigger();
    QCOMPARE(node({})->ChildNodes().size(), 1);
    QVERIFY(editor->node() == nullptr);
    m_window->selectNode(node({}));
    QVERIFY(!action("Remove")->isEnabled() && !action("Duplicate")->isEnabled());
    action("AddScreen")->trigger();
    QCOMPARE(node({})->ChildNodes().size(), 2);
    while (m_window->document()->history()->canUndo()) {
        action("Undo")->trigger();
    }
    QCOMPARE(node({0, 0})->ChildNodes().size(), 2);
    QVERIFY(!m_window->isWindowModified());
}

void TestMainWindow::renames()
{
    open(demo());
    auto *tree = m_window->findChild<QTreeView *>("ProgrammeTree");
    action("Rename")->trigger();
    auto *line = tree->viewport()->findChild<QLineEdit *>();
    QVERIFY(line != nullptr);
    line->setText("Tom & Jerry");
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(node({0, 0, 0})->name(), QString("Tom & Jerry"));
    QVERIFY(action("Undo")->text().endsWith("Rename to Tom && Jerry"));
    auto *field = m_window->findChild<QLineEdit *>("NodeName");
    QCOMPARE(field->text(), QString("Tom & Jerry"));
    field->setText("   ");
    emit field->editingFinished();
    QCOMPARE(node({0, 0, 0})->name(), QString("Tom & Jerry"));
    QVERIFY(!m_window->findChild<QLabel *>("LayoutAdvice")->text().isEmpty());
    field->setText("Other");
    emit field->editingFinished();
    QCOMPARE(node({0, 0, 0})->name(), QString("Other"));
}

void TestMainWindow::placesAndSizes()
{
    open(demo());
    auto *frame = qobject_cast<LFrameNode *>(node({0, 1}));
    m_window->selectNode(frame);
    auto *x = m_window->findChild<QSpinBox *>("NodeX");
    auto *width = m_window->findChild<QSpinBox *>("NodeWidth");
    auto *inherit = m_window->findChild<QAbstractButton *>("InheritSize");
    const auto *advice = m_window->findChild<QLabel *>("LayoutAdvice");
    QCOMPARE(x->value(), 32);
    QVERIFY(advice->text().isEmpty());
    x->setValue(40);
    QCOMPARE(frame->GetRect(), QRect(40, 0, 32, 32));
    QVERIFY(!advice->text().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(m_window->wall()->view()->scene().items.at(1).rect, QRect(40, 0, 32, 32));
    inherit->click();
    QCOMPARE(frame->Size(), QSize(64, 32));
    QVERIFY(!width->isEnabled());
    QCOMPARE(width->value(), 64);
    action("Undo")->trigger();
    action("Undo")->trigger();
    QCOMPARE(frame->GetRect(), QRect(32, 0, 32, 32));
    QCOMPARE(x->value(), 32);
    QVERIFY(!inherit->isChecked());

    m_window->selectNode(node({}));
    auto *device = m_window->findChild<QComboBox *>("DeviceKind");
    QVERIFY(device->isVisibleTo(device->parentWidget()) && !x->isVisible());
    device->setCurrentIndex(1);
    emit device->activated(1);
    QCOMPARE(m_window->document()->controller()->GetDeviceKind(), QString("LCD"));
}

void TestMainWindow::showsTheEditOnTheWall()
{
    open(demo());
    const qint64 before = m_window->wall()->view()->scene().items.at(0).page.cacheKey();
    auto *item = qobject_cast<LTextEffectNode *>(node({0, 0, 0}));
    QTest::keyClicks(view(), "W");
    QCoreApplication::processEvents();
    QVERIFY(!item->PreviewCache().isNull());
    QCOMPARE(m_window->wall()->view()->scene().items.at(0).page, item->PreviewCache());
    // The player's page follows, though what the stand-in draws is another picture.
    QTRY_VERIFY(m_window->wall()->view()->scene().items.at(0).page != item->PreviewCache());
    QVERIFY(m_window->wall()->view()->scene().items.at(0).page.cacheKey() != before);
}

void TestMainWindow::turnsPages()
{
    open(demo());
    auto *item = qobject_cast<LTextEffectNode *>(node({0, 0, 0}));
    view()->setHtml("<p style='color:#fff'>1</p><p style='color:#f00'>2</p><p>3</p><p>4</p>");
    view()->document()->setModified(true);
    QTRY_VERIFY(item->GetPageCount() > 1);
    WallPanel *wall = m_window->wall();
    QTRY_COMPARE(wall->pageText(), QString("Page 1 of %1").arg(item->GetPageCount()));
    const QImage first = wall->view()->scene().items.at(0).page;
    m_window->findChild<QAbstractButton *>("WallNextPage")->click();
    QCOMPARE(item->GetCurrentPage(), 2);
    QCOMPARE(wall->pageText(), QString("Page 2 of %1").arg(item->GetPageCount()));
    QVERIFY(wall->view()->scene().items.at(0).page != first);
    // The page strip is the view of the moment, not part of the programme.
    const int steps = m_window->document()->history()->count();
    QTest::keyClick(wall->view(), Qt::Key_PageUp);
    QCOMPARE(item->GetCurrentPage(), 1);
    QCOMPARE(m_window->document()->history()->count(), steps);
}

void TestMainWindow::guardsUnsavedChanges_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("leaves");
    QTest::addColumn<bool>("saves");
    QTest::newRow("save") << QByteArray("SaveButton") << true << true;
    QTest::newRow("discard") << QByteArray("DiscardButton") << true << false;
    QTest::newRow("cancel") << QByteArray("CancelButton") << false << false;
    QTest::newRow("escape") << QByteArray("no such button") << false << false;
}

void TestMainWindow::guardsUnsavedChanges()
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

void TestMainWindow::savesUnderAName()
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
    auto *recent = m_window->findChild<QMenu *>("RecentMenu");
    emit recent->aboutToShow();
    QCOMPARE(recent->actions().constFirst()->text(), target + ".programme.json");
}

void TestMainWindow::tellsWhatIsWrongWithAFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("said");
    QTest::newRow("no JSON") << QByteArray("{\n  \"format\": ?") << "line 2";
    QTest::newRow("a value") << QByteArray(Programme).replace("\"width\": 64", "\"width\": 0")
                             << "controller.width";
}

void TestMainWindow::tellsWhatIsWrongWithAFile()
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

void TestMainWindow::offersWhatACrashLeft_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("restore") << QByteArray("RestoreButton");
    QTest::newRow("open saved file") << QByteArray("OpenSavedButton");
    QTest::newRow("keep for later") << QByteArray("KeepButton");
    QTest::newRow("close") << QByteArray("NoticeClose");
}

void TestMainWindow::offersWhatACrashLeft()
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
    auto *bar = m_window->findChild<NoticeBar *>("NoticeBar.recovery");
    bar->findChild<QAbstractButton *>(button)->click();
    const bool isRestored = button == "RestoreButton";
    QCOMPARE(node({0, 0, 0})->name(), QString(isRestored ? "Rescued" : "First"));
    QCOMPARE(m_window->isWindowModified(), isRestored);
    QCOMPARE(m_window->document()->fileName(), original);
    QVERIFY(QFileInfo::exists(journal));
    if (button == "OpenSavedButton") {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_window->findChild<QAbstractButton *>("DeleteCopyButton")->click();
        QVERIFY(!QFileInfo::exists(journal));
    }
    QVERIFY(m_window->notices()->textOf("recovery").isEmpty());
}

void TestMainWindow::exportsPages()
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

void TestMainWindow::remembersTheLayout()
{
    open(demo());
    const auto dock = [this] {
        return m_window->findChild<QDockWidget *>("ProgrammeDock");
    };
    QVERIFY(dock()->isVisible());
    QVERIFY(m_window->centralWidget()->width() >= 700);
    const int width = dock()->width();
    action("ShowProgrammeDock")->trigger();
    QVERIFY(!dock()->isVisible());
    QVERIFY(m_window->close());
    open(demo());
    QVERIFY(!dock()->isVisible());
    action("ResetLayout")->trigger();
    QVERIFY(dock()->isVisible());
    QTRY_COMPARE(dock()->width(), width);
}

void TestMainWindow::changesPalette()
{
    open(demo());
    action("Palette.dark")->trigger();
    QVERIFY(m_window->palette().color(QPalette::Window).lightness() < 100);
    QVERIFY(m_window->palette().color(QPalette::WindowText).lightness() > 180);
    action("Palette.light")->trigger();
    QVERIFY(m_window->palette().color(QPalette::Window).lightness() > 180);
    for (const PaletteChoice choice : {PaletteChoice::Light, PaletteChoice::Dark}) {
        const QPalette palette = paletteOf(choice);
        for (const auto &pair : {qMakePair(QPalette::WindowText, QPalette::Window),
                                 qMakePair(QPalette::Text, QPalette::Base),
                                 qMakePair(QPalette::ButtonText, QPalette::Button),
                                 qMakePair(QPalette::Link, QPalette::Base),
                                 qMakePair(QPalette::HighlightedText, QPalette::Highlight),
                                 qMakePair(QPalette::ToolTipText, QPalette::ToolTipBase)}) {
            const int contrast = std::abs(palette.color(pair.first).lightness() -
                                          palette.color(pair.second).lightness());
            QVERIFY2(contrast > 70, qPrintable(QString::number(pair.first)));
        }
        QVERIFY(palette.color(QPalette::Disabled, QPalette::Text) !=
                palette.color(QPalette::Active, QPalette::Text));
    }
}

/** Marks each text that it is asked for. */
class Marker : public QTranslator
{
    Q_OBJECT

public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *, const char *text, const char *,
                                    int) const override
    {
        return "#" + QString::fromUtf8(text);
    }
};

void TestMainWindow::changesLanguage()
{
    open(demo());
    m_window->openFile("/no/such/file");
    Marker marker;
    QVERIFY(QCoreApplication::installTranslator(&marker));
    QCoreApplication::processEvents();
    QStringList stale;
    const auto check = [&stale](const QString &name, const QString &text) {
        if (!text.isEmpty() && !text.contains('#')) {
            stale.append(name + " = " + text);
        }
    };
    for (const QAction *each : m_window->findChildren<QAction *>()) {
        if (!each->objectName().isEmpty() && !each->objectName().startsWith("Language.") &&
            !each->objectName().startsWith('_')) {
            check(each->objectName(), each->text());
        }
    }
    for (const QAction *menu : m_window->menuBar()->actions()) {
        check("menu", menu->text());
    }
    for (const QDockWidget *dock : m_window->findChildren<QDockWidget *>()) {
        check(dock->objectName(), dock->windowTitle());
    }
    for (const char *panel : {"LayoutPanel", "WallPanel", "NoticeArea", "NoItemPage"}) {
        const auto *parent = m_window->findChild<QWidget *>(panel);
        for (const QLabel *label : parent->findChildren<QLabel *>()) {
            if (label->text() != "×") {
                check(panel, label->text());
            }
        }
        for (const QAbstractButton *each : parent->findChildren<QAbstractButton *>()) {
            check(panel, each->accessibleName() + each->text());
        }
    }
    QVERIFY2(stale.isEmpty(), qPrintable(stale.join("\n")));
    QVERIFY(m_window->windowTitle().contains('#'));
    QCoreApplication::removeTranslator(&marker);
    QCoreApplication::processEvents();
    QCOMPARE(action("Save")->text(), QString("&Save"));
}

void TestMainWindow::saysWhyThereIsNoEditor()
{
    const LoadedPlugin missing = loadPlugin({m_folder->filePath("none.so")});
    QVERIFY(missing.client == nullptr && !missing.remedy.isEmpty());
    const LoadedPlugin text = loadPlugin({write("text.so", "no library")});
    QVERIFY(text.client == nullptr && !text.reason.isEmpty());
    const LoadedPlugin other = loadPlugin({QStringLiteral(HOST_LIBRARY)});
    QVERIFY(other.client == nullptr && !other.reason.isEmpty());

    m_window = std::make_unique<MainWindow>(text, FontFolder::Result());
    m_window->show();
    m_window->start(demo());
    const auto *said = m_window->findChild<QLabel *>("PluginFaultText");
    QVERIFY(said->isVisible());
    QVERIFY(said->text().contains("text.so"));
    QVERIFY(said->text().contains(text.remedy));
    // All else works.
    m_window->selectNode(node({0, 1, 0}));
    QCOMPARE(m_window->wall()->view()->scene().items.size(), 2);
    action("AddItem")->trigger();
    QCOMPARE(node({0, 1})->ChildNodes().size(), 2);
}

int main(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "72");
    QApplication application(argc, argv);
    TestMainWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_mainwindow.moc"
