#include "htmlguardpass.h"

#include <algorithm>

namespace lctrlsex {

namespace {

constexpr int longestName = 32;

bool is(QStringView key, const char *name)
{
    return key.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

bool isNameSign(QChar c)
{
    const ushort u = c.unicode();
    return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '_' ||
           u == ':' || u == '.' || u == '-';
}

bool isPlainName(QStringView name)
{
    return !name.isEmpty() && name.size() <= longestName &&
           std::all_of(name.begin(), name.end(), isNameSign);
}

} // namespace

HtmlGuardPass::HtmlGuardPass(const QString &html)
    : m_html(html)
    , m_reader(QStringView(html))
    , m_workload(html.size())
{}

void HtmlGuardPass::run()
{
    while (m_workload.excess() == HtmlExcess::None && m_reader.next(m_token)) {
        switch (m_token.kind) {
        case HtmlToken::Kind::Text: {
            const QStringView text =
                QStringView(m_html).mid(m_token.begin, m_token.end - m_token.begin);
            m_workload.text(text);
            m_textSeen = m_textSeen || !text.trimmed().isEmpty();
            break;
        }
        case HtmlToken::Kind::Open:
            openTag();
            break;
        case HtmlToken::Kind::Close:
            closeTag();
            break;
        case HtmlToken::Kind::Declaration:
            break;
        }
    }
    if (m_workload.excess() == HtmlExcess::None) {
        m_workload.finish();
    }
    for (const RowSpanUse &use : m_workload.longRowSpans()) {
        replaceAttribute(use.attribute, QString::number(std::max(1, use.rowsLeft)));
    }
}

QString HtmlGuardPass::edited()
{
    std::stable_sort(m_edits.begin(), m_edits.end(),
                     [](const Edit &a, const Edit &b) { return a.begin < b.begin; });
    QString text;
    text.reserve(m_html.size());
    int copied = 0;
    for (const Edit &edit : m_edits) {
        if (edit.begin < copied) {
            continue;
        }
        text += m_html.midRef(copied, edit.begin - copied);
        text += edit.text;
        copied = edit.end;
    }
    text += m_html.midRef(copied);
    return text;
}

void HtmlGuardPass::drop(int begin, int end)
{
    m_edits.push_back({begin, end, QString()});
}

void HtmlGuardPass::replaceAttribute(const HtmlAttribute &attribute, const QString &value)
{
    const QString text = QLatin1Char(' ') + attribute.key.toString() + QLatin1String("=\"") +
                         quotedAttributeText(value) + QLatin1Char('"');
    m_edits.push_back({attribute.begin, attribute.end, text});
}

bool HtmlGuardPass::readName()
{
    if (!m_token.terminated || !isPlainName(m_token.name)) {
        return false;
    }
    m_name.resize(int(m_token.name.size()));
    std::transform(m_token.name.begin(), m_token.name.end(), m_name.begin(), [](QChar c) {
        const bool upper = c >= QLatin1Char('A') && c <= QLatin1Char('Z');
        return upper ? QChar(c.unicode() + 0x20) : c;
    });
    m_element = findHtmlElement(m_name);
    return (m_element.traits & RefusedTrait) == 0;
}

void HtmlGuardPass::closeTag()
{
    // Qt can open an element anew at the close tag of one that holds nothing.
    if (!readName() || (m_element.traits & VoidTrait) != 0) {
        drop(m_token.begin, m_token.end);
        return;
    }
    m_workload.close(m_element, m_name);
}

void HtmlGuardPass::openTag()
{
    if (!readName()) {
        drop(m_token.begin, m_token.end);
        return;
    }
    if ((m_element.traits & ScriptTrait) != 0) {
        dropScript();
        return;
    }
    if ((m_element.traits & StyleTrait) != 0 && !keepStyleSheet()) {
        return;
    }
    if ((m_element.traits & MetaTrait) != 0) {
        readMeta();
        return;
    }
    ElementRequest request;
    for (const HtmlAttribute &attribute : m_token.attributes) {
        if (attribute.quotedKey || !isPlainName(attribute.key)) {
            drop(attribute.begin, attribute.end);
        } else {
            readAttribute(attribute, &request);
        }
    }
    m_workload.open(m_element, m_name, request, m_token.selfClosed);
    if ((m_element.traits & StyleTrait) != 0) {
        // The content was read by keepStyleSheet(); its text is none of the document's.
        m_reader.seek(m_html.indexOf(QLatin1Char('<'), m_token.end));
    }
}

void HtmlGuardPass::dropScript()
{
    const QLatin1String closing("</script");
    int end = m_html.indexOf(closing, m_token.end, Qt::CaseInsensitive);
    end = end < 0 ? -1 : m_html.indexOf(QLatin1Char('>'), end);
    end = end < 0 ? m_html.size() : end + 1;
    drop(m_token.begin, end);
    m_reader.seek(end);
}

bool HtmlGuardPass::keepStyleSheet()
{
    const int next = m_html.indexOf(QLatin1Char('<'), m_token.end);
    const int end = next < 0 ? m_html.size() : next;
    const bool closed =
        m_html.midRef(end, 8).compare(QLatin1String("</style>"), Qt::CaseInsensitive) == 0;
    const QStringView css = QStringView(m_html).mid(m_token.end, end - m_token.end);
    m_sheetCharacters += int(css.size());
    StyleFacts facts;
    if (closed && !m_token.selfClosed && m_sheetCharacters <= longestStyleSheet &&
        styleSheetIsHarmless(css, &facts)) {
        m_workload.addSheet(facts);
        return true;
    }
    const int behind = closed ? end + 8 : end;
    drop(m_token.begin, behind);
    m_reader.seek(behind);
    return false;
}

void HtmlGuardPass::readMeta()
{
    // Only Qt's own mark has an effect, on all of the text: so it may not come late or in disguise.
    bool named = false;
    bool marked = false;
    for (const HtmlAttribute &attribute : m_token.attributes) {
        const bool plain = !attribute.quotedKey && isPlainName(attribute.key);
        const bool value = attribute.quote == HtmlAttribute::Quote::Double;
        named = named || (plain && value && is(attribute.key, "name") &&
                          attribute.value == QLatin1String("qrichtext"));
        marked = marked || (named && plain && value && is(attribute.key, "content") &&
                            attribute.value == QLatin1String("1"));
    }
    const QStringView tag = QStringView(m_html).mid(m_token.begin, m_token.end - m_token.begin);
    const bool odd = tag.contains(QLatin1Char('&'));
    if (odd || (!named && tag.contains(QStringView(u"qrichtext"))) || (named && m_textSeen)) {
        drop(m_token.begin, m_token.end);
        return;
    }
    if (marked) {
        m_workload.setRichTextMark();
    }
    m_workload.open(m_element, m_name, ElementRequest(), m_token.selfClosed);
}

} // namespace lctrlsex
