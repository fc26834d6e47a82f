#pragma once

#include <QAbstractItemModel>
#include <QHash>
#include <QPixmap>

#include <memory>
#include <vector>

class LNode;

namespace workbench {

class ProgrammeDocument;

/**
 * The document's nodes as a tree of one column; the controller is its only top row. Renaming and
 * dragging go through the document, so each is a step that can be undone.
 */
class ProgrammeTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role {
        NodeRole = Qt::UserRole, ///< LNode *
        KindRole,                ///< The node's TypeText()
        SizeRole,                ///< QSize in pixels; invalid when unknown
        ProblemRole              ///< What setProblem() was given; the tool tip, too
    };

    explicit ProgrammeTreeModel(ProgrammeDocument *document, QObject *parent = nullptr);
    ~ProgrammeTreeModel() override;

    /** Null for an invalid index. */
    [[nodiscard]] LNode *nodeAt(const QModelIndex &index) const;
    /** Invalid for null and for nodes outside the document. */
    [[nodiscard]] QModelIndex indexOf(const LNode *node) const;
    /** The picture shown with a node; a null one is none. */
    void setThumbnail(const LNode *node, const QPixmap &thumbnail);
    void setThumbnail(const LNode *node, const QImage &thumbnail);
    /** What is wrong with a node, shown as its tool tip; empty for nothing. */
    void setProblem(const LNode *node, const QString &text);

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &index) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    [[nodiscard]] bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row,
                                       int column, const QModelIndex &parent) const override;
    /** Moves the node and says false, so that the view does not remove the row itself. */
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

private:
    /** The tree as the views know it: nodes announce changes when they are done, too late for them.
     */
    struct Entry
    {
        LNode *node = nullptr;
        Entry *parent = nullptr;
        std::vector<std::unique_ptr<Entry>> children;
        QPixmap thumbnail;
        QString problem;
    };

    std::unique_ptr<Entry> makeEntry(LNode *node, Entry *parent);
    void forget(const Entry &entry);
    void announce(const Entry &entry);
    void rebuild(bool isEmpty);
    void onInserted(LNode *parent, LNode *child, int index);
    void onRemoved(LNode *parent, int index);
    void onMoved(LNode *parent, int from, int to);
    void onAttributeChanged(LNode *node, const QString &key);
    [[nodiscard]] Entry *entryAt(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex indexOf(const Entry *entry) const;
    [[nodiscard]] LNode *dragged(const QMimeData *data) const;

    ProgrammeDocument *const m_document;
    std::unique_ptr<Entry> m_root; ///< Of the controller; null while programmes change places.
    QHash<const LNode *, Entry *> m_entries;
};

} // namespace workbench
