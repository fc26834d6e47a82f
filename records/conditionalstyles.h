#pragma once

#include "recordsjson.h"

namespace lctrlsex {

/** @p key as it is known outside its source: source, ":" and key; an empty one stays empty. */
[[nodiscard]] QString qualified(const QString &source, const QString &key);

/**
 * Files an entry whose conditions have qualified keys under the source in front of their first
 * ":", which is made when it is missing, and takes the source off the keys: writing puts it there
 * again, once.
 *
 * A condition without a key belongs to what stands before it, in front to what follows. An entry
 * of several sources is filed under each of them with its own conditions; one of no source, and
 * keys without a ":", under the empty name, so that nothing is lost that is not bound yet.
 */
void fileEntry(ConditionalStyles *styles, const FieldConditions &entry);

/**
 * What the styling dialog edits: the entries of all sources with qualified keys, and @p fields, the
 * qualified names that a condition can be bound to.
 */
[[nodiscard]] DynamicData combinedStyles(const ConditionalStyles &styles,
                                         const QStringList &fields);

/**
 * Takes over what the dialog made of combinedStyles(): the entries of every source go, the sources
 * stay, and each entry of @p result is filed anew.
 */
void takeStyles(ConditionalStyles *styles, const DynamicData &result);

/**
 * What an editor offers: the names of the entries by identifier. The last of equal identifiers
 * counts; without one nothing can refer to an entry.
 */
[[nodiscard]] QMap<QString, QString> styleNames(const ConditionalStyles &styles);

/** What an editor offers: the default values by key, likewise. */
[[nodiscard]] QMap<QString, QString>
defaultValues(const QVector<CalculationCondition> &calculations);

} // namespace lctrlsex
