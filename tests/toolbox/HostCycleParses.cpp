// The steps of HostCycle that parse, query the result and create help texts.
#include <new>
#include <vector>

#include "AllocationFaults.h"
#include "HostCycle.h"
#include "ResultDescription.h"

namespace faults
{

using namespace kexa_3_3;
using namespace toolbox;

void HostCycle::parseStep(const char* title, const ParseCall& call)
{
    m_steps.step(title, [&] { return attemptParse(call); });
}

void HostCycle::parseVector(const char* title, std::initializer_list<const wchar_t*> arguments)
{
    std::vector<const wchar_t*> vector = {L"program"};
    vector.insert(vector.end(), arguments.begin(), arguments.end());
    const auto count = static_cast<std::int32_t>(vector.size());
    parseStep(title,
              [&](IParseResult* result) { return m_parser->parse(count, vector.data(), result); });
}

void HostCycle::parseLines(const char* title, const wchar_t* commandLine)
{
    parseStep(title, [&](IParseResult* result)
              { return m_parser->parseCommandLine(commandLine, result); });
}

void HostCycle::parse()
{
    parseVector("values, lists, positions",
                {L"--build", L"--mo=f", L"--level=1:2:3", L"-o", L"out.txt", L"a.txt", L"-j=8",
                 L"--size=1Fh", L"--ratio=2.5", L"b.txt", L"-take-me", L"--", L"left", L"-over"});
    parseVector("many values", {L"--build", L"--level=1:2:3:4:5:6:7:8:9:10:11:12:13:14:15:16:17",
                                L"--target=a,b,c,d,e,f,g", L"--extra-1=x", L"--extra-2=x",
                                L"--extra-3=x", L"--extra-4=x", L"--extra-5=x", L"--extra-6=x"});
    parseVector("a deprecated value", {L"--install", L"--mode=quick"});
    parseVector("actions together", {L"--build", L"--install"});
    parseVector("nothing", {});
    parseVector("the trace", {L"kexaoption=kexalogenable=1", L"--build", L"--level=7", L"x"});
    parseLines("lines", L"--build\n# comment\n--mode=slow\n--output=o p\nfile name\n");
    const std::wstring first = m_folder.name(L"first");
    const std::wstring nested = L"--option-file=" + first;
    parseVector("option files", {L"--build", nested.c_str(), L"--level=0"});
    const std::wstring missing = L"--option-file=" + m_folder.name(L"missing");
    parseVector("a missing option file", {L"--build", missing.c_str()});
    parseVector("a wrong number", {L"--build", L"--level=1:x"});
    parseVector("separators only", {L"--build", L"--level=:::"});
    parseVector("a value that is not allowed", {L"--build", L"--mode=unheard-of"});
    parseVector("an ambiguous value", {L"--build", L"--mode="});
    parseVector("a refused value", {L"--build", L"--output=refuse-me"});
    parseVector("an ambiguous option", {L"--build", L"--extra"});
    parseVector("an unknown option", {L"--build", L"--nonsense"});
    parseVector("a missing value", {L"--build", L"--output"});
    parseVector("a switch with a value", {L"--build=1"});
    parseVector("actions apart", {L"--build", L"--clean"});
    parseVector("an option of another action", {L"--clean", L"--jobs=2"});
    parseVector("no action", {L"--output=x"});
    const wchar_t* const vector[] = {L"program", L"--build", L"--level=1"};
    m_steps.step("parse without a result",
                 [&]
                 {
                     const result_t code =
                         inLibrary([&] { return m_parser->parse(3, vector, nullptr); });
                     return Attempt{code == result_standard_exception, std::to_wstring(code)};
                 });
}

void HostCycle::query()
{
    m_steps.step("createParseResult",
                 [this]
                 {
                     static char elsewhere;
                     IParseResult* const untouched = reinterpret_cast<IParseResult*>(&elsewhere);
                     IParseResult* made = untouched;
                     const result_t code =
                         inLibrary([&] { return m_parser->createParseResult(&made); });
                     if (code != result_success || made == nullptr)
                     {
                         EXPECT_TRUE((code == result_success && made == nullptr) ||
                                     (code == result_standard_exception && made == untouched));
                         return Attempt{true, {}};
                     }
                     m_result.reset(made);
                     return Attempt{};
                 });
    ASSERT_NE(m_result, nullptr);
    const std::int32_t first = nextPosition();
    toolbox::parse(*m_parser, {L"--build", L"--output=a,b,c", L"--", L"-left"}, m_result.get());
    m_steps.step("queries",
                 [this, first]
                 {
                     // Queries may return code 3 if an allocation fails, but these do not allocate.
                     Value value;
                     const wchar_t* argument = nullptr;
                     const bool succeeded = inLibrary(
                         [&]
                         {
                             IParseResult& result = *m_result;
                             return result.isPresent(L"out", 0, no_position) == 1 &&
                                    result.getFirstValue(&value, L"out", 0, no_position) == 0 &&
                                    result.getNextValue(&value, L"out") == 0 &&
                                    result.getNextPosition() != no_position &&
                                    result.getFirstUnparsed(&argument) == 0 &&
                                    getLastValue(&result, L"o", 0, no_position).status == 0;
                         });
                     EXPECT_TRUE(succeeded);
                     return Attempt{false, describe(*m_result, {L"target", L"build"}, first)};
                 });
}

// Help is the complete text, or empty if an allocation fails.
void HostCycle::helpStep(const char* title, const Help& help)
{
    m_steps.step(title,
                 [&]
                 {
                     const wchar_t* const text = inLibrary(help);
                     return Attempt{lastCallFailed() && *text == L'\0', text};
                 });
}

void HostCycle::explain()
{
    m_steps.step("getErrorMessage",
                 [this]
                 {
                     toolbox::parse(*m_parser, {L"--build", L"-never-seen"}, nullptr);
                     const wchar_t* const message =
                         inLibrary([this] { return m_parser->getErrorMessage(); });
                     return Attempt{lastCallFailed() && *message == L'\0', message};
                 });
    helpStep("getTopicList", [this] { return m_parser->getTopicList(false); });
    helpStep("showTopicHelp", [this] { return m_parser->showTopicHelp(L"mode", false); });
    helpStep("showTopicHelp of nothing", [this] { return m_parser->showTopicHelp(L"x", false); });
    helpStep("showRelatedHelp", [this] { return m_parser->showRelatedHelp(L"build", false); });
    helpStep("showFullHelp", [this] { return m_parser->showFullHelp(false); });
    stepThatThrows("WordWrappedText",
                   []
                   {
                       const WordWrappedText text(
                           L"lead", L"words that are to be wrapped over several lines", 8, 20);
                       EXPECT_NE(text.getText(), nullptr);
                   });
    stepThatThrows("removeEventHandler",
                   [this] { EXPECT_TRUE(m_parser->removeEventHandler(&m_handler)); });
}

} // namespace faults
