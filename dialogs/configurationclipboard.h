#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QVector>

#include <array>

class QAction;
class QPoint;
class QTreeWidget;

namespace lctrlsex {

/** The configuration items of a settings dialog: the top-level rows of its tree. */
class ConfigurationItems
{
public:
    ConfigurationItems() = default;
    virtual ~ConfigurationItems() = default;

    /** How many items the clipboard holds. */
    [[nodiscard]] virtual int clipboardSize() const = 0;
    /** Replaces what the clipboard holds with the items of these top-level @p rows, in order. */
    virtual void copyRows(const QVector<int> &rows) = 0;
    /** Appends the items of the clipboard; false when that cannot be done. */
    [[nodiscard]] virtual bool appendClipboard() = 0;
    /** Replaces everything that is edited with the clipboard. */
    virtual void coverWithClipboard() = 0;

private:
    Q_DISABLE_COPY(ConfigurationItems)
};

/**
 * The context menu of a settings dialog's tree: copying, pasting and deleting of whole
 * configuration items, with its questions and their answers.
 *
 * Every question is a modal box, behind which the dialog may be gone: its caller must not touch
 * itself after any of the five commands without looking whether it still exists.
 */
class ConfigurationClipboard : public QObject
{
    Q_DECLARE_TR_FUNCTIONS(ConfigurationClipboard)

public:
    /** In the order of the menu. */
    enum Action { Copy, CopyAll, Paste, Cover, DeleteAll };
    static constexpr int ActionCount = DeleteAll + 1;

    /** Belongs to @p tree; @p items must live as long. */
    ConfigurationClipboard(QTreeWidget *tree, ConfigurationItems *items);

    /** Connects the actions to @p slots of @p receiver, given as SLOT() makes them. */
    void connectActions(QObject *receiver, const std::array<const char *, ActionCount> &slots_);

    /** Copies the items of which any row is selected, each once, in their order. */
    void copySelected();
    void copyAll();
    void paste();
    void cover();
    void deleteAll();

    /** Sets what is enabled, and the tool tips. */
    void refresh();
    /** Shows the menu at @p position of the tree's viewport. */
    void showMenu(const QPoint &position);

private:
    Q_DISABLE_COPY(ConfigurationClipboard)

    void copy(const QVector<int> &rows);
    [[nodiscard]] QVector<int> selectedItems() const;
    [[nodiscard]] QString nothingToPaste() const;

    QTreeWidget *m_tree;
    ConfigurationItems *m_items;
    std::array<QAction *, ActionCount> m_actions = {};
};

} // namespace lctrlsex
