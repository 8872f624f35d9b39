# A tree with names and links that not all systems support: symbolic links, and names that are not
# UTF-8.
string(ASCII 255 ill_formed)
string(ASCII 92 backslash)
file(WRITE "${work}/tree/bad${ill_formed}name" "ill-formed")
file(WRITE "${work}/tree/new\nline" "line feed")
file(WRITE "${work}/tree/back${backslash}slash" "backslash")
file(WRITE "${work}/tree/plain" "plain")
file(WRITE "${work}/tree/folder/inner" "inner")
file(CREATE_LINK ../.. "${work}/tree/folder/cycle" SYMBOLIC)
file(CREATE_LINK ../plain "${work}/tree/folder/link" SYMBOLIC)
file(CREATE_LINK nowhere "${work}/tree/dangling" SYMBOLIC)
file(CREATE_LINK tree "${work}/to-tree" SYMBOLIC)
file(WRITE "${work}/opt${ill_formed}" "-algorithm=adler32\n")
