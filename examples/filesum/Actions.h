// The actions of the tool. The functions that take a report write their results and problems to it
// and return the exit code.
#pragma once

#include <filesystem>
#include <vector>

#include "filesum/Settings.h"

namespace filesum
{

class Report;

// The exit codes. If several apply, the highest is used.
enum ExitCode : int
{
    exit_success = 0,
    exit_differs = 1,            // --verify: a file has changed or is missing
    exit_wrong_command_line = 2, // or an option file is wrong
    exit_problem = 3             // something could not be read or written
};

// Does what the settings say, with the standard streams.
ExitCode perform(const Settings& settings);

ExitCode listFiles(const std::vector<std::filesystem::path>& roots, const Settings& settings,
                   Report& report);
ExitCode sumFiles(const std::vector<std::filesystem::path>& roots, const Settings& settings,
                  Report& report);
ExitCode verifyFiles(const std::vector<std::filesystem::path>& checkFiles, const Settings& settings,
                     Report& report);

} // namespace filesum
