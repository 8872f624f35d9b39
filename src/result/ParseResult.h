// What a parse found: filled by the argument parsers, queried by the host.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "kexa/parse_result.h"

#include "options/OptionDescription.h"
#include "result/IResultCollector.h"
#include "result/OptionResultTable.h"
#include "support/memory/Garbage.h"
#include "support/memory/InlineBlock.h"

namespace kexa_3_3
{

class OptionFiles;

class ParseResult final : public IParseResult, public IResultCollector
{
public:
    ParseResult();
    ~ParseResult() override = default;
    ParseResult(const ParseResult&) = delete;
    ParseResult& operator=(const ParseResult&) = delete;

    void release() override;
    std::int32_t isPresent(const wchar_t* name, std::int32_t from, std::int32_t to) override;
    result_t getFirstValue(Value* out, const wchar_t* name, std::int32_t from,
                           std::int32_t to) override;
    result_t getNextValue(Value* out, const wchar_t* name) override;
    std::int32_t getNextPosition() override;
    result_t getFirstUnparsed(const wchar_t** out) override;
    result_t getNextUnparsed(const wchar_t** out) override;

    result_t storeOption(const OptionDescription& option, OptionResult& record) override;
    result_t storeValue(const OptionDescription& option, ValueEntry& value) override;

    [[nodiscard]] SharedTexts& texts() noexcept override { return m_options.texts(); }

    // Adds a left-over argument.
    void addUnparsed(std::wstring_view argument);

    // What is stored, for the later steps of a parse.
    [[nodiscard]] const OptionResultTable& options() const noexcept { return m_options; }

    // The option files of the innermost parse that fills this now, or null. Not used here.
    [[nodiscard]] OptionFiles* openFiles() const noexcept { return m_openFiles; }
    void setOpenFiles(OptionFiles* files) noexcept { m_openFiles = files; }

private:
    struct Unparsed
    {
        std::wstring_view text;
        std::int32_t index; // among the left-over arguments
    };

    static void requireName(const OptionDescription& option);
    [[nodiscard]] bool beginQuery(const wchar_t* name, std::int32_t from, std::int32_t to) noexcept;
    [[nodiscard]] bool walksOccurrences() const noexcept;
    [[nodiscard]] bool isInRange(const Occurrence& occurrence) const noexcept;
    [[nodiscard]] bool findPosition() noexcept;
    [[nodiscard]] const Occurrence* firstValue() noexcept;
    [[nodiscard]] const Occurrence* nextValue() noexcept;
    [[nodiscard]] const Occurrence* nextInRange() noexcept;
    [[nodiscard]] const Occurrence* nextDefault() noexcept;

    InlineBlock<8192> m_firstBlock; // holds what a usual command line stores
    Garbage m_strings; // keeps every text handed out, so it is destroyed after what refers to it
    OptionResultTable m_options;

    Occurrences::Place m_valueCursor = 0;
    Occurrences::Place m_positionCursor = 0;
    std::int32_t m_rangeFrom = 0;
    std::int32_t m_rangeTo = no_position;
    const StoredOption* m_currentOption = nullptr;

    std::vector<Unparsed> m_unparsed;
    std::size_t m_unparsedCursor = 0;

    OptionFiles* m_openFiles = nullptr; // not owned
};

} // namespace kexa_3_3
