#pragma once

#include "sourcereader.h"

#include <QStringList>

#include <memory>

namespace sources {

/** A kind of source: its number in the settings and what reads it. */
struct SourceKind
{
    int type;
    const char *name; ///< Fit for a user once translated in the context "Sources".
    std::unique_ptr<SourceReader> (*make)(const SourceSettings &, const SourceContext &);
};

/** Every kind that there is, by its number. */
[[nodiscard]] const QVector<SourceKind> &sourceKinds();

/** The reader of a source; null for a number without a kind. */
[[nodiscard]] std::unique_ptr<SourceReader> makeReader(const SourceSettings &settings,
                                                       const SourceContext &context);

} // namespace sources
