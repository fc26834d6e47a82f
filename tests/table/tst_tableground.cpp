#include "pagerenderer.h"
#include "table/tableoperations.h"

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
        const QMap<bool, QImage> blank{{false, page(table, false)}, {true, page(table, true)}};
        colourCells(coloured);
        QTextTableFormat format = plain->format();
        format.setBackground(ground);
        plain->setFormat(format);
        for (const bool isTransparent : {false, true}) {
            const QImage image = page(table, isTransparent);
            QVERIFY(image != blank.value(isTransparent));
            QCOMPARE(image, page(cells, isTransparent));
        }
    }
};

QTEST_MAIN(TestTableGround)
#include "tst_tableground.moc"
