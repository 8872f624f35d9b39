// Which types a variant is made from, and the kind that each gives.
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

#include <gtest/gtest.h>
#include <kexa/kexa.h>

namespace
{

using vexkit2::s32_t;
using vexkit2::s64_t;
using vexkit2::u64_t;
using vexkit2::variant_t;

// The kind of a variant made from the value, -1 where none can be made.
template <class T>
s32_t kindOf(T value)
{
    if constexpr (std::is_constructible_v<variant_t, T>)
    {
        return variant_t(value).kind();
    }
    else
    {
        static_cast<void>(value);
        return -1;
    }
}

// The value of an integer as read back from a variant that was made from it.
template <class Read, class T>
Read readBack(T value)
{
    if constexpr (std::is_constructible_v<variant_t, T>)
    {
        return variant_t(value).template get<Read>();
    }
    else
    {
        return static_cast<Read>(~value);
    }
}

TEST(VariantConstruction, EveryIntegerTypeGivesTheKindOfItsWidthAndSign)
{
    constexpr s32_t kind_of_long = sizeof(long) == 4 ? 6 : 8; // 32 bits on Windows
    const struct
    {
        const char* type;
        s32_t kind;
        s32_t expected;
    } rows[] = {
        {"int", kindOf(5), 6},
        {"unsigned", kindOf(5U), 7},
        {"long", kindOf(5L), kind_of_long},
        {"unsigned long", kindOf(5UL), kind_of_long + 1},
        {"long long", kindOf(5LL), 8},
        {"unsigned long long", kindOf(5ULL), 9},
        {"size_t", kindOf(sizeof(int)), 9},
        {"ptrdiff_t", kindOf(std::ptrdiff_t{5}), 8},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.kind, row.expected) << row.type;
    }
}

TEST(VariantConstruction, TypesShorterThanIntGiveASignedInteger)
{
    EXPECT_EQ(kindOf('x'), 6);
    EXPECT_EQ(kindOf(static_cast<signed char>(1)), 6);
    EXPECT_EQ(kindOf(static_cast<unsigned char>(1)), 6);
    EXPECT_EQ(kindOf(static_cast<short>(1)), 6);
    EXPECT_EQ(kindOf(static_cast<unsigned short>(1)), 6);
    EXPECT_EQ(readBack<s32_t>(static_cast<short>(-7)), -7);
}

TEST(VariantConstruction, IntegersKeepTheirValue)
{
    EXPECT_EQ(readBack<s64_t>(-2147483647L - 1), -2147483648LL);
    EXPECT_EQ(readBack<u64_t>(4294967295UL), 4294967295U);
    EXPECT_EQ(readBack<s64_t>(-9223372036854775807LL - 1), -9223372036854775807LL - 1);
    EXPECT_EQ(readBack<u64_t>(18446744073709551615ULL), 18446744073709551615ULL);
}

TEST(VariantConstruction, NarrowAndWideTextsAreTaken)
{
    EXPECT_TRUE((std::is_constructible_v<variant_t, const char*>));
    EXPECT_TRUE((std::is_constructible_v<variant_t, char*>));
    EXPECT_TRUE((std::is_constructible_v<variant_t, const char(&)[3]>));
    EXPECT_TRUE((std::is_constructible_v<variant_t, char(&)[3]>));
    EXPECT_TRUE((std::is_constructible_v<variant_t, const wchar_t*>));
    EXPECT_TRUE((std::is_constructible_v<variant_t, wchar_t*>));
    EXPECT_TRUE((std::is_constructible_v<variant_t, wchar_t(&)[3]>));

    char narrow[] = "ab";
    wchar_t wide[] = L"ab";
    EXPECT_EQ(variant_t(narrow).kind(), 12);
    EXPECT_EQ(variant_t(&narrow[0]).kind(), 12);
    EXPECT_EQ(variant_t(wide).kind(), 13);
    EXPECT_EQ(variant_t(&wide[0]).kind(), 13);
}

TEST(VariantConstruction, TextsOfOtherCharacterTypesAreRefused)
{
    EXPECT_FALSE((std::is_constructible_v<variant_t, const char8_t*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, const char16_t*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, const char32_t*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, decltype((u8"x"))>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, decltype((u"x"))>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, decltype((U"x"))>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, const unsigned char*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, const volatile char*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, std::wstring_view>));
}

TEST(VariantConstruction, PointersToOtherThingsAreRefused)
{
    struct Class
    {
        int member;
        void operation();
    };
    EXPECT_FALSE((std::is_constructible_v<variant_t, void*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, const int*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, const wchar_t**>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, int(&)[3]>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, vexkit2::polymorphic_t*>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, void (*)()>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, void (&)()>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, decltype(&Class::member)>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, decltype(&Class::operation)>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, std::nullptr_t>));
    EXPECT_FALSE((std::is_constructible_v<variant_t, std::unique_ptr<int>>));
}

TEST(VariantConstruction, NothingConvertsImplicitly)
{
    EXPECT_FALSE((std::is_convertible_v<bool, variant_t>));
    EXPECT_FALSE((std::is_convertible_v<long long, variant_t>));
    EXPECT_FALSE((std::is_convertible_v<const wchar_t*, variant_t>));
    EXPECT_FALSE((std::is_convertible_v<std::wstring, variant_t>));
}

} // namespace
