#include "emptyhint.h"

#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace lctrlsex {

void showWhileEmpty(QTreeWidget *tree, const QString &hint)
{
    auto *label = new QLabel(hint, tree->viewport());
    label->setObjectName(QStringLiteral("EmptyHint"));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *layout = new QVBoxLayout(tree->viewport());
    layout->addWidget(label);
    const auto refresh = [tree, label] {
        label->setVisible(tree->topLevelItemCount() == 0);
    };
    QObject::connect(tree->model(), &QAbstractItemModel::rowsInserted, label, refresh);
    QObject::connect(tree->model(), &QAbstractItemModel::rowsRemoved, label, refresh);
    QObject::connect(tree->model(), &QAbstractItemModel::modelReset, label, refresh);
    refresh();
}

} // namespace lctrlsex
