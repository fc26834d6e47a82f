#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

/** What the user asked of pagerender. */
struct CommandLine
{
    enum Command { Help, Version, Render, Check, Watch, Mistake };

    Command command = Mistake;
    QString text;           ///< Help or Version: to be printed. Mistake: what is wrong, one line.
    QString programme;      ///< File name, or "-" for standard input.
    QString outputFolder;   ///< Render and Watch.
    QStringList items;      ///< Names or places of the items wanted; empty: all.
    QSize size;             ///< In place of every item's own; invalid: their own.
    QStringList dataFiles;  ///< SOURCE=FILE, each.
    QStringList settings;   ///< source:key=value, each.
    QString recordFolder;   ///< Watch: where recordings of the sources go; empty: none are made.
    bool isLenient = false; ///< Render and Watch: make pages although something is not as meant.
    bool asJson = false;
    bool isQuiet = false;
};

/** Reads the arguments behind the program's name. */
[[nodiscard]] CommandLine readCommandLine(const QStringList &arguments);
