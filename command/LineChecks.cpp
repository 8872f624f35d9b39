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

// The parser looks at all names of what was given, in alphabetical order.
KEXA_COMMAND_LOCAL bool isBefore(const Declaration* left, const Declaration* right)
{
    return *std::min_element(left->names.begin(), left->names.end()) <
           *std::min_element(right->names.begin(), right->names.end());
}

// Whether one group of actions that may be given together holds the first of these.
KEXA_COMMAND_LOCAL bool areCompatible(const Definition& definition,
                                      const std::vector<const Declaration*>& actions,
                                      std::size_t count)
{
    const auto end = actions.begin() + static_cast<std::ptrdiff_t>(count);
    return std::any_of(definition.relations.begin(), definition.relations.end(),
                       [&](const RelationOfOptions& each)
                       {
                           const auto holds = [&each](const Declaration* action)
                           {
                               return std::find(each.members.begin(), each.members.end(), action) !=
                                      each.members.end();
                           };
                           return each.relation == Core::Relation::together &&
                                  std::all_of(actions.begin(), end, holds);
                       });
}

// What the parser would check of a result, with its messages. No result is made for that; and of
// several actions the parser would only look at the first to see whether it accepts an option.
KEXA_COMMAND_INLINE bool LineBinding::checkActions()
{
    std::vector<const Declaration*> actions;
    bool hasActions = false;
    bool isOptionGiven = false;
    for (const Declaration* declaration : m_state.declarations())
    {
        const bool isAction = declaration->kind == Kind::action;
        const bool isGiven = m_sources[declaration->index] == Source::given;
        hasActions = hasActions || isAction;
        isOptionGiven = isOptionGiven || (isGiven && !isAction);
        if (isGiven && isAction)
        {
            actions.push_back(declaration);
        }
    }
    if (actions.empty())
    {
        // A shared parser has checked this itself: it may have actions of its own.
        return !hasActions || !isOptionGiven || m_scan.inner() != nullptr || m_state.isShared() ||
               refuse("No action defined.", nullptr, hintOfActions(m_state));
    }
    std::sort(actions.begin(), actions.end(), isBefore);
    for (std::size_t count = 2; count <= actions.size(); ++count)
    {
        if (!areCompatible(m_state.definition(), actions, count))
        {
            return refuse("Action '-" + actions[count - 1]->names.front() + "' and action '-" +
                              actions.front()->names.front() +
                              "' were defined, but only one action possible.",
                          nullptr);
        }
    }
    return checkAccepted(*actions.front());
}

KEXA_COMMAND_INLINE bool LineBinding::checkAccepted(const Declaration& action)
{
    const Declaration* refused = nullptr;
    for (const Declaration* declaration : m_state.declarations())
    {
        const std::vector<std::size_t>& accepting = declaration->actions;
        if (!accepting.empty() && m_sources[declaration->index] == Source::given &&
            !isChosen(accepting) && (refused == nullptr || isBefore(declaration, refused)))
        {
            refused = declaration;
        }
    }
    return refused == nullptr ||
           refuse("Action '-" + action.names.front() + "' doesn't accept option '-" +
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
    auto inner = std::make_shared<Outcome>();
    inner->values = std::move(m_outcome.values);
    inner->names = std::move(m_outcome.names);
    const bool isBound = LineBinding(*m_scan.inner(), m_files, object, *inner).bind();
    m_outcome.values = std::move(inner->values);
    m_outcome.names = std::move(inner->names);
    if (!isBound)
    {
        m_outcome.status = inner->status;
        m_outcome.error = std::move(inner->error);
        m_outcome.program = std::move(inner->program);
        m_outcome.helpName = std::move(inner->helpName);
    }
    m_outcome.inner = std::move(inner);
    return isBound;
}

// Those of the outer command come before those of its subcommand.
KEXA_COMMAND_INLINE bool LineBinding::noteDeprecations()
{
    std::vector<std::string> warnings;
    for (const Declaration* declaration : m_state.declarations())
    {
        if (!declaration->deprecation.empty() && m_sources[declaration->index] == Source::given)
        {
            warnings.push_back("'" + spelled(*declaration) +
                               "' is deprecated: " + declaration->deprecation);
        }
    }
    if (m_outcome.inner != nullptr)
    {
        const std::vector<std::string>& inner = m_outcome.inner->warnings;
        warnings.insert(warnings.end(), inner.begin(), inner.end());
    }
    m_outcome.warnings = std::move(warnings);
    return true;
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
