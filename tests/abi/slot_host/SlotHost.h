// A host compiled without the library's headers: it calls a parser and a result by slot numbers.
#ifndef KEXA_TESTS_ABI_SLOT_HOST_H
#define KEXA_TESTS_ABI_SLOT_HOST_H

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "Slots.h"

constexpr std::int32_t no_bound = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t type_boolean = 0;
constexpr std::int32_t type_integer = 6;
constexpr std::int32_t type_string = 13;
constexpr std::int32_t kind_wide_reference = 15; // refers to a text of the host
constexpr std::int32_t kind_null = 17;

using Texts = std::vector<std::wstring>;

class SlotHost : public testing::Test
{
public:
    static std::string libraryPath;

protected:
    SlotHost();
    ~SlotHost() override;

    // Return the new option.
    void* declare(parser::Slot slot, const wchar_t* names, std::int32_t type);
    void* declareWithKeywords(const wchar_t* names, const wchar_t* keywords, std::int32_t type);

    std::int32_t parse(std::vector<const wchar_t*> arguments);
    std::wstring errorMessage();
    std::wstring help(parser::Slot slot, const wchar_t* topic);
    std::wstring help(parser::Slot slot); // for operations without a topic

    // All values of an option, read with getFirstValue and getNextValue.
    Texts values(const wchar_t* name);

    void* m_parser = nullptr;
    void* m_result = nullptr;
};

#endif
