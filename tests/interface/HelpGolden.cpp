// The help of a larger program, compared with whole texts in files.
#include <string>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::s32_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

void declareActions(IParser& parser)
{
    const wchar_t* const group =
        L"actions:One of these must be given; those that only read may be given together.";
    parser.addSwitch(L"backup,b", L"Copies what has changed since the last run.",
                     value_type_boolean, group);
    parser.addSwitch(L"restore,r",
                     L"Brings back the files as they were at a point in time. Files that exist are "
                     L"left alone unless -overwrite is given.",
                     value_type_boolean, group);
    parser.addSwitch(L"list-snapshots", L"Lists the points in time that can be restored.",
                     value_type_none, L"actions:another text");
    parser.addSwitch(L"repair", L"Checks and mends the store.", value_type_boolean,
                     L"kexa_hidden:For those who look after the store.");
}

void declarePlainOptions(IParser& parser)
{
    parser.addOption(L"verbose,v", L"Tells what is done.", value_type_boolean, L"general")
        .option->setDefaultValue(variant_t(false));
    parser
        .addOption(L"colour", L"Colours the output where it goes to a terminal.",
                   value_type_boolean, L"general")
        .option->addName(L"color")
        .setDefaultValue(variant_t(s32_t{1}));
    parser.addOption(L"store,repository,s",
                     L"The folder or address that holds the copies. It is made where it does not "
                     L"exist.\nAn address begins with \u201Chttps://\u201D.",
                     value_type_string, L"general");
    parser.addOption(L"speed", L"", value_type_string, L"general")
        .option->addAllowedValue(variant_t(L"slow"))
        .addAllowedValue(variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"))
        .setDefaultValue(variant_t(L"slow"));
    parser.addOption(L"paths", L"Never listed.", value_type_string, L"general").option->setMarked();
    parser.addOption(L"cache-size", L"Bytes kept in memory.", value_type_unsigned64, L"kexa_hidden")
        .option->setDefaultValue(variant_t(u64_t{1} << 40));
}

void declareKeyedOptions(IParser& parser)
{
    const auto declare = [&parser](const wchar_t* names, const wchar_t* keywords,
                                   const wchar_t* description, std::int32_t type) -> IOption&
    {
        return *parser
                    .addOptionWithKeywords(names, keywords, description, type,
                                           L":Options of single actions")
                    .option;
    };
    declare(L"overwrite", L"restore", L"Replaces files that exist.", value_type_none);
    declare(L"point,p", L"r,list-snapshots",
            L"A time, or how many runs to go back; the latest where it is not given.",
            value_type_integer)
        .setDefaultValue(variant_t(s32_t{-1}));
    declare(L"share-of-bandwidth", L"backup,restore", L"At most this part of it.",
            value_type_double)
        .setDefaultValue(variant_t(2.5e-7));
    declare(L"limit", L"b", L"How many files at most.", value_type_unsigned);
    declare(L"since", L"b", L"Seconds.", value_type_integer64);
    parser.addOptionWithKeywords(L"probe", L"repair,backup", L"For tests.", value_type_none,
                                 L"kexa_hidden");
}

class HelpGolden : public testing::Test
{
protected:
    HelpGolden()
    {
        declareActions(*m_parser);
        declarePlainOptions(*m_parser);
        declareKeyedOptions(*m_parser);
    }

    IParser& parser() { return *m_parser; }

    // Compares a text with tests/golden/help/NAME, whatever line ends the checkout gave the file.
    static void expectFile(const char* name, const wchar_t* text)
    {
        std::string expected = readFile(std::filesystem::path(KEXA_GOLDEN_FOLDER) / "help" / name);
        std::erase(expected, '\r');
        EXPECT_EQ(toUtf8(text), expected) << name;
    }

private:
    ParserOwner m_parser = toolbox::createParser();
};

TEST_F(HelpGolden, TopicLists)
{
    expectFile("topics.txt", parser().getTopicList(false));
    expectFile("hidden_topics.txt", parser().getTopicList(true));
}

TEST_F(HelpGolden, FullHelp)
{
    expectFile("full.txt", parser().showFullHelp(false));
    expectFile("hidden_full.txt", parser().showFullHelp(true));
}

TEST_F(HelpGolden, RelatedHelp)
{
    expectFile("related_to_backup.txt", parser().showRelatedHelp(L"backup", false));
    expectFile("related_to_restore.txt", parser().showRelatedHelp(L"r", false));
    expectFile("hidden_related_to_backup.txt", parser().showRelatedHelp(L"b", true));
}

TEST_F(HelpGolden, TopicHelp)
{
    expectFile("topic_restore.txt", parser().showTopicHelp(L"restore", false));
    expectFile("topic_store.txt", parser().showTopicHelp(L"repository", false));
    expectFile("topic_unknown.txt", parser().showTopicHelp(L"unknown", false));
}

} // namespace
