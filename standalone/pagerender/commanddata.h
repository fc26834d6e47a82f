#pragma once

#include "datasnapshot.h"

struct CommandLine;
class Report;

/**
 * The data that a command line names, by the names of its sources; nothing where it names none.
 * False, with problems reported, when some of it cannot be read.
 */
bool readData(const CommandLine &line, sources::DataSnapshot *data, Report *report);
