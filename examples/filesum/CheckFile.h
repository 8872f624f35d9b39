// The lines that "--sum" writes and "--verify" reads:
//
//     crc32=cbf43926,adler32=091e01de 9 folder/name
//
// checksums in hexadecimal, one blank, the size in bytes, one blank, the name up to the line's end.
// In a name "\\", "\n" and "\r" stand for a backslash, a line feed and a carriage return. All other
// bytes stand for themselves. Empty lines and lines that begin with "#" are skipped.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "filesum/Checksum.h"

namespace filesum
{

struct CheckLine
{
    std::vector<Checksum> sums; // at least one
    std::uint64_t size = 0;     // in bytes
    std::string name;           // not escaped
};

// Returns the line without a line feed.
std::string formatCheckLine(const CheckLine& line);

// Fills `line` and returns an empty text, or returns a message that describes the error.
std::string parseCheckLine(std::string_view text, CheckLine& line);

} // namespace filesum
