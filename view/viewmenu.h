#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

class LRichViewEdit;
class QMenu;

namespace lctrlsex {

class TableCommands;

/**
 * What the view's context menu offers beyond the toolkit's own entries, and what these do.
 *
 * The table's own type, as the node keeps it, says which rows and columns are the author's.
 */
class ViewMenu : public QObject
{
    Q_OBJECT

public:
    /** Acts on @p view, which owns it. */
    explicit ViewMenu(LRichViewEdit *view);
    ~ViewMenu() override;

    /** Names of the fields that can be inserted. */
    void setFields(const QStringList &names) { m_fields = names; }
    /** Whether merging and splitting are left out. */
    void setMergingWithheld(bool on) { m_isMergingWithheld = on; }

    /** Adds the entries to @p menu for where the text cursor stands now. */
    void addTo(QMenu *menu);

    /** Asks for a table's properties and inserts it; says why when that is impossible. */
    void insertTable();

private:
    void addFields(QMenu *menu);
    void addTable(QMenu *menu);
    void addCells(QMenu *menu);
    void addEntry(QMenu *menu, const QString &text, int code, bool isEnabled);
    void operate(int code);
    void modifyTable();
    void splitCell(bool vertical);

    LRichViewEdit *m_view;
    std::unique_ptr<TableCommands> m_table;
    QStringList m_fields;
    bool m_isMergingWithheld = false;
};

} // namespace lctrlsex
