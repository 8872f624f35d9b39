// Typed values, lists of values, allowed and deprecated values: the command line of a photo
// converter, which prints the parsed settings.
#include "common/Arguments.h"
#include "common/Host.h"

using namespace kexa_3_3;
using vexkit2::variant_t;

namespace
{

void declareOptions(IParser& parser)
{
    parser.addOption(L"width,w", L"Widths in pixels", value_type_unsigned, L"");
    parser.addOption(L"rotate", L"Degrees", value_type_integer, L"");
    parser.addOption(L"seconds-offset", L"Clock correction", value_type_integer64, L"");
    parser.addOption(L"mask", L"Channel mask", value_type_unsigned64, L"");
    parser.addOption(L"gamma", L"Brightness curve", value_type_double, L"")
        .option->setDefaultValue(variant_t(2.2));
    parser.addOption(L"metadata", L"Keep the metadata", value_type_boolean, L"")
        .option->setDefaultValue(variant_t(true));
    parser.addOption(L"format", L"File format", value_type_string, L"")
        .option->addAllowedValue(variant_t(L"jpeg"))
        .addAllowedValue(variant_t(L"png"))
        .addAllowedValue(variant_t(L"pnm"))
        .addDeprecatedValue(variant_t(L"jpg"), variant_t(L"jpeg"));
    parser.addOption(L"title", L"Caption", value_type_string, L"").option->setSeparator(0);
}

void printValues(IParseResult& result)
{
    for (const Value& width : example::valuesOf(result, L"width"))
    {
        // Positions number the values of all options, so they give the order of different lists.
        example::print(L"width " + std::to_wstring(width.as<vexkit2::u32_t>()) + L" at position " +
                       std::to_wstring(width.position) + L"\n");
    }
    for (const wchar_t* name :
         {L"rotate", L"seconds-offset", L"mask", L"gamma", L"metadata", L"format", L"title"})
    {
        const Value value = example::lastValue(result, name);
        if (value.status == result_success)
        {
            example::print(std::wstring(name) + L" " + value.as<const wchar_t*>() + L"\n");
        }
    }
    const double gamma = example::lastValue(result, L"gamma").as<double>();
    const bool metadata = example::lastValue(result, L"metadata").as<bool>();
    example::print(gamma > 1 && metadata ? L"brighter, metadata kept\n" : L"as asked\n");
}

} // namespace

int run(int argc, const wchar_t* const* argv)
{
    const example::ParserPointer parser = example::makeParser(flag_unknown_is_error);
    declareOptions(*parser);
    const example::ResultPointer result = example::makeResult(*parser);
    if (parser->parse(argc, argv, result.get()) != result_success)
    {
        example::printError(std::wstring(parser->getErrorMessage()) + L"\n");
        return 2;
    }
    printValues(*result);
    return 0;
}
