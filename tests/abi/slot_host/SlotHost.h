// A host without headers of the library: a parser and a result, reached through slot numbers.
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
constexpr std::int32_t kind_wide_reference = 15; // a text that the host keeps
constexpr std::int32_t kind_null = 17;

using Texts = std::vector<std::wstring>;

class SlotHost : public testing::Test
{
public:
    static std::string libraryPath;

protected:
    SlotHost();
    ~SlotHost() override;

    // Both answer the new option.
    void* declare(parser::Slot slot, const wchar_t* names, std::int32_t type);
    void* declareWithKeywords(const wchar_t* names, const wchar_t* keywords, std::int32_t type);

    std::int32_t parse(std::vector<const wchar_t*> arguments);
    std::wstring errorMessage();
    // For the slots that take a topic.
    std::wstring help(parser::Slot slot, const wchar_t* topic);
    // For those that do not.
    std::wstring help(parser::Slot slot);

    // What a walk over all values of an option gives.
    Texts values(const wchar_t* name);

    void* m_parser = nullptr;
    void* m_result = nullptr;
};

#endif
