#pragma once

#include "lcommon_global.h"

#include <QString>

/**
 * The folder whose files decide which font families the editor offers.
 *
 * It is filled with symbolic links named after their family, one for each family of which the
 * system has an upright regular face in a TrueType file or collection. What is there already, a
 * user's own file above all, is never replaced. GUI thread only.
 */
class LCOMMON_EXPORT FontFolder
{
public:
    /** When to ask the system for its fonts. */
    enum Mode {
        /** Only when the folder was never filled or one of its links leads nowhere. */
        WhenNeeded,
        /** In any case: takes in families that were installed since. */
        Always,
    };

    /** What became of a fill. */
    struct Result
    {
        /** Font files that the folder holds now, those of the user included. */
        int files = 0;
        /** A family among the folder's links that has Chinese characters; empty when none has. */
        QString cjkFamily;
        /** Whether the folder was found filled and left as it was. */
        bool skipped = false;
        /** Why the folder could not be filled, fit for the user; empty when it could. */
        QString error;
    };

    /** Where the folder is: "outputpath/Font" in the application's data folder. */
    [[nodiscard]] static QString path();

    /** Fills @p folder, path() when it is empty, and makes it when it is missing. */
    static Result fill(Mode mode = WhenNeeded, const QString &folder = QString());
};
