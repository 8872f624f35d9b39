// Default values as declared: the last one counts, and values live as long as they are needed.
#include <string>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::variant_t;

class CountedObject : public vexkit2::polymorphic_t
{
public:
    explicit CountedObject(int& destroyed) : m_destroyed(destroyed) {}
    CountedObject(const CountedObject&) = delete;
    CountedObject& operator=(const CountedObject&) = delete;
    ~CountedObject() override { ++m_destroyed; }

private:
    int& m_destroyed;
};

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
