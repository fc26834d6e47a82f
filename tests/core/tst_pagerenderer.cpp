#include "documentsetup.h"
#include "itemdocument.h"
#include "pagelines.h"
#include "pagerenderer.h"
#include "topblocks.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPalette>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QTextTable>
#include <QtTest>

using namespace lctrlsex;

namespace {

QString paragraphs(int count, const QString &style = QString())
{
    QString html;
    for (int i = 0; i < count; ++i) {
        html += QStringLiteral("<p style=\"margin:0px;%1\"><span style=\"font-family:'DejaVu Sans';"
                               "font-size:%2pt;color:#%3\">Line %4 of the notice</span></p>")
                    .arg(style)
                    .arg(10 + i % 7)
                    .arg(0x40ff00 + i * 97 % 200, 6, 16, QLatin1Char('0'))
                    .arg(i);
    }
    return html;
}

QString table(int rows)
{
    QString html = QStringLiteral("<table border=\"1\" cellpadding=\"2\" cellspacing=\"0\">");
    for (int i = 0; i < rows; ++i) {
        html +=
            QStringLiteral("<tr><td width=\"60\">%1</td><td width=\"120\">Platform %1</td></tr>")
                .arg(i);
    }
    return html + QStringLiteral("</table>");
}

/** A document as a view edits it, with sizes in points. */
void loadForEditing(ItemDocument *document, const QString &html, const TextSettings &settings = {})
{
    prepareView(document, settings);
    document->setHtml(html);
    applyLetterSpacing(document, settings);
}

/** What a page must look like: the whole document, laid out apart from any view. */
QImage drawnFromClone(const QTextDocument &document, const PageStyle &style)
{
    QScopedPointer<QTextDocument> clone(document.clone());
    TextSettings settings;
    settings.fontSize = document.defaultFont().pointSize();
    preparePage(clone.data(), settings);
    pointsToPixels(clone.data());
    clone->setTextWidth(style.size.width());
    return drawTop(clone.data(), style);
}

} // namespace

class TestPageRenderer : public QObject
{
    Q_OBJECT
private slots:
    void pointIsPixel();
    void lengthsArePixels();
    void topEqualsWholeDocument_data();
    void topEqualsWholeDocument();
    void editsBelowThePageCostNothing();
    void editsAreFollowed_data();
    void editsAreFollowed();
    void longTablesAreCut_data();
    void longTablesAreCut();
    void viewsOwnLayoutIsLeftAlone();
    void impossibleSizesGiveNoPage_data();
    void impossibleSizesGiveNoPage();
    void paletteIsNotSeen();
    void groundAndAlpha();
    void finishRunsHollowThenStroke();
};

void TestPageRenderer::pointIsPixel()
{
    const QString text =
        QStringLiteral("<p style=\"font-family:'DejaVu Sans'; font-size:16%1\">"
                       "Departures<br/>Arrivals</p><p style=\"font-size:20%1\"></p>");
    const QString points = text.arg(QStringLiteral("pt"));
    const QString pixels = text.arg(QStringLiteral("px"));
    PageStyle style;
    style.size = QSize(200, 80);
    style.isTransparent = true;

    ItemDocument inPoints;
    inPoints.loadItem(points, {});
    ItemDocument inPixels;
    inPixels.loadItem(pixels, {});
    inPoints.setTextWidth(200);
    inPixels.setTextWidth(200);
    QCOMPARE(inPoints.size(), inPixels.size());
    const QImage page = drawTop(&inPixels, style);
    QCOMPARE(drawTop(&inPoints, style), page);

    ItemDocument edited;
    loadForEditing(&edited, points);
    edited.setTextWidth(200);
    QCOMPARE(edited.firstBlock().layout()->lineAt(0).height(),
             inPixels.firstBlock().layout()->lineAt(0).height());
    QCOMPARE(PageRenderer().topPage(&edited, style), page);
    QCOMPARE(edited.firstBlock().begin().fragment().charFormat().fontPointSize(), 16.0);
}

void TestPageRenderer::lengthsArePixels()
{
    ItemDocument document;
    document.loadItem(QStringLiteral("<table border=\"0\" cellspacing=\"0\" cellpadding=\"0\" "
                                     "width=\"300\"><tr><td width=\"100\"></td>"
                                     "<td width=\"200\"></td></tr></table>"
                                     "<p style=\"margin-left:24px\">x</p>"),
                      {});
    document.setTextWidth(384);
    const auto *layout = document.documentLayout();
    const auto *grid = qobject_cast<QTextTable *>(document.rootFrame()->childFrames().constFirst());
    QCOMPARE(layout->frameBoundingRect(document.rootFrame()->childFrames().constFirst()).width(),
             300.0);
    const qreal left =
        layout->blockBoundingRect(grid->cellAt(0, 0).firstCursorPosition().block()).x();
    const qreal right =
        layout->blockBoundingRect(grid->cellAt(0, 1).firstCursorPosition().block()).x();
    QCOMPARE(right - left, 100.0);
    QCOMPARE(document.lastBlock().layout()->lineAt(0).x(), 24.0);
}

void TestPageRenderer::topEqualsWholeDocument_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<int>("fontSpace");
    const QString justified = QStringLiteral("text-align:justify;text-indent:12px;");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("one line") << paragraphs(1) << 0;
    QTest::newRow("first block centred")
        << QStringLiteral("<p align=\"center\" style=\"line-height:150%;margin-top:9px\">Top</p>") +
               paragraphs(3)
        << 0;
    QTest::newRow("many pages") << paragraphs(400) << 0;
    QTest::newRow("letter spacing") << paragraphs(40) << 5;
    QTest::newRow("justified and indented") << paragraphs(40, justified) << 0;
    QTest::newRow("right to left")
        << QStringLiteral("<p dir=\"rtl\">\u0645\u0631\u062d\u0628\u0627 platform 3</p>") +
               paragraphs(60)
        << 0;
    QTest::newRow("list") << QStringLiteral(
                                 "<ol><li>First</li><li>Second<ul><li>Inner</li></ul></li></ol>") +
                                 paragraphs(60)
                          << 0;
    QTest::newRow("table first") << table(4) + paragraphs(60) << 0;
    QTest::newRow("table inside") << paragraphs(2) + table(30) + paragraphs(60) << 0;
    QTest::newRow("table only") << table(50) << 0;
    QTest::newRow("image") << QStringLiteral(
                                  "<p>A <img src=\"data://bindKey/weather/now.png\"/> B</p>") +
                                  paragraphs(60)
                           << 0;
    QTest::newRow("background and rule")
        << QStringLiteral("<p style=\"background-color:#203040\">Note</p><hr/>") + paragraphs(60)
        << 0;
}

void TestPageRenderer::topEqualsWholeDocument()
{
    QFETCH(QString, html);
    QFETCH(int, fontSpace);
    TextSettings settings;
    settings.fontSpace = fontSpace;
    ItemDocument document;
    loadForEditing(&document, html, settings);
    QImage field(40, 18, QImage::Format_ARGB32);
    field.fill(Qt::yellow);
    document.addResource(QTextDocument::ImageResource,
                         QUrl(QStringLiteral("data://bindKey/weather/now.png")), field);
    document.markContentsDirty(0, document.characterCount());

    PageRenderer renderer;
    for (const QSize &size : {QSize(256, 64), QSize(384, 128), QSize(31, 400), QSize(640, 16)}) {
        for (const bool transparent : {true, false}) {
            PageStyle style;
            style.size = size;
            style.isTransparent = transparent;
            QCOMPARE(renderer.topPage(&document, style), drawnFromClone(document, style));
        }
    }
    PageStyle style;
    style.size = QSize(256, 64);
    for (const int position :
         {0, 5, document.characterCount() / 2, document.characterCount() - 1}) {
        QTextCursor cursor(&document);
        cursor.setPosition(qMin(position, document.characterCount() - 1));
        cursor.insertText(QStringLiteral("+"));
        QCOMPARE(renderer.topPage(&document, style), drawnFromClone(document, style));
    }
}

void TestPageRenderer::editsBelowThePageCostNothing()
{
    ItemDocument document;
    loadForEditing(&document, paragraphs(300));
    TopBlocks top;
    const QSize size(256, 64);
    QPointer<QTextDocument> before = top.documentFor(&document, size);
    QVERIFY(before->blockCount() < 20);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QStringLiteral("below"));
    QCOMPARE(top.documentFor(&document, size), before.data());
    cursor.setPosition(2);
    cursor.insertText(QStringLiteral("inside"));
    QVERIFY(top.documentFor(&document, size)->toPlainText().startsWith(QStringLiteral("Liinside")));
}

void TestPageRenderer::editsAreFollowed_data()
{
    QTest::addColumn<QString>("html");

    const QString line = QStringLiteral("<p align='right'>first <b>line</b> of text</p><p></p>");
    QTest::newRow("short") << line;
    QTest::newRow("long") << line.repeated(40);
    QTest::newRow("table") << line +
                                  "<table border='1' width='150'><tr><td>a</td><td>b</td></tr>"
                                  "</table>" +
                                  line.repeated(9);
    QTest::newRow("list") << "<ul><li>one</li><li>two</li></ul>" + line.repeated(9);
}

/** A renderer that lives as long as the text shows what one made for the moment would. */
void TestPageRenderer::editsAreFollowed()
{
    QFETCH(QString, html);
    ItemDocument document;
    loadForEditing(&document, html);
    document.setUndoRedoEnabled(true);
    PageStyle style;
    style.size = QSize(200, 90);
    style.isTransparent = true;
    PageRenderer living;
    QRandomGenerator random(7);
    QTextCursor cursor(&document);
    for (int step = 0; step < 150; ++step) {
        const int end = document.characterCount();
        cursor.setPosition(random.bounded(random.bounded(2) == 0 ? qMin(end, 60) : end));
        switch (random.bounded(8)) {
        case 0:
            cursor.deleteChar();
            break;
        case 1:
            cursor.insertBlock();
            break;
        case 2:
            cursor.deletePreviousChar();
            break;
        case 3: {
            cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, 3);
            QTextCharFormat format;
            format.setFontPointSize(random.bounded(8, 30));
            cursor.mergeCharFormat(format);
            break;
        }
        case 4:
            cursor.setBlockFormat(QTextBlockFormat());
            break;
        case 5:
            document.undo();
            break;
        default:
            cursor.insertText(QStringLiteral("typed "));
        }
        if (random.bounded(4) != 0) {
            QCOMPARE(living.topPage(&document, style), PageRenderer().topPage(&document, style));
        }
    }
}

void TestPageRenderer::longTablesAreCut_data()
{
    QTest::addColumn<QString>("columns");
    QTest::addColumn<QString>("before");
    QTest::addColumn<bool>("isCut");
    const QString heading = QStringLiteral("<h2>Departures</h2><p></p>");
    QTest::newRow("pixels") << QStringLiteral("70") << QString() << true;
    QTest::newRow("text before") << QStringLiteral("70") << heading << true;
    QTest::newRow("percent") << QStringLiteral("33%") << heading << false;
    QTest::newRow("no widths") << QString() << heading << false;
}

/** Only top rows are laid out for a page, and what is drawn is as if it had been all of them. */
void TestPageRenderer::longTablesAreCut()
{
    QFETCH(QString, columns);
    QFETCH(QString, before);
    QFETCH(bool, isCut);
    const QString cell = QStringLiteral("<td bgcolor='#102030' valign='bottom' width='%1'>"
                                        "<p align='right'>a <b>%2</b></p><p>x</p></td>");
    QString rows;
    for (int row = 0; row < 150; ++row) {
        rows += QLatin1String("<tr>");
        for (int column = 0; column < 3; ++column) {
            rows += cell.arg(columns).arg(row * 3 + column);
        }
        rows += QLatin1String("</tr>");
    }
    ItemDocument document;
    loadForEditing(&document, before + QStringLiteral("<table border='1' width='250'>") + rows +
                                  QStringLiteral("</table><p>behind</p>"));
    document.setTextWidth(300);
    document.size();
    auto *table = qobject_cast<QTextTable *>(document.rootFrame()->childFrames().constFirst());
    PageStyle style;
    style.size = QSize(300, 120);
    PageRenderer renderer;
    QRandomGenerator random(3);
    TopBlocks top;
    QCOMPARE(top.documentFor(&document, style.size)->blockCount() < 200, isCut);
    for (int step = 0; step < 25; ++step) {
        const int row = random.bounded(random.bounded(3) == 0 ? 140 : 8);
        QTextCursor cursor = table->cellAt(row, random.bounded(3)).lastCursorPosition();
        switch (random.bounded(6)) {
        case 0:
            table->mergeCells(row, 0, 1 + random.bounded(9), 1 + random.bounded(2));
            break;
        case 1:
            cursor.insertText(QStringLiteral("Unbreakably"));
            break;
        case 2:
            document.undo();
            break;
        case 3:
            cursor.insertBlock();
            break;
        case 4: {
            QTextTableFormat format = table->format();
            format.setCellPadding(random.bounded(6));
            table->setFormat(format);
            break;
        }
        default:
            cursor.deletePreviousChar();
        }
        QCOMPARE(renderer.topPage(&document, style), drawnFromClone(document, style));
    }
}

void TestPageRenderer::viewsOwnLayoutIsLeftAlone()
{
    ItemDocument document;
    loadForEditing(&document, paragraphs(50));
    document.setTextWidth(700);
    QSignalSpy layouts(document.documentLayout(),
                       &QAbstractTextDocumentLayout::documentSizeChanged);
    PageRenderer renderer;
    PageStyle style;
    style.size = QSize(64, 64);
    QVERIFY(!renderer.topPage(&document, style).isNull());
    QCOMPARE(document.textWidth(), 700.0);
    QCOMPARE(layouts.count(), 0);
}

void TestPageRenderer::impossibleSizesGiveNoPage_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("possible");
    QTest::newRow("invalid") << QSize() << false;
    QTest::newRow("no width") << QSize(0, 64) << false;
    QTest::newRow("no height") << QSize(64, 0) << false;
    QTest::newRow("negative") << QSize(-5, -5) << false;
    QTest::newRow("too long") << QSize(100000, 1) << false;
    QTest::newRow("too many pixels") << QSize(16000, 16000) << false;
    QTest::newRow("one pixel") << QSize(1, 1) << true;
}

void TestPageRenderer::impossibleSizesGiveNoPage()
{
    QFETCH(QSize, size);
    QFETCH(bool, possible);
    ItemDocument document;
    loadForEditing(&document, paragraphs(2));
    PageRenderer renderer;
    PageStyle style;
    style.size = size;
    QCOMPARE(!renderer.topPage(&document, style).isNull(), possible);
    QCOMPARE(isPageSize(size), possible);
}

void TestPageRenderer::paletteIsNotSeen()
{
    ItemDocument document;
    loadForEditing(&document, QStringLiteral("<p>Plain</p>"));
    PageStyle style;
    style.size = QSize(100, 40);
    style.background = Qt::white;
    const QImage light = drawnFromClone(document, style);
    const QPalette kept = QGuiApplication::palette();
    QPalette dark = kept;
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    QGuiApplication::setPalette(dark);
    const QImage again = drawnFromClone(document, style);
    QGuiApplication::setPalette(kept);
    QCOMPARE(again, light);
}

void TestPageRenderer::groundAndAlpha()
{
    ItemDocument document;
    loadForEditing(&document, QString());
    PageRenderer renderer;
    PageStyle style;
    style.size = QSize(8, 8);
    style.background = QColor(10, 20, 30, 40);
    QImage page = renderer.topPage(&document, style);
    QVERIFY(!page.hasAlphaChannel());
    QCOMPARE(page.pixel(4, 4), qRgba(10, 20, 30, 255));
    const QImage finished = finishPage(page, page.size(), {}, {});
    QCOMPARE(finished.format(), QImage::Format_ARGB32);
    QCOMPARE(finished.pixel(4, 4), qRgba(10, 20, 30, 255));
    style.isTransparent = true;
    page = renderer.topPage(&document, style);
    QCOMPARE(page.pixel(4, 4), 0u);
    const QImage placed = finishPage(page, page.size(), {}, {});
    QCOMPARE(placed.format(), QImage::Format_ARGB32);
    QCOMPARE(placed.pixel(4, 4), qRgb(1, 2, 1));
}

void TestPageRenderer::finishRunsHollowThenStroke()
{
    PageEffects effects;
    effects.hollow = [](const QImage &image) {
        QImage marked = image;
        marked.setPixel(0, 0, qRgba(1, 0, 0, 255));
        return marked;
    };
    effects.stroke = [](const QImage &image, const QColor &color) {
        QImage marked = image;
        if (image.pixel(0, 0) == qRgba(1, 0, 0, 255)) {
            marked.setPixel(0, 0, color.rgba());
        }
        return marked;
    };
    QImage page(4, 4, QImage::Format_ARGB32);
    page.fill(qRgba(9, 9, 9, 255));
    PageFinish finish;
    finish.isHollow = true;
    finish.hasStroke = true;
    finish.strokeColor = Qt::green;
    finish.contentAlign = Qt::AlignTop;
    QCOMPARE(finishPage(page, page.size(), finish, effects).pixel(0, 0), QColor(Qt::green).rgba());
    QVERIFY(finishPage(QImage(), QSize(4, 4), finish, effects).isNull());
}

QTEST_MAIN(TestPageRenderer)
#include "tst_pagerenderer.moc"
