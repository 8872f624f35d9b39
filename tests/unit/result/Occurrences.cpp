// The occurrences of one option, in the order stored.
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory_resource>
#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "result/Occurrences.h"

namespace
{

using kexa_3_3::Occurrence;
using kexa_3_3::Occurrences;
using vexkit2::variant_t;

class OccurrencesTest : public testing::Test
{
protected:
    void appendValue(Occurrences& list, std::int32_t number, bool isPosition = true)
    {
        variant_t value(number);
        list.appendValue(L"text", value, number, isPosition);
    }

    std::vector<std::int32_t> walk(const Occurrences& list, Occurrences::Place place = 0)
    {
        std::vector<std::int32_t> positions;
        while (const Occurrence* const occurrence = list.next(place))
        {
            positions.push_back(occurrence->position);
        }
        return positions;
    }

    std::pmr::monotonic_buffer_resource m_memory;
    Occurrences m_list{m_memory};
};

TEST_F(OccurrencesTest, NewListIsEmpty)
{
    EXPECT_EQ(m_list.size(), 0U);
    EXPECT_FALSE(m_list.hasPositions());
    EXPECT_FALSE(m_list.hasValues());
    EXPECT_TRUE(walk(m_list).empty());
}

TEST_F(OccurrencesTest, AreWalkedInTheOrderOfAppending)
{
    std::vector<std::int32_t> expected;
    for (std::int32_t number = 0; number < 1000; ++number)
    {
        appendValue(m_list, number);
        expected.push_back(number);
    }
    EXPECT_EQ(walk(m_list), expected);
    EXPECT_EQ(m_list.size(), 1000U);
}

TEST_F(OccurrencesTest, PlaceStaysValidWhileTheListGrows)
{
    appendValue(m_list, 1);
    Occurrences::Place place = 0;
    ASSERT_EQ(m_list.next(place)->position, 1);
    EXPECT_EQ(m_list.next(place), nullptr);
    for (std::int32_t number = 2; number < 100; ++number)
    {
        appendValue(m_list, number);
        const Occurrence* const next = m_list.next(place);
        ASSERT_NE(next, nullptr);
        EXPECT_EQ(next->position, number);
        EXPECT_EQ(m_list.next(place), nullptr);
    }
}

TEST_F(OccurrencesTest, PositionsAndValuesAreWalkedSeparately)
{
    m_list.appendPosition(1);
    appendValue(m_list, 2, false);
    appendValue(m_list, 3);
    m_list.appendPosition(4);
    std::vector<std::int32_t> positions;
    Occurrences::Place place = 0;
    while (const Occurrence* const occurrence = m_list.nextPosition(place))
    {
        positions.push_back(occurrence->position);
    }
    EXPECT_EQ(positions, (std::vector<std::int32_t>{1, 3, 4}));
    std::vector<std::int32_t> values;
    place = 0;
    while (const Occurrence* const occurrence = m_list.nextValue(place))
    {
        values.push_back(occurrence->value.get<std::int32_t>());
    }
    EXPECT_EQ(values, (std::vector<std::int32_t>{2, 3}));
}

TEST_F(OccurrencesTest, HavePositionsAndValuesOnceSuchAreAppended)
{
    appendValue(m_list, 1, false);
    EXPECT_TRUE(m_list.hasValues());
    EXPECT_FALSE(m_list.hasPositions());
    m_list.appendPosition(2);
    EXPECT_TRUE(m_list.hasPositions());

    Occurrences onlyPositions(m_memory);
    onlyPositions.appendPosition(1);
    EXPECT_FALSE(onlyPositions.hasValues());
}

TEST_F(OccurrencesTest, ValueIsMovedIntoTheListAndReleasedWithIt)
{
    variant_t value(L"text");
    const variant_t copy(value);
    {
        Occurrences list(m_memory);
        list.appendValue(L"text", value, 1, true);
        EXPECT_EQ(value.kind(), vexkit2::kind_null);
        Occurrences::Place place = 0;
        EXPECT_EQ(list.next(place)->value, copy);
    }
    EXPECT_STREQ(copy.get<const wchar_t*>(), L"text");
}

TEST_F(OccurrencesTest, AppendedListComesBehind)
{
    for (const std::int32_t before : {0, 1, 3})
    {
        Occurrences list(m_memory);
        for (std::int32_t number = 0; number < before; ++number)
        {
            m_list.appendPosition(number);
            list.appendPosition(number);
        }
        Occurrences added(m_memory);
        appendValue(added, 10);
        appendValue(added, 11);
        list.reserveMore(added.size());
        list.append(std::move(added));
        std::vector<std::int32_t> expected;
        for (std::int32_t number = 0; number < before; ++number)
        {
            expected.push_back(number);
        }
        expected.insert(expected.end(), {10, 11});
        EXPECT_EQ(walk(list), expected) << before;
        EXPECT_TRUE(list.hasValues());
        EXPECT_TRUE(list.hasPositions());
    }
}

TEST_F(OccurrencesTest, CopyGrowsApart)
{
    appendValue(m_list, 1);
    Occurrences copy(m_list);
    appendValue(copy, 2);
    EXPECT_EQ(walk(m_list), (std::vector<std::int32_t>{1}));
    EXPECT_EQ(walk(copy), (std::vector<std::int32_t>{1, 2}));
    EXPECT_TRUE(copy.hasPositions());
}

TEST(Occurrences, RoomThatNoMemoryHasChangesNothing)
{
    Occurrences list(*std::pmr::null_memory_resource());
    EXPECT_THROW(list.reserveMore(1), std::bad_alloc);
    EXPECT_THROW(list.appendPosition(1), std::bad_alloc);
    EXPECT_EQ(list.size(), 0U);
    EXPECT_FALSE(list.hasPositions());
}

} // namespace
