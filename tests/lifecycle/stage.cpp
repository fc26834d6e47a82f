#include "stage.h"

#include "datasourceconfigmanager.h"
#include "inodeclient.h"
#include "pluginhost.h"

#include <QCoreApplication>
#include <QTest>
#include <QTextEdit>

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

void Stage::prepare(Start start)
{
    if (start == New) {
        for (const char *key : {"Html", "RawHtml", "PlayText"}) {
            item->item->RemoveAttribute(key);
        }
    }
    if (start == Unbound || start == New) {
        return;
    }
    open(item->item);
    select(0, start == Bound ? 5 : 0);
    if (start == Typing || start == Edited) {
        select(3, 3);
    }
    if (start == Edited) {
        view->textCursor().insertText("unsaved");
    }
    if (start == Emptied) {
        view->selectAll();
        view->textCursor().removeSelectedText();
        drain();
    }
}

bool Stage::otherTakesText()
{
    open(other->item);
    select(0, 0);
    QTest::keyClick(view, Qt::Key_Z);
    drain();
    return other->item->Attribute("PlayText") == "z" + foreignWords();
}

void Stage::drain()
{
    constexpr int rounds = 4; // what is delivered may queue something again
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

static QtMessageHandler s_formerHandler = nullptr;

void quietenPlatform()
{
    s_formerHandler = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext &context, const QString &text) {
            if (!text.startsWith("This plugin does not support")) {
                s_formerHandler(type, context, text);
            }
        });
}

QString foreignWords()
{
    return "somebody else's words";
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
    node->SetTableType(3);
    node->SetTableAdaptRowsColsBindKey("Plant:Rows[][]");
    node->SetCalculation(R"([{"id":"1","key":"Sum","defaultValue":"3","expressions":[]}])");
    node->SetSpanConditions(R"([{"id":"7","name":"Warm"}])");
    node->SetPageCount(3);
}
