#pragma once

#include "table/datasourceindex.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QVector>

class QAction;
class QActionGroup;
class QMenu;
class QToolButton;
class QWidget;

namespace lctrlsex {

/**
 * The three buttons that bind text to data: which source's fields are offered, a field or a
 * calculated value to insert, a conditional style for the selected text. Each opens a menu. A menu
 * that has nothing to offer says why.
 */
class BindingMenus : public QObject
{
    Q_OBJECT
public:
    explicit BindingMenus(QObject *parent = nullptr);
    /** Takes the buttons along, wherever they have been put. */
    ~BindingMenus() override;

    /** The buttons from left to right, to be put into a tool bar. */
    [[nodiscard]] QList<QWidget *> buttons() const;

    /** Sets every text anew in the current language. */
    void retranslate();

    /** Offers the sources and fields of @p index and the calculations by their names. */
    void rebuild(const DataSourceIndex &index, const QMap<QString, QString> &expressions);
    /** Offers fields by these keys too, as far as the selected source does not offer them. */
    void setClientFields(const QStringList &keys);
    /** Offers conditional styles, identifier to name, in the order of their names. */
    void setConditionStyles(const QMap<QString, QString> &styles);

signals:
    /** A data source was picked; the action's text is its name. */
    void sourcePicked(QAction *action);
    /** A field was picked; the action's text is its name, its data the qualified key. */
    void fieldPicked(QAction *action);
    /** A conditional style was picked; the text is its name, the property "id" its identifier. */
    void stylePicked(QAction *action);

private:
    QToolButton *addButton(const QString &name);
    void showSources();
    void markSelectedSource();
    void showFields();
    void showExpressions();
    void showStyles();
    QString whyNoFields() const;
    [[nodiscard]] QMap<QString, QString> offeredFields() const; ///< Keys by name.

    Q_DISABLE_COPY(BindingMenus)

    QVector<QPointer<QToolButton>> m_buttons;
    QPointer<QMenu> m_sources;
    QPointer<QActionGroup> m_sourceGroup;
    QPointer<QMenu> m_fields;
    QPointer<QMenu> m_expressionMenu;
    QPointer<QMenu> m_styleMenu;

    DataSourceIndex m_index;
    QStringList m_clientFields;
    QStringList m_expressions;
    QMap<QString, QString> m_styles; ///< Names by identifier.
};

} // namespace lctrlsex
