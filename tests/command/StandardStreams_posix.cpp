// Standard output that is full, closed or does not block.
#include <cwchar>
#include <string>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/StandardStreams.h"

using namespace kexa::detail;

namespace
{

// Turns standard output to another descriptor, which it takes over, for as long as it lives.
class OutputTo
{
public:
    explicit OutputTo(int descriptor) : m_saved(::dup(STDOUT_FILENO))
    {
        EXPECT_EQ(::dup2(descriptor, STDOUT_FILENO), STDOUT_FILENO);
        ::close(descriptor);
    }
    OutputTo(const OutputTo&) = delete;
    OutputTo& operator=(const OutputTo&) = delete;
    ~OutputTo()
    {
        ::dup2(m_saved, STDOUT_FILENO);
        ::close(m_saved);
    }

private:
    int m_saved;
};

bool writeTo(int descriptor, const std::string& text)
{
    const OutputTo output(descriptor);
    return writeText(StandardStream::output, text);
}

} // namespace

TEST(StandardStreamsOfPosix, AFullDeviceIsAFailure)
{
    EXPECT_FALSE(writeTo(::open("/dev/full", O_WRONLY), "text"));
}

TEST(StandardStreamsOfPosix, ADescriptorThatTakesNoTextIsAFailure)
{
    EXPECT_FALSE(writeTo(::open("/dev/null", O_RDONLY), "text"));
}

TEST(StandardStreamsOfPosix, APipeThatDoesNotBlockIsWaitedFor)
{
    int ends[2] = {};
    ASSERT_EQ(::pipe(ends), 0);
    ASSERT_NE(::fcntl(ends[1], F_SETFL, O_NONBLOCK), -1);
    std::string received;
    std::thread reader(
        [&received, descriptor = ends[0]]
        {
            char buffer[1000];
            for (ssize_t count = 1; count > 0;)
            {
                count = ::read(descriptor, buffer, sizeof buffer);
                received.append(buffer, static_cast<std::size_t>(count > 0 ? count : 0));
            }
        });
    const std::string text(1000000, 'x'); // more than a pipe holds
    EXPECT_TRUE(writeTo(ends[1], text));
    reader.join();
    ::close(ends[0]);
    EXPECT_TRUE(received == text);
}
