// What a handler does to the host's argument vector or texts changes nothing in the parse at work.
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;

namespace
{

using Texts = std::vector<std::wstring>;

// An argument vector whose texts may be written to and freed.
class WritableVector
{
public:
    explicit WritableVector(const Texts& arguments)
    {
        for (const std::wstring& argument : arguments)
        {
            m_texts.push_back(std::make_unique<wchar_t[]>(argument.size() + 1));
            std::copy(argument.begin(), argument.end(), m_texts.back().get());
            m_pointers.push_back(m_texts.back().get());
        }
    }

    std::int32_t count() const { return static_cast<std::int32_t>(m_pointers.size()); }
    const wchar_t* const* pointers() const { return m_pointers.data(); }

    void wipe(std::size_t number)
    {
        std::fill_n(m_texts[number].get(), std::wcslen(m_texts[number].get()), L'*');
    }
    void replace(std::size_t number, const wchar_t* text) { m_pointers[number] = text; }

    // Wiped first: who reads them later must not find the old contents by chance.
    void freeAll()
    {
        for (std::size_t number = 0; number < m_texts.size(); ++number)
        {
            wipe(number);
            m_pointers[number] = nullptr;
        }
        m_texts.clear();
    }

private:
    std::vector<std::unique_ptr<wchar_t[]>> m_texts;
    std::vector<const wchar_t*> m_pointers;
};

class HandlersThatChangeArguments : public testing::Test
{
protected:
    HandlersThatChangeArguments()
    {
        host.addOption(L"user");
        host.addOption(L"password");
        host.addPositional(L"file");
        host.parser().addEventHandler(&handler);
    }

    // Lets the handler run the action at every event.
    void atEveryEvent(const std::function<void()>& action)
    {
        handler.answerOption = [action](const wchar_t*)
        {
            action();
            return true;
        };
        handler.answerValue = [action](const wchar_t*, const ValueRecord&)
        {
            action();
            return true;
        };
        handler.answerUnknown = [action](const wchar_t*)
        {
            action();
            return true;
        };
    }
    result_t parse(const WritableVector& vector)
    {
        return host.parser().parse(vector.count(), vector.pointers(), &host.result());
    }

    Events events;
    RecordingHandler handler{events};
    Host host{flag_unknown_is_error | flag_no_hyphen_positional};
};

} // namespace

TEST_F(HandlersThatChangeArguments, WipedTextKeepsTheValueThatIsStored)
{
    WritableVector vector({L"program", L"--password=secret", L"--user", L"me"});
    atEveryEvent(
        [&vector]
        {
            vector.wipe(1);
            vector.wipe(3);
        });
    EXPECT_EQ(parse(vector), result_success);
    EXPECT_EQ(host.texts(L"password"), Texts{L"secret"});
    EXPECT_EQ(host.texts(L"user"), Texts{L"me"});
}

TEST_F(HandlersThatChangeArguments, ReplacedEntryOfTheVectorIsNotLookedAt)
{
    WritableVector vector({L"program", L"--user=me", L"--password=secret", L"--user=you"});
    atEveryEvent([&vector] { vector.replace(2, L"--password=other"); });
    EXPECT_EQ(parse(vector), result_success);
    EXPECT_EQ(host.texts(L"password"), Texts{L"secret"});
    EXPECT_EQ(host.texts(L"user"), (Texts{L"me", L"you"}));
}

TEST_F(HandlersThatChangeArguments, FreedVectorIsParsedToItsEnd)
{
    WritableVector vector(
        {L"program", L"--user=me", L"a.txt", L"--password", L"secret", L"--", L"b.txt", L"--left"});
    atEveryEvent([&vector] { vector.freeAll(); });
    EXPECT_EQ(parse(vector), result_success);
    EXPECT_EQ(host.texts(L"user"), Texts{L"me"});
    EXPECT_EQ(host.texts(L"password"), Texts{L"secret"});
    EXPECT_EQ(host.texts(L"file"), (Texts{L"a.txt", L"b.txt"}));
    EXPECT_EQ(host.unparsed(), Texts{L"--left"});
}

TEST_F(HandlersThatChangeArguments, NullEntriesAndEmptyTextsStayEmptyArguments)
{
    WritableVector vector({L"program", L"--user=me", L"", L"x"});
    vector.replace(3, nullptr);
    handler.answerUnknown = [](const wchar_t*)
    {
        return false;
    };
    EXPECT_EQ(parse(vector), result_success);
    EXPECT_EQ(events, (Events{L"option user", L"value user 'me'", L"option file", L"option file"}));
}

TEST_F(HandlersThatChangeArguments, MessageNamesTheArgumentAsItWasGiven)
{
    const struct
    {
        const wchar_t* argument;
        const wchar_t* message;
        result_t code;
    } rows[] = {
        {L"--password=no",
         L"Value 'no' is not valid for option 'password' in argument "
         L"'--password=no'",
         result_nothing},
        {L"-unknown", L"Unknown option: -unknown", result_invalid_arguments},
    };
    for (const auto& row : rows)
    {
        WritableVector vector({L"program", row.argument});
        atEveryEvent([&vector] { vector.wipe(1); });
        handler.answerValue = [&vector](const wchar_t*, const ValueRecord&)
        {
            vector.wipe(1);
            return false;
        };
        EXPECT_EQ(parse(vector), row.code) << toUtf8(row.argument);
        EXPECT_EQ(host.message(), row.message);
    }
}

TEST_F(HandlersThatChangeArguments, FreedCommandLineIsParsedToItsEnd)
{
    const std::wstring lines = L"--user=me\n--password=secret\r\n# comment\n\n  a.txt\n--\n--left";
    auto commandLine = std::make_unique<wchar_t[]>(lines.size() + 1);
    std::copy(lines.begin(), lines.end(), commandLine.get());
    atEveryEvent(
        [&]
        {
            if (commandLine != nullptr)
            {
                std::fill_n(commandLine.get(), lines.size(), L'*');
                commandLine.reset();
            }
        });
    EXPECT_EQ(host.parser().parseCommandLine(commandLine.get(), &host.result()), result_success);
    EXPECT_EQ(host.texts(L"user"), Texts{L"me"});
    EXPECT_EQ(host.texts(L"password"), Texts{L"secret"});
    EXPECT_EQ(host.texts(L"file"), Texts{L"a.txt"});
    EXPECT_EQ(host.unparsed(), Texts{L"--left"});
}
