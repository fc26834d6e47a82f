#pragma once

#include "sourcesettings.h"

namespace sources {

/**
 * Secrets are kept out of programme files: a member names the environment variable that holds it,
 * as ${env:NAME}, and the reference is resolved each time that the source is read.
 */
[[nodiscard]] bool hasReference(const QString &text);

/**
 * @p text with each reference replaced; what it is replaced by is not looked at again. When a
 * variable is not set, an empty text, and @p error says which.
 */
[[nodiscard]] QString resolveReferences(const QString &text, QString *error);

/** @p text without what stands for secrets in an address, fit for reports. */
[[nodiscard]] QString withoutSecrets(const QString &text);

/** A fault for each secret that stands in clear in the object of a source, to any depth. */
[[nodiscard]] QVector<SettingsFault> secretFaults(const QJsonObject &source, const JsonPath &path);

} // namespace sources
