#include "datapanel.h"

#include "datamodel.h"
#include "drawnicons.h"
#include "livedata.h"
#include "programmefile.h"
#include "sourcedialog.h"
#include "sourceregistry.h"

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>

namespace workbench {

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
    buildActions();
    buildTree();
    buildColumn();
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
