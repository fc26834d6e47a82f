#include "table/tableground.h"

#include "pagerenderer.h"
#include "table/tableoperations.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QtTest>

using namespace lctrlsex;

namespace {

const QColor ground(10, 20, 30);

QTextTable *insertTable(QTextDocument *document, int border, int padding, Qt::Alignment alignment)
{
    QTextTableFormat format;
    format.setBorder(border);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(Qt::green);
    format.setCellPadding(padding);
    format.setBorderCollapse(true);
    format.setAlignment(alignment);
    format.setColumnWidthConstraints(
        {QTextLength(QTextLength::FixedLength, 40), QTextLength(QTextLength::FixedLength, 30)});
    format.setWidth(QTextLength(QTextLength::FixedLength, 70));
    QTextCursor cursor(document);
    cursor.insertText("above");
    QTextTable *table = cursor.insertTable(3, 2, format);
    table->cellAt(0, 1).firstCursorPosition().insertText("a\nb");
    QTextTableCell low = table->cellAt(0, 0);
    QTextCharFormat lowered = low.format();
    lowered.setVerticalAlignment(QTextCharFormat::AlignBottom);
    low.setFormat(lowered);
    QTextCursor(document->lastBlock()).insertText("below");
    return table;
}

void colourCells(QTextTable *table)
{
    for (int row = 0; row < table->rows(); ++row) {
        for (int column = 0; column < table->columns(); ++column) {
            QTextTableCell cell = table->cellAt(row, column);
            QTextCharFormat format = cell.format();
            format.setBackground(ground);
            cell.setFormat(format);
        }
    }
}

QImage page(QTextDocument &document, bool isTransparent)
{
    PageStyle style;
    style.size = QSize(200, 200);
    style.background = Qt::white;
    style.isTransparent = isTransparent;
    return PageRenderer().topPage(&document, style);
}

int pixels(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += int(image.pixelColor(x, y) == color);
        }
    }
    return count;
}

} // namespace

class TestTableGround : public QObject
{
    Q_OBJECT

private slots:
    void equalsTheGroundOfAllCells_data()
    {
        QTest::addColumn<int>("border");
        QTest::addColumn<int>("padding");
        QTest::addColumn<int>("alignment");
        QTest::addColumn<bool>("merges");
        QTest::newRow("thin") << 1 << 1 << int(Qt::AlignLeft) << false;
        QTest::newRow("none") << 0 << 0 << int(Qt::AlignHCenter) << false;
        QTest::newRow("odd") << 3 << 4 << int(Qt::AlignRight) << true;
        QTest::newRow("wide") << 10 << 0 << int(Qt::AlignHCenter) << true;
    }
    void equalsTheGroundOfAllCells()
    {
        QFETCH(int, border);
        QFETCH(int, padding);
        QFETCH(int, alignment);
        QFETCH(bool, merges);
        QTextDocument cells;
        QTextDocument table;
        QTextTable *coloured = insertTable(&cells, border, padding, Qt::Alignment(alignment));
        QTextTable *plain = insertTable(&table, border, padding, Qt::Alignment(alignment));
        if (merges) {
            for (QTextTable *each : {coloured, plain}) {
                mergeCells(each, {1, 0, 2, 2});
            }
        }
        colourCells(coloured);
        QTextTableFormat format = plain->format();
        format.setBackground(ground);
        plain->setFormat(format);
        for (const bool isTransparent : {false, true}) {
            const QImage image = page(table, isTransparent);
            QCOMPARE(image, page(cells, isTransparent));
            QVERIFY(pixels(image, ground) > 2000);
        }
    }

    void fillsOnlyWhatIsShown()
    {
        QTextDocument document;
        QTextTable *table = insertTable(&document, 1, 1, Qt::AlignLeft);
        QTextTableFormat format = table->format();
        format.setBackground(ground);
        table->setFormat(format);
        document.setTextWidth(100);
        const auto drawn = [&document](const QRectF &shown) {
            QImage image(100, 100, QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            drawTableGrounds(&painter, document, shown);
            return image;
        };
        const QImage image = drawn(QRectF(0, 40, 100, 10));
        QCOMPARE(image.pixelColor(40, 45), ground);
        QCOMPARE(image.pixelColor(40, 39), QColor(Qt::white));
        QCOMPARE(image.pixelColor(40, 51), QColor(Qt::white));
        format.setBorderCollapse(false); // then the text engine fills it
        table->setFormat(format);
        QCOMPARE(drawn(QRectF(0, 40, 100, 10)).pixelColor(40, 45), QColor(Qt::white));
    }
};

QTEST_MAIN(TestTableGround)
#include "tst_tableground.moc"
