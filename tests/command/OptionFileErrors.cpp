// Option files that cannot be read: the messages are those of the library.
#include "OptionFileErrors.h"

#include <filesystem>

#include "platform/FileReading.h"

using namespace kexa::detail;
using namespace toolbox;

TEST(OptionFileErrors, AFileIsMissing)
{
    const TemporaryFolder folder;
    folder.write(L"file", "a");
    const CurrentFolder current(folder.path());
    for (const char* name :
         {"missing", "./missing", "no/such/folder", "file/inside", "gr\xC3\xB6\xC3\x9F\x65"})
    {
        expectError(name, "no such file");
    }
}

TEST(OptionFileErrors, AZeroCharacterNamesNoFile)
{
    const TemporaryFolder folder;
    folder.write(L"file", "a");
    const std::string name = narrow(folder.name(L"file")) + std::string("\0x", 2);
    EXPECT_EQ(readOptionFile(name).error, "Error reading option file '" + name + "': no such file");
}

TEST(OptionFileErrors, AFolderIsNoFile)
{
    const TemporaryFolder folder;
    const CurrentFolder current(folder.path());
    for (const std::string& name : {narrow(toWide(folder.path())), std::string(".")})
    {
        expectError(name, "it is a folder");
    }
}

TEST(OptionFileErrors, AFileIsTooLarge)
{
    const TemporaryFolder folder;
    const std::string name = narrow(folder.write(L"file", ""));
    std::filesystem::resize_file(folder.path() / "file", largest_file + 1); // takes no space
    expectError(name, "it is larger than 1 GiB");
}
