#include "datasourceconfigmanager.h"
#include "fielddrag.h"
#include "ltexteffectnode.h"
#include "textedit.h"

#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextTable>
#include <QtTest>

#include <memory>

namespace {

DataSourceConfigManager *manager()
{
    return DataSourceConfigManager::instance();
}

QString tableHtml(int rows, int columns)
{
    const QString row = "<tr>" + QString("<td>old</td>").repeated(columns) + "</tr>";
    return "<p>before</p><table border=1>" + row.repeated(rows) + "</table><p>behind</p>";
}

} // namespace

/** A table that is bound to data, through the editor. */
class TestTableBinding : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void placeholders_data();
    void placeholders();
    void writesOnce();
    void mergedCellsAreWrittenOnce();
    void templatesFollow();
    void templatesFollowUndo();
    void commandsOfTheInterface();
    void fieldsSurvive();
    void droppedFieldIsStored();

private:
    void open(const QString &html);
    void bind(int type, bool hasHeader, const QString &key);
    [[nodiscard]] QTextTable *table() const;
    [[nodiscard]] QString texts() const;

    std::unique_ptr<LTextEffectNode> m_node;
    std::unique_ptr<TextEdit> m_editor;
    QTextEdit *m_view = nullptr;
};

void TestTableBinding::init()
{
    DataSourceEntry source;
    source.name = "s";
    source.type = 1;
    source.keys = {{"text", 1, "1,2"}, {"list", 2, "1"}};
    DataSourceEntry clock = source;
    clock.name = "clock";
    clock.type = 5;
    DataSourceConfig config;
    config.sources = {source, clock};
    manager()->SetConfig(config);
    m_node = std::make_unique<LTextEffectNode>();
    m_node->SetSize(QSize(256, 64));
    m_editor = std::make_unique<TextEdit>();
    m_view = m_editor->findChild<QTextEdit *>("RichView");
}

void TestTableBinding::cleanup()
{
    m_editor.reset();
}

void TestTableBinding::open(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    m_node->SetHtmlText(document.toHtml());
    m_node->SetRawHtmlText(QString::fromLatin1(document.toHtml().toUtf8().toBase64()));
    m_editor->Init(m_node.get());
}

void TestTableBinding::bind(int type, bool hasHeader, const QString &key)
{
    m_node->SetTableType(type);
    m_node->SetTableHeader(hasHeader);
    m_node->SetTableFixedBindKey(key);
    m_node->SetTableRowBindKey(key);
    m_node->SetTableColBindKey(key);
    m_node->SetTableAdaptRowsColsBindKey(key);
    m_editor->OnFieldChanged();
    QCoreApplication::processEvents(); // the text change is followed later
}

QTextTable *TestTableBinding::table() const
{
    const QList<QTextFrame *> frames = m_view->document()->rootFrame()->childFrames();
    return frames.isEmpty() ? nullptr : qobject_cast<QTextTable *>(frames.first());
}

/** Cells between "|", rows between "/". */
QString TestTableBinding::texts() const
{
    QStringList rows;
    for (int row = 0; row < table()->rows(); ++row) {
        QStringList cells;
        for (int column = 0; column < table()->columns(); ++column) {
            cells << table()->cellAt(row, column).firstCursorPosition().block().text();
        }
        rows << cells.join('|');
    }
    return rows.join('/');
}

void TestTableBinding::placeholders_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("hasHeader");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("separator");

    const auto row = [](const char *name, int type, bool hasHeader, const char *key,
                        const char *expected, const char *separator = "\n") {
        QTest::newRow(name) << type << hasHeader << key << expected << separator;
    };
    row("fields", 1, true, "s:list.{a,b}[]", "old|old|old/${a}|${b}|old/old|old|old");
    row("more fields than cells", 0, false, "s:rec.{a,b.c,,d}",
        "${a}|${b.c}|${}/old|old|old/old|old|old");
    row("numbers", 1, false, "s:x[][]", "${0}|${1}|${2}/old|old|old/old|old|old");
    row("one value", 1, false, "s:text", "${0}|old|old/old|old|old/old|old|old", ",");
    row("unknown value", 0, true, "s:other", "old|old|old/${0}|old|old/old|old|old");
    row("list of values", 1, false, "s:list", "${0}|${1}|${2}/old|old|old/old|old|old");
    row("system value", 1, false, "clock:list", "${0}|old|old/old|old|old/old|old|old");
    row("columns with names", 2, true, "s:r.{a,b}[]", "old|${a}|old/old|${b}|old/old|old|old");
    row("columns without names", 2, false, "s:r.{a,b}[]", "${0}|old|old/${1}|old|old/${2}|old|old");
    row("column of one value", 2, true, "s:text", "old|${0}|old/old|old|old/old|old|old", ",");
    row("both ways", 3, true, "s:text", "${i}|${i}|${i}/old|old|old/old|old|old", ",");
    row("refused", 1, false, "a..b", "${0}|old|old/old|old|old/old|old|old");
    row("no key", 1, false, "", "old|old|old/old|old|old/old|old|old");
}

void TestTableBinding::placeholders()
{
    QFETCH(bool, hasHeader);
    QFETCH(QString, key);
    QFETCH(int, type);
    open(tableHtml(3, 3));
    const QSignalSpy bound(m_editor.get(), &TextEdit::TableBindFieldChanged);
    bind(type, hasHeader, key);
    QTEST(texts(), "expected");
    QTEST(m_node->GetTableListTypeSeparator(), "separator");
    QCOMPARE(bound.size(), 1);
}

void TestTableBinding::writesOnce()
{
    open(tableHtml(2, 2));
    m_editor->findChild<QAction *>("actionTextBold")->setChecked(true);
    m_editor->TextFontSizeChanged(0);
    bind(1, false, "s:x[][]");
    QTextCursor cell = table()->cellAt(0, 1).firstCursorPosition();
    cell.movePosition(QTextCursor::NextCharacter);
    QCOMPARE(cell.charFormat().fontWeight(), int(QFont::Bold));
    QCOMPARE(cell.charFormat().foreground().color(), QColor(Qt::white));
    QVERIFY(m_node->GetHtmlText().contains("${1}"));

    const int steps = m_view->document()->availableUndoSteps();
    const int revision = m_view->document()->revision();
    m_editor->OnFieldChanged();
    QCOMPARE(m_view->document()->revision(), revision);
    m_view->undo();
    QCOMPARE(texts(), QString("old|old/old|old"));
    m_view->redo();
    QCOMPARE(m_view->document()->availableUndoSteps(), steps);

    // Of a format that is stored and read again nothing is written either.
    m_editor->Init(m_node.get());
    cell = table()->cellAt(0, 1).lastCursorPosition();
    m_view->setTextCursor(cell); // the tool bar follows
    const int loaded = m_view->document()->revision();
    m_editor->OnFieldChanged();
    QCOMPARE(m_view->document()->revision(), loaded);
}

void TestTableBinding::mergedCellsAreWrittenOnce()
{
    open("<table><tr><td>a</td><td rowspan=2>b</td><td>c</td><td>c</td></tr>"
         "<tr><td>d</td><td colspan=2>e</td></tr></table>");
    bind(1, true, "s:list.{a,b,c,d}[]");
    QCOMPARE(texts(), QString("a|b|c|c/${a}|b|${c}|${c}"));
}

void TestTableBinding::templatesFollow()
{
    open(tableHtml(2, 2));
    bind(1, true, "s:list.{a,b}[]");
    QVERIFY(m_node->GetTableRowTemplate().startsWith("<tr>"));
    QVERIFY(m_node->GetTableRowTemplate().contains("${b}"));
    const QString token = m_node->GetTableRowPlaceHolder();
    QVERIFY(m_node->GetStringContent().contains("${" + token + "}"));
    QVERIFY(m_node->GetHtmlText().contains("dataSourceKey=\"s:list.{a,b}[]\""));

    m_editor->TextDrawImage(); // nothing changed
    QCOMPARE(m_node->GetTableRowPlaceHolder(), token);

    LUM_EditInterface::LTableProperties record = m_node->GetTableProperties();
    record.type = 2;
    record.header = false;
    m_editor->OnTableInfoChange(record);
    QVERIFY(m_node->GetTableRowTemplate().isEmpty());
    const QStringList cells =
        m_node->GetTableColTemplate().split(m_node->GetTableColTemplateSeparator());
    QCOMPARE(cells.size(), 2);
    QVERIFY(m_node->GetStringContent().contains("${" + m_node->GetTableColPlaceHolder() + "}"));

    bind(2, false, ""); // unbound: the table stays in the content
    QVERIFY(m_node->GetTableColTemplate().isEmpty());
    QCOMPARE(m_node->GetStringContent(), m_node->GetHtmlText());

    bind(0, false, "s:x[][]");
    m_view->selectAll();
    m_view->textCursor().removeSelectedText();
    QVERIFY(table() == nullptr);
    QCoreApplication::processEvents();
    QVERIFY(m_node->GetTableFixedTemplate().isEmpty() && m_node->GetTableFixedBindKey().isEmpty());
    QCOMPARE(m_node->GetStringContent(), m_node->GetHtmlText());
}

/** What was loaded comes back by undo, and fits the templates that the node has by then. */
void TestTableBinding::templatesFollowUndo()
{
    open(tableHtml(2, 2));
    bind(1, false, "s:x[][]");
    m_editor->Init(m_node.get());
    const QString raw = m_node->GetRawHtmlText();
    const QString content = m_node->GetStringContent();
    table()->cellAt(1, 0).firstCursorPosition().insertText("typed");
    QCoreApplication::processEvents();
    QVERIFY(m_node->GetStringContent() != content);
    m_view->undo();
    QCoreApplication::processEvents();
    QCOMPARE(m_node->GetRawHtmlText(), raw);
    QVERIFY(!m_node->GetStringContent().contains("typed"));
    QVERIFY(m_node->GetStringContent().contains("${" + m_node->GetTableRowPlaceHolder() + "}"));
}

void TestTableBinding::commandsOfTheInterface()
{
    int kind = -1;
    QCOMPARE(TextEdit::GetFields("s:list.{name,age}[]", kind), QStringList({"name", "age"}));
    QCOMPARE(kind, 21);
    open(tableHtml(1, 1));
    bind(1, false, "s:x[][]");
    const QString html = "<html><body><table><tr><td>a</td></tr></table></body></html>";
    m_editor->ExtractTemplate(html);
    QCOMPARE(m_node->GetTableRowTemplate(), QString("<tr><td>a</td></tr>"));
    QVERIFY(m_editor->UnifyTableColumnWidths(html).contains("border:1px solid #ff0000;"));
    const QSignalSpy announced(manager(), &DataSourceConfigManager::ConfigChanged);
    for (const QString same : {"<html><body><table></body></html>", "<html/>"}) {
        QCOMPARE(m_editor->UnifyTableColumnWidths(same), same);
    }
    QCOMPARE(m_node->GetTableRowBindKey(), QString("s:x[][]"));
    const QString none = "<html><body>a</body></html>";
    QCOMPARE(m_editor->UnifyTableColumnWidths(none), none);
    QVERIFY(m_node->GetTableRowBindKey().isEmpty());
    QCOMPARE(announced.size(), 1);
}

/** Every field with its key and look, then the text. */
static QString fieldsIn(const QTextDocument &document)
{
    QStringList found;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            const bool isField = format.hasProperty(0x5001) || format.hasProperty(0x5002);
            found << (isField
                          ? format.toImageFormat().name() + '|' + format.stringProperty(0x5001) +
                                '|' + format.stringProperty(0x5002)
                          : it.fragment().text());
        }
    }
    return found.join(' ');
}

void TestTableBinding::fieldsSurvive()
{
    open("<table><tr><td></td><td></td></tr></table>");
    m_view->setTextCursor(table()->cellAt(0, 0).firstCursorPosition());
    m_editor->findChild<QAction *>("actionTextItalic")->setChecked(true);
    m_editor->ApplyFormatAndInsert("s:a/b.c");
    QTest::keyClicks(m_view, "x");
    QCoreApplication::processEvents();
    const QString once = fieldsIn(*m_view->document());
    const QRegularExpression written(
        "^data://bindKey/s/a/b.c.png\\|s:a/b.c\\|;[^;]+;\\d+;1;0;0;#ffffff; x$");
    QVERIFY2(written.match(once).hasMatch(), qPrintable(once));

    m_editor->Init(m_node.get());
    QCOMPARE(fieldsIn(*m_view->document()), once);
    QTextCursor cell = table()->cellAt(0, 0).firstCursorPosition();
    cell.setPosition(table()->cellAt(0, 0).lastPosition(), QTextCursor::KeepAnchor);
    m_view->setTextCursor(cell);
    m_view->copy();
    m_view->setTextCursor(table()->cellAt(0, 1).firstCursorPosition());
    m_editor->PasteAction();
    QCOMPARE(fieldsIn(*m_view->document()), once + ' ' + once);
    QVERIFY(m_view->document()
                ->resource(QTextDocument::ImageResource, QUrl("data://bindKey/s/a/b.c.png"))
                .isValid());
    m_view->undo();
    QCOMPARE(fieldsIn(*m_view->document()), once);

    auto *foreign = new QMimeData; // what others put there is data, too
    foreign->setData("application/x-lctrlsex-fields",
                     "{\"text\":\"<b>\\ufffc\\ufffc\",\"fields\":[{\"key\":\"\",\"style\":5}]}");
    QGuiApplication::clipboard()->setMimeData(foreign);
    m_editor->PasteAction();
    QCOMPARE(fieldsIn(*m_view->document()), once + " <b>");
}

/** Qt keeps a drop in one step, in the midst of which the document tells nobody of it. */
void TestTableBinding::droppedFieldIsStored()
{
    DataSourceConfig config;
    config.sources = {{QStringLiteral("s"), DataSourceEntry::JsonFile, true, {}}};
    config.sources[0].keys = {{QStringLiteral("wind"), DataSourceKey::Text, QStringLiteral("7")}};
    manager()->SetConfig(config);
    open(QStringLiteral("<p>wind </p>"));
    QMimeData data;
    data.setData(FieldDrag::FieldFormat, "s:wind");
    const QPoint centre = m_view->viewport()->rect().center();
    QDragEnterEvent enter(centre, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(centre, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_view->viewport(), &enter);
    QCoreApplication::sendEvent(m_view->viewport(), &drop);
    const auto stored = [this] {
        return QByteArray::fromBase64(m_node->GetRawHtmlText().toLatin1());
    };
    QTRY_VERIFY(stored().contains("\"s:wind\""));

    // The view's own menu offers the names of the selected source.
    m_node->SetDataSource(QStringLiteral("s"));
    m_editor->OnSourceChanged();
    QVERIFY(QMetaObject::invokeMethod(m_view, "InsertFieldNameSignal",
                                      Q_ARG(QString, QStringLiteral("wind"))));
    QTRY_COMPARE(stored().count("\"s:wind\""), 2);
}

QTEST_MAIN(TestTableBinding)
#include "tst_tablebinding.moc"
