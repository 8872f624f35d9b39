// Different parsers may be used by different threads at the same time.
#include <algorithm>
#include <array>
#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

constexpr int parses = 100000;

// Runs an action in several threads, which start it at the same time. Passes the index of the
// thread.
void inThreads(int count, const std::function<void(int)>& action)
{
    std::atomic<int> waiting{count};
    std::vector<std::thread> threads;
    for (int number = 0; number < count; ++number)
    {
        threads.emplace_back(
            [&action, &waiting, number]
            {
                --waiting;
                while (waiting > 0)
                {
                    std::this_thread::yield();
                }
                action(number);
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
}

// A host with predictable parses. The results are not compared with GoogleTest's macros, which are
// too slow for so many parses.
class ThreadHost
{
public:
    explicit ThreadHost(int number) : m_own(L"option-of-" + std::to_wstring(number))
    {
        m_host.addOption((m_own + L",o").c_str()).setDefaultValue(vexkit2::variant_t(L"default"));
        m_host.addOption(L"level,l", value_type_integer64);
        m_host.addOption(L"mode")
            .addAllowedValue(vexkit2::variant_t(L"fast"))
            .addAllowedValue(vexkit2::variant_t(L"slow"));
        m_host.addPositional(L"file");
        m_host.addSwitch(L"build");
        m_host.addSwitch(L"clean");
    }

    // Parses arguments that depend on the round. Returns whether the results are right.
    bool parse(int round)
    {
        m_host.renewResult();
        const std::wstring number = std::to_wstring(round);
        switch (round % 4)
        {
        case 0:
            return parseValues(number);
        case 1:
            return m_host.parse({L"--build", L"--mode=s", L"--", number.c_str()}) == 0 &&
                   m_host.texts(L"mode") == Texts{L"slow"} &&
                   m_host.texts(L"file") == Texts{number} &&
                   m_host.texts(L"o") == Texts{L"default"};
        case 2:
            return m_host.parse({(L"-unknown-" + number).c_str()}) == 2 &&
                   m_host.message() == L"Unknown option: -unknown-" + number;
        default:
            return m_host.parse({L"--clean", (L"--level=x" + number).c_str()}) == 2 &&
                   m_host.message() == L"Value validation problem in argument '--level=x" + number +
                                           L"': Option 'level' can not parse 'x" + number +
                                           L"' value, requires a type '64 bit integer' here.";
        }
    }

    Host& host() { return m_host; }

private:
    bool parseValues(const std::wstring& number)
    {
        const std::wstring level = L"--level=" + number + L",-" + number;
        const std::wstring own = L"--" + m_own + L"=own";
        return m_host.parse({L"--build", level.c_str(), own.c_str(), L"a.txt"}) == 0 &&
               m_host.texts(L"l") == Texts{number, L"-" + number} &&
               m_host.texts(m_own.c_str()) == Texts{L"own"} &&
               m_host.texts(L"file") == Texts{L"a.txt"} && m_host.isPresent(L"build");
    }

    std::wstring m_own;
    Host m_host{flag_unknown_is_error | flag_no_hyphen_positional};
};

} // namespace

TEST(ParsersInThreads, OfTwoThreadsGiveRightResults)
{
    std::atomic<int> wrong{0};
    std::atomic<int> done{0};
    inThreads(2,
              [&](int number)
              {
                  ThreadHost host(number);
                  for (int round = 0; round < parses; ++round)
                  {
                      wrong += host.parse(round) ? 0 : 1;
                      ++done;
                  }
              });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(done, 2 * parses);
}

// All parsers of the process share the counter of positions. Several rounds make it likely that
// both threads really convert values at the same time.
TEST(ParsersInThreads, GiveOutUniqueAscendingPositions)
{
    constexpr int rounds = 20;
    constexpr std::size_t values = 20000;
    std::wstring list = L"--number=";
    for (std::size_t count = 0; count < values; ++count)
    {
        list += L"1,";
    }
    std::array<Host, 2> hosts;
    std::array<std::vector<std::int32_t>, 2> positions;
    for (Host& host : hosts)
    {
        host.addOption(L"number", value_type_integer);
    }
    for (int round = 0; round < rounds; ++round)
    {
        inThreads(2, [&](int number)
                  { hosts.at(static_cast<std::size_t>(number)).parse({list.c_str()}); });
        for (std::size_t number = 0; number < hosts.size(); ++number)
        {
            for (const ReadValue& value : hosts[number].values(L"number"))
            {
                positions[number].push_back(value.position);
            }
            hosts[number].renewResult();
        }
    }
    std::vector<std::int32_t> all;
    for (const std::vector<std::int32_t>& ofThread : positions)
    {
        EXPECT_EQ(ofThread.size(), rounds * values);
        EXPECT_TRUE(std::is_sorted(ofThread.begin(), ofThread.end())) << "a position ran backwards";
        all.insert(all.end(), ofThread.begin(), ofThread.end());
    }
    std::sort(all.begin(), all.end());
    EXPECT_EQ(std::adjacent_find(all.begin(), all.end()), all.end()) << "a position was used twice";
}

TEST(ParsersInThreads, MayBeMadeAndReleasedAtTheSameTime)
{
    std::atomic<int> wrong{0};
    inThreads(4,
              [&](int number)
              {
                  for (int round = 0; round < 1000; ++round)
                  {
                      ThreadHost host(number);
                      wrong += host.parse(round) ? 0 : 1;
                  }
              });
    EXPECT_EQ(wrong, 0);
}

TEST(ParsersInThreads, MayBeHandedFromOneThreadToAnother)
{
    ThreadHost host(0);
    for (int round = 0; round < 100; ++round)
    {
        bool right = false;
        std::thread([&] { right = host.parse(round); }).join();
        EXPECT_TRUE(right) << round;
    }
}

TEST(ParsersInThreads, FormatHelpAtTheSameTime)
{
    ThreadHost reference(0);
    const std::wstring help = reference.host().parser().showFullHelp(false);
    const std::wstring topics = reference.host().parser().getTopicList(false);
    std::atomic<int> wrong{0};
    inThreads(2,
              [&](int)
              {
                  ThreadHost host(0);
                  for (int round = 0; round < 1000; ++round)
                  {
                      const WordWrappedText text(L"lead", L"some words to wrap", 4, 12);
                      const bool right =
                          host.host().parser().showFullHelp(false) == help &&
                          host.host().parser().getTopicList(false) == topics &&
                          std::wstring(text.getText()) == L"lead some\n    words\n    to wrap\n";
                      wrong += right ? 0 : 1;
                  }
              });
    EXPECT_EQ(wrong, 0);
}

TEST(ParsersInThreads, ReadOptionFilesAtTheSameTime)
{
    const TemporaryFolder folder;
    const std::wstring argument =
        L"--option-file=" + folder.write(L"file", "--level=1\n--level=2,3\n");
    std::atomic<int> wrong{0};
    inThreads(2,
              [&](int number)
              {
                  ThreadHost host(number);
                  host.host().parser().enableOptionFiles(L"", L"");
                  for (int round = 0; round < 1000; ++round)
                  {
                      host.host().renewResult();
                      const bool right = host.host().parse({L"--build", argument.c_str()}) == 0 &&
                                         host.host().texts(L"level") == Texts{L"1", L"2", L"3"};
                      wrong += right ? 0 : 1;
                  }
              });
    EXPECT_EQ(wrong, 0);
}

// These messages are printed even if the trace is off. No line may be lost or split.
TEST(ParsersInThreads, PrintWarningsAtTheSameTime)
{
    constexpr std::size_t rounds = 500;
    const auto warn = [](int)
    {
        Host host;
        host.addOption(L"mode")
            .addAllowedValue(vexkit2::variant_t(L"fast"))
            .addDeprecatedValue(vexkit2::variant_t(L"quick"), vexkit2::variant_t(L"fast"));
        for (std::size_t round = 0; round < rounds; ++round)
        {
            host.parse({L"--mode=quick"});
            host.parser().addOption(L"mode", L"", value_type_string, L"");
        }
    };
    std::string output;
    const std::string error =
        captureError([&] { output = captureOutput([&] { inThreads(2, warn); }); });
    const std::string warning = "Warning: 'quick' argument is deprecated for the option '-mode'. "
                                "Use the 'fast' argument instead.\n";
    const std::string complaint =
        "Tried to register an option with a name, which is alread registered: mode\n";
    std::string warnings;
    std::string complaints;
    for (std::size_t line = 0; line < 2 * rounds; ++line)
    {
        warnings += warning;
        complaints += complaint;
    }
    EXPECT_EQ(error, warnings);
    EXPECT_EQ(output, complaints);
}
