#include "drawnicons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace workbench {

namespace {

/** A pen on a grid of 16 x 16. */
QPen penOf(const QColor &color, qreal width = 1.6)
{
    return QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void drawArrow(QPainter *painter, const QColor &color, qreal degrees)
{
    painter->translate(8, 8);
    painter->rotate(degrees);
    painter->setPen(penOf(color));
    painter->drawPolyline(QPolygonF({{-4.5, 0.5}, {0, -4}, {4.5, 0.5}}));
    painter->drawLine(QPointF(0, -3.5), QPointF(0, 5));
}

void drawChevron(QPainter *painter, const QColor &color, qreal degrees)
{
    painter->translate(8, 8);
    painter->rotate(degrees);
    painter->setPen(penOf(color, 1.8));
    painter->drawPolyline(QPolygonF({{-4.5, 2}, {0, -2.5}, {4.5, 2}}));
}

/** A disc or triangle with a sign in it, for notices. */
void drawSign(QPainter *painter, Drawing drawing)
{
    painter->setPen(Qt::NoPen);
    const bool isWarning = drawing == Drawing::Warning;
    painter->setBrush(isWarning                   ? QColor(0xd08000)
                      : drawing == Drawing::Error ? QColor(0xd0453b)
                                                  : QColor(0x2b7de9));
    if (isWarning) {
        QPainterPath triangle(QPointF(8, 1.5));
        triangle.lineTo(15, 14.5);
        triangle.lineTo(1, 14.5);
        triangle.closeSubpath();
        painter->drawPath(triangle);
    } else {
        painter->drawEllipse(QRectF(1, 1, 14, 14));
    }
    painter->setPen(penOf(Qt::white, 1.8));
    if (drawing == Drawing::Information) {
        painter->drawPoint(QPointF(8, 4.6));
        painter->drawLine(QPointF(8, 7.4), QPointF(8, 11.6));
    } else {
        painter->drawLine(QPointF(8, isWarning ? 6.2 : 4.2), QPointF(8, isWarning ? 9.6 : 8.6));
        painter->drawPoint(QPointF(8, isWarning ? 12.4 : 11.6));
    }
}

/** What is on the keys of a recorder. */
void drawPlaying(QPainter *painter, Drawing drawing, const QColor &color)
{
    painter->setPen(penOf(color, 1.2));
    painter->setBrush(color);
    if (drawing == Drawing::Play) {
        painter->drawPolygon(QPolygonF({{4.5, 3}, {13, 8}, {4.5, 13}}));
    } else if (drawing == Drawing::Pause) {
        painter->drawRect(QRectF(4, 3.5, 2.5, 9));
        painter->drawRect(QRectF(9.5, 3.5, 2.5, 9));
    } else {
        painter->drawRect(QRectF(4, 4, 8, 8));
    }
}

void drawNode(QPainter *painter, Drawing drawing, const QColor &color)
{
    painter->setPen(penOf(color, 1.2));
    switch (drawing) {
    case Drawing::Controller:
        painter->drawRoundedRect(QRectF(2, 5, 12, 7), 1.5, 1.5);
        painter->drawPoint(QPointF(5, 8.5));
        painter->drawLine(QPointF(8, 8.5), QPointF(11.5, 8.5));
        break;
    case Drawing::Screen:
        painter->drawRoundedRect(QRectF(1.5, 2.5, 13, 8.5), 1, 1);
        painter->drawLine(QPointF(8, 11), QPointF(8, 13.5));
        painter->drawLine(QPointF(5, 13.5), QPointF(11, 13.5));
        break;
    case Drawing::Frame:
        painter->setPen(QPen(color, 1.2, Qt::DashLine));
        painter->drawRect(QRectF(2.5, 3.5, 11, 9));
        break;
    case Drawing::Text:
        painter->setPen(penOf(color, 1.8));
        painter->drawLine(QPointF(4, 3.5), QPointF(12, 3.5));
        painter->drawLine(QPointF(8, 3.5), QPointF(8, 12.5));
        break;
    default:
        break;
    }
}

void draw(QPainter *painter, Drawing drawing, const QColor &color)
{
    switch (drawing) {
    case Drawing::Add:
        painter->setPen(penOf(color, 1.8));
        painter->drawLine(QPointF(8, 3), QPointF(8, 13));
        painter->drawLine(QPointF(3, 8), QPointF(13, 8));
        break;
    case Drawing::Remove:
        painter->setPen(penOf(color, 1.3));
        painter->drawLine(QPointF(2.5, 4.5), QPointF(13.5, 4.5));
        painter->drawPolyline(QPolygonF({{6, 4.5}, {6, 2.5}, {10, 2.5}, {10, 4.5}}));
        painter->drawPolyline(QPolygonF({{4, 4.5}, {4.7, 13.5}, {11.3, 13.5}, {12, 4.5}}));
        painter->drawLine(QPointF(6.9, 7), QPointF(7.1, 11));
        painter->drawLine(QPointF(9.1, 7), QPointF(8.9, 11));
        break;
    case Drawing::Edit:
        painter->setPen(penOf(color, 1.3));
        painter->drawPolygon(
            QPolygonF({{3, 13}, {3.6, 10.4}, {10.8, 3.2}, {12.8, 5.2}, {5.6, 12.4}}));
        break;
    case Drawing::Refresh:
        painter->setPen(penOf(color, 1.4));
        painter->drawArc(QRectF(3, 3, 10, 10), 40 * 16, 290 * 16);
        painter->drawPolyline(QPolygonF({{9.2, 5.6}, {12, 5}, {12, 2}}));
        break;
    case Drawing::Duplicate:
        painter->setPen(penOf(color, 1.3));
        painter->drawRoundedRect(QRectF(5.5, 5.5, 8, 8), 1, 1);
        painter->drawPolyline(
            QPolygonF({{3.5, 10.5}, {2.5, 10.5}, {2.5, 2.5}, {10.5, 2.5}, {10.5, 3.5}}));
        break;
    case Drawing::Up:
        drawArrow(painter, color, 0);
        break;
    case Drawing::Down:
        drawArrow(painter, color, 180);
        break;
    case Drawing::Previous:
        drawChevron(painter, color, -90);
        break;
    case Drawing::Next:
        drawChevron(painter, color, 90);
        break;
    case Drawing::Play:
    case Drawing::Pause:
    case Drawing::Stop:
        drawPlaying(painter, drawing, color);
        break;
    case Drawing::Close:
        painter->setPen(penOf(color, 1.5));
        painter->drawLine(QPointF(4, 4), QPointF(12, 12));
        painter->drawLine(QPointF(12, 4), QPointF(4, 12));
        break;
    case Drawing::Grid:
        painter->setPen(Qt::NoPen);
        painter->setBrush(color);
        for (int i = 0; i < 9; ++i) {
            const int row = i / 3;
            painter->drawEllipse(QPointF(3.5 + 4.5 * (i % 3), 3.5 + 4.5 * row), 1.5, 1.5);
        }
        break;
    case Drawing::Information:
    case Drawing::Warning:
    case Drawing::Error:
        drawSign(painter, drawing);
        break;
    default:
        drawNode(painter, drawing, color);
    }
}

QPixmap pixmapOf(Drawing drawing, const QColor &color, int side, qreal ratio)
{
    const int pixels = qRound(side * ratio);
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / 16.0, pixels / 16.0);
    draw(&painter, drawing, color);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

QIcon drawnIcon(Drawing drawing, const QPalette &palette)
{
    QIcon icon;
    for (const int side : {16, 24}) {
        for (const qreal ratio : {1.0, 2.0}) {
            icon.addPixmap(pixmapOf(drawing, palette.color(QPalette::Active, QPalette::ButtonText),
                                    side, ratio));
            icon.addPixmap(pixmapOf(drawing,
                                    palette.color(QPalette::Disabled, QPalette::ButtonText), side,
                                    ratio),
                           QIcon::Disabled);
        }
    }
    return icon;
}

} // namespace workbench
