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
          m_sources(m_state.declarations().size(), Source::defaulted)
    {
    }

    // Each step returns false where it has set the error.
    bool bind()
    {
        m_outcome.program = m_state.definition().path;
        m_outcome.helpName =
            m_state.helpOption() == nullptr ? std::string() : spelled(*m_state.helpOption());
        return parseGiven() && checkAccepted() && parseEnvironment() && checkMissing() &&
               checkRelations() && bindInner() && checkStruct();
    }

private:
    bool parseGiven();
    bool checkAccepted();
    bool parseEnvironment();
    bool checkMissing();
    bool checkRelations();
    bool checkRelation(const RelationOfOptions& relation);
    bool bindInner();
    bool checkStruct();
    bool isChosen(const std::vector<std::size_t>& actions) const;
    bool refuse(const std::string& message, const Declaration* declaration,
                const std::string& hint = std::string());
    const Given* firstOf(const Declaration& declaration) const;
    kexa_3_3::result_t runParser(const std::vector<const wchar_t*>& arguments, Binder& binder,
                                 bool checksActions);

    const Scan& m_scan;
    State& m_state;
    const std::vector<std::string>& m_files;
    void* m_object;
    Outcome& m_outcome;
    std::vector<Source> m_sources; // by the index of the declaration
};

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
