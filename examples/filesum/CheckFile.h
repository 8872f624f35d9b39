// The lines that "-sum" writes and "-verify" reads:
//
//     crc32=cbf43926,adler32=091e01de 9 folder/name
//
// checksums in hexadecimal, one blank, the size in bytes, one blank, the name up to the line's end.
// In a name "\\", "\n" and "\r" stand for a backslash, a line feed and a carriage return. Empty
// lines and lines that begin with "#" are skipped. Otherwise bytes are taken as they are.
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

// Without a line end.
std::string formatCheckLine(const CheckLine& line);

// Answers an empty text and fills `line`, or says what is wrong with the text.
std::string parseCheckLine(std::string_view text, CheckLine& line);

} // namespace filesum
