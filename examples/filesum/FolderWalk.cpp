#include "filesum/FolderWalk.h"

#include <algorithm>
#include <system_error>

#include "filesum/Pattern.h"
#include "filesum/Platform.h"
#include "filesum/Report.h"

namespace filesum
{

namespace
{

namespace fs = std::filesystem;

class Walk
{
public:
    Walk(const Selection& selection, Report& report) : m_selection(selection), m_report(report) {}

    void visitRoot(const fs::path& root)
    {
        std::error_code error;
        const fs::file_status status = fs::status(root, error);
        if (fs::is_directory(status))
        {
            visitFolder(root);
        }
        else if (fs::is_regular_file(status))
        {
            add(root, 0);
        }
        else if (fs::exists(status))
        {
            m_report.cannotRead(nameOf(root), "it is neither a file nor a folder");
        }
        else
        {
            const auto missing = std::make_error_code(std::errc::no_such_file_or_directory);
            m_report.cannotRead(nameOf(root), reasonOf(error ? error : missing));
        }
    }

    std::vector<FoundFile> takeFiles()
    {
        const auto byName = [](const FoundFile& left, const FoundFile& right)
        {
            return left.name < right.name;
        };
        const auto sameName = [](const FoundFile& left, const FoundFile& right)
        {
            return left.name == right.name;
        };
        std::sort(m_files.begin(), m_files.end(), byName);
        m_files.erase(std::unique(m_files.begin(), m_files.end(), sameName), m_files.end());
        return std::move(m_files);
    }

private:
    // Returns the entries in sorted order, so that problems are always reported in this order.
    std::vector<fs::path> entriesOf(const fs::path& folder)
    {
        std::vector<fs::path> entries;
        std::error_code error;
        fs::directory_iterator entry(folder, error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        {
            entries.push_back(entry->path().filename());
        }
        if (error)
        {
            m_report.cannotRead(nameOf(folder), reasonOf(error));
        }
        std::sort(entries.begin(), entries.end());
        return entries;
    }

    void visitFolder(const fs::path& folder)
    {
        for (const fs::path& entry : entriesOf(folder))
        {
            // Names of files in the current folder have no leading "./".
            const fs::path path = folder == "." ? entry : folder / entry;
            if (!matchesAny(entry, m_selection.exclude) && !isLink(path))
            {
                visitEntry(path);
            }
        }
    }

    void visitEntry(const fs::path& path)
    {
        std::error_code error;
        const fs::file_status status = fs::symlink_status(path, error);
        const std::vector<std::string>& include = m_selection.include;
        if (fs::is_directory(status))
        {
            visitFolder(path);
        }
        else if (fs::is_regular_file(status))
        {
            if ((include.empty() || matchesAny(path.filename(), include)) && !isLeftOut(path))
            {
                add(path, m_selection.minimumSize);
            }
        }
        else if (error)
        {
            m_report.cannotRead(nameOf(path), reasonOf(error));
        }
    }

    void add(const fs::path& path, std::uint64_t minimumSize)
    {
        std::error_code error;
        const std::uint64_t size = fs::file_size(path, error);
        if (error)
        {
            m_report.cannotRead(nameOf(path), reasonOf(error));
        }
        else if (size >= minimumSize)
        {
            m_files.push_back({path, nameOf(path), size});
        }
    }

    [[nodiscard]] bool isLeftOut(const fs::path& path) const
    {
        std::error_code error; // set if either file does not exist
        return !m_selection.notThis.empty() && fs::equivalent(path, m_selection.notThis, error);
    }

    static bool matchesAny(const fs::path& name, const std::vector<std::string>& patterns)
    {
        return std::any_of(patterns.begin(), patterns.end(),
                           [&name](const std::string& pattern)
                           { return matches(nameOf(name), pattern); });
    }

    const Selection& m_selection;
    Report& m_report;
    std::vector<FoundFile> m_files;
};

} // namespace

std::vector<FoundFile> findFiles(const std::vector<fs::path>& roots, const Selection& selection,
                                 Report& report)
{
    Walk walk(selection, report);
    for (const fs::path& root : roots)
    {
        walk.visitRoot(root);
    }
    return walk.takeFiles();
}

} // namespace filesum
