#include "datacache.h"
#include "datasource.h"

#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace sources;

class TestKeptData : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void isUsedUntilFreshDataComes();
    void damagedFilesAreNotUsed();
    void survivesBeingKilled();
    void aRecordingPlaysWhatCame();

private:
    [[nodiscard]] SourceData data(const QByteArray &json) const
    {
        SourceData data;
        data.value = parseJson(json).value;
        data.takenAt = QDateTime::fromMSecsSinceEpoch(1234567890123, Qt::UTC);
        return data;
    }
    void write(const QByteArray &bytes)
    {
        QFile file(m_folder->filePath("data.json"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    SourceSettings m_settings;
    SourceContext m_context;
};

void TestKeptData::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = SourceSettings();
    m_settings.name = "s";
    m_settings.type = 2;
    m_settings.file = "data.json";
    m_settings.interval = 0.1;
    m_context = SourceContext();
    m_context.settling = 20;
    m_context.folder = m_folder->path();
    m_context.cacheFolder = m_folder->filePath("cache/sources");
    m_context.programme = "p";
}

void TestKeptData::isUsedUntilFreshDataComes()
{
    DataCache(m_settings, m_context).store(data(R"({"z":"1","a":[{"b":"2","a":null}]})"), 10);
    DataSource source(m_settings, m_context);
    source.start();
    QTRY_COMPARE(source.health().state, SourceHealth::Stale);
    QCOMPARE(toJson(source.latest().value), QByteArray(R"({"z":"1","a":[{"b":"2","a":null}]})"));
    QCOMPARE(source.latest().takenAt.toMSecsSinceEpoch(), 1234567890123);
    QVERIFY(source.latest().isStale && source.keys().size() == 2);
    write("{\"z\": 2}");
    QTRY_COMPARE(source.health().state, SourceHealth::Good);
    QVERIFY(!source.latest().isStale);
    source.stop();
    QTRY_COMPARE(toJson(DataCache(m_settings, m_context).load().value), QByteArray(R"({"z":"2"})"));
    m_settings.file = "other.json";
    QVERIFY(DataCache(m_settings, m_context).load().value.isMissing());
}

void TestKeptData::damagedFilesAreNotUsed()
{
    DataCache cache(m_settings, m_context);
    cache.store(data(R"({"a":"1234567890"})"), 10);
    QFile file(cache.fileName());
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QByteArray whole = file.readAll();
    QLoggingCategory::setFilterRules("lctrlsex.sources=false");
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray bytes = whole;
        bytes[at] = char(bytes.at(at) ^ 1);
        for (const QByteArray &damaged : {whole.left(at), bytes}) {
            file.resize(0);
            file.seek(0);
            file.write(damaged);
            file.flush();
            const DataValue value = cache.load().value;
            QVERIFY(value.isMissing() || value == data(R"({"a":"1234567890"})").value);
        }
    }
}

void TestKeptData::survivesBeingKilled()
{
    const QByteArray filler(300000, 'x');
    const QByteArray first = "{\"b\":\"" + filler + "\"}";
    DataCache(m_settings, m_context).store(data(first), 1);
    for (int round = 0; round < 20; ++round) {
        const pid_t child = fork();
        if (child == 0) {
            for (int i = 0;; ++i) {
                DataCache(m_settings, m_context)
                    .store(data("{\"a\":" + QByteArray::number(i) + ",\"b\":\"" + filler + "\"}"),
                           1);
            }
        }
        QTest::qSleep(30 + round * 3);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        QCOMPARE(DataCache(m_settings, m_context).load().value.member("b").text().size(), 300000);
    }
}

void TestKeptData::aRecordingPlaysWhatCame()
{
    const QString record = m_folder->filePath("record");
    {
        write("{\"v\": 1}");
        DataSource source(m_settings, m_context);
        source.start();
        QTRY_COMPARE(source.health().state, SourceHealth::Good);
        source.recordTo(record);
        write("{\"v\": 2.0}");
        QTRY_COMPARE(source.latest().value.member("v").text(), QStringLiteral("2.0"));
        QVERIFY(QFile::remove(m_folder->filePath("data.json")));
        QTRY_COMPARE(source.health().state, SourceHealth::Stale);
    }
    QFile file(record);
    QVERIFY(file.open(QIODevice::Append) && file.write("{\"time\":\"20") > 0); // killed there
    file.close();
    m_settings.replay = record;
    DataSource replayed(m_settings, m_context);
    QStringList seen;
    connect(&replayed, &DataSource::healthChanged, this, [&] {
        seen.append(replayed.latest().value.member("v").text() + ' ' +
                    replayed.health().error.left(8));
    });
    replayed.start();
    QTRY_VERIFY(seen.contains("2.0 the file"));
    seen.removeDuplicates();
    seen.removeAll(" ");
    QCOMPARE(seen, QStringList({"1 ", "2.0 ", "2.0 the file"}));
}

QTEST_GUILESS_MAIN(TestKeptData)
#include "tst_keptdata.moc"
