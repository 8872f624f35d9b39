// Very large inputs: the results are correct, and the time is linear in the size.
#include <cstddef>
#include <string>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

constexpr std::size_t million = 1000000;
constexpr std::size_t mebibyte = std::size_t{1} << 20;

// Number of characters in 64 MiB.
constexpr std::size_t long_length = 64 * mebibyte / sizeof(wchar_t);

class LargeInputs : public testing::Test
{
protected:
    LargeInputs() { host.addOption(L"name,n"); }

    // Not EXPECT_EQ, which would print both texts.
    void expectMessage(const std::wstring& before, const std::wstring& longText,
                       const std::wstring& behind)
    {
        EXPECT_TRUE(host.message() == before + longText + behind);
    }

    Host host{flag_unknown_is_error};
};

result_t parseMany(Host& host, const wchar_t* argument, std::size_t count)
{
    std::vector<const wchar_t*> arguments(count + 1, argument);
    return host.parser().parse(static_cast<std::int32_t>(arguments.size()), arguments.data(),
                               &host.result());
}

} // namespace

TEST_F(LargeInputs, AMillionArgumentsAreParsed)
{
    ASSERT_EQ(parseMany(host, L"--na=x", million), result_success);
    Value value;
    std::size_t count = 0;
    std::int32_t last = -1;
    bool rising = true;
    for (result_t code = host.result().getFirstValue(&value, L"n", 0, no_position);
         code == result_success; code = host.result().getNextValue(&value, L"n"))
    {
        ++count;
        rising = rising && value.position > last;
        last = value.position;
    }
    EXPECT_EQ(count, million);
    EXPECT_TRUE(rising);
}

TEST_F(LargeInputs, AMillionUnknownArgumentsAreDropped)
{
    Host lenient;
    EXPECT_EQ(parseMany(lenient, L"-unknown", million), result_success);
    EXPECT_TRUE(lenient.unparsed().empty());
}

TEST_F(LargeInputs, AMillionArgumentsBehindTheMarkerAreKept)
{
    std::vector<const wchar_t*> arguments(million, L"left");
    arguments[0] = L"program";
    arguments[1] = L"--";
    ASSERT_EQ(
        host.parser().parse(static_cast<std::int32_t>(million), arguments.data(), &host.result()),
        result_success);
    EXPECT_EQ(host.unparsed().size(), million - 2);
}

TEST_F(LargeInputs, AMillionPositionalArgumentsAreStored)
{
    for (const int flags : {0, 16})
    {
        SCOPED_TRACE(flags);
        Host positional(flags);
        positional.addPositional(L"file");
        ASSERT_EQ(parseMany(positional, L"input", million), result_success);
        EXPECT_EQ(positional.texts(L"file").size(), million);
    }
}

TEST_F(LargeInputs, AMillionPiecesOfOneArgumentAreStored)
{
    std::wstring argument = L"-n=";
    for (std::size_t piece = 0; piece < million; ++piece)
    {
        argument += L"x,";
    }
    ASSERT_EQ(host.parse({argument.c_str()}), result_success);
    EXPECT_EQ(host.texts(L"name").size(), million);
}

TEST_F(LargeInputs, AMillionLinesAreParsed)
{
    std::wstring lines;
    for (std::size_t line = 0; line < million; ++line)
    {
        lines += L"  -n=x\r\n;\n\n";
    }
    ASSERT_EQ(host.parseLines(lines.c_str()), result_success);
    EXPECT_EQ(host.texts(L"name").size(), million);
}

TEST_F(LargeInputs, AValueOf64MebibytesIsStored)
{
    const std::wstring value(long_length, L'v');
    ASSERT_EQ(host.parse({(L"--name=" + value).c_str()}), result_success);
    const Value stored = getLastValue(&host.result(), L"name", 0, no_position);
    ASSERT_EQ(stored.status, result_success);
    EXPECT_TRUE(stored.as<const wchar_t*>() == value);
}

TEST_F(LargeInputs, AnUnknownArgumentOf64MebibytesIsNamedWhole)
{
    const std::wstring argument(long_length, L'-');
    EXPECT_EQ(host.parse({argument.c_str()}), result_invalid_arguments);
    expectMessage(L"Unknown option: ", argument, L"");
}

TEST_F(LargeInputs, ATypedNameOf64MebibytesMatchesNothing)
{
    const std::wstring argument = L"--" + std::wstring(long_length, L'n') + L"=1";
    EXPECT_EQ(host.parse({argument.c_str()}), result_invalid_arguments);
    expectMessage(L"Unknown option: ", argument, L"");
}

TEST_F(LargeInputs, ANumberOf64MebibytesIsReadOrRefused)
{
    host.addOption(L"integer", value_type_integer64);
    host.addOption(L"hexadecimal", value_type_unsigned64);
    host.addOption(L"double", value_type_double);
    const std::wstring zeros(long_length, L'0');
    const std::wstring nines(long_length, L'9');
    ASSERT_EQ(host.parse({(L"--integer=-" + zeros + L"7").c_str(),
                          (L"--hexadecimal=0x" + zeros + L"1F").c_str(),
                          (L"--double=0." + zeros + L"1").c_str()}),
              result_success);
    EXPECT_EQ(getLastValue(&host.result(), L"integer", 0, no_position).as<vexkit2::s64_t>(), -7);
    EXPECT_EQ(getLastValue(&host.result(), L"hexadecimal", 0, no_position).as<vexkit2::u64_t>(),
              31U);
    EXPECT_EQ(getLastValue(&host.result(), L"double", 0, no_position).as<double>(), 0.0);
    EXPECT_EQ(host.parse({(L"--integer=" + nines).c_str()}), result_invalid_arguments);
    expectMessage(L"Value validation problem in argument '--integer=" + nines +
                      L"': Option 'integer' can not parse '",
                  nines, L"' value, requires a type '64 bit integer' here.");
    EXPECT_EQ(host.parse({(L"--double=" + nines).c_str()}), result_invalid_arguments);
}

TEST_F(LargeInputs, ALineOf64MebibytesInAnOptionFileIsOneArgument)
{
    const TemporaryFolder folder;
    const std::wstring argument =
        L"--option-file=" + folder.write(L"file", "--name=" + std::string(64 * mebibyte, 'v'));
    ASSERT_TRUE(host.parser().enableOptionFiles(L"", L""));
    ASSERT_EQ(host.parse({argument.c_str()}), result_success);
    const Value stored = getLastValue(&host.result(), L"name", 0, no_position);
    EXPECT_TRUE(stored.as<const wchar_t*>() == std::wstring(64 * mebibyte, L'v'));
}

TEST_F(LargeInputs, AnAmbiguousNameAmongManyListsThemAll)
{
    std::wstring candidates;
    for (int number = 10000; number < 20000; ++number)
    {
        const std::wstring name = L"option-" + std::to_wstring(number);
        host.addOption(name.c_str());
        candidates += (number == 10000 ? L"'" : L", '") + name + L"'";
    }
    EXPECT_EQ(host.parse({L"--option"}), result_invalid_arguments);
    expectMessage(L"Ambiguous option 'option' in argument: '--option', could be: ", candidates,
                  L"");
}

TEST(LargeTexts, AreWrappedInLinearTime)
{
    std::wstring text;
    while (text.size() < long_length)
    {
        text += L"some words ";
    }
    const WordWrappedText wrapped(L"lead", text.c_str(), 10, 80);
    EXPECT_GT(std::wstring_view(wrapped.getText()).size(), text.size());
    const std::wstring word(long_length, L'w');
    const WordWrappedText broken(L"", word.c_str(), 0, 3);
    EXPECT_EQ(std::wstring_view(broken.getText()).size(), 3 * word.size());
}

TEST(LargeTexts, AreFormattedAsHelpInLinearTime)
{
    Host host;
    const std::wstring description(long_length, L'd');
    ASSERT_NE(host.parser().addOption(L"name", description.c_str(), value_type_string, L"").option,
              nullptr);
    EXPECT_GT(std::wstring_view(host.parser().showFullHelp(false)).size(), description.size());
}
