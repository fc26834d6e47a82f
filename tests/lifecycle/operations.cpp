#include "operations.h"

#include "datasourceconfigmanager.h"
#include "inodeclient.h"
#include "ltranslation.h"
#include "pluginhost.h"
#include "slotcall.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>

Stage::Stage(Programme *own, Programme *foreign)
    : item(own)
    , other(foreign)
    , client(loadedClient())
{}

void Stage::open(LNode *node)
{
    client->Init(node);
    editor = client->GetClient()->findChild<QWidget *>("wgtTextEditor");
    view = editor->findChild<QTextEdit *>("RichView");
}

void Stage::select(int from, int to) const
{
    QTextCursor cursor(view->document());
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    view->setTextCursor(cursor);
}

void Stage::prepare(Operation::Start start)
{
    if (start == Operation::New) {
        for (const char *key : {"Html", "RawHtml", "PlayText"}) {
            item->item->RemoveAttribute(key);
        }
    }
    if (start == Operation::Unbound || start == Operation::New) {
        return;
    }
    open(item->item);
    select(0, start == Operation::Bound ? 5 : 0);
    if (start == Operation::Typing || start == Operation::Edited) {
        select(3, 3);
    }
    if (start == Operation::Edited) {
        view->textCursor().insertText("unsaved");
    }
    if (start == Operation::Emptied) {
        view->selectAll();
        view->textCursor().removeSelectedText();
        drain();
    }
}

void Stage::drain()
{
    constexpr int rounds = 4; // what is delivered may queue something again
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QString richDocument()
{
    return "<p><span style=\"color:#ffffff\">alpha beta</span></p>"
           "<p><img src=\"data://bindKey/Plant/Level.png\" title=\"Plant:Level\" "
           "alt=\";Sans;16;0;0;0;#ffffff;\"/></p>"
           "<table border=\"1\"><tr><td>one</td><td>two</td></tr>"
           "<tr><td>three</td><td>four</td></tr></table>";
}

void setUpSources()
{
    DataSourceEntry entry;
    entry.name = "Plant";
    entry.type = DataSourceEntry::JsonFile;
    entry.keys = {{"Level", DataSourceKey::Text, "17", true},
                  {"Rows", DataSourceKey::RecordList, "[]", true}};
    DataSourceConfig config;
    config.sources = {entry};
    DynamicDataSource delivered;
    delivered.name = "Plant";
    delivered.fields = {{"Level", "17", true}, {"Rows", "[]", true}};
    DataSourceConfigManager::instance()->SetConfig(config);
    DataSourceConfigManager::instance()->SetDynamicData({delivered});
}

void setUpBinding(LTextEffectNode *node)
{
    node->SetDataSource("Plant");
    node->SetCalculation(R"([{"id":"1","key":"Sum","defaultValue":"3","expressions":[]}])");
    node->SetSpanConditions(R"([{"id":"7","name":"Warm"}])");
    node->SetPageCount(3);
}

namespace {

using Start = Operation::Start;

/** A child of the client, wherever it lies in it. */
template <class Child>
Child *childOf(const Stage &stage, const QString &name)
{
    return stage.client->GetClient()->findChild<Child *>(name);
}

/** Names of the children of a class that have one of their own. */
template <class Child>
QStringList namesOf(const Stage &stage, const std::function<bool(Child *)> &isWanted)
{
    QStringList names;
    const QList<Child *> children = stage.client->GetClient()->findChildren<Child *>();
    for (Child *child : children) {
        const QString name = child->objectName();
        if (!name.isEmpty() && !name.startsWith("qt_") && isWanted(child)) {
            names.append(name);
        }
    }
    names.removeDuplicates();
    return names;
}

void addSlots(QVector<Operation> *operations, const QMetaObject *meta, bool isEditor)
{
    // These only say that something changed; what they follow makes them interesting.
    static const QByteArrayList followEdits = {"TextDrawImage", "TextChanged", "performSmartMerge",
                                               "UpdateBindKeys", "OnSourceChanged"};
    for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        // The panel must really be gone before the client is told so: a test of its own does that.
        if (method.methodType() != QMetaMethod::Slot || method.name() == "AttributesDestroyed") {
            continue;
        }
        const bool isEdited = followEdits.contains(method.name());
        operations->append({QStringLiteral("slot %1").arg(QString::fromLatin1(method.name())),
                            isEdited ? Operation::Edited : Operation::Bound,
                            [index, isEditor](const Stage &stage) {
                                QObject *receiver =
                                    isEditor ? stage.editor : stage.client->GetClient();
                                callSlot(receiver, index);
                            }});
    }
}

void addActions(QVector<Operation> *operations, const Stage &stage)
{
    const QStringList names = namesOf<QAction>(
        stage, [](QAction *action) { return !action->isSeparator() && action->menu() == nullptr; });
    for (const QString &name : names) {
        operations->append({"action " + name, Operation::Bound, [name](const Stage &on) {
                                childOf<QAction>(on, name)->trigger();
                            }});
    }
    const QStringList buttons = namesOf<QAbstractButton>(stage, [](QAbstractButton *button) {
        const auto *tool = qobject_cast<QToolButton *>(button);
        return tool == nullptr || (tool->menu() == nullptr && tool->defaultAction() == nullptr);
    });
    for (const QString &name : buttons) {
        operations->append({"button " + name, Operation::Bound, [name](const Stage &on) {
                                auto *button = childOf<QAbstractButton>(on, name);
                                button->setEnabled(true); // such as those of pages, without pages
                                button->click();
                            }});
    }
}

void addBoxes(QVector<Operation> *operations, const Stage &stage)
{
    const auto add = [operations](const QString &name, auto *type, auto change) {
        using Box = std::remove_pointer_t<decltype(type)>;
        operations->append({"box " + name, Operation::Bound, [name, change](const Stage &on) {
                                change(childOf<Box>(on, name));
                            }});
    };
    for (const QString &name : namesOf<QComboBox>(stage, [](QComboBox *) { return true; })) {
        add(name, static_cast<QComboBox *>(nullptr), [](QComboBox *box) {
            box->setCurrentIndex(box->currentIndex() + 1 < box->count() ? box->currentIndex() + 1
                                                                        : 0);
        });
    }
    const auto step = [](QAbstractSpinBox *box) {
        box->stepBy(3);
    };
    for (const QString &name :
         namesOf<QAbstractSpinBox>(stage, [](QAbstractSpinBox *) { return true; })) {
        add(name, static_cast<QAbstractSpinBox *>(nullptr), step);
    }
    add("GUID", static_cast<QLineEdit *>(nullptr), [](QLineEdit *line) {
        line->setText("hall 3");
        QMetaObject::invokeMethod(line, "editingFinished");
    });
}

void addKeys(QVector<Operation> *operations)
{
    struct Key
    {
        const char *name;
        Start start;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    static const Key keys[] = {
        {"letter", Operation::Typing, Qt::Key_X, Qt::NoModifier},
        {"letter over a selection", Operation::Bound, Qt::Key_X, {}},
        {"letter into an emptied document", Operation::Emptied, Qt::Key_X, {}},
        {"Return", Operation::Typing, Qt::Key_Return, {}},
        {"Backspace", Operation::Typing, Qt::Key_Backspace, {}},
        {"Delete", Operation::Bound, Qt::Key_Delete, {}},
        {"Tab", Operation::Typing, Qt::Key_Tab, {}},
        {"Right", Operation::Typing, Qt::Key_Right, {}},
        {"Ctrl+B", Operation::Bound, Qt::Key_B, Qt::ControlModifier},
        {"Ctrl+J", Operation::Bound, Qt::Key_J, Qt::ControlModifier},
        {"Ctrl+V", Operation::Typing, Qt::Key_V, Qt::ControlModifier},
        {"Ctrl+X", Operation::Bound, Qt::Key_X, Qt::ControlModifier},
        {"Ctrl+Z", Operation::Edited, Qt::Key_Z, Qt::ControlModifier}};
    for (const Key &key : keys) {
        operations->append(
            {QStringLiteral("key ") + key.name, key.start, [&key](const Stage &stage) {
                 QGuiApplication::clipboard()->setText("pasted\ntext");
                 QTest::keyClick(stage.view, key.key, key.modifiers);
             }});
    }
}

void addBindings(QVector<Operation> *operations)
{
    const QVector<Operation> bindings = {
        {"Init item", Operation::Unbound,
         [](const Stage &stage) {
             stage.client->Init(stage.item->item);
         }},
        {"Init frame", Operation::Unbound,
         [](const Stage &stage) {
             stage.client->Init(stage.item->frame);
         }},
        {"Init new item", Operation::New,
         [](const Stage &stage) {
             stage.client->Init(stage.item->item);
         }},
        {"GetEditeWidget", Operation::Unbound,
         [](const Stage &stage) {
             stage.client->GetEditeWidget(stage.item->item);
         }},
        {"GetAttributesWidget", Operation::Unbound,
         [](const Stage &stage) {
             stage.client->GetAttributesWidget(stage.item->item);
         }},
        {"GetEditeWidget again", Operation::Edited,
         [](const Stage &stage) {
             stage.client->GetEditeWidget(stage.item->item);
         }},
        {"GetAttributesWidget again", Operation::Edited,
         [](const Stage &stage) {
             stage.client->GetAttributesWidget(stage.item->item);
         }},
        {"GetEditeWidget of a frame", Operation::Edited,
         [](const Stage &stage) {
             stage.client->GetEditeWidget(stage.item->frame);
         }},
        {"Finish", Operation::Edited,
         [](const Stage &stage) {
             stage.client->Finish();
         }},
        {"Init another item", Operation::Edited, [](const Stage &stage) {
             stage.client->Init(stage.other->item);
         }}};
    *operations += bindings;
}

void addHost(QVector<Operation> *operations)
{
    const QVector<Operation> host = {{"LanguageChanged", Operation::Edited,
                                      [](const Stage &) {
                                          emit LTranslation::instance()->LanguageChanged();
                                      }},
                                     {"ConfigChanged", Operation::Edited,
                                      [](const Stage &) {
                                          emit DataSourceConfigManager::instance()->ConfigChanged();
                                      }},
                                     {"SourceChanged", Operation::Edited,
                                      [](const Stage &) {
                                          emit DataSourceConfigManager::instance()->SourceChanged();
                                      }},
                                     {"other sources", Operation::Edited,
                                      [](const Stage &) {
                                          auto *const manager = DataSourceConfigManager::instance();
                                          QVector<DynamicDataSource> sources =
                                              manager->GetDynamicData();
                                          sources[0].fields.append({"Extra", "5", true});
                                          manager->SetDynamicData(sources);
                                      }},
                                     {"FrameChanged", Operation::Bound,
                                      [](const Stage &stage) {
                                          LFrame border;
                                          border.SetEnable(true);
                                          border.SetFrameType(8);
                                          border.SetSpeed(4);
                                          stage.item->frame->SetFrame(border);
                                      }},
                                     {"page played", Operation::Bound,
                                      [](const Stage &stage) {
                                          emit stage.item->item->PlayIndexChanged(2, 3);
                                      }},
                                     {"hidden and shown", Operation::Edited,
                                      [](const Stage &stage) {
                                          stage.client->GetClient()->hide();
                                          stage.client->GetClient()->show();
                                      }},
                                     {"painted", Operation::Edited, [](const Stage &stage) {
                                          stage.client->GetClient()->grab();
                                      }}};
    *operations += host;
}

} // namespace

QVector<Operation> allOperations(const Stage &stage)
{
    QVector<Operation> operations;
    addSlots(&operations, stage.editor->metaObject(), true);
    addSlots(&operations, stage.client->GetClient()->metaObject(), false);
    addActions(&operations, stage);
    addBoxes(&operations, stage);
    addKeys(&operations);
    addBindings(&operations);
    addHost(&operations);
    return operations;
}
