// Every type that a member may have, and what a line makes of it.
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "Outcomes.h"

enum class Unit
{
    second,
    minute
};

struct Duration
{
    int seconds = 0;
};

template <>
struct kexa::convert<Duration>
{
    static Conversion<Duration> fromText(std::string_view text)
    {
        if (text.empty() || text.back() != 's')
        {
            return Refusal{"no unit"};
        }
        return Duration{std::stoi(std::string(text))};
    }
    static std::string toText(const Duration& value) { return std::to_string(value.seconds) + "s"; }
};

namespace
{

struct Inner
{
    int width = 80;
    std::string name;
};

struct Settings
{
    bool flag = false;
    bool on = true;
    std::optional<bool> maybe;
    std::int8_t i8 = 0;
    std::uint8_t u8 = 0;
    std::int16_t i16 = 0;
    std::uint16_t u16 = 0;
    std::int32_t i32 = 0;
    std::uint32_t u32 = 0;
    std::int64_t i64 = 0;
    std::uint64_t u64 = 0;
    float single = 0;
    double number = 0;
    std::string text = "none";
    std::wstring wide;
    Unit unit = Unit::second;
    std::string algorithm;
    int choice = 1;
    std::optional<int> optional;
    std::vector<std::string> texts = {"default"};
    std::vector<int> numbers;
    std::set<std::string> set;
    std::pair<std::string, int> pair;
    std::map<std::string, int> map;
    std::filesystem::path path;
    Duration duration;
    int count = 0;
    std::string color = "never";
    Inner inner;
};

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("members");
    command.option(&Settings::flag, "flag", "");
    command.option(&Settings::on, "on", "");
    command.option(&Settings::maybe, "maybe", "");
    command.option(&Settings::i8, "i8", "");
    command.option(&Settings::u8, "u8", "");
    command.option(&Settings::i16, "i16", "");
    command.option(&Settings::u16, "u16", "");
    command.option(&Settings::i32, "i32", "");
    command.option(&Settings::u32, "u32", "");
    command.option(&Settings::i64, "i64", "");
    command.option(&Settings::u64, "u64", "");
    command.option(&Settings::single, "single", "");
    command.option(&Settings::number, "number", "");
    command.option(&Settings::text, "text", "");
    command.option(&Settings::wide, "wide", "");
    command.option(&Settings::unit, "unit", "")
        .values({{"second", Unit::second}, {"minute", Unit::minute}})
        .deprecated("min", "minute");
    command.option(&Settings::algorithm, "algorithm", "").values({"crc", "adler", "sha,1"});
    command.option(&Settings::choice, "choice", "").values({1, 2, 10});
    command.option(&Settings::optional, "optional", "");
    command.option(&Settings::texts, "texts", "");
    command.option(&Settings::numbers, "numbers", "").separator(':');
    command.option(&Settings::set, "set", "");
    command.option(&Settings::pair, "pair", "");
    command.option(&Settings::map, "map,D", "");
    command.option(&Settings::path, "path", "");
    command.option(&Settings::duration, "duration", "")
        .check(
            [](const Duration& duration) {
                return duration.seconds > 60 ? std::string("longer than a minute") : std::string();
            });
    command.option(&Settings::count, "count,c", "").count();
    command.option(&Settings::color, "color", "").implicit("auto");
    auto inner = command.in(&Settings::inner);
    inner.option(&Inner::width, "width", "");
    inner.option(&Inner::name, "name", "");
    return command;
}

template <class Value>
std::string textOf(const Value& value)
{
    return kexa::detail::Element<Value>::text(value);
}

template <class Container>
std::string listOf(const Container& container)
{
    std::string text;
    for (const auto& element : container)
    {
        text += "[" + textOf(element) + "]";
    }
    return text;
}

struct Row
{
    const char* line;
    std::string (*read)(const Settings& settings);
    const char* expected;
};

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.line;
}

class MemberOf : public testing::TestWithParam<Row>
{
};

TEST_P(MemberOf, ATypeIsFilled)
{
    kexa::Command<Settings> command = makeCommand();
    EXPECT_EQ(toolbox::outcomeOf(command, GetParam().line, GetParam().read), GetParam().expected);
}

#define MEMBER(member)                                                                             \
    [](const Settings& s)                                                                          \
    {                                                                                              \
        return textOf(s.member);                                                                   \
    }
#define LIST(member)                                                                               \
    [](const Settings& s)                                                                          \
    {                                                                                              \
        return listOf(s.member);                                                                   \
    }

INSTANTIATE_TEST_SUITE_P(
    Scalars, MemberOf,
    testing::Values(
        Row{"", MEMBER(flag), "false"}, Row{"--flag", MEMBER(flag), "true"},
        Row{"--flag --no-flag", MEMBER(flag), "false"}, Row{"--flag=true", MEMBER(flag), "true"},
        Row{"--no-flag=false", MEMBER(flag), "true"}, Row{"--no-on", MEMBER(on), "false"},
        Row{"--on=no", MEMBER(on), "false"},
        Row{"--no-maybe", [](const Settings& s) { return textOf(s.maybe.value()); }, "false"},
        Row{"", [](const Settings& s) { return textOf(s.maybe.has_value()); }, "false"},
        Row{"--i8=-128", MEMBER(i8), "-128"}, Row{"--u8 255", MEMBER(u8), "255"},
        Row{"--i16=-32768", MEMBER(i16), "-32768"}, Row{"--u16=65535", MEMBER(u16), "65535"},
        Row{"--i32 -2147483648", MEMBER(i32), "-2147483648"},
        Row{"--u32=4294967295", MEMBER(u32), "4294967295"},
        Row{"--i64 -9223372036854775808", MEMBER(i64), "-9223372036854775808"},
        Row{"--u64=0xFFFFFFFFFFFFFFFF", MEMBER(u64), "18446744073709551615"},
        Row{"--single 0.25", MEMBER(single), "0.25"}, Row{"--number -.5", MEMBER(number), "-0.5"},
        Row{"--number 1e3", MEMBER(number), "1000"}, Row{"--text a,b", MEMBER(text), "a,b"},
        Row{"--text -", MEMBER(text), "-"}, Row{"--text 'größe 日本'", MEMBER(text), "größe 日本"},
        Row{"--text a --text b", MEMBER(text), "b"}, Row{"", MEMBER(text), "none"},
        Row{"--wide ß", MEMBER(wide), "ß"}, Row{"--path a/b", MEMBER(path), "a/b"},
        Row{"--algorithm cr", MEMBER(algorithm), "crc"},
        Row{"--algorithm sha", MEMBER(algorithm), "sha,1"},
        Row{"--choice 10", MEMBER(choice), "10"},
        Row{"--unit mi", [](const Settings& s) { return textOf(s.unit == Unit::minute); },
            "2 Value validation problem in argument '--unit': Ambiguous value for option 'unit'. "
            "Possible values follows: 'second', 'minute' | unit #1"},
        Row{"--unit minu", [](const Settings& s) { return textOf(s.unit == Unit::minute); },
            "true"},
        Row{"--duration 30s", MEMBER(duration), "30s"}, Row{"-c --count", MEMBER(count), "2"},
        Row{"-ccc", MEMBER(count), "3"}, Row{"", MEMBER(color), "never"},
        Row{"--color", MEMBER(color), "auto"}, Row{"--color=always", MEMBER(color), "always"},
        Row{"--width 5", MEMBER(inner.width), "5"}, Row{"--name x", MEMBER(inner.name), "x"},
        Row{"--optional 7", [](const Settings& s) { return textOf(s.optional.value()); }, "7"}));

INSTANTIATE_TEST_SUITE_P(
    Lists, MemberOf,
    testing::Values(
        Row{"", LIST(texts), "[default]"}, Row{"--texts a --texts b,c", LIST(texts), "[a][b,c]"},
        Row{"--numbers 1:2 --numbers 3", LIST(numbers), "[1][2][3]"},
        Row{"--set b --set a --set b", LIST(set), "[a][b]"}, Row{"--pair a=5", MEMBER(pair), "a=5"},
        Row{"-D a=1 -D b=2 -D a=3",
            [](const Settings& s) { return std::to_string(s.map.size()) + textOf(s.map.at("a")); },
            "23"}));

INSTANTIATE_TEST_SUITE_P(
    Refusals, MemberOf,
    testing::Values(
        Row{"--i8=-129", MEMBER(i8),
            "1 Value '-129' is not valid for option 'i8' in argument "
            "'--i8=-129': less than -128 | allowed are -128 to 127 | i8 #1"},
        Row{"--u64=18446744073709551616", MEMBER(u64),
            "2 Value validation problem in argument '--u64=18446744073709551616': Option 'u64' can "
            "not parse '18446744073709551616' value, requires a type 'unsigned 64 bit or hex' "
            "here. | allowed are 0 to 18446744073709551615 | u64 #1"},
        Row{"--single=1e39", MEMBER(single),
            "1 Value '1e39' is not valid for option 'single' in "
            "argument '--single=1e39': greater than 3.4028234663852886e+38 | allowed are "
            "-3.4028234663852886e+38 to 3.4028234663852886e+38 | single #1"},
        Row{"--pair a", MEMBER(pair),
            "1 Value 'a' is not valid for option 'pair' in argument "
            "'--pair': no '=' between key and value | pair #1"},
        Row{"--pair a=x", MEMBER(pair),
            "1 Value 'a=x' is not valid for option 'pair' in argument "
            "'--pair': 'x' is no number | pair #1"},
        Row{"--duration 5m", MEMBER(duration),
            "1 Value '5m' is not valid for option 'duration' in "
            "argument '--duration': no unit | duration #1"},
        Row{"--duration 61s", MEMBER(duration),
            "1 Value '61s' is not valid for option 'duration' "
            "in argument '--duration': longer than a minute | duration #1"},
        Row{"--choice 3", MEMBER(choice),
            "2 Value validation problem in argument '--choice': "
            "Option 'choice' does not allow value '3'. Possible values follows: '1', '2', '10' | "
            "choice #1"}));

TEST(Members, HaveASource)
{
    kexa::Command<Settings> command = makeCommand();
    const auto parsed = command.parseLine("--text=a --width 5");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed.source(&Settings::text), kexa::Source::given);
    EXPECT_EQ(parsed.source(&Settings::inner, &Inner::width), kexa::Source::given);
    EXPECT_EQ(parsed.source(&Settings::inner, &Inner::name), kexa::Source::defaulted);
    EXPECT_EQ(parsed.source(&Settings::number), kexa::Source::defaulted);
}

TEST(Members, OccurInTheOrderOfTheLine)
{
    kexa::Command<Settings> command = makeCommand();
    const auto parsed = command.parseLine("--texts a --numbers=1:2 -c --texts b --no-flag");
    ASSERT_TRUE(parsed);
    std::string order;
    for (const kexa::Occurrence& each : parsed.occurrences())
    {
        order += each.option + "=" + each.value + "#" + std::to_string(each.index) + " ";
    }
    EXPECT_EQ(order, "texts=a#1 numbers=1#3 numbers=2#3 count=#4 texts=b#5 flag=false#7 ");
}

TEST(Members, AreFreshInEachParse)
{
    kexa::Command<Settings> command = makeCommand();
    ASSERT_EQ(command.parseLine("--texts a --text b")->texts, std::vector<std::string>{"a"});
    const auto parsed = command.parseLine("--texts c");
    EXPECT_EQ(parsed->texts, std::vector<std::string>{"c"});
    EXPECT_EQ(parsed->text, "none");
}

#if KEXA_COMMAND_EXCEPTIONS
TEST(Members, AreThrownAsAFailureWhereAsked)
{
    kexa::Command<Settings> command = makeCommand();
    EXPECT_EQ(command.parseLine("--text a").valueOrThrow().text, "a");
    try
    {
        static_cast<void>(command.parseLine("--txet a").valueOrThrow());
        FAIL();
    }
    catch (const kexa::ParseFailure& failure)
    {
        EXPECT_STREQ(failure.what(), "Unknown option: --txet");
        EXPECT_EQ(failure.error().hint, "did you mean '--text'?");
    }
}
#endif

} // namespace
