// Values that several threads convert at once get positions of their own, which rise in each of
// the threads.
#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Positions = std::vector<std::int32_t>;

constexpr int threads = 2;
constexpr int values = 400000; // of each thread

// Returns the positions of all values of one parse, which begins when all threads are ready.
Positions positionsOf(std::atomic<int>& waiting)
{
    Host host;
    host.addOption(L"name", value_type_integer);
    std::wstring list = L"--name=1";
    for (int value = 1; value < values; ++value)
    {
        list += L",1";
    }
    --waiting;
    while (waiting > 0)
    {
        std::this_thread::yield();
    }
    EXPECT_EQ(host.parse({list.c_str()}), result_success);
    Positions positions;
    EXPECT_EQ(host.result().isPresent(L"name", 0, no_position), 1);
    for (std::int32_t position = host.result().getNextPosition(); position != no_position;
         position = host.result().getNextPosition())
    {
        positions.push_back(position);
    }
    return positions;
}

} // namespace

TEST(PositionsInThreads, RiseInEachThreadAndAreNeverGivenTwice)
{
    std::atomic<int> waiting{threads};
    std::vector<Positions> found(threads);
    std::vector<std::thread> running;
    for (Positions& positions : found)
    {
        running.emplace_back([&positions, &waiting] { positions = positionsOf(waiting); });
    }
    Positions all;
    for (std::size_t number = 0; number < found.size(); ++number)
    {
        running[number].join();
        EXPECT_EQ(found[number].size(), static_cast<std::size_t>(values));
        EXPECT_EQ(
            std::adjacent_find(found[number].begin(), found[number].end(), std::greater_equal<>()),
            found[number].end())
            << "falls in thread " << number;
        all.insert(all.end(), found[number].begin(), found[number].end());
    }
    std::sort(all.begin(), all.end());
    EXPECT_EQ(std::adjacent_find(all.begin(), all.end()), all.end()) << "given twice";
}
