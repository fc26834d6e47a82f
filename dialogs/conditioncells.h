#pragma once

#include "conditionitem.h"

#include <QObject>
#include <QStringList>

#include <functional>

class QComboBox;
class QTreeWidget;

namespace lctrlsex {

/**
 * Makes the widgets in the cells of the styling dialog's rows, which show the rows' records and
 * write into them what is set, but nothing that was not.
 */
class ConditionCells : public QObject
{
    Q_OBJECT

public:
    /** What the buttons are connected to, as SLOT() makes them, of the tree's dialog. */
    struct Slots
    {
        const char *add;
        const char *remove;
        const char *color;
    };

    /** Belongs to @p tree, whose parent is @p dialog. */
    ConditionCells(QTreeWidget *tree, QObject *dialog, const Slots &names);

    /** Makes what @p item has no widgets for yet: nothing when it was made before. */
    void make(ConditionItem *item);
    /** Makes them anew from the row's record, if it had any. */
    void remake(ConditionItem *item);

    /** The names that every "Input Source" box offers from now on. */
    void setFields(const QStringList &fields);

signals:
    /** The record of a row was written. */
    void changed();

private:
    void makeSource(ConditionItem *item);
    void makeType(ConditionItem *item);
    void makeExpression(ConditionItem *item);
    void makeFont(ConditionItem *item);
    void makeColor(ConditionItem *item, ConditionColumn column, int FontStyle::*member);
    void makeFlag(ConditionItem *item, ConditionColumn column, bool FontStyle::*member);
    void makeButtons(ConditionItem *item);
    void fillSource(QComboBox *box, const QString &key) const;
    void place(ConditionItem *item, ConditionColumn column, QWidget *widget);
    void setKind(ConditionItem *item, int kind);

    QTreeWidget *m_tree;
    QObject *m_dialog;
    Slots m_slots;
    QStringList m_fields;
};

} // namespace lctrlsex
