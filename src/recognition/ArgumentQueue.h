// The arguments of one parse run, consumed from the front.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "support/text/Text.h"

namespace kexa_3_3
{

// Gives arguments one after the other.
class ArgumentSource
{
public:
    ArgumentSource() = default;
    ArgumentSource(const ArgumentSource&) = delete;
    ArgumentSource& operator=(const ArgumentSource&) = delete;

    // Answers whether there was one more. The text lives until the second call after this one.
    [[nodiscard]] virtual bool next(std::wstring_view& argument) = 0;

protected:
    ~ArgumentSource() = default;
};

// The arguments are not looked at before their turn comes: what a million of them cost is mostly
// that of fetching their texts from memory, which this does once.
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

    // The front argument, which there must be. Its text lives until it is removed and the argument
    // behind the next one is asked for.
    [[nodiscard]] std::wstring_view front() const noexcept { return m_front; }

    // Whether there is an argument behind the front one. `second` is it then.
    [[nodiscard]] bool hasSecond()
    {
        if (m_second == Second::unknown)
        {
            m_second = fetch(m_behindFront) ? Second::present : Second::absent;
        }
        return m_second == Second::present;
    }
    [[nodiscard]] std::wstring_view second() const noexcept { return m_behindFront; }

    // Needs an argument.
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

    ArgumentSource* m_source = nullptr; // null where pointers were given
    const wchar_t* const* m_next = nullptr;
    std::size_t m_left = 0; // how many pointers follow; none where there is a source
    std::wstring_view m_front;
    std::wstring_view m_behindFront;
    Second m_second = Second::unknown;
    bool m_empty;
};

} // namespace kexa_3_3
