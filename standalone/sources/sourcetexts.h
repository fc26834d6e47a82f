#pragma once

#include <QCoreApplication>

/** What data sources say to users, under one name for translators. */
struct SourceTexts
{
    Q_DECLARE_TR_FUNCTIONS(Sources)
};
