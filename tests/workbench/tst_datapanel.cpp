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
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
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
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
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
        const auto line = [dialog](const char *name) {
            return dialog->findChild<QLineEdit *>(name);
        };
        const auto *ok = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
        auto *test = dialog->findChild<QPushButton *>("TestSource");
        const auto *result = dialog->findChild<QLabel *>("SourceResult");
        const auto *notice = dialog->findChild<QLabel *>("SourceNotice");
        const auto isRefused = [&] {
            return !ok->isEnabled() && !test->isEnabled() && !notice->text().isEmpty();
        };
        QVERIFY(isRefused()); // no file
        line("SourceFile")->setText("gone.csv");
        line("SourceName")->setText("a:b");
        QVERIFY(isRefused());
        line("SourceName")->setText("s");
        QVERIFY(ok->isEnabled() && notice->text().isEmpty());
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
