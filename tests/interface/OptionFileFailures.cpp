// Errors of option files, and the operation that enables them.
#include <stdexcept>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

class OptionFileFailures : public testing::Test
{
protected:
    OptionFileFailures()
    {
        host.addOption(L"name");
        host.parser().enableOptionFiles(L"", L"");
    }

    result_t parseFile(const std::wstring& file)
    {
        const std::wstring argument = L"--option-file=" + file;
        return host.parse({L"--name=line", argument.c_str()});
    }

    static std::wstring messageFor(const std::wstring& file, const wchar_t* reason)
    {
        return L"Error reading option file '" + file + L"': " + reason;
    }

    TemporaryFolder folder;
    Host host{2};
};

} // namespace

TEST_F(OptionFileFailures, AMissingFileEndsTheParseWithSix)
{
    const std::wstring file = folder.name(L"missing.txt");
    EXPECT_EQ(parseFile(file), 6);
    EXPECT_EQ(host.message(), messageFor(file, L"no such file"));
    EXPECT_EQ(host.texts(L"name"), (Texts{L"line"}));
}

TEST_F(OptionFileFailures, TheMessageKeepsTheNameAsGiven)
{
    const CurrentFolder current(folder.path());
    for (const wchar_t* name : {L"missing", L"./missing", L"\U0001F600.txt", L"no/such/folder"})
    {
        SCOPED_TRACE(toUtf8(name));
        EXPECT_EQ(parseFile(name), 6);
        EXPECT_EQ(host.message(), messageFor(name, L"no such file"));
    }
}

TEST_F(OptionFileFailures, AFolderIsNoOptionFile)
{
    const std::wstring name = toWide(folder.path());
    EXPECT_EQ(parseFile(name), 6);
    EXPECT_EQ(host.message(), messageFor(name, L"it is a folder"));
}

TEST_F(OptionFileFailures, AMissingFileEndsTheWalkOverTheOthers)
{
    const std::wstring first = folder.write(L"1", "--name=1");
    const std::wstring missing = folder.name(L"missing");
    const std::wstring third = folder.write(L"3", "--name=3");
    EXPECT_EQ(parseFile(first + L"," + missing + L"," + third), 6);
    EXPECT_EQ(host.message(), messageFor(missing, L"no such file"));
    EXPECT_EQ(host.texts(L"name"), (Texts{L"line", L"1"}));
}

TEST_F(OptionFileFailures, AMissingNestedFileIsReportedUnderItsOwnName)
{
    const std::wstring missing = folder.name(L"missing");
    const std::wstring outer =
        folder.write(L"outer", "--option-file=" + toUtf8(missing) + "\n--name=outer");
    EXPECT_EQ(parseFile(outer), 6);
    EXPECT_EQ(host.message(), messageFor(missing, L"no such file"));
    EXPECT_EQ(host.texts(L"name"), (Texts{L"line", L"outer"}));
}

TEST_F(OptionFileFailures, AMissingFileComesBeforeTheActionCheck)
{
    host.addSwitch(L"list");
    const std::wstring missing = folder.name(L"missing");
    EXPECT_EQ(parseFile(missing), 6);
    EXPECT_EQ(host.message(), messageFor(missing, L"no such file"));
}

TEST_F(OptionFileFailures, AnErrorInAFileEndsTheParseAsOnTheCommandLine)
{
    const std::wstring first = folder.write(L"1", "--name=1\nx\n--name=2\n");
    const std::wstring second = folder.write(L"2", "--name=3");
    EXPECT_EQ(parseFile(first + L"," + second), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
    EXPECT_EQ(host.texts(L"name"), (Texts{L"line", L"1"}));
}

TEST_F(OptionFileFailures, AnErrorOnTheCommandLineComesBeforeTheFiles)
{
    const std::wstring argument = L"--option-file=" + folder.name(L"missing");
    EXPECT_EQ(host.parse({argument.c_str(), L"x"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: x");
}

TEST_F(OptionFileFailures, ALeftOverErrorComesBeforeTheFiles)
{
    host.addOption(L"number", value_type_integer).setMarked();
    const std::wstring argument = L"--option-file=" + folder.name(L"missing");
    EXPECT_EQ(host.parse({argument.c_str(), L"--", L"x"}), 2);
    EXPECT_EQ(host.message(), L"Value validation problem in argument 'x': Option 'number' can not "
                              L"parse 'x' value, requires a type 'integer' here.");
}

TEST_F(OptionFileFailures, AThrowingHandlerInAFileIsCaught)
{
    Events events;
    RecordingHandler handler(events);
    handler.answerUnknown = [](const wchar_t*) -> bool
    {
        throw 42;
    };
    ASSERT_TRUE(host.parser().addEventHandler(&handler));
    EXPECT_EQ(parseFile(folder.write(L"file", "x")), 4);
    EXPECT_EQ(host.message(), L"Unidentified problem detected.");
    handler.answerUnknown = [](const wchar_t*) -> bool
    {
        throw std::runtime_error("x");
    };
    EXPECT_EQ(parseFile(folder.name(L"file")), 3);
}

TEST_F(OptionFileFailures, AfterAMissingFileTheParserParsesAgain)
{
    EXPECT_EQ(parseFile(folder.name(L"file")), 6);
    folder.write(L"file", "--name=file");
    host.renewResult();
    EXPECT_EQ(parseFile(folder.name(L"file")), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"line", L"file"}));
}

TEST(OptionFilesSwitch, IsOffInAFreshParser)
{
    Host host(2);
    EXPECT_EQ(host.parse({L"--option-file=missing"}), 2);
    EXPECT_EQ(host.message(), L"Unknown option: --option-file=missing");
}

TEST(OptionFilesSwitch, WhileOffAHostsOwnOptionOfThatNameIsAnOrdinaryOne)
{
    Host host(2);
    host.addOption(L"option-file");
    EXPECT_EQ(host.parse({L"--option-file=missing"}), 0);
    EXPECT_EQ(host.texts(L"option-file"), (Texts{L"missing"}));
}

TEST(OptionFilesSwitch, EnablingDeclaresTheOption)
{
    Host host;
    EXPECT_TRUE(host.parser().enableOptionFiles(L"reads options", L"files:Files"));
    EXPECT_TRUE(host.parser().hasOption(L"option-file", false, nullptr));
    EXPECT_TRUE(host.parser().hasOption(L"option-file", false, L"files"));
    EXPECT_FALSE(host.parser().hasOption(L"option-file", true, nullptr));
    EXPECT_STREQ(host.parser().showTopicHelp(L"option-file", false),
                 L"files\n"
                 L" Files\n"
                 L"\n"
                 L"-option-file=<string>         reads options\n"
                 L"\n");
}

TEST(OptionFilesSwitch, EnablingTwiceReturnsFalseAndStaysOn)
{
    Host host(2);
    EXPECT_TRUE(host.parser().enableOptionFiles(L"", L""));
    const std::string printed =
        captureOutput([&] { EXPECT_FALSE(host.parser().enableOptionFiles(L"", L"")); });
    EXPECT_EQ(printed, "Tried to register an option with a name, which is alread registered: "
                       "option-file\n");
    EXPECT_EQ(host.parse({L"--option-file=no-such-file"}), 6);
    EXPECT_EQ(host.message(), L"Error reading option file 'no-such-file': no such file");
}

TEST(OptionFilesSwitch, EnabledLaterAHostsOwnOptionOfThatNameNamesFiles)
{
    Host host(2);
    host.addOption(L"option-file");
    captureOutput([&] { EXPECT_FALSE(host.parser().enableOptionFiles(L"", L"")); });
    EXPECT_EQ(host.parse({L"--option-file=no-such-file"}), 6);
}

TEST(OptionFilesSwitch, WithoutAResultNoFileIsNamed)
{
    Host host(2);
    host.parser().enableOptionFiles(L"", L"");
    EXPECT_EQ(parse(host.parser(), {L"--option-file=no-such-file"}, nullptr), 0);
}

TEST(OptionFilesSwitch, FileNamedByADefaultIsNotRead)
{
    Host host(2);
    host.addOption(L"option-file").setDefaultValue(vexkit2::variant_t(L"no-such-file"));
    captureOutput([&] { host.parser().enableOptionFiles(L"", L""); });
    EXPECT_EQ(host.parse({}), 0);
}
