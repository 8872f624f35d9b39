// Deprecated values: each is replaced, with a warning on standard error.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::s32_t;
using vexkit2::variant_t;

using Texts = std::vector<std::wstring>;

struct Outcome
{
    Texts values; // or the message
    std::string warnings;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out)
{
    *out << testing::PrintToString(outcome.values) << " with warnings '" << outcome.warnings << "'";
}

Outcome outcomeOf(Host& host, const wchar_t* argument)
{
    Outcome outcome;
    host.renewResult();
    outcome.warnings = captureError(
        [&]
        {
            const result_t code = host.parse({argument});
            EXPECT_TRUE(code == 0 || code == 2) << code;
            outcome.values = code == 0 ? host.texts(L"mode") : Texts{host.message()};
        });
    return outcome;
}

IOption& addMode(Host& host, std::int32_t valueType = value_type_string)
{
    return host.addOption(L"mode,m", valueType);
}

const char* const fast_warning =
    "Warning: 'quick' argument is deprecated for the option '-mode'. Use the 'fast' argument "
    "instead.\n";

TEST(DeprecatedValues, OldValueInFullIsReplacedWithAWarning)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"fast"))
        .addAllowedValue(variant_t(L"slow"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"));
    EXPECT_EQ(outcomeOf(host, L"--mode=quick"), (Outcome{{L"fast"}, fast_warning}));
    EXPECT_EQ(outcomeOf(host, L"--mode=fast"), (Outcome{{L"fast"}, ""}));
}

TEST(DeprecatedValues, AbbreviatedOldValueIsNamedInFull)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"));
    EXPECT_EQ(outcomeOf(host, L"-m=q"), (Outcome{{L"fast"}, fast_warning}));
    EXPECT_EQ(outcomeOf(host, L"-m=quic"), (Outcome{{L"fast"}, fast_warning}));
}

TEST(DeprecatedValues, OldValuesAreNotListedButMakeAPrefixAmbiguous)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"start"))
        .addDeprecatedValue(variant_t(L"stop"), variant_t(L"halt"));
    EXPECT_EQ(outcomeOf(host, L"--mode=st"),
              (Outcome{{L"Value validation problem in argument '--mode=st': Ambiguous value for "
                        L"option 'mode'. Possible values follows: 'start'"},
                       ""}));
    EXPECT_EQ(outcomeOf(host, L"--mode=x"),
              (Outcome{{L"Value validation problem in argument '--mode=x': Option 'mode' does not "
                        L"allow value 'x'. Possible values follows: 'start'"},
                       ""}));
}

TEST(DeprecatedValues, ReplacementIsNotCheckedItself)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"start"))
        .addDeprecatedValue(variant_t(L"a"), variant_t(L"b"))
        .addDeprecatedValue(variant_t(L"b"), variant_t(L"c"));
    EXPECT_EQ(outcomeOf(host, L"--mode=a"),
              (Outcome{{L"b"},
                       "Warning: 'a' argument is deprecated for the option '-mode'. Use the 'b' "
                       "argument instead.\n"}));
    EXPECT_EQ(outcomeOf(host, L"--mode=b"),
              (Outcome{{L"c"},
                       "Warning: 'b' argument is deprecated for the option '-mode'. Use the 'c' "
                       "argument instead.\n"}));
}

TEST(DeprecatedValues, WithoutAllowedValuesNothingIsReplaced)
{
    Host host;
    addMode(host).addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"));
    EXPECT_EQ(outcomeOf(host, L"--mode=quick"), (Outcome{{L"quick"}, ""}));
}

TEST(DeprecatedValues, FirstReplacementStays)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"slow"));
    EXPECT_EQ(outcomeOf(host, L"--mode=quick"), (Outcome{{L"fast"}, fast_warning}));
}

TEST(DeprecatedValues, AllowedValueThatIsAlsoDeprecatedIsReplaced)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"quick"))
        .addAllowedValue(variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"));
    EXPECT_EQ(outcomeOf(host, L"--mode=quick"), (Outcome{{L"fast"}, fast_warning}));
}

TEST(DeprecatedValues, EveryDeprecatedPieceOfAListIsWarnedAbout)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"));
    EXPECT_EQ(outcomeOf(host, L"--mode=quick,fast,q"),
              (Outcome{{L"fast", L"fast", L"fast"}, std::string(fast_warning) + fast_warning}));
}

TEST(DeprecatedValues, NumberIsFoundByValue)
{
    Host host;
    addMode(host, value_type_integer)
        .addAllowedValue(variant_t(s32_t{1}))
        .addDeprecatedValue(variant_t(2.0), variant_t(s32_t{1}));
    EXPECT_EQ(outcomeOf(host, L"--mode=002"),
              (Outcome{{L"1"},
                       "Warning: '2' argument is deprecated for the option '-mode'. Use the '1' "
                       "argument instead.\n"}));
    const Value value = getLastValue(&host.result(), L"mode", 0, no_position);
    EXPECT_EQ(value.value.kind(), 6);
    EXPECT_EQ(value.value.get<s32_t>(), 1);
}

TEST(DeprecatedValues, OldValueIsNamedAsItWasDeclared)
{
    Host host;
    addMode(host, value_type_double)
        .addAllowedValue(variant_t(1.0))
        .addDeprecatedValue(variant_t(vexkit2::u64_t{10000000000000000000U}), variant_t(1.0));
    EXPECT_EQ(outcomeOf(host, L"--mode=1e19"),
              (Outcome{{L"1"},
                       "Warning: '10000000000000000000' argument is deprecated for the option "
                       "'-mode'. Use the '1' argument instead.\n"}));
}

TEST(DeprecatedValues, ReplacementKeepsItsKindAndGivesTheText)
{
    Host host;
    addMode(host, value_type_double)
        .addAllowedValue(variant_t(1.0))
        .addDeprecatedValue(variant_t(2.5), variant_t("narrow \xC3\xA9"))
        .addDeprecatedValue(variant_t(3.5), variant_t(2.5e-7));
    EXPECT_EQ(outcomeOf(host, L"--mode=2.50"),
              (Outcome{{L"narrow \u00E9"},
                       "Warning: '2.5' argument is deprecated for the option '-mode'. Use the "
                       "'narrow \xC3\xA9' argument instead.\n"}));
    EXPECT_EQ(getLastValue(&host.result(), L"mode", 0, no_position).value.kind(), 12);
    EXPECT_EQ(outcomeOf(host, L"--mode=3.5"),
              (Outcome{{L"2.5e-07"},
                       "Warning: '3.5' argument is deprecated for the option '-mode'. Use the "
                       "'2.5e-07' argument instead.\n"}));
}

TEST(DeprecatedValues, HandlersSeeTheReplacement)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"));
    Events events;
    RecordingHandler handler(events);
    host.parser().addEventHandler(&handler);
    outcomeOf(host, L"--mode=quick");
    EXPECT_EQ(events, (Events{L"option mode", L"value mode 'fast'"}));
}

TEST(DeprecatedValues, WarningIsWrittenAsUtf8)
{
    Host host;
    host.addOption(L"\u00E9t\u00E9")
        .addAllowedValue(variant_t(L"x"))
        .addDeprecatedValue(variant_t(L"\U0001F600"), variant_t(L"\u2014"));
    EXPECT_EQ(captureError([&] { EXPECT_EQ(host.parse({L"--\u00E9t\u00E9=\U0001F600"}), 0); }),
              "Warning: '\xF0\x9F\x98\x80' argument is deprecated for the option "
              "'-\xC3\xA9t\xC3\xA9'. Use the '\xE2\x80\x94' argument instead.\n");
}

TEST(DeprecatedValues, WarningStandsThoughTheParseFailsLater)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"));
    const Outcome outcome = outcomeOf(host, L"--mode=quick,x");
    EXPECT_EQ(outcome,
              (Outcome{{L"Value validation problem in argument '--mode=quick,x': Option 'mode' "
                        L"does not allow value 'x'. Possible values follows: 'fast'"},
                       fast_warning}));
}

TEST(DeprecatedValues, NothingGoesToStandardOutput)
{
    Host host;
    addMode(host)
        .addAllowedValue(variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"));
    EXPECT_EQ(captureOutput([&] { outcomeOf(host, L"--mode=quick"); }), "");
}

} // namespace
