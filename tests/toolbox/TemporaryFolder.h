// A folder of its own for each test, gone with it.
#ifndef KEXA_TESTS_TOOLBOX_TEMPORARY_FOLDER_H
#define KEXA_TESTS_TOOLBOX_TEMPORARY_FOLDER_H

#include <filesystem>
#include <string>
#include <string_view>

namespace toolbox
{

class TemporaryFolder
{
public:
    TemporaryFolder(); // throws std::filesystem::filesystem_error
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& path() const { return m_path; }

    // The absolute name of an entry, whether it exists or not.
    // name: as the library takes it; any Unicode text.
    std::wstring name(std::wstring_view name) const;

    // Writes a file with exactly these bytes and answers its absolute name.
    std::wstring write(std::wstring_view name, std::string_view bytes) const;

private:
    std::filesystem::path m_path;
};

// A path from wide text and back, whatever the locale; std::filesystem converts by the locale.
std::filesystem::path toPath(std::wstring_view text);
std::wstring toWide(const std::filesystem::path& path);

// The bytes of a file; throws std::runtime_error when there is none.
std::string readFile(const std::filesystem::path& path);

// The current folder while the object lives.
class CurrentFolder
{
public:
    explicit CurrentFolder(const std::filesystem::path& path);
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder();

private:
    std::filesystem::path m_before;
};

} // namespace toolbox

#endif
