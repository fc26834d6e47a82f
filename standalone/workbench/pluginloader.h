#pragma once

#include <QString>
#include <QStringList>

namespace Lum {
class INodeClient;
}

namespace workbench {

/** What came of loading the plug-in; either a client, or why there is none. */
struct LoadedPlugin
{
    /** The plug-in's one client; the plug-in owns it. */
    Lum::INodeClient *client = nullptr;
    /** The library that was loaded, or the one at fault; empty when none was found. */
    QString fileName;
    /** In English, for translatedFault(). */
    QString reason;
    QString remedy;
};

/** A reason or remedy in the current language. */
[[nodiscard]] QString translatedFault(const QString &text);

/**
 * The files that may be the plug-in, best first. @p chosen (from the command line) or else the
 * environment variable LCTRLSEX_PLUGIN is the only candidate when it is given.
 */
[[nodiscard]] QStringList pluginCandidates(const QString &chosen);

/**
 * Loads the first candidate that exists and asks it for its client. The library stays loaded until
 * the process ends. An existing library that cannot serve is an error: no other one is tried.
 */
[[nodiscard]] LoadedPlugin loadPlugin(const QStringList &candidates);

} // namespace workbench
