#include "layoutpanel.h"

#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "pagerenderer.h"
#include "programmedocument.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSet>
#include <QSpinBox>

namespace workbench {

LayoutPanel::LayoutPanel(ProgrammeDocument *document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
{
    setObjectName(QStringLiteral("LayoutPanel"));
    build();
    connectFields();
    retranslate();
    refresh();
}

void LayoutPanel::connectFields()
{
    connect(m_name, &QLineEdit::editingFinished, this, &LayoutPanel::renameNode);
    connect(m_device, qOverload<int>(&QComboBox::activated), this, &LayoutPanel::applyDeviceKind);
    for (QSpinBox *box : {m_x, m_y, m_width, m_height}) {
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &LayoutPanel::applyGeometry);
    }
    connect(m_inherits, &QCheckBox::toggled, this, &LayoutPanel::applyGeometry);
}

void LayoutPanel::setNode(LNode *node)
{
    if (m_node == node && node != nullptr) {
        return;
    }
    if (m_node) {
        for (LNode *level = m_node; level != nullptr; level = level->ParentNode()) {
            level->disconnect(this);
        }
    }
    m_node = node;
    watchNode();
    refresh();
}

void LayoutPanel::watchNode()
{
    // A size may come from any level above.
    for (LNode *level = m_node; level != nullptr; level = level->ParentNode()) {
        connect(level, &LData::AttributeChanged, this, &LayoutPanel::refreshFor);
    }
}

void LayoutPanel::refreshFor(const QString &key)
{
    static const QSet<QString> shown{QStringLiteral("Name"),   QStringLiteral("Width"),
                                     QStringLiteral("Height"), QStringLiteral("X"),
                                     QStringLiteral("Y"),      QStringLiteral("DeviceKind")};
    if (shown.contains(key)) {
        refresh();
    }
}

bool LayoutPanel::hasPlace() const
{
    return qobject_cast<LFrameNode *>(m_node) != nullptr;
}

bool LayoutPanel::canInherit() const
{
    return m_node && m_node->ParentNode() != nullptr;
}

void LayoutPanel::refresh()
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    showRows();
    if (!m_node) {
        m_name->clear();
        showAdvice();
        return;
    }
    if (m_name->text() != m_node->name()) {
        m_name->setText(m_node->name());
    }
    if (const auto *controller = qobject_cast<LControllerNode *>(m_node)) {
        m_device->setCurrentIndex(std::max(0, m_device->findData(controller->GetDeviceKind())));
    }
    if (const auto *frame = qobject_cast<LFrameNode *>(m_node)) {
        m_x->setValue(frame->GetRect().x());
        m_y->setValue(frame->GetRect().y());
    }
    const bool inherits = canInherit() && !m_node->LNode::Size().isValid();
    m_inherits->setChecked(inherits);
    m_size->setEnabled(!inherits);
    const QSize size = m_node->Size();
    m_width->setValue(size.width());
    m_height->setValue(size.height());
    showAdvice();
}

void LayoutPanel::showAdvice()
{
    QString advice;
    if (m_node) {
        const LScreenNode *screen = m_node->GetScreenNode();
        const QSize size = m_node->Size();
        const auto *frame = qobject_cast<LFrameNode *>(m_node);
        if (!lctrlsex::isPageSize(size)) {
            advice = tr("No page has this size: give both sides, of %1 million pixels at most.")
                         .arg(lctrlsex::MostPagePixels / 1000000);
        } else if (frame != nullptr && screen != nullptr &&
                   !QRect(QPoint(0, 0), screen->Size()).contains(frame->GetRect())) {
            advice = tr("The frame reaches beyond its screen of %1 × %2 pixels.")
                         .arg(screen->Size().width())
                         .arg(screen->Size().height());
        }
    }
    m_advice->setText(advice);
    m_advice->setVisible(!advice.isEmpty());
}

void LayoutPanel::renameNode()
{
    if (m_filling || !m_node || m_name->text() == m_node->name()) {
        return;
    }
    const QString name = m_name->text().trimmed();
    if (name.isEmpty()) {
        m_advice->setText(tr("A name is needed; the former one was kept."));
        m_advice->show();
        m_name->setText(m_node->name());
        return;
    }
    m_document->rename(m_node, name);
    refresh();
}

void LayoutPanel::applyGeometry()
{
    if (m_filling || !m_node) {
        return;
    }
    QRect rect(0, 0, 0, 0);
    if (hasPlace()) {
        rect.moveTo(m_x->value(), m_y->value());
    }
    if (!canInherit() || !m_inherits->isChecked()) {
        rect.setSize(QSize(m_width->value(), m_height->value()));
    }
    m_document->setGeometry(m_node, rect);
    refresh();
}

void LayoutPanel::applyDeviceKind()
{
    const auto *controller = qobject_cast<LControllerNode *>(m_node);
    if (m_filling || controller == nullptr ||
        controller->GetDeviceKind() == m_device->currentData().toString()) {
        return;
    }
    m_document->setAttributes(m_node, {{QStringLiteral("DeviceKind"), m_device->currentData()}},
                              tr("Change display kind"));
}

void LayoutPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        refresh();
    }
    QWidget::changeEvent(event);
}

} // namespace workbench
