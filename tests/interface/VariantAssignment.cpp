// Assignment takes its share of the new content, then releases the old content, then holds the new.
#include <utility>

#include <gtest/gtest.h>

#include "VariantSamples.h"

namespace
{

using variant_samples::CountedObject;
using variant_samples::sharersOf;
using vexkit2::polymorphic_t;
using vexkit2::s32_t;
using vexkit2::variant_t;

// Records the kind of a variant at its own destruction.
class Observer : public polymorphic_t
{
public:
    Observer(const variant_t& observed, s32_t& kind) : m_observed(observed), m_kind(kind) {}
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;
    ~Observer() override { m_kind = m_observed.kind(); }

private:
    const variant_t& m_observed;
    s32_t& m_kind;
};

// Stores an object in a variant at its own destruction.
class Storer : public polymorphic_t
{
public:
    Storer(variant_t& target, int& destroyed) : m_target(target), m_destroyed(destroyed) {}
    Storer(const Storer&) = delete;
    Storer& operator=(const Storer&) = delete;
    ~Storer() override { m_target = variant_t::object(new CountedObject(m_destroyed)); }

private:
    variant_t& m_target;
    int& m_destroyed;
};

// Owns a variant.
class Owner : public polymorphic_t
{
public:
    explicit Owner(variant_t value) : member(std::move(value)) {}
    variant_t member;
};

constexpr s32_t unobserved = -1;

TEST(VariantAssignment, CopyReleasesTheOldObjectWhileTheTargetIsNull)
{
    s32_t kind = unobserved;
    variant_t target;
    target = variant_t::object(new Observer(target, kind));
    const variant_t text(L"new");
    target = text;
    EXPECT_EQ(kind, 17);
    EXPECT_STREQ(target.get<const wchar_t*>(), L"new");
    EXPECT_EQ(sharersOf(text), 2U);
}

TEST(VariantAssignment, MoveReleasesTheOldObjectWhileTheTargetIsNull)
{
    s32_t kind = unobserved;
    variant_t target;
    target = variant_t::object(new Observer(target, kind));
    variant_t text(L"new");
    target = std::move(text);
    EXPECT_EQ(kind, 17);
    EXPECT_STREQ(target.get<const wchar_t*>(), L"new");
    EXPECT_EQ(sharersOf(target), 1U);
}

TEST(VariantAssignment, SetDataReleasesTheOldObjectWhileTheTargetIsNull)
{
    s32_t kind = unobserved;
    variant_t target;
    target = variant_t::object(new Observer(target, kind));
    target.set_data(13, L"new", 4 * sizeof(wchar_t));
    EXPECT_EQ(kind, 17);
    EXPECT_STREQ(target.get<const wchar_t*>(), L"new");
}

TEST(VariantAssignment, MoveHasTakenTheSourceWhenTheOldObjectIsReleased)
{
    s32_t kind = unobserved;
    variant_t source(L"new");
    variant_t target = variant_t::object(new Observer(source, kind));
    target = std::move(source);
    EXPECT_EQ(kind, 17);
    EXPECT_STREQ(target.get<const wchar_t*>(), L"new");
}

TEST(VariantAssignment, NewContentMayBelongToTheOldObject)
{
    auto* const copied_from = new Owner(variant_t(L"copied"));
    variant_t target = variant_t::object(copied_from);
    target = copied_from->member;
    EXPECT_STREQ(target.get<const wchar_t*>(), L"copied");
    EXPECT_EQ(sharersOf(target), 1U);

    auto* const moved_from = new Owner(variant_t(L"moved"));
    target = variant_t::object(moved_from);
    target = std::move(moved_from->member);
    EXPECT_STREQ(target.get<const wchar_t*>(), L"moved");
    EXPECT_EQ(sharersOf(target), 1U);
}

TEST(VariantAssignment, NewContentReplacesWhatTheOldObjectStoredInTheTarget)
{
    int destroyed = 0;
    variant_t target;
    target = variant_t::object(new Storer(target, destroyed));
    target = variant_t(s32_t{7});
    EXPECT_EQ(target.get<s32_t>(), 7);
    EXPECT_EQ(destroyed, 1);

    target = variant_t::object(new Storer(target, destroyed));
    const variant_t number(s32_t{8});
    target = number;
    EXPECT_EQ(target.get<s32_t>(), 8);
    EXPECT_EQ(destroyed, 2);
}

TEST(VariantAssignment, SelfAssignmentReleasesNothing)
{
    s32_t kind = unobserved;
    variant_t target;
    target = variant_t::object(new Observer(target, kind));
    variant_t& same = target;
    target = same;
    EXPECT_EQ(kind, unobserved);
    target = std::move(same);
    EXPECT_EQ(kind, unobserved);
    EXPECT_EQ(target.kind(), 18);
}

} // namespace
