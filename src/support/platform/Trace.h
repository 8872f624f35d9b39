// The diagnostic trace of parsing decisions.
#pragma once

#include <atomic>
#include <ostream>
#include <streambuf>
#include <type_traits>

namespace kexa_3_3
{

namespace internal
{

// Discards what is written to it: it has no storage, so every write fails.
class basic_nullbuf final : public std::wstreambuf
{
public:
    basic_nullbuf() = default;
    basic_nullbuf(const basic_nullbuf&) = delete;
    basic_nullbuf& operator=(const basic_nullbuf&) = delete;
    ~basic_nullbuf() override = default;
};

// The trace switch. One for the whole process: parsers in several threads may switch each other's
// trace on and off. Relaxed, as it guards no other memory.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
extern std::atomic<bool> trace_switch;

} // namespace internal

// Returns standard output while the trace switch is on, else a stream that discards everything.
std::wostream& traceStream();

inline void switchTrace(bool on) noexcept
{
    internal::trace_switch.store(on, std::memory_order_relaxed);
}

[[nodiscard]] inline bool traceIsOn() noexcept
{
    return internal::trace_switch.load(std::memory_order_relaxed);
}

namespace internal
{

template <class... Pieces>
void writeTraceLine(Pieces... pieces)
{
    (traceStream() << ... << pieces) << std::endl;
}

} // namespace internal

// Writes one line made of the pieces: wide texts and integers. With tracing off this is one branch;
// the pieces are not formatted. They are passed by value: a reference would force the caller to
// keep what it refers to in memory instead of in registers.
template <class... Pieces>
inline void traceLine(Pieces... pieces)
{
    static_assert((std::is_trivially_copyable_v<Pieces> && ...), "a view of a text, not the text");
    if (traceIsOn()) [[unlikely]]
    {
        internal::writeTraceLine(pieces...);
    }
}

} // namespace kexa_3_3
