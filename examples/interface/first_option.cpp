// The smallest host: declare one option, parse, read its value or print the message.
//
// It uses only the library. The other examples use common/Host.h for ownership.
#include <kexa/kexa.h>

#include "common/Arguments.h"

using namespace kexa_3_3;

namespace
{

void declareOptions(IParser& parser)
{
    IOption& name = *parser.addOption(L"name,n", L"Whom to greet", value_type_string, L"").option;
    name.setDefaultValue(vexkit2::variant_t(L"World"));
    name.setSeparator(0); // a name may contain a comma
}

int greet(IParser& parser, IParseResult& result, int argc, const wchar_t* const* argv)
{
    if (parser.parse(argc, argv, &result) != result_success)
    {
        example::printError(std::wstring(parser.getErrorMessage()) + L"\n");
        return 2;
    }
    const Value name = getLastValue(&result, L"name", 0, no_position);
    example::print(L"Hello, " + std::wstring(name.as<const wchar_t*>()) + L"!\n");
    return 0;
}

} // namespace

int run(int argc, const wchar_t* const* argv)
{
    int exitCode = 3;
    IParser* parser = nullptr;
    createParser(&parser, flag_unknown_is_error);
    if (parser != nullptr)
    {
        declareOptions(*parser);
        IParseResult* result = nullptr;
        parser->createParseResult(&result);
        if (result != nullptr)
        {
            exitCode = greet(*parser, *result, argc, argv);
            result->release();
        }
        parser->release();
    }
    return exitCode;
}
