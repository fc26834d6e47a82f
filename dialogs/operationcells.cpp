#include "operationcells.h"

#include "autocompletelineedit.h"
#include "celllabel.h"
#include "treecells.h"

#include <QStyledItemDelegate>
#include <QTimer>
#include <QTreeWidget>

namespace lctrlsex {

namespace {

/** Above and below the edits in a row, together. */
constexpr int rowSpacing = 4;

/** Rows are high enough for their widgets from the start, which stay at the top of a higher one. */
class CellDelegate : public QStyledItemDelegate
{
public:
    CellDelegate(int rowHeight, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_rowHeight(rowHeight)
    {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem & /*option*/,
                                 const QModelIndex &index) const override
    {
        const QVariant given = index.data(Qt::SizeHintRole);
        return given.isValid() ? given.toSize() : QSize(0, m_rowHeight);
    }

    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex & /*index*/) const override
    {
        QRect place = option.rect;
        if (dynamic_cast<CellLabel *>(editor) == nullptr) {
            place.setHeight(m_rowHeight);
        }
        editor->setGeometry(place);
    }

private:
    const int m_rowHeight;
};

} // namespace

OperationCells::OperationCells(QTreeWidget *tree, QObject *receiver)
    : QObject(tree)
    , m_tree(tree)
    , m_receiver(receiver)
    , m_rowHeight(QLineEdit().sizeHint().height() + rowSpacing)
{
    tree->setItemDelegate(new CellDelegate(m_rowHeight, this));
}

void OperationCells::setVariables(const QVector<CalculationVariable> &variables)
{
    if (variables == m_variables.all()) {
        return;
    }
    m_variables = OperationVariables(variables);
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        CalculationRow *row = calculationRow(m_tree->topLevelItem(i));
        row->isEvaluated = false; // until it comes into view
        offerWords(row);
    }
}

void OperationCells::make(QTreeWidgetItem *row)
{
    CalculationRow *calculation = calculationRow(row);
    if (!calculation->isEvaluated) {
        evaluate(calculation);
    }
    if (m_tree->itemWidget(row, OperationColumn::Result) != nullptr) {
        return;
    }
    if (StepRow *step = stepRow(row)) {
        makeStep(step);
    } else {
        makeCalculation(calculation);
    }
    showResults(calculation);
}

void OperationCells::stepsChanged(CalculationRow *calculation)
{
    offerWords(calculation);
    evaluate(calculation);
}

void OperationCells::showName(CalculationRow *calculation)
{
    if (QLineEdit *edit = nameEdit(calculation)) {
        edit->setText(calculation->record.key);
        edit->setCursorPosition(0);
        edit->setToolTip(plainToolTip(calculation->record.key));
        calculation->shownName = edit->text();
    }
}

QLineEdit *OperationCells::nameEdit(CalculationRow *calculation) const
{
    return qobject_cast<QLineEdit *>(m_tree->itemWidget(calculation, OperationColumn::Name));
}

QLineEdit *OperationCells::firstField(StepRow *step) const
{
    QWidget *editor = m_tree->itemWidget(step, OperationColumn::Arguments);
    return editor != nullptr ? editor->findChild<AutoCompleteLineEdit *>() : nullptr;
}

void OperationCells::onNameFinished(const QObject *edit)
{
    CalculationRow *row = calculationRow(rowOfCell(m_tree, edit));
    if (row != nullptr && nameEdit(row)->text() != row->shownName) {
        emit nameEdited(row);
    }
}

void OperationCells::onDefaultEdited(const QObject *edit, const QString &text)
{
    if (CalculationRow *row = calculationRow(rowOfCell(m_tree, edit))) {
        row->record.defaultValue = text;
        evaluate(row);
    }
}

void OperationCells::onArgumentEdited(const QObject *field, int index, const QString &text)
{
    if (StepRow *row = stepRow(rowOfCell(m_tree, field))) {
        setArgument(&row->step, index, text);
        row->isTouched = true;
        evaluate(calculationRow(row));
    }
}

void OperationCells::onArgumentFinished(const QObject *field)
{
    StepRow *row = stepRow(rowOfCell(m_tree, field));
    if (row == nullptr) {
        return;
    }
    CalculationRow *calculation = calculationRow(row);
    evaluate(calculation);
    const bool isTold =
        row->isTouched && calculation->evaluation.isPlacesClamped(calculation->indexOfChild(row));
    row->isTouched = false;
    if (isTold) {
        emit placesClamped();
    }
}

void OperationCells::onOperatorChosen(const QObject *box, int index)
{
    StepRow *row = stepRow(rowOfCell(m_tree, box));
    if (row == nullptr || index < 0) {
        return;
    }
    setOperator(&row->step, index);
    makeFields(row);
    layOut(); // until then they are as high as the row
    row->isTouched = true;
    onArgumentFinished(box);
}

void OperationCells::evaluate(CalculationRow *row)
{
    row->evaluation.evaluate(row->calculation(), m_variables);
    row->isEvaluated = true;
    showResults(row);
}

void OperationCells::showResults(CalculationRow *row)
{
    const OperationEvaluation &evaluation = row->evaluation;
    showResult(row, evaluation.published());
    for (int i = 0; i < row->childCount(); ++i) {
        if (m_tree->itemWidget(row->child(i), OperationColumn::Result) != nullptr) {
            showResult(row->child(i), evaluation.text(i), evaluation.reason(i));
        }
    }
}

void OperationCells::showResult(QTreeWidgetItem *row, const QString &text, const QString &reason)
{
    auto *label = static_cast<CellLabel *>(m_tree->itemWidget(row, OperationColumn::Result));
    if (label != nullptr) {
        label->setContent(text, reason);
        if (row->sizeHint(0) != label->sizeHint()) {
            row->setSizeHint(0, label->sizeHint());
            layOut();
        }
    }
}

/** A tree leaves the widgets of its cells where they are when a row becomes higher. */
void OperationCells::layOut()
{
    if (!m_isLayOutDue) {
        m_isLayOutDue = true;
        QTimer::singleShot(0, this, [this] {
            m_isLayOutDue = false;
            m_tree->doItemsLayout();
            emit laidOut();
        });
    }
}

void OperationCells::offerWords(CalculationRow *row)
{
    QStringList words; // there may be many: only where somebody gets them
    for (int i = 0; i < row->childCount(); ++i) {
        if (m_tree->itemWidget(row->child(i), OperationColumn::Arguments) != nullptr) {
            words = words.isEmpty() ? m_variables.words(row->calculation().expressions) : words;
            offerWords(stepRow(row->child(i)), words);
        }
    }
}

void OperationCells::offerWords(StepRow *row, const QStringList &words)
{
    const QWidget *editor = m_tree->itemWidget(row, OperationColumn::Arguments);
    const auto fields = editor->findChildren<AutoCompleteLineEdit *>();
    for (AutoCompleteLineEdit *field : fields) {
        // Values come every second; the list that somebody chooses from must not go with them.
        if (field->words() != words) {
            field->setWords(words);
        }
    }
}

} // namespace lctrlsex
