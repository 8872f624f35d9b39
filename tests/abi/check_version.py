"""Compares every entry of a DLL's version resource with the expected text."""

import argparse
import pathlib
import re
import struct
import sys

STRINGS = {
    "FileDescription": "Command-line parsing library",
    "FileVersion": "{version}.0",
    "InternalName": "kexa",
    "LegalCopyright": None,  # any text: the year in it changes
    "OriginalFilename": "kexa.dll",
    "ProductName": "kexa",
    "ProductVersion": "{version}.0",
}


def block(data, position):
    """Returns a node of the resource: key, value, start of its children, end of the node."""
    length, value_length, is_text = struct.unpack_from("<HHH", data, position)
    end_of_key = position + 6
    while data[end_of_key:end_of_key + 2] != b"\0\0":
        end_of_key += 2
    key = data[position + 6:end_of_key].decode("utf-16-le")
    value_position = align(end_of_key + 2)
    size = value_length * 2 if is_text else value_length
    value = data[value_position:value_position + size]
    return key, value, align(value_position + size), position + length


def align(position):
    return (position + 3) & ~3


def children(data, position):
    _, _, child, end = block(data, position)
    while child < end:
        yield child
        child = align(block(data, child)[3])


def find_resource(file):
    data = pathlib.Path(file).read_bytes()
    key = "VS_VERSION_INFO\0".encode("utf-16-le")
    found = [match.start() for match in re.finditer(re.escape(key), data)]
    if len(found) != 1:
        sys.exit(f"{file}: {len(found)} version resources")
    start = found[0] - 6
    return data[start:start + struct.unpack_from("<H", data, start)[0]]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--version", required=True, help="as in 3.3.0")
    parser.add_argument("dll")
    arguments = parser.parse_args()
    data = find_resource(arguments.dll)
    signature, _, *versions = struct.unpack_from("<IIIIII", block(data, 0)[1])
    numbers = [f"{v >> 16}.{v & 0xFFFF}" for v in versions]
    problems = []
    if signature != 0xFEEF04BD:
        problems.append("no fixed part")
    file_version, product_version = ".".join(numbers[:2]), ".".join(numbers[2:])
    for name, actual in [("file version", file_version), ("product version", product_version)]:
        if actual != arguments.version + ".0":
            problems.append(f"{name} {actual}")
    texts = {}
    for part in children(data, 0):
        if block(data, part)[0] == "StringFileInfo":
            for table in children(data, part):
                for entry in children(data, table):
                    key, value, _, _ = block(data, entry)
                    texts[key] = value.decode("utf-16-le").rstrip("\0")
    expected = {key: text and text.format(version=arguments.version)
                for key, text in STRINGS.items()}
    for key in sorted(set(texts) | set(expected)):
        print(f"{key}: {texts.get(key)}")
        if key not in expected or key not in texts:
            problems.append(f"{key} is " + ("missing" if key in expected else "not expected"))
        elif expected[key] is not None and texts[key] != expected[key]:
            problems.append(f"{key} should be {expected[key]}")
    print(f"file version {file_version}, product version {product_version}")
    for problem in problems:
        print("PROBLEM: " + problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
