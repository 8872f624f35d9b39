// The hook by which a type of the program becomes the type of an option.
#ifndef KEXA_COMMAND_CONVERT_H
#define KEXA_COMMAND_CONVERT_H

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "kexa/command/configuration.h"

namespace kexa
{
inline namespace v1
{

// Why a value is refused, in words that follow "...: " in a message, such as "must be even".
struct Refusal
{
    std::string reason;
};

// A converted value, or why there is none.
template <class T>
class Conversion
{
public:
    Conversion(T value) : m_value(std::move(value)) {}
    Conversion(Refusal refusal) : m_reason(std::move(refusal.reason)) {}

    explicit operator bool() const noexcept { return m_value.has_value(); }
    T& operator*() noexcept { return *m_value; }
    const std::string& reason() const noexcept { return m_reason; }

private:
    std::optional<T> m_value;
    std::string m_reason;
};

// Specialise it for a type of your own, with
//
//     static kexa::Conversion<T> fromText(std::string_view text);
//
// that returns the value of a text in UTF-8 or a kexa::Refusal, and where the type is to be shown
// in the help (defaults, limits of a range) with
//
//     static std::string toText(const T& value);
//
// T must be default constructible and movable.
template <class T>
struct convert;

} // namespace v1
} // namespace kexa

#endif
