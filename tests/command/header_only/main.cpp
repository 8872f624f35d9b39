// The bodies of the command layer's texts and platform in two units of one program, which links no
// library for them, and has neither exceptions nor run-time types.
#include "Bodies.h"

using namespace kexa::detail;

// Runs each group of functions in the other unit, and returns how many gave what they should.
int countWhatWorksInOtherUnit();

int main()
{
    const bool sameHere = narrow(widen("gr\xC3\xB6\xC3\x9F\x65")) == "gr\xC3\xB6\xC3\x9F\x65" &&
                          displayWidth("\xE6\x97\xA5") == 2;
    return sameHere && countWhatWorksInOtherUnit() == 5 ? 0 : 1;
}
