// Standard output on a terminal: a pseudo-terminal of the test.
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <string>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "EnvironmentSetting.h"
#include "platform/TerminalWidth.h"

using namespace kexa::detail;

namespace
{

// A terminal of so many columns as standard output, for as long as the object lives.
class OutputTerminal
{
public:
    explicit OutputTerminal(std::uint16_t columns)
        : m_controller(::posix_openpt(O_RDWR | O_NOCTTY)), m_saved(::dup(STDOUT_FILENO))
    {
        EXPECT_EQ(::grantpt(m_controller), 0);
        EXPECT_EQ(::unlockpt(m_controller), 0);
        const int terminal = ::open(::ptsname(m_controller), O_RDWR | O_NOCTTY);
        EXPECT_GE(terminal, 0);
        winsize size = {};
        size.ws_row = 24;
        size.ws_col = columns;
        EXPECT_EQ(::ioctl(terminal, TIOCSWINSZ, &size), 0);
        EXPECT_EQ(::dup2(terminal, STDOUT_FILENO), STDOUT_FILENO);
        ::close(terminal);
    }
    OutputTerminal(const OutputTerminal&) = delete;
    OutputTerminal& operator=(const OutputTerminal&) = delete;
    ~OutputTerminal()
    {
        ::dup2(m_saved, STDOUT_FILENO);
        ::close(m_saved);
        ::close(m_controller);
    }

private:
    int m_controller;
    int m_saved;
};

std::size_t columnsOn(std::uint16_t columns)
{
    const OutputTerminal terminal(columns);
    return terminalColumns();
}

} // namespace

TEST(Terminal, TellsItsColumns)
{
    for (const std::uint16_t columns : std::initializer_list<std::uint16_t>{0, 60, 80, 120, 300})
    {
        EXPECT_EQ(columnsOn(columns), columns);
    }
}

TEST(Terminal, IsNotOverruledByTheEnvironment)
{
    const EnvironmentSetting setting("COLUMNS", "72");
    EXPECT_EQ(columnsOn(100), 100U);
}
