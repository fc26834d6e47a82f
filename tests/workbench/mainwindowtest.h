#pragma once

#include "inodeclient.h"
#include "lcontrollernode.h"
#include "mainwindow.h"
#include "palettes.h"
#include "programmedocument.h"

#include <QAction>
#include <QDir>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

#include <memory>

// No escaped quotes: moc loses its way after one in a raw string.
static const char Programme[] = R"({ "format": "lctrlsex-programme", "version": 1,
  "controller": { "kind": "LED", "width": 64, "height": 32 },
  "screens": [
    { "name": "One", "frames": [
      { "name": "Left", "x": 0, "y": 0, "width": 32, "height": 32,
        "items": [ { "name": "First", "document": "<p style='font-size:6pt; color:#ffffff'>first</p>" },
                   { "name": "Second", "document": "<p style='font-size:6pt; color:#ffffff'>second</p>" } ] },
      { "name": "Right", "x": 32, "y": 0, "width": 32, "height": 32,
        "items": [ { "name": "Third", "document": "<p style='font-size:6pt; color:#ffffff'>third</p>" } ] } ] },
    { "name": "Two", "frames": [ { "name": "Bare", "items": [] } ] } ] })";

/** The whole window around a stand-in for the plug-in; each test has a data folder of its own. */
class MainWindowTest : public QObject
{
    Q_OBJECT

protected:
    void open(const QString &fileName)
    {
        m_window.reset();
        m_window = std::make_unique<workbench::MainWindow>(m_plugin, FontFolder::Result());
        m_window->resize(1280, 800);
        m_window->show();
        m_window->start(fileName);
        QCoreApplication::processEvents();
    }
    /** Makes a file beside the data folder; its path, empty when it failed. */
    QString write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
                   ? file.fileName()
                   : QString();
    }
    QString demo() { return write("demo.programme.json", Programme); }
    template <typename Object>
    Object *find(const char *name) const
    {
        return m_window->findChild<Object *>(name);
    }
    QAction *action(const char *name) const { return find<QAction>(name); }
    /** The node that the indexes of children lead to from the controller. */
    LNode *node(const QList<int> &path) const
    {
        LNode *node = m_window->document()->controller();
        for (const int index : path) {
            node = node->ChildNodes().at(index);
        }
        return node;
    }
    QTextEdit *view() const { return m_plugin.client->findChild<QTextEdit *>("FakeView"); }

    workbench::LoadedPlugin m_plugin;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<workbench::MainWindow> m_window;

private slots:
    void initTestCase()
    {
        m_plugin = workbench::loadPlugin({QStringLiteral(FAKE_CLIENT)});
        QVERIFY2(m_plugin.client != nullptr, qPrintable(m_plugin.reason));
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        qputenv("LCTRLSEX_DATA_DIR", m_folder->filePath("data").toUtf8());
        QVERIFY(QDir().mkpath(m_folder->filePath("data")));
    }
    void cleanup()
    {
        m_window.reset(); // Without the question that close() asks.
        workbench::applyPalette(workbench::PaletteChoice::System);
    }
};

/** Runs a program of such tests at the resolution that the workbench sets for itself. */
template <typename Test>
int runMainWindowTest(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "72");
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
