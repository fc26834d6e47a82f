#include "table/spangrid.h"

#include <QtTest>

using namespace lctrlsex;

Q_DECLARE_METATYPE(Span)
Q_DECLARE_METATYPE(QVector<Span>)

class TestSpanGrid : public QObject
{
    Q_OBJECT

private slots:
    void growsOver_data()
    {
        QTest::addColumn<Span>("area");
        QTest::addColumn<QVector<Span>>("spans");
        QTest::addColumn<Span>("grown");
        const Span square{1, 1, 2, 2};
        QTest::newRow("nothing merged") << square << QVector<Span>() << square;
        QTest::newRow("a neighbour stays out") << square << QVector<Span>{{1, 3, 2, 1}} << square;
        QTest::newRow("a cut span comes in")
            << square << QVector<Span>{{0, 2, 2, 2}} << Span{0, 1, 3, 3};
        QTest::newRow("which cuts another one")
            << square << QVector<Span>{{0, 3, 2, 1}, {2, 2, 1, 2}} << Span{0, 1, 3, 3};
    }
    void growsOver()
    {
        QFETCH(Span, area);
        QFETCH(QVector<Span>, spans);
        QTEST(grownOver(area, spans), "grown");
    }

    void followsLines_data()
    {
        QTest::addColumn<bool>("inserts");
        QTest::addColumn<int>("at");
        QTest::addColumn<int>("count");
        QTest::addColumn<Span>("after");
        // The span covers rows 2 to 4 of column 1.
        QTest::newRow("inserted above") << true << 0 << 2 << Span{4, 1, 3, 1};
        QTest::newRow("inserted at its top") << true << 2 << 1 << Span{3, 1, 3, 1};
        QTest::newRow("inserted inside") << true << 4 << 2 << Span{2, 1, 5, 1};
        QTest::newRow("inserted below") << true << 5 << 2 << Span{2, 1, 3, 1};
        QTest::newRow("removed above") << false << 0 << 2 << Span{0, 1, 3, 1};
        QTest::newRow("removed across its top") << false << 1 << 2 << Span{1, 1, 2, 1};
        QTest::newRow("removed inside") << false << 3 << 1 << Span{2, 1, 2, 1};
        QTest::newRow("removed across its end") << false << 4 << 3 << Span{2, 1, 2, 1};
        QTest::newRow("removed below") << false << 5 << 9 << Span{2, 1, 3, 1};
        QTest::newRow("removed as a whole") << false << 1 << 5 << Span{1, 1, 0, 1};
    }
    void followsLines()
    {
        QFETCH(bool, inserts);
        QFETCH(int, at);
        QFETCH(int, count);
        QFETCH(Span, after);
        const auto follow = inserts ? afterInsertion : afterRemoval;
        QCOMPARE(follow(Span{2, 1, 3, 1}, Axis::Rows, at, count), after);
        const Span turned{after.column, after.row, after.columns, after.rows};
        QCOMPARE(follow(Span{1, 2, 1, 3}, Axis::Columns, at, count), turned);
    }

    void dividesOnlyEvenly()
    {
        const Span span{1, 2, 6, 4};
        const QVector<Span> three{{1, 2, 2, 4}, {3, 2, 2, 4}, {5, 2, 2, 4}};
        QCOMPARE(equalParts(span, Axis::Rows, 3), three);
        const QVector<Span> halves{{1, 2, 6, 2}, {1, 4, 6, 2}};
        QCOMPARE(equalParts(span, Axis::Columns, 2), halves);
        for (const int pieces : {-1, 0, 4, 7, 100}) {
            QVERIFY(equalParts(span, Axis::Rows, pieces).isEmpty());
        }
    }
};

QTEST_APPLESS_MAIN(TestSpanGrid)
#include "tst_spangrid.moc"
