// The search among allowed and deprecated values, compared with a walk over all of them.
#include "options/AllowedValueIndex.h"

#include <iterator>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "options/ValueText.h"

#include "TextPrinting.h"

namespace
{

using kexa_3_3::AllowedValueIndex;
using kexa_3_3::valueText;
using vexkit2::variant_t;

struct Candidates
{
    std::vector<variant_t> allowed;
    std::map<variant_t, variant_t> deprecated;

    [[nodiscard]] std::vector<const variant_t*> inOrder() const
    {
        std::vector<const variant_t*> all;
        for (const variant_t& value : allowed)
        {
            all.push_back(&value);
        }
        for (const auto& [oldValue, replacement] : deprecated)
        {
            all.push_back(&oldValue);
        }
        return all;
    }

    [[nodiscard]] const variant_t* firstEqual(const variant_t& value) const
    {
        for (const variant_t* const candidate : inOrder())
        {
            if (value == *candidate)
            {
                return candidate;
            }
        }
        return nullptr;
    }

    // How many texts begin so; the last of them goes to `match`.
    std::size_t countBeginning(const std::wstring& beginning, const variant_t*& match) const
    {
        std::size_t count = 0;
        for (const variant_t* const candidate : inOrder())
        {
            if (valueText(*candidate).substr(0, beginning.size()) == beginning)
            {
                match = candidate;
                ++count;
            }
        }
        return count;
    }
};

class RandomValues
{
public:
    explicit RandomValues(unsigned seed) : m_random(seed) {}

    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random() % bound); }

    std::wstring text()
    {
        static const wchar_t* const parts[] = {L"a", L"b", L"1", L"2", L".5", L"\u00E9", L"ab"};
        std::wstring text;
        for (unsigned count = below(4); count != 0; --count)
        {
            text += parts[below(static_cast<unsigned>(std::size(parts)))];
        }
        return text;
    }

    // A value as a conversion to the type gives it.
    variant_t ofType(std::int32_t type)
    {
        switch (type)
        {
        case 0:
            return variant_t(below(2) == 0);
        case 6:
            return variant_t(static_cast<vexkit2::s32_t>(below(9)) - 4);
        case 7:
            return variant_t(below(9));
        case 8:
            return variant_t(static_cast<vexkit2::s64_t>(integer()));
        case 9:
            return variant_t(integer());
        case 11:
            return variant_t(number());
        default:
            return variant_t(text());
        }
    }

    // A candidate as a host may declare it: of the type mostly, of any kind else.
    variant_t candidate(std::int32_t type)
    {
        static const std::int32_t types[] = {0, 6, 7, 8, 9, 11, 13};
        switch (below(12))
        {
        case 0:
            return variant_t(static_cast<float>(number()));
        case 1:
            return variant_t(below(2) == 0 ? "a" : "ab1");
        case 2:
            return variant_t::reference(below(2) == 0 ? L"a" : L"1");
        case 3:
            return below(2) == 0 ? variant_t() : variant_t::blob("a", 1);
        case 4:
            return variant_t::object(new vexkit2::polymorphic_t);
        case 5:
        case 6:
            return ofType(types[below(7)]);
        default:
            return ofType(type);
        }
    }

private:
    // Small numbers, and some around the largest integers that a double holds exactly.
    std::uint64_t integer()
    {
        constexpr std::uint64_t exact = std::uint64_t{1} << 53;
        const std::uint64_t small = below(5);
        switch (below(6))
        {
        case 0:
            return exact - 2 + small;
        case 1:
            return std::uint64_t{0} - small;
        default:
            return small;
        }
    }

    double number()
    {
        static const double numbers[] = {0.0,
                                         -0.0,
                                         0.5,
                                         1.0,
                                         2.5,
                                         -1.0,
                                         2.0,
                                         9007199254740992.0,
                                         9007199254740994.0,
                                         18446744073709551616.0,
                                         std::numeric_limits<double>::infinity(),
                                         std::numeric_limits<double>::quiet_NaN()};
        return numbers[below(static_cast<unsigned>(std::size(numbers)))];
    }

    std::mt19937_64 m_random;
};

void expectSameMatches(const AllowedValueIndex& index, const Candidates& candidates,
                       const std::wstring& beginning)
{
    const variant_t* match = nullptr;
    const std::size_t count = candidates.countBeginning(beginning, match);
    const AllowedValueIndex::TextMatches matches = index.matchText(beginning);
    ASSERT_EQ(matches.count, count) << toolbox::toUtf8(beginning);
    if (count == 1)
    {
        ASSERT_EQ(matches.candidate, match) << toolbox::toUtf8(beginning);
        ASSERT_EQ(std::wstring(matches.text), valueText(*match));
    }
}

TEST(AllowedValueIndex, FindsTheFirstEqualCandidate)
{
    for (const std::int32_t type : {0, 6, 7, 8, 9, 11, 13})
    {
        std::size_t found = 0;
        for (unsigned seed = 0; seed < 150; ++seed)
        {
            RandomValues random(seed);
            Candidates candidates;
            for (unsigned count = random.below(12); count != 0; --count)
            {
                candidates.allowed.push_back(random.candidate(type));
            }
            for (unsigned count = random.below(5); count != 0; --count)
            {
                candidates.deprecated.emplace(random.candidate(type), random.candidate(type));
            }
            const AllowedValueIndex index(type, candidates.allowed, candidates.deprecated);
            for (int search = 0; search < 10; ++search)
            {
                const variant_t value = random.ofType(type);
                const variant_t* const expected = candidates.firstEqual(value);
                ASSERT_EQ(index.findEqual(value), expected)
                    << "type " << type << ", seed " << seed << ", "
                    << toolbox::toUtf8(valueText(value));
                found += expected != nullptr ? 1 : 0;
                if (type == 13)
                {
                    ASSERT_NO_FATAL_FAILURE(
                        expectSameMatches(index, candidates, value.get<const wchar_t*>()))
                        << "seed " << seed;
                }
            }
        }
        EXPECT_GT(found, 100U) << "type " << type;
    }
}

TEST(AllowedValueIndex, NumberOfCandidatesDoesNotMatter)
{
    Candidates candidates;
    for (vexkit2::s32_t number = 0; number < 2000; ++number)
    {
        candidates.allowed.emplace_back(number * 7919 % 2000);
    }
    const AllowedValueIndex index(6, candidates.allowed, candidates.deprecated);
    for (vexkit2::s32_t number = -1; number <= 2000; ++number)
    {
        const variant_t* const found = index.findEqual(variant_t(number));
        ASSERT_EQ(found != nullptr, number >= 0 && number < 2000) << number;
        ASSERT_TRUE(found == nullptr || *found == variant_t(number)) << number;
    }
}

TEST(AllowedValueIndex, BeginningIsComparedExactly)
{
    const std::vector<variant_t> allowed = {variant_t(L"fast"), variant_t(L"faster"),
                                            variant_t(L"Slow"), variant_t(12)};
    const AllowedValueIndex index(13, allowed, {});
    const struct
    {
        const wchar_t* beginning;
        std::size_t count;
    } rows[] = {{L"", 4},    {L"f", 2},       {L"fast", 2},  {L"faste", 1}, {L"faster", 1},
                {L"F", 0},   {L"s", 0},       {L"S", 1},     {L"1", 1},     {L"12", 1},
                {L"123", 0}, {L"fasters", 0}, {L"\uFFFD", 0}};
    for (const auto& row : rows)
    {
        EXPECT_EQ(index.matchText(row.beginning).count, row.count)
            << toolbox::toUtf8(row.beginning);
    }
    EXPECT_EQ(index.matchText(L"faste").candidate, &allowed[1]);
    EXPECT_EQ(index.matchText(L"1").candidate, &allowed[3]);
    EXPECT_EQ(std::wstring(index.matchText(L"1").text), L"12");
    EXPECT_EQ(index.findEqual(variant_t(L"12")), nullptr);
}

} // namespace
