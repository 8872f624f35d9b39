// The declaration of one option.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kexa/option.h"

#include "options/AllowedValueIndex.h"
#include "options/KeywordSet.h"
#include "options/Lazy.h"
#include "options/NotCopied.h"
#include "options/OptionIndex.h"
#include "options/OptionNames.h"

namespace kexa_3_3
{

class Garbage;

inline constexpr std::int32_t no_value_type = vexkit2::kind_null;
inline constexpr std::wstring_view hidden_group = L"kexa_hidden";
inline constexpr std::wstring_view positional_keyword = L"kexa_positional_option";

// Which values an option accepts, where it does not accept all of its type.
struct ValueRestriction
{
    std::vector<vexkit2::variant_t> allowedValues;
    std::map<vexkit2::variant_t, vexkit2::variant_t> deprecatedValues;

    // The candidates for a typed value. Made on first use after a change of them.
    mutable NotCopied<std::unique_ptr<AllowedValueIndex>> index;
};

// A group of options, and the text of that group.
using OptionGroup = std::pair<std::wstring_view, std::wstring_view>;

// Changed by the host through IOption; the rest of the library reads the members. Texts live in the
// owner's pool, so as long as the parser, and are terminated by a zero.
class OptionDescription final : public IOption
{
public:
    // group:    the option's; lives longer than the option.
    // isSwitch: whether the option is an action, which takes no value.
    // owner:    keeps the texts; lives longer than the option.
    // names:    lie in the memory of the owner.
    OptionDescription(const OptionGroup& group, bool isSwitch, Garbage& owner_,
                      std::span<HashedText> names_ = {}) noexcept
        : names(names_), valueMode(isSwitch ? 0 : 1), owner(&owner_), m_group(&group)
    {
    }
    OptionDescription(OptionGroup&&, bool, Garbage&, std::span<HashedText> = {}) = delete;
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
    [[nodiscard]] std::wstring_view group() const noexcept { return m_group->first; }
    [[nodiscard]] std::wstring_view groupText() const noexcept { return m_group->second; }

    // Whether the text is one of the option's names.
    [[nodiscard]] bool answersTo(std::wstring_view name) const noexcept;
    [[nodiscard]] bool takesValue() const noexcept { return valueMode != 0; }
    [[nodiscard]] bool isPositional() const
    {
        return takesValue() && (marked || hasPositionalKeyword());
    }

    // Tells the option where it is entered. From then on the index learns of further names, of
    // values and of the option becoming positional; of those so far it learns from the caller.
    // tableIndex: the option's place in the table of options, which no other has.
    void setPlace(OptionIndex& index, std::size_t tableIndex) noexcept
    {
        m_place.held = {&index, tableIndex};
    }

    // The index that it was entered into, or null, and its place in the table beside that.
    [[nodiscard]] const OptionIndex* index() const noexcept { return m_place.held.index; }
    [[nodiscard]] std::size_t tableIndex() const noexcept { return m_place.held.tableIndex; }

    // Null where no allowed and no deprecated value was declared.
    [[nodiscard]] const ValueRestriction* restriction() const noexcept
    {
        return m_restriction.get();
    }
    [[nodiscard]] std::span<const vexkit2::variant_t> allowedValues() const noexcept
    {
        using Values = std::span<const vexkit2::variant_t>;
        return restriction() == nullptr ? Values() : Values(restriction()->allowedValues);
    }

    // The candidates for a typed value of an option that has a restriction.
    [[nodiscard]] const AllowedValueIndex& allowedValueIndex() const;

    // Whether it holds anything beside what lies in the owner's memory. Where it does not, nothing
    // is lost when it is never destroyed.
    [[nodiscard]] bool holdsValues() const noexcept
    {
        return hasDefault || restriction() != nullptr;
    }

    std::int32_t kind = 0;

    // Whether the texts of all names are known to lie one behind the other in the order of the
    // names, each with a zero behind it, so that they can be copied at once. Whoever adds a name
    // clears it.
    bool namesAreJoined = false;
    OptionNames names;
    KeywordSet keywords;
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
        std::size_t tableIndex = 0;
    };

    [[nodiscard]] bool hasPositionalKeyword() const
    {
        return !keywords.empty() && keywords.contains(positional_keyword);
    }
    // NOLINTNEXTLINE(readability-make-member-function-const): it changes the index.
    void noteValues() noexcept
    {
        if (m_place.held.index != nullptr)
        {
            m_place.held.index->noteValues();
        }
    }
    // NOLINTNEXTLINE(readability-make-member-function-const): it changes the index.
    void notePositional()
    {
        if (m_place.held.index != nullptr && isPositional())
        {
            m_place.held.index->notePositional(m_place.held.tableIndex);
        }
    }

    const OptionGroup* m_group;
    NotCopied<Place> m_place;
    Lazy<ValueRestriction> m_restriction;
};

} // namespace kexa_3_3
