#include "Help.h"

#include <algorithm>

#include "Characters.h"
#include "Hints.h"
#include "Inline.h"
#include "platform/TerminalWidth.h"
#include "text/DisplayWidth.h"
#include "text/Encoding.h"
#include "text/Wrapping.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// The widest column for names; an entry whose names are wider has its text on the next line.
inline constexpr std::size_t widest_lead = 28;
inline constexpr std::size_t lead_gap = 2;

// The sections of the help, filled in order.
class HelpPage
{
public:
    HelpPage(const State& state, std::size_t width) : m_state(state), m_width(width)
    {
        for (const Declaration* declaration : state.declarations())
        {
            const std::size_t cells = displayWidth(leadOf(state.definition(), *declaration));
            if (!declaration->hidden && cells <= widest_lead)
            {
                m_indent = std::max(m_indent, cells + lead_gap);
            }
        }
    }

    void addParagraph(const std::string& text)
    {
        if (text.empty())
        {
            return;
        }
        beginSection();
        for (const std::string& line : wrapText(text, m_width))
        {
            m_text += line + "\n";
        }
    }

    void addEntry(const Declaration& declaration)
    {
        appendHanging(m_text, leadOf(m_state.definition(), declaration),
                      textOfEntry(m_state, declaration), m_indent, m_width);
    }

    // Adds the entries that are wanted, with a heading where there is any.
    template <class Wanted>
    void addSection(const std::string& heading, const Wanted& wanted)
    {
        bool isBegun = false;
        for (const Declaration* declaration : m_state.declarations())
        {
            if (!declaration->hidden && wanted(*declaration))
            {
                if (!isBegun)
                {
                    beginSection();
                    m_text += heading + ":\n";
                    isBegun = true;
                }
                addEntry(*declaration);
            }
        }
    }

    void addUsage();
    void addExamples();
    std::string text() { return std::move(m_text); }

private:
    void beginSection() { m_text += m_text.empty() ? "" : "\n"; }

    const State& m_state;
    std::size_t m_width;
    std::size_t m_indent = 0;
    std::string m_text;
};

KEXA_COMMAND_INLINE void HelpPage::addUsage()
{
    const auto has = [this](auto&& wanted)
    {
        return std::any_of(m_state.declarations().begin(), m_state.declarations().end(),
                           [&](const Declaration* each) { return !each->hidden && wanted(*each); });
    };
    std::string forms;
    if (has([](const Declaration& each)
            { return isNamedOption(each) && each.kind != Kind::action; }))
    {
        forms += " [options]";
    }
    if (has([](const Declaration& each) { return each.kind == Kind::action; }))
    {
        forms += m_state.definition().verbs ? " action" : " --action";
    }
    if (has([](const Declaration& each) { return each.kind == Kind::subcommand; }))
    {
        forms += " command ...";
    }
    for (const Declaration* declaration : m_state.positionals())
    {
        if (!declaration->hidden)
        {
            forms += " " + argumentForm(*declaration);
        }
    }
    const std::string lead = "Usage: " + m_state.definition().path;
    const std::size_t indent = std::min(displayWidth(lead), m_width / 2) + 1;
    m_text += lead;
    bool isFirst = true;
    for (const std::string& line : wrapText(forms, m_width - indent))
    {
        m_text += isFirst ? line : "\n" + std::string(indent, ' ') + line;
        isFirst = false;
    }
    m_text += "\n";
}

KEXA_COMMAND_INLINE void HelpPage::addExamples()
{
    const auto& examples = m_state.definition().examples;
    if (examples.empty())
    {
        return;
    }
    beginSection();
    m_text += "Examples:\n";
    for (const auto& [line, description] : examples)
    {
        m_text += "  " + line + "\n";
        if (!description.empty())
        {
            appendHanging(m_text, "", description, 6, m_width);
        }
    }
}

KEXA_COMMAND_LOCAL bool isPlainOption(const Declaration& declaration)
{
    return isNamedOption(declaration) && declaration.kind != Kind::action;
}

KEXA_COMMAND_INLINE std::string helpText(const State& state, std::size_t width)
{
    HelpPage page(state, width);
    page.addUsage();
    page.addParagraph(state.definition().summary);
    page.addSection("Commands", [](const Declaration& each)
                    { return each.kind == Kind::subcommand && each.group.empty(); });
    page.addSection("Actions", [](const Declaration& each)
                    { return each.kind == Kind::action && each.group.empty(); });
    page.addSection("Arguments", [](const Declaration& each) { return isPositional(each); });
    page.addSection("Options", [](const Declaration& each)
                    { return isPlainOption(each) && each.group.empty(); });
    std::vector<std::string> groups;
    for (const Declaration* declaration : state.declarations())
    {
        const std::string& group = declaration->group;
        if (!group.empty() && !isPositional(*declaration) &&
            std::find(groups.begin(), groups.end(), group) == groups.end())
        {
            groups.push_back(group);
            page.addSection(group, [&](const Declaration& each)
                            { return !isPositional(each) && each.group == group; });
        }
    }
    page.addExamples();
    page.addParagraph(state.definition().epilog);
    return page.text();
}

KEXA_COMMAND_INLINE std::string topicText(const State& state, std::string_view topic,
                                          std::size_t width)
{
    const std::wstring wide = widen(topic);
    const std::wstring_view name = std::wstring_view(wide).substr(countHyphens(wide));
    NameMatch found = state.verbs().match(name);
    if (found.entry == nullptr || name.empty())
    {
        found = state.names().match(name);
    }
    if (found.entry == nullptr || name.empty())
    {
        const std::string hint = hintOfNames(state.names(), name, true);
        return "There is no help for '" + std::string(topic) + "'.\n" +
               (hint.empty() ? hint : "  " + hint + "\n");
    }
    const Declaration& declaration = *found.entry->declaration;
    if (declaration.kind == Kind::subcommand)
    {
        return declaration.command->help({}, width);
    }
    HelpPage page(state, width);
    page.addEntry(declaration);
    if (declaration.kind == Kind::action)
    {
        page.addSection("Options",
                        [&](const Declaration& each)
                        {
                            return isPlainOption(each) &&
                                   std::find(each.actions.begin(), each.actions.end(),
                                             declaration.index) != each.actions.end();
                        });
    }
    return page.text();
}

KEXA_COMMAND_INLINE std::string Core::help(std::string_view topic, std::size_t columns)
{
    m_state->prepare();
    const std::size_t width = columns == 0 ? clampHelpWidth(terminalColumns()) : columns;
    return topic.empty() ? helpText(*m_state, width) : topicText(*m_state, topic, width);
}

} // namespace detail
} // namespace v1
} // namespace kexa
