// The value of an option: after "=", after white space, or in the next argument.
#include <locale>
#include <stdexcept>
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

using Texts = std::vector<std::wstring>;

// Parses the arguments and returns the values of "name" or the message.
Texts outcomeOf(std::initializer_list<const wchar_t*> arguments)
{
    Host host(flag_unknown_is_error);
    host.addOption(L"name").setSeparator(0);
    host.addOption(L"other").setSeparator(0);
    return host.parse(arguments) == 0 ? host.texts(L"name") : Texts{host.message()};
}

TEST(ValueInTheArgument, FirstEqualsSignEndsTheName)
{
    EXPECT_EQ(outcomeOf({L"--name=v"}), Texts{L"v"});
    EXPECT_EQ(outcomeOf({L"--name=a=b c"}), Texts{L"a=b c"});
    EXPECT_EQ(outcomeOf({L"--name=="}), Texts{L"="});
    EXPECT_EQ(outcomeOf({L"--name= 5"}), Texts{L" 5"});
    EXPECT_EQ(outcomeOf({L"--name= "}), Texts{L" "});
    EXPECT_EQ(outcomeOf({L"--name=-5"}), Texts{L"-5"});
    EXPECT_EQ(outcomeOf({L"--name=--"}), Texts{L"--"});
    EXPECT_EQ(outcomeOf({L"-name=\u2014\U0001F600"}), Texts{L"\u2014\U0001F600"});
}

TEST(ValueInTheArgument, FirstWhiteSpaceEndsTheName)
{
    EXPECT_EQ(outcomeOf({L"--name v"}), Texts{L"v"});
    EXPECT_EQ(outcomeOf({L"--name \t\n\v\f\r v w "}), Texts{L"v w "});
    EXPECT_EQ(outcomeOf({L"--name\tv"}), Texts{L"v"});
    EXPECT_EQ(outcomeOf({L"--name\nv"}), Texts{L"v"});
    EXPECT_EQ(outcomeOf({L"--name -5"}), Texts{L"-5"});
    EXPECT_EQ(outcomeOf({L"--name =5"}), Texts{L"=5"});
    EXPECT_EQ(outcomeOf({L"--name a=b"}), Texts{L"a=b"});
}

TEST(ValueInTheArgument, NothingBehindTheEndOfTheNameIsNoValue)
{
    EXPECT_EQ(outcomeOf({L"--name=", L"next"}), Texts{L"next"});
    EXPECT_EQ(outcomeOf({L"--name ", L"next"}), Texts{L"next"});
    EXPECT_EQ(outcomeOf({L"--name \t ", L"next"}), Texts{L"next"});
    EXPECT_EQ(outcomeOf({L"--name="}),
              Texts{L"Option 'name' requires a value in argument: '--name='"});
    EXPECT_EQ(outcomeOf({L"--name  "}),
              Texts{L"Option 'name' requires a value in argument: '--name  '"});
}

// A locale facet in which "_" is white space as well.
class UnderlineIsSpace : public std::ctype<wchar_t>
{
protected:
    bool do_is(mask classes, wchar_t character) const override
    {
        return (character == L'_' && (classes & space) != 0) ||
               std::ctype<wchar_t>::do_is(classes, character);
    }
};

TEST(ValueInTheArgument, WhiteSpaceIsDefinedByTheGlobalLocale)
{
    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new UnderlineIsSpace));
    const Texts outcome = outcomeOf({L"--name_ _v_w"});
    std::locale::global(before);
    EXPECT_EQ(outcome, Texts{L"v_w"});
    EXPECT_EQ(outcomeOf({L"--name_v"}), Texts{L"Unknown option: --name_v"});
}

// A locale facet that throws when it classifies "_".
class UnderlineIsUnclear : public std::ctype<wchar_t>
{
protected:
    bool do_is(mask classes, wchar_t character) const override
    {
        if (character == L'_')
        {
            throw std::runtime_error("unclear");
        }
        return std::ctype<wchar_t>::do_is(classes, character);
    }
};

TEST(ValueInTheArgument, ExceptionOfTheGlobalLocaleIsReported)
{
    for (const wchar_t* const argument : {L"--_name", L"--n_ame", L"--name_"})
    {
        Host host;
        host.addOption(L"name");
        const std::locale before =
            std::locale::global(std::locale(std::locale::classic(), new UnderlineIsUnclear));
        const int code = host.parse({argument});
        std::locale::global(before);
        EXPECT_EQ(code, result_standard_exception) << toUtf8(argument);
    }
}

TEST(ValueInTheNextArgument, NextArgumentIsTheValueUnchanged)
{
    EXPECT_EQ(outcomeOf({L"--name", L"v"}), Texts{L"v"});
    EXPECT_EQ(outcomeOf({L"-n", L" a b=c "}), Texts{L" a b=c "});
    EXPECT_EQ(outcomeOf({L"--name", L"other"}), Texts{L"other"});
    EXPECT_EQ(outcomeOf({L"--name", L" "}), Texts{L" "});
    EXPECT_EQ(outcomeOf({L"--name", L" -5"}), Texts{L" -5"});
}

TEST(ValueInTheNextArgument, BothArgumentsAreUsedUp)
{
    EXPECT_EQ(outcomeOf({L"--name", L"1", L"--name=2", L"--name", L"3", L"--other", L"4"}),
              (Texts{L"1", L"2", L"3"}));
    EXPECT_EQ(outcomeOf({L"--name=1", L"v"}), Texts{L"Unknown option: v"});
}

TEST(ValueInTheNextArgument, TypographicHyphensMayBeginAValue)
{
    for (const wchar_t* value :
         {L"\u2012v", L"\u2013v", L"\u2014other", L"\u2015", L"\u2053\u2053v", L"\u2014-v"})
    {
        EXPECT_EQ(outcomeOf({L"--name", value}), Texts{value});
    }
}

TEST(ValueInTheNextArgument, HyphenMinusBeginsNoValue)
{
    for (const wchar_t* value : {L"-5", L"-", L"--", L"--other=1", L"-v", L"-\u2014"})
    {
        EXPECT_EQ(outcomeOf({L"--name", value}),
                  Texts{std::wstring(L"Option 'name' received value from the next argument: '") +
                        value +
                        L"', but it seems to be an option. Use '-option=value' declaration form or "
                        L"make sure that value is not missed"});
    }
}

TEST(ValueInTheNextArgument, LastArgumentHasNoValueBehindIt)
{
    EXPECT_EQ(outcomeOf({L"--name"}),
              Texts{L"Option 'name' requires a value in argument: '--name'"});
    EXPECT_EQ(outcomeOf({L"--other=1", L"\u2014n"}),
              Texts{L"Option 'name' requires a value in argument: '\u2014n'"});
}

TEST(ValueInTheNextArgument, EmptyNextArgumentIsNoValue)
{
    EXPECT_EQ(outcomeOf({L"--name", L"", L"v"}),
              Texts{L"Option 'name' requires a value in argument: '--name'"});
    EXPECT_EQ(outcomeOf({L"--name=", nullptr}),
              Texts{L"Option 'name' requires a value in argument: '--name='"});
}

TEST(ValueInTheNextArgument, EveryTypeThatTakesAValueTakesItFromThere)
{
    for (const std::int32_t type : {6, 7, 8, 9, 11, 13})
    {
        Host host;
        host.addOption(L"name", type);
        EXPECT_EQ(host.parse({L"--name", L"5"}), 0) << type;
        EXPECT_EQ(host.texts(L"name"), Texts{L"5"}) << type;
        EXPECT_EQ(host.parse({L"--name"}), 2) << type;
    }
    Host host;
    host.addSwitch(L"name", value_type_integer);
    EXPECT_EQ(host.parse({L"--name", L"5"}), 0);
    EXPECT_EQ(host.texts(L"name"), Texts{L"5"});
}

TEST(RefusedArgument, EndsTheParseBeforeTheNextArgument)
{
    const struct
    {
        const wchar_t* refused;
        const wchar_t* message;
    } rows[] = {
        {L"---x", L"Unknown option: ---x"},
        {L"--=5", L"Unknown option '--=5'"},
        {L"--na", L"Ambiguous option 'na' in argument: '--na', could be: 'name', 'nation'"},
        {L"--flag=x", L"Option 'flag'does not requires a value in argument: '--flag=x'"},
        {L"--verbose=x",
         L"Option 'verbose' is boolean and should be declared in form '--option' or "
         L"'--no-option' in argument: '--verbose=x'"},
        {L"--name", L"Option 'name' received value from the next argument: '--name=after', but it "
                    L"seems to be an option. Use '-option=value' declaration form or make sure "
                    L"that value is not missed"},
        {L"--name=,", L"No value parsed in argument ',' for option 'name'"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(toUtf8(row.refused));
        Host host(flag_unknown_is_error);
        host.addOption(L"name");
        host.addOption(L"nation");
        host.addOption(L"flag", value_type_none);
        host.addOption(L"verbose", value_type_boolean);
        Events events;
        RecordingHandler handler(events);
        host.parser().addEventHandler(&handler);
        EXPECT_EQ(host.parse({L"--name=before", row.refused, L"--name=after", L"--", L"left"}), 2);
        EXPECT_EQ(host.message(), row.message);
        EXPECT_EQ(host.texts(L"name"), Texts{L"before"});
        EXPECT_EQ(host.unparsed(), Texts());
        EXPECT_FALSE(host.isPresent(L"flag"));
        EXPECT_FALSE(host.isPresent(L"verbose"));
    }
}

} // namespace
