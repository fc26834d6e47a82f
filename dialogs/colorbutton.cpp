#include "colorbutton.h"

#include <QDynamicPropertyChangeEvent>
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
