#pragma once

#include <QString>
#include <QStringList>

namespace workbench {

/** What the user asked for on the command line. */
struct CommandLine
{
    enum Action {
        Open,    ///< Show the window.
        Tell,    ///< Print the text and end with success.
        Mistake, ///< Print the text and end with a failure.
    };

    Action action = Open;
    QString text;     ///< For Tell and Mistake.
    QString file;     ///< The programme to open; empty when none was named.
    QString language; ///< Empty: the one used last.
    QString palette;  ///< "system", "light" or "dark"; empty: the one used last.
    QString plugin;   ///< Empty: look for it.
};

/** Reads the arguments, which do not hold the program's name. */
[[nodiscard]] CommandLine readCommandLine(const QStringList &arguments);

} // namespace workbench
