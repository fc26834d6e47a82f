#include "mainwindowtest.h"

#include "noticebar.h"
#include "wallpanel.h"
#include "wallview.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QTranslator>

using namespace workbench;

/** The window itself: what it shows, keeps, remembers and translates. */
class TestMainWindow : public MainWindowTest
{
    Q_OBJECT

private slots:
    void keepsThePluginsWidgets();
    void saysWhyThereIsNoEditor();
    void remembersTheLayout();
    void changesPalette();
    void changesLanguage();
};

void TestMainWindow::keepsThePluginsWidgets()
{
    open(demo());
    const QPointer<QWidget> client(m_plugin.client->GetClient());
    const QPointer<QWidget> attributes(find<QScrollArea>("ItemProperties")->widget());
    m_window.reset();
    QVERIFY(client && attributes);
    QVERIFY(client->parent() == nullptr);
    QVERIFY(attributes->window() == client);
    // A second window takes them again.
    open(demo());
    QVERIFY(client->isVisible() && attributes->isVisible());
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
    const auto *said = find<QLabel>("PluginFaultText");
    QVERIFY(said->isVisible());
    QVERIFY(said->text().contains("text.so"));
    QVERIFY(said->text().contains(text.remedy));
    // All else works.
    m_window->selectNode(node({0, 1, 0}));
    QCOMPARE(m_window->wall()->view()->scene().items.size(), 2);
    action("AddItem")->trigger();
    QCOMPARE(node({0, 1})->ChildNodes().size(), 2);
}

void TestMainWindow::remembersTheLayout()
{
    open(demo());
    const auto dock = [this] {
        return find<QDockWidget>("ProgrammeDock");
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
        const auto *parent = find<QWidget>(panel);
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

int main(int argc, char **argv)
{
    return runMainWindowTest<TestMainWindow>(argc, argv);
}

#include "tst_mainwindow.moc"
