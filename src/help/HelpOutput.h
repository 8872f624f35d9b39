// Help texts made from the declarations.
#pragma once

#include <string>

namespace kexa_3_3
{

class RegisteredOptionStorage;

// hidden: false leaves the group "kexa_hidden" out, true shows only that group.

// The actions by name, one in each line, with their descriptions.
[[nodiscard]] std::wstring formatTopicList(const RegisteredOptionStorage& options, bool hidden);

// The help of one option. A null topic gives the topic list, an unknown one says so.
[[nodiscard]] std::wstring formatTopicHelp(const RegisteredOptionStorage& options,
                                           const wchar_t* topic, bool hidden);

// The help of the options, no actions, that share a keyword with the one named.
[[nodiscard]] std::wstring formatRelatedHelp(const RegisteredOptionStorage& options,
                                             const wchar_t* topic, bool hidden);

// The help of the options, no actions, that have no keyword.
[[nodiscard]] std::wstring formatFullHelp(const RegisteredOptionStorage& options, bool hidden);

} // namespace kexa_3_3
