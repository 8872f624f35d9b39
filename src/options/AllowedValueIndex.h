// Finds a typed value among the allowed and deprecated values of an option.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kexa/variant.h"

namespace kexa_3_3
{

// The candidates for a value of an option: its allowed values in their order, then the old values
// of its deprecated ones in theirs. The index refers to the values given to it, which must stay
// unchanged as long as it is used. Searches take logarithmic time, except those of booleans.
class AllowedValueIndex
{
public:
    using variant_t = vexkit2::variant_t;

    AllowedValueIndex(std::int32_t valueType, const std::vector<variant_t>& allowedValues,
                      const std::map<variant_t, variant_t>& deprecatedValues);

    // Returns the first candidate that equals the value, or null.
    //
    // value: of the option's value type.
    [[nodiscard]] const variant_t* findEqual(const variant_t& value) const;

    // The candidates whose text begins with a given text.
    struct TextMatches
    {
        std::size_t count = 0;
        const variant_t* candidate = nullptr; // set when count is 1
        std::wstring_view text;               // of that candidate
    };

    // Precondition: the option's value type is string.
    [[nodiscard]] TextMatches matchText(std::wstring_view beginning) const;

private:
    // Candidates as pairs of a key and the candidate's index, sorted.
    template <class Key>
    using Sorted = std::vector<std::pair<Key, std::size_t>>;

    // An integer of any kind: whether it is not negative, and its bits in two's complement. Such
    // keys are in the order of the integers.
    using IntegerKey = std::pair<bool, std::uint64_t>;

    [[nodiscard]] static IntegerKey integerKey(const variant_t& value);
    template <class Key>
    [[nodiscard]] std::size_t findIn(const Sorted<Key>& sorted, const Key& key,
                                     const variant_t& value) const;
    [[nodiscard]] std::size_t numberOf(const variant_t& value) const;
    [[nodiscard]] std::size_t findByWalk(const variant_t& value) const;
    void indexText(std::size_t number);
    void indexNumber(std::size_t number);

    std::int32_t m_valueType;
    std::vector<const variant_t*> m_candidates;
    Sorted<std::wstring_view> m_texts;   // of a string option: all candidates
    Sorted<IntegerKey> m_integers;       // of a number option: those compared as integers
    Sorted<double> m_doubles;            // of a number option: those compared as doubles
    std::deque<std::wstring> m_ownTexts; // of candidates that are not wide texts
};

} // namespace kexa_3_3
