#include "contentplacement.h"

#include <QRandomGenerator>
#include <QtTest>

using lctrlsex::BlankRows;
using lctrlsex::blankRows;
using lctrlsex::placeContent;

namespace {

constexpr QRgb key = qRgb(1, 2, 1);

/** Blank but for the rows from \a top to \a top + \a height - 1, which are random. */
QImage page(const QSize &size, int top, int height)
{
    QRandomGenerator random(42);
    QImage image(size, QImage::Format_ARGB32);
    image.fill(0);
    for (int y = top; y < top + height; ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb alpha = x % 3 == 0 ? 255 : random.bounded(1, 255);
            image.setPixel(x, y, alpha << 24 | (random.generate() & 0xffffff));
        }
    }
    return image;
}

QRgb onKey(QRgb text)
{
    const auto over = [text](int t, int k) {
        return qRound((t * qAlpha(text) + k * (255 - qAlpha(text))) / 255.0);
    };
    return qRgb(over(qRed(text), 1), over(qGreen(text), 2), over(qBlue(text), 1));
}

bool isNear(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= 1 && qAbs(qGreen(a) - qGreen(b)) <= 1 &&
           qAbs(qBlue(a) - qBlue(b)) <= 1 && qAlpha(a) == qAlpha(b);
}

} // namespace

class TestContentPlacement : public QObject
{
    Q_OBJECT

private slots:
    void countsBlankRows_data();
    void countsBlankRows();
    void placesStrip_data();
    void placesStrip();
    void clipsAndFills_data();
    void clipsAndFills();
    void blankPage();
    void opaquePage_data();
    void opaquePage();
    void filledPageIsShared();
    void returnedUnchanged();
    void otherFormats();
    void inPlaceEqualsDrawn();
};

void TestContentPlacement::countsBlankRows_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    const auto dotted = [](const QSize &size, const QVector<QPoint> &dots, QRgb dot) {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(0);
        for (const QPoint &point : dots) {
            image.setPixel(point, dot);
        }
        return image;
    };
    QTest::newRow("null") << QImage() << 0 << 0;
    QTest::newRow("one blank pixel") << dotted({1, 1}, {}, 0) << 1 << 0;
    QTest::newRow("one pixel") << dotted({1, 1}, {{0, 0}}, 1) << 0 << 0;
    QTest::newRow("blank") << dotted({40, 9}, {}, 0) << 9 << 0;
    for (int width : {1, 15, 16, 17, 33, 100}) {
        QTest::addRow("last pixel of a row, width %d", width)
            << dotted({width, 7}, {{width - 1, 2}}, 0x01000000) << 2 << 4;
        QTest::addRow("first pixel of a row, width %d", width)
            << dotted({width, 7}, {{0, 3}, {width / 2, 5}}, 0x01000000) << 3 << 1;
        // Transparent but not black: its bytes are not zero.
        QTest::addRow("colour without alpha, width %d", width)
            << dotted({width, 7}, {{width / 2, 0}}, 0x00000001) << 0 << 6;
    }
    QImage padded(3, 4, QImage::Format_RGB888);
    std::fill_n(padded.bits(), padded.sizeInBytes(), uchar(0xff));
    padded.fill(Qt::black);
    padded.bits()[padded.bytesPerLine() - 1] = 0xff;
    QTest::newRow("bytes behind a row do not count") << padded << 4 << 0;
}

void TestContentPlacement::countsBlankRows()
{
    QFETCH(QImage, image);
    const BlankRows blank = blankRows(image);
    QTEST(blank.top, "top");
    QTEST(blank.bottom, "bottom");
}

void TestContentPlacement::placesStrip_data()
{
    QTest::addColumn<int>("itemHeight");
    QTest::addColumn<int>("stripHeight");
    QTest::addColumn<int>("align");
    QTest::addColumn<int>("y");
    struct Case
    {
        int item, strip, centred;
    };
    for (const Case &c : {Case{20, 4, 8}, Case{20, 5, 7}, Case{21, 4, 8}, Case{20, 20, 0},
                          Case{20, 23, -1}, Case{20, 24, -2}, Case{1, 30, -14}, Case{1, 1, 0}}) {
        const auto add = [&c](const char *name, int align, int y) {
            QTest::addRow("%s %d in %d", name, c.strip, c.item) << c.item << c.strip << align << y;
        };
        add("bottom", 0x40, c.item - c.strip);
        add("top", 0x20, 0);
        add("centre", 0x80, c.centred);
        add("no code", 0, c.centred);
        add("combined code", 0x60, c.centred);
        add("negative code", -1, c.centred);
    }
}

void TestContentPlacement::placesStrip()
{
    QFETCH(int, itemHeight);
    QFETCH(int, stripHeight);
    QFETCH(int, align);
    QFETCH(int, y);
    const QSize item(19, itemHeight);
    const QImage image = page(QSize(19, stripHeight + 11), 4, stripHeight);
    for (bool transparent : {true, false}) {
        const QImage placed = placeContent(image, item, align, transparent);
        QCOMPARE(placed.size(), item);
        QCOMPARE(placed.format(), QImage::Format_ARGB32);
        for (int row = 0; row < itemHeight; ++row) {
            for (int x = 0; x < item.width(); ++x) {
                const bool inside = row >= y && row < y + stripHeight;
                const QRgb text = inside ? image.pixel(x, row - y + 4) : 0;
                if (transparent) {
                    QCOMPARE(placed.pixel(x, row), text);
                } else {
                    QVERIFY2(isNear(placed.pixel(x, row), onKey(text)),
                             qPrintable(QString("row %1, x %2").arg(row).arg(x)));
                }
            }
        }
    }
}

void TestContentPlacement::clipsAndFills_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("wider") << 40;
    QTest::newRow("narrower") << 7;
}

void TestContentPlacement::clipsAndFills()
{
    QFETCH(int, width);
    const QImage image = page(QSize(width, 6), 0, 6);
    for (bool transparent : {true, false}) {
        const QImage placed = placeContent(image, QSize(20, 10), 0x20, transparent);
        QCOMPARE(placed.pixel(0, 0), image.pixel(0, 0));
        QCOMPARE(placed.pixel(6, 5), image.pixel(6, 5));
        const QRgb beyond = width > 19 ? image.pixel(18, 2) : transparent ? 0 : key;
        QCOMPARE(placed.pixel(18, 2), beyond);
        QCOMPARE(placed.pixel(0, 6), transparent ? 0U : key);
    }
}

void TestContentPlacement::blankPage()
{
    const QImage image = page(QSize(30, 8), 0, 0);
    for (int align : {0x20, 0x40, 0x80}) {
        QImage expected(30, 8, QImage::Format_ARGB32);
        expected.fill(0);
        QCOMPARE(placeContent(image, QSize(30, 8), align, true), expected);
        expected.fill(key);
        QCOMPARE(placeContent(image, QSize(30, 8), align, false), expected);
    }
}

void TestContentPlacement::opaquePage_data()
{
    QTest::addColumn<QSize>("item");
    QTest::addColumn<int>("align");
    QTest::addColumn<int>("y");
    QTest::newRow("same size, bottom") << QSize(16, 10) << 0x40 << 0;
    QTest::newRow("higher item, top") << QSize(16, 15) << 0x20 << 0;
    QTest::newRow("higher item, centre") << QSize(16, 15) << 0x80 << 2;
    QTest::newRow("higher item, bottom") << QSize(16, 15) << 0x40 << 5;
    QTest::newRow("lower item, centre") << QSize(16, 7) << 0 << -1;
    QTest::newRow("lower item, bottom") << QSize(16, 7) << 0x40 << -3;
}

void TestContentPlacement::opaquePage()
{
    QFETCH(QSize, item);
    QFETCH(int, align);
    QFETCH(int, y);
    // Opaque black has no blank rows although its colour bytes are zero.
    for (QImage::Format format : {QImage::Format_ARGB32, QImage::Format_RGB32}) {
        QImage image(16, 10, format);
        image.fill(Qt::black);
        image.setPixel(3, 5, 0xffabcdef);
        for (bool transparent : {true, false}) {
            const QImage placed = placeContent(image, item, align, transparent);
            QCOMPARE(placed.format(), QImage::Format_ARGB32);
            QCOMPARE(placed.size(), item);
            for (int row = 0; row < item.height(); ++row) {
                const bool inside = row >= y && row < y + 10;
                const QRgb outside = transparent ? 0 : key;
                QCOMPARE(placed.pixel(3, row), inside ? image.pixel(3, row - y) : outside);
            }
        }
    }
}

void TestContentPlacement::filledPageIsShared()
{
    QImage image(64, 32, QImage::Format_ARGB32);
    image.fill(Qt::white);
    const auto isShared = [&image](const QImage &placed) {
        return placed.constBits() == static_cast<const QImage &>(image).constBits();
    };
    QVERIFY(isShared(placeContent(image, image.size(), 0x40, false)));
    QVERIFY(isShared(placeContent(image, image.size(), 0x20, true)));
    // A single pixel that is not opaque is drawn on the key colour.
    image.setPixel(63, 31, 0x00000000);
    const QImage placed = placeContent(image, image.size(), 0x20, false);
    QCOMPARE(placed.pixel(63, 31), key);
    QCOMPARE(placed.pixel(62, 31), 0xffffffffU);
}

void TestContentPlacement::returnedUnchanged()
{
    QVERIFY(placeContent(QImage(), QSize(10, 10), 0x20, true).isNull());
    const QImage image = page(QSize(8, 8), 2, 3);
    for (const QSize &size : {QSize(), QSize(0, 0), QSize(0, 5), QSize(5, 0), QSize(-3, 4)}) {
        QCOMPARE(placeContent(image, size, 0x40, false), image);
    }
    // More than memory holds.
    QCOMPARE(placeContent(image, QSize(2000000000, 2000000000), 0x40, false), image);
}

void TestContentPlacement::otherFormats()
{
    QImage image = page(QSize(21, 12), 3, 5);
    const QImage expected = placeContent(image, QSize(21, 12), 0x40, true);
    image.setDevicePixelRatio(2.0);
    QCOMPARE(placeContent(image, QSize(21, 12), 0x40, true), expected);
    const QImage onKeyOnce = placeContent(image, QSize(21, 12), 0x40, false);
    QCOMPARE(onKeyOnce.devicePixelRatio(), 1.0);
    QCOMPARE(onKeyOnce.pixel(0, 7), image.pixel(0, 3));

    const QImage multiplied = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(placeContent(multiplied, QSize(21, 12), 0x40, false).pixel(0, 7), image.pixel(0, 3));
}

/** Pages of the item's size are placed in place; that must show in nothing but the time. */
void TestContentPlacement::inPlaceEqualsDrawn()
{
    for (int height = 1; height <= 90; height += 11) {
        for (int from = 0; from <= 90 - height; from += 7) {
            const QImage straight = page(QSize(37, 90), from, height);
            const QImage multiplied = straight.convertToFormat(QImage::Format_ARGB32_Premultiplied);
            const QImage kept = multiplied.copy();
            for (const int align : {0x20, 0x40, 0x80}) {
                const QImage drawn = placeContent(straight, straight.size(), align, false);
                const QImage moved = placeContent(multiplied, straight.size(), align, false);
                QCOMPARE(moved.format(), QImage::Format_ARGB32);
                QCOMPARE(moved, drawn);
                QCOMPARE(multiplied, kept);
            }
        }
    }
}

QTEST_APPLESS_MAIN(TestContentPlacement)

#include "tst_contentplacement.moc"
