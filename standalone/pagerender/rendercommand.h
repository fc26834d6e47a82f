#pragma once

struct CommandLine;
class Report;
class LControllerNode;

/** Writes the page files; true when every page of every item wanted was written. */
bool renderProgramme(LControllerNode *programme, const CommandLine &line, Report *report);

/** Reports what would not be shown as meant; true when there is nothing. */
bool checkProgramme(LControllerNode *programme, const CommandLine &line, Report *report);
