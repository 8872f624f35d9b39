// The steps of HostCycle that declare options.
#include <new>
#include <set>
#include <string>

#include "AllocationFaults.h"
#include "HostCycle.h"

namespace faults
{

using namespace kexa_3_3;
using vexkit2::variant_t;

IOption* HostCycle::declareOption(const char* title, const Declare& declaration,
                                  std::initializer_list<const wchar_t*> names, Leftover leftover)
{
    IOption* option = nullptr;
    m_steps.step(
        title,
        [&]
        {
            const Registration registration = inLibrary(declaration);
            option = registration.option;
            EXPECT_EQ(registration.status, option == nullptr ? 1 : 3);
            for (const wchar_t* const name : names)
            {
                EXPECT_EQ(m_parser->hasOption(name, false, nullptr) ||
                              m_parser->hasOption(name, true, nullptr),
                          option != nullptr);
            }
            return Attempt{option == nullptr, {}};
        },
        leftover);
    return option;
}

// A declaration with names that are refused. It adds its group nevertheless, where that is new.
void HostCycle::refuseDeclaration(const char* title, const Declare& declaration)
{
    m_steps.step(
        title,
        [&]
        {
            const Registration registration = inLibrary(declaration);
            EXPECT_EQ(registration.status, 1);
            EXPECT_EQ(registration.option, nullptr);
            return Attempt{lastCallFailed(), {}};
        },
        Leftover::something);
}

void HostCycle::stepThatThrows(const char* title, const std::function<void()>& call)
{
    m_steps.step(title,
                 [&]
                 {
                     try
                     {
                         inLibrary(call);
                         return Attempt{};
                     }
                     catch (const std::bad_alloc&)
                     {
                         return Attempt{true, {}};
                     }
                 });
}

void HostCycle::buildOption(const char* title, IOption* option, const Build& change)
{
    ASSERT_NE(option, nullptr) << title;
    stepThatThrows(title, [&] { change(*option); });
}

void HostCycle::declare()
{
    IParser& parser = *m_parser;
    const auto declareString = [&parser](const wchar_t* names, const wchar_t* description)
    {
        return [&parser, names, description]() -> const Registration&
        {
            return parser.addOption(names, description, value_type_string, L"general");
        };
    };
    refuseDeclaration("addOption with four names",
                      [&]() -> const Registration& {
                          return parser.addOption(L"a,b,c,d", L"", 13, L"general:General options");
                      });
    m_mode = declareOption("addOption mode", declareString(L"mode,m", L"How fast to go."),
                           {L"mode", L"m"});
    refuseDeclaration("addOption with a taken name",
                      [&]() -> const Registration&
                      { return parser.addOption(L"other,m", L"", 13, L"general"); });
    m_level = declareOption(
        "addOption level",
        [&]() -> const Registration&
        { return parser.addOption(L"level,l", nullptr, value_type_integer, L"general"); },
        {L"level", L"l"});
    m_output = declareOption("addOption output",
                             declareString(L"output,out,o", L"Where the result is written to, as a "
                                                            L"name of a file or of a folder."),
                             {L"output", L"out", L"o"});
    declareOption(
        "addSwitch build",
        [&]() -> const Registration&
        { return parser.addSwitch(L"build,b", L"Builds.", value_type_boolean, L"general"); },
        {L"build", L"b"});
    // A declaration that fails may leave a new group.
    declareOption(
        "addSwitch clean",
        [&]() -> const Registration&
        { return parser.addSwitch(L"clean,c", L"Cleans.", value_type_boolean, L"kexa_hidden"); },
        {L"clean", L"c"}, Leftover::something);
    declareOption(
        "addSwitch install",
        [&]() -> const Registration&
        { return parser.addSwitch(L"install,i", L"Installs.", value_type_none, L"general"); },
        {L"install", L"i"});
    m_jobs =
        declareOption("addOptionWithKeywords jobs",
                      [&]() -> const Registration&
                      {
                          return parser.addOptionWithKeywords(L"jobs,j", L"build,work", L"Jobs.",
                                                              value_type_unsigned, L"general");
                      },
                      {L"jobs", L"j"});
    m_file = declareOption("addOption file", declareString(L"file", L"What to read."), {L"file"});
    declareOption("addOption size",
                  [&]() -> const Registration&
                  { return parser.addOption(L"size", L"", value_type_unsigned64, L"general"); },
                  {L"size"});
    declareOption("addOption ratio",
                  [&]() -> const Registration&
                  { return parser.addOption(L"ratio", L"", value_type_double, L"general"); },
                  {L"ratio"});
}

// So many declarations that every table of the parser grows.
void HostCycle::declareMany()
{
    for (int number = 0; number < 40; ++number)
    {
        const std::wstring name = L"extra-" + std::to_wstring(number);
        declareOption("addOption extra",
                      [&]() -> const Registration& {
                          return m_parser->addOption(name.c_str(), L"One more.", value_type_string,
                                                     L"general");
                      },
                      {name.c_str()});
    }
}

void HostCycle::build()
{
    // Created outside of the steps, because allocations by the host must not fail.
    const variant_t fast(L"fast");
    const variant_t slow(L"slow");
    const variant_t automatic(L"auto");
    const variant_t quick(L"quick");
    const variant_t narrow("narrow");
    buildOption("addName", m_output, [](IOption& option) { option.addName(L"target"); });
    buildOption("addAllowedValue fast", m_mode,
                [&](IOption& option) { option.addAllowedValue(fast); });
    buildOption("addAllowedValue slow", m_mode,
                [&](IOption& option) { option.addAllowedValue(slow); });
    buildOption("addAllowedValue auto", m_mode,
                [&](IOption& option) { option.addAllowedValue(automatic); });
    buildOption("addAllowedValue narrow", m_mode,
                [&](IOption& option) { option.addAllowedValue(narrow); });
    buildOption("addDeprecatedValue", m_mode,
                [&](IOption& option) { option.addDeprecatedValue(quick, fast); });
    buildOption("setDefaultValue auto", m_mode,
                [&](IOption& option) { option.setDefaultValue(automatic); });
    buildOption("setDefaultValue 3", m_level,
                [](IOption& option) { option.setDefaultValue(variant_t(3)); });
    buildOption("setSeparator", m_level, [](IOption& option) { option.setSeparator(L':'); });
    buildOption("setMarked", m_file, [](IOption& option) { option.setMarked(); });
    buildOption("addKeywords", m_jobs,
                [](IOption& option) { option.addKeywords(L"install,work,one,two,three"); });
    for (const int allowed : {1, 2, 4, 8})
    {
        const variant_t value(allowed);
        buildOption("addAllowedValue of jobs", m_jobs,
                    [&](IOption& option) { option.addAllowedValue(value); });
    }
}

void HostCycle::configure()
{
    m_steps.step("enableOptionFiles",
                 [this]
                 {
                     const bool declared = inLibrary(
                         [this] { return m_parser->enableOptionFiles(L"Read it.", L"general"); });
                     EXPECT_EQ(m_parser->hasOption(L"option-file", false, nullptr), declared);
                     return Attempt{!declared, {}};
                 });
    const std::set<std::wstring> together = {L"build", L"install"};
    stepThatThrows("addCompatibleActions", [&] { m_parser->addCompatibleActions(together); });
    stepThatThrows("addCompatibleActions again", [&] { m_parser->addCompatibleActions({}); });
    stepThatThrows("addEventHandler",
                   [this] { EXPECT_TRUE(m_parser->addEventHandler(&m_handler)); });
}

} // namespace faults
