// Memory inside an object, for its first allocations.
#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace kexa_3_3
{

// Size: in bytes, which are not initialized.
template <std::size_t Size>
class InlineBlock
{
public:
    InlineBlock() noexcept {} // NOLINT(*-member-init, modernize-use-equals-default): = default
                              // would let value-initialization write zeros to all of it
    [[nodiscard]] std::span<std::byte> bytes() noexcept { return m_bytes; }

private:
    alignas(std::max_align_t) std::array<std::byte, Size> m_bytes;
};

} // namespace kexa_3_3
