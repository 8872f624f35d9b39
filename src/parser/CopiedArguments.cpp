#include "parser/CopiedArguments.h"

#include <cassert>
#include <cstddef>

#include "support/text/Text.h"

namespace kexa_3_3
{

CopiedArguments::CopiedArguments(std::span<const wchar_t* const> arguments)
{
    std::size_t length = 0;
    for (const wchar_t* const argument : arguments)
    {
        length += viewOf(argument).size() + 1;
    }
    m_texts.reserve(length); // so that no text moves when the next one is appended
    m_pointers.reserve(arguments.size());
    for (const wchar_t* const argument : arguments)
    {
        m_pointers.push_back(m_texts.data() + m_texts.size());
        m_texts.append(viewOf(argument)).push_back(L'\0');
    }
    assert(m_texts.size() == length);
}

} // namespace kexa_3_3
