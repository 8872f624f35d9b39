// A result of the library with the query operations of naive::Result.
#ifndef NAIVE_LIBRARY_RESULT_H
#define NAIVE_LIBRARY_RESULT_H

#include <cstdint>
#include <string>

#include "kexa/parse_result.h"
#include "NaiveResult.h"

namespace naive
{

class LibraryResult
{
public:
    explicit LibraryResult(kexa_3_3::IParseResult& result) : m_result(result) {}

    bool isPresent(const std::wstring& name, std::int32_t from, std::int32_t to)
    {
        return m_result.isPresent(name.c_str(), from, to) == 1;
    }

    QueriedValue getFirstValue(const std::wstring& name, std::int32_t from, std::int32_t to)
    {
        kexa_3_3::Value value;
        const std::int32_t code = m_result.getFirstValue(&value, name.c_str(), from, to);
        return queriedValue(code, value);
    }

    QueriedValue getNextValue()
    {
        kexa_3_3::Value value;
        const std::int32_t code = m_result.getNextValue(&value, L"");
        return queriedValue(code, value);
    }

    std::int32_t getNextPosition() { return m_result.getNextPosition(); }

    QueriedValue getLastValue(const std::wstring& name, std::int32_t from, std::int32_t to)
    {
        const kexa_3_3::Value value = kexa_3_3::getLastValue(&m_result, name.c_str(), from, to);
        return queriedValue(value.status, value);
    }

private:
    // The status must be equal to the code. If it is not, the returned code is one that is never
    // predicted.
    static QueriedValue queriedValue(std::int32_t code, const kexa_3_3::Value& value)
    {
        QueriedValue queried;
        queried.code = value.status == code ? code : -1;
        queried.hasText = value.data != nullptr;
        queried.text = queried.hasText ? static_cast<const wchar_t*>(value.data) : L"";
        queried.position = value.position;
        queried.value = value.value;
        return queried;
    }

    kexa_3_3::IParseResult& m_result;
};

} // namespace naive

#endif
