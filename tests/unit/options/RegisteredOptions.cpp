// The registry of options.
#include <string>
#include <utility>
#include <vector>

#include "options/RegisteredOptionStorage.h"
#include "support/memory/Garbage.h"

#include "ConsoleCapture.h"
#include "HeapOnly.h"
#include "TextPrinting.h"

namespace
{

using namespace kexa_3_3;
using toolbox::captureOutput;
using toolbox::toUtf8;
using vexkit2::variant_t;

using Texts = std::vector<std::wstring>;
using Groups = std::vector<std::pair<std::wstring, std::wstring>>;

std::wstring_view textOf(std::wstring_view text)
{
    return text;
}
std::wstring_view textOf(const HashedText& text)
{
    return text.text();
}
template <class Container>
Texts textsOf(const Container& container)
{
    Texts texts;
    for (const auto& text : container)
    {
        texts.emplace_back(textOf(text));
    }
    return texts;
}

Groups groupsOf(const RegisteredOptionStorage& options)
{
    Groups groups;
    for (const OptionGroup& group : options.groups())
    {
        groups.emplace_back(group.name, group.text);
    }
    return groups;
}

class RegisteredOptions : public testing::Test
{
protected:
    const Registration& add(const wchar_t* names, const wchar_t* groupText = L"")
    {
        return options.registerOption(names, nullptr, L"", false, value_type_string, groupText);
    }

    Garbage pool{unit::heap_only};
    RegisteredOptionStorage options{pool, L','};
};

TEST_F(RegisteredOptions, FullRegistrationSetsEveryMember)
{
    const Registration& registration = options.registerOption(
        L"output,o", L"b,a", L"where to write", false, value_type_integer, L"files:All files");
    EXPECT_EQ(&registration, &options.lastRegistration());
    ASSERT_EQ(options.size(), 1U);
    const OptionDescription& option = options[0];
    EXPECT_EQ(registration.option, &option);
    EXPECT_EQ(registration.status, 3);
    EXPECT_EQ(option.kind, 0);
    EXPECT_EQ(textsOf(option.names), (Texts{L"output", L"o"}));
    EXPECT_EQ(textsOf(option.keywords()), (Texts{L"a", L"b"}));
    EXPECT_EQ(option.group.name, L"files");
    EXPECT_EQ(option.group.text, L"All files");
    EXPECT_EQ(option.description, L"where to write");
    EXPECT_EQ(option.valueMode, 1U);
    EXPECT_EQ(option.valueType, 6);
    EXPECT_EQ(option.separator, L',');
    EXPECT_EQ(option.owner, &pool);
    EXPECT_FALSE(option.marked);
    EXPECT_FALSE(option.hasDefault);
}

TEST_F(RegisteredOptions, SwitchHasItsNamesAsKeywords)
{
    options.registerSwitch(L"list,ls,l", L"lists", value_type_boolean, L"actions");
    options.registerOption(L"pack,p", L"zip,list", L"", true, value_type_none, L"");
    ASSERT_EQ(options.size(), 2U);
    EXPECT_EQ(options[0].valueMode, 0U);
    EXPECT_EQ(options[0].valueType, 0);
    EXPECT_EQ(options[0].description, L"lists");
    EXPECT_EQ(options[0].group.name, L"actions");
    EXPECT_EQ(textsOf(options[0].keywords()), (Texts{L"l", L"list", L"ls"}));
    EXPECT_EQ(options[1].valueMode, 0U);
    EXPECT_EQ(textsOf(options[1].keywords()), (Texts{L"list", L"p", L"pack", L"zip"}));
}

TEST_F(RegisteredOptions, ValueOptionHasItsKeywordsOnly)
{
    options.registerValueOption(L"level,l", L"pack", L"how much", value_type_unsigned, L"g");
    ASSERT_EQ(options.size(), 1U);
    EXPECT_EQ(options[0].valueMode, 1U);
    EXPECT_EQ(options[0].valueType, 7);
    EXPECT_EQ(options[0].description, L"how much");
    EXPECT_EQ(options[0].group.name, L"g");
    EXPECT_EQ(textsOf(options[0].keywords()), (Texts{L"pack"}));
}

TEST_F(RegisteredOptions, NullTextsAreEmpty)
{
    options.registerOption(L"out", nullptr, nullptr, false, 13, nullptr);
    ASSERT_EQ(options.size(), 1U);
    EXPECT_EQ(textsOf(options[0].keywords()), Texts());
    EXPECT_EQ(options[0].description, L"");
    EXPECT_EQ(options[0].group.name, L"");
    EXPECT_EQ(add(nullptr).status, 1);
}

TEST_F(RegisteredOptions, TextsAreCopied)
{
    std::wstring names = L"output,o";
    std::wstring group = L"files:All";
    std::wstring description = L"text";
    std::wstring keywords = L"key";
    options.registerValueOption(names.c_str(), keywords.c_str(), description.c_str(), 13,
                                group.c_str());
    for (std::wstring* const text : {&names, &group, &description, &keywords})
    {
        text->assign(text->size(), L'x');
    }
    EXPECT_EQ(textsOf(options[0].names), (Texts{L"output", L"o"}));
    EXPECT_EQ(textsOf(options[0].keywords()), (Texts{L"key"}));
    EXPECT_EQ(options[0].description, L"text");
    EXPECT_EQ(groupsOf(options), (Groups{{L"files", L"All"}}));
    EXPECT_EQ(options.find(L"output"), &options[0]);
}

TEST_F(RegisteredOptions, CountOfNamesDecides)
{
    const struct
    {
        const wchar_t* names;
        Texts accepted; // empty: refused
    } rows[] = {{L"", {}},
                {L",", {}},
                {L",,,", {}},
                {L"one", {L"one"}},
                {L",one", {L"one"}},
                {L"one,two", {L"one", L"two"}},
                {L"one,,two,", {L"one", L"two"}},
                {L"a,b,c", {L"a", L"b", L"c"}},
                {L"one,two,ab", {L"one", L"two", L"ab"}},
                {L"one,two,abc", {}},
                {L"a,b,cde", {}},
                {L"a,b,c,d", {}},
                {L"a,b,c,", {L"a", L"b", L"c"}},
                {L"a,b,c,d,e", {}},
                {L" a , b ", {L" a ", L" b "}},
                {L"a,a", {L"a", L"a"}}};
    for (const auto& row : rows)
    {
        Garbage texts{unit::heap_only};
        RegisteredOptionStorage registry(texts, L',');
        const std::string output = captureOutput(
            [&] { registry.registerOption(row.names, nullptr, L"", false, 13, L""); });
        EXPECT_EQ(output, "") << toUtf8(row.names);
        const Registration& registration = registry.lastRegistration();
        const bool accepted = !row.accepted.empty();
        EXPECT_EQ(registration.status, accepted ? 3 : 1) << toUtf8(row.names);
        EXPECT_EQ(registration.option != nullptr, accepted) << toUtf8(row.names);
        ASSERT_EQ(registry.size(), accepted ? 1U : 0U) << toUtf8(row.names);
        if (accepted)
        {
            EXPECT_EQ(textsOf(registry[0].names), row.accepted) << toUtf8(row.names);
        }
    }
}

TEST_F(RegisteredOptions, FailureLeavesANewGroupOnly)
{
    add(L"out,o", L"first:First");
    for (const wchar_t* const names : {L"x,out", L"", L"a,b,cde"})
    {
        captureOutput([&] { add(names, (std::wstring(L"g") + names + L":text").c_str()); });
        EXPECT_EQ(options.lastRegistration().option, nullptr) << toUtf8(names);
        EXPECT_EQ(options.lastRegistration().status, 1) << toUtf8(names);
    }
    EXPECT_EQ(options.size(), 1U);
    for (const wchar_t* const name : {L"x", L"a", L"b", L"cde", L""})
    {
        EXPECT_EQ(options.find(name), nullptr) << toUtf8(name);
    }
    EXPECT_EQ(textsOf(options.index().listPrefix(L"")), (Texts{L"out", L"o"}));
    EXPECT_EQ(
        groupsOf(options),
        (Groups{
            {L"first", L"First"}, {L"gx,out", L"text"}, {L"g", L"text"}, {L"ga,b,cde", L"text"}}));
    EXPECT_EQ(add(L"x").status, 3);
}

TEST_F(RegisteredOptions, TakenNameIsReportedWithAllNames)
{
    const std::string beginning =
        "Tried to register an option with a name, which is alread registered: ";
    add(L"out,o");
    EXPECT_EQ(captureOutput([this] { add(L"out"); }), beginning + "out\n");
    EXPECT_EQ(captureOutput([this] { add(L"x,o"); }), beginning + "x,o\n");
    EXPECT_EQ(captureOutput([this] { add(L"\u00E9,,o,"); }), beginning + "\xC3\xA9,,o,\n");
    EXPECT_EQ(captureOutput([this] { add(L"Out,ou"); }), "");
    // Too many names are refused before any of them is looked for.
    EXPECT_EQ(captureOutput([this] { add(L"out,b,c,d"); }), "");
    EXPECT_EQ(captureOutput([this] { add(L"a,b,out"); }), "");
    EXPECT_EQ(captureOutput([this] { add(L"a,out,ab"); }), beginning + "a,out,ab\n");
}

TEST_F(RegisteredOptions, NameAddedLaterIsTakenToo)
{
    add(L"out").option->addName(L"later");
    captureOutput([this] { add(L"later"); });
    EXPECT_EQ(options.lastRegistration().status, 1);
    EXPECT_EQ(options.find(L"later"), &options[0]);
}

TEST_F(RegisteredOptions, DefaultSeparatorGoesToNewOptions)
{
    add(L"a");
    options.setDefaultSeparator(0);
    add(L"b");
    options.setDefaultSeparator(L';');
    options.registerSwitch(L"c", L"", 0, L"");
    EXPECT_EQ(options[0].separator, L',');
    EXPECT_EQ(options[1].separator, L'\0');
    EXPECT_EQ(options[2].separator, L';');
}

TEST_F(RegisteredOptions, FindsTheFirstOptionWithTheWholeName)
{
    EXPECT_TRUE(options.empty());
    EXPECT_EQ(options.find(L"out"), nullptr);
    add(L"out,o");
    add(L"verbose");
    EXPECT_FALSE(options.empty());
    const_cast<OptionDescription&>(options[1]).addName(L"out"); // not checked against the first
    EXPECT_EQ(options.find(L"out"), &options[0]);
    EXPECT_EQ(options.find(L"o"), &options[0]);
    EXPECT_EQ(options.find(L"verbose"), &options[1]);
    for (const wchar_t* const name : {L"ou", L"Out", L"out ", L"", L"no-out"})
    {
        EXPECT_EQ(options.find(name), nullptr) << toUtf8(name);
    }
}

TEST_F(RegisteredOptions, HasActionsOnceASwitchIsDeclared)
{
    EXPECT_FALSE(options.hasActions());
    options.registerValueOption(L"a", L"k", L"", value_type_boolean, L"");
    EXPECT_FALSE(options.hasActions());
    options.registerSwitch(L"", L"", 0, L""); // fails
    EXPECT_FALSE(options.hasActions());
    options.registerSwitch(L"b", L"", 13, L"");
    EXPECT_TRUE(options.hasActions());
}

TEST_F(RegisteredOptions, OptionsStayWhereTheyAre)
{
    std::vector<IOption*> declared;
    for (int number = 0; number < 500; ++number)
    {
        declared.push_back(add(std::to_wstring(number).c_str()).option);
    }
    for (std::size_t number = 0; number < declared.size(); ++number)
    {
        ASSERT_EQ(declared[number], &options[number]);
        ASSERT_EQ(options.find(std::to_wstring(number)), &options[number]);
    }
}

// Tables grow between declarations, whatever is left of their room.
TEST(RegisteredOptionsGrowth, NamesOfOneDeclarationStayTogether)
{
    for (int before = 0; before < 140; ++before)
    {
        Garbage pool{unit::heap_only};
        RegisteredOptionStorage options(pool, L',');
        const auto add = [&options](const std::wstring& names)
        {
            options.registerOption(names.c_str(), nullptr, L"", false, value_type_string, L"");
            ASSERT_EQ(options.lastRegistration().status, 3) << toUtf8(names);
        };
        for (int number = 0; number < before; ++number)
        {
            add(L"n" + std::to_wstring(number));
        }
        add(L"first,second,3");
        add(L"behind");
        const auto index = static_cast<std::size_t>(before);
        for (const wchar_t* const name : {L"first", L"second", L"3"})
        {
            ASSERT_EQ(options.find(name), &options[index]) << before;
            ASSERT_EQ(options.index().matchPrefix(name).option, before) << before;
        }
        ASSERT_EQ(options.find(L"behind"), &options[index + 1]) << before;
        for (std::size_t number = 0; number < index; ++number)
        {
            const std::wstring name = L"n" + std::to_wstring(number);
            ASSERT_EQ(options.find(name), &options[number]) << before;
            ASSERT_EQ(options[number].names.size(), 1U) << before;
            ASSERT_TRUE(options[number].hasName(name)) << before;
        }
    }
}

// Notes its number when it is destroyed.
class Watched final : public vexkit2::polymorphic_t
{
public:
    Watched(std::vector<int>& destroyed, int number) : m_destroyed(destroyed), m_number(number) {}
    Watched(const Watched&) = delete;
    Watched& operator=(const Watched&) = delete;
    ~Watched() override { m_destroyed.push_back(m_number); }

private:
    std::vector<int>& m_destroyed;
    int m_number;
};

// Whatever kind of value it is that an option holds.
TEST(RegisteredOptionsLife, OptionsAreFreedInTheOrderOfRegistration)
{
    std::vector<int> destroyed;
    {
        Garbage pool{unit::heap_only};
        RegisteredOptionStorage options(pool, L',');
        for (int number = 0; number < 8; ++number)
        {
            IOption& option =
                *options.registerValueOption(std::to_wstring(number).c_str(), nullptr, L"", 13, L"")
                     .option;
            const variant_t value = variant_t::object(new Watched(destroyed, number));
            switch (number % 4)
            {
            case 0:
                option.setDefaultValue(value);
                break;
            case 1:
                option.addAllowedValue(value);
                break;
            case 2:
                option.addDeprecatedValue(variant_t(L"old"), value);
                break;
            default: // it has none
                break;
            }
        }
        EXPECT_EQ(destroyed, (std::vector<int>{3, 7}));
        destroyed.clear();
    }
    EXPECT_EQ(destroyed, (std::vector<int>{0, 1, 2, 4, 5, 6}));
}

TEST(RegisteredOptionsLife, OneValueOfAnyKindIsFreed)
{
    std::vector<int> destroyed;
    using Give = void (*)(IOption&, const variant_t&);
    const Give ways[] = {
        [](IOption& option, const variant_t& value) { option.setDefaultValue(value); },
        [](IOption& option, const variant_t& value) { option.addAllowedValue(value); },
        [](IOption& option, const variant_t& value)
        { option.addDeprecatedValue(variant_t(1), value); },
        [](IOption& option, const variant_t& value)
        {
            option.addDeprecatedValue(value, variant_t(1));
        }};
    int number = 0;
    for (const Give give : ways)
    {
        Garbage pool{unit::heap_only};
        RegisteredOptionStorage options(pool, L',');
        options.registerOption(L"before", nullptr, L"", false, 13, L"");
        IOption& option = *options.registerSwitch(L"holder", L"", 0, L"").option;
        options.registerOption(L"behind", nullptr, L"", false, 13, L"");
        give(option, variant_t::object(new Watched(destroyed, number)));
        EXPECT_EQ(destroyed.size(), static_cast<std::size_t>(number));
        ++number;
    }
    EXPECT_EQ(destroyed, (std::vector<int>{0, 1, 2, 3}));
}

} // namespace
