// Where everything that is drawn comes from.
#ifndef KEXA_TESTS_COMMAND_COMPARISON_CHOICES_H
#define KEXA_TESTS_COMMAND_COMPARISON_CHOICES_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <string>

namespace toolbox
{

class Choices
{
public:
    Choices() = default;
    Choices(const Choices&) = delete;
    Choices& operator=(const Choices&) = delete;
    virtual ~Choices() = default;

    // Returns a number below the bound, which is not 0.
    virtual std::size_t below(std::size_t bound) = 0;

    bool chance(std::size_t of) { return below(of) == of - 1; }

    template <class Texts>
    std::string oneOf(const Texts& texts)
    {
        return std::string(texts[below(std::size(texts))]);
    }
};

// Choices that depend on the seed alone, on every system.
class RandomChoices final : public Choices
{
public:
    explicit RandomChoices(std::uint32_t seed) : m_random(seed) {}
    std::size_t below(std::size_t bound) override { return m_random() % bound; }

private:
    std::mt19937 m_random;
};

// Choices that the bytes of an input make, one each; 0 once they are used up.
class ChoicesOfBytes final : public Choices
{
public:
    ChoicesOfBytes(const std::uint8_t* data, std::size_t size) : m_next(data), m_end(data + size) {}
    std::size_t below(std::size_t bound) override
    {
        return m_next == m_end ? 0 : *m_next++ % bound;
    }
    bool areUsedUp() const { return m_next == m_end; }

private:
    const std::uint8_t* m_next;
    const std::uint8_t* m_end;
};

} // namespace toolbox

#endif
