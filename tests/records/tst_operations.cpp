#include "literaloperations.h"
#include "operationchain.h"
#include "operationnumber.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <random>

using namespace lctrlsex;

namespace {

const QString noResult = QStringLiteral("(no result)");

/** Steps written as "name=operator,argument,argument", parted by blanks. */
CalculationCondition calculation(const QString &steps)
{
    CalculationCondition result;
    result.defaultValue = "default";
    for (const QString &step : steps.split(' ', Qt::SkipEmptyParts)) {
        QStringList parts = step.mid(step.indexOf('=') + 1).split(',');
        const QString func = parts.takeFirst();
        result.expressions.append({step.left(step.indexOf('=')), {func, parts}});
    }
    return result;
}

/** One evaluation with the variables that the rows use. */
struct Evaluated
{
    explicit Evaluated(const CalculationCondition &given)
        : chain(given, {"speed", "name", "various", "count", "twice", "twice", "backslash"})
    {
        chain.evaluate(values, &results);
    }
    explicit Evaluated(const QString &steps)
        : Evaluated(calculation(steps))
    {}
    QString shown() const
    {
        const OperationValue &value = results.back().value;
        return value.hasResult() ? value.text() : noResult;
    }
    QString reason() const { return chain.reason(chain.stepCount() - 1, values, results); }

    QVector<QString> values{"12.50", "var1", "3", "2", "first", "second", "\\n"};
    OperationChain chain;
    OperationResults results;
};

qint64 bits(double number)
{
    qint64 result = 0;
    std::memcpy(&result, &number, sizeof result);
    return result;
}

} // namespace

class tst_Operations : public QObject
{
    Q_OBJECT

private slots:
    void yields_data();
    void yields();
    void numbersAreWhatQtSays();
    void numbersAreWrittenAsQtDoes();
    void clampsPlacesAndSaysSo();
    void oneStepIsEvaluatedAsInTheChain();
    void publishesTheDefault();
    void limits_data();
    void limits();
    void hugeChainsEndSoon();
};

void tst_Operations::yields_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *steps, const QString &shown, const char *reason = "") {
        QTest::newRow(steps) << QString(steps) << shown << QString(reason);
    };
    row("s=+,1.5,2", "3.5");
    row("s=+,1,x", noResult, "s: argument 2, \"x\", is not a number.");
    row("s=+,1", noResult, "s: \"+\" needs at least 2 arguments, has 1.");
    row("s=-,1,2,3", "-4");
    row("s=*,1e200,1e200", "inf");
    row("s=-,inf,inf", "nan");
    row("s=/,10,0", "10");
    row("s=/,10,0,-0,4", "2.5");
    row("s=%,7,0", "7");
    row("s=%,-7.5,2", "-1.5");
    row("s=-,0,0.0000001", "-0");
    row("var1=-,0,0.0000001 s=/,5,var1", "5");
    row("s=+,${speed},}", noResult, "s: argument 2, \"\", is not a number.");
    row("s=+,speed},${count", "14.5");
    row("s=strcat,a}\n,${${b}}", "a\n${b}");
    row("s=left,abcdef,-3", "");
    row("s=left,abcdef,2", "ab");
    row("s=right,abcdef,2", "ef");
    row("s=right,abcdef,2147483647", "abcdef");
    row("s=left,abcdef,2147483648", "",
        "s: argument 2, \"2147483648\", is not a whole number or is too large; it counts as 0.");
    row("s=left,abcdef,${count}", "ab");
    row("var1=+,1,1 s=left,abcdef,var1", "",
        "s: argument 2, \"var1\", is not a whole number or is too large; it counts as 0.");
    row("s=left,abcdef", noResult, "s: \"left\" needs 2 arguments, has 1.");
    row("s=mid,abcdef,2,0", "");
    row("s=mid,abcdef,2,3", "cde");
    row("s=mid,abcdef,-5,2147483647", "abcdef");
    row("s=mid,abcdef,2147483647,2147483647", "");
    row("s=split,a;b;;c,;", "a\nb\nc");
    row("s=split,abc,", "a\nb\nc");
    row("s=split,aaa,aa", "a");
    row("s=split,aaaaaaabaaaaaabb,aaaaaab", "a\nb");
    row("s=split,,;", "");
    row("s=split,a\\b\\\\b\\n,\\\\", "a\nb\nb\nn");
    row("s=split,a\nb,${backslash}", "a\nb");
    row("s=split,a\\xb,\\x", "a\nb");
    row("var1=split,a;b;;c,; s=index,var1,1", "b");
    row("var1=split,a;b;;c,; s=index,${var1},3", noResult,
        "s: position 3 is outside the list of 3.");
    row("var1=split,a;b,; s=index,var1,-1", noResult, "s: position -1 is outside the list of 2.");
    row("var1=split,a;b,; s=index,var1,x", noResult,
        "s: argument 2, \"x\", is not a whole number or is too large.");
    row("list=split,a;b,; s=index,list,0", "a");
    row("list=split,a;b,; s=strcat,list,!", "list!");
    row("var1=split,a;b,; s=strcat,var1,!", "a\nb!");
    row("var1=split,7,; s=+,var1,1", "8");
    row("s=index,abc,0", "abc");
    row("s=strcat,a,${speed},b,1", "a12.50b1");
    row("s=decimal,3.14159,9", "3.141590");
    row("s=decimal,-2.5,0", "-3");
    row("s=decimal,2.5,1.0", noResult,
        "s: argument 2, \"1.0\", is not a whole number or is too large.");
    row("var1=decimal,2,2 s=strcat,var1,", "2.00");
    row("s=Left,abc,1", noResult, "s: there is no operator \"Left\".");
    row("=%2,1", noResult, "Step 1: there is no operator \"%2\".");
    // Values are data: what begins with "var" names a step only where the user wrote it.
    row("var1=+,1,1 s=strcat,${name},!", "var1!");
    row("s=strcat,${various},!", "3!");
    row("s=strcat,Var1,!", "Var1!");
    row("s=strcat,${twice},!", "second!");
    row("s=strcat,variety,!", "!", "s: argument 1 is empty, because there is no step variety.");
    row("s=+,var9,1", noResult, "s: argument 1 is empty, because there is no step var9.");
    row("var1=strcat,${var2},! var2=strcat,${var1},?", "!?");
    row("var1=+,1,1 var2=strcat,${var2},?", "?",
        "var2: argument 1 is empty, because var2 refers to itself.");
    row("var1=+,1,1 var1=+,var1,1 s=strcat,var1,", "3");
    row("var1=+,1,x var2=strcat,var1,?", "?",
        "var2: argument 1 is empty, because var1 has no result.");
}

void tst_Operations::yields()
{
    QFETCH(QString, steps);
    const Evaluated evaluated(steps);
    QTEST(evaluated.shown(), "shown");
    QTEST(evaluated.reason(), "reason");
    const Evaluated before("var1=strcat,${var2},! var2=+,1,1");
    QCOMPARE(before.chain.reason(0, before.values, before.results),
             QString("var1: argument 1 is empty, because var2 is computed later."));
}

void tst_Operations::numbersAreWhatQtSays()
{
    const QStringList texts = QString("|0|-0|+0|1|+1|--5|+-5|- 1| 1|1 |\t1\n|1\n2|.5|5.|.|1.2.3|"
                                      "1,5|1,000|1.234,5|1 000|1'000|1_000|007|-007|0x10|0b1|010|"
                                      "1e3|1E3|1e+3|1e-3|1e|e1|1e1.5|1e400|-1e400|1e-400|1e308|"
                                      "-1e308|1.8e308|5e-324|2e-324|inf|INF|+inf|-inf|Infinity|"
                                      "nan|NAN|-nan|nan(1)|1f|1L|$1|1%|true|999999999999999|"
                                      "9999999999999999|0.1234567890123456789|-.5|-|+|"
                                      "123456789012345678901234567890|4503599627370497.5")
                                  .split('|') +
                              QStringList{"\u2212"
                                          "1",
                                          "\uff11",
                                          "\u0663",
                                          "1\u00a0",
                                          "\u221e",
                                          QString("1") + QChar(0),
                                          QString("1") + QChar(0xd800)};
    QVERIFY(texts.size() >= 60);
    for (const QString &text : texts) {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        QCOMPARE(numberOf(text).has_value(), isNumber);
        QVERIFY2(!isNumber || bits(*numberOf(text)) == bits(number), qPrintable(text));
        LiteralOperations literal;
        const CalculationStep step{"s", {"+", {text, "0"}}};
        const QVariant expected = literal.evaluate(step);
        CalculationCondition given;
        given.expressions = {step};
        QCOMPARE(Evaluated(given).shown(), expected.isValid() ? expected.toString() : noResult);
    }
}

void tst_Operations::numbersAreWrittenAsQtDoes()
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 300000; ++i) {
        const int places = i % 7;
        const double magnitude = std::ldexp(double(random() >> 11U), int(random() % 110) - 90);
        double number = i % 3 == 0 ? double(random() % 100000000) / std::pow(2, i % 12)
                                   : magnitude; // the former are often halves
        number = i % 2 == 0 ? number : -number;
        const QString text = QString::number(number, 'f', places);
        QCOMPARE(fixedText(number, places), text);
        const auto rounded = roundedNumber(number, places);
        QVERIFY2(!rounded || (*rounded == text.toDouble() && fixedText(*rounded, places) == text),
                 qPrintable(text));
        const QString shortest = shortText(number);
        const auto again = roundedNumber(number, 6);
        QVERIFY(!again || (shortText(*again) == shortest && *again == shortest.toDouble()));
        QVERIFY2(bits(*numberOf(text)) == bits(text.toDouble()), qPrintable(text));
    }
}

void tst_Operations::clampsPlacesAndSaysSo()
{
    QVERIFY(Evaluated("s=decimal,1,7").results[0].isPlacesClamped);
    QVERIFY(Evaluated("s=decimal,x,-1").results[0].isPlacesClamped);
    QVERIFY(!Evaluated("s=decimal,1,6").results[0].isPlacesClamped);
    QVERIFY(!Evaluated("s=decimal,1,99999999999").results[0].isPlacesClamped);
    QCOMPARE(Evaluated("s=decimal,1,-1").shown(), QString("1"));
    QVERIFY(decimalRangeNotice().contains("0-6"));
}

void tst_Operations::oneStepIsEvaluatedAsInTheChain()
{
    const QString steps = "var1=+,1,%1 var2=*,var1,2 var3=split,a;b,; var4=%2";
    Evaluated before(steps.arg("7", "decimal,x,7"));
    const Evaluated after(steps.arg("2", "+,1,1"));
    for (int i = 0; i < after.chain.stepCount(); ++i) {
        after.chain.evaluateStep(i, after.values, &before.results);
        const OperationResult &result = before.results[size_t(i)];
        QCOMPARE(result.value.text(), after.results[size_t(i)].value.text());
        QVERIFY(result.problem == OperationProblem::None && !result.isPlacesClamped);
    }
    QCOMPARE(before.results[1].value.text(), QString("6"));
}

void tst_Operations::publishesTheDefault()
{
    for (const char *steps : {"", "var1=+,1,1 var2=+,1,x"}) {
        const Evaluated evaluated{QString(steps)};
        QCOMPARE(evaluated.chain.published(evaluated.results), QString("default"));
    }
    const Evaluated empty("s=strcat,,");
    QCOMPARE(empty.chain.published(empty.results), QString());
}

void tst_Operations::limits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("steps");
    QTest::addColumn<bool>("hasResult");
    QTest::addColumn<QString>("reason");
    const QString longest(longestOperationText, 'a');
    const QString parts = QString("a;").repeated(mostOperationElements);
    const QString work = "have handled more than 4194304 characters";
    QTest::newRow("longest") << longest << "s=strcat,text,," << true << "";
    QTest::newRow("longer") << longest << "s=strcat,text,b" << false << "longer than 1048576";
    QTest::newRow("cut") << longest + "b"
                         << "s=left,text,1048577" << false << "longer than";
    QTest::newRow("split") << longest + ";b"
                           << "s=split,text,;" << false << "longer than 1048576";
    QTest::newRow("parts") << parts << "s=split,text,;" << true << "";
    QTest::newRow("more parts") << parts + "a"
                                << "s=split,text,;" << false << "than 65536 parts";
    QTest::newRow("characters") << longest << "s=split,text," << false << "than 65536 parts";
    QTest::newRow("too much to read") << longest.repeated(5) << "s=split,text,;" << false << work;
    QTest::newRow("too much for a number")
        << QString(longest.size() * 5, '1') << "s=+,text,1" << false << work;
    QTest::newRow("too much for a count")
        << QString(longest.size() * 5, '1') << "s=mid,abc,0,text" << false << work;
    QTest::newRow("too much in all")
        << longest << QString("v=strcat,text, ").repeated(4) + "s=strcat,text," << false << work;
    const QString odd = QString(QChar(0xd800)) + QChar(0) + QChar(0xdc00) + QChar(0xffff);
    QTest::newRow("odd characters") << odd << "s=split,text,text" << true << "";
}

void tst_Operations::limits()
{
    QFETCH(QString, text);
    QFETCH(QString, steps);
    QFETCH(QString, reason);
    const OperationChain chain(calculation(steps), {"text"});
    OperationResults results;
    chain.evaluate({text}, &results);
    QTEST(results.back().value.hasResult(), "hasResult");
    const QString given = chain.reason(chain.stepCount() - 1, {text}, results);
    QVERIFY2(reason.isEmpty() ? given.isEmpty() : given.contains(reason), qPrintable(given));
    QVERIFY(given.size() < 200);
}

void tst_Operations::hugeChainsEndSoon()
{
    const QString nearly = QString(200000, 'a') + "b";
    QVector<QString> values{QString(longestOperationText, 'a'), nearly, nearly.mid(100000)};
    CalculationCondition many;
    for (int i = 0; i < 100000; ++i) {
        const QString functions[] = {"strcat", "split", "index"};
        const QStringList arguments[] = {
            {"long", ""}, {"long", ";"}, {"var1", "0"}, {"nearly", "part"}, {"var7", "var7"}};
        many.expressions.append(
            {"var" + QString::number(i % 10), {functions[i % 3], arguments[i / 2 % 5]}});
    }
    CalculationCondition wide;
    wide.expressions.append({"var1", {"strcat", QVector<QString>(100000, "long").toList()}});
    wide.expressions.append({"var2", {"+", QVector<QString>(100000, "1").toList()}});
    QElapsedTimer timer;
    timer.start();
    for (const CalculationCondition &given : {many, wide}) {
        const OperationChain chain(given, {"long", "nearly", "part"});
        OperationResults results;
        chain.evaluate(values, &results);
        qint64 characters = 0;
        for (const OperationResult &result : results) {
            characters += result.value.text().size();
        }
        QVERIFY(characters <= mostOperationCharacters);
    }
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_APPLESS_MAIN(tst_Operations)
#include "tst_operations.moc"
