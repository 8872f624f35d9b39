// The declaration of one option.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <memory_resource>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kexa/option.h"

#include "options/AllowedValueIndex.h"
#include "options/NotCopied.h"
#include "options/OptionIndex.h"
#include "support/HashedText.h"

namespace kexa_3_3
{

class Garbage;

inline constexpr std::int32_t no_value_type = vexkit2::kind_null;
inline constexpr std::wstring_view hidden_group = L"kexa_hidden";
inline constexpr std::wstring_view positional_keyword = L"kexa_positional_option";

// Changed by the host through IOption; the rest of the library reads the members. Texts live in the
// owner's pool, so as long as the parser, and are terminated by a zero.
class OptionDescription final : public IOption
{
public:
    // group:    the option's group and the text of that group.
    // isSwitch: whether the option is an action, which takes no value.
    // owner:    keeps the texts; lives longer than the option.
    OptionDescription(const std::pair<std::wstring_view, std::wstring_view>& group, bool isSwitch,
                      Garbage& owner);
    ~OptionDescription() override = default;

    // A copy is a description by itself: no table of options learns of its names.
    OptionDescription(const OptionDescription&) = default;
    OptionDescription& operator=(const OptionDescription&) = delete;

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
        return names.empty() ? std::wstring_view(L"") : std::wstring_view(names.front());
    }
    // Whether the text is one of the option's names.
    [[nodiscard]] bool answersTo(std::wstring_view name) const noexcept;
    [[nodiscard]] bool takesValue() const noexcept { return valueMode != 0; }
    [[nodiscard]] bool isPositional() const
    {
        return takesValue() && (marked || hasPositionalKeyword());
    }

    // Sets the names of a new option. Their texts lie in the owner's pool already.
    void setNames(std::span<const OptionIndex::NewName> newNames);

    // Makes the option known to an index, which from then on learns of further names and of the
    // option becoming positional. table index: the option's place in the table of options, which
    // no other has. Throws std::bad_alloc, and the index is unchanged then.
    void enterInto(OptionIndex& index, std::size_t tableIndex);

    // The same for names that the index has made room for, which are those set.
    void enterInto(OptionIndex& index, std::size_t tableIndex,
                   std::span<const OptionIndex::NewName> newNames) noexcept;

    // The index that it was entered into, or null, and its place in the table beside that.
    [[nodiscard]] const OptionIndex* index() const noexcept { return m_place.held.index; }
    [[nodiscard]] std::size_t tableIndex() const noexcept { return m_place.held.tableIndex; }

    // The candidates for a typed value. Made on first use after a change of them.
    [[nodiscard]] const AllowedValueIndex& allowedValueIndex() const;

    std::int32_t kind = 0;
    std::pmr::vector<HashedText> names;
    std::pmr::set<std::wstring_view> keywords;
    std::wstring_view group;
    std::wstring_view groupText;
    std::wstring_view description;
    bool marked = false;
    bool hasDefault = false;
    std::uint32_t valueMode; // 0: a switch, 1: an option that takes a value
    wchar_t separator = L',';
    std::int32_t valueType = no_value_type;
    vexkit2::variant_t defaultValue;
    std::vector<vexkit2::variant_t> allowedValues;
    std::map<vexkit2::variant_t, vexkit2::variant_t> deprecatedValues;
    Garbage* owner;

private:
    struct Place
    {
        OptionIndex* index = nullptr;
        std::size_t tableIndex = 0;
    };

    [[nodiscard]] bool hasPositionalKeyword() const;
    void notePositional();

    NotCopied<Place> m_place;
    mutable NotCopied<std::unique_ptr<AllowedValueIndex>> m_allowedValueIndex;
};

// Whether two options have a keyword in common.
[[nodiscard]] bool shareKeyword(const OptionDescription& left, const OptionDescription& right);

} // namespace kexa_3_3
