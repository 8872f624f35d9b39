// A format for declarations, one per line, so that seeds can be read and written by hand.
#ifndef KEXA_FUZZ_DECLARED_LINES_H
#define KEXA_FUZZ_DECLARED_LINES_H

#include <cstdint>
#include <string>
#include <vector>

#include "NaiveDeclarations.h"

namespace fuzzing
{

// The meaning of a line depends on its first character:
//
//   F      creation flags: twice the distance of the next character from '0'
//   O K S  addOption, addOptionWithKeywords, addSwitch: a character for the value type, the names,
//          and for K also '|' and the keywords
//   N A D V P M W
//          calls on the last declaration: a name, an allowed value, a deprecated value with '|' and
//          its replacement, a default value, a separator, marked, keywords
//   C      compatible actions, separated by ','
//   H      a handler: the value that it refuses, '|' and the argument that it takes
//   .      ends the declarations; all further lines are arguments
//
// Value types are b i u l x d s n (see valueTypeOf()); the code of any other character is used as
// the value type. A value begins with a character for its kind: s n (wide and narrow text), i l u
// (signed 32-bit, signed 64-bit and unsigned 64-bit integers), d (a double), b (a boolean), o (a
// blob). Any other character makes a null value.
struct DeclaredLines
{
    naive::Declarations declarations;
    std::vector<naive::HandlerRule> handlers;
    std::vector<std::wstring> arguments;
    std::int32_t flags = 0;
};

DeclaredLines readDeclarations(const std::vector<std::wstring>& lines);

std::int32_t valueTypeOf(wchar_t character);
vexkit2::variant_t valueOf(const std::wstring& text);

} // namespace fuzzing

#endif
