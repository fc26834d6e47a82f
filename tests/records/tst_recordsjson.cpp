#include "conditionalstyles.h"
#include "recordsjson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QtTest>

using namespace lctrlsex;

Q_DECLARE_METATYPE(SpanCondition)

namespace {

using Texts = QMap<QString, QString>;

const QString everything = QStringLiteral(R"([
    {
        "conditions": [
            {
                "expression": [
                    ">=5"
                ],
                "fontStyle": {
                    "bgColor": 3,
                    "bold": true,
                    "color": 255,
                    "fontName": "Sans",
                    "fontSize": 16,
                    "italic": false,
                    "underline": true
                },
                "key": "weather:wind",
                "type": 0
            }
        ],
        "id": "{7}",
        "name": "Storm"
    }
]
)");

const QString calculation = QStringLiteral(R"([
    {
        "defaultValue": "0",
        "expressions": [
            {
                "expression": {
                    "args": [
                        "${a}",
                        "2"
                    ],
                    "func": "*"
                },
                "variableName": "var1"
            }
        ],
        "id": "1",
        "key": "double"
    }
]
)");

ConditionalStyles styles(const QString &json)
{
    ConditionalStyles result;
    stylesFromJson(json, &result);
    return result;
}

QVector<CalculationCondition> calculations(const QString &json)
{
    QVector<CalculationCondition> result;
    calculationsFromJson(json, &result);
    return result;
}

/** What the toolkit makes of a text that our writer wrote. */
QString rewritten(const QString &json)
{
    return QString::fromUtf8(QJsonDocument::fromJson(json.toUtf8()).toJson());
}

/** Values of every kind, made from a seed. */
class Maker
{
public:
    explicit Maker(quint32 seed)
        : m_numbers(seed)
    {}

    int number() { return m_numbers.bounded(3) == 0 ? int(m_numbers.generate()) : below(100); }
    bool truth() { return below(2) == 0; }
    int below(int limit) { return m_numbers.bounded(limit); }
    QString text()
    {
        static const QVector<ushort> odd{'"',  '\\', '/',    0,      1,      '\n',   '\t',
                                         0x7f, 0xe9, 0x4e2d, 0xfffe, 0xd83d, 0xde00, 0x2028,
                                         ':',  '{',  ']',    'x',    ' '};
        QString result;
        for (int i = below(6); i > 0; --i) {
            result += QChar(odd.at(below(odd.size())));
        }
        return result;
    }
    QStringList texts()
    {
        QStringList result;
        for (int i = below(3); i > 0; --i) {
            result += text();
        }
        return result;
    }
    QJsonObject others()
    {
        QJsonObject result;
        for (int i = below(4) - 2; i > 0; --i) {
            result.insert("~" + text(),
                          QJsonArray{text(), number() / 8.0, QJsonObject{{"a", truth()}},
                                     QJsonValue(), QJsonArray()});
        }
        return result;
    }
    SpanCondition condition(const QString &key)
    {
        const FontStyle style{text(),  number(), number(), number(),
                              truth(), truth(),  truth(),  others()};
        return {number(), texts(), style, key, others()};
    }

private:
    QRandomGenerator m_numbers;
};

} // namespace

class TestRecordsJson : public QObject
{
    Q_OBJECT

private slots:
    void writesWhatItRead_data();
    void writesWhatItRead();
    void anyRecordsComeBack();
    void readsWhatIsReadable_data();
    void readsWhatIsReadable();
    void faults_data();
    void faults();
    void entriesAreFiled_data();
    void entriesAreFiled();
    void combinedForTheDialog();
    void publishedMaps();
};

void TestRecordsJson::writesWhatItRead_data()
{
    QTest::addColumn<QString>("json");
    QTest::newRow("nothing") << "[\n]\n";
    QTest::newRow("everything") << everything;
    QTest::newRow("members of others") << rewritten(
        QString(everything)
            .replace("\"bgColor\"",
                     R"("Z":1.5,"a":[],"bgColor.":{"b":null,"a":1e300},"zz":"\ud800","bgColor")")
            .replace("\"key\"", R"("":true,"key.":7,"key")")
            .replace("\"id\"", R"("ic":1,"ie":[1,[{}]],"id")"));
    QTest::newRow("types that do not fit")
        << rewritten(R"([{"conditions":[{"expression":"x","fontStyle":[1],
        "key":{"a":1},"type":"5"}],"id":null,"name":[]},{"conditions":7,"id":"","name":""}])");
}

void TestRecordsJson::writesWhatItRead()
{
    QFETCH(QString, json);
    QCOMPARE(stylesToJson(styles(json)), json);
    QCOMPARE(calculationsToJson(calculations(calculation)), calculation);
    QCOMPARE(calculationsToJson(calculations("[{\"defaultValue\":[],\"a\":1}]")),
             rewritten(R"([{"a":1,"defaultValue":[],"expressions":[],"id":"","key":""}])"));
}

void TestRecordsJson::anyRecordsComeBack()
{
    for (quint32 seed = 0; seed < 500; ++seed) {
        Maker make(seed);
        ConditionalStyles made;
        QVector<CalculationCondition> steps;
        for (int i = make.below(5); i > 0; --i) {
            const QString source = make.truth() ? make.text().remove(':') : QString();
            FieldConditions entry{make.text(), make.text(), {}, make.others()};
            for (int k = make.below(4); k > 0; --k) {
                // Without a source and a key nothing tells where the rest belongs.
                entry.conditions.append(make.condition(source.isEmpty() ? "" : "k" + make.text()));
            }
            const QString filed = entry.conditions.isEmpty() ? QString() : source;
            made[filed].name = filed;
            made[filed].items.append(entry);
            const FunctionCall call{make.text(), make.texts(), make.others()};
            steps.append({make.text(),
                          make.text(),
                          make.text(),
                          {{make.text(), call, make.others()}},
                          make.others()});
        }
        const QString json = stylesToJson(made);
        QCOMPARE(styles(json), made);
        QCOMPARE(json, rewritten(json));
        const QString list = calculationsToJson(steps);
        QCOMPARE(calculations(list), steps);
        QCOMPARE(list, rewritten(list));
    }
}

void TestRecordsJson::readsWhatIsReadable_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<SpanCondition>("condition");
    const auto add = [](const char *name, const QByteArray &json, SpanCondition condition) {
        condition.others = {};
        QTest::newRow(name) << QString("[{\"conditions\":[" + json + "]}]") << condition;
    };
    add("no style", "{}", {});
    add("no object", "[5]", {});
    add("texts", R"({"expression":[5,true,null,{},"x"]})", {0, {"5", "true", "", "", "x"}, {}, ""});
    add("whole part", R"({"type":1.9})", {1, {}, {}, ""});
    add("above", R"({"type":1e300})", {2147483647, {}, {}, ""});
    add("below", R"({"type":-4294967295})", {-2147483647 - 1, {}, {}, ""});
    add("twice", R"({"type":1,"type":2})", {2, {}, {}, ""});
    add("part of a style", R"({"fontStyle":{"color":7,"bold":1,"fontName":4}})",
        {0, {}, {"4", 0, 7}, ""});
}

void TestRecordsJson::readsWhatIsReadable()
{
    QFETCH(QString, json);
    QFETCH(SpanCondition, condition);
    SpanCondition read = styles(json).value("").items.value(0).conditions.value(0);
    read.others = {};
    read.fontStyle.others = {};
    QVERIFY(read == condition);
}

void TestRecordsJson::faults_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<int>("offset");
    QTest::newRow("empty") << "" << -1;
    QTest::newRow("truncated") << everything.left(200) << 200;
    QTest::newRow("an object") << "{}" << 0;
    QTest::newRow("a number that is none") << "[{\"a\":1e400}]" << 11;
    QTest::newRow("behind the end") << "[]]" << 2;
    QTest::newRow("nested") << QString("[").repeated(100000) << 1025;
}

void TestRecordsJson::faults()
{
    QFETCH(QString, json);
    ConditionalStyles read{{"old", {}}};
    QVector<CalculationCondition> list{{}};
    const RecordsFault fault = stylesFromJson(json, &read);
    QTEST(fault.offset, "offset");
    QCOMPARE(bool(fault), !json.isEmpty());
    QCOMPARE(calculationsFromJson(json, &list).offset, fault.offset);
    QVERIFY(read.isEmpty() && list.isEmpty());
}

void TestRecordsJson::entriesAreFiled_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("filed");
    QTest::newRow("none") << QStringList{} << "/";
    QTest::newRow("unbound") << QStringList{"", ""} << "/,";
    QTest::newRow("one source") << QStringList{"a:x", "", "a:y"} << "a/x,,y";
    QTest::newRow("first ones without") << QStringList{"", "a:x"} << "/ a/x";
    QTest::newRow("first colon") << QStringList{"a:x:y"} << "a/x:y";
    QTest::newRow("no colon") << QStringList{"x", "b:y"} << "/x b/y";
    QTest::newRow("no field") << QStringList{"a:"} << "/a:";
    QTest::newRow("two sources") << QStringList{"b:x", "", "a:y", "", "b:z"} << "a/y, b/x,,z";
}

void TestRecordsJson::entriesAreFiled()
{
    QFETCH(QStringList, keys);
    FieldConditions entry;
    for (const QString &key : keys) {
        entry.conditions.append({0, {}, {}, key});
    }
    ConditionalStyles filed;
    StyleFiler(&filed).file(entry);
    QStringList texts;
    for (const DynamicData &source : filed) {
        QStringList keysOfSource;
        for (const SpanCondition &condition : source.items.first().conditions) {
            keysOfSource << condition.key;
        }
        texts << source.name + "/" + keysOfSource.join(',');
    }
    QTEST(texts.join(' '), "filed");
}

void TestRecordsJson::combinedForTheDialog()
{
    const ConditionalStyles stored = styles(everything);
    const DynamicData combined = combinedStyles(stored, {"weather:wind", "plan:gate"});
    QCOMPARE(combined.fields, QStringList({"weather:wind", "plan:gate"}));
    QCOMPARE(combined.items.first().conditions.first().key, QString("weather:wind"));
}

void TestRecordsJson::publishedMaps()
{
    QCOMPARE(styleNames(styles(
                 R"([{"id":"2","name":"a"},{"id":"1","name":"b"},5,{"id":"2","name":"c"}])")),
             Texts({{"1", "b"}, {"2", "c"}}));
    QCOMPARE(defaultValues(calculations(R"([{"key":"a","defaultValue":"1"},7,{"defaultValue":"x"},
                                            {"key":"b"},{"key":"a","defaultValue":2}])")),
             Texts({{"a", "2"}, {"b", ""}}));
}

QTEST_APPLESS_MAIN(TestRecordsJson)
#include "tst_recordsjson.moc"
