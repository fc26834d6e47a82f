#include "markup.h"

namespace {

constexpr int deepest = 3;

const char *const pieces[] = {"word",
                              " ",
                              "  ",
                              "\t",
                              "\n",
                              "&nbsp;",
                              "&lt;p&gt;",
                              "&amp;amp;",
                              "&quot;'",
                              "<br />",
                              "font-size:12pt",
                              "\xe2\x80\xa8",
                              "\xe6\xb8\xa9\xe5\xba\xa6",
                              "\xf0\x9f\x98\x80",
                              "e\xcc\x81",
                              "\xd7\x90\xd7\x91",
                              "\xe2\x80\x8d",
                              "\xef\xbb\xbf",
                              "\x01",
                              "\x0b",
                              "\xc2\x85",
                              "\xe2\x80\x83",
                              "\xef\xbf\xbd",
                              "<img src=\"data://bindKey/s/f.png\" alt=\"16;1\" title=\"s:f\" />",
                              "<img src=\":/none.png\" width=\"20\" height=\"8\" />"};

const char *const characterStyles[] = {"font-family:'DejaVu Sans';",
                                       "font-size:10.5pt;",
                                       "font-size:20px;",
                                       "font-weight:600;",
                                       "font-style:italic;",
                                       "text-decoration: underline;",
                                       "text-decoration: line-through;",
                                       "color:#ff0000;",
                                       "background-color:#00ff00;",
                                       "white-space:normal;"};

const char *const blockStyles[] = {
    "margin-top:12px;",  "margin-left:-3px;", "-qt-block-indent:2;", "text-indent:9px;",
    "line-height:150%;", "line-height:0.5;",  "padding:3px;",        "page-break-after:always;"};

const char *const blockAttributes[] = {"", " align=\"center\"", " align=\"right\"", " dir='rtl'"};

const char *const tableAttributes[] = {
    "",
    " border=\"1\"",
    " cellspacing=\"0\" cellpadding=\"3\"",
    " width=\"100%\"",
    " style=\"border-collapse:collapse; border-color:#00ff00; border-style:solid;\"",
    " align=\"center\" bgcolor=\"#0a141e\""};

const char *const cellAttributes[] = {"",
                                      " width=\"30%\"",
                                      " colspan=\"2\"",
                                      " rowspan=\"2\"",
                                      " style=\"vertical-align:middle; padding-left:5;\"",
                                      " bgcolor=\"#ffff00\""};

const char *const blocks[] = {"p", "div", "blockquote"};

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

template <size_t count>
QString styles(Choices *choices, const char *const (&values)[count])
{
    QString result = QStringLiteral(" style=\"");
    for (int more = choices->below(4); more > 0; --more) {
        result += text(choices->oneOf(values));
    }
    return result + '"';
}

/** In braces, because the choices for the arguments of a function may be made in any order. */
struct Element
{
    QString name;
    QString attributes;
    QString content;

    [[nodiscard]] QString html() const
    {
        return '<' + name + attributes + '>' + content + "</" + name + '>';
    }
};

QString anyUnit(Choices *choices)
{
    const int row = choices->below(256);
    return QStringLiteral("&#%1;").arg(256 * row + choices->below(256));
}

QString line(Choices *choices, int depth)
{
    QString result;
    for (int more = choices->below(4); more > 0; --more) {
        switch (depth < deepest ? choices->below(6) : 0) {
        case 1:
            result +=
                Element{"span", styles(choices, characterStyles), line(choices, depth + 1)}.html();
            break;
        case 2:
            result +=
                Element{"a", " href=\"bindStyle;1;a&amp;b\"", line(choices, depth + 1)}.html();
            break;
        case 3:
            result += anyUnit(choices);
            break;
        default:
            result += text(choices->oneOf(pieces));
        }
    }
    return result;
}

QString flow(Choices *choices, int depth);

QString table(Choices *choices)
{
    QString rows;
    for (int more = 1 + choices->below(3); more > 0; --more) {
        QString cells;
        for (int left = 1 + choices->below(3); left > 0; --left) {
            cells += Element{"td", text(choices->oneOf(cellAttributes)), flow(choices, 1)}.html();
        }
        rows += Element{"tr", QString(), cells}.html();
        if (choices->onceIn(5)) {
            rows = Element{"thead", QString(), rows}.html();
        }
    }
    return Element{"table", text(choices->oneOf(tableAttributes)), rows}.html();
}

QString flow(Choices *choices, int depth)
{
    QString result;
    for (int more = choices->below(depth == 0 ? 8 : 3); more > 0; --more) {
        const int kind = choices->below(8);
        if (kind == 1 && depth == 0) {
            result += table(choices);
        } else if (kind == 3) {
            result += line(choices, 0);
        } else {
            const QString attributes = text(choices->oneOf(blockAttributes));
            result += Element{text(choices->oneOf(blocks)),
                              attributes + styles(choices, blockStyles), line(choices, 0)}
                          .html();
        }
    }
    return result;
}

} // namespace

QString markup(Choices choices)
{
    const QString body = flow(&choices, 0);
    if (choices.onceIn(4)) {
        return body;
    }
    return "<html><head><meta name=\"qrichtext\" content=\"1\" /><style type=\"text/css\">\n"
           "p, li { white-space: pre-wrap; }\n</style></head><body style=\" font-size:12pt;\">" +
           body + "</body></html>";
}
