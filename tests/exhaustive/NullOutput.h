// Standard output and standard error pointed at the null device.
#ifndef NAIVE_NULL_OUTPUT_H
#define NAIVE_NULL_OUTPUT_H

#include <cstdio>

namespace naive
{

// From here on the process writes to neither: warnings, traces and notices of the library under
// test are not what the run is about, and would be megabytes. Answers the former standard output;
// null when it could not be kept.
std::FILE* silenceOutput();

} // namespace naive

#endif
