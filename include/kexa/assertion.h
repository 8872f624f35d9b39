/// @file
/// How a programming error is reported: a failed guard throws AssertionFailure, or ends a host that
/// is compiled without exceptions.
#ifndef KEXA_ASSERTION_H
#define KEXA_ASSERTION_H

#include <stdexcept>

/// @def KEXA_NO_EXCEPTIONS
/// Defined where the host is compiled without exceptions. All files of a program need one setting:
/// of each inline function the linker keeps one copy, and it may come from any of them.
#if (!defined(__cpp_exceptions) && !defined(_CPPUNWIND)) ||                                        \
    (defined(_HAS_EXCEPTIONS) && _HAS_EXCEPTIONS == 0)
#define KEXA_NO_EXCEPTIONS
#endif

#ifdef KEXA_NO_EXCEPTIONS
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#endif

namespace kexa_3_3
{

/// Thrown where a guard fails. `what()` is the exact text of the guard.
///
/// The file and the function are kept as pointers: they must be string literals, as `__FILE__` and
/// `__func__` are.
class AssertionFailure : public std::logic_error
{
public:
    /// @param guard     the text of the failed guard; copied
    /// @param file      the source file that holds the guard
    /// @param line      its line there, from 1
    /// @param function  the function that holds the guard
    AssertionFailure(const char* guard, const char* file, int line, const char* function)
        : std::logic_error(guard), m_file(file), m_line(line), m_function(function)
    {
    }

    /// Returns the source file that holds the guard.
    const char* file() const noexcept { return m_file; }
    /// Returns the line of the guard, from 1.
    int line() const noexcept { return m_line; }
    /// Returns the name of the function that holds the guard.
    const char* function() const noexcept { return m_function; }

private:
    const char* m_file;
    int m_line;
    const char* m_function;
};

/// Reports a failed guard. In a host compiled without exceptions it writes one line with the four
/// arguments to standard error and calls std::abort.
///
/// @param guard     the text of the failed guard
/// @param file      the source file that holds the guard
/// @param line      its line there, from 1
/// @param function  the function that holds the guard
/// @throws AssertionFailure  always
[[noreturn]] inline void raiseAssertion(const char* guard, const char* file, int line,
                                        const char* function)
{
#ifndef KEXA_NO_EXCEPTIONS
    throw AssertionFailure(guard, file, line, function);
#else
    // The C library refuses narrow text on a stream that wide text was written to.
    if (std::fprintf(stderr, "%s:%d: %s: failed guard \"%s\"\n", file, line, function, guard) < 0)
    {
        std::fwprintf(stderr, L"%s:%d: %s: failed guard \"%s\"\n", file, line, function, guard);
    }
    std::abort();
#endif
}

} // namespace kexa_3_3

#endif
