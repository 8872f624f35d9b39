// Runs a program with a terminal as its standard output and standard error. Copies what the program
// writes to standard output, with "<return>" for each carriage return.
#include <cerrno>
#include <cstdio>
#include <string>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace
{

// A pseudo terminal. Bytes that are written to `program` can be read unchanged from `watcher`.
struct Terminal
{
    int watcher = -1;
    int program = -1;
};

bool openTerminal(Terminal& terminal)
{
    terminal.watcher = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (terminal.watcher < 0 || ::grantpt(terminal.watcher) != 0 ||
        ::unlockpt(terminal.watcher) != 0)
    {
        return false;
    }
    terminal.program = ::open(::ptsname(terminal.watcher), O_RDWR | O_NOCTTY);
    termios settings = {};
    if (terminal.program < 0 || ::tcgetattr(terminal.program, &settings) != 0)
    {
        return false;
    }
    settings.c_oflag &= ~static_cast<tcflag_t>(OPOST);
    return ::tcsetattr(terminal.program, TCSANOW, &settings) == 0;
}

// Copies the output until the program's side is closed.
void relay(int watcher)
{
    char buffer[4096];
    ssize_t count = 0;
    while ((count = ::read(watcher, buffer, sizeof buffer)) > 0 || (count < 0 && errno == EINTR))
    {
        for (ssize_t index = 0; index < count; ++index)
        {
            const std::string text =
                buffer[index] == '\r' ? "<return>" : std::string(1, buffer[index]);
            std::fputs(text.c_str(), stdout);
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    Terminal terminal;
    if (argc < 2 || !openTerminal(terminal))
    {
        std::perror("OnTerminal");
        return 125;
    }
    const pid_t child = ::fork();
    if (child == 0)
    {
        ::dup2(terminal.program, STDOUT_FILENO);
        ::dup2(terminal.program, STDERR_FILENO);
        ::close(terminal.program);
        ::close(terminal.watcher);
        ::execv(argv[1], argv + 1);
        ::_exit(126);
    }
    ::close(terminal.program);
    relay(terminal.watcher);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 124;
}
