// Pages of a bound table, each laid out from its own rows, against one document with all of them.

#include "boundpages.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

using namespace player;
using namespace lctrlsex;

class TestBoundPages : public QObject
{
    Q_OBJECT
private slots:
    void heights_data();
    void heights();
    void rowsLookTheSame();
    void pages_data();
    void pages();
};

static const QString Head =
    "<html><head><style type=\"text/css\">p, li { white-space: pre-wrap; }</style></head>"
    "<body style=\" font-family:'DejaVu Sans'; font-size:12px; color:#ffffff;\">";

static QString cell(const QString &text, int width, const QString &style = QString())
{
    return QString("<td width=\"%1\" style=\"%3 border:1px solid #00ff00;\"><p style=\" "
                   "margin-top:0px; margin-bottom:0px;\"><span style=\" font-size:14px; "
                   "color:#ffffff;\">%2</span></p></td>")
        .arg(width)
        .arg(text, style);
}

static StoredItem itemOf(const QString &rowTemplate, int width)
{
    StoredItem item;
    item.tableType = StoredItem::Rows;
    item.bindKey = "s:rows.{a,b,c}[]";
    item.placeholder = "T";
    item.rowTemplate = rowTemplate;
    item.content = Head +
                   QString("<table border=\"1\" width=\"%1\" cellspacing=\"0\" cellpadding=\"2\" "
                           "style=\" border-collapse:collapse;\">")
                       .arg(width) +
                   "${T}</table></body></html>";
    return item;
}

/** Rows of words, some long, some in other scripts. */
static sources::DataSnapshot rowsOfWords(int count, quint32 seed)
{
    const QStringList words{"Gate",    "12",
                            "AVAVAV",  QString::fromUtf8("出发"),
                            "delayed", QString(),
                            "\n",      QString::fromUtf8("عربى"),
                            "fi",      "WWWWWWWWWWWWWWWWWWWWW",
                            "e\u0301", " "};
    QRandomGenerator random(seed);
    QVector<sources::DataValue> rows;
    for (int i = 0; i < count; ++i) {
        QVector<sources::DataValue::Member> members;
        for (const QString name : {"a", "b", "c"}) {
            QStringList text;
            for (int n = random.bounded(6); n > 0; --n) {
                text.append(words.at(random.bounded(words.size())));
            }
            members.append({name, sources::DataValue::fromText(text.join(" ") + "")});
        }
        rows.append(sources::DataValue::fromRecord(members));
    }
    sources::DataSnapshot data;
    data["s"].value =
        sources::DataValue::fromRecord({{"rows", sources::DataValue::fromList(rows)}});
    return data;
}

void TestBoundPages::heights_data()
{
    QTest::addColumn<QString>("rowTemplate");
    const QString plain = cell("${a}", 90) + cell("b: ${b}", 80) + cell("${c}", 70);
    QTest::newRow("plain") << plain;
    QTest::newRow("middle, padded") << cell("${a}", 90, " vertical-align:middle;") +
                                           cell("${b}", 80, " padding-top:9px;") + cell("x", 70);
    QTest::newRow("runs") << cell("${a}</span><span style=\" font-size:22px;\">-${b}", 170) +
                                 cell("${c}</span></p><p style=\" margin-top:3px; "
                                      "line-height:150%;\"><span>${a}",
                                      70);
    QTest::newRow("tall constant")
        << cell("${a}", 90) + cell("1<br/>2<br/>3", 80) + cell("${c}", 70);
    QTest::newRow("list") << cell("${a}<ul><li>${b}</li></ul>", 170) + cell("${c}", 70);
    QTest::newRow("field image") << cell("<img src=\"data://bindKey/s/a.png\" title=\"s:a\" "
                                         "alt=\";DejaVu Sans;30;0;0;1;#ff0000;\" />",
                                         170) +
                                        cell("${c}", 70);
    QTest::newRow("style") << cell("<a href=\"bindStyle;1;x\">${a}</a>", 170) + cell("${c}", 70);
}

void TestBoundPages::heights()
{
    QFETCH(QString, rowTemplate);
    StoredItem item = itemOf("<tr>" + rowTemplate + "</tr>", 240);
    item.styles = R"([{"id":"1","name":"x","conditions":[{"type":1,"expression":["[0-9]"],"key":"",
        "fontStyle":{"fontSize":30,"bold":true}}]}])";
    PageStyle style;
    style.size = {256, LongestPageSide};
    BoundPages whole(item, rowsOfWords(60, 7), style);
    QCOMPARE(whole.pageCount(), 1);
    QVERIFY(!whole.page(0).isNull());
    const qreal all = whole.document().size().height();
    // The same rows on pages: what all pages hold is as high as one document.
    style.size = {256, 211};
    BoundPages pages(item, rowsOfWords(60, 7), style);
    QVERIFY(pages.pageCount() > 3);
    qreal sum = 0;
    for (int i = 0; i < pages.pageCount(); ++i) {
        QVERIFY(!pages.page(i).isNull());
        const qreal height = pages.document().size().height();
        const auto rows = pages.rowsOf(i);
        QVERIFY2(height <= 217 || rows.second == rows.first + 1, qPrintable(QString::number(i)));
        sum += height;
        if (i + 1 < pages.pageCount()) {
            // One more row would not have found room.
            const QString more = pages.rows().expandedRows(rows.first, rows.second + 1);
            ItemDocument document;
            ValueImages images(true);
            document.loadItem(pages.rows().head() + pages.rows().tableTag(0) + more + "</table>",
                              item.text);
            document.setPageSize({256, 0});
            QVERIFY(document.size().height() > 211 || more.contains("img"));
        }
    }
    ItemDocument empty;
    const qreal frame = sum - all;
    QCOMPARE(std::fmod(frame, pages.pageCount() - 1), 0.0);
    QVERIFY(frame / (pages.pageCount() - 1) < 16);
}

void TestBoundPages::rowsLookTheSame()
{
    const StoredItem item =
        itemOf("<tr>" + cell("${a}", 90) + cell("${b}", 80) + cell("${c}", 70) + "</tr>", 240);
    const auto data = rowsOfWords(40, 3);
    PageStyle style;
    style.size = {256, 4000};
    BoundPages whole(item, data, style);
    const QImage all = whole.page(0);
    style.size = {256, 120};
    BoundPages pages(item, data, style);
    int done = 0;
    for (int i = 0; i < pages.pageCount(); ++i) {
        const QImage page = pages.page(i);
        const int rows = int(pages.document().size().height()) - 14; // without frame and borders
        const QImage part = page.copy(0, 7, 256, qMin(rows, 113));
        QCOMPARE(part, all.copy(0, 7 + done, 256, part.height()));
        done += int(pages.document().size().height()) - 12;
    }
}

void TestBoundPages::pages_data()
{
    QTest::addColumn<QString>("variant");
    for (const char *name : {"plain", "frozen", "prologue", "long prologue", "epilogue",
                             "long epilogue", "fill", "form", "high row", "no data"}) {
        QTest::newRow(name) << name;
    }
}

/** Every row is on one page, in order; text before and behind stands where it should. */
void TestBoundPages::pages()
{
    QFETCH(QString, variant);
    StoredItem item = itemOf("<tr>" + cell("${a}", 240) + "</tr>", 240);
    const QString text = "<p style=\" margin:0px; font-size:14px;\">words</p>";
    item.hasHeader = variant == "frozen";
    item.freezesHeader = item.hasHeader;
    item.content.replace("${T}", (item.hasHeader ? "<tr>" + cell("Head", 240) + "</tr>" : "") +
                                     QString("${T}"));
    const int before = variant == "prologue" ? 1 : variant == "long prologue" ? 17 : 0;
    const int behind = variant == "epilogue" ? 1 : variant == "long epilogue" ? 17 : 0;
    item.content.replace("<table", text.repeated(before) + "<table");
    item.content.replace("</table>", "</table>" + text.repeated(behind));
    item.fillsArea = variant == "fill";
    if (variant == "form") {
        item.tableType = StoredItem::FixedForm;
        item.fixedRows = 3;
    }
    QVector<sources::DataValue> rows;
    for (int i = 0; i < (variant == "no data" ? 0 : 20); ++i) {
        const QString value = variant == "high row" && i == 9 ? QString("x\n").repeated(30) : "v";
        rows.append(sources::DataValue::fromRecord({{"a", sources::DataValue::fromText(value)}}));
    }
    sources::DataSnapshot data;
    data["s"].value =
        sources::DataValue::fromRecord({{"rows", sources::DataValue::fromList(rows)}});
    PageStyle style;
    style.size = {256, 100};
    BoundPages pages(item, data, style);
    QVERIFY(!pages.hasPage(-1) && pages.hasPage(0));
    const int count = pages.pageCount();
    QVERIFY(!pages.hasPage(count) && pages.hasPage(count - 1) && pages.page(count).isNull());
    int next = 0;
    int words = 0;
    QVector<QPair<int, int>> seen;
    for (int i = 0; i < count; ++i) {
        const auto range = pages.rowsOf(i);
        if (seen.isEmpty() || seen.last() != range) {
            QCOMPARE(range.first, next);
            next = range.second;
        }
        seen.append(range);
        QVERIFY(!pages.page(i).isNull());
        const QString shown = pages.document().toPlainText();
        words += i == 0 && before == 1 ? shown.count("words") : 0;
        words += i == count - 1 && behind == 1 ? shown.count("words") : 0;
        const bool isFrozen = variant == "frozen" && shown.contains("Head");
        QCOMPARE(isFrozen, variant == "frozen");
        if (item.fillsArea) {
            QCOMPARE(pages.document().size().height(), 100.0);
        }
    }
    QCOMPARE(next, pages.rows().rowCount());
    // A row takes 22 pixels, of which 4 find room beside the frame; a line of text takes 17.
    const QMap<QString, int> counts{{"plain", 5},    {"frozen", 7}, {"prologue", 6}, {"fill", 5},
                                    {"epilogue", 6}, {"form", 7},   {"no data", 1}};
    QCOMPARE(count, counts.value(variant, count));
    QCOMPARE(pages.problems().isEmpty(), variant != "high row");
    if (before + behind == 1) {
        QCOMPARE(words, 1);
    }
}

QTEST_MAIN(TestBoundPages)
#include "tst_boundpages.moc"
