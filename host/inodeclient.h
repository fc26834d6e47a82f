#pragma once

#include "lcommon_global.h"

#include <QFrame>

class LNode;

namespace Lum {

/**
 * The interface through which the host drives the client object of a plug-in.
 *
 * A host finds the client, binds it to a node with Init, lays its widgets into its own window and
 * lets go of the node with Finish. The order of the virtual operations is part of the binary
 * interface: it never changes, and nothing is inserted. GUI thread only.
 */
class LCOMMON_EXPORT INodeClient : public QFrame
{
    Q_OBJECT

public:
    explicit INodeClient(QWidget *parent = nullptr);
    ~INodeClient() override;

    /** The client widget itself; never null, owned by the plug-in. */
    virtual QWidget *GetClient() = 0;
    /** Binds the node and gives the widget of its attributes; a foreign node or null binds none. */
    virtual QWidget *GetAttributesWidget(LNode *node) = 0;
    /** Binds the node and gives the widget that edits it; a foreign node or null binds none. */
    virtual QWidget *GetEditeWidget(LNode *node) = 0;
    /** Binds a programme item, or the one inside a frame; anything else changes nothing. */
    virtual void Init(LNode *node) = 0;
    /** Lets go of the node; the client lives on and can be bound again. */
    virtual void Finish() = 0;

signals:
    /** The user wants to leave editing. */
    void editFinish();

private:
    Q_DISABLE_COPY(INodeClient)
};

} // namespace Lum
