// The table of lines, run through getopt_long.
#include <getopt.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "GetoptLong_posix.h"
#include "PosixRows.h"
#include "text/LineSplitting.h"

std::string runGetopt(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "tar");
    std::vector<char*> argv;
    for (std::string& argument : arguments)
    {
        argv.push_back(argument.data());
    }
    argv.push_back(nullptr);
    const int argc = static_cast<int>(arguments.size());
    const option options[] = {
        {"create", no_argument, nullptr, 'c'},        {"extract", no_argument, nullptr, 'x'},
        {"verbatim", no_argument, nullptr, 'V'},      {"verbose", no_argument, nullptr, 'v'},
        {"file", required_argument, nullptr, 'f'},    {"output", required_argument, nullptr, 'o'},
        {"request", required_argument, nullptr, 'X'}, {"number", required_argument, nullptr, 'n'},
        {"include", required_argument, nullptr, 'I'}, {nullptr, 0, nullptr, 0}};
    PosixSettings settings;
    settings.file = settings.output = settings.request = "unset";
    opterr = 0;
    optind = 0;
    for (int found = 0;
         (found = getopt_long(argc, argv.data(), "cxvf:o:X:n:I:", options, nullptr)) != -1;)
    {
        switch (found)
        {
        case 'c':
            settings.create = true;
            break;
        case 'x':
            settings.extract = true;
            break;
        case 'V':
            settings.verbatim = true;
            break;
        case 'v':
            ++settings.verbose;
            break;
        case 'f':
            settings.file = optarg;
            break;
        case 'o':
            settings.output = optarg;
            break;
        case 'X':
            settings.request = optarg;
            break;
        case 'n':
            settings.number = std::atoi(optarg);
            break;
        case 'I':
            settings.include.emplace_back(optarg);
            break;
        default:
            return "error";
        }
    }
    settings.words.assign(argv.begin() + optind, argv.end() - 1);
    return show(settings);
}

namespace
{

TEST(PosixConventions, AreThoseOfGetoptLongWhereBothSpeakOfTheSame)
{
    for (const PosixRow& row : posixRows())
    {
        const std::string outcome = runGetopt(kexa::detail::splitLine(row.line).arguments);
        switch (row.getopt)
        {
        case Getopt::same:
            EXPECT_EQ(outcome, row.outcome) << "line: " << row.line;
            break;
        case Getopt::refuses:
            EXPECT_EQ(outcome, "error") << "line: " << row.line;
            EXPECT_EQ(std::string(row.outcome).substr(0, 2), "2 ") << "line: " << row.line;
            break;
        case Getopt::differs:
            EXPECT_NE(outcome, row.outcome) << "line: " << row.line;
            break;
        }
    }
}

} // namespace
