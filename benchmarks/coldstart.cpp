// Cold start to first page: pagerender on the minimal programme beside the bare program that
// draws one line. The two take turns, so that both see the same machine; medians are compared. What
// the browser chromium takes for the same page is told as well where it is installed.
//
// usage: coldstart PAGERENDER BAREPAGE PROGRAMME HTML-FILE OUTPUT-FOLDER [RUNS]

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char **environ;

namespace {

/** Milliseconds that the command takes, below 0 when it fails. */
double timeOf(const std::vector<std::string> &command)
{
    std::vector<char *> words;
    for (const std::string &word : command) {
        words.push_back(const_cast<char *>(word.c_str()));
    }
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", 1, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", 1, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = -1;
    if (posix_spawnp(&child, words[0], &actions, nullptr, words.data(), environ) == 0) {
        waitpid(child, &status, 0);
    }
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - start;
    posix_spawn_file_actions_destroy(&actions);
    return status == 0 ? taken.count() : -1;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/** Tells what a browser without a window takes for the same page, beside @p ours. */
void tellBrowser(const std::string &html, const std::string &folder, int runs, double ours)
{
    if (timeOf({"chromium", "--version"}) < 0) {
        std::puts("first page by a browser: skipped, there is no program chromium");
        return;
    }
    const std::string page = folder + "/browser.png";
    std::vector<std::string> command = {"chromium",
                                        "--headless",
                                        "--disable-gpu",
                                        "--hide-scrollbars",
                                        "--window-size=128,32",
                                        "--user-data-dir=" + folder + "/browser",
                                        "--screenshot=" + page,
                                        "file://" + html};
    if (geteuid() == 0) {
        command.insert(command.begin() + 1, "--no-sandbox"); // it refuses to start otherwise
    }
    std::vector<double> times;
    for (int i = 0; i <= runs; ++i) {
        unlink(page.c_str());
        const double time = timeOf(command);
        if (time < 0 || access(page.c_str(), R_OK) != 0) {
            std::puts("first page by a browser: skipped, chromium made none");
            return;
        }
        if (i > 0) {
            times.push_back(time);
        }
    }
    std::printf(
        "first page by a browser, %d runs: chromium %.1f ms, pagerender %.1f ms, ratio %.2f\n",
        runs, median(times), ours, ours / median(times));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 6) {
        std::fputs(
            "usage: coldstart PAGERENDER BAREPAGE PROGRAMME HTML-FILE OUTPUT-FOLDER [RUNS]\n",
            stderr);
        return 2;
    }
    const std::vector<std::string> page = {argv[1], "render", argv[3], "-o", argv[5]};
    const std::vector<std::string> bare = {argv[2]};
    const int runs = argc > 6 ? std::atoi(argv[6]) : 21;
    std::vector<double> pageTimes;
    std::vector<double> bareTimes;
    std::vector<double> ratios;
    for (int i = 0; i <= runs; ++i) {
        const double bareTime = timeOf(bare);
        const double pageTime = timeOf(page);
        if (bareTime < 0 || pageTime < 0) {
            std::fprintf(stderr, "%s failed\n", bareTime < 0 ? argv[2] : argv[1]);
            return 1;
        }
        if (i > 0) { // the first run warms the file cache
            bareTimes.push_back(bareTime);
            pageTimes.push_back(pageTime);
            ratios.push_back(pageTime / bareTime);
        }
    }
    std::printf("cold start, %d runs: bare program %.1f ms, pagerender %.1f ms, ratio %.2f\n", runs,
                median(bareTimes), median(pageTimes), median(ratios));
    tellBrowser(argv[4], argv[5], std::max(1, runs / 4), median(pageTimes));
    return 0;
}
