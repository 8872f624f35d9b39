// As contract.cpp, with the parser that the library itself hands out: its own operations stand
// behind those of the interface.
#include "contract.cpp"

#include "parser/BasicParser.h"

namespace
{

// Adds nothing. Its constructor makes the compiler lay the table out here.
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
