#pragma once

#include <QCoreApplication>

/** What reading and writing programme files says to users, under one name for translators. */
struct ProgrammeFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(ProgrammeFile)
};
