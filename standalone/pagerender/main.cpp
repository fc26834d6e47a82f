#include "commandline.h"
#include "lcontrollernode.h"
#include "programmefile.h"
#include "rendercommand.h"
#include "report.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

enum ExitStatus { Done = 0, Failed = 1, Misused = 2 };

void print(FILE *stream, const QString &text)
{
    std::fputs(text.toUtf8().constData(), stream);
}

/** Standard error holds one line a problem; what libraries remark goes nowhere. */
void showOwnMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QLatin1String category(context.category);
    if (type == QtFatalMsg || category.startsWith(QLatin1String("lctrlsex."))) {
        print(stderr, QStringLiteral("%1: %2\n").arg(category, message));
    }
}

int run(const CommandLine &line)
{
    Report report(line.programme, line.asJson, line.isQuiet);
    const ReadProgramme read = loadProgramme(line.programme);
    bool isDone = false;
    if (read.controller == nullptr) {
        report.problem(
            {player::Problem::Error, read.error.placeText(), read.error.reason, read.error.remedy});
    } else if (line.command == CommandLine::Render) {
        isDone = renderProgramme(read.controller.get(), line, &report);
    } else {
        isDone = checkProgramme(read.controller.get(), line, &report);
    }
    const bool allIsWell = isDone && line.command == CommandLine::Check;
    report.finish(allIsWell ? QStringLiteral("nothing to mend") : QString());
    return isDone ? Done : Failed;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const CommandLine line = readCommandLine(arguments);
    switch (line.command) {
    case CommandLine::Help:
    case CommandLine::Version:
        print(stdout, line.text);
        return Done;
    case CommandLine::Mistake:
        print(stderr, QStringLiteral("pagerender: %1\n").arg(line.text));
        return Misused;
    case CommandLine::Render:
    case CommandLine::Check:
        break;
    }
    // Pages are the same with and without a display, so none is asked for.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qInstallMessageHandler(showOwnMessages);
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("pagerender"));
    return run(line);
}
