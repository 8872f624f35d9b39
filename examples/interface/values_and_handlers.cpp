// Event handlers: one refuses values that are valid for the type of the option, another takes
// arguments that no option has.
#include <vector>

#include "common/Arguments.h"
#include "common/Host.h"

using namespace kexa_3_3;

namespace
{

// Ports below 1024 belong to the system.
class UserPorts final : public EventHandler
{
public:
    bool onValueParsed(const wchar_t* name, const ValueRecord* value) override
    {
        return std::wstring_view(name) != L"port" || value->value.get<vexkit2::u32_t>() >= 1024;
    }
};

// Takes "+topic" arguments. Returning false means that the argument is not unknown.
class TopicArguments final : public EventHandler
{
public:
    std::vector<std::wstring> topics;

    bool onUnknownArgument(const wchar_t* argument) override
    {
        if (argument[0] != L'+')
        {
            return true;
        }
        topics.emplace_back(argument + 1);
        return false;
    }
};

} // namespace

int run(int argc, const wchar_t* const* argv)
{
    UserPorts ports;
    TopicArguments arguments;
    const example::ParserPointer parser = example::makeParser(flag_unknown_is_error);
    parser->addOption(L"port,p", L"Ports to listen on", value_type_unsigned, L"");
    parser->addEventHandler(&ports); // the host still owns them
    parser->addEventHandler(&arguments);

    const example::ResultPointer result = example::makeResult(*parser);
    const result_t code = parser->parse(argc, argv, result.get());
    if (code != result_success)
    {
        example::printError(std::wstring(parser->getErrorMessage()) + L"\n");
        return code; // 1 if a handler refused a value
    }
    for (const Value& port : example::valuesOf(*result, L"port"))
    {
        example::print(std::wstring(L"listen on ") + port.as<const wchar_t*>() + L"\n");
    }
    for (const std::wstring& topic : arguments.topics)
    {
        example::print(L"topic " + topic + L"\n");
    }
    return 0;
}
