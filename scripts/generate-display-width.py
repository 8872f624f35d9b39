#!/usr/bin/env python3
"""Makes the table of display widths from the Unicode Character Database, as Debian's package
unicode-data has it:

  generate-display-width.py           writes command/text/DisplayWidthTable.h
  generate-display-width.py --check   fails where that file is not what would be written; ends with 77
                                      (skipped) where the database is missing or of another version

  --database FOLDER                   where the database is, /usr/share/unicode unless told

Each code point has a number of cells, 0 to 2, and what makes one grapheme of several code points:

  extends       continues the grapheme before it, whatever that is (combining marks, joiners, variation
                selectors, tags)
  pictographic  may be joined to another by U+200D, and takes a skin tone
  emoji         takes two cells before the variation selector U+FE0F
"""
import argparse
import pathlib
import re
import sys

TARGET = pathlib.Path(__file__).resolve().parent.parent / "command/text/DisplayWidthTable.h"
CODE_POINTS = 0x110000
CELLS, EXTENDS, PICTOGRAPHIC, EMOJI = 3, 4, 8, 16


def ranges(path):
    """Yields first, last and the remaining fields of each line of a property file."""
    for line in path.read_text(encoding="utf-8").splitlines():
        fields = [field.strip() for field in line.split("#")[0].split(";")]
        match = re.fullmatch(r"([0-9A-F]{4,6})(?:\.\.([0-9A-F]{4,6}))?", fields[0])
        if match:
            first = int(match.group(1), 16)
            yield first, int(match.group(2) or match.group(1), 16), fields[1:]


def members(path, *values):
    """The set of code points whose property has one of these values."""
    return {code_point for first, last, fields in ranges(path) if fields[0] in values
            for code_point in range(first, last + 1)}


def version(database):
    first_line = (database / "EastAsianWidth.txt").read_text(encoding="utf-8").splitlines()[0]
    return re.fullmatch(r"# EastAsianWidth-([0-9.]+)\.txt", first_line).group(1)


def properties(database):
    """The properties of every code point."""
    widths = database / "EastAsianWidth.txt"
    categories = database / "extracted/DerivedGeneralCategory.txt"
    emoji_data = database / "emoji/emoji-data.txt"
    sequences = database / "emoji/emoji-variation-sequences.txt"

    wide = members(widths, "W", "F") | members(emoji_data, "Emoji_Presentation")
    combining = members(categories, "Mn", "Me")
    spacing = members(categories, "Mc")
    separators = members(categories, "Cc", "Zl", "Zp")
    # Format characters are invisible, save for the soft hyphen, which terminals show, and the signs
    # that enclose or precede digits.
    formats = (members(categories, "Cf") - {0x00AD}
               - members(database / "PropList.txt", "Prepended_Concatenation_Mark"))
    # Vowels and finals of Hangul, drawn into the cells of the initial before them.
    jamo = members(database / "HangulSyllableType.txt", "V", "T")
    pictographic = members(emoji_data, "Extended_Pictographic")
    # "0023 FE0F ; emoji style": the first field holds two code points.
    emoji = {int(line.split()[0], 16)
             for line in sequences.read_text(encoding="utf-8").splitlines()
             if re.match(r"[0-9A-F]{4,6} FE0F\b", line)}

    table = [1] * CODE_POINTS
    for code_point in wide:
        table[code_point] = 2
    for code_point in combining | separators | formats | jamo:
        table[code_point] = 0
    for code_point in combining | spacing | formats | jamo:
        table[code_point] |= EXTENDS
    for code_point in pictographic:
        table[code_point] |= PICTOGRAPHIC
    for code_point in emoji:
        table[code_point] |= EMOJI
    return table


def starts(table):
    """The first code point of each run of equal properties, with them."""
    return [(code_point, table[code_point]) for code_point in range(CODE_POINTS)
            if code_point == 0 or table[code_point] != table[code_point - 1]]


def header(database):
    runs = starts(properties(database))
    numbers = [f"0x{code_point << 8 | value:08X}" for code_point, value in runs]
    lines = [", ".join(numbers[index:index + 8]) + "," for index in range(0, len(numbers), 8)]
    return f"""\
// Made by scripts/generate-display-width.py from the Unicode Character Database {version(database)}, as
// Debian's package unicode-data has it. Not to be edited.
#ifndef KEXA_COMMAND_TEXT_DISPLAY_WIDTH_TABLE_H
#define KEXA_COMMAND_TEXT_DISPLAY_WIDTH_TABLE_H

#include <cstdint>

namespace kexa
{{
inline namespace v1
{{
namespace detail
{{

// Properties of a code point, which an entry of the table holds in its low byte.
//
// The mask of the number of cells, 0 to 2.
inline constexpr std::uint32_t display_cells = {CELLS};
// Continues the grapheme before it.
inline constexpr std::uint32_t display_extends = {EXTENDS};
// U+200D joins it with its like.
inline constexpr std::uint32_t display_pictographic = {PICTOGRAPHIC};
// Takes two cells before U+FE0F.
inline constexpr std::uint32_t display_emoji = {EMOJI};

// Runs of code points with equal properties, in ascending order: the first code point of the run in
// the upper 24 bits, its properties in the low 8. The first run begins with U+0000.
// clang-format off
inline constexpr std::uint32_t display_width_runs[] = {{
{chr(10).join(lines)}
}};
// clang-format on

}} // namespace detail
}} // namespace v1
}} // namespace kexa

#endif
"""


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--check", action="store_true")
    arguments.add_argument("--database", type=pathlib.Path, default="/usr/share/unicode")
    options = arguments.parse_args()
    if options.check:
        if not (options.database / "EastAsianWidth.txt").exists():
            print(f"skipped: no Unicode Character Database in {options.database}")
            return 77
        present = TARGET.read_text(encoding="utf-8")
        if f"Unicode Character Database {version(options.database)}," not in present:
            print(f"skipped: the database here is version {version(options.database)}")
            return 77
        if present != header(options.database):
            print(f"{TARGET} is not what this script makes: run it and commit the result")
            return 1
        print("the table is that of the database")
        return 0
    TARGET.write_text(header(options.database), encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
