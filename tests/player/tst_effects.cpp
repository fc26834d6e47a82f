#include "pageeffects.h"

#include "leffectnode.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace player;

/** Each effect on small pages: ends, chance, transparency, sizes. */
class TestEffects : public QObject
{
    Q_OBJECT

private slots:
    void ends_data();
    void ends();
    void revealsSteadily_data();
    void revealsSteadily();
    void areUnlike();
    void bearAnySize_data();
    void bearAnySize();
    void leaveInTheirDirection();
    void randomPicksTheOthers();
};

static const QImage::Format Format = QImage::Format_ARGB32_Premultiplied;

/** No two pixels alike, every third transparent. */
static QImage picture(const QSize &size, int blue)
{
    QImage image(size, Format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb color = qRgb(x % 256, y % 256, blue);
            image.setPixel(x, y, (x + y) % 3 == 0 ? 0 : color);
        }
    }
    return image;
}

static QImage emptyPicture(const QSize &size)
{
    QImage image(size, Format);
    image.fill(Qt::transparent);
    return image;
}

static const QImage Page = picture({96, 48}, 200);
static const QImage Under = picture({96, 48}, 60);

static QVector<int> effects()
{
    QVector<int> effects{MoveLeft, MoveRight, MoveUp};
    for (int effect = LEffectNode::NoEffect; effect <= LEffectNode::RandomEffect; ++effect) {
        effects.append(effect);
    }
    return effects;
}

static void addEffects()
{
    QTest::addColumn<int>("effect");
    for (const int effect : effects()) {
        QTest::addRow("%d", effect) << effect;
    }
}

void TestEffects::ends_data()
{
    addEffects();
    QTest::newRow("unknown") << 77;
    QTest::newRow("below all") << -1;
}

void TestEffects::ends()
{
    QFETCH(int, effect);
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double progress : {0.0, -3.0, -infinity, std::nan("")}) {
        QVERIFY(effectFrame(effect, Under, Page, progress, 5) == Under);
        QVERIFY(effectFrame(effect, {}, Page, progress, 5) == emptyPicture(Page.size()));
        QVERIFY(clearFrame(effect, Page, progress, 5) == Page);
    }
    for (const double progress : {1.0, 2.5, infinity}) {
        QVERIFY(effectFrame(effect, Under, Page, progress, 5) == Page);
        QVERIFY(clearFrame(effect, Page, progress, 5) ==
                (effect == LEffectNode::KeepPage ? Page : emptyPicture(Page.size())));
    }
    for (const double progress : {0.1, 0.5, 0.93}) {
        const QImage frame = effectFrame(effect, Under, Page, progress, 5);
        QVERIFY(frame == effectFrame(effect, Under, Page, progress, 5));
        // What is transparent stays so, before and after.
        const QImage empty = emptyPicture(Page.size());
        QVERIFY(effectFrame(effect, empty, empty, progress, 5) == empty);
        QVERIFY(effectFrame(effect, {}, empty, progress, 5) == empty);
    }
}

void TestEffects::revealsSteadily_data()
{
    QTest::addColumn<int>("effect");
    for (const int effect : effects()) {
        const bool moves = effect == LEffectNode::Blink || effect == LEffectNode::Fade ||
                           effect == LEffectNode::RandomEffect ||
                           effect == LEffectNode::CurtainDown;
        const bool slides = (effect >= LEffectNode::SlideLeft && effect <= LEffectNode::SlideDown);
        if (!moves && !slides && effect != LEffectNode::Scroll && effect < MoveLeft &&
            effect != LEffectNode::CurtainClose) {
            QTest::addRow("%d", effect) << effect;
        }
    }
}

/** A pixel that shows the page never shows something else again, and their number grows. */
void TestEffects::revealsSteadily()
{
    QFETCH(int, effect);
    QVector<bool> shown(Page.width() * Page.height(), false);
    int before = 0;
    for (int step = 1; step <= 20; ++step) {
        const QImage frame = effectFrame(effect, Under, Page, step / 20.0, 9);
        int count = 0;
        for (int i = 0; i < shown.size(); ++i) {
            const QPoint at(i % Page.width(), i / Page.width());
            const bool isPage =
                frame.pixel(at) == Page.pixel(at) && Page.pixel(at) != Under.pixel(at);
            QVERIFY(isPage || !shown.at(i));
            shown[i] = isPage;
            count += int(isPage);
        }
        QVERIFY(count >= before);
        before = count;
    }
}

void TestEffects::areUnlike()
{
    for (const QImage &under : {QImage(), Under}) {
        QHash<QByteArray, int> seen;
        for (const int effect : effects()) {
            // Over an empty place a slide and an even move without a stop are the same.
            if (effect == LEffectNode::KeepPage || effect == LEffectNode::RandomEffect ||
                (under.isNull() && effect >= MoveLeft)) {
                continue;
            }
            const QImage frame = effectFrame(effect, under, Page, 0.5, 1);
            const QByteArray bytes(reinterpret_cast<const char *>(frame.constBits()),
                                   int(frame.sizeInBytes()));
            QVERIFY2(!seen.contains(bytes),
                     qPrintable(QString("%1 and %2").arg(seen.value(bytes)).arg(effect)));
            seen.insert(bytes, effect);
        }
    }
}

void TestEffects::bearAnySize_data()
{
    QTest::addColumn<QSize>("under");
    QTest::addColumn<QSize>("page");
    QTest::newRow("none") << QSize() << QSize();
    QTest::newRow("nothing before") << QSize() << QSize(33, 17);
    QTest::newRow("nothing afterwards") << QSize(33, 17) << QSize();
    QTest::newRow("a pixel") << QSize() << QSize(1, 1);
    QTest::newRow("a row") << QSize(150, 1) << QSize(150, 1);
    QTest::newRow("a column") << QSize(1, 150) << QSize(1, 150);
    QTest::newRow("larger before") << QSize(70, 50) << QSize(31, 19);
    QTest::newRow("smaller before") << QSize(3, 90) << QSize(31, 19);
    QTest::newRow("large") << QSize() << QSize(3840, 2160);
}

void TestEffects::bearAnySize()
{
    QFETCH(QSize, under);
    QFETCH(QSize, page);
    const QImage before = picture(under, 60).convertToFormat(QImage::Format_RGB888);
    const QImage after = picture(page, 200);
    const QSize expected = page.isEmpty() ? under : page;
    const bool isLarge = page.width() > 1000; // Once will do.
    for (const int effect : effects()) {
        for (const double progress :
             isLarge ? QVector<double>{0.4} : QVector<double>{0.001, 0.4, 0.999}) {
            const QImage frame = effectFrame(effect, before, after, progress, 3);
            QCOMPARE(frame.size(), expected.isEmpty() ? QSize(0, 0) : expected);
            QCOMPARE(clearFrame(effect, after, progress, 3).size(), after.size());
        }
    }
}

void TestEffects::leaveInTheirDirection()
{
    struct Row
    {
        int effect;
        QPoint seen; ///< Where the page's middle is at the half.
    };
    const QPoint middle(48, 24);
    for (const Row &row : {Row{LEffectNode::SlideLeft, {0, 24}}, {LEffectNode::SlideUp, {48, 0}}}) {
        QCOMPARE(clearFrame(row.effect, Page, 0.5, 0).pixel(row.seen), Page.pixel(middle));
    }
    QCOMPARE(clearFrame(LEffectNode::WipeRight, Page, 0.5, 0).pixel(20, 20), 0U);
    QCOMPARE(clearFrame(LEffectNode::WipeRight, Page, 0.5, 0).pixel(70, 21), Page.pixel(70, 21));
}

void TestEffects::randomPicksTheOthers()
{
    QSet<int> chosen;
    for (quint32 seed = 0; seed < 2000; ++seed) {
        chosen.insert(chosenEffect(LEffectNode::RandomEffect, seed));
        QCOMPARE(chosenEffect(LEffectNode::Snow, seed), int(LEffectNode::Snow));
    }
    QSet<int> others;
    for (int effect = LEffectNode::SlideLeft; effect < LEffectNode::RandomEffect; ++effect) {
        others.insert(effect);
    }
    others.remove(LEffectNode::KeepPage);
    QCOMPARE(chosen, others);
}

QTEST_GUILESS_MAIN(TestEffects)
#include "tst_effects.moc"
