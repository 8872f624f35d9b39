// The classes of contract.cpp and the parser that createParser returns, whose own operations follow
// those of the interface.
#include "contract.cpp"

#include "parser/BasicParser.h"

namespace
{

// The constructor makes the compiler emit the virtual table, and with it the dump, in this file.
class LibraryParser : public BasicParser
{
public:
    LibraryParser() : BasicParser(0) {}
};

} // namespace

void layOutTheLibraryParser()
{
    LibraryParser parser;
    static_cast<void>(parser.getErrorMessage());
}
