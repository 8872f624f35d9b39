// A new folder for a test, removed by the destructor.
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

    // The absolute path of an entry, which need not exist. name: any Unicode text.
    std::wstring name(std::wstring_view name) const;

    // Writes a file with exactly these bytes and returns its absolute path.
    std::wstring write(std::wstring_view name, std::string_view bytes) const;

private:
    std::filesystem::path m_path;
};

// Convert between a path and wide text. std::filesystem would convert by the locale.
std::filesystem::path toPath(std::wstring_view text);
std::wstring toWide(const std::filesystem::path& path);

// The bytes of a file. Throws std::runtime_error if there is no such file.
std::string readFile(const std::filesystem::path& path);

// Sets the current folder until the object is destroyed.
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
