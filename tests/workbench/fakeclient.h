#pragma once

#include "inodeclient.h"
#include "ltexteffectnode.h"

#include <QPointer>
#include <QTextEdit>

namespace Lum {
namespace LTextPlugin {

/**
 * Stands in for the plug-in: the accessor, the widgets and the pushes to the node of the real one,
 * around a bare text view. What it was asked to do is counted in dynamic properties.
 */
class Q_DECL_EXPORT LTextClient : public Lum::INodeClient
{
    Q_OBJECT

public:
    static LTextClient *instance();

    QWidget *GetClient() override;
    QWidget *GetAttributesWidget(LNode *node) override;
    QWidget *GetEditeWidget(LNode *node) override;
    void Init(LNode *node) override;
    void Finish() override;

private:
    LTextClient();
    void load();
    void push();
    void count(const char *what);

    QTextEdit *m_view;
    QPointer<QWidget> m_attributes;
    QPointer<LTextEffectNode> m_node;
    bool m_isLoading = false;
};

} // namespace LTextPlugin
} // namespace Lum
