#include "recognition/AbbreviationParser.h"

#include <string_view>

#include "kexa/option.h"

#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"
#include "recognition/Runs.h"
#include "result/ParseResult.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

using namespace std::string_view_literals;

namespace
{

constexpr std::size_t shortest_option = 2; // a hyphen and a character

// Says that what should be the value seems to be an option.
std::wstring optionInsteadOfValue(const GivenValue& given)
{
    return concatenate({L"Option '", given.option.primaryName(),
                        L"' received value from the next argument: '", given.value,
                        (L"', but it seems to be an option. Use '-option=value' declaration form "
                         L"or make sure that value is not missed")});
}

} // namespace

AbbreviationParser::AbbreviationParser(EventHandler* owner, Garbage& settings, std::uint32_t flags)
    : IArgumentParser(owner, settings, flags), m_storing(*this)
{
    rename(L"AbbreviationParser"sv);
}

int AbbreviationParser::recognize(const ArgumentQueue& arguments,
                                  const RegisteredOptionStorage& options, std::wstring& message)
{
    return recognizeIn<AnyRun>(arguments, options, message);
}

ParseStatus AbbreviationParser::parse(ArgumentQueue& arguments, IResultCollector* collector,
                                      const RegisteredOptionStorage& options,
                                      std::int64_t& optionIndex, std::wstring& error)
{
    return parseIn<AnyRun>(arguments, collector, options, optionIndex, error);
}

template <class Run>
int AbbreviationParser::recognizeIn(const ArgumentQueue& arguments,
                                    const RegisteredOptionStorage& options,
                                    std::wstring& /*message*/)
{
    const std::wstring_view argument = arguments.front();
    trace<Run>(L": recognizing argument '", argument, L"'");
    if (!findMatch(argument, options.index()))
    {
        return declined;
    }
    if (m_match.count == 1)
    {
        trace<Run>(L": best match option for '", typedName(), L"' in argument '", argument,
                   L"' is '", m_match.candidate, L"'");
    }
    else
    {
        trace<Run>(L": failed to get best match for '", typedName(), L"' in argument '", argument,
                   L"':", L"Ambiguous option, possible options are: ", viewOf(m_candidateList));
    }
    return claimed;
}

// Answers whether the argument names an option, or several: parse then reports the ambiguity.
bool AbbreviationParser::findMatch(std::wstring_view argument, const OptionIndex& index)
{
    if (argument.size() < shortest_option || countHyphens(argument) == 0)
    {
        return false;
    }
    m_split = splitOptionArgument(argument, m_whiteSpace);
    m_match = findBestMatch(index, m_split.name);
    if (m_match.count > 1)
    {
        m_candidateList = listCandidates(index, typedName());
    }
    return m_match.count != 0;
}

template <class Run>
ParseStatus AbbreviationParser::parseIn(ArgumentQueue& arguments,
                                        typename Run::Collector* collector,
                                        const RegisteredOptionStorage& options,
                                        std::int64_t& optionIndex, std::wstring& error)
{
    const std::wstring_view argument = arguments.front();
    optionIndex = static_cast<std::int64_t>(m_match.option);
    trace<Run>(L": parsing argument '", argument, L"'");
    if (typedName().empty() || typedName().front() == L'-') [[unlikely]]
    {
        error = concatenate({L"Unknown option '", argument, L"'"});
        return ParseStatus::invalid;
    }
    if (m_match.count > 1) [[unlikely]]
    {
        error = concatenate({L"Ambiguous option '", typedName(), L"'",
                             formatArgumentContext(argument), L", could be: ", m_candidateList});
        return ParseStatus::invalid;
    }

    const OptionDescription& option = options[m_match.option];
    trace<Run>(L": detected option: '", option.primaryName(), L"'");
    if (m_split.hasValue)
    {
        trace<Run>(L": value from the same argument taken: '", m_split.value, L"'");
    }
    GivenValue given = {option, m_split.value, argument};
    bool takesNext = false;
    if (!takeValue<Run>(given, takesNext, arguments, error)) [[unlikely]]
    {
        trace<Run>(L": ", viewOf(error));
        return ParseStatus::invalid;
    }
    if (owner() == nullptr) [[likely]]
    {
        trace<Run>(L": sent event on option parsed");
        return storeAndRemove<Run>(given, collector, takesNext, arguments, error);
    }
    reportOption(option);
    // From here on a handler may have switched the trace on.
    using Watched = WatchedRun<typename Run::Collector>;
    trace<Watched>(L": sent event on option parsed");
    return storeAndRemove<Watched>(given, collector, takesNext, arguments, error);
}

template <class Run>
ParseStatus AbbreviationParser::storeAndRemove(const GivenValue& given,
                                               typename Run::Collector* collector, bool takesNext,
                                               ArgumentQueue& arguments, std::wstring& error)
{
    const ParseStatus status = m_storing.storeIn<Run>(given, collector, error);
    if (status == ParseStatus::parsed)
    {
        remove<Run>(arguments);
        if (takesNext)
        {
            remove<Run>(arguments);
        }
    }
    return status;
}

template <class Run>
void AbbreviationParser::remove(ArgumentQueue& arguments) const
{
    trace<Run>(L": removing argument: '", arguments.front(), L"'");
    arguments.removeFront();
}

// given.value: the value in the same argument; becomes the one to store.
template <class Run>
bool AbbreviationParser::takeValue(GivenValue& given, bool& takesNext, ArgumentQueue& arguments,
                                   std::wstring& error) const
{
    const bool empty = given.value.empty();
    if (given.option.valueType == value_type_none || given.option.valueType == value_type_boolean)
    {
        if (!empty) [[unlikely]]
        {
            error = superfluousValue(given);
        }
        else if (given.option.valueType == value_type_boolean)
        {
            given.value = m_match.beginsWithNegation() ? L"0"sv : L"1"sv;
        }
        return empty;
    }
    takesNext = empty;
    return !empty || takeNextArgument<Run>(given, arguments, error);
}

template <class Run>
bool AbbreviationParser::takeNextArgument(GivenValue& given, ArgumentQueue& arguments,
                                          std::wstring& error) const
{
    trace<Run>(L": no value in the same argument, looking next");
    if (!arguments.hasSecond()) [[unlikely]]
    {
        error = valueMissing(given);
        return false;
    }
    given.value = arguments.second();
    if (!given.value.empty() && given.value.front() == L'-') [[unlikely]]
    {
        error = optionInsteadOfValue(given);
        return false;
    }
    trace<Run>(L": got value from the next argument: '", given.value, L"'");
    if (given.value.empty()) [[unlikely]]
    {
        error = valueMissing(given);
    }
    return !given.value.empty();
}

// Says that an option was given a value and takes none.
std::wstring AbbreviationParser::superfluousValue(const GivenValue& given) const
{
    const std::wstring_view complaint =
        given.option.valueType == value_type_none
            ? L"'does not requires a value"sv
            : L"' is boolean and should be declared in form '--option' or '--no-option'"sv;
    return concatenate({L"Option '", given.option.primaryName(), complaint,
                        formatArgumentContext(given.argument)});
}

std::wstring AbbreviationParser::valueMissing(const GivenValue& given) const
{
    return concatenate({L"Option '", given.option.primaryName(), L"' requires a value",
                        formatArgumentContext(given.argument)});
}

template int AbbreviationParser::recognizeIn<AnyRun>(const ArgumentQueue&,
                                                     const RegisteredOptionStorage&, std::wstring&);
template ParseStatus AbbreviationParser::parseIn<AnyRun>(ArgumentQueue&, IResultCollector*,
                                                         const RegisteredOptionStorage&,
                                                         std::int64_t&, std::wstring&);
template int AbbreviationParser::recognizeIn<UsualRun>(const ArgumentQueue&,
                                                       const RegisteredOptionStorage&,
                                                       std::wstring&);
template ParseStatus AbbreviationParser::parseIn<UsualRun>(ArgumentQueue&, ParseResult*,
                                                           const RegisteredOptionStorage&,
                                                           std::int64_t&, std::wstring&);

} // namespace kexa_3_3
