#include "workloads/Values.h"

#include <cassert>
#include <charconv>
#include <numeric>
#include <stdexcept>
#include <utility>

namespace benchmarks
{

std::size_t Values::below(std::size_t limit)
{
    assert(limit != 0);
    return std::size_t{m_engine()} % limit;
}

std::vector<std::size_t> Values::shuffled(std::size_t count)
{
    std::vector<std::size_t> numbers(count);
    std::iota(numbers.begin(), numbers.end(), std::size_t{0});
    for (std::size_t i = count; i > 1; --i)
    {
        std::swap(numbers[i - 1], numbers[below(i)]);
    }
    return numbers;
}

std::uint64_t Values::nextNumber(unsigned bits)
{
    const std::uint64_t number = m_engine() >> (64 - bits);
    return number >> below(bits);
}

std::string Values::nextText(TextLength length)
{
    constexpr const char* words[] = {"alpha", "beta", "gamma", "delta", "epsilon", "zeta"};
    const auto word = [&]
    {
        return std::string(words[below(std::size(words))]);
    };
    if (length == TextLength::path)
    {
        return "source/component_" + word() + "/" + word() + "-" + std::to_string(below(100000)) +
               "/module_" + std::to_string(below(1000)) + ".cpp";
    }
    std::string text = word() + std::to_string(below(1000));
    if (below(2) == 0)
    {
        text += "/" + word() + "." + std::to_string(below(10));
    }
    return text;
}

Value Values::next(Type type, TextLength length)
{
    switch (type)
    {
    case Type::integer:
    case Type::integer64:
    {
        const auto magnitude =
            static_cast<std::int64_t>(nextNumber(type == Type::integer ? 31 : 63));
        const std::int64_t number = below(2) == 0 ? magnitude : -magnitude;
        return {std::to_string(number), Reading(number)};
    }
    case Type::natural:
    case Type::natural64:
    {
        const std::uint64_t number = nextNumber(type == Type::natural ? 32 : 64);
        return {std::to_string(number), Reading(number)};
    }
    case Type::real:
    {
        // Two to eleven digits with a point, as people write them.
        std::string text = std::to_string(nextNumber(20)) + "." + std::to_string(below(10000));
        double number = 0;
        std::from_chars(text.data(), text.data() + text.size(), number);
        return {std::move(text), Reading(number)};
    }
    case Type::text:
    {
        std::string text = nextText(length);
        return {text, Reading(text)};
    }
    case Type::flag:
        break;
    }
    throw std::logic_error("a flag has no value");
}

} // namespace benchmarks
