// The trace of a parse as a list of lines.
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

// Splits a text at its line feeds. "<no line end>" is added to a last line that has none.
Lines linesOf(const std::string& text);

Lines joined(std::initializer_list<Lines> parts);

// Parses the arguments with the trace keyword before them and returns the lines on standard output.
// code: the status that the parse has to return.
Lines traceOf(Host& host, std::initializer_list<const wchar_t*> arguments, int code = 0);

// The lines of an argument that nothing takes, as a parser without a positional option traces it.
Lines linesOfIgnored(const std::string& argument);

} // namespace toolbox

#endif
