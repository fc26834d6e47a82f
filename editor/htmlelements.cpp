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

// In the order of the names.
constexpr NamedElement elements[] = {
    {QLatin1String("a"), FontTrait},
    {QLatin1String("address"), FontTrait},
    {QLatin1String("applet"), RefusedTrait},
    {QLatin1String("area"), RefusedTrait},
    {QLatin1String("b"), FontTrait},
    {QLatin1String("base"), RefusedTrait},
    {QLatin1String("big"), FontTrait | LargeTrait},
    {QLatin1String("blockquote"), BlockTrait | QuoteTrait},
    {QLatin1String("body"), BlockTrait | BodyTrait},
    {QLatin1String("br"), VoidTrait | BreakTrait},
    {QLatin1String("caption"), BlockTrait | CaptionTrait},
    {QLatin1String("center"), BlockTrait},
    {QLatin1String("cite"), FontTrait},
    {QLatin1String("code"), FontTrait},
    {QLatin1String("col"), RefusedTrait},
    {QLatin1String("colgroup"), RefusedTrait},
    {QLatin1String("dd"), BlockTrait | TermTrait},
    {QLatin1String("dfn"), FontTrait},
    {QLatin1String("div"), BlockTrait},
    {QLatin1String("dl"), BlockTrait | TermListTrait},
    {QLatin1String("dt"), BlockTrait | TermTrait},
    {QLatin1String("em"), FontTrait},
    {QLatin1String("embed"), RefusedTrait},
    {QLatin1String("font"), FontTrait},
    {QLatin1String("frame"), RefusedTrait},
    {QLatin1String("frameset"), RefusedTrait},
    {QLatin1String("h1"), BlockTrait | FontTrait | LargeTrait},
    {QLatin1String("h2"), BlockTrait | FontTrait | LargeTrait},
    {QLatin1String("h3"), BlockTrait | FontTrait | LargeTrait},
    {QLatin1String("h4"), BlockTrait | FontTrait | LargeTrait},
    {QLatin1String("h5"), BlockTrait | FontTrait | LargeTrait},
    {QLatin1String("h6"), BlockTrait | FontTrait | LargeTrait},
    {QLatin1String("head"), HiddenTrait | HeadTrait},
    {QLatin1String("hr"), BlockTrait | VoidTrait | RuleTrait},
    {QLatin1String("html"), 0},
    {QLatin1String("i"), FontTrait},
    {QLatin1String("iframe"), RefusedTrait},
    {QLatin1String("img"), VoidTrait | ImageTrait},
    {QLatin1String("input"), RefusedTrait},
    {QLatin1String("kbd"), FontTrait},
    {QLatin1String("li"), BlockTrait | ItemTrait},
    {QLatin1String("link"), RefusedTrait},
    {QLatin1String("meta"), HiddenTrait | VoidTrait | MetaTrait},
    {QLatin1String("nobr"), 0},
    {QLatin1String("object"), RefusedTrait},
    {QLatin1String("ol"), BlockTrait | ListTrait},
    {QLatin1String("p"), BlockTrait | ParagraphTrait},
    {QLatin1String("param"), RefusedTrait},
    {QLatin1String("pre"), BlockTrait | FontTrait | PreTrait},
    {QLatin1String("qt"), BlockTrait | BodyTrait},
    {QLatin1String("s"), FontTrait},
    {QLatin1String("samp"), FontTrait},
    {QLatin1String("script"), HiddenTrait | ScriptTrait},
    {QLatin1String("small"), FontTrait},
    {QLatin1String("source"), RefusedTrait},
    {QLatin1String("span"), 0},
    {QLatin1String("strong"), FontTrait},
    {QLatin1String("style"), HiddenTrait | StyleTrait},
    {QLatin1String("sub"), FontTrait},
    {QLatin1String("sup"), FontTrait},
    {QLatin1String("table"), TableTrait},
    {QLatin1String("tbody"), SectionTrait},
    {QLatin1String("td"), BlockTrait | CellTrait | DataCellTrait},
    {QLatin1String("tfoot"), SectionTrait},
    {QLatin1String("th"), BlockTrait | CellTrait | FontTrait},
    {QLatin1String("thead"), SectionTrait},
    {QLatin1String("title"), HiddenTrait},
    {QLatin1String("tr"), RowTrait},
    {QLatin1String("track"), RefusedTrait},
    {QLatin1String("tt"), FontTrait},
    {QLatin1String("u"), FontTrait},
    {QLatin1String("ul"), BlockTrait | ListTrait},
    {QLatin1String("var"), FontTrait},
    {QLatin1String("wbr"), RefusedTrait},
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
