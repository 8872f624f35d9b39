// Redirection of standard output and standard error to the null device.
#ifndef NAIVE_NULL_OUTPUT_H
#define NAIVE_NULL_OUTPUT_H

#include <cstdio>

namespace naive
{

// Redirects both streams for the rest of the process: the warnings and traces of the library would
// be megabytes. Returns a stream to the former standard output, or null on failure.
std::FILE* silenceOutput();

} // namespace naive

#endif
