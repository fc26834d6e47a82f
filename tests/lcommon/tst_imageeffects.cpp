#include "imageeffects.h"

#include "effectloops.h"
#include "literaleffects.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace literal;

class TestImageEffects : public QObject
{
    Q_OBJECT

private slots:
    void equalsLiteral_data();
    void equalsLiteral();
    void opaqueEqualsLiteral_data();
    void opaqueEqualsLiteral();
    void softEdges_data();
    void softEdges();
    void bandAndInside();
    void groundOfBorder();
    void faintNoiseIsNotText();
    void returnedUnchanged();
    void anyFormat();
    void ratioAndSourceKept();
    void hugeRadius();
    void processorsAgree();
};

void TestImageEffects::equalsLiteral_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("radius");
    QTest::addColumn<QColor>("color");
    const QVector<QSize> sizes{{1, 1},   {1, 9},   {9, 1},    {1, 150},  {150, 1},
                               {33, 17}, {16, 16}, {64, 131}, {129, 66}, {65, 3}};
    for (const QSize &size : sizes) {
        for (int radius : {1, 2, 3, 5, 17}) {
            for (int alpha : {255, 100}) {
                QTest::addRow("%dx%d r%d a%d", size.width(), size.height(), radius, alpha)
                    << size << radius << QColor(250, 3, 120, alpha);
            }
        }
    }
}

void TestImageEffects::equalsLiteral()
{
    QFETCH(QSize, size);
    QFETCH(int, radius);
    QFETCH(QColor, color);
    for (quint32 seed = 1; seed <= 3; ++seed) {
        const QImage page = randomPage(size, seed);
        QCOMPARE(getStrokeImage(page, color, radius), literalStroke(page, color, radius));
        QCOMPARE(getHollowImage(page, radius), literalHollow(page, radius));
    }
}

void TestImageEffects::opaqueEqualsLiteral_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("radius");
    QTest::addColumn<QColor>("ground");
    for (const QSize &size : {QSize(33, 17), QSize(1, 40), QSize(40, 1), QSize(70, 140)}) {
        for (int radius : {1, 3, 17}) {
            for (const QColor &ground :
                 {QColor(Qt::black), QColor(Qt::white), QColor(9, 90, 200)}) {
                QTest::addRow("%dx%d r%d %s", size.width(), size.height(), radius,
                              qPrintable(ground.name()))
                    << size << radius << ground;
            }
        }
    }
}

void TestImageEffects::opaqueEqualsLiteral()
{
    QFETCH(QSize, size);
    QFETCH(int, radius);
    QFETCH(QColor, ground);
    const QColor color(200, 10, 60, 180);
    const QImage page = onGround(randomPage(size, 7), ground);
    const QRgb base = literalGround(page);
    const Coverage coverage = literalCoverage(page, base);
    const Coverage spread = filtered(coverage, radius, true);
    const QImage stroke = getStrokeImage(page, color, radius);
    const auto outlined = [&](int x, int y, int channel) {
        const int moved = share(share(spread[y][x], color.alpha()), 255 - coverage[y][x]);
        return channelOf(page.pixel(x, y), channel) +
               moved / 255.0 * (channelOf(color.rgb(), channel) - channelOf(base, channel));
    };
    QVERIFY2(groundError(page, stroke, outlined) == 0, "stroke");

    const Coverage shrunk = filtered(coverage, radius, false);
    const QImage hollow = getHollowImage(page, radius);
    const auto emptied = [&](int x, int y, int channel) {
        const double kept = coverage[y][x] - shrunk[y][x];
        const int from = channelOf(base, channel);
        return from +
               kept / qMax(1, coverage[y][x]) * (channelOf(page.pixel(x, y), channel) - from);
    };
    QVERIFY2(groundError(page, hollow, emptied) == 0, "hollow");
}

void TestImageEffects::softEdges_data()
{
    QTest::addColumn<uint>("text");
    QTest::addColumn<uint>("outline");
    QTest::addColumn<uint>("edge");
    QTest::addColumn<uint>("beside");
    // The row is: nothing, nothing, the pixel, whole white text, nothing. A whole outline fills
    // what the edge leaves open; a half one leaves it half open.
    QTest::newRow("half white over black")
        << 0x80ffffffU << 0xff000000U << 0xff808080U << 0x80000000U;
    QTest::newRow("nearly nothing") << 0x01ffffffU << 0xff0000ffU << 0xff0101ffU << 0x010000ffU;
    QTest::newRow("nearly whole") << 0xfeffffffU << 0xff000000U << 0xfffefefeU << 0xfe000000U;
    QTest::newRow("half outline") << 0x80ffffffU << 0x80000000U << 0xc0aaaaaaU << 0x40000000U;
}

void TestImageEffects::softEdges()
{
    QFETCH(uint, text);
    QFETCH(uint, outline);
    QFETCH(uint, edge);
    QFETCH(uint, beside);
    QImage page(5, 1, QImage::Format_ARGB32);
    page.fill(0);
    page.setPixel(2, 0, text);
    page.setPixel(3, 0, 0xffffffff);
    const QImage stroke = getStrokeImage(page, QColor::fromRgba(outline), 1);
    QCOMPARE(stroke.pixel(0, 0), 0U);
    QCOMPARE(stroke.pixel(1, 0), beside);
    QCOMPARE(stroke.pixel(2, 0), edge);
    QCOMPARE(stroke.pixel(3, 0), 0xffffffffU);
    QCOMPARE(stroke.pixel(4, 0), outline);
}

void TestImageEffects::bandAndInside()
{
    // A square of 9 in the middle of 15, and one that touches the image's edge.
    for (int left : {3, 0}) {
        QImage page(15, 15, QImage::Format_ARGB32);
        page.fill(0);
        for (int y = 3; y < 12; ++y) {
            for (int x = left; x < left + 9; ++x) {
                page.setPixel(x, y, 0xffff8000);
            }
        }
        const QRect text(left, 3, 9, 9);
        const QRect inside = text.adjusted(2, 2, -2, -2);
        const QRect around = text.adjusted(-2, -2, 2, 2);
        const QImage hollow = getHollowImage(page, 2);
        const QImage stroke = getStrokeImage(page, Qt::blue, 2);
        for (int y = 0; y < 15; ++y) {
            for (int x = 0; x < 15; ++x) {
                const bool band = text.contains(x, y) && !inside.contains(x, y);
                QCOMPARE(hollow.pixel(x, y), band ? 0xffff8000U : 0U);
                const QRgb beyond = around.contains(x, y) ? 0xff0000ffU : 0U;
                QCOMPARE(stroke.pixel(x, y), text.contains(x, y) ? 0xffff8000U : beyond);
            }
        }
    }
}

void TestImageEffects::groundOfBorder()
{
    // More text than ground inside, ground only where the border says so.
    QImage page(20, 20, QImage::Format_RGB32);
    page.fill(Qt::yellow);
    for (int i = 0; i < 20; ++i) {
        page.setPixel(i, 0, 0xff00ff00);
        page.setPixel(i, 19, 0xff00ff00);
        page.setPixel(0, i, 0xff00ff00);
    }
    const QImage hollow = getHollowImage(page, 1);
    QCOMPARE(hollow.pixel(10, 10), 0xff00ff00U);
    QCOMPARE(hollow.pixel(1, 10), 0xffffff00U);
    QCOMPARE(hollow.pixel(19, 10), 0xffffff00U);
    QCOMPARE(getStrokeImage(page, Qt::red, 1).pixel(0, 10), 0xffff0000U);
}

void TestImageEffects::faintNoiseIsNotText()
{
    QImage page(32, 32, QImage::Format_RGB32);
    page.fill(QColor(50, 50, 50));
    page.setPixel(16, 16, qRgb(51, 50, 50));
    const QImage stroke = getStrokeImage(page, Qt::white, 1);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            QVERIFY(qRed(stroke.pixel(x, y)) < 66);
        }
    }
}

void TestImageEffects::returnedUnchanged()
{
    QVERIFY(getStrokeImage(QImage(), Qt::red).isNull());
    QVERIFY(getHollowImage(QImage()).isNull());
    const QImage page = randomPage(QSize(20, 20), 3);
    for (int radius : {0, -1, -2147483647 - 1}) {
        QCOMPARE(getStrokeImage(page, Qt::red, radius), page);
        QCOMPARE(getHollowImage(page, radius), page);
    }
    QCOMPARE(getStrokeImage(page, QColor()), page);
    QCOMPARE(getStrokeImage(page, QColor(9, 9, 9, 0)), page);
    for (QRgb color : {0xff123456U, 0U}) {
        QImage flat(40, 30, QImage::Format_ARGB32);
        flat.fill(color);
        QCOMPARE(getStrokeImage(flat, Qt::red, 2), flat);
        QCOMPARE(getHollowImage(flat, 2), flat);
    }
}

void TestImageEffects::anyFormat()
{
    for (int format = QImage::Format_Mono; format < QImage::NImageFormats; ++format) {
        const QImage page = randomPage(QSize(37, 21), 11).convertToFormat(QImage::Format(format));
        const QImage straight = page.convertToFormat(QImage::Format_ARGB32);
        const QImage stroke = getStrokeImage(page, Qt::green, 2);
        QCOMPARE(stroke.format(), QImage::Format_ARGB32);
        QCOMPARE(stroke, getStrokeImage(straight, Qt::green, 2));
        const QImage hollow = getHollowImage(page, 2);
        QCOMPARE(hollow.format(), QImage::Format_ARGB32);
        QCOMPARE(hollow, getHollowImage(straight, 2));
    }
}

void TestImageEffects::ratioAndSourceKept()
{
    QImage page = randomPage(QSize(40, 30), 5);
    page.setDevicePixelRatio(2.0);
    const QImage before = page.copy();
    for (const QImage &result : {getStrokeImage(page, Qt::red), getHollowImage(page)}) {
        QCOMPARE(result.size(), page.size());
        QCOMPARE(result.devicePixelRatio(), 2.0);
    }
    QCOMPARE(page, before);
}

void TestImageEffects::hugeRadius()
{
    QImage page(70, 50, QImage::Format_ARGB32);
    page.fill(0);
    page.setPixel(69, 49, 0xffffffff);
    const QImage stroke = getStrokeImage(page, Qt::red, 2147483647);
    QCOMPARE(stroke.pixel(0, 0), 0xffff0000U);
    QCOMPARE(stroke.pixel(69, 49), 0xffffffffU);
    QCOMPARE(getHollowImage(page, 2147483647), page);

    // Takes no more memory than the image does, however flat it is.
    QImage strip(30000, 1, QImage::Format_ARGB32);
    strip.fill(0);
    strip.setPixel(0, 0, 0xffffffff);
    QCOMPARE(getStrokeImage(strip, Qt::red, 2147483647).pixel(29999, 0), 0xffff0000U);
}

void TestImageEffects::processorsAgree()
{
#if defined(__x86_64__)
    if (!__builtin_cpu_supports("avx2")) {
        QSKIP("this processor runs only one kind of loop", "");
    }
    using namespace lctrlsex;
    const Loops plain = plainloops::table();
    const Loops wide = wideloops::table();
    QRandomGenerator random(3);
    for (int count = 0; count <= 100; ++count) {
        QVector<QRgb> pixels(count);
        QByteArray coverage(count, '\0');
        QByteArray other(count, '\0');
        random.generate(pixels.begin(), pixels.end());
        for (int i = 0; i < count; ++i) {
            coverage[i] = char(random.bounded(256));
            other[i] = char(random.bounded(uchar(coverage[i]) + 1));
        }
        const auto *first = reinterpret_cast<const uchar *>(coverage.constData());
        const auto *second = reinterpret_cast<const uchar *>(other.constData());
        const auto bytesOf = [count](const auto &fill) {
            QByteArray bytes(count, '\0');
            fill(reinterpret_cast<uchar *>(bytes.data()));
            return bytes;
        };
        const auto bytesAgree = [&](const auto &run) {
            return bytesOf([&](uchar *out) { run(plain, out); }) ==
                   bytesOf([&](uchar *out) { run(wide, out); });
        };
        const auto ground = QRgb(random.generate());
        const auto outline = QRgb(random.generate());
        QVERIFY(bytesAgree([&](const Loops &l, uchar *out) {
            l.largest(out, first, second, first, count);
            l.smallest(out, out, second, first, count);
            l.largest(out, out, second, second, count);
        }));
        QVERIFY(bytesAgree(
            [&](const Loops &l, uchar *out) { l.alphas(out, pixels.constData(), count); }));
        QVERIFY(bytesAgree([&](const Loops &l, uchar *out) {
            l.distances(out, pixels.constData(), ground, count);
        }));
        QVERIFY(
            bytesAgree([&](const Loops &l, uchar *out) { l.ratios(out, second, first, count); }));
        QCOMPARE(plain.commonBits(pixels.constData(), count),
                 wide.commonBits(pixels.constData(), count));
        for (Painter Loops::*painter : {&Loops::strokeOnTransparent, &Loops::strokeOnGround,
                                        &Loops::hollowOnTransparent, &Loops::hollowOnGround}) {
            QVector<QRgb> plainly(count);
            QVector<QRgb> widely(count);
            (plain.*painter)(plainly.data(), pixels.constData(), first, second, count, outline,
                             ground);
            (wide.*painter)(widely.data(), pixels.constData(), first, second, count, outline,
                            ground);
            QCOMPARE(widely, plainly);
        }
    }
#endif
}

QTEST_APPLESS_MAIN(TestImageEffects)

#include "tst_imageeffects.moc"
