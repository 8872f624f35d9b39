// The trace of one parse, line by line.
#ifndef KEXA_TESTS_TOOLBOX_TRACE_LINES_H
#define KEXA_TESTS_TOOLBOX_TRACE_LINES_H

#include <initializer_list>
#include <string>
#include <vector>

#include "Host.h"

namespace toolbox
{

inline constexpr const wchar_t* trace_keyword = L"kexaoption=kexalogenable=1";

using Lines = std::vector<std::string>;

// Cuts a text at its line feeds. A last line without one ends in "<no line end>".
Lines linesOf(const std::string& text);

Lines joined(std::initializer_list<Lines> parts);

// What a parse of these arguments writes to standard output with the keyword in front of them.
// code: the answer that the parse must give.
Lines traceOf(Host& host, std::initializer_list<const wchar_t*> arguments, int code = 0);

} // namespace toolbox

#endif
