// Lower bounds: the cost of a part of the work in plain C++, in code that fits one kind of
// workload. None of these is a parser.
#include <charconv>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "peers/Peer.h"
#include "peers/Slots.h"

namespace benchmarks
{

namespace
{

class Nothing
{
public:
    explicit Nothing(const Workload& workload) : m_workload(workload) {}
    std::string help() const { return {}; }

protected:
    const Workload& workload() const noexcept { return m_workload; }

private:
    const Workload& m_workload;
};

// Copies every argument as wide text.
class Copy : public Nothing
{
public:
    using Nothing::Nothing;

    void parse()
    {
        const std::vector<std::wstring>& arguments = workload().wideArguments();
        m_texts.reserve(arguments.size());
        for (const std::wstring& argument : arguments)
        {
            m_texts.emplace_back(argument);
        }
    }

    template <class Sink>
    void read(Sink&) const
    {
        if (m_texts != workload().wideArguments())
        {
            throw std::logic_error("a copy differs");
        }
    }

private:
    std::vector<std::wstring> m_texts;
};

template <class T>
T fromChars(std::string_view text)
{
    if constexpr (std::is_same_v<T, std::string>)
    {
        return std::string(text);
    }
    else
    {
        T number{};
        const char* const end = text.data() + text.size();
        const std::from_chars_result result = std::from_chars(text.data(), end, number);
        if (result.ec != std::errc() || result.ptr != end)
        {
            throw std::invalid_argument("not a number");
        }
        return number;
    }
}

std::string_view valueOf(const std::string& argument)
{
    const std::size_t equals = argument.find('=');
    return std::string_view(argument).substr(equals == std::string::npos ? argument.size()
                                                                         : equals + 1);
}

// Relies on argument i belonging to option i modulo the number of options.
class FromChars : public Nothing
{
public:
    explicit FromChars(const Workload& workload) : Nothing(workload)
    {
        for (const Option& option : workload.options())
        {
            m_slots.push_back(makeSlot(option));
        }
    }

    void parse()
    {
        std::size_t option = 0;
        for (const std::string& argument : workload().arguments())
        {
            std::visit([&](auto& variable) { store(variable, valueOf(argument)); },
                       m_slots[option]);
            option = option + 1 == m_slots.size() ? 0 : option + 1;
        }
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        for (std::size_t i = 0; i < m_slots.size(); ++i)
        {
            std::visit([&](const auto& variable) { give(sink, i, variable); }, m_slots[i]);
        }
    }

private:
    static void store(Count& variable, std::string_view) { ++variable.count; }
    template <class T>
    static void store(std::vector<T>& variable, std::string_view text)
    {
        variable.push_back(fromChars<T>(text));
    }
    template <class T>
    static void store(T&, std::string_view)
    {
        throw std::logic_error("every option is repeated here");
    }

    std::vector<Slot> m_slots;
};

// Splits the value of the only argument at commas and converts the items.
class Split : public Nothing
{
public:
    explicit Split(const Workload& workload)
        : Nothing(workload), m_slot(makeSlot(workload.options().front()))
    {
    }

    void parse()
    {
        std::string_view rest = valueOf(workload().arguments().front());
        std::visit([&](auto& variable) { store(variable, rest); }, m_slot);
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        std::visit([&](const auto& variable) { give(sink, 0, variable); }, m_slot);
    }

private:
    template <class T>
    static void store(std::vector<T>& variable, std::string_view rest)
    {
        for (;;)
        {
            const std::size_t comma = rest.find(',');
            variable.push_back(fromChars<T>(rest.substr(0, comma)));
            if (comma == std::string_view::npos)
            {
                return;
            }
            rest.remove_prefix(comma + 1);
        }
    }
    template <class T>
    static void store(T&, std::string_view)
    {
        throw std::logic_error("only lists here");
    }

    Slot m_slot;
};

// Finds each value in a hash table of the allowed ones, then copies it.
class Hash : public Nothing
{
public:
    explicit Hash(const Workload& workload)
        : Nothing(workload), m_allowed(workload.options().front().allowedValues.begin(),
                                       workload.options().front().allowedValues.end())
    {
    }

    void parse()
    {
        for (const std::string& argument : workload().arguments())
        {
            std::string value(valueOf(argument));
            if (m_allowed.count(value) == 0)
            {
                throw std::invalid_argument("not allowed: " + value);
            }
            m_values.push_back(std::move(value));
        }
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        put(sink, 0, m_values);
    }

private:
    std::unordered_set<std::string> m_allowed;
    std::vector<std::string> m_values;
};

} // namespace

Peer copyPeer()
{
    return makePeer<Copy>("copying the arguments",
                          {.reads = false, .only = {"small", "arguments", "options"}});
}

Peer fromCharsPeer()
{
    return makePeer<FromChars>("std::from_chars", {.only = {"typed"}});
}

Peer splitPeer()
{
    return makePeer<Split>("splitting by hand", {.lists = true, .only = {"texts", "integers"}});
}

Peer hashPeer()
{
    return makePeer<Hash>("std::unordered_set", {.only = {"allowed"}});
}

} // namespace benchmarks
