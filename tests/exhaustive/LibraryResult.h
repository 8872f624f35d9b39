// The library's result with the query operations that naive::Result has.
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

    ValueAnswer getFirstValue(const std::wstring& name, std::int32_t from, std::int32_t to)
    {
        kexa_3_3::Value value;
        const std::int32_t code = m_result.getFirstValue(&value, name.c_str(), from, to);
        return answer(code, value);
    }

    ValueAnswer getNextValue()
    {
        kexa_3_3::Value value;
        const std::int32_t code = m_result.getNextValue(&value, L"");
        return answer(code, value);
    }

    std::int32_t getNextPosition() { return m_result.getNextPosition(); }

    ValueAnswer getLastValue(const std::wstring& name, std::int32_t from, std::int32_t to)
    {
        const kexa_3_3::Value value = kexa_3_3::getLastValue(&m_result, name.c_str(), from, to);
        return answer(value.status, value);
    }

private:
    // A status that differs from the code becomes a code that nothing predicts.
    static ValueAnswer answer(std::int32_t code, const kexa_3_3::Value& value)
    {
        ValueAnswer answer;
        answer.code = value.status == code ? code : -1;
        answer.hasText = value.data != nullptr;
        answer.text = answer.hasText ? static_cast<const wchar_t*>(value.data) : L"";
        answer.position = value.position;
        answer.value = value.value;
        return answer;
    }

    kexa_3_3::IParseResult& m_result;
};

} // namespace naive

#endif
