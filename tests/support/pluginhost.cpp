#include "pluginhost.h"

#include "fontfolder.h"
#include "inodeclient.h"

#include <QApplication>
#include <QDebug>
#include <QLibrary>
#include <QWidget>

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
    static const auto accessor = []() -> Accessor {
        FontFolder::fill();
        QLibrary library(QStringLiteral(LCTRLSEX_PLUGIN));
        // Lum::LTextPlugin::LTextClient::instance()
        const auto symbol = library.resolve("_ZN3Lum11LTextPlugin11LTextClient8instanceEv");
        if (symbol == nullptr) {
            qWarning() << library.errorString();
        }
        return reinterpret_cast<Accessor>(symbol);
    }();
    return accessor != nullptr ? accessor() : nullptr;
}

QObject *clientObject(const char *name)
{
    const QString objectName = QString::fromLatin1(name);
    if (auto *const found = loadedClient()->findChild<QObject *>(objectName)) {
        return found;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (auto *const found = window->findChild<QObject *>(objectName)) {
            return found;
        }
    }
    return nullptr;
}

int listeners(const QObject *sender, const char *signal)
{
    // Opens a protected operation without a subclass of every sender.
    struct Opened : QObject
    {
        using QObject::receivers;
    };
    const QByteArray coded =
        QByteArray::number(QSIGNAL_CODE) + QMetaObject::normalizedSignature(signal);
    return (sender->*(&Opened::receivers))(coded.constData());
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
