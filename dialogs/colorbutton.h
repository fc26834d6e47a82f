#pragma once

#include <QColor>
#include <QPushButton>

namespace lctrlsex {

/**
 * A button that is filled with the colour in its dynamic property "colorValue", whoever sets that.
 * Its tool tip is the colour's name, so that nobody has to tell colours apart.
 */
class ColorButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ColorButton(const QColor &color);

    /** Invalid when the property holds no colour. */
    [[nodiscard]] QColor color() const;
    /** Leaves the button as it is when @p color is invalid. */
    void setColor(const QColor &color);

signals:
    void colorChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace lctrlsex
