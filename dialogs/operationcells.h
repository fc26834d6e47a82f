#pragma once

#include "operationtree.h"

#include <QObject>

class AutoCompleteLineEdit;
class QComboBox;
class QLineEdit;

namespace lctrlsex {

class CellLabel;

/**
 * The widgets in the cells of the tree of calculations: they show its rows and write into them,
 * and every change is evaluated and shown at once.
 */
class OperationCells : public QObject
{
    Q_OBJECT

public:
    /** Belongs to @p tree. @p receiver has the slots that the buttons of a row are connected to. */
    OperationCells(QTreeWidget *tree, QObject *receiver);

    [[nodiscard]] const OperationVariables &variables() const { return m_variables; }
    /** Offers and evaluates with these from now on. What is in the cells stays. */
    void setVariables(const QVector<CalculationVariable> &variables);

    /** Makes the widgets of @p row where it has none, and has them show what is to be shown. */
    void make(QTreeWidgetItem *row);
    /** To be called when steps were added to @p calculation or taken from it. */
    void stepsChanged(CalculationRow *calculation);

    /** Sets the name that the edit of @p calculation shows to that of its record. */
    void showName(CalculationRow *calculation);
    /** The edit for the name of @p calculation; null before make(). */
    [[nodiscard]] QLineEdit *nameEdit(CalculationRow *calculation) const;
    /** The first of the fields of @p step; null before make(). */
    [[nodiscard]] QLineEdit *firstField(StepRow *step) const;

signals:
    /** The user is done with the name in the edit of @p calculation. */
    void nameEdited(QTreeWidgetItem *calculation);
    /** The user gave a step places that are outside their range. */
    void placesClamped();
    /** Rows have become higher or lower: others may have come into view. */
    void laidOut();

private:
    void makeCalculation(CalculationRow *row);
    void makeStep(StepRow *row);
    void makeFields(StepRow *row);
    [[nodiscard]] AutoCompleteLineEdit *makeField(StepRow *row, int index);
    void setButtons(QTreeWidgetItem *row, bool isCalculation);

    void onNameFinished(const QObject *edit);
    void onDefaultEdited(const QObject *edit, const QString &text);
    void onArgumentEdited(const QObject *field, int index, const QString &text);
    void onArgumentFinished(const QObject *field);
    void onOperatorChosen(const QObject *box, int index);

    void evaluate(CalculationRow *row);
    void showResults(CalculationRow *row);
    void showResult(QTreeWidgetItem *row, const QString &text, const QString &reason = {});
    void layOut();
    void offerWords(CalculationRow *row);
    void offerWords(StepRow *row, const QStringList &words);

    QTreeWidget *m_tree;
    QObject *m_receiver;
    OperationVariables m_variables;
    const int m_rowHeight;
    bool m_isLayOutDue = false;
};

} // namespace lctrlsex
