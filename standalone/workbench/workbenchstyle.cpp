#include "workbenchstyle.h"

#include <QApplication>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace workbench {

namespace {

constexpr int UsualDpi = 96;
constexpr int MostFontsKept = 64;
constexpr int DarkBelow = 128;

/** The font that the option's texts are drawn with, as far as the option tells. */
QFont fontOf(const QStyleOption *option, const QWidget *widget)
{
    if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option)) {
        return item->font;
    }
    if (const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option)) {
        return button->font;
    }
    if (const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
        return item->font;
    }
    return widget != nullptr ? widget->font() : QApplication::font();
}

/** Fusion outlines an indicator darker than the window, which nobody sees on a dark one. */
void drawIndicatorOutline(QPainter *painter, const QStyleOption &option, bool isRound)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(option.palette.color(QPalette::Light).lighter(150));
    const QRectF outline = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isRound) {
        painter->drawEllipse(outline.adjusted(0.5, 0.5, -0.5, -0.5));
    } else {
        painter->drawRoundedRect(outline, 1, 1);
    }
    painter->restore();
}

} // namespace

/** Lends an option the metrics of a 96-dpi device for as long as this lives. */
class WorkbenchStyle::OptionAt96
{
public:
    OptionAt96(const WorkbenchStyle *style, const QStyleOption *option, const QWidget *widget)
    {
        if (option != nullptr && option->fontMetrics.fontDpi() != UsualDpi) {
            m_option = const_cast<QStyleOption *>(option);
            m_own = m_option->fontMetrics;
            m_option->fontMetrics = style->metricsAt96(option, widget);
        }
    }
    ~OptionAt96()
    {
        if (m_option != nullptr) {
            m_option->fontMetrics = m_own;
        }
    }
    Q_DISABLE_COPY(OptionAt96)

private:
    QStyleOption *m_option = nullptr;
    QFontMetrics m_own{QFont()};
};

WorkbenchStyle::WorkbenchStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{}

QFontMetrics WorkbenchStyle::metricsAt96(const QStyleOption *option, const QWidget *widget) const
{
    QFont font = fontOf(option, widget);
    const auto known = m_metrics.constFind(font);
    if (known != m_metrics.constEnd()) {
        return *known;
    }
    if (m_metrics.size() >= MostFontsKept) {
        m_metrics.clear();
    }
    const QFont key = font;
    if (font.pixelSize() < 0) {
        font.setPixelSize(QFontInfo(font).pixelSize());
    }
    QImage device(1, 1, QImage::Format_RGB32);
    const int dotsPerMetre = qRound(UsualDpi / 0.0254);
    device.setDotsPerMeterX(dotsPerMetre);
    device.setDotsPerMeterY(dotsPerMetre);
    return *m_metrics.insert(key, QFontMetrics(font, &device));
}

void WorkbenchStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                   QPainter *painter, const QWidget *widget) const
{
    const OptionAt96 lent(this, option, widget);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isIndicator = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    if (isIndicator && option != nullptr &&
        option->palette.color(QPalette::Window).lightness() < DarkBelow) {
        drawIndicatorOutline(painter, *option, element == PE_IndicatorRadioButton);
    }
}

void WorkbenchStyle::drawControl(ControlElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    const OptionAt96 lent(this, option, widget);
    QProxyStyle::drawControl(element, option, painter, widget);
}

void WorkbenchStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                        QPainter *painter, const QWidget *widget) const
{
    const OptionAt96 lent(this, option, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect WorkbenchStyle::subElementRect(SubElement element, const QStyleOption *option,
                                     const QWidget *widget) const
{
    const OptionAt96 lent(this, option, widget);
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect WorkbenchStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                     SubControl subControl, const QWidget *widget) const
{
    const OptionAt96 lent(this, option, widget);
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

QStyle::SubControl WorkbenchStyle::hitTestComplexControl(ComplexControl control,
                                                         const QStyleOptionComplex *option,
                                                         const QPoint &position,
                                                         const QWidget *widget) const
{
    const OptionAt96 lent(this, option, widget);
    return QProxyStyle::hitTestComplexControl(control, option, position, widget);
}

QSize WorkbenchStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                       const QSize &size, const QWidget *widget) const
{
    const OptionAt96 lent(this, option, widget);
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int WorkbenchStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                                const QWidget *widget) const
{
    // Without an option Fusion asks the screen, which says 72.
    const QStyleOption bare;
    const QStyleOption *used = option != nullptr ? option : &bare;
    const OptionAt96 lent(this, used, widget);
    return QProxyStyle::pixelMetric(metric, used, widget);
}

int WorkbenchStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                              QStyleHintReturn *returned) const
{
    // Only the standard buttons of dialogs would have pictures, which looks as if they mattered.
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
        return 0;
    }
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

} // namespace workbench
