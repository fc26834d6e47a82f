#include "languagewindow.h"

#include "lcontrollernode.h"
#include "ltranslation.h"
#include "programmedocument.h"
#include "workbenchstyle.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>

using namespace workbench;

static const char Programme[] = R"({ "format": "lctrlsex-programme", "version": 1,
  "name": "#programme", "controller": { "kind": "LED", "width": 192, "height": 64 },
  "screens": [ { "name": "#screen", "frames": [
    { "name": "#frame", "items": [
      { "name": "#item", "document": "<p style=\"color:#ffffff\">#1</p>" },
      { "name": "#damaged", "attributes": { "RawHtml": "!" } } ] },
    { "name": "#bare", "x": 500, "items": [] } ] } ] })";

QString LanguageWindow::setUp()
{
    qputenv("LCTRLSEX_DATA_DIR", m_folder.filePath("data").toUtf8());
    QDir().mkpath(m_folder.filePath("data"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    if (FontFolder::fill().files == 0) {
        return "no fonts";
    }
    LTranslation::instance()->SetFolder(LCTRLSEX_BINARY_DIR "/share/lctrlsex/translations");
    m_plugin = loadPlugin({QStringLiteral(LCTRLSEX_PLUGIN)});
    return m_plugin.reason;
}

bool LanguageWindow::open(const QSize &size)
{
    QFile file(m_folder.filePath("#.programme.json"));
    if (!file.open(QIODevice::WriteOnly) || file.write(Programme) < 0) {
        return false;
    }
    file.close();
    m_window = std::make_unique<MainWindow>(m_plugin, FontFolder::Result());
    m_window->resize(size);
    m_window->show();
    m_window->start(file.fileName());
    QCoreApplication::processEvents();
    return m_window->size() == size;
}

LNode *LanguageWindow::node(const QList<int> &path) const
{
    LNode *node = m_window->document()->controller();
    for (const int index : path) {
        node = node->ChildNodes().at(index);
    }
    return node;
}

QStringList LanguageWindow::states()
{
    return {"item",   "damaged item", "frame",   "bare frame", "data",
            "screen", "programme",    "display", "notice"};
}

void LanguageWindow::enter(const QString &state)
{
    static const QMap<QString, QList<int>> paths{{"item", {0, 0, 0}},  {"damaged item", {0, 0, 1}},
                                                 {"frame", {0, 0}},    {"bare frame", {0, 1}},
                                                 {"data", {0, 0, 0}},  {"screen", {0}},
                                                 {"programme", {}},    {"display", {}},
                                                 {"notice", {0, 0, 0}}};
    if (state == "display") {
        auto *display = m_window->findChild<QComboBox *>("DeviceKind");
        m_window->selectNode(node({}));
        display->setCurrentIndex(1);
        emit display->activated(1);
        m_window->selectNode(node({0, 0, 0}));
    } else {
        m_window->selectNode(node(paths.value(state)));
    }
    if (state == "frame" || state == "screen" || state == "programme") {
        m_window->findChild<QDockWidget *>("LayoutDock")->raise();
    }
    if (state == "data") {
        m_window->findChild<QDockWidget *>("DataDock")->raise();
    }
    if (state == "notice") {
        m_window->openFile("/#");
    }
    QCoreApplication::processEvents();
}

bool LanguageWindow::speak(const QString &language)
{
    const bool isSpoken = LTranslation::instance()->SetLanguage(language);
    QCoreApplication::processEvents();
    return isSpoken;
}

void dressApplication()
{
    QApplication::setStyle(new WorkbenchStyle);
    QFont font = QApplication::font();
    font.setPixelSize(13);
    QApplication::setFont(font);
}
