#include "peers/Peer.h"

#include <algorithm>
#include <exception>
#include <stdexcept>

namespace benchmarks
{

namespace
{

std::string kindOf(const std::string& workload)
{
    return workload.substr(0, workload.find('/'));
}

std::size_t sizeOf(const std::string& workload)
{
    const std::size_t slash = workload.rfind('/');
    return slash == std::string::npos ? 0 : std::stoul(workload.substr(slash + 1));
}

} // namespace

bool Peer::canRun(const std::string& workload) const
{
    const std::string kind = kindOf(workload);
    const auto limit = abilities.largest.find(kind);
    if (limit != abilities.largest.end() && sizeOf(workload) > limit->second)
    {
        return false;
    }
    if (!abilities.only.empty())
    {
        return std::find(abilities.only.begin(), abilities.only.end(), kind) !=
               abilities.only.end();
    }
    return (abilities.abbreviations || kind != "abbreviations") &&
           (abilities.lists || (kind != "texts" && kind != "integers")) &&
           (abilities.allowedValues || kind != "allowed") &&
           (abilities.abbreviatedValues || kind != "allowed_prefix");
}

bool Peer::isSlow(const std::string& workload) const
{
    const auto limit = abilities.slowFrom.find(kindOf(workload));
    return limit != abilities.slowFrom.end() && sizeOf(workload) >= limit->second;
}

const std::vector<Peer>& allPeers()
{
    static const std::vector<Peer> peers = {
        kexaPeer(),    kexaFromNarrowPeer(), commandPeer(),   getoptPeer(), getoptPointersPeer(),
        poptPeer(),    argsPeer(),           tclapPeer(),     cli11Peer(),  programOptionsPeer(),
        cxxoptsPeer(), copyPeer(),           fromCharsPeer(), splitPeer(),  hashPeer()};
    return peers;
}

const Peer& peerNamed(const std::string& name)
{
    for (const Peer& peer : allPeers())
    {
        if (peer.name == name)
        {
            return peer;
        }
    }
    throw std::invalid_argument("no such peer: " + name);
}

std::string check(const Peer& peer, const Workload& workload)
{
    try
    {
        const std::unique_ptr<Host> host = peer.declare(workload);
        host->parse();
        Record record(workload.options().size());
        host->read(record);
        return peer.abilities.reads ? record.difference(workload) : std::string();
    }
    catch (const std::exception& error)
    {
        return error.what();
    }
}

} // namespace benchmarks
