// A host's own result is told from one of the library without run-time type information.
#include "Host.h"
#include "ResultWithoutRtti.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

class ResultsOfHostsWithoutRtti : public testing::Test
{
protected:
    ResultsOfHostsWithoutRtti()
    {
        host.addOption(L"name").setDefaultValue(vexkit2::variant_t(L"default"));
        host.addSwitch(L"list");
    }

    Host host{flag_unknown_is_error};
};

} // namespace

TEST_F(ResultsOfHostsWithoutRtti, AreLeftAlone)
{
    IParseResult& own = resultWithoutRtti();
    EXPECT_EQ(toolbox::parse(host.parser(), {L"--name=a", L"--list", L"--", L"x"}, &own), 0);
    EXPECT_EQ(host.parser().parseCommandLine(L"--name=b", &own), 0);
    EXPECT_EQ(toolbox::parse(host.parser(), {L"x"}, &own), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
    EXPECT_EQ(queriesOfResultWithoutRtti(), 0);
}

TEST_F(ResultsOfHostsWithoutRtti, DoNotKeepOtherResultsFromBeingFilled)
{
    EXPECT_EQ(toolbox::parse(host.parser(), {L"--name=a"}, &resultWithoutRtti()), 0);
    EXPECT_EQ(host.parse({L"--name=b", L"--list"}), 0);
    EXPECT_EQ(host.texts(L"name"), Texts{L"b"});
}

TEST_F(ResultsOfHostsWithoutRtti, ResultOfAnotherParserIsFilled)
{
    ResultOwner result;
    {
        Host other;
        result = createResult(other.parser());
    }
    EXPECT_EQ(toolbox::parse(host.parser(), {L"--name=b", L"--list"}, result.get()), 0);
    EXPECT_EQ(readTexts(*result, L"name"), Texts{L"b"});
}
