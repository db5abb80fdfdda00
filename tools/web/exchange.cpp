// SPDX-License-Identifier: MIT
#include "exchange.h"

#include "header_trail.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <microhttpd.h>
#include <strings.h>

namespace web {
namespace {

struct Wanted {
    const char *name;
    std::string Request::*member;
};

constexpr Wanted kWanted[] = {
    {"Host", &Request::host},
    {"Origin", &Request::origin},
    {"Sec-Fetch-Site", &Request::fetchSite},
    {"Authorization", &Request::authorization},
    {"Cookie", &Request::cookie},
    {"Content-Type", &Request::contentType},
    {"If-None-Match", &Request::ifNoneMatch},
};

constexpr const char *kTwice = "a header stands twice in the request";

struct Headers {
    Request &request;
    HeaderTrail trail;
    size_t bytes = 0;
    const char *wrong = nullptr; // what is, where something is
    bool awaitsContinue = false;
};

bool is(const char *name, const char *wanted) {
    return strcasecmp(name, wanted) == 0;
}

void takeOther(Headers &headers, const char *name, const char *value) {
    if (is(name, "Content-Length")) {
        if (headers.request.contentLength) {
            headers.wrong = kTwice;
        }
        uint64_t length = 0;
        const auto [end, error] = std::from_chars(value, value + strlen(value), length);
        headers.request.contentLength = error == std::errc() && *end == '\0' ? length : UINT64_MAX;
    } else if (is(name, "If-Match")) { // a list, which may be spread over several
        std::optional<std::string> &list = headers.request.ifMatch;
        list = list ? *list + "," + value : value;
    } else if (is(name, "Transfer-Encoding")) {
        headers.request.chunked = true;
    } else if (is(name, "Expect")) {
        headers.awaitsContinue = true;
    }
}

bool isPlainName(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) { return c > ' ' && c < 0x7f; });
}

bool hasControl(std::string_view value) {
    return std::any_of(value.begin(), value.end(), [](unsigned char c) { return (c < ' ' && c != '\t') || c == 0x7f; });
}

MHD_Result takeHeader(void *context, MHD_ValueKind /*kind*/, const char *name, const char *text) {
    Headers &headers = *static_cast<Headers *>(context);
    const char *value = text ? text : "";
    headers.trail.follow(name, text ? text : name);
    headers.bytes += strlen(name) + strlen(value) + strlen(": \r\n");
    if (!isPlainName(name)) { // the server in front may take it for another header
        headers.wrong = "the name of a header is empty, or has a blank or a control character";
    }
    if (hasControl(value)) { // such as a CR, which some take for the end of the line
        headers.wrong = "a header's value has a control character";
    }
    for (const Wanted &wanted : kWanted) {
        if (is(name, wanted.name)) {
            std::string &member = headers.request.*wanted.member;
            if (!member.empty()) {
                headers.wrong = kTwice;
            }
            member = trimmed(value);
        }
    }
    takeOther(headers, name, value);
    return MHD_YES;
}

} // namespace

void Exchange::takeHeaders(MHD_Connection *from, const char *method, const char *version) {
    Headers headers{request, HeaderTrail(method, target, version)};
    request.method = method;
    MHD_get_connection_values(from, MHD_HEADER_KIND, takeHeader, &headers);
    const size_t size = MHD_get_connection_info(from, MHD_CONNECTION_INFO_REQUEST_HEADER_SIZE)->header_size;
    if (!headers.trail.endsAt(method + size)) {
        headers.wrong =
            "a line of the request has no name, goes on in the next line, or holds a NUL or a blank too many";
    }
    awaitsContinue_ = headers.awaitsContinue;
    isMalformed_ = headers.wrong != nullptr;
    constexpr auto kItems = static_cast<MHD_ValueKind>(MHD_HEADER_KIND | MHD_COOKIE_KIND);
    if (static_cast<size_t>(MHD_get_connection_values(from, kItems, nullptr, nullptr)) > kHeaderItemsMax) {
        throw Refusal(Status::HeadersTooLarge,
                      "there are more than " + std::to_string(kHeaderItemsMax) + " headers and cookies");
    }
    if (headers.bytes + request.target.size() > kHeadersMax) {
        throw Refusal(Status::HeadersTooLarge, "the headers are larger than " + std::to_string(kHeadersMax) + " bytes");
    }
    if (headers.wrong) {
        throw Refusal(Status::BadRequest, headers.wrong);
    }
}

void Exchange::takeBody(std::string_view bytes) {
    if (response) {
        return;
    }
    if (request.body.size() + bytes.size() > kBodyMax) {
        response = errorResponse(
            Refusal(Status::ContentTooLarge, "the body is larger than " + std::to_string(kBodyMax) + " bytes"));
        return;
    }
    request.body += bytes;
}

bool Exchange::skipsBody() const {
    // What follows headers that have two readings may be a request to this server, and a body to the one before it.
    const bool unclear = isMalformed_ || (response && response->status == Status::LengthRequired);
    return unclear || awaitsContinue_ || request.chunked || request.contentLength.value_or(0) > kDrainMax;
}

} // namespace web
