// Captures the bytes that the library writes to standard output or standard error.
#ifndef KEXA_TESTS_TOOLBOX_CONSOLE_CAPTURE_H
#define KEXA_TESTS_TOOLBOX_CONSOLE_CAPTURE_H

#include <functional>
#include <string>

#include "TemporaryFolder.h"

namespace toolbox
{

// Redirects the descriptor to a file, since the library writes below the C and C++ streams.
class ConsoleCapture
{
public:
    enum class Stream
    {
        output = 1, // the number of the descriptor
        error = 2
    };

    explicit ConsoleCapture(Stream stream);
    ConsoleCapture(const ConsoleCapture&) = delete;
    ConsoleCapture& operator=(const ConsoleCapture&) = delete;
    ~ConsoleCapture();

    // The bytes written so far. Flushes nothing.
    std::string soFar() const;

    // Ends the capture and returns all bytes, line ends unchanged. Called at most once.
    std::string finish();

private:
    void restore();

    TemporaryFolder m_folder;
    int m_descriptor;
    int m_saved = -1;
};

// Returns the bytes that an action writes to the stream.
std::string capture(ConsoleCapture::Stream stream, const std::function<void()>& action);
std::string captureOutput(const std::function<void()>& action);
std::string captureError(const std::function<void()>& action);

} // namespace toolbox

#endif
