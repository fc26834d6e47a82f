#pragma once

#include "conditionexpression.h"

#include <QStringList>
#include <QWidget>

class QComboBox;
class QHBoxLayout;
class QLineEdit;

namespace lctrlsex {

/** The names of the kinds of expression, in the order of ConditionExpression::Kind. */
[[nodiscard]] QStringList expressionKindNames();

/**
 * The editor of a condition's expression: an operator and a number, the two ends of an interval,
 * or a pattern, by the kind of the expression that it is made for.
 */
class ExpressionEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ExpressionEditor(const ConditionExpression &expression);

    /** As it stands in the widgets. */
    [[nodiscard]] ConditionExpression expression() const;

signals:
    void changed();

private:
    QLineEdit *addEdit(QHBoxLayout *layout, const QString &text, const QString &hint);
    QLineEdit *addNumber(QHBoxLayout *layout, const QString &text, const QString &hint);
    void addOperator(QHBoxLayout *layout, ConditionExpression::Operator comparison);

    ConditionExpression::Kind m_kind;
    QComboBox *m_operator = nullptr;
    QLineEdit *m_start = nullptr;
    QLineEdit *m_end = nullptr;
};

} // namespace lctrlsex
