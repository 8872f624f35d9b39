// Positional and left-over arguments: a program that runs others. Plain arguments are the programs,
// and the arguments after "--" are passed to them unread.
#include "common/Arguments.h"
#include "common/Host.h"

using namespace kexa_3_3;

namespace
{

void declareOptions(IParser& parser)
{
    parser.addOption(L"times,t", L"How often", value_type_unsigned, L"")
        .option->setDefaultValue(vexkit2::variant_t(1U));
    // A marked option takes the plain arguments and is not shown in the help.
    parser.addOption(L"program", L"What to run", value_type_string, L"")
        .option->setMarked()
        .setSeparator(0); // a name may contain a comma
}

void printRequest(IParseResult& result)
{
    for (const Value& program : example::valuesOf(result, L"program"))
    {
        const wchar_t* text = program.as<const wchar_t*>(); // null for an empty argument
        if (text != nullptr)
        {
            example::print(std::wstring(L"program ") + text + L"\n");
        }
    }
    const wchar_t* argument = nullptr;
    for (auto code = result.getFirstUnparsed(&argument); code == result_success;
         code = result.getNextUnparsed(&argument))
    {
        example::print(std::wstring(L"pass on ") + argument + L"\n");
    }
    const auto times = example::lastValue(result, L"times").as<vexkit2::u32_t>();
    example::print(L"times " + std::to_wstring(times) + L"\n");
}

} // namespace

int run(int argc, const wchar_t* const* argv)
{
    // An argument that begins with "-" is an option or an error, but never a program. After "--" it
    // is a left-over argument; with flag_any_positional_after_marker it would be a program there.
    const example::ParserPointer parser =
        example::makeParser(flag_unknown_is_error | flag_no_hyphen_positional);
    declareOptions(*parser);
    const example::ResultPointer result = example::makeResult(*parser);
    if (parser->parse(argc, argv, result.get()) != result_success)
    {
        example::printError(std::wstring(parser->getErrorMessage()) + L"\n");
        return 2;
    }
    printRequest(*result);
    return 0;
}
