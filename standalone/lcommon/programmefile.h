#pragma once

#include "jsonplace.h"
#include "lcommon_global.h"
#include "lcontrollernode.h"

#include <QByteArray>
#include <QString>

#include <memory>

/** Why a programme file could not be read or written, fit for a user. */
struct LCOMMON_EXPORT ProgrammeError
{
    QString value;  ///< The value at fault, such as screens[1].frames[0].width; may be empty.
    TextPlace at;   ///< Where it stands in the file; line 0 when the file as a whole is meant.
    QString reason; ///< Empty: there is no error.
    QString remedy;

    [[nodiscard]] bool isSet() const { return !reason.isEmpty(); }
    /** "line 3, column 7, screens[1].name", or what of it is known. */
    [[nodiscard]] QString placeText() const;
};

/** A programme read from a file; null exactly when error says why. */
struct LCOMMON_EXPORT ReadProgramme
{
    std::unique_ptr<LControllerNode> controller;
    ProgrammeError error;
};

/** The version of the programme file format that is written; older ones are read. */
constexpr int ProgrammeFileVersion = 1;

/**
 * Reads a programme: a JSON object with controller > screens > frames > items. A file with a fault
 * opens not at all rather than half. Members that are not known stay with their node and are
 * written back. Never throws; any bytes may be given.
 */
[[nodiscard]] LCOMMON_EXPORT ReadProgramme readProgramme(const QByteArray &bytes);

/** readProgramme() of a file, or of standard input for the name "-". */
[[nodiscard]] LCOMMON_EXPORT ReadProgramme loadProgramme(const QString &fileName);

/** The file's bytes for a programme; readable, and the same for the same programme. */
[[nodiscard]] LCOMMON_EXPORT QByteArray writeProgramme(const LControllerNode &controller);

/**
 * Writes a programme file. The file holds either the old or the new content whenever the process or
 * the machine stops, and the old one when an error is returned.
 */
[[nodiscard]] LCOMMON_EXPORT ProgrammeError saveProgramme(const LControllerNode &controller,
                                                          const QString &fileName);
