// Help texts generated from the declarations.
#pragma once

#include <string>

namespace kexa_3_3
{

class RegisteredOptionStorage;

// Every function takes `hidden`: false excludes the group "kexa_hidden", true shows only that
// group. "Options" means the declarations that take a value; the others are actions.

// Returns the actions with their descriptions, one per line, sorted by name.
[[nodiscard]] std::wstring formatTopicList(const RegisteredOptionStorage& options, bool hidden);

// Returns the help of the option or action `topic`. For a null topic: the topic list. For an
// unknown one: a message that contains the topic list.
[[nodiscard]] std::wstring formatTopicHelp(const RegisteredOptionStorage& options,
                                           const wchar_t* topic, bool hidden);

// Returns the help of the options that share a keyword with `topic`, without `topic` itself. Null
// and unknown topics are handled as in formatTopicHelp().
[[nodiscard]] std::wstring formatRelatedHelp(const RegisteredOptionStorage& options,
                                             const wchar_t* topic, bool hidden);

// Returns the help of the options without keywords.
[[nodiscard]] std::wstring formatFullHelp(const RegisteredOptionStorage& options, bool hidden);

} // namespace kexa_3_3
