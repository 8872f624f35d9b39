// Puts the values that the parser reports into the members of a struct.
#ifndef KEXA_COMMAND_PRIVATE_BINDER_H
#define KEXA_COMMAND_PRIVATE_BINDER_H

#include <cstddef>
#include <string>
#include <vector>

#include "kexa/command/detail/outcome.h"
#include "kexa/event_handler.h"
#include "Scan.h"

#if KEXA_COMMAND_EXCEPTIONS
#include <exception>
#endif

namespace kexa
{
inline namespace v1
{
namespace detail
{

class Binder final : public kexa_3_3::EventHandler
{
public:
    // givens: in the order in which the parser gets them; must outlive the binder.
    // isBound: by State::memberNumber, the members that have a value already.
    // object:  the struct.
    Binder(const State& state, const std::vector<Given>& givens, std::vector<bool>& isBound,
           Source source, void* object, Outcome& outcome);

    bool onOptionParsed(const wchar_t* name) override;
    bool onValueParsed(const wchar_t* name, const kexa_3_3::ValueRecord* record) override;

    // How many of the options the parser has come to.
    std::size_t begun() const { return m_next; }

    // Why a rule refused a value; empty where none did.
    const std::string& reason() const { return m_reason; }

    // Passes on what a rule of the program has thrown.
    void rethrow() const;

private:
    bool store(const Given& given, const vexkit2::variant_t& value);
    void note(const Given& given, const vexkit2::variant_t& value);
    void noteSource(const Declaration& declaration);

    const State& m_state;
    const std::vector<Given>& m_givens;
    std::vector<bool>& m_isBound;
    Source m_source;
    char* m_object;
    Outcome& m_outcome;
    std::size_t m_next = 0;
    bool m_isForeign = false; // come to an option that the program declared on its own
    std::string m_reason;
#if KEXA_COMMAND_EXCEPTIONS
    std::exception_ptr m_exception;
#endif
};

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
