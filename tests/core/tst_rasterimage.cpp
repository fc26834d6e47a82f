#include "rasterimage.h"

#include <QBuffer>
#include <QDataStream>
#include <QElapsedTimer>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace lctrlsex;

namespace {

QImage pattern()
{
    QImage image(37, 23, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, qRgb(x * 6, y * 9, x * y));
        }
    }
    return image;
}

QByteArray encoded(const char *format)
{
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    pattern().save(&buffer, format);
    return data;
}

QByteArray gif()
{
    return QByteArray::fromBase64("R0lGODlhAgACAPAAAP8AAAAA/yH5BAAAAAAALAAAAAACAAIAAAIDRAIFADs=");
}

/** A PNG whose header promises that size, with a right checksum. */
QByteArray lyingPng(quint32 width, quint32 height)
{
    QByteArray header;
    QDataStream stream(&header, QIODevice::WriteOnly);
    stream.writeRawData("IHDR", 4);
    stream << width << height << quint8(8) << quint8(2) << quint8(0) << quint8(0) << quint8(0);
    quint32 sum = 0xffffffff;
    for (const char byte : qAsConst(header)) {
        sum ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit) {
            sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xedb88320U : 0U);
        }
    }
    QByteArray checksum(4, '\0');
    qToBigEndian(~sum, checksum.data());
    return QByteArray("\x89PNG\r\n\x1a\n\0\0\0\r", 12) + header + checksum +
           QByteArray("\0\0\0\4IDATabcdxxxx\0\0\0\0IEND\xae\x42\x60\x82", 28);
}

QByteArray lyingBmp(qint32 width, qint32 height)
{
    QByteArray size;
    QDataStream stream(&size, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << width << height;
    return encoded("bmp").replace(18, size.size(), size);
}

long peakKilobytes()
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

void ignoreMessages(QtMsgType, const QMessageLogContext &, const QString &)
{}

} // namespace

class tst_RasterImage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInstallMessageHandler(ignoreMessages); }
    void decodes_data();
    void decodes();
    void noticesEveryCut_data();
    void noticesEveryCut();
    void refuses_data();
    void refuses();
    void readsFiles();
    void waitsForNoPipe();
};

void tst_RasterImage::decodes_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QSize>("size");
    QTest::newRow("png") << encoded("png") << QSize(37, 23);
    QTest::newRow("jpeg") << encoded("jpg") << QSize(37, 23);
    QTest::newRow("bmp") << encoded("bmp") << QSize(37, 23);
    QTest::newRow("gif") << gif() << QSize(2, 2);
    QTest::newRow("bytes behind the end") << encoded("png") + "more" << QSize(37, 23);
}

void tst_RasterImage::decodes()
{
    QFETCH(QByteArray, data);
    QFETCH(QSize, size);
    const RasterImage picture = decodeRaster(data);
    QVERIFY2(picture.error.isEmpty(), qPrintable(picture.error));
    QCOMPARE(picture.image.size(), size);
    if (data.startsWith("\x89PNG")) {
        QCOMPARE(picture.image.convertToFormat(QImage::Format_RGB32), pattern());
    }
}

void tst_RasterImage::noticesEveryCut_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<int>("needed");
    QTest::newRow("png") << encoded("png") << encoded("png").size();
    QTest::newRow("jpeg") << encoded("jpg") << encoded("jpg").size();
    QTest::newRow("bmp") << encoded("bmp") << encoded("bmp").size();
    // The last byte of a GIF follows its first frame, which is all that is wanted.
    QTest::newRow("gif") << gif() << gif().size() - 1;
}

void tst_RasterImage::noticesEveryCut()
{
    QFETCH(QByteArray, data);
    QFETCH(int, needed);
    for (int length = 0; length < needed; ++length) {
        const RasterImage picture = decodeRaster(data.left(length));
        QVERIFY2(!picture.error.isEmpty(), qPrintable(QString::number(length)));
        QVERIFY(picture.image.isNull());
    }
}

void tst_RasterImage::refuses_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("reason");
    QTest::newRow("nothing") << QByteArray() << "not a PNG";
    QTest::newRow("text") << QByteArray("canary") << "not a PNG";
    QTest::newRow("svg") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='30000' "
                                       "height='30000'/>")
                         << "not a PNG";
    QTest::newRow("tiff") << QByteArray("II*\0abcdefgh", 12) << "not a PNG";
    QTest::newRow("svg behind png bytes")
        << QByteArray("\x89PNG\r\n\x1a\n<svg width='9'/>") << "damaged";
    QTest::newRow("png 30000 x 30000") << lyingPng(30000, 30000) << "too large";
    QTest::newRow("png 16385 x 1") << lyingPng(16385, 1) << "too large";
    QTest::newRow("png 16384 x 16384") << lyingPng(16384, 16384) << "too large";
    QTest::newRow("png 1000 x 1000 without pixels") << lyingPng(1000, 1000) << "damaged";
    QTest::newRow("png 0 x 5") << lyingPng(0, 5) << "damaged";
    QTest::newRow("png 2147483647 x 2") << lyingPng(0x7fffffff, 2) << QString();
    QTest::newRow("bmp 20000 x 20000") << lyingBmp(20000, 20000) << QString();
    QTest::newRow("bmp 8000 x 8000") << lyingBmp(8000, 8000) << "damaged";
    QTest::newRow("bmp negative") << lyingBmp(-5, -5) << "damaged";
    QTest::newRow("bmp least height") << lyingBmp(5, INT_MIN) << QString();
    QTest::newRow("more than 16 MB")
        << encoded("png") + QByteArray(16 * 1024 * 1024, 'a') << "16 MB";
}

void tst_RasterImage::refuses()
{
    QFETCH(QByteArray, data);
    QFETCH(QString, reason);
    const long before = peakKilobytes();
    QElapsedTimer timer;
    timer.start();
    const RasterImage picture = decodeRaster(data);
    const qint64 milliseconds = timer.elapsed();
    QVERIFY(picture.image.isNull());
    QVERIFY2(picture.error.contains(reason) && !picture.error.isEmpty(), qPrintable(picture.error));
    // Wall time on a busy machine: the aim is 50 ms, a decoded bomb takes seconds.
    QVERIFY2(milliseconds < 500, qPrintable(QString::number(milliseconds)));
    QVERIFY(peakKilobytes() - before < 20 * 1024);
}

void tst_RasterImage::readsFiles()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("a.dat");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(encoded("png"));
    file.close();
    QCOMPARE(readRasterFile(path).image.size(), QSize(37, 23));
    QVERIFY(readRasterFile(folder.path()).error.contains("not a file"));
    QVERIFY(readRasterFile("/dev/zero").error.contains("not a file"));
    QVERIFY(readRasterFile(folder.filePath("missing")).error.contains("cannot be read"));
    QVERIFY(!readRasterFile(QString()).error.isEmpty());
}

void tst_RasterImage::waitsForNoPipe()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("pipe.png");
    QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QVERIFY(readRasterFile(path).error.contains("not a file"));
}

QTEST_GUILESS_MAIN(tst_RasterImage)
#include "tst_rasterimage.moc"
