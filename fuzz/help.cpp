// Fuzzes declarations: checks the help texts.
//
// Inputs have the format of DeclaredLines, except that the names in O, K and S lines are followed
// by the group text and the description, each after ';'. In a description "\" stands for a line
// feed.
#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "DeclaredLines.h"
#include "Fuzzing.h"
#include "kexa/kexa.h"

using namespace kexa_3_3;
using fuzzing::takeUpTo;

namespace
{

constexpr std::size_t line_width = 80;

struct Release
{
    void operator()(IParser* parser) const { parser->release(); }
};
using ParserOwner = std::unique_ptr<IParser, Release>;

struct Declared
{
    std::wstring name;
    std::wstring group;
    std::wstring description;
    bool isSwitch = false;
    bool marked = false;
    bool keywords = false;
};

class Declarations
{
public:
    explicit Declarations(IParser& parser) : m_parser(parser) {}

    void readLine(std::wstring line)
    {
        const wchar_t first = line.empty() ? L' ' : line.front();
        line.erase(0, 1);
        switch (first)
        {
        case L'O':
        case L'K':
        case L'S':
            declare(first, line);
            break;
        case L'N':
            change([&] { m_last->addName(line.c_str()); });
            break;
        case L'A':
            change([&] { m_last->addAllowedValue(fuzzing::valueOf(line)); });
            break;
        case L'V':
            change([&] { m_last->setDefaultValue(fuzzing::valueOf(line)); });
            break;
        case L'M':
            change(
                [&]
                {
                    m_last->setMarked();
                    m_declared.back().marked = true;
                });
            break;
        case L'W':
            change(
                [&]
                {
                    m_last->addKeywords(line.c_str());
                    m_declared.back().keywords = true;
                });
            break;
        default:
            break;
        }
    }

    const std::vector<Declared>& all() const { return m_declared; }

private:
    template <class Change>
    void change(Change apply)
    {
        if (m_last != nullptr)
        {
            apply();
        }
    }

    void declare(wchar_t form, std::wstring line)
    {
        const std::int32_t type = fuzzing::valueTypeOf(line.empty() ? L's' : line.front());
        line.erase(0, 1);
        const std::wstring names = takeUpTo(line, L';');
        const std::wstring group = takeUpTo(line, L';');
        for (wchar_t& character : line)
        {
            character = character == L'\\' ? L'\n' : character;
        }
        const Registration& made =
            form == L'S'
                ? m_parser.addSwitch(names.c_str(), line.c_str(), type, group.c_str())
                : m_parser.addOptionWithKeywords(names.c_str(), form == L'K' ? L"key" : nullptr,
                                                 line.c_str(), type, group.c_str());
        m_last = made.option;
        if (m_last != nullptr)
        {
            const std::size_t begin = names.find_first_not_of(L',');
            m_declared.push_back({names.substr(begin, names.find(L',', begin) - begin),
                                  group.substr(0, group.find(L':')), line, form == L'S', false,
                                  form == L'K'});
        }
    }

    IParser& m_parser;
    IOption* m_last = nullptr;
    std::vector<Declared> m_declared;
};

bool holds(const std::wstring& text, const std::wstring& part)
{
    return text.find(part) != std::wstring::npos;
}

// Requires all characters of the description in their order, except blanks and line feeds.
void checkDescription(const std::wstring& help, const std::wstring& description)
{
    std::size_t position = 0;
    for (const wchar_t character : description)
    {
        if (character == L' ' || character == L'\n')
        {
            continue;
        }
        position = help.find(character, position);
        fuzzing::require(position != std::wstring::npos, "a description loses no character");
        ++position;
    }
}

// Requires that the wrapped lines of descriptions (all but the first line of each) keep the width.
void checkWidth(std::wstring help)
{
    while (!help.empty())
    {
        const std::wstring line = takeUpTo(help, L'\n');
        const bool wrapped = line.compare(0, 30, std::wstring(30, L' ')) == 0;
        fuzzing::require(!wrapped || line.size() < line_width, "a description keeps the width");
    }
}

void checkOption(IParser& parser, const Declared& option)
{
    const bool hidden = option.group == L"kexa_hidden";
    const std::wstring help = parser.showTopicHelp(option.name.c_str(), hidden);
    const std::wstring full = parser.showFullHelp(hidden);
    const bool listed = holds(help, L"-" + option.name);
    if (!option.marked)
    {
        fuzzing::require(listed, "an option's help names the option");
        checkDescription(help, option.description);
        if (option.group.compare(0, 1, L" ") != 0)
        {
            checkWidth(help); // otherwise the group looks like a wrapped line
        }
        fuzzing::require(option.isSwitch || option.keywords || holds(full, L"-" + option.name),
                         "the full help names options without keywords");
    }
    fuzzing::require(parser.hasOption(option.name.c_str(), option.isSwitch, nullptr),
                     "hasOption finds what is declared");
}

// Requires one line for each switch, sorted by name, with the descriptions in one column.
void checkTopics(IParser& parser, const std::vector<Declared>& declared)
{
    for (const bool hidden : {false, true})
    {
        std::map<std::wstring, std::wstring> topics;
        std::size_t width = 0;
        for (const Declared& option : declared)
        {
            if (option.isSwitch && hidden == (option.group == L"kexa_hidden"))
            {
                topics[option.name] = option.description;
                width = std::max(width, option.name.size() + 3);
            }
        }
        std::wstring expected;
        for (const auto& [name, description] : topics)
        {
            expected +=
                L"    " + name + std::wstring(width - name.size(), L' ') + description + L'\n';
        }
        fuzzing::requireEqual(parser.getTopicList(hidden), expected,
                              "the topic list contains the switches");
    }
}

void checkUnknown(IParser& parser, const std::wstring& topic)
{
    for (const bool hidden : {false, true})
    {
        const std::wstring topics = parser.getTopicList(hidden);
        fuzzing::requireEqual(parser.showTopicHelp(nullptr, hidden), topics,
                              "the help of a null topic is the topic list");
        if (parser.hasOption(topic.c_str(), true, nullptr) ||
            parser.hasOption(topic.c_str(), false, nullptr))
        {
            continue;
        }
        const std::wstring expected = L"Help for " + topic +
                                      L" not available.Please use one of the following topics:\n" +
                                      topics;
        fuzzing::requireEqual(parser.showTopicHelp(topic.c_str(), hidden), expected,
                              "the help of an unknown topic is a message with the topic list");
        fuzzing::requireEqual(
            parser.showRelatedHelp(topic.c_str(), hidden), expected,
            "the related help of an unknown topic is a message with the topic list");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    IParser* made = nullptr;
    fuzzing::require(createParser(&made, 0) == result_success && made != nullptr,
                     "a parser is created");
    const ParserOwner parser(made);
    Declarations declarations(*parser);
    std::wstring topic = L"?";
    for (const std::wstring& line : fuzzing::linesOf(data, size))
    {
        declarations.readLine(line);
        topic = line;
    }
    checkTopics(*parser, declarations.all());
    checkUnknown(*parser, topic);
    for (const Declared& option : declarations.all())
    {
        checkOption(*parser, option);
        // Creating a help text must not change the next one.
        const std::wstring related = parser->showRelatedHelp(option.name.c_str(), false);
        fuzzing::requireEqual(parser->showRelatedHelp(option.name.c_str(), false), related,
                              "the second related help is equal to the first");
    }
    return 0;
}
