#include "SlotHost.h"

namespace
{

// A variant that refers to a text of the host.
RawVariant textVariant(const wchar_t* text)
{
    return {reinterpret_cast<std::uint64_t>(text), kind_wide_reference};
}

TEST_F(SlotHost, EveryBuilderOperationReturnsTheOption)
{
    void* const option = declare(parser::add_option, L"mode", type_string);
    const RawVariant fast = textVariant(L"fast");
    const RawVariant quick = textVariant(L"quick");

    EXPECT_EQ(call<void*>(option, option::add_name, L"kind"), option);
    EXPECT_EQ(call<void*>(option, option::add_allowed_value, &fast), option);
    EXPECT_EQ(call<void*>(option, option::add_deprecated_value, &quick, &fast), option);
    EXPECT_EQ(call<void*>(option, option::set_default_value, &fast), option);
    EXPECT_EQ(call<void*>(option, option::set_separator, L'+'), option);
    EXPECT_EQ(call<void*>(option, option::add_keywords, L"one,two"), option);
    EXPECT_EQ(help(parser::show_topic_help, L"kind"),
              L"main\n The group\n\n-kind, -mode=fast (fast)      Text of it\n\n");

    EXPECT_EQ(call<void*>(option, option::set_marked), option);
    EXPECT_EQ(help(parser::show_topic_help, L"mode"), L"main\n The group\n\n\n");
}

TEST_F(SlotHost, TheBuilderOperationsChangeWhatAParseTakes)
{
    void* const option = declare(parser::add_option, L"mode", type_string);
    const RawVariant fast = textVariant(L"fast");
    const RawVariant quick = textVariant(L"quick");
    const RawVariant slow = textVariant(L"slow");
    call<void*>(option, option::add_name, L"kind");
    call<void*>(option, option::add_allowed_value, &fast);
    call<void*>(option, option::add_allowed_value, &slow);
    call<void*>(option, option::add_deprecated_value, &quick, &fast);
    call<void*>(option, option::set_separator, L'+');
    call<void*>(option, option::set_marked); // takes positional arguments as well

    EXPECT_EQ(parse({L"-kind=quick+s", L"slow"}), 0);
    EXPECT_EQ(values(L"mode"), (Texts{L"fast", L"slow", L"slow"}));
}

TEST_F(SlotHost, ADefaultIsPresentAndRead)
{
    const RawVariant seven = {7, type_integer};
    call<void*>(declare(parser::add_option, L"count", type_integer), option::set_default_value,
                &seven);
    EXPECT_EQ(parse({}), 0);
    EXPECT_EQ(values(L"count"), (Texts{L"7"}));
    EXPECT_EQ(call<std::int32_t>(m_result, parse_result::is_present, L"count", std::int32_t{0},
                                 std::int32_t{0}),
              1);
    EXPECT_EQ(call<std::int32_t>(m_result, parse_result::is_present, L"other", std::int32_t{0},
                                 std::int32_t{0}),
              0);
}

TEST_F(SlotHost, PositionsOfAnOptionAreWalked)
{
    declare(parser::add_option, L"count", type_integer);
    EXPECT_EQ(parse({L"-count=1,2,3"}), 0);
    EXPECT_EQ(
        call<std::int32_t>(m_result, parse_result::is_present, L"count", std::int32_t{0}, no_bound),
        1);
    const auto first = call<std::int32_t>(m_result, parse_result::get_next_position);
    EXPECT_GE(first, 0);
    EXPECT_EQ(call<std::int32_t>(m_result, parse_result::get_next_position), first + 1);
    EXPECT_EQ(call<std::int32_t>(m_result, parse_result::get_next_position), first + 2);
    EXPECT_EQ(call<std::int32_t>(m_result, parse_result::get_next_position), no_bound);
}

TEST_F(SlotHost, LeftOverArgumentsAreWalked)
{
    EXPECT_EQ(parse({L"--", L"left", L"right"}), 0);
    const wchar_t* argument = nullptr;
    EXPECT_EQ(call<std::int32_t>(m_result, parse_result::get_first_unparsed, &argument), 0);
    EXPECT_STREQ(argument, L"left");
    EXPECT_EQ(call<std::int32_t>(m_result, parse_result::get_next_unparsed, &argument), 0);
    EXPECT_STREQ(argument, L"right");
    EXPECT_EQ(call<std::int32_t>(m_result, parse_result::get_next_unparsed, &argument), 1);
}

} // namespace
