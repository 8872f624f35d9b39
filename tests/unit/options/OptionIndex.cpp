// The index of names, compared with a walk over all of them.
#include "options/OptionIndex.h"

#include <optional>
#include <random>
#include <string>
#include <vector>

#include "support/memory/Garbage.h"

#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::Garbage;
using kexa_3_3::HashedText;
using kexa_3_3::OptionIndex;
using toolbox::toUtf8;

using Texts = std::vector<std::wstring>;

using Found = std::optional<std::size_t>;

struct Option
{
    bool boolean;
    Texts names;
};

bool beginsWith(const std::wstring& text, const std::wstring& beginning)
{
    return text.compare(0, beginning.size(), beginning) == 0;
}

// The table that the index stands beside, searched from its front.
class NaiveTable
{
public:
    std::vector<Option> options;

    [[nodiscard]] Found findNamed(const std::wstring& text) const { return find(text, false); }
    [[nodiscard]] Found findCandidate(const std::wstring& text) const { return find(text, true); }

    // The candidates that begin with a text, in table order; `option` receives that of the last.
    [[nodiscard]] Texts candidates(const std::wstring& beginning, std::size_t& option) const
    {
        Texts matches;
        for (std::size_t index = 0; index < options.size(); ++index)
        {
            for (const std::wstring& name : options[index].names)
            {
                for (const std::wstring& prefix : {std::wstring(), std::wstring(L"no-")})
                {
                    if ((prefix.empty() || options[index].boolean) &&
                        beginsWith(prefix + name, beginning))
                    {
                        matches.push_back(prefix + name);
                        option = index;
                    }
                }
            }
        }
        return matches;
    }

private:
    [[nodiscard]] Found find(const std::wstring& text, bool negations) const
    {
        for (std::size_t index = 0; index < options.size(); ++index)
        {
            for (const std::wstring& name : options[index].names)
            {
                if (name == text || (negations && options[index].boolean && L"no-" + name == text))
                {
                    return index;
                }
            }
        }
        return std::nullopt;
    }
};

Texts listPrefix(const OptionIndex& index, std::wstring_view beginning)
{
    const std::vector<std::wstring_view> texts = index.listPrefix(beginning);
    return Texts(texts.begin(), texts.end());
}

void expectAgreement(const OptionIndex& index, const NaiveTable& table, const std::wstring& text)
{
    ASSERT_EQ(index.findNamed(HashedText(text)), table.findNamed(text)) << toUtf8(text);
    ASSERT_EQ(index.findCandidate(HashedText(text)), table.findCandidate(text)) << toUtf8(text);
    std::size_t option = 0;
    const Texts candidates = table.candidates(text, option);
    ASSERT_EQ(listPrefix(index, text), candidates) << toUtf8(text);
    const OptionIndex::PrefixMatches matches = index.matchPrefix(text);
    ASSERT_EQ(matches.count, candidates.size()) << toUtf8(text);
    if (matches.count == 1)
    {
        ASSERT_EQ(matches.option, option) << toUtf8(text);
        ASSERT_EQ(matches.candidate, candidates[0]) << toUtf8(text);
    }
}

void addName(OptionIndex& index, NaiveTable& table, std::size_t option, const std::wstring& name)
{
    Option& target = table.options[option];
    target.names.push_back(name);
    const HashedText kept = index.keep(HashedText(name), target.boolean);
    index.reserveMore(1);
    index.add(kept, option, target.boolean);
}

// Short texts over few characters, so that names meet, begin each other and look like negations.
class RandomTexts
{
public:
    explicit RandomTexts(unsigned seed) : m_random(seed) {}

    std::wstring next()
    {
        static const wchar_t* const parts[] = {L"n",   L"o",  L"-",      L"a",     L"no-",
                                               L"no-", L"ab", L"\u00E9", L"\uFFFD"};
        std::wstring text;
        for (unsigned count = below(4); count != 0; --count)
        {
            text += parts[below(static_cast<unsigned>(std::size(parts)))];
        }
        return text;
    }
    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random() % bound); }

private:
    std::mt19937_64 m_random;
};

class OptionIndexTest : public testing::Test
{
protected:
    Garbage pool{unit::heap_only};
    OptionIndex index{pool};
    NaiveTable table;
};

TEST(OptionIndex, AgreesWithAWalkOverTheTable)
{
    for (unsigned seed = 0; seed < 60; ++seed)
    {
        RandomTexts random(seed);
        Garbage pool{unit::heap_only};
        OptionIndex index(pool);
        NaiveTable table;
        for (int step = 0; step < 60; ++step)
        {
            if (table.options.empty() || random.below(3) == 0)
            {
                table.options.push_back({random.below(2) == 0, {}});
            }
            // An option may get a name at any time, between other searches.
            const auto count = static_cast<unsigned>(table.options.size());
            addName(index, table, random.below(count), random.next());
            if (random.below(4) == 0)
            {
                for (int search = 0; search < 5; ++search)
                {
                    ASSERT_NO_FATAL_FAILURE(expectAgreement(index, table, random.next()))
                        << "seed " << seed;
                }
            }
        }
        for (const Option& option : table.options)
        {
            for (const std::wstring& name : option.names)
            {
                ASSERT_NO_FATAL_FAILURE(expectAgreement(index, table, name)) << "seed " << seed;
                ASSERT_NO_FATAL_FAILURE(expectAgreement(index, table, L"no-" + name))
                    << "seed " << seed;
            }
        }
    }
}

TEST_F(OptionIndexTest, EmptyIndexFindsNothing)
{
    for (const wchar_t* const text : {L"", L"a", L"no-", L"no-a"})
    {
        EXPECT_FALSE(index.findNamed(HashedText(text)));
        EXPECT_FALSE(index.findCandidate(HashedText(text)));
        EXPECT_EQ(index.matchPrefix(text).count, 0U);
        EXPECT_EQ(listPrefix(index, text), Texts());
    }
    EXPECT_FALSE(index.firstPositional());
}

TEST_F(OptionIndexTest, ListIsInTableOrderWhateverTheOrderOfAdding)
{
    table.options = {{true, {}}, {false, {}}, {true, {}}};
    addName(index, table, 2, L"no");
    addName(index, table, 0, L"note");
    EXPECT_EQ(listPrefix(index, L"no"), (Texts{L"note", L"no-note", L"no", L"no-no"}));
    addName(index, table, 1, L"north");
    addName(index, table, 0, L"nothing");
    EXPECT_EQ(listPrefix(index, L"no"),
              (Texts{L"note", L"no-note", L"nothing", L"no-nothing", L"north", L"no", L"no-no"}));
    EXPECT_EQ(listPrefix(index, L"no-no"), (Texts{L"no-note", L"no-nothing", L"no-no"}));
}

TEST_F(OptionIndexTest, NameAndNegationOfTwoOptionsGoToTheFirst)
{
    table.options = {{false, {}}, {true, {}}, {false, {}}};
    addName(index, table, 2, L"no-a");
    addName(index, table, 1, L"a");
    EXPECT_EQ(index.findCandidate(HashedText(L"no-a")), Found(1));
    EXPECT_EQ(index.findNamed(HashedText(L"no-a")), Found(2));
    addName(index, table, 0, L"no-a");
    EXPECT_EQ(index.findCandidate(HashedText(L"no-a")), Found(0));
}

TEST_F(OptionIndexTest, SharedNameGoesToTheFirstAndItsNegationToTheFirstBooleanOption)
{
    table.options = {{false, {}}, {true, {}}, {false, {}}, {true, {}}};
    const auto expectFound = [this](Found named, Found negated)
    {
        EXPECT_EQ(index.findNamed(HashedText(L"a")), named);
        EXPECT_EQ(index.findCandidate(HashedText(L"no-a")), negated);
        EXPECT_EQ(index.matchPrefix(L"no-").count, negated ? 1U : 0U);
    };
    addName(index, table, 2, L"a");
    expectFound(2, std::nullopt);
    addName(index, table, 0, L"a");
    expectFound(0, std::nullopt);
    addName(index, table, 3, L"a");
    expectFound(0, 3);
    addName(index, table, 1, L"a");
    EXPECT_EQ(index.findCandidate(HashedText(L"no-a")), Found(1));
    EXPECT_EQ(listPrefix(index, L""), (Texts{L"a", L"a", L"no-a", L"a", L"a", L"no-a"}));
}

TEST_F(OptionIndexTest, FirstPositionalIsTheFirstInTableOrder)
{
    index.notePositional(7);
    EXPECT_EQ(index.firstPositional(), Found(7));
    index.notePositional(9);
    EXPECT_EQ(index.firstPositional(), Found(7));
    index.notePositional(0);
    EXPECT_EQ(index.firstPositional(), Found(0));
}

} // namespace
