// Help texts from the declarations: the list of topics, one topic, its related options, all
// options, and the hidden ones. Also wraps a paragraph of the host.
#include "common/Arguments.h"
#include "common/Host.h"

using namespace kexa_3_3;
using vexkit2::variant_t;

namespace
{

constexpr const wchar_t* general = L"General:Options that every action takes.";

void declareCommandLine(IParser& parser)
{
    parser.addSwitch(L"pack,p",
                     L"Makes an archive of the given folder and everything below it, "
                     L"links excepted",
                     value_type_none, L"Actions");
    parser.addSwitch(L"unpack", L"Restores a folder", value_type_none, L"Actions");
    parser.addSwitch(L"repair", L"For the support desk", value_type_none, L"kexa_hidden");
    parser.addSwitch(L"help", L"Explains a topic", value_type_none, L"Actions");

    parser
        .addOptionWithKeywords(L"level", L"pack", L"From 1 (fast) to 9 (small)", value_type_integer,
                               L"Packing")
        .option->setDefaultValue(variant_t(6));
    parser
        .addOptionWithKeywords(L"method,m", L"pack", L"How to compress", value_type_string,
                               L"Packing")
        .option->addAllowedValue(variant_t(L"deflate"))
        .addAllowedValue(variant_t(L"store"))
        .setDefaultValue(variant_t(L"deflate"));
    parser.addOption(L"archive,a", L"The archive", value_type_string, general);
    parser.addOption(L"verbose", L"Says more", value_type_boolean, general)
        .option->setDefaultValue(variant_t(false));
    parser.addOption(L"block-size", L"Bytes", value_type_unsigned64, L"kexa_hidden");

    parser.addOptionWithKeywords(L"topic", L"help", L"What to explain", value_type_string, general);
    parser.addOptionWithKeywords(L"related", L"help", L"Action whose options to list",
                                 value_type_string, general);
    parser.addOptionWithKeywords(L"full", L"help", L"All", value_type_none, general);
    parser.addOptionWithKeywords(L"hidden", L"help", L"Hidden ones", value_type_none, general);
}

void explain(IParser& parser, IParseResult& result)
{
    const bool hidden = example::isPresent(result, L"hidden");
    const wchar_t* related = example::lastValue(result, L"related").as<const wchar_t*>();
    const wchar_t* topic = example::lastValue(result, L"topic").as<const wchar_t*>();
    const bool full = example::isPresent(result, L"full");
    example::print(full      ? parser.showFullHelp(hidden)
                   : related ? parser.showRelatedHelp(related, hidden)
                             : parser.showTopicHelp(topic, hidden)); // for null: the list of topics
}

} // namespace

int run(int argc, const wchar_t* const* argv)
{
    const example::ParserPointer parser = example::makeParser(flag_unknown_is_error);
    declareCommandLine(*parser);
    const example::ResultPointer result = example::makeResult(*parser);
    if (parser->parse(argc, argv, result.get()) != result_success)
    {
        const WordWrappedText text(L"error:", parser->getErrorMessage(), 8, 50);
        example::printError(text.getText());
        return 2;
    }
    explain(*parser, *result);
    return 0;
}
