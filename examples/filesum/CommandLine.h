// The tool's command line: what it accepts, and what a user asked for.
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
    // Actions. `total` may come with one of the first three.
    bool list = false;
    bool sum = false;
    bool verify = false;
    bool total = false;
    bool help = false;
    bool version = false;

    std::vector<std::wstring> paths; // as given; none: the action's choice
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

    // Answers false where the arguments are wrong; `message` says how.
    bool parse(int argc, const wchar_t* const* argv, Settings& settings);

    // Belongs to the command line.
    [[nodiscard]] std::wstring message() const;

    // Explains the topics, or the tool where there are none. Answers false where a topic is
    // unknown; the text then lists the topics.
    bool help(const std::vector<std::wstring>& topics, bool hidden, std::wstring& text) const;

private:
    // Refuses buffer sizes that make no sense.
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
