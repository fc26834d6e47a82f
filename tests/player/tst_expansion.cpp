// What stored templates become with data: every folder of tests/data/expansion holds an item, the
// data and the rows that come out.

#include "boundpages.h"
#include "celltable.h"
#include "datapath.h"
#include "keysuggestion.h"
#include "reply.h"
#include "table/tabletemplate.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QXmlStreamReader>
#include <QtTest>

using namespace player;

class TestExpansion : public QObject
{
    Q_OBJECT
private slots:
    void cases_data();
    void cases();
    void oneLineIsTheAuthorsTable_data();
    void oneLineIsTheAuthorsTable();
    void paths_data();
    void paths();
    void escaping();
    void valuesAreNeverMarkup();
};

static QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static StoredItem itemOf(const QJsonObject &json)
{
    StoredItem item;
    item.content = json["content"].toString();
    item.tableType = json["type"].toInt();
    item.bindKey = json["key"].toString();
    item.placeholder = json["token"].toString();
    item.hasHeader = json["header"].toBool();
    item.turnsHorizontally = json["horizontal"].toBool();
    item.fixedRows = json["fixedRows"].toInt();
    item.rowTemplate = json["template"].toString();
    item.cellTemplates = json["cells"].toString();
    item.prefixes = json["prefixes"].toString();
    item.suffixes = json["suffixes"].toString();
    item.separator = json["separator"].toString();
    item.listSeparator = json["listSeparator"].toString("\n");
    item.source = json["source"].toString();
    item.styles = json["styles"].toString();
    item.calculations = json["calculations"].toString();
    return item;
}

static sources::DataSnapshot dataOf(const QByteArray &json)
{
    sources::DataSnapshot data;
    const sources::DataValue all = sources::parseJson(json).value;
    for (int i = 0; i < all.size(); ++i) {
        data[all.memberName(i)].value = all.at(i);
    }
    return data;
}

void TestExpansion::cases_data()
{
    QTest::addColumn<QString>("folder");
    const QDir all(LCTRLSEX_SOURCE_DIR "/tests/data/expansion");
    for (const QString &name : all.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QTest::newRow(qPrintable(name)) << all.filePath(name);
    }
}

void TestExpansion::cases()
{
    QFETCH(QString, folder);
    const auto json = QJsonDocument::fromJson(contentOf(folder + "/item.json")).object();
    const sources::DataSnapshot data = dataOf(contentOf(folder + "/data.json"));
    lctrlsex::PageStyle style;
    style.size = {256, 64};
    BoundPages pages(itemOf(json), data, style);
    QCOMPARE(pages.state(), ItemTemplate::Bound);
    const ItemTemplate &rows = pages.rows();
    QString html = rows.prologue() + rows.expandedRows(0, rows.rowCount());
    // One pass: parts are the same as the whole, and the text is well formed.
    QCOMPARE(rows.expandedRows(0, 1) + rows.expandedRows(1, rows.rowCount()) + rows.prologue(),
             rows.expandedRows(0, rows.rowCount()) + rows.prologue());
    QXmlStreamReader reader("<t>" + html + "</t>");
    while (!reader.atEnd()) {
        reader.readNext();
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString() + html));
    html.replace("<tr>", "\n<tr>");
    for (const Problem &problem : pages.problems()) {
        html += "\n" + problem.place + ": " + problem.reason + "; " + problem.remedy;
    }
    if (qEnvironmentVariableIsSet("LCTRLSEX_WRITE_EXPECTED")) {
        QFile file(folder + "/expected.txt");
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(html.toUtf8()) > 0);
    }
    QCOMPARE(html, QString::fromUtf8(contentOf(folder + "/expected.txt")));
    QVERIFY(pages.pageCount() > 0 && !pages.page(pages.pageCount() - 1).isNull());
}

void TestExpansion::oneLineIsTheAuthorsTable_data()
{
    QTest::addColumn<QString>("folder");
    const QDir all(LCTRLSEX_SOURCE_DIR "/tests/data/templates");
    // The pattern for rows below does not understand these.
    const QStringList odd{"rows-nested", "rows-comment", "fixed-unknown-type"};
    for (const QString &name : all.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QByteArray node = contentOf(all.filePath(name) + "/node.json");
        if (QJsonDocument::fromJson(node).object()["roundTrip"].toBool() && !odd.contains(name)) {
            QTest::newRow(qPrintable(name)) << all.filePath(name);
        }
    }
}

/** What the editor cuts out comes back when the data says what the author's placeholders do. */
void TestExpansion::oneLineIsTheAuthorsTable()
{
    QFETCH(QString, folder);
    const auto node = QJsonDocument::fromJson(contentOf(folder + "/node.json")).object();
    QString input = QString::fromUtf8(contentOf(folder + "/input.html"));
    input.replace("width='9'", "width='900'"); // room for all columns
    const auto cut = lctrlsex::cutTemplate(input, node["type"].toInt(), node["header"].toBool());
    QCOMPARE(cut.outcome, lctrlsex::TableTemplate::Cut);
    StoredItem item;
    item.tableType = node["type"].toInt();
    item.hasHeader = node["header"].toBool();
    item.content = cut.content;
    item.placeholder = cut.token;
    item.separator = cut.separator;
    (item.tableType < StoredItem::Columns ? item.rowTemplate : item.cellTemplates) = cut.part;
    item.prefixes = cut.prefix;
    item.suffixes = cut.suffix;
    item.fixedRows = cut.fixedRows;
    const bool isNamed = cut.part.contains("${a}");
    item.bindKey = isNamed ? "s:r.{a,b,c}[]" : "s:m[][]";
    QStringList line;
    for (int i = 0; i < 8; ++i) {
        line.append(QString("\"${%1}\"").arg(item.tableType == 3 ? "i" : QString::number(i)));
    }
    const int values = item.tableType == 3 ? input.count("${i}") : line.size();
    const auto data =
        dataOf("{\"s\":{\"r\":[{\"a\":\"${a}\",\"b\":\"${b}\",\"c\":\"${c}\"}],\"m\":[[" +
               line.mid(0, values).join(",").toUtf8() + "]]}}");
    lctrlsex::PageStyle style;
    style.size = {256, 64};
    BoundPages pages(item, data, style);
    QCOMPARE(pages.state(), ItemTemplate::Bound);
    const int rows = item.tableType == 0 ? 1 + int(item.hasHeader) : pages.rows().rowCount();
    // Widths are set anew, and blanks between rows mean nothing.
    const QRegularExpression width("\\swidth=['\"]?\\d+['\"]?");
    QString expected;
    auto found = QRegularExpression("<tr.*?</tr>", QRegularExpression::DotMatchesEverythingOption)
                     .globalMatch(input.mid(input.indexOf("<table")));
    for (int row = 0; found.hasNext() && row < rows; ++row) {
        expected += found.next().captured();
    }
    QString made = pages.rows().expandedRows(0, rows);
    QCOMPARE(made.remove(width), expected.remove(width));
}

void TestExpansion::paths_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("nearest");
    QTest::newRow("member") << "s:a.b"
                            << "1"
                            << "s:a.b";
    QTest::newRow("index") << "s:list[1][0]"
                           << "x" << QString();
    QTest::newRow("name with a dot") << "s:c.d"
                                     << "dot"
                                     << "s:c.d";
    QTest::newRow("member below it") << "s:c.e"
                                     << "plain"
                                     << "s:c.e";
    QTest::newRow("Chinese") << QString::fromUtf8("s:中.文") << "y" << QString::fromUtf8("s:中.文");
    QTest::newRow("misspelt") << "s:temprature" << QString() << "s:temperature";
    QTest::newRow("field of a list") << "s:rows.prise" << QString() << "s:rows.price";
    QTest::newRow("other source") << "t:temperature" << QString() << "s:temperature";
    for (const char *key : {"s:list[2]", "s:list[99999999999]", "s:list[-1]", "s:list[", "s:a.",
                            "s:", "", ":", "s:a[0]", "s:a.b.c", "s:.", "s:a..b"}) {
        QTest::newRow(key) << key << QString() << "-";
    }
}

void TestExpansion::paths()
{
    QFETCH(QString, key);
    QFETCH(QString, nearest);
    const auto data = dataOf(QByteArray(R"({"s":{"a":{"b":"1"},"list":["z",["x"]],"c.d":"dot",)") +
                             QByteArray(R"("c":{"d":"no","e":"plain"},"temperature":"20",)") +
                             QByteArray(R"("rows":[{"price":"1"}],)") +
                             QString::fromUtf8(R"("中":{"文":"y"}}})").toUtf8());
    bool isFound = false;
    QTEST(valueOfKey(data, key, QString(), &isFound).text(), "text");
    if (nearest != "-") {
        QCOMPARE(nearest.isEmpty() ? QString() : nearestKey(data, key), nearest);
    }
}

void TestExpansion::escaping()
{
    for (uint c = 0; c < 0x10000; ++c) {
        const QString html = escapedValue(QString("a%1b").arg(QChar(ushort(c))));
        QXmlStreamReader reader("<t>" + html + "</t>");
        QVERIFY(reader.readNextStartElement());
        const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        QVERIFY2(!reader.hasError(), qPrintable(QString::number(c, 16)));
        QVERIFY(text.startsWith('a') && text.endsWith('b'));
    }
    QCOMPARE(escapedValue(QString(LongestValue + 1, 'x')).size(), LongestValue + 1); // one is "..."
}

/** Two thousand values that look like everything but text show as what they are. */
void TestExpansion::valuesAreNeverMarkup()
{
    const QStringList bits = {"<img src=\"x\">",
                              "</td></tr></table>",
                              "&amp;",
                              "&#60;",
                              "]]>",
                              "${0}",
                              "${a}",
                              "${table:1}",
                              "\"",
                              "'",
                              ";",
                              ":",
                              "/",
                              "<!--",
                              "-->",
                              "<?xml?>",
                              "<![CDATA[",
                              "bindStyle;1;x",
                              "data://bindKey/s/a.png",
                              QString(QChar(0)),
                              QString(QChar(0xffff)),
                              QString(QChar(0xd800)),
                              "\n",
                              "\t",
                              "plain ",
                              QString(QChar(0x6587))};
    QRandomGenerator random(11);
    QVector<sources::DataValue> lines;
    QStringList values;
    for (int i = 0; i < 2000; ++i) {
        QString value;
        for (int bit = random.bounded(1, 6); bit > 0; --bit) {
            value += random.bounded(4) == 0 ? QString(QChar(ushort(random.bounded(0x10000))))
                                            : bits.at(random.bounded(bits.size()));
        }
        values.append(value);
        lines.append(sources::DataValue::fromRecord({{"a", sources::DataValue::fromText(value)},
                                                     {"b", sources::DataValue::fromText("1")}}));
    }
    sources::DataSnapshot data;
    data["s"].value = sources::DataValue::fromRecord({{"m", sources::DataValue::fromList(lines)}});
    StoredItem item;
    item.tableType = 1;
    item.bindKey = "s:m.{a,b}[]";
    item.placeholder = "table:1";
    item.content = "<html><body><table width=\"200\">${table:1}</table></body></html>";
    item.rowTemplate = "<tr><td width=\"100\"><p><a href=\"bindStyle;1;x\">${a}</a></p></td>"
                       "<td width=\"100\"><p>${b}</p></td></tr>";
    item.styles = R"([{"id":"1","name":"x","conditions":[{"key":"s:a","type":0,)"
                  R"("expression":["!=x"],"fontStyle":{"fontName":"DejaVu Sans","fontSize":9}}]}])";
    lctrlsex::PageStyle style;
    style.size = {256, 64};
    BoundPages pages(item, data, style);
    const ItemTemplate &rows = pages.rows();
    QCOMPARE(rows.rowCount(), values.size());
    QXmlStreamReader reader("<t>" + rows.expandedRows(0, rows.rowCount()) + "</t>");
    int cells = 0;
    QString text;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("td")) {
            text.clear();
        } else if (reader.isStartElement() && reader.name() == QLatin1String("br")) {
            text += QChar::LineSeparator;
        } else if (reader.isCharacters()) {
            text += reader.text();
        } else if (reader.isEndElement() && reader.name() == QLatin1String("td")) {
            const QString expected = cells % 2 == 1 ? "1" : shownText(values.at(cells / 2));
            QCOMPARE(text.remove(QChar(0x200b)), QString(expected).remove(QChar(0x200b)));
            ++cells;
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QCOMPARE(cells, 2 * values.size());
    // A table, which is filled straight from its UTF-8, gives the same as the texts that it holds.
    sources::CellWriter writer;
    for (int i = 0; i < values.size(); ++i) {
        const QByteArray utf8 = values.at(i).toUtf8();
        writer.beginRow();
        writer.addCell(utf8.constData(), size_t(utf8.size()));
        lines[i] = sources::DataValue::fromRecord(
            {{"a",
              sources::DataValue::fromText(QString::fromUtf8(utf8.constData(), utf8.size()))}});
    }
    const auto rowsOf = [&](const sources::DataValue &list) {
        data["s"].value = sources::DataValue::fromRecord({{"m", list}});
        const BoundPages filled(item, data, style);
        return filled.rows().expandedRows(0, values.size());
    };
    const auto table = std::make_shared<sources::CellTable>(QStringList{"a"}, writer.take());
    QCOMPARE(rowsOf(sources::DataValue::fromTable(table)),
             rowsOf(sources::DataValue::fromList(lines)));
}

QTEST_MAIN(TestExpansion)
#include "tst_expansion.moc"
