// The floor of a cold start: a program that does nothing but draw one line of text.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QImage page(128, 32, QImage::Format_ARGB32);
    page.fill(Qt::black);
    QPainter painter(&page);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(18);
    painter.setFont(font);
    painter.setPen(QColor(255, 176, 0));
    painter.drawText(QPoint(4, 21), QStringLiteral("Hello, wall"));
    painter.end();
    return page.isNull() ? 1 : 0;
}
