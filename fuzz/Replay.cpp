// Runs a fuzz target with the inputs in files, so that every test run replays the corpus.
//
// replay_TARGET FILE_OR_FOLDER ...
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "Fuzzing.h"

namespace
{

std::size_t replayed = 0;

void replay(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    fuzzing::require(file.good() || file.eof(), "the input can be read");
    // Printed before the call: if the target aborts, the last line of the output names the input.
    std::printf("%s\n", path.filename().string().c_str());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++replayed;
}

} // namespace

int main(int argc, char** argv)
{
    for (int index = 1; index < argc; ++index)
    {
        const std::filesystem::path path(argv[index]);
        if (!std::filesystem::is_directory(path))
        {
            replay(path);
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(path))
        {
            replay(entry.path());
        }
    }
    std::printf("%zu inputs replayed\n", replayed);
    return replayed == 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}
