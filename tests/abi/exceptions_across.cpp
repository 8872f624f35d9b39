// Exceptions that cross the border between host and library, in both directions. The number of
// uncaught exceptions shows whether both use one C++ runtime: each runtime counts its own.
#include <gtest/gtest.h>

#include <exception>
#include <stdexcept>

#include <kexa/kexa.h>

namespace
{

class ThrowingHandler final : public kexa_3_3::EventHandler
{
public:
    explicit ThrowingHandler(bool standard) : m_standard(standard) {}

    bool onValueParsed(const wchar_t*, const kexa_3_3::ValueRecord*) override
    {
        if (m_standard)
        {
            throw std::runtime_error("refused by exception");
        }
        throw 5;
    }

private:
    bool m_standard;
};

kexa_3_3::result_t parseWith(ThrowingHandler& handler)
{
    kexa_3_3::IParser* parser = nullptr;
    kexa_3_3::IParseResult* result = nullptr;
    EXPECT_EQ(kexa_3_3::createParser(&parser, 0), kexa_3_3::result_success);
    EXPECT_EQ(parser->createParseResult(&result), kexa_3_3::result_success);
    parser->addOption(L"count", L"", kexa_3_3::value_type_integer, L"");
    parser->addEventHandler(&handler);
    const wchar_t* const arguments[] = {L"program", L"-count=3"};
    const kexa_3_3::result_t code = parser->parse(2, arguments, result);
    result->release();
    parser->release();
    return code;
}

TEST(ExceptionsAcross, StandardExceptionOfAHandlerIsCaughtByTheLibrary)
{
    ThrowingHandler handler(true);
    EXPECT_EQ(parseWith(handler), kexa_3_3::result_standard_exception);
    EXPECT_EQ(std::uncaught_exceptions(), 0);
}

TEST(ExceptionsAcross, AnyOtherExceptionOfAHandlerIsCaughtByTheLibrary)
{
    ThrowingHandler handler(false);
    EXPECT_EQ(parseWith(handler), kexa_3_3::result_unknown_exception);
    EXPECT_EQ(std::uncaught_exceptions(), 0);
}

TEST(ExceptionsAcross, ExceptionOfTheLibraryIsCaughtByTheHost)
{
    EXPECT_THROW(kexa_3_3::WordWrappedText(L"", L"text", 5, 3), std::out_of_range);
    EXPECT_EQ(std::uncaught_exceptions(), 0);
}

} // namespace
