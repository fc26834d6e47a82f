#pragma once

#include <QStringList>

namespace Lum {
class INodeClient;
}

/**
 * The client of the plug-in library, loaded at run time through its exported accessor as any host
 * does. Null, with a warning, when that fails. The font folder is filled first. Another one when
 * the window that the client lay in was deleted.
 */
[[nodiscard]] Lum::INodeClient *loadedClient();

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
