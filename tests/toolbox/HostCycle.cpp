#include "HostCycle.h"

#include <cwchar>
#include <sstream>

#include "AllocationFaults.h"
#include "ResultDescription.h"

namespace faults
{

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

constexpr int flags = flag_unknown_is_error | flag_no_hyphen_positional;

Names allNames()
{
    Names names;
    for (const std::vector<const wchar_t*>& option : declaredNames())
    {
        names.insert(names.end(), option.begin(), option.end());
    }
    return names;
}

} // namespace

const std::vector<std::vector<const wchar_t*>>& declaredNames()
{
    static const std::vector<std::vector<const wchar_t*>> names = {
        {L"mode", L"m"},  {L"level", L"l"}, {L"output", L"out", L"o", L"target"},
        {L"build", L"b"}, {L"clean", L"c"}, {L"install", L"i"},
        {L"jobs", L"j"},  {L"file"},        {L"option-file"},
        {L"size"},        {L"ratio"},
    };
    return names;
}

bool CountingHandler::onOptionParsed(const wchar_t*)
{
    ++options;
    return true;
}

bool CountingHandler::onValueParsed(const wchar_t*, const ValueRecord* value)
{
    ++values;
    return !value->value.can_get<const wchar_t*>() ||
           std::wcscmp(value->value.get<const wchar_t*>(), L"refuse-me") != 0;
}

bool CountingHandler::onUnknownArgument(const wchar_t* argument)
{
    ++unknown;
    return std::wcscmp(argument, L"-take-me") != 0;
}

HostCycle::HostCycle(const TemporaryFolder& folder, const Record* expected)
    : m_folder(folder), m_steps(expected, [this] { return observe(); })
{
}

void HostCycle::run()
{
    create();
    ASSERT_NE(m_parser, nullptr);
    declare();
    declareMany();
    build();
    configure();
    ASSERT_FALSE(testing::Test::HasFatalFailure());
    parse();
    query();
    explain();
}

void HostCycle::create()
{
    m_steps.step("createParser",
                 [this]
                 {
                     static char elsewhere;
                     IParser* const untouched = reinterpret_cast<IParser*>(&elsewhere);
                     IParser* made = untouched;
                     const result_t code = inLibrary([&] { return createParser(&made, flags); });
                     if (code != result_success || made == nullptr)
                     {
                         EXPECT_TRUE((code == result_success && made == nullptr) ||
                                     (code == result_standard_exception && made == untouched));
                         return Attempt{true, {}};
                     }
                     m_parser.reset(made);
                     return Attempt{};
                 });
}

// Returns everything that a host can observe of the parser. Allocations made here do not fail.
std::wstring HostCycle::observe()
{
    if (m_parser == nullptr)
    {
        return {};
    }
    std::wostringstream state;
    state << m_parser->getTopicList(false) << m_parser->showFullHelp(false)
          << m_parser->showFullHelp(true);
    for (const std::vector<const wchar_t*>& names : declaredNames())
    {
        state << m_parser->showTopicHelp(names.front(), false)
              << m_parser->showRelatedHelp(names.front(), false);
        for (const wchar_t* const name : names)
        {
            state << m_parser->hasOption(name, true, nullptr)
                  << m_parser->hasOption(name, false, L"general");
        }
    }
    const std::vector<std::vector<const wchar_t*>> probes = {
        {L"--build", L"--mo=f", L"--level=1:2:3", L"--output=o", L"in.txt", L"--", L"-x"},
        {L"--target=x", L"--build", L"-take-me"},
        {L"--clean", L"--jobs=2"},
        {L"--mode=quick", L"--install"},
        {L"--build", L"--clean"},
        {L"--o"},
        {L"--extra"},
        {L"--build", L"--option-file=missing"},
    };
    for (const std::vector<const wchar_t*>& arguments : probes)
    {
        state << parseAndDescribe([&](IParseResult* result)
                                  { return toolbox::parse(*m_parser, arguments, result); });
    }
    return state.str();
}

std::wstring HostCycle::parseAndDescribe(const ParseCall& call)
{
    const ResultOwner result = createResult(*m_parser);
    const std::int32_t first = nextPosition();
    m_handler.options = m_handler.values = m_handler.unknown = 0;
    const result_t code = call(result.get());
    std::wostringstream text;
    text << L"code " << code << L", events " << m_handler.options << L' ' << m_handler.values
         << L' ' << m_handler.unknown;
    if (code != result_success)
    {
        text << L", message: " << m_parser->getErrorMessage();
    }
    text << L'\n' << describe(*result, allNames(), first);
    return text.str();
}

// After a failed parse all names of an option have equal values, and further parses may fill the
// result.
void HostCycle::expectContinuable(const ParseCall& call, IParseResult& partlyFilled)
{
    for (const std::vector<const wchar_t*>& names : declaredNames())
    {
        for (const wchar_t* const name : names)
        {
            EXPECT_EQ(readTexts(partlyFilled, name), readTexts(partlyFilled, names.front()))
                << toUtf8(name);
        }
    }
    const Names names = allNames();
    const Contents partly = readContents(partlyFilled, names);
    const ResultOwner fresh = createResult(*m_parser);
    EXPECT_EQ(call(fresh.get()), call(&partlyFilled));
    EXPECT_EQ(readContents(partlyFilled, names), partly + readContents(*fresh, names));
}

Attempt HostCycle::attemptParse(const ParseCall& call)
{
    const std::wstring message = m_parser->getErrorMessage();
    bool refused = false;
    const std::wstring described = parseAndDescribe(
        [&](IParseResult* result)
        {
            const result_t code = inLibrary([&] { return call(result); });
            refused = code == result_standard_exception;
            if (refused)
            {
                EXPECT_EQ(m_parser->getErrorMessage(), message) << "code 3 changed the message";
                expectContinuable(call, *result);
            }
            return code;
        });
    return {refused, refused ? std::wstring() : described};
}

} // namespace faults
