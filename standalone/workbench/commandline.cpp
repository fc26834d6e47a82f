#include "commandline.h"

#include <QCommandLineParser>

namespace workbench {

namespace {

QString help()
{
    return QStringLiteral(
        "Edits programmes for LED and LCD display screens.\n"
        "\n"
        "usage: workbench [FILE] [options]\n"
        "\n"
        "Opens FILE, a *.programme.json; without one the programme that was open last, and the\n"
        "demo programme the first time.\n"
        "\n"
        "  --language CODE                the language of the window, such as en or zh_CN\n"
        "  --palette light|dark|system    the colours of the window\n"
        "  --plugin FILE                  the library of the text editor, instead of the "
        "installed\n"
        "                                 one; LCTRLSEX_PLUGIN in the environment does the same\n"
        "  --help, --version\n");
}

CommandLine answer(CommandLine::Action action, const QString &text)
{
    CommandLine line;
    line.action = action;
    line.text = text;
    return line;
}

CommandLine mistake(const QString &text)
{
    return answer(CommandLine::Mistake,
                  QStringLiteral("workbench: %1; workbench --help explains\n").arg(text));
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption helpOption(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption version(QStringLiteral("version"));
    const QCommandLineOption language(QStringLiteral("language"), QString(),
                                      QStringLiteral("code"));
    const QCommandLineOption palette(QStringLiteral("palette"), QString(), QStringLiteral("name"));
    const QCommandLineOption plugin(QStringLiteral("plugin"), QString(), QStringLiteral("file"));
    parser.addOptions({helpOption, version, language, palette, plugin});
    // The parser takes the first argument for the program's name.
    if (!parser.parse(QStringList(QStringLiteral("workbench")) + arguments)) {
        return mistake(parser.errorText());
    }
    if (parser.isSet(helpOption)) {
        return answer(CommandLine::Tell, help());
    }
    if (parser.isSet(version)) {
        return answer(CommandLine::Tell, QStringLiteral("workbench " LCTRLSEX_VERSION "\n"));
    }
    if (parser.positionalArguments().size() > 1) {
        return mistake(QStringLiteral("one programme at a time; \"%1\" is too much")
                           .arg(parser.positionalArguments().at(1)));
    }
    CommandLine line;
    line.file = parser.positionalArguments().value(0);
    line.language = parser.value(language);
    line.palette = parser.value(palette);
    line.plugin = parser.value(plugin);
    const QStringList palettes{QString(), QStringLiteral("system"), QStringLiteral("light"),
                               QStringLiteral("dark")};
    if (!palettes.contains(line.palette)) {
        return mistake(QStringLiteral("--palette %1: light, dark or system").arg(line.palette));
    }
    return line;
}

} // namespace workbench
