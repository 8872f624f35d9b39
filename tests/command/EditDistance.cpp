// How far two words are apart.
#include "text/EditDistance.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace kexa::detail;

namespace
{

constexpr std::size_t no_limit = static_cast<std::size_t>(-1) / 2;

// The definition, cell by cell.
std::size_t naiveDistance(const std::string& first, const std::string& second)
{
    std::vector<std::vector<std::size_t>> distance(first.size() + 1,
                                                   std::vector<std::size_t>(second.size() + 1));
    for (std::size_t i = 0; i <= first.size(); ++i)
    {
        for (std::size_t j = 0; j <= second.size(); ++j)
        {
            if (i == 0 || j == 0)
            {
                distance[i][j] = i + j;
                continue;
            }
            const std::size_t replaced =
                distance[i - 1][j - 1] + (first[i - 1] == second[j - 1] ? 0 : 1);
            distance[i][j] = std::min({distance[i - 1][j] + 1, distance[i][j - 1] + 1, replaced});
            if (i > 1 && j > 1 && first[i - 1] == second[j - 2] && first[i - 2] == second[j - 1])
            {
                distance[i][j] = std::min(distance[i][j], distance[i - 2][j - 2] + 1);
            }
        }
    }
    return distance[first.size()][second.size()];
}

std::vector<std::string> allWords(const std::string& alphabet, std::size_t longest)
{
    std::vector<std::string> words = {""};
    for (std::size_t begin = 0, length = 0; length < longest; ++length)
    {
        const std::size_t end = words.size();
        for (; begin < end; ++begin)
        {
            for (const char letter : alphabet)
            {
                words.push_back(words[begin] + letter);
            }
        }
    }
    return words;
}

} // namespace

TEST(EditDistance, CountsEditsOfCodePoints)
{
    const struct
    {
        const char* first;
        const char* second;
        std::size_t distance;
    } rows[] = {
        {"", "", 0},
        {"compression", "compression", 0},
        {"", "abc", 3},
        {"compression", "compresion", 1}, // one removed
        {"list", "lists", 1},             // one inserted
        {"color", "colur", 1},            // one replaced
        {"verbose", "verbsoe", 1},        // neighbours swapped
        {"ab", "ba", 1},                  // swapped at the front
        {"ca", "abc", 3},                 // no place is edited twice
        {"kitten", "sitting", 3},         //
        {"gr\xC3\xB6\xC3\x9F"
         "e",
         "gr\xC3\xB6sse", 2},
        {"\xC3\xB6", "o", 1}, // two bytes, one code point
        {"\xE6\x97\xA5\xE6\x9C\xAC", "\xE6\x9C\xAC\xE6\x97\xA5", 1},
        {"\xFF", "\xFE", 1}, // bytes that are no UTF-8 differ
        {"A", "a", 1},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(editDistance(row.first, row.second, no_limit), row.distance)
            << row.first << ' ' << row.second;
        EXPECT_EQ(editDistance(row.second, row.first, no_limit), row.distance)
            << row.second << ' ' << row.first;
    }
}

TEST(EditDistance, IsThatOfTheDefinitionUpToAnyLimit)
{
    const std::vector<std::string> words = allWords("abc", 4);
    for (const std::string& first : words)
    {
        for (const std::string& second : words)
        {
            const std::size_t expected = naiveDistance(first, second);
            for (std::size_t limit = 0; limit <= 5; ++limit)
            {
                ASSERT_EQ(editDistance(first, second, limit), std::min(expected, limit + 1))
                    << first << ' ' << second << ' ' << limit;
            }
        }
    }
}

TEST(EditDistance, OfLongWordsIsThatOfTheDefinition)
{
    const std::vector<std::string> words = allWords("ab", 8);
    for (std::size_t index = 0; index < words.size(); ++index)
    {
        const std::string& first = words[index];
        const std::string& second = words[index * 7919 % words.size()];
        const std::size_t expected = naiveDistance(first, second);
        for (std::size_t limit = 0; limit <= 8; ++limit)
        {
            ASSERT_EQ(editDistance(first, second, limit), std::min(expected, limit + 1))
                << first << ' ' << second << ' ' << limit;
        }
    }
}
