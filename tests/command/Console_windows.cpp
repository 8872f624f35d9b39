// Standard output on a console: a pseudo-console of the test.
#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ChildProgram_windows.h"

namespace
{

// Not in the headers of every toolchain.
using CreateConsole = HRESULT(WINAPI*)(COORD, HANDLE, HANDLE, DWORD, void**);
using CloseConsole = void(WINAPI*)(void*);
constexpr DWORD_PTR attribute_console = 0x00020016;

template <class Function>
Function systemFunction(const char* name)
{
    const auto function = ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), name);
    return reinterpret_cast<Function>(reinterpret_cast<void*>(function));
}

struct ConsoleRun
{
    DWORD code = 0;
    std::string output; // UTF-8 with control sequences
};

// Runs console_writer on a console of so many columns.
ConsoleRun runOnConsole(short columns)
{
    HANDLE inputEnd = nullptr;
    HANDLE consoleInput = nullptr;
    HANDLE outputEnd = nullptr;
    HANDLE consoleOutput = nullptr;
    EXPECT_NE(::CreatePipe(&consoleInput, &inputEnd, nullptr, 0), FALSE);
    EXPECT_NE(::CreatePipe(&outputEnd, &consoleOutput, nullptr, 0), FALSE);
    void* console = nullptr;
    EXPECT_EQ(systemFunction<CreateConsole>("CreatePseudoConsole")(COORD{columns, 30}, consoleInput,
                                                                   consoleOutput, 0, &console),
              S_OK);

    SIZE_T size = 0;
    ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    std::vector<std::byte> memory(size);
    const auto attributes = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory.data());
    EXPECT_NE(::InitializeProcThreadAttributeList(attributes, 1, 0, &size), FALSE);
    EXPECT_NE(::UpdateProcThreadAttribute(attributes, 0, attribute_console, console, sizeof console,
                                          nullptr, nullptr),
              FALSE);
    STARTUPINFOEXW startup = {};
    startup.StartupInfo.cb = sizeof startup;
    startup.lpAttributeList = attributes;
    PROCESS_INFORMATION process = {};
    const std::wstring name = programBeside(L"console_writer.exe");
    EXPECT_NE(::CreateProcessW(name.c_str(), nullptr, nullptr, nullptr, FALSE,
                               EXTENDED_STARTUPINFO_PRESENT, nullptr, nullptr, &startup.StartupInfo,
                               &process),
              FALSE);
    ConsoleRun run;
    run.code = exitCodeOf(process);
    systemFunction<CloseConsole>("ClosePseudoConsole")(console);
    ::CloseHandle(consoleOutput);
    ::CloseHandle(consoleInput);
    ::CloseHandle(inputEnd);
    run.output = readToEnd(outputEnd);
    ::DeleteProcThreadAttributeList(attributes);
    return run;
}

} // namespace

TEST(Console, TellsTheColumnsOfItsWindowAndShowsAllCharacters)
{
    if (systemFunction<CreateConsole>("CreatePseudoConsole") == nullptr)
    {
        GTEST_SKIP() << "Windows has pseudo-consoles since version 1809 of Windows 10";
    }
    for (const short columns : {short{60}, short{97}, short{200}})
    {
        const ConsoleRun run = runOnConsole(columns);
        EXPECT_EQ(run.code, static_cast<DWORD>(columns));
        EXPECT_NE(run.output.find("gr\xC3\xB6\xC3\x9F\x65 \xE6\x97\xA5\xE6\x9C\xAC"),
                  std::string::npos)
            << run.output;
    }
}
