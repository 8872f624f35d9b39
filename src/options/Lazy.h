// A member that is made when it is first needed.
#pragma once

#include <memory>

namespace kexa_3_3
{

// For a member that few objects of a class use: in the others it is only a null pointer. Copying an
// object copies the member.
template <class T>
class Lazy
{
public:
    Lazy() noexcept = default;
    ~Lazy() = default;
    Lazy(const Lazy& other)
        : m_made(other.m_made == nullptr ? nullptr : std::make_unique<T>(*other.m_made))
    {
    }
    Lazy(Lazy&&) noexcept = default;
    Lazy& operator=(const Lazy&) = delete;
    Lazy& operator=(Lazy&&) = delete;

    // Null before make() was called.
    [[nodiscard]] const T* get() const noexcept { return m_made.get(); }

    // Makes the member if it does not exist. Throws what its constructor throws, changing nothing.
    T& make()
    {
        if (m_made == nullptr)
        {
            m_made = std::make_unique<T>();
        }
        return *m_made;
    }

private:
    std::unique_ptr<T> m_made;
};

} // namespace kexa_3_3
