#pragma once

#include "mainwindow.h"
#include "pluginloader.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/** Fails with all the faults that are still found after a while, of which there should be none. */
#define TELL(faults)                                                                               \
    do {                                                                                           \
        QStringList found;                                                                         \
        const bool isWell = QTest::qWaitFor([&] { return (found = (faults)).isEmpty(); }, 3000);   \
        QVERIFY2(isWell, qPrintable(found.join("\n")));                                            \
    } while (false)

/** The workbench's window with the real plug-in, on a programme whose own texts begin with "#". */
class LanguageWindow
{
public:
    /** Makes the folders, loads the plug-in and finds the catalogues; a fault if it cannot. */
    QString setUp();
    bool open(const QSize &size);
    void close() { m_window.reset(); }

    /** What the window can be brought to show. */
    static QStringList states();
    void enter(const QString &state);
    bool speak(const QString &language);

    [[nodiscard]] workbench::MainWindow *operator->() const { return m_window.get(); }
    [[nodiscard]] workbench::MainWindow *get() const { return m_window.get(); }

private:
    LNode *node(const QList<int> &path) const;

    workbench::LoadedPlugin m_plugin;
    QTemporaryDir m_folder;
    std::unique_ptr<workbench::MainWindow> m_window;
};

/** Dresses the application as the program does. */
void dressApplication();
