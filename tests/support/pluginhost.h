#pragma once

#include <QLibrary>
#include <QObject>
#include <QString>
#include <QStringList>

namespace Lum {
class INodeClient;
}

/**
 * Loads the plug-in at run time and finds its client, as a host does.
 *
 * Tests link the host library only: they know the client by its interface, its widgets by their
 * object names, and its slots by their signatures.
 */
namespace pluginhost {

/** The plug-in, loaded on first use; a library that cannot be loaded ends the test. */
[[nodiscard]] QLibrary &library();
/** What the exported accessor returns. */
[[nodiscard]] Lum::INodeClient *client();

/** A child of the client, wherever it lies, by its object name; null when there is none. */
template <typename Widget>
[[nodiscard]] Widget *child(const char *name);

[[nodiscard]] QObject *findObject(const QString &name);

/** How many slots are connected to a signal, "name(parameters)", of an object. */
[[nodiscard]] int listeners(const QObject *sender, const char *signal);

template <typename Widget>
Widget *child(const char *name)
{
    return qobject_cast<Widget *>(findObject(QString::fromLatin1(name)));
}

/** While it lives, keeps every message of the process, among them those of dead connections. */
class MessageCatcher
{
public:
    MessageCatcher();
    ~MessageCatcher();

    [[nodiscard]] QStringList messages() const;
    /** Messages of connections whose signal or slot does not exist; a test expects none. */
    [[nodiscard]] QStringList deadConnections() const;

private:
    Q_DISABLE_COPY(MessageCatcher)
    QtMessageHandler m_before;
};

} // namespace pluginhost
