// The arguments of one parse run, consumed from the front.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "support/text/Text.h"

namespace kexa_3_3
{

// A sequence of arguments.
class ArgumentSource
{
public:
    ArgumentSource() = default;
    ArgumentSource(const ArgumentSource&) = delete;
    ArgumentSource& operator=(const ArgumentSource&) = delete;

    // Returns whether there was one more argument, which `argument` receives. Its text is valid
    // until the second call after this one.
    [[nodiscard]] virtual bool next(std::wstring_view& argument) = 0;

protected:
    ~ArgumentSource() = default;
};

// Reads each argument once, shortly before it is parsed: most of the cost of a million arguments is
// that of loading their texts from memory.
class ArgumentQueue
{
public:
    // pointers: an argument vector without the program's name; a null entry is an empty argument.
    //           The texts outlive the queue.
    explicit ArgumentQueue(std::span<const wchar_t* const> pointers)
        : m_next(pointers.data()), m_left(pointers.size()), m_empty(!fetch(m_front))
    {
    }

    // source: outlives the queue.
    explicit ArgumentQueue(ArgumentSource& source) : m_source(&source), m_empty(!fetch(m_front)) {}
    ~ArgumentQueue() = default;
    ArgumentQueue(const ArgumentQueue&) = delete;
    ArgumentQueue& operator=(const ArgumentQueue&) = delete;

    [[nodiscard]] bool empty() const noexcept { return m_empty; }

    // Returns the front argument. Its text stays valid after removeFront(), until the argument
    // behind the new front one is read. Precondition: !empty().
    [[nodiscard]] std::wstring_view front() const noexcept { return m_front; }

    // Returns whether there is an argument behind the front one; second() then returns it.
    [[nodiscard]] bool hasSecond()
    {
        if (m_second == Second::unknown)
        {
            m_second = fetch(m_behindFront) ? Second::present : Second::absent;
        }
        return m_second == Second::present;
    }
    [[nodiscard]] std::wstring_view second() const noexcept { return m_behindFront; }

    // Precondition: !empty().
    void removeFront()
    {
        if (m_second == Second::unknown)
        {
            m_empty = !fetch(m_front);
            return;
        }
        m_front = m_behindFront;
        m_empty = m_second == Second::absent;
        m_second = Second::unknown;
    }

private:
    enum class Second
    {
        unknown,
        present,
        absent
    };

    [[nodiscard]] bool fetch(std::wstring_view& argument)
    {
        if (m_left == 0)
        {
            return m_source != nullptr && m_source->next(argument);
        }
        --m_left;
        argument = viewOf(*m_next++);
        return true;
    }

    ArgumentSource* m_source = nullptr; // null if pointers were given
    const wchar_t* const* m_next = nullptr;
    std::size_t m_left = 0; // how many pointers follow; 0 if there is a source
    std::wstring_view m_front;
    std::wstring_view m_behindFront;
    Second m_second = Second::unknown;
    bool m_empty;
};

} // namespace kexa_3_3
