// Checksums of whole files.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace filesum
{

enum class Algorithm
{
    crc32,
    adler32
};

inline constexpr std::array all_algorithms = {Algorithm::crc32, Algorithm::adler32};

std::string_view nameOf(Algorithm algorithm);
std::optional<Algorithm> algorithmNamed(std::string_view name);

struct Checksum
{
    Algorithm algorithm;
    std::uint32_t value;

    friend bool operator==(const Checksum&, const Checksum&) = default;
};

struct FileSums
{
    std::vector<Checksum> sums; // one for each algorithm, in the requested order
    std::uint64_t size = 0;     // bytes read
};

class Report;

// Reads a file once, bufferSize bytes at a time, and reports the progress. Returns nothing if the
// file cannot be read, which is reported as a problem.
std::optional<FileSums> sumsOf(const std::filesystem::path& path,
                               const std::vector<Algorithm>& algorithms, std::size_t bufferSize,
                               Report& report);

} // namespace filesum
