// The host's own variables, in which peers store what they read.
#ifndef KEXA_BENCHMARKS_SLOTS_H
#define KEXA_BENCHMARKS_SLOTS_H

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "workloads/Workload.h"

namespace benchmarks
{

// Calls the function with std::type_identity of the C++ type for a value of the type and returns
// what it returns. The C++ type of a text is Text. Precondition: the type is not a flag.
template <class Text = std::string, class Function>
decltype(auto) withType(Type type, Function function)
{
    switch (type)
    {
    case Type::integer:
        return function(std::type_identity<std::int32_t>{});
    case Type::natural:
        return function(std::type_identity<std::uint32_t>{});
    case Type::integer64:
        return function(std::type_identity<std::int64_t>{});
    case Type::natural64:
        return function(std::type_identity<std::uint64_t>{});
    case Type::real:
        return function(std::type_identity<double>{});
    default:
        assert(type == Type::text);
        return function(std::type_identity<Text>{});
    }
}

// Passes one value to a sink.
template <class Sink>
void put(Sink& sink, std::size_t option, std::int64_t value)
{
    sink.integer(option, value);
}
template <class Sink>
void put(Sink& sink, std::size_t option, std::int32_t value)
{
    sink.integer(option, value);
}
template <class Sink>
void put(Sink& sink, std::size_t option, std::uint64_t value)
{
    sink.natural(option, value);
}
template <class Sink>
void put(Sink& sink, std::size_t option, std::uint32_t value)
{
    sink.natural(option, value);
}
template <class Sink>
void put(Sink& sink, std::size_t option, double value)
{
    sink.real(option, value);
}
template <class Sink>
void put(Sink& sink, std::size_t option, const std::string& value)
{
    sink.text(option, value.c_str());
}
template <class Sink>
void put(Sink& sink, std::size_t option, const char* value)
{
    sink.text(option, value);
}

// Passes every value of a list to a sink.
template <class Sink, class T>
void put(Sink& sink, std::size_t option, const std::vector<T>& values)
{
    for (const T& value : values)
    {
        put(sink, option, value);
    }
}

struct Count
{
    int count = 0;
};

template <class Text>
using SlotOf =
    std::variant<Count, std::int32_t, std::uint32_t, std::int64_t, std::uint64_t, double, Text,
                 std::vector<std::int32_t>, std::vector<std::uint32_t>, std::vector<std::int64_t>,
                 std::vector<std::uint64_t>, std::vector<double>, std::vector<Text>>;
using Slot = SlotOf<std::string>;

template <class Text = std::string>
SlotOf<Text> makeSlot(const Option& option)
{
    if (option.type == Type::flag)
    {
        return Count{};
    }
    return withType<Text>(option.type,
                          [&]<class T>(std::type_identity<T>) -> SlotOf<Text>
                          {
                              if (option.repeated || option.list)
                              {
                                  return std::vector<T>();
                              }
                              return T();
                          });
}

// Passes everything that a slot holds to a sink.
template <class Sink, class T>
void give(Sink& sink, std::size_t option, const T& variable)
{
    if constexpr (std::is_same_v<T, Count>)
    {
        sink.flag(option, static_cast<std::uint64_t>(variable.count));
    }
    else
    {
        put(sink, option, variable);
    }
}

} // namespace benchmarks

#endif
