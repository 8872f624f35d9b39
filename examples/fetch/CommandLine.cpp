#include "fetch/CommandLine.h"

namespace fetch
{

namespace
{

const char* refuseHeader(const std::string& header)
{
    const std::size_t colon = header.find(':');
    return colon == std::string::npos || colon == 0 ? "a header is written as 'Name: value'"
                                                    : nullptr;
}

std::string refuseAddress(const std::string& address)
{
    const std::size_t end = address.find("://");
    const std::string scheme = address.substr(0, end);
    return end == std::string::npos || scheme == "http" || scheme == "https"
               ? ""
               : "'" + scheme + "' is neither http nor https";
}

void declareRequest(kexa::Command<Settings>& command)
{
    auto request = command.in(&Settings::request);
    request.option(&Request::method, "request,X", "Method of the request").valueName("METHOD");
    request.option(&Request::headers, "header,H", "Send a header")
        .valueName("LINE")
        .check(refuseHeader);
    const auto data = request.option(&Request::data, "data,d", "Send as the body, joined by &");
    request.option(&Request::urlData, "data-urlencode", "Send encoded, in the order of --data");
    request.option(&Request::dataFiles, "data-file", "Send a file, in the order of --data")
        .valueName("FILE");
    const auto form =
        request.option(&Request::form, "form,F", "Send a field of a form").valueName("NAME=VALUE");
    request.option(&Request::asQuery, "get,G", "Send the data in the address");
    const auto head = request.option(&Request::head, "head,I", "Ask for the headers alone");
    request.option(&Request::cookies, "cookie,b", "Send a cookie").valueName("NAME=VALUE");
    const auto user = request.option(&Request::user, "user,u", "Name and password")
                          .valueName("NAME:PASSWORD")
                          .environment("FETCH_USER");
    const auto digest = request.option(&Request::digest, "digest", "Digest authentication");
    const auto bearer = request.option(&Request::bearer, "bearer", "The user is a token");
    request.option(&Request::userAgent, "user-agent,A", "Name of this program");
    request.option(&Request::referrer, "referer,e", "Address of the page before");
    request.option(&Request::compressed, "compressed", "Ask for compressed answers");
    request.option(&Request::range, "range,r", "Bytes to ask for").valueName("FIRST-LAST");
    command.excludes(data, form).excludes(head, data, form).excludes(digest, bearer);
    command.needs(digest, user).needs(bearer, user);
}

void declareConnection(kexa::Command<Settings>& command)
{
    constexpr const char* group = "Connection";
    auto connection = command.in(&Settings::connection);
    connection.option(&Connection::protocol, "http", "Version of the protocol")
        .values({{"1.1", Protocol::http1}, {"2", Protocol::http2}, {"3", Protocol::http3}})
        .group(group);
    connection.option(&Connection::proxy, "proxy,x", "Go through this proxy")
        .check(refuseAddress)
        .environment("FETCH_PROXY")
        .valueName("ADDRESS")
        .group(group);
    connection.option(&Connection::noProxy, "noproxy", "Reach these hosts directly")
        .separator(',')
        .valueName("HOSTS")
        .group(group);
    connection.option(&Connection::resolve, "resolve", "Use this address of a host")
        .valueName("HOST:PORT:ADDRESS")
        .group(group);
    connection.option(&Connection::interface, "interface", "Send from here").group(group);
    connection.option(&Connection::localPort, "local-port", "Send from this port")
        .range(0, 65535)
        .group(group);
    const auto four = connection.option(&Connection::ipv4, "ipv4,4", "IPv4 only").group(group);
    const auto six = connection.option(&Connection::ipv6, "ipv6,6", "IPv6 only").group(group);
    connection.option(&Connection::keepAlive, "keepalive", "Keep connections").group(group);
    connection.option(&Connection::connectTimeout, "connect-timeout", "Time to connect")
        .valueName("TIME")
        .group(group);
    connection.option(&Connection::maximalTime, "max-time,m", "Time for everything")
        .valueName("TIME")
        .group(group);
    connection.option(&Connection::tlsVersion, "tls", "Lowest version")
        .values({"1.0", "1.1", "1.2", "1.3"})
        .group(group);
    connection.option(&Connection::insecure, "insecure,k", "Trust every server").group(group);
    connection.option(&Connection::authorities, "cacert", "Authorities to trust").group(group);
    const auto certificate =
        connection.option(&Connection::certificate, "cert,E", "Certificate of the client")
            .group(group);
    const auto key = connection.option(&Connection::key, "key", "Its key").group(group);
    command.excludes(four, six).needs(key, certificate);
}

void declareTransfer(kexa::Command<Settings>& command)
{
    constexpr const char* group = "Transfer";
    auto transfer = command.in(&Settings::transfer);
    transfer.option(&Transfer::follow, "location,L", "Follow redirections").group(group);
    transfer.option(&Transfer::redirects, "max-redirs", "How many").range(0, 1000).group(group);
    transfer.option(&Transfer::fail, "fail,f", "Fail where the server refuses").group(group);
    transfer.option(&Transfer::retries, "retry", "Try again").range(0, 100).group(group);
    transfer.option(&Transfer::retryDelay, "retry-delay", "Time between")
        .group(group)
        .valueName("TIME");
    transfer.option(&Transfer::resume, "continue,C", "Continue a partial file").group(group);
    transfer.option(&Transfer::parallel, "parallel,Z", "Transfers at once")
        .range(1, 300)
        .group(group);
    transfer.option(&Transfer::limitRate, "limit-rate", "Bytes in a second")
        .group(group)
        .valueName("SIZE");
    transfer.option(&Transfer::largestFile, "max-filesize", "Refuse more")
        .group(group)
        .valueName("SIZE");
}

void declareOutput(kexa::Command<Settings>& command)
{
    constexpr const char* group = "Output";
    auto output = command.in(&Settings::output);
    const auto file = output.option(&Output::file, "output,o", "Write here").group(group);
    const auto remote =
        output.option(&Output::remoteName, "remote-name,O", "Write to the name at the server")
            .group(group);
    output.option(&Output::folder, "output-dir", "Folder of the files")
        .environment("FETCH_DIR")
        .group(group);
    output.option(&Output::headers, "dump-header,D", "Write the headers here").group(group);
    output.option(&Output::cookieJar, "cookie-jar,c", "Write the cookies here").group(group);
    output.option(&Output::include, "include,i", "Write the headers too").group(group);
    const auto silent = output.option(&Output::silent, "silent,s", "Print nothing").group(group);
    const auto verbose =
        output.option(&Output::verbose, "verbose,v", "Say more, each time").count().group(group);
    output.option(&Output::progress, "progress", "Show the progress")
        .values({"always", "auto", "never"})
        .implicit("always")
        .group(group);
    command.excludes(file, remote).excludes(silent, verbose);
}

} // namespace

kexa::Command<Settings> makeCommand()
{
    kexa::Command<Settings> command("fetch", "Transfers files from and to servers.");
    command.conventions(kexa::Conventions::posix);
    declareRequest(command);
    declareConnection(command);
    declareTransfer(command);
    declareOutput(command);
    command.positional(&Settings::addresses, "address", "What to fetch")
        .required()
        .check(refuseAddress);
    command.optionFiles().version("fetch 1.0");
    command.example("fetch -sL -o page.html https://example.org");
    return command;
}

} // namespace fetch
