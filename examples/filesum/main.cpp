// filesum: lists, computes checksums of, and verifies the files in folder trees.
#include <exception>

#include "filesum/Actions.h"
#include "filesum/CommandLine.h"
#include "filesum/Platform.h"

int main(int argc, char** argv)
{
    filesum::useBinaryStreams();
    try
    {
        auto command = filesum::makeCommand();
        return kexa::run(command, argc, argv, filesum::perform);
    }
    catch (const std::exception& problem)
    {
        filesum::write(stderr, std::string("filesum: ") + problem.what() + "\n");
        return filesum::exit_problem;
    }
}
