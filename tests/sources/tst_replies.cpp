#include "keyoffer.h"
#include "reply.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace sources;

class TestReplies : public QObject
{
    Q_OBJECT
private slots:
    void csv_data();
    void csv();
    void json_data();
    void json();
    void keys();
};

static Reply read(const QByteArray &bytes, const QString &format, const SourceSettings &settings)
{
    const StopFlag stop(false);
    return parseReply(bytes, format, settings, stop);
}

void TestReplies::csv_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &bytes, const char *expected,
                        const char *encoding = "") {
        QTest::newRow(name) << bytes << QString(encoding) << QString::fromUtf8(expected);
    };
    row("commas", "a,b\n1,\"x,\"\"y\"\"\n2\"\n3,\n",
        R"({"rows":[{"a":"1","b":"x,\"y\"\u000a2"},{"a":"3","b":""}]})");
    row("semicolons", "a;b\r\n1,5;2\r\n", R"({"rows":[{"a":"1,5","b":"2"}]})");
    row("tabs", "a\tb\n\t2\n", R"({"rows":[{"a":"","b":"2"}]})");
    row("bars", "a|b\n1|2", R"({"rows":[{"a":"1","b":"2"}]})");
    row("mark",
        "\xEF\xBB\xBF"
        "a\n1\n",
        R"({"rows":[{"a":"1"}]})");
    row("short row", "a,b\n1\n2,3\n", R"({"rows":[{"a":"1","b":null},{"a":"2","b":"3"}]})");
    row("long row", "a\n1,2\n", R"({"rows":[{"a":"1","Column 2":"2"}]})");
    row("names", "a,,a,a 2\n1,2,3,4\n",
        R"({"rows":[{"a":"1","Column 2":"2","a 3":"3","a 2":"4"}]})");
    row("header only", "a,b\n", R"({"rows":[]})");
    row("null and no text", QByteArray("a\n1\0\xff\n", 6), R"({"rows":[{"a":"1��"}]})");
    row("GB18030", "\xc3\xfb\n\xd6\xd0\n", R"({"rows":[{"名":"中"}]})", "GB18030");
    row("UTF-16",
        QByteArray("\xff\xfe"
                   "a\0\n\0\x2d\x4e\n\0",
                   10),
        R"({"rows":[{"a":"中"}]})");
    row("open quotes", "a,b\n1,\"2\n3,4\n", "!the text ends within quotes");
    row("nothing", "\n\n", "!there is no header line");
    row("too many columns", QByteArray(5000, ','), "!there are more than 4096 columns");
    row("too many cells", "a\n" + QByteArray(5000, ','), "!there are more than 4096 columns");
    row("no such encoding", "a\n", "!there is no encoding EBCDIC-99", "EBCDIC-99");
}

void TestReplies::csv()
{
    QFETCH(QByteArray, bytes);
    SourceSettings settings;
    settings.encoding = *static_cast<QString *>(QTest::qData("encoding", qMetaTypeId<QString>()));
    const Reply reply = read(bytes, "csv", settings);
    const QString got =
        reply.error.isEmpty() ? QString::fromUtf8(toJson(reply.value)) : '!' + reply.error;
    QTEST(got, "expected");
}

void TestReplies::json_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &bytes, const char *expected) {
        QTest::newRow(name) << bytes << QString::fromUtf8(expected);
    };
    row("as written", R"({"z": 12.50, "a": -1e3, "t": true, "n": null, "s": "\u4e2d\n\u0000"})",
        R"({"z":"12.50","a":"-1e3","t":"true","n":null,"s":"中\u000a�"})");
    row("list", "[1, [2], {}]", R"({"rows":["1",["2"],{}]})");
    row("scalar", " 7 ", R"({"value":"7"})");
    row("flat records", R"([{"a": 1}, {"b": "", "a": null}])",
        R"({"rows":[{"a":"1","b":null},{"a":null,"b":""}]})");
    row("deep record last", R"([{"a": 1}, {"a": [1]}])", R"({"rows":[{"a":"1"},{"a":["1"]}]})");
    row("half a character", R"({"a": "\ud83d\ude00\ud83d"})", R"({"a":"😀�"})");
    row("too large", "{\"a\":\n 1e400}", "!line 2, column 2: the number is too large");
    row("cut", R"({"a": [1, 2)", "!line 1, column 12: the text ends too early");
    row("behind the end", "{} x", "!line 1, column 4: something follows behind the end");
    row("leading null", "[01]", "!line 1, column 4: this is no JSON");
    row("escape", R"(["\u-12f"])", "!line 1, column 4: this is no JSON");
    row("not UTF-8", "[\"\xff\"]", "!the text is not UTF-8");
    row("deep", QByteArray(100000, '['), "!line 1, column 202: it is nested too deeply");
}

void TestReplies::json()
{
    QFETCH(QByteArray, bytes);
    const Reply reply = read(bytes, "json", SourceSettings());
    const QByteArray written = toJson(reply.value);
    QTEST(reply.error.isEmpty() ? QString::fromUtf8(written) : '!' + reply.error, "expected");
    if (reply.error.isEmpty()) {
        QCOMPARE(toJson(parseJson(written).value), written);
        QVERIFY(QJsonDocument::fromJson(written).isObject());
    }
}

void TestReplies::keys()
{
    const Reply reply = parseJson(R"({"t": "x", "station": {"name": "N", "pos": {"x": 1}},
        "v": [1, 2], "g": [[1, 2], [3]], "rows": [{"a": 1, "b,c": 2, "n": "3"}], "p.q": 1,
        "mixed": [{"a": {}, "b": 1}, {"c": []}], "": 1, "ok?": 1, "_": "y", "°": "z"})");
    QStringList got;
    for (const DataSourceKey &key : offeredKeys(reply.value)) {
        got.append(QStringLiteral("%1 %2 %3").arg(key.name).arg(key.type).arg(key.value));
    }
    const QStringList expected{"t 1 x",
                               "station.{name} 3 N",
                               "station.name 1 N",
                               "station.pos.{x} 3 1",
                               "station.pos.x 1 1",
                               "v[] 2 1\n2",
                               "g[][] 5 1\n2",
                               "rows.{a,n}[] 4 1\n3",
                               "mixed.{b}[] 4 1",
                               "_ 1 y"};
    QCOMPARE(got, expected);
}

QTEST_GUILESS_MAIN(TestReplies)
#include "tst_replies.moc"
