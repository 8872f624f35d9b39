// Option files: "-option-file=NAME" adds the arguments in the file, one per line, after those of
// the command line. This program uses the last value, so a file overrides the command line.
#include "common/Arguments.h"
#include "common/Host.h"

using namespace kexa_3_3;

int run(int argc, const wchar_t* const* argv)
{
    const example::ParserPointer parser = example::makeParser(flag_unknown_is_error);
    parser->addOption(L"level", L"How much to say", value_type_integer, L"");
    parser->addOption(L"tag", L"Tags of the run", value_type_string, L"");
    parser->enableOptionFiles(L"Reads further arguments from a file", L"");

    const example::ResultPointer result = example::makeResult(*parser);
    const result_t code = parser->parse(argc, argv, result.get());
    if (code != result_success)
    {
        example::printError(std::wstring(parser->getErrorMessage()) + L"\n");
        return code; // 6 if a file could not be read, 2 if an argument is wrong
    }
    for (const wchar_t* option : {L"level", L"tag", L"option-file"})
    {
        for (const Value& value : example::valuesOf(*result, option))
        {
            example::print(std::wstring(option) + L" '" + value.as<const wchar_t*>() + L"'\n");
        }
    }
    return 0;
}
