// What tests that start a program of this folder share.
#ifndef KEXA_TESTS_COMMAND_CHILD_PROGRAM_WINDOWS_H
#define KEXA_TESTS_COMMAND_CHILD_PROGRAM_WINDOWS_H

#include <string>

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

#endif
