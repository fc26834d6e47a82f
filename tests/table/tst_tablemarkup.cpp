#include "table/tabledom.h"
#include "table/tablemarkup.h"
#include "table/tablewidths.h"

#include <QDomDocument>
#include <QRandomGenerator>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QtTest>

#include <numeric>

using namespace lctrlsex;

/** What the markup of tables becomes for other renderers. */
class TestTableMarkup : public QObject
{
    Q_OBJECT

private slots:
    void widths_data();
    void widths();
    void whatQtWrites();
    void elementsAndMarkupAgree();
    void marks_data();
    void marks();
    void staysAsItIs_data();
    void staysAsItIs();
};

using Rows = QVector<QVector<CellExtent>>;
using Widths = QVector<QVector<int>>;
Q_DECLARE_METATYPE(Rows)
Q_DECLARE_METATYPE(Widths)

void TestTableMarkup::widths_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<int>("perJoint");
    QTest::addColumn<Widths>("expected");

    const auto cell = [](double width, int columns = 1, int rows = 1) {
        return CellExtent{rows, columns, width};
    };
    QTest::newRow("too wide") << Rows{{cell(300), cell(300)}} << 0 << Widths{{200, 200}};
    QTest::newRow("one without") << Rows{{cell(100), cell(-1)}} << 0 << Widths{{100, 300}};
    QTest::newRow("thirds") << Rows{{cell(133.3), cell(133.3), cell(133.3)}} << 0
                            << Widths{{133, 133, 134}};
    QTest::newRow("over two columns") << Rows{{cell(100), cell(100), cell(200)}, {cell(-1, 2)}} << 8
                                      << Widths{{100, 100, 200}, {208}};
    QTest::newRow("beside a taller cell")
        << Rows{{cell(50, 1, 2), cell(350)}, {cell(-1)}} << 0 << Widths{{50, 350}, {350}};
    QTest::newRow("too wide beside one without")
        << Rows{{cell(800), cell(-1)}} << 0 << Widths{{400, 0}};
    QTest::newRow("senseless spans")
        << Rows{{cell(-1, 0, -5), cell(-1, -2, 9999)}} << 5 << Widths{{200, 200}};
    QTest::newRow("no cells") << Rows{{}, {}} << 0 << Widths{{}, {}};
}

void TestTableMarkup::widths()
{
    QFETCH(Rows, rows);
    QFETCH(int, perJoint);
    QFETCH(Widths, expected);
    QCOMPARE(cellWidths(rows, 400, perJoint), expected);
}

static QStringList attributesOf(const QDomNodeList &nodes, const QString &name)
{
    QStringList values;
    for (int i = 0; i < nodes.size(); ++i) {
        values.append(nodes.at(i).toElement().attribute(name));
    }
    return values;
}

void TestTableMarkup::whatQtWrites()
{
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText(QStringLiteral("two  blanks <&>"));
    QTextTableFormat format;
    format.setWidth(400);
    format.setBorder(2);
    format.setCellPadding(3);
    format.setHeaderRowCount(1);
    format.setColumnWidthConstraints(
        QVector<QTextLength>(3, QTextLength(QTextLength::FixedLength, 133.3)));
    QTextTable *table = cursor.insertTable(2, 3, format);
    table->mergeCells(1, 0, 1, 2);
    const QString html = document.toHtml();
    const TableMarks marks{1, QStringLiteral("a\"<&.b"), true, false, true};
    const QString result = unifyTableColumnWidths(html, marks);

    QDomDocument parsed;
    QVERIFY(parsed.setContent(result));
    const QDomNodeList cells = parsed.elementsByTagName(QStringLiteral("td"));
    QCOMPARE(attributesOf(cells, QStringLiteral("width")),
             QStringList({"133", "133", "134", "274", "134"}));
    const QStringList styles = attributesOf(cells, QStringLiteral("style"));
    for (const QString &style : styles) {
        QVERIFY2(style.endsWith(QLatin1String(" border:2px solid #ff0000;")), qPrintable(style));
    }
    const QDomElement tag = parsed.elementsByTagName(QStringLiteral("table")).at(0).toElement();
    QCOMPARE(tag.attribute(QStringLiteral("dataSourceKey")), marks.dataSourceKey);
    // All outside the tags of the table stays, and so does what it looks like.
    QCOMPARE(result.left(html.indexOf("<table")), html.left(html.indexOf("<table")));
    QTextDocument again;
    again.setHtml(result);
    QCOMPARE(again.toPlainText(), document.toPlainText());
}

void TestTableMarkup::marks_data()
{
    QTest::addColumn<int>("tableType");
    QTest::addColumn<QString>("expected");

    const QString rest = QStringLiteral(" dataSourceKey=\"k\" thead=\"true\" header=\"false\""
                                        " fillArea=\"false\"");
    QTest::newRow("fixed") << 0 << " type=\"0\" orientation=\"0\"" + rest;
    QTest::newRow("rows") << 1 << " type=\"1\" orientation=\"1\"" + rest;
    QTest::newRow("columns") << 2 << " type=\"1\" orientation=\"0\"" + rest;
    QTest::newRow("both") << 3 << " type=\"2\" orientation=\"1\"" + rest;
}

void TestTableMarkup::marks()
{
    QFETCH(int, tableType);
    QFETCH(QString, expected);
    const TableMarks marks{tableType, QStringLiteral("k"), false, true, false};
    const QString html = QStringLiteral("<body><table type=\"7\"><tr><td style=\"a:b\"></td></tr>"
                                        "</table></body>");
    // An attribute that is there keeps its place, so nothing grows when it is done again.
    const QString once = unifyTableColumnWidths(html, marks);
    QCOMPARE(once,
             "<body><table" + expected.left(9) + " style=\" border-collapse:collapse;\"" +
                 expected.mid(9) +
                 "><tr><td style=\"a:b; border:1px solid #ff0000;\"></td></tr></table></body>");
}

void TestTableMarkup::staysAsItIs_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("empty") << QString();
    QTest::newRow("no table") << "<body>a  <b>b</b> <i> c</i></body>";
    QTest::newRow("no body") << "<table><tr><td></td></tr></table>";
    QTest::newRow("does not end") << "<body><table><tr><td>";
    QTest::newRow("a table in the text") << "<body>&lt;table&gt; <!-- <table> --></body>";
}

void TestTableMarkup::staysAsItIs()
{
    QFETCH(QString, html);
    QCOMPARE(unifyTableColumnWidths(html, TableMarks()), html);
}

/** The same rules stand behind an element of a document and behind markup. */
void TestTableMarkup::elementsAndMarkupAgree()
{
    const QString row = QStringLiteral("<tr><td width=\"30\" style=\"color:red\">a</td>"
                                       "<td colspan=\"2\" width=\"50%\">b</td></tr>");
    const QStringList tables = {
        QStringLiteral("<table width=\"400\">") + row + row,
        QStringLiteral("<table border=\"3\" cellpadding=\"4\" width=\"401\" "
                       "style=\"border-color:#00ff00; border-width:2px\"><thead>") +
            row + QStringLiteral("</thead><tr><td rowspan=\"2\">c</td><td/><td/></tr>"),
        QStringLiteral("<table width=\"90%\">") + row,
        QStringLiteral("<table style=\"border-collapse:separate\">") + row};
    for (const QString &table : tables) {
        const QString html = QStringLiteral("<html><body>%1</table></body></html>").arg(table);
        QDomDocument element;
        QDomDocument markup;
        QVERIFY(element.setContent(html) &&
                markup.setContent(unifyTableColumnWidths(html, TableMarks())));
        unifyTable(element.elementsByTagName("table").at(0).toElement());
        const QDomNodeList ours = element.elementsByTagName("td");
        const QDomNodeList theirs = markup.elementsByTagName("td");
        QCOMPARE(ours.size(), theirs.size());
        for (int i = 0; i < ours.size(); ++i) {
            for (const char *name : {"width", "style"}) {
                QCOMPARE(ours.at(i).toElement().attribute(name),
                         theirs.at(i).toElement().attribute(name));
            }
        }
        QCOMPARE(element.elementsByTagName("table").at(0).toElement().attribute("style").trimmed(),
                 markup.elementsByTagName("table").at(0).toElement().attribute("style").trimmed());
    }
    unifyTable(QDomElement());
}

QTEST_MAIN(TestTableMarkup)
#include "tst_tablemarkup.moc"
