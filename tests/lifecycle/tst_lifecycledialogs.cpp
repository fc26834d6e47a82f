#include "hostcalls.h"
#include "inodeclient.h"
#include "modalanswerer.h"
#include "pluginhost.h"
#include "stage.h"

#include <QAction>
#include <QColorDialog>
#include <QMenu>
#include <QTest>
#include <QTimer>

/** What a host may do while a modal dialog or a menu of the plug-in is open. */
class TestLifecycleDialogs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void anAnswerChangesTheItem();
    void aStrokeWhileADialogIsOpen_data();
    void aStrokeWhileADialogIsOpen();
    void aStrokeWhileAMenuIsOpen_data();
    void aStrokeWhileAMenuIsOpen();
};

void TestLifecycleDialogs::initTestCase()
{
    quietenPlatform();
    setUpSources();
    QVERIFY(loadedClient() != nullptr);
}

namespace {

using Strike = void (*)(Stage *stage, QWidget *window);

struct Executioner
{
    const char *name;
    Strike strike;
};

const Executioner s_executioners[] = {{"delete item",
                                       [](Stage *stage, QWidget *) {
                                           delete stage->item->item;
                                       }},
                                      {"delete frame",
                                       [](Stage *stage, QWidget *) {
                                           delete stage->item->frame;
                                       }},
                                      {"delete screen",
                                       [](Stage *stage, QWidget *) {
                                           delete stage->item->screen;
                                       }},
                                      {"rebind",
                                       [](Stage *stage, QWidget *) {
                                           stage->client->Init(stage->other->item);
                                       }},
                                      {"finish",
                                       [](Stage *stage, QWidget *) {
                                           stage->client->Finish();
                                       }},
                                      {"bind again",
                                       [](Stage *stage, QWidget *) {
                                           stage->client->Finish();
                                           stage->client->Init(stage->item->item);
                                       }},
                                      {"delete window", [](Stage *, QWidget *window) {
                                           qDeleteAll(window->children());
                                       }}};

/** Opens a dialog: by an action of the editor, or by a slot of it or, "On...", of the client. */
struct Opener
{
    const char *name;
    bool isSlot;
};

const Opener s_openers[] = {{"actionTextColor", false},
                            {"actionTextBgcolor", false},
                            {"actionEditorBgColor", false},
                            {"actionStrokeColor", false},
                            {"InsertTable", true},
                            {"TableSplitCell(bool)", true},
                            {"OnConditionalStylesClicked", true},
                            {"OnSetOperationClicked", true}};

void openDialog(const Opener &opener, const Stage &stage)
{
    if (!opener.isSlot) {
        stage.editor->findChild<QAction *>(opener.name)->trigger();
    } else if (QByteArray(opener.name).endsWith("(bool)")) {
        QMetaObject::invokeMethod(stage.editor, "TableSplitCell", Q_ARG(bool, true));
    } else {
        const bool isClients = QByteArray(opener.name).startsWith("On");
        QMetaObject::invokeMethod(isClients ? static_cast<QObject *>(stage.client) : stage.editor,
                                  opener.name);
    }
}

/** Does in @p dialog what changes the item once it is accepted. */
void edit(QDialog *dialog)
{
    if (auto *colours = qobject_cast<QColorDialog *>(dialog)) {
        colours->setCurrentColor(Qt::green);
    }
    QMetaObject::invokeMethod(dialog, "onAddRootButtonClicked");
}

/** A window of a host with the client in it, one item open and another one beside it. */
struct Window
{
    Window()
        : item(richDocument())
        , other("<p>" + foreignWords() + "</p>")
        , stage(&item, &other)
    {
        setUpBinding(item.item);
        window.resize(600, 300);
        stage.client->GetClient()->setParent(&window);
        stage.client->GetClient()->show();
        window.show();
        stage.prepare(Stage::Bound);
    }

    /** Whether the client, another one if need be, takes text for the other item. */
    [[nodiscard]] bool isUsable()
    {
        Stage after(&item, &other);
        const bool takesText = after.otherTakesText();
        after.client->Finish();
        return takesText && !item.holds(foreignWords());
    }

    Programme item;
    Programme other;
    QWidget window;
    Stage stage;
};

QStringList menuNames(const Stage &stage)
{
    QStringList names;
    const QList<QMenu *> menus = stage.client->GetClient()->findChildren<QMenu *>();
    for (const QMenu *menu : menus) {
        if (!menu->objectName().isEmpty() && !menu->objectName().startsWith("qt_")) {
            names.append(menu->objectName());
        }
    }
    return names;
}

} // namespace

void TestLifecycleDialogs::aStrokeWhileADialogIsOpen_data()
{
    QTest::addColumn<int>("opener");
    QTest::addColumn<int>("executioner");
    QTest::addColumn<bool>("accepted");

    for (int opener = 0; opener < int(std::size(s_openers)); ++opener) {
        for (int executioner = 0; executioner < int(std::size(s_executioners)); ++executioner) {
            for (const bool accepted : {true, false}) {
                QTest::addRow("%s, %s, %s", s_openers[opener].name,
                              s_executioners[executioner].name, accepted ? "accepted" : "rejected")
                    << opener << executioner << accepted;
            }
        }
    }
}

void TestLifecycleDialogs::aStrokeWhileADialogIsOpen()
{
    QFETCH(int, opener);
    QFETCH(int, executioner);
    QFETCH(bool, accepted);
    Window host;
    const QVariantMap untouched = host.other.attributes();
    const QVariantMap before = host.item.attributes();
    {
        const ModalAnswerer answerer([&](QDialog *dialog) {
            const QPointer<QDialog> guard(dialog);
            edit(dialog);
            s_executioners[executioner].strike(&host.stage, &host.window);
            if (guard) {
                guard->done(accepted ? QDialog::Accepted : QDialog::Rejected);
            }
        });
        openDialog(s_openers[opener], host.stage);
        Stage::drain();
        QVERIFY(answerer.wasAsked());
    }
    QCOMPARE(host.other.attributes(), untouched);
    if (host.item.item) { // the answer was given to an item that was let go of
        QCOMPARE(host.item.attributes(), before);
    }
    QVERIFY(host.isUsable());
    QCOMPARE(HostCalls::takeFaults(), QStringList());
}

/** Without a stroke the colours do arrive: the comparisons above are of something. */
void TestLifecycleDialogs::anAnswerChangesTheItem()
{
    for (const Opener &opener : s_openers) {
        if (opener.isSlot) {
            continue;
        }
        Window host;
        const QVariantMap before = host.item.attributes();
        const ModalAnswerer answerer([](QDialog *dialog) {
            qobject_cast<QColorDialog *>(dialog)->setCurrentColor(Qt::green);
            dialog->accept();
        });
        openDialog(opener, host.stage);
        Stage::drain();
        QVERIFY2(host.item.attributes() != before, opener.name);
    }
}

void TestLifecycleDialogs::aStrokeWhileAMenuIsOpen_data()
{
    QTest::addColumn<QString>("menu");
    QTest::addColumn<int>("executioner");

    const Window host;
    const QStringList names = menuNames(host.stage);
    QVERIFY(names.size() >= 4);
    for (const QString &menu : names) {
        for (int executioner = 0; executioner < int(std::size(s_executioners)); ++executioner) {
            QTest::addRow("%s, %s", qPrintable(menu), s_executioners[executioner].name)
                << menu << executioner;
        }
    }
}

void TestLifecycleDialogs::aStrokeWhileAMenuIsOpen()
{
    QFETCH(QString, menu);
    QFETCH(int, executioner);
    Window host;
    const QVariantMap untouched = host.other.attributes();
    const QPointer<QMenu> open = host.stage.client->GetClient()->findChild<QMenu *>(menu);
    open->popup(host.window.mapToGlobal(QPoint(10, 10)));
    QVERIFY(open->isVisible());
    s_executioners[executioner].strike(&host.stage, &host.window);
    Stage::drain();
    QTimer closer; // of what an entry asks
    connect(&closer, &QTimer::timeout, this, [] {
        if (QWidget *dialog = QApplication::activeModalWidget()) {
            dialog->close();
        }
    });
    closer.start(5);
    if (open && open->isEnabled()) { // it still lies before the user, who picks its first entry
        QTest::keyClick(open.data(), Qt::Key_Down);
        QTest::keyClick(open.data(), Qt::Key_Return);
        Stage::drain();
    }
    if (open) {
        open->close();
    }
    // What is picked after another item was bound is meant for that one; it must not be harmed.
    const bool isBound = host.other.attributes() != untouched;
    QVERIFY(isBound || host.isUsable());
    QCOMPARE(HostCalls::takeFaults(), QStringList());
}

QTEST_MAIN(TestLifecycleDialogs)
#include "tst_lifecycledialogs.moc"
