// The queue of arguments of a parse.
#include "recognition/ArgumentQueue.h"

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "GivenArguments.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::ArgumentQueue;
using unit::GivenArguments;
using unit::takeAll;

using Texts = std::vector<std::wstring>;
using Pointers = std::vector<const wchar_t*>;

ArgumentQueue queueOf(const Pointers& pointers)
{
    return ArgumentQueue(std::span(pointers));
}

// Runs a test with a queue over an array of pointers and with a queue over a source.
void withBoth(const Texts& texts, const std::function<void(ArgumentQueue&)>& test)
{
    {
        SCOPED_TRACE("pointers");
        Pointers pointers;
        for (const std::wstring& text : texts)
        {
            pointers.push_back(text.c_str());
        }
        ArgumentQueue queue = queueOf(pointers);
        test(queue);
    }
    SCOPED_TRACE("source");
    GivenArguments given(texts);
    ArgumentQueue queue(given);
    test(queue);
}

TEST(ArgumentQueue, ReturnsTheArgumentsFromTheFront)
{
    withBoth({L"a", L"b", L"c"},
             [](ArgumentQueue& queue)
             {
                 EXPECT_FALSE(queue.empty());
                 EXPECT_EQ(queue.front(), L"a");
                 queue.removeFront();
                 EXPECT_FALSE(queue.empty());
                 EXPECT_EQ(queue.front(), L"b");
                 queue.removeFront();
                 EXPECT_EQ(queue.front(), L"c");
                 queue.removeFront();
                 EXPECT_TRUE(queue.empty());
             });
}

TEST(ArgumentQueue, SecondOneIsReadWithoutBeingRemoved)
{
    withBoth({L"a", L"b", L"c"},
             [](ArgumentQueue& queue)
             {
                 for (int times = 0; times < 2; ++times)
                 {
                     ASSERT_TRUE(queue.hasSecond());
                     EXPECT_EQ(queue.front(), L"a");
                     EXPECT_EQ(queue.second(), L"b");
                 }
                 queue.removeFront();
                 EXPECT_EQ(queue.front(), L"b");
                 ASSERT_TRUE(queue.hasSecond());
                 EXPECT_EQ(queue.second(), L"c");
                 EXPECT_EQ(queue.front(), L"b");
                 queue.removeFront();
                 EXPECT_EQ(queue.front(), L"c");
                 for (int times = 0; times < 2; ++times)
                 {
                     EXPECT_FALSE(queue.hasSecond());
                 }
                 EXPECT_FALSE(queue.empty());
                 EXPECT_EQ(queue.front(), L"c");
                 queue.removeFront();
                 EXPECT_TRUE(queue.empty());
             });
}

// Bit n of `asked` selects whether the second argument is read before removal n.
TEST(ArgumentQueue, ReadingTheSecondOneRemovesNothing)
{
    const Texts texts = {L"a", L"", L"c", L"d", L"e"};
    for (unsigned asked = 0; asked < 32; ++asked)
    {
        SCOPED_TRACE(asked);
        withBoth(texts,
                 [&texts, asked](ArgumentQueue& queue)
                 {
                     for (std::size_t index = 0; index < texts.size(); ++index)
                     {
                         ASSERT_FALSE(queue.empty());
                         EXPECT_EQ(queue.front(), texts[index]);
                         if ((asked >> index & 1) != 0)
                         {
                             ASSERT_EQ(queue.hasSecond(), index + 1 < texts.size());
                             EXPECT_EQ(queue.front(), texts[index]);
                             if (queue.hasSecond())
                             {
                                 EXPECT_EQ(queue.second(), texts[index + 1]);
                             }
                         }
                         queue.removeFront();
                     }
                     EXPECT_TRUE(queue.empty());
                 });
    }
}

TEST(ArgumentQueue, OneArgumentHasNoSecond)
{
    withBoth({L"a"},
             [](ArgumentQueue& queue)
             {
                 EXPECT_FALSE(queue.hasSecond());
                 EXPECT_EQ(queue.front(), L"a");
                 queue.removeFront();
                 EXPECT_TRUE(queue.empty());
             });
}

TEST(ArgumentQueue, NothingGivenIsAnEmptyQueue)
{
    withBoth({}, [](ArgumentQueue& queue) { EXPECT_TRUE(queue.empty()); });
    const ArgumentQueue queue{std::span<const wchar_t* const>()};
    EXPECT_TRUE(queue.empty());
}

TEST(ArgumentQueue, NullEntryIsAnEmptyArgument)
{
    const Pointers pointers = {nullptr, L"b", nullptr, nullptr};
    ArgumentQueue queue = queueOf(pointers);
    EXPECT_EQ(takeAll(queue), (Texts{L"", L"b", L"", L""}));

    ArgumentQueue again = queueOf(pointers);
    again.removeFront();
    ASSERT_TRUE(again.hasSecond());
    EXPECT_EQ(again.second(), L"");
}

TEST(ArgumentQueue, TextsOfPointersAreNotCopied)
{
    const std::wstring first = L"first";
    const std::wstring second = L"second";
    const Pointers pointers = {first.c_str(), second.c_str()};
    ArgumentQueue queue = queueOf(pointers);
    EXPECT_EQ(queue.front().data(), first.data());
    ASSERT_TRUE(queue.hasSecond());
    EXPECT_EQ(queue.second().data(), second.data());
}

TEST(ArgumentQueue, SourceIsReadNoFurtherThanNeeded)
{
    GivenArguments given({L"a", L"b", L"c", L"d"});
    ArgumentQueue queue(given);
    EXPECT_EQ(given.given(), 1U);
    queue.removeFront();
    EXPECT_EQ(given.given(), 2U);
    EXPECT_TRUE(queue.hasSecond());
    EXPECT_TRUE(queue.hasSecond());
    EXPECT_EQ(given.given(), 3U);
    queue.removeFront();
    EXPECT_EQ(given.given(), 3U);
    queue.removeFront();
    EXPECT_EQ(given.given(), 4U);
    EXPECT_EQ(queue.front(), L"d");
}

// The value of an option may be the next argument: both texts stay valid until the argument after
// them is read.
TEST(ArgumentQueue, RemovedArgumentStaysValidUntilTheOneAfterTheNextIsRead)
{
    GivenArguments given({L"a", L"b", L"c"});
    ArgumentQueue queue(given);
    const std::wstring_view first = queue.front();
    ASSERT_TRUE(queue.hasSecond());
    const std::wstring_view second = queue.second();
    queue.removeFront();
    EXPECT_EQ(first, L"a");
    EXPECT_EQ(second, L"b");
    queue.removeFront();
    EXPECT_EQ(second, L"b");
    EXPECT_EQ(queue.front(), L"c");
}

} // namespace
