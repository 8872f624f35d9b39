// Guards against variants that no operation makes: each raises its exact text.
#include <cstddef>
#include <cstring>
#include <functional>
#include <limits>
#include <new>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "VariantSamples.h"

namespace
{

using variant_samples::withoutData;
using vexkit2::s32_t;
using vexkit2::variant_t;

// The text of the guard that the action fails, empty where it fails none.
std::string guardOf(const std::function<void()>& action)
{
    try
    {
        action();
    }
    catch (const kexa_3_3::AssertionFailure& failure)
    {
        return failure.what();
    }
    return std::string();
}

TEST(VariantGuards, FailureIsALogicErrorWithItsPlace)
{
    const kexa_3_3::AssertionFailure failure("x != NULL", "some.cpp", 17, "someFunction");
    EXPECT_STREQ(failure.what(), "x != NULL");
    EXPECT_STREQ(failure.file(), "some.cpp");
    EXPECT_EQ(failure.line(), 17);
    EXPECT_STREQ(failure.function(), "someFunction");
    EXPECT_THROW(throw failure, std::logic_error);
}

TEST(VariantGuards, RaisedGuardCarriesItsArguments)
{
    try
    {
        kexa_3_3::raiseAssertion("guard", "file.cpp", 3, "function");
    }
    catch (const std::logic_error& error)
    {
        EXPECT_STREQ(error.what(), "guard");
        const auto* failure = dynamic_cast<const kexa_3_3::AssertionFailure*>(&error);
        ASSERT_NE(failure, nullptr);
        EXPECT_STREQ(failure->file(), "file.cpp");
        EXPECT_EQ(failure->line(), 3);
        EXPECT_STREQ(failure->function(), "function");
    }
}

TEST(VariantGuards, CopyOfAHeapKindWithoutDataIsRefused)
{
    for (const s32_t kind : {12, 13, 16, 18})
    {
        const variant_t forged = withoutData(kind);
        variant_t target(L"kept");
        EXPECT_EQ(guardOf([&] { const variant_t copy(forged); }), "h != NULL") << kind;
        EXPECT_EQ(guardOf([&] { target = forged; }), "h != NULL") << kind;
        EXPECT_STREQ(target.get<const wchar_t*>(), L"kept") << kind;
    }
}

TEST(VariantGuards, ComparisonOfAHeapKindWithoutDataIsRefused)
{
    const struct
    {
        s32_t kind;
        variant_t sound;
    } rows[] = {{12, variant_t("a")},
                {13, variant_t(L"a")},
                {16, variant_t::blob("a", 1)},
                {18, variant_t::object(new vexkit2::polymorphic_t)}};
    const std::string guard = "m_value.m_data != NULL";
    for (const auto& row : rows)
    {
        const variant_t forged = withoutData(row.kind);
        EXPECT_EQ(guardOf([&] { static_cast<void>(forged == row.sound); }), guard) << row.kind;
        EXPECT_EQ(guardOf([&] { static_cast<void>(row.sound == forged); }), guard) << row.kind;
        EXPECT_EQ(guardOf([&] { static_cast<void>(forged < row.sound); }), guard) << row.kind;
        EXPECT_EQ(guardOf([&] { static_cast<void>(row.sound < forged); }), guard) << row.kind;
    }
}

TEST(VariantGuards, ReadingATextWithoutDataIsRefused)
{
    const variant_t wide = withoutData(13);
    EXPECT_EQ(guardOf([&] { static_cast<void>(wide.get<const wchar_t*>()); }),
              "m_value.m_data != NULL");
    const variant_t narrow = withoutData(12);
    EXPECT_EQ(guardOf([&] { static_cast<void>(narrow.narrow_text()); }), "m_value.m_data != NULL");
}

TEST(VariantGuards, LengthOfAHeapKindWithoutDataIsRefused)
{
    for (const s32_t kind : {12, 13, 16, 18})
    {
        const variant_t forged = withoutData(kind);
        EXPECT_EQ(guardOf([&] { static_cast<void>(forged.byte_length()); }),
                  "m_value.m_data != NULL")
            << kind;
    }
}

TEST(VariantGuards, HeapKindWithoutDataCanBeReplacedAndDestroyed)
{
    for (const s32_t kind : {12, 13, 16, 18})
    {
        variant_t forged = withoutData(kind);
        forged = variant_t(s32_t{1});
        EXPECT_EQ(forged.get<s32_t>(), 1) << kind;
        variant_t moved = withoutData(kind);
        moved = std::move(forged);
        EXPECT_EQ(moved.get<s32_t>(), 1) << kind;
    }
}

TEST(VariantGuards, UnknownKindsAreNotComparedAsNulls)
{
    const variant_t unknown = withoutData(99);
    const std::string guard = "m_type == vtNull && var.m_type == vtNull";
    EXPECT_EQ(guardOf([&] { static_cast<void>(unknown == withoutData(99)); }), guard);
    EXPECT_EQ(guardOf([&] { static_cast<void>(variant_t() == unknown); }), guard);
    EXPECT_EQ(guardOf([&] { static_cast<void>(unknown == variant_t()); }), guard);
    EXPECT_EQ(guardOf([&] { static_cast<void>(variant_t() == variant_t()); }), "");
}

TEST(VariantGuards, SetDataRefusesKindsWithoutABlockOfBytes)
{
    for (const s32_t kind : {0, 6, 11, 14, 15, 17, 18, 99})
    {
        variant_t value(L"kept");
        EXPECT_EQ(guardOf([&] { value.set_data(kind, "abcdefgh", 8); }),
                  "kind == vtString || kind == vtWideString || kind == vtBlob")
            << kind;
        EXPECT_STREQ(value.get<const wchar_t*>(), L"kept") << kind;
    }
}

TEST(VariantGuards, SetDataRefusesMissingBytes)
{
    variant_t value(L"kept");
    EXPECT_EQ(guardOf([&] { value.set_data(16, nullptr, 1); }), "bytes != NULL || length == 0");
    EXPECT_STREQ(value.get<const wchar_t*>(), L"kept");
}

// With its header such a block would be shorter than its data.
TEST(VariantGuards, LengthThatNoMemoryHasRoomForIsRefused)
{
    const std::size_t longest = std::numeric_limits<std::size_t>::max();
    variant_t value(L"kept");
    for (const std::size_t length : {longest, longest - 1, longest - sizeof(void*)})
    {
        EXPECT_THROW(static_cast<void>(variant_t::blob("bytes", length)), std::bad_alloc);
        EXPECT_THROW(value.set_data(16, "bytes", length), std::bad_alloc);
        EXPECT_STREQ(value.get<const wchar_t*>(), L"kept");
    }
}

TEST(VariantGuards, NarrowTextIsReadFromNarrowTextsOnly)
{
    for (const variant_t& value :
         {variant_t(), variant_t(true), variant_t(s32_t{1}), variant_t(1.0), variant_t(L"text"),
          variant_t::reference(L"text"), variant_t::blob("text", 5),
          variant_t::object(new vexkit2::polymorphic_t)})
    {
        EXPECT_EQ(guardOf([&] { static_cast<void>(value.narrow_text()); }),
                  "m_type == vtString || m_type == vtStringReference")
            << value.kind();
    }
    EXPECT_EQ(guardOf([] { static_cast<void>(variant_t("text").narrow_text()); }), "");
}

} // namespace
