// Variants that several tests compare and read: each with the text that a failing row prints.
#ifndef KEXA_TESTS_VARIANT_SAMPLES_H
#define KEXA_TESTS_VARIANT_SAMPLES_H

#include <cstddef>
#include <cstring>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <kexa/kexa.h>

namespace variant_samples
{

struct Sample
{
    std::string label;
    vexkit2::variant_t value;
};

// Samples that are equal to one another, and to nothing in another class.
using EqualSamples = std::vector<Sample>;

// Counts its destructions.
class CountedObject : public vexkit2::polymorphic_t
{
public:
    explicit CountedObject(int& destroyed) : m_destroyed(destroyed) {}
    CountedObject(const CountedObject&) = delete;
    CountedObject& operator=(const CountedObject&) = delete;
    ~CountedObject() override { ++m_destroyed; }

private:
    int& m_destroyed;
};

// How many variants share the block of a wide text.
inline std::size_t sharersOf(const vexkit2::variant_t& text)
{
    const void* const data = text.get<const wchar_t*>();
    return vexkit2::detail::header_of(data)->memory->count.load();
}

// A variant of the given kind whose data word is null, as no operation of its own leaves one: its
// bytes are overwritten (data word first, kind at offset 8).
inline vexkit2::variant_t withoutData(vexkit2::s32_t kind)
{
    vexkit2::variant_t forged;
    unsigned char* const bytes = static_cast<unsigned char*>(static_cast<void*>(&forged));
    std::memset(bytes, 0, sizeof(void*));
    std::memcpy(bytes + 8, &kind, sizeof(kind));
    return forged;
}

template <class T>
Sample number(const std::string& label, T value)
{
    return {label, vexkit2::variant_t(value)};
}

// Two objects in the order of their addresses.
inline std::pair<vexkit2::variant_t, vexkit2::variant_t> twoObjects()
{
    auto* first = new vexkit2::polymorphic_t;
    auto* second = new vexkit2::polymorphic_t;
    if (std::less<vexkit2::polymorphic_t*>()(second, first))
    {
        std::swap(first, second);
    }
    return {vexkit2::variant_t::object(first), vexkit2::variant_t::object(second)};
}

// Integers, each in every kind that can hold it, and as a float and a double where those hold it
// exactly; ascending.
std::vector<EqualSamples> numberClasses();

// Narrow and wide texts (owned and referred to) and blobs; ascending.
std::vector<EqualSamples> textAndBlobClasses();

// Every class of equal values, ascending in the order of variants; NaN is left out, since it is
// equal to nothing.
std::vector<EqualSamples> ascendingClasses();

} // namespace variant_samples

#endif
