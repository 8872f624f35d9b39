#include "support/memory/Garbage.h"

namespace kexa_3_3
{

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

std::wstring_view Garbage::keepJoined(std::wstring_view first, std::wstring_view second)
{
    const std::size_t length = first.size() + second.size();
    wchar_t* const copy = roomFor(length);
    first.copy(copy, first.size());
    second.copy(copy + first.size(), second.size());
    return {copy, length};
}

} // namespace kexa_3_3
