// How long variants live that a host declares as defaults, allowed values and replacements.
#include <optional>
#include <string>
#include <vector>

#include "FilledHost.h"
#include "VariantSamples.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;
using variant_samples::CountedObject;
using vexkit2::variant_t;

// Kinds whose copies share memory, and kinds whose copies do not.
std::vector<variant_t> declaredValues()
{
    return {variant_t(L"wide"), variant_t("narrow"), variant_t(std::wstring(5000, L'x')),
            variant_t::reference(L"not owned"), variant_t(25)};
}

TEST(DeclaredValueLifetimes, DefaultIsReturnedAndOutlivesHostAndResult)
{
    for (const variant_t& declared : declaredValues())
    {
        SCOPED_TRACE(declared.kind());
        variant_t copy;
        {
            Host host;
            {
                const variant_t own = declared;
                host.addOption(L"name").setDefaultValue(own);
            }
            ASSERT_EQ(host.parse({}), 0);
            Value value;
            for (int round = 0; round < 3; ++round)
            {
                ASSERT_EQ(host.result().getFirstValue(&value, L"name", 0, no_position), 0);
                EXPECT_EQ(value.value.kind(), declared.kind());
                EXPECT_TRUE(value.value == declared);
            }
            copy = value.value;
        }
        EXPECT_TRUE(copy == declared);
    }
}

TEST(DeclaredValueLifetimes, DefaultOutlivesTheParserInItsResult)
{
    for (const variant_t& declared : declaredValues())
    {
        SCOPED_TRACE(declared.kind());
        ParserOwner parser = createParser();
        const ResultOwner result = createResult(*parser);
        // A copy with memory of its own, which the host does not keep.
        parser->addOption(L"name", L"", value_type_string, L"")
            .option->setDefaultValue(
                declared.kind() == 13 ? variant_t(declared.get<const wchar_t*>()) : declared);
        ASSERT_EQ(toolbox::parse(*parser, std::vector<const wchar_t*>(), result.get()), 0);
        parser.reset();
        for (int round = 0; round < 3; ++round)
        {
            Value value;
            ASSERT_EQ(result->getFirstValue(&value, L"name", 0, no_position), 0);
            EXPECT_TRUE(value.value == declared);
        }
    }
}

TEST(DeclaredValueLifetimes, AllowedValueAndReplacementAreReturnedAndOutliveHostAndResult)
{
    std::vector<variant_t> copies;
    {
        Host host;
        host.addOption(L"name")
            .addAllowedValue(variant_t(L"allowed by the host"))
            .addDeprecatedValue(variant_t(L"former"), variant_t(L"allowed by the host"));
        const ConsoleCapture warnings(ConsoleCapture::Stream::error);
        for (int round = 0; round < 300; ++round)
        {
            ASSERT_EQ(host.parse({L"--name=allowed", L"--name=allowed by the host",
                                  L"--name=former", L"--name=form"}),
                      0);
        }
        copies = copyValues(host.result());
    }
    ASSERT_EQ(copies.size(), 1200U);
    for (const variant_t& copy : copies)
    {
        ASSERT_EQ(wholeText(copy), L"allowed by the host");
    }
}

// Values that a result returned are declared as default, allowed and replacing values, of a parser
// that fills another result or the one they came from.
TEST(DeclaredValueLifetimes, ValueOfAResultMayBeDeclared)
{
    for (const bool same : {true, false})
    {
        SCOPED_TRACE(same);
        std::optional<FilledHost> source(std::in_place, 500);
        std::vector<variant_t> values = copyValues(source->result());
        Host other;
        Host& host = same ? static_cast<Host&>(*source) : other;
        host.addOption(L"other").setDefaultValue(values[7]);
        host.addOption(L"third").addAllowedValue(values[8]).addDeprecatedValue(values[8],
                                                                               values[9]);
        values.clear();
        {
            const ConsoleCapture warning(ConsoleCapture::Stream::error);
            ASSERT_EQ(host.parse({(L"--third=" + textOf(8)).c_str()}), 0);
        }
        if (!same)
        {
            source.reset();
        }
        for (int round = 0; round < 3; ++round)
        {
            EXPECT_EQ(host.texts(L"other"), std::vector<std::wstring>{textOf(7)});
            EXPECT_EQ(host.texts(L"third"), std::vector<std::wstring>{textOf(9)});
        }
        Value value;
        ASSERT_EQ(host.result().getFirstValue(&value, L"other", 0, no_position), 0);
        host.renewResult();
        EXPECT_EQ(wholeText(value.value), textOf(7));
    }
}

TEST(DeclaredValueLifetimes, ObjectOfADefaultIsDestroyedWithItsLastReference)
{
    int destroyed = 0;
    {
        Host host;
        host.addOption(L"name").setDefaultValue(variant_t::object(new CountedObject(destroyed)));
        EXPECT_EQ(host.parse({}), 0);
        EXPECT_EQ(host.parse({L"--name=x"}), 0);
        EXPECT_EQ(host.texts(L"name"), std::vector<std::wstring>{L"x"});
        EXPECT_EQ(destroyed, 0);
    }
    EXPECT_EQ(destroyed, 1);
}

} // namespace
