// What a parse found out besides the values.
#ifndef KEXA_COMMAND_ERROR_H
#define KEXA_COMMAND_ERROR_H

#include <string>
#include <vector>

#include "kexa/command/configuration.h"

namespace kexa
{
inline namespace v1
{

// Where the value of a member comes from.
enum class Source : unsigned char
{
    defaulted,   // the member's initialiser
    environment, // an environment variable
    given        // the command line or an option file
};

// How a parse ended.
enum class Status : unsigned char
{
    success,
    help,    // help was asked for; its text is in Outcome::text
    version, // the version was asked for; its text is in Outcome::text
    error
};

// Why a command line is refused. All texts are UTF-8.
struct Error
{
    // A code of kexa_3_3::result_t, never 0: mostly 2, the arguments are wrong; 1, a value was
    // refused by a rule of the program; 6, an option file could not be read.
    int code = 0;

    // Arguments are quoted as the user typed them.
    std::string message;
    std::wstring wideMessage;

    // What the user probably meant, or which values are allowed. Often empty.
    std::string hint;

    // The primary name of the option concerned; empty where there is none.
    std::string option;

    // The number of the argument, 1 for the first behind the program's name; 0 where no single
    // argument is at fault. For an argument that an option file holds: the argument that named the
    // (outermost) file.
    int index = 0;

    // The option file, as it was named, and the line in it, from 1. Empty and 0 for arguments of
    // the command line.
    std::string file;
    int line = 0;

    // The environment variable that held the value; empty for others.
    std::string environment;
};

// One value of the command line. An option that takes none has one with an empty text for each time
// it was given; a boolean has "true" or "false".
struct Occurrence
{
    std::string option; // the primary name; of a positional argument, its name
    std::string value;  // as written, after completion of an abbreviated value
    int index = 0;      // as in Error
    std::string file;
    int line = 0;
};

} // namespace v1
} // namespace kexa

#endif
