#include "condition.h"

#include <QtTest>

using namespace lctrlsex;

namespace {

constexpr int Comparison = 0;
constexpr int Regular = 1;

Condition condition(const QString &text, int type = Comparison)
{
    SpanCondition stored;
    stored.type = type;
    stored.expression = QStringList{text};
    return Condition(stored);
}

QStringList messages;

void collect(QtMsgType, const QMessageLogContext &, const QString &text)
{
    messages.append(text);
}

} // namespace

class tst_Condition : public QObject
{
    Q_OBJECT

private slots:
    void holds_data();
    void holds();
    void withoutTextNeverHolds();
    void numbers_data();
    void numbers();
    void explains_data();
    void explains();
    void explanationsAreShort();
    void firstOneWins();
    void badPatterns();
    void slowPatterns_data();
    void slowPatterns();
    void refreshIsBounded();
};

void tst_Condition::holds_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("met");
    QTest::addColumn<QStringList>("unmet");

    const auto row = [](int type, const QString &text, const QStringList &met,
                        const QStringList &unmet) {
        QTest::newRow(qPrintable(QString("%1 %2").arg(type).arg(text)))
            << type << text << met << unmet;
    };
    const QStringList texts{"", "abc", "nan", "inf", "-inf", "1e400", "0x10", "1,000", "5 6"};
    row(0, ">5", {"5.0000000001", " 6\n", "1e300"}, QStringList{"5", "4", "-6"} + texts);
    row(0, "<5", {"4.9999999999", "-1e300"}, QStringList{"5", "6"} + texts);
    row(0, ">=5", {"5", "5.0", "+6"}, QStringList{"4.9"} + texts);
    row(0, "<=-.5", {"-0.5", "-1"}, QStringList{"0", "-0.4"} + texts);
    row(0, "==0", {"0", "-0", "0.00", "0e5"}, QStringList{"1e-300"} + texts);
    row(0, "!=5", QStringList{"6"} + texts, {"5", "5.0", " 5 ", "0.5e1"});
    row(0, "==", {"", "  "}, {"0", "abc"});
    row(0, "!=", {"0", "abc"}, {"", "  "});
    row(0, "==-", {"-", " - "}, {"", "0", "-5"});
    row(0, "==." + QString(400, '0'), {"0"}, {".", ""});
    row(0, "==" + QString(400, '9'), {QString(400, '9')}, {"1e400", "9", ""});
    row(0, ">", {}, QStringList{"0", "5"} + texts);
    row(0, "<-", {}, QStringList{"0", "-5"} + texts);
    row(0, "(5,10)", {"5.1", "9.9"}, QStringList{"5", "10"} + texts);
    row(0, "[5,10]", {"5", "10"}, QStringList{"4.9", "10.1"} + texts);
    row(0, "[5,10)", {"5", "9.9"}, QStringList{"4.9", "10"} + texts);
    row(0, "(5,10]", {"5.1", "10"}, QStringList{"5", "10.1"} + texts);
    row(0, "[5,]", {"5", "1e308"}, QStringList{"4"} + texts);
    row(0, "(,5)", {"-1e308", "4"}, QStringList{"5"} + texts);
    row(0, "(,)", {"0", "-1e308", "1e308"}, texts);
    row(0, "[10,5]", {}, {"7", "10", "5"});
    row(0, "[-,5]", {}, {"0", "5", "-"});
    row(0, "(5,.)", {}, {"6"});
    row(7, ">5", {"6"}, {">5"});
    row(0, "a|b", {"b"}, {"5", ""});
    row(1, "^[A-Z].*|error", {"Stop", "an error!"}, {"stop", ""});
    row(1, "^\\d+$", {"12"}, {"a12", "", QStringLiteral("\u0665")});
    row(1, "", {}, {"", "a"});
    // What the author chose counts, not what the text looks like.
    row(1, ">5", {"a>5b"}, {"6"});
    row(1, "(1,2)", {"1,2"}, {"1.5"});
    row(1, "[5,10)", {}, {"7", "[5,10)"});
    row(1, "\\bx{3}$", {"a" + QString(100, ' ') + "xxx"}, {"xxxx", QString(999, 'x')});
    row(1, QStringLiteral("^.\ufffd$"), {QString("a") + QChar(0xd800), QStringLiteral("a\ufffd")},
        {QString::fromUcs4(U"a\U0001f600")});
    row(1, QStringLiteral("^(?:\u00e4|\\x{1f600}){1,40}$"),
        {QString::fromUcs4(U"\U0001f600\u00e4")}, {QString::fromUcs4(U"\U0001f600").repeated(41)});
    row(1, "a", {QString(QChar(0)) + "a"}, {QString(1, QChar(0))});
}

void tst_Condition::holds()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    QFETCH(QStringList, met);
    QFETCH(QStringList, unmet);
    const Condition tested = condition(text, type);
    const auto check = [&tested](const QString &value, bool expected) {
        return tested.holds(value) == expected &&
               tested.explain(ConditionValue(value)).holds == expected;
    };
    for (const QString &value : qAsConst(met)) {
        QVERIFY2(check(value, true), qPrintable(value));
    }
    for (const QString &value : qAsConst(unmet)) {
        QVERIFY2(check(value, false), qPrintable(value));
    }
    QVERIFY(check(QString(), false));
}

void tst_Condition::withoutTextNeverHolds()
{
    for (int type : {Comparison, Regular}) {
        SpanCondition stored;
        stored.type = type;
        QVERIFY(!Condition(stored).holds(QStringLiteral("5")));
        QVERIFY(!Condition(stored).holds(QString("")));
    }
}

void tst_Condition::numbers_data()
{
    QTest::addColumn<bool>("isNumber");
    for (const char *number : {"12", " 12 ", "\t12\n", "1e3", "1E+3", "+5", ".5", "5.", "-.5"}) {
        QTest::newRow(number) << true;
    }
    for (const char *text : {"", " ", "-", ".", "--5", "5-", "- 5", "nan", "NaN", "inf", "-INF",
                             "infinity", "1e400", "-1e400", "0x10", "1,000", "1,5", "5%", "5f"}) {
        QTest::newRow(text) << false;
    }
}

void tst_Condition::numbers()
{
    const ConditionValue value{QString(QTest::currentDataTag())};
    QTEST(value.isNumber(), "isNumber");
    QTEST(condition("(,)").holds(value), "isNumber");
}

void tst_Condition::explains_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("explanation");

    const auto row = [](const char *text, int type, const QString &value, const char *explanation) {
        QTest::newRow(text) << type << value << QString(explanation);
    };
    row(">15", 0, " 12", "12 is not greater than 15 (condition >15)");
    row(">=5", 0, "abc", "\"abc\" is not a number, so >=5 cannot hold");
    row("!=5", 0, "abc", "\"abc\" does not equal 5 (condition !=5)");
    row("==", 0, "", "\"\" equals \"\" (condition ==)");
    row("[5,10)", 0, "7", "7 lies in [5,10)");
    row("(5,10)", 0, "5", "5 does not lie in (5,10)");
    row("<=5", 0, QString(), "there is no value, so <=5 cannot hold");
    row("<", 0, "5", "< names no number and never holds");
    row("[-,5]", 0, "5", "[-,5] never holds, because \"-\" is not a number");
    row("", 1, "5", "the condition is empty and never holds");
    row("err", 1, "error", "the pattern err is found in \"error\"");
    row("%2", 1, "%1", "the pattern %2 is not found in \"%1\"");
    row("(a", 1, "a", "the pattern (a is broken at character 3: missing closing parenthesis");
    row("(*UCP)a", 1, "a",
        "the pattern (*UCP)a is broken at character 6: (*VERB) not recognized or malformed");
    row("(a+)+$", 1, QString(40, 'a') + "b",
        "searching \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaab\" for the pattern (a+)+$ takes too "
        "long");
    row(">5", 1, "6",
        "the pattern >5 is not found in \"6\" (it is stored as a regular expression, not as a "
        "comparison)");
}

void tst_Condition::explains()
{
    QFETCH(int, type);
    QFETCH(QString, value);
    QTEST(condition(QTest::currentDataTag(), type).explain(ConditionValue(value)).explanation,
          "explanation");
}

void tst_Condition::explanationsAreShort()
{
    const QString longText = QString(1000000, '7') + "\n" + QChar(0xd800);
    for (const QString &text :
         {QString(">5"), ">" + longText, "[," + longText + "]", longText, QString("(a")}) {
        const QString told = condition(text).explain(ConditionValue(longText)).explanation;
        QVERIFY2(told.size() < 250 && !told.contains('\n'), qPrintable(told));
    }
}

void tst_Condition::firstOneWins()
{
    const QVector<Condition> conditions{condition(">90"), condition("[50,90]"), condition(">20"),
                                        condition("^-", Regular), condition("!=")};
    const auto first = [&conditions](const QString &value) {
        return firstHolding(conditions, ConditionValue(value));
    };
    QCOMPARE(first("91"), 0);
    QCOMPARE(first("90"), 1);
    QCOMPARE(first("49"), 2);
    QCOMPARE(first("-1"), 3);
    QCOMPARE(first("abc"), 4);
    QCOMPARE(first(""), -1);
    QCOMPARE(first(QString()), -1);
}

/** Broken, endless and oversized ones in every combination of a prefix, a core and a suffix. */
void tst_Condition::badPatterns()
{
    const QStringList starts{"",    "^",   "(?i)",  "(?:",    "(?=.*",
                             "(.*", "\\b", "[^b]*", "(?<=a)", "(*UTF)"};
    const QStringList cores{"(a+)+",
                            "(a|aa)+",
                            "(a|a)*",
                            "(.*)*",
                            ".{0,100}.{0,100}",
                            "(a*)*\\1",
                            "(?:(?!.*x)a)*",
                            "(?:" + QString("(?!.*x)").repeated(130) + "a)*",
                            QString("(?=.*b)").repeated(120),
                            "(?R)?a",
                            "[a-",
                            "(?<n",
                            "a**",
                            "\\"};
    const QStringList ends{
        "", "$", "[xy]", ")", ")*[xy]", "{2}[xy]$", "a[^ab]", "\\1", QString(1000, 'a')};
    const QString value = QString(499, 'a') + "b" + QString(499, 'a');
    QLoggingCategory::setFilterRules("lctrlsex.records.warning=false");
    qint64 slowest = 0;
    for (int i = 0; i < starts.size() * cores.size() * ends.size(); ++i) {
        const Condition tested =
            condition(starts.at(i % starts.size()) + cores.at(i / starts.size() % cores.size()) +
                          ends.at(i / starts.size() / cores.size()),
                      Regular);
        for (int length : {30, 100, 999}) {
            const ConditionValue part(value.right(length));
            qint64 fastest = std::numeric_limits<qint64>::max();
            for (int run = 0; run < 3; ++run) {
                QElapsedTimer timer;
                timer.start();
                static_cast<void>(tested.holds(part));
                fastest = std::min(fastest, timer.nsecsElapsed());
            }
            slowest = std::max(slowest, fastest);
        }
    }
    QLoggingCategory::setFilterRules(QString());
    qInfo("the slowest search took %lld us", slowest / 1000);
    QVERIFY(slowest < 5000000);
}

void tst_Condition::slowPatterns_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("value");
    const QString as(900, 'a');
    QTest::newRow("exponential") << "(a+)+$" << as + "b";
    QTest::newRow("cubic") << ".{0,100}.{0,100}[xy]" << as;
    QTest::newRow("broken") << "(a" << as;
    QTest::newRow("long pattern") << QString(1001, 'a') << as;
    QTest::newRow("long value") << "a" << QString(1001, 'a');
}

void tst_Condition::slowPatterns()
{
    QFETCH(QString, pattern);
    QFETCH(QString, value);
    const Condition tested = condition(pattern, Regular);
    messages.clear();
    const auto before = qInstallMessageHandler(collect);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!tested.holds(value));
    }
    qInstallMessageHandler(before);
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().contains(pattern.left(60)), qPrintable(messages.first()));
}

void tst_Condition::refreshIsBounded()
{
    const Condition tested = condition("(?:(?!.*x)a)*[xy]", Regular);
    const ConditionValue slow(QString(900, 'a'));
    const ConditionValue met("y");
    QVERIFY(tested.holds(met));
    PatternBudget budget(5000);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 1000; ++i) {
        static_cast<void>(tested.holds(slow, &budget));
    }
    QVERIFY2(timer.elapsed() < 500, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(budget.isSpent());
    QVERIFY(!tested.holds(met, &budget));
    QVERIFY(tested.explain(met, &budget).explanation.contains("refresh"));
    PatternBudget next;
    QVERIFY(tested.holds(met, &next));
    QVERIFY(condition(">5").holds(ConditionValue("6"), &budget));
}

QTEST_GUILESS_MAIN(tst_Condition)
#include "tst_condition.moc"
