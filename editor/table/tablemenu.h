#pragma once

#include "table/tablecommands.h"

#include <QPointer>

class QAction;
class QMenu;
class QToolBar;

namespace lctrlsex {

/**
 * The entries that change a table, in the menu of the tool bar's table button or in another one.
 *
 * What an entry does is the receiver's: the slots are connected by name. An entry's data is its
 * TableCommands::Code; those that split have one of their own.
 */
class TableMenu
{
public:
    enum SplitCode : int { SplitVertically = 21, SplitHorizontally = 22 };

    /** Adds the entries to @p menu, which owns them: @p properties, and @p operate for the rest. */
    TableMenu(QMenu *menu, QObject *receiver, const char *properties, const char *operate);

    /** Sets every text in the current language. */
    void translate();
    /** Enables what @p state allows. */
    void show(const TableCommands::MenuState &state);

private:
    QAction *add(QMenu *menu, const char *name, int code);

    QObject *m_receiver;
    const char *m_operate;
    QPointer<QMenu> m_menu;
    QAction *m_properties;
    QMenu *m_rows;
    QMenu *m_columns;
    QAction *m_merge;
    QMenu *m_split;
};

} // namespace lctrlsex
