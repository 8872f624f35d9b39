#include "support/Garbage.h"

#include <string>

namespace kexa_3_3
{

Garbage::Garbage(std::size_t firstBlock) : m_memory(firstBlock), m_interned(&m_memory) {}

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

std::wstring_view Garbage::keep(std::wstring_view text)
{
    const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
    auto* const copy = static_cast<wchar_t*>(m_memory.take(size, alignof(wchar_t)));
    std::char_traits<wchar_t>::copy(copy, text.data(), text.size());
    copy[text.size()] = L'\0';
    return {copy, text.size()};
}

} // namespace kexa_3_3
