// The declared options of the naive implementation.
#ifndef NAIVE_REGISTRY_H
#define NAIVE_REGISTRY_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "kexa/variant.h"
#include "NaiveDeclarations.h"

namespace naive
{

struct Option
{
    std::vector<std::wstring> names;
    std::set<std::wstring> keywords;
    bool isAction = false;
    bool marked = false;
    bool hasDefault = false;
    wchar_t separator = L',';
    std::int32_t valueType = kexa_3_3::value_type_none;
    vexkit2::variant_t defaultValue;
    std::vector<vexkit2::variant_t> allowedValues;
    std::map<vexkit2::variant_t, vexkit2::variant_t> deprecatedValues;

    const std::wstring& primaryName() const { return names.front(); }
    bool isBoolean() const { return valueType == kexa_3_3::value_type_boolean; }
    bool takesNoValue() const { return valueType == kexa_3_3::value_type_none; }
    bool isPositional() const;
    bool hasName(const std::wstring& name) const;
};

class Registry
{
public:
    Registry(const Declarations& declarations, std::int32_t flags);

    const std::vector<Option>& options() const { return m_options; }
    const std::vector<std::set<std::wstring>>& compatibleActions() const
    {
        return m_compatibleActions;
    }

    // Returns the first option that has the name, or null.
    const Option* find(const std::wstring& name) const;

private:
    void declare(const Declaration& declaration, wchar_t separator);

    std::vector<Option> m_options;
    std::vector<std::set<std::wstring>> m_compatibleActions;
};

// Returns the parts of a text between its commas, without the empty ones.
std::vector<std::wstring> splitAtCommas(const std::wstring& text);

} // namespace naive

#endif
