// Option files that are not regular files, cannot be read, or are endless.
#include <cstddef>
#include <string>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

class SpecialFiles : public testing::Test
{
protected:
    SpecialFiles()
    {
        host.addOption(L"name");
        host.parser().enableOptionFiles(L"", L"");
    }

    result_t parseFile(const std::wstring& name)
    {
        return host.parse({(L"--option-file=" + name).c_str()});
    }

    void expectRefusal(const std::wstring& name, const std::wstring& reason)
    {
        EXPECT_EQ(parseFile(name), result_unreadable_option_file);
        EXPECT_EQ(host.message(), L"Error reading option file '" + name + L"': " + reason);
        EXPECT_EQ(host.parse({L"--name=after"}), result_success);
    }

    const TemporaryFolder folder;
    Host host{flag_unknown_is_error};
};

// Starts a thread that writes lines to a descriptor and closes it.
std::thread writeLines(int descriptor, std::size_t count)
{
    return std::thread(
        [descriptor, count]
        {
            const std::string line = "--name=piped\n";
            for (std::size_t number = 0; number < count; ++number)
            {
                // Two writes for each line, so that single reads do not return whole lines.
                EXPECT_EQ(::write(descriptor, line.data(), 5), 5);
                EXPECT_EQ(::write(descriptor, line.data() + 5, line.size() - 5),
                          static_cast<ssize_t>(line.size() - 5));
            }
            ::close(descriptor);
        });
}

// Limits the descriptors of the process to numbers below `highest` until the destructor runs.
class DescriptorLimit
{
public:
    explicit DescriptorLimit(rlim_t highest)
    {
        EXPECT_EQ(::getrlimit(RLIMIT_NOFILE, &m_before), 0);
        const rlimit lowered = {highest, m_before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &lowered), 0);
    }
    DescriptorLimit(const DescriptorLimit&) = delete;
    DescriptorLimit& operator=(const DescriptorLimit&) = delete;
    ~DescriptorLimit() { EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &m_before), 0); }

private:
    rlimit m_before = {};
};

// Drops the privileges of root, who may read every file, until the destructor runs.
class WithoutPrivileges
{
public:
    WithoutPrivileges() : m_privileged(::geteuid() == 0)
    {
        constexpr uid_t nobody = 65534;
        m_dropped = !m_privileged || ::seteuid(nobody) == 0;
    }
    WithoutPrivileges(const WithoutPrivileges&) = delete;
    WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;
    ~WithoutPrivileges()
    {
        if (m_privileged)
        {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }
    bool dropped() const { return m_dropped; }

private:
    bool m_privileged;
    bool m_dropped;
};

} // namespace

TEST_F(SpecialFiles, AnEndlessDeviceIsRefusedAtTheLimit)
{
    expectRefusal(L"/dev/zero", L"it is larger than 1 GiB");
}

TEST_F(SpecialFiles, AFileBeyondTheLimitIsRefusedUnread)
{
    const std::wstring name = folder.write(L"sparse", "--name=a\n");
    ASSERT_EQ(::truncate(toUtf8(name).c_str(), (off_t{1} << 30) + 1), 0);
    expectRefusal(name, L"it is larger than 1 GiB");
    // More than any program could load: the size alone decides.
    ASSERT_EQ(::truncate(toUtf8(name).c_str(), off_t{1} << 42), 0);
    expectRefusal(name, L"it is larger than 1 GiB");
}

TEST_F(SpecialFiles, AnEmptyDeviceGivesNothing)
{
    EXPECT_EQ(parseFile(L"/dev/null"), result_success);
    EXPECT_FALSE(host.isPresent(L"name"));
}

TEST_F(SpecialFiles, AFifoIsReadToItsEnd)
{
    const std::wstring name = folder.name(L"fifo");
    const std::string path = toUtf8(name);
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    std::thread writer(
        [path]
        {
            const int descriptor = ::open(path.c_str(), O_WRONLY);
            ASSERT_GE(descriptor, 0);
            writeLines(descriptor, 20000).join();
        });
    EXPECT_EQ(parseFile(name), result_success);
    writer.join();
    EXPECT_EQ(host.texts(L"name"), std::vector<std::wstring>(20000, L"piped"));
}

TEST_F(SpecialFiles, ADescriptorOfAPipeIsReadAsProcessSubstitutionNamesIt)
{
    int ends[2] = {-1, -1};
    ASSERT_EQ(::pipe(ends), 0);
    std::thread writer = writeLines(ends[1], 3);
    EXPECT_EQ(parseFile(L"/dev/fd/" + std::to_wstring(ends[0])), result_success);
    writer.join();
    ::close(ends[0]);
    EXPECT_EQ(host.texts(L"name"), std::vector<std::wstring>(3, L"piped"));
}

TEST_F(SpecialFiles, APipeNamedTwiceIsReadOnce)
{
    int ends[2] = {-1, -1};
    ASSERT_EQ(::pipe(ends), 0);
    std::thread writer = writeLines(ends[1], 1);
    const std::wstring name = L"/dev/fd/" + std::to_wstring(ends[0]);
    EXPECT_EQ(parseFile(name + L"," + name), result_success);
    writer.join();
    ::close(ends[0]);
    EXPECT_EQ(host.texts(L"name"), std::vector<std::wstring>{L"piped"});
}

TEST_F(SpecialFiles, AFolderIsRefused)
{
    expectRefusal(folder.name(L"."), L"it is a folder");
    expectRefusal(L"/", L"it is a folder");
}

TEST_F(SpecialFiles, AFileInAFileIsNotFound)
{
    expectRefusal(folder.write(L"file", "") + L"/inside", L"no such file");
}

TEST_F(SpecialFiles, AFileWithoutPermissionIsRefused)
{
    const std::wstring name = folder.write(L"secret", "--name=secret\n");
    ASSERT_EQ(::chmod(toUtf8(name).c_str(), 0), 0);
    const WithoutPrivileges plain;
    if (!plain.dropped())
    {
        GTEST_SKIP() << "root cannot drop its privileges here, and may read every file";
    }
    expectRefusal(name, L"permission denied");
}

TEST_F(SpecialFiles, AFileInAFolderWithoutPermissionIsRefused)
{
    const std::wstring name = folder.write(L"file", "--name=hidden\n");
    ASSERT_EQ(::chmod(folder.path().c_str(), 0), 0);
    {
        const WithoutPrivileges plain;
        if (plain.dropped())
        {
            expectRefusal(name, L"permission denied");
        }
    }
    ASSERT_EQ(::chmod(folder.path().c_str(), 0700), 0);
}

TEST_F(SpecialFiles, ALinkToItselfIsRefused)
{
    const std::wstring name = folder.name(L"loop");
    ASSERT_EQ(::symlink(toUtf8(name).c_str(), toUtf8(name).c_str()), 0);
    expectRefusal(name, L"it cannot be read");
}

TEST_F(SpecialFiles, ASocketIsRefused)
{
    const CurrentFolder inside(folder.path());
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(descriptor, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    address.sun_path[0] = 's';
    ASSERT_EQ(::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    expectRefusal(L"s", L"it cannot be read");
    ::close(descriptor);
}

TEST_F(SpecialFiles, AFileWhoseReadingFailsIsRefused)
{
    // The first page of a process is never mapped: the file can be opened, but reading fails.
    expectRefusal(L"/proc/self/mem", L"it cannot be read");
}

TEST_F(SpecialFiles, ANameBeyondTheSystemsLimitIsRefused)
{
    expectRefusal(std::wstring(5000, L'n'), L"it cannot be read");
}

TEST_F(SpecialFiles, NoDescriptorIsLeftOpen)
{
    const std::wstring file = folder.write(L"file", "--name=a\n");
    const DescriptorLimit few(64);
    for (int round = 0; round < 100; ++round)
    {
        ASSERT_EQ(parseFile(file), result_success);
        ASSERT_EQ(parseFile(folder.name(L"missing")), result_unreadable_option_file);
        ASSERT_EQ(parseFile(folder.name(L".")), result_unreadable_option_file);
        host.renewResult();
    }
}

TEST_F(SpecialFiles, WithoutFreeDescriptorsAFileIsRefused)
{
    const std::wstring file = folder.write(L"file", "--name=a\n");
    const int next = ::dup(0);
    ASSERT_GE(next, 0);
    ::close(next);
    const DescriptorLimit none(static_cast<rlim_t>(next));
    expectRefusal(file, L"it cannot be read");
}
