// What must hold of a line once its values are bound.
#include <algorithm>

#include "Inline.h"
#include "LineBinding.h"
#include "Messages.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE bool LineBinding::isChosen(const std::vector<std::size_t>& actions) const
{
    return std::any_of(actions.begin(), actions.end(),
                       [this](std::size_t action) { return m_sources[action] == Source::given; });
}

// The first by name, as in the parser's messages. Returns null where nothing is wanted.
template <class Wanted>
const Declaration* firstByName(const std::vector<const Declaration*>& declarations,
                               const Wanted& wanted)
{
    const Declaration* first = nullptr;
    for (const Declaration* declaration : declarations)
    {
        if (wanted(*declaration) &&
            (first == nullptr || declaration->names.front() < first->names.front()))
        {
            first = declaration;
        }
    }
    return first;
}

// The parser would ask the first of several actions only; here it is enough that one of those
// given accepts the option.
KEXA_COMMAND_INLINE bool LineBinding::checkAccepted()
{
    const auto isGiven = [this](const Declaration& each)
    {
        return m_sources[each.index] == Source::given;
    };
    const Declaration* action = firstByName(m_state.declarations(), [&](const Declaration& each)
                                            { return each.kind == Kind::action && isGiven(each); });
    if (action == nullptr)
    {
        return true;
    }
    const Declaration* refused =
        firstByName(m_state.declarations(), [&](const Declaration& each)
                    { return !each.actions.empty() && isGiven(each) && !isChosen(each.actions); });
    return refused == nullptr ||
           refuse("Action '-" + action->names.front() + "' doesn't accept option '-" +
                      refused->names.front() + "'",
                  refused);
}

KEXA_COMMAND_INLINE bool LineBinding::checkMissing()
{
    const Definition& definition = m_state.definition();
    bool hasAction = false;
    bool isActionGiven = m_scan.inner() != nullptr;
    for (const Declaration* declaration : m_state.declarations())
    {
        const bool isAction = declaration->kind == Kind::action;
        hasAction = hasAction || isAction;
        isActionGiven =
            isActionGiven || (isAction && m_sources[declaration->index] == Source::given);
    }
    if (definition.actionRequired && !isActionGiven)
    {
        return refuse(hasAction ? "No action defined." : "No command given.", nullptr,
                      hintOfActions(m_state));
    }
    for (const Declaration* declaration : m_state.declarations())
    {
        if (isNamedOption(*declaration) && declaration->required &&
            m_sources[declaration->index] == Source::defaulted &&
            (declaration->actions.empty() || isChosen(declaration->actions)))
        {
            refuse("missing option: " + spelled(*declaration), declaration);
            m_outcome.error.option = declaration->names.front();
            return false;
        }
    }
    const Declaration* missing = m_scan.missing();
    if (missing != nullptr && m_sources[missing->index] != Source::environment)
    {
        refuse("missing argument: " + missing->names.front(), nullptr);
        m_outcome.error.option = missing->names.front();
        return false;
    }
    return true;
}

KEXA_COMMAND_INLINE bool LineBinding::checkRelations()
{
    for (const RelationOfOptions& relation : m_state.definition().relations)
    {
        if (!checkRelation(relation))
        {
            return false;
        }
    }
    return true;
}

KEXA_COMMAND_INLINE bool LineBinding::checkRelation(const RelationOfOptions& relation)
{
    if (relation.relation == Core::Relation::together)
    {
        return true; // the parser's
    }
    const std::vector<const Declaration*>& members = relation.members;
    const auto source = [this](const Declaration* each)
    {
        return m_sources[each->index];
    };
    if (relation.relation == Core::Relation::oneOf)
    {
        const auto given = std::count_if(members.begin(), members.end(),
                                         [&](auto* each) { return source(each) == Source::given; });
        const bool isSet =
            std::any_of(members.begin(), members.end(),
                        [&](auto* each) { return source(each) != Source::defaulted; });
        if (given <= 1 && isSet)
        {
            return true;
        }
        std::string list;
        for (const Declaration* member : members)
        {
            list += (list.empty() ? "'" : ", '") + spelled(*member) + "'";
        }
        return refuse(
            (given > 1 ? "only one of these is possible: " : "one of these is required: ") + list,
            nullptr);
    }
    if (source(members.front()) != Source::given)
    {
        return true;
    }
    const bool isNeeds = relation.relation == Core::Relation::needs;
    for (std::size_t i = 1; i < members.size(); ++i)
    {
        const bool isWrong =
            isNeeds ? source(members[i]) == Source::defaulted : source(members[i]) == Source::given;
        if (isWrong)
        {
            return refuse("'" + spelled(*members.front()) +
                              (isNeeds ? "' needs '" : "' cannot be given together with '") +
                              spelled(*members[i]) + "'",
                          members.front());
        }
    }
    return true;
}

KEXA_COMMAND_INLINE bool LineBinding::bindInner()
{
    if (m_scan.inner() == nullptr)
    {
        return true;
    }
    const Declaration& verb = *m_scan.subcommand();
    void* object = verb.emplace(static_cast<char*>(m_object) + verb.offset);
    m_outcome.sources.push_back({verb.offset, Source::given});
    Outcome inner;
    inner.occurrences = std::move(m_outcome.occurrences);
    const bool isBound = LineBinding(*m_scan.inner(), m_files, object, inner).bind();
    m_outcome.occurrences = std::move(inner.occurrences);
    if (!isBound)
    {
        m_outcome.status = inner.status;
        m_outcome.error = std::move(inner.error);
        m_outcome.program = std::move(inner.program);
        m_outcome.helpName = std::move(inner.helpName);
    }
    return isBound;
}

KEXA_COMMAND_INLINE bool LineBinding::checkStruct()
{
    for (const auto& rule : m_state.definition().rules)
    {
        const std::string reason = rule->refuse(m_object);
        if (!reason.empty())
        {
            refuse(reason, nullptr);
            m_outcome.error.code = kexa_3_3::result_nothing;
            return false;
        }
    }
    return true;
}

} // namespace detail
} // namespace v1
} // namespace kexa
