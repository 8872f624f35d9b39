// Memory that is freed all at once.
#include "support/memory/Arena.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory_resource>
#include <new>
#include <vector>

#include <gtest/gtest.h>

#include "support/memory/InlineBlock.h"

#include "AllocationCount.h"
#include "HeapOnly.h"

namespace
{

using kexa_3_3::Arena;
using kexa_3_3::InlineBlock;
using toolbox::allocationsSoFar;
using toolbox::liveBlocks;
using unit::heap_only;

struct Piece
{
    unsigned char* bytes;
    std::size_t size;
    unsigned char filling;
};

// Fills every piece to its end, so that a piece which overlaps another one has other contents. One
// that goes beyond its block is reported by the address sanitizer.
void takePieces(Arena& arena)
{
    std::vector<Piece> pieces;
    for (std::size_t number = 0; number < 3000; ++number)
    {
        const std::size_t size = number % 37 == 0 ? 5000 : number * 7 % 61;
        const std::size_t alignment = std::size_t{1} << number % 5;
        auto* const bytes = static_cast<unsigned char*>(arena.take(size, alignment));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(bytes) % alignment, 0U) << number;
        pieces.push_back({bytes, size, static_cast<unsigned char>(number % 251)});
        std::fill_n(bytes, size, pieces.back().filling);
    }
    for (const Piece& piece : pieces)
    {
        ASSERT_TRUE(std::all_of(piece.bytes, piece.bytes + piece.size,
                                [&piece](unsigned char byte) { return byte == piece.filling; }));
    }
}

TEST(Arena, PiecesOfAnySizeAndAlignmentLieApart)
{
    InlineBlock<256> first;
    Arena arena(first.bytes());
    ASSERT_NO_FATAL_FAILURE(takePieces(arena));
    Arena without(heap_only);
    ASSERT_NO_FATAL_FAILURE(takePieces(without));
}

TEST(Arena, FreesItsBlocksWhenItIsDestroyed)
{
    const std::size_t before = liveBlocks();
    {
        InlineBlock<256> first;
        Arena arena(first.bytes());
        for (int number = 0; number < 1000; ++number)
        {
            static_cast<void>(arena.take(100, 8));
        }
        EXPECT_GT(liveBlocks(), before);
    }
    EXPECT_EQ(liveBlocks(), before);
}

TEST(Arena, BytesGivenFirstAreUsedBeforeTheHeap)
{
    InlineBlock<256> first;
    Arena arena(first.bytes());
    const std::size_t before = allocationsSoFar().blocks;
    EXPECT_EQ(arena.take(200, 8), first.bytes().data());
    static_cast<void>(arena.take(56, 8));
    EXPECT_EQ(allocationsSoFar().blocks, before);
    std::memset(arena.take(1, 1), 0xA5, 1);
    EXPECT_GT(allocationsSoFar().blocks, before);
}

TEST(Arena, NumberOfBlocksGrowsSlowly)
{
    InlineBlock<64> first;
    Arena arena(first.bytes());
    const std::size_t before = allocationsSoFar().blocks;
    for (int number = 0; number < 100000; ++number)
    {
        static_cast<void>(arena.take(16, 8)); // 1.6 MB together
    }
    EXPECT_LE(allocationsSoFar().blocks - before, 20U);
}

// The sizes would wrap if the arena added what it keeps beside a block.
TEST(Arena, RequestThatNoMemoryHasRoomForThrowsAndChangesNothing)
{
    InlineBlock<1024> first;
    Arena arena(first.bytes());
    auto* const taken = static_cast<std::byte*>(arena.take(8, 8));
    const std::size_t before = liveBlocks();
    constexpr std::size_t most = std::numeric_limits<std::size_t>::max();
    for (const std::size_t size : {most, most - 1, most - 15})
    {
        EXPECT_THROW(static_cast<void>(arena.take(size, 1)), std::bad_alloc) << size;
    }
    EXPECT_EQ(liveBlocks(), before);
    EXPECT_EQ(arena.take(8, 8), taken + 8);
}

TEST(Arena, MemoryResourceKeepsWhatContainersGiveBack)
{
    InlineBlock<256> first;
    Arena arena(first.bytes());
    const Arena other(heap_only);
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

} // namespace
