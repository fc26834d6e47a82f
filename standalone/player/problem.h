#pragma once

#include <QString>
#include <QVector>

namespace player {

/** Something that keeps an item from being shown as its author means it. */
struct Problem
{
    enum Severity {
        Warning, ///< The page is shown, but not as meant.
        Error    ///< No page can be made.
    };

    Severity severity = Error;
    QString place;  ///< Within the programme: screen/frame/item, then the part of the item.
    QString reason; ///< What is wrong, in one line.
    QString remedy; ///< What the user can do about it, in one line.
};

using Problems = QVector<Problem>;

} // namespace player
