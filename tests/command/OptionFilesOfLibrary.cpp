// The command layer reads option files as the library does.
#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "Host.h"

#include "platform/FileReading.h"
#include "text/Encoding.h"
#include "text/OptionFileReading.h"

using namespace kexa::detail;
using namespace kexa_3_3;
using namespace toolbox;

namespace
{

// The arguments that a parse of the library sees, as events: it knows no option but option-file.
class OptionFilesOfLibrary : public testing::Test
{
protected:
    OptionFilesOfLibrary()
    {
        host.parser().enableOptionFiles(L"", L"");
        host.parser().addEventHandler(&handler);
    }

    Events libraryReads(const std::wstring& name)
    {
        events.clear();
        host.renewResult();
        EXPECT_EQ(host.parse({(L"--option-file=" + name).c_str()}), 0);
        std::erase_if(events,
                      [](const std::wstring& event) { return !event.starts_with(L"unknown "); });
        return events;
    }

    // The arguments as the layer reads them; files that a file names come behind it.
    static Events layerReads(const std::wstring& name)
    {
        constexpr std::string_view option = "--option-file=";
        Events found;
        std::set<std::string> read;
        std::vector<std::string> names = {narrow(name)};
        for (std::size_t index = 0; index < names.size(); ++index)
        {
            if (!read.insert(fileIdentity(names[index])).second)
            {
                continue;
            }
            const OptionFile file = readOptionFile(names[index]);
            EXPECT_EQ(file.error, "");
            for (const OptionFileArgument& argument : file.arguments)
            {
                if (argument.text.starts_with(option))
                {
                    names.push_back(argument.text.substr(option.size()));
                }
                else
                {
                    found.push_back(L"unknown " + widen(argument.text));
                }
            }
        }
        return found;
    }

    TemporaryFolder folder;
    Events events;
    RecordingHandler handler{events};
    Host host;
};

} // namespace

TEST_F(OptionFilesOfLibrary, ShortContentsGiveTheSameArguments)
{
    const std::vector<std::string> pieces = {
        "a",  " ",  "\n", "\r",           "\r\n",     ";",       "#",
        "\t", "\v", "\f", "\xEF\xBB\xBF", "\xC3\xB6", "\xC2\x85"};
    constexpr std::size_t length = 2;
    std::size_t count = 1;
    for (std::size_t place = 0; place < length; ++place)
    {
        count *= pieces.size() + 1;
    }
    for (std::size_t number = 0; number < count; ++number)
    {
        std::string content;
        for (std::size_t rest = number, place = 0; place < length; ++place)
        {
            const std::size_t piece = rest % (pieces.size() + 1);
            content += piece == pieces.size() ? "" : pieces[piece];
            rest /= pieces.size() + 1;
        }
        const std::wstring name = folder.write(L"file", content);
        ASSERT_EQ(layerReads(name), libraryReads(name)) << content;
    }
}

TEST_F(OptionFilesOfLibrary, RandomContentsGiveTheSameArguments)
{
    const std::vector<std::string> pieces = {
        "--a=b",    "c d",          "-e",     " ",        "\n",      "\n",
        "\r\n",     "\xEF\xBB\xBF", "; text", "# text",   "\r",      "\t",
        "\xC3\xB6", "\v",           "\f",     "\xC2\x85", "\"x y\"", "\xF0\x9F\x98\x80"};
    std::uint32_t state = 1;
    for (int round = 0; round < 300; ++round)
    {
        std::string content;
        for (int count = 0; count < 20; ++count)
        {
            state = state * 1664525U + 1013904223U;
            content += pieces[(state >> 16) % pieces.size()];
        }
        const std::wstring name = folder.write(L"file", content);
        ASSERT_EQ(layerReads(name), libraryReads(name)) << content;
    }
}

TEST_F(OptionFilesOfLibrary, NestedFilesGiveTheSameArguments)
{
    std::filesystem::create_directory(folder.path() / "inner");
    folder.write(L"a", "1\n--option-file=b\n2\n--option-file=inner/../a\n--option-file=inner/c");
    folder.write(L"b", "3\n--option-file=./inner/c\n--option-file=a\n");
    folder.write(L"inner/c", "4\n--option-file=b\n--option-file=\xC3\xB6\n5\n");
    folder.write(L"\u00F6", "6");
    const CurrentFolder current(folder.path());
    const Events expected = {L"unknown 1", L"unknown 2", L"unknown 3",
                             L"unknown 4", L"unknown 5", L"unknown 6"};
    EXPECT_EQ(libraryReads(L"a"), expected);
    EXPECT_EQ(layerReads(L"a"), expected);
}

TEST_F(OptionFilesOfLibrary, AZeroCharacterIsPartOfAnArgument)
{
    Host zeros;
    zeros.addPositional(L"argument").setSeparator(0);
    zeros.parser().enableOptionFiles(L"", L"");
    const std::wstring name = folder.write(L"file", std::string("a\0b\nc\0\n", 7));
    ASSERT_EQ(zeros.parse({(L"--option-file=" + name).c_str()}), 0);
    std::vector<std::wstring> library;
    Value value;
    for (result_t code = zeros.result().getFirstValue(&value, L"argument", 0, no_position);
         code == 0; code = zeros.result().getNextValue(&value, L"argument"))
    {
        const std::size_t units = value.value.byte_length() / sizeof(wchar_t);
        library.emplace_back(value.as<const wchar_t*>(), units - 1);
    }
    std::vector<std::wstring> layer;
    for (const OptionFileArgument& argument : readOptionFile(narrow(name)).arguments)
    {
        layer.push_back(widen(argument.text));
    }
    EXPECT_EQ(layer, library);
    EXPECT_EQ(layer.size(), 2U);
}
