// "pagerender watch" as a wall of screens uses it: a process, a folder of page files.

#include "livetable.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Key = "s:rows.{name,price}[]";

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** A picture that lost its end may still load. */
bool isWholePng(const QByteArray &bytes)
{
    return bytes.endsWith("IEND\xae\x42\x60\x82") && !QImage::fromData(bytes, "png").isNull();
}

} // namespace

class TestWatch : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void followsDataAndProgramme();
    void pagesAreWholeWheneverItIsKilled();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString page(const QString &name) const { return path("out/" + name + ".png"); }
    QDateTime written(const QString &name) const { return QFileInfo(page(name)).lastModified(); }
    QStringList pages() const { return QDir(path("out")).entryList({"*.png"}, QDir::Files); }
    void start();
    void store(const QJsonArray &items);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QProcess> m_process;
};

void TestWatch::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestWatch::cleanup()
{
    m_process.reset(); // kills it
}

void TestWatch::start()
{
    m_process = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CACHE_HOME", path("cache"));
    m_process->setProcessEnvironment(environment);
    m_process->setStandardErrorFile(path("messages"));
    m_process->start(QStringLiteral(LCTRLSEX_BINARY_DIR "/bin/pagerender"),
                     {"watch", path("p.json"), "-o", path("out")});
    QVERIFY(m_process->waitForStarted());
}

void TestWatch::store(const QJsonArray &items)
{
    const QJsonArray sources{live::csvSource("s", "s.csv")};
    QVERIFY(live::write(path("p.json"), live::programme(sources, items), true));
}

void TestWatch::followsDataAndProgramme()
{
    const QString csv = path("s.csv");
    const QJsonObject table = live::item("Live", Key);
    const QJsonObject plain = live::item("Plain");
    QVERIFY(live::write(csv, live::records(3)));
    store({table, plain});
    start();
    const QStringList three{"Live-1.png", "Live-2.png", "Plain-1.png"};
    QTRY_COMPARE(pages(), three);
    const QDateTime plainTime = written("Plain-1");
    const QDateTime firstTime = written("Live-1");
    const QByteArray first = contentOf(page("Live-1"));

    QVERIFY(live::write(csv, live::records(5))); // a page more; the first one is as it was
    QTRY_VERIFY(QFile::exists(page("Live-3")));
    QCOMPARE(written("Live-1"), firstTime);
    QVERIFY(live::write(csv, live::records(3, 70))); // a page less, all others new
    QTRY_COMPARE(pages(), three);
    QVERIFY(contentOf(page("Live-1")) != first);
    QCOMPARE(written("Plain-1"), plainTime);

    QVERIFY(live::write(path("p.json"), "{ \"format\":"));
    QTRY_VERIFY(contentOf(path("messages")).contains("p.json"));
    QCOMPARE(pages(), three);
    QVERIFY(live::write(csv, live::records(3))); // they still follow the data
    QTRY_COMPARE(contentOf(page("Live-1")), first);
    QCOMPARE(written("Plain-1"), plainTime);

    store({plain, live::item("New")});
    QTRY_COMPARE(pages(), QStringList({"New-1.png", "Plain-1.png"}));
    QCOMPARE(written("Plain-1"), plainTime);
    store({table, plain});
    QTRY_COMPARE(pages(), three);
    QCOMPARE(contentOf(page("Live-1")), first);
}

void TestWatch::pagesAreWholeWheneverItIsKilled()
{
    const QDateTime start = QDateTime::currentDateTimeUtc();
    QByteArray record;
    for (int i = 0; i < 1000; ++i) { // a change each hundredth of a second, pages come and go
        QJsonArray rows;
        for (int row = 0; row < 3 + i % 4; ++row) {
            rows.append(QJsonObject{{"name", QString::number(i)}, {"price", QString::number(row)}});
        }
        const QJsonObject value{{"rows", rows}};
        record +=
            QJsonDocument(QJsonObject{{"time", start.addMSecs(i * 10).toString(Qt::ISODateWithMs)},
                                      {"value", value}})
                .toJson(QJsonDocument::Compact) +
            '\n';
    }
    QVERIFY(live::write(path("record"), record));
    const QJsonObject source{{"name", "s"}, {"file", "s.csv"}, {"replay", "record"}};
    QVERIFY(live::write(path("p.json"),
                        live::programme(QJsonArray{source}, {live::item("Live", Key)})));
    QSet<QByteArray> seen;
    for (int kill = 0; kill < 20; ++kill) {
        this->start();
        const QDateTime before = written("Live-1");
        QTRY_VERIFY(written("Live-1") != before);
        QTest::qWait(QRandomGenerator::global()->bounded(300));
        m_process->kill();
        QVERIFY(m_process->waitForFinished());
        const QStringList files = pages();
        for (const QString &file : files) {
            const QByteArray bytes = contentOf(path("out/" + file));
            QVERIFY2(isWholePng(bytes), qPrintable(file));
            seen.insert(bytes);
        }
    }
    qInfo("%d different pages", int(seen.size()));
    QVERIFY(seen.size() > 20); // it was busy when it was killed
}

QTEST_GUILESS_MAIN(TestWatch)
#include "tst_watch.moc"
