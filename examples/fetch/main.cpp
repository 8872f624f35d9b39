// A command line in the manner of curl. The program prints what it would do.
#include <cstdio>

#include "fetch/CommandLine.h"

namespace fetch
{

namespace
{

void print(const kexa::Parsed<Settings>& parsed)
{
    const Request& request = parsed->request;
    const bool hasBody = !request.data.empty() || !request.urlData.empty() ||
                         !request.dataFiles.empty() || !request.form.empty();
    const char* method = request.head ? "HEAD" : hasBody && !request.asQuery ? "POST" : "GET";
    for (const std::string& address : parsed->addresses)
    {
        std::printf("%s %s\n", request.method.empty() ? method : request.method.c_str(),
                    address.c_str());
    }
    // Pieces of the body come from three options, whose order among each other matters.
    for (const kexa::Occurrence& each : parsed.occurrences())
    {
        if (each.option.compare(0, 4, "data") == 0 || each.option == "header")
        {
            std::printf("  %s %s\n", each.option.c_str(), each.value.c_str());
        }
    }
    const Connection& connection = parsed->connection;
    std::printf("  proxy '%s', %g s to connect, keep %d, port %d\n", connection.proxy.c_str(),
                connection.connectTimeout.seconds, connection.keepAlive, connection.localPort);
    const Transfer& transfer = parsed->transfer;
    std::printf("  follow %d, retry %u, %llu bytes a second\n", transfer.follow, transfer.retries,
                static_cast<unsigned long long>(transfer.limitRate.bytes));
    const Output& output = parsed->output;
    std::printf("  to %s, silent %d, verbose %d, progress %s\n",
                output.file ? output.file->string().c_str() : "standard output", output.silent,
                output.verbose, output.progress.c_str());
}

} // namespace

} // namespace fetch

int main(int argc, char** argv)
{
    auto command = fetch::makeCommand();
    return kexa::run(command, argc, argv, fetch::print);
}
