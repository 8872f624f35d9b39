// Binds one command's part of a line to its struct.
#ifndef KEXA_COMMAND_PRIVATE_LINE_BINDING_H
#define KEXA_COMMAND_PRIVATE_LINE_BINDING_H

#include <string>
#include <vector>

#include "Binder.h"
#include "Scan.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

class LineBinding
{
public:
    LineBinding(const Scan& scan, const std::vector<std::string>& files, void* object,
                Outcome& outcome)
        : m_scan(scan), m_state(scan.state()), m_files(files), m_object(object), m_outcome(outcome),
          m_sources(m_state.declarations().size(), Source::defaulted),
          m_isBound(m_state.memberCount())
    {
    }

    // Each step returns false where it has set the error.
    bool bind()
    {
        m_outcome.names.push_back(m_state.primaryNames());
        m_outcome.program = m_state.definition().path;
        m_outcome.helpName =
            m_state.helpOption() == nullptr ? std::string() : spelled(*m_state.helpOption());
        return parseGiven() && checkActions() && parseEnvironment() && checkMissing() &&
               checkRelations() && bindInner() && checkStruct() && noteDeprecations();
    }

private:
    bool parseGiven();
    bool checkActions();
    bool checkAccepted(const Declaration& action);
    bool parseEnvironment();
    bool checkMissing();
    bool checkRelations();
    bool checkRelation(const RelationOfOptions& relation);
    bool bindInner();
    bool checkStruct();
    bool noteDeprecations();
    bool isChosen(const std::vector<std::size_t>& actions) const;
    bool refuse(const std::string& message, const Declaration* declaration,
                const std::string& hint = std::string());
    const Given* firstOf(const Declaration& declaration) const;
    kexa_3_3::result_t runParser(const std::vector<const wchar_t*>& arguments, Binder& binder,
                                 bool keepsResult);

    const Scan& m_scan;
    State& m_state;
    const std::vector<std::string>& m_files;
    void* m_object;
    Outcome& m_outcome;
    std::vector<Source> m_sources; // by the index of the declaration
    std::vector<bool> m_isBound;   // by the number of the member
};

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
