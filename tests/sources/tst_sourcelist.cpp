#include "lcontrollernode.h"
#include "secrets.h"
#include "sourcelist.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace sources;

namespace {

QByteArray programme(const QByteArray &sources)
{
    return "{\"format\": \"lctrlsex-programme\", \"version\": 1, \"sources\":\n" + sources + "}";
}

} // namespace

class TestSourceList : public QObject
{
    Q_OBJECT
private slots:
    void faults_data();
    void faults();
    void survivesARoundTrip();
    void standsInAFileOfItsOwn();
    void secretsAreNotStored();
    void referencesAreResolvedAtUse();
};

void TestSourceList::faults_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("expected");
    const auto row = [](const QByteArray &source, const char *expected) {
        QTest::newRow(source) << source << QString::fromUtf8(expected);
    };
    row(R"({"name": "n", "file": "a.csv"})", "");
    row(R"({"name": "n", "type": 99})", "");
    row(R"({"name": "n", "type": 3, "replay": "a"})", "");
    row(R"({"name": 5, "file": "a"})", "line 2, column 11, sources[0].name: it must be a text");
    row(R"({"name": "a:b", "file": "a"})", "line 2, column 11, sources[0].name: a name must not");
    row(R"({"name": "n"})", "line 2, column 2, sources[0].file: it is missing");
    row(R"({"name": "n", "file": "a", "interval": -1})",
        "sources[0].interval: it must be a number");
    row(R"({"name": "n", "file": "a", "delimiter": "ab"})", "sources[0].delimiter: ");
    row(R"({"name": "n", "file": "a", "encoding": "x-none"})", "sources[0].encoding: there is no");
    row(R"({"name": "n", "type": 3, "url": "file:///etc/passwd"})", "sources[0].url: ");
    row(R"({"name": "n", "type": 3, "url": "http://u:p@h/"})", "sources[0].url: a secret");
    row(R"({"name": "n", "type": 3, "url": "http://u:${env:P}@h/"})", "");
    row(R"({"name": "n", "type": 3, "url": "http://h/?access_token=5"})",
        "sources[0].url: a secret");
    row(R"({"name": "n", "type": 3, "url": "http://h/", "headers": {"Authorization": "Bearer x"}})",
        "sources[0].headers.Authorization: a secret");
    row(R"({"name": "n", "type": 3, "url": "http://h/",
        "headers": {"Authorization": "Bearer ${env:T}", "Accept": "a"}})",
        "");
    row(R"({"name": "n", "type": 4, "connection": {"driver": "QPSQL", "password": "x"},
        "queries": {"q": "select 1 where token = 'a'"}})",
        "sources[0].connection.password: a secret");
    row(R"({"name": "n", "type": 4, "connection": {"driver": "QODBC", "database": "UID=a;PWD=b"},
        "queries": {"q": "select 1"}})",
        "sources[0].connection.database: a secret");
    row(R"({"name": "n", "file": "a", "my": [{"Token": 5}]})", "sources[0].my[0].Token: a secret");
    row("7", "sources[0]: it must be an object");
}

void TestSourceList::faults()
{
    QFETCH(QByteArray, source);
    QFETCH(QString, expected);
    const QByteArray bytes = programme("[" + source + ", {\"name\": \"good\", \"type\": 5}]");
    const ReadProgramme read = readProgramme(bytes);
    QVERIFY(read.controller != nullptr);
    const ReadSources got = readSources(*read.controller, QString(), bytes);
    QCOMPARE(got.list.sources.size(), expected.isEmpty() ? 2 : 1);
    QCOMPARE(got.list.sources.constLast().name, QStringLiteral("good"));
    const ProgrammeError fault = got.faults.value(0);
    const QString text = fault.placeText() + ": " + fault.reason;
    QVERIFY2(expected.isEmpty() ? got.faults.isEmpty() : text.contains(expected), qPrintable(text));
}

void TestSourceList::survivesARoundTrip()
{
    const ReadProgramme read = readProgramme(programme(R"([{"name": "n", "type": 4, "new": [1],
        "connection": {"driver": "QSQLITE", "database": "a.db", "pool": 3, "port": 5},
        "queries": {"q": "select 1"}, "interval": 2.5, "enabled": false}, {"name": 5}])"));
    const QByteArray before = writeProgramme(*read.controller);
    const SourceList list = readSources(*read.controller, QString()).list;
    QCOMPARE(list.sources.value(0).connection.port, 5);
    QVERIFY(!storeSources(read.controller.get(), QString(), list).isSet());
    QCOMPARE(writeProgramme(*read.controller), before);
}

void TestSourceList::standsInAFileOfItsOwn()
{
    const QTemporaryDir folder;
    const ReadProgramme read = readProgramme(programme("\"other.json\""));
    SourceList list = readSources(*read.controller, folder.path()).list;
    QCOMPARE(list.reference, QStringLiteral("other.json"));
    list.sources.resize(1);
    list.sources[0].name = "clock";
    list.sources[0].type = 5;
    QVERIFY(!storeSources(read.controller.get(), folder.path(), list).isSet());
    QCOMPARE(readSources(*read.controller, folder.path()).list.sources.value(0).name, "clock");

    QFile file(folder.filePath("other.json"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("[{\n]") > 0);
    file.close();
    const ReadSources broken = readSources(*read.controller, folder.path());
    QCOMPARE(broken.faults.value(0).at.line, 2);
    QVERIFY(storeSources(read.controller.get(), folder.path(), broken.list).isSet());
}

void TestSourceList::secretsAreNotStored()
{
    const ReadProgramme read = readProgramme(programme("[]"));
    const QByteArray before = writeProgramme(*read.controller);
    SourceList list;
    SourceSettings settings;
    settings.name = "n";
    settings.type = 3;
    settings.url = "https://host/";
    settings.headers.append(NamedText{"X-Api-Key", "abc"});
    list.sources.append(settings);
    const ProgrammeError error = storeSources(read.controller.get(), QString(), list);
    QCOMPARE(error.value, QStringLiteral("sources[0].headers.X-Api-Key"));
    QVERIFY(error.reason.contains("${env:NAME}"));
    QCOMPARE(writeProgramme(*read.controller), before);
}

void TestSourceList::referencesAreResolvedAtUse()
{
    qputenv("LCTRLSEX_TEST_A", "${env:HOME}");
    QString error;
    QCOMPARE(resolveReferences("x ${env:LCTRLSEX_TEST_A}$y", &error), QString("x ${env:HOME}$y"));
    QVERIFY(error.isEmpty());
    QVERIFY(resolveReferences("${env:LCTRLSEX_NOT_SET}", &error).isEmpty());
    QVERIFY(error.contains("LCTRLSEX_NOT_SET"));
}

QTEST_GUILESS_MAIN(TestSourceList)
#include "tst_sourcelist.moc"
