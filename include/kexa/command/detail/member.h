// What kinds of members a struct may have: Member<T> says how a value gets into a T.
#ifndef KEXA_COMMAND_DETAIL_MEMBER_H
#define KEXA_COMMAND_DETAIL_MEMBER_H

#include <map>
#include <optional>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "kexa/command/detail/element.h"
#include "kexa/command/detail/element_pair.h"
#include "kexa/command/detail/element_path.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// A scalar: the last value counts.
template <class T, class = void>
struct Member
{
    using ElementType = T;
    static constexpr bool list = false;
    static bool store(T& member, Input& input) { return readElement(input, member); }
    static void clear(T&) {}
    template <class Visitor>
    static void visit(const T& member, const Visitor& visitor)
    {
        visitor(member);
    }
};

// A value, or several, that may be absent.
template <class T>
struct Member<std::optional<T>>
{
    using ElementType = typename Member<T>::ElementType;
    static constexpr bool list = Member<T>::list;
    static bool store(std::optional<T>& member, Input& input)
    {
        if (!member)
        {
            member.emplace();
        }
        return Member<T>::store(*member, input);
    }
    static void clear(std::optional<T>& member) { member.reset(); }
    template <class Visitor>
    static void visit(const std::optional<T>& member, const Visitor& visitor)
    {
        if (member)
        {
            Member<T>::visit(*member, visitor);
        }
    }
};

// A container of T.
template <class Container, class T>
struct ListMember
{
    using ElementType = T;
    static constexpr bool list = true;
    static bool store(Container& member, Input& input)
    {
        T element{};
        if (!readElement(input, element))
        {
            return false;
        }
        member.insert(member.end(), std::move(element));
        return true;
    }
    static void clear(Container& member) { member.clear(); }
    template <class Visitor>
    static void visit(const Container& member, const Visitor& visitor)
    {
        for (const T& element : member)
        {
            visitor(element);
        }
    }
};

template <class T, class Allocator>
struct Member<std::vector<T, Allocator>> : ListMember<std::vector<T, Allocator>, T>
{
};

template <class T, class Compare, class Allocator>
struct Member<std::set<T, Compare, Allocator>> : ListMember<std::set<T, Compare, Allocator>, T>
{
};

// key=value; the last value of a key counts.
template <class Key, class Mapped, class Compare, class Allocator>
struct Member<std::map<Key, Mapped, Compare, Allocator>>
{
    using Container = std::map<Key, Mapped, Compare, Allocator>;
    using ElementType = std::pair<Key, Mapped>;
    static constexpr bool list = true;
    static bool store(Container& member, Input& input)
    {
        ElementType element{};
        if (!readElement(input, element))
        {
            return false;
        }
        member.insert_or_assign(std::move(element.first), std::move(element.second));
        return true;
    }
    static void clear(Container& member) { member.clear(); }
    template <class Visitor>
    static void visit(const Container& member, const Visitor& visitor)
    {
        for (const auto& [key, mapped] : member)
        {
            visitor(ElementType(key, mapped));
        }
    }
};

template <class T>
using ElementOf = typename Member<T>::ElementType;

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
