#include "commandline.h"
#include "fontfolder.h"
#include "ltranslation.h"
#include "mainwindow.h"
#include "palettes.h"
#include "pluginloader.h"
#include "workbenchsettings.h"
#include "workbenchstyle.h"

#include <QApplication>
#include <QFontInfo>
#include <QIcon>
#include <QLocale>
#include <QScreen>

#include <cstdio>

namespace {

constexpr int FontPixels = 13;
/** A screen up to this width has no room to spare around the window. */
constexpr int NarrowScreen = 1400;

void print(FILE *stream, const QString &text)
{
    std::fputs(text.toUtf8().constData(), stream);
}

void setUpApplication()
{
    // One point is one pixel, on the screens that are programmed and so in the editor's view.
    if (!qEnvironmentVariableIsSet("QT_FONT_DPI")) {
        qputenv("QT_FONT_DPI", "72");
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setApplicationName(QStringLiteral("workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LCTRLSEX_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("lctrlsex-workbench"));
}

void dress(const QString &palette)
{
    QApplication::setStyle(new workbench::WorkbenchStyle);
    QFont font = QApplication::font();
    // A text that names no font stores the desktop's: a name that every machine understands.
    font.setFamily(QFontInfo(font).family());
    font.setPixelSize(FontPixels);
    QApplication::setFont(font);
    workbench::applyPalette(workbench::paletteFromName(palette));
    QIcon icon;
    for (const int side : {16, 32, 48, 128, 256}) {
        icon.addFile(QStringLiteral(":/workbench/workbench-%1.png").arg(side));
    }
    QApplication::setWindowIcon(icon);
}

/** The language asked for, else the one used last, else the desktop's when there is one. */
void chooseLanguage(const QString &asked, const QString &remembered)
{
    const QString wanted = !asked.isEmpty()        ? asked
                           : !remembered.isEmpty() ? remembered
                                                   : QLocale::system().name();
    LTranslation *translation = LTranslation::instance();
    const QStringList available = translation->AvailableLanguages();
    // Set in any case: English has a catalogue too, of its plural forms.
    translation->SetLanguage(available.contains(wanted) ? wanted : translation->Language());
    if (!asked.isEmpty() && !available.contains(asked)) {
        print(stderr, QStringLiteral("workbench: --language %1: there are %2\n")
                          .arg(asked, available.join(QLatin1String(", "))));
    }
}

void showWindow(workbench::MainWindow *window, const QByteArray &geometry)
{
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    window->resize(room.width() * 9 / 10, room.height() * 9 / 10);
    if (!window->restoreGeometry(geometry) && room.width() <= NarrowScreen) {
        window->showMaximized();
    } else {
        window->show();
    }
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const workbench::CommandLine line = workbench::readCommandLine(arguments);
    if (line.action != workbench::CommandLine::Open) {
        const bool isMistake = line.action == workbench::CommandLine::Mistake;
        print(isMistake ? stderr : stdout, line.text);
        return isMistake ? 2 : 0;
    }
    setUpApplication();
    // The toolkit has an option --plugin of its own, so it gets to see the program's name only.
    int nameAlone = 1;
    QApplication application(nameAlone, argv);
    const workbench::WorkbenchSettings settings;
    dress(line.palette.isEmpty() ? settings.palette() : line.palette);
    chooseLanguage(line.language, settings.language());
    // The editor reads the folder as soon as it is loaded.
    const FontFolder::Result fonts = FontFolder::fill();
    const workbench::LoadedPlugin plugin =
        workbench::loadPlugin(workbench::pluginCandidates(line.plugin));
    workbench::MainWindow window(plugin, fonts);
    showWindow(&window, settings.geometry());
    window.start(line.file);
    return QApplication::exec();
}
