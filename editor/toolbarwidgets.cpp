#include "toolbarwidgets.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

ComboBoxAction::ComboBoxAction(const QString &name, QObject *parent)
    : QWidgetAction(parent)
    , m_comboBox(new QComboBox)
{
    m_comboBox->setObjectName(name);
    m_comboBox->setFocusPolicy(Qt::ClickFocus);
    setDefaultWidget(m_comboBox);
}

void ComboBoxAction::showValue(const QString &value, const QString &label)
{
    const QSignalBlocker silence(m_comboBox);
    if (m_hasExtra) {
        m_comboBox->removeItem(0);
        m_hasExtra = false;
    }
    int index = m_comboBox->findData(value);
    if (index < 0) {
        m_comboBox->insertItem(0, label, value);
        QFont italic = m_comboBox->font();
        italic.setItalic(true);
        m_comboBox->setItemData(0, italic, Qt::FontRole);
        m_hasExtra = true;
        index = 0;
    }
    m_comboBox->setCurrentIndex(index);
}

QString ComboBoxAction::value() const
{
    return m_comboBox->currentData().toString();
}

MyWidgetAction::MyWidgetAction(const QString &name, const QIcon &icon, QObject *parent)
    : QWidgetAction(parent)
    , m_spinBox(new QSpinBox)
{
    auto *holder = new QWidget;
    auto *layout = new QHBoxLayout(holder);
    layout->setContentsMargins(2, 0, 2, 0);
    layout->setSpacing(2);
    auto *picture = new QLabel(holder);
    picture->setPixmap(icon.pixmap(16, 16));
    layout->addWidget(picture);
    m_spinBox->setObjectName(name);
    m_spinBox->setParent(holder);
    m_spinBox->setFocusPolicy(Qt::ClickFocus);
    m_spinBox->setKeyboardTracking(false); // the document changes once a number is complete
    layout->addWidget(m_spinBox);
    setDefaultWidget(holder);
}

void MyWidgetAction::showValue(int value)
{
    const QSignalBlocker silence(m_spinBox);
    m_spinBox->setValue(value);
}
