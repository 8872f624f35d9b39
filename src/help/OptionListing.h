// The listing of options that help texts show.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kexa_3_3
{

class OptionDescription;

// Whether a group is shown: hidden help shows the hidden group only, other help all the others.
[[nodiscard]] bool passesHiddenTest(std::wstring_view group, bool hidden) noexcept;

// Lists the entries, group by group, sorted by their primary names. Entries that are marked, or in
// a group that is not in the list, are left out.
//
// groups: (group, group text), in the order of the listing.
[[nodiscard]] std::wstring
formatOptionHelp(const std::vector<std::pair<std::wstring_view, std::wstring_view>>& groups,
                 std::vector<const OptionDescription*> entries, bool hidden);

// The names of an option with what may follow them: "-v, -verbose | -no-verbose" say.
[[nodiscard]] std::wstring formatNames(const OptionDescription& option);

} // namespace kexa_3_3
