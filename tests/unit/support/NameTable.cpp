// Entries found by name.
#include "support/memory/NameTable.h"

#include <algorithm>
#include <cstddef>
#include <memory_resource>
#include <new>
#include <string>
#include <vector>

#include "AllocationCount.h"
#include "EqualHashes.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::HashedText;
using kexa_3_3::NameTable;
using toolbox::toUtf8;

struct Entry
{
    HashedText name;
    int value = 0;
};

// The texts outlive the table.
Entry& add(NameTable<Entry>& table, const std::wstring& text)
{
    table.reserveMore(1);
    return table.findOrAdd(HashedText(text));
}

class NameTableTest : public testing::Test
{
protected:
    NameTable<Entry> table{*std::pmr::new_delete_resource(), 2};
};

std::vector<std::wstring> numbered(std::size_t count)
{
    std::vector<std::wstring> texts;
    for (std::size_t number = 0; number < count; ++number)
    {
        texts.push_back(std::to_wstring(number * 7919U));
    }
    return texts;
}

TEST_F(NameTableTest, EntriesAreInOrderOfInsertion)
{
    const std::vector<std::wstring> texts = {L"b", L"a", L"", L"c"};
    EXPECT_TRUE(table.empty());
    for (const std::wstring& text : texts)
    {
        add(table, text);
    }
    ASSERT_EQ(table.size(), 4U);
    EXPECT_FALSE(table.empty());
    std::vector<std::wstring> found;
    for (const Entry& entry : table)
    {
        EXPECT_EQ(table[found.size()].name, entry.name);
        found.emplace_back(entry.name.text());
    }
    EXPECT_EQ(found, texts);
}

TEST_F(NameTableTest, KnownNameGivesItsEntry)
{
    const std::wstring first = L"name";
    const std::wstring second = L"name";
    const std::wstring other = L"other";
    add(table, first).value = 1;
    add(table, other).value = 2;
    EXPECT_EQ(add(table, second).value, 1);
    EXPECT_EQ(table.size(), 2U);
    EXPECT_EQ(table[0].name.text().data(), first.data());
}

TEST_F(NameTableTest, EmptyTableFindsNothing)
{
    EXPECT_EQ(table.find(HashedText(L"")), nullptr);
    EXPECT_EQ(table.find(HashedText(L"a")), nullptr);
    table.reserveMore(100);
    EXPECT_EQ(table.find(HashedText(L"")), nullptr);
    EXPECT_EQ(table.find(HashedText(L"a")), nullptr);
    EXPECT_EQ(table.size(), 0U);
}

TEST_F(NameTableTest, NamesAreComparedWhole)
{
    const std::vector<std::wstring> texts = {L"name",   L"nam",
                                             L"namee",  L"Name",
                                             L"name ",  std::wstring(L"name\0", 5),
                                             L"",       L"eman",
                                             L"\uFFFD", std::wstring(1, L'\0')};
    for (std::size_t number = 0; number < texts.size(); ++number)
    {
        EXPECT_EQ(table.find(HashedText(texts[number])), nullptr) << toUtf8(texts[number]);
        add(table, texts[number]);
        EXPECT_EQ(table.size(), number + 1) << toUtf8(texts[number]);
    }
    for (std::size_t number = 0; number < texts.size(); ++number)
    {
        EXPECT_EQ(table.find(HashedText(texts[number])), &table[number]) << toUtf8(texts[number]);
    }
}

TEST_F(NameTableTest, NamesWithOneHashAreToldApart)
{
    const auto [first, second] = unit::textsWithOneHash();
    ASSERT_NE(first, second);
    ASSERT_EQ(HashedText(first).hash(), HashedText(second).hash());
    add(table, first).value = 1;
    EXPECT_EQ(table.find(HashedText(second)), nullptr);
    add(table, second).value = 2;
    for (const std::wstring& text : numbered(1000)) // both have to be found after growth, too
    {
        table.reserveMore(1);
        ASSERT_EQ(table.find(HashedText(text)), nullptr);
    }
    table.reserveMore(1000);
    ASSERT_EQ(table.size(), 2U);
    EXPECT_EQ(table.find(HashedText(first))->value, 1);
    EXPECT_EQ(table.find(HashedText(second))->value, 2);
}

TEST_F(NameTableTest, GrowthForgetsNothing)
{
    const std::vector<std::wstring> texts = numbered(5000);
    for (std::size_t number = 0; number < texts.size(); ++number)
    {
        add(table, texts[number]).value = static_cast<int>(number);
        ASSERT_EQ(table.find(HashedText(texts[number / 2])), &table[number / 2]) << number;
    }
    for (std::size_t number = 0; number < texts.size(); ++number)
    {
        ASSERT_EQ(table.find(HashedText(texts[number])), &table[number]) << number;
        ASSERT_EQ(table[number].value, static_cast<int>(number));
        ASSERT_EQ(table.find(HashedText(texts[number] + L"x")), nullptr) << number;
    }
}

TEST_F(NameTableTest, AddingWhereRoomWasMadeAllocatesNothing)
{
    const std::vector<std::wstring> texts = numbered(1000);
    const std::wstring earlier = L"earlier";
    add(table, earlier);
    table.reserveMore(texts.size());
    const Entry* const place = &table[0];
    const std::size_t before = toolbox::allocationsSoFar().blocks;
    for (const std::wstring& text : texts)
    {
        table.findOrAdd(HashedText(text));
    }
    EXPECT_EQ(toolbox::allocationsSoFar().blocks, before);
    EXPECT_EQ(&table[0], place);
    EXPECT_EQ(table.size(), texts.size() + 1);
    EXPECT_EQ(table.find(HashedText(texts.back())), &table[texts.size()]);
    EXPECT_EQ(table.find(HashedText(earlier)), &table[0]);
}

// The nth allocation from now on fails.
class FailingResource final : public std::pmr::memory_resource
{
public:
    std::size_t left = 1000;

private:
    void* do_allocate(std::size_t size, std::size_t alignment) override
    {
        if (left == 0)
        {
            throw std::bad_alloc();
        }
        --left;
        return std::pmr::new_delete_resource()->allocate(size, alignment);
    }
    void do_deallocate(void* block, std::size_t size, std::size_t alignment) override
    {
        std::pmr::new_delete_resource()->deallocate(block, size, alignment);
    }
    [[nodiscard]] bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override
    {
        return this == &other;
    }
};

TEST(NameTable, RoomThatCannotBeMadeChangesNothing)
{
    const std::vector<std::wstring> texts = numbered(100);
    for (std::size_t allowed = 0; allowed < 2; ++allowed) // growth makes two arrays
    {
        FailingResource memory;
        NameTable<Entry> table(memory, 8);
        for (std::size_t number = 0; number < 8; ++number)
        {
            add(table, texts[number]);
        }
        memory.left = allowed;
        EXPECT_THROW(table.reserveMore(1), std::bad_alloc) << allowed;
        EXPECT_EQ(table.size(), 8U);
        memory.left = 1000;
        for (std::size_t number = 8; number < texts.size(); ++number)
        {
            ASSERT_EQ(table.find(HashedText(texts[number])), nullptr);
            add(table, texts[number]);
        }
        for (std::size_t number = 0; number < texts.size(); ++number)
        {
            ASSERT_EQ(table.find(HashedText(texts[number])), &table[number]) << allowed;
        }
    }
}

} // namespace
