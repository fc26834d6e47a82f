#pragma once

#include "recordsjson.h"

#include <QHash>

namespace lctrlsex {

/** @p key as it is known outside its source: source, ":" and key; an empty one stays empty. */
[[nodiscard]] QString qualified(const QString &source, const QString &key);

/**
 * Files entries whose conditions have qualified keys.
 *
 * A condition is filed under the source in front of the first ":" of its key, which is made when
 * it is missing, and the source taken off the key: writing puts it there again, once. A condition
 * without a key belongs to the one before it. An entry of several sources is filed under each of
 * them with its own conditions. What is bound to no source yet, and keys without a ":" or with
 * nothing behind it, stand under the empty name, so that nothing is lost.
 */
class StyleFiler
{
public:
    /** Files into @p styles, which must outlive it. */
    explicit StyleFiler(ConditionalStyles *styles)
        : m_styles(styles)
    {}

    /** Files all of @p entry. */
    void file(const FieldConditions &entry);

    /** From now on conditions are those of @p entry, whose own are not filed. */
    void begin(const FieldConditions &entry);
    /** Files one condition of the entry that was begun. */
    void add(SpanCondition condition);

private:
    /** The entry under the present source; made when it is missing. */
    FieldConditions &place();

    ConditionalStyles *m_styles;
    FieldConditions m_entry; ///< Without its conditions.
    QString m_source;
    QHash<QString, int> m_places; ///< Where the entry stands among those of each of its sources.
};

/**
 * What the styling dialog edits: the entries of all sources with qualified keys, and @p fields, the
 * qualified names that a condition can be bound to.
 */
[[nodiscard]] DynamicData combinedStyles(const ConditionalStyles &styles,
                                         const QStringList &fields);

/**
 * What an editor offers: the names of the entries by identifier. The last of equal identifiers
 * counts; without one nothing can refer to an entry.
 */
[[nodiscard]] QMap<QString, QString> styleNames(const ConditionalStyles &styles);

/** What an editor offers: the default values by key, likewise. */
[[nodiscard]] QMap<QString, QString>
defaultValues(const QVector<CalculationCondition> &calculations);

} // namespace lctrlsex
