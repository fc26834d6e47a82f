#include "colorbutton.h"

#include <QDynamicPropertyChangeEvent>
#include <QStyleOption>
#include <QStylePainter>
#include <QVariant>

namespace lctrlsex {

static constexpr char colorProperty[] = "colorValue";

ColorButton::ColorButton(const QColor &color)
{
    setAutoDefault(false);
    setColor(color);
}

QColor ColorButton::color() const
{
    return property(colorProperty).value<QColor>();
}

void ColorButton::setColor(const QColor &color)
{
    if (color.isValid()) {
        setProperty(colorProperty, color);
    }
}

// A style would draw a gradient, which is another colour.
void ColorButton::paintEvent(QPaintEvent *)
{
    constexpr int margin = 3;
    QStylePainter painter(this);
    const QRect area = rect().adjusted(margin, margin, -margin - 1, -margin - 1);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(color().isValid() ? QBrush(color()) : QBrush(Qt::NoBrush));
    painter.drawRect(area);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

bool ColorButton::event(QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange &&
        static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName() == colorProperty) {
        const QColor shown = color();
        if (shown.isValid()) {
            constexpr int middle = 128;
            setToolTip(shown.name());
            setStyleSheet(QStringLiteral("background-color: %1; color: %2;")
                              .arg(shown.name(), shown.lightness() > middle
                                                     ? QStringLiteral("black")
                                                     : QStringLiteral("white")));
        }
        emit colorChanged();
    }
    return QPushButton::event(event);
}

} // namespace lctrlsex
