// Random values of every type. The sequence is the same in each run.
#ifndef KEXA_BENCHMARKS_VALUES_H
#define KEXA_BENCHMARKS_VALUES_H

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "workloads/Workload.h"

namespace benchmarks
{

enum class TextLength
{
    brief, // 6 to 21 characters
    path   // about 48 characters
};

struct Value
{
    std::string text; // as written on the command line; without commas and blanks
    Reading reading;  // as it must be read
};

class Values
{
public:
    // Returns a number below the limit. Precondition: the limit is not 0.
    std::size_t below(std::size_t limit);

    // Returns the numbers from 0 to count - 1 in a random order.
    std::vector<std::size_t> shuffled(std::size_t count);

    // Returns a value. Numbers have from one to as many digits as the type can hold. Throws
    // std::logic_error for a flag, which has no values.
    Value next(Type type, TextLength length);

private:
    std::string nextText(TextLength length);
    std::uint64_t nextNumber(unsigned bits);

    // The standard fixes the sequence of the engine but not that of the distributions, so none of
    // those is used.
    std::mt19937_64 m_engine{20240229};
};

} // namespace benchmarks

#endif
