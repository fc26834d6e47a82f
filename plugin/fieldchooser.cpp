#include "fieldchooser.h"

#include <QStylePainter>
#include <QStyledItemDelegate>

namespace lctrlsex {

namespace {

/** Draws the entries of the list, the empty one in words. */
class EntryDelegate : public QStyledItemDelegate
{
public:
    EntryDelegate(const QString &emptyText, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_emptyText(emptyText)
    {}

    [[nodiscard]] QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        const QString text = QStyledItemDelegate::displayText(value, locale);
        return text.isEmpty() ? m_emptyText : text;
    }

private:
    Q_DISABLE_COPY(EntryDelegate)

    QString m_emptyText;
};

} // namespace

FieldChooser::FieldChooser(QWidget *parent)
    : QComboBox(parent)
{}

void FieldChooser::setEmptyText(const QString &text)
{
    m_emptyText = text;
    // The combo box deletes the delegate before.
    setItemDelegate(new EntryDelegate(text, this));
    update();
}

void FieldChooser::paintEvent(QPaintEvent *)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    if (option.currentText.isEmpty()) {
        option.currentText = m_emptyText;
    }
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

} // namespace lctrlsex
