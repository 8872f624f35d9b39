// Tests with files that only a POSIX system has: ill-formed names, pipes, devices, forbidden files.
#ifndef _WIN32

#include <fstream>
#include <string>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

#include "support/platform/FileLoading.h"

#include "TemporaryFolder.h"
#include "TextPrinting.h"

namespace
{

using kexa_3_3::canonicalPath;
using kexa_3_3::FileProblem;
using kexa_3_3::loadFile;
using toolbox::TemporaryFolder;
using toolbox::toUtf8;

// Writes a file. name: the bytes of the file name, which need not be well-formed UTF-8.
void writeFile(const TemporaryFolder& folder, const std::string& name, const std::string& bytes)
{
    std::ofstream file(folder.path().string() + "/" + name, std::ios::binary);
    file << bytes;
    ASSERT_TRUE(file.flush()) << name;
}

TEST(FileLoadingOnPosix, LoneLowSurrogateBecomesAByte)
{
    const TemporaryFolder folder;
    const struct
    {
        std::string bytes;
        std::wstring name;
    } rows[] = {{"\xFF", L"\xDCFF"},           {"\x80", L"\xDC80"},
                {"a\xFFz", L"a\xDCFFz"},       {"\xC3\xA9\xFE\xC3\xA9", L"\u00E9\xDCFE\u00E9"},
                {"\xE2\x80", L"\xDCE2\xDC80"}, {"\xC0\xAF.txt", L"\xDCC0\xDCAF.txt"}};
    for (const auto& row : rows)
    {
        writeFile(folder, row.bytes, "content of " + row.bytes);
        std::string bytes;
        EXPECT_EQ(loadFile(folder.name(L"") + row.name, bytes), FileProblem::none)
            << toUtf8(row.name);
        EXPECT_EQ(bytes, "content of " + row.bytes);
    }
}

TEST(FileLoadingOnPosix, OtherSurrogatesDoNotBecomeBytes)
{
    const TemporaryFolder folder;
    writeFile(folder, "\x7F", "x");
    std::string bytes;
    for (const std::wstring name : {L"\xDC7F", L"\xDD00", L"\xD8FF"})
    {
        EXPECT_EQ(loadFile(folder.name(L"") + name, bytes), FileProblem::not_found);
    }
}

TEST(FileLoadingOnPosix, CanonicalPathsOfIllFormedNamesDiffer)
{
    const TemporaryFolder folder;
    writeFile(folder, "\xFE", "x");
    writeFile(folder, "\xFF", "x");
    const std::wstring first = folder.name(L"") + L"\xDCFE";
    const std::wstring second = folder.name(L"") + L"\xDCFF";
    EXPECT_NE(canonicalPath(first), first);
    EXPECT_NE(canonicalPath(first), canonicalPath(second));
    EXPECT_EQ(canonicalPath(first), canonicalPath(folder.name(L"./") + L"\xDCFE"));
}

// Sends more than the buffer of a pipe holds, so that several reads are needed.
TEST(FileLoadingOnPosix, PipeIsReadToItsEnd)
{
    const TemporaryFolder folder;
    const std::string path = folder.path().string() + "/pipe";
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    std::string sent;
    for (int line = 0; line < 40000; ++line)
    {
        sent += std::to_string(line) + "\n";
    }
    std::thread writer([&] { std::ofstream(path, std::ios::binary) << sent; });
    std::string bytes;
    const FileProblem problem = loadFile(folder.name(L"pipe"), bytes);
    writer.join();
    EXPECT_EQ(problem, FileProblem::none);
    EXPECT_TRUE(bytes == sent) << bytes.size() << " of " << sent.size() << " bytes";
}

TEST(FileLoadingOnPosix, FileThatReportsNoSizeIsReadWhole)
{
    std::string bytes;
    ASSERT_EQ(loadFile(L"/proc/self/status", bytes), FileProblem::none);
    EXPECT_EQ(bytes.substr(0, 5), "Name:");
    EXPECT_EQ(bytes.back(), '\n');
    ASSERT_EQ(loadFile(L"/dev/null", bytes), FileProblem::none);
    EXPECT_EQ(bytes, "");
}

TEST(FileLoadingOnPosix, FailedReadIsUnreadable)
{
    std::string bytes;
    EXPECT_EQ(loadFile(L"/proc/self/mem", bytes), FileProblem::unreadable);
}

TEST(FileLoadingOnPosix, ForbiddenFileHasNoPermission)
{
    const TemporaryFolder folder;
    writeFile(folder, "secret", "x");
    ASSERT_EQ(::chmod((folder.path().string() + "/secret").c_str(), 0), 0);
    // The superuser may read every file, so the test switches to an unprivileged user for the read.
    constexpr uid_t nobody = 65534;
    const bool superuser = ::geteuid() == 0;
    ASSERT_TRUE(!superuser || ::seteuid(nobody) == 0);
    std::string bytes;
    const FileProblem problem = loadFile(folder.name(L"secret"), bytes);
    ASSERT_TRUE(!superuser || ::seteuid(0) == 0);
    EXPECT_EQ(problem, FileProblem::no_permission);
}

TEST(FileLoadingOnPosix, LinkToItselfIsUnreadable)
{
    const TemporaryFolder folder;
    std::filesystem::create_symlink("circle", folder.path() / "circle");
    std::string bytes;
    EXPECT_EQ(loadFile(folder.name(L"circle"), bytes), FileProblem::unreadable);
    EXPECT_EQ(canonicalPath(folder.name(L"circle")), folder.name(L"circle"));
}

} // namespace

#endif
