#include "commandline.h"

#include "pagerenderer.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace {

QString overview()
{
    return QStringLiteral(
        "Renders the pages of a programme for LED and LCD display screens into image files.\n"
        "Needs no display.\n"
        "\n"
        "usage: pagerender render PROGRAMME -o DIR [options]   write every page as a PNG file\n"
        "       pagerender check PROGRAMME [options]           say what would not be shown as "
        "meant\n"
        "       pagerender watch PROGRAMME -o DIR [options]    keep the page files up to date\n"
        "       pagerender help COMMAND                        the options of a command\n"
        "       pagerender --version\n"
        "\n"
        "PROGRAMME is a *.programme.json file, or - for standard input.\n"
        "\n"
        "examples:\n"
        "  pagerender render shop.programme.json -o pages\n"
        "  pagerender render shop.programme.json -o pages --item Headline --size 256x64\n"
        "  pagerender check shop.programme.json --json\n"
        "\n"
        "exit status: 0 all is well, 1 a page could not be made or a check found something,\n"
        "             2 the command line is wrong\n");
}

QString renderHelp()
{
    return QStringLiteral(
        "usage: pagerender render PROGRAMME -o DIR [options]\n"
        "\n"
        "Writes the pages of every text item of PROGRAMME into DIR, which is made when missing,\n"
        "and prints the name of each file. Text that is higher than its item goes on to further\n"
        "pages; lines are never cut. A file is named after its item and page, Headline-1.png;\n"
        "items of one name are told apart by -2, -3 and so on behind the name. A file appears\n"
        "under its name only when it is complete.\n"
        "\n"
        "  -o, --output DIR   the folder for the page files\n"
        "  --item NAME        only the items of that name, or the one at screen/frame/item;\n"
        "                     may be given several times\n"
        "  --size WxH         draw the items at this size in pixels instead of their own\n"
        "  --data SOURCE=FILE take the data of a .csv, .json or .txt file for that of the source\n"
        "                     of that name; may be given several times\n"
        "  --set KEY=VALUE    the same for a single value, source:key=value; later ones count\n"
        "  --lenient          make the page also when a font or an image is missing, and warn\n"
        "  --json             print a report for programs instead of file names\n"
        "  -q, --quiet        print no file names and no progress\n"
        "\n"
        "A problem is one line on standard error, file: place: reason. The exit status is 0 only\n"
        "when every page was written.\n");
}

QString checkHelp()
{
    return QStringLiteral(
        "usage: pagerender check PROGRAMME [options]\n"
        "\n"
        "Says what would keep the screen from showing the items as they are meant: fonts that are\n"
        "not installed, characters that no font has, images that cannot be loaded or are larger\n"
        "than their item, lines that are cut, text in the colour of its ground, conditional "
        "styles\n"
        "that nothing uses, sources that fail, keys that lead to nothing, with the nearest one.\n"
        "Writes nothing.\n"
        "\n"
        "  --item NAME   only the items of that name, or the one at screen/frame/item; may be\n"
        "                given several times\n"
        "  --size WxH    check the items at this size in pixels instead of their own\n"
        "  --data SOURCE=FILE, --set KEY=VALUE\n"
        "                check with this data, see pagerender help render\n"
        "  --json        print a report for programs\n"
        "  -q, --quiet   print nothing; the exit status tells\n"
        "\n"
        "The exit status is 0 when nothing was found and 1 when something was.\n");
}

QString watchHelp()
{
    return QStringLiteral(
        "usage: pagerender watch PROGRAMME -o DIR [options]\n"
        "\n"
        "Writes the pages of every text item, as render does, and writes those of an item anew\n"
        "whenever data that it shows changes, or the programme file. Pages that look as before\n"
        "are left alone, files of pages that are no more are removed; every file is whole at any\n"
        "moment. Runs until it is ended.\n"
        "\n"
        "  -o, --output, --item, --size, --data, --set, --lenient, -q, --quiet\n"
        "                as of render, see pagerender help render\n"
        "  --record DIR  write what each source delivers into DIR/SOURCE.jsonl, which a source\n"
        "                with \"replay\" plays again; recordings that are there go on\n");
}

CommandLine mistake(const QString &text)
{
    CommandLine line;
    line.text = text;
    return line;
}

CommandLine answer(CommandLine::Command command, const QString &text)
{
    CommandLine line;
    line.command = command;
    line.text = text;
    return line;
}

CommandLine helpFor(const QString &topic)
{
    if (topic.isEmpty() || topic == QLatin1String("help")) {
        return answer(CommandLine::Help, overview());
    }
    if (topic == QLatin1String("render")) {
        return answer(CommandLine::Help, renderHelp());
    }
    if (topic == QLatin1String("check")) {
        return answer(CommandLine::Help, checkHelp());
    }
    if (topic == QLatin1String("watch")) {
        return answer(CommandLine::Help, watchHelp());
    }
    return mistake(
        QStringLiteral("there is no command \"%1\"; pagerender --help lists them").arg(topic));
}

/** Reads "WxH"; an error text when it is no page size, else empty. */
QString readSize(const QString &text, QSize *size)
{
    static const QRegularExpression pattern(QStringLiteral("\\A(\\d{1,9})[xX](\\d{1,9})\\z"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return QStringLiteral("--size %1: give width and height in pixels, such as 256x64")
            .arg(text);
    }
    *size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    if (!lctrlsex::isPageSize(*size)) {
        return QStringLiteral(
                   "--size %1: both sides must be from 1 to %2 pixels, %3 million in all")
            .arg(text)
            .arg(lctrlsex::LongestPageSide)
            .arg(lctrlsex::MostPagePixels / 1000000);
    }
    return {};
}

/** Names and kinds of the options; a command takes those that it lists. */
void addOptions(QCommandLineParser *parser, CommandLine::Command command)
{
    const auto add = [parser](const QStringList &names, const QString &value = QString()) {
        parser->addOption(QCommandLineOption(names, QString(), value));
    };
    add({QStringLiteral("item")}, QStringLiteral("name"));
    add({QStringLiteral("size")}, QStringLiteral("size"));
    add({QStringLiteral("data")}, QStringLiteral("data"));
    add({QStringLiteral("set")}, QStringLiteral("value"));
    add({QStringLiteral("json")});
    add({QStringLiteral("q"), QStringLiteral("quiet")});
    add({QStringLiteral("h"), QStringLiteral("help")});
    if (command == CommandLine::Watch) {
        add({QStringLiteral("record")}, QStringLiteral("folder"));
    }
    if (command != CommandLine::Check) {
        add({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("folder"));
        add({QStringLiteral("lenient")});
    }
}

QString programmeProblem(const QStringList &files)
{
    if (files.isEmpty()) {
        return QStringLiteral("no programme named; give a *.programme.json file, or - for standard "
                              "input");
    }
    return files.size() == 1
               ? QString()
               : QStringLiteral("one programme at a time; \"%1\" is too much").arg(files.at(1));
}

CommandLine readCommand(CommandLine::Command command, const QStringList &arguments)
{
    const bool forRender = command != CommandLine::Check;
    QCommandLineParser parser;
    addOptions(&parser, command);
    // The parser takes the first argument for the program's name.
    const bool parsed = parser.parse(QStringList(QStringLiteral("pagerender")) + arguments);
    if (parser.isSet(QStringLiteral("help"))) {
        return answer(CommandLine::Help, command == CommandLine::Watch ? watchHelp()
                                         : forRender                   ? renderHelp()
                                                                       : checkHelp());
    }
    if (!parsed) {
        return mistake(parser.errorText());
    }
    CommandLine line;
    line.command = command;
    const QString fault = programmeProblem(parser.positionalArguments());
    if (!fault.isEmpty()) {
        return mistake(fault);
    }
    line.programme = parser.positionalArguments().constFirst();
    line.items = parser.values(QStringLiteral("item"));
    line.dataFiles = parser.values(QStringLiteral("data"));
    line.settings = parser.values(QStringLiteral("set"));
    line.asJson = parser.isSet(QStringLiteral("json"));
    line.isQuiet = parser.isSet(QStringLiteral("quiet"));
    if (command == CommandLine::Watch) {
        line.recordFolder = parser.value(QStringLiteral("record"));
    }
    if (command == CommandLine::Watch && (line.asJson || line.programme == QLatin1String("-"))) {
        return mistake(line.asJson ? QStringLiteral("watch never ends, so it has no --json report")
                                   : QStringLiteral("standard input cannot be watched"));
    }
    if (parser.isSet(QStringLiteral("size"))) {
        const QString error = readSize(parser.value(QStringLiteral("size")), &line.size);
        if (!error.isEmpty()) {
            return mistake(error);
        }
    }
    if (forRender) {
        line.isLenient = parser.isSet(QStringLiteral("lenient"));
        line.outputFolder = parser.value(QStringLiteral("output"));
        if (line.outputFolder.isEmpty()) {
            return mistake(QStringLiteral("no output folder; name one with -o DIR"));
        }
    }
    return line;
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    const QString command = arguments.value(0);
    if (command.isEmpty()) {
        return mistake(
            QStringLiteral("say what to do: render, check or watch; pagerender --help explains"));
    }
    if (command == QLatin1String("--help") || command == QLatin1String("-h")) {
        return helpFor(QString());
    }
    if (command == QLatin1String("help")) {
        return helpFor(arguments.value(1));
    }
    if (command == QLatin1String("--version")) {
        return answer(CommandLine::Version, QStringLiteral("pagerender " LCTRLSEX_VERSION "\n"));
    }
    if (command == QLatin1String("render")) {
        return readCommand(CommandLine::Render, arguments.mid(1));
    }
    if (command == QLatin1String("watch")) {
        return readCommand(CommandLine::Watch, arguments.mid(1));
    }
    if (command == QLatin1String("check")) {
        return readCommand(CommandLine::Check, arguments.mid(1));
    }
    return helpFor(command);
}
