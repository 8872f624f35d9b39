// Finds a typed value among the allowed and deprecated values of an option.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "kexa/variant.h"

namespace kexa_3_3
{

// The candidates for a value of an option: its allowed values in their order, then the old values
// of its deprecated ones in theirs. The index refers to the values given to it, which stay
// unchanged as long as it is used.
class AllowedValueIndex
{
public:
    using variant_t = vexkit2::variant_t;

    AllowedValueIndex(std::int32_t valueType, const std::vector<variant_t>& allowedValues,
                      const std::map<variant_t, variant_t>& deprecatedValues);

    // The first candidate that equals the value, or null.
    [[nodiscard]] const variant_t* findEqual(const variant_t& value) const;

    // Candidates whose text begins with a text. Of a string option only.
    struct TextMatches
    {
        std::size_t count = 0;
        const variant_t* candidate = nullptr; // where count is 1
        std::wstring_view text;               // its text
    };
    [[nodiscard]] TextMatches matchText(std::wstring_view beginning) const;

private:
    struct TextCandidate
    {
        std::wstring_view text;
        std::size_t order;
    };

    void indexTexts();
    void indexNumbers(std::int32_t valueType);
    [[nodiscard]] const variant_t* findText(std::wstring_view text) const;
    [[nodiscard]] const variant_t* findNumber(const variant_t& value) const;

    enum class Method
    {
        texts,   // a string option: m_texts
        numbers, // a number option whose candidates' order agrees with equality: m_numbers
        walk     // anything else: one candidate after the other
    };

    Method m_method = Method::walk;
    std::vector<const variant_t*> m_candidates;
    std::vector<TextCandidate> m_texts;      // sorted by text, then order
    std::deque<std::wstring> m_ownTexts;     // of candidates that are no wide text
    std::vector<const variant_t*> m_numbers; // sorted, equal ones in candidate order
};

} // namespace kexa_3_3
