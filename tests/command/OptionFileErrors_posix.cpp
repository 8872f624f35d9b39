// Files of POSIX that are no option files, or have names that are no UTF-8.
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "OptionFileErrors.h"

using namespace kexa::detail;
using namespace toolbox;

TEST(OptionFileErrorsOfPosix, AFileCannotBeRead)
{
    const TemporaryFolder folder;
    const CurrentFolder current(folder.path());
    ASSERT_EQ(::symlink("loop", "loop"), 0);
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address = {AF_UNIX, "socket"};
    ASSERT_EQ(::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ::close(listener);
    for (const std::string& name : {std::string("loop"), std::string("socket"),
                                    std::string(300, 'x'), std::string("/proc/self/mem")})
    {
        expectError(name, "it cannot be read");
    }
}

TEST(OptionFileErrorsOfPosix, AnEndlessFileIsTooLarge)
{
    EXPECT_EQ(readOptionFile("/dev/zero").error,
              "Error reading option file '/dev/zero': it is larger than 1 GiB");
}

TEST(OptionFileErrorsOfPosix, AForbiddenFileNeedsPermission)
{
    const TemporaryFolder folder;
    const std::string name = narrow(folder.write(L"file", "a"));
    ASSERT_EQ(::chmod(name.c_str(), 0), 0);
    const uid_t user = ::geteuid();
    if (user == 0)
    {
        ASSERT_EQ(::seteuid(65534), 0); // the superuser may read every file
    }
    expectError(name, "permission denied");
    ASSERT_EQ(::seteuid(user), 0);
}

TEST(OptionFileErrorsOfPosix, ANameMayBeAnyBytes)
{
    const TemporaryFolder folder;
    const CurrentFolder current(folder.path());
    const std::string name = "\xE9t\xE9\xFF";
    expectError(name, "no such file");
    const int file = ::open(name.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(::write(file, "a", 1), 1);
    ::close(file);
    EXPECT_EQ(errorOfLibrary(name), "");
    EXPECT_EQ(readOptionFile(name).error, "");
    EXPECT_EQ(readOptionFile(name).arguments.size(), 1U);
}
