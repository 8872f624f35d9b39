// What a command line of the tool says.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "filesum/Checksum.h"
#include "filesum/FolderWalk.h"

namespace filesum
{

struct Settings
{
    // Actions. `total` may be combined with one of the others.
    bool list = false;
    bool sum = false;
    bool verify = false;
    bool total = false;

    std::vector<std::filesystem::path> paths; // as given; empty: the current folder
    std::vector<Algorithm> algorithms = {Algorithm::crc32};
    Selection selection;
    std::filesystem::path output;        // empty: standard output
    std::uint32_t bufferSize = 1U << 18; // in bytes, at least 1
    bool quiet = false;
    bool progress = true;
};

} // namespace filesum
