// Operations of the host library, defined once more so that the plug-in calls these.

#include "datasourceconfigmanager.h"
#include "hostcalls.h"
#include "lcontrollernode.h"
#include "lframenode.h"
#include "lpluginmanager.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "scenethumbnailcapture.h"

#include <QPointer>

#include <cstring>
#include <dlfcn.h>
#include <type_traits>

namespace {

/** The library's own operation behind one that is defined here; not for virtual ones. */
template <class Operation>
Operation librarys(Operation operation)
{
    void *address = nullptr;
    static_assert(sizeof(operation) >= sizeof(address));
    std::memcpy(&address, &operation, sizeof(address));
    Dl_info info;
    if (dladdr(address, &info) == 0) {
        qFatal("the program does not export what it interposes");
    }
    address = dlsym(RTLD_NEXT, info.dli_sname);
    std::memcpy(&operation, &address, sizeof(address));
    return operation;
}

/** Answers a call by the library's own operation, then strikes when it is time. */
template <class Node, class Operation, class... Arguments>
auto pass(const HostCalls::Call &call, Node *node, Operation operation, Arguments &&...arguments)
{
    using Result = decltype((node->*operation)(std::forward<Arguments>(arguments)...));
    if constexpr (std::is_base_of_v<LData, Node>) {
        if (!HostCalls::mayCall(call, node)) {
            return Result();
        }
    }
    if constexpr (std::is_void_v<Result>) {
        (node->*operation)(std::forward<Arguments>(arguments)...);
        HostCalls::called(call);
    } else {
        const Result result = (node->*operation)(std::forward<Arguments>(arguments)...);
        HostCalls::called(call);
        return result;
    }
}

/** As pass(), but strikes before: a result that points to nodes must be of those that are left. */
template <class Node, class Operation>
auto look(const HostCalls::Call &call, const Node *node, Operation operation)
{
    using Result = decltype((node->*operation)());
    const QPointer<const Node> guard(HostCalls::mayCall(call, node) ? node : nullptr);
    if (guard.isNull()) {
        return Result();
    }
    HostCalls::called(call);
    return guard.isNull() ? Result() : (guard.data()->*operation)();
}

template <typename Type>
using Argument = std::conditional_t<std::is_class_v<Type>, const Type &, Type>;

} // namespace

#define PASS(Class, Operation)                                                                     \
    static const auto operation = librarys(&Class::Operation);                                     \
    return pass(HOST_CALL(#Class "::" #Operation), this, operation)

#define PASS_WITH(Class, Operation, ...)                                                           \
    static const auto operation = librarys(&Class::Operation);                                     \
    return pass(HOST_CALL(#Class "::" #Operation), this, operation, __VA_ARGS__)

#define LOOK(Class, Operation)                                                                     \
    static const auto operation = librarys(&Class::Operation);                                     \
    return look(HOST_CALL(#Class "::" #Operation), this, operation)

// A setter may be virtual, which librarys() cannot find; it does what the library's does.
#define NODE_ATTRIBUTE(Class, Type, Getter, Setter, Key, Default)                                  \
    Type Class::Getter() const                                                                     \
    {                                                                                              \
        PASS(Class, Getter);                                                                       \
    }                                                                                              \
    void Class::Setter(Argument<Type> value)                                                       \
    {                                                                                              \
        const HostCalls::Call call = HOST_CALL(#Class "::" #Setter);                               \
        if (HostCalls::mayCall(call, this)) {                                                      \
            SetAttribute(QStringLiteral(Key), value);                                              \
            HostCalls::called(call);                                                               \
        }                                                                                          \
    }
#include "nodeattributes.def"
#undef NODE_ATTRIBUTE

QString LData::name() const
{
    PASS(LData, name);
}

bool LData::HasAttribute(const QString &key) const
{
    PASS_WITH(LData, HasAttribute, key);
}

QStringList LData::GetFilePath(const QString &kind) const
{
    PASS_WITH(LData, GetFilePath, kind);
}

LScreenNode *LNode::GetScreenNode() const
{
    LOOK(LNode, GetScreenNode);
}

LFrameNode *LNode::GetFrameNode() const
{
    LOOK(LNode, GetFrameNode);
}

LControllerNode *LNode::GetControllerNode() const
{
    LOOK(LNode, GetControllerNode);
}

LNode *LNode::ParentNode() const
{
    LOOK(LNode, ParentNode);
}

QList<LNode *> LNode::ChildNodes() const
{
    LOOK(LNode, ChildNodes);
}

bool LScreenNode::IsLCDDevice() const
{
    PASS(LScreenNode, IsLCDDevice);
}

LFrame LFrameNode::GetFrame() const
{
    PASS(LFrameNode, GetFrame);
}

void LEffectNode::Send3DAttributeChanged()
{
    PASS(LEffectNode, Send3DAttributeChanged);
}

void LEffectNode::RestartPlay()
{
    PASS(LEffectNode, RestartPlay);
}

void LEffectNode::ReDrawImaged()
{
    PASS(LEffectNode, ReDrawImaged);
}

LUM_EditInterface::LTableProperties LTextEffectNode::GetTableProperties() const
{
    PASS(LTextEffectNode, GetTableProperties);
}

void LTextEffectNode::SetTableProperties(const LUM_EditInterface::LTableProperties &properties)
{
    PASS_WITH(LTextEffectNode, SetTableProperties, properties);
}

void LTextEffectNode::ClearFieldNameValue()
{
    PASS(LTextEffectNode, ClearFieldNameValue);
}

void LTextEffectNode::AddFieldNameValue(const QString &name, const QString &value)
{
    PASS_WITH(LTextEffectNode, AddFieldNameValue, name, value);
}

QMap<QString, QString> LTextEffectNode::FieldNameValues() const
{
    PASS(LTextEffectNode, FieldNameValues);
}

int LTextEffectNode::GetPageCount() const
{
    PASS(LTextEffectNode, GetPageCount);
}

void LTextEffectNode::SetPageCount(int count)
{
    PASS_WITH(LTextEffectNode, SetPageCount, count);
}

int LTextEffectNode::GetCurrentPage() const
{
    PASS(LTextEffectNode, GetCurrentPage);
}

void LTextEffectNode::SetCurrentPage(int page)
{
    PASS_WITH(LTextEffectNode, SetCurrentPage, page);
}

void LTextEffectNode::PageChanged()
{
    PASS(LTextEffectNode, PageChanged);
}

void LTextEffectNode::UpdatePreviewCache(QImage image)
{
    PASS_WITH(LTextEffectNode, UpdatePreviewCache, image);
}

QImage LTextEffectNode::NodeImage(const QSize &size) const
{
    PASS_WITH(LTextEffectNode, NodeImage, size);
}

// Not of nodes: what is asked on their behalf, or of the one manager of data sources.

bool LPluginManager::TextTransparent(LNode *node) const
{
    static const auto operation = librarys(&LPluginManager::TextTransparent);
    const HostCalls::Call call = HOST_CALL("LPluginManager::TextTransparent");
    const bool may = node == nullptr || HostCalls::mayCall(call, node);
    return may && pass(call, this, operation, node);
}

void SceneThumbnailCapture::requestFromNode(LNode *node)
{
    static const auto operation = librarys(&SceneThumbnailCapture::requestFromNode);
    const HostCalls::Call call = HOST_CALL("SceneThumbnailCapture::requestFromNode");
    if (node == nullptr || HostCalls::mayCall(call, node)) {
        pass(call, this, operation, node);
    }
}

DataSourceConfig DataSourceConfigManager::GetConfig() const
{
    PASS(DataSourceConfigManager, GetConfig);
}

QVector<DynamicDataSource> DataSourceConfigManager::GetDynamicData() const
{
    PASS(DataSourceConfigManager, GetDynamicData);
}
