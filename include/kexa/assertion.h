// How a programming error is reported: a failed guard throws AssertionFailure.
#ifndef KEXA_ASSERTION_H
#define KEXA_ASSERTION_H

#include <cstdlib>
#include <stdexcept>

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

// Throws the AssertionFailure described by its arguments (see there). In a program that is compiled
// without exceptions it ends the program.
[[noreturn]] inline void raiseAssertion(const char* guard, const char* file, int line,
                                        const char* function)
{
#if defined(__cpp_exceptions) || defined(_CPPUNWIND)
    throw AssertionFailure(guard, file, line, function);
#else
    static_cast<void>(AssertionFailure(guard, file, line, function));
    std::abort();
#endif
}

} // namespace kexa_3_3

#endif
