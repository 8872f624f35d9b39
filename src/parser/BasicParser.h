// The parser that a host holds as IParser.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "kexa/parser.h"

#include "options/RegisteredOptionStorage.h"
#include "parser/ActionCheck.h"
#include "parser/EventForwarding.h"
#include "support/memory/Garbage.h"
#include "support/memory/InlineBlock.h"

namespace kexa_3_3
{

class ArgumentQueue;
class ParseResult;

// See IParser for its operations. Three more follow them in the table of virtual functions.
class BasicParser : public IParser
{
public:
    explicit BasicParser(std::int32_t flags);
    BasicParser(const BasicParser&) = delete;
    BasicParser& operator=(const BasicParser&) = delete;

    // Forward an event to the registered handlers. The host calls these, or another parser that has
    // this one as a handler; the text is copied, as it may not live as long as handlers expect.
    bool onOptionParsed(const wchar_t* name) override;
    bool onValueParsed(const wchar_t* name, const ValueRecord* value) override;
    bool onUnknownArgument(const wchar_t* argument) override;

    void release() override;
    result_t createParseResult(IParseResult** out) override;
    const Registration& addOption(const wchar_t* names, const wchar_t* description,
                                  std::int32_t valueType, const wchar_t* groupText) override;
    const Registration& addSwitch(const wchar_t* names, const wchar_t* description,
                                  std::int32_t valueType, const wchar_t* groupText) override;
    const Registration& addOptionWithKeywords(const wchar_t* names, const wchar_t* keywords,
                                              const wchar_t* description, std::int32_t valueType,
                                              const wchar_t* groupText) override;
    bool hasOption(const wchar_t* name, bool switchesOnly, const wchar_t* group) override;
    result_t parse(std::int32_t argc, const wchar_t* const* argv, IParseResult* result) override;
    result_t parseCommandLine(const wchar_t* commandLine, IParseResult* result) override;
    const wchar_t* getErrorMessage() override;
    const wchar_t* showTopicHelp(const wchar_t* topic, bool hidden) override;
    const wchar_t* getTopicList(bool hidden) override;
    const wchar_t* showRelatedHelp(const wchar_t* topic, bool hidden) override;
    const wchar_t* showFullHelp(bool hidden) override;
    bool addEventHandler(EventHandler* handler) override;
    bool removeEventHandler(EventHandler* handler) override;
    bool enableOptionFiles(const wchar_t* description, const wchar_t* groupText) override;
    void addCompatibleActions(const std::set<std::wstring>& actions) override;
    ~BasicParser() override;

    // The result of the operations below is null or was made by this library.

    // Parses arguments without a program name in all steps: the arguments up to the end marker,
    // those behind it, the option files, and the action check. Passes on standard exceptions; any
    // other becomes code 4.
    virtual result_t parseArguments(ArgumentQueue& arguments, IParseResult* result);

    // Parses up to the end marker, which stays in front of the remaining arguments.
    virtual result_t parseVector(std::wstring_view endMarker, ArgumentQueue& arguments,
                                 IParseResult* result, std::wstring& message);

    // Checks the actions among what the result holds. The arguments are not used.
    virtual result_t checkActions(const ArgumentQueue& arguments, IParseResult* result,
                                  std::wstring& message);

private:
    [[nodiscard]] result_t runSteps(ArgumentQueue& arguments, ParseResult* result);
    [[nodiscard]] result_t parseAndCollect(ArgumentQueue& arguments, ParseResult* result);
    [[nodiscard]] result_t collectNonparsingArguments(std::wstring_view endMarker,
                                                      ArgumentQueue& arguments, ParseResult* result,
                                                      std::wstring& message);
    [[nodiscard]] EventHandler* eventReceiver() noexcept;
    [[nodiscard]] bool dropUnknown(ArgumentQueue& arguments, std::wstring& message);
    [[nodiscard]] const wchar_t* textForHandlers(std::wstring_view text);
    void storeDefaults(ParseResult& result) const;

    template <class MakeText>
    const wchar_t* handOut(MakeText makeText);

    InlineBlock<24576> m_firstBlock; // holds the declarations of a usual program
    Garbage m_strings;               // before the options, which keep their texts in it
    RegisteredOptionStorage m_options;
    std::wstring m_errorMessage;
    std::int32_t m_flags;
    EventForwarding m_events; // receives the events of a parse, whose texts live long enough
    bool m_optionFilesEnabled = false;
    ActionGroups m_compatibleActions;
};

} // namespace kexa_3_3
