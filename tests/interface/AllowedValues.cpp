// Values compared with the allowed values of an option, in full and abbreviated.
#include <limits>
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::s32_t;
using vexkit2::s64_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

using Texts = std::vector<std::wstring>;

// A host with one option "mode" that allows the given values.
class AllowedHost : public Host
{
public:
    explicit AllowedHost(const std::vector<variant_t>& allowed,
                         std::int32_t valueType = value_type_string)
        : option(addOption(L"mode,m", valueType))
    {
        for (const variant_t& value : allowed)
        {
            option.addAllowedValue(value);
        }
    }

    // The stored values, or the error message.
    Texts outcome(const std::wstring& text)
    {
        renewResult();
        const result_t code = parse({(L"--mode=" + text).c_str()});
        EXPECT_TRUE(code == 0 || code == 2) << code;
        return code == 0 ? texts(L"mode") : Texts{message()};
    }

    IOption& option;
};

std::vector<variant_t> wide(const std::vector<const wchar_t*>& texts)
{
    std::vector<variant_t> values;
    for (const wchar_t* text : texts)
    {
        values.emplace_back(text);
    }
    return values;
}

// Expects either a stored text or, of the message, the part after the argument.
struct Row
{
    const wchar_t* text;
    const wchar_t* stored;
    const wchar_t* refusal;
};

void expectRows(AllowedHost& host, const std::vector<Row>& rows)
{
    for (const Row& row : rows)
    {
        const std::wstring expected =
            row.stored != nullptr ? std::wstring(row.stored)
                                  : std::wstring(L"Value validation problem in argument '--mode=") +
                                        row.text + L"': " + row.refusal;
        EXPECT_EQ(host.outcome(row.text), Texts{expected}) << toUtf8(row.text);
    }
}

TEST(AllowedValues, OptionWithoutAllowedValuesTakesAny)
{
    AllowedHost host({});
    expectRows(host, {{L"anything", L"anything", nullptr}});
}

TEST(AllowedValues, UniquePrefixGivesTheFullValue)
{
    AllowedHost host(wide({L"fast", L"slow"}));
    const wchar_t* const list = L"Possible values follows: 'fast', 'slow'";
    expectRows(host,
               {{L"fast", L"fast", nullptr},
                {L"f", L"fast", nullptr},
                {L"s", L"slow", nullptr},
                {L"slo", L"slow", nullptr},
                {L"x", nullptr,
                 (L"Option 'mode' does not allow value 'x'. " + std::wstring(list)).c_str()}});
}

TEST(AllowedValues, ValueOutsideTheListIsRefusedWithTheList)
{
    AllowedHost host(wide({L"fast", L"slow", L"auto"}));
    for (const wchar_t* text : {L"x", L"fastest", L"F", L"Fast", L" fast", L"fast ", L"ast",
                                L"\u00E9", L"'", L"*", L"slow-"})
    {
        const std::wstring expected =
            std::wstring(L"Value validation problem in argument '--mode=") + text +
            L"': Option 'mode' does not allow value '" + text +
            L"'. Possible values follows: 'fast', 'slow', 'auto'";
        EXPECT_EQ(host.outcome(text), Texts{expected}) << toUtf8(text);
    }
}

TEST(AllowedValues, CompletedValueIsAnOwnedText)
{
    AllowedHost host({variant_t::reference(L"fast")});
    EXPECT_EQ(host.outcome(L"f"), Texts{L"fast"});
    const Value value = getLastValue(&host.result(), L"mode", 0, no_position);
    EXPECT_EQ(value.value.kind(), 13);
    EXPECT_STREQ(value.value.get<const wchar_t*>(), L"fast");
}

TEST(AllowedValues, HandlersSeeTheCompletedValue)
{
    AllowedHost host(wide({L"fast", L"slow"}));
    Events events;
    RecordingHandler handler(events);
    host.parser().addEventHandler(&handler);
    host.outcome(L"f");
    EXPECT_EQ(events, (Events{L"option mode", L"value mode 'fast'"}));
}

TEST(AllowedValues, PrefixOfSeveralIsAmbiguousAndListsAll)
{
    AllowedHost host(wide({L"start", L"stop", L"other"}));
    const wchar_t* const ambiguous = L"Ambiguous value for option 'mode'. Possible values follows: "
                                     L"'start', 'stop', 'other'";
    expectRows(host, {{L"st", nullptr, ambiguous},
                      {L"s", nullptr, ambiguous},
                      {L"sta", L"start", nullptr},
                      {L"sto", L"stop", nullptr},
                      {L"o", L"other", nullptr}});
}

TEST(AllowedValues, ExactValueBeatsALongerOne)
{
    AllowedHost host(wide({L"faster", L"fast", L"fastest"}));
    const wchar_t* const ambiguous = L"Ambiguous value for option 'mode'. Possible values follows: "
                                     L"'faster', 'fast', 'fastest'";
    expectRows(host, {{L"fast", L"fast", nullptr},
                      {L"faste", nullptr, ambiguous},
                      {L"fas", nullptr, ambiguous},
                      {L"fastes", L"fastest", nullptr},
                      {L"faster", L"faster", nullptr}});
}

TEST(AllowedValues, ValueAllowedTwiceIsFoundInFullOnly)
{
    AllowedHost host(wide({L"fast", L"fast"}));
    expectRows(host,
               {{L"fast", L"fast", nullptr},
                {L"fas", nullptr,
                 L"Ambiguous value for option 'mode'. Possible values follows: 'fast', 'fast'"}});
}

TEST(AllowedValues, MessagesNameThePrimaryNameAndTheArgumentAsGiven)
{
    AllowedHost host(wide({L"start", L"stop"}));
    EXPECT_EQ(host.parse({L"-m", L"st"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument '-m': Ambiguous value for "
                              L"option 'mode'. Possible values follows: 'start', 'stop'");
    EXPECT_EQ(host.parse({L"\u2013mod x"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument '\u2013mod x': Option 'mode' "
                              L"does not allow value 'x'. Possible values follows: 'start', "
                              L"'stop'");
}

TEST(AllowedValues, EveryPieceOfAListIsMatched)
{
    AllowedHost host(wide({L"fast", L"slow"}));
    EXPECT_EQ(host.outcome(L"s,f,slow"), (Texts{L"slow", L"fast", L"slow"}));
    EXPECT_EQ(host.outcome(L"s,x,f"),
              Texts{L"Value validation problem in argument '--mode=s,x,f': Option 'mode' does not "
                    L"allow value 'x'. Possible values follows: 'fast', 'slow'"});
}

TEST(AllowedValues, NumbersAreNotAbbreviated)
{
    AllowedHost host({variant_t(s32_t{1}), variant_t(s32_t{2}), variant_t(s32_t{200})},
                     value_type_integer);
    const wchar_t* const list = L"'. Possible values follows: '1', '2', '200'";
    expectRows(
        host,
        {{L"1", L"1", nullptr},
         {L"+2", L"+2", nullptr},
         {L"200", L"200", nullptr},
         {L"10", nullptr, (L"Option 'mode' does not allow value '10" + std::wstring(list)).c_str()},
         {L"20", nullptr, (L"Option 'mode' does not allow value '20" + std::wstring(list)).c_str()},
         {L"x", nullptr,
          L"Option 'mode' can not parse 'x' value, requires a type 'integer' here."}});
}

TEST(AllowedValues, NumbersAreMatchedByValueAcrossKinds)
{
    const struct
    {
        std::int32_t type;
        variant_t allowed;
        const wchar_t* text;
        bool accepted;
    } rows[] = {
        {value_type_integer, variant_t(2.0), L"2", true},
        {value_type_integer, variant_t(u64_t{2}), L"2", true},
        {value_type_integer, variant_t(2.5), L"2", false},
        {value_type_integer, variant_t(true), L"1", false},
        {value_type_integer, variant_t(L"1"), L"1", false},
        {value_type_integer, variant_t(std::numeric_limits<vexkit2::u32_t>::max()), L"-1", false},
        {value_type_unsigned, variant_t(s32_t{7}), L"7", true},
        {value_type_integer64, variant_t(s32_t{-7}), L"-7", true},
        {value_type_unsigned64, variant_t(s64_t{31}), L"0x1F", true},
        {value_type_unsigned64, variant_t(s64_t{-1}), L"0xFFFFFFFFFFFFFFFF", false},
        {value_type_double, variant_t(s32_t{2}), L"2.0", true},
        {value_type_double, variant_t(0.5F), L"5e-1", true},
        {value_type_double, variant_t(0.1F), L"0.1", false},
        // An integer equals a double if both are equal as doubles.
        {value_type_double, variant_t(s64_t{9007199254740995}), L"9007199254740996", true},
        {value_type_integer64, variant_t(9007199254740992.0), L"9007199254740993", true},
        {value_type_integer64, variant_t(9007199254740992.0), L"9007199254740994", false},
    };
    for (const auto& row : rows)
    {
        AllowedHost host({row.allowed}, row.type);
        const Texts outcome = host.outcome(row.text);
        EXPECT_EQ(outcome == Texts{row.text}, row.accepted)
            << row.type << ", " << row.allowed.kind() << ", " << toUtf8(row.text);
        const Value value = getLastValue(&host.result(), L"mode", 0, no_position);
        EXPECT_EQ(value.value.kind(), row.accepted ? row.type : 17) << toUtf8(row.text);
    }
}

TEST(AllowedValues, ListShowsTheTextOfEveryKind)
{
    AllowedHost host({variant_t(L"wide"), variant_t::reference(L"referred \u2014"),
                      variant_t("narrow \xC3\xA9"), variant_t(s32_t{-5}), variant_t(2.5),
                      variant_t(1e20), variant_t(true), variant_t(), variant_t::blob("x", 1)},
                     value_type_integer);
    expectRows(host, {{L"7", nullptr,
                       L"Option 'mode' does not allow value '7'. Possible values follows: 'wide', "
                       L"'referred \u2014', 'narrow \u00E9', '-5', '2.5', '1e+20', '1', '', ''"}});
}

TEST(AllowedValues, NarrowTextIsMatchedByItsPrefixes)
{
    // A narrow text never equals a wide one: it is found as an abbreviation that is complete.
    AllowedHost host({variant_t("fast"), variant_t::reference("slow \xC3\xA9")});
    const wchar_t* const list = L"Option 'mode' does not allow value 'fastx'. Possible values "
                                L"follows: 'fast', 'slow \u00E9'";
    expectRows(host, {{L"fast", L"fast", nullptr},
                      {L"f", L"fast", nullptr},
                      {L"slow \u00E9", L"slow \u00E9", nullptr},
                      {L"sl", L"slow \u00E9", nullptr},
                      {L"fastx", nullptr, list}});
    EXPECT_EQ(host.outcome(L"f"), Texts{L"fast"});
    EXPECT_EQ(getLastValue(&host.result(), L"mode", 0, no_position).value.kind(), 13);
}

TEST(AllowedValues, NarrowTextDoesNotBeatALongerOne)
{
    AllowedHost host({variant_t("fast"), variant_t("faster")});
    expectRows(host,
               {{L"fast", nullptr,
                 L"Ambiguous value for option 'mode'. Possible values follows: 'fast', 'faster'"}});
}

TEST(AllowedValues, BooleanIsMatchedToo)
{
    Host host;
    host.addSwitch(L"flag").addAllowedValue(variant_t(true));
    EXPECT_EQ(host.parse({L"--flag"}), 0);
    EXPECT_EQ(host.parse({L"--no-flag"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument '--no-flag': Option 'flag' "
                              L"does not allow value '0'. Possible values follows: '1'");
}

TEST(AllowedValues, ValueAllowedBetweenParsesCountsFromThenOn)
{
    AllowedHost host(wide({L"fast"}));
    EXPECT_EQ(host.outcome(L"fa"), Texts{L"fast"});
    host.option.addAllowedValue(variant_t(L"far"));
    expectRows(host,
               {{L"far", L"far", nullptr},
                {L"fa", nullptr,
                 L"Ambiguous value for option 'mode'. Possible values follows: 'fast', 'far'"}});
}

} // namespace
