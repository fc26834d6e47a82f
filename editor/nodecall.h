#pragma once

#include <QPointer>

#include <utility>

namespace lctrlsex {

/**
 * Calls an operation of a node that the host may delete at any time, in the very call before too.
 * A node that is gone answers with a default value.
 */
template <class Node, class Class, class Result, class... Parameters, class... Arguments>
Result nodeCall(const QPointer<Node> &node, Result (Class::*operation)(Parameters...),
                Arguments &&...arguments)
{
    return node.isNull() ? Result()
                         : (node.data()->*operation)(std::forward<Arguments>(arguments)...);
}

template <class Node, class Class, class Result, class... Parameters, class... Arguments>
Result nodeCall(const QPointer<Node> &node, Result (Class::*operation)(Parameters...) const,
                Arguments &&...arguments)
{
    return node.isNull() ? Result()
                         : (node.data()->*operation)(std::forward<Arguments>(arguments)...);
}

} // namespace lctrlsex
