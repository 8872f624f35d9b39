// Lines under POSIX conventions, with what the layer makes of them, and getopt_long.
#ifndef KEXA_TESTS_COMMAND_LAYER_POSIX_ROWS_H
#define KEXA_TESTS_COMMAND_LAYER_POSIX_ROWS_H

#include <string>
#include <vector>

// The command line of a program in the manner of tar:
//   -c --create, -x --extract, --verbatim   switches
//   -v --verbose                            counts
//   -f --file, -o --output, -X --request    a text
//   -n --number                             an integer
//   -I --include                            texts
struct PosixSettings
{
    bool create = false;
    bool extract = false;
    bool verbatim = false;
    int verbose = 0;
    std::string file;
    std::string output;
    std::string request;
    int number = 0;
    std::vector<std::string> include;
    std::vector<std::string> words;
};

std::string show(const PosixSettings& settings);

// What getopt_long of the GNU C library makes of a line.
enum class Getopt
{
    same,    // the layer's struct
    refuses, // an error, as the layer
    differs  // something else: the layer has another rule, which the row's comment names
};

struct PosixRow
{
    const char* line;
    const char* outcome; // show(), or an error
    Getopt getopt;
};

const std::vector<PosixRow>& posixRows();

#endif
