// Finds options by the names that users type.
#ifndef KEXA_COMMAND_PRIVATE_NAME_TABLE_H
#define KEXA_COMMAND_PRIVATE_NAME_TABLE_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kexa/command/detail/declaration.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

struct NameEntry
{
    std::wstring name;
    const Declaration* declaration;
    bool negated; // the name begins with the "no-" that the layer put before it
    bool hidden;
};

// What a typed name means.
struct NameMatch
{
    const NameEntry* entry = nullptr;         // the one meant
    std::vector<const NameEntry*> candidates; // several, where none is meant; else empty
};

class NameTable
{
public:
    void add(std::string_view name, const Declaration& declaration, bool negated, bool hidden);

    // Call after the last add().
    void sort();

    // As find(), before sort().
    const NameEntry* findUnsorted(std::wstring_view name) const;

    // Returns the entry of exactly this name, null where there is none.
    const NameEntry* find(std::wstring_view name) const;

    // Finds the option that a name in full or a prefix of it means. A prefix of several names means
    // an option where all of them are names of that option: its plain names, or its "no-" forms
    // where the "no-" was typed.
    NameMatch match(std::wstring_view name) const;

    const std::vector<NameEntry>& entries() const { return m_entries; } // sorted by name

private:
    std::vector<NameEntry> m_entries;
};

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
