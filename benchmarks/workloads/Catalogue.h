// Every workload, by name. All are the same in each run: what looks random comes from a fixed seed.
//
//   small                 20 options (10 with a short name), 12 arguments
//   arguments/N           30 options, N arguments
//   lines/N               the same with longer texts: about 40 bytes for each argument
//   options/N             N options, each given once, in a shuffled order
//   abbreviations/N       the same, each named by a unique abbreviation
//   declarations/N        N options, no arguments
//   typed/N               one option of each of the seven types, N arguments
//   texts/N, integers/N   one argument with a list of N texts or integers
//   allowed/E/N           one option with E allowed values, N arguments
//   allowed_prefix/E/N    the same, each value cut to a unique prefix
//   values/N, numbers/N   one option given N times, with texts or integers
#ifndef KEXA_BENCHMARKS_CATALOGUE_H
#define KEXA_BENCHMARKS_CATALOGUE_H

#include <memory>
#include <string>

#include "workloads/Workload.h"

namespace benchmarks
{

// Throws std::invalid_argument for a name that is not in the list above.
std::unique_ptr<const Workload> makeWorkload(const std::string& name);

} // namespace benchmarks

#endif
