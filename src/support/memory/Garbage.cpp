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

std::wstring_view Garbage::keep(std::wstring_view text)
{
    wchar_t* const copy = roomFor(text.size());
    text.copy(copy, text.size());
    return {copy, text.size()};
}


std::wstring_view Garbage::keepJoined(std::wstring_view first, std::wstring_view second)
{
    const std::size_t length = first.size() + second.size();
    wchar_t* const copy = roomFor(length);
    first.copy(copy, first.size());
    second.copy(copy + first.size(), second.size());
    return {copy, length};
}

// Room for a text of `length` characters, with the zero behind it.
wchar_t* Garbage::roomFor(std::size_t length)
{
    void* const memory = m_memory.take((length + 1) * sizeof(wchar_t), alignof(wchar_t));
    auto* const room = static_cast<wchar_t*>(memory);
    room[length] = L'\0';
    return room;
}

} // namespace kexa_3_3
