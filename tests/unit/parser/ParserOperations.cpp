// The operations that BasicParser adds to its interface, and the calls that a derived class
// receives.
#include "parser/BasicParser.h"

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "recognition/ValueStoring.h"
#include "result/ParseResult.h"

#include "GivenArguments.h"
#include "TemporaryFolder.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;

using Texts = std::vector<std::wstring>;

class ParserOperations : public testing::Test
{
protected:
    ParserOperations() { parser.addOption(L"name,n", L"", value_type_string, L""); }

    int parseVector(const Texts& vector, std::wstring_view marker = L"--")
    {
        give(vector);
        return parser.parseVector(marker, *arguments, &result, message);
    }
    void give(const Texts& vector)
    {
        arguments.reset();
        given.emplace(vector);
        arguments.emplace(*given);
    }
    // The arguments in the queue, which is left unchanged.
    Texts rest()
    {
        const Texts left = unit::takeAll(*arguments);
        give(left);
        return left;
    }
    Texts values(const wchar_t* name)
    {
        Texts texts;
        Value value;
        for (int code = result.getFirstValue(&value, name, 0, no_position); code == 0;
             code = result.getNextValue(&value, name))
        {
            texts.emplace_back(value.as<const wchar_t*>());
        }
        return texts;
    }
    std::wstring parserMessage() { return parser.getErrorMessage(); }

    BasicParser parser{flag_unknown_is_error};
    ParseResult result;
    std::optional<unit::GivenArguments> given;
    std::optional<ArgumentQueue> arguments;
    std::wstring message = L"as before";
};

TEST_F(ParserOperations, VectorIsParsedUpToTheMarkerWhichStays)
{
    EXPECT_EQ(parseVector({L"--name=a", L"-n", L"b", L"--", L"--name=c", L"x"}), 0);
    EXPECT_EQ(rest(), (Texts{L"--", L"--name=c", L"x"}));
    EXPECT_EQ(values(L"name"), (Texts{L"a", L"b"}));
    EXPECT_EQ(message, L"as before");
    EXPECT_EQ(parserMessage(), L"");
}

TEST_F(ParserOperations, MarkerMayBeAnyText)
{
    EXPECT_EQ(parseVector({L"--name=a", L"stop", L"--name=b"}, L"stop"), 0);
    EXPECT_EQ(rest(), (Texts{L"stop", L"--name=b"}));
    EXPECT_EQ(parseVector({L"--name=a", L"", L"x"}, L""), 0);
    EXPECT_EQ(rest(), (Texts{L"", L"x"}));
    EXPECT_EQ(parseVector({L"--name=a", L"Stop"}, L"stop"), 2);
    EXPECT_EQ(rest(), (Texts{L"Stop"}));
}

TEST_F(ParserOperations, VectorThatFailsKeepsTheArgumentAndWritesTheMessageGiven)
{
    EXPECT_EQ(parseVector({L"--name=a", L"x", L"--name=b"}), 2);
    EXPECT_EQ(rest(), (Texts{L"x", L"--name=b"}));
    EXPECT_EQ(message, L"Unknown option: x");
    EXPECT_EQ(parserMessage(), L"");
    EXPECT_EQ(values(L"name"), (Texts{L"a"}));
}

TEST_F(ParserOperations, TraceKeywordIsRemovedFromTheFrontOnly)
{
    EXPECT_EQ(parseVector({L"--", L"kexaoption=kexalogenable=1"}), 0);
    EXPECT_EQ(rest(), (Texts{L"--", L"kexaoption=kexalogenable=1"}));
    EXPECT_EQ(parseVector({L"kexaoption=kexalogenable=1"}), 0);
    EXPECT_EQ(rest(), Texts());
    EXPECT_EQ(parseVector({}), 0); // switches the trace off again
}

TEST_F(ParserOperations, ResultIsNotNeeded)
{
    give({L"--name=a", L"--", L"x"});
    EXPECT_EQ(parser.parseVector(L"--", *arguments, nullptr, message), 0);
    EXPECT_EQ(rest(), (Texts{L"--", L"x"}));
    EXPECT_EQ(parser.parseArguments(*arguments, nullptr), 0);
    EXPECT_EQ(rest(), Texts());
    EXPECT_EQ(parser.checkActions(*arguments, nullptr, message), 0);
}

TEST_F(ParserOperations, ArgumentsAreParsedWithoutAProgramName)
{
    give({L"--name=a", L"--", L"--name=b", L"x"});
    EXPECT_EQ(parser.parseArguments(*arguments, &result), 0);
    EXPECT_EQ(rest(), Texts());
    EXPECT_EQ(values(L"name"), (Texts{L"a"}));
    const wchar_t* unparsed = nullptr;
    EXPECT_EQ(result.getFirstUnparsed(&unparsed), 0);
    EXPECT_EQ(std::wstring(unparsed), L"--name=b");
    EXPECT_EQ(result.getNextUnparsed(&unparsed), 0);
    EXPECT_EQ(std::wstring(unparsed), L"x");
    EXPECT_EQ(result.getNextUnparsed(&unparsed), 1);
}

TEST_F(ParserOperations, FailedArgumentsSetTheMessageOfTheParser)
{
    give({L"--name"});
    EXPECT_EQ(parser.parseArguments(*arguments, &result), 2);
    EXPECT_EQ(parserMessage(), L"Option 'name' requires a value in argument: '--name'");
}

TEST_F(ParserOperations, ActionCheckLooksAtTheResultOnly)
{
    parser.addSwitch(L"pack", L"", value_type_boolean, L"");
    EXPECT_EQ(parseVector({L"--name=a"}), 0);
    give({L"--pack"});
    EXPECT_EQ(parser.checkActions(*arguments, &result, message), 2);
    EXPECT_EQ(message, L"No action defined.");
    EXPECT_EQ(parserMessage(), L"");
    EXPECT_EQ(rest(), (Texts{L"--pack"}));
    EXPECT_EQ(parseVector({L"--pack"}), 0);
    message = L"as before";
    EXPECT_EQ(parser.checkActions(*arguments, &result, message), 0);
    EXPECT_EQ(message, L"as before");
}

// A handler that throws from every event.
template <class Exception>
class Thrower final : public EventHandler
{
public:
    bool onOptionParsed(const wchar_t* /*name*/) override { throw Exception("thrown"); }
};

struct OtherException
{
    explicit OtherException(const char* /*text*/) {}
};

TEST_F(ParserOperations, StandardExceptionPassesThroughAndAnyOtherIsACode)
{
    Thrower<std::runtime_error> standard;
    parser.addEventHandler(&standard);
    give({L"--name=a"});
    EXPECT_THROW(parser.parseArguments(*arguments, &result), std::runtime_error);
    EXPECT_EQ(parserMessage(), L"");
    EXPECT_EQ(rest(), (Texts{L"--name=a"}));
    parser.removeEventHandler(&standard);

    Thrower<OtherException> other;
    parser.addEventHandler(&other);
    EXPECT_EQ(parser.parseArguments(*arguments, &result), 4);
    EXPECT_EQ(parserMessage(), L"Unidentified problem detected.");
    EXPECT_EQ(rest(), (Texts{L"--name=a"}));
    EXPECT_THROW(parseVector({L"--name=a"}), OtherException);
}

// Records the virtual calls that it receives.
class WatchedParser final : public BasicParser
{
public:
    WatchedParser() : BasicParser(0) {}

    const Registration& addOption(const wchar_t* names, const wchar_t* description,
                                  std::int32_t valueType, const wchar_t* groupText) override
    {
        calls.push_back(std::wstring(L"addOption ") + names + L" " + description + L" " +
                        std::to_wstring(valueType) + L" " + groupText);
        return refuses ? refused : BasicParser::addOption(names, description, valueType, groupText);
    }
    // The recorded arguments are removed from the queue, so a copy is passed on.
    result_t parseArguments(ArgumentQueue& arguments, IParseResult* result) override
    {
        const Texts taken = unit::takeAll(arguments);
        std::wstring call = L"parseArguments";
        for (const std::wstring& argument : taken)
        {
            call += L" " + argument;
        }
        calls.push_back(call);
        unit::GivenArguments given(taken);
        ArgumentQueue again(given);
        return BasicParser::parseArguments(again, result);
    }
    result_t parseVector(std::wstring_view endMarker, ArgumentQueue& arguments,
                         IParseResult* result, std::wstring& message) override
    {
        const Texts taken = unit::takeAll(arguments);
        calls.push_back(L"parseVector " + std::wstring(endMarker) + L" " +
                        std::to_wstring(taken.size()));
        unit::GivenArguments given(taken);
        ArgumentQueue again(given);
        return BasicParser::parseVector(endMarker, again, result, message);
    }
    result_t checkActions(const ArgumentQueue& arguments, IParseResult* result,
                          std::wstring& message) override
    {
        calls.push_back(L"checkActions");
        return BasicParser::checkActions(arguments, result, message);
    }

    Texts calls;
    bool refuses = false;
    Registration refused = {nullptr, 1};
};

TEST(DerivedParser, DeclaresTheOptionThatEnablesOptionFiles)
{
    WatchedParser parser;
    EXPECT_TRUE(parser.enableOptionFiles(L"reads options", L"files:Files"));
    EXPECT_EQ(parser.calls, (Texts{L"addOption option-file reads options 13 files:Files"}));
    EXPECT_TRUE(parser.hasOption(L"option-file", false, L"files"));
}

TEST(DerivedParser, MayRefuseThatOption)
{
    WatchedParser parser;
    parser.refuses = true;
    EXPECT_FALSE(parser.enableOptionFiles(L"", L""));
    EXPECT_FALSE(parser.hasOption(L"option-file", false, nullptr));
}

TEST(DerivedParser, ReceivesTheStepsOfAParse)
{
    WatchedParser parser;
    ParseResult result;
    const wchar_t* const arguments[] = {L"program", L"a", L"b"};
    EXPECT_EQ(parser.parse(3, arguments, &result), 0);
    EXPECT_EQ(parser.calls, (Texts{L"parseArguments a b", L"parseVector -- 2", L"checkActions"}));
    parser.calls.clear();
    EXPECT_EQ(parser.parseCommandLine(L"c d\ne", &result), 0);
    EXPECT_EQ(parser.calls, (Texts{L"parseArguments c d e", L"parseVector -- 2", L"checkActions"}));
}

TEST(DerivedParser, ReceivesEveryOptionFileAsAVector)
{
    const toolbox::TemporaryFolder folder;
    const std::wstring argument = L"--option-file=" + folder.write(L"file", "a\nb\nc\n");
    WatchedParser parser;
    parser.enableOptionFiles(L"", L"");
    parser.calls.clear();
    ParseResult result;
    const wchar_t* const arguments[] = {L"program", argument.c_str()};
    EXPECT_EQ(parser.parse(2, arguments, &result), 0);
    EXPECT_EQ(parser.calls, (Texts{L"parseArguments " + argument, L"parseVector -- 1",
                                   L"parseVector -- 3", L"checkActions"}));
}

TEST(DerivedParser, IsDestroyedByRelease)
{
    // Not deleted here: a leak checker reports it if release() does not destroy it.
    auto parser = std::make_unique<WatchedParser>();
    parser->addOption(L"name", L"", 13, L"");
    parser.release()->release();
}

} // namespace
