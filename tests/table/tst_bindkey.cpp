#include "table/bindkey.h"
#include "table/singlefields.h"

#include <QElapsedTimer>
#include <QtTest>

using namespace lctrlsex;

/** Which shape of data a key names. */
class TestBindKey : public QObject
{
    Q_OBJECT

private slots:
    void kinds_data();
    void kinds();
    void isLinear();
    void singleFieldsOfKeys();
};

void TestBindKey::kinds_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("fields");

    const auto row = [](const char *key, int kind, const char *fields = "") {
        QTest::newRow(key) << QString::fromUtf8(key) << kind << QString::fromUtf8(fields);
    };
    row("list.{name,age}[]", 21, "name|age");
    row("s:a.{b{c}.{d,}[]", 21, "d|");
    row("a.{.{b}[]", 21, ".{b");
    row("温度:rec.{最高,a.b}", 22, "最高|a.b");
    row("a.{b}.{}", 0);
    row("a{b}", 0);
    row("a.{}[]", 0);
    row("x[][]", 23);
    row("a.b.c", 12, "c");
    row("源:数\n", 12, "数");
    row("a\n\n", 0);
    row("_[]", 11, "_");
    row("x[2][]", 13, "x[2]");
    row("x[٣][]", 13, "x[٣]");
    row("x[2a][]", 0);
    row("x[][][]", 0);
    row("[2][]", 0);
    row("a.[2][]", 0);
    row("a[2]", 0);
    row("a..b", 0);
    row(".a", 0);
    row("\xf0\x90\x90\x80.a\xf0\x90\x90\x80", 12, "a\xf0\x90\x90\x80");
    row("", 0);
}

void TestBindKey::kinds()
{
    QFETCH(QString, key);
    QFETCH(QString, fields);
    const BindKey bound = classifyBindKey(key);
    QTEST(bound.kind, "kind");
    QCOMPARE(bound.fields.join('|'), fields);
    QCOMPARE(isBindable(bound.kind), bound.kind != 0);
}

void TestBindKey::isLinear()
{
    QElapsedTimer timer;
    timer.start();
    const QString parts[] = {"a.{", "a", "}", "1"};
    for (const QString &part : parts) {
        QCOMPARE(classifyBindKey("x" + part.repeated(1000000) + "[").kind, 0);
        QCOMPARE(classifyBindKey("x" + part.repeated(1000000) + "}[]").kind,
                 part == "a.{" ? 21 : 0);
    }
    QVERIFY(timer.elapsed() < 2000);
}

void TestBindKey::singleFieldsOfKeys()
{
    const QMap<QString, QString> fields = singleFields({{"Cafe:goods.{name,price}[]", "Tea\n2.10"},
                                                        {"Cafe:now.{a,b}", "one\ntwo\nlines"},
                                                        {"Cafe:names[]", "x\ny"},
                                                        {"Sky:wind", "3"}});
    const QMap<QString, QString> expected{{"Cafe:goods.name", "Tea"}, {"Cafe:goods.price", "2.10"},
                                          {"Cafe:now.a", ""},         {"Cafe:now.b", ""},
                                          {"Cafe:names[]", "x\ny"},   {"Sky:wind", "3"}};
    QCOMPARE(fields, expected);
    QCOMPARE(fieldsInOrder(fields, "Sky:wind").first(), QString("Sky:wind"));
    QCOMPARE(fieldsInOrder(fields, "Cafe:now.{a,b}").mid(0, 3),
             (QStringList{"Cafe:now.a", "Cafe:now.b", "Cafe:goods.name"}));
    QCOMPARE(fieldsInOrder(fields, "").size(), 6);
}

QTEST_GUILESS_MAIN(TestBindKey)
#include "tst_bindkey.moc"
