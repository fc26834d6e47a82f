#include "programme.h"

#include "hostcalls.h"

#include <QTextDocument>

namespace {

class TestController : public LControllerNode
{
public:
    TestController() { HostCalls::addLive(this); }
    ~TestController() override { HostCalls::removeLive(this); }
};

template <class Node, class Result>
Result passVirtual(const HostCalls::Call &call, const Node *node, Result (*operation)(const Node *))
{
    if (!HostCalls::mayCall(call, node)) {
        return Result();
    }
    const Result result = operation(node);
    HostCalls::called(call);
    return result;
}

} // namespace

#define PASS_VIRTUAL(Class, Base, Operation)                                                       \
    return passVirtual(                                                                            \
        HOST_CALL(#Class "::" #Operation), this,                                                   \
        +[](const Class *node) { return node->Base::Operation(); })

TestScreen::TestScreen()
{
    HostCalls::addLive(this);
    connect(this, &LData::AttributeChanged, this, &HostCalls::announced);
}

TestScreen::~TestScreen()
{
    HostCalls::removeLive(this);
}

QString TestScreen::TypeText() const
{
    PASS_VIRTUAL(TestScreen, LScreenNode, TypeText);
}

QSize TestScreen::Size() const
{
    PASS_VIRTUAL(TestScreen, LScreenNode, Size);
}

TestFrame::TestFrame()
{
    HostCalls::addLive(this);
    connect(this, &LData::AttributeChanged, this, &HostCalls::announced);
    connect(this, &LFrameNode::FrameChanged, this, &HostCalls::announced);
}

TestFrame::~TestFrame()
{
    HostCalls::removeLive(this);
}

QString TestFrame::TypeText() const
{
    PASS_VIRTUAL(TestFrame, LFrameNode, TypeText);
}

QString TestFrame::ChildType() const
{
    PASS_VIRTUAL(TestFrame, LFrameNode, ChildType);
}

QSize TestFrame::Size() const
{
    PASS_VIRTUAL(TestFrame, LFrameNode, Size);
}

TestItem::TestItem()
{
    HostCalls::addLive(this);
    connect(this, &LData::AttributeChanged, this, &HostCalls::announced);
    connect(this, &LEffectNode::Attribute3DChanged, this, &HostCalls::announced);
    connect(this, &LEffectNode::RestartRequested, this, &HostCalls::announced);
    connect(this, &LEffectNode::ReDrawRequested, this, &HostCalls::announced);
    connect(this, &LTextEffectNode::PlayIndexChanged, this, &HostCalls::announced);
    connect(this, &LTextEffectNode::PreviewCacheChanged, this, &HostCalls::announced);
    connect(this, &LTextEffectNode::FieldNameValueChanged, this, &HostCalls::announced);
}

TestItem::~TestItem()
{
    HostCalls::removeLive(this);
}

QString TestItem::TypeText() const
{
    PASS_VIRTUAL(TestItem, LTextEffectNode, TypeText);
}

QSize TestItem::Size() const
{
    PASS_VIRTUAL(TestItem, LTextEffectNode, Size);
}

Programme::Programme(const QString &html)
    : controller(new TestController)
    , screen(new TestScreen)
    , frame(new TestFrame)
    , item(new TestItem)
{
    controller->AppendChild(screen);
    screen->AppendChild(frame);
    frame->AppendChild(item);
    item->SetSize(QSize(128, 48));
    if (html.isEmpty()) {
        return;
    }
    QTextDocument document;
    document.setHtml(html);
    const QString stored = document.toHtml();
    item->SetHtmlText(stored);
    item->SetPlayText(document.toPlainText());
    item->SetRawHtmlText(QString::fromLatin1(stored.toUtf8().toBase64()));
}

Programme::~Programme()
{
    delete controller;
}

QVariantMap Programme::attributes() const
{
    QVariantMap values;
    const QStringList keys = item ? item->AttributeKeys() : QStringList();
    for (const QString &key : keys) {
        values.insert(key, item->Attribute(key));
    }
    return values;
}

QString Programme::stored() const
{
    const QByteArray raw = item ? item->Attribute("RawHtml").toString().toLatin1() : QByteArray();
    return QString::fromUtf8(QByteArray::fromBase64(raw));
}

bool Programme::holds(const QString &text) const
{
    const QVariantMap values = attributes();
    for (const QVariant &value : values) {
        if (value.toString().contains(text)) {
            return true;
        }
    }
    return stored().contains(text);
}
