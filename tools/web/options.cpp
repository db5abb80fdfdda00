// SPDX-License-Identifier: MIT
#include "options.h"

#include "help/folded_formatter.h"

#include <CLI/CLI.hpp>
#include <iostream>

namespace web {
namespace {

constexpr int kUsage = 2;
constexpr unsigned kConnectionsMax = 1000;

constexpr const char *kFooter =
    R"(Prints one line, the URL with this start's token, and serves until SIGTERM or SIGINT.
Listening elsewhere than on loopback needs --host, and TLS in front: see docs/web.md.)";

std::string notEmpty(const std::string &value) {
    return value.empty() ? "is empty" : "";
}

// What a Host header says before the port: a name, or an IPv6 address in brackets.
std::string hostName(const std::string &value) {
    constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.-_";
    const bool bracketed = value.starts_with('[') && value.ends_with(']');
    const std::string text = bracketed ? value.substr(1, value.size() - 2) : value;
    const bool good =
        !text.empty() && text.find_first_not_of(std::string(kPlain) + (bracketed ? ":" : "")) == std::string::npos;
    return good ? "" : "is not the name of a host; it is given without a port";
}

void define(CLI::App &app, Options &options, std::string &listen) {
    app.add_option("-g,--gateway", options.gateway, "The sandbox's gateway to serve")
        ->type_name("NAME")
        ->check(notEmpty);
    app.add_option("--listen", listen, "Where to listen; port 0 takes a free one. Default: " + listen)
        ->type_name("ADDRESS:PORT");
    app.add_option("--host", options.hosts, "A name in the Host header that is this server; repeatable")
        ->type_name("NAME")
        ->allow_extra_args(false)
        ->check(hostName);
    app.add_flag("--read-only", options.readOnly, "Refuse every change");
    app.add_option("--token-file", options.tokenFile, "Write the token to this file too, for the owner alone")
        ->type_name("FILE")
        ->check(notEmpty);
    app.add_option("--connections", options.connections, "Connections at once. Default: 64")
        ->type_name("N")
        ->check(CLI::Range(1U, kConnectionsMax));
    app.add_option("--connections-per-address", options.connectionsPerAddress,
                   "Connections at once from one address. Default: 16")
        ->type_name("N")
        ->check(CLI::Range(1U, kConnectionsMax));
    app.set_version_flag("--version", std::string("caltofal-web ") + CALTOFAL_VERSION, "Print the version");
    app.set_help_flag("-h,--help", "Print this help");
    app.footer(kFooter);
    app.get_formatter()->column_width(36);
}

void check(Options &options, const std::string &listen) {
    options.listen = parseListenAddress(listen);
    if (!options.listen.loopback && options.hosts.empty()) {
        throw std::invalid_argument("listening on " + listen +
                                    " needs --host NAME, the name that browsers use, and TLS in front of the server");
    }
    if (listen.starts_with("localhost:")) {
        options.hosts.emplace_back("localhost");
    }
}

} // namespace

std::optional<int> parseOptions(int argc, char **argv, Options &options) {
    CLI::App app("Serves a residential gateway's pages over HTTP, with a page for the browser.", "caltofal-web");
    app.formatter(std::make_shared<help::FoldedFormatter>());
    std::string listen = "127.0.0.1:8080";
    define(app, options, listen);
    try {
        app.parse(argc, argv);
        check(options, listen);
    } catch (const CLI::Success &success) {
        app.exit(success, std::cout, std::cerr);
        return std::cout.flush() ? 0 : 1;
    } catch (const std::exception &error) {
        std::cerr << "caltofal-web: " << error.what() << "; see caltofal-web --help\n";
        return kUsage;
    }
    return {};
}

} // namespace web
