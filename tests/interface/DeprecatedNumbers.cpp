// Deprecated numbers that a double does not tell apart: the first in order is replaced.
#include <string>
#include <vector>

#include "Host.h"

using namespace kexa_3_3;
using namespace toolbox;
using vexkit2::s64_t;
using vexkit2::variant_t;

namespace
{

using Texts = std::vector<std::wstring>;

// The values that `--x=-9007199254740992` leaves in a new result. The warning is kept off the
// console.
Texts valuesOfLimit(Host& host)
{
    host.renewResult();
    captureError([&] { EXPECT_EQ(host.parse({L"--x=-9007199254740992"}), result_success); });
    return host.texts(L"x");
}

} // namespace

TEST(DeprecatedNumbers, IntegerThatRoundsToTheValueComesBeforeTheValue)
{
    Host host;
    IOption& option = host.addOption(L"x", value_type_double);
    option.addAllowedValue(variant_t(7.0))
        .addDeprecatedValue(variant_t(s64_t{-9007199254740993}), variant_t(1.5))
        .addDeprecatedValue(variant_t(-9007199254740992.0), variant_t(2.5));
    EXPECT_EQ(valuesOfLimit(host), Texts{L"1.5"});
    option.addAllowedValue(variant_t(s64_t{9007199254740999}));
    EXPECT_EQ(valuesOfLimit(host), Texts{L"1.5"});
}
