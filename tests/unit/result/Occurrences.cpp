// The positions and values of one option.
#include "result/Occurrences.h"

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace
{

using kexa_3_3::Occurrence;
using kexa_3_3::Occurrences;
using vexkit2::variant_t;

using Positions = std::vector<std::int32_t>;

Occurrence make(std::int32_t number, bool isPosition, bool isValue)
{
    Occurrence made;
    made.position = number;
    made.isPosition = isPosition;
    made.isValue = isValue;
    return made;
}
Occurrence position(std::int32_t number)
{
    return make(number, true, false);
}
Occurrence value(std::int32_t number)
{
    return make(number, false, true);
}
Occurrence both(std::int32_t number)
{
    return make(number, true, true);
}

// What follows a place, by one of the ways to step.
using Step = const Occurrence* (Occurrences::*)(Occurrences::Place&) const;
Positions from(const Occurrences& occurrences, Occurrences::Place place,
               Step step = &Occurrences::next)
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
    return from(occurrences, occurrences.begin());
}
Positions range(std::int32_t first, std::int32_t end)
{
    Positions positions;
    for (std::int32_t number = first; number < end; ++number)
    {
        positions.push_back(number);
    }
    return positions;
}

class OccurrencesTest : public testing::Test
{
protected:
    void fill(Occurrences& list, std::int32_t first, std::int32_t end)
    {
        for (std::int32_t number = first; number < end; ++number)
        {
            list.append(both(number));
        }
    }

    std::pmr::memory_resource& memory = *std::pmr::new_delete_resource();
    Occurrences occurrences{memory};
};

TEST_F(OccurrencesTest, NewListIsEmpty)
{
    EXPECT_EQ(occurrences.size(), 0U);
    EXPECT_FALSE(occurrences.hasPositions());
    EXPECT_FALSE(occurrences.hasValues());
    EXPECT_EQ(allOf(occurrences), Positions());
    EXPECT_EQ(from(occurrences, occurrences.end()), Positions());
}

TEST_F(OccurrencesTest, AreWalkedInTheOrderOfAppending)
{
    for (const std::int32_t number : {7, 3, 3, 9})
    {
        occurrences.append(both(number));
    }
    EXPECT_EQ(occurrences.size(), 4U);
    EXPECT_EQ(allOf(occurrences), (Positions{7, 3, 3, 9}));
}

TEST_F(OccurrencesTest, PlacesStayValidWhileTheListGrows)
{
    constexpr std::int32_t count = 300;
    std::vector<Occurrences::Place> ends = {occurrences.end()};
    std::vector<const Occurrence*> entries;
    for (std::int32_t number = 0; number < count; ++number)
    {
        EXPECT_EQ(from(occurrences, ends.back()), Positions());
        occurrences.append(both(number));
        Occurrences::Place place = ends.back();
        entries.push_back(occurrences.next(place));
        ASSERT_NE(entries.back(), nullptr) << number;
        ends.push_back(occurrences.end());
    }
    for (std::int32_t number = 0; number <= count; ++number)
    {
        const auto index = static_cast<std::size_t>(number);
        ASSERT_EQ(from(occurrences, ends[index]), range(number, count));
        if (number < count)
        {
            Occurrences::Place place = ends[index];
            ASSERT_EQ(occurrences.next(place), entries[index]) << "moved: " << number;
        }
    }
}

TEST_F(OccurrencesTest, PlaceBehindACountIsFollowedByTheRest)
{
    fill(occurrences, 0, 10);
    for (std::int32_t number = 0; number <= 10; ++number)
    {
        EXPECT_EQ(from(occurrences, occurrences.placeBehind(static_cast<std::size_t>(number))),
                  range(number, 10));
    }
}

TEST_F(OccurrencesTest, PositionsAndValuesAreWalkedApart)
{
    Positions all;
    Positions positions;
    Positions values;
    for (std::int32_t number = 0; number < 60; ++number)
    {
        // Each kind by turns, then several of a kind in a row.
        const std::int32_t kind = (number < 30 ? number : number / 10) % 3;
        occurrences.append(kind == 0 ? position(number) : kind == 1 ? value(number) : both(number));
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

TEST_F(OccurrencesTest, ListHasPositionsAndValuesIfOneOccurrenceHas)
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
        Occurrences appended(memory);
        Occurrences list(memory);
        for (const Occurrence& occurrence : row.added)
        {
            list.append(Occurrence(occurrence));
        }
        EXPECT_EQ(list.hasPositions(), row.hasPositions);
        EXPECT_EQ(list.hasValues(), row.hasValues);
        appended.append(std::move(list));
        EXPECT_EQ(appended.hasPositions(), row.hasPositions);
        EXPECT_EQ(appended.hasValues(), row.hasValues);
    }
}

TEST_F(OccurrencesTest, AnotherListIsAppendedBehindTheOwnOnes)
{
    for (const std::int32_t own : {0, 1, 5})
    {
        for (const std::int32_t others : {0, 1, 5})
        {
            SCOPED_TRACE(std::to_string(own) + " and " + std::to_string(others));
            Occurrences list(memory);
            Occurrences other(memory);
            fill(list, 0, own);
            fill(other, own, own + others);
            const Occurrences::Place end = list.end();
            list.append(std::move(other));
            EXPECT_EQ(from(list, end), range(own, own + others));
            list.append(both(own + others));
            EXPECT_EQ(allOf(list), range(0, own + others + 1));
            EXPECT_EQ(list.size(), static_cast<std::size_t>(own + others + 1));
        }
    }
}

TEST_F(OccurrencesTest, CopyGrowsByItself)
{
    fill(occurrences, 0, 3);
    Occurrences copy(occurrences);
    occurrences.append(both(3));
    copy.append(both(4));
    EXPECT_EQ(allOf(occurrences), (Positions{0, 1, 2, 3}));
    EXPECT_EQ(allOf(copy), (Positions{0, 1, 2, 4}));
    EXPECT_TRUE(copy.hasValues());
}

// Changes a counter when it is destroyed.
class Watched final : public vexkit2::polymorphic_t
{
public:
    explicit Watched(int& destroyed) : m_destroyed(destroyed) {}
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
    ~Watched() override { ++m_destroyed; }

private:
    int& m_destroyed;
};

TEST_F(OccurrencesTest, ListOwnsTheValues)
{
    int destroyed = 0;
    {
        Occurrences list(memory);
        Occurrences other(memory);
        for (Occurrences* const target : {&list, &list, &other})
        {
            Occurrence occurrence = value(0);
            occurrence.value = variant_t::object(new Watched(destroyed));
            target->append(std::move(occurrence));
        }
        list.append(std::move(other));
        const Occurrences copy(list); // shares the objects
        EXPECT_EQ(copy.size(), 3U);
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 3);
}

TEST(Occurrences, AppendingWithoutMemoryChangesNothing)
{
    Occurrences occurrences(*std::pmr::null_memory_resource());
    Occurrence added = both(7);
    added.value = variant_t(L"text");
    EXPECT_THROW(occurrences.append(std::move(added)), std::bad_alloc);
    EXPECT_EQ(added.value, variant_t(L"text"));
    EXPECT_EQ(occurrences.size(), 0U);
    EXPECT_FALSE(occurrences.hasPositions());
    EXPECT_EQ(allOf(occurrences), Positions());
}

} // namespace
