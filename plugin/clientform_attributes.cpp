#include "clientform.h"
#include "fieldchooser.h"
#include "lbutton.h"
#include "namedwidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lctrlsex {

static constexpr int s_panelWidth = 240;
static constexpr int s_rowSpacing = 6;
static constexpr int s_groupSpacing = 2 * s_rowSpacing;

/** A combo box that gets narrower than its longest entry rather than making the panel wide. */
template <typename Box = QComboBox>
static Box *makeComboBox(const QString &name, QWidget *parent)
{
    constexpr int shortest = 8;
    auto *const box = make<Box>(name, parent);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(shortest);
    return box;
}

static void addRow(QGridLayout *grid, QLabel *label, QWidget *control)
{
    const int row = grid->rowCount();
    label->setBuddy(control);
    grid->addWidget(label, row, 0);
    grid->addWidget(control, row, 1);
}

static void addGap(QGridLayout *grid)
{
    grid->setRowMinimumHeight(grid->rowCount(), s_rowSpacing);
}

static QGridLayout *makeGrid()
{
    auto *const grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(s_rowSpacing);
    grid->setColumnStretch(1, 1);
    return grid;
}

void ClientForm::buildAttributes()
{
    TextAttributesBg = make<QWidget>(QStringLiteral("TextAttributesBg"), m_client);
    TextAttributesBg->hide();
    TextAttributesBg->setMinimumWidth(s_panelWidth);
    TextAttributesBg->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    buildHeader();
    TextAttributesContentBg =
        make<QWidget>(QStringLiteral("TextAttributesContentBg"), TextAttributesBg);
    auto *const content = new QVBoxLayout(TextAttributesContentBg);
    content->setSpacing(s_groupSpacing);
    buildEffects();
    content->addWidget(EffectBg);
    buildDataControls(content);
    content->addStretch();

    auto *const layout = new QVBoxLayout(TextAttributesBg);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(TextAttributesBgHeader);
    layout->addWidget(TextAttributesContentBg, 1);
}

void ClientForm::buildHeader()
{
    TextAttributesBgHeader =
        make<QWidget>(QStringLiteral("TextAttributesBgHeader"), TextAttributesBg);
    attributesTitle = make<QLabel>(QStringLiteral("attributesTitle"), TextAttributesBgHeader);
    QFont font = attributesTitle->font();
    font.setBold(true);
    attributesTitle->setFont(font);
    auto *const line = make<QFrame>(QStringLiteral("attributesLine"), TextAttributesBgHeader);
    line->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));

    auto *const layout = new QVBoxLayout(TextAttributesBgHeader);
    layout->setContentsMargins(layout->contentsMargins().left(), s_rowSpacing,
                               layout->contentsMargins().right(), 0);
    layout->addWidget(attributesTitle);
    layout->addWidget(line);
}

void ClientForm::buildEffects()
{
    EffectBg = make<QWidget>(QStringLiteral("EffectBg"), TextAttributesContentBg);
    widget_2 = make<QWidget>(QStringLiteral("widget_2"), EffectBg);
    NoEffect = make<LButton>(QStringLiteral("NoEffect"), widget_2);
    NoEffect->setCheckable(true);
    Random = make<LButton>(QStringLiteral("Random"), widget_2);
    Random->setCheckable(true);
    auto *const buttons = new QHBoxLayout(widget_2);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->addWidget(NoEffect, 1);
    buttons->addWidget(Random, 1);

    lblDisplay_2 = make<QLabel>(QStringLiteral("lblDisplay_2"), EffectBg);
    DisplayEffects = makeComboBox(QStringLiteral("DisplayEffects"), EffectBg);
    displaySpeedLabel = make<QLabel>(QStringLiteral("displaySpeedLabel"), EffectBg);
    DisplayInterval = makeComboBox(QStringLiteral("DisplayInterval"), EffectBg);
    lblClear_2 = make<QLabel>(QStringLiteral("lblClear_2"), EffectBg);
    ClearSreenEffects = makeComboBox(QStringLiteral("ClearSreenEffects"), EffectBg);
    clearSpeedLabel = make<QLabel>(QStringLiteral("clearSpeedLabel"), EffectBg);
    ClearInterval = makeComboBox(QStringLiteral("ClearInterval"), EffectBg);
    lblHold_2 = make<QLabel>(QStringLiteral("lblHold_2"), EffectBg);
    constexpr double longest = 9999.9;
    RemainInterval = make<QDoubleSpinBox>(QStringLiteral("RemainInterval"), EffectBg);
    RemainInterval->setDecimals(1);
    RemainInterval->setRange(0, longest);

    m_effectGrid = makeGrid();
    EffectBg->setLayout(m_effectGrid);
    m_effectGrid->addWidget(widget_2, 0, 0, 1, 2);
    addGap(m_effectGrid);
    addRow(m_effectGrid, lblDisplay_2, DisplayEffects);
    addRow(m_effectGrid, displaySpeedLabel, DisplayInterval);
    addGap(m_effectGrid);
    addRow(m_effectGrid, lblClear_2, ClearSreenEffects);
    addRow(m_effectGrid, clearSpeedLabel, ClearInterval);
    addGap(m_effectGrid);
    addRow(m_effectGrid, lblHold_2, RemainInterval);
}

void ClientForm::buildDataControls(QVBoxLayout *content)
{
    QWidget *const parent = TextAttributesContentBg;
    ConditionalStylesBtn = make<QPushButton>(QStringLiteral("ConditionalStylesBtn"), parent);
    setOperation = make<QPushButton>(QStringLiteral("setOperation"), parent);
    FieldLab = make<QLabel>(QStringLiteral("FieldLab"), parent);
    FieldCbx = makeComboBox<FieldChooser>(QStringLiteral("FieldCbx"), parent);
    WarningLabel = make<QLabel>(QStringLiteral("WarningLabel"), parent);
    WarningLabel->setStyleSheet(QStringLiteral("color: rgb(255, 0, 0);"));
    WarningLabel->setWordWrap(true);
    identifierLabel = make<QLabel>(QStringLiteral("identifierLabel"), parent);
    GUID = make<QLineEdit>(QStringLiteral("GUID"), parent);

    m_dataGrid = makeGrid();
    addRow(m_dataGrid, FieldLab, FieldCbx);
    addRow(m_dataGrid, identifierLabel, GUID);
    content->addWidget(ConditionalStylesBtn);
    content->addWidget(setOperation);
    content->addLayout(m_dataGrid);
    content->addWidget(WarningLabel);
}

void ClientForm::showAttributes()
{
    if (MainLayout->indexOf(TextAttributesBg) < 0) {
        MainLayout->addWidget(TextAttributesBg);
    }
    TextAttributesBg->show();
}

void ClientForm::alignLabels()
{
    int width = 0;
    for (const QLabel *label : {lblDisplay_2, displaySpeedLabel, lblClear_2, clearSpeedLabel,
                                lblHold_2, FieldLab, identifierLabel}) {
        width = qMax(width, label->sizeHint().width());
    }
    m_effectGrid->setColumnMinimumWidth(0, width);
    m_dataGrid->setColumnMinimumWidth(0, width);
}

} // namespace lctrlsex
