// SPDX-License-Identifier: MIT
// Entity tags: what tells a client that its copy is still the same.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace web {

// A strong tag with its quotes, from a 64-bit FNV-1a hash of the content.
std::string etagOf(std::string_view content);

// Whether an If-None-Match header, "" for none, names the tag: "*", or a list with weak ("W/") or strong ones.
bool etagMatches(std::string_view ifNoneMatch, std::string_view etag);

// Whether an If-Match header names the tag: "*", or a list in which it is a strong one. Nothing where the header is
// neither.
std::optional<bool> etagAllows(std::string_view ifMatch, std::string_view etag);

} // namespace web
