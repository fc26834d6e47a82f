#include "lappconfig.h"
#include "lbutton.h"
#include "lframenode.h"
#include "ltext_client_p.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

#include <cmath>
#include <limits>

namespace Lum {
namespace LTextPlugin {

static const QString s_byTime = QStringLiteral("ByTime");
static const QString s_byCount = QStringLiteral("ByCount");

void LTextClient::ConnectPlayType()
{
    const auto &form = *m_form;
    connect(form.rbByTime, SIGNAL(clicked()), this, SLOT(OnPlayTypeChanged()));
    connect(form.rbByCount, SIGNAL(clicked()), this, SLOT(OnPlayTypeChanged()));
    connect(form.sbByTime, SIGNAL(valueChanged(int)), this, SLOT(OnByTimeChanged(int)));
    connect(form.sbByCount, SIGNAL(valueChanged(int)), this, SLOT(OnByCountChanged(int)));
    connect(form.ContinuousMove, SIGNAL(clicked(bool)), this, SLOT(OnContinuousMove(bool)));
}

void LTextClient::ConnectPanel()
{
    const auto &form = *m_form;
    connect(form.DisplayEffects, SIGNAL(currentIndexChanged(int)), this,
            SLOT(OnDisplayEffects(int)));
    connect(form.ClearSreenEffects, SIGNAL(currentIndexChanged(int)), this,
            SLOT(OnClearSreenEffects(int)));
    connect(form.DisplayInterval, SIGNAL(currentIndexChanged(int)), this,
            SLOT(OnDisplayInterval(int)));
    connect(form.ClearInterval, SIGNAL(currentIndexChanged(int)), this, SLOT(OnClearInterval(int)));
    connect(form.RemainInterval, SIGNAL(valueChanged(double)), this,
            SLOT(OnRemainInterval(double)));
    connect(form.NoEffect, SIGNAL(clicked()), this, SLOT(OnNoEffect()));
    connect(form.Random, SIGNAL(clicked()), this, SLOT(OnRandom()));
    connect(form.GUID, SIGNAL(editingFinished()), this, SLOT(on_GUID_editingFinished()));
    connect(form.TextAttributesBg, SIGNAL(destroyed()), this, SLOT(AttributesDestroyed()));
}

void LTextClient::OnDisplayEffects(int val)
{
    const Bound bound(this);
    if (m_initialising || !bound || val < 0) {
        return;
    }
    m_node->SetDispEffect(m_form->DisplayEffects->itemData(val).toInt());
    if (bound) {
        SetBtnStyle();
    }
}

void LTextClient::OnClearSreenEffects(int val)
{
    const Bound bound(this);
    if (m_initialising || !bound || val < 0) {
        return;
    }
    m_node->SetClearEffect(m_form->ClearSreenEffects->itemData(val).toInt());
    if (bound) {
        SetBtnStyle();
    }
}

void LTextClient::OnDisplayInterval(int val)
{
    const Bound bound(this);
    if (m_initialising || !bound) {
        return;
    }
    m_node->SetDispTime(val);
    if (bound) {
        m_node->SetSpeed(val);
    }
    constexpr double shortest = 0.1;
    constexpr double usual = 5.0;
    if (bound && m_form->RemainInterval->value() < shortest) {
        m_form->RemainInterval->setValue(usual);
    }
}

void LTextClient::OnClearInterval(int val)
{
    if (!m_initialising && m_node) {
        m_node->SetClearTime(val);
    }
}

void LTextClient::OnRemainInterval(double val)
{
    constexpr double tenths = 10;
    const double wanted = val * tenths;
    // Beyond the integers, and for what is no number, the conversion would not be defined.
    if (m_initialising || !m_node || !(std::abs(wanted) < std::numeric_limits<int>::max())) {
        return;
    }
    m_node->SetHoldTime(static_cast<int>(wanted));
}

void LTextClient::OnNoEffect()
{
    SelectEffect(LEffectNode::NoEffect);
}

void LTextClient::OnRandom()
{
    SelectEffect(LEffectNode::RandomEffect);
}

// The node is written by the slots of both lists.
void LTextClient::SelectEffect(int effectType)
{
    const Bound bound(this);
    if (m_initialising) {
        return;
    }
    for (QComboBox *box : {m_form->DisplayEffects, m_form->ClearSreenEffects}) {
        const int index = bound ? box->findData(effectType) : -1;
        if (index >= 0) {
            box->setCurrentIndex(index);
        }
    }
    if (bound) {
        SetBtnStyle();
    }
}

void LTextClient::OnPlayTypeChanged()
{
    if (!m_initialising && m_node) {
        ShowPlayType();
        m_node->SetPlayType(m_form->rbByTime->isChecked() ? s_byTime : s_byCount);
    }
}

void LTextClient::OnByTimeChanged(int val)
{
    if (!m_initialising && m_node) {
        m_node->SetByTime(val);
    }
}

void LTextClient::OnByCountChanged(int val)
{
    if (!m_initialising && m_node) {
        m_node->SetByCount(val);
    }
}

void LTextClient::OnContinuousMove(bool checked)
{
    const Bound bound(this);
    if (m_initialising || !bound) {
        return;
    }
    m_node->SetContinueMove(checked);
    if (bound) {
        InitEffectParam();
    }
    const int effect = bound.value(&LTextEffectNode::GetDispEffect);
    const bool moves = effect >= ContinuousMoveLeft && effect <= ContinuousMoveUp;
    if (bound && moves != checked) {
        const int wanted = checked ? int(ContinuousMoveLeft) : int(LEffectNode::NoEffect);
        m_form->DisplayEffects->setCurrentIndex(m_form->DisplayEffects->findData(wanted));
    }
}

/** File of the picture of a border of that type, in the application's folder. */
static QString borderPath(int frameType)
{
    QString name = LFrame::Type2Image(frameType);
    name.remove(QStringLiteral(":/images/"));
    QString folder;
    if (name.contains(QLatin1Char('P'))) {
        folder = QStringLiteral("images/p/");
    } else if (name.contains(QLatin1Char('M'))) {
        folder = QStringLiteral("images/m/");
    } else if (name.contains(QLatin1Char('T'))) {
        folder = QStringLiteral("images/t/");
    }
    QString path = LAppConfig::AppDir() + QLatin1Char('/') + folder + QLatin1Char('/') + name;
    return path.replace(QStringLiteral("//"), QStringLiteral("/"));
}

void LTextClient::OnFrameChanged()
{
    const Bound bound(this);
    if (m_initialising || !bound) {
        return;
    }
    const LFrameNode *const frameNode = m_node->GetFrameNode();
    if (!bound || !frameNode) {
        return;
    }
    const LFrame frame = frameNode->GetFrame();
    if (bound && !frame.Enable()) {
        m_node->SetShapedBorderEnable(false);
    }
    if (bound) {
        m_node->SetBorderEnable(frame.Enable());
    }
    if (bound) {
        m_node->SetBorderPath(borderPath(frame.FrameType()));
    }
    if (bound) {
        m_node->SetBorderStyle(frame.Effect());
    }
    if (bound) {
        m_node->SetBorderSpeed(frame.Speed());
    }
    if (bound) {
        m_node->Send3DAttributeChanged();
    }
    if (bound) {
        InitEffectParam();
    }
}

} // namespace LTextPlugin
} // namespace Lum
