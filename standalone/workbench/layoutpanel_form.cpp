#include "layoutpanel.h"
#include "lcontrollernode.h"
#include "leffectnode.h"
#include "lscreennode.h"
#include "pagerenderer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace workbench {

namespace {

QSpinBox *pixelBox(const QString &name, int least, QWidget *parent)
{
    auto *box = new QSpinBox(parent);
    box->setObjectName(name);
    box->setRange(least, lctrlsex::LongestPageSide);
    box->setKeyboardTracking(false);
    box->setAccelerated(true);
    box->setAlignment(Qt::AlignRight);
    return box;
}

QWidget *pairOf(const QVector<QWidget *> &widgets, QWidget *parent)
{
    auto *pair = new QWidget(parent);
    auto *row = new QHBoxLayout(pair);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    for (QWidget *widget : widgets) {
        row->addWidget(widget, qobject_cast<QSpinBox *>(widget) != nullptr ? 1 : 0);
    }
    return pair;
}

} // namespace

void LayoutPanel::build()
{
    // Not a form layout: that one keeps the room of rows that are hidden.
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(10, 10, 10, 10);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(8);
    grid->setColumnStretch(1, 1);
    int row = 0;
    const auto addRow = [grid, &row](QWidget *label, QWidget *field) {
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row++, 1);
    };
    const auto addWide = [grid, &row](QWidget *widget) {
        grid->addWidget(widget, row++, 0, 1, 2);
    };
    m_kind = new QLabel(this);
    m_kind->setObjectName(QStringLiteral("NodeKind"));
    m_kind->setWordWrap(true);
    addWide(m_kind);
    m_name = new QLineEdit(this);
    m_name->setObjectName(QStringLiteral("NodeName"));
    m_nameLabel = new QLabel(this);
    m_nameLabel->setBuddy(m_name);
    addRow(m_nameLabel, m_name);
    m_device = new QComboBox(this);
    m_device->setObjectName(QStringLiteral("DeviceKind"));
    m_deviceLabel = new QLabel(this);
    addRow(m_deviceLabel, m_device);

    m_x = pixelBox(QStringLiteral("NodeX"), -lctrlsex::LongestPageSide, this);
    m_y = pixelBox(QStringLiteral("NodeY"), -lctrlsex::LongestPageSide, this);
    m_xLabel = new QLabel(this);
    m_yLabel = new QLabel(this);
    m_xLabel->setBuddy(m_x);
    m_yLabel->setBuddy(m_y);
    m_place = pairOf({m_xLabel, m_x, m_yLabel, m_y}, this);
    m_placeLabel = new QLabel(this);
    addRow(m_placeLabel, m_place);

    m_inherits = new QCheckBox(this);
    m_inherits->setObjectName(QStringLiteral("InheritSize"));
    addWide(m_inherits);
    m_width = pixelBox(QStringLiteral("NodeWidth"), 1, this);
    m_height = pixelBox(QStringLiteral("NodeHeight"), 1, this);
    m_size = pairOf({m_width, new QLabel(QStringLiteral("×"), this), m_height}, this);
    m_sizeLabel = new QLabel(this);
    addRow(m_sizeLabel, m_size);
    m_sizeLabel->setBuddy(m_width);

    m_advice = new QLabel(this);
    m_advice->setObjectName(QStringLiteral("LayoutAdvice"));
    m_advice->setWordWrap(true);
    m_advice->setTextFormat(Qt::PlainText);
    addWide(m_advice);
    grid->setRowStretch(row, 1);
}

void LayoutPanel::showRows()
{
    const bool isController = qobject_cast<LControllerNode *>(m_node) != nullptr;
    const auto show = [](QWidget *label, QWidget *field, bool isShown) {
        label->setVisible(isShown);
        field->setVisible(isShown);
    };
    show(m_nameLabel, m_name, !m_node.isNull());
    show(m_deviceLabel, m_device, isController);
    show(m_placeLabel, m_place, hasPlace());
    show(m_sizeLabel, m_size, !m_node.isNull());
    m_inherits->setVisible(canInherit());
    retranslate();
}

void LayoutPanel::retranslate()
{
    const auto title = [this] {
        if (!m_node) {
            return tr("Nothing is selected.");
        }
        if (qobject_cast<LControllerNode *>(m_node) != nullptr) {
            return tr("Controller");
        }
        if (qobject_cast<LScreenNode *>(m_node) != nullptr) {
            return tr("Screen");
        }
        return hasPlace() ? tr("Frame") : tr("Text item");
    };
    m_kind->setText(title());
    m_nameLabel->setText(tr("Name"));
    m_name->setAccessibleName(tr("Name"));
    m_deviceLabel->setText(tr("Display"));
    m_device->setAccessibleName(tr("Kind of display"));
    if (m_device->count() == 0) {
        m_device->addItem(QString(), QStringLiteral("LED"));
        m_device->addItem(QString(), QStringLiteral("LCD"));
    }
    m_device->setItemText(0, tr("LED"));
    m_device->setItemText(1, tr("LCD"));
    m_placeLabel->setText(tr("Place"));
    m_xLabel->setText(tr("X"));
    m_yLabel->setText(tr("Y"));
    m_x->setAccessibleName(tr("Left edge in pixels"));
    m_y->setAccessibleName(tr("Top edge in pixels"));
    m_inherits->setText(qobject_cast<LEffectNode *>(m_node) != nullptr ? tr("Size of the frame")
                        : hasPlace()                                   ? tr("Size of the screen")
                                     : tr("Size of the controller"));
    m_sizeLabel->setText(tr("Size"));
    m_width->setAccessibleName(tr("Width in pixels"));
    m_height->setAccessibleName(tr("Height in pixels"));
    m_width->setToolTip(tr("Width in pixels"));
    m_height->setToolTip(tr("Height in pixels"));
}

} // namespace workbench
