// What the user probably meant.
#ifndef KEXA_COMMAND_PRIVATE_HINTS_H
#define KEXA_COMMAND_PRIVATE_HINTS_H

#include <string>
#include <string_view>
#include <vector>

#include "NameTable.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Return a hint, empty where there is none.

// The names nearest to a typed one, hidden ones never. isOption: names are shown with hyphens.
std::string hintOfNames(const NameTable& names, std::wstring_view typed, bool isOption);

// The first letter of a bundle that is no option.
std::string hintOfBundle(const NameTable& names, std::wstring_view bundle);

// The allowed values nearest to a given one.
std::string hintOfValues(const std::vector<std::string>& allowed, std::string_view typed);

// The limits of a number.
std::string hintOfLimits(const Declaration& declaration);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
