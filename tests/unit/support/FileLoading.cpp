// Tests of reading whole files and of canonical paths.
#include "support/platform/FileLoading.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "TemporaryFolder.h"
#include "TextPrinting.h"

namespace kexa_3_3
{

// Names the problem in the message of a failed comparison.
void PrintTo(FileProblem problem, std::ostream* out)
{
    static const char* const names[] = {"none",      "not_found", "no_permission",
                                        "is_folder", "too_large", "unreadable"};
    *out << names[static_cast<int>(problem)];
}

} // namespace kexa_3_3

namespace
{

namespace fs = std::filesystem;

using kexa_3_3::canonicalPath;
using kexa_3_3::FileProblem;
using kexa_3_3::loadFile;
using toolbox::CurrentFolder;
using toolbox::TemporaryFolder;
using toolbox::toUtf8;

FileProblem problemOf(const std::wstring& name)
{
    std::string bytes = "what was there before";
    return loadFile(name, bytes);
}

// Loads a file and expects success.
std::string load(const std::wstring& name)
{
    std::string bytes = "what was there before";
    EXPECT_EQ(loadFile(name, bytes), FileProblem::none) << toUtf8(name);
    return bytes;
}

TEST(FileLoading, BytesAreNotChanged)
{
    const TemporaryFolder folder;
    std::string all;
    for (int byte = 0; byte <= 255; ++byte)
    {
        all.push_back(static_cast<char>(byte));
    }
    for (const std::string& bytes :
         {std::string(), std::string("a"), std::string("\r\n\n\x1A\r"), std::string(3, '\0'), all})
    {
        EXPECT_EQ(load(folder.write(L"file", bytes)), bytes);
        fs::remove(folder.path() / "file");
    }
}

// Sizes around that of the first buffer, and far above it.
TEST(FileLoading, EverySizeIsReadWhole)
{
    const TemporaryFolder folder;
    for (const std::size_t size : {65534U, 65535U, 65536U, 65537U, 131072U, 3000001U})
    {
        std::string bytes;
        for (std::size_t index = 0; index < size; ++index)
        {
            bytes.push_back(static_cast<char>(index % 251));
        }
        EXPECT_TRUE(load(folder.write(L"file", bytes)) == bytes) << size;
    }
}

TEST(FileLoading, MissingFileIsNotFound)
{
    const TemporaryFolder folder;
    const std::wstring file = folder.write(L"file", "x");
    EXPECT_EQ(problemOf(folder.name(L"missing")), FileProblem::not_found);
    EXPECT_EQ(problemOf(folder.name(L"missing/file")), FileProblem::not_found);
    EXPECT_EQ(problemOf(file + L"/inside"), FileProblem::not_found);
    EXPECT_EQ(problemOf(L""), FileProblem::not_found);
}

TEST(FileLoading, NameWithAZeroIsNotFound)
{
    const TemporaryFolder folder;
    const std::wstring file = folder.write(L"file", "x");
    EXPECT_EQ(problemOf(file + std::wstring(L"\0", 1)), FileProblem::not_found);
    EXPECT_EQ(problemOf(file + std::wstring(L"\0more", 5)), FileProblem::not_found);
}

TEST(FileLoading, FolderIsReportedAsAFolder)
{
    const TemporaryFolder folder;
    EXPECT_EQ(problemOf(folder.name(L"")), FileProblem::is_folder);
    EXPECT_EQ(problemOf(folder.name(L".")), FileProblem::is_folder);
}

TEST(FileLoading, FileAboveTheLimitIsTooLarge)
{
    const TemporaryFolder folder;
    const std::wstring name = folder.write(L"sparse", "");
    std::error_code error;
    fs::resize_file(folder.path() / "sparse", kexa_3_3::largest_file + 1, error);
    if (error)
    {
        GTEST_SKIP() << "this file system does not hold a file of 1 GiB";
    }
    EXPECT_EQ(problemOf(name), FileProblem::too_large);
}

TEST(FileLoading, NameIsRelativeToTheCurrentFolder)
{
    const TemporaryFolder folder;
    folder.write(L"file", "here");
    const CurrentFolder current(folder.path());
    EXPECT_EQ(load(L"file"), "here");
    EXPECT_EQ(load(L"./file"), "here");
}

TEST(FileLoading, NamesMayContainAnyCharacter)
{
    const TemporaryFolder folder;
    for (const wchar_t* const name :
         {L"\u00FCber", L"\u4E8C\u0430", L"smile \U0001F600", L"dash\u2014", L"\uFFFD", L"\uE000"})
    {
        EXPECT_EQ(load(folder.write(name, "content")), "content") << toUtf8(name);
    }
}

TEST(CanonicalPath, IsEqualForAllNamesOfAFile)
{
    const TemporaryFolder folder;
    const std::wstring name = folder.write(L"file", "x");
    fs::create_directory(folder.path() / "sub");
    const std::wstring path = canonicalPath(name);
    EXPECT_NE(path, L"");
    EXPECT_EQ(canonicalPath(folder.name(L".") + L"/file"), path);
    EXPECT_EQ(canonicalPath(folder.name(L"sub") + L"/../file"), path);
    EXPECT_EQ(canonicalPath(folder.name(L"sub") + L"/.././sub/..//file"), path);
    const CurrentFolder current(folder.path());
    EXPECT_EQ(canonicalPath(L"file"), path);
    EXPECT_EQ(canonicalPath(L"./sub/../file"), path);
}

TEST(CanonicalPath, FollowsLinks)
{
    const TemporaryFolder folder;
    const std::wstring name = folder.write(L"file", "x");
    fs::create_directory(folder.path() / "sub");
    std::error_code error;
    fs::create_symlink("file", folder.path() / "link", error);
    if (!error)
    {
        fs::create_directory_symlink("sub", folder.path() / "jump", error);
    }
    if (error)
    {
        GTEST_SKIP() << "symbolic links cannot be created here";
    }
    const std::wstring path = canonicalPath(name);
    EXPECT_EQ(canonicalPath(folder.name(L"link")), path);
    EXPECT_EQ(canonicalPath(folder.name(L"jump") + L"/../link"), path);
}

TEST(CanonicalPath, DiffersForDifferentFiles)
{
    const TemporaryFolder folder;
    const std::wstring first = folder.write(L"first", "x");
    const std::wstring second = folder.write(L"second", "x");
    EXPECT_NE(canonicalPath(first), canonicalPath(second));
    EXPECT_NE(canonicalPath(folder.write(L"\u00E9", "x")),
              canonicalPath(folder.write(L"\u00E8", "x")));
}

TEST(CanonicalPath, IsTheNameItselfIfTheNameHasAZero)
{
    const TemporaryFolder folder;
    const std::wstring name = folder.write(L"file", "x") + std::wstring(L"\0more", 5);
    EXPECT_EQ(canonicalPath(name), name);
}

TEST(CanonicalPath, IsTheNameItselfIfThereIsNoFile)
{
    const TemporaryFolder folder;
    const std::wstring missing = folder.name(L"no/such/../file \U0001F600");
    EXPECT_EQ(canonicalPath(missing), missing);
    EXPECT_EQ(canonicalPath(L""), L"");
}

} // namespace
