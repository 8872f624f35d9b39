// Measures memory by the heap's counters and by the system's. Prints names and numbers.
//
//   benchmark_memory value PEER WORKLOAD   heap memory of one stored value
//   benchmark_memory write COUNT FILE      writes an option file with COUNT lines; prints the
//                                          least that its result must hold
//   benchmark_memory file FILE             parses the option file; prints the memory
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <malloc.h>

#include "peers/KexaHost.h"
#include "peers/Peer.h"
#include "workloads/Catalogue.h"

namespace
{

using benchmarks::Peer;
using benchmarks::Workload;

// Returns the bytes in use, including blocks that are mapped one by one.
std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// Returns a line of this process's status in bytes; keys are "VmRSS" and "VmHWM".
std::size_t statusBytes(const std::string& key)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
    {
        if (line.compare(0, key.size() + 1, key + ":") == 0)
        {
            return std::stoul(line.substr(key.size() + 1)) * 1024;
        }
    }
    throw std::runtime_error("no " + key + " in /proc/self/status");
}

// Sets VmHWM to the memory that is resident now.
void resetPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

void printValue(const Peer& peer, const Workload& workload)
{
    const auto host = peer.declare(workload);
    const std::size_t before = heapInUse();
    host->parse();
    const std::size_t after = heapInUse();
    std::printf("bytes_for_each_value %.1f\n",
                static_cast<double>(after - before) /
                    static_cast<double>(workload.arguments().size()));
}

// Returns the sum over all values of: the text as a null-terminated string, a pointer to it, the
// data word and the type of its variant, and its position.
std::size_t leastResultSize(const Workload& workload)
{
    constexpr std::size_t fixedPart =
        sizeof(const wchar_t*) + sizeof(std::uint64_t) + 2 * sizeof(std::int32_t);
    std::size_t size = 0;
    for (const std::string& argument : workload.arguments())
    {
        const std::wstring wide = benchmarks::widen(argument);
        const std::size_t equals = wide.find(L'=');
        const std::size_t length = equals == std::wstring::npos ? 1 : wide.size() - equals - 1;
        size += fixedPart + (length + 1) * sizeof(wchar_t);
    }
    return size;
}

void parseFile(const std::string& path)
{
    const auto declarations = benchmarks::makeWorkload("lines/0");
    benchmarks::KexaFileHost host(*declarations, path);
    const std::size_t before = statusBytes("VmRSS");
    const std::size_t heapBefore = heapInUse();
    resetPeak();
    host.parse();
    std::printf("peak_bytes %zu\nresident_bytes_after %zu\nheap_bytes_after %zu\n",
                statusBytes("VmHWM") - before, statusBytes("VmRSS") - before,
                heapInUse() - heapBefore);
}

void dispatch(const std::vector<std::string>& arguments)
{
    const std::string& command = arguments.at(0);
    if (command == "value")
    {
        printValue(benchmarks::peerNamed(arguments.at(1)),
                   *benchmarks::makeWorkload(arguments.at(2)));
    }
    else if (command == "write")
    {
        const auto workload = benchmarks::makeWorkload("lines/" + arguments.at(1));
        benchmarks::writeOptionFile(*workload, arguments.at(2));
        std::printf("least_result_bytes %zu\n", leastResultSize(*workload));
    }
    else if (command == "file")
    {
        parseFile(arguments.at(1));
    }
    else
    {
        throw std::invalid_argument("no such command: " + command);
    }
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        dispatch({argv + 1, argv + argc});
        return EXIT_SUCCESS;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "benchmark_memory: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
