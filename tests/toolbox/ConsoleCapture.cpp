#include "ConsoleCapture.h"

#include <cstdio>
#include <iostream>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace toolbox
{

namespace
{

// Functions with different names on the platforms.
#ifdef _WIN32
int openForWriting(const std::filesystem::path& path)
{
    return _wopen(path.c_str(), _O_WRONLY | _O_CREAT | _O_BINARY, _S_IREAD | _S_IWRITE);
}

int duplicate(int descriptor)
{
    return _dup(descriptor);
}

// Sets the standard handle as well: the library writes to it, and _dup2 closes the former one.
void exchange(int source, int target)
{
    _dup2(source, target);
    SetStdHandle(target == 1 ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE,
                 reinterpret_cast<HANDLE>(_get_osfhandle(target)));
}

void closeDescriptor(int descriptor)
{
    _close(descriptor);
}
#else
int openForWriting(const std::filesystem::path& path)
{
    return ::open(path.c_str(), O_WRONLY | O_CREAT, 0600);
}

int duplicate(int descriptor)
{
    return ::dup(descriptor);
}

void exchange(int source, int target)
{
    ::dup2(source, target);
}

void closeDescriptor(int descriptor)
{
    ::close(descriptor);
}
#endif

void flushStreams()
{
    std::cout.flush();
    std::cerr.flush();
    std::fflush(nullptr);
}

constexpr const char* file_name = "captured";

} // namespace

ConsoleCapture::ConsoleCapture(Stream stream) : m_descriptor(static_cast<int>(stream))
{
    flushStreams();
    const int file = openForWriting(m_folder.path() / file_name);
    m_saved = duplicate(m_descriptor);
    if (file < 0 || m_saved < 0)
    {
        throw std::runtime_error("cannot capture the console");
    }
    exchange(file, m_descriptor);
    closeDescriptor(file);
}

ConsoleCapture::~ConsoleCapture()
{
    restore();
}

void ConsoleCapture::restore()
{
    if (m_saved >= 0)
    {
        flushStreams();
        exchange(m_saved, m_descriptor);
        closeDescriptor(m_saved);
        m_saved = -1;
    }
}

std::string ConsoleCapture::soFar() const
{
    return readFile(m_folder.path() / file_name);
}

std::string ConsoleCapture::finish()
{
    restore();
    return soFar();
}

std::string capture(ConsoleCapture::Stream stream, const std::function<void()>& action)
{
    ConsoleCapture console(stream);
    action();
    return console.finish();
}

std::string captureOutput(const std::function<void()>& action)
{
    return capture(ConsoleCapture::Stream::output, action);
}

std::string captureError(const std::function<void()>& action)
{
    return capture(ConsoleCapture::Stream::error, action);
}

} // namespace toolbox
