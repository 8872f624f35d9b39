/// @file
/// One value read from a parse result.
#ifndef KEXA_VALUE_H
#define KEXA_VALUE_H

#include <cstdint>

#include "kexa/export.h"
#include "kexa/result.h"
#include "kexa/variant.h"

namespace kexa_3_3
{

class IParseResult;

/// The highest 32-bit signed number. As a position: none, which is what a default has. As a bound:
/// the end of the range of all positions.
inline constexpr std::int32_t no_position = 2147483647;

/// One value, as a query of a parse result fills it. A new Value is the not-found value.
class Value
{
public:
    /// The value's text (a `const wchar_t*`), or null. Owned by the parse result that gave the
    /// value; lives as long as that result.
    const void* data = nullptr;

    /// 0 where a value was found. Otherwise the code that the query returned (1: nothing found),
    /// and the other members are as a new Value has them.
    std::int32_t status = result_nothing;

    /// The position of the value: its number among all values converted in this process, from 0.
    /// A default has #no_position.
    std::int32_t position = no_position;

    /// The value in the option's type; kind 17 (null) where there is none. It may outlive the
    /// result.
    vexkit2::variant_t value;

    /// Returns the value as a T: one of the six types `bool`, `s32_t`, `u32_t`, `s64_t`, `u64_t`
    /// and `double`, or `const wchar_t*`. No other T compiles.
    ///
    /// `as<const wchar_t*>()` returns #data where #status is 0, else null. The text lives as long
    /// as the parse result that gave the value. The six types read #value as variant_t::get does,
    /// whatever #status is.
    ///
    /// @throws AssertionFailure  where the variant holds no value that a T can represent, as in
    ///                           every not-found value; never for `const wchar_t*`
    template <class T>
    T as() const
    {
        static_assert(vexkit2::detail::is_readable<T>,
                      "Value::as<T> returns bool, s32_t, u32_t, s64_t, u64_t, double or "
                      "const wchar_t*: this T is none of them");
        return value.get<T>();
    }
};

/// @cond
template <>
KEXA_API const wchar_t* Value::as<const wchar_t*>() const;
/// @endcond

/// Returns the last value of an option in a range of positions. It calls
/// IParseResult::getFirstValue, then IParseResult::getNextValue until that returns a non-zero code.
/// Does not throw.
///
/// @param result  the result to read; null gives the not-found value. Its query cursor moves.
/// @param name    any name of the option, in full, case-sensitive; null gives the not-found value
/// @param from    first position of the range, inclusive
/// @param to      end of the range: inclusive for values; an occurrence without a value counts only
///                below it
/// @return the last value that the queries gave. An option that did not occur gives its default,
///         whatever the range, unless the default's text is empty.
KEXA_API Value getLastValue(IParseResult* result, const wchar_t* name, int from, int to);

} // namespace kexa_3_3

#endif
