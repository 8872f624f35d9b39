// Finding the files of folder trees.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace filesum
{

class Report;

// Which of the files found in folders count. Files named by the user always do.
struct Selection
{
    std::vector<std::string> include; // name patterns of files; none: all files
    std::vector<std::string> exclude; // name patterns of files and folders
    std::uint64_t minimumSize = 0;    // in bytes
    std::filesystem::path notThis;    // one file that is left out; empty: none
};

struct FoundFile
{
    std::filesystem::path path;
    std::string name; // with "/" between its parts
    std::uint64_t size;
};

// The regular files among the roots and in the folders below them, each name once, ordered by the
// bytes of their names. Links are followed where they are roots, not where they are found, so a
// walk ends. What cannot be read is reported as a problem, and the walk goes on.
std::vector<FoundFile> findFiles(const std::vector<std::filesystem::path>& roots,
                                 const Selection& selection, Report& report);

} // namespace filesum
