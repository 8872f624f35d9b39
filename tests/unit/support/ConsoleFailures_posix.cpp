// Tests of console output that fails or blocks, with devices and pipes of a POSIX system.
#ifndef _WIN32

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <thread>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "support/platform/ConsoleStreams.h"

#include "ConsoleCapture.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::ucout;
using kexa_3_3::internal::ConsoleTarget;
using kexa_3_3::internal::writeConsole;

// Redirects standard output to a descriptor until the destructor runs.
class Redirected
{
public:
    // descriptor: owned by the object; below 0: standard output is closed.
    explicit Redirected(int descriptor) : m_saved(::dup(STDOUT_FILENO))
    {
        if (descriptor < 0)
        {
            ::close(STDOUT_FILENO);
            return;
        }
        ::dup2(descriptor, STDOUT_FILENO);
        ::close(descriptor);
    }
    Redirected(const Redirected&) = delete;
    Redirected& operator=(const Redirected&) = delete;
    ~Redirected()
    {
        ::dup2(m_saved, STDOUT_FILENO);
        ::close(m_saved);
    }

private:
    int m_saved;
};

// Returns whether an insertion sets the bad bit of ucout().
bool failsToWrite(int descriptor)
{
    const Redirected redirected(descriptor);
    std::wostream& out = ucout();
    out << L"text";
    return out.bad();
}

TEST(ConsoleFailures, FailedWriteSetsTheBadBit)
{
    EXPECT_TRUE(failsToWrite(::open("/dev/full", O_WRONLY)));
    EXPECT_TRUE(failsToWrite(-1));
    EXPECT_FALSE(failsToWrite(::open("/dev/null", O_WRONLY)));
}

TEST(ConsoleFailures, FailedWriteReturnsFalse)
{
    const Redirected redirected(::open("/dev/full", O_WRONLY));
    EXPECT_FALSE(writeConsole(ConsoleTarget::output, L"text"));
    EXPECT_TRUE(writeConsole(ConsoleTarget::output, L""));
}

TEST(ConsoleFailures, FailedWriteDoesNotPreventLaterWrites)
{
    ASSERT_TRUE(failsToWrite(::open("/dev/full", O_WRONLY)));
    EXPECT_EQ(toolbox::captureOutput([] { ucout() << L"later"; }), "later");
}

// The text is larger than the buffer of a pipe, so the writer has to wait for the reader
// repeatedly.
TEST(ConsoleFailures, NonBlockingDescriptorGetsTheWholeText)
{
    std::wstring text;
    for (int line = 0; line < 50000; ++line)
    {
        text += std::to_wstring(line) + L"\u00E9\n";
    }
    int ends[2] = {-1, -1};
    ASSERT_EQ(::pipe(ends), 0);
    ASSERT_EQ(::fcntl(ends[1], F_SETFL, O_NONBLOCK), 0);
    std::string received;
    std::thread reader(
        [&received, end = ends[0]]
        {
            // Reads only when the pipe is full (its size no longer grows), so that the writer
            // blocks.
            int before = -1;
            int filled = 0;
            for (int turn = 0; turn < 500 && (filled == 0 || filled != before); ++turn)
            {
                before = filled;
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
                static_cast<void>(::ioctl(end, FIONREAD, &filled));
            }
            std::string part(5000, '\0');
            for (ssize_t count = 0; (count = ::read(end, part.data(), part.size())) > 0;)
            {
                received.append(part, 0, static_cast<std::size_t>(count));
            }
        });
    bool written = false;
    {
        const Redirected redirected(ends[1]);
        written = writeConsole(ConsoleTarget::output, text);
    }
    reader.join();
    ::close(ends[0]);
    EXPECT_TRUE(written);
    EXPECT_TRUE(received == toolbox::toUtf8(text)) << received.size() << " bytes";
}

} // namespace

#endif
