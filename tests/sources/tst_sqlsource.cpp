#include "datasource.h"

#include <QDir>
#include <QProcess>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

using namespace sources;

namespace {

/** A PostgreSQL server of our own; it refuses to run as root and is then run as somebody else. */
class PostgresServer
{
public:
    PostgresServer()
        : m_folder("/tmp/lctrlsex-pg-XXXXXX")
    {
        const QDir versions("/usr/lib/postgresql");
        const QString version = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0);
        m_programs = versions.filePath(version + "/bin/");
        QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7777));
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        port = probe.serverPort();
        probe.close();
        const QString data = m_folder.filePath("data");
        if (version.isEmpty() || !run("initdb", {"-D", data, "-U", "tester", "-A", "trust"})) {
            return;
        }
        isRunning = run("pg_ctl",
                        {"-D", data, "-w", "-l", m_folder.filePath("log"), "-o",
                         QString("-p %1 -k '' -c listen_addresses=127.0.0.1").arg(port), "start"});
    }
    ~PostgresServer() { stop(); }

    void stop()
    {
        if (isRunning) {
            isRunning = false;
            run("pg_ctl", {"-D", m_folder.filePath("data"), "-m", "immediate", "stop"});
        }
    }

    bool isRunning = false;
    int port = 0;

private:
    bool run(const QString &program, const QStringList &arguments) const
    {
        QStringList all = arguments;
        all.prepend(m_programs + program);
        if (geteuid() == 0) {
            const bool isThere = getpwnam("postgres") != nullptr;
            all = QStringList{"-u", isThere ? "postgres" : "nobody", "--"} + all;
            all.prepend("runuser");
        }
        const QString first = all.takeFirst();
        QProcess process;
        process.setWorkingDirectory("/tmp");
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(first, all);
        return process.waitForFinished(60000) && process.exitCode() == 0;
    }

    QTemporaryDir m_folder;
    QString m_programs;
};

} // namespace

class TestSqlSource : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup() { m_source.reset(); }
    void readsAnSqliteFile();
    void failures_data();
    void failures();
    void readsPostgres();

private:
    void start();
    [[nodiscard]] QByteArray value() const { return toJson(m_source->latest().value); }

    QTemporaryDir m_folder;
    std::unique_ptr<DataSource> m_source;
    SourceSettings m_settings;
};

void TestSqlSource::initTestCase()
{
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName(m_folder.filePath("shop.db"));
    QVERIFY(database.open());
    QSqlQuery query;
    QVERIFY(query.exec("create table goods (name text, price numeric, note text)"));
    QVERIFY(query.exec("insert into goods values ('Tee 茶', 12.5, null), ('', 3, 'x')"));
}

void TestSqlSource::init()
{
    m_settings = SourceSettings();
    m_settings.name = "s";
    m_settings.type = 4;
    m_settings.timeout = 5;
    m_settings.connection.driver = "QSQLITE";
    m_settings.connection.database = "shop.db";
    m_settings.query = "select * from goods order by price";
}

void TestSqlSource::start()
{
    SourceContext context;
    context.folder = m_folder.path();
    m_source = std::make_unique<DataSource>(m_settings, context);
    m_source->start();
}

void TestSqlSource::readsAnSqliteFile()
{
    m_settings.queries = {NamedText{"count", "select count(*) as n, 1 as n from goods"}};
    start();
    QTRY_COMPARE(m_source->health().state, SourceHealth::Good);
    QCOMPARE(QString::fromUtf8(value()),
             QStringLiteral(R"({"rows":[{"name":"","price":"3","note":"x"},)"
                            R"({"name":"Tee 茶","price":"12.5","note":null}],)"
                            R"("count":[{"n":"2","n 2":"1"}]})"));
    QVERIFY(QSqlQuery().exec("delete from goods where price > 5"));
    m_source->refresh();
    QTRY_COMPARE(m_source->health().rows, 2);
    QVERIFY(QSqlQuery().exec("insert into goods values ('Tee 茶', 12.5, null)"));
}

void TestSqlSource::failures_data()
{
    QTest::addColumn<QString>("driver");
    QTest::addColumn<QString>("database");
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("reason");
    const QString good = "select * from goods";
    QTest::newRow("driver") << "QODBC"
                            << "x" << good << "install the Debian package libqt5sql5-odbc";
    QTest::newRow("no such driver") << "QNONE"
                                    << "x" << good << "the driver QNONE is missing";
    QTest::newRow("no file") << "QSQLITE"
                             << "none.db" << good << "cannot be opened";
    QTest::newRow("no table") << "QSQLITE"
                              << "shop.db"
                              << "select * from none"
                              << "no such table";
    QTest::newRow("writing") << "QSQLITE"
                             << "shop.db"
                             << "delete from goods"
                             << "readonly";
    QTest::newRow("variable") << "QSQLITE"
                              << "${env:LCTRLSEX_NOT_SET}" << good << "LCTRLSEX_NOT_SET";
    const QString many =
        "with recursive n(i) as (select 1 union all select i + 1 from n) select i from n";
    QTest::newRow("rows") << "QSQLITE"
                          << "shop.db" << many << "more than 1000000 rows";
}

void TestSqlSource::failures()
{
    QFETCH(QString, driver);
    QFETCH(QString, reason);
    if (QSqlDatabase::isDriverAvailable(driver) && driver != "QSQLITE") {
        QSKIP("the driver is installed here");
    }
    m_settings.connection.driver = driver;
    m_settings.connection.database =
        *static_cast<QString *>(QTest::qData("database", qMetaTypeId<QString>()));
    m_settings.query = *static_cast<QString *>(QTest::qData("query", qMetaTypeId<QString>()));
    m_settings.timeout = 60;
    start();
    QTRY_COMPARE_WITH_TIMEOUT(m_source->health().state, SourceHealth::Failed, 60000);
    QVERIFY2(m_source->health().error.contains(reason), qPrintable(m_source->health().error));
    QVERIFY(!QFile::exists(m_folder.filePath("none.db")));
}

void TestSqlSource::readsPostgres()
{
    PostgresServer server;
    if (!server.isRunning || !QSqlDatabase::isDriverAvailable("QPSQL")) {
        QSKIP("no PostgreSQL server can be started here");
    }
    m_settings.connection.driver = "QPSQL";
    m_settings.connection.host = "127.0.0.1";
    m_settings.connection.port = server.port;
    m_settings.connection.user = "tester";
    m_settings.connection.database = "postgres";
    m_settings.query =
        "select 12.50::numeric as price, null as n, true as t, '中' as c, 1e10::float8 as f";
    start();
    QTRY_COMPARE_WITH_TIMEOUT(m_source->health().state, SourceHealth::Good, 10000);
    QCOMPARE(QString::fromUtf8(value()),
             QStringLiteral(
                 R"({"rows":[{"price":"12.50","n":null,"t":"true","c":"中","f":"10000000000"}]})"));
    server.stop();
    m_source->refresh();
    QTRY_COMPARE_WITH_TIMEOUT(m_source->health().state, SourceHealth::Stale, 10000);

    PostgresServer slow;
    m_settings.connection.port = slow.port;
    m_settings.query = "select pg_sleep(30)";
    m_settings.timeout = 0.5;
    start();
    QTRY_COMPARE_WITH_TIMEOUT(m_source->health().state, SourceHealth::Failed, 10000);
    QVERIFY2(m_source->health().error.contains("timeout"), qPrintable(m_source->health().error));
}

QTEST_GUILESS_MAIN(TestSqlSource)
#include "tst_sqlsource.moc"
