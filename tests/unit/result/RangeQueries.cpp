// Every query of a result, compared with its steps written down plainly.
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "options/ValueText.h"
#include "result/ParseResult.h"
#include "support/memory/Garbage.h"

#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using vexkit2::variant_t;

const OptionGroup no_group;

constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();

// The outcome of a query: "code text value position".
std::wstring outcome(int code, std::wstring_view text = L"none", const variant_t& value = {},
                     std::int32_t position = no_position)
{
    return std::to_wstring(code) + L" " + std::wstring(text) + L" " + valueText(value) + L" " +
           std::to_wstring(position);
}

// One entry and the cursor on it.
class Walk
{
public:
    explicit Walk(const OptionResult& entry) : m_entry(entry) {}

    std::wstring getFirstValue(std::int32_t from, std::int32_t to)
    {
        if (!begin(from, to))
        {
            return outcome(1);
        }
        return hasOccurrences() ? getNextValue() : defaultOutcome();
    }
    bool isPresent(std::int32_t from, std::int32_t to)
    {
        const bool present = begin(from, to);
        if (!hasOccurrences())
        {
            m_from = no_position;
            m_to = no_position;
        }
        return present;
    }
    std::wstring getNextValue()
    {
        if (!hasOccurrences())
        {
            if (m_from != no_position || m_to != no_position)
            {
                return outcome(1);
            }
            m_from = 0;
            m_to = no_position;
            return defaultOutcome();
        }
        if (m_entry.values.empty())
        {
            return m_position == m_entry.positions.size()
                       ? outcome(1)
                       : outcome(0, L"none", {}, m_entry.positions[m_position++]);
        }
        while (m_value < m_entry.values.size() && m_entry.values[m_value].position < m_from)
        {
            ++m_value;
        }
        if (m_value == m_entry.values.size() || m_entry.values[m_value].position > m_to)
        {
            return outcome(1);
        }
        const ValueEntry& value = m_entry.values[m_value++];
        return outcome(0, value.text, value.value, value.position);
    }
    std::int32_t getNextPosition()
    {
        return m_position == m_entry.positions.size() ? no_position
                                                      : m_entry.positions[m_position++];
    }

private:
    [[nodiscard]] bool hasOccurrences() const
    {
        return !m_entry.positions.empty() || m_entry.defaultText.empty();
    }
    bool begin(std::int32_t from, std::int32_t to)
    {
        m_from = from;
        m_to = to;
        m_value = 0;
        m_position = 0;
        if (!hasOccurrences())
        {
            return true;
        }
        while (m_position < m_entry.positions.size() &&
               !(from <= m_entry.positions[m_position] && m_entry.positions[m_position] < to))
        {
            ++m_position;
        }
        return m_position != m_entry.positions.size();
    }
    [[nodiscard]] std::wstring defaultOutcome() const
    {
        return outcome(0, m_entry.defaultText, m_entry.defaultValue,
                       static_cast<std::int32_t>(m_entry.defaultPosition));
    }

    const OptionResult& m_entry;
    std::int32_t m_from = 0;
    std::int32_t m_to = no_position;
    std::size_t m_value = 0;
    std::size_t m_position = 0;
};

std::wstring outcomeOf(int code, const Value& value)
{
    EXPECT_EQ(value.status, code);
    const auto* const text = static_cast<const wchar_t*>(value.data);
    return outcome(code, text == nullptr ? L"none" : text, value.value, value.position);
}

// Random positions, in no order, of which a command line gives only some; some with values.
class RandomEntries
{
public:
    explicit RandomEntries(unsigned seed) : m_random(seed) {}

    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random() % bound); }

    std::int32_t position()
    {
        static const std::int32_t positions[] = {
            lowest, lowest + 1, -7, -1, 0, 1, 2, 3, 4, 5, 100, no_position - 1, no_position};
        return positions[below(13)];
    }

    OptionResult entry()
    {
        OptionResult entry;
        for (unsigned count = below(5); count != 0; --count)
        {
            entry.positions.push_back(position());
        }
        if (below(3) != 0)
        {
            for (const std::int32_t position : entry.positions)
            {
                entry.values.push_back({L"t", variant_t(position), position});
            }
        }
        if (below(3) == 0)
        {
            entry.defaultText = L"default";
            entry.defaultValue = variant_t(2.5);
            entry.defaultPosition = static_cast<std::uint32_t>(no_position);
        }
        return entry;
    }

    // A record whose values need not be those of its positions.
    OptionResult loose()
    {
        OptionResult record;
        for (unsigned count = below(6); count != 0; --count)
        {
            record.positions.push_back(position());
        }
        for (unsigned count = below(6); count != 0; --count)
        {
            const std::int32_t at = position();
            record.values.push_back({L"t", variant_t(at), at});
        }
        return record;
    }

private:
    std::mt19937_64 m_random;
};

// Expects of random queries what the plain steps return.
void expectAgreement(ParseResult& result, Walk& walk, RandomEntries& random)
{
    for (int query = 0; query < 25; ++query)
    {
        const std::int32_t from = random.position();
        const std::int32_t to = random.position();
        Value value;
        switch (random.below(6))
        {
        case 0:
            ASSERT_EQ(outcomeOf(result.getFirstValue(&value, L"name", from, to), value),
                      walk.getFirstValue(from, to))
                << from << " to " << to;
            break;
        case 1:
            ASSERT_EQ(result.isPresent(L"n", from, to), walk.isPresent(from, to) ? 1 : 0)
                << from << " to " << to;
            break;
        case 2:
            ASSERT_EQ(result.getNextPosition(), walk.getNextPosition());
            break;
        default:
            ASSERT_EQ(outcomeOf(result.getNextValue(&value, L"other"), value), walk.getNextValue());
            break;
        }
    }
}

// What several records put into one list: some have values at positions of their own, some values
// or positions only.
TEST(RangeQueries, EveryWalkOverSeveralRecordsFollowsItsSteps)
{
    Garbage pool{unit::heap_only};
    OptionDescription option(no_group, false, pool);
    option.addName(L"name").addName(L"n");
    for (unsigned seed = 0; seed < 1500; ++seed)
    {
        RandomEntries random(seed);
        OptionResult all = random.entry();
        ParseResult result;
        OptionResult record = all;
        ASSERT_EQ(result.storeOption(option, record), 0);
        for (unsigned more = random.below(5); more != 0; --more)
        {
            record = random.loose();
            all.positions.insert(all.positions.end(), record.positions.begin(),
                                 record.positions.end());
            all.values.insert(all.values.end(), record.values.begin(), record.values.end());
            ASSERT_EQ(result.storeOption(option, record), 0);
        }
        Walk walk(all);
        ASSERT_EQ(result.isPresent(L"name", lowest, no_position),
                  walk.isPresent(lowest, no_position) ? 1 : 0);
        ASSERT_NO_FATAL_FAILURE(expectAgreement(result, walk, random)) << "seed " << seed;
    }
}

TEST(RangeQueries, EveryWalkFollowsItsSteps)
{
    Garbage pool{unit::heap_only};
    OptionDescription option(no_group, false, pool);
    option.addName(L"name").addName(L"n");
    for (unsigned seed = 0; seed < 1500; ++seed)
    {
        RandomEntries random(seed);
        const OptionResult entry = random.entry();
        ParseResult result;
        OptionResult record = entry;
        ASSERT_EQ(result.storeOption(option, record), 0);
        Walk walk(entry);
        ASSERT_EQ(result.isPresent(L"name", lowest, no_position),
                  walk.isPresent(lowest, no_position) ? 1 : 0);
        ASSERT_NO_FATAL_FAILURE(expectAgreement(result, walk, random)) << "seed " << seed;
    }
}

TEST(RangeQueries, NullOutAdvancesAllTheSame)
{
    Garbage pool{unit::heap_only};
    OptionDescription option(no_group, false, pool);
    option.addName(L"name");
    ParseResult result;
    OptionResult record;
    for (const std::int32_t position : {1, 2, 3})
    {
        record.positions.push_back(position);
        record.values.push_back({L"t", variant_t(position), position});
    }
    ASSERT_EQ(result.storeOption(option, record), 0);
    EXPECT_EQ(result.getFirstValue(nullptr, L"name", 0, 9), 0);
    EXPECT_EQ(result.getNextValue(nullptr, nullptr), 0);
    Value value;
    EXPECT_EQ(outcomeOf(result.getNextValue(&value, nullptr), value),
              outcome(0, L"t", variant_t(3), 3));
    EXPECT_EQ(result.getNextValue(nullptr, nullptr), 1);
}

TEST(RangeQueries, UnknownNameEndsTheWalk)
{
    Garbage pool{unit::heap_only};
    OptionDescription option(no_group, false, pool);
    option.addName(L"name");
    ParseResult result;
    EXPECT_EQ(result.getNextPosition(), no_position);
    Value value;
    EXPECT_EQ(outcomeOf(result.getNextValue(&value, L"name"), value), outcome(1));
    OptionResult record;
    record.positions = {1, 2};
    ASSERT_EQ(result.storeOption(option, record), 0);
    for (const wchar_t* const unknown :
         {L"nam", L"Name", L"", static_cast<const wchar_t*>(nullptr)})
    {
        EXPECT_EQ(result.isPresent(L"name", 0, 9), 1);
        EXPECT_EQ(result.isPresent(unknown, 0, 9), 0);
        EXPECT_EQ(result.getNextPosition(), no_position);
        EXPECT_EQ(outcomeOf(result.getNextValue(&value, L"name"), value), outcome(1));
        value.position = 5;
        value.value = variant_t(1);
        EXPECT_EQ(outcomeOf(result.getFirstValue(&value, unknown, 0, 9), value), outcome(1));
    }
}

} // namespace
