#include "fieldchooser.h"
#include "lbutton.h"
#include "leffectnode.h"
#include "lscreennode.h"
#include "ltext_client_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>

namespace Lum {
namespace LTextPlugin {

static constexpr int s_slowest = 8;

void LTextClient::InitEffectParam()
{
    const Bound bound(this);
    if (!bound) {
        return;
    }
    const Filling filling(this);
    SwitchLcdShow(m_node);
    SetDisPlayEffects({}, false);
    Translate();
    const int display = bound.value(&LTextEffectNode::GetDispEffect);
    const int displaySpeed = bound.value(&LTextEffectNode::GetDispTime);
    const int clearSpeed = bound.value(&LTextEffectNode::GetClearTime);
    const int hold = bound.value(&LTextEffectNode::GetHoldTime);
    const QString identifier = bound.value(&LTextEffectNode::GetIdentifier);
    if (!bound) {
        return;
    }
    constexpr double tenths = 10;
    m_form->DisplayEffects->setCurrentIndex(m_form->DisplayEffects->findData(display));
    m_form->DisplayInterval->setCurrentIndex(qBound(0, displaySpeed, s_slowest));
    m_form->ClearInterval->setCurrentIndex(qBound(0, clearSpeed, s_slowest));
    m_form->RemainInterval->setValue(hold / tenths);
    m_form->GUID->setText(identifier);
    FillPlayType();
    SetBtnStyle();
}

void LTextClient::FillPlayType()
{
    const Bound bound(this);
    const bool byTime = bound.value(&LTextEffectNode::GetPlayType) == QLatin1String("ByTime");
    const int time = bound.value(&LTextEffectNode::GetByTime);
    const int count = bound.value(&LTextEffectNode::GetByCount);
    const bool continuous = bound.value(&LTextEffectNode::IsContinueMove);
    if (bound) {
        (byTime ? m_form->rbByTime : m_form->rbByCount)->setChecked(true);
        m_form->sbByTime->setValue(time);
        m_form->sbByCount->setValue(count);
        m_form->ContinuousMove->setChecked(continuous);
        ShowPlayType();
    }
}

void LTextClient::ShowPlayType()
{
    m_form->sbByTime->setEnabled(m_form->rbByTime->isChecked());
    m_form->sbByCount->setEnabled(m_form->rbByCount->isChecked());
}

static bool showsLcdEffects(LNode *node)
{
    const QPointer<LScreenNode> screen = node ? node->GetScreenNode() : nullptr;
    return screen && screen->IsLCDDevice() && screen && screen->GetUseLcdEeffct();
}

static void setRowVisible(QLabel *label, QWidget *control, bool visible)
{
    label->setVisible(visible);
    control->setVisible(visible);
}

bool LTextClient::SwitchLcdShow(LNode *node)
{
    const QPointer<LTextClient> self(this);
    const bool lcd = showsLcdEffects(node);
    if (!self) {
        return lcd;
    }
    // Fewer decimals round the value, which must not reach the node.
    const Filling filling(this);
    m_lcdEffects = lcd;
    const auto &form = *m_form;
    setRowVisible(form.displaySpeedLabel, form.DisplayInterval, !lcd);
    setRowVisible(form.lblClear_2, form.ClearSreenEffects, !lcd);
    setRowVisible(form.clearSpeedLabel, form.ClearInterval, !lcd);
    const bool holds = !lcd || m_textMode == LTextEffectNode::MultiLine;
    setRowVisible(form.lblHold_2, form.RemainInterval, holds);
    form.NoEffect->setVisible(holds);
    form.lblHold_2->setText(lcd ? tr("Play Time") : tr("Hold"));
    form.RemainInterval->setDecimals(lcd ? 0 : 1);
    return lcd;
}

void LTextClient::SetBtnStyle()
{
    const Bound bound(this);
    const int display = bound.value(&LTextEffectNode::GetDispEffect);
    const int clear = bound.value(&LTextEffectNode::GetClearEffect);
    const bool continuous = bound.value(&LTextEffectNode::IsContinueMove);
    if (!bound) {
        return;
    }
    const bool clears = clear != LEffectNode::NoEffect && clear != LEffectNode::KeepPage;
    const auto &form = *m_form;
    form.NoEffect->setChecked(display == LEffectNode::NoEffect && !clears);
    form.Random->setChecked(display == LEffectNode::RandomEffect &&
                            clear == LEffectNode::RandomEffect);

    // An item that moves without a stop neither clears nor holds a page; a single line that a
    // source feeds is not held either.
    const bool clearable = !m_lcdEffects && !continuous;
    setRowVisible(form.lblClear_2, form.ClearSreenEffects, clearable);
    setRowVisible(form.clearSpeedLabel, form.ClearInterval, clearable && clears);
    const bool multiLine = m_textMode == LTextEffectNode::MultiLine;
    const bool fed = m_sourceMode && m_textMode == LTextEffectNode::SingleLine;
    setRowVisible(form.lblHold_2, form.RemainInterval,
                  !continuous && !fed && (!m_lcdEffects || multiLine));
}

void LTextClient::SetDisPlayEffects(const QStringList &list, bool flag)
{
    m_effectTypes = list;
    m_onlyEffectTypes = flag;
    FillEffects();
}

void LTextClient::FillEffects()
{
    const Filling filling(this);
    const auto fill = [this](QComboBox *box, const QVector<LEffectItem> &items) {
        box->clear();
        for (const LEffectItem &item : items) {
            const QString type = QString::number(item.effectType);
            if (m_effectTypes.contains(type, Qt::CaseSensitive) == m_onlyEffectTypes) {
                box->addItem(QIcon(), item.name, item.effectType);
            }
        }
    };
    fill(m_form->DisplayEffects, LEffectNode::GetDispEffectName());
    fill(m_form->ClearSreenEffects, LEffectNode::GetClearEffectName());
}

// Entries are found again by their data, because continuous movement shifts them.
void LTextClient::TranslateEffects()
{
    const Bound bound(this);
    const bool continuous = bound.value(&LTextEffectNode::IsContinueMove);
    QComboBox *const display = m_form->DisplayEffects;
    QComboBox *const clear = m_form->ClearSreenEffects;
    const QVariant displayed = display->currentData();
    const QVariant cleared =
        bound.value(&LTextEffectNode::GetClearEffect, clear->currentData().toInt());
    FillEffects();
    if (continuous) {
        display->insertItem(0, QIcon(), tr("Continuous Move Up"), ContinuousMoveUp);
        display->insertItem(0, QIcon(), tr("Continuous Move Right"), ContinuousMoveRight);
        display->insertItem(0, QIcon(), tr("Continuous Move Left"), ContinuousMoveLeft);
    }
    display->setCurrentIndex(display->findData(displayed));
    clear->setCurrentIndex(clear->findData(cleared));
}

static void fillSpeeds(QComboBox *box, const QString &fast, const QString &slow)
{
    const int index = box->currentIndex();
    box->clear();
    box->addItem(fast);
    for (int speed = 2; speed <= s_slowest; ++speed) {
        box->addItem(QString::number(speed));
    }
    box->addItem(slow);
    box->setCurrentIndex(qMax(0, index));
}

void LTextClient::Translate()
{
    const QPointer<LTextClient> self(this);
    const Filling filling(this);
    TranslateEffects();
    if (!self) {
        return;
    }
    for (QComboBox *box : {m_form->DisplayInterval, m_form->ClearInterval}) {
        fillSpeeds(box, tr("1 fast"), tr("9 slow"));
    }
    TranslateTexts();
    TranslateToolTips();
    m_form->alignLabels();
}

void LTextClient::TranslateTexts()
{
    const auto &form = *m_form;
    form.rbByTime->setText(tr("By Time"));
    form.rbByCount->setText(tr("By Count"));
    form.sbByTime->setSuffix(tr(" s"));
    form.ContinuousMove->setText(tr("Continuous Move"));
    form.lblDisplay_4->setText(tr("Page"));
    form.Return->setText(tr("Return"));
    form.attributesTitle->setText(tr("Attributes"));
    form.NoEffect->setText(tr("No Effect"));
    form.Random->setText(tr("Random"));
    form.lblDisplay_2->setText(tr("Display"));
    form.displaySpeedLabel->setText(tr("Speed"));
    form.lblClear_2->setText(tr("Clear"));
    form.clearSpeedLabel->setText(tr("Speed"));
    form.lblHold_2->setText(m_lcdEffects ? tr("Play Time") : tr("Hold"));
    form.RemainInterval->setSuffix(tr(" s"));
    form.ConditionalStylesBtn->setText(tr("Conditional Style Settings"));
    form.setOperation->setText(tr("Operation Settings"));
    form.FieldLab->setText(tr("Bind Table"));
    form.FieldCbx->setEmptyText(tr("Not bound"));
    form.identifierLabel->setText(tr("Identifier"));
    form.WarningLabel->setText(
        tr("The use of dynamic data sources for violent, terrorist, pornographic, or other illegal "
           "information is strictly prohibited. Any violations will be dealt with in accordance "
           "with relevant laws and regulations."));
}

/** Says what a control does to whoever points at it and to whoever cannot see it. */
static void explain(QWidget *control, const QString &name, const QString &toolTip)
{
    control->setAccessibleName(name);
    control->setToolTip(toolTip);
}

void LTextClient::TranslateToolTips()
{
    const auto &form = *m_form;
    explain(form.PrePage, tr("Previous page"), tr("Previous page"));
    explain(form.NextPage, tr("Next page"), tr("Next page"));
    explain(form.Return, tr("Return"), tr("Leave editing"));
    explain(form.sbByTime, tr("By Time"), tr("Seconds for which the item plays"));
    explain(form.sbByCount, tr("Loop"), tr("Number of times that the item plays"));
    explain(form.ContinuousMove, tr("Continuous Move"),
            tr("The pages move by without a stop; the display effect is the direction"));
    explain(form.NoEffect, tr("No Effect"), tr("Show and clear pages without an effect"));
    explain(form.Random, tr("Random"), tr("Show and clear pages with random effects"));
    explain(form.DisplayEffects, tr("Display effect"), tr("How a page appears"));
    explain(form.DisplayInterval, tr("Display speed"), tr("How fast a page appears"));
    explain(form.ClearSreenEffects, tr("Clear effect"), tr("How a page disappears"));
    explain(form.ClearInterval, tr("Clear speed"), tr("How fast a page disappears"));
    explain(form.RemainInterval, tr("Hold time"), tr("How long a page stays"));
    explain(form.FieldCbx, tr("Bind Table"), tr("Field that the table shows"));
    explain(form.GUID, tr("Identifier"), tr("Name under which other systems find the item"));
}

} // namespace LTextPlugin
} // namespace Lum
