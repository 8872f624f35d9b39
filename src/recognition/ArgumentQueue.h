// The arguments of one parse run, consumed from the front.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace kexa_3_3
{

// The texts belong to whoever made the vector (the host's argument vector, a loaded file) and
// outlive the parse.
using Arguments = std::vector<std::wstring_view>;

// Consuming moves a cursor; the vector is shortened once, when the queue is destroyed.
class ArgumentQueue
{
public:
    explicit ArgumentQueue(Arguments& arguments) noexcept : m_arguments(arguments) {}
    ~ArgumentQueue()
    {
        m_arguments.erase(m_arguments.begin(),
                          m_arguments.begin() + static_cast<std::ptrdiff_t>(m_consumed));
    }
    ArgumentQueue(const ArgumentQueue&) = delete;
    ArgumentQueue& operator=(const ArgumentQueue&) = delete;

    [[nodiscard]] bool empty() const noexcept { return m_consumed == m_arguments.size(); }
    [[nodiscard]] std::size_t size() const noexcept { return m_arguments.size() - m_consumed; }

    // The argument at an offset from the front, which is below size().
    [[nodiscard]] std::wstring_view operator[](std::size_t offset) const
    {
        return m_arguments[m_consumed + offset];
    }
    [[nodiscard]] std::wstring_view front() const { return (*this)[0]; }

    // Needs an argument.
    void removeFront() noexcept { ++m_consumed; }

private:
    Arguments& m_arguments;
    std::size_t m_consumed = 0;
};

} // namespace kexa_3_3
