// A global locale of the host does not change how arguments and option files are parsed.
#include <locale>
#include <string>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

// Writes 1234567.5 as "1.234.567,5".
template <class Character>
class CommaDecimals : public std::numpunct<Character>
{
protected:
    Character do_decimal_point() const override { return static_cast<Character>(','); }
    Character do_thousands_sep() const override { return static_cast<Character>('.'); }
    std::string do_grouping() const override { return "\3"; }
};

class GlobalLocale
{
public:
    explicit GlobalLocale(const std::locale& locale) : m_before(std::locale::global(locale)) {}
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;
    ~GlobalLocale() { std::locale::global(m_before); }

private:
    std::locale m_before;
};

std::locale commaDecimals()
{
    const std::locale wide(std::locale::classic(), new CommaDecimals<wchar_t>);
    return std::locale(wide, new CommaDecimals<char>);
}

// Returns whether streams write numbers with commas, so that the locale could affect parsing.
bool writesCommas()
{
    std::wostringstream stream;
    stream << 1234.5;
    return stream.str() == L"1.234,5";
}

// Returns everything that a host can observe of parses with numbers and an option file.
std::wstring parseNumbers()
{
    const TemporaryFolder folder;
    const std::wstring argument = L"--option-file=" + folder.write(L"file", "--list=3.5\n\xC2\xA0"
                                                                            "--odd\n--integer=1.5");
    Host host;
    host.addOption(L"integer", value_type_integer64)
        .setDefaultValue(vexkit2::variant_t(vexkit2::s64_t{1234567}));
    host.addOption(L"ratio", value_type_double).addAllowedValue(vexkit2::variant_t(1234567.5));
    host.addOption(L"list", value_type_double);
    host.parser().enableOptionFiles(L"", L"");
    std::wstring seen = host.parser().showFullHelp(false);
    for (const wchar_t* const name : {L"integer", L"ratio", L"list"})
    {
        seen += std::wstring(name) + L"\n";
        for (const std::wstring& text : host.texts(name))
        {
            seen += text + L"\n";
        }
    }
    const bool failed = host.parse({L"--ratio=1234567.5", L"--list=1.5,2.5", L"--list=1,5",
                                    L"--list=1.234.567", argument.c_str()}) != result_success;
    EXPECT_TRUE(failed);
    seen += host.message() + L"\n";
    host.renewResult();
    EXPECT_EQ(host.parse({L"--ratio=1234567.5", L"--list=1.5,2.5", argument.c_str()}),
              result_invalid_arguments);
    seen += host.message() + L"\n";
    for (const std::wstring& text : host.texts(L"list"))
    {
        seen += text + L"\n";
    }
    return seen;
}

} // namespace

TEST(HostLocale, DoesNotChangeHowNumbersAndOptionFilesAreRead)
{
    const std::wstring before = parseNumbers();
    const GlobalLocale changed(commaDecimals());
    ASSERT_TRUE(writesCommas());
    EXPECT_EQ(parseNumbers(), before);
}

TEST(HostLocale, ChangedDuringAParseHasNoEffect)
{
    Events events;
    RecordingHandler handler(events);
    Host host;
    host.addOption(L"ratio", value_type_double);
    host.parser().addEventHandler(&handler);
    const std::locale before;
    handler.answerValue = [&](const wchar_t*, const ValueRecord&)
    {
        std::locale::global(commaDecimals());
        return true;
    };
    EXPECT_EQ(host.parse({L"--ratio=1.5,2.5", L"--ratio 3.5"}), result_success);
    std::locale::global(before);
    EXPECT_EQ(host.texts(L"ratio"), (std::vector<std::wstring>{L"1.5", L"2.5", L"3.5"}));
}
