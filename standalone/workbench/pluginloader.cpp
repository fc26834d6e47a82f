#include "pluginloader.h"

#include "inodeclient.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

namespace workbench {

namespace {

/** Lum::LTextPlugin::LTextClient::instance(), as the compiler spells it. */
constexpr char AccessorSymbol[] = "_ZN3Lum11LTextPlugin11LTextClient8instanceEv";

/** A text that is translated when it is shown: the language may be another one by then. */
QString later(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

QString translatedFault(const QString &text)
{
    return QCoreApplication::translate("PluginLoader", text.toUtf8().constData());
}

QStringList pluginCandidates(const QString &chosen)
{
    if (!chosen.isEmpty()) {
        return {QFileInfo(chosen).absoluteFilePath()};
    }
    const QString fromEnvironment = qEnvironmentVariable("LCTRLSEX_PLUGIN");
    if (!fromEnvironment.isEmpty()) {
        return {QFileInfo(fromEnvironment).absoluteFilePath()};
    }
    const QString program = QCoreApplication::applicationDirPath();
    QStringList files;
    for (const QString &folder :
         {program + QStringLiteral("/../lib"), program + QStringLiteral("/../" LCTRLSEX_LIBDIR),
          QStringLiteral("/usr/lib"), QStringLiteral("/usr/local/lib")}) {
        // The name without a number comes with the development files only.
        for (const QString &name : {QStringLiteral("libLCtrlsExPlugin.so." LCTRLSEX_SOVERSION),
                                    QStringLiteral("libLCtrlsExPlugin.so")}) {
            const QString file = QDir::cleanPath(folder + QLatin1Char('/') + name);
            if (!files.contains(file)) {
                files.append(file);
            }
        }
    }
    return files;
}

LoadedPlugin loadPlugin(const QStringList &candidates)
{
    LoadedPlugin result;
    for (const QString &file : candidates) {
        if (QFileInfo::exists(file)) {
            result.fileName = file;
            break;
        }
    }
    if (result.fileName.isEmpty()) {
        result.fileName = candidates.size() == 1 ? candidates.constFirst() : QString();
        result.reason = later(
            QT_TRANSLATE_NOOP("PluginLoader", "The plug-in with the text editor was not found."));
        result.remedy = later(QT_TRANSLATE_NOOP(
            "PluginLoader", "Install it beside the program, or name its file with --plugin FILE."));
        return result;
    }
    QLibrary library(result.fileName);
    // A missing symbol is to be told here, not to end the process at the first use.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!library.load()) {
        result.reason = library.errorString();
        result.remedy = later(QT_TRANSLATE_NOOP(
            "PluginLoader", "Install the plug-in of the same version as the workbench."));
        return result;
    }
    const auto accessor = reinterpret_cast<void *(*)()>(library.resolve(AccessorSymbol));
    if (accessor == nullptr) {
        result.reason = later(
            QT_TRANSLATE_NOOP("PluginLoader", "The library does not export the text client."));
        result.remedy = later(
            QT_TRANSLATE_NOOP("PluginLoader", "Name the file of the plug-in with --plugin FILE."));
        return result;
    }
    // The interface is the client's first base, so both have one address.
    result.client = static_cast<Lum::INodeClient *>(accessor());
    if (result.client == nullptr) {
        result.reason = later(QT_TRANSLATE_NOOP("PluginLoader", "The plug-in gave no client."));
        result.remedy = later(QT_TRANSLATE_NOOP(
            "PluginLoader", "Install the plug-in of the same version as the workbench."));
    }
    return result;
}

} // namespace workbench
