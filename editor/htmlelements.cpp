#include "htmlelements.h"

#include <QLatin1String>

#include <algorithm>

namespace lctrlsex {

namespace {

struct NamedElement
{
    QLatin1String name;
    unsigned traits;
};

template <int size>
constexpr NamedElement named(const char (&name)[size], unsigned traits)
{
    return {QLatin1String(name, size - 1), traits};
}

// In the order of the names.
constexpr NamedElement elements[] = {
    named("a", FontTrait | LinkTrait),
    named("address", FontTrait),
    named("applet", RefusedTrait),
    named("area", RefusedTrait),
    named("b", FontTrait),
    named("base", RefusedTrait),
    named("big", FontTrait | LargeTrait),
    named("blockquote", BlockTrait | QuoteTrait),
    named("body", BlockTrait | BodyTrait),
    named("br", VoidTrait | BreakTrait),
    named("caption", BlockTrait | CaptionTrait),
    named("center", BlockTrait),
    named("cite", FontTrait),
    named("code", FontTrait),
    named("col", RefusedTrait),
    named("colgroup", RefusedTrait),
    named("dd", BlockTrait | TermTrait),
    named("dfn", FontTrait),
    named("div", BlockTrait),
    named("dl", BlockTrait | TermListTrait),
    named("dt", BlockTrait | TermTrait),
    named("em", FontTrait),
    named("embed", RefusedTrait),
    named("font", FontTrait),
    named("frame", RefusedTrait),
    named("frameset", RefusedTrait),
    named("h1", BlockTrait | FontTrait | LargeTrait),
    named("h2", BlockTrait | FontTrait | LargeTrait),
    named("h3", BlockTrait | FontTrait | LargeTrait),
    named("h4", BlockTrait | FontTrait | LargeTrait),
    named("h5", BlockTrait | FontTrait | LargeTrait),
    named("h6", BlockTrait | FontTrait | LargeTrait),
    named("head", HiddenTrait | HeadTrait),
    named("hr", BlockTrait | VoidTrait | RuleTrait),
    named("html", 0),
    named("i", FontTrait),
    named("iframe", RefusedTrait),
    named("img", VoidTrait | ImageTrait),
    named("input", RefusedTrait),
    named("kbd", FontTrait),
    named("li", BlockTrait | ItemTrait),
    named("link", RefusedTrait),
    named("meta", HiddenTrait | VoidTrait | MetaTrait),
    named("nobr", 0),
    named("object", RefusedTrait),
    named("ol", BlockTrait | ListTrait),
    named("p", BlockTrait | ParagraphTrait),
    named("param", RefusedTrait),
    named("pre", BlockTrait | FontTrait | PreTrait),
    named("qt", BlockTrait | BodyTrait),
    named("s", FontTrait),
    named("samp", FontTrait),
    named("script", HiddenTrait | ScriptTrait),
    named("small", FontTrait),
    named("source", RefusedTrait),
    named("span", 0),
    named("strong", FontTrait),
    named("style", HiddenTrait | StyleTrait),
    named("sub", FontTrait),
    named("sup", FontTrait),
    named("table", TableTrait),
    named("tbody", SectionTrait),
    named("td", BlockTrait | CellTrait | DataCellTrait),
    named("tfoot", SectionTrait),
    named("th", BlockTrait | CellTrait | FontTrait),
    named("thead", SectionTrait),
    named("title", HiddenTrait),
    named("tr", RowTrait),
    named("track", RefusedTrait),
    named("tt", FontTrait),
    named("u", FontTrait),
    named("ul", BlockTrait | ListTrait),
    named("var", FontTrait),
    named("wbr", RefusedTrait),
};

} // namespace

unsigned lastHtmlElementId()
{
    return unsigned(std::size(elements));
}

HtmlElement findHtmlElement(QStringView name)
{
    const auto *const last = std::end(elements);
    const auto *const found = std::lower_bound(
        std::begin(elements), last, name,
        [](const NamedElement &element, QStringView wanted) { return element.name < wanted; });
    if (found == last || found->name != name) {
        return {};
    }
    return {unsigned(found - std::begin(elements)) + 1, found->traits};
}

} // namespace lctrlsex
