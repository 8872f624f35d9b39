// How a programming error is reported: a failed guard throws AssertionFailure.
#ifndef KEXA_ASSERTION_H
#define KEXA_ASSERTION_H

#include <stdexcept>

// 1 where the host may throw, else 0.
#if (defined(__cpp_exceptions) || defined(_CPPUNWIND)) &&                                          \
    !(defined(_HAS_EXCEPTIONS) && _HAS_EXCEPTIONS == 0)
#define KEXA_HAS_EXCEPTIONS 1
#else
#define KEXA_HAS_EXCEPTIONS 0
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#endif

namespace kexa_3_3
{

// Thrown where a guard fails. `what()` is the exact text of the guard.
//
// The three pointers given to the constructor are kept, not copied: they must be string literals,
// as __FILE__ and __func__ are.
class AssertionFailure : public std::logic_error
{
public:
    // guard:    the text of the failed guard; copied.
    // file:     the source file that holds the guard.
    // line:     its line there, from 1.
    // function: the function that holds it.
    AssertionFailure(const char* guard, const char* file, int line, const char* function)
        : std::logic_error(guard), m_file(file), m_line(line), m_function(function)
    {
    }

    const char* file() const noexcept { return m_file; }
    int line() const noexcept { return m_line; }
    const char* function() const noexcept { return m_function; }

private:
    const char* m_file;
    int m_line;
    const char* m_function;
};

// Throws the AssertionFailure described by its arguments (see there). A host compiled without
// exceptions writes them to standard error instead and calls std::abort.
[[noreturn]] inline void raiseAssertion(const char* guard, const char* file, int line,
                                        const char* function)
{
#if KEXA_HAS_EXCEPTIONS
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
