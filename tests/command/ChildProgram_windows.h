// What tests that start a program of this folder share.
#ifndef KEXA_TESTS_COMMAND_CHILD_PROGRAM_WINDOWS_H
#define KEXA_TESTS_COMMAND_CHILD_PROGRAM_WINDOWS_H

#include <string>

#include <gtest/gtest.h>

#include "platform/Windows.h"

// The path of a program that is built beside this one.
inline std::wstring programBeside(const std::wstring& name)
{
    std::wstring path(1000, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\') + 1) + name;
}

// All that arrives at the reading end of a pipe until no writing end is open; closes it.
inline std::string readToEnd(HANDLE pipe)
{
    std::string bytes;
    char buffer[1000];
    DWORD count = 0;
    while (::ReadFile(pipe, buffer, sizeof buffer, &count, nullptr) != FALSE && count != 0)
    {
        bytes.append(buffer, count);
    }
    ::CloseHandle(pipe);
    return bytes;
}

// The exit code of a process, once it has ended.
inline DWORD exitCodeOf(const PROCESS_INFORMATION& process)
{
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code;
}

// What a program of this folder writes to both output streams when it is started with a command
// line that ends so.
inline std::string outputOfProgram(const std::wstring& program, const std::wstring& arguments,
                                   DWORD exitCode)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    EXPECT_NE(::CreatePipe(&readEnd, &writeEnd, &inherited, 0), FALSE);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = writeEnd;
    startup.hStdError = writeEnd;
    PROCESS_INFORMATION process = {};
    const std::wstring name = programBeside(program);
    std::wstring line = L"\"" + name + L"\" " + arguments;
    EXPECT_NE(::CreateProcessW(name.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                               nullptr, &startup, &process),
              FALSE);
    ::CloseHandle(writeEnd);
    const std::string output = readToEnd(readEnd);
    EXPECT_EQ(exitCodeOf(process), exitCode);
    return output;
}

#endif
