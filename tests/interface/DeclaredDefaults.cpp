// Declared defaults: the last one counts. Declared values live as long as parser or result.
#include <functional>
#include <string>
#include <vector>

#include "Host.h"
#include "VariantSamples.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using variant_samples::CountedObject;
using vexkit2::variant_t;

TEST(DeclaredDefaults, LastDefaultCounts)
{
    Host host;
    host.addOption(L"mode")
        .setDefaultValue(variant_t(L"first"))
        .setDefaultValue(variant_t(L"second"));
    EXPECT_EQ(host.parse({}), 0);
    EXPECT_EQ(host.texts(L"mode"), std::vector<std::wstring>{L"second"});
    EXPECT_STREQ(host.parser().showFullHelp(false), L"-mode=<string> (second)\n\n");
}

TEST(DeclaredDefaults, ReplacedDefaultIsReleased)
{
    int destroyed = 0;
    Host host;
    IOption& option = host.addOption(L"mode");
    option.setDefaultValue(variant_t::object(new CountedObject(destroyed)));
    EXPECT_EQ(destroyed, 0);
    option.setDefaultValue(variant_t(L"text"));
    EXPECT_EQ(destroyed, 1);
}

TEST(DeclaredDefaults, DefaultMayBeOfAnyKind)
{
    Host host;
    host.addOption(L"mode").setDefaultValue(variant_t(vexkit2::s32_t{5}));
    EXPECT_EQ(host.parse({}), 0);
    const Value value = getLastValue(&host.result(), L"mode", 0, no_position);
    EXPECT_EQ(value.value.kind(), 6);
    EXPECT_STREQ(value.as<const wchar_t*>(), L"5");
}

TEST(DeclaredValues, ReleasedParserReleasesEveryValue)
{
    int destroyed = 0;
    {
        const ParserOwner parser = toolbox::createParser();
        IOption& option = *parser->addOption(L"mode", L"", value_type_string, L"").option;
        const auto counted = [&]
        {
            return variant_t::object(new CountedObject(destroyed));
        };
        option.setDefaultValue(counted());
        option.addAllowedValue(counted()).addAllowedValue(counted());
        option.addDeprecatedValue(counted(), counted());
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 5);
}

// Adds its name to a list when it is destroyed.
class NamedObject : public vexkit2::polymorphic_t
{
public:
    NamedObject(std::vector<std::string>& destroyed, const char* name)
        : m_destroyed(destroyed), m_name(name)
    {
    }
    NamedObject(const NamedObject&) = delete;
    NamedObject& operator=(const NamedObject&) = delete;
    ~NamedObject() override { m_destroyed.emplace_back(m_name); }

private:
    std::vector<std::string>& m_destroyed;
    const char* m_name;
};

TEST(DeclaredValues, OptionReleasesDeprecatedThenAllowedValuesThenTheDefault)
{
    std::vector<std::string> destroyed;
    {
        const ParserOwner parser = toolbox::createParser();
        const auto named = [&](const char* name)
        {
            return variant_t::object(new NamedObject(destroyed, name));
        };
        parser->addOption(L"mode", L"", value_type_string, L"")
            .option->setDefaultValue(named("default"))
            .addDeprecatedValue(variant_t(L"old"), named("deprecated"))
            .addAllowedValue(named("allowed"));
    }
    EXPECT_EQ(destroyed, (std::vector<std::string>{"deprecated", "allowed", "default"}));
}

TEST(DeclaredValues, ValueWithoutItsDataIsAProgrammingErrorAndChangesNothing)
{
    const std::function<void(IOption&, const variant_t&)> calls[] = {
        [](IOption& option, const variant_t& value) { option.addAllowedValue(value); },
        [](IOption& option, const variant_t& value)
        { option.addDeprecatedValue(value, variant_t(L"new")); },
        [](IOption& option, const variant_t& value)
        { option.addDeprecatedValue(variant_t(L"a,b"), value); },
        [](IOption& option, const variant_t& value)
        {
            option.setDefaultValue(value);
        }};
    for (const auto& call : calls)
    {
        for (const vexkit2::s32_t kind : {12, 13, 16, 18})
        {
            Host host;
            IOption& option = host.addOption(L"mode");
            option.addAllowedValue(variant_t(L"a,b"))
                .setDefaultValue(variant_t(L"a,b"))
                .setSeparator(0);
            std::string guard;
            try
            {
                call(option, variant_samples::withoutData(kind));
            }
            catch (const AssertionFailure& failure)
            {
                guard = failure.what();
            }
            EXPECT_EQ(guard, "h != NULL") << kind;
            EXPECT_STREQ(host.parser().showFullHelp(false), L"-mode=a,b (a,b)\n\n") << kind;
            EXPECT_EQ(captureError([&] { EXPECT_EQ(host.parse({L"--mode=a,b"}), 0) << kind; }), "");
            EXPECT_EQ(host.texts(L"mode"), std::vector<std::wstring>{L"a,b"}) << kind;
        }
    }
}

TEST(DeclaredValues, ValueSharedWithTheHostOutlivesTheParser)
{
    int destroyed = 0;
    const variant_t shared = variant_t::object(new CountedObject(destroyed));
    toolbox::createParser()
        ->addOption(L"mode", L"", value_type_string, L"")
        .option->setDefaultValue(shared)
        .addAllowedValue(shared);
    EXPECT_EQ(destroyed, 0);
}

} // namespace
