#include "support/memory/Garbage.h"

#include <algorithm>

namespace kexa_3_3
{

// The heap by name: the default resource is the host's to change.
Garbage::Garbage(std::span<std::byte> first)
    : m_memory(first.data(), first.size(), std::pmr::new_delete_resource()), m_interned(&m_memory)
{
}

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
    return keepJoined(text, std::wstring_view());
}

std::wstring_view Garbage::keepJoined(std::wstring_view first, std::wstring_view second)
{
    const std::size_t length = first.size() + second.size();
    std::pmr::polymorphic_allocator<wchar_t> allocator(&m_memory);
    wchar_t* const copy = allocator.allocate(length + 1);
    wchar_t* const end = std::copy(second.begin(), second.end(),
                                   std::copy(first.begin(), first.end(), copy));
    *end = L'\0';
    return {copy, length};
}

} // namespace kexa_3_3
