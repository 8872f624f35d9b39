#include "recognition/PositionalOptionsParser.h"

#include <string_view>

#include "kexa/parser.h"

#include "options/OptionDescription.h"
#include "options/RegisteredOptionStorage.h"

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
                                       std::wstring& /*message*/)
{
    const std::wstring_view argument = arguments.front();
    trace(L": recognizing argument '", argument, L"'");
    if (hasFlag(flag_no_hyphen_positional) && !argument.empty() && argument.front() == L'-')
    {
        return declined;
    }
    return options.index().firstPositional() != OptionIndex::none ? claimed : declined;
}

int PositionalOptionsParser::parse(ArgumentQueue& arguments, IResultCollector* collector,
                                   const RegisteredOptionStorage& options,
                                   std::int64_t& optionIndex, std::wstring& error)
{
    trace(L": parsing argument '", arguments.front(), L"'");
    optionIndex = options.index().firstPositional();
    const OptionDescription& option = options[static_cast<std::size_t>(optionIndex)];
    trace(L": option is '", option.primaryName(), L"'");
    do
    {
        const std::wstring_view argument = arguments.front();
        reportOption(option);
        const int code = m_storing.store({option, argument, argument, collector}, error);
        if (code != 0)
        {
            return code;
        }
        trace(L": removing argument: '", argument, L"'");
        arguments.removeFront();
    } while (!arguments.empty() && hasFlag(flag_positional_takes_rest));
    return 0;
}

} // namespace kexa_3_3
