#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <popt.h>

#include "peers/Conversion.h"
#include "peers/Peer.h"
#include "peers/Slots.h"

namespace benchmarks
{

namespace
{

struct Free
{
    void operator()(void* memory) const noexcept { std::free(memory); }
};

class Popt
{
public:
    explicit Popt(const Workload& workload) : m_workload(workload)
    {
        const std::vector<Option>& options = workload.options();
        m_slots.reserve(options.size());
        m_given.resize(options.size());
        m_options.reserve(options.size() + 1);
        for (const Option& option : options)
        {
            m_slots.push_back(makeSlot(option));
            m_options.push_back({option.name.c_str(), option.letter,
                                 option.type == Type::flag ? POPT_ARG_NONE : POPT_ARG_STRING,
                                 nullptr, static_cast<int>(m_options.size()) + 1,
                                 option.description.c_str(), nullptr});
        }
        m_options.push_back({nullptr, '\0', 0, nullptr, 0, nullptr, nullptr});
        m_context.reset(poptGetContext("program", workload.argumentCount(),
                                       const_cast<const char**>(workload.argumentVector().data()),
                                       m_options.data(), 0));
    }

    void parse()
    {
        for (;;)
        {
            const int found = poptGetNextOpt(m_context.get());
            if (found == -1)
            {
                return;
            }
            if (found < 0)
            {
                throw std::invalid_argument(poptStrerror(found));
            }
            store(static_cast<std::size_t>(found) - 1);
        }
    }

    template <class Sink>
    void read(Sink& sink) const
    {
        for (std::size_t i = 0; i < m_slots.size(); ++i)
        {
            if (!m_given[i])
            {
                sink.absent(i);
                continue;
            }
            std::visit([&](const auto& variable) { give(sink, i, variable); }, m_slots[i]);
        }
    }

    std::string help() const
    {
        char* text = nullptr;
        std::size_t length = 0;
        std::FILE* const stream = open_memstream(&text, &length);
        if (stream == nullptr)
        {
            throw std::runtime_error("open_memstream failed");
        }
        poptPrintHelp(m_context.get(), stream, 0);
        std::fclose(stream);
        const std::unique_ptr<char, Free> owned(text);
        return std::string(text, length);
    }

private:
    void store(std::size_t option)
    {
        m_given[option] = true;
        std::visit([this](auto& variable) { storeValue(variable); }, m_slots[option]);
    }
    std::unique_ptr<char, Free> text() const
    {
        return std::unique_ptr<char, Free>(poptGetOptArg(m_context.get()));
    }
    static void storeValue(Count& variable) { ++variable.count; }
    template <class T>
    void storeValue(std::vector<T>& variable) const
    {
        variable.push_back(convert<T>(text().get()));
    }
    template <class T>
    void storeValue(T& variable) const
    {
        variable = convert<T>(text().get());
    }

    struct FreeContext
    {
        void operator()(poptContext context) const noexcept { poptFreeContext(context); }
    };

    const Workload& m_workload;
    std::vector<poptOption> m_options;
    std::vector<Slot> m_slots;
    std::vector<bool> m_given;
    std::unique_ptr<std::remove_pointer_t<poptContext>, FreeContext> m_context;
};

} // namespace

Peer poptPeer()
{
    return makePeer<Popt>("popt", {.help = true});
}

} // namespace benchmarks
