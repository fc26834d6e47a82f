#include "commandline.h"
#include "lcontrollernode.h"
#include "programmefile.h"
#include "rendercommand.h"
#include "report.h"
#include "watchcommand.h"

#include <QGuiApplication>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

enum ExitStatus { Done = 0, Failed = 1, Misused = 2 };

FILE *messages = stderr; ///< Where problems are told.

void print(FILE *stream, const QString &text)
{
    std::fputs(text.toUtf8().constData(), stream);
}

/**
 * Standard error holds one line a problem. Image libraries remark on broken images there by
 * themselves, so it is kept under another number and their remarks go nowhere.
 */
void takeStandardError()
{
    const int ours = dup(STDERR_FILENO);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    FILE *stream = ours >= 0 ? fdopen(ours, "w") : nullptr;
    if (stream != nullptr && nowhere >= 0) {
        dup2(nowhere, STDERR_FILENO);
        messages = stream;
    }
    if (nowhere >= 0) {
        close(nowhere);
    }
}

void showOwnMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QLatin1String category(context.category);
    if (type == QtFatalMsg || category.startsWith(QLatin1String("lctrlsex."))) {
        print(messages, QStringLiteral("%1: %2\n").arg(category, message));
    }
}

int run(const CommandLine &line)
{
    Report report(line.programme, line.asJson, line.isQuiet, messages);
    if (line.command == CommandLine::Watch) {
        return watchProgramme(line, &report) ? Done : Failed;
    }
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
    case CommandLine::Watch:
        break;
    }
    // Pages are the same with and without a display, so none is asked for.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    takeStandardError();
    qInstallMessageHandler(showOwnMessages);
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("pagerender"));
    return run(line);
}
