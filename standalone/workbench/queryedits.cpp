#include "queryedits.h"

#include "datasourceconfigmanager.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>

namespace workbench {

using sources::NamedText;

namespace {

constexpr int ListWidth = 150;
constexpr int LinesOfText = 5;

bool hasName(const QVector<NamedText> &queries, const QString &name)
{
    return std::any_of(queries.begin(), queries.end(),
                       [&name](const NamedText &query) { return query.name == name; });
}

} // namespace

QueryEdits::QueryEdits(const QVector<NamedText> &queries, QWidget *parent)
    : QWidget(parent)
    , m_queries(queries)
    , m_list(new QListWidget(this))
    , m_add(new QPushButton(tr("&Add"), this))
    , m_remove(new QPushButton(tr("Remov&e"), this))
    , m_name(new QLineEdit(this))
    , m_text(new QPlainTextEdit(this))
{
    for (const NamedText &query : queries) {
        m_names.append(query.name);
    }
    buildList();
    buildFields();
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    auto *label = new QLabel(tr("Na&me in keys:"), this);
    label->setBuddy(m_name);
    grid->addWidget(m_list, 0, 0, 2, 2);
    grid->addWidget(m_add, 2, 0);
    grid->addWidget(m_remove, 2, 1);
    grid->addWidget(label, 0, 2);
    grid->addWidget(m_name, 0, 3);
    grid->addWidget(m_text, 1, 2, 2, 2);
    grid->setColumnStretch(3, 1);
    m_list->setCurrentRow(0);
    showCurrent();
}

void QueryEdits::buildList()
{
    setFocusProxy(m_list);
    m_list->setObjectName(QStringLiteral("SourceQueries"));
    m_list->setAccessibleName(tr("Queries"));
    m_list->setFixedWidth(ListWidth);
    m_list->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored); // as high as the text beside
    m_add->setObjectName(QStringLiteral("AddQuery"));
    m_add->setToolTip(tr("Add a query (Insert)"));
    m_remove->setObjectName(QStringLiteral("RemoveQuery"));
    m_remove->setToolTip(tr("Remove the query (Delete)"));
    for (int row = 0; row < m_queries.size(); ++row) {
        m_list->addItem(QString());
        label(row);
    }
    const auto onKey = [this](int key, void (QueryEdits::*slot)()) {
        auto *shortcut = new QShortcut(key, m_list);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, slot);
    };
    onKey(Qt::Key_Insert, &QueryEdits::add);
    onKey(Qt::Key_Delete, &QueryEdits::remove);
    onKey(Qt::Key_F2, &QueryEdits::rename);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &QueryEdits::rename);
    connect(m_list, &QListWidget::currentRowChanged, this, &QueryEdits::showCurrent);
    connect(m_add, &QPushButton::clicked, this, &QueryEdits::add);
    connect(m_remove, &QPushButton::clicked, this, &QueryEdits::remove);
}

void QueryEdits::buildFields()
{
    m_name->setObjectName(QStringLiteral("SourceQueryName"));
    m_text->setObjectName(QStringLiteral("SourceQuery"));
    m_text->setAccessibleName(tr("Text of the query"));
    m_text->setTabChangesFocus(true);
    m_text->setFixedHeight(m_text->fontMetrics().lineSpacing() * LinesOfText + 12);
    connect(m_name, &QLineEdit::textChanged, this, &QueryEdits::take);
    connect(m_text, &QPlainTextEdit::textChanged, this, &QueryEdits::take);
}

void QueryEdits::label(int row)
{
    const QString name = m_queries.at(row).name;
    m_list->item(row)->setText(name.isEmpty() ? tr("no name") : name);
}

void QueryEdits::showCurrent()
{
    const int row = m_list->currentRow();
    const bool isThere = row >= 0 && row < m_queries.size();
    const NamedText query = m_queries.value(row);
    const QSignalBlocker noName(m_name);
    const QSignalBlocker noText(m_text);
    m_name->setText(query.name);
    m_text->setPlainText(query.text);
    m_text->setPlaceholderText(isThere ? QStringLiteral("SELECT name, price FROM goods")
                                       : tr("There is no query yet: add one."));
    for (QWidget *field : {static_cast<QWidget *>(m_name), static_cast<QWidget *>(m_text),
                           static_cast<QWidget *>(m_remove)}) {
        field->setEnabled(isThere);
    }
}

void QueryEdits::take()
{
    const int row = m_list->currentRow();
    if (row >= 0 && row < m_queries.size()) {
        m_queries[row] = {m_name->text().trimmed(), m_text->toPlainText().trimmed()};
        label(row);
        emit changed();
    }
}

void QueryEdits::add()
{
    QString name = QStringLiteral("rows");
    for (int number = 2; hasName(m_queries, name); ++number) {
        name = QStringLiteral("rows%1").arg(number);
    }
    m_queries.append({name, QString()});
    m_list->addItem(name);
    m_list->setCurrentRow(m_list->count() - 1);
    rename();
    emit changed();
}

void QueryEdits::remove()
{
    const int row = m_list->currentRow();
    if (row < 0 || row >= m_queries.size()) {
        return;
    }
    m_queries.removeAt(row);
    delete m_list->takeItem(row);
    showCurrent();
    // The button that was pressed is disabled with the last one.
    if (m_queries.isEmpty()) {
        m_add->setFocus();
    }
    emit changed();
}

void QueryEdits::rename()
{
    m_name->setFocus();
    m_name->selectAll();
}

QueryEdits::Fault QueryEdits::nameFault(int row) const
{
    const QString name = m_queries.at(row).name;
    if (name.isEmpty()) {
        return {row, true, tr("a query has no name")};
    }
    if (hasName(m_queries.mid(0, row), name)) {
        return {row, true, tr("there are two queries called %1").arg(name)};
    }
    const bool isOffered =
        !name.contains(QLatin1Char('.')) && !DataSourceConfigManager::ContainsIllegalChars(name);
    return isOffered || m_names.contains(name)
               ? Fault()
               : Fault{row, true,
                       tr("a name must not hold any of %1")
                           .arg(QStringLiteral(". : ; , $ % & | * ? \" ' / \\ < > { } [ ]"))};
}

QueryEdits::Fault QueryEdits::firstFault() const
{
    if (m_queries.isEmpty()) {
        return {-1, false, tr("there is none")};
    }
    for (int row = 0; row < m_queries.size(); ++row) {
        Fault fault = nameFault(row);
        if (fault.text.isEmpty() && m_queries.at(row).text.isEmpty()) {
            fault = {row, false, tr("%1 has no text").arg(m_queries.at(row).name)};
        }
        if (!fault.text.isEmpty()) {
            return fault;
        }
    }
    return {};
}

QString QueryEdits::fault() const
{
    return firstFault().text;
}

void QueryEdits::focusFault()
{
    const Fault fault = firstFault();
    if (fault.text.isEmpty()) {
        m_list->setFocus();
    } else if (fault.row < 0) {
        m_add->setFocus();
    } else {
        m_list->setCurrentRow(fault.row);
        (fault.isOfName ? static_cast<QWidget *>(m_name) : m_text)->setFocus();
    }
}

} // namespace workbench
