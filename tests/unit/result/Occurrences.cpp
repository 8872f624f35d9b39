// The positions and values of one option.
#include "result/Occurrences.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/Arena.h"

namespace
{

using kexa_3_3::Arena;
using kexa_3_3::Occurrence;
using kexa_3_3::Occurrences;

using Positions = std::vector<std::int32_t>;

Occurrence position(std::int32_t number)
{
    return {.position = number, .parts = Occurrence::position_part};
}
Occurrence value(std::int32_t number)
{
    return {.position = number, .parts = Occurrence::value_part};
}
Occurrence both(std::int32_t number)
{
    return {.position = number, .parts = Occurrence::both_parts};
}

void add(Occurrences& occurrences, const Occurrence& occurrence, Arena& arena)
{
    occurrences.reserveMore(1, arena);
    occurrences.append(occurrence);
}

// What is left from a place on, by one of the ways to step.
using Step = const Occurrence* (Occurrences::*)(Occurrences::Place&) const;
Positions from(const Occurrences& occurrences, Occurrences::Place place, Step step)
{
    Positions positions;
    while (const Occurrence* const occurrence = (occurrences.*step)(place))
    {
        positions.push_back(occurrence->position);
    }
    EXPECT_EQ((occurrences.*step)(place), nullptr); // the end stays the end
    return positions;
}
Positions allOf(const Occurrences& occurrences)
{
    Occurrences::Place place = occurrences.begin();
    for (bool ended = false; !ended;)
    {
        const bool saysSo = occurrences.isEnd(place);
        ended = occurrences.next(place) == nullptr;
        EXPECT_EQ(saysSo, ended);
    }
    return from(occurrences, occurrences.begin(), &Occurrences::next);
}
Positions upTo(std::int32_t end, std::int32_t first = 0)
{
    Positions positions;
    for (std::int32_t number = first; number < end; ++number)
    {
        positions.push_back(number);
    }
    return positions;
}

// An arena that tells whether anything was taken from it.
class WatchedArena
{
public:
    [[nodiscard]] Arena& arena() noexcept { return m_arena; }
    // To be asked once.
    [[nodiscard]] bool isUntouched() { return m_arena.take(1, 1) == m_memory.data(); }

private:
    std::array<std::byte, 4096> m_memory = {};
    Arena m_arena{std::span(m_memory)};
};

TEST(Occurrences, NewListIsEmpty)
{
    const Occurrences occurrences;
    EXPECT_EQ(occurrences.size(), 0U);
    EXPECT_FALSE(occurrences.hasPositions());
    EXPECT_FALSE(occurrences.hasValues());
    EXPECT_EQ(allOf(occurrences), Positions());
    EXPECT_EQ(from(occurrences, occurrences.end(), &Occurrences::next), Positions());
    EXPECT_EQ(from(occurrences, occurrences.placeOf(0), &Occurrences::nextValue), Positions());
}

TEST(Occurrences, FirstOneTakesNoMemory)
{
    WatchedArena memory;
    Occurrences occurrences;
    occurrences.reserveMore(0, memory.arena());
    add(occurrences, both(7), memory.arena());
    EXPECT_TRUE(memory.isUntouched());
    EXPECT_EQ(allOf(occurrences), Positions{7});

    WatchedArena another;
    add(occurrences, both(8), another.arena());
    EXPECT_FALSE(another.isUntouched());
}

TEST(Occurrences, FirstOneIsToldOnceItIsThere)
{
    Arena arena(64);
    Occurrences occurrences;
    EXPECT_EQ(occurrences.first(), nullptr);
    occurrences.reserveMore(3, arena);
    EXPECT_EQ(occurrences.first(), nullptr);
    add(occurrences, value(7), arena);
    const Occurrence* const first = occurrences.first();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->position, 7);
    for (std::int32_t number = 8; number < 20; ++number)
    {
        add(occurrences, both(number), arena);
        EXPECT_EQ(occurrences.first(), first);
    }
}

TEST(Occurrences, PlaceBehindTheFirstIsThatOfTheSecond)
{
    Arena arena(64);
    Occurrences occurrences;
    add(occurrences, both(0), arena);
    const Occurrences::Place place = occurrences.behindFirst();
    for (std::int32_t count = 1; count < 20; ++count)
    {
        EXPECT_EQ(from(occurrences, place, &Occurrences::next), upTo(count, 1));
        EXPECT_EQ(from(occurrences, occurrences.behindFirst(), &Occurrences::nextValue),
                  upTo(count, 1));
        add(occurrences, both(count), arena);
    }
}

TEST(Occurrences, KeepTheOrderOverManyPieces)
{
    constexpr std::int32_t count = 20000; // several pieces of the largest size
    Arena arena(64);
    Occurrences occurrences;
    for (std::int32_t number = 0; number < count; ++number)
    {
        add(occurrences, both(number), arena);
        ASSERT_EQ(occurrences.size(), static_cast<std::size_t>(number) + 1);
    }
    EXPECT_EQ(allOf(occurrences), upTo(count));
    EXPECT_EQ(from(occurrences, occurrences.begin(), &Occurrences::nextValue), upTo(count));
    EXPECT_EQ(from(occurrences, occurrences.begin(), &Occurrences::nextPosition), upTo(count));
}

// Every list of some hundred is looked at from every place that it ever had.
TEST(Occurrences, PlacesStayGoodWhileTheListGrows)
{
    constexpr std::int32_t count = 300;
    Arena arena(64);
    Occurrences occurrences;
    std::vector<Occurrences::Place> ends = {occurrences.end()};
    std::vector<const Occurrence*> entries;
    for (std::int32_t number = 0; number < count; ++number)
    {
        add(occurrences, both(number), arena);
        Occurrences::Place place = ends.back();
        entries.push_back(occurrences.next(place));
        ASSERT_NE(entries.back(), nullptr) << number;
        ends.push_back(occurrences.end());
    }
    for (std::int32_t number = 0; number <= count; ++number)
    {
        const auto index = static_cast<std::size_t>(number);
        ASSERT_EQ(from(occurrences, ends[index], &Occurrences::next), upTo(count, number));
        if (number < count)
        {
            Occurrences::Place place = ends[index];
            ASSERT_EQ(occurrences.next(place), entries[index]) << "moved: " << number;
            ASSERT_EQ(entries[index]->position, number);
        }
    }
}

TEST(Occurrences, EveryIndexHasItsPlace)
{
    Arena arena(64);
    Occurrences occurrences;
    for (std::int32_t count = 0; count < 200; ++count)
    {
        for (std::int32_t number = 0; number <= count; ++number)
        {
            ASSERT_EQ(from(occurrences, occurrences.placeOf(static_cast<std::size_t>(number)),
                           &Occurrences::next),
                      upTo(count, number))
                << number << " of " << count;
        }
        add(occurrences, both(count), arena);
    }
}

TEST(Occurrences, PlaceOfTheEndIsThatOfWhatComesNext)
{
    Arena arena(64);
    Occurrences occurrences;
    for (std::int32_t number = 0; number < 100; ++number)
    {
        Occurrences::Place byIndex = occurrences.placeOf(static_cast<std::size_t>(number));
        Occurrences::Place byEnd = occurrences.end();
        ASSERT_EQ(occurrences.next(byIndex), nullptr);
        ASSERT_EQ(occurrences.next(byEnd), nullptr);
        add(occurrences, both(number), arena);
        const Occurrence* const added = occurrences.next(byIndex);
        ASSERT_NE(added, nullptr);
        EXPECT_EQ(added->position, number);
        EXPECT_EQ(occurrences.next(byEnd), added);
    }
}

TEST(Occurrences, PositionsAndValuesAreWalkedApart)
{
    Arena arena(64);
    Occurrences occurrences;
    Positions all;
    Positions positions;
    Positions values;
    for (std::int32_t number = 0; number < 1000; ++number)
    {
        // Stretches of each kind that reach over whole pieces, and all kinds in turn.
        const std::int32_t kind = (number < 400 ? number : number / 100) % 3;
        add(occurrences,
            kind == 0   ? position(number)
            : kind == 1 ? value(number)
                        : both(number),
            arena);
        all.push_back(number);
        if (kind != 1)
        {
            positions.push_back(number);
        }
        if (kind != 0)
        {
            values.push_back(number);
        }
    }
    EXPECT_EQ(allOf(occurrences), all);
    EXPECT_EQ(from(occurrences, occurrences.begin(), &Occurrences::nextPosition), positions);
    EXPECT_EQ(from(occurrences, occurrences.begin(), &Occurrences::nextValue), values);
}

TEST(Occurrences, TellWhetherThereArePositionsAndValues)
{
    const struct
    {
        std::vector<Occurrence> added;
        bool hasPositions;
        bool hasValues;
    } rows[] = {{{position(1), position(2)}, true, false},
                {{value(1), value(2)}, false, true},
                {{both(1), position(2)}, true, true},
                {{position(1), value(2)}, true, true},
                {{value(1), position(2)}, true, true}};
    for (const auto& row : rows)
    {
        Arena arena(64);
        Occurrences occurrences;
        for (const Occurrence& occurrence : row.added)
        {
            add(occurrences, occurrence, arena);
        }
        EXPECT_EQ(occurrences.hasPositions(), row.hasPositions);
        EXPECT_EQ(occurrences.hasValues(), row.hasValues);
    }
}

// Rooms of all sizes, asked for ahead: what is left of one is used before the next.
TEST(Occurrences, RoomMadeOnceSufficesForAll)
{
    for (const std::size_t first : {1U, 2U, 3U, 5U, 40U, 5000U})
    {
        for (const std::size_t second : {0U, 1U, 7U, 100U, 6000U})
        {
            SCOPED_TRACE(std::to_string(first) + ", then " + std::to_string(second));
            Arena arena(64);
            Occurrences occurrences;
            occurrences.reserveMore(first, arena);
            std::int32_t number = 0;
            // Half of them, so that the second room is asked for while the first one lasts.
            for (std::size_t half = (first + 1) / 2; half != 0; --half)
            {
                occurrences.append(both(number++));
            }
            occurrences.reserveMore(second, arena);
            for (std::size_t left = second; left != 0; --left)
            {
                occurrences.append(both(number++));
            }
            add(occurrences, both(number++), arena);
            EXPECT_EQ(occurrences.size(), static_cast<std::size_t>(number));
            EXPECT_EQ(allOf(occurrences), upTo(number));
        }
    }
}

// Room may be made twice before it is used: the pieces behind the last occurrence are empty.
TEST(Occurrences, RoomThatIsNotUsedYetIsNotSeen)
{
    Arena arena(64);
    Occurrences occurrences;
    occurrences.reserveMore(3, arena);
    occurrences.reserveMore(100, arena);
    for (std::int32_t count = 0; count < 100; ++count)
    {
        ASSERT_EQ(allOf(occurrences), upTo(count));
        Occurrences::Place byIndex = occurrences.placeOf(occurrences.size());
        Occurrences::Place byEnd = occurrences.end();
        ASSERT_EQ(occurrences.next(byIndex), nullptr);
        ASSERT_EQ(occurrences.next(byEnd), nullptr);
        occurrences.append(both(count));
        ASSERT_EQ(from(occurrences, byIndex, &Occurrences::next), Positions{count});
        ASSERT_EQ(from(occurrences, byEnd, &Occurrences::next), Positions{count});
    }
}

TEST(Occurrences, RoomThatIsThereIsNotMadeAgain)
{
    Arena arena(64);
    Occurrences occurrences;
    occurrences.reserveMore(50, arena);
    WatchedArena memory;
    occurrences.reserveMore(50, memory.arena());
    for (std::int32_t number = 0; number < 50; ++number)
    {
        add(occurrences, both(number), memory.arena());
    }
    EXPECT_TRUE(memory.isUntouched());
    EXPECT_EQ(allOf(occurrences), upTo(50));
}

TEST(Occurrences, RoomThatCannotBeMadeChangesNothing)
{
    Arena arena(64);
    Occurrences occurrences;
    add(occurrences, both(0), arena);
    add(occurrences, both(1), arena);
    const std::size_t tooMany[] = {(std::size_t{1} << 32) + 8, std::size_t{1} << 60,
                                   std::numeric_limits<std::size_t>::max() / sizeof(Occurrence),
                                   std::numeric_limits<std::size_t>::max()};
    for (const std::size_t count : tooMany)
    {
        EXPECT_THROW(occurrences.reserveMore(count, arena), std::bad_alloc) << count;
        EXPECT_EQ(occurrences.size(), 2U);
        EXPECT_EQ(allOf(occurrences), upTo(2));
    }
    for (std::int32_t number = 2; number < 40; ++number)
    {
        add(occurrences, both(number), arena);
    }
    EXPECT_EQ(allOf(occurrences), upTo(40));
}

} // namespace
