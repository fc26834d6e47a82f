#include "tablemenu.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

namespace lctrlsex {

namespace {

struct TableMenuTexts
{
    Q_DECLARE_TR_FUNCTIONS(TableMenu)
};

QString textOf(int code)
{
    switch (code) {
    case TableCommands::InsertRowAbove:
        return TableMenuTexts::tr("Insert Row Above");
    case TableCommands::InsertRowBelow:
        return TableMenuTexts::tr("Insert Row Below");
    case TableCommands::DeleteRow:
        return TableMenuTexts::tr("Delete Row");
    case TableCommands::InsertColumnLeft:
        return TableMenuTexts::tr("Insert Column Left");
    case TableCommands::InsertColumnRight:
        return TableMenuTexts::tr("Insert Column Right");
    case TableCommands::DeleteColumn:
        return TableMenuTexts::tr("Delete Column");
    case TableCommands::Merge:
        return TableMenuTexts::tr("Merge Cells");
    case TableMenu::SplitVertically:
        return TableMenuTexts::tr("Split Vertically");
    case TableMenu::SplitHorizontally:
        return TableMenuTexts::tr("Split Horizontally");
    default:
        return {};
    }
}

QMenu *addMenu(QMenu *menu, const char *name)
{
    auto *added = new QMenu(menu);
    added->setObjectName(QLatin1String(name));
    menu->addMenu(added);
    return added;
}

} // namespace

TableMenu::TableMenu(QMenu *menu, QObject *receiver, const char *properties, const char *operate)
    : m_receiver(receiver)
    , m_operate(operate)
    , m_menu(menu)
    , m_properties(new QAction(menu))
{
    m_properties->setObjectName(QStringLiteral("actionTableProperties"));
    QObject::connect(m_properties, SIGNAL(triggered()), receiver, properties);
    menu->addAction(m_properties);
    menu->addSeparator();
    m_rows = addMenu(menu, "TableRowsMenu");
    add(m_rows, "actionInsertRowAbove", TableCommands::InsertRowAbove);
    add(m_rows, "actionInsertRowBelow", TableCommands::InsertRowBelow);
    add(m_rows, "actionDeleteRow", TableCommands::DeleteRow);
    m_columns = addMenu(menu, "TableColumnsMenu");
    add(m_columns, "actionInsertColumnLeft", TableCommands::InsertColumnLeft);
    add(m_columns, "actionInsertColumnRight", TableCommands::InsertColumnRight);
    add(m_columns, "actionDeleteColumn", TableCommands::DeleteColumn);
    menu->addSeparator();
    m_merge = add(menu, "actionMergeCells", TableCommands::Merge);
    m_split = addMenu(menu, "TableSplitMenu");
    add(m_split, "actionSplitVertically", SplitVertically);
    add(m_split, "actionSplitHorizontally", SplitHorizontally);
    translate();
}

QAction *TableMenu::add(QMenu *menu, const char *name, int code)
{
    auto *action = new QAction(menu);
    action->setObjectName(QLatin1String(name));
    action->setData(code);
    QObject::connect(action, SIGNAL(triggered()), m_receiver, m_operate);
    menu->addAction(action);
    return action;
}

void TableMenu::translate()
{
    if (m_menu.isNull()) {
        return;
    }
    m_properties->setText(TableMenuTexts::tr("Table Properties"));
    m_rows->setTitle(TableMenuTexts::tr("Rows"));
    m_columns->setTitle(TableMenuTexts::tr("Columns"));
    m_split->setTitle(TableMenuTexts::tr("Split Cell"));
    const QList<QAction *> actions = m_menu->findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->data().toInt() > 0) {
            action->setText(textOf(action->data().toInt()));
        }
    }
}

void TableMenu::show(const TableCommands::MenuState &state)
{
    if (m_menu.isNull()) {
        return;
    }
    const auto enable = [](QMenu *menu, bool on) {
        menu->menuAction()->setEnabled(on);
        const QList<QAction *> actions = menu->actions();
        for (QAction *action : actions) {
            action->setEnabled(on);
        }
    };
    enable(m_rows, state.rows);
    enable(m_columns, state.columns);
    enable(m_split, state.split);
    m_merge->setEnabled(state.merge);
    m_properties->setEnabled(state.properties);
}

} // namespace lctrlsex
