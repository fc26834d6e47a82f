#include "operationcells.h"

#include "autocompletelineedit.h"
#include "celllabel.h"
#include "configurationform.h"
#include "treecells.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QToolButton>
#include <QTreeWidget>
#include <QWheelEvent>

namespace lctrlsex {

namespace {

constexpr int cellMargin = 2;

/** Turning the wheel over a box that nobody is working with scrolls the tree. */
class OperatorBox : public QComboBox
{
public:
    explicit OperatorBox(const QString &func)
    {
        for (int i = 0; i < operatorCount; ++i) {
            addItem(operatorEntry(i).text);
        }
        setCurrentIndex(int(operatorOf(func)));
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

/** A cell of several widgets. */
QHBoxLayout *makeCell()
{
    auto *cell = new QWidget;
    auto *layout = new QHBoxLayout(cell);
    layout->setContentsMargins(cellMargin, cellMargin, cellMargin, cellMargin);
    layout->setSpacing(cellMargin);
    return layout;
}

} // namespace

void OperationCells::makeCalculation(CalculationRow *row)
{
    auto *name = new QLineEdit;
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    name->setFrame(false);
    name->setStyleSheet(QStringLiteral("QLineEdit { border: none; background: transparent; }"));
    name->setAccessibleName(tr("Name"));
    setCell(row, OperationColumn::Name, name);
    showName(row);
    connect(name, &QLineEdit::editingFinished, this, [this, name] { onNameFinished(name); });

    setCell(row, OperationColumn::Result, new CellLabel(m_rowHeight));

    auto *layout = makeCell();
    auto *value = new QLineEdit(row->record.defaultValue);
    value->setObjectName(QStringLiteral("DefaultValue"));
    value->setPlaceholderText(tr("Default value"));
    value->setAccessibleName(value->placeholderText());
    layout->addWidget(value);
    setCell(row, OperationColumn::Arguments, layout->parentWidget());
    connect(value, &QLineEdit::textChanged, this,
            [this, value](const QString &text) { onDefaultEdited(value, text); });

    setButtons(row, true);
}

void OperationCells::makeStep(StepRow *row)
{
    setCell(row, OperationColumn::Result, new CellLabel(m_rowHeight));

    auto *name = new CellLabel(m_rowHeight);
    name->setContent(row->step.variableName);
    setCell(row, OperationColumn::StepName, name);

    auto *box = new OperatorBox(row->step.expression.func);
    box->setAccessibleName(tr("Operator"));
    setCell(row, OperationColumn::Operator, box);
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this, box](int index) { onOperatorChosen(box, index); });

    makeFields(row);
    setButtons(row, false);
}

void OperationCells::makeFields(StepRow *row)
{
    const int count = fieldCount(row->step.expression.func);
    auto *layout = makeCell();
    for (int i = 0; i < count; ++i) {
        layout->addWidget(makeField(row, i), 1);
    }
    const QStringList others = row->step.expression.args.mid(count);
    if (!others.isEmpty()) {
        auto *more = new QLabel(QStringLiteral("+ %1").arg(others.size()));
        more->setToolTip(plainToolTip(others.join(QLatin1Char('\n'))));
        layout->addWidget(more);
    }
    setCell(row, OperationColumn::Arguments, layout->parentWidget());
    offerWords(row, m_variables.words(calculationRow(row)->calculation().expressions));
}

AutoCompleteLineEdit *OperationCells::makeField(StepRow *row, int index)
{
    auto *field = new AutoCompleteLineEdit;
    field->setText(row->step.expression.args.value(index));
    field->setCursorPosition(0);
    field->setAccessibleName(tr("Argument %1").arg(index + 1));
    connect(field, &QLineEdit::textChanged, this,
            [this, field, index](const QString &text) { onArgumentEdited(field, index, text); });
    connect(field, &QLineEdit::editingFinished, this, [this, field] { onArgumentFinished(field); });
    return field;
}

void OperationCells::setButtons(QTreeWidgetItem *row, bool isCalculation)
{
    auto *layout = makeCell();
    if (isCalculation) {
        QToolButton *add = makeAddButton(row);
        connect(add, SIGNAL(clicked()), m_receiver, SLOT(onAddButtonClicked()));
        layout->addWidget(add);
    }
    layout->addStretch();
    QToolButton *remove = makeDeleteButton(row);
    connect(remove, SIGNAL(clicked()), m_receiver, SLOT(onDeleteButtonClicked()));
    layout->addWidget(remove);
    setCell(row, OperationColumn::Buttons, layout->parentWidget());
}

} // namespace lctrlsex
