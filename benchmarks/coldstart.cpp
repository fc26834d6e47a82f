// Cold start to first page: pagerender on the minimal programme beside the bare program that
// draws one line. The two take turns, so that both see the same machine; medians are compared.
//
// usage: coldstart PAGERENDER BAREPAGE PROGRAMME OUTPUT-FOLDER [RUNS]

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
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
    if (posix_spawn(&child, words[0], &actions, nullptr, words.data(), environ) == 0) {
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

} // namespace

int main(int argc, char **argv)
{
    if (argc < 5) {
        std::fputs("usage: coldstart PAGERENDER BAREPAGE PROGRAMME OUTPUT-FOLDER [RUNS]\n", stderr);
        return 2;
    }
    const std::vector<std::string> page = {argv[1], "render", argv[3], "-o", argv[4]};
    const std::vector<std::string> bare = {argv[2]};
    const int runs = argc > 5 ? std::atoi(argv[5]) : 21;
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
    return 0;
}
