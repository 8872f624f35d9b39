// The command line of the tool: its declarations and the parsed settings.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "common/Host.h"
#include "filesum/Checksum.h"
#include "filesum/FolderWalk.h"

namespace filesum
{

struct Settings
{
    // Actions. `total` may be combined with one of the first three.
    bool list = false;
    bool sum = false;
    bool verify = false;
    bool total = false;
    bool help = false;
    bool version = false;

    std::vector<std::wstring> paths; // as given; empty: the default of the action
    std::vector<Algorithm> algorithms;
    Selection selection;
    std::filesystem::path output; // empty: standard output
    std::size_t bufferSize = 0;   // in bytes, at least 1
    bool quiet = false;
    bool progress = false;
    bool hidden = false; // help: show the hidden options
};

class CommandLine
{
public:
    CommandLine();

    // Returns false if the arguments are wrong; message() then returns the error message.
    bool parse(int argc, const wchar_t* const* argv, Settings& settings);

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
