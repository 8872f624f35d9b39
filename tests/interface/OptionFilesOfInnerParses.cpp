// Option files that a parse inside an event names are read by that parse, and not again by the one
// that it interrupts.
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

class OptionFilesOfInnerParses : public testing::Test
{
protected:
    OptionFilesOfInnerParses()
    {
        host.addOption(L"name");
        host.addOption(L"run");
        host.parser().enableOptionFiles(L"", L"");
        host.parser().addEventHandler(&handler);
        handler.answerOption = [this](const wchar_t* name)
        {
            if (name == std::wstring(L"run"))
            {
                ++runs;
                inner(runs);
            }
            return true;
        };
    }

    // Gives the argument that names a new file with one value of "name", or with the lines given.
    std::wstring file(const std::string& value)
    {
        return fileWith(value, "--name=" + value + "\n");
    }
    std::wstring fileWith(const std::string& name, const std::string& lines)
    {
        return L"--option-file=" + folder.write(std::wstring(name.begin(), name.end()), lines);
    }
    result_t parse(const std::vector<std::wstring>& arguments)
    {
        std::vector<const wchar_t*> pointers;
        for (const std::wstring& argument : arguments)
        {
            pointers.push_back(argument.c_str());
        }
        return toolbox::parse(host.parser(), pointers, &host.result());
    }

    TemporaryFolder folder;
    Events events;
    RecordingHandler handler{events};
    Host host{flag_unknown_is_error};
    int runs = 0;
    std::function<void(int run)> inner; // called for every occurrence of "run"
};

} // namespace

TEST_F(OptionFilesOfInnerParses, AreReadOnce)
{
    inner = [this](int)
    {
        EXPECT_EQ(parse({file("inner")}), result_success);
    };
    EXPECT_EQ(parse({L"--run=1", L"--name=line"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"inner", L"line"}));
}

TEST_F(OptionFilesOfInnerParses, StandBetweenThoseOfTheOuterParse)
{
    inner = [this](int run)
    {
        const std::string number = std::to_string(run);
        EXPECT_EQ(parse({file("inner" + number), file("more" + number)}), result_success);
    };
    EXPECT_EQ(
        parse({L"--run=1", file("a"), L"--run=2", L"--run=3", file("b"), file("c"), L"--run=4"}),
        result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"inner1", L"more1", L"inner2", L"more2", L"inner3",
                                          L"more3", L"inner4", L"more4", L"a", L"b", L"c"}));
}

TEST_F(OptionFilesOfInnerParses, MayBeNamedByBothParses)
{
    const std::wstring both = file("both");
    inner = [&](int)
    {
        EXPECT_EQ(parse({both}), result_success);
    };
    EXPECT_EQ(parse({both, L"--run=1"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"both", L"both"}));
}

TEST_F(OptionFilesOfInnerParses, ThatCannotBeReadFailTheInnerParseOnly)
{
    inner = [this](int)
    {
        EXPECT_EQ(parse({L"--option-file=" + folder.name(L"missing")}),
                  result_unreadable_option_file);
    };
    EXPECT_EQ(parse({L"--run=1", file("outer")}), result_success);
    EXPECT_EQ(host.texts(L"name"), Texts{L"outer"});
}

TEST_F(OptionFilesOfInnerParses, OfAnInnerParseThatFailsAreNotReadAtAll)
{
    inner = [this](int)
    {
        EXPECT_EQ(parse({file("inner"), L"unknown"}), result_invalid_arguments);
    };
    EXPECT_EQ(parse({L"--run=1", file("outer")}), result_success);
    EXPECT_EQ(host.texts(L"name"), Texts{L"outer"});
}

TEST_F(OptionFilesOfInnerParses, MayBeReadWhileAFileOfTheOuterParseIs)
{
    const std::wstring nested = file("nested");
    const std::string outer = "--name=before\n--run=1\n--name=after\n";
    inner = [this](int)
    {
        EXPECT_EQ(parse({file("inner")}), result_success);
    };
    EXPECT_EQ(parse({fileWith("outer", outer), nested}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"before", L"inner", L"after", L"nested"}));
}

TEST_F(OptionFilesOfInnerParses, OfAParseInsideAnInnerOneAreReadOnce)
{
    inner = [this](int run)
    {
        if (run == 1)
        {
            EXPECT_EQ(parse({file("a"), L"--run=2", file("b")}), result_success);
        }
        else if (run == 2)
        {
            EXPECT_EQ(parse({file("deep")}), result_success);
        }
    };
    EXPECT_EQ(parse({L"--run=1", file("outer"), L"--run=3"}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"deep", L"a", L"b", L"outer"}));
}

TEST_F(OptionFilesOfInnerParses, OfAnotherParserAreReadOnce)
{
    Host other;
    other.addOption(L"name");
    other.parser().enableOptionFiles(L"", L"");
    inner = [&](int)
    {
        const std::wstring argument = file("inner");
        EXPECT_EQ(toolbox::parse(other.parser(), {argument.c_str()}, &host.result()),
                  result_success);
    };
    EXPECT_EQ(parse({L"--run=1", file("outer")}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"inner", L"outer"}));
}

TEST_F(OptionFilesOfInnerParses, LeaveTheResultToLaterParses)
{
    inner = [this](int run)
    {
        EXPECT_EQ(parse({file("inner" + std::to_string(run))}), result_success);
        if (run == 1)
        {
            throw run;
        }
    };
    EXPECT_EQ(parse({file("dropped"), L"--run=1"}), result_unknown_exception);
    EXPECT_EQ(parse({L"--run=2", file("outer")}), result_success);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"inner1", L"inner2", L"outer"}));
}
