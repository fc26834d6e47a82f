// How ProgrammeTreeModel drags nodes to another place.

#include "lnode.h"
#include "programmedocument.h"
#include "programmetreemodel.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QMimeData>

#include <algorithm>

namespace workbench {

static const QString NodeType = QStringLiteral("application/x-lctrlsex-programme-node");

Qt::DropActions ProgrammeTreeModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList ProgrammeTreeModel::mimeTypes() const
{
    return {NodeType};
}

QMimeData *ProgrammeTreeModel::mimeData(const QModelIndexList &indexes) const
{
    const LNode *const node = indexes.size() == 1 ? nodeAt(indexes.first()) : nullptr;
    if (!node) {
        return nullptr;
    }
    // An address is of use only here: another process must not take it for one of its own.
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QCoreApplication::applicationPid() << quint64(reinterpret_cast<quintptr>(this))
           << quint64(reinterpret_cast<quintptr>(node));
    auto *const data = new QMimeData;
    data->setData(NodeType, bytes);
    return data;
}

LNode *ProgrammeTreeModel::dragged(const QMimeData *data) const
{
    if (!data || !data->hasFormat(NodeType)) {
        return nullptr;
    }
    qint64 process = 0;
    quint64 model = 0;
    quint64 address = 0;
    const QByteArray bytes = data->data(NodeType);
    QDataStream stream(bytes);
    stream >> process >> model >> address;
    if (process != QCoreApplication::applicationPid() ||
        model != reinterpret_cast<quintptr>(this)) {
        return nullptr;
    }
    // Looked up, not used: the node may be gone since.
    const auto found =
        std::find_if(m_entries.cbegin(), m_entries.cend(), [address](const Entry *entry) {
            return reinterpret_cast<quintptr>(entry->node) == address;
        });
    return found == m_entries.cend() ? nullptr : (*found)->node;
}

bool ProgrammeTreeModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int,
                                         int column, const QModelIndex &parent) const
{
    return action == Qt::MoveAction && column <= 0 &&
           m_document->canMove(dragged(data), nodeAt(parent));
}

bool ProgrammeTreeModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                      int column, const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent)) {
        return false;
    }
    LNode *const node = dragged(data);
    LNode *const above = nodeAt(parent);
    // Rows are counted with the node still in its old place.
    const int old = node->ParentNode() == above ? above->ChildNodes().indexOf(node) : -1;
    int index = row < 0 ? above->ChildNodes().size() : row;
    if (old >= 0 && old < index) {
        --index;
    }
    m_document->move(node, above, index);
    return false;
}

} // namespace workbench
