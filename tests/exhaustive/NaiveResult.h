// The naive parse result: every name is mapped to its own copy of the record of its option.
#ifndef NAIVE_RESULT_H
#define NAIVE_RESULT_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "kexa/value.h"
#include "kexa/variant.h"
#include "NaiveRegistry.h"

namespace naive
{

using kexa_3_3::no_position;

struct StoredValue
{
    std::wstring text;
    vexkit2::variant_t value;
    std::int32_t position = no_position;
};

struct Record
{
    std::vector<std::int32_t> positions;
    std::vector<StoredValue> values;
    std::wstring defaultText;
    vexkit2::variant_t defaultValue;
    std::int32_t defaultPosition = no_position;
};

// What a query for a value returned. If the code is not 0, the other members have their initial
// values.
struct QueriedValue
{
    std::int32_t code = 1;
    bool hasText = false;
    std::wstring text;
    std::int32_t position = no_position;
    vexkit2::variant_t value;
};

class Result
{
public:
    void store(const Option& option, const Record& record);
    void storeUnparsed(const std::wstring& argument) { m_unparsed.push_back(argument); }

    const std::map<std::wstring, Record>& records() const { return m_records; }
    const std::vector<std::wstring>& unparsed() const { return m_unparsed; }

    // The queries of a host. All of them share one cursor.
    bool isPresent(const std::wstring& name, std::int32_t from, std::int32_t to);
    QueriedValue getFirstValue(const std::wstring& name, std::int32_t from, std::int32_t to);
    QueriedValue getNextValue();
    std::int32_t getNextPosition();
    QueriedValue getLastValue(const std::wstring& name, std::int32_t from, std::int32_t to);

private:
    // Starts a walk and returns whether the option has an occurrence in the range or a default.
    bool begin(const std::wstring& name, std::int32_t from, std::int32_t to);
    bool onDefault() const;
    QueriedValue queriedDefault() const;

    std::map<std::wstring, Record> m_records;
    std::vector<std::wstring> m_unparsed;
    const Record* m_current = nullptr;
    std::size_t m_valueCursor = 0;
    std::size_t m_positionCursor = 0;
    std::int32_t m_from = 0;
    std::int32_t m_to = no_position;
};

} // namespace naive

#endif
