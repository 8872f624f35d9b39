// Contestants: libraries, and lower bounds made of a few lines of the standard library, each of
// which runs workloads.
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
    bool lists = false;             // splits a value at commas
    bool allowedValues = false;     // checks a value against a list
    bool abbreviatedValues = false; // completes an allowed value from a unique prefix
    bool help = false;              // writes a help text
    bool reads = true;              // passes values to sinks

    // Kinds of workload (the name up to the first "/") that the contestant runs; empty: all that
    // the abilities above allow.
    std::vector<std::string> only{};

    // By kind, the largest size (the last number in a workload's name) that can be run at all.
    std::map<std::string, std::size_t> largest{};

    // By kind, the size from which on one cycle takes so long that it is measured only once.
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

    // Passes all that was read to a sink.
    virtual void read(Tally& sink) = 0;
    virtual void read(Record& sink) = 0;

    // Makes the full help in the library's own character type and returns its length.
    virtual std::size_t makeHelp() = 0;

    // Returns the full help as UTF-8.
    virtual std::string help() = 0;
};

struct Peer
{
    std::string name;
    Abilities abilities;

    // Declares the workload's options. The workload outlives the host.
    std::unique_ptr<Host> (*declare)(const Workload& workload);

    // Runs a whole cycle without virtual calls: declare, parse, read everything, release.
    Tally (*cycle)(const Workload& workload);

    bool canRun(const std::string& workload) const;
    bool isSlow(const std::string& workload) const;
};

// A host made from a class L, which has L(const Workload&), parse(), template read(Sink&), help(),
// and wideHelp() where its help is wide text.
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
Peer kexaFromNarrowPeer(); // converts the arguments from UTF-8 first, as hosts on Linux do
Peer commandPeer();        // the command layer: from UTF-8 to a filled struct
Peer cli11Peer();
Peer cxxoptsPeer();
Peer programOptionsPeer();
Peer tclapPeer();
Peer argsPeer();
Peer poptPeer();
Peer getoptPeer();         // getopt_long; texts are stored as std::string, as in every C++ peer
Peer getoptPointersPeer(); // getopt_long; texts stay in the argument vector

// Lower bounds: code that fits one kind of workload and recognises no options.
Peer copyPeer();      // copies the wide arguments
Peer fromCharsPeer(); // splits at "=" and converts with std::from_chars
Peer splitPeer();     // splits a list at commas
Peer hashPeer();      // finds allowed values in a hash table

// Returns all of the above, kexa first.
const std::vector<Peer>& allPeers();

// Returns the peer with the name. Throws std::invalid_argument when there is none.
const Peer& peerNamed(const std::string& name);

// Runs a cycle and compares every reading with what the workload expects. Returns the first
// difference or the text of an exception, empty when there is neither.
std::string check(const Peer& peer, const Workload& workload);

} // namespace benchmarks

#endif
