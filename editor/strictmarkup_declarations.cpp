// What stands between tags: comments, instructions, CDATA sections and the type of the document.

#include "strictmarkup.h"

#include <algorithm>

namespace lctrlsex {

bool StrictMarkupReader::skipComment()
{
    m_at += 3; // "!--"
    return skipPast(QLatin1String("--")) && m_at < m_end && *m_at++ == '>';
}

bool StrictMarkupReader::skipInstruction()
{
    const bool isFirst = m_at == m_begin + 1;
    ++m_at;
    const ushort *const name = m_at;
    if (!skipName()) {
        return false;
    }
    const QStringView written(name, m_at - name);
    if (written.compare(QLatin1String("xml"), Qt::CaseInsensitive) == 0) {
        if (!isFirst || !startsWith(QLatin1String(" version=\"1.0\""))) {
            return false;
        }
        const ushort *const end = std::find(m_at, m_end, ushort('?'));
        const QStringView rest = QStringView(m_at, end - m_at).mid(14).trimmed();
        m_at = end;
        return (rest.isEmpty() || rest == QStringView(u"encoding=\"UTF-8\"")) &&
               skipPast(QLatin1String("?>"));
    }
    return skipSpace() && skipPast(QLatin1String("?>"));
}

bool StrictMarkupReader::skipDocumentType()
{
    if (m_hasRoot || m_hasType) {
        return false;
    }
    m_hasType = true;
    m_at += 8; // "!DOCTYPE"
    if (!skipSpace() || !skipName()) {
        return false;
    }
    const auto literal = [this] {
        const bool isQuoted = m_at < m_end && (*m_at == '"' || *m_at == '\'');
        const char quote = isQuoted ? char(*m_at++) : '\0';
        return isQuoted && skipPast(QLatin1String(&quote, 1));
    };
    if (skipSpace() && m_at < m_end && *m_at != '>') {
        const bool isPublic = startsWith(QLatin1String("PUBLIC"));
        if (!isPublic && !startsWith(QLatin1String("SYSTEM"))) {
            return false;
        }
        m_at += 6;
        if (!skipSpace() || !literal() || (isPublic && !(skipSpace() && literal()))) {
            return false;
        }
        static_cast<void>(skipSpace());
    }
    return m_at < m_end && *m_at++ == '>';
}

/** What begins with "<!". */
bool StrictMarkupReader::skipMarked()
{
    if (startsWith(QLatin1String("!--"))) {
        return skipComment();
    }
    if (startsWith(QLatin1String("![CDATA["))) {
        m_at += 8;
        return !m_open.empty() && skipPast(QLatin1String("]]>"));
    }
    return startsWith(QLatin1String("!DOCTYPE")) && skipDocumentType();
}

} // namespace lctrlsex
