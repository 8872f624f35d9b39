// A host compiled without exceptions and without RTTI: declares, parses with a handler, reads the
// result, uses variants. Prints each check that fails.
#include <cstdio>
#include <cwchar>
#include <map>
#include <utility>

#include <kexa/kexa.h>

#if defined(__cpp_exceptions) || defined(__cpp_rtti)
#error "this host is to be compiled without exceptions and without RTTI"
#endif

namespace
{

using namespace kexa_3_3;
using vexkit2::s32_t;
using vexkit2::variant_t;

int failures = 0;

void expect(bool passed, const char* check)
{
    if (!passed)
    {
        ++failures;
        std::fprintf(stderr, "failed: %s\n", check);
    }
}
#define EXPECT(check) expect(check, #check)

bool equal(const wchar_t* left, const wchar_t* right)
{
    return left != nullptr && std::wcscmp(left, right) == 0;
}

// Refuses the number 13 and takes the unknown argument "--extra".
class Handler final : public EventHandler
{
public:
    int options = 0;

    bool onOptionParsed(const wchar_t*) override
    {
        ++options;
        return true;
    }
    bool onValueParsed(const wchar_t*, const ValueRecord* record) override
    {
        return !(record->value == variant_t(13));
    }
    bool onUnknownArgument(const wchar_t* argument) override
    {
        return !equal(argument, L"--extra");
    }
};

class Object : public vexkit2::polymorphic_t
{
public:
    explicit Object(int& destroyed) : m_destroyed(destroyed) {}
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    ~Object() override { ++m_destroyed; }

private:
    int& m_destroyed;
};

void declare(IParser& parser)
{
    const Registration& count =
        parser.addOption(L"count,c", L"how many", value_type_integer, L"Options");
    EXPECT(count.status == 3);
    count.option->setDefaultValue(variant_t(1));
    const Registration& color =
        parser.addOption(L"color", L"the colour", value_type_string, L"Options");
    color.option->addAllowedValue(variant_t(L"green"))
        .addAllowedValue(variant_t(L"red"))
        .addDeprecatedValue(variant_t(L"crimson"), variant_t(L"red"));
    EXPECT(parser.addSwitch(L"list", L"lists", value_type_boolean, L"Actions").status == 3);
    EXPECT(parser.addOption(L"count", L"", value_type_integer, L"").option == nullptr);
}

void parseAndRead(IParser& parser)
{
    Handler handler;
    EXPECT(parser.addEventHandler(&handler));
    IParseResult* result = nullptr;
    EXPECT(parser.createParseResult(&result) == result_success);

    const wchar_t* const arguments[] = {L"host", L"--list",     L"-c",
                                        L"5,6",  L"--color=gr", L"--extra"};
    EXPECT(parser.parse(6, arguments, result) == result_success);
    EXPECT(handler.options == 3);
    EXPECT(getLastValue(result, L"c", 0, no_position).as<s32_t>() == 6);

    Value value;
    EXPECT(result->getFirstValue(&value, L"color", 0, no_position) == result_success);
    EXPECT(equal(value.as<const wchar_t*>(), L"green"));
    EXPECT(result->getNextValue(&value, L"color") == result_nothing);
    EXPECT(value.as<const wchar_t*>() == nullptr);

    const wchar_t* const refused[] = {L"host", L"--count=13"};
    EXPECT(parser.parse(2, refused, result) == result_nothing);
    const wchar_t* const unknown[] = {L"host", L"--unknown"};
    EXPECT(parser.parse(2, unknown, result) == result_invalid_arguments);
    EXPECT(equal(parser.getErrorMessage(), L"Unknown option: --unknown"));
    result->release();
    EXPECT(parser.removeEventHandler(&handler));
}

void useVariants()
{
    int destroyed = 0;
    {
        variant_t object = variant_t::object(new Object(destroyed));
        const variant_t copy = object;
        object = variant_t(L"text");
        EXPECT(destroyed == 0);
        EXPECT(equal(object.get<const wchar_t*>(), L"text"));
    }
    EXPECT(destroyed == 1);

    std::map<variant_t, int> map;
    map[variant_t(2)] = 2;
    map[variant_t("text")] = 3;
    EXPECT(map[variant_t(2.0)] == 2);
    variant_t blob = variant_t::blob("bytes", 5);
    blob.set_data(12, "text", 5);
    EXPECT(map[std::move(blob)] == 3);
}

} // namespace

int main()
{
    IParser* parser = nullptr;
    EXPECT(createParser(&parser, flag_unknown_is_error) == result_success);
    declare(*parser);
    parseAndRead(*parser);
    parser->release();
    useVariants();
    EXPECT(equal(WordWrappedText(L"lead", L"text", 6, 40).getText(), L"lead  text\n"));
    return failures == 0 ? 0 : 1;
}
