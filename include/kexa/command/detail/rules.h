// The rules of a program, with their types erased.
#ifndef KEXA_COMMAND_DETAIL_RULES_H
#define KEXA_COMMAND_DETAIL_RULES_H

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kexa/command/detail/element.h"

namespace kexa
{
inline namespace v1
{

// A value and the name by which it is given on the command line.
template <class T>
struct NamedValue
{
    const char* name; // UTF-8
    T value;
};

namespace detail
{

// What a function given to check() or require() may return: a reason, or nothing (null, an empty
// text, no text).
inline std::string reasonOf(const char* reason)
{
    return reason == nullptr ? std::string() : std::string(reason);
}
inline std::string reasonOf(std::string reason)
{
    return reason;
}
inline std::string reasonOf(std::optional<std::string> reason)
{
    return reason ? std::move(*reason) : std::string();
}

template <class T, class Function>
class FunctionRule final : public Rule
{
public:
    explicit FunctionRule(Function function) : m_function(std::move(function)) {}
    std::string refuse(const void* object) const override
    {
        return reasonOf(m_function(*static_cast<const T*>(object)));
    }

private:
    Function m_function;
};

template <class T>
class RangeRule final : public Rule
{
public:
    RangeRule(T lowest, T highest) : m_lowest(std::move(lowest)), m_highest(std::move(highest)) {}
    std::string refuse(const void* object) const override
    {
        const T& value = *static_cast<const T*>(object);
        if (value < m_lowest)
        {
            return "less than " + std::string(Element<T>::text(m_lowest));
        }
        if (m_highest < value)
        {
            return "greater than " + std::string(Element<T>::text(m_highest));
        }
        return std::string();
    }

private:
    T m_lowest;
    T m_highest;
};

template <class T>
class NamedValues final : public ValueTable
{
public:
    std::vector<T> values; // as many as names

protected:
    void copyTo(std::size_t index, void* element) const override
    {
        *static_cast<T*>(element) = values[index];
    }
    bool equals(std::size_t index, const void* element) const override
    {
        return values[index] == *static_cast<const T*>(element);
    }
};

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
