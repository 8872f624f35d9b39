// The host's locale does not change how values are read and written.
#include <clocale>
#include <locale>
#include <string>

#include "Conversion.h"

namespace
{

using namespace kexa_3_3;
using namespace toolbox;

// Writes 1234567.5 as "1.234.567,5".
template <class Character>
class CommaDecimals : public std::numpunct<Character>
{
protected:
    Character do_decimal_point() const override { return static_cast<Character>(','); }
    Character do_thousands_sep() const override { return static_cast<Character>('.'); }
    std::string do_grouping() const override { return "\3"; }
};

class ConversionAndLocale : public testing::Test
{
protected:
    void SetUp() override
    {
        std::locale locale(std::locale::classic(), new CommaDecimals<wchar_t>);
        locale = std::locale(locale, new CommaDecimals<char>);
        m_before = std::locale::global(locale);
    }
    void TearDown() override { std::locale::global(m_before); }

private:
    std::locale m_before;
};

TEST_F(ConversionAndLocale, DecimalPointStaysAPoint)
{
    expectConversions<double>(value_type_double, L"double",
                              {{L"2.5", 2.5},
                               {L"1234.5", 1234.5},
                               {L"1.234", 1.234},
                               {L"2,5", std::nullopt},
                               {L"1.234,5", std::nullopt}});
}

TEST_F(ConversionAndLocale, GroupedIntegersStayRefused)
{
    expectConversions<vexkit2::s32_t>(value_type_integer, L"integer",
                                      {{L"1234567", 1234567}, {L"1.234.567", std::nullopt}});
    expectConversions<vexkit2::u32_t>(value_type_unsigned, L"unsigned integer",
                                      {{L"1234567", 1234567U}, {L"1.234.567", std::nullopt}});
    expectConversions<vexkit2::s64_t>(value_type_integer64, L"64 bit integer",
                                      {{L"1234567", 1234567}, {L"1.234.567", std::nullopt}});
    expectConversions<vexkit2::u64_t>(
        value_type_unsigned64, L"unsigned 64 bit or hex",
        {{L"1234567", 1234567U}, {L"0xABCDEF", 0xABCDEFU}, {L"1.234.567", std::nullopt}});
}

TEST_F(ConversionAndLocale, TextOfAValueHasADecimalPointAndNoThousandsSeparators)
{
    Host host;
    host.parser()
        .addOption(L"size", L"", value_type_integer, L"")
        .option->setDefaultValue(vexkit2::variant_t(vexkit2::s32_t{1234567}));
    host.parser()
        .addOption(L"ratio", L"", value_type_double, L"")
        .option->setDefaultValue(vexkit2::variant_t(1234567.5));
    EXPECT_STREQ(host.parser().showFullHelp(false), L"-ratio=<double> (1234567.5)\n"
                                                    L"-size=<integer> (1234567)\n\n");
}

TEST_F(ConversionAndLocale, CLocaleIsIgnoredToo)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    // Where none of these is installed, only the C++ locale has a decimal comma.
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German_Germany.1252"})
    {
        if (std::setlocale(LC_NUMERIC, name) != nullptr)
        {
            break;
        }
    }
    expectConversions<double>(value_type_double, L"double",
                              {{L"2.5", 2.5}, {L"2,5", std::nullopt}});
    std::setlocale(LC_NUMERIC, before.c_str());
}

} // namespace
