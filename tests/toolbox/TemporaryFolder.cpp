#include "TemporaryFolder.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

#include "TextPrinting.h"

namespace toolbox
{

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
{
    // A random name, since test programs run at the same time. create_directory returns false for a
    // name that is taken.
    std::random_device random;
    do
    {
        m_path = fs::temp_directory_path() /
                 ("kexa-tests-" + std::to_string(random()) + "-" + std::to_string(random()));
    } while (!fs::create_directory(m_path));
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

std::wstring TemporaryFolder::name(std::wstring_view name) const
{
    return toWide(m_path / toPath(name));
}

std::wstring TemporaryFolder::write(std::wstring_view name, std::string_view bytes) const
{
    const fs::path path = m_path / toPath(name);
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
    {
        throw std::runtime_error("cannot write a temporary file");
    }
    return toWide(path);
}

fs::path toPath(std::wstring_view text)
{
    const std::string bytes = toUtf8(text);
    return fs::path(std::u8string(bytes.begin(), bytes.end()));
}

std::wstring toWide(const fs::path& path)
{
    const std::u32string text = path.u32string();
    std::wstring wide;
    for (const char32_t character : text)
    {
        if (sizeof(wchar_t) == 2 && character > 0xFFFF)
        {
            const char32_t offset = character - 0x10000;
            wide += static_cast<wchar_t>(0xD800 + (offset >> 10));
            wide += static_cast<wchar_t>(0xDC00 + (offset & 0x3FF));
        }
        else
        {
            wide += static_cast<wchar_t>(character);
        }
    }
    return wide;
}

std::string readFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
    {
        throw std::runtime_error("cannot read a file of the test");
    }
    return std::string(std::istreambuf_iterator<char>(file), {});
}

CurrentFolder::CurrentFolder(const fs::path& path) : m_before(fs::current_path())
{
    fs::current_path(path);
}

CurrentFolder::~CurrentFolder()
{
    std::error_code ignored;
    fs::current_path(m_before, ignored);
}

} // namespace toolbox
