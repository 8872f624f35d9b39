#include "filesum/Checksum.h"

#include <zlib.h>

#include "filesum/Platform.h"
#include "filesum/Report.h"

namespace filesum
{

namespace
{

using Update = uLong (*)(uLong, const Bytef*, uInt);

Update updateOf(Algorithm algorithm)
{
    return algorithm == Algorithm::crc32 ? &::crc32 : &::adler32;
}

} // namespace

std::string_view nameOf(Algorithm algorithm)
{
    return algorithm == Algorithm::crc32 ? "crc32" : "adler32";
}

std::optional<Algorithm> algorithmNamed(std::string_view name)
{
    for (const Algorithm algorithm : all_algorithms)
    {
        if (nameOf(algorithm) == name)
        {
            return algorithm;
        }
    }
    return std::nullopt;
}

std::optional<FileSums> sumsOf(const std::filesystem::path& path,
                               const std::vector<Algorithm>& algorithms, std::size_t bufferSize,
                               Report& report)
{
    const FilePointer file = openForReading(path);
    if (file == nullptr)
    {
        report.cannotRead(nameOf(path), reasonOfErrno());
        return std::nullopt;
    }
    std::setvbuf(file.get(), nullptr, _IONBF, 0); // the buffer below is the only one
    FileSums result;
    for (const Algorithm algorithm : algorithms)
    {
        const uLong initial = updateOf(algorithm)(0, nullptr, 0);
        result.sums.push_back({algorithm, static_cast<std::uint32_t>(initial)});
    }
    std::vector<Bytef> buffer(bufferSize);
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file.get()))
    {
        for (Checksum& sum : result.sums)
        {
            sum.value = static_cast<std::uint32_t>(
                updateOf(sum.algorithm)(sum.value, buffer.data(), static_cast<uInt>(count)));
        }
        result.size += count;
        report.advance(count);
    }
    if (std::ferror(file.get()) != 0)
    {
        report.cannotRead(nameOf(path), reasonOfErrno());
        return std::nullopt;
    }
    return result;
}

} // namespace filesum
