#include "editorfixture.h"
#include "lappconfig.h"
#include "modalanswerer.h"

#include <QClipboard>
#include <QColorDialog>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QTextBlock>

/** Formatting by real keys and clicks in the loaded plug-in. */
class TestFormatting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(loadedClient() != nullptr); }
    void flagsApplyToTheWord_data();
    void flagsApplyToTheWord();
    void boxesApplyToTheSelection();
    void sizesAndFamiliesNotOfferedAreShown();
    void movingTheCursorChangesNothing();
    void wordSpacing_data();
    void wordSpacing();
    void lineSpacing_data();
    void lineSpacing();
    void singleLineTakesNeitherReturnNorSpacing();
    void alignmentByKey_data();
    void alignmentByKey();
    void emptiedDocumentTypesInTheToolBarsLook();
    void pastedTextIsPlainAndWhite_data();
    void pastedTextIsPlainAndWhite();
    void whatCannotBeKeptIsRefused_data();
    void whatCannotBeKeptIsRefused();
    void typedGrowthIsWarnedOf();
    void typedTextIsWhatIsShown();
    void colourDialogs_data();
    void colourDialogs();
    void aCancelledColourChangesNothing();
    void backgroundIsCleared();
    void lookOfTheItemIsStored();
};

void TestFormatting::flagsApplyToTheWord_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("property");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("bold") << int(Qt::Key_B) << int(QTextFormat::FontWeight) << QVariant(75);
    QTest::newRow("italic") << int(Qt::Key_I) << int(QTextFormat::FontItalic) << QVariant(true);
    QTest::newRow("underline") << int(Qt::Key_U) << int(QTextFormat::TextUnderlineStyle)
                               << QVariant(int(QTextCharFormat::SingleUnderline));
}

void TestFormatting::flagsApplyToTheWord()
{
    QFETCH(int, key);
    QFETCH(int, property);
    QFETCH(QVariant, value);
    EditorFixture item("<p style='color:#fff'>first second third</p>");
    item.select(9, 9);
    item.key(Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(item.formatAt(6).property(property), value);
    QCOMPARE(item.formatAt(11).property(property), value);
    QVERIFY(item.formatAt(4).property(property) != value);
    QVERIFY(item.formatAt(13).property(property) != value);
    item.settle();
    QVERIFY(item.stored().contains("second</span>"));
    item.view->undo();
    QVERIFY(item.formatAt(6).property(property) != value);
    QVERIFY(!item.view->document()->isUndoAvailable());
}

void TestFormatting::boxesApplyToTheSelection()
{
    EditorFixture item("<p style='color:#fff'>one two</p>");
    item.select(0, 3);
    QComboBox *size = item.combo("comboSize");
    size->setCurrentIndex(size->findText("37"));
    QCOMPARE(item.formatAt(0).fontPointSize(), 37.0);
    QCOMPARE(item.node->GetFontSize(), 37);
    QVERIFY(item.formatAt(5).fontPointSize() != 37.0);
    QComboBox *family = item.combo("comboFont");
    QVERIFY2(family->count() > 1, "the host fills its font folder");
    const int other = family->currentIndex() == 0 ? 1 : 0;
    family->setCurrentIndex(other);
    QCOMPARE(item.formatAt(0).fontFamily(), family->itemData(other).toString());
    QCOMPARE(item.node->GetFontFamily(), family->itemData(other).toString());
}

void TestFormatting::sizesAndFamiliesNotOfferedAreShown()
{
    EditorFixture item("<p><span style=\"font-family:'No Such Font'; font-size:10.5pt\">x</span> "
                       "<span style=\"font-size:20pt\">y</span></p>");
    item.select(1, 1);
    QCOMPARE(item.combo("comboSize")->currentText(), QString("10.5"));
    QCOMPARE(item.combo("comboFont")->currentText(), QString("No Such Font (missing)"));
    const int sizes = item.combo("comboSize")->count();
    item.select(3, 3);
    QCOMPARE(item.combo("comboSize")->currentText(), QString("20"));
    QCOMPARE(item.combo("comboSize")->count(), sizes - 1);
}

void TestFormatting::movingTheCursorChangesNothing()
{
    EditorFixture item("<p>abc<span style=\"font-size:20pt; font-weight:600\">DEF</span></p>");
    const QString before = item.view->toHtml();
    const QString stored = item.node->GetRawHtmlText();
    for (int step = 0; step < 6; ++step) {
        item.key(Qt::Key_Right);
    }
    QVERIFY(item.action("actionTextBold")->isChecked());
    item.settle();
    QCOMPARE(item.view->toHtml(), before);
    QCOMPARE(item.node->GetRawHtmlText(), stored);
}

void TestFormatting::wordSpacing_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<qreal>("spacing");
    QTest::addColumn<int>("shown");

    QTest::newRow("pixels") << 5 << 5.0 << 5;
    QTest::newRow("negative counts an eighth") << -8 << -1.0 << 0;
    QTest::newRow("above the range") << 120 << 0.0 << 99;
}

void TestFormatting::wordSpacing()
{
    QFETCH(int, value);
    QFETCH(qreal, spacing);
    EditorFixture item("<p>one</p><p>two <b>three</b></p>");
    item.call("TextWordSpacingChanged", Q_ARG(int, value));
    QCOMPARE(item.formatAt(0).fontLetterSpacing(), spacing);
    QCOMPARE(item.formatAt(8).fontLetterSpacing(), spacing);
    QCOMPARE(item.formatAt(8).fontLetterSpacingType(), QFont::AbsoluteSpacing);
    QTEST(item.spin("spxWord")->value(), "shown");
    item.spin("spxWord")->setValue(7);
    QCOMPARE(item.node->GetFontSpace(), 7);
    item.settle();
    item.client->Finish();
    item.open(); // HTML does not carry it, the node does
    QCOMPARE(item.formatAt(0).fontLetterSpacing(), 7.0);
    QCOMPARE(item.spin("spxWord")->value(), 7);
}

void TestFormatting::lineSpacing_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<qreal>("height");

    QTest::newRow("percent") << 130 << 130.0;
    QTest::newRow("raised to 100") << 50 << 100.0;
}

void TestFormatting::lineSpacing()
{
    QFETCH(int, value);
    QFETCH(qreal, height);
    EditorFixture item("<p>one</p><p>two</p>");
    item.select(5, 5);
    item.call("TextLineSpacingChanged", Q_ARG(int, value));
    const QTextBlock second = item.view->document()->lastBlock();
    QCOMPARE(second.blockFormat().lineHeight(), height);
    QCOMPARE(second.blockFormat().lineHeightType(), int(QTextBlockFormat::ProportionalHeight));
    QVERIFY(second.previous().blockFormat().lineHeight() != 130.0);
    QCOMPARE(item.spin("spxLine")->value(), int(height));
}

void TestFormatting::singleLineTakesNeitherReturnNorSpacing()
{
    EditorFixture item("<p style='color:#fff'>line</p>");
    item.client->Finish();
    item.node->SetSingleMode(LTextEffectNode::SingleLine);
    item.open();
    const QString before = item.view->toHtml();
    item.key(Qt::Key_Return);
    item.key(Qt::Key_Enter);
    item.call("TextWordSpacingChanged", Q_ARG(int, 9));
    item.call("TextLineSpacingChanged", Q_ARG(int, 150));
    QCOMPARE(item.view->toHtml(), before);
    item.type("x");
    QCOMPARE(item.view->toPlainText(), QString("xline"));
}

void TestFormatting::alignmentByKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("action");
    QTest::addColumn<int>("align");

    QTest::newRow("right") << int(Qt::Key_R) << "actionAlignRight" << int(Qt::AlignRight);
    QTest::newRow("centre") << int(Qt::Key_E) << "actionAlignCenter" << int(Qt::AlignHCenter);
    QTest::newRow("justify is hidden and has a key")
        << int(Qt::Key_J) << "actionAlignJustify" << int(Qt::AlignJustify);
}

void TestFormatting::alignmentByKey()
{
    QFETCH(int, key);
    QFETCH(QString, action);
    QFETCH(int, align);
    EditorFixture item("<p>one</p>");
    item.key(Qt::Key(key), Qt::ControlModifier);
    QCOMPARE(int(item.view->alignment()), align);
    QVERIFY(item.action(action)->isChecked());
    QVERIFY(!item.action("actionAlignLeft")->isChecked());
    QCOMPARE(item.action(action)->isVisible(), align != Qt::AlignJustify);
    QCOMPARE(item.node->GetContentHAlign(), align);
}

void TestFormatting::emptiedDocumentTypesInTheToolBarsLook()
{
    EditorFixture item("<p><span style=\"font-size:28pt; color:#ff0000\">gone</span></p>");
    item.view->selectAll();
    item.key(Qt::Key_Delete);
    item.settle();
    QTextCharFormat bare; // what clearing by other means leaves
    item.view->setCurrentCharFormat(bare);
    item.combo("comboSize")->setCurrentIndex(item.combo("comboSize")->findText("24"));
    item.action("actionTextItalic")->trigger();
    item.type("new");
    item.settle();
    const QTextCharFormat typed = item.formatAt(1);
    QCOMPARE(typed.foreground().color(), QColor(Qt::white));
    QCOMPARE(typed.fontPointSize(), 24.0);
    QVERIFY(typed.fontItalic());
    QCOMPARE(item.view->document()->firstBlock().blockFormat().lineHeight(), 100.0);
}

void TestFormatting::pastedTextIsPlainAndWhite_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("multi-line") << 0 << "a\r\nb"
                                << "a\nb";
    QTest::newRow("single line") << 1 << "a\r\nb"
                                 << "ab";
    const QString odd = QString("a\t\r\v\f") + QChar(0) + QChar(0x85) + QChar(0x2029) +
                        QChar(0xfdd0) + QChar(0xfffc) + QChar(0xffff) + QChar(0xd800) + "z";
    QTest::newRow("odd characters")
        << 0 << odd << QString::fromUtf8("a\t\n\n\n\n\n\ufffd\ufffd\ufffdz");
    QTest::newRow("odd characters on a line")
        << 1 << odd << QString::fromUtf8("a\t\ufffd\ufffd\ufffdz");
    QTest::newRow("markup stays text") << 0 << "<b>&amp;</b>"
                                       << "<b>&amp;</b>";
}

void TestFormatting::pastedTextIsPlainAndWhite()
{
    QFETCH(int, mode);
    QFETCH(QString, text);
    EditorFixture item;
    item.client->Finish();
    item.node->SetSingleMode(mode);
    item.open();
    auto *data = new QMimeData;
    data->setText(text);
    data->setHtml("<table><tr><td style='color:red'>rich</td></tr></table>");
    QGuiApplication::clipboard()->setMimeData(data);
    item.key(Qt::Key_V, Qt::ControlModifier);
    QTEST(item.view->toPlainText(), "expected");
    QCOMPARE(item.formatAt(0).foreground().color(), QColor(Qt::white));
    item.settle();
    QTEST(item.node->GetPlayText(), "expected");
}

void TestFormatting::whatCannotBeKeptIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");

    QTest::newRow("10 MB") << QString("ten chars ").repeated(1024 * 1024) << "10485760 characters";
    QTest::newRow("lines") << QString("\n").repeated(20000) << "20001 lines";
    QTest::newRow("one word") << QString("x").repeated(100000) << "Put blanks into long words";
}

void TestFormatting::whatCannotBeKeptIsRefused()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    EditorFixture item("<p style='color:#ffffff'>old text</p>");
    item.select(1, 3);
    const auto *strip = item.editor->findChild<QWidget *>("NoticeStrip");
    QMimeData data;
    data.setText(text);
    const QPoint target = item.view->cursorRect().center();
    QDragEnterEvent enter(target, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(target, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QElapsedTimer timer;
    timer.start();
    QCoreApplication::sendEvent(item.view->viewport(), &enter);
    QCoreApplication::sendEvent(item.view->viewport(), &drop);
    QVERIFY(timer.elapsed() < 1000);
    item.settle();
    QVERIFY(strip->isVisible());
    const QString said = strip->findChild<QLabel *>("NoticeLabel")->text();
    QVERIFY2(said.contains(reason), qPrintable(said));
    QVERIFY(!strip->findChild<QWidget *>("EditAsPlainText")->isVisible());
    QCOMPARE(item.view->toPlainText(), QString("old text"));
    QVERIFY(!item.view->document()->isUndoAvailable());
    item.type("x");
    QVERIFY(!strip->isVisible());
    item.call("InsertCopyText", Q_ARG(QString, text));
    QVERIFY(strip->isVisible());
    LTextEffectNode other;
    item.client->Init(&other);
    QVERIFY(!strip->isVisible());
    item.client->Finish();
}

void TestFormatting::typedGrowthIsWarnedOf()
{
    EditorFixture item("<p style='color:#ffffff'>text</p>");
    const auto *strip = item.editor->findChild<QWidget *>("NoticeStrip");
    item.view->insertPlainText(QString::fromUtf8("\U0001f600").repeated(10000));
    QTRY_VERIFY(strip->isVisible());
    item.view->undo();
    QTRY_VERIFY(!strip->isVisible());
}

void TestFormatting::typedTextIsWhatIsShown()
{
    EditorFixture item("<p style='color:#ffffff'>font-size:1pt</p>");
    for (const int unit : {0, 1, 9, 0xa0, 0x2028, 0x2029, 0xd800, 0xfdd0, 0xfffc, 0xfffd, 0xffff}) {
        QTest::sendKeyEvent(QTest::Click, item.view, Qt::Key_unknown, QString(QChar(unit)),
                            Qt::NoModifier);
    }
    QInputMethodEvent composed;
    composed.setCommitString(QString("i") + QChar(0xfffc) + QChar(0xd800) + QChar(0) + "m");
    QCoreApplication::sendEvent(item.view, &composed);
    item.settle();
    QTextDocument shown;
    shown.setHtml(item.node->GetHtmlText());
    QCOMPARE(shown.toPlainText(), item.view->toPlainText());
    QVERIFY(shown.toPlainText().endsWith(QString::fromUtf8("i\ufffdmfont-size:1pt")));
}

void TestFormatting::colourDialogs_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("title");

    QTest::newRow("text") << "actionTextColor"
                          << "Text Color";
    QTest::newRow("background") << "actionTextBgcolor"
                                << "Text Background Color";
    QTest::newRow("editor") << "actionEditorBgColor"
                            << "Editor Background Color";
    QTest::newRow("stroke") << "actionStrokeColor"
                            << "Stroke Color";
}

void TestFormatting::colourDialogs()
{
    QFETCH(QString, action);
    QFETCH(QString, title);
    const QColor wanted(10, 200, 30);
    EditorFixture item("<p style='color:#0000ff'>text</p>");
    item.select(0, 4);
    ModalAnswerer answerer([&](QDialog *dialog) {
        QCOMPARE(dialog->windowTitle(), title);
        auto *colors = qobject_cast<QColorDialog *>(dialog);
        if (action == "actionTextColor") {
            QCOMPARE(colors->currentColor(), QColor(0, 0, 255));
        }
        colors->setCurrentColor(wanted);
        colors->accept();
    });
    item.action(action)->trigger();
    QVERIFY(answerer.wasAsked());
    QCOMPARE(QColorDialog::customColor(0), wanted);
    item.settle();
    const int packed = LAppConfig::ColorToInt(wanted);
    QCOMPARE(item.formatAt(0).foreground().color() == wanted, action == "actionTextColor");
    QCOMPARE(item.formatAt(0).background().color() == wanted, action == "actionTextBgcolor");
    QCOMPARE(item.node->GetEditBgColor() == packed, action == "actionEditorBgColor");
    QCOMPARE(item.node->GetUseStroke() != 0 && item.node->GetStrokeColor() == packed,
             action == "actionStrokeColor");
}

void TestFormatting::aCancelledColourChangesNothing()
{
    EditorFixture item("<p style='color:#0000ff'>text</p>");
    const QStringList names{"actionTextColor", "actionTextBgcolor", "actionEditorBgColor",
                            "actionStrokeColor"};
    const QString before = item.view->toHtml();
    for (const QString &name : names) {
        ModalAnswerer answerer([](QDialog *dialog) { dialog->reject(); });
        item.action(name)->trigger();
        QVERIFY(answerer.wasAsked());
    }
    QCOMPARE(item.view->toHtml(), before);
    QCOMPARE(item.node->GetUseStroke(), 0);
    QCOMPARE(item.node->GetEditBgColor(), 0);
}

void TestFormatting::backgroundIsCleared()
{
    EditorFixture item("<p><span style='background-color:#00ff00; color:#ffffff'>green</span> "
                       "plain</p>");
    item.select(1, 3);
    item.action("actionClearTextBgcolor")->trigger();
    QVERIFY(item.formatAt(0).hasProperty(QTextFormat::BackgroundBrush));
    QVERIFY(!item.formatAt(1).hasProperty(QTextFormat::BackgroundBrush));
    QVERIFY(item.formatAt(4).hasProperty(QTextFormat::BackgroundBrush));
    QCOMPARE(item.formatAt(1).foreground().color(), QColor(Qt::white));
}

void TestFormatting::lookOfTheItemIsStored()
{
    EditorFixture item("<p style='color:#ffffff'>text</p>");
    const QString stored = item.node->GetRawHtmlText();
    int redraws = 0;
    connect(item.node.get(), &LEffectNode::ReDrawRequested, this, [&redraws] { ++redraws; });
    item.action("actionUseHollow")->trigger();
    QVERIFY(item.node->GetUseHollow() != 0);
    item.action("actionTransBgColor")->trigger();
    QVERIFY(item.node->GetTransBgColor());
    item.action("actionContentAlignTop")->trigger();
    QCOMPARE(item.node->GetContentAlign(), int(Qt::AlignTop));
    item.node->SetUseStroke(1);
    item.action("actionClearStroke")->trigger();
    QCOMPARE(item.node->GetUseStroke(), 0);
    QCOMPARE(redraws, 4);
    QCOMPARE(item.node->GetRawHtmlText(), stored);
    item.client->Finish();
    item.open();
    QVERIFY(item.action("actionUseHollow")->isChecked());
    QVERIFY(item.action("actionTransBgColor")->isChecked());
    QVERIFY(item.action("actionContentAlignTop")->isChecked());
}

QTEST_MAIN(TestFormatting)
#include "tst_formatting.moc"
