#include "bindingmenus.h"

#include "fieldformat.h"

#include <QActionGroup>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

namespace lctrlsex {

namespace {

/** Removes what a menu offers. Later: one of its actions may be what is being handled. */
void clear(QMenu *menu)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        menu->removeAction(action);
        if (action->menu() == nullptr) {
            action->deleteLater();
        }
    }
}

QAction *addEntry(QMenu *menu, const QString &name)
{
    QAction *action = menu->addAction(name);
    action->setObjectName(name);
    return action;
}

void addReason(QMenu *menu, const QString &reason)
{
    QAction *action = menu->addAction(reason);
    action->setObjectName(QStringLiteral("EmptyReason"));
    action->setEnabled(false);
}

void setListWidth(QMenu *menu, int width)
{
    menu->setStyleSheet(QStringLiteral("QAbstractItemView{min-width:%1px;}").arg(width));
}

void setTexts(QToolButton *button, const QString &text, const QString &toolTip)
{
    button->setText(text);
    button->setAccessibleName(text);
    button->setToolTip(toolTip);
}

} // namespace

BindingMenus::BindingMenus(QObject *parent)
    : QObject(parent)
{
    m_sources = addButton(QStringLiteral("FilterDataSourceButton"))->menu();
    m_fields = addButton(QStringLiteral("InsertFieldButton"))->menu();
    m_styleMenu = addButton(QStringLiteral("ConditionStylesButton"))->menu();
    m_sources->setObjectName(QStringLiteral("FilterDataSourceMenu"));
    m_fields->setObjectName(QStringLiteral("InsertFieldMenu"));
    m_styleMenu->setObjectName(QStringLiteral("ConditionStylesMenu"));
    m_sourceGroup = new QActionGroup(m_sources);
    m_expressionMenu = new QMenu(m_fields);
    m_expressionMenu->setObjectName(QStringLiteral("ExpressionDataSourceMenu"));
    connect(m_sources, &QMenu::triggered, this, &BindingMenus::sourcePicked);
    connect(m_fields, &QMenu::triggered, this, &BindingMenus::fieldPicked);
    connect(m_styleMenu, &QMenu::triggered, this, &BindingMenus::stylePicked);
    retranslate();
}

BindingMenus::~BindingMenus()
{
    for (const QPointer<QToolButton> &button : qAsConst(m_buttons)) {
        delete button;
    }
}

QToolButton *BindingMenus::addButton(const QString &name)
{
    auto *button = new QToolButton;
    button->setObjectName(name);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setAutoRaise(true);
    button->setMenu(new QMenu(button));
    m_buttons.append(button);
    return button;
}

QList<QWidget *> BindingMenus::buttons() const
{
    QList<QWidget *> widgets;
    for (const QPointer<QToolButton> &button : m_buttons) {
        if (button != nullptr) {
            widgets.append(button);
        }
    }
    return widgets;
}

void BindingMenus::retranslate()
{
    if (buttons().size() < m_buttons.size()) {
        return;
    }
    setTexts(m_buttons.at(0), tr("Filter DataSource"),
             tr("Choose the data source whose fields can be inserted"));
    setTexts(m_buttons.at(1), tr("Insert field"),
             tr("Insert a field that shows its current value"));
    setTexts(m_buttons.at(2), tr("Condition styles"),
             tr("Give the selected text a look that depends on data"));
    m_expressionMenu->setTitle(tr("Expression Data Source"));
    showSources();
    showFields();
    showExpressions();
    showStyles();
}

void BindingMenus::rebuild(const DataSourceIndex &index, const QMap<QString, QString> &expressions)
{
    const DataSourceIndex before = m_index;
    m_index = index;
    if (buttons().size() < m_buttons.size()) {
        return;
    }
    if (before.sourceNames() != index.sourceNames()) {
        showSources();
    }
    if (!before.offersSameAs(index)) {
        markSelectedSource();
        showFields();
    }
    if (m_expressions != expressions.keys()) {
        m_expressions = expressions.keys();
        showExpressions();
    }
}

void BindingMenus::setClientFields(const QStringList &keys)
{
    if (keys != m_clientFields && buttons().size() == m_buttons.size()) {
        m_clientFields = keys;
        showFields();
    }
}

void BindingMenus::setConditionStyles(const QMap<QString, QString> &styles)
{
    if (styles != m_styles && m_styleMenu != nullptr) {
        m_styles = styles;
        showStyles();
    }
}

void BindingMenus::showSources()
{
    clear(m_sources);
    const QStringList names = m_index.sourceNames();
    for (const QString &name : names) {
        QAction *action = addEntry(m_sources, name);
        action->setCheckable(true);
        m_sourceGroup->addAction(action);
    }
    if (names.isEmpty()) {
        addReason(m_sources, tr("No data source is enabled"));
    }
    markSelectedSource();
}

void BindingMenus::markSelectedSource()
{
    const QList<QAction *> actions = m_sources->actions();
    for (QAction *action : actions) {
        action->setChecked(action->isCheckable() && action->text() == m_index.selectedSource());
    }
}

QString BindingMenus::whyNoFields() const
{
    if (m_index.sourceNames().isEmpty()) {
        return tr("No data source is enabled");
    }
    return m_index.selectedSource().isEmpty() ? tr("Choose a data source first")
                                              : tr("The data source has no fields");
}

QMap<QString, QString> BindingMenus::offeredFields() const
{
    QMap<QString, QString> keys;
    const QStringList names = m_index.fieldNames();
    for (const QString &name : names) {
        keys.insert(name, qualifiedKey(m_index.selectedSource(), name));
    }
    for (const QString &key : m_clientFields) {
        if (!key.isEmpty() && !keys.contains(key) && keys.value(fieldName(key)) != key) {
            keys.insert(key, key);
        }
    }
    return keys;
}

void BindingMenus::showFields()
{
    clear(m_fields);
    const QMap<QString, QString> fields = offeredFields();
    for (auto it = fields.cbegin(); it != fields.cend(); ++it) {
        addEntry(m_fields, it.key())->setData(*it);
    }
    if (fields.isEmpty()) {
        addReason(m_fields, whyNoFields());
    }
    m_fields->addSeparator();
    m_fields->addMenu(m_expressionMenu);
    for (QMenu *menu : {m_sources.data(), m_fields.data(), m_expressionMenu.data()}) {
        setListWidth(menu, m_index.listWidth());
    }
}

void BindingMenus::showExpressions()
{
    clear(m_expressionMenu);
    for (const QString &name : qAsConst(m_expressions)) {
        addEntry(m_expressionMenu, name)->setData(name);
    }
    if (m_expressions.isEmpty()) {
        addReason(m_expressionMenu, tr("No calculation is defined"));
    }
}

void BindingMenus::showStyles()
{
    clear(m_styleMenu);
    QStringList identifiers = m_styles.keys();
    std::stable_sort(
        identifiers.begin(), identifiers.end(), [this](const QString &left, const QString &right) {
            return QString::localeAwareCompare(m_styles.value(left), m_styles.value(right)) < 0;
        });
    for (const QString &identifier : qAsConst(identifiers)) {
        addEntry(m_styleMenu, m_styles.value(identifier))->setProperty("id", identifier);
    }
    if (m_styles.isEmpty()) {
        addReason(m_styleMenu, tr("No conditional style is defined"));
    }
}

} // namespace lctrlsex
