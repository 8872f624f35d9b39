// A contestant: a library, or a few lines of the standard library, that runs workloads.
#ifndef KEXA_BENCHMARKS_PEER_H
#define KEXA_BENCHMARKS_PEER_H

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "workloads/Sinks.h"
#include "workloads/Workload.h"

namespace benchmarks
{

// What a contestant can do beyond options with "--name=value" arguments of every type.
struct Abilities
{
    bool abbreviations = false;     // finds options by a unique prefix
    bool lists = false;             // cuts a value at commas
    bool allowedValues = false;     // checks a value against a list
    bool abbreviatedValues = false; // and completes it from a unique prefix
    bool help = false;              // writes a help text
    bool reads = true;              // reads values at all

    // Kinds of workload (the name up to the first "/") to take part in; empty: every kind.
    std::vector<std::string> only{};

    // The largest size (the last number in a workload's name) of a kind that can be run at all.
    std::map<std::string, std::size_t> largest{};

    // Sizes of a kind from which on one cycle takes so long that it is measured once only.
    std::map<std::string, std::size_t> slowFrom{};
};

// A declared command line of one library. Destroying it releases everything.
class Host
{
public:
    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    virtual ~Host() = default;

    // Parses the workload's arguments. Throws std::exception on an error in them.
    virtual void parse() = 0;

    // Hands all that was read to a sink.
    virtual void read(Tally& sink) = 0;
    virtual void read(Record& sink) = 0;

    // Makes the full help, as the library hands it out, and answers its length.
    virtual std::size_t makeHelp() = 0;

    // The same as narrow text.
    virtual std::string help() = 0;
};

struct Peer
{
    std::string name;
    Abilities abilities;

    // Declares the workload's options. The workload outlives the host.
    std::unique_ptr<Host> (*declare)(const Workload& workload);

    // The whole life: declare, parse, read everything, release. Without virtual calls.
    Tally (*cycle)(const Workload& workload);

    bool canRun(const std::string& workload) const;
    bool isSlow(const std::string& workload) const;
};

// Makes a peer from a class L with: L(const Workload&), parse(), template read(Sink&), help();
// and wideHelp() where it makes wide text.
template <class L>
class HostOf final : public Host
{
public:
    explicit HostOf(const Workload& workload) : m_library(workload) {}
    void parse() override { m_library.parse(); }
    void read(Tally& sink) override { m_library.read(sink); }
    void read(Record& sink) override { m_library.read(sink); }
    std::size_t makeHelp() override
    {
        if constexpr (requires { m_library.wideHelp(); })
        {
            return m_library.wideHelp().size();
        }
        else
        {
            return m_library.help().size();
        }
    }
    std::string help() override { return m_library.help(); }

private:
    L m_library;
};

template <class L>
Peer makePeer(std::string name, Abilities abilities)
{
    Peer peer;
    peer.name = std::move(name);
    peer.abilities = std::move(abilities);
    peer.declare = [](const Workload& workload) -> std::unique_ptr<Host>
    {
        return std::make_unique<HostOf<L>>(workload);
    };
    peer.cycle = [](const Workload& workload)
    {
        Tally tally;
        L library(workload);
        library.parse();
        library.read(tally);
        return tally;
    };
    return peer;
}

Peer kexaPeer();
Peer kexaFromNarrowPeer(); // converts the arguments from UTF-8 first, as a host on Linux does
Peer cli11Peer();
Peer cxxoptsPeer();
Peer programOptionsPeer();
Peer tclapPeer();
Peer argsPeer();
Peer poptPeer();
Peer getoptPeer();         // getopt_long, texts stored in std::string as every C++ peer does
Peer getoptPointersPeer(); // getopt_long, texts left where they are in the argument vector

// The standard library alone, knowing beforehand what the workload holds.
Peer copyPeer();      // copies the wide arguments, nothing more
Peer fromCharsPeer(); // cuts at "=" and converts with std::from_chars
Peer splitPeer();     // cuts a list at commas
Peer hashPeer();      // looks allowed values up in a hash table

// All of the above, kexa first.
const std::vector<Peer>& allPeers();

// Runs the whole life once and compares every reading with what the workload expects. Answers the
// first difference, empty when there is none.
std::string check(const Peer& peer, const Workload& workload);

} // namespace benchmarks

#endif
