#include "parser/OwnResult.h"

#include <cstring>
#include <type_traits>

namespace kexa_3_3
{

namespace
{

// Every ABI that hosts and this library share puts the pointer to the virtual operations at the
// front of an object: without that no host could call any. Only the pointer is read.
[[nodiscard]] const void* virtualTableOf(const IParseResult& result) noexcept
{
    const void* table = nullptr;
    std::memcpy(&table, static_cast<const void*>(&result), sizeof table);
    return table;
}

} // namespace

// typeid and dynamic_cast read type information that the class of a host may be compiled without,
// and then crash. A list of the live results would need a lock, and a query with a secret argument
// would run code of the host. So the virtual tables are compared: no other class has that of
// ParseResult, which is final and not exported.
ParseResult* ownResult(IParseResult* result)
{
    static_assert(std::is_final_v<ParseResult>);
    static const void* const ownTable = virtualTableOf(ParseResult());
    if (result == nullptr || virtualTableOf(*result) != ownTable)
    {
        return nullptr;
    }
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): compared above.
    return static_cast<ParseResult*>(result);
}

} // namespace kexa_3_3
