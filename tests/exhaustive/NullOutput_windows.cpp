#include "NullOutput.h"

#include <fcntl.h>
#include <io.h>

namespace naive
{

std::FILE* silenceOutput()
{
    std::fflush(stdout);
    std::fflush(stderr);
    const int kept = _dup(1);
    const int null = _open("NUL", _O_WRONLY);
    if (kept < 0 || null < 0 || _dup2(null, 1) < 0 || _dup2(null, 2) < 0)
    {
        return nullptr;
    }
    _close(null);
    return _fdopen(kept, "w");
}

} // namespace naive
