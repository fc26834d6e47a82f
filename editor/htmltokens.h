#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace lctrlsex {

/** One attribute of a tag, as positions in the text. */
struct HtmlAttribute
{
    /** How the value was quoted; single quotes keep entities as they are. */
    enum class Quote { None, Single, Double };

    /** First position of the attribute and the position behind it. */
    int begin = 0;
    int end = 0;
    /** The name as written; its letter case means nothing. */
    QStringView key;
    /** The value as written between its quotes; null when there is none. */
    QStringView value;
    Quote quote = Quote::None;
    /** The name is in quotes. */
    bool quotedKey = false;
};

/** A piece of text, a tag or a declaration. */
struct HtmlToken
{
    enum class Kind { Text, Open, Close, Declaration };

    Kind kind = Kind::Text;
    /** First position of the token and the position behind it. */
    int begin = 0;
    int end = 0;
    /** Tag name as written, in any letter case, without its quotes; possibly empty. */
    QStringView name;
    /** Attributes in order; those without effect in Qt (empty value) are left out. */
    std::vector<HtmlAttribute> attributes;
    /** A "/" stands behind the attributes: the element ends at once. */
    bool selfClosed = false;
    /** The tag ends with a ">", not with the text. */
    bool terminated = true;
};

/**
 * Cuts HTML into tokens exactly where QTextDocument::setHtml cuts it, oddities included, so that
 * what is found here is what Qt finds. Linear; reads each character about once.
 */
class HtmlTokenReader
{
public:
    /** @param html outlives the reader and every token read from it. */
    explicit HtmlTokenReader(QStringView html);

    /** Reads the next token into @p token; false at the end of the text. */
    [[nodiscard]] bool next(HtmlToken &token);

    /** Continues at @p position. */
    void seek(int position) { m_pos = position; }

private:
    struct Word
    {
        QStringView text;
        HtmlAttribute::Quote quote = HtmlAttribute::Quote::None;
    };

    [[nodiscard]] bool at(QChar c) const { return m_pos < m_html.size() && m_html[m_pos] == c; }
    void skipSpace();
    [[nodiscard]] bool skipPast(QChar c);
    [[nodiscard]] Word readWord();
    [[nodiscard]] Word readPlainWord();
    [[nodiscard]] bool readDeclaration();
    void readOpenTag(HtmlToken &token);
    void readAttributes(HtmlToken &token);

    QStringView m_html;
    int m_pos = 0;
};

/** One entity: its text and length, or length 0 when Qt takes the "&" literally. */
struct HtmlEntity
{
    /** Length from the "&" to the ";" inclusive. */
    int length = 0;
    /** The character number; 0xfffd for a named one outside the five of XML and nbsp. */
    uint code = 0;
};

/** Reads the entity that starts with the "&" at @p pos. */
[[nodiscard]] HtmlEntity readEntity(QStringView html, int pos);

/** The text of a value with its entities resolved (not for single quotes). */
[[nodiscard]] QString decodeEntities(QStringView value);

/** The value of @p attribute as Qt understands it. */
[[nodiscard]] QString attributeText(const HtmlAttribute &attribute);

/** @p text written so that it may stand between double quotes. */
[[nodiscard]] QString quotedAttributeText(const QString &text);

} // namespace lctrlsex
