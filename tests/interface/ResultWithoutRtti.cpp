// Compiled with -fno-rtti (see CMakeLists.txt), so without the headers of GoogleTest.
#include "ResultWithoutRtti.h"

#if defined(__GXX_RTTI) || defined(_CPPRTTI)
#error "to be compiled without run-time type information"
#endif

namespace toolbox
{

namespace
{

using namespace kexa_3_3;

class ResultWithoutRtti final : public IParseResult
{
public:
    void release() override {}
    std::int32_t isPresent(const wchar_t* /*name*/, std::int32_t /*from*/,
                           std::int32_t /*to*/) override
    {
        return countQuery();
    }
    result_t getFirstValue(Value* /*out*/, const wchar_t* /*name*/, std::int32_t /*from*/,
                           std::int32_t /*to*/) override
    {
        return countQuery();
    }
    result_t getNextValue(Value* /*out*/, const wchar_t* /*name*/) override { return countQuery(); }
    std::int32_t getNextPosition() override { return countQuery(); }
    result_t getFirstUnparsed(const wchar_t** /*out*/) override { return countQuery(); }
    result_t getNextUnparsed(const wchar_t** /*out*/) override { return countQuery(); }

    int queries = 0;

private:
    result_t countQuery()
    {
        ++queries;
        return result_nothing;
    }
};

ResultWithoutRtti& theResult()
{
    static ResultWithoutRtti result;
    return result;
}

} // namespace

IParseResult& resultWithoutRtti()
{
    return theResult();
}

int queriesOfResultWithoutRtti()
{
    return theResult().queries;
}

} // namespace toolbox
