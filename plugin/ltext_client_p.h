#pragma once

#include "clientform.h"
#include "ltext_client.h"

namespace Lum {
namespace LTextPlugin {

/**
 * The node that an operation began with: true while it lives, stays bound, and the client lives.
 *
 * To be asked again behind every call that leaves the client, because the host may do anything.
 */
class LTextClient::Bound
{
public:
    explicit Bound(LTextClient *client)
        : m_client(client)
        , m_node(client->m_node)
    {}

    explicit operator bool() const { return m_client && m_node && m_client->m_node == m_node; }
    LTextEffectNode *operator->() const { return m_node; }

    /** What the node's @p getter says, @p fallback once the node is no longer bound. */
    template <typename Value, typename Node>
    [[nodiscard]] Value value(Value (Node::*getter)() const, const Value &fallback = Value()) const
    {
        return *this ? (m_node.data()->*getter)() : fallback;
    }

private:
    QPointer<LTextClient> m_client;
    QPointer<LTextEffectNode> m_node;
};

/** While it lives, the client fills controls itself and their slots write nothing. */
class LTextClient::Filling
{
public:
    explicit Filling(LTextClient *client)
        : m_client(client)
        , m_before(client->m_initialising)
    {
        client->m_initialising = true;
    }
    ~Filling()
    {
        if (m_client) {
            m_client->m_initialising = m_before;
        }
    }

private:
    Q_DISABLE_COPY(Filling)

    QPointer<LTextClient> m_client;
    bool m_before;
};

} // namespace LTextPlugin
} // namespace Lum
