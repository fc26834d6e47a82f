#include "datasource.h"
#include "loopbackserver.h"

#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

using namespace sources;

class TestHttpSource : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_source.reset(); }
    void formats_data();
    void formats();
    void asksForWhatIsNew();
    void cutAnswersAreNeverShown_data();
    void cutAnswersAreNeverShown();
    void failures_data();
    void failures();
    void lateAnswers_data();
    void lateAnswers();
    void largeAnswersEndEarly();
    void triesLessOftenWhileItFails();
    void secretsGoToOneServerOnly();
    void trustsCertificates_data();
    void trustsCertificates();

private:
    void start(const QString &url, int backOff = 100000);
    [[nodiscard]] QByteArray value() const { return toJson(m_source->latest().value); }

    std::unique_ptr<LoopbackServer> m_server;
    std::unique_ptr<DataSource> m_source;
    SourceSettings m_settings;
};

void TestHttpSource::init()
{
    m_server = std::make_unique<LoopbackServer>();
    m_settings = SourceSettings();
    m_settings.name = "s";
    m_settings.type = 3;
    m_settings.interval = 1000;
    m_settings.timeout = 5;
}

void TestHttpSource::start(const QString &url, int backOff)
{
    SourceContext context;
    context.backOff = backOff;
    m_settings.url = url;
    m_source = std::make_unique<DataSource>(m_settings, context);
    m_source->start();
}

void TestHttpSource::formats_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("JSON") << QByteArray("application/vnd.x+json; charset=utf-8")
                          << QByteArray("{\"b\": 1.50, \"a\": 2}")
                          << QByteArray(R"({"b":"1.50","a":"2"})");
    QTest::newRow("CSV") << QByteArray("text/csv") << QByteArray("a\n1\n")
                         << QByteArray(R"({"rows":[{"a":"1"}]})");
    QTest::newRow("plain JSON") << QByteArray("text/plain") << QByteArray(" [1]")
                                << QByteArray(R"({"rows":["1"]})");
    QTest::newRow("plain CSV") << QByteArray("text/plain") << QByteArray("a;b\n1;2")
                               << QByteArray(R"({"rows":[{"a":"1","b":"2"}]})");
}

void TestHttpSource::formats()
{
    QFETCH(QByteArray, type);
    QFETCH(QByteArray, body);
    m_server->handler = [&](const QByteArray &) {
        return LoopbackServer::reply(body, "Content-Type: " + type + "\r\n");
    };
    start(m_server->url());
    QTRY_COMPARE(m_source->health().state, SourceHealth::Good);
    QTEST(value(), "expected");
    QCOMPARE(m_source->health().bytes, qint64(body.size()));
}

void TestHttpSource::asksForWhatIsNew()
{
    QByteArray tag = "\"1\"";
    m_server->handler = [&](const QByteArray &request) {
        return request.contains("If-None-Match: " + tag + "\r\n")
                   ? QByteArray("HTTP/1.1 304 Not Modified\r\n\r\n")
                   : LoopbackServer::reply("{\"v\": " + tag + "}",
                                           "Content-Type: text/json\r\nETag: " + tag + "\r\n");
    };
    start(m_server->url());
    QTRY_COMPARE(value(), QByteArray(R"({"v":"1"})"));
    QSignalSpy changes(m_source.get(), &DataSource::changed);
    const QDateTime before = m_source->health().goodAt;
    m_source->refresh();
    QTRY_VERIFY(m_source->health().goodAt > before);
    QVERIFY(m_server->requests.constLast().contains("If-None-Match") && changes.isEmpty());
    tag = "\"2\"";
    m_source->refresh();
    QTRY_COMPARE(value(), QByteArray(R"({"v":"2"})"));
}

void TestHttpSource::cutAnswersAreNeverShown_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("length") << LoopbackServer::reply("a,b\n1,2\n3,4\n",
                                                     "Content-Type: text/csv\r\n");
    QTest::newRow("chunks") << QByteArray("HTTP/1.1 200 OK\r\nContent-Type: text/csv\r\n"
                                          "Transfer-Encoding: chunked\r\n\r\n"
                                          "6\r\na,b\n1,\r\n6\r\n2\n3,4\n\r\n0\r\n\r\n");
    QTest::newRow("neither") << QByteArray("HTTP/1.0 200 OK\r\nContent-Type: text/json\r\n\r\n"
                                           R"({"rows":[{"a":"1","b":"2"},{"a":"3","b":"4"}]})");
}

// The answer is cut at each of its bytes in turn; only the whole one may be taken for good.
void TestHttpSource::cutAnswersAreNeverShown()
{
    QFETCH(QByteArray, answer);
    int length = 0;
    m_server->handler = [&](const QByteArray &) {
        return answer.left(length++);
    };
    start(m_server->url(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(m_source->health().state == SourceHealth::Good, 60000);
    QCOMPARE(value(), QByteArray(R"({"rows":[{"a":"1","b":"2"},{"a":"3","b":"4"}]})"));
    const QByteArray end = answer.contains("chunked") ? "\r\n0\r\n\r\n" : "";
    QVERIFY2(length >= answer.size() - end.size(), qPrintable(QString::number(length)));
}

void TestHttpSource::failures_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QByteArray &answer, const char *reason) {
        QTest::newRow(name) << answer << reason;
    };
    const auto reply = LoopbackServer::reply;
    row("wrong type", reply("<p>", "Content-Type: text/html\r\n", "200 OK"),
        "text/html is neither");
    row("broken JSON", reply("{\"a\":\n tru}", "Content-Type: text/json\r\n", "200 OK"),
        "line 2, column 2");
    row("garbage", QByteArray("\x00\xff\x17garbage\r\n\r\n", 14), "");
    row("empty", reply("", "", "200 OK"), "empty");
    row("not found", reply("[]", "", "404 Not Found"), "404 Not Found");
    row("failing", reply("[]", "", "500 Oh no"), "500 Oh no");
    row("no content", reply("", "", "204 No Content"), "204");
    row("loop", reply("", "Location: /again\r\n", "302 Found"), "more than 5 redirections");
    row("file", reply("", "Location: file:///etc/hostname\r\n", "302 Found"), "scheme other than");
}

void TestHttpSource::failures()
{
    QFETCH(QByteArray, answer);
    bool isGood = true;
    m_server->handler = [&](const QByteArray &) {
        return isGood ? LoopbackServer::reply("{\"a\":1}") : answer;
    };
    start(m_server->url());
    QTRY_COMPARE(m_source->health().state, SourceHealth::Good);
    isGood = false;
    m_source->refresh();
    QTRY_COMPARE(m_source->health().state, SourceHealth::Stale);
    QFETCH(QString, reason);
    QVERIFY2(m_source->health().error.contains(reason), qPrintable(m_source->health().error));
    QVERIFY(m_source->latest().isStale);
    QCOMPARE(value(), QByteArray(R"({"a":"1"})"));
}

void TestHttpSource::lateAnswers_data()
{
    QTest::addColumn<bool>("isSilent");
    QTest::newRow("never") << true;
    QTest::newRow("drips") << false;
}

void TestHttpSource::lateAnswers()
{
    QFETCH(bool, isSilent);
    m_server->isSilent = isSilent;
    m_server->drip = 20;
    m_server->handler = [](const QByteArray &) {
        return LoopbackServer::reply(QByteArray(999, ' '));
    };
    m_settings.timeout = 0.3;
    start(m_server->url());
    QTRY_COMPARE_WITH_TIMEOUT(m_source->health().state, SourceHealth::Failed, 2000);
    QCOMPARE(m_source->health().error, QStringLiteral("no answer within 0.3 seconds"));
}

void TestHttpSource::largeAnswersEndEarly()
{
    m_server->endless = 100 * 1024 * 1024;
    m_server->handler = [](const QByteArray &) {
        return QByteArray("HTTP/1.1 200 OK\r\nContent-Type: text/json\r\n\r\n[");
    };
    m_settings.sizeCap = 1024 * 1024;
    start(m_server->url());
    QTRY_COMPARE_WITH_TIMEOUT(m_source->health().state, SourceHealth::Failed, 20000);
    QVERIFY(m_source->health().error.contains("larger than 1048576 bytes"));
    QVERIFY2(m_server->sent < 16 * 1024 * 1024, qPrintable(QString::number(m_server->sent)));
}

void TestHttpSource::triesLessOftenWhileItFails()
{
    QByteArray head;
    m_server->handler = [&](const QByteArray &) {
        return LoopbackServer::reply("", head, "429 Too Many Requests");
    };
    start(m_server->url(), 30000);
    const auto pause = [&](int failures) {
        [&] {
            QTRY_COMPARE(m_source->health().failures, failures);
        }();
        const SourceHealth health = m_source->health();
        m_source->refresh();
        return qRound(QDateTime::currentDateTimeUtc().msecsTo(health.nextTry) / 1000.0);
    };
    for (const int seconds : {30, 60, 120, 120}) {
        static int failures = 0;
        QCOMPARE(pause(++failures), seconds);
    }
    head = "Retry-After: 17\r\n";
    pause(5);
    QCOMPARE(pause(6), 17);
    head = "Retry-After: " +
           QLocale::c()
               .toString(QDateTime::currentDateTimeUtc().addSecs(90),
                         "ddd, dd MMM yyyy hh:mm:ss 'GMT'")
               .toLatin1() +
           "\r\n";
    pause(7);
    QVERIFY(qAbs(pause(8) - 90) <= 1);
    head = "Retry-After: 999999999\r\n";
    pause(9);
    QCOMPARE(pause(10), 3600);
}

void TestHttpSource::secretsGoToOneServerOnly()
{
    LoopbackServer other;
    other.handler = [](const QByteArray &) {
        return LoopbackServer::reply("[1]");
    };
    m_server->handler = [&](const QByteArray &) {
        return LoopbackServer::reply("", "Location: " + other.url().toLatin1() + "\r\n",
                                     "307 There");
    };
    qputenv("LCTRLSEX_TEST_TOKEN", "open sesame");
    m_settings.headers = {NamedText{"Authorization", "Bearer ${env:LCTRLSEX_TEST_TOKEN}"}};
    start(m_server->url());
    QTRY_COMPARE(m_source->health().state, SourceHealth::Good);
    QVERIFY(m_server->requests.value(0).contains("Authorization: Bearer open sesame\r\n"));
    QVERIFY(!other.requests.value(0).contains("sesame"));
}

void TestHttpSource::trustsCertificates_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("trusted");
    QTest::addColumn<QString>("error");
    const QByteArray here = "IP:127.0.0.1";
    QTest::newRow("unknown") << here << ""
                             << "the server is not trusted: The certificate is self";
    QTest::newRow("trusted") << here << "c.pem"
                             << "";
    QTest::newRow("another") << here << "other.pem"
                             << "the server is not trusted: ";
    QTest::newRow("another name") << QByteArray("DNS:other.example") << "c.pem"
                                  << "the server is not trusted: The host name";
    QTest::newRow("no file") << here << "gone.pem"
                             << "the certificate cannot be read: No such";
    QTest::newRow("no certificate") << here << "k.pem"
                                    << "there is no certificate in ";
}

/** With certificates made for the occasion; a server that is not trusted is told nothing. */
void TestHttpSource::trustsCertificates()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, trusted);
    QFETCH(QString, error);
    const QTemporaryDir folder;
    const auto make = [&folder](const QString &file, const QString &key,
                                const QByteArray &forName) {
        return QProcess::execute("openssl",
                                 {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2",
                                  "-subj", "/CN=test", "-addext", "subjectAltName=" + forName,
                                  "-keyout", folder.filePath(key), "-out", folder.filePath(file)});
    };
    if (QStandardPaths::findExecutable("openssl").isEmpty()) {
        QSKIP("there is no program openssl");
    }
    QVERIFY(make("c.pem", "k.pem", name) == 0 && make("other.pem", "k2.pem", name) == 0);
    QFile key(folder.filePath("k.pem"));
    QVERIFY(key.open(QIODevice::ReadOnly));
    m_server->key = QSslKey(key.readAll(), QSsl::Rsa);
    m_server->certificate = QSslCertificate::fromPath(folder.filePath("c.pem")).value(0);
    m_server->handler = [](const QByteArray &) {
        return LoopbackServer::reply("{\"v\": 1}");
    };
    m_settings.certificate = trusted.isEmpty() ? trusted : folder.filePath(trusted);
    start(m_server->url());
    QTRY_COMPARE(m_source->health().state,
                 error.isEmpty() ? SourceHealth::Good : SourceHealth::Failed);
    const QString told = m_source->health().error;
    QVERIFY2(error.isEmpty() ? told.isEmpty() : told.startsWith(error), qPrintable(told));
    QCOMPARE(m_server->requests.size(), error.isEmpty() ? 1 : 0);
}

QTEST_GUILESS_MAIN(TestHttpSource)
#include "tst_httpsource.moc"
