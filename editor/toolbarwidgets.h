#pragma once

#include <QComboBox>
#include <QIcon>
#include <QSpinBox>
#include <QWidgetAction>

/** A combo box on a tool bar. */
class ComboBoxAction : public QWidgetAction
{
    Q_OBJECT

public:
    /** Makes the box under @p name; it belongs to the action. */
    ComboBoxAction(const QString &name, QObject *parent);

    [[nodiscard]] QComboBox *comboBox() const { return m_comboBox; }

    /**
     * Shows @p value, whether it is offered or not, without telling anybody that the choice
     * changed. One that is not offered stands at the top as @p label, in italics.
     */
    void showValue(const QString &value, const QString &label);

    /** The value shown, without what marks one that is not offered. */
    [[nodiscard]] QString value() const;

private:
    Q_DISABLE_COPY(ComboBoxAction)

    QComboBox *m_comboBox;
    bool m_hasExtra = false;
};

/** A spin box with an icon before it on a tool bar. */
class MyWidgetAction : public QWidgetAction
{
    Q_OBJECT

public:
    MyWidgetAction(const QString &name, const QIcon &icon, QObject *parent);

    [[nodiscard]] QSpinBox *spinBox() const { return m_spinBox; }

    /** Shows @p value without telling anybody that it changed. */
    void showValue(int value);

private:
    Q_DISABLE_COPY(MyWidgetAction)

    QSpinBox *m_spinBox;
};
