#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace lctrlsex {

/**
 * The fields that conditions and calculations look at, by qualified name with their values: of
 * "source:list.{a,b}[]" and "source:record.{a,b}" the single ones, "source:list.a" with its value
 * on the first line; every other key of @p offered as it is.
 */
[[nodiscard]] QMap<QString, QString> singleFields(const QMap<QString, QString> &offered);

/** The names of @p fields in their order, those of the key @p bound in front. */
[[nodiscard]] QStringList fieldsInOrder(const QMap<QString, QString> &fields, const QString &bound);

} // namespace lctrlsex
