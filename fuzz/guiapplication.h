#pragma once

#include <QGuiApplication>

/** The application without which there are no fonts; made once and never taken down. */
inline void needGuiApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *arguments[] = {name, nullptr};
    static const bool isSet = qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto *const application = new QGuiApplication(count, arguments);
    Q_UNUSED(isSet)
    Q_UNUSED(application)
}
