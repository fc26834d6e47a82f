// Saves a programme under another name of the controller, for the tests that stop it half-way.
//
// usage: saveprogramme SOURCE TARGET NAME

#include "programmefile.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        return 2;
    }
    const ReadProgramme read = loadProgramme(arguments.at(1));
    if (read.controller == nullptr) {
        return 2;
    }
    read.controller->SetName(arguments.at(3));
    const ProgrammeError error = saveProgramme(*read.controller, arguments.at(2));
    if (error.isSet()) {
        std::fprintf(stderr, "%s; %s\n", qPrintable(error.reason), qPrintable(error.remedy));
        return 1;
    }
    return 0;
}
