// Memory given back all at once, memory in large pages, memory for objects that may stay small, and
// room made ahead.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory_resource>
#include <new>
#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "support/Arena.h"
#include "support/Growth.h"
#include "support/LargePages.h"
#include "support/PlainTable.h"
#include "support/SmallBlocks.h"

#include "AllocationCount.h"

namespace
{

using kexa_3_3::Arena;
using kexa_3_3::beginInLargePages;
using kexa_3_3::PlainTable;
using kexa_3_3::reserveMore;
using kexa_3_3::slackForLargePages;
using kexa_3_3::SmallBlocks;
using unit::allocationCount;

struct Piece
{
    unsigned char* bytes;
    std::size_t size;
    unsigned char filling;
};

// Every piece is filled to its end: one that overlaps another, or the end of its block, shows.
TEST(Arena, PiecesOfAnySizeLieApart)
{
    Arena arena(64);
    std::vector<Piece> pieces;
    for (std::size_t number = 0; number < 3000; ++number)
    {
        const std::size_t size = number % 37 == 0 ? 5000 : 1 + number * 7 % 61;
        const std::size_t alignment = std::size_t{1} << number % 5;
        auto* const bytes = static_cast<unsigned char*>(arena.take(size, alignment));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(bytes) % alignment, 0U) << number;
        pieces.push_back({bytes, size, static_cast<unsigned char>(number % 251)});
        std::memset(bytes, pieces.back().filling, size);
    }
    for (const Piece& piece : pieces)
    {
        ASSERT_TRUE(std::all_of(piece.bytes, piece.bytes + piece.size,
                                [&piece](unsigned char byte) { return byte == piece.filling; }));
    }
}

TEST(Arena, FirstBlockIsTakenOnFirstUseAndHoldsWhatItShould)
{
    const std::size_t before = allocationCount();
    Arena arena(1024);
    EXPECT_EQ(allocationCount(), before);
    for (int count = 0; count < 16; ++count)
    {
        static_cast<void>(arena.take(64, 8));
    }
    EXPECT_EQ(allocationCount(), before + 1);
    static_cast<void>(arena.take(1, 1));
    EXPECT_EQ(allocationCount(), before + 2);
}

TEST(Arena, MemoryGivenToItIsUsedBeforeTheHeapIs)
{
    alignas(std::max_align_t) std::array<std::byte, 256> first = {};
    const std::size_t before = allocationCount();
    Arena arena(std::span<std::byte>{first});
    void* const piece = arena.take(200, 8);
    EXPECT_EQ(piece, first.data());
    EXPECT_EQ(allocationCount(), before);
    std::memset(arena.take(100, 8), 0xA5, 100); // does not fit any more
    EXPECT_EQ(allocationCount(), before + 1);
}

TEST(Arena, LargePieceLeavesTheSharedBlockInUse)
{
    Arena arena(1024);
    static_cast<void>(arena.take(8, 8));
    const std::size_t before = allocationCount();
    static_cast<void>(arena.take(100000, 8));
    EXPECT_EQ(allocationCount(), before + 1);
    static_cast<void>(arena.take(512, 8));
    EXPECT_EQ(allocationCount(), before + 1);
}

TEST(Arena, NumberOfBlocksGrowsSlowly)
{
    Arena arena(64);
    const std::size_t before = allocationCount();
    for (int count = 0; count < 100000; ++count)
    {
        static_cast<void>(arena.take(16, 8)); // 1.6 MB together
    }
    EXPECT_LE(allocationCount() - before, 20U);
}

// With what a block holds beside it such a piece would need no memory at all.
TEST(Arena, PieceThatNoMemoryHasRoomForIsRefusedAndChangesNothing)
{
    Arena arena(1024);
    char* const first = static_cast<char*>(arena.take(8, 8));
    const std::size_t before = allocationCount();
    EXPECT_THROW(static_cast<void>(arena.take(std::numeric_limits<std::size_t>::max(), 1)),
                 std::bad_alloc);
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(arena.take(8, 8), first + 8);
}

TEST(Arena, IsAMemoryResourceThatFreesNothingEarly)
{
    Arena arena(256);
    Arena other(256);
    EXPECT_TRUE(arena.is_equal(arena));
    EXPECT_FALSE(arena.is_equal(other));
    std::pmr::vector<int> numbers(&arena);
    for (int number = 0; number < 1000; ++number)
    {
        numbers.push_back(number);
    }
    const int* const kept = numbers.data();
    numbers = std::pmr::vector<int>(&arena);
    numbers.shrink_to_fit();
    for (int number = 0; number < 1000; ++number)
    {
        ASSERT_EQ(kept[number], number);
    }
}

// On Windows there are no large pages to ask for, and memory in front of one would not be free.
#ifdef _WIN32
constexpr std::size_t expected_slack = 0;
#else
constexpr std::size_t expected_slack = std::size_t{1} << 21;
#endif

TEST(LargePages, BlockOfManyMegabytesBeginsWhereOneDoesIfThereAreAny)
{
    constexpr std::size_t size = std::size_t{1} << 22;
    std::vector<std::byte> memory(size + expected_slack + 4096);
    ASSERT_EQ(slackForLargePages(size), expected_slack);
    for (const std::size_t offset : {0U, 16U, 4096U}) // wherever the heap has put it
    {
        std::byte* const place = memory.data() + offset;
        std::byte* const block = beginInLargePages(place, size);
        EXPECT_GE(block, place);
        EXPECT_LE(block, place + expected_slack);
        if constexpr (expected_slack != 0)
        {
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) & (expected_slack - 1), 0U) << offset;
        }
        std::memset(block, 0xA5, size);
    }
}

TEST(LargePages, SmallerBlockTakesNothingMoreAndBeginsAtOnce)
{
    constexpr std::size_t size = (std::size_t{1} << 22) - 8;
    EXPECT_EQ(slackForLargePages(size), 0U);
    std::array<std::byte, 64> memory = {};
    EXPECT_EQ(beginInLargePages(memory.data() + 8, size), memory.data() + 8);
}

// Knows the blocks that it gave and did not get back, and how many there were in all.
class Ledger final : public std::pmr::memory_resource
{
public:
    [[nodiscard]] std::size_t size() const noexcept { return m_blocks.size(); }
    [[nodiscard]] std::size_t given() const noexcept { return m_given; }

private:
    void* do_allocate(std::size_t size, std::size_t alignment) override
    {
        ++m_given;
        m_blocks.push_back(std::pmr::new_delete_resource()->allocate(size, alignment));
        return m_blocks.back();
    }
    void do_deallocate(void* block, std::size_t size, std::size_t alignment) override
    {
        const auto known = std::find(m_blocks.begin(), m_blocks.end(), block);
        ASSERT_NE(known, m_blocks.end());
        m_blocks.erase(known);
        std::pmr::new_delete_resource()->deallocate(block, size, alignment);
    }
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override
    {
        return this == &other;
    }

    std::vector<void*> m_blocks;
    std::size_t m_given = 0;
};

TEST(PlainTable, KeepsItsValuesHoweverOftenItGrows)
{
    Ledger ledger;
    PlainTable<std::size_t> table(ledger);
    EXPECT_TRUE(table.empty());
    EXPECT_FALSE(table.hasRoom(1));
    EXPECT_TRUE(table.hasRoom(0));
    table.grow(8);
    for (std::size_t number = 0; number < 10000; ++number)
    {
        if (!table.hasRoom(1))
        {
            table.grow(table.nextRoom(1));
        }
        ASSERT_TRUE(table.hasRoom(1));
        table.append(number);
        ASSERT_EQ(table.size(), number + 1);
    }
    EXPECT_FALSE(table.empty());
    std::size_t expected = 0;
    for (const std::size_t number : table)
    {
        ASSERT_EQ(number, expected);
        ASSERT_EQ(table[expected], expected);
        ++expected;
    }
    EXPECT_EQ(expected, 10000U);
    EXPECT_LE(ledger.given(), 12U);
}

TEST(PlainTable, MakesRoomForAllThatIsAskedFor)
{
    PlainTable<std::size_t> table(*std::pmr::new_delete_resource());
    EXPECT_EQ(table.nextRoom(9), 9U);
    table.grow(8);
    EXPECT_TRUE(table.hasRoom(8));
    EXPECT_FALSE(table.hasRoom(9));
    table.append(1);
    EXPECT_TRUE(table.hasRoom(7));
    EXPECT_FALSE(table.hasRoom(8));
    EXPECT_EQ(table.nextRoom(8), 16U);
    EXPECT_EQ(table.nextRoom(100), 101U);
}

TEST(PlainTable, FillsItsFirstRoomBeforeItTakesMemory)
{
    std::array<std::size_t, 4> first = {};
    std::array<std::size_t, 8> memory = {};
    std::pmr::monotonic_buffer_resource resource(memory.data(), sizeof(memory),
                                                 std::pmr::null_memory_resource());
    PlainTable<std::size_t> table(resource, std::as_writable_bytes(std::span(first)));
    EXPECT_TRUE(table.hasRoom(4));
    EXPECT_FALSE(table.hasRoom(5));
    for (std::size_t number = 1; number <= 4; ++number)
    {
        table.append(number);
    }
    EXPECT_EQ(first[3], 4U);
    EXPECT_FALSE(table.hasRoom(1));
    EXPECT_EQ(table.nextRoom(1), 8U);
    EXPECT_EQ(memory[0], 0U); // nothing was taken from it yet
    table.grow(8);
    table.append(5);
    EXPECT_EQ(memory[4], 5U);
    for (std::size_t number = 0; number < table.size(); ++number)
    {
        EXPECT_EQ(table[number], number + 1);
    }
}

TEST(PlainTable, GivesBackWhatItTookAndNotItsFirstRoom)
{
    Ledger ledger;
    {
        std::array<std::size_t, 4> first = {};
        PlainTable<std::size_t> table(ledger, std::as_writable_bytes(std::span(first)));
        EXPECT_EQ(ledger.size(), 0U);
        table.grow(8);
        EXPECT_EQ(ledger.size(), 1U);
        table.grow(16);
        EXPECT_EQ(ledger.size(), 1U);
    }
    EXPECT_EQ(ledger.size(), 0U);
    {
        std::array<std::size_t, 4> first = {};
        const PlainTable<std::size_t> table(ledger, std::as_writable_bytes(std::span(first)));
    }
    EXPECT_EQ(ledger.size(), 0U);
}

TEST(PlainTable, StaysAsItIsWhereThereIsNoMemory)
{
    std::array<std::size_t, 4> memory = {};
    std::pmr::monotonic_buffer_resource resource(memory.data(), sizeof(memory),
                                                 std::pmr::null_memory_resource());
    PlainTable<std::size_t> table(resource);
    table.grow(4);
    table.append(7);
    EXPECT_THROW(table.grow(8), std::bad_alloc);
    EXPECT_EQ(table.size(), 1U);
    EXPECT_EQ(table[0], 7U);
    EXPECT_TRUE(table.hasRoom(3));
    EXPECT_FALSE(table.hasRoom(4));
}

TEST(SmallBlocks, SmallBlocksComeFromTheArena)
{
    Arena arena(4096);
    static_cast<void>(arena.take(1, 1));
    SmallBlocks memory(arena);
    const std::size_t before = allocationCount();
    for (const std::size_t size : {std::size_t{1}, std::size_t{100}, std::size_t{256}})
    {
        void* const block = memory.allocate(size, 8);
        std::memset(block, 0xA5, size);
        memory.deallocate(block, size, 8);
    }
    EXPECT_EQ(allocationCount(), before);
}

TEST(SmallBlocks, LargeBlocksComeFromTheHeapAndReturnToIt)
{
    Arena arena(1 << 20);
    static_cast<void>(arena.take(1, 1));
    SmallBlocks memory(arena);
    for (const std::size_t size : {std::size_t{257}, std::size_t{100000}})
    {
        const std::size_t before = allocationCount();
        void* const block = memory.allocate(size, 8);
        EXPECT_EQ(allocationCount(), before + 1) << size;
        std::memset(block, 0xA5, size);
        memory.deallocate(block, size, 8); // or a leak checker reports it
    }
}

TEST(SmallBlocks, IsEqualToItselfOnly)
{
    Arena arena(64);
    const SmallBlocks first(arena);
    const SmallBlocks second(arena);
    EXPECT_TRUE(first.is_equal(first));
    EXPECT_FALSE(first.is_equal(second));
}

TEST(Growth, RoomIsThereForAsManyMore)
{
    std::vector<int> elements = {1, 2, 3};
    reserveMore(elements, 100);
    EXPECT_EQ(elements, (std::vector<int>{1, 2, 3}));
    const std::size_t before = allocationCount();
    elements.insert(elements.end(), 100, 0);
    EXPECT_EQ(allocationCount(), before);
}

TEST(Growth, RoomAtLeastDoubles)
{
    std::vector<int> elements(1000);
    elements.shrink_to_fit();
    reserveMore(elements, 1);
    EXPECT_GE(elements.capacity(), 2000U);
}

TEST(Growth, FirstRoomIsWhatIsExpected)
{
    std::vector<int> elements;
    reserveMore(elements, 1, 32);
    EXPECT_GE(elements.capacity(), 32U);
}

TEST(Growth, NothingIsTakenWhereThereIsRoom)
{
    std::vector<int> elements(4);
    elements.reserve(8);
    const std::size_t before = allocationCount();
    reserveMore(elements, 4, 8);
    reserveMore(elements, 0);
    EXPECT_EQ(allocationCount(), before);
}

} // namespace
