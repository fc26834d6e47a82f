#include "itemdocument.h"
#include "pagelines.h"
#include "pagerenderer.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextLayout>
#include <QtTest>

using namespace lctrlsex;

class TestPageLines : public QObject
{
    Q_OBJECT
private slots:
    void breaks_data();
    void breaks();
    void noLineIsCut_data();
    void noLineIsCut();
    void pagesShowTheDocument();
    void countIsBounded();
};

namespace {

QString lines(int count, int size = 16)
{
    QString html;
    for (int i = 0; i < count; ++i) {
        html += QStringLiteral("<p style=\"margin:0;font-family:'DejaVu Sans';font-size:%1pt\">"
                               "Gg %2</p>")
                    .arg(size)
                    .arg(i);
    }
    return html;
}

QString rows(int count, const QString &cell)
{
    QString html = QStringLiteral("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">");
    for (int i = 0; i < count; ++i) {
        html += QStringLiteral("<tr><td>%1</td><td>%2</td></tr>").arg(i).arg(cell);
    }
    return html + QStringLiteral("</table>");
}

void load(ItemDocument *document, const QString &html, int width)
{
    document->loadItem(html, {});
    document->setTextWidth(width);
}

} // namespace

void TestPageLines::breaks_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("pages");
    QTest::addColumn<bool>("cut");
    // A line of DejaVu Sans at 16 points is 19 pixels high; the margin above the first is 4.
    QTest::newRow("empty") << QString() << 64 << 1 << false;
    QTest::newRow("fits exactly") << lines(3) << 61 << 1 << false;
    QTest::newRow("a pixel short") << lines(3) << 58 << 2 << false;
    QTest::newRow("lower margin is no text") << lines(3) << 62 << 1 << false;
    QTest::newRow("ten lines, three a page") << lines(10) << 64 << 4 << false;
    QTest::newRow("empty lines at the end")
        << lines(3) + QStringLiteral("<p><br/></p><p><br/></p><p><br/></p>") << 61 << 1 << false;
    QTest::newRow("line higher than a page") << lines(1, 40) << 30 << 1 << true;
    QTest::newRow("second line higher than a page") << lines(1) + lines(1, 60) << 40 << 2 << true;
    QTest::newRow("one-line rows") << rows(6, QStringLiteral("Gg")) << 64 << 3 << false;
    QTest::newRow("row higher than a page goes by its lines")
        << rows(1, QStringLiteral("Gg<br/>Gg<br/>Gg<br/>Gg")) << 50 << 2 << false;
}

void TestPageLines::breaks()
{
    QFETCH(QString, html);
    QFETCH(int, height);
    QFETCH(int, pages);
    QFETCH(bool, cut);
    ItemDocument document;
    load(&document, html, 200);
    const QVector<PageSlice> slices = paginate(document, height);
    QCOMPARE(slices.size(), pages);
    QCOMPARE(std::any_of(slices.begin(), slices.end(), [](const PageSlice &s) { return s.cut; }),
             cut);
}

void TestPageLines::noLineIsCut_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("plain") << lines(40);
    QTest::newRow("mixed sizes") << lines(9, 11) + lines(5, 23) + lines(12, 8);
    QTest::newRow("spaced") << QStringLiteral("<p style=\"line-height:170%\">%1</p>")
                                   .arg(QStringLiteral("word and word ").repeated(60));
    QTest::newRow("table between") << lines(4) + rows(15, QStringLiteral("Gg<br/>Gg")) + lines(4);
    QTest::newRow("list")
        << QStringLiteral("<ul><li>%1</li></ul>").arg(QStringLiteral("item text ").repeated(50));
}

void TestPageLines::noLineIsCut()
{
    QFETCH(QString, html);
    for (const int height : {30, 48, 64, 127}) {
        ItemDocument document;
        load(&document, html, 220);
        const QVector<PageSlice> slices = paginate(document, height);
        for (const PageSlice &slice : slices) {
            QVERIFY2(slice.bottom - slice.top + slice.drawnAt <= height + 0.5,
                     qPrintable(QString::number(height)));
        }
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            const qreal y = document.documentLayout()->blockBoundingRect(block).y();
            for (int i = 0; i < block.layout()->lineCount() && block.length() > 1; ++i) {
                const qreal top = y + block.layout()->lineAt(i).y();
                const qreal bottom = top + block.layout()->lineAt(i).height();
                const auto whole =
                    std::count_if(slices.begin(), slices.end(), [=](const PageSlice &slice) {
                        return slice.cut ||
                               (slice.top <= top + 0.5 && slice.bottom >= bottom - 0.5);
                    });
                QVERIFY2(whole == 1, qPrintable(block.text()));
            }
        }
    }
}

void TestPageLines::pagesShowTheDocument()
{
    ItemDocument document;
    load(&document, lines(7), 120);
    PageStyle tall;
    tall.size = QSize(120, 200);
    const QImage whole = drawTop(&document, tall);
    PageStyle style;
    style.size = QSize(120, 64);
    const QVector<PageSlice> slices = paginate(document, 64);
    QCOMPARE(slices.size(), 3);
    for (const PageSlice &slice : slices) {
        const QImage page = drawSlice(&document, style, slice);
        const int height = int(slice.bottom - slice.top);
        QCOMPARE(page.copy(0, int(slice.drawnAt), 120, height),
                 whole.copy(0, int(slice.top), 120, height));
    }
}

void TestPageLines::countIsBounded()
{
    ItemDocument document;
    load(&document, QStringLiteral("<p>%1</p>").arg(QStringLiteral("a<br/>").repeated(12000)), 50);
    QCOMPARE(paginate(document, 20).size(), MostPages);
}

QTEST_MAIN(TestPageLines)
#include "tst_pagelines.moc"
