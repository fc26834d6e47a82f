#include "shorttext.h"

#include <QVector>

namespace lctrlsex {

QString shortText(const QString &text, int longest)
{
    QString result;
    const QVector<uint> characters = text.left(2 * longest).toUcs4();
    for (int i = 0; i < characters.size() && i < longest; ++i) {
        const uint character = QChar::isPrint(characters.at(i)) ? characters.at(i) : 0xfffd;
        result += QString::fromUcs4(&character, 1);
    }
    return characters.size() > longest ? result + QChar(0x2026) : result;
}

} // namespace lctrlsex
