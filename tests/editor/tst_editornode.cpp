#include "datasourceconfigmanager.h"
#include "editorfixture.h"
#include "lscreennode.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/stat.h>

/** What the editor reads from a node and writes to it, through the loaded plug-in. */
class TestEditorNode : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void slotsAndSignalsArePromised_data();
    void slotsAndSignalsArePromised();
    void anEditReachesTheNode();
    void loadingWritesNothing();
    void aNewItemStartsWhiteAndUntouched();
    void theToolBarShowsTheNode();
    void theToolBarShowsTheStartOfALoadedText();
    void rebindingKeepsWhatWasTyped();
    void aReturningAnnouncementDoesNotRecur();
    void theBindingGoesAndComesWithTheTable();
    void brokenDocumentsAreKept_data();
    void brokenDocumentsAreKept();
    void aDeletedNodeIsLetGo();
    void pagesComeFromFilesFirst();
    void pagePositionIsClamped();

private:
    QStringList m_dead;
};

void TestEditorNode::initTestCase()
{
    const DeadConnections catcher;
    QVERIFY(loadedClient() != nullptr);
    EditorFixture item("<p>text</p>");
    m_dead = DeadConnections::found();
    QCOMPARE(m_dead, QStringList());
}

void TestEditorNode::slotsAndSignalsArePromised_data()
{
    QTest::addColumn<QByteArray>("signature");

    const QList<QByteArray> promised = {
        "DocumentHasTable(bool)",
        "TableBindFieldChanged()",
        "PageChanged(uint,uint)",
        "OnSourceChanged()",
        "OnFieldChanged()",
        "OnTableInfoChange(LUM_EditInterface::LTableProperties)",
        "Translate()",
        "InsertCopyText(QString)",
        "InsertTable()",
        "ModfTablePropertiesed(LUM_EditInterface::LTableProperties*)",
        "TableSplitCell(bool)",
        "mergeFormatOnWordOrSelection(QTextCharFormat)",
        "TextFontNameChanged(QString)",
        "TextFontSizeChanged(uint)",
        "TextColorChanged(uint)",
        "TextBackgroundColorChanged(uint)",
        "EditBackgroundColorChanged(uint)",
        "TextHAlignmentChanged(uint)",
        "TextVAlignmentChanged(uint)",
        "TextBoldFlagChanged(bool)",
        "TextItalicFlagChanged(bool)",
        "TextUnderlineFlagChanged(bool)",
        "TextWordSpacingChanged(int)",
        "TextLineSpacingChanged(int)",
        "TextDrawImage()",
        "EditFocusOut()",
        "EditFocusIn()",
        "TableMenuShow()",
        "TablePropModfy()",
        "TableOperate()",
        "SetEditFocus()",
        "textFamily(QString)",
        "textSize(QString)",
        "textColor()",
        "textBold()",
        "textUnderline()",
        "textItalic()",
        "TextBgcolor()",
        "ClearTextBgcolor()",
        "EditorBgColor()",
        "TransBgColor()",
        "textAlign(QAction*)",
        "textVAlign(QAction*)",
        "TextChanged()",
        "CursorPositionFontStatusMarked()",
        "ON_VerticalStretch()",
        "UseHollow()",
        "StrokeColor()",
        "ClearStrokeColor()",
        "WordSpacingChanged(int)",
        "LineSpacingChanged(int)",
        "ONDataSourceNameChanged(QAction*)",
        "ONFieldNameChanged(QAction*)",
        "ONConditionStyleChanged(QAction*)",
        "ONInsertFieldNameChanged(QString)",
        "ApplyFormatAndInsert(QString)",
        "CopyAction()",
        "PasteAction()",
        "UpdateBindKeys()",
        "ConvertText(int)",
        "performSmartMerge()"};
    for (const QByteArray &signature : promised) {
        QTest::newRow(signature) << signature;
    }
}

void TestEditorNode::slotsAndSignalsArePromised()
{
    QFETCH(QByteArray, signature);
    const auto *editor = loadedClient()->GetClient()->findChild<QWidget *>("wgtTextEditor");
    const QMetaObject *meta = editor->metaObject();
    QCOMPARE(meta->className(), "TextEdit");
    const int index = meta->indexOfMethod(signature);
    QVERIFY(index >= 0);
    const bool isSignal = signature.startsWith("DocumentHas") || signature.startsWith("TableBind");
    QCOMPARE(meta->method(index).methodType(), isSignal ? QMetaMethod::Signal : QMetaMethod::Slot);
}

void TestEditorNode::anEditReachesTheNode()
{
    EditorFixture item("<p><span style=\"font-size:10.5pt; color:#ffffff\">old</span></p>");
    QStringList order;
    item.node->SetTableRowBindKey("left.over");
    connect(item.node.get(), &LData::AttributeChanged, this, [&order](const QString &key) {
        if (!key.startsWith("Table")) {
            order.append(key);
        }
    });
    connect(DataSourceConfigManager::instance(), &DataSourceConfigManager::ConfigChanged,
            item.node.get(),
            [&] { order.append("config after " + item.node->GetTableRowBindKey()); });
    connect(item.node.get(), &LTextEffectNode::PreviewCacheChanged, this,
            [&order] { order.append("preview"); });
    connect(item.node.get(), &LEffectNode::ReDrawRequested, this,
            [&order] { order.append("redraw"); });
    item.type("n");
    QCOMPARE(order, QStringList()); // not within the key
    item.settle();
    QCOMPARE(order, QStringList({"StringContent", "config after ", "StringContent", "RawHtml",
                                 "PlayText", "Html", "preview", "redraw"}));
    QCOMPARE(item.node->GetPlayText(), QString("nold"));
    QCOMPARE(item.stored(), item.view->toHtml());
    QVERIFY(item.stored().contains("font-size:10.5pt"));
    QVERIFY(item.node->GetHtmlText().contains("font-size:10.5px"));
    QCOMPARE(item.node->PreviewCache().size(), QSize(256, 64));
    order.clear();
    QTest::qWait(300);
    QCOMPARE(order, QStringList()); // silence
}

void TestEditorNode::loadingWritesNothing()
{
    EditorFixture item;
    item.client->Finish();
    // Not what the editor itself would write, but the user's all the same.
    item.store("<B>as somebody else wrote it</B>");
    const QString raw = item.node->GetRawHtmlText();
    QStringList changed;
    connect(item.node.get(), &LData::AttributeChanged, this,
            [&changed](const QString &key) { changed.append(key); });
    item.open();
    item.key(Qt::Key_End);
    item.action("actionUseHollow")->trigger();
    item.settle();
    QCOMPARE(changed, QStringList{"UseHollow"});
    item.type("edited");
    item.settle();
    QVERIFY(item.node->GetRawHtmlText() != raw);
    item.view->undo();
    item.settle();
    QCOMPARE(item.node->GetRawHtmlText(), raw);
    item.client->Finish();
    QCOMPARE(item.node->GetRawHtmlText(), raw);
}

void TestEditorNode::aNewItemStartsWhiteAndUntouched()
{
    EditorFixture item;
    QVERIFY(item.node->HasAttribute("Html"));
    QVERIFY(!item.node->HasAttribute("RawHtml"));
    QVERIFY(!item.view->document()->isUndoAvailable());
    item.type("hello");
    QCOMPARE(item.formatAt(0).foreground().color(), QColor(Qt::white));
    QCOMPARE(item.combo("comboSize")->currentText(), QString("16"));
    item.settle();
    QVERIFY(item.stored().contains("font-size:16pt"));
    QCOMPARE(item.view->textCursor().blockFormat().lineHeight(), 100.0);
}

void TestEditorNode::theToolBarShowsTheNode()
{
    EditorFixture item;
    item.client->Finish();
    item.node->SetFontFamily("Nowhere Sans");
    item.node->SetFontSize(44);
    item.node->SetContentAlign(Qt::AlignBottom);
    item.node->SetContentHAlign(Qt::AlignHCenter);
    item.node->SetUseHollow(1);
    item.node->SetTransBgColor(true);
    item.node->SetFontSpace(3);
    item.open();
    QCOMPARE(item.combo("comboFont")->currentText(), QString("Nowhere Sans (missing)"));
    QCOMPARE(item.combo("comboSize")->currentText(), QString("44"));
    QVERIFY(item.action("actionContentAlignBottom")->isChecked());
    QVERIFY(item.action("actionAlignCenter")->isChecked());
    QVERIFY(item.action("actionUseHollow")->isChecked());
    QVERIFY(item.action("actionTransBgColor")->isChecked());
    item.type("x");
    item.settle();
    QVERIFY(item.stored().contains("font-family:'Nowhere Sans'; font-size:44pt"));
    QCOMPARE(int(item.view->alignment()), int(Qt::AlignHCenter));
}

void TestEditorNode::theToolBarShowsTheStartOfALoadedText()
{
    EditorFixture item;
    item.client->Finish();
    item.store("<p align=right><span style=\"font-size:15pt; color:#ff0000\">red</span></p>");
    item.node->SetHtmlText(QString()); // as a programme written by hand has it
    item.open();
    QCOMPARE(item.combo("comboSize")->currentText(), QString("15"));
    QVERIFY(item.action("actionAlignRight")->isChecked());
    const QString family = item.combo("comboFont")->currentText();
    QVERIFY2(!family.contains("missing"), qPrintable(family));
    item.type("x");
    QCOMPARE(item.formatAt(0).foreground().color(), QColor(Qt::red));
}

void TestEditorNode::rebindingKeepsWhatWasTyped()
{
    EditorFixture item("<p style='color:#fff'>first</p>");
    LTextEffectNode other;
    other.SetSize(QSize(100, 50));
    item.type("typed ");
    item.client->Init(&other); // before the queued change arrived
    item.settle();
    QCOMPARE(item.node->GetPlayText(), QString("typed first"));
    QVERIFY(!other.HasAttribute("RawHtml"));
    QCOMPARE(item.view->toPlainText(), QString());
    item.client->Finish();
}

void TestEditorNode::aReturningAnnouncementDoesNotRecur()
{
    EditorFixture item("<p style='color:#fff'>first</p>");
    int depth = 0;
    int deepest = 0;
    connect(item.node.get(), &LData::AttributeChanged, item.editor, [&] {
        deepest = qMax(deepest, ++depth);
        item.call("TextChanged");
        item.call("TextDrawImage");
        --depth;
    });
    int announced = 0;
    int nested = 0;
    const auto announce = [&] {
        ++announced;
        deepest = qMax(deepest, ++nested);
        item.call("TextDrawImage");
        --nested;
    };
    auto *manager = DataSourceConfigManager::instance();
    connect(manager, &DataSourceConfigManager::ConfigChanged, item.node.get(), announce);
    connect(manager, &DataSourceConfigManager::SourceChanged, item.node.get(), announce);
    item.type("x");
    item.settle();
    QCOMPARE(deepest, 1);
    QCOMPARE(announced, 2); // one of each kind
    QCOMPARE(item.node->GetPlayText(), QString("xfirst"));
}

void TestEditorNode::theBindingGoesAndComesWithTheTable()
{
    EditorFixture item("<table border='1' width='200'><tr><td>a</td><td>b</td></tr></table>");
    item.node->SetTableType(1);
    item.node->SetTableBindKey("s:list[]");
    item.node->SetTableRowBindKey("s:list[]");
    item.type("x");
    item.settle();
    QVERIFY(item.node->GetHtmlText().contains("dataSourceKey=\"s:list[]\""));
    QVERIFY(item.node->GetHtmlText().contains("<td style=\" border:1px solid"));
    QVERIFY(!item.stored().contains("dataSourceKey"));
    for (int storm = 0; storm < 1000; ++storm) {
        emit DataSourceConfigManager::instance()->ConfigChanged();
    }
    QCOMPARE(item.node->GetTableRowBindKey(), QString("s:list[]"));
    item.view->selectAll();
    item.key(Qt::Key_Delete);
    item.settle();
    QCOMPARE(item.node->GetTableRowBindKey(), QString());
    item.view->undo();
    item.settle();
    QCOMPARE(item.node->GetTableRowBindKey(), QString("s:list[]"));
    QCOMPARE(item.node->GetTableBindKey(), QString("s:list[]"));
    QVERIFY(item.node->GetHtmlText().contains("dataSourceKey=\"s:list[]\""));
}

void TestEditorNode::brokenDocumentsAreKept_data()
{
    QTest::addColumn<QString>("raw");
    QTest::addColumn<QString>("notice");

    QTest::newRow("not Base64") << "@@@@"
                                << "cannot be read";
    QTest::newRow("not UTF-8") << QString(QByteArray("\xff\xfe\xfd").toBase64())
                               << "cannot be read";
    QTest::newRow("too deep") << QString((QByteArray("<table><tr><td>").repeated(40)).toBase64())
                              << "cannot be shown";
}

void TestEditorNode::brokenDocumentsAreKept()
{
    QFETCH(QString, raw);
    QFETCH(QString, notice);
    EditorFixture item;
    item.client->Finish();
    item.node->SetRawHtmlText(raw);
    item.node->SetPlayText("what it <said>");
    item.open();
    auto *label = item.editor->findChild<QLabel *>("NoticeLabel");
    QVERIFY(label->isVisible());
    QVERIFY2(label->text().contains(notice), qPrintable(label->text()));
    QCOMPARE(item.view->toPlainText(), QString("what it <said>"));
    item.type("lost?");
    item.call("TextBoldFlagChanged", Q_ARG(bool, true));
    item.key(Qt::Key_R, Qt::ControlModifier);
    item.key(Qt::Key_J, Qt::ControlModifier);
    QCOMPARE(item.node->GetContentHAlign(), int(Qt::AlignLeft));
    item.settle();
    item.client->Finish();
    QCOMPARE(item.node->GetRawHtmlText(), raw);
    item.open();
    QTest::mouseClick(item.editor->findChild<QPushButton *>("EditAsPlainText"), Qt::LeftButton);
    QVERIFY(!label->isVisible());
    item.type("now ");
    item.settle();
    QCOMPARE(item.node->GetPlayText(), QString("now what it <said>"));
}

void TestEditorNode::aDeletedNodeIsLetGo()
{
    EditorFixture item("<p style='color:#fff'>text</p>");
    item.type("waiting");
    item.node.reset(); // the queued change still waits
    item.type("more");
    item.settle();
    QCOMPARE(item.view->toPlainText(), QString());
    item.call("TextBoldFlagChanged", Q_ARG(bool, true));
    item.call("UseHollow");
    item.call("PageChanged", Q_ARG(uint, 2), Q_ARG(uint, 3));
    QVERIFY(item.view->isReadOnly());
}

void TestEditorNode::pagesComeFromFilesFirst()
{
    EditorFixture item("<p style='color:#ffffff'>text</p>");
    QTemporaryDir folder;
    QImage page(256, 64, QImage::Format_ARGB32);
    page.fill(Qt::green);
    const auto path = [&folder](const QString &name, const QByteArray &bytes) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(bytes);
        }
        return file.fileName();
    };
    const QString png = folder.filePath("1.png");
    const QString bmp = folder.filePath("1.bmp");
    QVERIFY(page.save(png) && page.save(bmp));
    QFile picture(bmp);
    QVERIFY(picture.open(QIODevice::ReadWrite));
    picture.seek(18);
    picture.write(QByteArray::fromHex("3075000030750000")); // 30000 x 30000
    picture.close();
    const QString pipe = folder.filePath("pipe.png");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QStringList noPages = {folder.filePath("gone.png"),
                                 folder.path(),
                                 pipe,
                                 bmp,
                                 "/dev/zero",
                                 path("empty.png", ""),
                                 path("text.png", "text"),
                                 path("a.svg", "<svg width='256' height='64'/>")};
    item.node->SetFilePath("DynamicData", QStringList(png) + noPages);
    const auto redraw = [&item] {
        item.action("actionUseHollow")->trigger();
        item.action("actionUseHollow")->trigger();
        return item.node->PreviewCache().pixelColor(200, 60) == QColor(Qt::green);
    };
    QVERIFY(redraw());
    for (int i = 0; i < noPages.size(); ++i) {
        item.call("PageChanged", Q_ARG(uint, uint(i) + 2), Q_ARG(uint, 99));
        QElapsedTimer timer;
        timer.start();
        QVERIFY2(!redraw(), qPrintable(noPages.at(i)));
        QVERIFY2(timer.elapsed() < 500, qPrintable(noPages.at(i)));
        QCOMPARE(item.node->PreviewCache().size(), QSize(256, 64)); // the top, not nothing
    }
}

void TestEditorNode::pagePositionIsClamped()
{
    EditorFixture item("<p>text</p>");
    QSignalSpy played(item.node.get(), &LTextEffectNode::PlayIndexChanged);
    item.call("PageChanged", Q_ARG(uint, 5), Q_ARG(uint, 3));
    QCOMPARE(item.node->GetCurrentPage(), 3);
    QCOMPARE(item.node->GetPageCount(), 3);
    QCOMPARE(played.size(), 1);
    item.call("PageChanged", Q_ARG(uint, 3), Q_ARG(uint, 3));
    QCOMPARE(played.size(), 1);
}

QTEST_MAIN(TestEditorNode)
#include "tst_editornode.moc"
