// One value read from a parse result.
#ifndef KEXA_VALUE_H
#define KEXA_VALUE_H

#include <cstdint>

#include "kexa/export.h"
#include "kexa/result.h"
#include "kexa/variant.h"

namespace kexa_3_3
{

class IParseResult;

// The highest 32-bit signed number: no position, no bound, the end of a walk.
inline constexpr std::int32_t no_position = 2147483647;

class Value
{
public:
    // The value's text (a const wchar_t*), or null. It belongs to the parse result that gave the
    // value and lives as long as that result.
    const void* data = nullptr;

    // 0: a value was found. Otherwise the code that the query answered (1: nothing found), and the
    // other members are as a new Value has them.
    std::int32_t status = result_nothing;

    // The position of the value: its number among all values converted in this process.
    std::int32_t position = no_position;

    // The value in the option's type, kind 17 (null) where there is none. It may outlive the
    // result.
    vexkit2::variant_t value;

    // The value as a T. as<const wchar_t*>() answers `data` where `status` is 0, else null; for any
    // other T the variant is read (status is not looked at), and where it cannot give a T
    // kexa_3_3::AssertionFailure is thrown.
    template <class T>
    T as() const
    {
        static_assert(vexkit2::detail::is_readable<T>,
                      "Value::as<T> returns bool, s32_t, u32_t, s64_t, u64_t, double or "
                      "const wchar_t*: this T is none of them");
        return value.get<T>();
    }
};

template <>
KEXA_API const wchar_t* Value::as<const wchar_t*>() const;

// The last value of an option in a range of positions.
//
// result: the result to ask; null gives the not-found value. Its query cursor moves.
// name:   any name of the option, in full, case counting; null gives the not-found value.
// from:   first position of the range, inclusive.
// to:     end of the range, inclusive for values; an occurrence without a value must lie below it.
//         A default whose text is not empty is found whatever the range.
//
// Answers the last value that IParseResult::getFirstValue and getNextValue give. Does not throw.
KEXA_API Value getLastValue(IParseResult* result, const wchar_t* name, int from, int to);

} // namespace kexa_3_3

#endif
