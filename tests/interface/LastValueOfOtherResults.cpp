// getLastValue with a host's own implementation of IParseResult.
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Host.h"

namespace
{

using namespace kexa_3_3;
using vexkit2::s32_t;
using vexkit2::variant_t;

void expectNothing(const Value& value)
{
    EXPECT_NE(value.status, 0);
    EXPECT_EQ(value.data, nullptr);
    EXPECT_EQ(value.position, no_position);
    EXPECT_EQ(value.value.kind(), 17);
    EXPECT_EQ(value.as<const wchar_t*>(), nullptr);
}

// Returns the codes of a list, one for each query, and records the queries.
class ScriptedResult : public IParseResult
{
public:
    explicit ScriptedResult(std::vector<result_t> codes) : m_codes(std::move(codes)) {}

    std::vector<std::wstring> calls;
    bool setsStatus = true; // whether a query also writes its code to the Value

    void release() override {}
    std::int32_t isPresent(const wchar_t*, std::int32_t, std::int32_t) override { return 0; }
    result_t getFirstValue(Value* out, const wchar_t* name, std::int32_t from,
                           std::int32_t to) override
    {
        calls.push_back(L"first " + textOf(name) + L" " + std::to_wstring(from) + L" " +
                        std::to_wstring(to));
        return answer(out);
    }
    result_t getNextValue(Value* out, const wchar_t* name) override
    {
        calls.push_back(L"next " + textOf(name));
        return answer(out);
    }
    std::int32_t getNextPosition() override { return no_position; }
    result_t getFirstUnparsed(const wchar_t**) override { return result_nothing; }
    result_t getNextUnparsed(const wchar_t**) override { return result_nothing; }

private:
    static std::wstring textOf(const wchar_t* name) { return name == nullptr ? L"null" : name; }

    result_t answer(Value* out)
    {
        const std::size_t index = calls.size() - 1;
        const result_t code = index < m_codes.size() ? m_codes[index] : result_nothing;
        *out = Value();
        if (setsStatus)
        {
            out->status = code;
        }
        if (code == result_success)
        {
            out->data = L"text";
            out->position = static_cast<std::int32_t>(index);
            out->value = variant_t(static_cast<s32_t>(index));
        }
        return code;
    }

    std::vector<result_t> m_codes;
};

TEST(LastValueOfAHostsResult, FirstValueIsQueriedOnceThenTheNextUntilThereIsNone)
{
    ScriptedResult result({result_success, result_success, result_success, result_nothing});
    const Value value = getLastValue(&result, L"name", -7, 2147483647);
    EXPECT_EQ(value.status, 0);
    EXPECT_STREQ(value.as<const wchar_t*>(), L"text");
    EXPECT_EQ(value.position, 2);
    EXPECT_EQ(value.value.get<s32_t>(), 2);
    EXPECT_EQ(result.calls, (std::vector<std::wstring>{L"first name -7 2147483647", L"next name",
                                                       L"next name", L"next name"}));
}

TEST(LastValueOfAHostsResult, ValueThatOnlyTheNextQueryFindsCounts)
{
    ScriptedResult result({result_nothing, result_success, result_nothing});
    const Value value = getLastValue(&result, L"name", 3, 4);
    EXPECT_EQ(value.status, 0);
    EXPECT_STREQ(value.as<const wchar_t*>(), L"text");
    EXPECT_EQ(value.position, 1);
    EXPECT_EQ(result.calls,
              (std::vector<std::wstring>{L"first name 3 4", L"next name", L"next name"}));
}

TEST(LastValueOfAHostsResult, NullNameIsNotQueried)
{
    ScriptedResult result({result_success});
    const Value value = getLastValue(&result, nullptr, 0, no_position);
    EXPECT_EQ(value.status, 1);
    expectNothing(value);
    EXPECT_EQ(result.calls, std::vector<std::wstring>());
}

TEST(LastValueOfAHostsResult, ResultWithoutAValueIsNotFound)
{
    ScriptedResult result({result_nothing, result_nothing});
    const Value value = getLastValue(&result, L"name", 0, 0);
    EXPECT_EQ(value.status, 1);
    expectNothing(value);
    EXPECT_EQ(result.calls, (std::vector<std::wstring>{L"first name 0 0", L"next name"}));
}

TEST(LastValueOfAHostsResult, CodeOfAFailedQueryIsReturnedUnlessAValueWasFound)
{
    const struct
    {
        std::vector<result_t> codes;
        std::int32_t status;
        std::size_t calls;
    } rows[] = {
        {{result_standard_exception, result_standard_exception}, 3, 2},
        {{result_nothing, result_standard_exception}, 3, 2},
        {{result_standard_exception, result_nothing}, 1, 2},
        {{result_standard_exception, result_success, result_nothing}, 0, 3},
        {{result_success, result_standard_exception}, 0, 2},
    };
    for (const auto& row : rows)
    {
        ScriptedResult result(row.codes);
        const Value value = getLastValue(&result, L"name", 0, no_position);
        SCOPED_TRACE(testing::PrintToString(row.codes));
        EXPECT_EQ(value.status, row.status);
        EXPECT_EQ(result.calls.size(), row.calls);
        if (row.status != 0)
        {
            expectNothing(value);
        }
    }
}

TEST(LastValueOfAHostsResult, CodeOfTheQueryCountsNotTheStatusInTheValue)
{
    ScriptedResult result({result_success, result_success, result_nothing});
    result.setsStatus = false;
    const Value value = getLastValue(&result, L"name", 0, no_position);
    EXPECT_EQ(value.status, 0);
    EXPECT_STREQ(value.as<const wchar_t*>(), L"text");
    EXPECT_EQ(value.position, 1);
}

// Throws at the query with the given number, counted from 0.
class ThrowingResult : public ScriptedResult
{
public:
    explicit ThrowingResult(std::size_t failingCall, bool standard)
        : ScriptedResult({result_success, result_success, result_success, result_success}),
          m_failingCall(failingCall), m_standard(standard)
    {
    }

    result_t getFirstValue(Value* out, const wchar_t* name, std::int32_t from,
                           std::int32_t to) override
    {
        failWhereAsked();
        return ScriptedResult::getFirstValue(out, name, from, to);
    }
    result_t getNextValue(Value* out, const wchar_t* name) override
    {
        failWhereAsked();
        return ScriptedResult::getNextValue(out, name);
    }

private:
    void failWhereAsked() const
    {
        if (calls.size() != m_failingCall)
        {
            return;
        }
        if (m_standard)
        {
            throw std::runtime_error("a standard exception");
        }
        throw 5;
    }

    std::size_t m_failingCall;
    bool m_standard;
};

TEST(LastValueOfAHostsResult, ExceptionOfAHostsOwnResultIsCaught)
{
    for (const std::size_t failingCall : {0U, 1U, 2U})
    {
        for (const bool standard : {true, false})
        {
            ThrowingResult result(failingCall, standard);
            Value value;
            EXPECT_NO_THROW(value = getLastValue(&result, L"name", 0, no_position));
            SCOPED_TRACE(std::to_string(failingCall) + (standard ? ", standard" : ", other"));
            EXPECT_EQ(value.status,
                      standard ? result_standard_exception : result_unknown_exception);
            expectNothing(value);
        }
    }
}

} // namespace
