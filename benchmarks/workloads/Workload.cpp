#include "workloads/Workload.h"

#include <algorithm>
#include <utility>

namespace benchmarks
{

namespace
{

constexpr bool wide_is_utf16 = sizeof(wchar_t) == 2;

void appendWide(std::wstring& text, char32_t character)
{
    if (wide_is_utf16 && character > 0xFFFF)
    {
        text.push_back(static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10)));
        text.push_back(static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF)));
    }
    else
    {
        text.push_back(static_cast<wchar_t>(character));
    }
}

void appendNarrow(std::string& text, char32_t character)
{
    const auto tail = [&](unsigned shift)
    {
        text.push_back(static_cast<char>(0x80 | ((character >> shift) & 0x3F)));
    };
    if (character < 0x80)
    {
        text.push_back(static_cast<char>(character));
    }
    else if (character < 0x800)
    {
        text.push_back(static_cast<char>(0xC0 | (character >> 6)));
        tail(0);
    }
    else if (character < 0x10000)
    {
        text.push_back(static_cast<char>(0xE0 | (character >> 12)));
        tail(6);
        tail(0);
    }
    else
    {
        text.push_back(static_cast<char>(0xF0 | (character >> 18)));
        tail(12);
        tail(6);
        tail(0);
    }
}

} // namespace

std::wstring widen(std::string_view text)
{
    std::wstring wide;
    wide.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
    {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        char32_t character = length == 1 ? lead : lead & (0xFFU >> (length + 1));
        for (std::size_t k = 1; k < length; ++k)
        {
            character = (character << 6) | (static_cast<unsigned char>(text.at(i + k)) & 0x3FU);
        }
        appendWide(wide, character);
        i += length;
    }
    return wide;
}

std::string narrow(std::wstring_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        auto character = static_cast<char32_t>(text[i]);
        if (wide_is_utf16 && character >= 0xD800 && character < 0xDC00 && i + 1 < text.size())
        {
            ++i;
            character =
                0x10000 + ((character - 0xD800) << 10) + (static_cast<char32_t>(text[i]) - 0xDC00);
        }
        appendNarrow(result, character);
    }
    return result;
}

std::size_t Workload::addOption(Option option)
{
    option.wideName = widen(option.name);
    option.wideNames = option.wideName;
    if (option.letter != 0)
    {
        option.wideNames += L',';
        option.wideNames += static_cast<wchar_t>(option.letter);
    }
    option.wideDescription = widen(option.description);
    for (const std::string& value : option.allowedValues)
    {
        option.wideAllowedValues.push_back(widen(value));
    }
    m_options.push_back(std::move(option));
    m_expectations.emplace_back();
    return m_options.size() - 1;
}

void Workload::addFlag(std::size_t option)
{
    m_arguments.push_back("--" + m_options.at(option).name);
    ++m_expectations.at(option).count;
}

void Workload::addValue(std::size_t option, std::string_view value,
                        const std::vector<Reading>& items, std::string_view abbreviation)
{
    std::string argument = "--";
    argument += abbreviation.empty() ? std::string_view(m_options.at(option).name) : abbreviation;
    argument += '=';
    argument += value;
    m_arguments.push_back(std::move(argument));
    std::vector<Reading>& readings = m_expectations.at(option).readings;
    readings.insert(readings.end(), items.begin(), items.end());
}

void Workload::seal()
{
    m_argumentVector.push_back("program");
    m_wideArgumentVector.push_back(L"program");
    m_wideArguments.reserve(m_arguments.size());
    for (const std::string& argument : m_arguments)
    {
        m_wideArguments.push_back(widen(argument));
        m_argumentVector.push_back(argument.c_str());
        m_wideArgumentVector.push_back(m_wideArguments.back().c_str());
    }
    m_argumentVector.push_back(nullptr);
    m_wideArgumentVector.push_back(nullptr);
}

} // namespace benchmarks
