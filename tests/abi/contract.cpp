// Compiled only for the compiler's dump of class layouts and virtual tables, which check_slots.py
// reads. Never run.
#include <cstddef>

#include <kexa/kexa.h>

using namespace kexa_3_3;
using vexkit2::variant_t;

namespace
{

// One class for each interface, since a compiler emits a virtual table only for a class that is
// constructed, and GCC names only operations that are not pure.
class Handler : public EventHandler
{
};

class Option : public IOption
{
public:
    IOption& addName(const wchar_t*) override { return *this; }
    IOption& addAllowedValue(const variant_t&) override { return *this; }
    IOption& addDeprecatedValue(const variant_t&, const variant_t&) override { return *this; }
    IOption& setDefaultValue(const variant_t&) override { return *this; }
    IOption& setSeparator(wchar_t) override { return *this; }
    IOption& setMarked() override { return *this; }
    IOption& addKeywords(const wchar_t*) override { return *this; }
};

class ParseResult : public IParseResult
{
public:
    void release() override { delete this; }
    std::int32_t isPresent(const wchar_t*, std::int32_t, std::int32_t) override { return 0; }
    result_t getFirstValue(Value*, const wchar_t*, std::int32_t, std::int32_t) override
    {
        return result_nothing;
    }
    result_t getNextValue(Value*, const wchar_t*) override { return result_nothing; }
    std::int32_t getNextPosition() override { return no_position; }
    result_t getFirstUnparsed(const wchar_t**) override { return result_nothing; }
    result_t getNextUnparsed(const wchar_t**) override { return result_nothing; }
};

class Parser : public IParser
{
public:
    // In reverse order: the slots follow the declarations of the interface, not these.
    void addCompatibleActions(const std::set<std::wstring>&) override {}
    bool enableOptionFiles(const wchar_t*, const wchar_t*) override { return false; }
    bool removeEventHandler(EventHandler*) override { return false; }
    bool addEventHandler(EventHandler*) override { return false; }
    const wchar_t* showFullHelp(bool) override { return L""; }
    const wchar_t* showRelatedHelp(const wchar_t*, bool) override { return L""; }
    const wchar_t* getTopicList(bool) override { return L""; }
    const wchar_t* showTopicHelp(const wchar_t*, bool) override { return L""; }
    const wchar_t* getErrorMessage() override { return L""; }
    result_t parseCommandLine(const wchar_t*, IParseResult*) override { return result_success; }
    result_t parse(std::int32_t, const wchar_t* const*, IParseResult*) override
    {
        return result_success;
    }
    bool hasOption(const wchar_t*, bool, const wchar_t*) override { return false; }
    const Registration& addOptionWithKeywords(const wchar_t*, const wchar_t*, const wchar_t*,
                                              std::int32_t, const wchar_t*) override
    {
        return m_registration;
    }
    const Registration& addSwitch(const wchar_t*, const wchar_t*, std::int32_t,
                                  const wchar_t*) override
    {
        return m_registration;
    }
    const Registration& addOption(const wchar_t*, const wchar_t*, std::int32_t,
                                  const wchar_t*) override
    {
        return m_registration;
    }
    result_t createParseResult(IParseResult**) override { return result_success; }
    void release() override { delete this; }

private:
    Registration m_registration = {};
};

} // namespace

void layOutTheContract()
{
    Handler handler;
    EventHandler& events = handler;
    events.onOptionParsed(L"");
    Option option;
    ParseResult result;
    Parser parser;
    ValueRecord record = {L"", variant_t(), 0};
    Value value;
    WordWrappedText text(L"", L"", 0, 80);
    static_cast<void>(option.addName(record.optionName));
    static_cast<void>(result.getNextValue(&value, text.getText()));
    static_cast<void>(parser.getErrorMessage());
}
