#include "documentimages.h"
#include "editorfixture.h"
#include "imageinsertion.h"
#include "itemdocument.h"
#include "pagelines.h"
#include "pagerenderer.h"

#include <QBuffer>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QTemporaryDir>
#include <QWheelEvent>

using lctrlsex::isPictureAt;
using lctrlsex::pictureRect;

namespace {

QImage sample(const QSize &size = QSize(40, 20))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::green);
    image.setPixelColor(0, 0, Qt::red);
    return image;
}

QByteArray encoded(const QImage &image, const char *format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

/** A BMP that says it is @p side pixels wide and high. */
QByteArray bomb(ushort side)
{
    QByteArray bmp = encoded(sample(), "BMP");
    const char sides[] = {char(side), char(side >> 8U)};
    return bmp.replace(18, 2, sides, 2).replace(22, 2, sides, 2);
}

/** An item with what these tests look at. */
class Item : public EditorFixture
{
public:
    using EditorFixture::EditorFixture;

    [[nodiscard]] QWidget *band() const
    {
        return view->viewport()->findChild<QWidget *>(QStringLiteral("GripBand"));
    }
    void paste(QMimeData *data) const
    {
        QGuiApplication::clipboard()->setMimeData(data);
        key(Qt::Key_V, Qt::ControlModifier);
        settle();
    }
    void pasteImage(const QImage &image = sample()) const
    {
        auto *data = new QMimeData;
        data->setImageData(image);
        paste(data);
    }
    void drop(const QMimeData &data, const QPoint &point) const
    {
        QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view->viewport(), &enter);
        QCoreApplication::sendEvent(view->viewport(), &event);
        settle();
    }
    void drag(QPoint from, QPoint moved, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        const QPoint to = band()->mapToGlobal(from + moved);
        QTest::mousePress(band(), Qt::LeftButton, modifiers, from);
        const QPoint there = band()->mapFromGlobal(to);
        QMouseEvent move(QEvent::MouseMove, there, to, Qt::NoButton, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(band(), &move);
    }
    void release() const
    {
        QTest::mouseRelease(band(), Qt::LeftButton);
        settle();
    }
    [[nodiscard]] QSize sizeAt(int position) const
    {
        return pictureRect(*view->document(), position).size().toSize();
    }
    [[nodiscard]] QString notice() const
    {
        const auto *strip = editor->findChild<QWidget *>("NoticeStrip");
        return strip->isVisible() ? strip->findChild<QLabel *>("NoticeLabel")->text() : QString();
    }
};

} // namespace

/** Pictures in the text of a real editor. */
class TestImages : public QObject
{
    Q_OBJECT
private slots:
    void comesIntoTheDocument_data();
    void comesIntoTheDocument();
    void staysOut_data();
    void staysOut();
    void isFittedToTheItem_data();
    void isFittedToTheItem();
    void isShownWhereTheBandLies_data();
    void isShownWhereTheBandLies();
    void isResizedByItsGrips_data();
    void isResizedByItsGrips();
    void theBandFollowsAndHides();
    void isCopiedAndMovedAlone();
    void textBehindIsText();
    void fillsOnePage();
};

void TestImages::comesIntoTheDocument_data()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"image data", "png", "file", "file with its name", "drop", "call"}) {
        QTest::newRow(way) << way;
    }
}

void TestImages::comesIntoTheDocument()
{
    QFETCH(QString, way);
    const QTemporaryDir folder;
    const QString path = folder.filePath("a picture.png");
    QVERIFY(sample().save(path));
    Item item("<p style='color:#ffffff'>ab</p>");
    item.select(1, 1);
    auto *data = new QMimeData;
    if (way == "image data") {
        data->setImageData(sample());
    } else if (way == "png") {
        data->setData("image/png", encoded(sample(), "PNG"));
        data->setHtml("<img src='http://example.org/a.png'>");
    } else {
        data->setUrls({QUrl::fromLocalFile(path)});
        if (way == "file with its name") {
            data->setText(path + '\n');
        }
    }
    if (way == "drop") {
        item.drop(*data, item.view->cursorRect().center());
        delete data;
    } else if (way == "call") {
        delete data;
        QVERIFY(QMetaObject::invokeMethod(item.view, "insertImageFile", Q_ARG(QString, path)));
        item.settle();
    } else {
        item.paste(data);
    }
    QVERIFY(isPictureAt(*item.view->document(), 1));
    QCOMPARE(item.sizeAt(1), QSize(40, 20));
    const QString stored = item.stored();
    QVERIFY(stored.contains("<img src=\"data:image/png;base64,"));
    QVERIFY(!stored.contains("a picture") && !stored.contains("file:"));
    QVERIFY(item.node->GetHtmlText().contains(stored.mid(stored.indexOf("<img"), 200)));

    item.view->undo();
    QCOMPARE(item.view->toPlainText(), QString("ab"));
    QVERIFY(!item.view->document()->isUndoAvailable());
    item.view->redo();
    item.settle();
    QCOMPARE(item.stored(), stored);
    item.open();
    QCOMPARE(item.sizeAt(1), QSize(40, 20));
    QCOMPARE(item.view->toHtml(), stored);
    QCOMPARE(item.notice(), QString());
}

void TestImages::staysOut_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("reason");

    const QByteArray png = encoded(sample(), "PNG");
    QTest::newRow("text wins") << png << "text"
                               << "text" << QString();
    QTest::newRow("bomb") << bomb(16000) << QString() << QString() << "too large";
    QTest::newRow("cut off") << png.left(60) << QString() << QString() << "damaged";
    QTest::newRow("no picture") << QByteArray("<svg/>") << QString() << QString() << "not a PNG";
}

void TestImages::staysOut()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QFETCH(QString, reason);
    Item item("<p style='color:#ffffff'>old</p>");
    item.select(0, 3);
    auto *data = new QMimeData;
    data->setData("image/png", bytes);
    if (!text.isEmpty()) {
        data->setText(text);
    }
    item.paste(data);
    QCOMPARE(item.view->toPlainText(), expected.isEmpty() ? "old" : expected);
    QVERIFY2(item.notice().contains(reason), qPrintable(item.notice()));
    QCOMPARE(item.view->document()->isUndoAvailable(), !expected.isEmpty());

    QTemporaryDir folder;
    QFile file(folder.filePath("x.png"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    const auto picture = lctrlsex::pictureFromFile(file.fileName(), QSize());
    QCOMPARE(picture.problem.isEmpty(), reason.isEmpty());
}

void TestImages::isFittedToTheItem_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("asItCame");

    const QByteArray jpeg = encoded(sample(), "JPEG");
    QTest::newRow("small") << encoded(sample(), "PNG") << QSize(40, 20) << "png" << true;
    QTest::newRow("bmp") << encoded(sample(), "BMP") << QSize(40, 20) << "png" << false;
    QTest::newRow("jpeg") << jpeg << QSize(40, 20) << "jpeg" << true;
    QTest::newRow("wide") << encoded(sample({1024, 100}), "JPEG") << QSize(256, 25) << "jpeg"
                          << false;
    QTest::newRow("high") << encoded(sample({10, 640}), "PNG") << QSize(1, 64) << "png" << false;
    QTest::newRow("thread") << encoded(sample({16000, 1}), "PNG") << QSize(256, 1) << "png"
                            << false;
    // A camera held on its side: an Exif block with the orientation 6.
    QByteArray turned = jpeg;
    turned.insert(2, QByteArray::fromHex("ffe1002245786966000049492a0008000000010012010300010000000"
                                         "600000000000000"));
    QTest::newRow("turned") << turned << QSize(20, 40) << "jpeg" << false;
}

void TestImages::isFittedToTheItem()
{
    QFETCH(QByteArray, data);
    QFETCH(QSize, size);
    QFETCH(QString, kind);
    const auto picture = lctrlsex::pictureFromData(data, QSize(256, 64));
    QCOMPARE(picture.problem, QString());
    QCOMPARE(picture.size, size);
    const QString head = "data:image/" + kind + ";base64,";
    QVERIFY(picture.name.startsWith(head));
    const QByteArray kept = QByteArray::fromBase64(picture.name.mid(head.size()).toLatin1());
    QCOMPARE(QImage::fromData(kept).size(), size);
    QTEST(kept == data, "asItCame");
}

void TestImages::isShownWhereTheBandLies_data()
{
    QTest::addColumn<QString>("html");
    const QString name = lctrlsex::pictureFromImage(sample(), QSize()).name;
    const auto row = [&name](const char *title, const QString &html) {
        QTest::newRow(title) << QString(html).replace("IMG", "src='" + name + "'");
    };
    row("alone", "<img IMG>");
    row("in text", "<p>a <img IMG> b</p>");
    row("centred", "<p align='center'><img IMG width='31' height='9'></p>");
    row("below high text", "<p style='line-height:150%'>a<span style='font-size:30pt'>b</span>"
                           "<img IMG></p>");
    row("middle", "<p><span style='font-size:40pt'>b</span>"
                  "<img style='vertical-align:middle' IMG></p>");
    row("top", "<p><span style='font-size:40pt'>b</span><img style='vertical-align:top' IMG></p>");
    row("bottom", "<p><span style='font-size:40pt'>b</span>"
                  "<img style='vertical-align:bottom' IMG></p>");
    row("cell", "<p>a</p><table border='1' cellpadding='3'><tr><td>x</td><td><img IMG></td></tr>"
                "</table>");
}

void TestImages::isShownWhereTheBandLies()
{
    QFETCH(QString, html);
    Item item(html);
    int position = 0;
    while (position < item.view->document()->characterCount() &&
           !isPictureAt(*item.view->document(), position)) {
        ++position;
    }
    item.select(position, position);
    item.settle();
    QVERIFY(item.band()->isVisible());
    const QRect shown = item.band()->geometry();
    item.view->clearFocus(); // no text cursor over the picture
    item.band()->hide();
    const QImage pixels = item.view->viewport()->grab().toImage();
    QRect green;
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            const QColor color = pixels.pixelColor(x, y);
            if (color == QColor(Qt::green) || color == QColor(Qt::red)) {
                green |= QRect(x, y, 1, 1);
            }
        }
    }
    QCOMPARE(shown, green);
}

void TestImages::isResizedByItsGrips_data()
{
    QTest::addColumn<QPoint>("grip");
    QTest::addColumn<QPoint>("moved");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QSize>("size"); ///< Of 40 by 20 before.

    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    QTest::newRow("corner") << QPoint(38, 18) << QPoint(20, 5) << none << QSize(60, 25);
    QTest::newRow("ratio") << QPoint(38, 18) << QPoint(20, 5) << shift << QSize(60, 30);
    QTest::newRow("left") << QPoint(2, 10) << QPoint(10, 3) << none << QSize(30, 20);
    QTest::newRow("to the item") << QPoint(38, 18) << QPoint(400, 300) << none << QSize(256, 64);
    QTest::newRow("in ratio") << QPoint(38, 18) << QPoint(400, 0) << shift << QSize(128, 64);
    QTest::newRow("too small") << QPoint(38, 18) << QPoint(-39, 0) << none << QSize(40, 20);
    QTest::newRow("moved") << QPoint(14, 10) << QPoint(30, 9) << none << QSize(40, 20);
    QTest::newRow("only pressed") << QPoint(38, 18) << QPoint() << none << QSize(40, 20);
}

void TestImages::isResizedByItsGrips()
{
    QFETCH(QPoint, grip);
    QFETCH(QPoint, moved);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QSize, size);
    Item item("<p style='color:#ffffff'>a</p>");
    item.select(1, 1);
    item.pasteImage();
    item.pasteImage(); // the same picture twice is one fragment
    item.select(1, 1);
    item.settle();
    const QRect start = item.band()->geometry();
    const int steps = item.view->document()->availableUndoSteps();
    item.drag(grip, moved, modifiers);
    QCOMPARE(item.sizeAt(1), QSize(40, 20)); // so far
    item.release();
    const bool isChanged = size != QSize(40, 20);
    QCOMPARE(item.sizeAt(1), size);
    QCOMPARE(item.sizeAt(2), QSize(40, 20));
    QCOMPARE(item.band()->geometry().size(), size);
    QCOMPARE(item.band()->x(), size.width() < 256 ? start.x() : 3); // else on a line of its own
    QCOMPARE(item.view->document()->availableUndoSteps() > steps, isChanged);
    QCOMPARE(item.view->textCursor().position(), 1);
    const QString stored = item.stored();
    QCOMPARE(
        stored.contains(QString("width=\"%1\" height=\"%2\"").arg(size.width()).arg(size.height())),
        true);
    if (isChanged) {
        item.view->undo();
        item.settle();
        QCOMPARE(item.sizeAt(1), QSize(40, 20));
        QCOMPARE(item.band()->geometry(), start);
        QCOMPARE(item.view->toPlainText().size(), 3);
        item.view->redo();
        item.settle();
        QCOMPARE(item.band()->geometry().size(), size);
        QCOMPARE(item.stored(), stored);
    }
}

void TestImages::theBandFollowsAndHides()
{
    Item item("<p style='color:#ffffff'>some text</p>");
    item.select(4, 4);
    item.pasteImage();
    QVERIFY(item.band()->isVisible());
    const QRect start = item.band()->geometry();
    item.drag({38, 18}, {9, 9});
    QCOMPARE(item.band()->geometry().size(), QSize(49, 29));
    item.key(Qt::Key_Escape);
    item.release();
    QCOMPARE(item.band()->geometry(), start);
    QCOMPARE(item.sizeAt(4), QSize(40, 20));

    const auto wheel = [&item] {
        const QPointF point = item.band()->geometry().center();
        QWheelEvent event(point, item.view->viewport()->mapToGlobal(point.toPoint()), {}, {0, -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(item.view->viewport(), &event);
        item.settle();
    };
    wheel();
    QVERIFY(!item.band()->isVisible());
    QTest::mouseClick(item.view->viewport(), Qt::LeftButton, {}, start.center());
    item.settle();
    QVERIFY(item.band()->isVisible());
    item.view->setReadOnly(true);
    item.settle();
    QVERIFY(!item.band()->isVisible());
    item.view->setReadOnly(false);
    item.key(Qt::Key_Home);
    QVERIFY(!item.band()->isVisible());
    item.select(4, 5);
    item.settle();
    QVERIFY(item.band()->isVisible());
    item.drag({38, 18}, {9, 9});
    item.view->undo(); // takes the picture away under the mouse
    item.settle();
    QVERIFY(!item.band()->isVisible());
    item.call("ApplyFormatAndInsert", Q_ARG(QString, "source:field"));
    item.settle();
    QVERIFY(!item.band()->isVisible());
}

void TestImages::isCopiedAndMovedAlone()
{
    Item item("<p style='color:#ffffff'>text</p>");
    item.pasteImage();
    item.drag({38, 18}, {20, 20});
    item.release();
    item.select(0, 1);
    item.key(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(item.view->toPlainText(), QString("text"));
    item.select(2, 2);
    item.key(Qt::Key_V, Qt::ControlModifier);
    item.settle();
    QVERIFY(isPictureAt(*item.view->document(), 2));
    QCOMPARE(item.sizeAt(2), QSize(60, 40));
    QCOMPARE(item.stored().count("<img"), 1);
}

void TestImages::textBehindIsText()
{
    Item item("<p style='color:#ff0000; font-size:20pt'>a</p>");
    item.select(1, 1);
    item.pasteImage();
    item.type("b");
    item.select(2, 2);
    item.drag({38, 18}, {20, 20});
    item.release();
    item.type("c");
    item.call("InsertCopyText", Q_ARG(QString, "d"));
    for (int i = 2; i < 5; ++i) {
        const QTextCharFormat format = item.formatAt(i);
        QVERIFY(!format.isImageFormat() && !format.hasProperty(QTextFormat::ImageName) &&
                !format.hasProperty(QTextFormat::ImageWidth));
    }
    QCOMPARE(item.formatAt(2).foreground().color(), QColor(Qt::red));
    QCOMPARE(item.formatAt(2).fontPointSize(), 20.0);
}

/** A picture that is larger than the item is shown whole, on one page, as in the view. */
void TestImages::fillsOnePage()
{
    Item item;
    item.pasteImage(sample({1024, 256}));
    QCOMPARE(item.sizeAt(0), QSize(224, 56));
    item.view->clearFocus();
    item.band()->hide();
    const QImage view = item.view->viewport()->grab(QRect(QPoint(3, 3), item.sizeAt(0))).toImage();
    lctrlsex::ItemDocument document;
    document.loadItem(item.stored(), lctrlsex::TextSettings());
    lctrlsex::PageStyle style;
    style.size = QSize(256, 64);
    const QImage page = lctrlsex::drawTop(&document, style);
    document.setTextWidth(256);
    QCOMPARE(lctrlsex::paginate(document, 64).size(), 1);
    QVERIFY(document.size().height() <= 64);
    QVERIFY(document.deniedResources().isEmpty());
    QCOMPARE(page.copy(QRect(QPoint(4, 4), item.sizeAt(0))), view.convertToFormat(page.format()));
}

QTEST_MAIN(TestImages)
#include "tst_images.moc"
