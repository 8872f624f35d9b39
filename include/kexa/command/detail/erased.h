// The operations on members of one type, with the type erased.
#ifndef KEXA_COMMAND_DETAIL_ERASED_H
#define KEXA_COMMAND_DETAIL_ERASED_H

#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "kexa/command/detail/member.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// The functions behind MemberOperations for members of type T.
template <class T>
struct Erased
{
    using E = ElementOf<T>;

    static bool store(void* member, Input& input)
    {
        return Member<T>::store(*static_cast<T*>(member), input);
    }
    static void clear(void* member) { Member<T>::clear(*static_cast<T*>(member)); }
    static void texts(const void* member, const Declaration& declaration,
                      std::vector<std::string>& texts)
    {
        Member<T>::visit(*static_cast<const T*>(member),
                         [&](const E& element)
                         {
                             texts.push_back(declaration.table
                                                 ? declaration.table->nameOf(&element)
                                                 : std::string(Element<E>::text(element)));
                         });
    }
    static std::string refuseDefault(const void* member, const Declaration& declaration)
    {
        std::string reason;
        Member<T>::visit(*static_cast<const T*>(member),
                         [&](const E& element)
                         {
                             for (const auto& rule : declaration.rules)
                             {
                                 if (reason.empty())
                                 {
                                     reason = rule->refuse(&element);
                                 }
                             }
                         });
        return reason;
    }
    static std::string lowest()
    {
        if constexpr (isNumber<E>)
        {
            return Element<E>::text(std::numeric_limits<E>::lowest());
        }
        else
        {
            return std::string();
        }
    }
    static std::string highest()
    {
        if constexpr (isNumber<E>)
        {
            return Element<E>::text(std::numeric_limits<E>::max());
        }
        else
        {
            return std::string();
        }
    }

    static constexpr MemberOperations operations = {Element<E>::rawType,
                                                    Element<E>::name,
                                                    Member<T>::list,
                                                    std::is_enum_v<E> && !HasConvert<E>::value,
                                                    store,
                                                    clear,
                                                    texts,
                                                    refuseDefault,
                                                    lowest,
                                                    highest};
};

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
