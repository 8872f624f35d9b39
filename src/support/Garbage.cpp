#include "support/Garbage.h"

namespace kexa_3_3
{

Garbage::Garbage(std::size_t firstBlock) : m_memory(firstBlock), m_interned(&m_memory) {}

Garbage::Garbage(std::span<std::byte> first) : m_memory(first), m_interned(&m_memory) {}

const wchar_t* Garbage::intern(const wchar_t* text)
{
    return text == nullptr ? L"" : internText(text).data();
}

std::wstring_view Garbage::internText(std::wstring_view text)
{
    text = text.substr(0, text.find(L'\0'));
    if (text != m_last || m_last.data() == nullptr)
    {
        const auto found = m_interned.find(text);
        m_last = found != m_interned.end() ? *found : *m_interned.insert(keep(text)).first;
    }
    return m_last;
}

} // namespace kexa_3_3
