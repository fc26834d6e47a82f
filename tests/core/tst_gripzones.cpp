#include "gripzones.h"

#include <QTest>

using lctrlsex::GripDrag;

/** The arithmetic of the band over a picture. */
class TestGripZones : public QObject
{
    Q_OBJECT
private slots:
    void gripsStandWhereTheyFit_data();
    void gripsStandWhereTheyFit();
    void draggingChangesItsSides_data();
    void draggingChangesItsSides();
};

void TestGripZones::gripsStandWhereTheyFit_data()
{
    QTest::addColumn<QSize>("band");
    QTest::addColumn<QVector<int>>("zones");
    QTest::addColumn<int>("hit"); ///< In the middle of the band.

    QTest::newRow("all") << QSize(100, 50) << QVector<int>{1, 2, 3, 4, 5, 6, 7, 8} << 0;
    QTest::newRow("24 wide") << QSize(24, 15) << QVector<int>{1, 2, 3, 4, 7, 8} << 3;
    QTest::newRow("20 wide, 16 high") << QSize(20, 16) << QVector<int>{1, 2, 4, 5, 6, 7} << 0;
    QTest::newRow("a grip") << QSize(8, 8) << QVector<int>{1, 2, 4, 7} << 1;
}

void TestGripZones::gripsStandWhereTheyFit()
{
    QFETCH(QSize, band);
    const auto zones = lctrlsex::gripZones(band, QSize(8, 8));
    QTEST(zones.keys().toVector(), "zones");
    const int right = band.width() - 8;
    const int bottom = band.height() - 8;
    const QMap<int, QPoint> corners = {{1, {right, bottom}},
                                       {2, {0, 0}},
                                       {3, {band.width() / 2 - 4, 0}},
                                       {4, {right, 0}},
                                       {5, {0, band.height() / 2 - 4}},
                                       {6, {right, band.height() / 2 - 4}},
                                       {7, {0, bottom}},
                                       {8, {band.width() / 2 - 4, bottom}}};
    for (auto it = zones.begin(); it != zones.end(); ++it) {
        QCOMPARE(*it, QRect(corners.value(it.key()), QSize(8, 8)));
    }
    QTEST(lctrlsex::gripZoneAt(zones, QPoint(band.width() / 2, band.height() / 2)), "hit");
}

void TestGripZones::draggingChangesItsSides_data()
{
    QTest::addColumn<int>("zone");
    QTest::addColumn<QPoint>("moved");
    QTest::addColumn<QRect>("free");  ///< Of 100 by 50 at 10, 20; null for ignored.
    QTest::addColumn<QRect>("ratio"); ///< With Shift.
    QTest::addColumn<Qt::CursorShape>("cursor");

    const auto row = [](const char *name, int zone, QPoint moved, QRect free, QRect ratio,
                        Qt::CursorShape cursor) {
        QTest::newRow(name) << zone << moved << free << ratio << cursor;
    };
    const QPoint moved(20, 5);
    row("inside", 0, moved, {30, 25, 100, 50}, {30, 25, 100, 50}, Qt::ArrowCursor);
    row("bottom right", 1, moved, {10, 20, 120, 55}, {10, 20, 120, 60}, Qt::SizeFDiagCursor);
    row("top left", 2, moved, {30, 25, 80, 45}, {20, 25, 90, 45}, Qt::SizeFDiagCursor);
    row("top", 3, moved, {10, 25, 100, 45}, {10, 25, 90, 45}, Qt::SizeVerCursor);
    row("top right", 4, moved, {10, 25, 120, 45}, {10, 10, 120, 60}, Qt::SizeBDiagCursor);
    row("left", 5, moved, {30, 20, 80, 50}, {30, 20, 80, 40}, Qt::SizeHorCursor);
    row("right", 6, moved, {10, 20, 120, 50}, {10, 20, 120, 60}, Qt::SizeHorCursor);
    row("bottom left", 7, moved, {30, 20, 80, 55}, {0, 20, 110, 55}, Qt::SizeBDiagCursor);
    row("bottom", 8, moved, {10, 20, 100, 55}, {10, 20, 110, 55}, Qt::SizeVerCursor);
    row("to the minimum", 2, {92, 42}, {102, 62, 8, 8}, {94, 62, 16, 8}, Qt::SizeFDiagCursor);
    row("past it", 2, {93, 0}, {}, {10, 20, 100, 50}, Qt::SizeFDiagCursor);
    row("past the other corner", 2, {300, 300}, {}, {}, Qt::SizeFDiagCursor);
    row("to the maximum", 1, {100, 150}, {10, 20, 200, 200}, {}, Qt::SizeFDiagCursor);
    row("past the maximum", 8, {0, 151}, {}, {}, Qt::SizeVerCursor);
}

void TestGripZones::draggingChangesItsSides()
{
    QFETCH(int, zone);
    QFETCH(QPoint, moved);
    const GripDrag drag = {zone, QRect(10, 20, 100, 50), QSize(8, 8), QSize(200, 200)};
    QTEST(drag.geometryAt(moved, false), "free");
    QTEST(drag.geometryAt(moved, true), "ratio");
    QTEST(lctrlsex::gripCursor(zone), "cursor");
    const GripDrag boundless = {zone, drag.start, QSize(), QSize()};
    QVERIFY(!boundless.geometryAt(moved, false).isNull());
}

QTEST_APPLESS_MAIN(TestGripZones)
#include "tst_gripzones.moc"
