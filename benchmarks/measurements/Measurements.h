// Registers the measurements with Google Benchmark.
#ifndef KEXA_BENCHMARKS_MEASUREMENTS_H
#define KEXA_BENCHMARKS_MEASUREMENTS_H

#include "support/Session.h"

namespace benchmarks
{

// Names are "cycle/<workload>/<peer>", "declare/...", "help/...", "file/...", "walk/..." and
// "handlers/...". The session must outlive the measurements.
void registerCycles(Session& session, const Selection& selection);
void registerDeclarations(Session& session, const Selection& selection);
void registerHelp(Session& session, const Selection& selection);
void registerOptionFiles(Session& session, const Selection& selection);
void registerWalks(Session& session, const Selection& selection);
void registerHandlers(Session& session, const Selection& selection);

} // namespace benchmarks

#endif
