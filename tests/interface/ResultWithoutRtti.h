// A host's own result whose class is compiled without run-time type information.
#ifndef KEXA_TESTS_INTERFACE_RESULT_WITHOUT_RTTI_H
#define KEXA_TESTS_INTERFACE_RESULT_WITHOUT_RTTI_H

#include <kexa/kexa.h>

namespace toolbox
{

// Returns one object, the same in every call, that finds nothing and counts the queries.
kexa_3_3::IParseResult& resultWithoutRtti();

// How often it was queried since the start of the program.
int queriesOfResultWithoutRtti();

} // namespace toolbox

#endif
