#include "editorfixture.h"
#include "modalanswerer.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMessageBox>
#include <QTextTable>
#include <QtTest>

namespace {

const QString aTable = QStringLiteral("<p>text</p><table border=1><tr><td>a</td><td>b</td></tr>"
                                      "<tr><td>c</td><td>d</td></tr></table>");

QTextTable *tableOf(const QTextEdit *view)
{
    const QList<QTextFrame *> frames = view->document()->rootFrame()->childFrames();
    return frames.isEmpty() ? nullptr : qobject_cast<QTextTable *>(frames.first());
}

void place(QTextEdit *view, int row, int column)
{
    view->setTextCursor(tableOf(view)->cellAt(row, column).firstCursorPosition());
}

/** The texts of a menu, those of its submenus behind a ">". */
QStringList texts(const QMenu *menu)
{
    QStringList result;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        if (action->menu() != nullptr) {
            result << action->text() + ">" + texts(action->menu()).join('|');
        } else if (!action->isSeparator()) {
            result << action->text();
        }
    }
    return result;
}

/** What the context menu offers behind the toolkit's own entries. */
QStringList contextMenu(QTextEdit *view)
{
    QStringList result;
    QTimer::singleShot(0, view, [&result] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (menu != nullptr) {
            result = texts(menu);
            menu->close();
        }
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5));
    QApplication::sendEvent(view, &event);
    return result.mid(result.indexOf("Insert Table"));
}

void setValue(const QDialog *dialog, const char *name, int value)
{
    dialog->findChild<QSpinBox *>(name)->setValue(value);
}

} // namespace

class TestTables : public QObject
{
    Q_OBJECT

private slots:
    void insertsAndModifies();
    void refusesASecondTable();
    void menusFollowTheCursor();
    void contextMenus();
    void splitsByEitherRule_data();
    void splitsByEitherRule();
    void tabsAndPastesCells();
};

void TestTables::insertsAndModifies()
{
    EditorFixture item("<p>text</p>");
    const int steps = item.view->document()->availableUndoSteps();
    ModalAnswerer insert([](QDialog *dialog) {
        QCOMPARE(dialog->windowTitle(), QString("Insert Table"));
        dialog->findChild<QComboBox *>("TypeCbx")->setCurrentIndex(1);
        setValue(dialog, "SBColumns", 3);
        setValue(dialog, "SBWidth", 40);
        dialog->accept();
    });
    item.editor->findChild<QAction *>("actionNewTable")->trigger();
    QVERIFY(insert.wasAsked());
    QCOMPARE(tableOf(item.view)->rows(), 2);
    QCOMPARE(tableOf(item.view)->columns(), 3);
    // White letters would not show on the white ground of a new table.
    QVERIFY(item.view->currentCharFormat().foreground().color().lightness() < 128);
    EditorFixture::settle();
    QCOMPARE(item.node->GetTableType(), 1);
    QVERIFY(item.view->document()->availableUndoSteps() > steps);

    place(item.view, 0, 0);
    ModalAnswerer modify([](QDialog *dialog) {
        QCOMPARE(dialog->windowTitle(), QString("Modify table properties"));
        QVERIFY(!dialog->findChild<QComboBox *>("TypeCbx")->isEnabled());
        QCOMPARE(dialog->findChild<QSpinBox *>("SBWidth")->value(), 40);
        setValue(dialog, "SBColumns", 2);
        dialog->accept();
    });
    item.editor->findChild<QAction *>("actionTableProperties")->trigger();
    QVERIFY(modify.wasAsked());
    QCOMPARE(tableOf(item.view)->columns(), 2);
    item.view->undo();
    QCOMPARE(tableOf(item.view)->columns(), 3);
    item.view->undo();
    QVERIFY(tableOf(item.view) == nullptr);
}

void TestTables::refusesASecondTable()
{
    EditorFixture item(aTable);
    QStringList said;
    const auto note = [&said](QDialog *dialog) {
        said << dialog->windowTitle() << qobject_cast<QMessageBox *>(dialog)->text();
        dialog->accept();
    };
    ModalAnswerer first(note);
    item.editor->findChild<QAction *>("actionNewTable")->trigger();
    QCOMPARE(said, QStringList({"Insert Table", "Only one table can be inserted per editor."}));
}

void TestTables::menusFollowTheCursor()
{
    EditorFixture item(aTable);
    auto *menu = item.editor->findChild<QMenu *>("TableMenu");
    const auto enabled = [menu] {
        emit menu->aboutToShow();
        QStringList result;
        for (const QAction *action : menu->actions()) {
            if (action->isEnabled() && !action->isSeparator()) {
                result << action->text();
            }
        }
        return result.join(' ');
    };
    item.view->moveCursor(QTextCursor::Start);
    QCOMPARE(enabled(), QString());
    place(item.view, 0, 0);
    QCOMPARE(enabled(), QString("Table Properties Rows Columns Split Cell"));
    item.node->SetTableType(1);
    QCOMPARE(enabled(), QString("Table Properties Columns"));
    item.node->SetTableType(2);
    QCOMPARE(enabled(), QString("Table Properties Rows"));
    item.node->SetTableType(3);
    QCOMPARE(enabled(), QString("Table Properties"));
}

void TestTables::contextMenus()
{
    EditorFixture item(aTable);
    item.view->moveCursor(QTextCursor::Start);
    const QStringList outside = contextMenu(item.view);
    QCOMPARE(outside.size(), 2);
    QVERIFY(outside.at(1).startsWith("Insert field>"));
    place(item.view, 0, 0);
    const QStringList inside = contextMenu(item.view).mid(2);
    QCOMPARE(inside.mid(0, 3),
             QStringList({"Table Properties", "Row>Insert Row Above|Insert Row Below|Delete Row",
                          "Column>Insert Column Left|Insert Column Right|Delete Column"}));
    QVERIFY(!inside.contains("Merge Cells"));
    QTextCursor cursor = item.view->textCursor();
    cursor.setPosition(tableOf(item.view)->cellAt(1, 1).firstPosition(), QTextCursor::KeepAnchor);
    item.view->setTextCursor(cursor);
    QCOMPARE(
        contextMenu(item.view).mid(5, 3),
        QStringList({"Merge Cells", "Unmerge", "Split Cell>Split Vertically|Split Horizontally"}));
}

void TestTables::splitsByEitherRule_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("span");
    QTest::newRow("two less one is the whole") << 2 << 2;
    QTest::newRow("three less one") << 3 << 1;
    QTest::newRow("does not divide") << 4 << 2;
}

void TestTables::splitsByEitherRule()
{
    QFETCH(int, number);
    EditorFixture item(aTable);
    tableOf(item.view)->mergeCells(0, 0, 2, 1);
    place(item.view, 0, 0);
    ModalAnswerer answerer([number](QDialog *dialog) {
        QCOMPARE(dialog->windowTitle(), QString("Split Vertically"));
        dialog->findChild<QSpinBox *>()->setValue(number);
        dialog->accept();
    });
    item.editor->findChild<QAction *>("actionSplitVertically")->trigger();
    QVERIFY(answerer.wasAsked());
    QTEST(tableOf(item.view)->cellAt(0, 0).rowSpan(), "span");
}

void TestTables::tabsAndPastesCells()
{
    EditorFixture item(aTable);
    place(item.view, 1, 0);
    QTest::keyClick(item.view, Qt::Key_Tab);
    QTest::keyClick(item.view, Qt::Key_Tab);
    QCOMPARE(tableOf(item.view)->rows(), 3);
    QTest::keyClick(item.view, Qt::Key_Backtab, Qt::ShiftModifier);
    QApplication::clipboard()->setText("1\t2\t3\n4\t5\t6\n");
    item.view->paste();
    EditorFixture::settle();
    QCOMPARE(tableOf(item.view)->columns(), 4);
    QVERIFY(item.node->GetPlayText().contains("1\n2\n3"));
    QVERIFY(item.node->GetPlayText().contains("4\n5\n6"));
    item.view->undo();
    QCOMPARE(tableOf(item.view)->columns(), 2);
}

QTEST_MAIN(TestTables)
#include "tst_tables.moc"
