#include "trialpanel.h"

#include "celllabel.h"
#include "lappconfig.h"
#include "shorttext.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>

namespace lctrlsex {

namespace {

constexpr int longestQuote = 60;
constexpr int reasonsHeight = 96;
constexpr int sampleWidth = 280;

QTreeWidget *makeReasons(QWidget *parent, const QStringList &headers)
{
    auto *reasons = new QTreeWidget(parent);
    reasons->setHeaderLabels(headers);
    reasons->setRootIsDecorated(false);
    reasons->setUniformRowHeights(true);
    reasons->setSelectionMode(QAbstractItemView::NoSelection);
    reasons->setFixedHeight(reasonsHeight);
    reasons->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    reasons->setStyleSheet(QStringLiteral(
        "QTreeWidget { border: 1px solid #d0d0d0; background: white; color: black; }"));
    return reasons;
}

QLabel *makeSample(QWidget *parent)
{
    auto *sample = new QLabel(parent);
    sample->setTextFormat(Qt::PlainText);
    sample->setAlignment(Qt::AlignCenter);
    sample->setFixedSize(sampleWidth, reasonsHeight);
    return sample;
}

} // namespace

TrialPanel::TrialPanel(QWidget *parent)
    : QWidget(parent)
    , m_value(new QLineEdit(this))
    , m_isLive(new QCheckBox(tr("Live &value of the input source"), this))
    , m_verdict(new QLabel(this))
    , m_reasons(makeReasons(this, {tr("Serial Number"), tr("Expression"), tr("Why")}))
    , m_sample(makeSample(this))
{
    auto *label = new QLabel(tr("&Test value"), this);
    label->setBuddy(m_value);
    setFocusProxy(m_value);
    m_value->setPlaceholderText(tr("Type a value to see which condition holds"));
    m_value->setObjectName(QStringLiteral("TestValue"));
    m_isLive->setObjectName(QStringLiteral("TestLive"));
    m_verdict->setObjectName(QStringLiteral("TestVerdict"));
    m_reasons->setObjectName(QStringLiteral("TestReasons"));
    m_reasons->setAccessibleName(tr("Why"));
    m_sample->setObjectName(QStringLiteral("TestSample"));
    m_verdict->setTextFormat(Qt::PlainText);
    auto *line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(m_value, 1);
    line->addWidget(m_isLive);
    line->addSpacing(label->sizeHint().height());
    line->addWidget(m_verdict, 2);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line, 0, 0, 1, 2);
    layout->addWidget(m_reasons, 1, 0);
    layout->addWidget(m_sample, 1, 1);
    connect(m_value, &QLineEdit::textEdited, this, &TrialPanel::changed);
    connect(m_isLive, &QCheckBox::toggled, this, [this](bool isLive) {
        m_value->setReadOnly(isLive);
        if (!isLive) {
            // The live value that is still shown is the one that is tried from now on.
            m_value->setModified(!m_value->text().isEmpty());
            m_value->setFocus();
        }
        emit changed();
    });
}

void TrialPanel::setLiveValues(const QMap<QString, QString> &values)
{
    m_live = values;
    if (m_isLive->isChecked()) {
        emit changed();
    }
}

QString TrialPanel::valueFor(const QString &source) const
{
    if (m_isLive->isChecked()) {
        return m_live.contains(source) ? m_live.value(source) + QStringLiteral("") : QString();
    }
    // What was never typed is no value, what was deleted again is an empty one.
    return m_value->isModified() ? m_value->text() + QStringLiteral("") : QString();
}

void TrialPanel::showTrial(const QString &name, const QString &source,
                           const QVector<SpanCondition> &conditions, const ConditionTrial &trial)
{
    const QString value = valueFor(source);
    if (m_isLive->isChecked() && m_value->text() != value) {
        m_value->setText(value);
    }
    m_reasons->clear();
    for (int i = 0; i < trial.answers.size(); ++i) {
        const QString text = conditions.at(i).expression.value(0);
        auto *line = new QTreeWidgetItem(m_reasons);
        line->setText(0, QString::number(i + 1));
        line->setText(1, shortText(text, longestQuote));
        line->setText(2, trial.answers.at(i).explanation);
        line->setToolTip(2, plainToolTip(trial.answers.at(i).explanation));
        QFont font = m_reasons->font();
        font.setBold(i == trial.winner);
        line->setFont(2, font);
    }
    const QString shownName = shortText(name, longestQuote);
    m_verdict->setText(trial.winner >= 0
                           ? tr("%1: condition %2 applies").arg(shownName).arg(trial.winner + 1)
                           : tr("%1: no condition holds").arg(shownName));
    showSample(value, trial.winner >= 0 ? &conditions.at(trial.winner).fontStyle : nullptr);
}

void TrialPanel::showNothing(const QString &hint)
{
    m_reasons->clear();
    m_verdict->setText(hint);
    showSample({}, nullptr);
}

void TrialPanel::showSample(const QString &value, const FontStyle *style)
{
    if (style == nullptr) {
        m_sample->setFont(font());
        m_sample->setStyleSheet(QStringLiteral("border: 1px solid #d0d0d0;"));
        m_sample->setText(value.isNull() ? QString() : tr("The text keeps its own style"));
        return;
    }
    QFont shown(style->fontName);
    shown.setPixelSize(qBound(1, style->fontSize, reasonsHeight)); // a point is a pixel of a screen
    shown.setBold(style->bold);
    shown.setItalic(style->italic);
    shown.setUnderline(style->underline);
    m_sample->setStyleSheet(QStringLiteral("border: 1px solid #d0d0d0; color: %1; background: %2;")
                                .arg(LAppConfig::IntToColor(style->color).name(),
                                     LAppConfig::IntToColor(style->bgColor).name()));
    m_sample->setFont(shown);
    m_sample->setText(value.isEmpty() ? tr("(empty)") : shortText(value, longestQuote));
}

} // namespace lctrlsex
