// A member that is not copied with its object.
#pragma once

namespace kexa_3_3
{

// For what belongs to one object and not to its value: a cache, a registration elsewhere. A copy
// starts with a new T; assigning keeps the target's own.
template <class T>
struct NotCopied
{
    NotCopied() = default;
    NotCopied(const NotCopied& /*other*/) noexcept {}
    // NOLINTNEXTLINE(cert-oop54-cpp): there is nothing to protect from an assignment to itself.
    NotCopied& operator=(const NotCopied& /*other*/) noexcept { return *this; }
    ~NotCopied() = default;

    T held = T();
};

} // namespace kexa_3_3
