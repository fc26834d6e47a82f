#include "documentsetup.h"
#include "table/fieldimages.h"

#include "documentsetup.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QUrl>
#include <QtTest>

using namespace lctrlsex;

class TestFieldImages : public QObject
{
    Q_OBJECT

    static TypingStyle style(int size = 20)
    {
        TypingStyle style;
        style.family = "DejaVu Sans";
        style.pointSize = size;
        style.color = Qt::green;
        return style;
    }
    static QImage image(const QTextDocument &document, const QString &key)
    {
        return document.resource(QTextDocument::ImageResource, QUrl(fieldImageName(key)))
            .value<QImage>();
    }
    static bool has(const QImage &image, const QColor &color)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == color) {
                    return true;
                }
            }
        }
        return false;
    }

    /** The first and the last row with something dark in it. */
    static QPair<int, int> inkRows(const QImage &image)
    {
        QPair<int, int> rows(-1, -1);
        for (int i = 0; i < image.width() * image.height(); ++i) {
            const int y = i / image.width();
            if (qGray(image.pixel(i % image.width(), y)) < 128) {
                rows = {rows.first < 0 ? y : rows.first, y};
            }
        }
        return rows;
    }

private slots:
    void namesReadBack_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("name");
        QTest::newRow("a source's field") << "src:field"
                                          << "data://bindKey/src/field.png";
        QTest::newRow("a calculation") << "average"
                                       << "data://bindKey//average.png";
        QTest::newRow("blanks and dots") << "My src:a.b c"
                                         << "data://bindKey/My src/a.b c.png";
        QTest::newRow("a path with a slash") << "src:a/b"
                                             << "data://bindKey/src/a/b.png";
        QTest::newRow("signs of addresses") << "50%:#1?=ü"
                                            << "data://bindKey/50%/#1?=ü.png";
    }
    void namesReadBack()
    {
        QFETCH(QString, key);
        QTEST(fieldImageName(key), "name");
        QCOMPARE(fieldKey(fieldImageName(key)), key);

        // The document finds the image under the name, also after a round trip through HTML.
        QTextDocument document;
        QTextCursor cursor(&document);
        insertField(cursor, key, style());
        document.setHtml(document.toHtml());
        QVERIFY(FieldImages().refresh(&document, {{key, "value"}}));
        QVERIFY(has(image(document, key), Qt::green));
    }

    void stylesReadBack()
    {
        FieldStyle full;
        full.conditionId = "c1";
        full.text = style(12);
        full.text.bold = true;
        full.background = QColor("#102030");
        QCOMPARE(full.toString(), QString("c1;DejaVu Sans;12;0;0;1;#00ff00;#102030"));
        QCOMPARE(FieldStyle::fromString(full.toString()).toString(), full.toString());

        FieldStyle odd;
        odd.text.family = "A;B";
        odd.text.pointSize = -3;
        QCOMPARE(odd.toString(), QString(";A B;16;0;0;0;;"));
        QCOMPARE(FieldStyle::fromString(";F;0;1;7;0;;").text.pointSize, 16);
        QCOMPARE(FieldStyle::fromString(";F;9;1;1;1;#ff0000").toString(), FieldStyle().toString());
        QCOMPARE(conditionAnchor("7", "Too & low").anchorHref(), QString("bindStyle;7;Too & low"));
    }

    void drawsTextAsData()
    {
        FieldStyle plain;
        plain.text = style();
        const QImage one = drawField("12", plain, false);
        QVERIFY(has(one, Qt::green));
        QCOMPARE(one.pixelColor(0, 0).alpha(), 0);
        QVERIFY(!has(drawField("12", plain, true), Qt::green));

        QCOMPARE(drawField("a\r\nb\nc", plain, false), drawField("a b c", plain, false));
        QVERIFY(drawField("<b>", plain, false).width() > drawField("b", plain, false).width());
        QCOMPARE(drawField(QString(5000, 'x'), plain, false),
                 drawField(QString(1000, 'x'), plain, false));
        plain.text.pointSize = 100000;
        const QImage huge = drawField(QString(5000, 'W'), plain, false);
        QVERIFY(!huge.isNull() && huge.width() <= 16384);
        QVERIFY(!drawField("", plain, false).isNull());
    }

    void standsOnTheLineOfWriting()
    {
        TypingStyle letters;
        letters.family = QStringLiteral("DejaVu Sans");
        letters.pointSize = 20;
        letters.color = Qt::black;
        QTextDocument text;
        preparePage(&text, TextSettings());
        QTextCursor cursor(&text);
        QFont font(letters.family);
        font.setPixelSize(20);
        QTextCharFormat format;
        format.setFont(font);
        cursor.insertText(QStringLiteral("gH"), format);
        text.setTextWidth(300);
        text.size();
        const QTextLine alone = text.firstBlock().layout()->lineAt(0);
        const qreal ascent = alone.ascent();
        const qreal descent = alone.descent();
        insertField(cursor, QStringLiteral("s:wind"), letters);
        FieldImages().refresh(&text, {{QStringLiteral("s:wind"), QStringLiteral("gH")}});
        text.size();
        const QTextLine both = text.firstBlock().layout()->lineAt(0);
        QVERIFY(qAbs(both.ascent() - ascent) <= 1 && qAbs(both.descent() - descent) <= 1);
        // The same letters are on the same lines of the picture.
        QImage drawn(300, 40, QImage::Format_RGB32);
        drawn.fill(Qt::white);
        QPainter painter(&drawn);
        text.drawContents(&painter);
        painter.end();
        const int middle =
            int(text.documentMargin()) + QFontMetrics(font).horizontalAdvance(QStringLiteral("gH"));
        QCOMPARE(inkRows(drawn.copy(0, 0, middle, 40)), inkRows(drawn.copy(middle, 0, 200, 40)));

        QTextDocument loaded;
        loaded.setHtml(text.toHtml());
        alignFields(&loaded);
        QTextCursor behind(&loaded);
        behind.setPosition(3);
        QCOMPARE(behind.charFormat().verticalAlignment(), QTextCharFormat::AlignBaseline);
    }

    void redrawsOnlyWhatChanged()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        insertField(cursor, "s:a", style());
        cursor.insertBlock();
        insertField(cursor, "s:b", style());
        document.documentLayout()->documentSize();

        const int revision = document.revision();
        FieldImages images;
        QVERIFY(images.refresh(&document, {{"a", "1"}, {"s:b", "2"}, {"b", "of another source"}}));
        const QImage first = image(document, "s:a");
        const QImage second = image(document, "s:b");
        FieldStyle plain;
        plain.text = style();
        QCOMPARE(second, drawField("2", plain, false));
        QVERIFY(!images.refresh(&document, {{"a", "1"}, {"b", "2"}}));

        const qreal height = document.size().height();
        QSignalSpy update(document.documentLayout(), &QAbstractTextDocumentLayout::update);
        QVERIFY(images.refresh(&document, {{"a", "1"}, {"b", "20000"}}));
        QCOMPARE(image(document, "s:a").cacheKey(), first.cacheKey());
        QVERIFY(image(document, "s:b").width() > second.width());
        QCOMPARE(update.count(), 1);
        QVERIFY(update.at(0).at(0).toRectF().top() > height / 4);
        QCOMPARE(document.revision(), revision);

        document.setHtml(document.toHtml());
        QVERIFY(!images.refresh(&document, {{"a", "1"}, {"b", "20000"}}));
        const QString html = document.toHtml();
        document.clear();
        document.setHtml(html);
        QVERIFY2(images.refresh(&document, {{"a", "1"}, {"b", "20000"}}), "images were lost");
    }

    void keepsWhatUndoBringsBack()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        insertField(cursor, "s:a", style());
        FieldImages images;
        QVERIFY(images.refresh(&document, {{"s:a", "1"}}));
        document.undo();
        QVERIFY(!images.refresh(&document, {{"s:a", "1"}}));
        QVERIFY(images.refresh(&document, {{"s:a", "2"}}));
        document.redo();
        QVERIFY(!images.refresh(&document, {{"s:a", "2"}}));
        FieldStyle plain;
        plain.text = style();
        QCOMPARE(image(document, "s:a"), drawField("2", plain, false));
    }

    void showsTheNameOfAMissingValue()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        insertField(cursor, "s:wind", style());
        FieldImages images;
        QVERIFY(images.refresh(&document, {}));
        FieldStyle plain;
        plain.text = style();
        QCOMPARE(image(document, "s:wind"), drawField("wind", plain, true));
        QVERIFY2(!images.refresh(&document, {{"wind", ""}}), "not read yet is missing too");
        QVERIFY2(images.refresh(&document, {{"wind", "wind"}}), "the same letters, not dimmed");
    }

    void textBehindAFieldIsNoField()
    {
        QTextEdit view;
        QTextCursor cursor = view.textCursor();
        insertField(cursor, "s:a", style(33));
        view.setTextCursor(cursor);
        QTest::keyClicks(&view, "ab");
        const QTextCharFormat typed = view.textCursor().charFormat();
        QVERIFY(!typed.hasProperty(FieldKeyProperty) && !typed.hasProperty(FieldStyleProperty));
        QCOMPARE(typed.fontPointSize(), 33.0);
        QCOMPARE(typed.foreground().color(), QColor(Qt::green));

        // Having moved away and back, the format before the cursor counts again.
        cursor.setPosition(1);
        QVERIFY(cursor.charFormat().hasProperty(FieldKeyProperty));
        const QTextCharFormat behind = formatBehind(cursor.charFormat());
        QVERIFY(!behind.hasProperty(FieldKeyProperty) && !behind.isImageFormat());
        QCOMPARE(behind.fontPointSize(), 33.0);
        cursor.setPosition(2);
        QCOMPARE(formatBehind(cursor.charFormat()), cursor.charFormat());
    }
};

QTEST_MAIN(TestFieldImages)
#include "tst_fieldimages.moc"
