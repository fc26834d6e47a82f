#include "keysuggestion.h"

#include "datapath.h"
#include "keyoffer.h"
#include "table/singlefields.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace player {

namespace {

/** Texts of this file, under one name for translators. */
struct KeySuggestionTexts
{
    Q_DECLARE_TR_FUNCTIONS(KeySuggestion)
};

constexpr int LongestKey = 200;

/** Letters to insert, to take out or to change between two texts. */
int distance(const QString &left, const QString &right)
{
    std::vector<int> row(size_t(right.size()) + 1);
    for (int j = 0; j <= right.size(); ++j) {
        row[size_t(j)] = j;
    }
    for (int i = 1; i <= left.size(); ++i) {
        int above = row[0];
        row[0] = i;
        for (int j = 1; j <= right.size(); ++j) {
            const int changed = above + (left.at(i - 1) == right.at(j - 1) ? 0 : 1);
            above = row[size_t(j)];
            row[size_t(j)] = std::min({changed, above + 1, row[size_t(j) - 1] + 1});
        }
    }
    return row.back();
}

} // namespace

QString nearestKey(const sources::DataSnapshot &data, const QString &key)
{
    QMap<QString, QString> offered;
    for (auto source = data.cbegin(); source != data.cend(); ++source) {
        for (const DataSourceKey &each : sources::offeredKeys(source->value)) {
            offered.insert(source.key() + QLatin1Char(':') + each.name, {});
        }
    }
    const QString wanted = key.left(LongestKey);
    // What differs in more than a third of its letters is another key, not a slip.
    int best = qMax(2, wanted.size() / 3) + 1;
    QString nearest;
    for (const QString &existing : offered.keys() + lctrlsex::singleFields(offered).keys()) {
        if (qAbs(existing.size() - wanted.size()) >= best) {
            continue;
        }
        const int letters = distance(wanted, existing.left(LongestKey));
        if (letters < best) {
            best = letters;
            nearest = existing;
        }
    }
    return nearest;
}

QString keyRemedy(const sources::DataSnapshot &data, const QString &key)
{
    const QString nearest = nearestKey(data, key);
    if (!nearest.isEmpty()) {
        return KeySuggestionTexts::tr("did you mean \"%1\"?").arg(nearest);
    }
    const QString source = SourceKey::fromText(key).source;
    return data.contains(source)
               ? KeySuggestionTexts::tr("choose a key that the source has")
               : KeySuggestionTexts::tr("add a source of the name \"%1\" or choose another key")
                     .arg(source);
}

} // namespace player
