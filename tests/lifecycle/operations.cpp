#include "operations.h"

#include "datasourceconfigmanager.h"
#include "inodeclient.h"
#include "ltranslation.h"
#include "slotcall.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>

namespace {

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
        operations->append(
            {QStringLiteral("slot %1").arg(QString::fromLatin1(method.name())),
             isEdited ? Stage::Edited : Stage::Bound, [index, isEditor](const Stage &stage) {
                 QObject *receiver = isEditor ? stage.editor : stage.client->GetClient();
                 callSlot(receiver, index);
             }});
    }
}

void addActions(QVector<Operation> *operations, const Stage &stage)
{
    const QStringList names = namesOf<QAction>(
        stage, [](QAction *action) { return !action->isSeparator() && action->menu() == nullptr; });
    for (const QString &name : names) {
        operations->append({"action " + name, Stage::Bound, [name](const Stage &on) {
                                childOf<QAction>(on, name)->trigger();
                            }});
    }
    const QStringList buttons = namesOf<QAbstractButton>(stage, [](QAbstractButton *button) {
        const auto *tool = qobject_cast<QToolButton *>(button);
        return tool == nullptr || (tool->menu() == nullptr && tool->defaultAction() == nullptr);
    });
    for (const QString &name : buttons) {
        operations->append({"button " + name, Stage::Bound, [name](const Stage &on) {
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
        operations->append({"box " + name, Stage::Bound, [name, change](const Stage &on) {
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
        Stage::Start start;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    static const Key keys[] = {{"letter", Stage::Typing, Qt::Key_X, Qt::NoModifier},
                               {"letter over a selection", Stage::Bound, Qt::Key_X, {}},
                               {"letter into an emptied document", Stage::Emptied, Qt::Key_X, {}},
                               {"Return", Stage::Typing, Qt::Key_Return, {}},
                               {"Backspace", Stage::Typing, Qt::Key_Backspace, {}},
                               {"Delete", Stage::Bound, Qt::Key_Delete, {}},
                               {"Tab", Stage::Typing, Qt::Key_Tab, {}},
                               {"Right", Stage::Typing, Qt::Key_Right, {}},
                               {"Ctrl+B", Stage::Bound, Qt::Key_B, Qt::ControlModifier},
                               {"Ctrl+J", Stage::Bound, Qt::Key_J, Qt::ControlModifier},
                               {"Ctrl+V", Stage::Typing, Qt::Key_V, Qt::ControlModifier},
                               {"Ctrl+X", Stage::Bound, Qt::Key_X, Qt::ControlModifier},
                               {"Ctrl+Z", Stage::Edited, Qt::Key_Z, Qt::ControlModifier}};
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
        {"Init item", Stage::Unbound,
         [](const Stage &stage) {
             stage.client->Init(stage.item->item);
         }},
        {"Init frame", Stage::Unbound,
         [](const Stage &stage) {
             stage.client->Init(stage.item->frame);
         }},
        {"Init new item", Stage::New,
         [](const Stage &stage) {
             stage.client->Init(stage.item->item);
         }},
        {"GetEditeWidget", Stage::Unbound,
         [](const Stage &stage) {
             stage.client->GetEditeWidget(stage.item->item);
         }},
        {"GetAttributesWidget", Stage::Unbound,
         [](const Stage &stage) {
             stage.client->GetAttributesWidget(stage.item->item);
         }},
        {"GetEditeWidget again", Stage::Edited,
         [](const Stage &stage) {
             stage.client->GetEditeWidget(stage.item->item);
         }},
        {"GetAttributesWidget again", Stage::Edited,
         [](const Stage &stage) {
             stage.client->GetAttributesWidget(stage.item->item);
         }},
        {"GetEditeWidget of a frame", Stage::Edited,
         [](const Stage &stage) {
             stage.client->GetEditeWidget(stage.item->frame);
         }},
        {"Finish", Stage::Edited,
         [](const Stage &stage) {
             stage.client->Finish();
         }},
        {"Init another item", Stage::Edited, [](const Stage &stage) {
             stage.client->Init(stage.other->item);
         }}};
    *operations += bindings;
}

void addHost(QVector<Operation> *operations)
{
    const QVector<Operation> host = {{"LanguageChanged", Stage::Edited,
                                      [](const Stage &) {
                                          emit LTranslation::instance()->LanguageChanged();
                                      }},
                                     {"ConfigChanged", Stage::Edited,
                                      [](const Stage &) {
                                          emit DataSourceConfigManager::instance()->ConfigChanged();
                                      }},
                                     {"SourceChanged", Stage::Edited,
                                      [](const Stage &) {
                                          emit DataSourceConfigManager::instance()->SourceChanged();
                                      }},
                                     {"other sources", Stage::Edited,
                                      [](const Stage &) {
                                          auto *const manager = DataSourceConfigManager::instance();
                                          QVector<DynamicDataSource> sources =
                                              manager->GetDynamicData();
                                          sources[0].fields.append({"Extra", "5", true});
                                          manager->SetDynamicData(sources);
                                      }},
                                     {"FrameChanged", Stage::Bound,
                                      [](const Stage &stage) {
                                          LFrame border;
                                          border.SetEnable(true);
                                          border.SetFrameType(8);
                                          border.SetSpeed(4);
                                          stage.item->frame->SetFrame(border);
                                      }},
                                     {"page played", Stage::Bound,
                                      [](const Stage &stage) {
                                          emit stage.item->item->PlayIndexChanged(2, 3);
                                      }},
                                     {"hidden and shown", Stage::Edited,
                                      [](const Stage &stage) {
                                          stage.client->GetClient()->hide();
                                          stage.client->GetClient()->show();
                                      }},
                                     {"painted", Stage::Edited, [](const Stage &stage) {
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
