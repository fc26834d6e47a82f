#pragma once

#include <QString>
#include <QVector>

class LNode;
class LTextEffectNode;

namespace player {

/** One text item of a programme and where it stands: screen/frame/item. */
struct ProgrammeItem
{
    LTextEffectNode *node = nullptr;
    QString place;
};

/** The text items below @p programme in the order of the tree. */
[[nodiscard]] QVector<ProgrammeItem> programmeItems(const LNode *programme);

} // namespace player
