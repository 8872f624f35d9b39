// Passes text from the command line through the library and prints the output. The first argument
// selects the operation; the others are its arguments.
#include <string>

#include "common/Arguments.h"
#include "common/Host.h"
#include "common/Text.h"

namespace
{

using example::ParserPointer;
using example::ResultPointer;
using vexkit2::variant_t;

ParserPointer makeParser()
{
    ParserPointer parser = example::makeParser(kexa_3_3::flag_unknown_is_error);
    const wchar_t* const group = L"gr\u00fc\u00dfe \U0001F44B:Text \U0001F4DD of the group";
    parser->addOption(L"text,\U0001F4DD", L"Any text \U0001F600 at all",
                      kexa_3_3::value_type_string, group);
    kexa_3_3::IOption& mood =
        *parser
             ->addOption(L"mood", L"One of several \U0001F3AD", kexa_3_3::value_type_string, group)
             .option;
    mood.addAllowedValue(variant_t(L"\U0001F600 smile"))
        .addAllowedValue(variant_t(L"\U0001F601 grin"))
        .addDeprecatedValue(variant_t(L"\U0001F642"), variant_t(L"\U0001F600 smile"))
        .setDefaultValue(variant_t(L"\U0001F601 grin"));
    parser->addOption(L"rest", L"What no option names", kexa_3_3::value_type_string, group)
        .option->setMarked();
    parser->enableOptionFiles(L"Further arguments", group);
    return parser;
}

void printValues(kexa_3_3::IParseResult& result, const wchar_t* name)
{
    for (const kexa_3_3::Value& value : example::valuesOf(result, name))
    {
        example::print(std::wstring(name) + L": " + value.as<const wchar_t*>() + L"\n");
        // The variant holds the text that is returned beside it.
        if (value.value != variant_t::reference(value.as<const wchar_t*>()))
        {
            example::print(L"... and its variant is another text\n");
        }
    }
}

int parse(int argc, const wchar_t* const* argv)
{
    const ParserPointer parser = makeParser();
    const ResultPointer result = example::makeResult(*parser);
    const int code = parser->parse(argc, argv, result.get());
    if (code != 0)
    {
        example::printError(parser->getErrorMessage() + std::wstring(L"\n"));
        return code;
    }
    for (const wchar_t* const name : {L"text", L"mood", L"rest"})
    {
        printValues(*result, name);
    }
    return 0;
}

int help()
{
    example::print(makeParser()->showFullHelp(false));
    return 0;
}

// Declares two options with this name.
int declare(const wchar_t* name)
{
    const ParserPointer parser = makeParser();
    parser->addOption(name, L"", kexa_3_3::value_type_string, L"");
    parser->addOption(name, L"", kexa_3_3::value_type_string, L"");
    return 0;
}

int wrap(const wchar_t* lead, const wchar_t* text, const wchar_t* indent, const wchar_t* width)
{
    example::print(
        kexa_3_3::WordWrappedText(lead, text, std::stoul(indent), std::stoul(width)).getText());
    return 0;
}

} // namespace

int run(int argc, const wchar_t* const* argv)
{
    const std::wstring operation = argc > 1 ? argv[1] : L"";
    if (operation == L"parse")
    {
        return parse(argc - 1, argv + 1);
    }
    if (operation == L"help")
    {
        return help();
    }
    if (operation == L"declare" && argc == 3)
    {
        return declare(argv[2]);
    }
    if (operation == L"wrap" && argc == 6)
    {
        return wrap(argv[2], argv[3], argv[4], argv[5]);
    }
    return 100;
}
