// SPDX-License-Identifier: MIT
#include "response.h"

#include "etag.h"
#include "page_file.h"
#include "pages/json.h"

namespace web {
namespace {

const char *phraseOf(Status status) {
    switch (status) {
    case Status::BadRequest:
        return "Bad Request";
    case Status::RequestTimeout:
        return "Request Timeout";
    case Status::HeadersTooLarge:
        return "Request Header Fields Too Large";
    default:
        return "Service Unavailable";
    }
}

constexpr size_t kNotesMax = 2000; // bytes: the HTTP library has little room for headers

// What does not fit is left out.
std::string notesText(const std::vector<std::string> &notes) {
    std::string text;
    for (const std::string &note : notes) {
        const std::string one = (text.empty() ? "[" : ", ") + pages::toAsciiJson(note);
        text += text.size() + one.size() < kNotesMax ? one : "";
    }
    return text.empty() ? text : text + "]";
}

} // namespace

Response jsonResponse(const pages::Value &value, Status status) {
    return {status, pages::toJson(value, 2) + "\n"};
}

Response reportResponse(const pages::Report &report) {
    Response response = jsonResponse(report.json);
    if (std::string notes = notesText(report.notes); !notes.empty()) {
        response.headers.push_back({"Caltofal-Notes", std::move(notes)});
    }
    return response;
}

Response errorResponse(const Refusal &refusal) {
    pages::Value error =
        pages::Value::object({{"code", {}}, {"exit", {}}, {"message", refusal.what()}, {"object", {}}});
    Response response = jsonResponse(pages::Value::object({{"error", std::move(error)}}), refusal.status());
    response.headers = refusal.headers();
    return response;
}

Response tagged(Response response, std::string_view ifNoneMatch) {
    std::string etag = etagOf(response.body);
    if (etagMatches(ifNoneMatch, etag)) {
        response.status = Status::NotModified;
        response.body.clear();
    }
    response.headers.push_back({"ETag", std::move(etag)});
    return response;
}

Response fileResponse(const PageFile &file, std::string_view ifNoneMatch) {
    const bool known = etagMatches(ifNoneMatch, file.etag);
    return {known ? Status::NotModified : Status::Ok,
            {},
            known ? std::string_view() : file.content,
            file.type,
            "no-cache", // a new version of the program is seen at the next look
            {{"ETag", file.etag}}};
}

std::string closingBytes(const Response &response, const std::vector<Header> &common) {
    std::string text = "HTTP/1.1 " + std::to_string(static_cast<unsigned>(response.status)) + " " +
                       phraseOf(response.status) +
                       "\r\nConnection: close\r\nContent-Type: " + std::string(response.type) +
                       "\r\nCache-Control: " + std::string(response.caching) + "\r\n";
    for (const std::vector<Header> *headers : {&common, &response.headers}) {
        for (const Header &header : *headers) {
            text += header.name + ": " + header.value + "\r\n";
        }
    }
    return text + "Content-Length: " + std::to_string(response.body.size()) + "\r\n\r\n" + response.body;
}

} // namespace web
