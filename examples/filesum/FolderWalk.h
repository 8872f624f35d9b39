// Finds the files in folder trees.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace filesum
{

class Report;

// Selects files in folders. Files that the user names are always selected.
struct Selection
{
    std::vector<std::string> include; // name patterns of files; empty: all files
    std::vector<std::string> exclude; // name patterns of files and folders
    std::uint64_t minimumSize = 0;    // in bytes
    std::filesystem::path notThis;    // a file to exclude; empty: none
};

struct FoundFile
{
    std::filesystem::path path;
    std::string name; // with "/" between its parts
    std::uint64_t size;
};

// Returns the regular files among the roots and in the folders below them, each name once, sorted
// by the bytes of their names. Links are followed only if they are roots, so that the walk ends.
// Unreadable files and folders are reported as problems and skipped.
std::vector<FoundFile> findFiles(const std::vector<std::filesystem::path>& roots,
                                 const Selection& selection, Report& report);

} // namespace filesum
