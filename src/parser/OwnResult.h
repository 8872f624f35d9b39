// Whether a result was made by this library.
#pragma once

namespace kexa_3_3
{

class IParseResult;
class ParseResult;

// Returns the result as what it is, or null for a host's own implementation and for null. Calls
// nothing of the object.
[[nodiscard]] ParseResult* ownResult(IParseResult* result);

} // namespace kexa_3_3
