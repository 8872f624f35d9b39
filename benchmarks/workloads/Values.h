// Values of every type, the same in each run.
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
    std::string text; // as written on the command line; holds no comma and no blank
    Reading reading;  // as it must be read
};

class Values
{
public:
    // A number below the limit, which is not 0.
    std::size_t below(std::size_t limit);

    // The numbers below the count in a shuffled order.
    std::vector<std::size_t> shuffled(std::size_t count);

    // A value of any type but a flag. Numbers have one to all digits that the type can hold.
    Value next(Type type, TextLength length);

private:
    std::string nextText(TextLength length);
    std::uint64_t nextNumber(unsigned bits);

    // The engine's sequence is fixed by the standard; its distributions are not, so none is used.
    std::mt19937_64 m_engine{20240229};
};

} // namespace benchmarks

#endif
