// Event handlers that declare or change options, or configure the parser, during a parse.
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::variant_t;

namespace
{

using Texts = std::vector<std::wstring>;

class HandlersThatDeclare : public testing::Test
{
protected:
    HandlersThatDeclare()
    {
        name = &host.addOption(L"name,n");
        host.parser().addEventHandler(&handler);
    }

    // Run an action at the first recognised option, or at the first value.
    void atOption(const std::function<void()>& action)
    {
        handler.answerOption = [this, action](const wchar_t*)
        {
            if (!std::exchange(acted, true))
            {
                action();
            }
            return true;
        };
    }
    void atValue(const std::function<void()>& action)
    {
        handler.answerValue = [this, action](const wchar_t*, const ValueRecord&)
        {
            if (!std::exchange(acted, true))
            {
                action();
            }
            return true;
        };
    }

    Events events;
    RecordingHandler handler{events};
    Host host{flag_unknown_is_error};
    IOption* name = nullptr;
    bool acted = false;
};

} // namespace

TEST_F(HandlersThatDeclare, ANewOptionIsFoundByTheFollowingArguments)
{
    atOption([this] { host.addOption(L"late,l"); });
    EXPECT_EQ(host.parse({L"--name=a", L"--late=b", L"--la=c"}), result_success);
    EXPECT_EQ(host.texts(L"name"), Texts{L"a"});
    EXPECT_EQ(host.texts(L"l"), (Texts{L"b", L"c"}));
}

TEST_F(HandlersThatDeclare, ManyNewOptionsDoNotDisturbTheOneBeingParsed)
{
    atValue(
        [this]
        {
            for (int number = 0; number < 500; ++number)
            {
                host.addOption((L"option-" + std::to_wstring(number)).c_str());
            }
        });
    EXPECT_EQ(host.parse({L"--name=a,b,c", L"--option-499=z"}), result_success);
    EXPECT_EQ(host.texts(L"n"), (Texts{L"a", L"b", L"c"}));
    EXPECT_EQ(host.texts(L"option-499"), Texts{L"z"});
}

TEST_F(HandlersThatDeclare, ANewNameOfTheOptionBeingParsedGetsItsValueToo)
{
    atValue([this] { name->addName(L"further"); });
    EXPECT_EQ(host.parse({L"--name=a", L"--further=b"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b"}));
    EXPECT_EQ(host.texts(L"further"), (Texts{L"a", L"b"}));
}

TEST_F(HandlersThatDeclare, ANewNameOfAnOptionStoredBeforeJoinsItsRecord)
{
    EXPECT_EQ(host.parse({L"--name=a"}), result_success);
    atOption([this] { name->addName(L"further"); });
    EXPECT_EQ(host.parse({L"--name=b"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b"}));
    EXPECT_EQ(host.texts(L"n"), (Texts{L"a", L"b"}));
    EXPECT_EQ(host.texts(L"further"), (Texts{L"a", L"b"}));
}

TEST_F(HandlersThatDeclare, ANewAllowedValueAppliesToTheNextListElement)
{
    atValue([this] { name->addAllowedValue(variant_t(L"allowed")); });
    EXPECT_EQ(host.parse({L"--name=anything,all"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"anything", L"allowed"}));
    EXPECT_EQ(host.parse({L"--name=anything"}), result_invalid_arguments);
    EXPECT_EQ(host.message(),
              L"Value validation problem in argument '--name=anything': Option 'name' does not "
              L"allow value 'anything'. Possible values follows: 'allowed'");
}

TEST_F(HandlersThatDeclare, ANewSeparatorAppliesToTheNextArgument)
{
    atValue([this] { name->setSeparator(L':'); });
    EXPECT_EQ(host.parse({L"--name=a,b:c", L"--name=d,e:f"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b:c", L"d,e", L"f"}));
}

TEST_F(HandlersThatDeclare, AnOptionThatBecomesPositionalTakesTheFollowingArguments)
{
    atOption([this] { name->setMarked(); });
    EXPECT_EQ(host.parse({L"--name=a", L"b"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b"}));
}

TEST_F(HandlersThatDeclare, ANewDefaultAppliesFromTheNextParse)
{
    IOption& other = host.addOption(L"other");
    atOption([&] { other.setDefaultValue(variant_t(L"default")); });
    EXPECT_EQ(host.parse({L"--name=a"}), result_success);
    EXPECT_FALSE(host.isPresent(L"other"));
    EXPECT_EQ(host.parse({L"--name=a"}), result_success);
    EXPECT_EQ(host.texts(L"other"), Texts{L"default"});
}

TEST_F(HandlersThatDeclare, OptionFilesEnabledDuringAParseAreReadInIt)
{
    const TemporaryFolder folder;
    const std::wstring argument = L"--option-file=" + folder.write(L"file", "--name=from file\n");
    atOption([this] { EXPECT_TRUE(host.parser().enableOptionFiles(L"", L"")); });
    EXPECT_EQ(host.parse({L"--name=a", argument.c_str()}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"from file"}));
}

TEST_F(HandlersThatDeclare, ActionsDeclaredCompatibleDuringAParseAreCompatibleInIt)
{
    host.addSwitch(L"build");
    host.addSwitch(L"clean");
    atOption([this] { host.parser().addCompatibleActions({L"build", L"clean"}); });
    EXPECT_EQ(host.parse({L"--build", L"--clean"}), result_success);
}

TEST_F(HandlersThatDeclare, AnUnknownArgumentStaysUnknownWhenItsHandlerDeclaresIt)
{
    handler.answerUnknown = [this](const wchar_t*)
    {
        host.addOption(L"late");
        return true;
    };
    EXPECT_EQ(host.parse({L"--late=a"}), result_invalid_arguments);
    EXPECT_EQ(host.message(), L"Unknown option: --late=a");
    EXPECT_EQ(host.parse({L"--late=a"}), result_success);
    EXPECT_EQ(host.texts(L"late"), Texts{L"a"});
}
