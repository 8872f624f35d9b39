// The parser object: creation, flags, ownership, error message.
#include <limits>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

constexpr int all_known_flags = 2 | 4 | 8 | 16 | 32;

Host hostWithName(int flags = 0)
{
    Host host(flags);
    host.addOption(L"name");
    return host;
}

} // namespace

TEST(ParserObject, CreateParserReturnsZeroAndStoresTheParser)
{
    IParser* parser = nullptr;
    EXPECT_EQ(kexa_3_3::createParser(&parser, 0), 0);
    ASSERT_NE(parser, nullptr);
    parser->release();
}

TEST(ParserObject, EveryCallMakesAnotherParser)
{
    Host first = hostWithName();
    Host second;
    EXPECT_NE(&first.parser(), &second.parser());
    EXPECT_FALSE(second.parser().hasOption(L"name", false, nullptr));
}

TEST(ParserObject, WithoutFlagsAListIsSplitAtEveryComma)
{
    Host host = hostWithName();
    EXPECT_EQ(host.parse({L"--name=a,b"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a", L"b"}));
}

TEST(ParserObject, Flag32LeavesEveryListWhole)
{
    Host host = hostWithName(32);
    host.addPositional(L"path");
    EXPECT_EQ(host.parse({L"--name=a,b", L"c,d"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a,b"}));
    EXPECT_EQ(host.texts(L"path"), (std::vector<std::wstring>{L"c,d"}));
}

TEST(ParserObject, Flag32IsTheSeparatorOfNewOptionsOnly)
{
    Host host(32);
    host.addOption(L"name").setSeparator(L';');
    EXPECT_EQ(host.parse({L"--name=a;b,c"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a", L"b,c"}));
}

TEST(ParserObject, BitsWithoutMeaningChangeNothing)
{
    for (const int flags : {1, 64, 1 << 20, std::numeric_limits<int>::min(), ~all_known_flags})
    {
        SCOPED_TRACE(flags);
        Host host = hostWithName(flags);
        host.addPositional(L"path");
        EXPECT_EQ(host.parse({L"--name=a,b", L"-x", L"y", L"--", L"-z"}), 0);
        EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a", L"b"}));
        EXPECT_EQ(host.texts(L"path"), (std::vector<std::wstring>{L"-x", L"y", L"-z"}));
    }
}

TEST(ParserObject, BitsWithoutMeaningLeaveTheOthersTheirMeaning)
{
    Host host(2 | 1 | (1 << 20));
    EXPECT_EQ(host.parse({L"x"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
}

TEST(ParserObject, CreateParseResultMakesAnEmptyResult)
{
    Host host = hostWithName();
    IParseResult* result = nullptr;
    EXPECT_EQ(host.parser().createParseResult(&result), 0);
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->isPresent(L"name", 0, no_position), 0);
    EXPECT_TRUE(readUnparsed(*result).empty());
    result->release();
}

TEST(ParserObject, ResultsOfOneParserAreSeparateObjects)
{
    Host host = hostWithName();
    const ResultOwner other = toolbox::createResult(host.parser());
    ASSERT_NE(other.get(), &host.result());
    EXPECT_EQ(host.parse({L"--name=a"}), 0);
    EXPECT_TRUE(host.isPresent(L"name"));
    EXPECT_EQ(other->isPresent(L"name", 0, no_position), 0);
}

TEST(ParserObject, AResultOutlivesItsParser)
{
    ParserOwner parser = toolbox::createParser();
    parser->addOption(L"name", L"", value_type_string, L"");
    const ResultOwner result = toolbox::createResult(*parser);
    EXPECT_EQ(parse(*parser, {L"--name=a", L"--", L"rest"}, result.get()), 0);

    parser.reset();

    EXPECT_EQ(readTexts(*result, L"name"), (std::vector<std::wstring>{L"a"}));
    EXPECT_EQ(readUnparsed(*result), (std::vector<std::wstring>{L"rest"}));
}

TEST(ParserObject, AHandlerOutlivesTheParserItIsRegisteredWith)
{
    Events events;
    RecordingHandler handler(events);
    {
        Host host = hostWithName();
        ASSERT_TRUE(host.parser().addEventHandler(&handler));
    }
    EXPECT_TRUE(handler.onOptionParsed(L"still here"));
    EXPECT_EQ(events, (Events{L"option still here"}));
}

TEST(ParserObject, OneResultMayBeFilledByTwoParsers)
{
    Host first = hostWithName();
    Host second = hostWithName();
    EXPECT_EQ(first.parse({L"--name=a"}), 0);
    EXPECT_EQ(parse(second.parser(), {L"--name=b"}, &first.result()), 0);
    EXPECT_EQ(first.texts(L"name"), (std::vector<std::wstring>{L"a", L"b"}));
}

TEST(ParserObject, SeveralParsesFillSeveralResults)
{
    Host host = hostWithName();
    EXPECT_EQ(host.parse({L"--name=a"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a"}));
    host.renewResult();
    EXPECT_EQ(host.parse({L"--name=b"}), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"b"}));
}

TEST(ParserObject, SeveralParsesIntoOneResultAddUp)
{
    Host host = hostWithName();
    EXPECT_EQ(host.parse({L"--name=a", L"--", L"x"}), 0);
    EXPECT_EQ(host.parseLines(L"--name=b\n--\ny"), 0);
    EXPECT_EQ(host.texts(L"name"), (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_EQ(host.unparsed(), (std::vector<std::wstring>{L"x", L"y"}));
}

TEST(ParserObject, OptionsMayBeAddedBetweenParses)
{
    Host host = hostWithName(2);
    EXPECT_EQ(host.parse({L"--later=1"}), 2);
    host.addOption(L"later");
    EXPECT_EQ(host.parse({L"--later=1"}), 0);
    EXPECT_EQ(host.texts(L"later"), (std::vector<std::wstring>{L"1"}));
}

TEST(ErrorMessage, AFreshParserHasAnEmptyOne)
{
    Host host;
    ASSERT_NE(host.parser().getErrorMessage(), nullptr);
    EXPECT_STREQ(host.parser().getErrorMessage(), L"");
}

TEST(ErrorMessage, ASuccessfulParseLeavesItEmpty)
{
    Host host = hostWithName(2);
    EXPECT_EQ(host.parse({L"--name=a"}), 0);
    EXPECT_STREQ(host.parser().getErrorMessage(), L"");
}

TEST(ErrorMessage, AFailedParseSetsIt)
{
    Host host(2);
    EXPECT_EQ(host.parse({L"x"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
}

TEST(ErrorMessage, StaysUntilTheNextFailure)
{
    Host host = hostWithName(2);
    EXPECT_EQ(host.parse({L"x"}), 2);
    EXPECT_EQ(host.parse({L"--name=a"}), 0);
    EXPECT_EQ(host.message(), L"Unknown option: x");
    EXPECT_EQ(host.parse({L"y"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: y");
}

TEST(ErrorMessage, ItsTextStaysValidUntilTheParserIsReleased)
{
    Host host(2);
    EXPECT_EQ(host.parse({L"x"}), 2);
    const wchar_t* first = host.parser().getErrorMessage();
    EXPECT_EQ(host.parse({L"y"}), 2);
    const wchar_t* second = host.parser().getErrorMessage();
    EXPECT_STREQ(first, L"Unknown option: x");
    EXPECT_STREQ(second, L"Unknown option: y");
}

TEST(ErrorMessage, BelongsToOneParser)
{
    Host failing(2);
    Host other(2);
    EXPECT_EQ(failing.parse({L"x"}), 2);
    EXPECT_EQ(other.message(), L"");
}
