// Different texts with one hash.
#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <unordered_map>
#include <utility>

#include "support/text/HashedText.h"

namespace unit
{

// Returns two texts that differ and have equal hashes. Among so many random texts as are tried
// here, several pairs are expected of any hash of 32 bits. Returns two empty texts if there is
// none.
inline std::pair<std::wstring, std::wstring> textsWithOneHash()
{
    std::mt19937 random(1);
    std::unordered_map<std::uint32_t, std::wstring> known;
    for (int number = 0; number < 1000000; ++number)
    {
        std::wstring text;
        for (unsigned length = 1 + random() % 8; length != 0; --length)
        {
            text += static_cast<wchar_t>((random() % 2 == 0 ? L'a' : L'A') + random() % 26);
        }
        const auto [found, isNew] = known.try_emplace(kexa_3_3::HashedText(text).hash(), text);
        if (!isNew && found->second != text)
        {
            return {found->second, std::move(text)};
        }
    }
    return {};
}

} // namespace unit
