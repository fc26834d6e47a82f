// The commands that convert a whole text, in the loaded plug-in.

#include "editorfixture.h"
#include "modalanswerer.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QTextBlock>

namespace {

enum Type { Invert, Swap, Antialias };

const char Text[] = "<p><span style='color:#000000'>black</span> <b>bold</b></p><p></p>"
                    "<table><tr><td><font color='#0a64fe'>cell</font></td></tr></table>"
                    "<p><img src='data://bindKey/a/b.png'><font color='#ffffff'>white</font></p>";

QString paragraphs(int count)
{
    return QStringLiteral("<p>one <b>two</b> <font color='#0a0b0c'>three</font></p>")
        .repeated(count);
}

bool canConvert(const EditorFixture &item)
{
    bool can = false;
    QMetaObject::invokeMethod(item.editor, "CanConvertText", Q_RETURN_ARG(bool, can));
    return can;
}

/** Runs a conversion to its end. */
void convert(const EditorFixture &item, Type type)
{
    item.call("ConvertText", Q_ARG(int, type));
    QTRY_VERIFY(canConvert(item));
    EditorFixture::settle();
}

QWidget *progressWindow()
{
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->objectName() == "TextProgressWidget" && window->isVisible();
    });
    return found == windows.end() ? nullptr : *found;
}

/** The colours that letters have, in their order. */
QStringList colors(const EditorFixture &item)
{
    QStringList names;
    for (QTextBlock block = item.view->document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            names += format.hasProperty(QTextFormat::ForegroundBrush)
                         ? format.foreground().color().name()
                         : QString();
        }
    }
    return names;
}

int pageColors(const EditorFixture &item)
{
    const QImage page = item.node->PreviewCache();
    QSet<QRgb> found;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            found.insert(page.pixel(x, y));
        }
    }
    return found.size();
}

} // namespace

class ItemConversionTest : public QObject
{
    Q_OBJECT

private slots:
    void colorsAreOneStep_data();
    void colorsAreOneStep();
    void besideATable();
    void unchangedIsNoStep();
    void antialiasingIsTheItems();
    void isStopped_data();
    void isStopped();
    void editedMeanwhile();
    void keptDocument();
};

void ItemConversionTest::colorsAreOneStep_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("invert") << int(Invert) << QStringList{"#ffffff", "#ffffff", "#ffffff",
                                                          "#f59b01", "",        "#000000"};
    QTest::newRow("swap") << int(Swap)
                          << QStringList{"#ffffff", "#ffffff", "#ffffff", "#0a64fe", "", "#000000"};
}

void ItemConversionTest::colorsAreOneStep()
{
    QFETCH(int, type);
    EditorFixture item(Text);
    item.client->Finish();
    item.node->SetFontSpace(3); // HTML does not carry it
    item.open();
    const QString before = item.node->GetRawHtmlText();
    item.select(1, 4);

    convert(item, Type(type));
    QTEST(colors(item), "expected");
    QCOMPARE(item.formatAt(0).fontLetterSpacing(), 3.0);
    QCOMPARE(item.view->textCursor().selectedText(), QString("lac"));
    QVERIFY(item.stored().contains("#ffffff"));
    QVERIFY(!item.view->isReadOnly());
    item.view->undo();
    QVERIFY(!item.view->document()->isUndoAvailable());
    item.settle();
    QCOMPARE(item.node->GetRawHtmlText(), before);
    item.view->redo();
    QTEST(colors(item), "expected");
}

/** Qt's HTML leaves out an empty paragraph behind a table. */
void ItemConversionTest::besideATable()
{
    EditorFixture item;
    item.view->textCursor().insertTable(1, 1);
    item.view->moveCursor(QTextCursor::End);
    item.key(Qt::Key_Return);
    item.type("caption");
    item.settle();
    const QString before = item.view->toHtml();
    convert(item, Invert);
    QCOMPARE(colors(item), QStringList{"#000000"});
    item.view->undo();
    QCOMPARE(item.view->toHtml(), before);
}

void ItemConversionTest::unchangedIsNoStep()
{
    EditorFixture item("<p><font color='#808080'>grey</font></p>");
    QSignalSpy changes(item.view, &QTextEdit::textChanged);
    convert(item, Swap);
    QCOMPARE(changes.count(), 0);
    QVERIFY(!item.view->document()->isUndoAvailable());
    convert(item, Invert);
    QCOMPARE(changes.count(), 1);
    item.view->undo();
    item.settle();
    QCOMPARE(colors(item), QStringList{"#808080"});
    convert(item, Type(7));
    QCOMPARE(changes.count(), 2);
}

void ItemConversionTest::antialiasingIsTheItems()
{
    EditorFixture item("<p><font size='6' color='#ffffff'>Wave <b>Q</b></font></p>");
    item.type("x");
    item.settle();
    QVERIFY(pageColors(item) > 2);

    convert(item, Antialias);
    QVERIFY(!item.node->GetTextAntialias());
    item.type("typed");
    item.settle();
    QCOMPARE(pageColors(item), 2);
    item.call("ApplyFormatAndInsert", Q_ARG(QString, "s:f"));
    item.settle();
    QCOMPARE(pageColors(item), 3); // a field without a value is dimmed
    item.client->Finish();
    item.open();
    item.type("y");
    item.settle();
    QCOMPARE(pageColors(item), 3);
    item.view->undo();
    item.settle();
    item.call("ConvertText", Q_ARG(int, Antialias)); // at once
    QVERIFY(item.node->GetTextAntialias());
    QVERIFY(pageColors(item) > 2);
    QVERIFY(item.view->document()->isRedoAvailable());
}

void ItemConversionTest::isStopped_data()
{
    QTest::addColumn<int>("how");
    QTest::addColumn<int>("type");
    for (const int type : {int(Invert), int(Antialias)}) {
        QTest::addRow("finish %d", type) << 0 << type;
        QTest::addRow("node deleted %d", type) << 1 << type;
        QTest::addRow("bound anew %d", type) << 2 << type;
    }
    QTest::newRow("window destroyed, then finish") << 3 << int(Invert);
    QTest::newRow("by the user") << 4 << int(Invert);
}

void ItemConversionTest::isStopped()
{
    QFETCH(int, how);
    QFETCH(int, type);
    EditorFixture item(paragraphs(how < 3 ? 2000 : 12000));
    const QString before = item.node->GetRawHtmlText();
    item.call("ConvertText", Q_ARG(int, type));
    QVERIFY(item.view->isReadOnly() && !canConvert(item));
    QCOMPARE(progressWindow(), nullptr); // a short one shows nothing
    if (how == 1) {
        item.node.reset();
        QVERIFY(item.view->isReadOnly());
    } else if (how == 2) {
        item.client->Finish();
        item.open();
        QVERIFY(!item.view->isReadOnly());
    } else if (how >= 3) {
        QTRY_VERIFY(progressWindow() != nullptr);
        if (how == 3) {
            delete progressWindow();
            item.client->Finish();
        } else {
            ModalAnswerer answerer([](QDialog *question) {
                qobject_cast<QMessageBox *>(question)->button(QMessageBox::Yes)->click();
            });
            progressWindow()->close();
            QVERIFY(answerer.wasAsked());
            QVERIFY(canConvert(item));
        }
    } else {
        item.client->Finish();
    }
    QTest::qWait(how < 3 ? 200 : 800); // more than the thread needs
    QCOMPARE(progressWindow(), nullptr);
    if (item.node != nullptr) {
        QCOMPARE(item.node->GetRawHtmlText(), before);
        QVERIFY(item.node->GetTextAntialias());
    }
}

void ItemConversionTest::editedMeanwhile()
{
    EditorFixture item(Text);
    item.call("ConvertText", Q_ARG(int, Invert));
    QTextCursor(item.view->document()).insertText("by the host"); // past the view
    const QStringList before = colors(item);
    QTRY_VERIFY(canConvert(item));
    QCOMPARE(colors(item), before);
    auto *notice = item.editor->findChild<QLabel *>("NoticeLabel");
    QVERIFY(notice->isVisible() && notice->text().contains("meanwhile"));
    QVERIFY(!item.editor->findChild<QPushButton *>("EditAsPlainText")->isVisible());
    item.type("a");
    item.settle();
    QVERIFY(!notice->isVisible());
}

void ItemConversionTest::keptDocument()
{
    EditorFixture item(Text);
    item.client->Finish();
    item.node->SetRawHtmlText("no Base64");
    item.open();
    QVERIFY(!canConvert(item));
    item.call("ConvertText", Q_ARG(int, Invert));
    item.settle();
    QVERIFY(!canConvert(item));
    QCOMPARE(item.node->GetRawHtmlText(), QString("no Base64"));
}

QTEST_MAIN(ItemConversionTest)
#include "tst_itemconversion.moc"
