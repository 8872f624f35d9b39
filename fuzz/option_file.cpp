// Fuzzes the bytes of an option file: every line that is neither blank nor a comment is one
// argument, and parsing the file has the outcome of parsing its text with parseCommandLine().
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "Fuzzing.h"
#include "kexa/kexa.h"
#include "NaiveParser.h"
#include "NaiveUtf8.h"

using namespace kexa_3_3;

namespace
{

struct Release
{
    template <class T>
    void operator()(T* object) const
    {
        object->release();
    }
};
using ParserOwner = std::unique_ptr<IParser, Release>;
using ResultOwner = std::unique_ptr<IParseResult, Release>;

// The file that every input is written to, in a temporary folder of this process.
class InputFile
{
public:
    InputFile()
        : m_folder(std::filesystem::temp_directory_path() /
                   ("kexa-fuzz-" + std::to_string(std::random_device()()))),
          m_path(m_folder / "input")
    {
        std::filesystem::create_directory(m_folder);
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    std::wstring argument() const { return L"--option-file=" + m_path.wstring(); }
    void write(const std::string& bytes) const { std::ofstream(m_path, std::ios::binary) << bytes; }

private:
    std::filesystem::path m_folder;
    std::filesystem::path m_path;
};

ParserOwner makeParser()
{
    IParser* parser = nullptr;
    fuzzing::require(createParser(&parser, flag_no_hyphen_positional) == result_success &&
                         parser != nullptr,
                     "a parser is created");
    parser->addOption(L"option-other,o", L"", value_type_integer, L"");
    parser->addOption(L"text,t", L"", value_type_string, L"");
    parser->addOption(L"flag,f", L"", value_type_none, L"");
    parser->addOption(L"file", L"", value_type_string, L"").option->setMarked();
    parser->enableOptionFiles(L"", L"");
    return ParserOwner(parser);
}

ResultOwner makeResult(IParser& parser)
{
    IParseResult* result = nullptr;
    fuzzing::require(parser.createParseResult(&result) == result_success && result != nullptr,
                     "a result is created");
    return ResultOwner(result);
}

std::vector<std::wstring> leftOver(IParseResult& result)
{
    std::vector<std::wstring> arguments;
    const wchar_t* argument = nullptr;
    for (result_t code = result.getFirstUnparsed(&argument); code == result_success;
         code = result.getNextUnparsed(&argument))
    {
        arguments.emplace_back(argument);
    }
    return arguments;
}

result_t parseFile(IParser& parser, const InputFile& file, IParseResult& result)
{
    const std::wstring argument = file.argument();
    const wchar_t* const arguments[] = {L"program", argument.c_str()};
    return parser.parse(2, arguments, &result);
}

// Requires that each line becomes one argument. The file begins with "--", so that all lines after
// it are left-over arguments.
void checkLines(const InputFile& file, const std::string& bytes, const std::wstring& text)
{
    IParser* made = nullptr;
    fuzzing::require(createParser(&made, 0) == result_success && made != nullptr,
                     "a parser is created");
    const ParserOwner parser(made);
    parser->enableOptionFiles(L"", L"");
    file.write("--\n" + bytes);
    const ResultOwner result = makeResult(*parser);
    fuzzing::require(parseFile(*parser, file, *result) == result_success,
                     "arguments after the marker cause no error");
    const std::vector<std::wstring> actual = leftOver(*result);
    const std::vector<std::wstring> expected = naive::splitLines(text);
    fuzzing::require(actual.size() == expected.size(),
                     "every line that is neither blank nor a comment is one argument");
    for (std::size_t index = 0; index < actual.size(); ++index)
    {
        // Returned texts are null-terminated, so a line with a zero character ends there.
        fuzzing::requireEqual(actual[index], expected[index].c_str(), "the line is the argument");
    }
}

std::wstring contentsOf(IParseResult& result)
{
    std::wstring contents;
    for (const wchar_t* const name : {L"option-other", L"o", L"text", L"t", L"f", L"file"})
    {
        contents += std::wstring(name) + (result.isPresent(name, 0, no_position) == 1 ? L"!" : L"");
        Value value;
        for (result_t code = result.getFirstValue(&value, name, 0, no_position);
             code == result_success; code = result.getNextValue(&value, name))
        {
            const wchar_t* const text = value.as<const wchar_t*>();
            contents += text == nullptr ? L" without" : std::wstring(L" '") + text + L"'";
        }
        contents += L'\n';
    }
    for (const std::wstring& argument : leftOver(result))
    {
        contents += argument + L'\n';
    }
    return contents;
}

bool isDocumented(result_t code)
{
    return code == result_success || code == result_invalid_arguments ||
           code == result_unreadable_option_file;
}

void checkParse(const InputFile& file, const std::string& bytes, const std::wstring& text)
{
    const ParserOwner parser = makeParser();
    file.write(bytes);
    const ResultOwner ofFile = makeResult(*parser);
    const result_t code = parseFile(*parser, file, *ofFile);
    fuzzing::require(isDocumented(code), "the code is documented");
    const std::wstring message = code == result_success ? L"" : parser->getErrorMessage();
    fuzzing::require(code == result_success || !message.empty(), "a failed parse has a message");
    if (text.find(L'\0') != std::wstring::npos || text.find(L"option-file") != std::wstring::npos)
    {
        // A null-terminated text cannot contain zeros. An option file that names itself is read
        // once, while its text can still name the file.
        return;
    }
    const ResultOwner ofText = makeResult(*parser);
    const result_t textCode = parser->parseCommandLine(text.c_str(), ofText.get());
    fuzzing::require(code == textCode, "the file and its text have equal codes");
    if (code != result_success)
    {
        fuzzing::requireEqual(parser->getErrorMessage(), message,
                              "the file and its text have equal messages");
    }
    fuzzing::requireEqual(contentsOf(*ofFile), contentsOf(*ofText),
                          "the file and its text have equal results");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const InputFile file;
    const std::string bytes(data, data + size);
    checkLines(file, bytes, naive::decodeUtf8(bytes));
    const bool marked = bytes.compare(0, 3, "\xEF\xBB\xBF") == 0;
    checkParse(file, bytes, naive::decodeUtf8(std::string_view(bytes).substr(marked ? 3 : 0)));
    return 0;
}
