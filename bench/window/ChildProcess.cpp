#include "bench/window/ChildProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace orrery::bench {
namespace {

Figures parseFigures(const std::string& output) {
    Figures figures;
    std::istringstream lines(output);
    std::string line;
    while (std::getline(lines, line))
        if (const std::size_t space = line.find(' '); space != std::string::npos)
            figures[line.substr(0, space)] = line.substr(space + 1);
    return figures;
}

std::string readAll(int descriptor) {
    std::string output;
    char buffer[4096];
    ssize_t count = 0;
    while ((count = read(descriptor, buffer, sizeof buffer)) > 0)
        output.append(buffer, static_cast<std::size_t>(count));
    return output;
}

} // namespace

std::optional<Figures> runChild(const std::string& mode, const std::string& argument) {
    char dataHome[] = "/tmp/bench_window.XXXXXX";
    int channel[2];
    if (mkdtemp(dataHome) == nullptr || pipe(channel) != 0)
        return std::nullopt;
    std::fflush(stdout);
    std::string words[] = {"bench_window", "--child", mode,
                           std::to_string(Clock::now().time_since_epoch().count()), argument};
    char* arguments[] = {words[0].data(),
                         words[1].data(),
                         words[2].data(),
                         words[3].data(),
                         argument.empty() ? nullptr : words[4].data(),
                         nullptr};
    const pid_t child = fork();
    if (child == 0) {
        dup2(channel[1], STDOUT_FILENO);
        close(channel[0]);
        close(channel[1]);
        setenv("XDG_DATA_HOME", dataHome, 1);
        setenv("XDG_RUNTIME_DIR", dataHome, 0); // where there is none, Qt warns

        execv("/proc/self/exe", arguments);
        _exit(127);
    }
    close(channel[1]);
    const std::string output = child > 0 ? readAll(channel[0]) : std::string();
    close(channel[0]);
    int status = 0;
    const bool done = child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
                      WEXITSTATUS(status) == 0;
    std::error_code ignored;
    std::filesystem::remove_all(dataHome, ignored);
    if (!done)
        return std::nullopt;
    return parseFigures(output);
}

Clock::time_point startFromArgument(const char* text) {
    return Clock::time_point(Clock::duration(std::strtoll(text, nullptr, 10)));
}

void report(const char* key, const std::string& value) {
    std::printf("%s %s\n", key, value.c_str());
    std::fflush(stdout);
}

void report(const char* key, double value) {
    report(key, std::to_string(value));
}

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

} // namespace orrery::bench
