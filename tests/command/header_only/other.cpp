#include "Bodies.h"

using namespace kexa::detail;

int countWhatWorksInOtherUnit()
{
    int count = 0;
    count += editDistance("verbsoe", "verbose", 2) == 1 ? 1 : 0;
    count += splitLine("a 'b c'").arguments.size() == 2 ? 1 : 0;
    count += wrapText("a b", 1).size() == 2 ? 1 : 0;
    count += readOptionFile("no such folder/file").error.empty() ? 0 : 1;
    count += writeText(StandardStream::output, "") ? 1 : 0;
    return count;
}
