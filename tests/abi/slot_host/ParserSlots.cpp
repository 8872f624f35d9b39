#include <set>

#include "Handler.h"
#include "SlotHost.h"

namespace
{

TEST_F(SlotHost, OptionsAreDeclaredParsedAndRead)
{
    declare(parser::add_option, L"count", type_integer);
    EXPECT_TRUE(call<bool>(m_parser, parser::has_option, L"count", false,
                           static_cast<const wchar_t*>(nullptr)));
    EXPECT_FALSE(call<bool>(m_parser, parser::has_option, L"count", true, L"main"));

    EXPECT_EQ(parse({L"--count=3,4", L"--count", L"5"}), 0);
    EXPECT_EQ(values(L"count"), (Texts{L"3", L"4", L"5"}));
    EXPECT_EQ(errorMessage(), L"");
}

TEST_F(SlotHost, EachLineOfACommandLineIsOneArgument)
{
    declare(parser::add_option, L"count", type_integer);
    EXPECT_EQ(call<std::int32_t>(m_parser, parser::parse_command_line, L"; comment\n-count 7\n",
                                 m_result),
              0);
    EXPECT_EQ(values(L"count"), (Texts{L"7"}));
}

TEST_F(SlotHost, ActionsTakeOptionsThatShareAKeyword)
{
    declare(parser::add_switch, L"list", type_boolean);
    declare(parser::add_switch, L"sum", type_boolean);
    declareWithKeywords(L"depth", L"list", type_integer);

    EXPECT_EQ(parse({L"-list", L"-depth=2"}), 0);
    EXPECT_EQ(parse({L"-sum"}), 2);
    EXPECT_EQ(errorMessage(),
              L"Action '-sum' and action '-list' were defined, but only one action possible.");
}

TEST_F(SlotHost, CompatibleActionsAreGivenTogether)
{
    declare(parser::add_switch, L"list", type_boolean);
    declare(parser::add_switch, L"sum", type_boolean);
    const std::set<std::wstring> actions = {L"list", L"sum"};
    call<void>(m_parser, parser::add_compatible_actions, &actions);
    EXPECT_EQ(parse({L"-list", L"-sum"}), 0);
}

TEST_F(SlotHost, EveryHelpSlotReturnsItsOwnText)
{
    declare(parser::add_switch, L"list", type_boolean);
    declare(parser::add_option, L"count", type_integer);
    declareWithKeywords(L"depth", L"list", type_integer);

    const std::wstring group = L"main\n The group\n\n";
    EXPECT_EQ(help(parser::show_topic_help, L"list"),
              group + L"-list | -no-list              Text of it\n\n");
    EXPECT_EQ(help(parser::get_topic_list), L"    list   Text of it\n");
    EXPECT_EQ(help(parser::show_related_help, L"list"),
              group + L"-depth=<integer>              Text of it\n\n");
    EXPECT_EQ(help(parser::show_full_help),
              group + L"-count=<integer>              Text of it\n\n");
}

TEST_F(SlotHost, HandlersAreCalledThroughTheirOwnTable)
{
    declare(parser::add_option, L"count", type_integer);
    Handler handler;
    void* const object = &handler;
    EXPECT_TRUE(call<bool>(m_parser, parser::add_event_handler, object));
    EXPECT_EQ(parse({L"-count=3", L"-other"}), 0);
    EXPECT_EQ(parse({L"-count=13"}), 1);
    EXPECT_EQ(errorMessage(), L"Value '13' is not valid for option 'count' in argument "
                              L"'-count=13'");
    EXPECT_TRUE(call<bool>(m_parser, parser::remove_event_handler, object));
    EXPECT_EQ(parse({L"-other"}), 2);

    EXPECT_EQ(handler.events,
              (Texts{L"option count", L"value of count count, kind 6: 3", L"unknown -other",
                     L"option count", L"value of count count, kind 6: 13"}));
}

TEST_F(SlotHost, TheParserIsItselfAHandlerThatForwards)
{
    Handler handler;
    void* const object = &handler;
    EXPECT_TRUE(call<bool>(m_parser, parser::add_event_handler, object));
    const RawValueRecord refused = {L"own", {13, type_integer}, 0};

    EXPECT_TRUE(call<bool>(m_parser, parser::on_option_parsed, L"own"));
    EXPECT_FALSE(call<bool>(m_parser, parser::on_value_parsed, L"own", &refused));
    EXPECT_FALSE(call<bool>(m_parser, parser::on_unknown_argument, L"own"));
    EXPECT_EQ(handler.events,
              (Texts{L"option own", L"value of own own, kind 6: 13", L"unknown own"}));
}

TEST_F(SlotHost, OptionFilesAreEnabledOnce)
{
    EXPECT_TRUE(call<bool>(m_parser, parser::enable_option_files, L"Text of it", L"main"));
    EXPECT_FALSE(call<bool>(m_parser, parser::enable_option_files, L"Text of it", L"main"));
    EXPECT_EQ(parse({L"-option-file=no/such/file"}), 6);
}

} // namespace
