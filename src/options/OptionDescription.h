// The declaration of one option.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <memory_resource>
#include <set>
#include <span>
#include <string_view>
#include <vector>

#include "kexa/option.h"

#include "options/AllowedValueIndex.h"
#include "options/Lazy.h"
#include "options/NotCopied.h"
#include "support/text/HashedText.h"

namespace kexa_3_3
{

class Garbage;
class OptionIndex;

inline constexpr std::int32_t no_value_type = vexkit2::kind_null;
inline constexpr std::wstring_view hidden_group = L"kexa_hidden";
inline constexpr std::wstring_view positional_keyword = L"kexa_positional_option";

// A group of options, and the text of that group.
struct OptionGroup
{
    std::wstring_view name;
    std::wstring_view text;
};

// Which values an option accepts, if it does not accept all of its type.
struct ValueRestriction
{
    std::vector<vexkit2::variant_t> allowedValues;
    std::map<vexkit2::variant_t, vexkit2::variant_t> deprecatedValues; // old value to replacement

    // The candidates for a typed value. Made on first use, and again after a change of the values.
    mutable NotCopied<std::unique_ptr<AllowedValueIndex>> index;
};

// Identifies an option among all that the parsers of this process ever declared.
struct OptionIdentity
{
    std::uint64_t index = 0; // the identity of its OptionIndex; 0: the option is in none
    std::size_t number = 0;

    friend bool operator==(const OptionIdentity&, const OptionIdentity&) = default;
};

// Changed by the host through IOption; the rest of the library reads the members. Texts lie in the
// owner's pool, so they live as long as the parser, and are null-terminated.
class OptionDescription final : public IOption
{
public:
    // group:    lies in the owner's pool.
    // isSwitch: whether the option is an action, which takes no value.
    // pool:     keeps the texts; outlives the option.
    OptionDescription(const OptionGroup& group, bool isSwitch, Garbage& pool) noexcept;
    ~OptionDescription() override = default;

    // A copy belongs to no index.
    OptionDescription(const OptionDescription&) = default;
    OptionDescription(OptionDescription&&) = default;
    OptionDescription& operator=(const OptionDescription&) = delete;
    OptionDescription& operator=(OptionDescription&&) = delete;

    // Each throws std::bad_alloc, changing nothing.
    IOption& addName(const wchar_t* name) override;
    IOption& addAllowedValue(const vexkit2::variant_t& value) override;
    IOption& addDeprecatedValue(const vexkit2::variant_t& oldValue,
                                const vexkit2::variant_t& replacement) override;
    IOption& setDefaultValue(const vexkit2::variant_t& value) override;
    IOption& setSeparator(wchar_t separator) override;
    IOption& setMarked() override;
    IOption& addKeywords(const wchar_t* list) override;

    // The name that messages, events and help use; empty for an option that has none.
    [[nodiscard]] std::wstring_view primaryName() const noexcept
    {
        return names.empty() ? std::wstring_view(L"") : names.front().text();
    }
    [[nodiscard]] bool hasName(std::wstring_view name) const noexcept;
    [[nodiscard]] bool takesValue() const noexcept { return valueMode != 0; }
    [[nodiscard]] bool isPositional() const noexcept
    {
        return takesValue() && (marked || (m_keywords.get() != nullptr &&
                                           m_keywords.get()->contains(positional_keyword)));
    }

    // Makes the option report further names, and that it becomes positional, to an index from now
    // on. The caller adds the existing names to the index.
    void enterInto(OptionIndex& index, std::size_t number) noexcept;

    // Unique in this process among the options that are in an index.
    [[nodiscard]] OptionIdentity identity() const noexcept;

    using Keywords = std::set<std::wstring_view>;
    [[nodiscard]] const Keywords& keywords() const
    {
        static const Keywords none;
        return m_keywords.get() == nullptr ? none : *m_keywords.get();
    }

    // Null if no allowed and no deprecated value was declared.
    [[nodiscard]] const ValueRestriction* restriction() const noexcept
    {
        return m_restriction.get();
    }
    [[nodiscard]] std::span<const vexkit2::variant_t> allowedValues() const noexcept
    {
        using Values = std::span<const vexkit2::variant_t>;
        return restriction() == nullptr ? Values() : Values(restriction()->allowedValues);
    }

    // The candidates for a typed value. Precondition: there is a restriction. Throws
    // std::bad_alloc.
    [[nodiscard]] const AllowedValueIndex& allowedValueIndex() const;

    std::int32_t kind = 0;
    std::pmr::vector<HashedText> names;
    OptionGroup group;
    std::wstring_view description;
    bool marked = false;
    bool hasDefault = false;
    std::uint32_t valueMode; // 0: a switch, 1: an option that takes a value
    wchar_t separator = L',';
    std::int32_t valueType = no_value_type;
    vexkit2::variant_t defaultValue;
    Garbage* owner;

private:
    struct Place
    {
        OptionIndex* index = nullptr;
        std::size_t number = 0;
    };

    void notePositional() noexcept;

    NotCopied<Place> m_place;
    Lazy<Keywords> m_keywords;
    Lazy<ValueRestriction> m_restriction;
};

// Whether two options have a keyword in common.
[[nodiscard]] bool shareKeyword(const OptionDescription& left, const OptionDescription& right);

} // namespace kexa_3_3
