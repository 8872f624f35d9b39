#include "SlotHost.h"

#include "SharedLibrary.h"

std::string SlotHost::libraryPath;

SlotHost::SlotHost()
{
    void* const library = loadLibrary(libraryPath);
    const auto createParser =
        reinterpret_cast<CreateParser>(findSymbol(library, create_parser_name));
    const std::int32_t unknown_is_error = 2;
    EXPECT_EQ(createParser(&m_parser, unknown_is_error), 0);
    EXPECT_EQ(call<std::int32_t>(m_parser, parser::create_parse_result, &m_result), 0);
}

SlotHost::~SlotHost()
{
    call<void>(m_parser, parser::release);
    call<void>(m_result, parse_result::release);
}

void* SlotHost::declare(parser::Slot slot, const wchar_t* names, std::int32_t type)
{
    const auto* const record =
        call<const RawRegistration*>(m_parser, slot, names, L"Text of it", type, L"main:The group");
    EXPECT_EQ(record->status, 3);
    return record->option;
}

void* SlotHost::declareWithKeywords(const wchar_t* names, const wchar_t* keywords,
                                    std::int32_t type)
{
    const auto* const record = call<const RawRegistration*>(
        m_parser, parser::add_option_with_keywords, names, keywords, L"Text of it", type, L"main");
    EXPECT_EQ(record->status, 3);
    return record->option;
}

std::int32_t SlotHost::parse(std::vector<const wchar_t*> arguments)
{
    arguments.insert(arguments.begin(), L"program");
    return call<std::int32_t>(m_parser, parser::parse, static_cast<std::int32_t>(arguments.size()),
                              arguments.data(), m_result);
}

std::wstring SlotHost::errorMessage()
{
    return call<const wchar_t*>(m_parser, parser::get_error_message);
}

std::wstring SlotHost::help(parser::Slot slot, const wchar_t* topic)
{
    return call<const wchar_t*>(m_parser, slot, topic, false);
}

std::wstring SlotHost::help(parser::Slot slot)
{
    return call<const wchar_t*>(m_parser, slot, false);
}

Texts SlotHost::values(const wchar_t* name)
{
    Texts texts;
    RawValue value = {nullptr, 1, no_bound, {0, kind_null}};
    std::int32_t code = call<std::int32_t>(m_result, parse_result::get_first_value, &value, name,
                                           std::int32_t{0}, no_bound);
    while (code == 0)
    {
        EXPECT_EQ(value.status, 0);
        texts.emplace_back(static_cast<const wchar_t*>(value.data));
        code = call<std::int32_t>(m_result, parse_result::get_next_value, &value, name);
    }
    EXPECT_EQ(value.value.kind, kind_null); // owns nothing that this host would have to free
    return texts;
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (argc != 2)
    {
        return 2; // usage: slot_host LIBRARY
    }
    SlotHost::libraryPath = argv[1];
    return RUN_ALL_TESTS();
}
