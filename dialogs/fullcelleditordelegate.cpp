#include "fullcelleditordelegate.h"

#include <QWidget>

void FullCellEditorDelegate::updateEditorGeometry(QWidget *editor,
                                                  const QStyleOptionViewItem &option,
                                                  const QModelIndex & /*index*/) const
{
    editor->setGeometry(option.rect);
}
