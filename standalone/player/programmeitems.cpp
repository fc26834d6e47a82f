#include "programmeitems.h"

#include "lnode.h"
#include "ltexteffectnode.h"

namespace player {

namespace {

void collect(const LNode *node, const QString &above, QVector<ProgrammeItem> *items)
{
    const QList<LNode *> children = node->ChildNodes();
    for (LNode *child : children) {
        const QString place =
            above + (above.isEmpty() ? QString() : QStringLiteral("/")) + child->name();
        if (auto *item = qobject_cast<LTextEffectNode *>(child)) {
            items->append({item, place});
        }
        collect(child, place, items);
    }
}

} // namespace

QVector<ProgrammeItem> programmeItems(const LNode *programme)
{
    QVector<ProgrammeItem> items;
    if (programme != nullptr) {
        collect(programme, QString(), &items);
    }
    return items;
}

} // namespace player
