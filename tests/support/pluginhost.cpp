#include "pluginhost.h"

#include "inodeclient.h"

#include <QApplication>
#include <QMutex>
#include <QWidget>

namespace pluginhost {

static QMutex s_mutex;
static QStringList s_messages;

QLibrary &library()
{
    static QLibrary plugin(QStringLiteral(LCTRLSEX_PLUGIN));
    if (!plugin.load()) {
        qFatal("%s", qPrintable(plugin.errorString()));
    }
    return plugin;
}

Lum::INodeClient *client()
{
    // The accessor returns the derived class, whose first base is the interface.
    using Accessor = Lum::INodeClient *(*)();
    const auto accessor = reinterpret_cast<Accessor>(
        library().resolve("_ZN3Lum11LTextPlugin11LTextClient8instanceEv"));
    return accessor ? accessor() : nullptr;
}

QObject *findObject(const QString &name)
{
    Lum::INodeClient *const root = client();
    if (auto *const found = root->findChild<QObject *>(name)) {
        return found;
    }
    // The attributes panel may lie in a window of the test.
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *const found = window->findChild<QObject *>(name)) {
            return found;
        }
    }
    return nullptr;
}

int listeners(const QObject *sender, const char *signal)
{
    struct Opened : QObject
    {
        using QObject::receivers;
    };
    const QByteArray coded =
        QByteArray::number(QSIGNAL_CODE) + QMetaObject::normalizedSignature(signal);
    return (sender->*(&Opened::receivers))(coded.constData());
}

static void keepMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    const QMutexLocker lock(&s_mutex);
    s_messages.append(message);
}

MessageCatcher::MessageCatcher()
{
    s_messages.clear();
    m_before = qInstallMessageHandler(keepMessage);
}

MessageCatcher::~MessageCatcher()
{
    qInstallMessageHandler(m_before);
}

QStringList MessageCatcher::messages() const
{
    const QMutexLocker lock(&s_mutex);
    return s_messages;
}

QStringList MessageCatcher::deadConnections() const
{
    return messages().filter(QLatin1String("No such s")) +
           messages().filter(QLatin1String("Cannot connect")) +
           messages().filter(QLatin1String("No matching signal"));
}

} // namespace pluginhost
