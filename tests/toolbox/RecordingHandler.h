// An event handler that writes down what it is told and answers as a test asks it to.
#ifndef KEXA_TESTS_TOOLBOX_RECORDING_HANDLER_H
#define KEXA_TESTS_TOOLBOX_RECORDING_HANDLER_H

#include <functional>
#include <string>
#include <vector>

#include <kexa/kexa.h>

namespace toolbox
{

using Events = std::vector<std::wstring>;

// A value as an event shows it: numbers in decimal, a bool as true or false, a wide text in single
// quotes, anything else as its kind.
std::wstring describe(const vexkit2::variant_t& value);

// Events read "option NAME", "value NAME VALUE" and "unknown ARGUMENT", each with the label in
// front. Several handlers may write to one list.
class RecordingHandler : public kexa_3_3::EventHandler
{
public:
    explicit RecordingHandler(Events& events, std::wstring label = {});
    RecordingHandler(const RecordingHandler&) = default;
    RecordingHandler& operator=(const RecordingHandler&) = default;
    virtual ~RecordingHandler() = default;

    // Called after the event is written down; they give the answer, and may throw. Without them
    // the answer is true.
    std::function<bool(const wchar_t* name)> answerOption;
    std::function<bool(const wchar_t* name, const kexa_3_3::ValueRecord& value)> answerValue;
    std::function<bool(const wchar_t* argument)> answerUnknown;

    bool onOptionParsed(const wchar_t* name) override;
    bool onValueParsed(const wchar_t* name, const kexa_3_3::ValueRecord* value) override;
    bool onUnknownArgument(const wchar_t* argument) override;

private:
    Events* m_events;
    std::wstring m_label;
};

} // namespace toolbox

#endif
