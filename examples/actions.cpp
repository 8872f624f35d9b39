// Switches as actions: the command line of a program for notes. It contains one action, or several
// that are declared as compatible. An option with keywords is accepted only by actions that share a
// keyword.
#include "common/Arguments.h"
#include "common/Host.h"

using namespace kexa_3_3;

namespace
{

constexpr const wchar_t* actions[] = {L"add", L"count", L"find", L"remove"};

void declareCommandLine(IParser& parser)
{
    // A switch of type "none" has no "no-" form. Its names are its keywords.
    parser.addSwitch(L"add", L"Adds a note", value_type_none, L"");
    parser.addSwitch(L"find", L"Prints notes", value_type_none, L"");
    parser.addSwitch(L"count", L"Counts notes", value_type_none, L"");
    parser.addSwitch(L"remove", L"Removes a note", value_type_none, L"");
    parser.addCompatibleActions({L"find", L"count"});

    parser
        .addOptionWithKeywords(L"text", L"add,count,find", L"Words of the note", value_type_string,
                               L"")
        .option->setSeparator(0);
    parser.addOptionWithKeywords(L"id", L"remove", L"Numbers of notes", value_type_unsigned, L"");
    // No keyword: every action accepts it.
    parser.addOption(L"file", L"Where the notes are", value_type_string, L"")
        .option->setDefaultValue(vexkit2::variant_t(L"notes.txt"));
}

void printRequest(IParseResult& result)
{
    for (const wchar_t* action : actions)
    {
        if (example::isPresent(result, action))
        {
            example::print(std::wstring(L"action ") + action + L"\n");
        }
    }
    for (const wchar_t* option : {L"text", L"id", L"file"})
    {
        for (const Value& value : example::valuesOf(result, option))
        {
            example::print(std::wstring(option) + L" " + value.as<const wchar_t*>() + L"\n");
        }
    }
}

} // namespace

int run(int argc, const wchar_t* const* argv)
{
    const example::ParserPointer parser = example::makeParser(flag_unknown_is_error);
    declareCommandLine(*parser);
    const example::ResultPointer result = example::makeResult(*parser);
    if (parser->parse(argc, argv, result.get()) != result_success)
    {
        example::printError(std::wstring(parser->getErrorMessage()) + L"\n");
        return 2;
    }
    printRequest(*result);
    return 0;
}
