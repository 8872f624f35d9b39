// Variants that share a block may be copied, read and released by different threads.
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::variant_t;

namespace
{

// An object that counts how often it is destroyed.
class Counted : public vexkit2::polymorphic_t
{
public:
    explicit Counted(std::atomic<int>& destroyed) : m_destroyed(&destroyed) {}
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() override { ++*m_destroyed; }

private:
    std::atomic<int>* m_destroyed;
};

// Copies, moves, compares and destroys variants.
void shuffle(const variant_t& mine, int rounds)
{
    std::vector<variant_t> copies(8);
    for (int round = 0; round < rounds; ++round)
    {
        variant_t& copy = copies[static_cast<std::size_t>(round) % copies.size()];
        copy = mine;
        variant_t moved(std::move(copy));
        EXPECT_TRUE(moved == mine);
        copy = moved;
        moved = variant_t();
    }
}

// Runs shuffle() in several threads with copies of one variant, and releases the original
// meanwhile.
void shareAmongThreads(variant_t original)
{
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number)
    {
        threads.emplace_back([mine = original] { shuffle(mine, 20000); });
    }
    original = variant_t();
    for (std::thread& thread : threads)
    {
        thread.join();
    }
}

} // namespace

TEST(VariantsInThreads, TextsAreShared)
{
    shareAmongThreads(variant_t(L"a wide text that is shared"));
    shareAmongThreads(variant_t("a narrow text that is shared"));
}

TEST(VariantsInThreads, BlobsAreShared)
{
    const std::vector<char> bytes(1000, 'x');
    shareAmongThreads(variant_t::blob(bytes.data(), bytes.size()));
}

TEST(VariantsInThreads, AnObjectIsDestroyedOnce)
{
    for (int round = 1; round <= 20; ++round)
    {
        std::atomic<int> destroyed{0};
        shareAmongThreads(variant_t::object(new Counted(destroyed)));
        EXPECT_EQ(destroyed, 1);
    }
}

TEST(VariantsInThreads, TheLastOfTwoReleasesDestroysTheObject)
{
    std::atomic<int> destroyed{0};
    for (int round = 1; round <= 2000; ++round)
    {
        variant_t here = variant_t::object(new Counted(destroyed));
        std::thread other([there = here]() mutable { there = variant_t(); });
        here = variant_t();
        other.join();
        ASSERT_EQ(destroyed, round);
    }
}

TEST(VariantsInThreads, ValuesOutliveTheirResultInAnotherThread)
{
    Host host;
    host.addOption(L"name");
    for (int round = 0; round < 200; ++round)
    {
        host.renewResult();
        ASSERT_EQ(host.parse({L"--name=a,b,c"}), result_success);
        std::vector<variant_t> values;
        Value value;
        for (result_t code = host.result().getFirstValue(&value, L"name", 0, no_position);
             code == result_success; code = host.result().getNextValue(&value, L"name"))
        {
            values.push_back(value.value);
        }
        std::thread reader(
            [values = std::move(values)]
            {
                ASSERT_EQ(values.size(), 3U);
                EXPECT_STREQ(values[0].get<const wchar_t*>(), L"a");
                EXPECT_STREQ(values[2].get<const wchar_t*>(), L"c");
            });
        host.renewResult();
        reader.join();
    }
}

// The texts of several values may share one block of memory, which any thread may be the last to
// release.
TEST(VariantsInThreads, ValuesOfOneResultMayBeReleasedTogetherWithIt)
{
    constexpr std::size_t threadCount = 4;
    std::wstring list = L"--name=";
    for (int number = 0; number < 2000; ++number)
    {
        list += L"a value " + std::to_wstring(number) + L",";
    }
    Host host;
    host.addOption(L"name");
    for (int round = 0; round < 20; ++round)
    {
        host.renewResult();
        ASSERT_EQ(host.parse({list.c_str()}), result_success);
        std::vector<std::vector<variant_t>> values(threadCount);
        std::size_t number = 0;
        Value value;
        for (result_t code = host.result().getFirstValue(&value, L"name", 0, no_position);
             code == result_success; code = host.result().getNextValue(&value, L"name"))
        {
            values[number++ % threadCount].push_back(value.value);
        }
        ASSERT_EQ(number, 2000U);
        value = Value();
        std::atomic<bool> go{false};
        std::vector<std::thread> threads;
        for (std::size_t first = 0; first < threadCount; ++first)
        {
            threads.emplace_back(
                [&go, first, mine = std::move(values[first])]() mutable
                {
                    while (!go)
                    {
                        std::this_thread::yield();
                    }
                    for (std::size_t index = 0; index < mine.size(); ++index)
                    {
                        const variant_t copy = mine[index];
                        mine[index] = variant_t();
                        const std::wstring text =
                            L"a value " + std::to_wstring(index * threadCount + first);
                        ASSERT_EQ(copy.get<const wchar_t*>(), text);
                    }
                });
        }
        go = true;
        host.renewResult(); // releases the result of these values
        for (std::thread& thread : threads)
        {
            thread.join();
        }
    }
}

// A value of a result in one thread is declared in a parser of another thread.
TEST(VariantsInThreads, ValueMayBeDeclaredWhileItsResultIsReleased)
{
    Host host;
    host.addOption(L"name");
    for (int round = 0; round < 200; ++round)
    {
        host.renewResult();
        ASSERT_EQ(host.parse({L"--name=fallback"}), result_success);
        Value value;
        ASSERT_EQ(host.result().getFirstValue(&value, L"name", 0, no_position), result_success);
        std::atomic<bool> ready{false};
        std::thread other(
            [&ready, mine = value.value]
            {
                Host another;
                another.addOption(L"name").setDefaultValue(mine).addAllowedValue(mine);
                ready = true;
                EXPECT_EQ(another.parse({}), result_success);
                EXPECT_EQ(another.texts(L"name"), std::vector<std::wstring>{L"fallback"});
            });
        value = Value();
        while (!ready)
        {
            std::this_thread::yield();
        }
        host.renewResult();
        other.join();
    }
}

TEST(VariantsInThreads, ADeclaredValueIsSharedByTheParsersOfSeveralThreads)
{
    const variant_t fallback(L"fallback");
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number)
    {
        threads.emplace_back(
            [mine = fallback]
            {
                for (int round = 0; round < 500; ++round)
                {
                    Host host;
                    host.addOption(L"name").setDefaultValue(mine).addAllowedValue(mine);
                    EXPECT_EQ(host.parse({}), result_success);
                    EXPECT_EQ(host.texts(L"name"), std::vector<std::wstring>{L"fallback"});
                }
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
}
