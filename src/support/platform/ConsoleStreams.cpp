#include "support/platform/ConsoleStreams.h"

#include <cassert>
#include <locale>
#include <streambuf>
#include <string>

#include "support/text/Text.h"

namespace kexa_3_3
{

namespace
{

using internal::ConsoleTarget;
using internal::writeConsole;

// Writes every insertion to the console immediately. Only a high surrogate at the end is kept until
// the next insertion, which may begin with its low surrogate.
class ConsoleBuffer final : public std::wstreambuf
{
public:
    explicit ConsoleBuffer(ConsoleTarget target) : m_target(target) {}
    ConsoleBuffer(const ConsoleBuffer&) = delete;
    ConsoleBuffer& operator=(const ConsoleBuffer&) = delete;
    ~ConsoleBuffer() override
    {
        if (m_pending != 0)
        {
            // GCOVR_EXCL_START: 16-bit characters only
            static_cast<void>(writeConsole(m_target, {&m_pending, 1}));
            // GCOVR_EXCL_STOP
        }
    }

protected:
    std::streamsize xsputn(const wchar_t* text, std::streamsize length) override
    {
        assert(length >= 0);
        return write({text, static_cast<std::size_t>(length)}) ? length : 0;
    }

    int_type overflow(int_type character) override
    {
        if (traits_type::eq_int_type(character, traits_type::eof()))
        {
            return traits_type::not_eof(character);
        }
        const wchar_t unit = traits_type::to_char_type(character);
        return write({&unit, 1}) ? character : traits_type::eof();
    }

private:
    bool write(std::wstring_view text)
    {
        if (text.empty())
        {
            return true;
        }
        if constexpr (!wide_is_utf16)
        {
            return writeConsole(m_target, text);
        }
        std::wstring whole;
        if (m_pending != 0)
        {
            whole.assign(1, m_pending).append(text);
            m_pending = 0;
            text = whole;
        }
        if (isHighSurrogate(text.back()))
        {
            m_pending = text.back();
            text.remove_suffix(1);
        }
        return text.empty() || writeConsole(m_target, text);
    }

    ConsoleTarget m_target;
    wchar_t m_pending = 0;
};

struct ConsoleStream
{
    explicit ConsoleStream(ConsoleTarget target) : buffer(target), stream(&buffer)
    {
        // The global locale of the host could add thousands separators to numbers.
        stream.imbue(std::locale::classic());
    }

    // Clears the error bits, so that one failed write (no memory, a full disk) does not suppress
    // all later ones.
    std::wostream& ready()
    {
        stream.clear();
        return stream;
    }

    ConsoleBuffer buffer;
    std::wostream stream;
};

} // namespace

std::wostream& ucout()
{
    static ConsoleStream console(ConsoleTarget::output);
    return console.ready();
}

std::wostream& ucerr()
{
    static ConsoleStream console(ConsoleTarget::error);
    return console.ready();
}

} // namespace kexa_3_3
