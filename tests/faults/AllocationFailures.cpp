// Fails every allocation of the library in turn, in a cycle that uses all of the interface.
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

// Captures standard output and standard error.
class BothStreams
{
public:
    // Marks the current ends of the streams, where the text of finish() starts.
    void mark()
    {
        outputBefore = output.soFar().size();
        errorBefore = error.soFar().size();
    }
    // Returns the output since the mark, followed by the errors since the mark. GoogleTest's
    // messages were captured as well, so after a failure the output is printed.
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

    // Runs a cycle in which one allocation fails, then a cycle without a failure. Returns the
    // number of allocations in the first one.
    std::size_t failAllocation(std::size_t number, Extent extent)
    {
        BothStreams console;
        const std::size_t before = faults::liveBlocks();
        faults::failAllocation(number, extent);
        runCycle(folder, &expected, nullptr);
        const std::size_t counted = faults::allocationsCounted();
        if (!HasFailure()) // whose messages are kept on the heap
        {
            EXPECT_EQ(faults::liveBlocks(), before) << "leaked";
        }
        faults::failAllocation(0, extent);
        console.mark();
        runCycle(folder, &expected, nullptr);
        const std::string afterwards = console.finish();
        EXPECT_EQ(afterwards, reference) << "the console after the failure";
        return counted;
    }

    // Fails allocation 1, 2, ... until a cycle has fewer allocations. Returns how many failed.
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
