// Runs the given programs in turns, COUNT times each, and prints for each the median time from its
// start to its end in microseconds. Shows how much time loading the library adds to a program.
//
//   benchmark_load COUNT PROGRAM...
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>

namespace
{

// Runs the program and returns its time in microseconds, negative where it failed.
double run(char* program)
{
    char* arguments[] = {program, nullptr};
    char* environment[] = {nullptr};
    pid_t child = 0;
    int status = -1;
    const auto begin = std::chrono::steady_clock::now();
    if (posix_spawn(&child, program, nullptr, nullptr, arguments, environment) != 0 ||
        waitpid(child, &status, 0) != child || status != 0)
    {
        return -1;
    }
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - begin;
    return time.count();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
    {
        return EXIT_FAILURE;
    }
    const int count = std::atoi(argv[1]);
    std::vector<std::vector<double>> times(static_cast<std::size_t>(argc - 2));
    for (int round = 0; round < count; ++round)
    {
        for (std::size_t i = 0; i < times.size(); ++i)
        {
            times[i].push_back(run(argv[i + 2]));
            if (times[i].back() < 0)
            {
                std::fprintf(stderr, "%s failed\n", argv[i + 2]);
                return EXIT_FAILURE;
            }
        }
    }
    for (std::vector<double>& each : times)
    {
        std::sort(each.begin(), each.end());
        std::printf("%.1f\n", each[each.size() / 2]);
    }
    return EXIT_SUCCESS;
}
