// A file's name is a sequence of bytes, which need not be UTF-8: each of them reaches the path.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <string>

#include "Outcomes.h"
#include "TemporaryFolder.h"

namespace
{

struct Settings
{
    std::optional<std::filesystem::path> output;
    std::string text;
    std::vector<std::filesystem::path> paths;
};

// Latin-1, a lone surrogate, an overlong slash, a cut sequence, what never begins one, and
// characters beyond Unicode.
const std::string names[] = {"gr\xF6\xDF"
                             "e",
                             "\xED\xA0\x80",
                             "a\xC0\xAF"
                             "b",
                             "\xE6\x97",
                             "\xFF\xFE",
                             "\xF4\x90\x80\x80",
                             "\xF0\x9F\x98 x",
                             "\x80"};

class FilesOfAnyName : public testing::TestWithParam<std::string>
{
protected:
    FilesOfAnyName() : m_current(m_folder.path())
    {
        m_command.option(&Settings::output, "output,o", "");
        m_command.option(&Settings::text, "text,t", "");
        m_command.positional(&Settings::paths, "path", "");
        m_command.optionFiles();
        // Not by a stream: the name is written as the system takes it.
        const int file = ::open(GetParam().c_str(), O_CREAT | O_WRONLY, 0600);
        EXPECT_EQ(::write(file, "found", 5), 5);
        ::close(file);
    }

    kexa::Parsed<Settings> parse(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), "program");
        std::vector<const char*> argv;
        for (const std::string& argument : arguments)
        {
            argv.push_back(argument.c_str());
        }
        return m_command.parse(static_cast<int>(argv.size()), argv.data());
    }

    static std::string contentOf(const std::filesystem::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return file ? std::string(std::istreambuf_iterator<char>(file), {}) : "not there";
    }

    toolbox::TemporaryFolder m_folder;
    toolbox::CurrentFolder m_current;
    kexa::Command<Settings> m_command{"opener"};
};

TEST_P(FilesOfAnyName, AreOpenedByPositionalArguments)
{
    for (const std::string& name : {GetParam(), "./" + GetParam()})
    {
        const kexa::Parsed<Settings> parsed = parse({name});
        ASSERT_TRUE(parsed);
        ASSERT_EQ(parsed->paths.size(), 1U);
        EXPECT_EQ(parsed->paths[0].native(), name);
        EXPECT_EQ(contentOf(parsed->paths[0]), "found");
    }
}

TEST_P(FilesOfAnyName, AreOpenedByOptions)
{
    const std::vector<std::string> lines[] = {
        {"--output=" + GetParam()}, {"--out", GetParam()}, {"-o=" + GetParam()}};
    for (const std::vector<std::string>& line : lines)
    {
        const kexa::Parsed<Settings> parsed = parse(line);
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed->output->native(), GetParam());
        EXPECT_EQ(contentOf(*parsed->output), "found");
    }
}

TEST_P(FilesOfAnyName, AreOpenedByOptionFiles)
{
    m_folder.write(L"arguments", "--output=" + GetParam() + "\n" + GetParam() + "\n");
    const kexa::Parsed<Settings> parsed = parse({"--option-file=arguments"});
    ASSERT_TRUE(parsed);
    EXPECT_EQ(contentOf(*parsed->output), "found");
    ASSERT_EQ(parsed->paths.size(), 1U);
    EXPECT_EQ(contentOf(parsed->paths[0]), "found");
}

TEST_P(FilesOfAnyName, AreOptionFiles)
{
    const int file = ::open(GetParam().c_str(), O_WRONLY | O_TRUNC);
    EXPECT_EQ(::write(file, "--text=x\n--tetx\n", 9), 9);
    const kexa::Parsed<Settings> parsed = parse({"--option-file=" + GetParam()});
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->text, "x");
    EXPECT_EQ(::write(file, "--tetx\n", 7), 7);
    ::close(file);
    const kexa::Parsed<Settings> refused = parse({"--option-file", GetParam()});
    ASSERT_EQ(refused.status(), kexa::Status::error);
    EXPECT_EQ(refused.error().file, GetParam());
    EXPECT_EQ(refused.error().line, 2);
}

TEST_P(FilesOfAnyName, KeepTheirBytesInTextsAndMessages)
{
    EXPECT_EQ(parse({"--text=" + GetParam()})->text, GetParam());
    const kexa::Parsed<Settings> parsed = parse({"--tetx=" + GetParam()});
    ASSERT_EQ(parsed.status(), kexa::Status::error);
    EXPECT_EQ(parsed.error().message, "Unknown option: --tetx=" + GetParam());
}

TEST_P(FilesOfAnyName, KeepTheirBytesInTheOccurrences)
{
    const kexa::Parsed<Settings> parsed = parse({"-o", GetParam()});
    ASSERT_EQ(parsed.occurrences().size(), 1U);
    EXPECT_EQ(parsed.occurrences()[0].value, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Names, FilesOfAnyName, testing::ValuesIn(names));

} // namespace
