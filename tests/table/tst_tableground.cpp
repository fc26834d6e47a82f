#include "table/tableground.h"

#include "pagerenderer.h"

#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QtTest>

using namespace lctrlsex;

class TestTableGround : public QObject
{
    Q_OBJECT

private slots:
    void pagesShowTheBackground_data()
    {
        QTest::addColumn<bool>("collapses");
        QTest::addColumn<bool>("transparent");
        QTest::newRow("drawn by the text engine") << false << false;
        QTest::newRow("collapsed borders") << true << false;
        QTest::newRow("on a transparent page") << true << true;
    }
    void pagesShowTheBackground()
    {
        QFETCH(bool, collapses);
        QFETCH(bool, transparent);
        QTextDocument document;
        document.setDocumentMargin(0);
        QTextCursor cursor(&document);
        cursor.insertText("above");
        QTextTableFormat format;
        format.setBorder(1);
        format.setBorderCollapse(collapses);
        format.setBackground(QColor(10, 20, 30));
        format.setWidth(QTextLength(QTextLength::FixedLength, 60));
        format.setAlignment(Qt::AlignRight);
        cursor.insertTable(2, 2, format);
        PageStyle page;
        page.size = QSize(100, 100);
        page.background = Qt::white;
        page.isTransparent = transparent;
        const QImage image = PageRenderer().topPage(&document, page);
        const QColor outside = transparent ? QColor(0, 0, 0, 0) : QColor(Qt::white);
        QCOMPARE(image.pixelColor(50, 30), QColor(10, 20, 30));
        QCOMPARE(image.pixelColor(95, 30), QColor(10, 20, 30));
        QCOMPARE(image.pixelColor(35, 30), outside);
        QCOMPARE(image.pixelColor(50, 90), outside);
        QCOMPARE(image.pixelColor(95, 3), outside);
    }

    void fillsOnlyWhatIsShown()
    {
        QTextDocument document;
        QTextTableFormat format;
        format.setBorderCollapse(true);
        format.setBackground(Qt::red);
        format.setWidth(QTextLength(QTextLength::FixedLength, 80));
        QTextCursor(&document).insertTable(3, 1, format);
        document.setTextWidth(100);
        QImage image(100, 60, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawTableGrounds(&painter, document, QRectF(0, 20, 100, 10));
        painter.end();
        QCOMPARE(image.pixelColor(40, 25), QColor(Qt::red));
        QCOMPARE(image.pixelColor(40, 19), QColor(Qt::white));
        QCOMPARE(image.pixelColor(40, 31), QColor(Qt::white));
    }
};

QTEST_MAIN(TestTableGround)
#include "tst_tableground.moc"
