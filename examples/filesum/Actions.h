// What the actions do. Each writes its result lines to the report, answers the exit code and leaves
// problems to the report.
#pragma once

#include <filesystem>
#include <vector>

#include "filesum/CommandLine.h"

namespace filesum
{

class Report;

// How the tool ends. The higher code wins.
enum ExitCode : int
{
    exit_success = 0,
    exit_differs = 1,            // -verify: a file has changed or is missing
    exit_wrong_command_line = 2, // or an option file is wrong
    exit_problem = 3             // something could not be read or written
};

ExitCode listFiles(const std::vector<std::filesystem::path>& roots, const Settings& settings,
                   Report& report);
ExitCode sumFiles(const std::vector<std::filesystem::path>& roots, const Settings& settings,
                  Report& report);
ExitCode verifyFiles(const std::vector<std::filesystem::path>& checkFiles, const Settings& settings,
                     Report& report);

} // namespace filesum
