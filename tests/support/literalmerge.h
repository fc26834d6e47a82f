#pragma once

#include "charformatstyle.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QVector>

/** The merge as a restarting procedure, pair by pair; what it leaves is the truth. */
inline void mergeLiterally(const QTextBlock &block)
{
    QTextCursor cursor(block);
    bool restart = true;
    while (restart) {
        restart = false;
        QVector<QTextFragment> fragments;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            fragments.append(it.fragment());
        }
        for (int i = 0; i + 1 < fragments.size() && !restart; ++i) {
            const QTextCharFormat left = fragments[i].charFormat();
            if (lctrlsex::areFormatsEqual(left, fragments[i + 1].charFormat())) {
                const QString joined = fragments[i].text() + fragments[i + 1].text();
                cursor.setPosition(fragments[i].position());
                cursor.setPosition(fragments[i + 1].position() + fragments[i + 1].length(),
                                   QTextCursor::KeepAnchor);
                cursor.insertText(joined, left);
                restart = true;
            }
        }
    }
}
