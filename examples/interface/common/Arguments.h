// The entry point of an example. The program defines run(), which has wide arguments on every
// system. Included by exactly one source file of a program.
#ifndef KEXA_EXAMPLES_ARGUMENTS_H
#define KEXA_EXAMPLES_ARGUMENTS_H

#include <string>
#include <vector>

#include "common/Console.h"

// Returns the exit code. argv: argc arguments, the first of which is the name of the program.
int run(int argc, const wchar_t* const* argv);

#ifdef _WIN32

extern "C" int wmain(int argc, wchar_t** argv)
{
    example::useBinaryStreams();
    return run(argc, argv);
}

#else

int main(int argc, char** argv)
{
    std::vector<std::wstring> texts;
    for (int index = 0; index < argc; ++index)
    {
        texts.push_back(example::toWide(argv[index]));
    }
    std::vector<const wchar_t*> arguments;
    for (const std::wstring& text : texts)
    {
        arguments.push_back(text.c_str());
    }
    return run(argc, arguments.data());
}

#endif

#endif
