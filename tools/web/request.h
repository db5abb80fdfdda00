// SPDX-License-Identifier: MIT
// A request as it came over a connection, nothing of it judged yet.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace web {

constexpr size_t kBodyMax = 65536;      // bytes of a body
constexpr size_t kHeadersMax = 16384;   // bytes of the request line and all headers
constexpr size_t kHeaderItemsMax = 128; // headers and cookies
constexpr int kDepthMax = 16;           // of JSON in a body

// Without the blanks and tabs at both ends, which are no part of a header's value.
inline std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

struct Request {
    std::string method;
    std::string target; // path and query, still encoded
    std::string body;
    std::string address; // the client's, as text
    // Headers; absent ones are empty.
    std::string host, origin, fetchSite, authorization, cookie, contentType, ifNoneMatch;
    std::optional<std::string> ifMatch; // an empty one is a list that no tag is in
    std::optional<uint64_t> contentLength;
    bool chunked = false;
};

} // namespace web
