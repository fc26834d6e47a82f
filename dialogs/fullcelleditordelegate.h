#pragma once

#include <QStyledItemDelegate>

/** A delegate whose in-place editor fills the whole cell. */
class FullCellEditorDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
};
