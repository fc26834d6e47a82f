#include "hostiledocuments.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

namespace lctrlsex::test {

namespace {

/** A document made of a head, a repeated unit and a tail, in UTF-8. */
struct Repeated
{
    const char *name;
    const char *head;
    const char *unit;
    int count;
    const char *tail;
};

constexpr Repeated repeatedDocuments[] = {
    {"bold-unclosed-10k", "", "<b>", 10000, "a"},
    {"bold-unclosed-100k", "", "<b>a", 100000, ""},
    {"font-unclosed-100k", "", "<font color=red>", 100000, "a"},
    {"span-unclosed-100k", "", "<span style='color:red'>", 100000, "a"},
    {"div-unclosed-100k", "", "<div>a", 100000, ""},
    {"unknown-unclosed-100k", "", "<x>", 100000, "a"},
    {"input-unclosed-100k", "", "<input>", 100000, "a"},
    {"paragraphs-unclosed-5k", "", "<p>some words", 5000, ""},
    {"paragraphs-unclosed-1m", "", "<p>a", 1000000, ""},
    {"items-unclosed-3k", "<ul>", "<li>some words", 3000, ""},
    {"items-100k", "<ol>", "<li>a", 100000, "</ol>"},
    {"items-roman-100k", "<ol type=i>", "<li>a", 100000, "</ol>"},
    {"item-paragraphs-100k", "<ul>", "<li>a<p>b", 100000, ""},
    {"lists-nested-10k", "", "<ul><li>a", 10000, ""},
    {"lists-nested-400", "", "<ol><li>a", 400, ""},
    {"term-lists-nested-10k", "", "<dl><dd>a", 10000, ""},
    {"quotes-nested-10k", "", "<blockquote>a", 10000, ""},
    {"depth-400-wide", "<i><i><i><i><i><i><i><i><i><i>", "<u>a</u>", 200000, ""},
    {"tables-nested-50", "", "<table><tr><td>", 50, "a"},
    {"tables-nested-5k", "", "<table><tr><td>", 5000, "a"},
    {"tables-nested-4-wide", "",
     "<table><tr><td><table><tr><td><table><tr><td><table><tr><td>a"
     "</table></table></table></table>",
     10000, ""},
    {"tables-flat-100k", "", "<table><tr><td>a</td></tr></table>", 100000, ""},
    {"tables-floating-5k", "", "<table style='float:left'><tr><td>a</table>", 5000, ""},
    {"cells-nested-4-deep", "<table><tr><td><table><tr><td><table><tr><td><table>",
     "<tr><td>a<td>a", 5000, ""},
    {"cells-without-table-1m", "", "<td>a", 1000000, ""},
    {"rows-without-cells-1m", "<table><tr><td>a", "<tr>", 1000000, ""},
    {"table-one-row-100k", "<table><tr>", "<td>a", 100000, ""},
    {"table-two-columns-200k", "<table>", "<tr><td>a<td>b", 200000, ""},
    {"table-ragged", "<table><tr><td colspan=1000>a", "<tr>", 100000, ""},
    {"row-spans-9999", "<table>", "<tr><td rowspan=9999>a", 20000, "</table>"},
    {"column-spans-1000", "<table>", "<tr><td colspan=1000>a", 10000, "</table>"},
    {"column-spans-20480", "<table>", "<tr><td colspan=20480>a", 1000, "</table>"},
    {"table-padding-999", "<table cellpadding=999 cellspacing=999 border=999>", "<tr><td>a", 20000,
     ""},
    {"cell-padding-999", "<table>", "<tr><td style='padding:999'>a", 20000, ""},
    {"captions-100k", "<table>", "<caption>a", 100000, ""},
    {"word-100k", "<p>", "abcdefghij", 10000, ""},
    {"word-8m", "<p>", "abcdefgh", 1000000, ""},
    {"word-no-break-spaces", "<p>", "\xc2\xa0", 300000, ""},
    {"word-soft-hyphens", "<p>", "\xc2\xad", 300000, ""},
    {"word-of-formats", "<p>", "<b>a</b>a", 100000, ""},
    {"word-of-entities", "<p>", "&amp;", 1000000, ""},
    {"word-of-ampersands", "<p>", "&", 300000, ""},
    {"word-of-controls", "<p>", "\x01", 200000, ""},
    {"word-of-joiners", "<p>", "a\xe2\x80\x8d", 200000, ""},
    {"word-across-line-feeds", "<meta name=\"qrichtext\" content=\"1\"><p>", "abcdefghi\n", 50000,
     ""},
    {"marks-combining", "<p>a", "\xcc\x81", 300000, ""},
    {"letters-arabic", "<p>", "\xd8\xa8", 300000, ""},
    {"letters-virama", "<p>", "\xe0\xa4\x95\xe0\xa5\x8d", 200000, ""},
    {"letters-of-three-scripts", "<p>", "a\xe4\xb8\xad\xd8\xa8", 500000, ""},
    {"bidi-overrides", "<p>",
     "\xe2\x80\xae"
     "a\xe2\x80\xad"
     "b",
     100000, ""},
    {"bidi-isolates", "<p>",
     "\xe2\x81\xa7"
     "a",
     200000, ""},
    {"bidi-words", "<p>", "\xd7\x90 a ", 500000, ""},
    {"line-feeds-in-pre", "<pre>", "a\n", 1000000, ""},
    {"tabs-in-pre", "<pre>", "\t", 2000000, ""},
    {"line-in-pre-4m", "<pre>", "some words ", 400000, ""},
    {"paragraph-separators", "<p>", "\xe2\x80\xa9", 1000000, ""},
    {"line-separators", "<pre>", "\xe2\x80\xa8", 1000000, ""},
    {"frame-marks", "<p>", "\xef\xb7\x90", 1000000, ""},
    {"object-marks", "<p>", "\xef\xbf\xbc", 200000, ""},
    {"breaks-1m", "<p>", "<br>", 1000000, ""},
    {"breaks-below-pixel-8388607", "<p>", "<br>", 500000, ""},
    {"rules-500k", "", "<hr>", 500000, ""},
    {"plain-words-8m", "<p>", "some words ", 700000, ""},
    {"letters-of-300-pixels", "<p style='font-size:300px'>", "a", 30000, ""},
    {"letters-of-1000-pixels", "<p style='font-size:1000px'>", "a ", 10000, ""},
    {"lines-of-4096-pixels", "", "<p style='line-height:4096px'>a", 3000, ""},
    {"margins-of-4096-pixels", "", "<p style='margin-top:4096px'>a", 3000, ""},
    {"margins-leave-no-width", "<p style='margin-left:4000px'>", "a ", 300000, ""},
    {"indents-leave-no-width", "<p style='-qt-block-indent:90'>", "a ", 300000, ""},
    {"letter-spacing-256", "<p style='letter-spacing:256px'>", "words ", 50000, ""},
    {"images-100k", "<p>", "<img src=a>", 100000, ""},
    {"images-in-long-line", "<p>", "some words <img src=a> ", 30000, ""},
    {"images-floating-10k", "<p>", "<img src=a align=left>", 10000, ""},
    {"images-floating-in-paragraphs", "", "<p>a<img src=a align=left width=300 height=9>", 10000,
     ""},
    {"images-floating-200-many-lines", "", "<p>a<img src=a align=right width=1 height=16384>", 200,
     "<p>a<p>a<p>a"},
    {"images-of-16384-pixels", "", "<p><img src=a width=1 height=16384>", 2000, ""},
    {"images-wide-without-height", "", "<p><img src=a width=16384>", 2000, ""},
    {"anchors-100k", "", "<a name=x></a>", 100000, "a"},
    {"comments-1m", "", "<!-- a -->", 800000, ""},
    {"comments-unclosed", "", "<!-- a ", 1000000, ""},
    {"declarations-unclosed", "", "<!a", 1000000, ""},
    {"tags-unclosed", "", "<a ", 1000000, ""},
    {"attribute-of-4m", "<p title=\"", "x", 4000000, "\">a"},
    {"attributes-500k", "<p ", "a=b ", 500000, ">a"},
    {"style-attributes-200k", "<p ", "style=color:red ", 200000, ">a"},
    {"style-of-1m", "<p style=\"", "color:red;", 100000, "\">a"},
    {"style-escapes", "<p style=\"", "\\41", 100000, "\">a"},
    {"families-in-one-style", "<p style=\"font-family:x", ",x", 100000, "\">a"},
    {"families-in-one-face", "<font face=\"x", ",x", 100000, "\">a"},
    {"close-tags-1m", "<p>a", "</b>", 1000000, ""},
    {"close-tags-of-breaks", "<b><br></b>", "</br><b>", 50000, "a"},
    {"less-signs-1m", "<p>", "<", 1000000, ""},
    {"style-elements-100k", "", "<style>p{color:red}</style>", 100000, "<p>a"},
    {"script-elements-100k", "", "<script>a", 100000, ""},
    {"colour-names-unknown", "", "<font color=zzz>a </font>", 100000, ""},
    {"numeric-entities-unclosed", "<p>", "&#", 1000000, ""},
    {"texture-keys", "", "<i style='-qt-fg-texture-cachekey:1'>a </i>", 20000, ""},
};

/** A document in which each unit differs from the others: "%1" is its number. */
struct Numbered
{
    const char *name;
    const char *unit;
    int count;
};

constexpr Numbered numberedDocuments[] = {
    {"font-families-20k", "<font face=f%1>a</font> ", 20000},
    {"font-sizes-20k", "<span style='font-size:%1px'>a</span> ", 20000},
    {"colours-50k", "<span style='color:#%1'>a</span> ", 50000},
    {"image-names-20k", "<p><img src=%1>", 20000},
    {"link-targets-100k", "<a href=%1>a </a>", 100000},
    {"unknown-names-200k", "</n%1>", 200000},
};

QString fileOf(const QString &name)
{
    return QStringLiteral(LCTRLSEX_SOURCE_DIR "/tests/hostile/documents/") + name +
           QStringLiteral(".html");
}

QString numbered(const Numbered &document)
{
    const QString unit = QString::fromUtf8(document.unit);
    QString html;
    for (int i = 0; i < document.count; ++i) {
        html += unit.arg(i);
    }
    return html;
}

} // namespace

QStringList hostileDocumentNames()
{
    QStringList names;
    const QDir folder(QStringLiteral(LCTRLSEX_SOURCE_DIR "/tests/hostile/documents"));
    const QStringList files = folder.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        names += file.chopped(int(qstrlen(".html")));
    }
    for (const Repeated &document : repeatedDocuments) {
        names += QString::fromUtf8(document.name);
    }
    for (const Numbered &document : numberedDocuments) {
        names += QString::fromUtf8(document.name);
    }
    return names;
}

QString hostileDocument(const QString &name)
{
    for (const Repeated &document : repeatedDocuments) {
        if (name == QLatin1String(document.name)) {
            return QString::fromUtf8(document.head) +
                   QString::fromUtf8(document.unit).repeated(document.count) +
                   QString::fromUtf8(document.tail);
        }
    }
    for (const Numbered &document : numberedDocuments) {
        if (name == QLatin1String(document.name)) {
            return numbered(document);
        }
    }
    QFile file(fileOf(name));
    if (!file.open(QIODevice::ReadOnly)) {
        return QString();
    }
    // With the size given, because a null character does not end a document.
    const QByteArray bytes = file.readAll();
    QString html = QString::fromUtf8(bytes.constData(), bytes.size());
    return html.replace(QStringLiteral("@CANARY@"), canaryFolder());
}

QString canaryFolder()
{
    return QStringLiteral(LCTRLSEX_BINARY_DIR "/canaries");
}

QStringList canaryFiles(const QString &folder)
{
    QStringList files;
    for (const char *const name : {"canary.png", "canary.svg", "canary.css", "canary.gif"}) {
        files += folder + QLatin1Char('/') + QLatin1String(name);
    }
    return files;
}

QString harmlessParagraphs(int characters)
{
    const QString paragraph = QStringLiteral(
        "<p style=\" margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; "
        "-qt-block-indent:0; text-indent:0px;\"><span style=\" font-family:'DejaVu Sans'; "
        "font-size:10.5pt; color:#ff0000;\">some words in red</span> and a longer run of words "
        "without any format of their own</p>\n");
    return paragraph.repeated(qMax(1, characters / paragraph.size()));
}

QString harmlessTable(int characters)
{
    const QString row = QLatin1String("\n<tr>") + QStringLiteral("\n<td></td>").repeated(10) +
                        QLatin1String("</tr>");
    return QLatin1String("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">") +
           row.repeated(qMax(1, characters / row.size())) + QLatin1String("</table>");
}

QString harmlessLines(int characters)
{
    const QString line = QStringLiteral("<p>one line</p>");
    return line.repeated(qMax(1, characters / line.size()));
}

QString disorderlyDocument(unsigned seed)
{
    static const char *const pieces[] = {
        "<p>",
        "</p>",
        "<b>",
        "</b>",
        "<table>",
        "</table>",
        "<tr>",
        "</tr>",
        "<td>",
        "</td>",
        "<th>",
        "<ul>",
        "</ul>",
        "<ol>",
        "<li>",
        "</li>",
        "<div>",
        "</div>",
        "<span>",
        "</span>",
        "<br>",
        "<br/>",
        "</br>",
        "<hr>",
        "<img src=a>",
        "<img src=a align=left width=40>",
        "<thead>",
        "<tbody>",
        "</tbody>",
        "<caption>",
        "<h1>",
        "</h1>",
        "<pre>",
        "</pre>",
        "<dl>",
        "<dd>",
        "<dt>",
        "</dl>",
        "<blockquote>",
        "</blockquote>",
        "<center>",
        "<body>",
        "<html>",
        "<head>",
        "</head>",
        "<title>",
        "</title>",
        "<a name=x>",
        "<a href=y>",
        "</a>",
        "<qt>",
        "<td rowspan=3>",
        "<td colspan=2>",
        "<td rowspan=2 colspan=3 width=50%>",
        "<p ",
        "<",
        ">",
        "\"",
        "'",
        "=",
        "/",
        "&",
        "&amp;",
        "&#0;",
        "&#x2029;",
        "&#65534;",
        "<!-- ",
        "-->",
        "<!-",
        "<!x>",
        "<style>",
        "</style>",
        "p{margin:9px}",
        "<script>",
        "</script>",
        "style='-qt-paragraph-type:empty'",
        "<p style='-qt-paragraph-type:empty'>",
        "<p style='float:left'>",
        "<table style='float:right' width=99999 border=1e30>",
        "<table style='-qt-table-type:frame'>",
        "<table style='-qt-table-type:root'>",
        "<p style='margin:99999999px;font-size:1e9px'>",
        "<span style='font-size:40pt'>",
        "<p style='white-space:pre'>",
        "\n",
        "\t",
        " ",
        "word ",
        "words and more words ",
        "averyveryverylongword",
        "<meta name=\"qrichtext\" content=\"1\" />",
        "<x/>",
        "<div/>",
        "<table/>",
        "<li style='-qt-list-indent:99999'>",
        "<p dir=rtl align=right>",
        "<!--StartFragment-->",
        "<!--EndFragment-->",
        "<td style='padding:5px;border:9px solid'>",
    };
    QRandomGenerator random(seed);
    QString html;
    const int count = random.bounded(4, 160);
    for (int i = 0; i < count; ++i) {
        html += QLatin1String(pieces[random.bounded(int(std::size(pieces)))]);
        if (random.bounded(12) == 0) {
            html += QChar(random.bounded(0x10000));
        }
    }
    return html;
}

} // namespace lctrlsex::test
