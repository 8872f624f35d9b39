// The listing of options in help texts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "options/OptionDescription.h"

namespace kexa_3_3
{

// Returns whether the help shows a group: hidden help shows only the group "kexa_hidden", other
// help shows all groups except that one.
[[nodiscard]] bool passesHiddenTest(std::wstring_view group, bool hidden) noexcept;

// Returns the listing of the entries, group by group and sorted by primary name within each group.
// Marked entries are skipped, and so are entries whose group is not listed or not shown.
//
// groups:  in the order of the listing. Each group has its heading even if it
//          has no entries.
// entries: never null.
// hidden:  see passesHiddenTest().
[[nodiscard]] std::wstring formatOptionHelp(const std::vector<OptionGroup>& groups,
                                            std::vector<const OptionDescription*> entries,
                                            bool hidden);

// Returns the names of an option and the values that it takes, for example
// "-v, -verbose | -no-verbose".
[[nodiscard]] std::wstring formatNames(const OptionDescription& option);

} // namespace kexa_3_3
