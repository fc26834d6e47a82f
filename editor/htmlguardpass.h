#pragma once

#include "htmlstyle.h"
#include "htmltokens.h"
#include "htmlworkload.h"

#include <QString>

#include <vector>

namespace lctrlsex {

/** One reading of a document that collects what has to be changed in it. */
class HtmlGuardPass
{
public:
    /** @param html outlives the pass. */
    explicit HtmlGuardPass(const QString &html);

    HtmlGuardPass(const HtmlGuardPass &) = delete;
    HtmlGuardPass &operator=(const HtmlGuardPass &) = delete;

    /** Reads the document; stops at the first limit that it passes. */
    void run();

    /** The limit that was passed, or None. */
    [[nodiscard]] HtmlExcess excess() const { return m_workload.excess(); }
    /** Where it was passed. */
    [[nodiscard]] int position() const { return m_token.begin; }
    /** Something has to be changed. */
    [[nodiscard]] bool hasEdits() const { return !m_edits.empty(); }
    /** The document with the changes made. */
    [[nodiscard]] QString edited();
    /** The estimates, for tests and tuning. */
    [[nodiscard]] const HtmlWorkload &workload() const { return m_workload; }

private:
    struct Edit
    {
        int begin;
        int end;
        QString text;
    };

    void drop(int begin, int end);
    void replaceAttribute(const HtmlAttribute &attribute, const QString &value);
    void openTag();
    void closeTag();
    void dropScript();
    [[nodiscard]] bool keepStyleSheet();
    void readMeta();
    [[nodiscard]] bool readName();
    void readAttribute(const HtmlAttribute &attribute, ElementRequest *request);
    void readFont(const HtmlAttribute &attribute, ElementRequest *request);
    void readAlignment(const HtmlAttribute &attribute, ElementRequest *request);
    void readStyle(const HtmlAttribute &attribute, ElementRequest *request);
    void readSize(const HtmlAttribute &attribute, double *size);
    void readInteger(const HtmlAttribute &attribute, int least, int most, int *number);
    void readNumber(const HtmlAttribute &attribute, double most, double *number);
    void checkColor(const HtmlAttribute &attribute);

    const QString &m_html;
    HtmlTokenReader m_reader;
    HtmlToken m_token;
    HtmlWorkload m_workload;
    StyleCache m_styles;
    std::vector<Edit> m_edits;
    QString m_name;
    HtmlElement m_element;
    int m_sheetCharacters = 0;
    bool m_textSeen = false;
};

} // namespace lctrlsex
