// The search among allowed and deprecated numbers where doubles round integers: around 2 to the
// 53rd, 63rd and 64th. Compared with a walk over all candidates in order.
#include "options/AllowedValueIndex.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "kexa/option.h"

#include "options/ValueText.h"

#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using vexkit2::s32_t;
using vexkit2::s64_t;
using vexkit2::u32_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

constexpr u64_t last_exact = u64_t{1} << 53; // above it a double skips integers

// Numbers of every kind, close to the limit that the test looks at.
class NumbersAround
{
public:
    // exponent: the limit is 2 to this power.
    NumbersAround(int exponent, std::uint64_t seed)
        : m_floating(std::ldexp(1.0, exponent)),
          m_integer(exponent < 64 ? u64_t{1} << exponent : u64_t{0}), m_random(seed)
    {
    }

    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random() % bound); }

    // A value as a conversion to the type gives it.
    variant_t ofType(std::int32_t type)
    {
        switch (type)
        {
        case value_type_integer:
            return variant_t(static_cast<s32_t>(nearby()));
        case value_type_unsigned:
            return variant_t(static_cast<u32_t>(nearby()));
        case value_type_integer64:
            return variant_t(static_cast<s64_t>(nearby()));
        case value_type_unsigned64:
            return variant_t(nearby());
        default:
            return variant_t(floating());
        }
    }

    // A candidate of any kind of number.
    variant_t candidate()
    {
        static const std::int32_t types[] = {value_type_integer, value_type_unsigned,
                                             value_type_integer64, value_type_unsigned64,
                                             value_type_double};
        const unsigned kind = below(8);
        if (kind == 5)
        {
            return variant_t(static_cast<float>(floating()));
        }
        // Integers of 64 bits more often: only those can be beyond what a double holds exactly.
        return ofType(kind < 5 ? types[kind] : value_type_integer64);
    }

private:
    u64_t nearby()
    {
        const u64_t number = m_integer + below(9) - 4;
        return below(2) == 0 ? number : u64_t{0} - number;
    }

    double floating()
    {
        double number = m_floating;
        for (unsigned steps = below(3); steps != 0; --steps)
        {
            number = std::nextafter(number, 0.0);
        }
        for (unsigned steps = below(3); steps != 0; --steps)
        {
            number = std::nextafter(number, std::numeric_limits<double>::infinity());
        }
        return below(2) == 0 ? number : -number;
    }

    double m_floating;
    u64_t m_integer;
    std::mt19937_64 m_random;
};

const variant_t* firstEqual(const std::vector<variant_t>& allowed,
                            const std::map<variant_t, variant_t>& deprecated,
                            const variant_t& value)
{
    for (const variant_t& candidate : allowed)
    {
        if (value == candidate)
        {
            return &candidate;
        }
    }
    for (const auto& [oldValue, replacement] : deprecated)
    {
        if (value == oldValue)
        {
            return &oldValue;
        }
    }
    return nullptr;
}

// Checks one random set of candidates. Returns how many searches found a candidate.
std::size_t searchAround(int exponent, std::int32_t type, std::uint64_t seed)
{
    NumbersAround numbers(exponent, seed);
    std::vector<variant_t> allowed;
    std::map<variant_t, variant_t> deprecated;
    for (unsigned count = numbers.below(4); count != 0; --count)
    {
        allowed.push_back(numbers.candidate());
    }
    for (unsigned count = numbers.below(6); count != 0; --count)
    {
        deprecated.emplace(numbers.candidate(), variant_t(1.5));
    }
    const AllowedValueIndex index(type, allowed, deprecated);
    std::size_t found = 0;
    for (int search = 0; search < 20; ++search)
    {
        const variant_t value = numbers.ofType(type);
        const variant_t* const expected = firstEqual(allowed, deprecated, value);
        EXPECT_EQ(index.findEqual(value), expected)
            << "2 to the " << exponent << ", type " << type << ", seed " << seed << ", value "
            << toolbox::toUtf8(valueText(value));
        found += expected != nullptr ? 1 : 0;
    }
    return found;
}

TEST(AllowedValueIndexAtLimits, FindsTheFirstEqualCandidate)
{
    for (const int exponent : {0, 31, 53, 63, 64})
    {
        for (const std::int32_t type :
             {value_type_integer, value_type_unsigned, value_type_integer64, value_type_unsigned64,
              value_type_double})
        {
            std::size_t found = 0;
            for (std::uint64_t seed = 0; seed < 500 && !testing::Test::HasFailure(); ++seed)
            {
                found += searchAround(exponent, type, seed);
            }
            EXPECT_GT(found, 100U) << "2 to the " << exponent << ", type " << type;
        }
    }
}

// The first candidates that a double equals may differ by one, so that rounding makes them equal to
// it while the order does not.
TEST(AllowedValueIndexAtLimits, IntegerThatRoundsToTheDoubleIsFoundFirst)
{
    for (const bool negative : {true, false})
    {
        const auto rounded = static_cast<s64_t>(last_exact + 1);
        const double exact = static_cast<double>(last_exact);
        const std::vector<variant_t> allowed = {variant_t(negative ? -rounded : rounded),
                                                variant_t(negative ? -exact : exact)};
        const AllowedValueIndex index(value_type_double, allowed, {});
        EXPECT_EQ(index.findEqual(variant_t(negative ? -exact : exact)), &allowed[0]) << negative;
    }
}

} // namespace
