// Errors: the parser's messages with what the layer knows besides, and the layer's own.
#ifndef KEXA_COMMAND_PRIVATE_MESSAGES_H
#define KEXA_COMMAND_PRIVATE_MESSAGES_H

#include <string>
#include <vector>

#include "kexa/command/detail/outcome.h"
#include "Scan.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Whether the parser's message is about a value, and not about an option or the actions.
bool isValueMessage(const std::wstring& message);

// Make the outcome an error. `files` are those that places refer to.

void setError(Outcome& outcome, int code, std::wstring message, const Declaration* declaration,
              const Place& place, const std::vector<std::string>& files);

// reason: why a rule refused the value; empty where the parser did.
void setValueError(Outcome& outcome, int code, std::wstring message, const Given& given,
                   const std::string& reason, const std::vector<std::string>& files);

// For an option of the parser beneath: givens[index].
void setErrorBeneath(Outcome& outcome, int code, std::wstring message,
                     const std::vector<Given>& givens, std::size_t index,
                     const std::vector<std::string>& files);

// code and message: the parser's, for the arguments of the fault; 0 where there were none.
void setFault(Outcome& outcome, int code, std::wstring message, const Fault& fault,
              const std::vector<std::string>& files);

// The actions or verbs that can be given.
std::string hintOfActions(const State& state);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
