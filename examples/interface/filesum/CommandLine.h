// The command line of filesum on the binary interface, with which the layer is compared.
#pragma once

#include <string>
#include <vector>

#include "common/Host.h"
#include "filesum/Settings.h"

namespace filesum
{

// Settings of the tool, and what the layer does by itself.
struct InterfaceSettings : Settings
{
    bool help = false;
    bool version = false;
    bool hidden = false;             // help: show the hidden options
    std::vector<std::wstring> words; // paths, or topics of the help
};

class CommandLine
{
public:
    CommandLine();

    // Returns false if the arguments are wrong; message() then returns the error message.
    bool parse(int argc, const wchar_t* const* argv, InterfaceSettings& settings);

    [[nodiscard]] std::wstring message() const;

    // Sets `text` to the help of the topics, or of the tool if there are none. Returns false if a
    // topic is unknown; the text then contains the list of topics.
    bool help(const std::vector<std::wstring>& topics, bool hidden, std::wstring& text) const;

private:
    // Refuses buffer sizes that are too small or too large.
    class BufferSizeLimit final : public kexa_3_3::EventHandler
    {
    public:
        bool onValueParsed(const wchar_t* name, const kexa_3_3::ValueRecord* value) override;
    };

    void declareActions();
    void declareOptions();

    BufferSizeLimit m_limit; // outlives the parser that it is registered with
    example::ParserPointer m_parser;
};

} // namespace filesum
