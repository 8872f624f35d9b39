#include <exception>
#include <utility>

#include "kexa/parse_result.h"
#include "kexa/value.h"

namespace kexa_3_3
{

template <>
const wchar_t* Value::as<const wchar_t*>() const
{
    return status == result_success ? static_cast<const wchar_t*>(data) : nullptr;
}

Value getLastValue(IParseResult* result, const wchar_t* name, int from, int to)
{
    Value last;
    if (result == nullptr || name == nullptr)
    {
        return last;
    }
    try
    {
        Value next;
        result_t code = result->getFirstValue(&next, name, from, to);
        if (code != result_success)
        {
            // The walk may still hold a value where the range held no first occurrence.
            code = result->getNextValue(&next, name);
        }
        last.status = code;
        while (code == result_success)
        {
            last = std::move(next);
            last.status = result_success;
            code = result->getNextValue(&next, name);
        }
    }
    catch (const std::exception&)
    {
        // A result of this library does not throw; a host's own implementation may.
        last = Value();
        last.status = result_standard_exception;
    }
    catch (...)
    {
        last = Value();
        last.status = result_unknown_exception;
    }
    return last;
}

} // namespace kexa_3_3
