// Which option files are read, when, and in which order.
#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

class OptionFiles : public testing::Test
{
protected:
    OptionFiles()
    {
        host.addOption(L"name");
        host.parser().enableOptionFiles(L"", L"");
        host.parser().addEventHandler(&handler);
    }

    // Parses the arguments and the option that names the file.
    result_t parseFile(const std::wstring& file)
    {
        const std::wstring argument = L"--option-file=" + file;
        return host.parse({argument.c_str()});
    }

    TemporaryFolder folder;
    Events events;
    RecordingHandler handler{events};
    Host host{2};
};

} // namespace

TEST_F(OptionFiles, AreReadAfterTheCommandLine)
{
    const std::wstring argument = L"--option-file=" + folder.write(L"a.txt", "--name=file\n");
    EXPECT_EQ(host.parse({argument.c_str(), L"--name=line"}), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"line", L"file"}));
}

TEST_F(OptionFiles, TheirValuesAreNumberedOnward)
{
    const std::wstring argument = L"--option-file=" + folder.write(L"a.txt", "--name=b\n--name=c");
    const std::int32_t base = nextPosition();
    EXPECT_EQ(host.parse({L"--name=a", argument.c_str()}), 0);
    EXPECT_EQ(host.values(L"name"), (std::vector<ReadValue>{{L"a", value_type_string, base},
                                                            {L"b", value_type_string, base + 2},
                                                            {L"c", value_type_string, base + 3}}));
}

TEST_F(OptionFiles, AreNamedInTheResult)
{
    const std::wstring file = folder.write(L"a.txt", "");
    EXPECT_EQ(parseFile(file), 0);
    EXPECT_EQ(host.texts(L"option-file"), (Texts{file}));
}

TEST_F(OptionFiles, MayBeNamedByAnAbbreviation)
{
    const std::wstring argument = L"--opt=" + folder.write(L"a.txt", "--name=a");
    EXPECT_EQ(host.parse({argument.c_str()}), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
}

TEST_F(OptionFiles, MayBeNamedInACommandLineText)
{
    const std::wstring text = L"--option-file=" + folder.write(L"a.txt", "--name=a") + L"\n";
    EXPECT_EQ(host.parseLines(text.c_str()), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
}

TEST_F(OptionFiles, NamedInAListAreReadInItsOrder)
{
    const std::wstring second = folder.write(L"1.txt", "--name=1");
    const std::wstring first = folder.write(L"2.txt", "--name=2");
    EXPECT_EQ(parseFile(first + L"," + second), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"2", L"1"}));
}

TEST_F(OptionFiles, NamedSeveralTimesAreReadInTheOrderOfTheArguments)
{
    const std::wstring second = L"--option-file=" + folder.write(L"1.txt", "--name=1");
    const std::wstring first = L"--option-file=" + folder.write(L"2.txt", "--name=2");
    EXPECT_EQ(host.parse({first.c_str(), L"--name=0", second.c_str()}), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"0", L"2", L"1"}));
}

TEST_F(OptionFiles, NamedBehindTheMarkerAreNotRead)
{
    const std::wstring argument = L"--option-file=" + folder.write(L"a.txt", "--name=a");
    EXPECT_EQ(host.parse({L"--", argument.c_str()}), 0);
    EXPECT_FALSE(host.isPresent(L"name"));
    EXPECT_EQ(host.unparsed(), (Texts{argument}));
}

TEST_F(OptionFiles, NestedOnesAreReadAfterTheFileThatNamesThem)
{
    const std::wstring inner = folder.write(L"inner.txt", "--name=inner");
    const std::wstring outer = folder.write(
        L"outer.txt", "--name=before\n--option-file=" + toUtf8(inner) + "\n--name=behind\n");
    EXPECT_EQ(parseFile(outer), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"before", L"behind", L"inner"}));
    EXPECT_EQ(host.texts(L"option-file"), (Texts{outer, inner}));
}

TEST_F(OptionFiles, NestedOnesAreReadAfterTheFilesNamedBefore)
{
    const std::wstring inner = folder.write(L"inner.txt", "--name=inner");
    const std::wstring first =
        folder.write(L"first.txt", "--option-file=" + toUtf8(inner) + "\n--name=first");
    const std::wstring second = folder.write(L"second.txt", "--name=second");
    EXPECT_EQ(parseFile(first + L"," + second), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"first", L"second", L"inner"}));
}

TEST_F(OptionFiles, AChainOfManyIsReadToItsEnd)
{
    constexpr int length = 100;
    for (int index = 0; index < length; ++index)
    {
        const std::wstring next = folder.name(std::to_wstring(index + 1));
        folder.write(std::to_wstring(index),
                     "--name=" + std::to_string(index) + "\n--option-file=" + toUtf8(next));
    }
    folder.write(std::to_wstring(length), "--name=end");
    EXPECT_EQ(parseFile(folder.name(L"0")), 0);
    const Texts names = host.texts(L"name");
    ASSERT_EQ(names.size(), 101U);
    EXPECT_EQ(names.front(), L"0");
    EXPECT_EQ(names.back(), L"end");
}

TEST_F(OptionFiles, AFileThatNamesItselfIsReadOnce)
{
    const std::wstring file = folder.name(L"a.txt");
    folder.write(L"a.txt", "--name=a\n--option-file=" + toUtf8(file));
    EXPECT_EQ(parseFile(file), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
}

TEST_F(OptionFiles, FilesThatNameEachOtherAreReadOnceEach)
{
    const std::wstring first = folder.name(L"1.txt");
    const std::wstring second = folder.name(L"2.txt");
    folder.write(L"1.txt", "--name=1\n--option-file=" + toUtf8(second));
    folder.write(L"2.txt", "--name=2\n--option-file=" + toUtf8(first));
    EXPECT_EQ(parseFile(first), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"1", L"2"}));
}

TEST_F(OptionFiles, OneFileUnderTwoSpellingsIsReadOnce)
{
    folder.write(L"a.txt", "--name=a");
    std::filesystem::create_directory(folder.path() / "inner");
    const CurrentFolder current(folder.path());
    const std::wstring spellings[] = {L"a.txt", L"./a.txt", L"inner/../a.txt",
                                      folder.name(L"a.txt")};
    for (const std::wstring& spelling : spellings)
    {
        SCOPED_TRACE(toUtf8(spelling));
        host.renewResult();
        EXPECT_EQ(parseFile(L"a.txt," + spelling), 0);
        EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
    }
}

TEST_F(OptionFiles, AreReadAgainByTheNextParse)
{
    const std::wstring file = folder.write(L"a.txt", "--name=a");
    EXPECT_EQ(parseFile(file), 0);
    host.renewResult();
    EXPECT_EQ(parseFile(file), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
}

TEST_F(OptionFiles, OfAnEarlierParseIntoTheSameResultAreNotReadAgain)
{
    EXPECT_EQ(parseFile(folder.write(L"a.txt", "--name=a")), 0);
    EXPECT_EQ(host.parse({L"--name=b"}), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b"}));
    std::filesystem::remove(folder.path() / "a.txt");
    EXPECT_EQ(host.parse({L"--name=c"}), 0);
    EXPECT_EQ(parseFile(folder.write(L"b.txt", "--name=d")), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a", L"b", L"c", L"d"}));
}

TEST_F(OptionFiles, ARelativeNameStartsAtTheCurrentFolder)
{
    std::filesystem::create_directory(folder.path() / "inner");
    folder.write(L"b.txt", "--name=current");
    folder.write(L"inner/b.txt", "--name=beside");
    folder.write(L"inner/a.txt", "--option-file=b.txt");
    const CurrentFolder current(folder.path());
    EXPECT_EQ(parseFile(L"inner/a.txt"), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"current"}));
}

TEST_F(OptionFiles, MayHaveAnyUnicodeName)
{
    for (const wchar_t* name : {L"\u00e9t\u00e9.txt", L"\u4e2d\u6587.txt", L"\U0001F600.txt",
                                L"with blank.txt", L"e\u0301.txt"})
    {
        SCOPED_TRACE(toUtf8(name));
        host.renewResult();
        const std::wstring file = folder.write(name, "--name=a");
        EXPECT_EQ(parseFile(file), 0);
        EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
        EXPECT_EQ(host.texts(L"option-file"), (Texts{file}));
    }
}

TEST_F(OptionFiles, MayNameAFileWithAUnicodeName)
{
    const std::wstring inner = folder.write(L"\U0001F600.txt", "--name=a");
    const std::wstring outer = folder.write(L"outer.txt", "--option-file=" + toUtf8(inner));
    EXPECT_EQ(parseFile(outer), 0);
    EXPECT_EQ(host.texts(L"name"), (Texts{L"a"}));
}

TEST_F(OptionFiles, AreNotReadWhenTheirNameIsRefused)
{
    handler.answerValue = [](const wchar_t* name, const ValueRecord&)
    {
        return std::wstring(name) != L"option-file";
    };
    const std::wstring file = folder.write(L"a.txt", "--name=a");
    EXPECT_EQ(parseFile(file), 1);
    EXPECT_EQ(host.message(), L"Value '" + file +
                                  L"' is not valid for option 'option-file' in argument "
                                  L"'--option-file=" +
                                  file + L"'");
    EXPECT_FALSE(host.isPresent(L"name"));
}

TEST_F(OptionFiles, SendTheirEventsAsTheCommandLineDoes)
{
    handler.answerUnknown = [](const wchar_t*)
    {
        return false;
    };
    const std::wstring file = folder.write(L"a.txt", "x\n--name=a\n");
    EXPECT_EQ(parseFile(file), 0);
    EXPECT_EQ(events, (Events{L"option option-file", L"value option-file '" + file + L"'",
                              L"unknown x", L"option name", L"value name 'a'"}));
}

TEST_F(OptionFiles, NeedAName)
{
    EXPECT_EQ(host.parse({L"--option-file"}), 2);
    EXPECT_EQ(host.message(),
              L"Option 'option-file' requires a value in argument: '--option-file'");
}
