#include "datapanel.h"

#include "bindfieldsdialog.h"
#include "datamodel.h"
#include "drawnicons.h"
#include "livedata.h"
#include "programmefile.h"
#include "sourcedialog.h"
#include "sourceregistry.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QTreeView>

#include <memory>

namespace workbench {

using sources::SourceHealth;
using sources::SourceSettings;

namespace {

/** Sources stand out from their keys, and one that fails from the others. */
class DataDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const bool isSource = !index.parent().isValid();
        if (!isSource) {
            return;
        }
        const auto state = SourceHealth::State(index.data(DataModel::StateRole).toInt());
        if (index.column() == DataModel::NameColumn) {
            option->font.setBold(true);
        } else if (state != SourceHealth::Failed) {
            QColor pale = option->palette.color(QPalette::Text);
            pale.setAlphaF(0.65);
            option->palette.setColor(QPalette::Text, pale);
        }
        const bool isBad = state == SourceHealth::Failed || state == SourceHealth::Stale;
        if (isBad && index.column() == DataModel::NameColumn) {
            option->features |= QStyleOptionViewItem::HasDecoration;
            option->icon = drawnIcon(
                state == SourceHealth::Failed ? Drawing::Error : Drawing::Warning, option->palette);
            option->decorationSize = QSize(16, 16);
        }
    }
};

} // namespace

DataPanel::DataPanel(LiveData *live, QWidget *parent)
    : QWidget(parent)
    , m_data(live)
    , m_model(new DataModel(live, this))
    , m_filter(new QSortFilterProxyModel(this))
    , m_search(new QLineEdit(this))
    , m_tree(new QTreeView(this))
    , m_hint(new QLabel(this))
    , m_detail(new QLabel(this))
    , m_error(new QLabel(this))
    , m_add(new QPushButton(this))
    , m_addMenu(new QMenu(m_add))
{
    setObjectName(QStringLiteral("DataPanel"));
    m_edit = addAction(QStringLiteral("EditSource"), &DataPanel::editSource);
    m_read = addAction(QStringLiteral("ReadSource"), &DataPanel::readNow);
    m_remove = addAction(QStringLiteral("RemoveSource"), &DataPanel::removeSource);
    m_insert = addAction(QStringLiteral("InsertValue"), &DataPanel::insertField);
    m_bind = addAction(QStringLiteral("BindTable"), &DataPanel::bindTable);
    m_copy = addAction(QStringLiteral("CopyKey"), &DataPanel::copyKey);
    buildTree();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    m_search->setObjectName(QStringLiteral("DataSearch"));
    m_search->setClearButtonEnabled(true);
    auto *searchRow = new QHBoxLayout;
    searchRow->setContentsMargins(6, 6, 6, 4);
    searchRow->addWidget(m_search);
    column->addLayout(searchRow);
    column->addWidget(m_tree, 1);
    for (QLabel *label : {m_hint, m_error, m_detail}) {
        label->setWordWrap(true);
        label->setMargin(8);
        label->setTextFormat(Qt::PlainText);
        column->addWidget(label, label == m_hint ? 1 : 0);
    }
    m_hint->setObjectName(QStringLiteral("DataHint"));
    m_hint->setAlignment(Qt::AlignCenter);
    m_detail->setObjectName(QStringLiteral("DataDetail"));
    m_detail->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_error->setObjectName(QStringLiteral("DataError"));
    column->addWidget(buildToolRow());
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_filter->setFilterFixedString(text);
        if (!text.isEmpty()) {
            m_tree->expandAll();
        }
    });
    connect(live, &LiveData::sourcesChanged, this, [this] {
        tell(ProgrammeError());
        m_tree->expandAll();
        updateActions();
    });
    retranslate();
    updateIcons();
    tell(ProgrammeError());
    updateActions();
}

QAction *DataPanel::addAction(const QString &name, void (DataPanel::*run)())
{
    auto *action = new QAction(this);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void DataPanel::buildTree()
{
    m_filter->setSourceModel(m_model);
    m_filter->setRecursiveFilteringEnabled(true);
    m_filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filter->setFilterKeyColumn(-1);
    m_tree->setObjectName(QStringLiteral("DataTree"));
    m_tree->setModel(m_filter);
    m_tree->setItemDelegate(new DataDelegate(m_tree));
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setIndentation(12);
    m_tree->setUniformRowHeights(true);
    m_tree->setDragEnabled(true);
    m_tree->setDragDropMode(QAbstractItemView::DragOnly);
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setExpandsOnDoubleClick(false);
    m_tree->header()->setStretchLastSection(true);
    m_tree->header()->resizeSection(DataModel::NameColumn, 150);
    auto *separator = new QAction(m_tree);
    separator->setSeparator(true);
    m_tree->addActions({m_insert, m_bind, m_copy, separator, m_read, m_edit, m_remove});
    m_tree->expandAll();
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DataPanel::updateActions);
    connect(m_tree, &QTreeView::activated, this, &DataPanel::activate);
    connect(m_filter, &QAbstractItemModel::rowsInserted, m_tree, &QTreeView::expand);
    connect(m_filter, &QAbstractItemModel::rowsInserted, this, &DataPanel::updateActions);
    connect(m_filter, &QAbstractItemModel::rowsRemoved, this, &DataPanel::updateActions);
    connect(m_filter, &QAbstractItemModel::modelReset, this, &DataPanel::updateActions);
    connect(m_filter, &QAbstractItemModel::dataChanged, this, &DataPanel::updateDetail);
}

QWidget *DataPanel::buildToolRow()
{
    auto *bar = new QWidget(this);
    auto *column = new QVBoxLayout(bar);
    column->setContentsMargins(6, 4, 6, 4);
    column->setSpacing(4);
    auto *uses = new QHBoxLayout;
    for (QAction *action : {m_insert, m_bind}) {
        auto *button = new QToolButton(bar);
        button->setObjectName(action->objectName() + QStringLiteral("Button"));
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        uses->addWidget(button);
    }
    column->addLayout(uses);
    auto *row = new QHBoxLayout;
    row->setSpacing(2);
    column->addLayout(row);
    m_add->setObjectName(QStringLiteral("AddSourceButton"));
    m_add->setMenu(m_addMenu);
    row->addWidget(m_add);
    row->addStretch(1);
    for (QAction *action : {m_read, m_edit, m_remove}) {
        auto *button = new QToolButton(bar);
        button->setObjectName(action->objectName() + QStringLiteral("Button"));
        button->setAutoRaise(true);
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonIconOnly);
        row->addWidget(button);
    }
    return bar;
}

void DataPanel::fillAddMenu()
{
    m_addMenu->clear();
    for (const sources::SourceKind &kind : sources::sourceKinds()) {
        const int type = kind.type;
        QAction *action = m_addMenu->addAction(sourceKindName(type));
        action->setObjectName(QStringLiteral("AddSource%1").arg(type));
        connect(action, &QAction::triggered, this, [this, type] { addSource(type); });
    }
}

QModelIndex DataPanel::current() const
{
    return m_filter->mapToSource(m_tree->currentIndex());
}

QString DataPanel::currentKey() const
{
    const QModelIndex index = current();
    return index.isValid() ? index.data(DataModel::KeyRole).toString() : QString();
}

void DataPanel::setTargets(bool hasText, bool hasTable)
{
    m_hasText = hasText;
    m_hasTable = hasTable;
    updateActions();
}

void DataPanel::showSource(const QString &name)
{
    const QModelIndex index = m_filter->mapFromSource(m_model->indexOf(name));
    m_tree->setCurrentIndex(index);
    m_tree->expand(index);
}

void DataPanel::updateActions()
{
    const bool hasSource = current().isValid();
    const DataSourceKey key = m_model->keyAt(current());
    const bool isText = key.type == DataSourceKey::Text;
    const bool isChangeable = m_data->obstacle().isEmpty();
    m_add->setEnabled(isChangeable);
    m_edit->setEnabled(hasSource && isChangeable);
    m_remove->setEnabled(hasSource && isChangeable);
    m_read->setEnabled(hasSource);
    m_insert->setEnabled(m_hasText && !key.name.isEmpty() && isText);
    m_bind->setEnabled(m_hasTable && !key.name.isEmpty());
    m_copy->setEnabled(!key.name.isEmpty());
    const bool isEmpty = m_model->rowCount() == 0;
    m_hint->setVisible(isEmpty);
    m_tree->setVisible(!isEmpty);
    m_search->setEnabled(!isEmpty);
    updateDetail();
}

void DataPanel::updateDetail()
{
    const QModelIndex index = current();
    const QString source = m_model->sourceOf(index);
    const DataSourceKey key = m_model->keyAt(index);
    QString text;
    if (!key.name.isEmpty()) {
        text = tr("%1:%2\n%3").arg(source, key.name, DataModel::typeText(key.type));
        if (!m_hasTable && key.type != DataSourceKey::Text) {
            text += QLatin1Char('\n') + tr("Insert a table into the text to show it.");
        }
    } else if (!source.isEmpty()) {
        text = m_data->manager()->health(source).error;
    }
    m_detail->setText(text.left(400));
    m_detail->setVisible(!text.isEmpty());
}

void DataPanel::tell(const ProgrammeError &error)
{
    QStringList lines = m_data->faults().mid(0, 3);
    if (error.isSet()) {
        lines.append(error.placeText() + QStringLiteral(": ") + error.reason);
    }
    m_error->setText(lines.join(QLatin1Char('\n')));
    m_error->setVisible(!lines.isEmpty());
}

void DataPanel::addSource(int kind)
{
    SourceSettings settings;
    settings.type = kind;
    settings.name = m_data->freeName(sourceKindName(kind).section(QLatin1Char(' '), 0, 0));
    const std::unique_ptr<SourceSettings> edited = SourceDialog::ask(m_data, settings, true, this);
    if (edited) {
        QVector<SourceSettings> all = m_data->sources();
        all.append(*edited);
        tell(m_data->setSources(all, tr("Add data source %1").arg(edited->name)));
        showSource(edited->name);
    }
}

void DataPanel::editSource()
{
    const QString name = m_model->sourceOf(current());
    QVector<SourceSettings> all = m_data->sources();
    for (SourceSettings &source : all) {
        if (source.name == name) {
            const auto edited = SourceDialog::ask(m_data, source, false, this);
            if (edited) {
                source = *edited;
                tell(m_data->setSources(all, tr("Change data source %1").arg(name)));
                showSource(edited->name);
            }
            return;
        }
    }
}

void DataPanel::removeSource()
{
    const QString name = m_model->sourceOf(current());
    QVector<SourceSettings> all = m_data->sources();
    const auto end = std::remove_if(all.begin(), all.end(), [&name](const SourceSettings &source) {
        return source.name == name;
    });
    all.erase(end, all.end());
    tell(m_data->setSources(all, tr("Remove data source %1").arg(name)));
}

void DataPanel::readNow()
{
    m_data->manager()->refresh(m_model->sourceOf(current()));
}

void DataPanel::insertField()
{
    emit insertWanted(currentKey());
}

void DataPanel::bindTable()
{
    const QString key = BindFieldsDialog::ask(currentKey(), this);
    if (!key.isEmpty()) {
        emit bindWanted(key);
    }
}

/** Double click and Return do what is most likely meant. */
void DataPanel::activate(const QModelIndex &index)
{
    if (m_model->keyAt(m_filter->mapToSource(index)).name.isEmpty()) {
        editSource();
    } else if (m_insert->isEnabled()) {
        insertField();
    } else if (m_bind->isEnabled()) {
        bindTable();
    }
}

void DataPanel::copyKey()
{
    QApplication::clipboard()->setText(currentKey());
}

void DataPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    } else if (event->type() == QEvent::PaletteChange) {
        updateIcons();
    }
    QWidget::changeEvent(event);
}

void DataPanel::updateIcons()
{
    m_add->setIcon(drawnIcon(Drawing::Add, palette()));
    m_remove->setIcon(drawnIcon(Drawing::Remove, palette()));
    m_read->setIcon(drawnIcon(Drawing::Refresh, palette()));
    m_edit->setIcon(drawnIcon(Drawing::Edit, palette()));
}

void DataPanel::retranslate()
{
    m_search->setPlaceholderText(tr("Search keys and values"));
    m_tree->setAccessibleName(tr("Data sources"));
    m_tree->setAccessibleDescription(
        tr("Sources and their keys. Return inserts a value or binds the table."));
    m_hint->setText(tr("No data source yet. “Add” below connects a file, a web address or a "
                       "database; then drag values into the text."));
    m_add->setText(tr("Add"));
    m_add->setToolTip(tr("Add a data source"));
    fillAddMenu();
    m_edit->setText(tr("Edit Source..."));
    m_remove->setText(tr("Remove Source"));
    m_read->setText(tr("Read Now"));
    m_insert->setText(tr("Insert Value"));
    m_insert->setToolTip(tr("Insert the value into the text at the cursor"));
    m_bind->setText(tr("Bind Table..."));
    m_bind->setToolTip(tr("Fill the table with this data"));
    m_copy->setText(tr("Copy Key"));
    m_model->retranslate();
    updateActions();
}

} // namespace workbench
