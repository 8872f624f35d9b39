# Creates the folder tree of the transcripts, below the folder `work`.
file(WRITE "${work}/tree/readme.txt" "Hello\n")
file(WRITE "${work}/tree/empty" "")
file(WRITE "${work}/tree/data/digits.txt" "123456789")
file(WRITE "${work}/tree/data/one, two.txt" "A name with a comma\n")
file(WRITE "${work}/tree/data/Zoë 👋.txt" "Unicode")
file(WRITE "${work}/tree/cache/old.tmp" "temporary")
file(COPY "${CMAKE_CURRENT_LIST_DIR}/all_bytes.bin" DESTINATION "${work}/tree/data")
file(WRITE "${work}/usual.options"
    "; Leaves the temporary files out.\n-exclude=cache,*.tmp\n\n-alg adler32\n")
file(WRITE "${work}/wrong.options" "; The second line is wrong.\n-min-size=many\n")

file(WRITE "${work}/malformed.sums"
    "# A comment, then lines that are wrong in turn.\n"
    "crc32=cbf43926 9 tree/data/digits.txt\r\n"
    "\n"
    "md5=cbf43926 9 x\n"
    "crc32=cbf4392 9 x\n"
    "crc32=cbf43926 nine x\n"
    "crc32=cbf43926 9\n"
    "crc32=cbf43926 9 x\\y\n")

# A name with control characters, which messages must not pass to the terminal.
string(ASCII 27 escape)
string(REPEAT "${escape}" 50 controls)
file(WRITE "${work}/many-malformed.sums" "1\n2\n3\n4\n5\n${controls}\n7\n")
