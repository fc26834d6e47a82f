#include "charformatstyle.h"
#include "documentstorage.h"
#include "fontnames.h"
#include "fragmentmerge.h"
#include "htmlunits.h"
#include "literalmerge.h"
#include "pageposition.h"
#include "pastedtext.h"
#include "toolbarformat.h"

#include <QFile>
#include <QFontDatabase>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCursor>
#include <QTextDocument>

using namespace lctrlsex;

Q_DECLARE_METATYPE(QTextCharFormat)

namespace {

QTextCharFormat randomFormat(QRandomGenerator *random)
{
    QTextCharFormat format;
    if (random->bounded(4) == 0) {
        format.setAnchor(true);
        format.setAnchorHref(QString::number(random->bounded(2)));
    }
    format.setForeground(random->bounded(2) == 0 ? Qt::white : Qt::red);
    format.setToolTip(QString::number(random->bounded(3))); // never shows
    if (random->bounded(3) == 0) {
        format.setFontWeight(75);
    }
    if (random->bounded(4) == 0) {
        format.setFontLetterSpacing(random->bounded(2));
        format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    }
    return format;
}

} // namespace

class TestEditorCore : public QObject
{
    Q_OBJECT

private slots:
    void unitsSwapWithoutTouchingNumbers_data();
    void unitsSwapWithoutTouchingNumbers();
    void everyUnitPastedIsStoredAndShown();
    void pagesAreClamped_data();
    void pagesAreClamped();
    void styleKeySaysWhatShows();
    void lookAlikes_data();
    void lookAlikes();
    void mergeEqualsTheLiteralProcedure();
    void mergeWithoutWorkIsSilent();
    void mergerFindsWhatAScanFinds();
    void mergerMakesNoStep();
    void fontsNeedFamilyAndFile();
    void formatAtTheCursor();
};

void TestEditorCore::unitsSwapWithoutTouchingNumbers_data()
{
    QTest::addColumn<QString>("points");
    QTest::addColumn<QString>("pixels");

    QTest::newRow("whole") << "a font-size:12pt; b"
                           << "a font-size:12px; b";
    QTest::newRow("fraction") << "font-size:10.5pt"
                              << "font-size:10.5px";
    QTest::newRow("blank") << "font-size: 9pt"
                           << "font-size: 9px";
    QTest::newRow("several") << "font-size:1pt font-size:22pt"
                             << "font-size:1px font-size:22px";
    QTest::newRow("other lengths stay") << "margin:3pt"
                                        << "margin:3pt";
    QTest::newRow("what the author wrote stays")
        << "<p style='font-size:2.pt'>font-size:3pt &lt;font-size:4px<b style='font-size:5pt'/>"
        << "<p style='font-size:2.px'>font-size:3pt &lt;font-size:4px<b style='font-size:5px'/>";
    QTest::newRow("half a pair") << QString(QChar(0xd800)) + "font-size:1pt"
                                 << QString(QChar(0xd800)) + "font-size:1px";
}

void TestEditorCore::unitsSwapWithoutTouchingNumbers()
{
    QFETCH(QString, points);
    QFETCH(QString, pixels);
    QCOMPARE(replacePtWithPx(points), pixels);
    QCOMPARE(replacePxWithPt(pixels), points);
    QCOMPARE(replacePtWithPx("<meta content=\"1\"   name=\"qrichtext\" />"),
             QString("<meta name=\"qrichtext\" content=\"1\" />"));
}

void TestEditorCore::everyUnitPastedIsStoredAndShown()
{
    for (int row = 0; row < 256; ++row) {
        QString text;
        for (int cell = 0; cell < 256; ++cell) {
            text += QChar(256 * row + cell) + QString("a ");
        }
        QTextDocument document;
        QTextCursor(&document).insertText(pastedText(text, false).text);
        QTextDocument read;
        read.setHtml(decodeDocument(encodeDocument(document.toHtml())).html);
        QCOMPARE(read.toPlainText(), document.toPlainText());
        read.setHtml(QString::fromUtf8(replacePtWithPx(document.toHtml()).toUtf8()));
        QCOMPARE(read.toPlainText(), document.toPlainText());
    }
}

void TestEditorCore::pagesAreClamped_data()
{
    QTest::addColumn<uint>("page");
    QTest::addColumn<uint>("count");
    QTest::addColumn<uint>("shownPage");
    QTest::addColumn<uint>("shownCount");

    QTest::newRow("nothing") << 0U << 0U << 1U << 1U;
    QTest::newRow("beyond the last") << 5U << 3U << 3U << 3U;
    QTest::newRow("inside") << 2U << 5U << 2U << 5U;
    QTest::newRow("wrapped around") << 0xFFFFFFFFU << 4U << 4U << 4U;
}

void TestEditorCore::pagesAreClamped()
{
    QFETCH(uint, page);
    QFETCH(uint, count);
    const PagePosition position = clamped({page, count});
    QTEST(position.page, "shownPage");
    QTEST(position.count, "shownCount");
}

void TestEditorCore::styleKeySaysWhatShows()
{
    QTextCharFormat format;
    QCOMPARE(charFormatToStyle(format), QString());
    format.setForeground(QColor("#0a141e"));
    format.setBackground(Qt::white);
    format.setFontWeight(75);
    format.setFontItalic(true);
    format.setFontUnderline(true);
    format.setFontPointSize(10.7);
    format.setFontFamily("Sans");
    QCOMPARE(charFormatToStyle(format),
             QString("color:#0a141e;|background-color:#ffffff;|font-weight:bold;|"
                     "font-style:italic;|text-decoration:underline;|font-size:10px;|"
                     "font-family:Sans;"));
    format.setFontWeight(87);
    QVERIFY(!charFormatToStyle(format).contains("weight"));
}

void TestEditorCore::lookAlikes_data()
{
    QTest::addColumn<QTextCharFormat>("left");
    QTest::addColumn<QTextCharFormat>("right");
    QTest::addColumn<bool>("alike");

    QTextCharFormat plain;
    plain.setForeground(Qt::white);
    QTest::newRow("same") << plain << plain << true;
    QTextCharFormat tip = plain;
    tip.setToolTip("x");
    QTest::newRow("what never shows") << plain << tip << true;
    QTextCharFormat spaced = plain;
    spaced.setFontLetterSpacing(2);
    QTest::newRow("letter spacing is part of the font") << plain << spaced << false;
    QTextImageFormat image;
    QTest::newRow("images") << QTextCharFormat(image) << QTextCharFormat(image) << false;
    QTextCharFormat link = plain;
    link.setAnchor(true);
    link.setAnchorHref("a");
    QTextCharFormat other = link;
    other.setAnchorHref("b");
    QTest::newRow("same link") << link << link << true;
    QTest::newRow("other link") << link << other << false;
    QTest::newRow("link and none") << link << plain << false;
}

void TestEditorCore::lookAlikes()
{
    QFETCH(QTextCharFormat, left);
    QFETCH(QTextCharFormat, right);
    QTEST(areFormatsEqual(left, right), "alike");
}

void TestEditorCore::mergeEqualsTheLiteralProcedure()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        QTextDocument one;
        QTextCursor cursor(&one);
        const int runs = random.bounded(1, 14);
        for (int run = 0; run < runs; ++run) {
            if (random.bounded(9) == 0) {
                cursor.insertImage(":/none.png");
            } else {
                cursor.insertText(QString::number(run), randomFormat(&random));
            }
        }
        const QScopedPointer<QTextDocument> two(one.clone());
        one.clearUndoRedoStacks();
        const QString before = one.toHtml();
        mergeLiterally(two->firstBlock());
        const bool changed = smartMerge(&one);
        QCOMPARE(one.toHtml(), two->toHtml());
        QCOMPARE(one.isUndoAvailable(), changed);
        one.undo();
        QVERIFY(!one.isUndoAvailable());
        QCOMPARE(one.toHtml(), before);
    }
}

void TestEditorCore::mergeWithoutWorkIsSilent()
{
    QTextDocument document;
    document.setPlainText("nothing to merge\nhere");
    int changes = 0;
    connect(&document, &QTextDocument::contentsChanged, this, [&changes] { ++changes; });
    QVERIFY(!smartMerge(&document));
    QCOMPARE(changes, 0);
}

void TestEditorCore::mergerFindsWhatAScanFinds()
{
    for (quint32 seed = 1; seed <= 40; ++seed) {
        QRandomGenerator random(seed);
        QTextDocument document;
        FragmentMerger merger(&document);
        QTextCursor cursor(&document);
        for (int i = 0; i < 100; ++i) {
            const auto place = [&] {
                return random.bounded(document.characterCount());
            };
            cursor.setPosition(place());
            if (random.bounded(5) > 1) {
                const QString text = random.bounded(6) == 0 ? "a\nb" : "xy";
                cursor.insertText(text, randomFormat(&random));
            } else if (random.bounded(3) == 0) {
                document.undo();
            } else {
                cursor.setPosition(qMin(cursor.position() + 5, place()), QTextCursor::KeepAnchor);
                random.bounded(2) ? cursor.setCharFormat(randomFormat(&random))
                                  : cursor.removeSelectedText();
            }
            if (random.bounded(3) == 0) {
                merger.merge();
                QVERIFY2(!smartMerge(&document), qPrintable(QString::number(seed)));
            }
        }
    }
}

void TestEditorCore::mergerMakesNoStep()
{
    QTextDocument document;
    FragmentMerger merger(&document);
    QTextCharFormat tip;
    tip.setToolTip("x");
    QTextCursor cursor(&document);
    const auto insertAlike = [&cursor, &tip] {
        cursor.beginEditBlock();
        cursor.insertText("one ", QTextCharFormat());
        cursor.insertText("two ", tip);
        cursor.endEditBlock();
    };
    insertAlike();
    document.clearUndoRedoStacks();
    document.setModified(false);
    QVERIFY(merger.merge());
    QVERIFY(!document.isUndoAvailable() && !document.isModified());
    const QString merged = document.toHtml();
    insertAlike();
    QVERIFY(merger.merge());
    QVERIFY(!merger.merge());
    document.undo();
    QCOMPARE(document.toHtml(), merged);
    QVERIFY(!document.isUndoAvailable());
}

void TestEditorCore::fontsNeedFamilyAndFile()
{
    QTemporaryDir folder;
    const QString family = QFontDatabase().families().value(0);
    QVERIFY(!family.isEmpty());
    const auto touch = [&folder](const QString &name) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    };
    QCOMPARE(offeredFonts(folder.path()), QStringList());
    touch("No Such Family.ttf");
    touch(family + ".txt");
    touch(family.toUpper() + "x.ttf");
    QCOMPARE(offeredFonts(folder.path()), QStringList());
    touch(family + ".ttc");
    touch(family + ".TTF");
    QCOMPARE(offeredFonts(folder.path()), QStringList{family});
    QCOMPARE(offeredSizes().size(), 135);
    QCOMPARE(offeredSizes().last(), QString("490"));
}

void TestEditorCore::formatAtTheCursor()
{
    QTextDocument document;
    QFont font("DejaVu Serif");
    font.setPointSize(21);
    document.setDefaultFont(font);
    QTextCursor cursor(&document);
    QCOMPARE(toolbarFormatAt(cursor).family, QString("DejaVu Serif"));
    QCOMPARE(toolbarFormatAt(cursor).pointSize, 21.0);
    QVERIFY(isInvisible(cursor.charFormat()));
    document.setHtml("<p align=right style='line-height:150%'><b style='font-size:10.5pt'>"
                     "<i style='color:#ff0000'>text</i></b></p>");
    cursor.setPosition(2);
    const ToolbarFormat format = toolbarFormatAt(cursor);
    QVERIFY(format.bold && format.italic && !format.underline);
    QCOMPARE(format.pointSize, 10.5);
    QCOMPARE(format.color, QColor(Qt::red));
    QCOMPARE(format.align, Qt::Alignment(Qt::AlignRight));
    QCOMPARE(format.lineSpacing, 150);
    QCOMPARE(toolbarFormatAt(QTextCursor()), ToolbarFormat());
}

QTEST_MAIN(TestEditorCore)
#include "tst_editorcore.moc"
