// Variants that share a block may be copied, read and released on different threads.
#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "../interface/Host.h"

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

// Copies, compares and drops in one thread.
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

// Lets threads work on copies of one variant and releases the original meanwhile.
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

TEST(VariantsInThreads, TheLastOfTwoReleasesFrees)
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
