#include "itemdocument.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>
#include <QtTest>

using namespace lctrlsex;

namespace {

QByteArray png(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

QString dataUrl(const QByteArray &bytes, const QString &type)
{
    return QStringLiteral("data:%1;base64,%2").arg(type, QString::fromLatin1(bytes.toBase64()));
}

} // namespace

class TestItemDocument : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void resources_data();
    void resources();
    void deniedIsToldOncePerLoad();
    void fieldImageSurvivesLayout();
    void imageSizes_data();
    void imageSizes();
    void spacing_data();
    void spacing();
    void spacingReachesAllText();
    void linksAreNotUnderlined();
    void pixelsInsideOfPointsCount();

private:
    QTemporaryDir m_folder;
};

void TestItemDocument::initTestCase()
{
    QFile canary(m_folder.filePath(QStringLiteral("canary.png")));
    QVERIFY(canary.open(QIODevice::WriteOnly));
    canary.write(png(50, 50));
    QVERIFY(QDir::setCurrent(m_folder.path()));
}

void TestItemDocument::resources_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("loads");
    const QString file = m_folder.filePath(QStringLiteral("canary.png"));
    QTest::newRow("absolute file") << file << false;
    QTest::newRow("file address") << QUrl::fromLocalFile(file).toString() << false;
    QTest::newRow("relative file") << QStringLiteral("canary.png") << false;
    QTest::newRow("dotted file") << QStringLiteral("./canary.png") << false;
    QTest::newRow("upper case scheme") << QStringLiteral("FILE://%1").arg(file) << false;
    QTest::newRow("web address") << QStringLiteral("http://127.0.0.1:9/canary.png") << false;
    QTest::newRow("inline png") << dataUrl(png(50, 50), QStringLiteral("image/png")) << true;
    QTest::newRow("type is told by content")
        << dataUrl(png(50, 50), QStringLiteral("image/svg+xml")) << true;
    QTest::newRow("inline svg")
        << dataUrl("<svg xmlns='http://www.w3.org/2000/svg' width='50' height='50'/>",
                   QStringLiteral("image/svg+xml"))
        << false;
    QTest::newRow("cut short") << dataUrl(png(50, 50).left(60), QStringLiteral("image/png"))
                               << false;
    QTest::newRow("not Base64") << QStringLiteral("data:image/png,%89PNG") << false;
    QTest::newRow("unknown resource") << QStringLiteral(":/images/none.png") << false;
}

void TestItemDocument::resources()
{
    QFETCH(QString, name);
    QFETCH(bool, loads);
    ItemDocument document;
    document.loadItem(QStringLiteral("<p><img src=\"%1\"/></p>").arg(name), {});
    document.setTextWidth(200);
    QCOMPARE(document.size().height() > 50, loads);
    QCOMPARE(document.deniedResources().isEmpty(), loads);
    if (!loads) {
        QVERIFY(!document.deniedResources().first().reason.isEmpty());
        QVERIFY(document.deniedResources().first().name.size() < 80);
    }
}

void TestItemDocument::deniedIsToldOncePerLoad()
{
    ItemDocument document;
    const QString html =
        QStringLiteral("<p><img src=\"canary.png\"/><img src=\"canary.png\"/></p>");
    document.loadItem(html, {});
    document.setTextWidth(100);
    document.setTextWidth(200);
    QCOMPARE(document.deniedResources().size(), 1);
    document.loadItem(QStringLiteral("<p>Text</p>"), {});
    QVERIFY(document.deniedResources().isEmpty());
}

void TestItemDocument::fieldImageSurvivesLayout()
{
    ItemDocument document;
    document.loadItem(QStringLiteral("<p><img src=\"data://bindKey/a/b.png\"/></p>"), {});
    QImage field(30, 40, QImage::Format_ARGB32);
    document.addResource(QTextDocument::ImageResource,
                         QUrl(QStringLiteral("data://bindKey/a/b.png")), field);
    document.setTextWidth(100);
    QVERIFY(document.size().height() > 40);
    QVERIFY(document.deniedResources().isEmpty());
}

void TestItemDocument::imageSizes_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QSizeF>("shown");
    QTest::newRow("its own pixels") << QSize(50, 20) << QString() << QSizeF(50, 20);
    QTest::newRow("as the document says")
        << QSize(50, 20) << "width=\"30\" height=\"40\"" << QSizeF(30, 40);
    QTest::newRow("width keeps the ratio") << QSize(50, 20) << "width=\"100\"" << QSizeF(100, 40);
    QTest::newRow("height keeps the ratio") << QSize(50, 20) << "height=\"10\"" << QSizeF(25, 10);
    QTest::newRow("thin images stay within bounds")
        << QSize(1, 900) << "width=\"9000\"" << QSizeF(9000, 16384);
    QTest::newRow("no image") << QSize() << "width=\"30\"" << QSizeF(30, 0);
}

void TestItemDocument::imageSizes()
{
    QFETCH(QSize, image);
    QFETCH(QString, attributes);
    const QByteArray bytes = image.isValid() ? png(image.width(), image.height()) : QByteArray("x");
    ItemDocument document;
    document.loadItem(
        QStringLiteral("<p><img src=\"%1\" %2/></p>")
            .arg(image.isValid() ? dataUrl(bytes, "image/png") : QString(), attributes),
        {});
    auto *handler = document.documentLayout()->handlerForObject(QTextFormat::ImageObject);
    const QTextFormat format = document.firstBlock().begin().fragment().charFormat();
    const QSizeF size = handler->intrinsicSize(&document, 0, format);
    QFETCH(QSizeF, shown);
    if (image.isValid()) {
        QCOMPARE(size, shown);
    } else {
        QCOMPARE(size.width(), shown.width());
    }
}

void TestItemDocument::spacing_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<qreal>("pixels");
    QTest::newRow("none") << 0 << 0.0;
    QTest::newRow("largest") << 99 << 99.0;
    QTest::newRow("above the control's range") << 100 << 0.0;
    QTest::newRow("negative numbers count an eighth") << -8 << -1.0;
}

void TestItemDocument::spacing()
{
    QFETCH(int, value);
    QTEST(letterSpacing(value), "pixels");
}

void TestItemDocument::spacingReachesAllText()
{
    const QString html =
        QStringLiteral("<p>One <b>two</b></p><table><tr><td>cell</td></tr></table>");
    for (const bool single : {false, true}) {
        TextSettings settings;
        settings.fontSpace = 7;
        settings.singleLine = single;
        ItemDocument document;
        document.loadItem(html, settings);
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                QCOMPARE(it.fragment().charFormat().fontLetterSpacing(), single ? 0.0 : 7.0);
            }
        }
    }
}

void TestItemDocument::linksAreNotUnderlined()
{
    ItemDocument document;
    document.loadItem(QStringLiteral("<p><a href=\"bindStyle;1;Low\">text</a></p>"), {});
    QTextCursor cursor(&document);
    cursor.setPosition(2);
    QVERIFY(cursor.charFormat().isAnchor());
    QVERIFY(!cursor.charFormat().fontUnderline());
}

void TestItemDocument::pixelsInsideOfPointsCount()
{
    const QString html = "<body style='font-size:12pt'><p><b style='font-size:40px'>text</b></p>";
    ItemDocument page;
    page.loadItem(html, {});
    ItemDocument view;
    view.clearForView({});
    view.setHtml(html);
    pixelsToPoints(&view);
    ItemDocument reopened;
    reopened.clearForView({});
    reopened.setHtml(view.toHtml());
    QVERIFY(qAbs(page.idealWidth() - view.idealWidth()) < 3); // their margins differ
    QCOMPARE(reopened.idealWidth(), view.idealWidth());
}

QTEST_MAIN(TestItemDocument)
#include "tst_itemdocument.moc"
