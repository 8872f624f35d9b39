#include "recognition/AbbreviationParser.h"

#include <string_view>

#include "kexa/option.h"

#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"
#include "support/Text.h"

namespace kexa_3_3
{

using namespace std::string_view_literals;

namespace
{

constexpr int parsed = 0;
constexpr int invalid = 2;
constexpr std::size_t shortest_option = 2; // a hyphen and a character

} // namespace

AbbreviationParser::AbbreviationParser(EventHandler* owner, Garbage& settings, std::uint32_t flags)
    : IArgumentParser(owner, settings, flags), m_storing(*this)
{
    rename(L"AbbreviationParser"sv);
}

int AbbreviationParser::recognize(const ArgumentQueue& arguments,
                                  const RegisteredOptionStorage& options, std::wstring& /*message*/)
{
    const std::wstring_view argument = arguments.front();
    trace(L": recognizing argument '", argument, L"'");
    if (argument.size() < shortest_option || hyphenPrefixLength(argument, 0) == 0)
    {
        return declined;
    }
    m_split = splitOptionArgument(argument, m_whiteSpace);
    findBestMatch(m_match, options.index(), m_split.name);
    if (m_match.count == 1)
    {
        trace(L": best match option for '", m_split.name, L"' in argument '", argument, L"' is '",
              m_match.prefix(), m_match.name, L"'");
    }
    else if (m_match.count > 1)
    {
        // Claimed all the same: parse reports the ambiguity.
        m_candidateList = listCandidates(options.index(), m_split.name);
        trace(L": failed to get best match for '", m_split.name, L"' in argument '", argument,
              L"':", L"Ambiguous option, possible options are: ", viewOf(m_candidateList));
    }
    return m_match.count != 0 ? claimed : declined;
}

int AbbreviationParser::parse(ArgumentQueue& arguments, IResultCollector* collector,
                              const RegisteredOptionStorage& options, std::int64_t& optionIndex,
                              std::wstring& error)
{
    const std::wstring_view argument = arguments.front();
    optionIndex = m_match.option;
    trace(L": parsing argument '", argument, L"'");
    if (m_split.name.empty() || m_split.name.front() == L'-')
    {
        error = concatenate({L"Unknown option '", argument, L"'"});
        return invalid;
    }
    if (m_match.count > 1)
    {
        error = concatenate({L"Ambiguous option '", m_split.name, L"'",
                             formatArgumentContext(argument), L", could be: ", m_candidateList});
        return invalid;
    }

    const OptionDescription& option = options[static_cast<std::size_t>(m_match.option)];
    trace(L": detected option: '", option.primaryName(), L"'");
    if (m_split.hasValue)
    {
        trace(L": value from the same argument taken: '", m_split.value, L"'");
    }
    GivenValue given = {option, m_split.value, argument, collector};
    bool takesNext = false;
    if (!takeValue(given, takesNext, arguments, error))
    {
        trace(L": ", viewOf(error));
        return invalid;
    }

    reportOption(option);
    trace(L": sent event on option parsed");
    const int code = m_storing.store(given, error);
    if (code == parsed)
    {
        remove(arguments);
        if (takesNext)
        {
            remove(arguments);
        }
    }
    return code;
}

void AbbreviationParser::remove(ArgumentQueue& arguments) const
{
    trace(L": removing argument: '", arguments.front(), L"'");
    arguments.removeFront();
}

// given.value: the value in the same argument; becomes the one to store.
bool AbbreviationParser::takeValue(GivenValue& given, bool& takesNext, ArgumentQueue& arguments,
                                   std::wstring& error) const
{
    const OptionDescription& option = given.option;
    const bool empty = given.value.empty();
    if (option.valueType == value_type_none)
    {
        if (!empty)
        {
            error = concatenate({L"Option '", option.primaryName(), L"'does not requires a value",
                                 formatArgumentContext(given.argument)});
        }
        return empty;
    }
    if (option.valueType == value_type_boolean)
    {
        given.value = m_match.beginsWithNegation() ? L"0"sv : L"1"sv;
        if (!empty)
        {
            error = concatenate({L"Option '", option.primaryName(),
                                 L"' is boolean and should be declared in form '--option' "
                                 L"or '--no-option'",
                                 formatArgumentContext(given.argument)});
        }
        return empty;
    }
    takesNext = empty;
    return !empty || takeNextArgument(given, arguments, error);
}

bool AbbreviationParser::takeNextArgument(GivenValue& given, ArgumentQueue& arguments,
                                          std::wstring& error) const
{
    trace(L": no value in the same argument, looking next");
    if (!arguments.hasSecond())
    {
        error = valueMissing(given);
        return false;
    }
    given.value = arguments.second();
    if (!given.value.empty() && given.value.front() == L'-')
    {
        error = concatenate({L"Option '", given.option.primaryName(),
                             L"' received value from the next argument: '", given.value,
                             (L"', but it seems to be an option. Use '-option=value' declaration "
                              L"form or make sure that value is not missed")});
        return false;
    }
    trace(L": got value from the next argument: '", given.value, L"'");
    if (given.value.empty())
    {
        error = valueMissing(given);
    }
    return !given.value.empty();
}

std::wstring AbbreviationParser::valueMissing(const GivenValue& given) const
{
    return concatenate({L"Option '", given.option.primaryName(), L"' requires a value",
                        formatArgumentContext(given.argument)});
}

} // namespace kexa_3_3
