#include "mainwindowtest.h"

#include "editorpane.h"
#include "lframenode.h"
#include "ltexteffectnode.h"
#include "programmepanel.h"
#include "wallpanel.h"
#include "wallview.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSpinBox>
#include <QTreeView>
#include <QUndoStack>

using namespace workbench;

/** Selecting, typing and building the programme, and what the wall shows of it. */
class TestMainWindowEditing : public MainWindowTest
{
    Q_OBJECT

private slots:
    void opensAndSelects();
    void bindsTheFirstItemBelow();
    void typesAndUndoes();
    void leavesNoUndoKeyToTheView();
    void leavesTheFocusWithTheTree();
    void addsAndRemoves();
    void renames();
    void placesAndSizes();
    void showsTheEditOnTheWall();
    void turnsPages();

private:
    int count(const char *what) const { return m_plugin.client->property(what).toInt(); }
};

void TestMainWindowEditing::opensAndSelects()
{
    open(demo());
    QCOMPARE(view()->toPlainText(), QString("first"));
    QCOMPARE(m_window->windowTitle(), QString("demo[*] – Workbench"));
    QVERIFY(!m_window->isWindowModified());
    // The dock took them.
    QVERIFY(m_plugin.client->findChild<QWidget *>("TextAttributesBg") == nullptr);
    const auto *area = find<QScrollArea>("ItemProperties");
    QCOMPARE(area->widget()->objectName(), QString("TextAttributesBg"));
    QVERIFY(area->widget()->isVisible());

    m_window->selectNode(node({0, 1, 0}));
    QCOMPARE(view()->toPlainText(), QString("third"));
    QCOMPARE(area->widget()->objectName(), QString("TextAttributesBg"));
    const WallScene scene = m_window->wall()->view()->scene();
    QCOMPARE(scene.size, QSize(64, 32));
    QCOMPARE(scene.items.size(), 2);
    QCOMPARE(scene.items.at(0).name, QString("First"));
    QVERIFY(!scene.items.at(0).isCurrent && scene.items.at(1).isCurrent);
    QCOMPARE(scene.items.at(1).rect, QRect(32, 0, 32, 32));
    // Looking at items changes nothing.
    m_window->selectNode(node({0, 0, 1}));
    QCOMPARE(m_window->wall()->view()->scene().items.at(0).name, QString("Second"));
    QTest::qWait(20);
    QVERIFY(!m_window->isWindowModified());
    emit m_window->wall()->view()->itemClicked(1);
    QCOMPARE(view()->toPlainText(), QString("third"));
}

void TestMainWindowEditing::bindsTheFirstItemBelow()
{
    open(demo());
    auto *editor = find<EditorPane>("EditorPane");
    m_window->selectNode(node({0, 1}));
    QCOMPARE(editor->node(), node({0, 1, 0}));
    const int inits = count("inits");
    m_window->selectNode(node({0, 1, 0}));
    QCOMPARE(count("inits"), inits);
    m_window->selectNode(node({1}));
    QVERIFY(editor->node() == nullptr);
    auto *add = find<QAbstractButton>("AddItemButton");
    QVERIFY(add->isVisible());
    add->click();
    QCOMPARE(node({1, 0})->ChildNodes().size(), 1);
    QVERIFY(editor->node() != nullptr);
    QVERIFY(!add->isVisible());
}

void TestMainWindowEditing::typesAndUndoes()
{
    open(demo());
    QTest::keyClicks(view(), "ab");
    QTest::qWait(20);
    QCOMPARE(m_window->document()->isModified(), true);
    QVERIFY(m_window->isWindowModified());
    QVERIFY(action("Undo")->text().contains("Edit text"));
    auto *item = qobject_cast<LTextEffectNode *>(node({0, 0, 0}));
    QCOMPARE(item->GetPlayText(), QString("abfirst"));
    while (m_window->document()->history()->canUndo()) {
        action("Undo")->trigger();
        QTest::qWait(5);
    }
    QCOMPARE(view()->toPlainText(), QString("first"));
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(!action("Undo")->isEnabled());
    while (m_window->document()->history()->canRedo()) {
        action("Redo")->trigger();
        QTest::qWait(5);
    }
    QCOMPARE(view()->toPlainText(), QString("abfirst"));
}

void TestMainWindowEditing::leavesNoUndoKeyToTheView()
{
    open(demo());
    m_window->activateWindow();
    view()->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClicks(view(), "x");
    QTest::qWait(20);
    m_window->selectNode(node({0, 1, 0}));
    view()->setFocus();
    // The view of another item has nothing to undo of its own; the history has.
    QTest::keyClick(view(), Qt::Key_Z, Qt::ControlModifier);
    QTest::qWait(20);
    QVERIFY(!m_window->document()->isModified());
    QCOMPARE(view()->toPlainText(), QString("first"));
    QTest::keyClick(view(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(view()->toPlainText(), QString("first"));
    QTest::keyClick(view(), Qt::Key_Y, Qt::ControlModifier);
    QTest::qWait(20);
    QCOMPARE(view()->toPlainText(), QString("xfirst"));
}

void TestMainWindowEditing::leavesTheFocusWithTheTree()
{
    open(demo());
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    auto *tree = find<QTreeView>("ProgrammeTree");
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Down);
    QCOMPARE(view()->toPlainText(), QString("second"));
    QVERIFY(tree->hasFocus());
    QTest::keyClick(tree, Qt::Key_Delete);
    QCOMPARE(node({0, 0})->ChildNodes().size(), 1);
    QVERIFY(tree->hasFocus());
    QTest::keyClick(tree, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(view()->toPlainText(), QString("second"));
    emit m_window->wall()->view()->itemActivated(1);
    QVERIFY(view()->hasFocus());
}

void TestMainWindowEditing::addsAndRemoves()
{
    open(demo());
    auto *editor = find<EditorPane>("EditorPane");
    auto *panel = find<ProgrammePanel>("ProgrammePanel");
    action("AddItem")->trigger();
    QCOMPARE(node({0, 0})->ChildNodes().size(), 3);
    QCOMPARE(panel->currentNode(), node({0, 0, 2}));
    QCOMPARE(editor->node(), node({0, 0, 2}));
    QVERIFY(action("MoveUp")->isEnabled() && !action("MoveDown")->isEnabled());
    action("MoveUp")->trigger();
    QCOMPARE(panel->currentNode(), node({0, 0, 1}));
    QCOMPARE(editor->node(), node({0, 0, 1}));

    const int finishes = count("finishes");
    const QPointer<LNode> gone(panel->currentNode());
    action("Remove")->trigger();
    QCOMPARE(node({0, 0})->ChildNodes().size(), 2);
    QVERIFY(count("finishes") > finishes);
    QVERIFY(editor->node() != gone.data() && editor->node() != nullptr);
    action("Undo")->trigger();
    QCOMPARE(panel->currentNode(), gone.data());
    QCOMPARE(editor->node(), gone.data());

    // A whole screen, with the item that is bound in it.
    m_window->selectNode(node({0}));
    action("Remove")->trigger();
    QCOMPARE(node({})->ChildNodes().size(), 1);
    QVERIFY(editor->node() == nullptr);
    m_window->selectNode(node({}));
    QVERIFY(!action("Remove")->isEnabled() && !action("Duplicate")->isEnabled());
    action("AddScreen")->trigger();
    QCOMPARE(node({})->ChildNodes().size(), 2);
    while (m_window->document()->history()->canUndo()) {
        action("Undo")->trigger();
    }
    QCOMPARE(node({0, 0})->ChildNodes().size(), 2);
    QVERIFY(!m_window->isWindowModified());
}

void TestMainWindowEditing::renames()
{
    open(demo());
    auto *tree = find<QTreeView>("ProgrammeTree");
    action("Rename")->trigger();
    auto *line = tree->viewport()->findChild<QLineEdit *>();
    QVERIFY(line != nullptr);
    line->setText("Tom & Jerry");
    QTest::keyClick(line, Qt::Key_Return);
    QTRY_COMPARE(node({0, 0, 0})->name(), QString("Tom & Jerry"));
    QVERIFY(action("Undo")->text().endsWith("Rename to Tom && Jerry"));
    auto *field = find<QLineEdit>("NodeName");
    QCOMPARE(field->text(), QString("Tom & Jerry"));
    field->setText("   ");
    emit field->editingFinished();
    QCOMPARE(node({0, 0, 0})->name(), QString("Tom & Jerry"));
    QVERIFY(!find<QLabel>("LayoutAdvice")->text().isEmpty());
    field->setText("Other");
    emit field->editingFinished();
    QCOMPARE(node({0, 0, 0})->name(), QString("Other"));
}

void TestMainWindowEditing::placesAndSizes()
{
    open(demo());
    auto *frame = qobject_cast<LFrameNode *>(node({0, 1}));
    m_window->selectNode(frame);
    auto *x = find<QSpinBox>("NodeX");
    auto *width = find<QSpinBox>("NodeWidth");
    auto *inherit = find<QAbstractButton>("InheritSize");
    const auto *advice = find<QLabel>("LayoutAdvice");
    QCOMPARE(x->value(), 32);
    QVERIFY(advice->text().isEmpty());
    x->setValue(40);
    QCOMPARE(frame->GetRect(), QRect(40, 0, 32, 32));
    QVERIFY(!advice->text().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(m_window->wall()->view()->scene().items.at(1).rect, QRect(40, 0, 32, 32));
    inherit->click();
    QCOMPARE(frame->Size(), QSize(64, 32));
    QVERIFY(!width->isEnabled());
    QCOMPARE(width->value(), 64);
    action("Undo")->trigger();
    action("Undo")->trigger();
    QCOMPARE(frame->GetRect(), QRect(32, 0, 32, 32));
    QCOMPARE(x->value(), 32);
    QVERIFY(!inherit->isChecked());

    m_window->selectNode(node({}));
    auto *device = find<QComboBox>("DeviceKind");
    QVERIFY(device->isVisibleTo(device->parentWidget()) && !x->isVisible());
    device->setCurrentIndex(1);
    emit device->activated(1);
    QCOMPARE(m_window->document()->controller()->GetDeviceKind(), QString("LCD"));
}

void TestMainWindowEditing::showsTheEditOnTheWall()
{
    open(demo());
    const qint64 before = m_window->wall()->view()->scene().items.at(0).page.cacheKey();
    auto *item = qobject_cast<LTextEffectNode *>(node({0, 0, 0}));
    QTest::keyClicks(view(), "W");
    QCoreApplication::processEvents();
    QVERIFY(!item->PreviewCache().isNull());
    QCOMPARE(m_window->wall()->view()->scene().items.at(0).page, item->PreviewCache());
    // The player's page follows, though what the stand-in draws is another picture.
    QTRY_VERIFY(m_window->wall()->view()->scene().items.at(0).page != item->PreviewCache());
    QVERIFY(m_window->wall()->view()->scene().items.at(0).page.cacheKey() != before);
}

void TestMainWindowEditing::turnsPages()
{
    open(demo());
    auto *item = qobject_cast<LTextEffectNode *>(node({0, 0, 0}));
    view()->setHtml("<p style='color:#fff'>1</p><p style='color:#f00'>2</p><p>3</p><p>4</p>");
    view()->document()->setModified(true);
    QTRY_VERIFY(item->GetPageCount() > 1);
    WallPanel *wall = m_window->wall();
    QTRY_COMPARE(wall->pageText(), QString("Page 1 of %1").arg(item->GetPageCount()));
    const QImage first = wall->view()->scene().items.at(0).page;
    find<QAbstractButton>("WallNextPage")->click();
    QCOMPARE(item->GetCurrentPage(), 2);
    QCOMPARE(wall->pageText(), QString("Page 2 of %1").arg(item->GetPageCount()));
    QVERIFY(wall->view()->scene().items.at(0).page != first);
    // The page strip is the view of the moment, not part of the programme.
    const int steps = m_window->document()->history()->count();
    QTest::keyClick(wall->view(), Qt::Key_PageUp);
    QCOMPARE(item->GetCurrentPage(), 1);
    QCOMPARE(m_window->document()->history()->count(), steps);
}

int main(int argc, char **argv)
{
    return runMainWindowTest<TestMainWindowEditing>(argc, argv);
}

#include "tst_mainwindow_editing.moc"
