// A copy of an argument vector that event handlers cannot reach.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace kexa_3_3
{

// Handlers may write to the host's vector and to its texts, or free them, during a parse.
class CopiedArguments
{
public:
    // arguments: null-terminated texts; a null entry becomes an empty text. Throws std::bad_alloc.
    explicit CopiedArguments(std::span<const wchar_t* const> arguments);
    ~CopiedArguments() = default;
    CopiedArguments(const CopiedArguments&) = delete;
    CopiedArguments& operator=(const CopiedArguments&) = delete;

    // Null-terminated texts that live as long as this.
    [[nodiscard]] std::span<const wchar_t* const> pointers() const noexcept { return m_pointers; }

private:
    std::wstring m_texts; // one after the other, each with its terminating zero
    std::vector<const wchar_t*> m_pointers;
};

} // namespace kexa_3_3
