#pragma once

#include <QFontMetrics>
#include <QHash>
#include <QProxyStyle>

namespace workbench {

/**
 * Fusion with the sizes that it has on a 96-dpi desktop.
 *
 * The workbench runs at 72 dpi, where a point is a pixel, and Fusion scales its indicators, arrows
 * and margins by the dpi of the font metrics that it is handed. So it is handed metrics of the same
 * font, in the same pixel size, on a device of 96 dpi: texts measure as before.
 */
class WorkbenchStyle : public QProxyStyle
{
    Q_OBJECT

public:
    WorkbenchStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget = nullptr) const override;
    [[nodiscard]] QRect subElementRect(SubElement element, const QStyleOption *option,
                                       const QWidget *widget = nullptr) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                       SubControl subControl,
                                       const QWidget *widget = nullptr) const override;
    [[nodiscard]] SubControl hitTestComplexControl(ComplexControl control,
                                                   const QStyleOptionComplex *option,
                                                   const QPoint &position,
                                                   const QWidget *widget = nullptr) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption *option,
                                         const QSize &size,
                                         const QWidget *widget = nullptr) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                                  const QWidget *widget = nullptr) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                                const QWidget *widget = nullptr,
                                QStyleHintReturn *returned = nullptr) const override;

private:
    class OptionAt96;

    [[nodiscard]] QFontMetrics metricsAt96(const QStyleOption *option, const QWidget *widget) const;

    mutable QHash<QFont, QFontMetrics> m_metrics;
};

} // namespace workbench
