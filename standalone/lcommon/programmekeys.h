#pragma once

#include <QString>

/** The names in a programme file that reader and writer share. */
namespace ProgrammeKeys {

inline const QString Format = QStringLiteral("format");
inline const QString FormatName = QStringLiteral("lctrlsex-programme");
inline const QString Version = QStringLiteral("version");
inline const QString Name = QStringLiteral("name");
inline const QString Controller = QStringLiteral("controller");
inline const QString Screens = QStringLiteral("screens");
inline const QString Frames = QStringLiteral("frames");
inline const QString Border = QStringLiteral("border");
inline const QString Items = QStringLiteral("items");
inline const QString Type = QStringLiteral("type");
inline const QString TextType = QStringLiteral("text");
inline const QString Document = QStringLiteral("document");
inline const QString Attributes = QStringLiteral("attributes");

// The attribute that every node keeps its name in.
inline const QString NodeName = QStringLiteral("Name");

// Attributes of a text item that the readable document stands for.
inline const QString RawHtml = QStringLiteral("RawHtml");
inline const QString DisplayHtml = QStringLiteral("Html");

// Dynamic properties in which a node keeps the members of its object that are not known.
constexpr char Unknown[] = "programmeUnknown";
constexpr char UnknownOfDevice[] = "programmeUnknownOfDevice";
constexpr char UnknownOfBorder[] = "programmeUnknownOfBorder";

} // namespace ProgrammeKeys
