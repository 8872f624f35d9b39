// Whether a result was made by this library.
#pragma once

#include <cassert>

#include "result/ParseResult.h"

namespace kexa_3_3
{

// Returns the result as a ParseResult, or null for a host's own implementation and for null. Calls
// no operation of the object.
[[nodiscard]] ParseResult* ownResult(IParseResult* result);

// Returns the result that a step of a parse fills as a ParseResult.
//
// Precondition: it is null or was made by this library, which ownResult() decided when the parse
// began.
[[nodiscard]] inline ParseResult* filledBy(IParseResult* result)
{
    assert(ownResult(result) == result);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): asserted above.
    return static_cast<ParseResult*>(result);
}

} // namespace kexa_3_3
