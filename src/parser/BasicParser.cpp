#include "parser/BasicParser.h"

#include <exception>
#include <new>

#include "help/HelpOutput.h"
#include "parser/OptionFiles.h"
#include "result/ParseResult.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

result_t createParser(IParser** out, int flags)
{
    try
    {
        *out = new (std::nothrow) BasicParser(flags);
        return result_success;
    }
    // Some standard libraries allocate when a container is made. That of the coverage run does not.
    catch (const std::exception&) // GCOVR_EXCL_LINE
    {
        return result_standard_exception; // GCOVR_EXCL_LINE
    }
}

BasicParser::BasicParser(std::int32_t flags)
    : m_strings(m_firstBlock.bytes()), m_options(m_strings, L','), m_flags(flags)
{
    if ((flags & flag_no_value_lists) != 0)
    {
        m_options.setDefaultSeparator(0);
    }
}

BasicParser::~BasicParser() = default;

void BasicParser::release()
{
    delete this;
}

result_t BasicParser::createParseResult(IParseResult** out)
{
    try
    {
        *out = new (std::nothrow) ParseResult();
        return result_success;
    }
    catch (const std::exception&) // GCOVR_EXCL_LINE: as in createParser
    {
        return result_standard_exception; // GCOVR_EXCL_LINE
    }
}

bool BasicParser::onOptionParsed(const wchar_t* name)
{
    return m_events.empty() || m_events.onOptionParsed(textForHandlers(viewOf(name)));
}

bool BasicParser::onValueParsed(const wchar_t* name, const ValueRecord* value)
{
    return m_events.empty() || m_events.onValueParsed(textForHandlers(viewOf(name)), value);
}

bool BasicParser::onUnknownArgument(const wchar_t* argument)
{
    return m_events.empty() || m_events.onUnknownArgument(textForHandlers(viewOf(argument)));
}

// Returns a copy of the text that lives as long as the parser, one for all equal texts. For the
// primary name of an option it is the declared name itself, as in the events of a parse.
const wchar_t* BasicParser::textForHandlers(std::wstring_view text)
{
    const OptionDescription* const option = m_options.find(text);
    return option != nullptr && option->primaryName() == text ? option->primaryName().data()
                                                              : m_strings.internText(text).data();
}

bool BasicParser::addEventHandler(EventHandler* handler)
{
    return m_events.add(handler);
}

bool BasicParser::removeEventHandler(EventHandler* handler)
{
    return m_events.remove(handler);
}

const Registration& BasicParser::addOption(const wchar_t* names, const wchar_t* description,
                                           std::int32_t valueType, const wchar_t* groupText)
{
    return m_options.registerOption(names, nullptr, description, false, valueType, groupText);
}

const Registration& BasicParser::addSwitch(const wchar_t* names, const wchar_t* description,
                                           std::int32_t valueType, const wchar_t* groupText)
{
    return m_options.registerSwitch(names, description, valueType, groupText);
}

const Registration& BasicParser::addOptionWithKeywords(const wchar_t* names,
                                                       const wchar_t* keywords,
                                                       const wchar_t* description,
                                                       std::int32_t valueType,
                                                       const wchar_t* groupText)
{
    return m_options.registerValueOption(names, keywords, description, valueType, groupText);
}

bool BasicParser::hasOption(const wchar_t* name, bool switchesOnly, const wchar_t* group)
{
    if (name == nullptr)
    {
        return false;
    }
    const std::wstring_view wanted(name);
    for (std::size_t index = 0; index < m_options.size(); ++index)
    {
        const OptionDescription& option = m_options[index];
        if (option.takesValue() != switchesOnly &&
            (group == nullptr || option.group.name == group) && option.hasName(wanted))
        {
            return true;
        }
    }
    return false;
}

bool BasicParser::enableOptionFiles(const wchar_t* description, const wchar_t* groupText)
{
    m_optionFilesEnabled = true;
    return addOption(option_file_name, description, value_type_string, groupText).option != nullptr;
}

void BasicParser::addCompatibleActions(const std::set<std::wstring>& actions)
{
    // Copied first: the set may be one of those that move when the vector grows.
    std::set<std::wstring> group(actions);
    m_compatibleActions.push_back(std::move(group));
}

const wchar_t* BasicParser::getErrorMessage()
{
    return handOut([this] { return m_errorMessage; });
}

// Returns the text that makeText returns, kept in the pool; an empty one when there is no memory.
template <class MakeText>
const wchar_t* BasicParser::handOut(MakeText makeText)
{
    try
    {
        return m_strings.internText(makeText()).data();
    }
    catch (const std::exception&)
    {
        return L"";
    }
}

const wchar_t* BasicParser::showTopicHelp(const wchar_t* topic, bool hidden)
{
    return handOut([&] { return formatTopicHelp(m_options, topic, hidden); });
}

const wchar_t* BasicParser::getTopicList(bool hidden)
{
    return handOut([&] { return formatTopicList(m_options, hidden); });
}

const wchar_t* BasicParser::showRelatedHelp(const wchar_t* topic, bool hidden)
{
    return handOut([&] { return formatRelatedHelp(m_options, topic, hidden); });
}

const wchar_t* BasicParser::showFullHelp(bool hidden)
{
    return handOut([&] { return formatFullHelp(m_options, hidden); });
}

} // namespace kexa_3_3
