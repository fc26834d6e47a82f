#include "wallview.h"

#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

using namespace workbench;

/** The wall: sizes, hit tests and painted pixels. */
class TestWallView : public QObject
{
    Q_OBJECT

private slots:
    void fits_data();
    void fits();
    void mapsPixels();
    void paintsEachPixel();
    void paintsDots();
    void paintsSmall();
    void paintsOnlyWhatIsExposed();
    void zooms();
    void zoomsOutNeverLarger();
    void keepsThePixelBelowTheMouse();
    void tellsItems();
};

static QImage picture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(40 + x * 20, 40 + y * 20, 90));
        }
    }
    return image;
}

/** A screen of 20 x 10 with two items that overlap at (8, 4). */
static WallScene scene()
{
    WallScene scene;
    scene.size = QSize(20, 10);
    scene.items.append({QRect(2, 1, 8, 5), picture(QSize(8, 5)), "below", false});
    scene.items.append({QRect(8, 4, 6, 4), picture(QSize(6, 4)), "above", true});
    return scene;
}

static QImage painted(const WallScene &scene, WallScale scale, bool asLeds)
{
    QImage image(scale.scaled(scene.size), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    paintWall(&painter, scene, scale, asLeds, image.rect());
    return image;
}

void TestWallView::fits_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("room");
    QTest::addColumn<int>("factor");
    QTest::addColumn<int>("divisor");
    QTest::newRow("exactly") << QSize(100, 20) << QSize(300, 60) << 3 << 1;
    QTest::newRow("one short") << QSize(100, 20) << QSize(299, 60) << 2 << 1;
    QTest::newRow("height decides") << QSize(100, 20) << QSize(900, 41) << 2 << 1;
    QTest::newRow("no more than 16") << QSize(4, 4) << QSize(900, 900) << 16 << 1;
    QTest::newRow("half") << QSize(384, 128) << QSize(300, 100) << 1 << 2;
    QTest::newRow("no less than 1/16") << QSize(16384, 16384) << QSize(9, 9) << 1 << 16;
    QTest::newRow("no screen") << QSize() << QSize(100, 100) << 1 << 1;
    QTest::newRow("no room") << QSize(10, 10) << QSize(-3, 20) << 1 << 1;
}

void TestWallView::fits()
{
    QFETCH(QSize, screen);
    QFETCH(QSize, room);
    const WallScale scale = fittingScale(screen, room);
    QTEST(scale.factor, "factor");
    QTEST(scale.divisor, "divisor");
}

void TestWallView::mapsPixels()
{
    for (const int factor : {1, 3, 16}) {
        const WallScale scale{factor, 1};
        for (int x = -40; x < 40; ++x) {
            const QRect pixel(scale.pixelAt(QPoint(x, 0)), QSize(1, 1));
            QVERIFY2(scale.scaled(pixel).contains(x, 0), qPrintable(QString::number(x)));
        }
    }
}

void TestWallView::paintsEachPixel()
{
    const int factor = 3;
    const QImage image = painted(scene(), {factor, 1}, false);
    const QImage below = picture(QSize(8, 5));
    const QImage above = picture(QSize(6, 4));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QPoint pixel(x / factor, y / factor);
            QRgb expected = qRgb(0, 0, 0);
            if (QRect(8, 4, 6, 4).contains(pixel)) {
                expected = above.pixel(pixel - QPoint(8, 4));
            } else if (QRect(2, 1, 8, 5).contains(pixel)) {
                expected = below.pixel(pixel - QPoint(2, 1));
            }
            if (image.pixel(x, y) != expected) {
                QFAIL(qPrintable(QString("at %1, %2").arg(x).arg(y)));
            }
        }
    }
}

void TestWallView::paintsDots()
{
    const int factor = 8;
    const QImage dots = painted(scene(), {factor, 1}, true);
    const QRgb color = picture(QSize(8, 5)).pixel(3, 2);
    const QPoint corner = QPoint(2 + 3, 1 + 2) * factor;
    QCOMPARE(dots.pixel(corner + QPoint(factor / 2, factor / 2)), color);
    QVERIFY(qGray(dots.pixel(corner)) < 20);
    // Below the smallest factor there is no room for a dot.
    QCOMPARE(painted(scene(), {3, 1}, true), painted(scene(), {3, 1}, false));
}

void TestWallView::paintsSmall()
{
    WallScene whole;
    whole.size = QSize(64, 32);
    QImage red(64, 32, QImage::Format_RGB32);
    red.fill(Qt::red);
    whole.items.append({QRect(0, 0, 64, 32), red, "red", false});
    const QImage image = painted(whole, {1, 4}, true);
    QCOMPARE(image.size(), QSize(16, 8));
    QCOMPARE(image.pixel(8, 4), qRgb(255, 0, 0));
}

void TestWallView::paintsOnlyWhatIsExposed()
{
    const WallScale scale{3, 1};
    const QImage whole = painted(scene(), scale, false);
    // Parts that begin inside a pixel come out as in the whole.
    for (const QRect &part : {QRect(7, 4, 11, 9), QRect(25, 11, 1, 1), QRect(50, 20, 40, 40)}) {
        QImage image(whole.size(), QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        paintWall(&painter, scene(), scale, false, part);
        painter.end();
        const QRect inside = part & whole.rect();
        QCOMPARE(image.copy(inside), whole.copy(inside));
        QCOMPARE(image.pixel(0, 0), QColor(Qt::magenta).rgb());
    }
}

void TestWallView::zooms()
{
    WallView view;
    view.resize(200, 150);
    view.setScene(scene());
    view.show();
    QCOMPARE(view.zoom(), 0);
    QCOMPARE(view.scale().factor, 9);
    QSignalSpy changed(&view, &WallView::scaleChanged);
    QTest::keyClick(&view, Qt::Key_Plus);
    QCOMPARE(view.zoom(), 10);
    QCOMPARE(changed.count(), 1);
    QTest::keyClick(&view, Qt::Key_0);
    QCOMPARE(view.zoom(), 0);
    view.setZoom(99);
    QCOMPARE(view.zoom(), 16);
    view.zoomIn();
    QCOMPARE(view.zoom(), 16);
    view.setZoom(9);
    QCOMPARE(changed.count(), 4);
    // What fits is 9, too: the scale is the same, but the choice is another one.
    view.setZoom(0);
    QCOMPARE(changed.count(), 5);
}

void TestWallView::zoomsOutNeverLarger()
{
    WallView view;
    view.resize(200, 150);
    view.show();
    view.setScene(scene());
    view.setZoom(1);
    view.zoomOut();
    QCOMPARE(view.scale().factor, 1);
    WallScene large;
    large.size = QSize(1000, 500);
    view.setScene(large);
    view.zoomOut();
    QCOMPARE(view.zoom(), 0);
    QVERIFY(view.scale().divisor > 1);
    view.zoomIn();
    QCOMPARE(view.scale(), (WallScale{1, 1}));
}

void TestWallView::keepsThePixelBelowTheMouse()
{
    WallView view;
    view.resize(220, 160);
    WallScene large = scene();
    large.size = QSize(400, 300);
    large.items[0].rect = QRect(150, 120, 8, 5);
    view.setScene(large);
    view.show();
    view.setZoom(2);
    view.horizontalScrollBar()->setValue(250);
    view.verticalScrollBar()->setValue(200);
    const QPoint mouse = view.rectOf(0).center();
    QVERIFY(view.viewport()->rect().contains(mouse));
    QWheelEvent wheel(mouse, view.viewport()->mapToGlobal(mouse), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &wheel);
    QCOMPARE(view.zoom(), 3);
    QVERIFY((view.rectOf(0).center() - mouse).manhattanLength() <= 6);
}

void TestWallView::tellsItems()
{
    WallView view;
    view.resize(200, 150);
    view.setScene(scene());
    view.show();
    QSignalSpy clicked(&view, &WallView::itemClicked);
    QSignalSpy activated(&view, &WallView::itemActivated);
    const QRect overlap = view.rectOf(0) & view.rectOf(1);
    QVERIFY(!overlap.isEmpty());
    QCOMPARE(view.itemAt(overlap.center()), 1);
    QCOMPARE(view.itemAt(view.rectOf(0).topLeft()), 0);
    QCOMPARE(view.itemAt(view.rectOf(0).topLeft() - QPoint(1, 0)), -1);
    QCOMPARE(view.itemAt(QPoint(0, 0)), -1);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.rectOf(0).topLeft());
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.takeFirst().value(0).toInt(), 0);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, overlap.center());
    QCOMPARE(activated.takeFirst().value(0).toInt(), 1);
    QTest::keyClick(&view, Qt::Key_Return);
    QCOMPARE(activated.takeFirst().value(0).toInt(), 1);
    view.setPage(7, QImage());
    view.setScene(WallScene());
    QTest::keyClick(&view, Qt::Key_Return);
    QCOMPARE(activated.count(), 0);
}

QTEST_MAIN(TestWallView)
#include "tst_wallview.moc"
