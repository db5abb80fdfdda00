// SPDX-License-Identifier: MIT
// An answer before it goes over a connection.
#pragma once

#include "pages/report.h"
#include "refusal.h"

#include <string>
#include <string_view>
#include <vector>

namespace web {

struct PageFile;

struct Response {
    Status status = Status::Ok;
    std::string body = {};
    std::string_view file = {}; // in place of the body: text that lives as long as the process
    std::string_view type = "application/json";
    std::string_view caching = "no-store";
    std::vector<Header> headers = {};
};

// JSON as the command line prints it.
Response jsonResponse(const pages::Value &value, Status status = Status::Ok);

// A page as the command line prints it; its notes, which the command line says on standard error, as a list of texts in
// the header Caltofal-Notes, in JSON and ASCII.
Response reportResponse(const pages::Report &report);

// {"error": {"code", "exit", "message", "object"}}, null where there is none.
Response errorResponse(const Refusal &refusal);

// Adds the tag of the body, and drops the body where the client has it already.
Response tagged(Response response, std::string_view ifNoneMatch);

Response fileResponse(const PageFile &file, std::string_view ifNoneMatch);

// A whole answer as bytes, with the headers that every answer carries, after which the connection ends: for connections
// that are not served.
std::string closingBytes(const Response &response, const std::vector<Header> &common);

} // namespace web
