// Trace lines of the abbreviation parser and of stored values.
#include "TraceLines.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

// The lines up to the recognition of the argument, which begin the trace of any option.
Lines recognized(const std::string& argument, const std::string& typed, const std::string& best)
{
    return {"PositionalOptionsParser: recognizing argument '" + argument + "'",
            "AbbreviationParser: recognizing argument '" + argument + "'",
            "AbbreviationParser: best match option for '" + typed + "' in argument '" + argument +
                "' is '" + best + "'",
            "AbbreviationParser: parsing argument '" + argument + "'"};
}

class TraceOfOptions : public testing::Test
{
protected:
    TraceOfOptions()
    {
        host.addOption(L"name,n");
        host.addOption(L"count", value_type_integer).setSeparator(0);
        host.addOption(L"verbose", value_type_boolean);
        host.addOption(L"flag", value_type_none);
    }

    Host host;
};

} // namespace

TEST_F(TraceOfOptions, AValueFromTheSameArgumentWithATokenizer)
{
    EXPECT_EQ(
        traceOf(host, {L"--na=a,b"}),
        joined({recognized("--na=a,b", "na", "name"),
                Lines{"AbbreviationParser: detected option: 'name'",
                      "AbbreviationParser: value from the same argument taken: 'a,b'",
                      "AbbreviationParser: sent event on option parsed",
                      "AbbreviationParser: adding values to result container:",
                      "AbbreviationParser: using tokenizer on char: ','",
                      "AbbreviationParser: value is: 'a'",
                      "AbbreviationParser: sent event on value parsed, option: 'name', value: "
                      "'a'",
                      "AbbreviationParser: value is: 'b'",
                      "AbbreviationParser: sent event on value parsed, option: 'name', value: "
                      "'b'",
                      "AbbreviationParser: stored option to result container.",
                      "AbbreviationParser: removing argument: '--na=a,b'"}}));
}

TEST_F(TraceOfOptions, AValueWithoutATokenizer)
{
    EXPECT_EQ(traceOf(host, {L"--count=5"}),
              joined({recognized("--count=5", "count", "count"),
                      Lines{"AbbreviationParser: detected option: 'count'",
                            "AbbreviationParser: value from the same argument taken: '5'",
                            "AbbreviationParser: sent event on option parsed",
                            "AbbreviationParser: adding values to result container:",
                            "AbbreviationParser: not using tokenizer",
                            "AbbreviationParser: stored option to result container.",
                            "AbbreviationParser: removing argument: '--count=5'"}}));
}

TEST_F(TraceOfOptions, AValueFromTheNextArgument)
{
    EXPECT_EQ(
        traceOf(host, {L"-n", L"a b"}),
        joined({recognized("-n", "n", "n"),
                Lines{"AbbreviationParser: detected option: 'name'",
                      "AbbreviationParser: no value in the same argument, looking next",
                      "AbbreviationParser: got value from the next argument: 'a b'",
                      "AbbreviationParser: sent event on option parsed",
                      "AbbreviationParser: adding values to result container:",
                      "AbbreviationParser: using tokenizer on char: ','",
                      "AbbreviationParser: value is: 'a b'",
                      "AbbreviationParser: sent event on value parsed, option: 'name', value: "
                      "'a b'",
                      "AbbreviationParser: stored option to result container.",
                      "AbbreviationParser: removing argument: '-n'",
                      "AbbreviationParser: removing argument: 'a b'"}}));
}

TEST_F(TraceOfOptions, AnEmptyValueInTheSameArgumentIsTakenFromTheNext)
{
    EXPECT_EQ(traceOf(host, {L"--count=", L"5"}),
              joined({recognized("--count=", "count", "count"),
                      Lines{"AbbreviationParser: detected option: 'count'",
                            "AbbreviationParser: value from the same argument taken: ''",
                            "AbbreviationParser: no value in the same argument, looking next",
                            "AbbreviationParser: got value from the next argument: '5'",
                            "AbbreviationParser: sent event on option parsed",
                            "AbbreviationParser: adding values to result container:",
                            "AbbreviationParser: not using tokenizer",
                            "AbbreviationParser: stored option to result container.",
                            "AbbreviationParser: removing argument: '--count='",
                            "AbbreviationParser: removing argument: '5'"}}));
}

TEST_F(TraceOfOptions, ABooleanAndItsDenial)
{
    EXPECT_EQ(
        traceOf(host, {L"--verb", L"--no-v"}),
        joined({recognized("--verb", "verb", "verbose"),
                Lines{"AbbreviationParser: detected option: 'verbose'",
                      "AbbreviationParser: sent event on option parsed",
                      "AbbreviationParser: adding values to result container:",
                      "AbbreviationParser: using tokenizer on char: ','",
                      "AbbreviationParser: value is: '1'",
                      "AbbreviationParser: sent event on value parsed, option: 'verbose', value: "
                      "'1'",
                      "AbbreviationParser: stored option to result container.",
                      "AbbreviationParser: removing argument: '--verb'"},
                recognized("--no-v", "no-v", "no-verbose"),
                Lines{"AbbreviationParser: detected option: 'verbose'",
                      "AbbreviationParser: sent event on option parsed",
                      "AbbreviationParser: adding values to result container:",
                      "AbbreviationParser: using tokenizer on char: ','",
                      "AbbreviationParser: value is: '0'",
                      "AbbreviationParser: sent event on value parsed, option: 'verbose', value: "
                      "'0'",
                      "AbbreviationParser: stored option to result container.",
                      "AbbreviationParser: removing argument: '--no-v'"}}));
}

TEST_F(TraceOfOptions, AnOptionWithoutAValue)
{
    EXPECT_EQ(traceOf(host, {L"--flag="}),
              joined({recognized("--flag=", "flag", "flag"),
                      Lines{"AbbreviationParser: detected option: 'flag'",
                            "AbbreviationParser: value from the same argument taken: ''",
                            "AbbreviationParser: sent event on option parsed",
                            "AbbreviationParser: stored option to result container.",
                            "AbbreviationParser: removing argument: '--flag='"}}));
}

TEST_F(TraceOfOptions, AnAmbiguousAbbreviation)
{
    host.addOption(L"names");
    EXPECT_EQ(traceOf(host, {L"--na=x"}, 2),
              (Lines{"PositionalOptionsParser: recognizing argument '--na=x'",
                     "AbbreviationParser: recognizing argument '--na=x'",
                     "AbbreviationParser: failed to get best match for 'na' in argument "
                     "'--na=x':Ambiguous option, possible options are: 'name', 'names'",
                     "AbbreviationParser: parsing argument '--na=x'"}));
}

TEST_F(TraceOfOptions, ADenialWithAValue)
{
    EXPECT_EQ(traceOf(host, {L"-no=a"}, 2),
              joined({recognized("-no=a", "no", "no-verbose"),
                      {"AbbreviationParser: detected option: 'verbose'",
                       "AbbreviationParser: value from the same argument taken: 'a'",
                       "AbbreviationParser: Option 'verbose' is boolean and should be declared in "
                       "form '--option' or '--no-option' in argument: '-no=a'"}}));
}

TEST_F(TraceOfOptions, AnEmptyOptionNameHasNoLineForItsError)
{
    EXPECT_EQ(traceOf(host, {L"--=5"}, 2),
              (Lines{"PositionalOptionsParser: recognizing argument '--=5'",
                     "AbbreviationParser: recognizing argument '--=5'",
                     "AbbreviationParser: failed to get best match for '' in argument "
                     "'--=5':Ambiguous option, possible options are: 'name', 'n', 'count', "
                     "'verbose', 'no-verbose', 'flag'",
                     "AbbreviationParser: parsing argument '--=5'"}));
    EXPECT_EQ(host.message(), L"Unknown option '--=5'");
}

TEST_F(TraceOfOptions, AnEmptyOptionNameMayBeABestMatch)
{
    Host single;
    single.addOption(L"name");
    EXPECT_EQ(traceOf(single, {L"--=5"}, 2), recognized("--=5", "", "name"));
    EXPECT_EQ(single.message(), L"Unknown option '--=5'");
}

TEST_F(TraceOfOptions, ASuperfluousValue)
{
    EXPECT_EQ(
        traceOf(host, {L"--flag=x"}, 2),
        joined({recognized("--flag=x", "flag", "flag"),
                Lines{"AbbreviationParser: detected option: 'flag'",
                      "AbbreviationParser: value from the same argument taken: 'x'",
                      "AbbreviationParser: Option 'flag'does not requires a value in argument: "
                      "'--flag=x'"}}));
}

TEST_F(TraceOfOptions, ABooleanWithAValue)
{
    EXPECT_EQ(
        traceOf(host, {L"--verbose=1"}, 2),
        joined({recognized("--verbose=1", "verbose", "verbose"),
                Lines{"AbbreviationParser: detected option: 'verbose'",
                      "AbbreviationParser: value from the same argument taken: '1'",
                      "AbbreviationParser: Option 'verbose' is boolean and should be declared in "
                      "form '--option' or '--no-option' in argument: '--verbose=1'"}}));
}

TEST_F(TraceOfOptions, AMissingValue)
{
    EXPECT_EQ(traceOf(host, {L"--name"}, 2),
              joined({recognized("--name", "name", "name"),
                      Lines{"AbbreviationParser: detected option: 'name'",
                            "AbbreviationParser: no value in the same argument, looking next",
                            "AbbreviationParser: Option 'name' requires a value in argument: "
                            "'--name'"}}));
}

TEST_F(TraceOfOptions, AnEmptyNextArgument)
{
    EXPECT_EQ(traceOf(host, {L"--name", L""}, 2),
              joined({recognized("--name", "name", "name"),
                      Lines{"AbbreviationParser: detected option: 'name'",
                            "AbbreviationParser: no value in the same argument, looking next",
                            "AbbreviationParser: got value from the next argument: ''",
                            "AbbreviationParser: Option 'name' requires a value in argument: "
                            "'--name'"}}));
}

TEST_F(TraceOfOptions, ANextArgumentThatLooksLikeAnOption)
{
    EXPECT_EQ(
        traceOf(host, {L"--name", L"-5"}, 2),
        joined({recognized("--name", "name", "name"),
                Lines{"AbbreviationParser: detected option: 'name'",
                      "AbbreviationParser: no value in the same argument, looking next",
                      "AbbreviationParser: Option 'name' received value from the next argument: "
                      "'-5', but it seems to be an option. Use '-option=value' declaration form "
                      "or make sure that value is not missed"}}));
}
