// Any markup is a template and any text a value: values show as they are and add no markup.

#include "contentparts.h"
#include "htmltokens.h"
#include "inputtext.h"
#include "templatetext.h"

#include <cstdlib>

using namespace player;
using namespace lctrlsex;

namespace {

/** Gives every slot the same value, or leaves all as typed. */
struct Filler
{
    QString value;

    bool slot(QString *html, int /*index*/) const
    {
        appendValue(html, value);
        return !value.isNull();
    }
    static void image(QString * /*html*/, int /*index*/) {}
    static void beginStyle(QString * /*html*/, int /*index*/) {}
    static void endStyle(QString * /*html*/, int /*index*/) {}
    static void cellWidth(QString * /*html*/, int /*index*/) {}
};

int tagsOf(const QString &expanded)
{
    // Something follows, as in any document: at a text's very end Qt reads "<br/>" differently.
    const QString html = expanded + "</p>";
    int tags = 0;
    HtmlTokenReader reader(html);
    HtmlToken token;
    while (reader.next(token)) {
        const bool isBreak = token.name == QLatin1String("br");
        tags += token.kind != HtmlToken::Kind::Text && !isBreak ? 1 : 0;
    }
    return tags;
}

QString expanded(const TemplateText &text, const QString &value)
{
    QString html;
    Filler filler{value};
    text.expand(&html, filler);
    return html;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString all = inputText(data, size);
    const int cut = all.indexOf(QLatin1Char('\n'));
    const QString markup = all.left(cut);
    const QString value = cut < 0 ? QStringLiteral("v") : all.mid(cut + 1) + "";
    const TemplateText text(markup);
    // What stays as typed is the markup itself, but for images and styles, which are not written.
    if (text.images().isEmpty() && text.styles().isEmpty() && expanded(text, QString()) != markup) {
        std::abort();
    }
    if (tagsOf(expanded(text, value)) != tagsOf(expanded(text, QStringLiteral("x")))) {
        std::abort();
    }
    const QByteArray utf8 = value.toUtf8();
    QString appended;
    appendValue(&appended, std::string_view(utf8.constData(), size_t(utf8.size())));
    if (appended != escapedValue(QString::fromUtf8(utf8.constData(), utf8.size()))) {
        std::abort();
    }
    const ContentParts parts = ContentParts::of(markup, "T");
    if (parts.isFound && !markup.contains("${T}")) {
        std::abort();
    }
    Q_UNUSED(cellsOf(markup))
    return 0;
}
