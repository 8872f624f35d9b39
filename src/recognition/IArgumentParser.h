// The strategies that claim and consume arguments.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

#include "kexa/event_handler.h"
#include "kexa/result.h"

#include "options/OptionDescription.h"
#include "recognition/ArgumentQueue.h"
#include "recognition/ParseStatus.h"
#include "support/platform/Trace.h"

namespace kexa_3_3
{

class Garbage;
class IResultCollector;
class RegisteredOptionStorage;

// Made for one run: the arguments of a command line or of an option file. Whatever is passed to its
// operations outlives the run.
class IArgumentParser
{
public:
    static constexpr int claimed = 0;
    static constexpr int declined = 1;

    virtual ~IArgumentParser() = default;

    // Returns whether this parser claims the front argument: `claimed` or `declined`. Errors in a
    // claimed argument are reported by `parse`.
    //
    // Precondition: the queue is not empty.
    virtual int recognize(const ArgumentQueue& arguments, const RegisteredOptionStorage& options,
                          std::wstring& message) = 0;

    // Parses the front argument.
    //
    // Precondition: `recognize` was called last for this argument, and claimed it.
    //
    // collector:   receives the values; may be null.
    // optionIndex: receives the index of the option parsed.
    // error:       receives the message of a failure.
    //
    // Returns `parsed` after removing the arguments that it parsed. After a failure the failing
    // argument and those behind it remain in the queue.
    virtual ParseStatus parse(ArgumentQueue& arguments, IResultCollector* collector,
                              const RegisteredOptionStorage& options, std::int64_t& optionIndex,
                              std::wstring& error) = 0;

    // Returns the end of messages about one argument.
    [[nodiscard]] virtual std::wstring formatArgumentContext(std::wstring_view argument) const;

    // When several parsers claim an argument, the one with the highest priority parses it.
    [[nodiscard]] virtual std::int32_t priority() const noexcept = 0;

    // Returns the receiver of events, or null.
    [[nodiscard]] EventHandler* owner() const noexcept { return m_owner; }
    [[nodiscard]] std::wstring_view name() const noexcept { return m_name; }

    // Writes a trace line that begins with the parser's name, in a run that may be traced.
    template <class Run, class... Pieces>
    void trace([[maybe_unused]] Pieces... pieces) const
    {
        if constexpr (Run::mayBeWatched)
        {
            traceLine(Name{this}, pieces...);
        }
    }

protected:
    // owner:    receives the events; null when no handler is registered.
    // settings: the parser's texts.
    // flags:    the creation flags.
    IArgumentParser(EventHandler* owner, Garbage& settings, std::uint32_t flags) noexcept
        : m_owner(owner), m_settings(&settings), m_flags(flags)
    {
    }
    IArgumentParser(const IArgumentParser&) = delete;
    IArgumentParser& operator=(const IArgumentParser&) = delete;

    void rename(std::wstring_view name) noexcept { m_name = name; }
    void reportOption(const OptionDescription& option) const
    {
        if (m_owner != nullptr)
        {
            static_cast<void>(m_owner->onOptionParsed(option.primaryName().data()));
        }
    }
    [[nodiscard]] Garbage& settings() const noexcept { return *m_settings; }
    [[nodiscard]] bool hasFlag(std::uint32_t flag) const noexcept { return (m_flags & flag) != 0; }

private:
    static constexpr std::wstring_view nameless = L"UndefinedParser";

    // Stands for the name in a trace line, so that it is read only when the line is written.
    struct Name
    {
        const IArgumentParser* parser;
        friend std::wostream& operator<<(std::wostream& out, Name name)
        {
            return out << name.parser->name();
        }
    };

    EventHandler* m_owner;
    std::wstring_view m_name = nameless; // a literal
    Garbage* m_settings;
    std::uint32_t m_flags;
};

} // namespace kexa_3_3
