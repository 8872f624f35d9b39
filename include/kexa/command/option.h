// What may be said about one option or positional argument after it was declared.
#ifndef KEXA_COMMAND_OPTION_H
#define KEXA_COMMAND_OPTION_H

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "kexa/command/declared.h"
#include "kexa/command/detail/member.h"
#include "kexa/command/detail/rules.h"

namespace kexa
{
inline namespace v1
{

// An option or positional argument whose member is a T. Each operation returns the option itself,
// so that calls can be chained. A mistake is a std::logic_error that names the declaration.
template <class T>
class Option : public Declared
{
public:
    using Declared::Declared;
    using Element = detail::ElementOf<T>;

    // Only these values are accepted. A text may be abbreviated.
    Option& values(std::initializer_list<const char*> texts)
    {
        static_assert(detail::Element<Element>::rawType == kexa_3_3::value_type_string &&
                          !std::is_enum_v<Element>,
                      "give values of the option's type, or pairs of a name and a value");
        for (const char* text : texts)
        {
            m_core->allow(*m_declaration, vexkit2::variant_t(detail::wideText(text)));
        }
        m_core->checkDefault(*m_declaration);
        return *this;
    }

    // Only these names are accepted, and stand for these values. They may be abbreviated.
    Option& values(std::initializer_list<NamedValue<Element>> values) { return valuesOf(values); }

    // Only these values are accepted. For numbers.
    template <class Number = Element, class = std::enable_if_t<detail::isNumber<Number>>>
    Option& values(std::initializer_list<Number> values)
    {
        for (const Number value : values)
        {
            m_core->allow(*m_declaration, detail::variantOf(value));
        }
        m_core->checkDefault(*m_declaration);
        return *this;
    }

    // As values(), for a container or an array of const char*, of NamedValue<Element> or of pairs
    // of a name and a value.
    template <class Range>
    Option& valuesOf(const Range& range)
    {
        if constexpr (std::is_constructible_v<std::string, decltype(*std::begin(range))>)
        {
            for (const auto& text : range)
            {
                m_core->allow(*m_declaration,
                              vexkit2::variant_t(detail::wideText(std::string(text))));
            }
        }
        else
        {
            auto table = std::make_unique<detail::NamedValues<Element>>();
            for (const auto& [name, value] : range)
            {
                m_core->allowName(*m_declaration, *table, name);
                table->values.push_back(value);
            }
            m_declaration->table = std::move(table);
        }
        m_core->checkDefault(*m_declaration);
        return *this;
    }

    // The value `old` is replaced by an allowed one, with a warning on standard error.
    Option& deprecated(std::string_view old, std::string_view replacement)
    {
        return m_core->replaceValue(*m_declaration, old, replacement), *this;
    }
    template <class Number = Element, class = std::enable_if_t<detail::isNumber<Number>>>
    Option& deprecated(Number old, Number replacement)
    {
        const auto variant = [](Number number)
        {
            return detail::variantOf(number);
        };
        return m_core->replaceValue(*m_declaration, variant(old), variant(replacement)), *this;
    }

    // The option itself is deprecated; `instead` is for the help and Parsed::warnings(): "use --new".
    Option& deprecated(std::string_view instead)
    {
        return m_declaration->deprecation = instead, *this;
    }

    // Further names, which the help does not show. Split at ','.
    Option& alias(std::string_view names) { return m_core->addAlias(*m_declaration, names), *this; }

    // Each value lies between these, both inclusive.
    Option& range(Element lowest, Element highest)
    {
        m_declaration->lowest = detail::Element<Element>::text(lowest);
        m_declaration->highest = detail::Element<Element>::text(highest);
        m_core->addRule(*m_declaration, std::make_unique<detail::RangeRule<Element>>(
                                            std::move(lowest), std::move(highest)));
        m_core->checkDefault(*m_declaration);
        return *this;
    }

    // function: takes each value as `const Element&` and returns why it is refused (const char*,
    // std::string or std::optional<std::string>), or nothing (null, an empty text).
    template <class Function>
    Option& check(Function function)
    {
        m_core->addRule(*m_declaration, std::make_unique<detail::FunctionRule<Element, Function>>(
                                            std::move(function)));
        return *this;
    }

    // Must be given. With of(): where one of those actions is chosen.
    Option& required() { return m_core->setRequired(*m_declaration), *this; }

    // An ASCII character at which one argument is cut into several values. For lists.
    Option& separator(char character)
    {
        return m_core->setSeparator(*m_declaration, character), *this;
    }

    // Takes no value and counts how often it is given. For integers.
    Option& count()
    {
        static_assert(std::is_integral_v<Element> && detail::isNumber<Element>, "not an integer");
        m_core->setCounting(*m_declaration, detail::increment<Element>);
        return *this;
    }

    // The value where the option is given without one. Then it never takes the next argument.
    Option& implicit(std::string_view text)
    {
        return m_core->setImplicit(*m_declaration, text), *this;
    }

    // How many arguments a positional list takes; `maximum` is inclusive.
    Option& times(std::size_t minimum, std::size_t maximum)
    {
        return m_core->setTimes(*m_declaration, minimum, maximum), *this;
    }
    Option& times(std::size_t count) { return times(count, count); }

    // Only these actions accept the option.
    template <class... Actions>
    Option& of(const Action& action, const Actions&... others)
    {
        for (const Action& each : {action, static_cast<const Action&>(others)...})
        {
            const detail::Core::Reference reference = each.reference();
            m_core->acceptWith(*m_declaration, reference.core, *reference.declaration);
        }
        return *this;
    }

    // The environment variable that gives the value where the command line does not.
    Option& environment(std::string_view name)
    {
        return m_core->setEnvironment(*m_declaration, name), *this;
    }

    // What stands for the value in the help, such as "FILE".
    Option& valueName(std::string_view name) { return m_declaration->valueName = name, *this; }

    // The heading under which the help lists the option.
    Option& group(std::string_view name) { return m_declaration->group = name, *this; }

    // Not shown in the help.
    Option& hidden() { return m_declaration->hidden = true, *this; }
};

} // namespace v1
} // namespace kexa

#endif
