#pragma once

#include <QObject>
#include <QStringList>

namespace Lum {
class INodeClient;
}

/**
 * The client of the plug-in library, loaded at run time through its exported accessor as any host
 * does. Null, with a warning, when that fails. The font folder is filled first. Once the client
 * was deleted with a window it is another one.
 */
[[nodiscard]] Lum::INodeClient *loadedClient();

/** What is found under the client, or else in another window, by its object name; may be null. */
[[nodiscard]] QObject *clientObject(const char *name);

/** The same as the class that is wanted; null too when it is of another one. */
template <typename Widget>
[[nodiscard]] Widget *clientChild(const char *name)
{
    return qobject_cast<Widget *>(clientObject(name));
}

/** How many slots are connected to a signal, "name(parameters)", of an object. */
[[nodiscard]] int listeners(const QObject *sender, const char *signal);

/** Collects messages of connections that name a signal or slot which does not exist. */
class DeadConnections
{
public:
    DeadConnections();
    ~DeadConnections();
    DeadConnections(const DeadConnections &) = delete;
    DeadConnections &operator=(const DeadConnections &) = delete;

    [[nodiscard]] static QStringList found();
};
