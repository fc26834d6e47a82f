#include "viewmenu.h"

#include "lrichviewedit.h"
#include "table/richtable.h"
#include "table/tablecommands.h"
#include "table/tablequestions.h"

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QTextTable>

using LUM_EditInterface::LTableProperties;

namespace lctrlsex {

ViewMenu::ViewMenu(LRichViewEdit *view)
    : QObject(view)
    , m_view(view)
    , m_table(std::make_unique<TableCommands>(view))
{}

ViewMenu::~ViewMenu() = default;

void ViewMenu::addTo(QMenu *menu)
{
    menu->addSeparator();
    QAction *insert = menu->addAction(tr("Insert Table"), this, &ViewMenu::insertTable);
    insert->setObjectName(QStringLiteral("viewInsertTable"));
    insert->setEnabled(!m_view->isReadOnly());
    addFields(menu->addMenu(tr("Insert field")));
    if (!m_view->isReadOnly() && m_table->current() != nullptr) {
        addTable(menu);
    }
}

void ViewMenu::addFields(QMenu *menu)
{
    for (const QString &name : qAsConst(m_fields)) {
        QAction *action =
            menu->addAction(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")));
        connect(action, &QAction::triggered, m_view,
                [this, name] { emit m_view->InsertFieldNameSignal(name); });
    }
    if (m_fields.isEmpty()) {
        menu->addAction(tr("The data source has no fields"))->setEnabled(false);
    }
    menu->setEnabled(!m_view->isReadOnly());
}

void ViewMenu::addTable(QMenu *menu)
{
    const TableCommands::MenuState state = m_table->menuState(m_view->tableSettings().type);
    menu->addSeparator();
    menu->addAction(tr("Table Properties"), this, &ViewMenu::modifyTable);
    QMenu *rows = menu->addMenu(tr("Row"));
    addEntry(rows, tr("Insert Row Above"), TableCommands::InsertRowAbove, state.rows);
    addEntry(rows, tr("Insert Row Below"), TableCommands::InsertRowBelow, state.rows);
    addEntry(rows, tr("Delete Row"), TableCommands::DeleteRow, state.rows);
    QMenu *columns = menu->addMenu(tr("Column"));
    addEntry(columns, tr("Insert Column Left"), TableCommands::InsertColumnLeft, state.columns);
    addEntry(columns, tr("Insert Column Right"), TableCommands::InsertColumnRight, state.columns);
    addEntry(columns, tr("Delete Column"), TableCommands::DeleteColumn, state.columns);
    if (state.range && !m_isMergingWithheld) {
        addCells(menu);
    }
    QMenu *alignment = menu->addMenu(tr("Align in Cell"));
    addEntry(alignment, tr("Top"), TableCommands::AlignTop, true);
    addEntry(alignment, tr("Middle"), TableCommands::AlignMiddle, true);
    addEntry(alignment, tr("Bottom"), TableCommands::AlignBottom, true);
}

void ViewMenu::addCells(QMenu *menu)
{
    addEntry(menu, tr("Merge Cells"), TableCommands::Merge, true);
    addEntry(menu, tr("Unmerge"), TableCommands::Unmerge, true);
    QMenu *split = menu->addMenu(tr("Split Cell"));
    split->addAction(tr("Split Vertically"), this, [this] { splitCell(true); });
    split->addAction(tr("Split Horizontally"), this, [this] { splitCell(false); });
}

void ViewMenu::addEntry(QMenu *menu, const QString &text, int code, bool isEnabled)
{
    QAction *action = menu->addAction(text, this, [this, code] { operate(code); });
    action->setData(code);
    action->setEnabled(isEnabled);
}

void ViewMenu::operate(int code)
{
    m_table->operate(code, m_view->tableSettings().type);
}

void ViewMenu::insertTable()
{
    if (m_table->hasTable()) {
        warnOfTable(m_view, tr("Only one table can be inserted per document."));
        return;
    }
    const QPointer<ViewMenu> self(this);
    LTableProperties record;
    if (!askTableProperties(m_view, tr("Insert Table"), m_view->itemSize(), &record, true) ||
        self == nullptr || m_view->isReadOnly()) {
        return;
    }
    if (!isUsable(record)) {
        warnOfTable(m_view, tr("Invalid table properties provided"));
    } else if (!m_table->insert(record, m_view->alignment())) {
        warnOfTable(m_view, tr("Failed to insert table"));
    } else {
        emit m_view->TableTypeChangeSignal(record);
    }
}

void ViewMenu::modifyTable()
{
    const QPointer<ViewMenu> self(this);
    const LTableProperties settings = m_view->tableSettings();
    LTableProperties record = m_table->record();
    record.type = settings.type;
    record.pageTurnDirection = settings.pageTurnDirection;
    record.header = settings.header;
    record.fixedHeader = settings.fixedHeader;
    record.fillArea = settings.fillArea;
    if (askTableProperties(m_view, tr("Modify table properties"), m_view->itemSize(), &record,
                           false) &&
        self != nullptr && m_table->current() != nullptr && !m_view->isReadOnly()) {
        m_table->reformat(record);
        emit m_view->TableTypeChangeSignal(record);
    }
}

void ViewMenu::splitCell(bool vertical)
{
    const QPointer<ViewMenu> self(this);
    const int number = askSplitCount(m_view, vertical);
    if (number > 0 && self != nullptr && !m_view->isReadOnly()) {
        m_table->splitCell(vertical, number);
    }
}

} // namespace lctrlsex
