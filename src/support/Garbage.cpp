#include "support/Garbage.h"

#include <utility>

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
    const auto found = m_interned.find(text);
    return found != m_interned.end() ? *found : *m_interned.insert(keep(text)).first;
}

std::wstring_view Garbage::adoptText(std::wstring&& text)
{
    constexpr std::size_t long_text = 4096;
    const std::wstring_view whole(text.c_str());
    if (whole.size() < long_text || m_interned.find(whole) != m_interned.end())
    {
        return internText(whole);
    }
    // A text that long lies in memory of its own, which moves with the string.
    m_taken.push_front(std::move(text));
    return *m_interned.insert(whole).first;
}

} // namespace kexa_3_3
