// A host compiled without RTTI passes a result class of its own to a parse. The class is no result
// of the library, so the parse stores nothing in it and ends as one with a null result does.
#include <cstdio>

#include <kexa/kexa.h>

#if defined(__cpp_rtti)
#error "this host is to be compiled without RTTI"
#endif

namespace
{

using namespace kexa_3_3;

// Counts the calls of its operations.
class OwnResult final : public IParseResult
{
public:
    int calls = 0;

    void release() override { ++calls; }
    std::int32_t isPresent(const wchar_t*, std::int32_t, std::int32_t) override
    {
        ++calls;
        return 0;
    }
    result_t getFirstValue(Value*, const wchar_t*, std::int32_t, std::int32_t) override
    {
        return called();
    }
    result_t getNextValue(Value*, const wchar_t*) override { return called(); }
    std::int32_t getNextPosition() override
    {
        ++calls;
        return no_position;
    }
    result_t getFirstUnparsed(const wchar_t**) override { return called(); }
    result_t getNextUnparsed(const wchar_t**) override { return called(); }

private:
    result_t called()
    {
        ++calls;
        return result_nothing;
    }
};

} // namespace

int main()
{
    IParser* parser = nullptr;
    if (createParser(&parser, flag_unknown_is_error) != result_success)
    {
        std::fputs("no parser\n", stderr);
        return 1;
    }
    parser->addOption(L"count,c", L"", value_type_integer, L"")
        .option->setDefaultValue(vexkit2::variant_t(1));

    OwnResult result;
    const wchar_t* const sound[] = {L"host", L"-c", L"5"};
    const wchar_t* const wrong[] = {L"host", L"--unknown"};
    const result_t codes[] = {
        parser->parse(3, sound, &result),
        parser->parseCommandLine(L"--count=6\n", &result),
        parser->parse(2, wrong, &result),
    };
    parser->release();
    const result_t expected[] = {result_success, result_success, result_invalid_arguments};

    int failures = 0;
    for (int index = 0; index < 3; ++index)
    {
        if (codes[index] != expected[index])
        {
            ++failures;
            std::fprintf(stderr, "parse %d returned %d\n", index, static_cast<int>(codes[index]));
        }
    }
    if (result.calls != 0)
    {
        ++failures;
        std::fprintf(stderr, "%d calls of the result's operations\n", result.calls);
    }
    return failures == 0 ? 0 : 1;
}
