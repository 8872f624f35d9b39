// Measures parsing an option file, parsing the same arguments from memory, and reading the file
// alone. Declaring and releasing are not timed.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "measurements/Measurements.h"
#include "peers/KexaHost.h"
#include "support/ProcessorTime.h"

namespace benchmarks
{

namespace
{

// A temporary file with the workload's arguments, removed by the destructor.
class OptionFile
{
public:
    explicit OptionFile(const Workload& workload)
        : m_path(std::filesystem::temp_directory_path() /
                 ("kexa-benchmark-" +
                  std::to_string(std::chrono::steady_clock::now().time_since_epoch().count())))
    {
        writeOptionFile(workload, m_path.string());
    }
    OptionFile(const OptionFile&) = delete;
    OptionFile& operator=(const OptionFile&) = delete;
    ~OptionFile()
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }

    std::string path() const { return m_path.string(); }

private:
    std::filesystem::path m_path;
};

std::string readFile(const std::string& path)
{
    std::string bytes(std::filesystem::file_size(path), '\0');
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    const std::size_t count = file == nullptr ? 0 : std::fread(bytes.data(), 1, bytes.size(), file);
    if (file != nullptr)
    {
        std::fclose(file);
    }
    if (count != bytes.size())
    {
        throw std::runtime_error("cannot read " + path);
    }
    return bytes;
}

template <class Prepare, class Timed>
void measure(benchmark::State& state, Prepare prepare, Timed timed)
{
    for (auto _ : state)
    {
        auto prepared = prepare();
        timeIteration(state, [&] { timed(*prepared); });
    }
}

// Parses the file once, compares every reading, and returns the first difference. The host is
// destroyed before time is measured: with a second result of hundreds of megabytes alive, the
// measured parse would include page faults for memory that it otherwise reuses.
std::string check(const Workload& workload, const std::string& path)
{
    KexaFileHost host(workload, path);
    host.parse();
    Record record(workload.options().size());
    host.read(record);
    return record.difference(workload);
}

void measureFile(benchmark::State& state, Session& session, const std::string& name)
{
    const Workload& workload = session.workload(name);
    const OptionFile file(workload);
    const std::string difference = check(workload, file.path());
    if (!difference.empty())
    {
        session.fail(state, difference);
        return;
    }
    measure(
        state, [&] { return std::make_unique<KexaFileHost>(workload, file.path()); },
        [](KexaFileHost& host) { host.parse(); });
}

void measureMemory(benchmark::State& state, Session& session, const std::string& name)
{
    const Workload& workload = session.workload(name);
    measure(
        state, [&] { return std::make_unique<KexaHost>(workload); },
        [](KexaHost& host) { host.parse(); });
}

void measureReading(benchmark::State& state, Session& session, const std::string& name)
{
    const OptionFile file(session.workload(name));
    measure(
        state, [&] { return std::make_unique<std::string>(file.path()); },
        [](const std::string& path) { benchmark::DoNotOptimize(readFile(path)); });
}

} // namespace

void registerOptionFiles(Session& session, const Selection& selection)
{
    using Measure = void (*)(benchmark::State&, Session&, const std::string&);
    constexpr std::pair<const char*, Measure> measures[] = {
        {"option file", measureFile}, {"memory", measureMemory}, {"reading", measureReading}};
    for (const std::size_t size : selection.sizes({100, 1000, 10000, 100000, 1000000}))
    {
        const std::string name = "lines/" + std::to_string(size);
        for (const auto& [what, run] : measures)
        {
            const std::string title = "file/" + name + "/" + what;
            benchmark::RegisterBenchmark(title.c_str(),
                                         [&session, name, timed = run](benchmark::State& state)
                                         { timed(state, session, name); })
                ->UseManualTime();
        }
    }
}

} // namespace benchmarks
