#include "table/datasourceindex.h"

#include "datasourceconfig.h"

#include <QtTest>

using namespace lctrlsex;

class TestDataSourceIndex : public QObject
{
    Q_OBJECT

    static DataSourceConfig config()
    {
        DataSourceConfig config;
        config.sources = {
            {"weather", 3, true, {{"wind", 1, "4", true}, {"air temperature", 1, "21.5", true}}},
            {"off", 1, false, {{"hidden", 1, "x", true}}},
            {"plan", 2, true, {{"rows", 4, "", true}, {"wind", 2, "other", true}}}};
        return config;
    }

private slots:
    void readsTheEnabledSources()
    {
        const DataSourceIndex index(config(), "weather");
        QCOMPARE(index.sourceNames(), QStringList({"weather", "plan"}));
        QCOMPARE(index.selectedSource(), QString("weather"));
        QCOMPARE(index.fieldNames(), QStringList({"air temperature", "wind"}));
        QCOMPARE(index.values().value("wind"), QString("4"));
        QCOMPARE(index.qualifiedValues().value("plan:wind"), QString("other"));
        QCOMPARE(
            index.descriptors().keys(),
            QStringList({"plan:rows", "plan:wind", "weather:air temperature", "weather:wind"}));
        const KeyDescriptor rows{2, 4};
        QCOMPARE(index.descriptors().value("plan:rows"), rows);
        QCOMPARE(index.listWidth(), 15);
        QCOMPARE(DataSourceIndex(config(), "off").selectedSource(), QString());
    }

    void widthFollowsTheLongestName_data()
    {
        QTest::addColumn<QVector<int>>("lengths");
        QTest::addColumn<int>("width");
        QTest::newRow("short names") << QVector<int>{3, 9} << 10;
        QTest::newRow("the longest counts") << QVector<int>{30, 12} << 30;
        QTest::newRow("just counted") << QVector<int>{12, 99} << 99;
        QTest::newRow("too long to count") << QVector<int>{12, 100, 250} << 12;
    }
    void widthFollowsTheLongestName()
    {
        QFETCH(QVector<int>, lengths);
        DataSourceEntry source{"s", 1, true, {}};
        for (const int length : lengths) {
            source.keys.append({QString(length, 'n'), 1, "", true});
        }
        DataSourceConfig one;
        one.sources = {source};
        QTEST(DataSourceIndex(one, "s").listWidth(), "width");
        QCOMPARE(longerLength(50, 80), 80);
        QCOMPARE(longerLength(120, 200), 120);
    }
};

QTEST_APPLESS_MAIN(TestDataSourceIndex)
#include "tst_datasourceindex.moc"
