// The arguments of a parse run.
#include "recognition/ArgumentQueue.h"

#include <string>

#include "TextPrinting.h"

namespace
{

using kexa_3_3::ArgumentQueue;
using kexa_3_3::Arguments;

TEST(ArgumentQueue, GivesTheArgumentsFromTheFront)
{
    Arguments arguments = {L"a", L"b", L"c"};
    ArgumentQueue queue(arguments);
    EXPECT_FALSE(queue.empty());
    EXPECT_EQ(queue.size(), 3U);
    EXPECT_EQ(queue.front(), L"a");
    EXPECT_EQ(queue[2], L"c");
    queue.removeFront();
    EXPECT_EQ(queue.size(), 2U);
    EXPECT_EQ(queue.front(), L"b");
    EXPECT_EQ(queue[1], L"c");
    queue.removeFront();
    queue.removeFront();
    EXPECT_TRUE(queue.empty());
    EXPECT_EQ(queue.size(), 0U);
}

TEST(ArgumentQueue, VectorIsShortenedAtTheEnd)
{
    Arguments arguments = {L"a", L"b", L"c"};
    {
        ArgumentQueue queue(arguments);
        queue.removeFront();
        queue.removeFront();
        EXPECT_EQ(arguments.size(), 3U);
    }
    EXPECT_EQ(arguments, (Arguments{L"c"}));
    {
        const ArgumentQueue queue(arguments);
    }
    EXPECT_EQ(arguments, (Arguments{L"c"}));
}

TEST(ArgumentQueue, EmptyVectorIsAnEmptyQueue)
{
    Arguments arguments;
    const ArgumentQueue queue(arguments);
    EXPECT_TRUE(queue.empty());
    EXPECT_EQ(queue.size(), 0U);
}

} // namespace
