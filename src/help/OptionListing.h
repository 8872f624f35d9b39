// The listing of options that help texts show.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "options/OptionDescription.h"

namespace kexa_3_3
{

// Whether a group is shown: hidden help shows the hidden group only, other help all the others.
[[nodiscard]] bool passesHiddenTest(std::wstring_view group, bool hidden) noexcept;

// Lists the entries, group by group, sorted by their primary names. Entries that are marked, or in
// a group that is not in the list, are left out.
//
// groups: in the order of the listing.
[[nodiscard]] std::wstring
formatOptionHelp(const std::vector<OptionGroup>& groups,
                 std::vector<const OptionDescription*> entries, bool hidden);

// The names of an option with what may follow them: "-v, -verbose | -no-verbose" say.
[[nodiscard]] std::wstring formatNames(const OptionDescription& option);

} // namespace kexa_3_3
