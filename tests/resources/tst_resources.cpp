#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QLibrary>
#include <QPainter>
#include <QSet>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

// Every icon in the very spelling the programs use.
const char *const iconNames[] = {
    ":/images/text_color.png",
    ":/images/text_drawcolor.png",
    ":images/TextBgcolor.png",
    ":images/actionClearTextBgcolor.png",
    ":/images/textbold.png",
    ":/images/textitalic.png",
    ":/images/textunder.png",
    ":/images/textleft.png",
    ":/images/textcenter.png",
    ":/images/textright.png",
    ":/images/textjustify.png",
    ":/images/ContentAlignBottom",
    ":/images/ContentAlignCenter",
    ":/images/ContentAlignTop",
    ":images/Transparent.png",
    ":images/hollow.png",
    ":images/stroke.png",
    ":/images/stroke_color.png",
    ":/images/null.png",
    "://images/edit_letter_spacing.png",
    "://images/edit_line_spacing.png",
    ":images/table.png",
    ":/images/arrow_left.png",
    ":/images/arrow_right.png",
    ":/images/edit-back.png",
    ":/images/random",
    ":/images/random.png",
    ":/images/empty.png",
    ":/images/Add.png",
    ":/images/Del.png",
};

const QColor lightBar(0xf0, 0xf0, 0xf0);
const QColor darkBar(0x35, 0x35, 0x35);

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

// The pixels of the image that stand out 3:1 from a tool bar of that colour.
int visiblePixels(const QImage &image, const QColor &bar)
{
    QImage drawn(image.size(), QImage::Format_RGB32);
    drawn.fill(bar);
    QPainter(&drawn).drawImage(0, 0, image);
    int count = 0;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            count += contrast(drawn.pixelColor(x, y), bar) >= 3.0 ? 1 : 0;
        }
    }
    return count;
}

int differingPixels(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

// Pixels alone: the ratio that "@2x" in a name sets does not matter here.
QImage plain(QImage image)
{
    image.setDevicePixelRatio(1.0);
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage load(const QString &name)
{
    return plain(QImage(name));
}

QString scaledName(const QString &name, int scale)
{
    const int dot = name.lastIndexOf('.');
    return QString(name).insert(dot < 0 ? name.size() : dot, QString("@%1x").arg(scale));
}

} // namespace

class ResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void version();
    void icon_data();
    void icon();
    void iconsDiffer();
    void roomForTheColourBar();
    void frame_data();
    void frame();

private:
    QLibrary m_plugin{LCTRLSEX_PLUGIN};
};

void ResourcesTest::initTestCase()
{
    QVERIFY2(!QFileInfo::exists(":/images"), "the images must come from the library");
    QVERIFY2(m_plugin.load(), qPrintable(m_plugin.errorString()));
}

void ResourcesTest::version()
{
    const auto function =
        reinterpret_cast<const char *(*)()>(m_plugin.resolve("lctrlsexPluginVersion"));
    QVERIFY(function);
    QCOMPARE(function(), LCTRLSEX_VERSION);
}

void ResourcesTest::icon_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : iconNames) {
        QTest::newRow(name) << name;
    }
}

void ResourcesTest::icon()
{
    QFETCH(QString, name);
    for (int scale = 1; scale <= 3; ++scale) {
        const QImage image = load(scale == 1 ? name : scaledName(name, scale));
        QCOMPARE(image.size(), QSize(16, 16) * scale);
        // Less than a sixteenth of the square is a speck, not a sign.
        const int enough = image.width() * image.height() / 16;
        QVERIFY2(visiblePixels(image, lightBar) >= enough, "too faint on a light bar");
        QVERIFY2(visiblePixels(image, darkBar) >= enough, "too faint on a dark bar");
        QVERIFY2(visiblePixels(image, lightBar) < image.width() * image.height(), "a full square");
    }
    // main() set a scale of 2: the icon has to come from the picture of twice the size.
    const QPixmap pixmap = QIcon(name).pixmap(QSize(16, 16));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    QCOMPARE(plain(pixmap.toImage()), load(scaledName(name, 2)));
}

void ResourcesTest::iconsDiffer()
{
    QDir folder(":/images");
    QStringList names = folder.entryList({"*.png"}, QDir::Files);
    const auto isOther = [](const QString &name) {
        return name.contains('@') || load(":/images/" + name).size() != QSize(16, 16);
    };
    names.erase(std::remove_if(names.begin(), names.end(), isOther), names.end());
    QVERIFY(names.size() >= 29);
    for (int i = 0; i < names.size(); ++i) {
        for (int j = i + 1; j < names.size(); ++j) {
            const int pixels = differingPixels(load(folder.filePath(names.at(i))),
                                               load(folder.filePath(names.at(j))));
            QVERIFY2(pixels >= 12, qPrintable(names.at(i) + " looks like " + names.at(j)));
        }
    }
}

// The editor paints a bar over y = 13 and 14 and nothing of the letter may show beside it.
void ResourcesTest::roomForTheColourBar()
{
    const QString name = ":/images/text_drawcolor.png";
    for (int scale = 1; scale <= 3; ++scale) {
        const QImage image = load(scale == 1 ? name : scaledName(name, scale));
        QCOMPARE(image.width(), 16 * scale);
        for (int y = 12 * scale; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QCOMPARE(qAlpha(image.pixel(x, y)), 0);
            }
        }
    }
}

void ResourcesTest::frame_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("leastColours");
    QTest::addColumn<int>("mostColours");
    for (int number = 1; number <= 6; ++number) {
        for (const QString kind : {"P", "M", "T"}) {
            const QString name = QString("%1%2.png").arg(kind).arg(number, 2, 10, QChar('0'));
            QTest::newRow(qPrintable(name))
                << kind.toLower() << name << (kind == "M" ? 2 : 1) << (kind == "P" ? 1 : 8);
        }
    }
}

void ResourcesTest::frame()
{
    QFETCH(QString, kind);
    QFETCH(QString, name);
    const QImage image = load(":/images/" + kind + '/' + name);
    QVERIFY(image.width() >= 8 && image.width() <= 32);
    QVERIFY(image.height() >= 1 && image.height() <= 8);
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            QCOMPARE(pixel.alpha(), 255);
            if (pixel == Qt::black) {
                continue;
            }
            // An LED border is lit fully or not at all.
            QCOMPARE(pixel.value(), 255);
            colours.insert(pixel.rgb());
        }
    }
    QFETCH(int, leastColours);
    QFETCH(int, mostColours);
    QVERIFY(colours.size() >= leastColours && colours.size() <= mostColours);

    QCOMPARE(load(":/images/" + name), image);
    QCOMPARE(load(LCTRLSEX_BINARY_DIR "/share/lctrlsex/images/" + kind + '/' + name), image);
}

int main(int argc, char **argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication app(argc, argv);
    ResourcesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_resources.moc"
