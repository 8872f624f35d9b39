// What a parse result holds of one option.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <optional>

#include "options/OptionDescription.h"
#include "result/Occurrences.h"

namespace kexa_3_3
{

// The record that the names of an option share: its occurrences, and what to report when it never
// occurred.
struct StoredOption
{
    // memory: outlives the record.
    StoredOption(const OptionIdentity& source_, std::pmr::memory_resource& memory) noexcept
        : source(source_), occurrences(memory)
    {
    }

    // The declaration that the record was made for, with all names that it had then. As long as
    // `names` is the number of those, the record holds only what belongs to that declaration.
    OptionIdentity source;
    std::size_t names = 0; // how many names lead to the record

    std::uint64_t lastStoring = 0; // see OptionResultTable::storeApart
    Occurrences occurrences;
    std::optional<Occurrence> byDefault; // empty: no default, or one whose text is empty
};

} // namespace kexa_3_3
