#include "fielddrag.h"
#include "livedata.h"
#include "livetable.h"
#include "ltexteffectnode.h"
#include "mainwindow.h"
#include "modalanswerer.h"
#include "noticebar.h"
#include "programmedocument.h"
#include "programmeitems.h"

#include <QDialogButtonBox>
#include <QDropEvent>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>
#include <QTreeView>
#include <QUndoStack>
#include <QtTest>

using namespace workbench;

/** The data panel in the whole window, with the plug-in itself. */
class TestDataPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void addsASource();
    void editsQueries();
    void insertsAValue();
    void bindsTheTable();
    void saysThatThereIsNoTable();

private:
    template <typename Object>
    Object *find(const char *name) const
    {
        return m_window->findChild<Object *>(name);
    }
    QTextEdit *view() const { return m_window->centralWidget()->findChild<QTextEdit *>(); }
    LTextEffectNode *item(int index)
    {
        return player::programmeItems(m_window->document()->controller()).at(index).node;
    }
    /** The key of a source that begins so; invalid when it is not shown. */
    QModelIndex key(const QString &begin) const
    {
        const QAbstractItemModel *model = find<QTreeView>("DataTree")->model();
        return model
            ->match(model->index(0, 0), Qt::DisplayRole, begin, 1,
                    Qt::MatchStartsWith | Qt::MatchRecursive)
            .value(0);
    }
    void addFile(const QString &file, const QString &keyName);
    void show(int index);

    QTemporaryDir m_folder;
    std::unique_ptr<MainWindow> m_window;
};

void TestDataPanel::init()
{
    qputenv("LCTRLSEX_DATA_DIR", m_folder.filePath("data").toUtf8());
    QStandardPaths::setTestModeEnabled(true);
    QVERIFY(live::write(m_folder.filePath("s.csv"), live::records(2)));
    QVERIFY(live::write(m_folder.filePath("s.txt"), "Row 0"));
    QVERIFY(live::write(m_folder.filePath("p.programme.json"),
                        live::programme(QJsonValue::Undefined,
                                        {live::item("Plain"), live::item("Table", "s:gone[]")})));
    const LoadedPlugin plugin = loadPlugin({QStringLiteral(PLUGIN)});
    QVERIFY2(plugin.client != nullptr, qPrintable(plugin.reason));
    m_window = std::make_unique<MainWindow>(plugin, FontFolder::fill());
    m_window->resize(1280, 800);
    m_window->show();
    m_window->start(m_folder.filePath("p.programme.json"));
    QVERIFY(QTest::qWaitForWindowActive(m_window.get())); // or it takes the focus off a dialog
}

void TestDataPanel::show(int index)
{
    m_window->selectNode(item(index));
    QTest::qWait(80);
}

/** By way of the menu and the dialog, with all that it refuses first. */
void TestDataPanel::addFile(const QString &file, const QString &keyName)
{
    auto *menu = find<QPushButton>("AddSourceButton")->menu();
    emit menu->aboutToShow();
    QCOMPARE(menu->actions().size(), 5);
    ModalAnswerer answer([=](QDialog *dialog) {
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        const auto line = [dialog](const char *name) {
            return dialog->findChild<QLineEdit *>(name);
        };
        auto *test = dialog->findChild<QPushButton *>("TestSource");
        const auto *result = dialog->findChild<QLabel *>("SourceResult");
        const auto *notice = dialog->findChild<QLabel *>("SourceNotice");
        const auto isRefused = [&](const QString &label, const char *field) {
            dialog->setFocus();
            test->click();
            dialog->accept();
            return dialog->isVisible() && result->text().isEmpty() &&
                   dialog->focusWidget() == line(field) && notice->text().startsWith(label + ": ");
        };
        QVERIFY(dialog->focusWidget() == line("SourceFile"));
        QVERIFY2(isRefused("File", "SourceFile"), qPrintable(notice->text()));
        line("SourceFile")->setText("gone.csv");
        line("SourceName")->setText("a:b");
        QVERIFY2(isRefused("Name", "SourceName"), qPrintable(notice->text()));
        line("SourceName")->setText("s");
        QCOMPARE(notice->text(), QString());
        test->click();
        QTRY_VERIFY2(result->text().contains("No such file"), qPrintable(result->text()));
        line("SourceFile")->setText(file);
        test->click();
        QTRY_VERIFY2(result->text().contains(keyName), qPrintable(result->text()));
        dialog->accept();
    });
    menu->actions().at(0)->trigger();
    QVERIFY(answer.wasAsked());
    QTRY_VERIFY(key(keyName).isValid());
}

void TestDataPanel::addsASource()
{
    QVERIFY(find<QLabel>("DataHint")->isVisible());
    addFile("s.txt", "text");
    QVERIFY(!find<QLabel>("DataHint")->isVisible());
    QCOMPARE(m_window->document()->history()->count(), 1);
    QCOMPARE(key("text").sibling(0, 1).data().toString(), QString("Row 0"));
    QVERIFY(live::write(m_folder.filePath("s.txt"), "New"));
    QTRY_COMPARE(key("text").sibling(0, 1).data().toString(), QString("New"));
    m_window->document()->undo();
    QTRY_VERIFY(find<QLabel>("DataHint")->isVisible());
}

/** All by keys; each query is a table of its own, and the file keeps them apart. */
void TestDataPanel::editsQueries()
{
    auto *menu = find<QPushButton>("AddSourceButton")->menu();
    emit menu->aboutToShow();
    ModalAnswerer answer([](QDialog *dialog) {
        const auto end = qScopeGuard([dialog] { dialog->isVisible() ? dialog->reject() : void(); });
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        auto *list = dialog->findChild<QListWidget *>("SourceQueries");
        auto *name = dialog->findChild<QLineEdit *>("SourceQueryName");
        auto *text = dialog->findChild<QPlainTextEdit *>("SourceQuery");
        const auto *notice = dialog->findChild<QLabel *>("SourceNotice");
        const auto isRefused = [&](const QString &expected, const QWidget *field) {
            dialog->accept();
            return dialog->isVisible() && notice->text() == expected &&
                   dialog->focusWidget() == field;
        };
        // On a busy machine another window may become the active one, and keys go there.
        const auto press = [list, dialog](Qt::Key key) {
            list->setFocus();
            if (dialog->isActiveWindow()) {
                QTest::keyClick(list, key);
            } else if (key == Qt::Key_F2) {
                emit list->itemDoubleClicked(list->currentItem());
            } else {
                const char *const button = key == Qt::Key_Insert ? "AddQuery" : "RemoveQuery";
                dialog->findChild<QPushButton *>(button)->click();
            }
        };
        dialog->findChild<QLineEdit *>("SourceDatabase")->setText(":memory:");
        QVERIFY2(isRefused("Queries: rows has no text", text), qPrintable(notice->text()));
        press(Qt::Key_Delete);
        QVERIFY(isRefused("Queries: there is none", dialog->findChild<QWidget *>("AddQuery")));
        for (const char *const word : {"rows", "second", "third"}) {
            press(Qt::Key_Insert);
            QTest::keyClicks(dialog->focusWidget(), word);
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
            QTest::keyClicks(dialog->focusWidget(), QString("select '%1' as a").arg(word));
        }
        press(Qt::Key_F2);
        QTest::keyClicks(dialog->focusWidget(), "rows");
        QVERIFY(isRefused("Queries: there are two queries called rows", name));
        list->setCurrentRow(1);
        QCOMPARE(text->toPlainText(), QString("select 'second' as a"));
        press(Qt::Key_Delete);
        name->setText("last");
        dialog->accept();
    });
    menu->actions().at(3)->trigger();
    QVERIFY(answer.wasAsked());
    QTRY_VERIFY(key("rows.{a}").isValid() && key("last.{a}").isValid());
    const QJsonObject source =
        m_window->document()->rootMembers()["sources"].toArray()[0].toObject();
    QCOMPARE(source["query"].toString(), QString("select 'rows' as a"));
    QCOMPARE(source["queries"].toObject(), (QJsonObject{{"last", "select 'third' as a"}}));
}

void TestDataPanel::insertsAValue()
{
    addFile("s.txt", "text");
    show(0);
    auto *tree = find<QTreeView>("DataTree");
    const QModelIndex value = key("text");
    QVERIFY(value.isValid());
    tree->setCurrentIndex(value);
    tree->scrollTo(value);
    const QPoint place = tree->visualRect(value).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    const auto stored = [this] {
        return QByteArray::fromBase64(item(0)->GetRawHtmlText().toLatin1());
    };
    QTRY_VERIFY2(stored().contains("s:text"), stored());
}

void TestDataPanel::bindsTheTable()
{
    addFile("s.csv", "rows.{name,price}");
    show(1);
    const QModelIndex rows = key("rows.{name,price}");
    find<QTreeView>("DataTree")->setCurrentIndex(rows);
    auto *bind = find<QAction>("BindTable");
    QTRY_VERIFY(bind->isEnabled());
    ModalAnswerer answer([](QDialog *dialog) {
        auto *fields = dialog->findChild<QListWidget *>("BindFields");
        const auto *ok = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
        QCOMPARE(fields->count(), 2);
        fields->item(0)->setCheckState(Qt::Unchecked);
        fields->item(1)->setCheckState(Qt::Unchecked);
        QVERIFY(!ok->isEnabled());
        fields->item(1)->setCheckState(Qt::Checked);
        dialog->accept();
    });
    bind->trigger();
    QVERIFY(answer.wasAsked());
    QTRY_COMPARE(item(1)->GetTableRowBindKey(), QString("s:rows.{price}[]"));
    QVERIFY(view()->toPlainText().contains("${price}"));
}

void TestDataPanel::saysThatThereIsNoTable()
{
    addFile("s.csv", "rows.{name,price}");
    show(0);
    QMimeData data;
    data.setData(FieldDrag::TableFormat, "s:rows.{name,price}[]");
    QDragEnterEvent enter(view()->viewport()->rect().center(), Qt::CopyAction, &data,
                          Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view()->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(view()->viewport()->rect().center(), Qt::CopyAction, &data, Qt::LeftButton,
                    Qt::NoModifier);
    const QString before = item(0)->GetRawHtmlText();
    QCoreApplication::sendEvent(view()->viewport(), &drop);
    QVERIFY(!m_window->findChild<NoticeArea *>()->textOf("bind").isEmpty());
    QTest::qWait(50);
    QCOMPARE(item(0)->GetRawHtmlText(), before);
}

QTEST_MAIN(TestDataPanel)
#include "tst_datapanel.moc"
