#include "nodebuilder.h"

#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>

namespace workbench {

namespace {

constexpr QSize FirstScreen(256, 64);

QString tr(const char *text)
{
    return QCoreApplication::translate("ProgrammeDocument", text);
}

void collectNames(const LNode *node, QSet<QString> *names)
{
    if (node) {
        names->insert(node->name());
        const QList<LNode *> children = node->ChildNodes();
        for (const LNode *child : children) {
            collectNames(child, names);
        }
    }
}

/** @p pattern holds "%1" for the lowest number from 1 on that makes a name not in use. */
QString freeName(const QString &pattern, const QSet<QString> &used)
{
    int number = 1;
    while (used.contains(pattern.arg(number))) {
        ++number;
    }
    return pattern.arg(number);
}

template <typename Node>
std::unique_ptr<Node> named(const LNode *root, const char *pattern)
{
    QSet<QString> used;
    collectNames(root, &used);
    auto node = std::make_unique<Node>();
    node->SetName(freeName(tr(pattern), used));
    return node;
}

/** A copy of "Text 3" is called "Text 2" or whatever number is the next free one. */
QString copyName(const QString &name, const QSet<QString> &used)
{
    static const QRegularExpression number(QStringLiteral("\\s*\\d+$"));
    const QString base = QString(name).remove(number);
    QString free = name;
    for (int i = 2; used.contains(free); ++i) {
        free = base + QLatin1Char(' ') + QString::number(i);
    }
    return free.trimmed();
}

std::unique_ptr<LNode> emptyLike(const LNode *node)
{
    if (qobject_cast<const LScreenNode *>(node)) {
        return std::make_unique<LScreenNode>();
    }
    if (qobject_cast<const LFrameNode *>(node)) {
        return std::make_unique<LFrameNode>();
    }
    if (qobject_cast<const LTextEffectNode *>(node)) {
        return std::make_unique<LTextEffectNode>();
    }
    return nullptr;
}

std::unique_ptr<LNode> copyTree(const LNode *node, QSet<QString> *used)
{
    auto copy = emptyLike(node);
    if (!copy) {
        return nullptr;
    }
    const QStringList keys = node->AttributeKeys();
    for (const QString &key : keys) {
        copy->SetAttribute(key, node->Attribute(key));
    }
    // Members of the file that are not known are kept as dynamic properties.
    const QList<QByteArray> properties = node->dynamicPropertyNames();
    for (const QByteArray &property : properties) {
        copy->setProperty(property, node->property(property));
    }
    copy->SetName(copyName(node->name(), *used));
    used->insert(copy->name());
    const QList<LNode *> children = node->ChildNodes();
    for (const LNode *child : children) {
        if (auto below = copyTree(child, used)) {
            copy->AppendChild(below.release());
        }
    }
    return copy;
}

QRect placeOfNewFrame(const LScreenNode *screen)
{
    const QRect all(QPoint(), screen->Size());
    const QList<LNode *> frames = screen->ChildNodes();
    if (frames.isEmpty() || all.isEmpty()) {
        return {};
    }
    const QSize size(qMax(1, all.width() / 2), qMax(1, all.height() / 2));
    QRect best;
    qint64 leastCovered = -1;
    for (const QPoint &corner : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        const QRect rect(QPoint(corner.x() * (all.width() - size.width()),
                                corner.y() * (all.height() - size.height())),
                         size);
        qint64 covered = 0;
        for (const LNode *node : frames) {
            if (const auto *frame = qobject_cast<const LFrameNode *>(node)) {
                const QRect common = frame->GetRect() & rect;
                covered += qint64(common.width()) * common.height();
            }
        }
        if (leastCovered < 0 || covered < leastCovered) {
            leastCovered = covered;
            best = rect;
        }
    }
    return best;
}

} // namespace

std::unique_ptr<LControllerNode> newController()
{
    auto controller = std::make_unique<LControllerNode>();
    controller->SetDeviceKind(QStringLiteral("LED"));
    auto screen = newScreen(nullptr);
    screen->SetSize(FirstScreen);
    auto frame = named<LFrameNode>(nullptr, QT_TRANSLATE_NOOP("ProgrammeDocument", "Frame %1"));
    frame->SetRect(QRect(QPoint(), FirstScreen));
    frame->AppendChild(newItem(nullptr).release());
    screen->AppendChild(frame.release());
    controller->AppendChild(screen.release());
    return controller;
}

std::unique_ptr<LNode> newScreen(const LNode *root)
{
    auto screen = named<LScreenNode>(root, QT_TRANSLATE_NOOP("ProgrammeDocument", "Screen %1"));
    const QList<LNode *> others = root ? root->ChildNodes() : QList<LNode *>();
    screen->SetSize(others.isEmpty() || !others.last()->Size().isValid() ? FirstScreen
                                                                         : others.last()->Size());
    return screen;
}

std::unique_ptr<LNode> newFrame(const LNode *root, const LScreenNode *screen)
{
    auto frame = named<LFrameNode>(root, QT_TRANSLATE_NOOP("ProgrammeDocument", "Frame %1"));
    frame->SetRect(placeOfNewFrame(screen));
    return frame;
}

std::unique_ptr<LNode> newItem(const LNode *root)
{
    return named<LTextEffectNode>(root, QT_TRANSLATE_NOOP("ProgrammeDocument", "Text %1"));
}

std::unique_ptr<LNode> copyOf(const LNode *root, const LNode *node)
{
    QSet<QString> used;
    collectNames(root, &used);
    return copyTree(node, &used);
}

} // namespace workbench
