#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int Patience = 30000; // milliseconds

/** A display of its own with a window manager, and the workbench on it, driven as a user would. */
class Desktop
{
public:
    explicit Desktop(const QString &home)
        : m_environment(QProcessEnvironment::systemEnvironment())
    {
        m_server.start("Xvfb",
                       {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
        if (!m_server.waitForReadyRead(Patience)) {
            return;
        }
        m_environment.insert("DISPLAY", ":" + m_server.readLine().trimmed());
        m_environment.insert("QT_QPA_PLATFORM", "xcb");
        m_environment.insert("HOME", home);
        m_environment.insert("LCTRLSEX_DATA_DIR", home + "/data");
        m_manager.setProcessEnvironment(m_environment);
        m_manager.start("openbox", QStringList());
        isUp = m_manager.waitForStarted(Patience);
    }

    ~Desktop()
    {
        for (QProcess *process : {&m_workbench, &m_manager, &m_server}) {
            process->kill();
            process->waitForFinished(Patience);
        }
    }

    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    /** Starts the workbench and waits for its window. */
    bool open(const QString &file)
    {
        m_workbench.setProcessEnvironment(m_environment);
        m_workbench.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_workbench.start(LCTRLSEX_WORKBENCH, {"--language", "en", "--palette", "light", file});
        const bool isShown =
            m_workbench.waitForStarted(Patience) &&
            !run("xdotool", {"search", "--sync", "--onlyvisible", "--name", " – Workbench"})
                 .isEmpty();
        xdotool({"search", "--onlyvisible", "--name", " – Workbench", "windowactivate", "--sync",
                 "windowsize", "100%", "100%", "windowmove", "0", "0"});
        QTest::qWait(1500);
        return isShown;
    }

    void xdotool(const QStringList &arguments) { run("xdotool", arguments); }
    void key(const QString &keys)
    {
        xdotool({"key", "--clearmodifiers", keys});
        QTest::qWait(100);
    }

    [[nodiscard]] QString title()
    {
        return run("xdotool",
                   {"search", "--onlyvisible", "--name", " – Workbench", "getwindowname"});
    }

    [[nodiscard]] QImage screenshot()
    {
        return QImage::fromData(runRaw("import", {"-window", "root", "png:-"}));
    }

    /** Quits by the keyboard; the exit code, -1 when the program stays. */
    int quit()
    {
        key("ctrl+q");
        const bool isOver =
            m_workbench.state() == QProcess::NotRunning || m_workbench.waitForFinished(Patience);
        return isOver && m_workbench.exitStatus() == QProcess::NormalExit ? m_workbench.exitCode()
                                                                          : -1;
    }

    bool isUp = false;

private:
    QByteArray runRaw(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(program, arguments);
        process.waitForFinished(Patience);
        return process.readAllStandardOutput();
    }
    QString run(const QString &program, const QStringList &arguments)
    {
        return QString::fromUtf8(runRaw(program, arguments)).trimmed();
    }

    QProcessEnvironment m_environment;
    QProcess m_server;
    QProcess m_manager;
    QProcess m_workbench;
};

/** Whether @p part stands somewhere in @p whole, pixel by pixel. */
bool contains(const QImage &whole, const QImage &part)
{
    const QImage large = whole.convertToFormat(QImage::Format_RGB32);
    const QImage small = part.convertToFormat(QImage::Format_RGB32);
    const auto rowsEqual = [&](int x, int y) {
        for (int row = 0; row < small.height(); ++row) {
            const auto *left = reinterpret_cast<const QRgb *>(large.constScanLine(y + row)) + x;
            const auto *right = reinterpret_cast<const QRgb *>(small.constScanLine(row));
            if (!std::equal(right, right + small.width(), left)) {
                return false;
            }
        }
        return true;
    };
    for (int y = 0; y + small.height() <= large.height(); ++y) {
        for (int x = 0; x + small.width() <= large.width(); ++x) {
            if (rowsEqual(x, y)) {
                return true;
            }
        }
    }
    return false;
}

QByteArray bytesOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/** A user's session with the real programs on a display. */
class TestEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void typeFormatSaveReopenRender();
};

void TestEndToEnd::typeFormatSaveReopenRender()
{
    QTemporaryDir home;
    const QString file = home.filePath("session.programme.json");
    QVERIFY(QFile::copy(LCTRLSEX_SOURCE_DIR "/examples/demo.programme.json", file));
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner));
    Desktop desktop(home.path());
    QVERIFY2(desktop.isUp, "needs Xvfb and openbox");

    QVERIFY(desktop.open(file));
    desktop.xdotool({"mousemove", "500", "300", "click", "1"}); // below the text: behind its end
    desktop.key("ctrl+Home");
    desktop.xdotool({"type", "--delay", "30", "HELLO "});
    desktop.key("Left");
    desktop.key("ctrl+shift+Left");
    desktop.key("ctrl+b");
    desktop.key("ctrl+u");
    QTRY_VERIFY(desktop.title().startsWith("session*"));
    desktop.key("ctrl+s");
    QTRY_VERIFY(desktop.title().startsWith("session "));
    QCOMPARE(desktop.quit(), 0);
    const QByteArray saved = bytesOf(file);
    QVERIFY(saved.contains("HELLO"));

    QCOMPARE(QProcess::execute(LCTRLSEX_PAGERENDER, {"render", file, "-o", home.path(), "--item",
                                                     "Headline", "--quiet"}),
             0);
    const QStringList pages = QDir(home.path()).entryList({"*.png"});
    QCOMPARE(pages.size(), 1);
    const QImage page(home.filePath(pages.first()));
    QVERIFY(!page.isNull());

    QVERIFY(desktop.open(file));
    QImage shown;
    // The frame of the selected item may touch the outermost pixels.
    const QImage inner = page.copy(page.rect().adjusted(3, 3, -3, -3));
    QTRY_VERIFY_WITH_TIMEOUT(contains(shown = desktop.screenshot(), inner), 10000);
    QCOMPARE(desktop.quit(), 0);
    QCOMPARE(bytesOf(file), saved);
}

QTEST_GUILESS_MAIN(TestEndToEnd)
#include "tst_endtoend.moc"
