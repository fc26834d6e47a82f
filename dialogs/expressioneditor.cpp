#include "expressioneditor.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QRegularExpressionValidator>

namespace lctrlsex {

Q_LOGGING_CATEGORY(dialogsLog, "lctrlsex.dialogs")

QStringList expressionKindNames()
{
    return {ExpressionEditor::tr("Single-value comparison"),
            ExpressionEditor::tr("Open interval (a,b)"),
            ExpressionEditor::tr("Closed interval [a,b]"),
            ExpressionEditor::tr("Closed left and open right [a,b)"),
            ExpressionEditor::tr("Open left and close right (a,b]"),
            ExpressionEditor::tr("Regular matching")};
}

ExpressionEditor::ExpressionEditor(const ConditionExpression &expression)
    : m_kind(expression.kind)
{
    constexpr int margin = 2;
    constexpr int leastTilde = 20;
    constexpr int leastPattern = 60;
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    switch (m_kind) {
    case ConditionExpression::Comparison:
        addOperator(layout, expression.comparison);
        m_start = addNumber(layout, expression.start, tr("Enter a numeric value"));
        break;
    case ConditionExpression::OpenInterval:
    case ConditionExpression::ClosedInterval:
    case ConditionExpression::ClosedOpenInterval:
    case ConditionExpression::OpenClosedInterval: {
        m_start = addNumber(layout, expression.start, tr("Start value"));
        auto *tilde = new QLabel(QStringLiteral("~"), this);
        tilde->setAlignment(Qt::AlignCenter);
        tilde->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
        tilde->setMinimumWidth(leastTilde);
        layout->addWidget(tilde);
        m_end = addNumber(layout, expression.end, tr("End value"));
        break;
    }
    case ConditionExpression::Pattern:
        m_start = addEdit(layout, expression.start, QStringLiteral("^[A-Z].*|error"));
        m_start->setMinimumWidth(leastPattern);
        break;
    default:
        qCWarning(dialogsLog) << "Unknown expression type:" << m_kind;
        break;
    }
    setFocusProxy(m_operator != nullptr ? static_cast<QWidget *>(m_operator) : m_start);
}

QLineEdit *ExpressionEditor::addEdit(QHBoxLayout *layout, const QString &text, const QString &hint)
{
    auto *edit = new QLineEdit(text, this);
    edit->setPlaceholderText(hint);
    edit->setAccessibleName(hint);
    edit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    layout->addWidget(edit, 1);
    connect(edit, &QLineEdit::textChanged, this, &ExpressionEditor::changed);
    return edit;
}

QLineEdit *ExpressionEditor::addNumber(QHBoxLayout *layout, const QString &text,
                                       const QString &hint)
{
    QLineEdit *edit = addEdit(layout, text, hint);
    static const QRegularExpression number(QStringLiteral("^-?\\d*\\.?\\d+$"));
    constexpr int frame = 18;
    edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(hint) + frame);
    edit->setValidator(new QRegularExpressionValidator(number, edit));
    return edit;
}

void ExpressionEditor::addOperator(QHBoxLayout *layout, ConditionExpression::Operator comparison)
{
    m_operator = new QComboBox(this);
    m_operator->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_operator->setAccessibleName(tr("Comparison"));
    for (int i = 0; i < ConditionExpression::OperatorCount; ++i) {
        m_operator->addItem(operatorText(ConditionExpression::Operator(i)));
    }
    m_operator->setCurrentIndex(comparison);
    layout->addWidget(m_operator);
    connect(m_operator, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ExpressionEditor::changed);
}

ConditionExpression ExpressionEditor::expression() const
{
    ConditionExpression expression;
    expression.kind = m_kind;
    if (m_operator != nullptr) {
        expression.comparison = ConditionExpression::Operator(m_operator->currentIndex());
    }
    expression.start = m_start != nullptr ? m_start->text() : QString();
    expression.end = m_end != nullptr ? m_end->text() : QString();
    return expression;
}

} // namespace lctrlsex
