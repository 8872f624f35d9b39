// Makes workloads by name. A workload is the same in each run: its random values have a fixed seed.
//
//   small                 20 options (10 with a short name), 12 arguments
//   arguments/N           30 options, N arguments
//   lines/N               30 options, N arguments with longer texts: about 40 bytes each
//   options/N             N options, each given once, in a shuffled order
//   abbreviations/N       N options, each given once by a unique abbreviation, shuffled
//   declarations/N        N options, no arguments
//   typed/N               one option of each of the seven types, N arguments
//   texts/N, integers/N   one argument with a list of N texts or integers
//   allowed/E/N           one option with E allowed values, N arguments
//   allowed_prefix/E/N    one option with E allowed values, N arguments with a unique prefix of one
//   values/N, numbers/N   one option given N times, with texts or integers
#ifndef KEXA_BENCHMARKS_CATALOGUE_H
#define KEXA_BENCHMARKS_CATALOGUE_H

#include <memory>
#include <string>

#include "workloads/Workload.h"

namespace benchmarks
{

// Returns the workload with the name. Throws std::invalid_argument for a name that is not in the
// list above.
std::unique_ptr<const Workload> makeWorkload(const std::string& name);

} // namespace benchmarks

#endif
