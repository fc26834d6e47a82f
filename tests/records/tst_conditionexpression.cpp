#include "conditionexpression.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

using namespace lctrlsex;

class tst_ConditionExpression : public QObject
{
    Q_OBJECT

private slots:
    void parses_data();
    void parses();
    void comesBackFromItsText();
    void readsOneMegabyte_data();
    void readsOneMegabyte();
};

void tst_ConditionExpression::parses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("comparison");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");

    const auto row = [](const QString &text, int kind, const char *comparison, const char *start,
                        const char *end = "") {
        QTest::newRow(qPrintable(text))
            << text << kind << QString(comparison) << QString(start) << QString(end);
    };
    row("==-3.5", 0, "==", "-3.5");
    row(">=5", 0, ">=", "5");
    row("<= \t\n-.", 0, "<=", "-.");
    row("!=", 0, "!=", "");
    row(">5\n", 0, ">", "5");
    row("<5.", 0, "<", "5.");
    row("(,)", 1, ">", "", "");
    row("[,]", 2, ">", "", "");
    row("[ -1.5 , .5 )\n", 3, ">", "-1.5", ".5");
    row("(-,.]", 4, ">", "-", ".");
    for (const QString &pattern : {QString(),
                                   QString("abc"),
                                   QString("=5"),
                                   QString("!5"),
                                   QString("> 5 "),
                                   QString(">>5"),
                                   QString(">5\n\n"),
                                   QString(">5\r"),
                                   QString(">--5"),
                                   QString(">+5"),
                                   QString(">1e3"),
                                   QString(">1.2.3"),
                                   QString(">inf"),
                                   QString("(1)"),
                                   QString("(1,2"),
                                   QString("(1,2)3"),
                                   QString("{1,2}"),
                                   QString("(1,2,3)"),
                                   QString("(1 2,3)"),
                                   QString(" (1,2)"),
                                   QStringLiteral(">\u0665"),
                                   QStringLiteral(">\u00a05"),
                                   QStringLiteral(">\uff15"),
                                   QString(">5") + QChar(0),
                                   QString(">5") + QChar(0xd800)}) {
        QTest::newRow(qPrintable("pattern " + pattern)) << pattern << 5 << ">" << pattern << "";
    }
}

void tst_ConditionExpression::parses()
{
    QFETCH(QString, text);
    const ConditionExpression parsed = parseExpression(text);
    QVERIFY(parsed.isValid);
    QTEST(int(parsed.kind), "kind");
    QTEST(operatorText(parsed.comparison), "comparison");
    QTEST(parsed.start, "start");
    QTEST(parsed.end, "end");
}

/** Everything that can stand in the editors, half-typed numbers included. */
void tst_ConditionExpression::comesBackFromItsText()
{
    QRandomGenerator numbers(1);
    const auto number = [&numbers] {
        const QString sign = numbers.bounded(2) != 0 ? "-" : "";
        const QString point = numbers.bounded(2) != 0 ? "." : "";
        const auto digits = [&numbers] {
            return QString::number(numbers.bounded(1000)).repeated(numbers.bounded(3));
        };
        return sign + digits() + point + digits();
    };
    for (int i = 0; i < 20000; ++i) {
        ConditionExpression made;
        made.kind = ConditionExpression::Kind(numbers.bounded(ConditionExpression::KindCount));
        made.start = number();
        if (made.kind == ConditionExpression::Comparison) {
            made.comparison =
                ConditionExpression::Operator(numbers.bounded(ConditionExpression::OperatorCount));
        } else if (made.kind == ConditionExpression::Pattern) {
            made.start += "|error";
        } else {
            made.end = number();
        }
        const QString text = buildExpression(made);
        QVERIFY2(parseExpression(text) == made, qPrintable(text));
    }
}

void tst_ConditionExpression::readsOneMegabyte_data()
{
    QTest::addColumn<QString>("text");
    constexpr int Size = 1000000;
    QTest::newRow("digits") << ">" + QString(Size, '5');
    QTest::newRow("digits and a letter") << ">" + QString(Size, '5') + "x";
    QTest::newRow("blanks and a letter") << "[" + QString(Size, ' ') + "x";
    QTest::newRow("interval of digits")
        << "(" + QString(Size, '5') + "," + QString(Size, '6') + "]";
    QTest::newRow("letters") << QString(Size, 'x');
}

void tst_ConditionExpression::readsOneMegabyte()
{
    QFETCH(QString, text);
    QElapsedTimer timer;
    timer.start();
    const ConditionExpression parsed = parseExpression(text);
    const qint64 passed = timer.elapsed();
    QCOMPARE(buildExpression(parsed), text);
    QVERIFY2(passed <= 200, qPrintable(QString::number(passed)));
}

QTEST_GUILESS_MAIN(tst_ConditionExpression)
#include "tst_conditionexpression.moc"
