// Every allocation that the library makes is made to fail, one after the other.
#include <cstddef>
#include <iostream>
#include <string>

#include <gtest/gtest.h>

#include "AllocationFaults.h"
#include "ConsoleCapture.h"
#include "HostCycle.h"

using namespace toolbox;
using faults::Extent;
using faults::HostCycle;
using faults::Record;

namespace
{

void runCycle(const TemporaryFolder& folder, const Record* expected, Record* record)
{
    HostCycle cycle(folder, expected);
    cycle.run();
    if (record != nullptr)
    {
        *record = cycle.record();
    }
}

// What the test writes to both console streams, from the moment a mark is set.
class BothStreams
{
public:
    // Forgets what was written before.
    void mark()
    {
        outputBefore = output.soFar().size();
        errorBefore = error.soFar().size();
    }
    // The rest of the texts, both after the other. On a failed test GoogleTest's words lie in what
    // was captured: they are shown.
    std::string finish()
    {
        const std::string written = output.finish();
        if (testing::Test::HasFailure())
        {
            std::cout << written;
        }
        return written.substr(outputBefore) + error.finish().substr(errorBefore);
    }

private:
    ConsoleCapture output{ConsoleCapture::Stream::output};
    ConsoleCapture error{ConsoleCapture::Stream::error};
    std::size_t outputBefore = 0;
    std::size_t errorBefore = 0;
};

class AllocationFailure : public testing::Test
{
protected:
    AllocationFailure()
    {
        folder.write(L"first", "# nested\n--option-file=" + toUtf8(folder.name(L"second")) +
                                   "\n--target=from the first file\n--\nleft over\n-over\n");
        folder.write(L"second",
                     "--level=10:11\n--option-file=" + toUtf8(folder.name(L"first")) + "\n");
        faults::failAllocation(0, Extent::oneAllocation);
        BothStreams console;
        runCycle(folder, nullptr, &expected);
        console.mark();
        runCycle(folder, &expected, nullptr);
        reference = console.finish();
    }

    // Runs a cycle in which one allocation fails, and the same one again without a failure. Answers
    // how many allocations the first made up to its end.
    std::size_t failAllocation(std::size_t number, Extent extent)
    {
        BothStreams console;
        const std::size_t before = faults::liveBlocks();
        faults::failAllocation(number, extent);
        runCycle(folder, &expected, nullptr);
        const std::size_t counted = faults::allocationsCounted();
        EXPECT_EQ(faults::liveBlocks(), before) << "leaked";
        faults::failAllocation(0, extent);
        console.mark();
        runCycle(folder, &expected, nullptr);
        const std::string afterwards = console.finish();
        EXPECT_EQ(afterwards, reference) << "the console after the failure";
        return counted;
    }

    // Fails allocation 1, 2, ... until a cycle needs fewer. Answers how many failed.
    std::size_t failEachAllocation(Extent extent)
    {
        std::size_t number = 1;
        for (; !HasFailure(); ++number)
        {
            SCOPED_TRACE(number);
            if (failAllocation(number, extent) < number)
            {
                break;
            }
        }
        return number - 1;
    }

    TemporaryFolder folder;
    Record expected;
    std::string reference;
};

} // namespace

TEST_F(AllocationFailure, OfEachAllocationLeavesEverythingUsable)
{
    ASSERT_FALSE(HasFailure()) << reference;
    const std::size_t tried = failEachAllocation(Extent::oneAllocation);
    EXPECT_GT(tried, 200U);
    std::cout << tried << " allocations failed one at a time\n";
    RecordProperty("allocations", std::to_string(tried));
}

TEST_F(AllocationFailure, OfEachAllocationAndTheRestOfItsCallLeavesEverythingUsable)
{
    ASSERT_FALSE(HasFailure()) << reference;
    const std::size_t tried = failEachAllocation(Extent::restOfCall);
    EXPECT_GT(tried, 200U);
    std::cout << tried << " allocations failed with the rest of their calls\n";
    RecordProperty("allocations", std::to_string(tried));
}
