// What a parse returns: the struct, or why there is none.
#ifndef KEXA_COMMAND_PARSED_H
#define KEXA_COMMAND_PARSED_H

#include <cassert>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "kexa/command/detail/outcome.h"

namespace kexa
{
inline namespace v1
{

namespace detail
{

template <class T>
inline constexpr bool isOptional = false;
template <class T>
inline constexpr bool isOptional<std::optional<T>> = true;

} // namespace detail

#if KEXA_COMMAND_EXCEPTIONS
// What valueOrThrow() throws. what() is the message.
class ParseFailure : public std::runtime_error
{
public:
    explicit ParseFailure(Error error)
        : std::runtime_error(error.message), m_error(std::move(error))
    {
    }
    const Error& error() const noexcept { return m_error; }

private:
    Error m_error;
};
#endif

template <class Settings>
class Parsed
{
public:
    // True where there is a struct: the line was right, and asked for no help.
    explicit operator bool() const noexcept { return m_outcome.status == Status::success; }
    Status status() const noexcept { return m_outcome.status; }

    // The struct. Precondition: *this is true.
    const Settings& operator*() const noexcept { return value(); }
    const Settings* operator->() const noexcept { return &value(); }
    const Settings& value() const noexcept
    {
        assert(*this);
        return m_settings;
    }
    Settings& value() noexcept
    {
        assert(*this);
        return m_settings;
    }

    // Precondition: status() is Status::error.
    const Error& error() const noexcept
    {
        assert(status() == Status::error);
        return m_outcome.error;
    }

    // The text of the help or of the version where the line asked for it; else empty.
    const std::string& text() const noexcept { return m_outcome.text; }

#if KEXA_COMMAND_EXCEPTIONS
    // Returns the struct. Throws ParseFailure where there is none; where help or the version was
    // asked for, its code is 0 and its message that text.
    Settings& valueOrThrow() &
    {
        if (*this)
        {
            return m_settings;
        }
        Error error = m_outcome.error;
        if (status() != Status::error)
        {
            error.message = m_outcome.text;
        }
        throw ParseFailure(std::move(error));
    }
    Settings valueOrThrow() &&
    {
        return std::move(valueOrThrow());
    }
#endif

    // Where a member's value comes from. Further pointers lead into nested structs and into those of
    // subcommands, as in source(&Settings::push, &Push::force).
    template <class... Pointers>
    Source source(Pointers... members) const
    {
        return sourceIn(m_outcome, &m_settings, m_settings, members...);
    }

    // Every value that was given, in the order of the command line.
    std::vector<Occurrence> occurrences() const
    {
        return m_outcome.occurrences();
    }

    // What to tell the user although the line is right: the deprecated options that it gives. run()
    // prints them to standard error.
    const std::vector<std::string>& warnings() const noexcept
    {
        return m_outcome.warnings;
    }

    // What the parser beneath has read, for options that the program has declared at
    // Command::parser(). Null where the program has not called that before the parse. Belongs to
    // this object, and is not to be used after the Command is gone.
    kexa_3_3::IParseResult* result() const noexcept
    {
        return m_outcome.result.get();
    }

    const detail::Outcome& outcome() const noexcept
    {
        return m_outcome;
    }

private:
    template <class>
    friend class Command;

    // whole: the struct whose members the outcome is about; object: it or a struct within it.
    template <class Object, class Base, class Member, class... Pointers>
    static Source sourceIn(const detail::Outcome& outcome, const void* whole, const Object& object,
                           Member Base::*member, Pointers... others)
    {
        const auto& found = object.*member;
        if constexpr (sizeof...(others) == 0)
        {
            return outcome.sourceOf(static_cast<std::size_t>(reinterpret_cast<const char*>(&found) -
                                                             static_cast<const char*>(whole)));
        }
        else if constexpr (detail::isOptional<Member>)
        {
            return found && outcome.inner != nullptr
                       ? sourceIn(*outcome.inner, &*found, *found, others...)
                       : Source::defaulted;
        }
        else
        {
            return sourceIn(outcome, whole, found, others...);
        }
    }

    Settings m_settings{};
    detail::Outcome m_outcome;
};

} // namespace v1
} // namespace kexa

#endif
