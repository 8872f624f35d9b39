#include "recognition/PositionalOptionsParser.h"

#include <cassert>
#include <string_view>

#include "kexa/parser.h"

#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"
#include "recognition/Runs.h"
#include "result/ParseResult.h"

namespace kexa_3_3
{

using namespace std::string_view_literals;

PositionalOptionsParser::PositionalOptionsParser(EventHandler* owner, Garbage& settings,
                                                 std::uint32_t flags)
    : IArgumentParser(owner, settings, flags), m_storing(*this)
{
    rename(L"PositionalOptionsParser"sv);
}

int PositionalOptionsParser::recognize(const ArgumentQueue& arguments,
                                       const RegisteredOptionStorage& options,
                                       std::wstring& message)
{
    return recognizeIn<AnyRun>(arguments, options, message);
}

ParseStatus PositionalOptionsParser::parse(ArgumentQueue& arguments, IResultCollector* collector,
                                           const RegisteredOptionStorage& options,
                                           std::int64_t& optionIndex, std::wstring& error)
{
    return parseIn<AnyRun>(arguments, collector, options, optionIndex, error);
}

template <class Run>
int PositionalOptionsParser::recognizeIn(const ArgumentQueue& arguments,
                                         const RegisteredOptionStorage& options,
                                         std::wstring& /*message*/)
{
    assert(!arguments.empty());
    const std::wstring_view argument = arguments.front();
    trace<Run>(L": recognizing argument '", argument, L"'");
    if (hasFlag(flag_no_hyphen_positional) && !argument.empty() && argument.front() == L'-')
    {
        return declined;
    }
    return options.index().firstPositional() ? claimed : declined;
}

template <class Run>
ParseStatus PositionalOptionsParser::parseIn(ArgumentQueue& arguments,
                                             typename Run::Collector* collector,
                                             const RegisteredOptionStorage& options,
                                             std::int64_t& optionIndex, std::wstring& error)
{
    assert(!arguments.empty());
    trace<Run>(L": parsing argument '", arguments.front(), L"'");
    assert(options.index().firstPositional().has_value());
    const std::size_t number = *options.index().firstPositional();
    optionIndex = static_cast<std::int64_t>(number);
    const OptionDescription& option = options[number];
    trace<Run>(L": option is '", option.primaryName(), L"'");
    do
    {
        const std::wstring_view argument = arguments.front();
        const GivenValue given = {option, argument, argument};
        ParseStatus status = ParseStatus::parsed;
        if (owner() == nullptr) [[likely]]
        {
            // cppcheck-suppress redundantInitialization ; no variable is left undefined
            status = storeAndRemove<Run>(given, collector, arguments, error);
        }
        else
        {
            reportOption(option);
            // A handler may have switched the trace on.
            using Watched = WatchedRun<typename Run::Collector>;
            status = storeAndRemove<Watched>(given, collector, arguments, error);
        }
        if (status != ParseStatus::parsed)
        {
            return status;
        }
    } while (!arguments.empty() && hasFlag(flag_positional_takes_rest));
    return ParseStatus::parsed;
}

template <class Run>
ParseStatus PositionalOptionsParser::storeAndRemove(const GivenValue& given,
                                                    typename Run::Collector* collector,
                                                    ArgumentQueue& arguments, std::wstring& error)
{
    const ParseStatus status = m_storing.storeIn<Run>(given, collector, error);
    if (status == ParseStatus::parsed)
    {
        trace<Run>(L": removing argument: '", given.argument, L"'");
        arguments.removeFront();
    }
    return status;
}

template int PositionalOptionsParser::recognizeIn<AnyRun>(const ArgumentQueue&,
                                                          const RegisteredOptionStorage&,
                                                          std::wstring&);
template ParseStatus PositionalOptionsParser::parseIn<AnyRun>(ArgumentQueue&, IResultCollector*,
                                                              const RegisteredOptionStorage&,
                                                              std::int64_t&, std::wstring&);
template int PositionalOptionsParser::recognizeIn<UsualRun>(const ArgumentQueue&,
                                                            const RegisteredOptionStorage&,
                                                            std::wstring&);
template ParseStatus PositionalOptionsParser::parseIn<UsualRun>(ArgumentQueue&, ParseResult*,
                                                                const RegisteredOptionStorage&,
                                                                std::int64_t&, std::wstring&);

} // namespace kexa_3_3
