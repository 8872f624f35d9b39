// Many option files: a long chain, a long list, and cycles.
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

constexpr int file_count = 10000;

// Few files in each folder, because Wine reads the whole folder for each file that is created in
// it.
constexpr int files_in_folder = 100;

class ManyOptionFiles : public testing::Test
{
protected:
    ManyOptionFiles()
    {
        host.addOption(L"name", value_type_integer);
        host.parser().enableOptionFiles(L"", L"");
    }

    static std::string folderOf(int number)
    {
        return "folder-" + std::to_string(number / files_in_folder);
    }
    static std::string nameOf(int number)
    {
        return folderOf(number) + "/file-" + std::to_string(number);
    }

    void write(int number, const std::string& lines)
    {
        if (number % files_in_folder == 0)
        {
            std::filesystem::create_directory(folder.path() / folderOf(number));
        }
        const std::string name = nameOf(number);
        folder.write(std::wstring(name.begin(), name.end()), lines);
    }

    void expectNumbersUpTo(int count)
    {
        const std::vector<std::wstring> texts = host.texts(L"name");
        ASSERT_EQ(texts.size(), static_cast<std::size_t>(count));
        for (int number = 0; number < count; ++number)
        {
            ASSERT_EQ(texts[static_cast<std::size_t>(number)], std::to_wstring(number));
        }
    }

    const TemporaryFolder folder;
    const CurrentFolder inside{folder.path()};
    Host host{flag_unknown_is_error};
};

} // namespace

TEST_F(ManyOptionFiles, AChainIsReadToItsEnd)
{
    for (int number = 0; number < file_count; ++number)
    {
        write(number, "--name=" + std::to_string(number) + "\n--option-file=" +
                          nameOf(number + 1 == file_count ? 0 : number + 1) + "\n");
    }
    EXPECT_EQ(host.parse({L"--option-file=folder-0/file-0"}), result_success);
    expectNumbersUpTo(file_count);
}

TEST_F(ManyOptionFiles, AListIsReadInItsOrder)
{
    std::string list;
    for (int number = 0; number < file_count; ++number)
    {
        write(number, "--name=" + std::to_string(number) + "\n");
        list += "--option-file=" + nameOf(number) + "\n";
    }
    folder.write(L"list", list);
    EXPECT_EQ(host.parse({L"--option-file=list"}), result_success);
    expectNumbersUpTo(file_count);
}

TEST_F(ManyOptionFiles, FilesThatAllNameEachOtherAreReadOnce)
{
    constexpr int few = 100;
    std::string all;
    for (int number = 0; number < few; ++number)
    {
        all += "--option-file=./" + nameOf(number) + "\n";
    }
    for (int number = 0; number < few; ++number)
    {
        write(number, "--name=" + std::to_string(number) + "\n" + all);
    }
    EXPECT_EQ(host.parse({L"--option-file=folder-0/file-0"}), result_success);
    expectNumbersUpTo(few);
}

TEST_F(ManyOptionFiles, AMissingOneAtTheEndOfAChainIsNamed)
{
    constexpr int few = files_in_folder - 1;
    for (int number = 0; number < few; ++number)
    {
        write(number, "--name=" + std::to_string(number) + "\n--option-file=" + nameOf(number + 1));
    }
    EXPECT_EQ(host.parse({L"--option-file=folder-0/file-0"}), result_unreadable_option_file);
    EXPECT_EQ(host.message(), L"Error reading option file 'folder-0/file-99': no such file");
    expectNumbersUpTo(few);
}

TEST_F(ManyOptionFiles, ANameWithAZeroCharacterIsNotTheNameBeforeIt)
{
    write(0, "--name=0\n");
    folder.write(
        L"list",
        std::string("--option-file=folder-0/file-0\n--option-file=folder-0/file-0\0more\n", 65));
    EXPECT_EQ(host.parse({L"--option-file=list"}), result_unreadable_option_file);
    EXPECT_EQ(host.message(), L"Error reading option file 'folder-0/file-0");
    expectNumbersUpTo(1);
}
