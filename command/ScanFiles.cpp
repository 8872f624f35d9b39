#include <algorithm>

#include "Inline.h"
#include "kexa/result.h"
#include "platform/FileReading.h"
#include "Scan.h"
#include "text/Encoding.h"
#include "text/OptionFileReading.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_LOCAL bool isOptionFile(const Given& given)
{
    return given.declaration != nullptr && given.declaration->kind == Kind::optionFile;
}

// Reads the files that the line names, in their order, then those that the files name. One that was
// read is not read again, so that cycles end.
KEXA_COMMAND_INLINE void Scan::readOptionFiles()
{
    std::vector<std::string> read;
    for (std::size_t i = 0; i < m_givens.size() && !m_fault.isFound; ++i)
    {
        if (!isOptionFile(m_givens[i]))
        {
            continue;
        }
        const Given given = m_givens[i];
        const std::string name =
            narrow(given.argument().substr(m_state->rawName(*given.declaration).size() + 1));
        const std::string identity = fileIdentity(name);
        if (std::find(read.begin(), read.end(), identity) != read.end())
        {
            continue;
        }
        read.push_back(identity);
        OptionFile file = readOptionFile(name);
        if (!file.error.empty())
        {
            m_fault.isFound = true;
            m_fault.message = std::move(file.error);
            m_fault.code = kexa_3_3::result_unreadable_option_file;
            m_fault.declaration = given.declaration;
            m_fault.place = given.place;
            return;
        }
        m_files->push_back(name);
        m_taken.push_back(std::move(m_arguments)); // its texts stay where they are
        m_arguments.clear();
        for (const OptionFileArgument& argument : file.arguments)
        {
            m_arguments.push_back(
                {widen(argument.text),
                 {given.place.index, m_files->size(), static_cast<int>(argument.line)}});
        }
        walk();
    }
}

} // namespace detail
} // namespace v1
} // namespace kexa
