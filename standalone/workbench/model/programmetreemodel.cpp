#include "programmetreemodel.h"

#include "lnode.h"
#include "ltranslation.h"
#include "programmedocument.h"
#include "treewatch.h"

#include <QMimeData>

#include <algorithm>

namespace workbench {

ProgrammeTreeModel::ProgrammeTreeModel(ProgrammeDocument *document, QObject *parent)
    : QAbstractItemModel(parent)
    , m_document(document)
{
    const TreeWatch *const tree = document->tree();
    connect(tree, &TreeWatch::childInserted, this, &ProgrammeTreeModel::onInserted);
    connect(tree, &TreeWatch::childRemoved, this,
            [this](LNode *node, LNode *, int index) { onRemoved(node, index); });
    connect(tree, &TreeWatch::childMoved, this, &ProgrammeTreeModel::onMoved);
    connect(tree, &TreeWatch::attributeChanged, this, &ProgrammeTreeModel::onAttributeChanged);
    connect(document, &ProgrammeDocument::aboutToReplace, this, [this] { rebuild(true); });
    connect(document, &ProgrammeDocument::replaced, this, [this] { rebuild(false); });
    connect(LTranslation::instance(), &LTranslation::LanguageChanged, this, [this] {
        if (m_root) {
            announce(*m_root);
        }
    });
    rebuild(false);
}

ProgrammeTreeModel::~ProgrammeTreeModel() = default;

std::unique_ptr<ProgrammeTreeModel::Entry> ProgrammeTreeModel::makeEntry(LNode *node, Entry *parent)
{
    auto entry = std::make_unique<Entry>();
    entry->node = node;
    entry->parent = parent;
    m_entries.insert(node, entry.get());
    const QList<LNode *> children = node->ChildNodes();
    for (LNode *child : children) {
        entry->children.push_back(makeEntry(child, entry.get()));
    }
    return entry;
}

void ProgrammeTreeModel::forget(const Entry &entry)
{
    m_entries.remove(entry.node);
    for (const auto &child : entry.children) {
        forget(*child);
    }
}

void ProgrammeTreeModel::rebuild(bool isEmpty)
{
    beginResetModel();
    m_entries.clear();
    m_root = isEmpty ? nullptr : makeEntry(m_document->controller(), nullptr);
    endResetModel();
}

void ProgrammeTreeModel::onInserted(LNode *parent, LNode *child, int index)
{
    Entry *const above = m_entries.value(parent);
    if (!above || m_entries.contains(child)) {
        return;
    }
    const int row = qBound(0, index, int(above->children.size()));
    beginInsertRows(indexOf(above), row, row);
    above->children.insert(above->children.begin() + row, makeEntry(child, above));
    endInsertRows();
}

void ProgrammeTreeModel::onRemoved(LNode *parent, int index)
{
    Entry *const above = m_entries.value(parent);
    if (!above || index < 0 || index >= int(above->children.size())) {
        return;
    }
    beginRemoveRows(indexOf(above), index, index);
    forget(*above->children.at(index));
    above->children.erase(above->children.begin() + index);
    endRemoveRows();
}

void ProgrammeTreeModel::onMoved(LNode *parent, int from, int to)
{
    Entry *const above = m_entries.value(parent);
    const int count = above ? int(above->children.size()) : 0;
    if (from < 0 || from >= count || to < 0 || to >= count || from == to) {
        return;
    }
    const QModelIndex place = indexOf(above);
    beginMoveRows(place, from, from, place, to > from ? to + 1 : to);
    const auto first = above->children.begin();
    if (from < to) {
        std::rotate(first + from, first + from + 1, first + to + 1);
    } else {
        std::rotate(first + to, first + from, first + from + 1);
    }
    endMoveRows();
}

void ProgrammeTreeModel::onAttributeChanged(LNode *node, const QString &key)
{
    static const QStringList shown{QStringLiteral("Name"), QStringLiteral("Width"),
                                   QStringLiteral("Height")};
    const Entry *const entry = m_entries.value(node);
    if (entry && shown.contains(key)) {
        announce(*entry);
    }
}

void ProgrammeTreeModel::announce(const Entry &entry)
{
    emit dataChanged(indexOf(&entry), indexOf(&entry));
    for (const auto &child : entry.children) {
        announce(*child); // which may have its size from here
    }
}

ProgrammeTreeModel::Entry *ProgrammeTreeModel::entryAt(const QModelIndex &index) const
{
    return index.isValid() && index.model() == this ? static_cast<Entry *>(index.internalPointer())
                                                    : nullptr;
}

QModelIndex ProgrammeTreeModel::indexOf(const Entry *entry) const
{
    if (!entry) {
        return {};
    }
    int row = 0;
    if (entry->parent) {
        const auto &siblings = entry->parent->children;
        row = int(std::find_if(siblings.cbegin(), siblings.cend(),
                               [entry](const auto &other) { return other.get() == entry; }) -
                  siblings.cbegin());
    }
    return createIndex(row, 0, const_cast<Entry *>(entry));
}

QModelIndex ProgrammeTreeModel::indexOf(const LNode *node) const
{
    return indexOf(m_entries.value(node));
}

LNode *ProgrammeTreeModel::nodeAt(const QModelIndex &index) const
{
    const Entry *const entry = entryAt(index);
    return entry ? entry->node : nullptr;
}

void ProgrammeTreeModel::setThumbnail(const LNode *node, const QPixmap &thumbnail)
{
    if (Entry *const entry = m_entries.value(node)) {
        entry->thumbnail = thumbnail;
        emit dataChanged(indexOf(entry), indexOf(entry), {Qt::DecorationRole});
    }
}

void ProgrammeTreeModel::setThumbnail(const LNode *node, const QImage &thumbnail)
{
    setThumbnail(node, QPixmap::fromImage(thumbnail));
}

void ProgrammeTreeModel::setProblem(const LNode *node, const QString &text)
{
    Entry *const entry = m_entries.value(node);
    if (entry && entry->problem != text) {
        entry->problem = text;
        emit dataChanged(indexOf(entry), indexOf(entry), {ProblemRole, Qt::ToolTipRole});
    }
}

QModelIndex ProgrammeTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || column != 0 || !m_root) {
        return {};
    }
    if (!parent.isValid()) {
        return row == 0 ? createIndex(0, 0, m_root.get()) : QModelIndex();
    }
    const Entry *const above = entryAt(parent);
    return above && row < int(above->children.size())
               ? createIndex(row, 0, above->children.at(row).get())
               : QModelIndex();
}

QModelIndex ProgrammeTreeModel::parent(const QModelIndex &index) const
{
    const Entry *const entry = entryAt(index);
    return entry ? indexOf(entry->parent) : QModelIndex();
}

int ProgrammeTreeModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid()) {
        return m_root ? 1 : 0;
    }
    const Entry *const entry = parent.column() == 0 ? entryAt(parent) : nullptr;
    return entry ? int(entry->children.size()) : 0;
}

int ProgrammeTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant ProgrammeTreeModel::data(const QModelIndex &index, int role) const
{
    const Entry *const entry = entryAt(index);
    if (!entry) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        // The controller has no name unless the user gave it one.
        return entry->node->name().isEmpty() && !entry->parent ? tr("Controller")
                                                               : entry->node->name();
    case Qt::EditRole:
        return entry->node->name();
    case Qt::DecorationRole:
        return entry->thumbnail.isNull() ? QVariant() : QVariant(entry->thumbnail);
    case Qt::ToolTipRole:
    case ProblemRole:
        return entry->problem.isEmpty() ? QVariant() : QVariant(entry->problem);
    case NodeRole:
        return QVariant::fromValue(entry->node);
    case KindRole:
        return entry->node->TypeText();
    case SizeRole:
        return entry->node->Size();
    default:
        return {};
    }
}

bool ProgrammeTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    LNode *const node = nodeAt(index);
    return node && role == Qt::EditRole && m_document->rename(node, value.toString());
}

Qt::ItemFlags ProgrammeTreeModel::flags(const QModelIndex &index) const
{
    const Entry *const entry = entryAt(index);
    if (!entry) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
    flags.setFlag(Qt::ItemIsDragEnabled, entry->parent != nullptr);
    flags.setFlag(Qt::ItemIsDropEnabled, !entry->node->ChildType().isEmpty());
    return flags;
}

} // namespace workbench
