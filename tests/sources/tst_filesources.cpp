#include "datasourceconfigmanager.h"
#include "loopwatch.h"
#include "sourcemanager.h"

#include <QSaveFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace sources;

class TestFileSources : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_manager.reset(); }
    void followsARewrittenFile();
    void aBrokenFileKeepsTheLastGoodData_data();
    void aBrokenFileKeepsTheLastGoodData();
    void tornFilesAreNeverShown();
    void offersKeys();
    void aMillionRowsDoNotBlock();
    void systemTicksOnTheSecond();

private:
    void write(const QByteArray &bytes, bool replace = false);
    void start(SourceSettings settings);
    [[nodiscard]] QByteArray rows() const
    {
        return toJson(m_manager->snapshot().value("s").value.member("rows"));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SourceManager> m_manager;
    SourceContext m_context;
};

void TestFileSources::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_manager = std::make_unique<SourceManager>();
    m_context = SourceContext();
    m_context.folder = m_folder->path();
    m_context.settling = 40;
}

void TestFileSources::write(const QByteArray &bytes, bool replace)
{
    const QString name = m_folder->filePath("data.csv");
    QSaveFile atOnce(name);
    QFile inPlace(name);
    QFileDevice &file = replace ? static_cast<QFileDevice &>(atOnce) : inPlace;
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    QVERIFY(!replace || atOnce.commit());
}

void TestFileSources::start(SourceSettings settings)
{
    settings.name = "s";
    settings.file = "data.csv";
    m_manager->setSources({settings}, m_context);
}

void TestFileSources::followsARewrittenFile()
{
    SourceSettings settings;
    settings.interval = 100;
    start(settings);
    QTRY_COMPARE(m_manager->health("s").state, SourceHealth::Failed);
    write("a\n1\n");
    QTRY_COMPARE(rows(), QByteArray(R"([{"a":"1"}])"));
    write("a\n2\n");
    QTRY_COMPARE(rows(), QByteArray(R"([{"a":"2"}])"));
    write("a\n3\n", true);
    QTRY_COMPARE(rows(), QByteArray(R"([{"a":"3"}])"));
    write("a\n4\n");
    QTRY_COMPARE(rows(), QByteArray(R"([{"a":"4"}])"));
    QCOMPARE(m_manager->health("s").rows, 1);
    QVERIFY(m_manager->health("s").age() < 5000);
}

void TestFileSources::aBrokenFileKeepsTheLastGoodData_data()
{
    QTest::addColumn<QByteArray>("broken");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << "empty";
    QTest::newRow("open quotes") << QByteArray("a\n\"1") << "quotes";
    QTest::newRow("too large") << QByteArray(5000, 'x') << "larger than 4000 bytes";
}

void TestFileSources::aBrokenFileKeepsTheLastGoodData()
{
    QFETCH(QByteArray, broken);
    write("a\n1\n");
    SourceSettings settings;
    settings.sizeCap = 4000;
    start(settings);
    QTRY_COMPARE(m_manager->health("s").state, SourceHealth::Good);
    write(broken);
    QTRY_COMPARE(m_manager->health("s").state, SourceHealth::Stale);
    QVERIFY(m_manager->health("s").error.contains(
        *static_cast<QString *>(QTest::qData("reason", qMetaTypeId<QString>()))));
    QVERIFY(m_manager->snapshot().value("s").isStale);
    QCOMPARE(rows(), QByteArray(R"([{"a":"1"}])"));
    write("a\n2\n");
    QTRY_COMPARE(rows(), QByteArray(R"([{"a":"2"}])"));
    QVERIFY(!m_manager->snapshot().value("s").isStale);
}

// Written in place, slowly and without end: what is shown was there as a whole at one time.
void TestFileSources::tornFilesAreNeverShown()
{
    write("a,b\n0,0\n0,0\n");
    start(SourceSettings());
    QTRY_COMPARE(m_manager->health("s").state, SourceHealth::Good);
    int shown = 0;
    connect(m_manager.get(), &SourceManager::changed, this, [&] {
        const DataValue table = m_manager->snapshot().value("s").value.member("rows");
        const QString first = table.at(0).member("a").text();
        QCOMPARE(table.size(), 2);
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(table.at(i / 2).at(i % 2).text(), first);
        }
        ++shown;
    });
    for (int i = 1; i <= 12; ++i) {
        QFile file(m_folder->filePath("data.csv"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const QByteArray value = QByteArray::number(i);
        for (const QByteArray &piece : {QByteArray("a,b\n"), value, "," + value + "\n", value + ",",
                                        value, QByteArray("\n")}) {
            file.write(piece);
            QTest::qWait(i % 7);
        }
        file.close();
        QTest::qWait(i % 3 == 0 ? 120 : 0);
    }
    QTRY_COMPARE(rows(), QByteArray(R"([{"a":"12","b":"12"},{"a":"12","b":"12"}])"));
    QVERIFY(shown >= 3);
}

void TestFileSources::offersKeys()
{
    write("name,price\nA,1\n");
    auto *manager = DataSourceConfigManager::instance();
    start(SourceSettings());
    QTRY_COMPARE(manager->GetDynamicData().value(0).fields.size(), 1);
    const DataSourceKey key = manager->GetConfig().sources.value(0).keys.value(0);
    QCOMPARE(key.name, QStringLiteral("rows.{name,price}[]"));
    QCOMPARE(key.type, int(DataSourceKey::RecordList));
    QSignalSpy config(manager, &DataSourceConfigManager::ConfigChanged);
    QSignalSpy values(manager, &DataSourceConfigManager::SourceChanged);
    write("name,price\nB,2\n");
    QTRY_VERIFY(values.count() > 0);
    QCOMPARE(config.count(), 0);
    m_manager.reset();
    QVERIFY(manager->GetConfig().sources.isEmpty() && config.count() > 0);
}

void TestFileSources::aMillionRowsDoNotBlock()
{
    QByteArray csv = "id,name,city,price,note\n";
    for (int i = 0; i < 1000000; ++i) {
        csv += QByteArray::number(i) + ",name,Hamburg,12.50,free\n";
    }
    write(csv);
    csv.clear();
    LoopWatch watch;
    start(SourceSettings());
    QTRY_COMPARE_WITH_TIMEOUT(m_manager->health("s").rows, 1000000, 60000);
    const DataValue table = m_manager->snapshot().value("s").value.member("rows");
    QCOMPARE(table.at(999999).member("id").text(), QStringLiteral("999999"));
    write("id\n1\n");
    QTRY_COMPARE_WITH_TIMEOUT(m_manager->health("s").rows, 1, 60000);
    qInfo("longest gap %lld ms", watch.longest());
    QVERIFY(watch.longest() < 300); // reading at one go takes twice that
}

void TestFileSources::systemTicksOnTheSecond()
{
    SourceSettings settings;
    settings.type = DataSourceEntry::System;
    start(settings);
    QSignalSpy ticks(m_manager.get(), &SourceManager::changed);
    QTRY_VERIFY_WITH_TIMEOUT(ticks.count() >= 3, 6000);
    const SourceData data = m_manager->snapshot().value("s");
    QCOMPARE(data.value.member("second").text(), data.takenAt.toString("ss"));
    QVERIFY(data.takenAt.time().msec() < 500);
}

QTEST_GUILESS_MAIN(TestFileSources)
#include "tst_filesources.moc"
