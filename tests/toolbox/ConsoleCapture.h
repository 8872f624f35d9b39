// What the library writes to standard output or standard error, byte for byte.
#ifndef KEXA_TESTS_TOOLBOX_CONSOLE_CAPTURE_H
#define KEXA_TESTS_TOOLBOX_CONSOLE_CAPTURE_H

#include <functional>
#include <string>

#include "TemporaryFolder.h"

namespace toolbox
{

// The library writes below the C and C++ streams, so the descriptor itself is turned to a file.
class ConsoleCapture
{
public:
    enum class Stream
    {
        output = 1, // the descriptor's number
        error = 2
    };

    explicit ConsoleCapture(Stream stream);
    ConsoleCapture(const ConsoleCapture&) = delete;
    ConsoleCapture& operator=(const ConsoleCapture&) = delete;
    ~ConsoleCapture();

    // The bytes that have arrived by now, nothing being flushed.
    std::string soFar() const;

    // Ends the capture and answers the bytes. Line ends are as they were written. Once only.
    std::string finish();

private:
    void restore();

    TemporaryFolder m_folder;
    int m_descriptor;
    int m_saved = -1;
};

// The bytes that an action writes to one stream.
std::string capture(ConsoleCapture::Stream stream, const std::function<void()>& action);
std::string captureOutput(const std::function<void()>& action);
std::string captureError(const std::function<void()>& action);

} // namespace toolbox

#endif
