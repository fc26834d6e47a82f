#include "fakeclient.h"

#include "scenethumbnailcapture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPainter>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>

namespace Lum {
namespace LTextPlugin {

LTextClient *LTextClient::instance()
{
    // Never destroyed, as the window that borrows its widgets must not delete them.
    static auto *const client = new LTextClient;
    return client;
}

LTextClient::LTextClient()
    : m_view(new QTextEdit)
    , m_attributes(new QWidget(this))
{
    setObjectName("LTextClient");
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto *bar = new QToolBar(this);
    bar->addWidget(new QComboBox(bar));
    bar->addWidget(new QSpinBox(bar));
    bar->addAction("B");
    bar->addWidget(new QCheckBox("Border", bar));
    column->addWidget(bar);
    m_view->setObjectName("FakeView");
    column->addWidget(m_view);
    m_attributes->setObjectName("TextAttributesBg");
    auto *form = new QFormLayout(m_attributes);
    for (const char *text : {"Display effect", "Clear effect", "Hold time"}) {
        auto *box = new QComboBox(m_attributes);
        box->addItems({"None", "Slide left", "Random"});
        form->addRow(text, box);
    }
    connect(m_view, &QTextEdit::textChanged, this, &LTextClient::push, Qt::QueuedConnection);
}

void LTextClient::count(const char *what)
{
    setProperty(what, property(what).toInt() + 1);
}

QWidget *LTextClient::GetClient()
{
    return this;
}

QWidget *LTextClient::GetAttributesWidget(LNode *node)
{
    m_node = qobject_cast<LTextEffectNode *>(node);
    load();
    return m_attributes;
}

QWidget *LTextClient::GetEditeWidget(LNode *node)
{
    m_node = qobject_cast<LTextEffectNode *>(node);
    load();
    return this;
}

void LTextClient::Init(LNode *node)
{
    count("inits");
    auto *item = qobject_cast<LTextEffectNode *>(node);
    if (item == nullptr || item == m_node) {
        return;
    }
    m_node = item;
    layout()->addWidget(m_attributes);
    m_attributes->show();
    load();
    m_view->setFocus();
}

void LTextClient::Finish()
{
    count("finishes");
    push();
    m_node.clear();
    load();
}

void LTextClient::load()
{
    m_isLoading = true;
    const QByteArray stored =
        m_node ? QByteArray::fromBase64(m_node->GetRawHtmlText().toLatin1()) : QByteArray();
    const QString html = !stored.isEmpty() ? QString::fromUtf8(stored)
                         : m_node          ? m_node->GetHtmlText()
                                           : QString();
    m_view->setHtml(html);
    m_isLoading = false;
}

void LTextClient::push()
{
    if (!m_node || m_isLoading || !m_view->document()->isModified()) {
        return;
    }
    m_view->document()->setModified(false);
    m_node->SetRawHtmlText(m_view->toHtml().toUtf8().toBase64());
    m_node->SetPlayText(m_view->toPlainText());
    m_node->SetHtmlText(m_view->toHtml());
    QImage image = m_node->NodeImage(m_node->Size());
    QPainter painter(&image);
    painter.setPen(Qt::green);
    painter.drawText(image.rect(), m_view->toPlainText());
    painter.end();
    m_node->UpdatePreviewCache(image);
    m_node->ReDrawImaged();
    SceneThumbnailCapture::instance()->requestFromNode(m_node);
}

} // namespace LTextPlugin
} // namespace Lum
