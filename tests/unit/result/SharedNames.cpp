// Options that share names in different combinations: the result behaves as if every name had an
// entry of its own.
#include <deque>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "options/OptionDescription.h"
#include "options/OptionIndex.h"
#include "options/RegisteredOptionStorage.h"
#include "options/ValueText.h"
#include "result/ParseResult.h"
#include "support/memory/Garbage.h"

#include "EnteredOption.h"
#include "EqualHashes.h"
#include "HeapOnly.h"
#include "StoredContents.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using toolbox::toUtf8;
using vexkit2::variant_t;

const OptionGroup no_group;

// One value, of either kind of entry.
template <class Entry>
std::wstring describeValue(const Entry& entry)
{
    return std::to_wstring(entry.position) + L" " + std::wstring(entry.text) + L"=" +
           valueText(entry.value);
}

// An entry as a line of text: "3 5 | 3 a=a 5 7=7 | 2147483647 x=x".
template <class Values>
std::wstring describe(const std::vector<std::int32_t>& positions, const Values& values)
{
    std::wstring text;
    for (const std::int32_t position : positions)
    {
        text += std::to_wstring(position) + L" ";
    }
    text += L"|";
    for (const auto& entry : values)
    {
        text += L" " + describeValue(entry);
    }
    return text + L" |";
}
std::wstring describe(const OptionResult& result)
{
    const std::wstring text = describe(result.positions, result.values);
    // Without a text there is no default, whatever else is set.
    return result.defaultText.empty()
               ? text
               : text + L" " +
                     describeValue(ValueEntry{result.defaultText, result.defaultValue,
                                              static_cast<std::int32_t>(result.defaultPosition)});
}
std::wstring describe(const StoredOption& stored)
{
    const std::wstring text = describe(unit::positionsOf(stored), unit::valuesOf(stored));
    return stored.byDefault ? text + L" " + describeValue(*stored.byDefault) : text;
}

// The model: a map of copies.
class Entries
{
public:
    void store(const std::vector<std::wstring>& names, const OptionResult& record)
    {
        const auto found = m_entries.find(names.front());
        if (found == m_entries.end())
        {
            for (const std::wstring& name : names)
            {
                m_entries[name] = record;
            }
            return;
        }
        // A name without an entry starts where the first name stands.
        const OptionResult before = found->second;
        const std::set<std::wstring> distinct(names.begin(), names.end());
        for (const std::wstring& name : distinct)
        {
            OptionResult& entry = m_entries.emplace(name, before).first->second;
            entry.positions.insert(entry.positions.end(), record.positions.begin(),
                                   record.positions.end());
            entry.values.insert(entry.values.end(), record.values.begin(), record.values.end());
        }
    }

    [[nodiscard]] std::map<std::wstring, std::wstring> described() const
    {
        std::map<std::wstring, std::wstring> lines;
        for (const auto& [name, entry] : m_entries)
        {
            lines.emplace(name, describe(entry));
        }
        return lines;
    }

private:
    std::map<std::wstring, OptionResult> m_entries;
};

std::map<std::wstring, std::wstring> described(const OptionResultTable& table)
{
    std::map<std::wstring, std::wstring> lines;
    for (const OptionResultTable::NamedRecord& named : table.names())
    {
        const std::wstring name(named.name.text());
        EXPECT_EQ(table.find(name), named.record) << toUtf8(name);
        EXPECT_TRUE(lines.emplace(name, describe(*named.record)).second) << toUtf8(name);
    }
    return lines;
}

class RandomStores
{
public:
    explicit RandomStores(unsigned seed) : m_random(seed)
    {
        // Several tables of options: their indices mean different options. Every third time, one
        // table of options that have no name in common, as most programs declare them.
        const bool usual = seed % 3 == 0;
        for (std::size_t number = 0; number < 8; ++number)
        {
            m_nameEndings.push_back(usual ? std::to_wstring(number) : L"");
            m_options.emplace_back(no_group, false, m_pool);
            addName(number);
            for (unsigned more = below(4); more != 0; --more)
            {
                addName(number);
            }
            if (usual || below(4) != 0)
            {
                unit::enterOption(m_options.back(), m_tables[usual ? 0 : below(2)], number);
            }
        }
    }

    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random() % bound); }

    // Stores one random record into both.
    void store(ParseResult& result, Entries& entries)
    {
        const std::size_t number = below(8);
        OptionDescription& option = m_options[number];
        if (below(12) == 0)
        {
            addName(number);
        }
        std::vector<std::wstring> names;
        for (const HashedText& name : option.names)
        {
            names.emplace_back(name.text());
        }
        OptionResult record = randomRecord();
        entries.store(names, record);
        if (record.positions.size() == 1 && record.values.size() == 1 && record.defaultText.empty())
        {
            ASSERT_EQ(result.storeValue(option, record.values.front()), 0);
            return;
        }
        ASSERT_EQ(result.storeOption(option, record), 0);
    }

private:
    void addName(std::size_t number)
    {
        static const wchar_t* const names[] = {L"a", L"b", L"c", L"d", L"e", L"f"};
        m_options[number].addName((names[below(6)] + m_nameEndings[number]).c_str());
    }

    OptionResult randomRecord()
    {
        OptionResult record;
        if (below(4) == 0)
        {
            record.defaultText = m_texts.emplace_back(L"default " + std::to_wstring(m_next));
            record.defaultValue =
                below(2) == 0 ? variant_t(std::wstring(record.defaultText)) : variant_t(m_next);
            record.defaultPosition = static_cast<std::uint32_t>(no_position);
        }
        for (unsigned count = below(3); count != 0; --count)
        {
            record.positions.push_back(++m_next);
            const std::wstring& text = m_texts.emplace_back(L"t" + std::to_wstring(m_next));
            record.values.push_back(
                {text, below(2) == 0 ? variant_t(text) : variant_t(m_next), m_next});
        }
        if (record.values.empty() && below(2) == 0)
        {
            record.positions.push_back(++m_next);
        }
        return record;
    }

    std::mt19937_64 m_random;
    std::int32_t m_next = 0;
    std::deque<std::wstring> m_texts;
    Garbage m_pool{unit::heap_only};
    OptionIndex m_tables[2] = {OptionIndex(m_pool), OptionIndex(m_pool)};
    std::vector<std::wstring> m_nameEndings;
    std::deque<OptionDescription> m_options;
};

TEST(SharedNames, EveryNameHasAnEntryOfItsOwn)
{
    for (unsigned seed = 0; seed < 150; ++seed)
    {
        RandomStores stores(seed);
        Entries entries;
        ParseResult result;
        for (int step = 0; step < 20; ++step)
        {
            ASSERT_NO_FATAL_FAILURE(stores.store(result, entries));
            ASSERT_EQ(described(result.options()), entries.described())
                << "seed " << seed << ", step " << step;
        }
    }
}

class SharedNamesTest : public testing::Test
{
protected:
    OptionDescription option(std::initializer_list<const wchar_t*> names)
    {
        OptionDescription made(no_group, false, pool);
        for (const wchar_t* const name : names)
        {
            made.addName(name);
        }
        return made;
    }
    void store(const OptionDescription& target, std::int32_t position)
    {
        OptionResult record;
        record.positions.push_back(position);
        EXPECT_EQ(result.storeOption(target, record), 0);
    }
    std::vector<std::int32_t> positions(const wchar_t* name)
    {
        const StoredOption* const stored = result.options().find(name);
        return stored == nullptr ? std::vector<std::int32_t>{-1} : unit::positionsOf(*stored);
    }

    using Positions = std::vector<std::int32_t>;
    Garbage pool{unit::heap_only};
    ParseResult result;
};

TEST_F(SharedNamesTest, NameOfAnotherOptionIsReplacedWhereTheFirstNameIsNew)
{
    store(option({L"a", L"b"}), 1);
    store(option({L"c", L"b"}), 2);
    EXPECT_EQ(positions(L"a"), (Positions{1}));
    EXPECT_EQ(positions(L"b"), (Positions{2}));
    EXPECT_EQ(positions(L"c"), (Positions{2}));
    store(option({L"a", L"b"}), 3);
    EXPECT_EQ(positions(L"a"), (Positions{1, 3}));
    EXPECT_EQ(positions(L"b"), (Positions{2, 3}));
    EXPECT_EQ(positions(L"c"), (Positions{2}));
}

TEST_F(SharedNamesTest, AbsentNameStartsWhereTheFirstNameStands)
{
    store(option({L"a"}), 1);
    store(option({L"a", L"b"}), 2);
    EXPECT_EQ(positions(L"a"), (Positions{1, 2}));
    EXPECT_EQ(positions(L"b"), (Positions{1, 2}));
    store(option({L"a"}), 3);
    EXPECT_EQ(positions(L"a"), (Positions{1, 2, 3}));
    EXPECT_EQ(positions(L"b"), (Positions{1, 2}));
}

TEST_F(SharedNamesTest, NameListedTwiceIsOneEntry)
{
    const OptionDescription twice = option({L"a", L"a", L"b"});
    store(twice, 1);
    store(twice, 2);
    EXPECT_EQ(positions(L"a"), (Positions{1, 2}));
    EXPECT_EQ(positions(L"b"), (Positions{1, 2}));
    EXPECT_EQ(result.options().names().size(), 2U);
}

TEST_F(SharedNamesTest, NameListedTwiceDoesNotCountForAnother)
{
    store(option({L"a", L"b"}), 1);
    store(option({L"a", L"a"}), 2);
    EXPECT_EQ(positions(L"a"), (Positions{1, 2}));
    EXPECT_EQ(positions(L"b"), (Positions{1}));
}

// Names in turn that come to a record in several ways: made with it, taken from another, joined.
TEST_F(SharedNamesTest, RecordsAreFoundAgainByThoseWhoStoreThere)
{
    store(option({L"a", L"b", L"c"}), 1);
    for (std::int32_t round = 2; round < 10; round += 4)
    {
        store(option({L"b", L"c"}), round);
        store(option({L"b", L"d"}), round + 1);
        store(option({L"a"}), round + 2);
        store(option({L"c", L"b"}), round + 3);
    }
    EXPECT_EQ(positions(L"a"), (Positions{1, 4, 8}));
    EXPECT_EQ(positions(L"b"), (Positions{1, 2, 3, 5, 6, 7, 9}));
    EXPECT_EQ(positions(L"c"), (Positions{1, 2, 5, 6, 9}));
    EXPECT_EQ(positions(L"d"), (Positions{1, 2, 3, 7}));
}

TEST_F(SharedNamesTest, CopyOfADeclaredOptionMayHaveFurtherNames)
{
    RegisteredOptionStorage options(pool, L',');
    options.registerOption(L"a,b", nullptr, L"", false, value_type_string, L"");
    options.registerOption(L"x,y", nullptr, L"", false, value_type_string, L"");
    ASSERT_EQ(options.size(), 2U);
    OptionDescription copy = options[0];
    copy.addName(L"c");
    store(copy, 1);
    EXPECT_EQ(positions(L"a"), (Positions{1}));
    EXPECT_EQ(positions(L"b"), (Positions{1}));
    EXPECT_EQ(positions(L"c"), (Positions{1}));
    store(options[0], 2);
    store(options[1], 3);
    EXPECT_EQ(positions(L"a"), (Positions{1, 2}));
    EXPECT_EQ(positions(L"b"), (Positions{1, 2}));
    EXPECT_EQ(positions(L"c"), (Positions{1}));
    EXPECT_EQ(positions(L"x"), (Positions{3}));
    EXPECT_EQ(positions(L"y"), (Positions{3}));
}

TEST_F(SharedNamesTest, NamesWithOneHashAreToldApart)
{
    const auto [first, second] = unit::textsWithOneHash();
    ASSERT_NE(first, second);
    const OptionDescription one = option({first.c_str()});
    const OptionDescription another = option({L"other", second.c_str()});
    store(another, 1);
    EXPECT_EQ(positions(first.c_str()), (Positions{-1}));
    EXPECT_EQ(result.isPresent(first.c_str(), 0, no_position), 0);
    store(one, 2);
    store(another, 3);
    EXPECT_EQ(positions(first.c_str()), (Positions{2}));
    EXPECT_EQ(positions(second.c_str()), (Positions{1, 3}));
    EXPECT_EQ(result.options().names().size(), 3U);
}

TEST_F(SharedNamesTest, OrderOfNamesDoesNotMatter)
{
    store(option({L"a", L"b"}), 1);
    store(option({L"b", L"a"}), 2);
    EXPECT_EQ(positions(L"a"), (Positions{1, 2}));
    EXPECT_EQ(positions(L"b"), (Positions{1, 2}));
}

} // namespace
