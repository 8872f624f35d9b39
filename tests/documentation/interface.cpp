// The snippets of docs/interface.md in its order, inside the functions that a host has around them.
#include <string>

#include <kexa/kexa.h>

#include "common/Console.h"

using namespace kexa_3_3;
using example::print;

namespace
{

void declareOptions(IParser* parser)
{
    const Registration& output =
        parser->addOption(L"output,o", L"Where to write", value_type_string, L"files:Files");
    output.option->setSeparator(0); // a file name may hold a comma

    parser->addOption(L"level", L"How hard to try", value_type_integer, L"")
        .option->setDefaultValue(vexkit2::variant_t(5));
    parser->addOption(L"define,d", L"Names to define", value_type_string, L"");

    IOption& mode = *parser->addOption(L"mode", L"How to run", value_type_string, L"").option;
    mode.addAllowedValue(vexkit2::variant_t(L"fast"))
        .addAllowedValue(vexkit2::variant_t(L"slow"))
        .addDeprecatedValue(vexkit2::variant_t(L"quick"), vexkit2::variant_t(L"fast"))
        .setDefaultValue(vexkit2::variant_t(L"fast"));

    IOption& file = *parser->addOption(L"file", L"A file to read", value_type_string, L"").option;
    file.setMarked().setSeparator(0);
}

void readValues(IParseResult* result)
{
    const Value level = getLastValue(result, L"level", 0, no_position);
    if (level.status == 0)
    {
        print(L"level " + std::to_wstring(level.as<vexkit2::s32_t>()) + L"\n");
        print(L"level, as text: " + std::wstring(level.as<const wchar_t*>()) + L"\n");
        print(level.position == no_position ? L"the default\n" : L"from the command line\n");
    }

    Value value;
    for (result_t code = result->getFirstValue(&value, L"define", 0, no_position);
         code == result_success; code = result->getNextValue(&value, L"define"))
    {
        print(L"define " + std::wstring(value.as<const wchar_t*>()) + L"\n");
    }
}

void readArguments(IParseResult* result)
{
    const Value file = getLastValue(result, L"file", 0, no_position);
    if (file.data != nullptr)
    {
        print(L"file " + std::wstring(file.as<const wchar_t*>()) + L"\n");
    }

    const wchar_t* argument = nullptr;
    for (result_t code = result->getFirstUnparsed(&argument); code == result_success;
         code = result->getNextUnparsed(&argument))
    {
        print(L"left over: " + std::wstring(argument) + L"\n");
    }
}

int parseAndRead(int argc, const wchar_t* const* argv)
{
    IParser* parser = nullptr;
    createParser(&parser, flag_unknown_is_error | flag_no_hyphen_positional);
    if (parser == nullptr)
    {
        return 3; // no memory
    }
    declareOptions(parser);

    IParseResult* result = nullptr;
    parser->createParseResult(&result);
    if (parser->parse(argc, argv, result) != result_success)
    {
        print(std::wstring(parser->getErrorMessage()) + L"\n");
    }
    else
    {
        readValues(result);
        readArguments(result);
    }

    result->release();
    parser->release();
    return 0;
}

void declareActions(IParser* parser)
{
    parser->addSwitch(L"list,l", L"List the files", value_type_none, L"Actions");
    parser->addSwitch(L"verify", L"Verify the files", value_type_none, L"Actions");
    parser->addOptionWithKeywords(L"long", L"list", L"More columns", value_type_boolean,
                                  L"Options");
    parser->addCompatibleActions({L"list", L"verify"}); // these two may be given together
}

void showHelp(IParser* parser)
{
    print(parser->showFullHelp(false));             // the options without keywords
    print(parser->getTopicList(false));             // the actions, one in each line
    print(parser->showTopicHelp(L"verify", false)); // one option or action
    print(parser->showRelatedHelp(L"list", false)); // the options that share a keyword with it

    const WordWrappedText paragraph(L"  name", L"a text that is wrapped at a column", 12, 40);
    print(paragraph.getText());
}

} // namespace

int main()
{
    example::useBinaryStreams();
    const wchar_t* good[] = {L"tool",     L"--level=7", L"--def", L"one,two",
                             L"-d=three", L"a,b.txt",   L"--",    L"-x"};
    const wchar_t* wrong[] = {L"tool", L"a.txt", L"--levle=7"};
    parseAndRead(8, good);
    parseAndRead(3, wrong);

    IParser* parser = nullptr;
    createParser(&parser, 0);
    declareActions(parser);
    showHelp(parser);
    parser->release();
}
