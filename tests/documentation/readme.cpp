#include <cstdio>
#include <kexa/kexa.h>

using namespace kexa_3_3;

int main()
{
    IParser* parser = nullptr;
    createParser(&parser, flag_unknown_is_error);
    parser->addOption(L"verbose,v", L"Say what happens", value_type_boolean, L"");
    parser->addOption(L"version", L"The version to use", value_type_integer, L"");
    IOption& mode = *parser->addOption(L"mode,m", L"How to run", value_type_string, L"").option;
    mode.addAllowedValue(vexkit2::variant_t(L"fast")).addAllowedValue(vexkit2::variant_t(L"slow"));

    IParseResult* result = nullptr;
    parser->createParseResult(&result);
    const wchar_t* good[] = {L"tool", L"--verb", L"-vers=3", L"--mode", L"f"};
    if (parser->parse(5, good, result) == result_success)
    {
        const Value version = getLastValue(result, L"version", 0, no_position);
        const Value chosen = getLastValue(result, L"mode", 0, no_position);
        std::printf("version %d, mode %ls\n", version.as<int>(), chosen.as<const wchar_t*>());
    }
    const wchar_t* bad[] = {L"tool", L"--ver"};
    parser->parse(2, bad, result);
    std::printf("%ls\n", parser->getErrorMessage());
    result->release();
    parser->release();
}
