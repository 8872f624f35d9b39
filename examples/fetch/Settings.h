// What a command line of the program says, in parts.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace fetch
{

struct Duration
{
    double seconds = 0;
};

// A number of bytes, written as 500, 64K, 10M or 2G.
struct Size
{
    std::uint64_t bytes = 0;
};

enum class Protocol
{
    http1,
    http2,
    http3
};

struct Request
{
    std::string method; // empty: GET, or POST where there is data
    std::vector<std::string> headers, data, urlData, dataFiles, cookies;
    std::vector<std::string> form; // name=value
    std::string user, userAgent = "fetch/1.0", referrer;
    bool bearer = false, digest = false, head = false, asQuery = false, compressed = false;
    std::string range;
};

struct Connection
{
    Protocol protocol = Protocol::http2;
    std::string proxy, interface, tlsVersion = "1.2";
    std::vector<std::string> noProxy, resolve;
    std::optional<std::filesystem::path> certificate, key, authorities;
    Duration connectTimeout{30}, maximalTime{0};
    std::uint16_t localPort = 0;
    bool insecure = false, ipv4 = false, ipv6 = false, keepAlive = true;
};

struct Transfer
{
    unsigned retries = 0, redirects = 50, parallel = 1;
    Duration retryDelay{1};
    Size limitRate, largestFile;
    bool follow = false, fail = false, resume = false;
};

struct Output
{
    std::optional<std::filesystem::path> file, folder, headers, cookieJar;
    bool remoteName = false, silent = false, include = false;
    int verbose = 0;
    std::string progress = "auto";
};

struct Settings
{
    Request request;
    Connection connection;
    Transfer transfer;
    Output output;
    std::vector<std::string> addresses;
};

} // namespace fetch
