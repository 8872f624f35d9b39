// An event handler that records its calls and returns what a test chooses.
#ifndef KEXA_TESTS_TOOLBOX_RECORDING_HANDLER_H
#define KEXA_TESTS_TOOLBOX_RECORDING_HANDLER_H

#include <functional>
#include <string>
#include <vector>

#include <kexa/kexa.h>

namespace toolbox
{

using Events = std::vector<std::wstring>;

// A value as text: numbers in decimal, a bool as true or false, a wide text in single quotes,
// others as "kind KIND".
std::wstring describe(const vexkit2::variant_t& value);

// Appends "option NAME", "value NAME VALUE" or "unknown ARGUMENT" to a list of events, each after
// the label. Several handlers may share a list.
class RecordingHandler : public kexa_3_3::EventHandler
{
public:
    explicit RecordingHandler(Events& events, std::wstring label = {});
    RecordingHandler(const RecordingHandler&) = default;
    RecordingHandler& operator=(const RecordingHandler&) = default;
    virtual ~RecordingHandler() = default;

    // Called after an event is recorded. The handler returns what they return, or true without
    // them. They may throw.
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
