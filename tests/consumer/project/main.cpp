#include <kexa/kexa.h>

#include <cstdio>

#if !defined(_MSVC_LANG)
static_assert(__cplusplus == 201703L, "linking the library must not change the C++ standard");
#endif

int main(int argc, char** argv)
{
    // Fails to compile if the library's own warnings reach this project.
    short argument_count = argc;
    wchar_t texts[8][32] = {};
    const wchar_t* arguments[8] = {};
    for (int argument = 0; argument < argument_count && argument < 8; ++argument)
    {
        int argc = 0;
        for (const char* text = (const char*)argv[argument]; *text && argc < 31; ++text)
            texts[argument][argc++] = *text;
        arguments[argument] = texts[argument];
    }

    kexa_3_3::IParser* parser = nullptr;
    if (kexa_3_3::createParser(&parser, 0) != kexa_3_3::result_success)
        return 1;
    parser->addOption(L"count", L"How many", kexa_3_3::value_type_integer, L"");
    parser->addOption(L"name", L"Which", kexa_3_3::value_type_string, L"");
    parser->addSwitch(L"verbose", L"Tell more", kexa_3_3::value_type_boolean, L"");
    kexa_3_3::IParseResult* result = nullptr;
    parser->createParseResult(&result);

    int code = parser->parse(argument_count, arguments, result);
    if (code == 0)
    {
        kexa_3_3::Value count = kexa_3_3::getLastValue(result, L"count", 0, kexa_3_3::no_position);
        kexa_3_3::Value name = kexa_3_3::getLastValue(result, L"name", 0, kexa_3_3::no_position);
        std::printf("count %d, name %ls", count.as<vexkit2::s32_t>(), name.as<const wchar_t*>());
        if (result->isPresent(L"verbose", 0, kexa_3_3::no_position))
            std::printf(", verbose");
        std::printf("\nheader %s\n", KEXA_VERSION_STRING);
    }
    result->release();
    parser->release();
    return code;
}
