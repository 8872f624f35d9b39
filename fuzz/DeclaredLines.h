// Declarations written as lines, so that seeds can be read and written by people.
#ifndef KEXA_FUZZ_DECLARED_LINES_H
#define KEXA_FUZZ_DECLARED_LINES_H

#include <cstdint>
#include <string>
#include <vector>

#include "NaiveDeclarations.h"

namespace fuzzing
{

// The first character of a line says what it is:
//
//   F      creation flags: the character behind it, counted from '0', times two
//   O K S  addOption, addOptionWithKeywords, addSwitch: a character for the value type, the names,
//          and for K the keywords behind '|'
//   N A D V P M W   steps on the last declaration: a name, an allowed value, a deprecated value and
//          its replacement behind '|', a default value, a separator, marked, keywords
//   C      actions that are compatible, separated by ','
//   H      a handler: the value that it refuses, and behind '|' the argument that it takes
//   .      the lines behind it are the arguments
//
// Value types are b i u l x d s n, anything else is taken as a number. A value begins with a
// character for its kind: s n (wide and narrow text), i l u (integers), d (a double), b (a
// boolean), o (a blob), anything else is null.
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
