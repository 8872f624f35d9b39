// The common base of the argument parsers.
#include "recognition/AbbreviationParser.h"
#include "recognition/PositionalOptionsParser.h"
#include "support/platform/Trace.h"

#include "ConsoleCapture.h"
#include "Recognition.h"

namespace
{

using namespace kexa_3_3;

// A parser that does not override the operation that returns its name.
class NamelessParser final : public IArgumentParser
{
public:
    NamelessParser(EventHandler* owner, Garbage& settings, std::uint32_t flags)
        : IArgumentParser(owner, settings, flags)
    {
    }
    int recognize(const ArgumentQueue& /*arguments*/, const RegisteredOptionStorage& /*options*/,
                  std::wstring& /*message*/) override
    {
        return claimed;
    }
    ParseStatus parse(ArgumentQueue& /*arguments*/, IResultCollector* /*collector*/,
                      const RegisteredOptionStorage& /*options*/, std::int64_t& /*optionIndex*/,
                      std::wstring& /*error*/) override
    {
        return ParseStatus::parsed;
    }
    [[nodiscard]] std::int32_t priority() const noexcept override { return 0; }

    using IArgumentParser::hasFlag;
    using IArgumentParser::settings;
};

class ArgumentParserBase : public unit::RecognitionTest
{
protected:
    ~ArgumentParserBase() override { switchTrace(false); }
};

TEST_F(ArgumentParserBase, NameIsThatOfTheKind)
{
    EXPECT_EQ(NamelessParser(&handler, pool, 0).name(), L"UndefinedParser");
    EXPECT_EQ(AbbreviationParser(&handler, pool, 0).name(), L"AbbreviationParser");
    EXPECT_EQ(PositionalOptionsParser(&handler, pool, 0).name(), L"PositionalOptionsParser");
}

TEST_F(ArgumentParserBase, KindWithoutANameTracesAsUndefined)
{
    const NamelessParser parser(&handler, pool, 0);
    ValueStoring storing(parser);
    OptionDescription& option = add(L"out");
    std::wstring error;
    EXPECT_EQ(toolbox::captureOutput(
                  [&]
                  {
                      switchTrace(true);
                      EXPECT_EQ(storing.store({option, L"", L"--out"}, nullptr, error),
                                ParseStatus::parsed);
                  }),
              "UndefinedParser: stored option to result container.\n");
}

TEST_F(ArgumentParserBase, PrioritiesAreFixed)
{
    EXPECT_EQ(AbbreviationParser(&handler, pool, 0).priority(), -10);
    EXPECT_EQ(PositionalOptionsParser(&handler, pool, 0).priority(), -100);
}

TEST_F(ArgumentParserBase, ContextQuotesTheArgument)
{
    const NamelessParser base(&handler, pool, 0);
    const AbbreviationParser abbreviation(&handler, pool, 0);
    const PositionalOptionsParser positional(&handler, pool, 0);
    for (const IArgumentParser* const parser : {static_cast<const IArgumentParser*>(&base),
                                                static_cast<const IArgumentParser*>(&abbreviation),
                                                static_cast<const IArgumentParser*>(&positional)})
    {
        EXPECT_EQ(parser->formatArgumentContext(L"--a=b c"), L" in argument: '--a=b c'");
        EXPECT_EQ(parser->formatArgumentContext(L""), L" in argument: ''");
    }
}

TEST_F(ArgumentParserBase, KeepsWhatItIsGiven)
{
    const NamelessParser parser(&handler, pool, 0x80000008);
    EXPECT_EQ(parser.owner(), &handler);
    EXPECT_EQ(&parser.settings(), &pool);
    EXPECT_TRUE(parser.hasFlag(8));
    EXPECT_TRUE(parser.hasFlag(0x80000000));
    EXPECT_FALSE(parser.hasFlag(16));
}

} // namespace
