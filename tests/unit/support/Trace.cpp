// The trace: where its lines go, and what they cost while it is off.
#include "support/platform/Trace.h"

#include <ostream>
#include <string>

#include "support/platform/ConsoleStreams.h"

#include "ConsoleCapture.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using toolbox::captureError;
using toolbox::captureOutput;

// Leaves the switch off, as every other test expects it.
class Trace : public testing::Test
{
protected:
    ~Trace() override { switchTrace(false); }
};

// Counts how often it is written out.
struct Piece
{
    int* written;
};

std::wostream& operator<<(std::wostream& out, const Piece& piece)
{
    ++*piece.written;
    return out << L"piece";
}

TEST_F(Trace, IsOffAtFirst)
{
    EXPECT_FALSE(internal::trace_switch);
}

TEST_F(Trace, SwitchSelectsTheStream)
{
    switchTrace(true);
    EXPECT_EQ(&traceStream(), &ucout());
    switchTrace(false);
    std::wostream& off = traceStream();
    EXPECT_NE(&off, &ucout());
    EXPECT_NE(&off, &ucerr());
    EXPECT_EQ(&traceStream(), &off);
    switchTrace(true);
    EXPECT_EQ(&traceStream(), &ucout());
}

TEST_F(Trace, NullStreamDiscardsSilently)
{
    std::string error;
    const std::string output = captureOutput(
        [&error]
        {
            error = captureError(
                []
                {
                    EXPECT_NO_THROW(traceStream() << L"lost" << 12 << std::endl);
                    EXPECT_NO_THROW(traceStream() << L"lost again" << std::flush);
                });
        });
    EXPECT_EQ(output, "");
    EXPECT_EQ(error, "");
}

TEST_F(Trace, NullStreamFormatsAsANewStreamDoes)
{
    EXPECT_EQ(traceStream().flags(), std::ios_base::skipws | std::ios_base::dec);
    EXPECT_EQ(traceStream().fill(), L' ');
}

TEST_F(Trace, NullBufferHasNoStorage)
{
    internal::basic_nullbuf buffer;
    EXPECT_EQ(buffer.sputc(L'a'), std::char_traits<wchar_t>::eof());
    EXPECT_EQ(buffer.sputn(L"abc", 3), 0);
    EXPECT_EQ(buffer.sgetc(), std::char_traits<wchar_t>::eof());
}

TEST_F(Trace, LineIsItsPiecesAndALineEnd)
{
    switchTrace(true);
    EXPECT_EQ(captureOutput(
                  []
                  {
                      const std::wstring_view argument = L"--\u00FC";
                      traceLine(L"Parser", L": recognizing argument '", argument, L"'");
                      traceLine(L"result: ", 2, L", ", std::wstring_view(L"rest").substr(0, 2));
                      traceLine(L"char: '", L',', L"'");
                  }),
              "Parser: recognizing argument '--\xC3\xBC'\nresult: 2, re\nchar: ','\n");
}

TEST_F(Trace, LineGoesNowhereWhileTheTraceIsOff)
{
    int written = 0;
    switchTrace(false);
    EXPECT_EQ(captureOutput([&written] { traceLine(L"line ", Piece{&written}); }), "");
    EXPECT_EQ(written, 0);
    switchTrace(true);
    EXPECT_EQ(captureOutput([&written] { traceLine(L"line ", Piece{&written}); }), "line piece\n");
    EXPECT_EQ(written, 1);
}

} // namespace
