#include "pluginhost.h"

#include "fontfolder.h"
#include "inodeclient.h"

#include <QDebug>
#include <QLibrary>

namespace {

QStringList s_found;
QtMessageHandler s_former = nullptr;

void catchDead(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (text.contains(QLatin1String("No such signal")) ||
        text.contains(QLatin1String("No such slot"))) {
        s_found.append(text);
    }
    if (s_former != nullptr) {
        s_former(type, context, text);
    }
}

} // namespace

Lum::INodeClient *loadedClient()
{
    using Accessor = Lum::INodeClient *(*)();
    static const Accessor accessor = []() -> Accessor {
        FontFolder::fill();
        QLibrary library(QStringLiteral(LCTRLSEX_PLUGIN));
        // Lum::LTextPlugin::LTextClient::instance()
        const auto resolved = reinterpret_cast<Accessor>(
            library.resolve("_ZN3Lum11LTextPlugin11LTextClient8instanceEv"));
        if (resolved == nullptr) {
            qWarning() << library.errorString();
        }
        return resolved;
    }();
    return accessor != nullptr ? accessor() : nullptr;
}

DeadConnections::DeadConnections()
{
    s_found.clear();
    s_former = qInstallMessageHandler(catchDead);
}

DeadConnections::~DeadConnections()
{
    qInstallMessageHandler(s_former);
}

QStringList DeadConnections::found()
{
    return s_found;
}
